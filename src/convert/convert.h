// Convert: the walkers behind the peliConvert exports.
#pragma once

#include "convert/layouts.h"
#include "peli.h"

namespace pel::convert {

// Exact widening (steps unchecked).
template <class S, class D, int L>
PelStatus Widen(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize);
// Saturating narrowing (steps checked).
template <class S, class D, int L>
PelStatus Narrow(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize);
// Signed to unsigned: below 1 gives 0.
template <class S, class D>
PelStatus ToUnsigned(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize);
template <class S, class D>
PelStatus IntegerSfs(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize, PelRoundMode roundMode,
                     int scaleFactor);
template <class D, int L>
PelStatus FloatRound(const Pel32f* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize,
                     PelRoundMode roundMode);
template <class S, class D>
PelStatus FloatSfs(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize, PelRoundMode roundMode,
                   int scaleFactor);
PelStatus FloatSfsInPlace(Pel32u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode roundMode,
                          int scaleFactor);

}  // namespace pel::convert
