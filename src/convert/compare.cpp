#include "convert/compare.h"

#include <type_traits>
#include <utility>

#include "convert/row_threshold_kernels.h"
#include "convert/walk.h"
#include "core/exports.h"
#include "datamove/set.h"

namespace pel::convert {

namespace {

// b is an image (bStep) or, when `fixed`, one pixel of constants. `epsTest`:
// |a - b| <= eps instead of the comparison cmpOp.
template <class T, int L>
PelStatus CompareImage(const T* a, int aStep, const T* b, int bStep, bool fixed, Pel8u* dst, int dstStep,
                       PeliSize roi, int cmpOp, bool epsTest, float eps) {
  if (AnyNull(a, b, dst)) return pelStatusNullPointer;
  if (BadSteps(aStep, dstStep) || (!fixed && bStep < 1)) return pelStatusBadStep;
  if (BadSize(roi)) return pelStatusBadSize;
  if (epsTest && eps < 0.0f) return pelStatusEpsilonError;
  if (!epsTest && static_cast<unsigned>(cmpOp) > 4) return pelStatusOk;  // nothing to do, by design
  if constexpr (std::is_same_v<T, Pel8u> && L == kC1) {
    // Comparisons that can never hold: a fill, without reading the source.
    if (!epsTest && fixed && ((cmpOp == pelCmpLess && *b == 0) || (cmpOp == pelCmpGreater && *b == 255))) {
      return datamove::SetC1<Pel8u>(0, dst, dstStep, roi);
    }
  }
  CompareJob<T> job;
  job.layout = L;
  job.eps = eps;
  job.fixedB = fixed;
  // Three comparison kernels: the greater ones are the less ones swapped.
  const bool swap = !epsTest && (cmpOp == pelCmpGreaterEq || cmpOp == pelCmpGreater);
  job.op = epsTest                ? scalar::kEqualEps
           : cmpOp == pelCmpEq          ? scalar::kEqual
           : cmpOp == pelCmpLess || cmpOp == pelCmpGreater ? scalar::kLess
                                                            : scalar::kLessEq;
  if (swap) std::swap(job.fixedA, job.fixedB);
  const size_t pixels = static_cast<size_t>(roi.width);
  const size_t rowBytes = pixels * ChannelsOf(L) * sizeof(T);
  const bool gapless = aStep > 0 && size_t(aStep) == rowBytes && size_t(dstStep) == pixels &&
                       (fixed || bStep == aStep) && uint64_t{pixels} * uint64_t(roi.height) < 0x7FFFFFFF;
  const int rows = gapless ? 1 : roi.height;
  const size_t length = gapless ? pixels * size_t(roi.height) : pixels;
  for (int y = 0; y < rows; ++y) {
    const T* ra = Row(a, aStep, y);
    const T* rb = fixed ? b : Row(b, bStep, y);
    if (swap) std::swap(ra, rb);
    CompareRow(job, ra, rb, Row(dst, dstStep, y), length);
  }
  return pelStatusOk;
}

}  // namespace

template <class T, int L>
PelStatus Compare(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Pel8u* pDst, int dstStep,
                  PeliSize roiSize, PelCmpOp cmpOp) {
  return CompareImage<T, L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst, dstStep, roiSize, cmpOp, false, 0.0f);
}

template <class T, int L>
PelStatus CompareC(const T* pSrc, int srcStep, PerChannel<T, L> value, Pel8u* pDst, int dstStep,
                   PeliSize roiSize, PelCmpOp cmpOp) {
  return CompareImage<T, L>(pSrc, srcStep, Addr<L>(value), 0, true, pDst, dstStep, roiSize, cmpOp, false, 0.0f);
}

template <int L>
PelStatus CompareEqualEps(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel8u* pDst,
                          int dstStep, PeliSize roiSize, Pel32f eps) {
  return CompareImage<Pel32f, L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst, dstStep, roiSize, 0, true, eps);
}

template <int L>
PelStatus CompareEqualEpsC(const Pel32f* pSrc, int srcStep, PerChannel<Pel32f, L> value, Pel8u* pDst,
                           int dstStep, PeliSize roiSize, Pel32f eps) {
  return CompareImage<Pel32f, L>(pSrc, srcStep, Addr<L>(value), 0, true, pDst, dstStep, roiSize, 0, true, eps);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "convert/compare_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::convert
