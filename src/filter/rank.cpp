#include "filter/rank.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "core/border.h"
#include "core/common.h"
#include "core/exports.h"
#include "core/spec.h"
#include "filter/filter_scalar.h"
#include "filter/row_filter_kernels.h"
#include "filter/window.h"

namespace pel::filter {
namespace {

int64_t ElementBytes(int dataType) {
  return dataType == pelType8u ? 1 : dataType == pelType32f ? 4 : 2;
}

bool TypeOf4(int dataType) {
  return dataType == pelType8u || dataType == pelType16u || dataType == pelType16s || dataType == pelType32f;
}

// What every rank filter needs from the buffer besides its window: a row of
// the full mask's reach (extremes' vertical pass, or box column sums of
// eight bytes a lane), an output row for AC4
// and the median's selection scratch.
int64_t RankBufferBytes(int64_t W, PeliSize mask, int64_t elemBytes, int channels) {
  const MaskGeometry g = GeometryOf(mask.width, mask.height);
  const int64_t reach = (W + g.kw - 1) * channels;
  return WindowBufferBytes(W, g, static_cast<int>(elemBytes * channels)) + static_cast<int64_t>(RoundUp64(reach * 16)) +
         static_cast<int64_t>(RoundUp64(W * channels * elemBytes)) +
         static_cast<int64_t>(RoundUp64(g.kw * g.kh * elemBytes)) + 64;
}

// The separable extreme's area after the common ones: a ring of kh + 1 rows
// of horizontal extremes, a second output row (AC4 rows come in pairs) and
// the kh + 1 row pointers.
int64_t HorizontalRingBytes(int64_t W, int64_t kh, int64_t elemBytes, int channels) {
  const auto row = static_cast<int64_t>(RoundUp64(W * channels * elemBytes));
  return (kh + 2) * row + static_cast<int64_t>(RoundUp64((kh + 1) * 8));
}

// Sizes far beyond what can be reported are refused before they are
// computed in 64 bits, where a huge mask times a huge row would not fit.
bool Oversized(int64_t W, PeliSize mask, int channels) {
  const double bytes = (double(mask.height) + 2) * (double(W) + mask.width) * channels * 64 +
                       double(mask.width) * mask.height * 8;
  return bytes > 1e15;
}

PelStatus ReportSize(int64_t bytes, int* pBufferSize) {
  if (bytes > kMaxReportedSize) return pelStatusSizeOverflow;
  *pBufferSize = static_cast<int>(bytes);
  return pelStatusOk;
}

}  // namespace

// The scratch areas after the window (outside the anonymous namespace: the
// exported templates' lambdas capture it).
struct Scratch {
  uint8_t* reach;
  uint8_t* outRow;
  uint8_t* select;
};
Scratch ScratchAfter(uint8_t* end, int64_t W, const MaskGeometry& g, int64_t elemBytes, int channels) {
  Scratch s;
  s.reach = end;
  s.outRow = s.reach + RoundUp64((W + g.kw - 1) * channels * 16);
  s.select = s.outRow + RoundUp64(W * channels * elemBytes);
  return s;
}

namespace {

// Filters every run of every output row with `row(rows, out, lanes,
// scratch)`, the border pixel being `pixel`; AC4 rows go through a scratch
// row whose colour lanes are then copied.
template <class T, int C, int W, class F>
void Filtered(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roi, PeliSize mask, int border,
              const T* pixel, Pel8u* pBuffer, F&& row) {
  const MaskGeometry g = GeometryOf(mask.width, mask.height);
  RowWindow window(pSrc, srcStep, roi.width, roi.height, g, datamove::PixelOf<T, C>(), RuleOf(border, pixel), pBuffer,
                   static_cast<const void*>(pSrc) == pDst);
  const Scratch s = ScratchAfter(window.End(), roi.width, g, sizeof(T), C);
  RowWindow::Run runs[3];
  for (int64_t y = 0; y < roi.height; ++y) {
    T* d = Row(pDst, dstStep, y);
    T* out = W == C ? d : reinterpret_cast<T*>(s.outRow);
    const int n = window.Runs(y, runs);
    for (int k = 0; k < n; ++k) row(runs[k].rows, out + runs[k].x0 * C, runs[k].count * C, s);
    if constexpr (W != C)
      for (int64_t x = 0; x < roi.width; ++x) std::memcpy(d + x * C, out + x * C, sizeof(T) * W);
  }
}

template <class T, int C>
void FillPixel(T (&pixel)[4], T value) {
  for (int c = 0; c < 4; ++c) pixel[c] = value;
}

}  // namespace

namespace {

// The box and extreme filters' buffer-size checks, in their order.
PelStatus CheckWindowSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels,
                          const int* pBufferSize) {
  if (pBufferSize == nullptr) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (BadSize(maskSize)) return pelStatusBadMaskSize;
  if (!TypeOf4(dataType)) return pelStatusDataTypeError;
  if (numChannels != 1 && numChannels != 3 && numChannels != 4) return pelStatusChannelsNotSupported;
  if (Oversized(roiSize.width, maskSize, numChannels)) return pelStatusSizeOverflow;
  return pelStatusOk;
}

}  // namespace

PelStatus MedianGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels,
                              int* pBufferSize) {
  if (pBufferSize == nullptr) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (BadSize(maskSize) || maskSize.width % 2 == 0 || maskSize.height % 2 == 0) return pelStatusBadMaskSize;
  if (numChannels != 1 && numChannels != 3 && numChannels != 4) return pelStatusChannelsNotSupported;
  if (!TypeOf4(dataType) || (numChannels != 1 && dataType == pelType32f)) return pelStatusDataTypeError;
  if (Oversized(roiSize.width, maskSize, numChannels)) return pelStatusSizeOverflow;
  return ReportSize(RankBufferBytes(roiSize.width, maskSize, ElementBytes(dataType), numChannels), pBufferSize);
}

PelStatus BoxGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels,
                           int* pBufferSize) {
  if (const PelStatus st = CheckWindowSize(roiSize, maskSize, dataType, numChannels, pBufferSize);
      st != pelStatusOk) {
    return st;
  }
  return ReportSize(RankBufferBytes(roiSize.width, maskSize, ElementBytes(dataType), numChannels), pBufferSize);
}

PelStatus ExtremeGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels,
                               int* pBufferSize) {
  if (const PelStatus st = CheckWindowSize(roiSize, maskSize, dataType, numChannels, pBufferSize);
      st != pelStatusOk) {
    return st;
  }
  const int64_t elem = ElementBytes(dataType);
  return ReportSize(RankBufferBytes(roiSize.width, maskSize, elem, numChannels) +
                        HorizontalRingBytes(roiSize.width, maskSize.height, elem, numChannels),
                    pBufferSize);
}

namespace {

// The 3x3 median of 8- and 16-bit data, two output rows at a time: the
// window's rows for y and y + 1 give the four rows the pair covers.
template <class T, int C>
void MedianPairs3x3(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roi, int border, const T* pixel,
                    Pel8u* pBuffer) {
  const MaskGeometry g = GeometryOf(3, 3);
  RowWindow window(pSrc, srcStep, roi.width, roi.height, g, datamove::PixelOf<T, C>(), RuleOf(border, pixel), pBuffer,
                   static_cast<const void*>(pSrc) == pDst);
  const Scratch s = ScratchAfter(window.End(), roi.width, g, sizeof(T), C);
  RowWindow::Run runs[3], next[3];
  const uint8_t* rows[3][4];
  for (int64_t y = 0; y < roi.height; y += 2) {
    const int n = window.Runs(y, runs);
    T* d0 = Row(pDst, dstStep, y);
    if (y + 1 == roi.height) {
      for (int k = 0; k < n; ++k)
        MedianRow(LaneOf<T>(), C, 3, 3, runs[k].rows, s.select, d0 + runs[k].x0 * C, runs[k].count * C);
      break;
    }
    for (int k = 0; k < n; ++k)
      for (int i = 0; i < 3; ++i) rows[k][i] = runs[k].rows[i];
    window.Runs(y + 1, next);  // the same runs, one row further down
    T* d1 = Row(pDst, dstStep, y + 1);
    for (int k = 0; k < n; ++k) {
      rows[k][3] = next[k].rows[2];
      Median3x3Pair(LaneOf<T>(), C, rows[k], s.select, d0 + runs[k].x0 * C, d1 + runs[k].x0 * C,
                    runs[k].count * C);
    }
  }
}

}  // namespace

template <class T, int C, int W>
PelStatus Median(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize,
                 PeliBorderType border, T borderValue, Pel8u* pBuffer) {
  if (AnyNull(pSrc, pDst, pBuffer)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (BadSize(maskSize) || maskSize.width % 2 == 0 || maskSize.height % 2 == 0) return pelStatusBadMaskSize;
  if (!BorderCodeAccepted(border, {pelBorderReplicate, pelBorderConstant})) return pelStatusBadBorderType;
  if (maskSize.width == 1 && maskSize.height == 1) {
    if (pSrc == pDst) return pelStatusOk;
    for (int64_t y = 0; y < roiSize.height; ++y) {
      const T* s = Row(pSrc, srcStep, y);
      T* d = Row(pDst, dstStep, y);
      for (int64_t x = 0; x < roiSize.width; ++x) std::memcpy(d + x * C, s + x * C, sizeof(T) * W);
    }
    return pelStatusOk;
  }
  T pixel[4];
  FillPixel<T, C>(pixel, borderValue);
  if constexpr (sizeof(T) <= 2 && W == C) {
    if (maskSize.width == 3 && maskSize.height == 3) {
      MedianPairs3x3<T, C>(pSrc, srcStep, pDst, dstStep, roiSize, border, pixel, pBuffer);
      return pelStatusOk;
    }
  }
  Filtered<T, C, W>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, border, pixel, pBuffer,
                    [&](const uint8_t* const* rows, T* out, int64_t lanes, const Scratch& s) {
                      MedianRow(LaneOf<T>(), C, maskSize.width, maskSize.height, rows, s.select, out, lanes);
                    });
  return pelStatusOk;
}

namespace {

// The 8-bit box of up to 257 taps with running column sums: the first row
// sums its kh rows, every later one adds the row entering the window and
// subtracts the one leaving it, so the vertical cost does not grow with kh.
// The sums are exact, so the means are those of the direct sums.
template <int C, int W>
void RunningBox8(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roi, PeliSize mask, int border,
                 const Pel8u* pixel, Pel8u* pBuffer) {
  const MaskGeometry g = GeometryOf(mask.width, mask.height);
  RowWindow window(pSrc, srcStep, roi.width, roi.height, g, datamove::PixelOf<Pel8u, C>(), RuleOf(border, pixel),
                   pBuffer, static_cast<const void*>(pSrc) == pDst);
  const Scratch s = ScratchAfter(window.End(), roi.width, g, 1, C);
  auto* col = reinterpret_cast<uint16_t*>(s.reach);
  const int64_t wide = (int64_t{roi.width} + g.kw - 1) * C;
  RowWindow::Run runs[3];
  const uint8_t* leaving[3] = {};
  for (int64_t y = 0; y < roi.height; ++y) {
    const int n = window.Runs(y, runs);
    // The runs split the extended row: run k gives its lanes from x0 x C up
    // to the next run's (the last: to the end of the reach).
    for (int k = 0; k < n; ++k) {
      const int64_t from = runs[k].x0 * C;
      const int64_t to = k + 1 < n ? runs[k + 1].x0 * C : wide;
      if (y == 0) {
        BoxColumns8(static_cast<int>(g.kh), runs[k].rows, nullptr, nullptr, col + from, to - from);
      } else {
        BoxColumns8(static_cast<int>(g.kh), nullptr, runs[k].rows[g.kh - 1], leaving[k], col + from, to - from);
      }
    }
    for (int k = 0; k < n; ++k) leaving[k] = runs[k].rows[0];
    Pel8u* d = Row(pDst, dstStep, y);
    Pel8u* out = W == C ? d : s.outRow;
    BoxMeans8(C, static_cast<int>(g.kw), static_cast<int>(g.kh), col, out, int64_t{roi.width} * C);
    if constexpr (W != C)
      for (int64_t x = 0; x < roi.width; ++x) std::memcpy(d + x * C, out + x * C, W);
  }
}

}  // namespace

template <class T, int C, int W>
PelStatus Box(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize,
              PeliBorderType border, const T* borderValue, Pel8u* pBuffer) {
  if (AnyNull(pSrc, pDst, pBuffer)) return pelStatusNullPointer;
  if (srcStep <= 0 || dstStep <= 0) return pelStatusBadStep;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (BadSize(maskSize)) return pelStatusBadMaskSize;
  if (!BorderCodeAccepted(border, {pelBorderReplicate, pelBorderMirror, pelBorderConstant}))
    return pelStatusBadBorderType;
  const bool constant = border != pelBorderInMem && (border & 0x0F) == pelBorderConstant;
  if (constant && borderValue == nullptr) return pelStatusNullPointer;
  T pixel[4] = {};
  if (constant)
    for (int c = 0; c < W; ++c) pixel[c] = borderValue[c];
  if constexpr (std::is_same_v<T, Pel8u>) {
    if (int64_t{maskSize.width} * maskSize.height <= 257) {
      RunningBox8<C, W>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, border, pixel, pBuffer);
      return pelStatusOk;
    }
  }
  Filtered<T, C, W>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, border, pixel, pBuffer,
                    [&](const uint8_t* const* rows, T* out, int64_t lanes, const Scratch& s) {
                      BoxRow(LaneOf<T>(), C, maskSize.width, maskSize.height, rows, s.reach, out, lanes);
                    });
  return pelStatusOk;
}

namespace {

// A row or column index outside [0, n) mapped into it by one clamp or one
// reflection.
inline int64_t MapIndex(int64_t i, int64_t n, bool mirror) {
  if (i < 0) return mirror ? -i : 0;
  if (i >= n) return mirror ? 2 * n - 2 - i : n - 1;
  return i;
}

// The separable integer extreme straight from the source, without building
// border rows or strips: with replicate or mirror borders and nothing in
// memory around the ROI, an extended row is a source row (its index mapped),
// so its horizontal extreme is that row's; the few outputs whose reach
// leaves the row on the left or right take their mapped columns one by one.
// False (nothing done) where that does not apply: other borders, in place,
// an AC4 layout, a ROI too narrow for an interior, or a mirror reaching
// further than one reflection.
template <class T, int C, int W, bool kMax>
bool DirectExtreme(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roi, PeliSize mask, int border,
                   Pel8u* pBuffer) {
  const MaskGeometry g = GeometryOf(mask.width, mask.height);
  const bool mirror = border == pelBorderMirror;
  const int64_t width = roi.width, height = roi.height;
  const int64_t right = g.kw - 1 - g.ax, below = g.kh - 1 - g.ay;
  if ((border != pelBorderReplicate && !mirror) || static_cast<const void*>(pSrc) == pDst || W != C) return false;
  if (width - g.ax - right <= 0) return false;
  if (mirror && (std::max(g.ax, right) > width - 1 || std::max(g.ay, below) > height - 1)) return false;
  constexpr auto kBytes = static_cast<int64_t>(sizeof(T));
  const auto rowBytes = static_cast<int64_t>(RoundUp64(width * C * kBytes));
  uint8_t* ring = AlignUp64(pBuffer);
  const uint8_t** held = reinterpret_cast<const uint8_t**>(ring + (g.kh + 2) * rowBytes);
  const int64_t slots = g.kh + 1;
  const int64_t inner0 = g.ax * C, innerLanes = (width - g.ax - right) * C;
  auto ext = [](T a, T b) { return kMax ? scalar::MaxOf(a, b) : scalar::MinOf(a, b); };
  auto source = [&](int64_t r) { return Row(pSrc, srcStep, MapIndex(r, height, mirror)); };
  // The outputs at the left and right ends: [0, ax) and [width - right, width).
  auto forEdges = [&](auto&& f) {
    for (int64_t x = 0; x < g.ax; ++x) f(x);
    for (int64_t x = width - right; x < width; ++x) f(x);
  };
  auto edgeRow = [&](const T* row, T* h) {
    forEdges([&](int64_t x) {
      for (int c = 0; c < C; ++c) {
        T v = row[MapIndex(x - g.ax, width, mirror) * C + c];
        for (int64_t j = 1; j < g.kw; ++j) v = ext(v, row[MapIndex(x - g.ax + j, width, mirror) * C + c]);
        h[x * C + c] = v;
      }
    });
  };
  ExtremePairJob job{LaneOf<T>(), kMax, C, static_cast<int>(g.kw), static_cast<int>(g.kh), held};
  for (int64_t y = 0; y < height; y += 2) {
    const bool pair = y + 1 < height;
    const int64_t first = (((y - g.ay) % slots) + slots) % slots;
    auto slot = [&](int64_t i) {
      return reinterpret_cast<T*>(ring + (first + i < slots ? first + i : first + i - slots) * rowBytes);
    };
    if (y == 0)
      for (int64_t i = 0; i + 1 < g.kh; ++i) {
        const T* row = source(i - g.ay);
        ExtremeHorizontal(LaneOf<T>(), kMax, C, job.kw, reinterpret_cast<const uint8_t*>(row), slot(i) + inner0,
                          innerLanes);
        edgeRow(row, slot(i));
      }
    const T* a = source(y - g.ay + g.kh - 1);
    const T* b = pair ? source(y - g.ay + g.kh) : nullptr;
    for (int64_t i = 0; i + 1 < g.kh; ++i) held[i] = reinterpret_cast<const uint8_t*>(slot(i) + inner0);
    T* d0 = Row(pDst, dstStep, y);
    T* d1 = pair ? Row(pDst, dstStep, y + 1) : nullptr;
    job.a = reinterpret_cast<const uint8_t*>(a);
    job.b = reinterpret_cast<const uint8_t*>(b);
    job.hA = slot(g.kh - 1) + inner0;
    job.hB = slot(g.kh) + inner0;
    job.out0 = d0 + inner0;
    job.out1 = pair ? d1 + inner0 : nullptr;
    // The next pair's rows, fetched during this one (the hardware's own
    // prefetch starts late on rows this far apart); kept within the rows the
    // mapping reaches.
    const int64_t last = height - 1 + below;
    job.next0 = reinterpret_cast<const uint8_t*>(source(std::min(y - g.ay + g.kh + 1, last)));
    job.next1 = reinterpret_cast<const uint8_t*>(source(std::min(y - g.ay + g.kh + 2, last)));
    ExtremePair(job, innerLanes);
    edgeRow(a, slot(g.kh - 1));
    if (pair) edgeRow(b, slot(g.kh));
    forEdges([&](int64_t x) {
      for (int64_t l = x * C; l < (x + 1) * C; ++l) {
        T m = slot(g.kh - 1)[l];
        for (int64_t i = 1; i + 1 < g.kh; ++i) m = ext(m, slot(i)[l]);
        d0[l] = g.kh > 1 ? ext(m, slot(0)[l]) : m;
        if (pair) d1[l] = g.kh > 1 ? ext(m, slot(g.kh)[l]) : slot(g.kh)[l];
      }
    });
  }
  return true;
}

// Integer extremes, separably: the horizontal extreme of each extended
// source row is taken once, into a ring of kh + 1 rows, and output rows go
// in pairs whose vertical extremes share the kh - 1 rows both cover. The
// order of taps cannot change an integer extreme, so this gives the bytes
// of the one-row-at-a-time reference.
template <class T, int C, int W, bool kMax>
void SeparableExtreme(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roi, PeliSize mask, int border,
                      const T* pixel, Pel8u* pBuffer) {
  const MaskGeometry g = GeometryOf(mask.width, mask.height);
  RowWindow window(pSrc, srcStep, roi.width, roi.height, g, datamove::PixelOf<T, C>(), RuleOf(border, pixel), pBuffer,
                   static_cast<const void*>(pSrc) == pDst);
  const Scratch s = ScratchAfter(window.End(), roi.width, g, sizeof(T), C);
  constexpr auto kBytes = static_cast<int64_t>(sizeof(T));
  const int64_t lanes = int64_t{roi.width} * C;
  const auto rowBytes = static_cast<int64_t>(RoundUp64(lanes * kBytes));
  uint8_t* ring = s.select + RoundUp64(g.kw * g.kh * kBytes);
  T* outRow1 = reinterpret_cast<T*>(ring + (g.kh + 1) * rowBytes);
  const uint8_t** held = reinterpret_cast<const uint8_t**>(ring + (g.kh + 2) * rowBytes);
  const int64_t slots = g.kh + 1;
  ExtremePairJob job{LaneOf<T>(), kMax, C, static_cast<int>(g.kw), static_cast<int>(g.kh), held};
  RowWindow::Run runs[3], next[3];
  const uint8_t* entering[3];
  for (int64_t y = 0; y < roi.height; y += 2) {
    const bool pair = y + 1 < roi.height;
    // The ring slot of window row i (row y - ay + i), i <= kh.
    const int64_t first = (((y - g.ay) % slots) + slots) % slots;
    auto slot = [&](int64_t i) { return ring + (first + i < slots ? first + i : first + i - slots) * rowBytes; };
    const int n = window.Runs(y, runs);
    if (y == 0)
      for (int64_t i = 0; i + 1 < g.kh; ++i)
        for (int k = 0; k < n; ++k)
          ExtremeHorizontal(LaneOf<T>(), kMax, C, job.kw, runs[k].rows[i], slot(i) + runs[k].x0 * C * kBytes,
                            runs[k].count * C);
    for (int k = 0; k < n; ++k) entering[k] = runs[k].rows[g.kh - 1];
    if (pair) window.Runs(y + 1, next);  // the same runs, one row further down
    T* d0 = Row(pDst, dstStep, y);
    T* d1 = pair ? Row(pDst, dstStep, y + 1) : nullptr;
    T* o0 = W == C ? d0 : reinterpret_cast<T*>(s.outRow);
    T* o1 = W == C ? d1 : outRow1;
    for (int k = 0; k < n; ++k) {
      const int64_t off = runs[k].x0 * C;
      for (int64_t i = 0; i + 1 < g.kh; ++i) held[i] = slot(i) + off * kBytes;
      job.a = entering[k];
      job.b = pair ? next[k].rows[g.kh - 1] : nullptr;
      job.hA = slot(g.kh - 1) + off * kBytes;
      job.hB = slot(g.kh) + off * kBytes;
      job.out0 = o0 + off;
      job.out1 = pair ? o1 + off : nullptr;
      ExtremePair(job, runs[k].count * C);
    }
    if constexpr (W != C) {
      for (int64_t x = 0; x < roi.width; ++x) std::memcpy(d0 + x * C, o0 + x * C, sizeof(T) * W);
      if (pair)
        for (int64_t x = 0; x < roi.width; ++x) std::memcpy(d1 + x * C, o1 + x * C, sizeof(T) * W);
    }
  }
}

}  // namespace

template <class T, int C, int W, bool kMax>
PelStatus Extreme(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize,
                  PeliBorderType border, T borderValue, Pel8u* pBuffer) {
  if (AnyNull(pSrc, pDst, pBuffer)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (BadSize(maskSize)) return pelStatusBadMaskSize;
  if (!BorderCodeAccepted(border, {pelBorderReplicate, pelBorderMirror, pelBorderConstant}))
    return pelStatusBadBorderType;
  T pixel[4];
  FillPixel<T, C>(pixel, borderValue);
  if constexpr (std::is_integral_v<T>) {
    if (DirectExtreme<T, C, W, kMax>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, border, pBuffer))
      return pelStatusOk;
    SeparableExtreme<T, C, W, kMax>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, border, pixel, pBuffer);
    return pelStatusOk;
  }
  Filtered<T, C, W>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, border, pixel, pBuffer,
                    [&](const uint8_t* const* rows, T* out, int64_t lanes, const Scratch& s) {
                      ExtremeRow(LaneOf<T>(), kMax, C, maskSize.width, maskSize.height, rows, s.reach, out, lanes);
                    });
  return pelStatusOk;
}

template <bool kMax>
PelStatus Morph3x3(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep, PeliSize roiSize) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  const int64_t row = int64_t{roiSize.width} * 8;
  if (srcStep < row + 16 || dstStep < row) return pelStatusStepTooSmall;
  // No buffer: the neighbours are in memory, and the vertical pass runs in
  // pieces through a small array of its own.
  constexpr int64_t kPiece = 256;
  double tmp[kPiece + 2];
  for (int64_t y = 0; y < roiSize.height; ++y) {
    for (int64_t x = 0; x < roiSize.width; x += kPiece) {
      const int64_t n = std::min<int64_t>(kPiece, roiSize.width - x);
      const uint8_t* rows[3];
      for (int i = 0; i < 3; ++i)
        rows[i] = reinterpret_cast<const uint8_t*>(Row(pSrc, srcStep, y + i - 1) + x - 1);
      ExtremeRow(Lane::F64, kMax, 1, 3, 3, rows, tmp, Row(pDst, dstStep, y) + x, n);
    }
  }
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "filter/rank_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::filter
