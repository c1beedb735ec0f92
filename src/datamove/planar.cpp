#include "datamove/planar.h"

#include <cstdint>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "core/lanes.h"
#include "core/large_transfer.h"
#include "datamove/channel_scalar.h"
#include "datamove/row_channel_kernels.h"
#include "datamove/row_kernels.h"
#include "datamove/row_overlap.h"

namespace pel::datamove {

namespace {

// The 8-bit three-plane split treats contiguous rows as one long row, but
// not for a big image with a pointer off a 4-byte boundary.
constexpr int64_t kMisalignedRunLimitBytes = 160000;

// A planar copy reads every sample once and writes it once, so the transfer
// that decides about the cache is twice the interleaved image: C x element
// bytes x 2 per pixel (6 for 8u C3, 12 for 16-bit C3, 24 for 32-bit C3,
// 8/16/32 for C4), for splits and merges alike.
template <class T, int C>
bool PlanarCopyStreams(PeliSize roi) {
  const uint64_t pixels = static_cast<uint64_t>(roi.width) * static_cast<uint64_t>(roi.height);
  return StreamsPastCache(pixels * C * sizeof(T) * 2);
}

template <class T, int C>
bool SplitIsOneRun(const T* pSrc, int srcStep, T* const* planes, int dstStep, PeliSize roi) {
  if constexpr (std::is_same_v<T, Pel8u> && C == 3) {
    if (static_cast<int64_t>(srcStep) != 3 * static_cast<int64_t>(dstStep) ||
        dstStep != roi.width) {
      return false;
    }
    const auto off4 = [](const void* p) { return reinterpret_cast<uintptr_t>(p) % 4 != 0; };
    const bool misaligned = off4(pSrc) || off4(planes[0]) || off4(planes[1]) || off4(planes[2]);
    return !(static_cast<int64_t>(srcStep) * roi.height >= kMisalignedRunLimitBytes && misaligned);
  } else {
    (void)pSrc, (void)srcStep, (void)planes, (void)dstStep, (void)roi;
    return false;
  }
}

}  // namespace

template <class T, int C>
PelStatus CopySplit(const T* pSrc, int srcStep, T* const pDst[C], int dstStep, PeliSize roiSize) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  for (int c = 0; c < C; ++c) {
    if (pDst[c] == nullptr) return pelStatusNullPointer;
  }
  if (BadSize(roiSize)) return pelStatusBadSize;
  using U = LaneOf<T>;
  const bool stream = PlanarCopyStreams<T, C>(roiSize);
  uint64_t n = static_cast<uint64_t>(roiSize.width);
  int rows = roiSize.height;
  if (SplitIsOneRun<T, C>(pSrc, srcStep, pDst, dstStep, roiSize)) {
    n *= static_cast<uint64_t>(roiSize.height);
    rows = 1;
  }
  const uint64_t planeBytes = n * sizeof(U);
  for (int y = 0; y < rows; ++y) {
    const auto* s = reinterpret_cast<const U*>(Row(pSrc, srcStep, y));
    U* p[C];
    for (int c = 0; c < C; ++c) p[c] = reinterpret_cast<U*>(Row(pDst[c], dstStep, y));
    // A destination plane sharing memory with the source or with another
    // plane makes the order of the writes visible.
    bool overlap = false;
    const ByteRange source = RangeOf(s, planeBytes * C);
    for (int c = 0; c < C; ++c) {
      const ByteRange plane = RangeOf(p[c], planeBytes);
      overlap = overlap || Overlap(source, plane);
      for (int k = 0; k < c; ++k) overlap = overlap || Overlap(RangeOf(p[k], planeBytes), plane);
    }
    if (n <= kScalarRowPixels || overlap) {
      scalar::SplitRow<U, C>(s, p, 0, static_cast<size_t>(n));
    } else {
      SplitRowVec<U, C>(s, p, static_cast<size_t>(n), stream);
    }
  }
  if (stream) FinishStreaming();
  return pelStatusOk;
}

template <class T, int C>
PelStatus CopyMerge(const T* const pSrc[C], int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  for (int c = 0; c < C; ++c) {
    if (pSrc[c] == nullptr) return pelStatusNullPointer;
  }
  if (BadSize(roiSize)) return pelStatusBadSize;
  using U = LaneOf<T>;
  const bool stream = PlanarCopyStreams<T, C>(roiSize);
  const auto n = static_cast<size_t>(roiSize.width);
  const uint64_t planeBytes = static_cast<uint64_t>(n) * sizeof(U);
  for (int y = 0; y < roiSize.height; ++y) {
    const U* p[C];
    for (int c = 0; c < C; ++c) p[c] = reinterpret_cast<const U*>(Row(pSrc[c], srcStep, y));
    auto* d = reinterpret_cast<U*>(Row(pDst, dstStep, y));
    bool overlap = false;
    const ByteRange destination = RangeOf(d, planeBytes * C);
    for (int c = 0; c < C; ++c) overlap = overlap || Overlap(RangeOf(p[c], planeBytes), destination);
    if (n <= kScalarRowPixels || overlap) {
      scalar::MergeRow<U, C>(p, d, 0, n);
    } else {
      MergeRowVec<U, C>(p, d, n, stream);
    }
  }
  if (stream) FinishStreaming();
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/planar_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
