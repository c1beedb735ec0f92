// What the logic and shift walkers share: their argument checks, which test
// steps before sizes, and the row loop.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "core/common.h"
#include "peli.h"

namespace pel::logic {

// Pointers, then steps (at least 1), then the ROI size.
template <class... P>
PelStatus CheckArgs(PeliSize roi, std::initializer_list<int> steps, const P*... pointers) {
  if (AnyNull(pointers...)) return pelStatusNullPointer;
  for (int step : steps) {
    if (step < 1) return pelStatusBadStep;
  }
  if (BadSize(roi)) return pelStatusBadSize;
  return pelStatusOk;
}

// Calls row(y, bytes) for every row of `rowBytes` bytes, or row(0, all
// bytes) once when the rows of every image follow each other without a gap:
// long runs keep the vectors busy and leave one partial vector per image
// instead of one per row.
template <class F>
void ForEachRow(PeliSize roi, uint64_t rowBytes, std::initializer_list<int> steps, F&& row) {
  const uint64_t total = rowBytes * static_cast<uint64_t>(roi.height);
  bool oneRun = total <= SIZE_MAX;
  for (int step : steps) oneRun = oneRun && static_cast<uint64_t>(step) == rowBytes;
  if (oneRun) {
    row(ptrdiff_t{0}, static_cast<size_t>(total));
    return;
  }
  for (int y = 0; y < roi.height; ++y) row(ptrdiff_t{y}, static_cast<size_t>(rowBytes));
}

}  // namespace pel::logic
