#include "geometry/resize_query.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "core/common.h"
#include "core/exports.h"
#include "geometry/resize_spec.h"

namespace pel::geometry {

namespace {

// ---- Sizes --------------------------------------------------------------------

// n rounded up to a multiple of 32 (table lengths are padded to that).
constexpr int64_t A(int64_t n) { return (n + 31) & ~int64_t{31}; }

struct Dims {
  int64_t sw, sh, dw, dh;
  template <class Size>
  Dims(Size src, Size dst) : sw(src.width), sh(src.height), dw(dst.width), dh(dst.height) {}
  bool AnyZero() const { return sw == 0 || sh == 0 || dw == 0 || dh == 0; }
  bool AnyNegative() const { return sw < 0 || sh < 0 || dw < 0 || dh < 0; }
  bool Above32Bits() const {
    const int64_t m = std::numeric_limits<int32_t>::max();
    return sw > m || sh > m || dw > m || dh > m;
  }
};

bool KnownInterpolation(int code) {
  return code == pelInterpolationCode0 || code == pelInterpolationNearest || code == pelInterpolationLinear ||
         code == pelInterpolationCode6 || code == pelInterpolationCode8 || code == pelInterpolationCode16;
}

bool KnownDataType(int type) {
  return type == kType8u || type == kType16u || type == kType16s || type == kType32f || type == kType64f;
}

bool SourceLargeEnough(int code, const Dims& d) {
  switch (code) {
    case pelInterpolationLinear: return d.sw >= 2 && d.sh >= 2;
    case pelInterpolationCode6:
    case pelInterpolationCode16: return d.sw >= 4 && d.sh >= 4;
    case pelInterpolationCode8: return d.sw >= d.dw && d.sh >= d.dh;
    default: return true;
  }
}

// Bytes of one axis of an antialiasing spec: an index a position and a run
// of weights as wide as the filter stretched by the reduction.
int64_t AntialiasAxisBytes(int baseTaps, int64_t src, int64_t dst) {
  const int64_t stretch = std::max<int64_t>(1, (src + dst - 1) / dst);
  return 4 * A(dst) + 4 * A(baseTaps * stretch * dst);
}

struct SpecSizes {
  int64_t spec, init;
};

SpecSizes SizesFor(int code, bool antialiasing, const Dims& d) {
  const int64_t tables = A(d.dw) + A(d.dh);
  const int baseTaps = code == pelInterpolationLinear ? 2 : code == pelInterpolationCode6 ? 4 : 6;
  if (antialiasing && code != pelInterpolationNearest && code != pelInterpolationCode8) {
    return {264 + AntialiasAxisBytes(baseTaps, d.sw, d.dw) + AntialiasAxisBytes(baseTaps, d.sh, d.dh),
            4 * tables};
  }
  switch (code) {
    case pelInterpolationNearest: return {tables * 4 + 264, 0};
    case pelInterpolationLinear: return {tables * 8 + 264, 0};
    case pelInterpolationCode8: return {tables * 4 + (A(d.sw) + A(d.sh)) * 8 + 264, 0};
    default: {
      const int64_t k = baseTaps, pad = 32 * k - 1;
      const int64_t weights = (((k * d.dw + pad) & ~int64_t{31}) + ((k * d.dh + pad) & ~int64_t{31}));
      return {4 * weights + 4 * tables + 264, 4 * tables};
    }
  }
}

template <class Out, class Size>
PelStatus GetSize(Size src, Size dst, int code, uint32_t antialiasing, const int* dataType, Out* pSpecSize,
                  Out* pInitBufSize) {
  if (AnyNull(pSpecSize, pInitBufSize)) return pelStatusNullPointer;
  const Dims d(src, dst);
  if (d.AnyZero()) return pelStatusNoOperation;
  if (d.AnyNegative()) return pelStatusBadSize;
  if (!KnownInterpolation(code)) return pelStatusInterpolationError;
  if (code == pelInterpolationCode0) return pelStatusNotSupportedMode;
  if (dataType && !KnownDataType(*dataType)) return pelStatusDataTypeError;
  if (!SourceLargeEnough(code, d)) return pelStatusBadSize;
  if (d.Above32Bits()) return pelStatusSizeOverflow;
  const SpecSizes s = SizesFor(code, antialiasing != 0, d);
  const int64_t limit = std::numeric_limits<Out>::max();
  if (s.spec >= limit || s.init >= limit) return pelStatusSizeOverflow;
  *pSpecSize = static_cast<Out>(s.spec);
  *pInitBufSize = static_cast<Out>(s.init);
  const bool ignored = code == pelInterpolationNearest || code == pelInterpolationCode8;
  return antialiasing != 0 && ignored ? pelStatusAntialiasingIgnoredWarning : pelStatusOk;
}

// ---- Init -----------------------------------------------------------------------

uint64_t Gcd(uint64_t a, uint64_t b) {
  while (b != 0) {
    const uint64_t t = a % b;
    a = b;
    b = t;
  }
  return a;
}

void WriteAxisHead(int32_t* block, int64_t src, int64_t dst, int32_t indexTable, int32_t weightTable) {
  const auto g = static_cast<int64_t>(Gcd(uint64_t(src), uint64_t(dst)));
  block[kAxisSrcLen] = int32_t(src);
  block[kAxisDstLen] = int32_t(dst);
  block[kAxisSrcReduced] = int32_t(src / g);
  block[kAxisDstReduced] = int32_t(dst / g);
  block[kAxisIndexTable] = indexTable;
  block[kAxisWeightTable] = weightTable;
}

// Bilinear: destination position i reads source position (i + 0.5) x ratio
// - 0.5 (pixel centres); the weight of the second tap is a Q14 fraction. The
// 1e-7 keeps fractions that are exact in binary from landing one unit short.
void BuildLinearAxis(int32_t* words, int block, int64_t src, int64_t dst, int32_t indexTable,
                     int32_t weightTable, bool pairs) {
  int32_t* b = words + block;
  WriteAxisHead(b, src, dst, indexTable, weightTable);
  const double ratio = double(b[kAxisSrcReduced]) / double(b[kAxisDstReduced]);
  auto* index = reinterpret_cast<int32_t*>(reinterpret_cast<uint8_t*>(words) + indexTable);
  auto* weight = reinterpret_cast<int16_t*>(reinterpret_cast<uint8_t*>(words) + weightTable);
  int32_t negative = 0, pastEnd = 0;
  for (int64_t i = 0; i < dst; ++i) {
    const double s = (double(i) + 0.5) * ratio - 0.5;
    const double f = std::floor(s);
    index[i] = static_cast<int32_t>(f);
    const auto w = static_cast<int16_t>(static_cast<int32_t>((s - f) * 16384.0 + 1e-07));
    if (pairs) {
      weight[2 * i] = static_cast<int16_t>(16384 - w);
      weight[2 * i + 1] = w;
    } else {
      weight[i] = w;
    }
    negative += s < 0;
    pastEnd += s >= double(src - 1);
  }
  b[kAxisNegative] = negative;
  b[kAxisPastEnd] = pastEnd;
}

// Nearest: a centre that lands exactly on a boundary between two source
// pixels takes the lower one.
void BuildNearestAxis(int32_t* words, int block, int64_t src, int64_t dst, int32_t indexTable) {
  WriteAxisHead(words + block, src, dst, indexTable, 0);
  const double ratio = double(src) / double(dst);
  auto* index = reinterpret_cast<int32_t*>(reinterpret_cast<uint8_t*>(words) + indexTable);
  for (int64_t i = 0; i < dst; ++i) index[i] = static_cast<int32_t>((double(i) + 0.5) * ratio - 1e-10);
}

void BuildSpec(const Dims& d, bool linear, int dataType, void* spec) {
  int32_t* w = SpecWords(spec);
  std::memset(w, 0, kResizeHeaderBytes);
  w[kWordMagic] = kResizeMagic;
  w[kWordKind] = !linear ? (dataType == kType64f ? kKindNearest64f : kKindNearest) : kKindLinear;
  w[kWordInterpolation] = linear ? pelInterpolationLinear : pelInterpolationNearest;
  w[kWordXParam] = w[kWordYParam] = linear;
  for (int k = 0; k < 4; ++k) w[kWordBorder + k] = linear;
  w[kWordPath] = !linear ? 2 : dataType == kType8u ? 1 : 0;
  w[kWordSrcWidth] = int32_t(d.sw);
  w[kWordSrcHeight] = int32_t(d.sh);
  w[kWordDstWidth] = int32_t(d.dw);
  w[kWordDstHeight] = int32_t(d.dh);
  w[kWordLinearMark] = linear;
  const auto yIndex = int32_t(kResizeHeaderBytes);
  const auto xIndex = int32_t(yIndex + 4 * d.dh);
  if (linear) {
    const auto yWeight = int32_t(xIndex + 4 * d.dw);
    const auto xWeight = int32_t(yWeight + 2 * d.dh);
    BuildLinearAxis(w, kWordYAxis, d.sh, d.dh, yIndex, yWeight, false);
    BuildLinearAxis(w, kWordXAxis, d.sw, d.dw, xIndex, xWeight, true);
  } else {
    BuildNearestAxis(w, kWordYAxis, d.sh, d.dh, yIndex);
    BuildNearestAxis(w, kWordXAxis, d.sw, d.dw, xIndex);
  }
}

template <class Size>
PelStatus Init(Size src, Size dst, bool linear, int dataType, bool checkType, PeliResizeSpec* pSpec) {
  if (pSpec == nullptr) return pelStatusNullPointer;
  const Dims d(src, dst);
  if (d.AnyZero()) return pelStatusNoOperation;
  if (d.AnyNegative() || (linear && (d.sw < 2 || d.sh < 2))) return pelStatusBadSize;
  if (d.Above32Bits()) return pelStatusSizeOverflow;
  if (checkType && !KnownDataType(dataType)) return pelStatusDataTypeError;
  BuildSpec(d, linear, dataType, pSpec);
  return pelStatusOk;
}

// ---- Queries ----------------------------------------------------------------------

template <class Out, class Size>
PelStatus GetBufferSize(const PeliResizeSpec* pSpec, Size tile, uint32_t channels, Out* pSize) {
  if (AnyNull(pSpec, pSize)) return pelStatusNullPointer;
  if (tile.width == 0 || tile.height == 0) return pelStatusNoOperation;
  if (!IsResizeSpec(pSpec)) return pelStatusContextMismatch;
  if (channels != 1 && channels != 3 && channels != 4) return pelStatusChannelsNotSupported;
  if (tile.width < 0 || tile.height < 0) return pelStatusBadSize;
  const bool linear = ReadResizeSpec(pSpec).Interpolation() != pelInterpolationNearest;
  const uint64_t bytes = ResizeBufferBytes(linear, uint64_t(tile.width), channels);
  if (uint64_t(tile.width) > uint64_t(std::numeric_limits<int32_t>::max()) ||
      bytes >= uint64_t(std::numeric_limits<Out>::max())) {
    return pelStatusSizeOverflow;
  }
  *pSize = static_cast<Out>(bytes);
  return pelStatusOk;
}

template <class Point>
PelStatus GetSrcOffset(const PeliResizeSpec* pSpec, Point dstOffset, Point* pSrcOffset) {
  if (AnyNull(pSpec, pSrcOffset)) return pelStatusNullPointer;
  if (!IsResizeSpec(pSpec)) return pelStatusContextMismatch;
  const ResizeSpecView s = ReadResizeSpec(pSpec);
  if (!OffsetInside(dstOffset.x, dstOffset.y, s.x.dstLen, s.y.dstLen)) return pelStatusOutOfRange;
  pSrcOffset->x = static_cast<decltype(pSrcOffset->x)>(s.x.SrcOffset(dstOffset.x));
  pSrcOffset->y = static_cast<decltype(pSrcOffset->y)>(s.y.SrcOffset(dstOffset.y));
  return pelStatusOk;
}

// The source pixels of one axis that a clipped tile [o, o + n) reads: from the
// tile's source offset to its last position's index, or to the source's end
// when the tile reaches the destination's end.
void SrcSpan(const ResizeAxis& a, int64_t o, int64_t n, int64_t* start, int64_t* length) {
  *start = a.SrcOffset(o);
  *length = o + n == a.dstLen ? a.srcLen - *start : a.index[o + n - 1] - *start + 1;
}

template <class Point, class Size>
PelStatus GetSrcRoi(const PeliResizeSpec* pSpec, Point dstOffset, Size dstSize, Point* pSrcOffset,
                    Size* pSrcSize) {
  if (AnyNull(pSpec, pSrcOffset, pSrcSize)) return pelStatusNullPointer;
  if (BadSize(dstSize)) return pelStatusBadSize;
  if (!IsResizeSpec(pSpec)) return pelStatusContextMismatch;
  const ResizeSpecView s = ReadResizeSpec(pSpec);
  if (!OffsetInside(dstOffset.x, dstOffset.y, s.x.dstLen, s.y.dstLen)) return pelStatusOutOfRange;
  const Tile asked{dstOffset.x, dstOffset.y, dstSize.width, dstSize.height};
  const Tile t = ClipTile(asked, s.x.dstLen, s.y.dstLen);
  int64_t x, y, w, h;
  SrcSpan(s.x, t.x, t.width, &x, &w);
  SrcSpan(s.y, t.y, t.height, &y, &h);
  pSrcOffset->x = static_cast<decltype(pSrcOffset->x)>(x);
  pSrcOffset->y = static_cast<decltype(pSrcOffset->y)>(y);
  pSrcSize->width = static_cast<decltype(pSrcSize->width)>(w);
  pSrcSize->height = static_cast<decltype(pSrcSize->height)>(h);
  return TileLargerThanDestination(asked, s.x.dstLen, s.y.dstLen) ? pelStatusAdjusted : pelStatusOk;
}

}  // namespace

PelStatus ResizeGetSize(PeliSize src, PeliSize dst, int interpolation, uint32_t antialiasing, int* pSpecSize,
                        int* pInitBufSize) {
  return GetSize(src, dst, interpolation, antialiasing, nullptr, pSpecSize, pInitBufSize);
}
PelStatus ResizeGetSizeL(PeliSizeL src, PeliSizeL dst, PelDataType dataType, int interpolation,
                         uint32_t antialiasing, PelIntL* pSpecSize, PelIntL* pInitBufSize) {
  return GetSize(src, dst, interpolation, antialiasing, &dataType, pSpecSize, pInitBufSize);
}

template <int kType>
PelStatus ResizeNearestInit(PeliSize src, PeliSize dst, PeliResizeSpec* pSpec) {
  return Init(src, dst, false, kType, false, pSpec);
}
PelStatus ResizeNearestInitL(PeliSizeL src, PeliSizeL dst, PelDataType dataType, PeliResizeSpec* pSpec) {
  return Init(src, dst, false, dataType, true, pSpec);
}
template <int kType>
PelStatus ResizeLinearInit(PeliSize src, PeliSize dst, PeliResizeSpec* pSpec) {
  return Init(src, dst, true, kType, false, pSpec);
}
PelStatus ResizeLinearInit8uL(PeliSizeL src, PeliSizeL dst, PeliResizeSpec* pSpec) {
  return Init(src, dst, true, kType8u, false, pSpec);
}
PelStatus ResizeLinearInitL(PeliSizeL src, PeliSizeL dst, PelDataType dataType, PeliResizeSpec* pSpec) {
  return Init(src, dst, true, dataType, true, pSpec);
}

PelStatus ResizeGetBufferSize(const PeliResizeSpec* pSpec, PeliSize dst, uint32_t channels, int* pSize) {
  return GetBufferSize(pSpec, dst, channels, pSize);
}
PelStatus ResizeGetBufferSizeL(const PeliResizeSpec* pSpec, PeliSizeL dst, uint32_t channels, PelIntL* pSize) {
  return GetBufferSize(pSpec, dst, channels, pSize);
}

PelStatus ResizeGetBorderSize(const PeliResizeSpec* pSpec, PeliBorderSize* pBorder) {
  if (AnyNull(pSpec, pBorder)) return pelStatusNullPointer;
  if (!IsResizeSpec(pSpec)) return pelStatusContextMismatch;
  const int32_t* w = SpecWords(pSpec) + kWordBorder;
  *pBorder = PeliBorderSize{w[0], w[1], w[2], w[3]};
  return pelStatusOk;
}

PelStatus ResizeGetSrcOffset(const PeliResizeSpec* pSpec, PeliPoint dstOffset, PeliPoint* pSrcOffset) {
  return GetSrcOffset(pSpec, dstOffset, pSrcOffset);
}
PelStatus ResizeGetSrcOffsetL(const PeliResizeSpec* pSpec, PeliPointL dstOffset, PeliPointL* pSrcOffset) {
  return GetSrcOffset(pSpec, dstOffset, pSrcOffset);
}
PelStatus ResizeGetSrcRoi(const PeliResizeSpec* pSpec, PeliPoint dstOffset, PeliSize dstSize,
                          PeliPoint* pSrcOffset, PeliSize* pSrcSize) {
  return GetSrcRoi(pSpec, dstOffset, dstSize, pSrcOffset, pSrcSize);
}
PelStatus ResizeGetSrcRoiL(const PeliResizeSpec* pSpec, PeliPointL dstOffset, PeliSizeL dstSize,
                           PeliPointL* pSrcOffset, PeliSizeL* pSrcSize) {
  return GetSrcRoi(pSpec, dstOffset, dstSize, pSrcOffset, pSrcSize);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "geometry/resize_query_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::geometry
