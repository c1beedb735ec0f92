#include "convert/scale.h"

#include <xmmintrin.h>

#include <limits>
#include <type_traits>

#include "convert/row_convert_kernels.h"
#include "convert/walk.h"
#include "core/exports.h"
#include "core/fp_env.h"

namespace pel::convert {

namespace {

// The checks of every Scale member, then f(x) for each worked element.
template <int L, class S, class D, class F>
PelStatus MapChecked(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roi, F&& f) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (BadSteps(srcStep, dstStep)) return pelStatusBadStep;
  WalkRows<L>(pSrc, srcStep, pDst, dstStep, roi,
              [&](const S* s, D* d, size_t n) { scalar::MapElements<L>(s, d, 0, n, f); });
  return pelStatusOk;
}

template <int L, class S, class D>
PelStatus ConvertChecked(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roi, ConvertJob job) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (BadSteps(srcStep, dstStep)) return pelStatusBadStep;
  job.layout = L;
  WalkRows<L>(pSrc, srcStep, pDst, dstStep, roi, [&](const S* s, D* d, size_t n) { ConvertRow(job, s, d, n); });
  return pelStatusOk;
}

// x * mVal + aVal in double, then to D: rounded to nearest (ties to even) and
// saturated for integers, rounded to single precision for 32f.
template <class D>
D ScaleCOne(double x, double mVal, double aVal) {
  double v = x * mVal;
  v = v + aVal;
  if constexpr (std::is_floating_point_v<D>) {
    return static_cast<D>(v);
  } else {
    return scalar::FloatToInt<D>(v, 1);
  }
}

}  // namespace

template <class D, int L>
PelStatus ScaleUp(const Pel8u* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize) {
  // 0 and 255 go to the two ends of D's range, the steps between evenly:
  // 65535 = 255 x 257 and 4294967295 = 255 x 16843009.
  constexpr int64_t span = int64_t(std::numeric_limits<D>::max()) - std::numeric_limits<D>::min();
  constexpr int64_t factor = span / 255, low = std::numeric_limits<D>::min();
  return MapChecked<L>(pSrc, srcStep, pDst, dstStep, roiSize,
                       [](Pel8u x) { return static_cast<D>(int64_t{x} * factor + low); });
}

template <class S, int L>
PelStatus ScaleDown(const S* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize,
                    PelHintAlgorithm /*hint: every value gives the exact result*/) {
  // The inverse of ScaleUp, rounded to nearest: (x - min) / factor, where no
  // quotient lies halfway as factor is odd.
  constexpr int64_t span = int64_t(std::numeric_limits<S>::max()) - std::numeric_limits<S>::min();
  constexpr int64_t factor = span / 255, low = std::numeric_limits<S>::min();
  return MapChecked<L>(pSrc, srcStep, pDst, dstStep, roiSize,
                       [](S x) { return static_cast<Pel8u>((int64_t{x} - low + factor / 2) / factor); });
}

template <int L>
PelStatus ScaleTo32f(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, Pel32f vMin,
                     Pel32f vMax) {
  const float d = vMax - vMin;
  if (0.0f >= d) return pelStatusScaleRangeError;
  RoundingScope rounding(RoundingScope::kNearest);
  ConvertJob job;
  job.affine = true;
  job.mul = d / 255.0f;
  job.add = vMin;
  return ConvertChecked<L>(pSrc, srcStep, pDst, dstStep, roiSize, job);
}

// Round-to-nearest is set before the checks and restored only on success:
// the error returns leave it set, which callers of this function have come
// to see and which is kept on purpose.
template <int L>
PelStatus ScaleFrom32f(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, Pel32f vMin,
                       Pel32f vMax) {
  const float d = vMax - vMin;
  const unsigned saved = _mm_getcsr();
  const unsigned nearest = saved & ~0x6000u;
  if (nearest != saved) _mm_setcsr(nearest);
  if (0.0f >= d) return pelStatusScaleRangeError;
  ConvertJob job;
  job.affine = true;
  job.mul = 255.0f / d;
  job.add = -(job.mul * vMin);
  job.mode = 1;
  const PelStatus status = ConvertChecked<L>(pSrc, srcStep, pDst, dstStep, roiSize, job);
  if (status == pelStatusOk && nearest != saved) _mm_setcsr(saved);
  return status;
}

template <class S, class D>
PelStatus ScaleC(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize, Pel64f mVal, Pel64f aVal,
                 PelHintAlgorithm /*hint: every value gives the same results*/) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (BadSteps(srcStep, dstStep)) return pelStatusBadStep;
  RoundingScope rounding(RoundingScope::kNearest);
  WalkRows<kC1>(pSrc, srcStep, pDst, dstStep, roiSize, [&](const S* s, D* d, size_t n) {
    for (size_t i = 0; i < n; ++i) d[i] = ScaleCOne<D>(static_cast<double>(s[i]), mVal, aVal);
  });
  return pelStatusOk;
}

template <class T>
PelStatus ScaleCInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal, Pel64f aVal,
                        PelHintAlgorithm hint) {
  return ScaleC<T, T>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, mVal, aVal, hint);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "convert/scale_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::convert
