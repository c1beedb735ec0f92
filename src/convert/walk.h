// How the family's walkers visit a region: rows that follow each other
// without a gap in every image go to the row kernel as one long row.
#pragma once

#include <cstddef>
#include <cstdint>

#include "convert/layouts.h"
#include "core/common.h"

namespace pel::convert {

// Calls row(src, dst, elements) for each row of the ROI, or once for the
// whole region when both images are gapless. src and dst may be the same.
template <int L, class S, class D, class RowFn>
void WalkRows(const S* src, ptrdiff_t srcStep, D* dst, ptrdiff_t dstStep, PeliSize roi, RowFn&& row) {
  const size_t elements = static_cast<size_t>(roi.width) * ChannelsOf(L);
  const uint64_t total = uint64_t{elements} * static_cast<uint64_t>(roi.height);
  if (srcStep > 0 && dstStep > 0 && uint64_t(srcStep) == elements * sizeof(S) &&
      uint64_t(dstStep) == elements * sizeof(D) && total < 0x7FFFFFFF) {
    row(src, dst, static_cast<size_t>(total));
    return;
  }
  for (int y = 0; y < roi.height; ++y) row(Row(src, srcStep, y), Row(dst, dstStep, y), elements);
}

// The bytes a call reads and writes, for the cache decision.
template <int L, class S, class D>
uint64_t BytesTouched(PeliSize roi) {
  return uint64_t(roi.width) * uint64_t(roi.height) * ChannelsOf(L) * (sizeof(S) + sizeof(D));
}

inline bool BadSteps(int a, int b) { return a < 1 || b < 1; }

}  // namespace pel::convert
