#include "geometry/warp_setup.h"

#include <cmath>
#include <cstring>

#include "core/border.h"
#include "core/common.h"
#include "core/exports.h"
#include "geometry/warp_matrix.h"
#include "geometry/warp_spec.h"

namespace pel::geometry {

namespace {

constexpr int64_t kMaxSide = 33554431;

bool WarpBorderAccepted(int border) { return BorderCodeAccepted(border, {pelBorderReplicate, pelBorderConstant, 7}); }

int ElemOfType(int dataType) {
  switch (dataType) {
    case pelType8u: return kWarp8u;
    case pelType16u: return kWarp16u;
    case pelType16s: return kWarp16s;
    case pelType32f: return kWarp32f;
    case pelType64f: return kWarp64f;
  }
  return -1;
}

// The matrix as 3x3, whatever the caller gave.
void Matrix3(const double (*coeffs)[3], bool perspective, double m[3][3]) {
  if (perspective) std::memcpy(m, coeffs, 9 * sizeof(double));
  else AffineAs3x3(coeffs, m);
}

bool Singular(const double (*coeffs)[3], bool perspective) {
  return perspective ? PerspectiveSingular(coeffs) : AffineSingular(coeffs);
}

// Checks 3 to 8 of the size query, shared with the Inits (sizes, type,
// then the caller's interpolation and direction, then the matrix).
template <class Size>
PelStatus CheckSizesAndType(Size src, Size dst, int dataType) {
  if (BadSize(src) || BadSize(dst)) return pelStatusBadSize;
  if (int64_t(src.width) > kMaxSide || int64_t(src.height) > kMaxSide || int64_t(dst.width) > kMaxSide ||
      int64_t(dst.height) > kMaxSide)
    return pelStatusSizeOverflow;
  if (ElemOfType(dataType) < 0) return pelStatusDataTypeError;
  return pelStatusOk;
}

template <class Size, class Out>
PelStatus GetSize(Size src, Size dst, int dataType, const double (*coeffs)[3], bool perspective, int interpolation,
                  int direction, int border, Out* pSpecSize, Out* pInitBufSize) {
  if (!WarpBorderAccepted(border)) return pelStatusBadBorderType;
  if (AnyNull(pSpecSize, pInitBufSize, coeffs)) return pelStatusNullPointer;
  if (const PelStatus st = CheckSizesAndType(src, dst, dataType)) return st;
  if (interpolation != pelInterpolationNearest && interpolation != pelInterpolationLinear && interpolation != 6)
    return pelStatusInterpolationError;
  if (direction != 0 && direction != 1) return pelStatusWarpDirectionError;
  if (Singular(coeffs, perspective)) return pelStatusCoefficientsSingular;
  const int64_t buffer = WarpBufferBytes(dst.width);
  if (buffer >= INT32_MAX) return pelStatusSizeOverflow;
  *pSpecSize = Out(kWarpSpecBytes);
  *pInitBufSize = Out(buffer);
  return pelStatusOk;
}

template <class Size>
PelStatus Init(Size src, Size dst, int dataType, const double (*coeffs)[3], bool perspective, int interpolation,
               int direction, int channels, int border, const double* borderValue, double b, double c,
               int smoothEdge, PeliWarpSpec* pSpec) {
  if (!WarpBorderAccepted(border)) return pelStatusBadBorderType;
  const bool constant = border != pelBorderInMem && (border & 0x0F) == pelBorderConstant;
  if (AnyNull(coeffs, pSpec) || (constant && borderValue == nullptr)) return pelStatusNullPointer;
  if (const PelStatus st = CheckSizesAndType(src, dst, dataType)) return st;
  if (direction != 0 && direction != 1) return pelStatusWarpDirectionError;
  if (channels != 1 && channels != 3 && channels != 4) return pelStatusChannelsNotSupported;
  if (!std::isfinite(b) || !std::isfinite(c)) return pelStatusBadArgument;
  if (smoothEdge != 0) return pelStatusNotSupportedMode;
  if (Singular(coeffs, perspective)) return pelStatusCoefficientsSingular;
  double m[3][3];
  Matrix3(coeffs, perspective, m);
  WarpSpec s{};
  // Processing maps destination pixels back, so it needs the inverse of the
  // matrix in use: of the given one for direction 0, the given one itself
  // for direction 1 (whose matrix in use is the inverse).
  if (direction == 1) {
    std::memcpy(s.back, m, sizeof m);
  } else if (perspective) {
    if (!InvertPerspective(m, s.back)) return pelStatusCoefficientsSingular;
  } else {
    double inv[2][3];
    if (!InvertAffine(coeffs, inv)) return pelStatusCoefficientsSingular;
    AffineAs3x3(inv, s.back);
  }
  s.magic = kWarpMagic;
  s.kind = perspective ? kWarpPerspective : kWarpAffine;
  s.srcWidth = int32_t(src.width), s.srcHeight = int32_t(src.height);
  s.dstWidth = int32_t(dst.width), s.dstHeight = int32_t(dst.height);
  s.elem = ElemOfType(dataType);
  s.channels = channels;
  s.interpolation = interpolation;
  s.path = kWarpPath;
  s.border = border;
  s.smoothEdge = smoothEdge;
  s.fillDone = 1;
  s.status = pelStatusOk;
  if (constant)
    for (int k = 0; k < channels; ++k) s.borderValue[k] = borderValue[k];
  s.cubicB = b, s.cubicC = c;
  std::memcpy(static_cast<void*>(pSpec), &s, sizeof s);
  return pelStatusOk;
}

}  // namespace

PelStatus WarpAffineGetSize(PeliSize srcSize, PeliSize dstSize, PelDataType dataType, const double coeffs[2][3],
                            int interpolation, int direction, PeliBorderType border, int* pSpecSize,
                            int* pInitBufSize) {
  return GetSize(srcSize, dstSize, dataType, coeffs, false, interpolation, direction, border, pSpecSize,
                 pInitBufSize);
}

PelStatus WarpAffineGetSizeL(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType, const double coeffs[2][3],
                             int interpolation, int direction, PeliBorderType border, PelIntL* pSpecSize,
                             PelIntL* pInitBufSize) {
  return GetSize(srcSize, dstSize, dataType, coeffs, false, interpolation, direction, border, pSpecSize,
                 pInitBufSize);
}

PelStatus WarpPerspectiveGetSize(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
                                 const double coeffs[3][3], int interpolation, int direction,
                                 PeliBorderType border, int* pSpecSize, int* pInitBufSize) {
  return GetSize(srcSize, dstSize, dataType, coeffs, true, interpolation, direction, border, pSpecSize,
                 pInitBufSize);
}

template <int kInterpolation, bool kPerspective, class Size>
PelStatus WarpInit(Size srcSize, Size dstSize, PelDataType dataType, const double (*coeffs)[3], int direction,
                   int numChannels, PeliBorderType border, const double* pBorderValue, int smoothEdge,
                   PeliWarpSpec* pSpec) {
  return Init(srcSize, dstSize, dataType, coeffs, kPerspective, kInterpolation, direction, numChannels, border,
              pBorderValue, 0.0, 0.0, smoothEdge, pSpec);
}

template <bool kPerspective, class Size>
PelStatus WarpCubicInit(Size srcSize, Size dstSize, PelDataType dataType, const double (*coeffs)[3], int direction,
                        int numChannels, PeliBorderType border, const double* pBorderValue, double valueB,
                        double valueC, int smoothEdge, PeliWarpSpec* pSpec) {
  return Init(srcSize, dstSize, dataType, coeffs, kPerspective, 6, direction, numChannels, border, pBorderValue,
              valueB, valueC, smoothEdge, pSpec);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "geometry/warp_setup_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::geometry
