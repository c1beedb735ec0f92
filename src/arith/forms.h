// The exported forms of the two-image members, each a thin call of one
// walker: in place is src1 = src, src2 = dst = srcDst; _L widens the steps
// and sizes; 32f has no scale factor. Included by the files that
// instantiate the export tables.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/arith.h"
#include "arith/div.h"
#include "core/common.h"

namespace pel::arith {

struct TwoImages {
  const void* src1;
  ptrdiff_t step1;
  const void* src2;
  ptrdiff_t step2;
  void* dst;
  ptrdiff_t dstStep;
  int64_t width;
  int64_t height;
};

// Checks the arguments and computes dst = src1 op src2 (Sub: src2 - src1,
// Div: src2 / src1). Div_Round members pass hasMode and their mode.
PelStatus RunTwoImages(Op op, Elem e, int layout, const TwoImages& im, int scale, bool hasMode,
                       int mode);

// Calls row(src1, src2, dst) with the rows' first elements, row by row.
template <class F>
void ForEachRow(const TwoImages& im, const Rows& rows, F&& row) {
  for (uint64_t y = 0; y < rows.count; ++y) {
    const auto py = static_cast<ptrdiff_t>(y);
    row(Row(im.src1, im.step1, py), Row(im.src2, im.step2, py), Row(im.dst, im.dstStep, py));
  }
}

template <class T, class Step, class Size>
TwoImages Two(const T* s1, Step st1, const T* s2, Step st2, T* d, Step dt, Size roi) {
  return {s1, st1, s2, st2, d, dt, static_cast<int64_t>(roi.width), static_cast<int64_t>(roi.height)};
}

template <int kOp, class T, int kLayout>
PelStatus Binary(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                 PeliSize roiSize, int scaleFactor) {
  return RunTwoImages(Op(kOp), ElemOf<T>(), kLayout,
                      Two(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize), scaleFactor,
                      false, 0);
}
template <int kOp, class T, int kLayout>
PelStatus BinaryI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize,
                  int scaleFactor) {
  return RunTwoImages(Op(kOp), ElemOf<T>(), kLayout,
                      Two(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize),
                      scaleFactor, false, 0);
}
template <int kOp, class T, int kLayout>
PelStatus BinaryL(const T* pSrc1, PelIntL src1Step, const T* pSrc2, PelIntL src2Step, T* pDst,
                  PelIntL dstStep, PeliSizeL roiSize, int scaleFactor) {
  return RunTwoImages(Op(kOp), ElemOf<T>(), kLayout,
                      Two(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize), scaleFactor,
                      false, 0);
}
template <int kOp, class T, int kLayout>
PelStatus BinaryIL(const T* pSrc, PelIntL srcStep, T* pSrcDst, PelIntL srcDstStep,
                   PeliSizeL roiSize, int scaleFactor) {
  return RunTwoImages(Op(kOp), ElemOf<T>(), kLayout,
                      Two(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize),
                      scaleFactor, false, 0);
}

template <int kOp, class T, int kLayout>
PelStatus BinaryF(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst,
                  int dstStep, PeliSize roiSize) {
  return Binary<kOp, T, kLayout>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, 0);
}
template <int kOp, class T, int kLayout>
PelStatus BinaryFI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return BinaryI<kOp, T, kLayout>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize, 0);
}
template <int kOp, class T, int kLayout>
PelStatus BinaryFL(const T* pSrc1, PelIntL src1Step, const T* pSrc2, PelIntL src2Step, T* pDst,
                   PelIntL dstStep, PeliSizeL roiSize) {
  return BinaryL<kOp, T, kLayout>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, 0);
}
template <int kOp, class T, int kLayout>
PelStatus BinaryFIL(const T* pSrc, PelIntL srcStep, T* pSrcDst, PelIntL srcDstStep,
                    PeliSizeL roiSize) {
  return BinaryIL<kOp, T, kLayout>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize, 0);
}

template <class T, int kLayout>
PelStatus DivRound(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst,
                   int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor) {
  return RunTwoImages(kDiv, ElemOf<T>(), kLayout,
                      Two(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize), scaleFactor,
                      true, rndMode);
}
template <class T, int kLayout>
PelStatus DivRoundI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize,
                    PelRoundMode rndMode, int scaleFactor) {
  return RunTwoImages(kDiv, ElemOf<T>(), kLayout,
                      Two(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize),
                      scaleFactor, true, rndMode);
}

}  // namespace pel::arith
