#include "datamove/swap.h"

#include <cstdint>

#include "core/common.h"
#include "core/exports.h"
#include "datamove/gather.h"
#include "datamove/pixel_rows.h"
#include "datamove/row_mirror_kernels.h"

namespace pel::datamove {

namespace {

// Rows that follow each other without a gap on both sides form one run.
// A row whose source and destination share memory (other than being the
// very same pixels) goes to the reference, whose forward order defines it.
PelStatus GatherImage(const void* pSrc, int srcStep, void* pDst, int dstStep, PeliSize roi,
                      const GatherPlan& plan) {
  const auto e = static_cast<uint64_t>(plan.elemBytes);
  const uint64_t srcRow = static_cast<uint64_t>(roi.width) * plan.srcChannels * e;
  const uint64_t dstRow = static_cast<uint64_t>(roi.width) * plan.dstChannels * e;
  uint64_t pixels = static_cast<uint64_t>(roi.width);
  int rows = roi.height;
  if (srcStep > 0 && dstStep > 0 && static_cast<uint64_t>(srcStep) == srcRow &&
      static_cast<uint64_t>(dstStep) == dstRow) {
    pixels *= static_cast<uint64_t>(roi.height);
    rows = 1;
  }
  const bool samePixels = plan.srcChannels == plan.dstChannels;
  for (int y = 0; y < rows; ++y) {
    const auto* s = static_cast<const uint8_t*>(Row(pSrc, srcStep, y));
    auto* d = static_cast<uint8_t*>(Row(pDst, dstStep, y));
    const bool shared = Overlap(RangeOf(s, pixels * plan.srcChannels * e), RangeOf(d, pixels * plan.dstChannels * e));
    if (shared && !(samePixels && s == d)) {
      scalar::GatherRowAny(s, d, static_cast<size_t>(pixels), plan);
    } else {
      GatherRow(s, d, static_cast<size_t>(pixels), plan);
    }
  }
  return pelStatusOk;
}

// Entries are compared unsigned, so a negative one is out of range too.
bool OrderWithin(const int* order, int count, unsigned highest) {
  for (int c = 0; c < count; ++c)
    if (static_cast<unsigned>(order[c]) > highest) return false;
  return true;
}

template <class T>
PelStatus Swap(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roi, int srcChannels, int dstChannels, const int* from, const T* value = nullptr) {
  GatherPlan plan;
  BuildGatherPlan(&plan, sizeof(T), srcChannels, dstChannels, from, value);
  return GatherImage(pSrc, srcStep, pDst, dstStep, roi, plan);
}

}  // namespace

template <class T, int C>
PelStatus SwapChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                       const int* dstOrder) {
  if (AnyNull(pSrc, pDst, dstOrder)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (!OrderWithin(dstOrder, C, C - 1)) return pelStatusChannelOrderError;
  return Swap(pSrc, srcStep, pDst, dstStep, roiSize, C, C, dstOrder);
}

template <class T>
PelStatus SwapChannelsAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                            const int* dstOrder) {
  if (AnyNull(pSrc, pDst, dstOrder)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (!OrderWithin(dstOrder, 3, 2)) return pelStatusChannelOrderError;
  const int from[4] = {dstOrder[0], dstOrder[1], dstOrder[2], kGatherKeep};
  return Swap(pSrc, srcStep, pDst, dstStep, roiSize, 4, 4, from);
}

// A negative entry is refused like one of a three-channel swap; entries
// from 4 up leave their channel alone.
template <class T>
PelStatus SwapChannelsToFour(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                             const int* dstOrder, T val) {
  if (AnyNull(pSrc, pDst, dstOrder)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  int from[4];
  for (int c = 0; c < 4; ++c) {
    const int o = dstOrder[c];
    if (o < 0) return pelStatusChannelOrderError;
    from[c] = o <= 2 ? o : o == 3 ? kGatherFill : kGatherKeep;
  }
  return Swap(pSrc, srcStep, pDst, dstStep, roiSize, 3, 4, from, &val);
}

template <class T>
PelStatus SwapChannelsToThree(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                              const int* dstOrder) {
  if (AnyNull(pSrc, pDst, dstOrder)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (!OrderWithin(dstOrder, 3, 3)) return pelStatusChannelOrderError;
  return Swap(pSrc, srcStep, pDst, dstStep, roiSize, 4, 3, dstOrder);
}

template <class T, int C>
PelStatus SwapChannelsInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, const int* dstOrder) {
  return SwapChannels<T, C>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/swap_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
