// Scale and ScaleC: the walkers behind the peliScale and peliScaleC exports.
#pragma once

#include "convert/layouts.h"
#include "peli.h"

namespace pel::convert {

// 8u onto the whole range of D.
template <class D, int L>
PelStatus ScaleUp(const Pel8u* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize);
// The whole range of S onto 8u.
template <class S, int L>
PelStatus ScaleDown(const S* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize,
                    PelHintAlgorithm hint);
template <int L>
PelStatus ScaleTo32f(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, Pel32f vMin,
                     Pel32f vMax);
template <int L>
PelStatus ScaleFrom32f(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, Pel32f vMin,
                       Pel32f vMax);
template <class S, class D>
PelStatus ScaleC(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize, Pel64f mVal, Pel64f aVal,
                 PelHintAlgorithm hint);
template <class T>
PelStatus ScaleCInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal, Pel64f aVal,
                        PelHintAlgorithm hint);

}  // namespace pel::convert
