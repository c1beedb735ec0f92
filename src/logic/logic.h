// The walkers behind And, Or, Xor (of two images and with constants) and
// Not. Pixels have C channels of which the first W are computed: W = C, or
// 3 of 4 for AC4, whose alpha keeps its value.
#pragma once

#include "logic/row_kernels.h"
#include "peli.h"

namespace pel::logic {

// d = s1 op s2; the in-place form is s1 = pSrc, s2 = d = pSrcDst.
template <class T, int C, int W, LogicOp kOp>
PelStatus Binary(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                 PeliSize roiSize);
template <class T, int C, int W, LogicOp kOp>
PelStatus BinaryI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize);

// d = s op value (one channel) or s op value[c] (channel c).
template <class T, LogicOp kOp>
PelStatus ConstC1(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PeliSize roiSize);
template <class T, LogicOp kOp>
PelStatus ConstC1I(T value, T* pSrcDst, int srcDstStep, PeliSize roiSize);
template <class T, int C, int W, LogicOp kOp>
PelStatus Const(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep,
                PeliSize roiSize);
template <class T, int C, int W, LogicOp kOp>
PelStatus ConstI(const T* value, T* pSrcDst, int srcDstStep, PeliSize roiSize);

// d = s XOR 255.
template <int C, int W>
PelStatus Not(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
template <int C, int W>
PelStatus NotI(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

}  // namespace pel::logic
