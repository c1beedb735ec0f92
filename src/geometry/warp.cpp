#include "geometry/warp.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>

#include "core/border.h"
#include "core/common.h"
#include "core/exports.h"
#include "core/fp_env.h"
#include "core/spec.h"
#include "geometry/geometry_frame.h"
#include "geometry/row_warp_kernels.h"
#include "geometry/warp_scalar.h"
#include "geometry/warp_spec.h"

namespace pel::geometry {

namespace {

template <class T>
constexpr int32_t ElemWord() {
  if constexpr (std::is_same_v<T, Pel8u>) return kWarp8u;
  else if constexpr (std::is_same_v<T, Pel16u>) return kWarp16u;
  else if constexpr (std::is_same_v<T, Pel16s>) return kWarp16s;
  else if constexpr (std::is_same_v<T, Pel32f>) return kWarp32f;
  else return kWarp64f;
}

// The constant of an integer type: rounded to nearest, ties to even (exactly,
// whatever the caller's rounding mode), and held to the type's range.
double RoundEvenClamped(double v, double lo, double hi) {
  if (!(v >= lo)) return lo;
  if (v > hi) return hi;
  double r = std::floor(v);
  const double d = v - r;
  if (d > 0.5 || (d == 0.5 && std::fmod(r, 2) != 0)) r += 1;
  return r;
}

template <class T>
T BorderElement(double v) {
  if constexpr (std::is_same_v<T, Pel8u>) return T(RoundEvenClamped(v, 0, 255));
  else if constexpr (std::is_same_v<T, Pel16u>) return T(RoundEvenClamped(v, 0, 65535));
  else if constexpr (std::is_same_v<T, Pel16s>) return T(RoundEvenClamped(v, -32768, 32767));
  else return T(v);
}

template <class T, int C>
WarpFrame MakeFrame(const WarpSpec& s, const T* pSrc, ptrdiff_t srcStep) {
  WarpFrame f{};
  f.src = reinterpret_cast<const uint8_t*>(pSrc);
  f.srcStep = srcStep;
  f.srcWidth = s.srcWidth, f.srcHeight = s.srcHeight;
  f.channels = C;
  f.elem = s.elem;
  f.elemBytes = int(sizeof(T));
  f.method = s.interpolation;
  f.perspective = s.kind == kWarpPerspective;
  const Border b = SplitBorder(s.border);
  f.kind = s.border == pelBorderInMem || b.kind == pelBorderReplicate ? pelBorderReplicate : b.kind;
  const int reach = f.method == pelInterpolationNearest ? 0 : f.method == pelInterpolationLinear ? 1 : 2;
  f.loX = b.inMemory & pelBorderInMemLeft ? -reach : 0;
  f.hiX = s.srcWidth - 1 + (b.inMemory & pelBorderInMemRight ? reach : 0);
  f.loY = b.inMemory & pelBorderInMemTop ? -reach : 0;
  f.hiY = s.srcHeight - 1 + (b.inMemory & pelBorderInMemBottom ? reach : 0);
  T* bp = reinterpret_cast<T*>(f.borderPixel);
  for (int k = 0; k < C; ++k) bp[k] = BorderElement<T>(s.borderValue[k]);
  f.cubicB = s.cubicB, f.cubicC = s.cubicC;
  std::memcpy(f.back, s.back, sizeof f.back);
  // Every byte a vector kernel may reach: the readable rows and columns plus
  // a few pixels of slack on either side.
  const uint64_t rows = uint64_t(std::max(std::llabs(f.loY), std::llabs(f.hiY)) + 2);
  const uint64_t cols = uint64_t(std::max(std::llabs(f.loX), std::llabs(f.hiX)) + 4);
  const uint64_t step = uint64_t(srcStep < 0 ? -int64_t(srcStep) : int64_t(srcStep));
  f.offsets32 = rows * step + cols * C * sizeof(T) < (uint64_t(1) << 31);
  return f;
}

template <class T, int C, int kMethod, bool kPerspective, class Step, class Point, class Size>
PelStatus Process(const T* pSrc, Step srcStep, T* pDst, Step dstStep, Point offset, Size size,
                  const PeliWarpSpec* pSpec, Pel8u* pBuffer) {
  // The magic first: a wrong spec is named even when the images are missing.
  if (pSpec != nullptr && WarpMagicOf(pSpec) != kWarpMagic) return pelStatusContextMismatch;
  if (AnyNull(pSrc, pDst, pSpec, pBuffer)) return pelStatusNullPointer;
  if ((size.width == 0 && size.height >= 0) || (size.height == 0 && size.width > 0)) return pelStatusNoOperation;
  const WarpSpec s = ReadWarpSpec(pSpec);
  if (s.interpolation != kMethod || s.elem != ElemWord<T>() || s.channels != C || s.path != kWarpPath ||
      s.kind != (kPerspective ? kWarpPerspective : kWarpAffine))
    return pelStatusContextMismatch;
  if (BadSize(size)) return pelStatusBadSize;
  if (!OffsetInside(offset.x, offset.y, s.dstWidth, s.dstHeight)) return pelStatusOutOfRange;
  const Tile t = ClipTile({int64_t(offset.x), int64_t(offset.y), int64_t(size.width), int64_t(size.height)},
                          s.dstWidth, s.dstHeight);
  const bool adjusted = t.width < int64_t(size.width) || t.height < int64_t(size.height);
  if (s.status != pelStatusOk) return s.status;
  if (!BorderCodeAccepted(s.border, {pelBorderReplicate, pelBorderConstant, 7})) return pelStatusBadBorderType;
  // Positions and float blends are defined with round-to-nearest, whatever
  // mode the caller's thread runs in.
  const RoundingScope nearest(RoundingScope::kNearest);
  WarpFrame f = MakeFrame<T, C>(s, pSrc, ptrdiff_t(srcStep));
  const bool constant = s.border != pelBorderInMem && SplitBorder(s.border).kind == pelBorderConstant;
  if (constant && s.fillDone == 0) {
    const T* value = reinterpret_cast<const T*>(f.borderPixel);
    for (int64_t y = 0; y < t.height; ++y) {
      T* d = Row(pDst, ptrdiff_t(dstStep), ptrdiff_t(y));
      for (int64_t x = 0; x < t.width; ++x) std::memcpy(d + x * C, value, C * sizeof(T));
    }
  }
  if (!kPerspective) {
    // The affine column terms, once for all rows of the tile.
    auto* words = reinterpret_cast<int32_t*>(AlignUp64(pBuffer));
    if (scalar::ColumnTerms(f, t.x, t.width, words, words + t.width)) {
      f.columnX = words, f.columnY = words + t.width, f.columnsX0 = t.x;
    }
  }
  for (int64_t y = 0; y < t.height; ++y)
    WarpRow(f, t.y + y, t.x, t.width, reinterpret_cast<uint8_t*>(Row(pDst, ptrdiff_t(dstStep), ptrdiff_t(y))));
  return adjusted ? pelStatusAdjusted : pelStatusOk;
}

}  // namespace

template <class T, int C, int kMethod, bool kPerspective>
PelStatus Warp(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliPoint dstRoiOffset, PeliSize dstRoiSize,
               const PeliWarpSpec* pSpec, Pel8u* pBuffer) {
  return Process<T, C, kMethod, kPerspective>(pSrc, srcStep, pDst, dstStep, dstRoiOffset, dstRoiSize, pSpec,
                                               pBuffer);
}

template <class T, int C, int kMethod, bool kPerspective>
PelStatus WarpL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliPointL dstRoiOffset,
                PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer) {
  return Process<T, C, kMethod, kPerspective>(pSrc, srcStep, pDst, dstStep, dstRoiOffset, dstRoiSize, pSpec,
                                               pBuffer);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "geometry/warp_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::geometry
