// The one-operand functions: Sqrt and Ln of 32f, Abs of 16s.
#include "arith/unary.h"

#include <cstring>

#include "arith/arith.h"
#include "arith/row_kernels.h"
#include "arith/row_scalar.h"
#include "core/common.h"
#include "core/exports.h"

#ifdef __clang__
#pragma clang fp contract(off)
#endif

namespace pel::arith {

namespace {

PelStatus Check(const void* src, int srcStep, const void* dst, int dstStep, PeliSize roi) {
  if (AnyNull(src, dst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (srcStep < 1 || dstStep < 1) return pelStatusBadStep;
  return pelStatusOk;
}

// ln x for a positive finite x, in double precision with a fixed sequence of
// operations (no library call, whose variants differ between processors),
// accurate to a few units in the last place of a double, so that rounding
// to single precision is correct but for values within about 1e-16 of a
// rounding boundary. x = 2^k m with m in [sqrt(1/2), sqrt(2)); ln m =
// 2 atanh(s) with s = (m - 1) / (m + 1), |s| < 0.172, as its series.
double LnPositive(double x) {
  uint64_t bits;
  std::memcpy(&bits, &x, sizeof bits);
  int k = static_cast<int>(bits >> 52) - 1023;
  bits = (bits & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull;
  double m;
  std::memcpy(&m, &bits, sizeof m);
  if (m > 1.4142135623730951) {
    m = m * 0.5;
    k = k + 1;
  }
  const double f = m - 1.0;
  const double s = f / (2.0 + f);
  const double z = s * s;
  // s^2/3 + s^4/5 + ... + s^22/23: the next term is below 2^-60 of s.
  double p = 1.0 / 23.0;
  for (int odd = 21; odd >= 3; odd -= 2) {
    p = p * z;
    p = p + 1.0 / odd;
  }
  p = p * z;
  double t = s * p;
  t = s + t;
  const double lnm = 2.0 * t;
  // ln 2 in two parts; k x the first is exact.
  constexpr double kLn2Hi = 6.93147180369123816490e-01;
  constexpr double kLn2Lo = 1.90821492927058770002e-10;
  const double lo = k * kLn2Lo + lnm;
  return k * kLn2Hi + lo;
}

// Row status: 7 when an element was zero (the pole), else 8 when one was
// negative, else 0.
PelStatus LnRow(const float* src, float* d, size_t n) {
  bool zero = false, negative = false;
  for (size_t j = 0; j < n; ++j) {
    const float v = src[j];
    float r;
    if (v > 0.0f) {
      r = v == __builtin_inff() ? v : static_cast<float>(LnPositive(v));
    } else if (v == 0.0f) {
      r = -__builtin_inff();
      zero = true;
    } else if (v < 0.0f) {
      r = scalar::FloatFromBits(scalar::kDefaultNaN);
      negative = true;
    } else {
      r = scalar::FloatFromBits(scalar::BitsOf(v) | 0x00400000u);  // NaN, quieted
    }
    d[j] = r;
  }
  return zero ? pelStatusLnSingularWarning : negative ? pelStatusLnNegArgWarning : pelStatusOk;
}

}  // namespace

PelStatus Sqrt(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize) {
  const PelStatus status = Check(pSrc, srcStep, pDst, dstStep, roiSize);
  if (status != pelStatusOk) return status;
  // Rows advance by whole elements: a step's bytes past a multiple of 4 are
  // dropped.
  const ptrdiff_t ss = srcStep & ~3, ds = dstStep & ~3;
  const Rows rows = RowsOf(uint64_t(roiSize.width), uint64_t(roiSize.height), 1, 4, true, {ss, ds});
  bool negative = false;
  for (uint64_t y = 0; y < rows.count; ++y) {
    negative = SqrtRow(Row(pSrc, ss, ptrdiff_t(y)), Row(pDst, ds, ptrdiff_t(y)), rows.lanes) ||
               negative;
  }
  return negative ? pelStatusSqrtNegArgWarning : pelStatusOk;
}

// Each row has its own status (7 ranks above 8), and the first row with one
// decides, so rows are never merged.
PelStatus Ln(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize) {
  const PelStatus status = Check(pSrc, srcStep, pDst, dstStep, roiSize);
  if (status != pelStatusOk) return status;
  PelStatus first = pelStatusOk;
  for (int y = 0; y < roiSize.height; ++y) {
    const PelStatus row = LnRow(Row(pSrc, srcStep, y), Row(pDst, dstStep, y), size_t(roiSize.width));
    if (first == pelStatusOk) first = row;
  }
  return first;
}

PelStatus Abs(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize) {
  const PelStatus status = Check(pSrc, srcStep, pDst, dstStep, roiSize);
  if (status != pelStatusOk) return status;
  const Rows rows = RowsOf(uint64_t(roiSize.width), uint64_t(roiSize.height), 1, 2, true,
                           {srcStep, dstStep});
  for (uint64_t y = 0; y < rows.count; ++y) {
    AbsRow(Row(pSrc, srcStep, ptrdiff_t(y)), Row(pDst, dstStep, ptrdiff_t(y)), rows.lanes);
  }
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "arith/unary_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::arith
