// The exports of Div and Div_Round of two images. Div shares the forms of
// binary.h; Div_Round adds the rounding mode.
#pragma once

#include "arith/binary.h"

namespace pel::arith {

template <class T, int kLayout>
PelStatus DivRound(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst,
                   int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
template <class T, int kLayout>
PelStatus DivRoundI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize,
                    PelRoundMode rndMode, int scaleFactor);

}  // namespace pel::arith
