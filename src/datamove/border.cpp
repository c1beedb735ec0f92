#include "datamove/border.h"

#include <algorithm>
#include <cstdint>

#include "core/common.h"
#include "core/exports.h"
#include "datamove/border_window.h"
#include "datamove/pixel_rows.h"

namespace pel::datamove {

namespace {

// Most coordinates are at most one period away: no division for them.
int64_t FloorMod(int64_t v, int64_t m) {
  if (v >= 0 && v < m) return v;
  if (v < 0 && v >= -m) return v + m;
  const int64_t r = v % m;
  return r < 0 ? r + m : r;
}

// A coordinate outside [0, n) mapped into it (any kind but Constant).
int64_t MapInto(int64_t v, int64_t n, BorderKind kind) {
  if (kind == BorderKind::Replicate) return std::clamp<int64_t>(v, 0, n - 1);
  if (kind == BorderKind::Wrap || n == 1) return FloorMod(v, n);
  const int64_t period = 2 * n - 2, r = FloorMod(v, period);
  return r < n ? r : period - r;
}

// Columns [x, end) of the extended row whose ROI part is `row`, into out.
// Runs: pixels in memory are copied as they lie; a synthesised stretch is a
// fill (Constant, Replicate), copies of the row (Wrap), or alternating
// copies and reversed copies of it (Mirror: up 0..W-2, down W-1..1).
void BuildRow(const uint8_t* row, int64_t W, const BorderRule& rule, PixelBytes px, int64_t x,
              int64_t end, uint8_t* out, bool roiAlreadyThere) {
  const int64_t P = px.bytes;
  const bool leftInMemory = (rule.inMemory & pelBorderInMemLeft) != 0;
  const bool rightInMemory = (rule.inMemory & pelBorderInMemRight) != 0;
  uint8_t* const origin = out - x * P;  // where column 0 of the row goes
  while (x < end) {
    uint8_t* o = origin + x * P;
    const bool inside = x >= 0 && x < W;
    // The run stops where the rule changes: at column 0 and at column W.
    const int64_t stop = std::min(end, x < 0 ? 0 : inside ? W : end);
    if (inside || (x < 0 && leftInMemory) || (x >= W && rightInMemory)) {
      if (!(inside && roiAlreadyThere)) CopyPixels(row + x * P, o, static_cast<uint64_t>(stop - x), px, false);
      x = stop;
      continue;
    }
    int64_t length = stop - x;
    switch (rule.kind) {
      case BorderKind::Constant:
        FillPixels(o, static_cast<uint64_t>(length), rule.value, px);
        break;
      case BorderKind::Replicate:
        FillPixels(o, static_cast<uint64_t>(length), row + (x < 0 ? 0 : W - 1) * P, px);
        break;
      case BorderKind::Wrap: {
        const int64_t r = FloorMod(x, W);
        length = std::min(length, W - r);
        CopyPixels(row + r * P, o, static_cast<uint64_t>(length), px, false);
        break;
      }
      case BorderKind::Mirror: {
        if (W == 1) {
          FillPixels(o, static_cast<uint64_t>(length), row, px);
          break;
        }
        const int64_t period = 2 * W - 2, r = FloorMod(x, period);
        if (r < W - 1) {
          length = std::min(length, W - 1 - r);
          CopyPixels(row + r * P, o, static_cast<uint64_t>(length), px, false);
        } else {
          const int64_t top = period - r;  // the first column of a run downwards
          length = std::min(length, top);
          ReversePixels(row + (top - length + 1) * P, o, static_cast<uint64_t>(length), px, false);
        }
        break;
      }
    }
    x += length;
  }
}

}  // namespace

namespace {

// Whether every row of the window is a frame narrower than the source on
// both sides around the whole source row, made by the kind alone, with
// nothing shared between what is read and what is written: then each row
// is one kernel call (the common case, and the one filters meet).
bool NarrowFrame(const BorderSource& src, const BorderRule& rule, PixelBytes px,
                 const BorderWindow& window, const void* dst, ptrdiff_t dstStep, bool roiAlreadyThere) {
  const int64_t left = -window.x, right = window.x + window.width - src.width;
  if ((rule.inMemory & (pelBorderInMemLeft | pelBorderInMemRight)) != 0) return false;
  if (left < 0 || right < 0 || left >= src.width || right >= src.width) return false;
  const auto rows = static_cast<uint64_t>(window.height);
  const uint64_t rowBytes = static_cast<uint64_t>(window.width) * static_cast<uint64_t>(px.bytes);
  if (roiAlreadyThere) return rows == 1 || Magnitude(dstStep) >= rowBytes;
  const uint64_t srcRows = static_cast<uint64_t>(src.height);
  const uint64_t srcBytes = static_cast<uint64_t>(src.width) * static_cast<uint64_t>(px.bytes);
  return !Overlap(SpanOf(src.pixels, src.step, srcRows, srcBytes), SpanOf(dst, dstStep, rows, rowBytes));
}

FrameKind FrameKindOf(BorderKind kind) {
  switch (kind) {
    case BorderKind::Constant: return kFrameConstant;
    case BorderKind::Replicate: return kFrameReplicate;
    case BorderKind::Mirror: return kFrameMirror;
    case BorderKind::Wrap: break;
  }
  return kFrameWrap;
}

}  // namespace

void BuildBorderWindow(const BorderSource& src, const BorderRule& rule, PixelBytes px,
                       const BorderWindow& window, void* dst, ptrdiff_t dstStep,
                       bool roiAlreadyThere) {
  const bool topInMemory = (rule.inMemory & pelBorderInMemTop) != 0;
  const bool bottomInMemory = (rule.inMemory & pelBorderInMemBottom) != 0;
  const bool narrow = NarrowFrame(src, rule, px, window, dst, dstStep, roiAlreadyThere);
  for (int64_t r = 0; r < window.height; ++r) {
    const int64_t y = window.y + r;
    auto* out = static_cast<uint8_t*>(Row(dst, dstStep, static_cast<ptrdiff_t>(r)));
    const bool inside = y >= 0 && y < src.height;
    const bool inMemory = inside || (y < 0 && topInMemory) || (y >= src.height && bottomInMemory);
    if (!inMemory && rule.kind == BorderKind::Constant) {
      FillPixels(out, static_cast<uint64_t>(window.width), rule.value, px);
      continue;
    }
    const int64_t sy = inMemory ? y : MapInto(y, src.height, rule.kind);
    const auto* row = static_cast<const uint8_t*>(Row(src.pixels, src.step, static_cast<ptrdiff_t>(sy)));
    if (narrow) {
      FrameRow(row, out, static_cast<size_t>(src.width), static_cast<size_t>(-window.x),
               static_cast<size_t>(window.x + window.width - src.width), FrameKindOf(rule.kind), px, rule.value,
               roiAlreadyThere && inside);
      continue;
    }
    BuildRow(row, src.width, rule, px, window.x, window.x + window.width, out, roiAlreadyThere && inside);
  }
}

namespace {

// A border call's sizes, once checked: the frame is left, top and whatever
// the destination has beyond the source on the right and at the bottom.
struct Frame {
  int64_t srcW, srcH, dstW, dstH, top, left;
};

// Steps first, then the sizes (this family's order).
template <class Int, class Size>
PelStatus CheckFrame(Int srcStep, Int dstStep, Size srcRoi, Size dstRoi, Int top, Int left, Frame* f) {
  if (srcStep < 1 || dstStep < 1) return pelStatusBadStep;
  *f = Frame{static_cast<int64_t>(srcRoi.width), static_cast<int64_t>(srcRoi.height),
             static_cast<int64_t>(dstRoi.width), static_cast<int64_t>(dstRoi.height),
             static_cast<int64_t>(top),          static_cast<int64_t>(left)};
  if (f->srcW < 1 || f->srcH < 1 || f->dstW < 1 || f->dstH < 1 || f->top < 0 || f->left < 0) {
    return pelStatusBadSize;
  }
  // Both sizes are positive, so the differences cannot overflow.
  if (f->left > f->dstW - f->srcW || f->top > f->dstH - f->srcH) return pelStatusBadSize;
  return pelStatusOk;
}

// The whole destination is the window of the source extended by the rule.
PelStatus Extend(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                 const Frame& f, BorderKind kind, const void* value, PixelBytes px) {
  BuildBorderWindow(BorderSource{src, srcStep, f.srcW, f.srcH}, BorderRule{kind, 0, value}, px,
                    BorderWindow{-f.left, -f.top, f.dstW, f.dstH}, dst, dstStep);
  return pelStatusOk;
}

// In place the source already lies in the destination, whose first pixel is
// top rows up and left pixels before it.
PelStatus ExtendInPlace(uint8_t* p, ptrdiff_t step, const Frame& f, BorderKind kind,
                        const void* value, PixelBytes px) {
  uint8_t* dst = AddBytes(Row(p, step, static_cast<ptrdiff_t>(-f.top)), -static_cast<ptrdiff_t>(f.left * px.bytes));
  BuildBorderWindow(BorderSource{p, step, f.srcW, f.srcH}, BorderRule{kind, 0, value}, px,
                    BorderWindow{-f.left, -f.top, f.dstW, f.dstH}, dst, step, true);
  return pelStatusOk;
}

template <class T, int C, int W, class Int, class Size>
PelStatus ConstImage(const T* pSrc, Int srcStep, Size srcRoi, T* pDst, Int dstStep, Size dstRoi,
                     Int top, Int left, const T* value) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  Frame f;
  if (const PelStatus s = CheckFrame(srcStep, dstStep, srcRoi, dstRoi, top, left, &f); s != pelStatusOk) return s;
  if (value == nullptr) return pelStatusNullPointer;
  return Extend(Bytes(pSrc), srcStep, Bytes(pDst), dstStep, f, BorderKind::Constant, value, PixelOf<T, C, W>());
}

template <class T, int C, int W, class Int, class Size>
PelStatus ConstImageInPlace(T* p, Int step, Size srcRoi, Size dstRoi, Int top, Int left, const T* value) {
  if (AnyNull(p)) return pelStatusNullPointer;
  Frame f;
  if (const PelStatus s = CheckFrame(step, step, srcRoi, dstRoi, top, left, &f); s != pelStatusOk) return s;
  if (value == nullptr) return pelStatusNullPointer;
  return ExtendInPlace(Bytes(p), step, f, BorderKind::Constant, value, PixelOf<T, C, W>());
}

}  // namespace

template <class T, class Int, class Size>
PelStatus ConstBorderC1(const T* pSrc, Int srcStep, Size srcRoiSize, T* pDst, Int dstStep,
                        Size dstRoiSize, Int topBorderHeight, Int leftBorderWidth, T value) {
  return ConstImage<T, 1, 1>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight,
                             leftBorderWidth, &value);
}

template <class T, int C, int W, class Int, class Size>
PelStatus ConstBorder(const T* pSrc, Int srcStep, Size srcRoiSize, T* pDst, Int dstStep,
                      Size dstRoiSize, Int topBorderHeight, Int leftBorderWidth, const T* value) {
  return ConstImage<T, C, W>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight,
                             leftBorderWidth, value);
}

template <class T, class Int, class Size>
PelStatus ConstBorderC1InPlace(T* pSrcDst, Int srcDstStep, Size srcRoiSize, Size dstRoiSize,
                               Int topBorderHeight, Int leftBorderWidth, T value) {
  return ConstImageInPlace<T, 1, 1>(pSrcDst, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight,
                                    leftBorderWidth, &value);
}

template <class T, int C, int W, class Int, class Size>
PelStatus ConstBorderInPlace(T* pSrcDst, Int srcDstStep, Size srcRoiSize, Size dstRoiSize,
                             Int topBorderHeight, Int leftBorderWidth, const T* value) {
  return ConstImageInPlace<T, C, W>(pSrcDst, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight,
                                    leftBorderWidth, value);
}

template <BorderKind Kind, class T, int C, int W, class Int, class Size>
PelStatus SourceBorderInPlace(T* pSrcDst, Int srcDstStep, Size srcRoiSize, Size dstRoiSize,
                              Int topBorderHeight, Int leftBorderWidth) {
  if (AnyNull(pSrcDst)) return pelStatusNullPointer;
  Frame f;
  if (const PelStatus s = CheckFrame(srcDstStep, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight,
                                     leftBorderWidth, &f);
      s != pelStatusOk) {
    return s;
  }
  return ExtendInPlace(Bytes(pSrcDst), srcDstStep, f, Kind, nullptr, PixelOf<T, C, W>());
}

// A destination pointer equal to the source's means "in place": Replicate
// and Mirror hand over at once, Wrap after its own checks.
template <BorderKind Kind, class T, int C, int W, class Int, class Size>
PelStatus SourceBorder(const T* pSrc, Int srcStep, Size srcRoiSize, T* pDst, Int dstStep,
                       Size dstRoiSize, Int topBorderHeight, Int leftBorderWidth) {
  auto handOver = [&] {
    return SourceBorderInPlace<Kind, T, C, W>(pDst, srcStep, srcRoiSize, dstRoiSize, topBorderHeight,
                                              leftBorderWidth);
  };
  if (Kind != BorderKind::Wrap && pSrc == pDst) return handOver();
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  Frame f;
  if (const PelStatus s = CheckFrame(srcStep, dstStep, srcRoiSize, dstRoiSize, topBorderHeight,
                                     leftBorderWidth, &f);
      s != pelStatusOk) {
    return s;
  }
  if (pSrc == pDst) return handOver();
  return Extend(Bytes(pSrc), srcStep, Bytes(pDst), dstStep, f, Kind, nullptr, PixelOf<T, C, W>());
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/border_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
