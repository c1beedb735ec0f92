#include "geometry/resize.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "geometry/gather_plan.h"
#include "geometry/resize_spec.h"
#include "geometry/row_resize_kernels.h"

namespace pel::geometry {

namespace {

template <class T>
constexpr ResizeElem ElemOf() {
  if constexpr (std::is_same_v<T, Pel8u>) return ResizeElem::k8u;
  else if constexpr (std::is_same_v<T, Pel16u>) return ResizeElem::k16u;
  else if constexpr (std::is_same_v<T, Pel16s>) return ResizeElem::k16s;
  else if constexpr (std::is_same_v<T, Pel32f>) return ResizeElem::k32f;
  else return ResizeElem::k64f;
}

// What a processing call names, in 64 bits and bytes.
struct TileCall {
  const uint8_t* src;
  ptrdiff_t srcStep;
  uint8_t* dst;
  ptrdiff_t dstStep;
  Tile tile;        // clipped to the destination
  int channels;
  ResizeElem elem;
  uint8_t* buffer;  // aligned
};

// The checks both methods share, from the pointers to the spec's method.
template <class T, class Point, class Size>
PelStatus CheckCall(const T* pSrc, const T* pDst, const PeliResizeSpec* pSpec, const Pel8u* pBuffer,
                    Point offset, Size size, int interpolation) {
  if (AnyNull(pSrc, pDst, pSpec, pBuffer)) return pelStatusNullPointer;
  if (size.width == 0 || size.height == 0) return pelStatusNoOperation;
  if (!IsResizeSpec(pSpec)) return pelStatusContextMismatch;
  if (size.width < 0 || size.height < 0) return pelStatusBadSize;
  const ResizeSpecView s = ReadResizeSpec(pSpec);
  if (!OffsetInside(offset.x, offset.y, s.x.dstLen, s.y.dstLen)) return pelStatusOutOfRange;
  if (s.words[kWordAntialiasing] != 0) return pelStatusNotSupportedMode;
  if (s.Interpolation() != interpolation) return pelStatusContextMismatch;
  return pelStatusOk;
}

template <class T, int C, class Step, class Point, class Size>
TileCall MakeCall(const T* pSrc, Step srcStep, T* pDst, Step dstStep, Point offset, Size size,
                  const ResizeSpecView& s, Pel8u* pBuffer) {
  return {reinterpret_cast<const uint8_t*>(pSrc),
          ptrdiff_t(srcStep),
          reinterpret_cast<uint8_t*>(pDst),
          ptrdiff_t(dstStep),
          ClipTile(Tile{offset.x, offset.y, size.width, size.height}, s.x.dstLen, s.y.dstLen),
          C,
          ElemOf<T>(),
          AlignUp64(pBuffer)};
}

// ---- Nearest ---------------------------------------------------------------------

void NearestTile(const TileCall& c, const ResizeSpecView& s) {
  const auto width = size_t(c.tile.width);
  const int elemBytes = ElemBytes(c.elem);
  ResizeBufferLayout l;
  ResizeBufferLayoutFor(false, width, c.channels, elemBytes, &l);
  auto* tap = reinterpret_cast<int32_t*>(c.buffer);
  const int64_t x0 = s.x.SrcOffset(c.tile.x), y0 = s.y.SrcOffset(c.tile.y);
  for (size_t x = 0; x < width; ++x) tap[x] = int32_t(s.x.index[c.tile.x + int64_t(x)] - x0);

  NearestColumns cols;
  cols.width = width;
  cols.pixelBytes = elemBytes * c.channels;
  cols.tap = tap;
  const size_t rowBytes = width * size_t(cols.pixelBytes);
  if (ResizeKernelsUsePlans()) {
    const auto pb = intptr_t(cols.pixelBytes);
    const auto [first, last] = std::minmax_element(tap, tap + width);
    cols.plan = BuildGatherPlan(
        rowBytes, kNearestPlanWindows, *first * pb, *last * pb + pb - 1,
        [&](size_t k, intptr_t* src) {
          size_t x = k / size_t(pb);
          intptr_t r = intptr_t(k % size_t(pb));
          for (int i = 0; i < 16; ++i) {
            src[i] = tap[x] * pb + r;
            if (++r == pb) r = 0, ++x;
          }
        },
        c.buffer + l.columns);
  }
  // Destination rows that read the same source row as the row before are
  // copies of it.
  int64_t previous = INT64_MIN;
  for (int64_t y = 0; y < c.tile.height; ++y) {
    const int64_t r = s.y.index[c.tile.y + y] - y0;
    uint8_t* d = Row(c.dst, c.dstStep, y);
    if (r == previous) {
      std::memcpy(d, Row(c.dst, c.dstStep, y - 1), rowBytes);
    } else {
      NearestRow(cols, Row(c.src, c.srcStep, r), d);
    }
    previous = r;
  }
}

// ---- Linear ------------------------------------------------------------------------

// The plan and per-element weights of the vector kernels: element e's two
// taps side by side, with its weight pair (Q14 pairs for the integer types,
// the fractions as floats for 32f).
void PlanLinear(LinearColumns& cols, const ResizeBufferLayout& l, uint8_t* buffer) {
  const auto C = size_t(cols.channels);
  const size_t n = cols.width * C;
  uint8_t* weights = buffer + l.columns;
  const auto eb = size_t(ElemBytes(cols.elem));
  for (size_t e = 0; e < n; ++e) {
    const int16_t* w = cols.weight + 2 * (e / C);
    if (cols.elem == ResizeElem::k32f) {
      const float a[2] = {float(w[0]) * float(1.0 / 16384), float(w[1]) * float(1.0 / 16384)};
      std::memcpy(weights + 8 * e, a, 8);
    } else {
      std::memcpy(weights + 4 * e, w, 4);
    }
  }
  cols.elementWeights = weights;
  if (cols.elem == ResizeElem::k64f) return;
  intptr_t lo = INTPTR_MAX, hi = INTPTR_MIN;
  for (size_t x = 0; x < cols.width; ++x) {
    lo = std::min<intptr_t>(lo, std::min(cols.tap0[x], cols.tap1[x]));
    hi = std::max<intptr_t>(hi, std::max(cols.tap0[x], cols.tap1[x]));
  }
  const auto pixel = intptr_t(C * eb);
  cols.plan = BuildGatherPlan(
      2 * eb * n, kLinearPlanWindows, lo * pixel, hi * pixel + pixel - 1,
      [&](size_t k, intptr_t* src) {
        // Element e = (x, c), byte `within` of its (tap0, tap1) pair.
        const size_t e = k / (2 * eb);
        size_t within = k % (2 * eb), x = e / C, c = e % C;
        for (int i = 0; i < 16; ++i) {
          const bool second = within >= eb;
          src[i] = (intptr_t((second ? cols.tap1 : cols.tap0)[x]) * intptr_t(C) + intptr_t(c)) * intptr_t(eb) +
                   intptr_t(second ? within - eb : within);
          if (++within == 2 * eb) {
            within = 0;
            if (++c == C) c = 0, ++x;
          }
        }
      },
      buffer + l.columns + l.elementData);
}

// Whether every column averages two neighbouring source pixels with equal
// weights (an exact reduction by 2): such rows need no lookups.
bool HalvesColumns(const LinearColumns& cols) {
  for (size_t x = 0; x < cols.width; ++x) {
    if (cols.tap0[x] != cols.tap0[0] + 2 * int32_t(x) || cols.tap1[x] != cols.tap0[x] + 1 ||
        cols.weight[2 * x] != 8192 || cols.weight[2 * x + 1] != 8192) {
      return false;
    }
  }
  return true;
}

// Two lines of the horizontal pass, each tagged with the source row it holds,
// so that consecutive destination rows reuse what they share.
struct LineCache {
  uint8_t* line[2];
  int64_t row[2] = {INT64_MIN, INT64_MIN};

  template <class Fill>
  const void* Get(int64_t r, int64_t keep, Fill fill) {
    for (int k = 0; k < 2; ++k)
      if (row[k] == r) return line[k];
    const int k = row[0] == keep ? 1 : 0;
    fill(r, line[k]);
    row[k] = r;
    return line[k];
  }
};

void LinearTile(const TileCall& c, const ResizeSpecView& s, int border) {
  const auto width = size_t(c.tile.width);
  const size_t n = width * size_t(c.channels);
  ResizeBufferLayout l;
  ResizeBufferLayoutFor(true, width, c.channels, ElemBytes(c.elem), &l);
  AxisBorder bx, by;
  SplitAxes(border, s.x.srcLen, s.y.srcLen, &bx, &by);
  const int64_t x0 = s.x.SrcOffset(c.tile.x), y0 = s.y.SrcOffset(c.tile.y);

  // Source columns relative to the tile's source pointer, outside ones
  // replaced as the border says.
  auto* tap0 = reinterpret_cast<int32_t*>(c.buffer);
  int32_t* tap1 = tap0 + width;
  for (size_t x = 0; x < width; ++x) {
    const int64_t i = s.x.index[c.tile.x + int64_t(x)];
    tap0[x] = int32_t(bx.Map(i) - x0);
    tap1[x] = int32_t(bx.Map(i + 1) - x0);
  }
  LinearColumns cols;
  cols.elem = c.elem;
  cols.width = width;
  cols.channels = c.channels;
  cols.tap0 = tap0;
  cols.tap1 = tap1;
  cols.weight = s.x.weight + 2 * c.tile.x;
  if (ResizeKernelsUsePlans()) PlanLinear(cols, l, c.buffer);
  cols.halving = HalvesColumns(cols);

  const uint64_t lineBytes = l.lines / 2;
  LineCache lines{{c.buffer + l.columns + l.elementData + l.plans,
                   c.buffer + l.columns + l.elementData + l.plans + lineBytes}};
  auto horizontal = [&](int64_t r, uint8_t* line) { LinearHorizontal(cols, Row(c.src, c.srcStep, r), line); };
  for (int64_t y = 0; y < c.tile.height; ++y) {
    const int64_t i = s.y.index[c.tile.y + y];
    const int64_t r0 = by.Map(i) - y0, r1 = by.Map(i + 1) - y0;
    const void* upper = lines.Get(r0, r1, horizontal);
    const void* lower = lines.Get(r1, r0, horizontal);
    LinearVertical(c.elem, upper, lower, s.y.weight[c.tile.y + y], Row(c.dst, c.dstStep, y), n);
  }
}

template <class T, int C, class Step, class Point, class Size>
PelStatus Nearest(const T* pSrc, Step srcStep, T* pDst, Step dstStep, Point offset, Size size,
                  const PeliResizeSpec* pSpec, Pel8u* pBuffer) {
  const PelStatus st = CheckCall(pSrc, pDst, pSpec, pBuffer, offset, size, pelInterpolationNearest);
  if (st != pelStatusOk) return st;
  const ResizeSpecView s = ReadResizeSpec(pSpec);
  NearestTile(MakeCall<T, C>(pSrc, srcStep, pDst, dstStep, offset, size, s, pBuffer), s);
  return TileLargerThanDestination(Tile{0, 0, size.width, size.height}, s.x.dstLen, s.y.dstLen)
             ? pelStatusAdjusted
             : pelStatusOk;
}

template <class T, int C, class Step, class Point, class Size>
PelStatus Linear(const T* pSrc, Step srcStep, T* pDst, Step dstStep, Point offset, Size size, int border,
                 const PeliResizeSpec* pSpec, Pel8u* pBuffer) {
  border = ReadKind4AsReplicate(border);
  if (!BorderCodeAccepted(border, {pelBorderReplicate, pelBorderMirror})) return pelStatusBadBorderType;
  const PelStatus st = CheckCall(pSrc, pDst, pSpec, pBuffer, offset, size, pelInterpolationLinear);
  if (st != pelStatusOk) return st;
  const ResizeSpecView s = ReadResizeSpec(pSpec);
  LinearTile(MakeCall<T, C>(pSrc, srcStep, pDst, dstStep, offset, size, s, pBuffer), s, border);
  return TileLargerThanDestination(Tile{0, 0, size.width, size.height}, s.x.dstLen, s.y.dstLen)
             ? pelStatusAdjusted
             : pelStatusOk;
}

}  // namespace

template <class T, int C>
PelStatus ResizeNearest(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliPoint dstOffset, PeliSize dstSize,
                        const PeliResizeSpec* pSpec, Pel8u* pBuffer) {
  return Nearest<T, C>(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer);
}
template <class T, int C>
PelStatus ResizeNearestL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliPointL dstOffset,
                         PeliSizeL dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer) {
  return Nearest<T, C>(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer);
}
// The border value is never read: neither accepted kind uses one.
template <class T, int C>
PelStatus ResizeLinear(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliPoint dstOffset, PeliSize dstSize,
                       PeliBorderType border, const T* /*pBorderValue*/, const PeliResizeSpec* pSpec,
                       Pel8u* pBuffer) {
  return Linear<T, C>(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec, pBuffer);
}
template <class T, int C>
PelStatus ResizeLinearL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliPointL dstOffset,
                        PeliSizeL dstSize, PeliBorderType border, const T* /*pBorderValue*/,
                        const PeliResizeSpec* pSpec, Pel8u* pBuffer) {
  return Linear<T, C>(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec, pBuffer);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "geometry/resize_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::geometry
