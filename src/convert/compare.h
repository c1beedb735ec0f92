// Compare: the walkers behind the peliCompare exports.
#pragma once

#include "convert/layouts.h"
#include "convert/threshold.h"
#include "peli.h"

namespace pel::convert {

template <class T, int L>
PelStatus Compare(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Pel8u* pDst, int dstStep,
                  PeliSize roiSize, PelCmpOp cmpOp);
template <class T, int L>
PelStatus CompareC(const T* pSrc, int srcStep, PerChannel<T, L> value, Pel8u* pDst, int dstStep,
                   PeliSize roiSize, PelCmpOp cmpOp);
template <int L>
PelStatus CompareEqualEps(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel8u* pDst,
                          int dstStep, PeliSize roiSize, Pel32f eps);
template <int L>
PelStatus CompareEqualEpsC(const Pel32f* pSrc, int srcStep, PerChannel<Pel32f, L> value, Pel8u* pDst,
                           int dstStep, PeliSize roiSize, Pel32f eps);

}  // namespace pel::convert
