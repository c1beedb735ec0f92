#include "datamove/mirror.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "core/large_transfer.h"
#include "datamove/mirror_scalar.h"
#include "datamove/pixel_rows.h"
#include "datamove/row_mirror_kernels.h"

namespace pel::datamove {

namespace {

constexpr int kHorizontalAxis = 0;  // rows in reverse order
constexpr int kVerticalAxis = 1;    // each row reversed
constexpr int kBothAxes = 2;
constexpr int kMainDiagonal = 3;
constexpr int kSecondDiagonal = 4;

// A source of w x h pixels into a destination of h x w. Where the two areas
// share memory the reference's order (destination row by row) defines the
// result, which then depends on nothing else.
void TransposeArea(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                   uint64_t w, uint64_t h, PixelBytes px, bool stream) {
  const auto P = static_cast<uint64_t>(px.bytes);
  if (Overlap(SpanOf(src, srcStep, h, w * P), SpanOf(dst, dstStep, w, h * P))) {
    scalar::TransposeAny(src, srcStep, dst, dstStep, static_cast<size_t>(w), static_cast<size_t>(h), px);
  } else {
    TransposeRect(src, srcStep, dst, dstStep, static_cast<size_t>(w), static_cast<size_t>(h), px, stream);
  }
}

// Flips about a diagonal are transposes; the ROI is the destination's size.
// The second diagonal is the transpose of the source read bottom-up into
// the destination written bottom-up.
PelStatus MirrorDiagonal(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, PeliSize roi,
                         int flip, PixelBytes px) {
  if (AnyNull(src, dst)) return pelStatusNullPointer;
  if (srcStep < 1 || dstStep < 1) return pelStatusBadStep;
  if (BadSize(roi)) return pelStatusBadSize;
  const auto W = static_cast<uint64_t>(roi.width), H = static_cast<uint64_t>(roi.height);
  const auto P = static_cast<uint64_t>(px.bytes);
  if (Overlap(SpanOf(src, srcStep, W, H * P), SpanOf(dst, dstStep, H, W * P))) {
    return pelStatusNotSupportedMode;
  }
  if (flip == kMainDiagonal) {
    TransposeRect(src, srcStep, dst, dstStep, H, W, px, false);
  } else {
    TransposeRect(Row(src, srcStep, roi.width - 1), -srcStep, Row(dst, dstStep, roi.height - 1),
                  -dstStep, H, W, px, false);
  }
  return pelStatusOk;
}

PelStatus MirrorInPlaceBytes(uint8_t* p, int step, PeliSize roi, int flip, PixelBytes px) {
  if (AnyNull(p)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (flip != kHorizontalAxis && flip != kVerticalAxis && flip != kBothAxes) return pelStatusMirrorAxisError;
  const auto n = static_cast<size_t>(roi.width);
  const int H = roi.height;
  // Rows closer than a row's length share memory: the exchanges then run
  // in the reference's order.
  const bool shared = H > 1 && Magnitude(step) < n * static_cast<uint64_t>(px.bytes);
  auto row = [&](int y) { return Row(p, step, y); };
  for (int y = 0; y < H / 2; ++y) {
    uint8_t* a = row(y);
    uint8_t* b = row(H - 1 - y);
    if (flip == kHorizontalAxis) {
      shared ? scalar::SwapRowsAny(a, b, n, px) : SwapRows(a, b, n, px);
    } else if (flip == kBothAxes) {
      shared ? scalar::ReverseSwapRowsAny(a, b, n, px) : ReverseSwapRows(a, b, n, px);
    } else {
      ReverseRowInPlace(a, n, px);
      ReverseRowInPlace(b, n, px);
    }
  }
  if (H % 2 == 1 && flip != kHorizontalAxis) ReverseRowInPlace(row(H / 2), n, px);
  return pelStatusOk;
}

PelStatus MirrorBytes(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, PeliSize roi,
                      int flip, PixelBytes px, bool fourChannels) {
  if (flip == kMainDiagonal || flip == kSecondDiagonal) {
    return MirrorDiagonal(src, srcStep, dst, dstStep, roi, flip, px);
  }
  if (src == dst && srcStep == dstStep) return MirrorInPlaceBytes(dst, dstStep, roi, flip, px);
  if (AnyNull(src, dst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (flip != kHorizontalAxis && flip != kVerticalAxis && flip != kBothAxes) return pelStatusMirrorAxisError;
  const auto H = static_cast<uint64_t>(roi.height);
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * static_cast<uint64_t>(px.bytes);
  // Four-channel images stream past the cache size; the others by the
  // bytes a flip touches: the rows copied, or both images' spans when rows
  // are reversed.
  bool stream;
  if (fourChannels) {
    stream = StreamsPastCache(2 * rowBytes * H);
  } else if (flip == kHorizontalAxis) {
    stream = rowBytes * H > kCachedTransferBytes;
  } else {
    stream = (Magnitude(srcStep) + Magnitude(dstStep)) * H > kCachedTransferBytes;
  }
  for (int y = 0; y < roi.height; ++y) {
    const uint8_t* s = Row(src, srcStep, y);
    uint8_t* d = Row(dst, dstStep, flip == kVerticalAxis ? y : roi.height - 1 - y);
    if (flip == kHorizontalAxis) {
      CopyPixels(s, d, static_cast<uint64_t>(roi.width), px, stream);
    } else {
      ReversePixels(s, d, static_cast<uint64_t>(roi.width), px, stream);
    }
  }
  if (stream) FinishStreaming();
  return pelStatusOk;
}

PelStatus TransposeInPlaceBytes(uint8_t* p, int step, PeliSize roi, PixelBytes px) {
  if (AnyNull(p)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  const auto W = static_cast<uint64_t>(roi.width), H = static_cast<uint64_t>(roi.height);
  const auto P = static_cast<uint64_t>(px.bytes);
  // The square both images share is transposed where it lies; what sticks
  // out of it moves across from the source's strip to the destination's,
  // which share no pixel. Pixels of neither image are left alone.
  const uint64_t n = std::min(W, H);
  if (n > 1 && Magnitude(step) < n * P) {
    scalar::TransposeSquareInPlaceAny(p, step, static_cast<size_t>(n), px);
  } else {
    TransposeSquareInPlace(p, step, static_cast<size_t>(n), px);
  }
  if (W > H) TransposeArea(p + H * P, step, Row(p, step, roi.height), step, W - H, H, px, false);
  if (H > W) TransposeArea(Row(p, step, roi.width), step, p + W * P, step, W, H - W, px, false);
  return pelStatusOk;
}

PelStatus TransposeBytes(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, PeliSize roi,
                         PixelBytes px, bool asksCache) {
  if (src == dst && srcStep == dstStep) return TransposeInPlaceBytes(dst, dstStep, roi, px);
  if (AnyNull(src, dst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  const auto W = static_cast<uint64_t>(roi.width), H = static_cast<uint64_t>(roi.height);
  const bool stream = asksCache && StreamsPastCache(2 * W * H * static_cast<uint64_t>(px.bytes));
  TransposeArea(src, srcStep, dst, dstStep, W, H, px, stream);
  if (stream) FinishStreaming();
  return pelStatusOk;
}

}  // namespace

template <class T, int C, int W>
PelStatus Mirror(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, int flip) {
  return MirrorBytes(Bytes(pSrc), srcStep, Bytes(pDst), dstStep, roiSize, flip, PixelOf<T, C, W>(), C == 4);
}

template <class T, int C, int W>
PelStatus MirrorInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, int flip) {
  return MirrorInPlaceBytes(Bytes(pSrcDst), srcDstStep, roiSize, flip, PixelOf<T, C, W>());
}

// Transposes of 32-bit data (and of complex pairs of them) choose their
// stores by the cache size.
template <class T, int C>
PelStatus TransposeImage(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  constexpr bool kAsksCache = sizeof(T) == 4 || std::is_same_v<T, Pel32fc>;
  return TransposeBytes(Bytes(pSrc), srcStep, Bytes(pDst), dstStep, roiSize, PixelOf<T, C>(), kAsksCache);
}

template <class T, int C>
PelStatus TransposeImageInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return TransposeInPlaceBytes(Bytes(pSrcDst), srcDstStep, roiSize, PixelOf<T, C>());
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/mirror_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
