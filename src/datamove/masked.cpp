#include "datamove/masked.h"

#include <cstring>

#include "core/common.h"
#include "core/exports.h"
#include "core/lanes.h"
#include "core/large_transfer.h"
#include "datamove/row_kernels.h"
#include "datamove/row_mask_kernels.h"
#include "datamove/row_pieces.h"

namespace pel::datamove {

namespace {

// A step that equals the row's bytes puts the next row right after this one.
bool Gapless(ptrdiff_t step, uint64_t rowBytes) {
  return step > 0 && static_cast<uint64_t>(step) == rowBytes;
}

// Calls row(y, pixels) for every ROI row, or once for a single row of
// width x height pixels when the images are gapless (`merge`).
template <class Size, class RowFn>
void WalkRows(Size roi, bool merge, RowFn&& row) {
  if (merge) {
    row(ptrdiff_t{0}, static_cast<size_t>(static_cast<uint64_t>(roi.width) *
                                          static_cast<uint64_t>(roi.height)));
    return;
  }
  for (ptrdiff_t y = 0; y < static_cast<ptrdiff_t>(roi.height); ++y) {
    row(y, static_cast<size_t>(roi.width));
  }
}

template <class T>
using Lane = LaneOf<T>;

template <class T>
const Lane<T>* LaneRow(const T* p, ptrdiff_t step, ptrdiff_t y) {
  return reinterpret_cast<const Lane<T>*>(Row(p, step, y));
}

template <class T>
Lane<T>* LaneRow(T* p, ptrdiff_t step, ptrdiff_t y) {
  return reinterpret_cast<Lane<T>*>(Row(p, step, y));
}

// AC4R and its _L twin. Streaming follows the plain copies (the whole pixel
// span of the ROI above 1 MiB), and rows go to the kernel in pieces.
template <class T, class Size>
PelStatus CopyAlphaImage(const T* pSrc, ptrdiff_t srcStep, T* pDst, ptrdiff_t dstStep,
                         Size roi) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  constexpr uint64_t kPixelBytes = 4 * sizeof(T);
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * kPixelBytes;
  const bool stream = StreamsAsPlainCopy(rowBytes * static_cast<uint64_t>(roi.height));
  const bool merge = srcStep == dstStep && Gapless(srcStep, rowBytes);
  WalkRows(roi, merge, [&](ptrdiff_t y, size_t pixels) {
    const auto* s = LaneRow(pSrc, srcStep, y);
    auto* d = LaneRow(pDst, dstStep, y);
    ForEachPiece(pixels * kPixelBytes, [&](uint64_t offset, uint64_t bytes) {
      const size_t first = static_cast<size_t>(offset / kPixelBytes) * 4;
      AlphaCopyRow(s + first, d + first, static_cast<size_t>(bytes / kPixelBytes), stream);
    });
  });
  if (stream) FinishStreaming();
  return pelStatusOk;
}

// Masked fills of every layout; value holds W elements.
template <class T, int C, int W>
PelStatus SetMaskedImage(const T* value, T* pDst, int dstStep, const Pel8u* pMask, int maskStep,
                         PeliSize roi) {
  if (AnyNull(value, pDst, pMask)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  Lane<T> lanes[W];
  std::memcpy(lanes, value, sizeof lanes);
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * C * sizeof(T);
  const bool merge = Gapless(dstStep, rowBytes) && Gapless(maskStep, roi.width);
  WalkRows(roi, merge, [&](ptrdiff_t y, size_t pixels) {
    MaskedSetRow<Lane<T>, C, W>(LaneRow(pDst, dstStep, y), Row(pMask, maskStep, y), pixels,
                                lanes);
  });
  return pelStatusOk;
}

}  // namespace

template <class T>
PelStatus CopyAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  return CopyAlphaImage(pSrc, srcStep, pDst, dstStep, roiSize);
}

template <class T>
PelStatus CopyAlphaL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep,
                     PeliSizeL roiSize) {
  return CopyAlphaImage(pSrc, srcStep, pDst, dstStep, roiSize);
}

// Masked forms never stream: they read the destination where the mask is
// mixed and rarely write all of it.
template <class T, int C, int W>
PelStatus CopyMasked(const T* pSrc, int srcStep, T* pDst, int dstStep, const Pel8u* pMask,
                     int maskStep, PeliSize roiSize) {
  if (AnyNull(pSrc, pDst, pMask)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  const uint64_t rowBytes = static_cast<uint64_t>(roiSize.width) * C * sizeof(T);
  const bool merge =
      srcStep == dstStep && Gapless(srcStep, rowBytes) && Gapless(maskStep, roiSize.width);
  WalkRows(roiSize, merge, [&](ptrdiff_t y, size_t pixels) {
    MaskedCopyRow<Lane<T>, C, W>(LaneRow(pSrc, srcStep, y), LaneRow(pDst, dstStep, y),
                                 Row(pMask, maskStep, y), pixels);
  });
  return pelStatusOk;
}

// Single-channel forms write one element in C: ordinary stores always.
template <class T, int C>
PelStatus CopyChannel(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  const uint64_t rowBytes = static_cast<uint64_t>(roiSize.width) * C * sizeof(T);
  const bool merge = srcStep == dstStep && Gapless(srcStep, rowBytes);
  WalkRows(roiSize, merge, [&](ptrdiff_t y, size_t pixels) {
    ChannelCopyRow<Lane<T>, C>(LaneRow(pSrc, srcStep, y), LaneRow(pDst, dstStep, y), pixels);
  });
  return pelStatusOk;
}

// The large-transfer rule of Set, counted over every byte of the ROI's
// pixels: the untouched alpha lies in the same cache lines as the colour.
template <class T>
PelStatus SetAlpha(const T* value, T* pDst, int dstStep, PeliSize roiSize) {
  if (AnyNull(value, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  Lane<T> lanes[3];
  std::memcpy(lanes, value, sizeof lanes);
  const uint64_t rowBytes = static_cast<uint64_t>(roiSize.width) * 4 * sizeof(T);
  const bool stream = StreamsPastCache(rowBytes * static_cast<uint64_t>(roiSize.height));
  WalkRows(roiSize, Gapless(dstStep, rowBytes), [&](ptrdiff_t y, size_t pixels) {
    AlphaSetRow(LaneRow(pDst, dstStep, y), pixels, lanes, stream);
  });
  if (stream) FinishStreaming();
  return pelStatusOk;
}

template <class T>
PelStatus SetMaskedC1(T value, T* pDst, int dstStep, const Pel8u* pMask, int maskStep,
                      PeliSize roiSize) {
  return SetMaskedImage<T, 1, 1>(&value, pDst, dstStep, pMask, maskStep, roiSize);
}

template <class T, int C, int W>
PelStatus SetMasked(const T* value, T* pDst, int dstStep, const Pel8u* pMask, int maskStep,
                    PeliSize roiSize) {
  return SetMaskedImage<T, C, W>(value, pDst, dstStep, pMask, maskStep, roiSize);
}

template <class T, int C>
PelStatus SetChannel(T value, T* pDst, int dstStep, PeliSize roiSize) {
  if (AnyNull(pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  Lane<T> lane;
  std::memcpy(&lane, &value, sizeof lane);
  const uint64_t rowBytes = static_cast<uint64_t>(roiSize.width) * C * sizeof(T);
  WalkRows(roiSize, Gapless(dstStep, rowBytes), [&](ptrdiff_t y, size_t pixels) {
    ChannelSetRow<Lane<T>, C>(LaneRow(pDst, dstStep, y), pixels, lane);
  });
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/masked_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
