// The exports of Add, Sub, Mul and Div of two images (implementations in
// forms.h, instantiated by binary.cpp and div.cpp). kOp is an Op, kLayout a
// Layout; the 8u, 16u and 16s forms take a scale factor, the 32f forms (F)
// none. I: in place (srcDst = srcDst op src); L: pointer-sized steps and
// sizes.
#pragma once

#include "arith/arith.h"
#include "peli.h"

namespace pel::arith {

template <int kOp, class T, int kLayout>
PelStatus Binary(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                 PeliSize roiSize, int scaleFactor);
template <int kOp, class T, int kLayout>
PelStatus BinaryI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize,
                  int scaleFactor);
template <int kOp, class T, int kLayout>
PelStatus BinaryL(const T* pSrc1, PelIntL src1Step, const T* pSrc2, PelIntL src2Step, T* pDst,
                  PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
template <int kOp, class T, int kLayout>
PelStatus BinaryIL(const T* pSrc, PelIntL srcStep, T* pSrcDst, PelIntL srcDstStep,
                   PeliSizeL roiSize, int scaleFactor);

template <int kOp, class T, int kLayout>
PelStatus BinaryF(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst,
                  int dstStep, PeliSize roiSize);
template <int kOp, class T, int kLayout>
PelStatus BinaryFI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize);
template <int kOp, class T, int kLayout>
PelStatus BinaryFL(const T* pSrc1, PelIntL src1Step, const T* pSrc2, PelIntL src2Step, T* pDst,
                   PelIntL dstStep, PeliSizeL roiSize);
template <int kOp, class T, int kLayout>
PelStatus BinaryFIL(const T* pSrc, PelIntL srcStep, T* pSrcDst, PelIntL srcDstStep,
                    PeliSizeL roiSize);

}  // namespace pel::arith
