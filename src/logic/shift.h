// The walkers behind LShiftC and RShiftC. Pixels have C channels of which
// the first W are shifted: W = C, or 3 of 4 for AC4, whose alpha keeps its
// value. kKind is the shift: left, logical right (8u, 16u) or arithmetic
// right (16s, 32s).
#pragma once

#include "logic/row_kernels.h"
#include "peli.h"

namespace pel::logic {

template <class T, ShiftKind kKind>
PelStatus ShiftC1(const T* pSrc, int srcStep, Pel32u value, T* pDst, int dstStep,
                  PeliSize roiSize);
template <class T, ShiftKind kKind>
PelStatus ShiftC1I(Pel32u value, T* pSrcDst, int srcDstStep, PeliSize roiSize);

// Channel c shifted by value[c].
template <class T, int C, int W, ShiftKind kKind>
PelStatus Shift(const T* pSrc, int srcStep, const Pel32u* value, T* pDst, int dstStep,
                PeliSize roiSize);
template <class T, int C, int W, ShiftKind kKind>
PelStatus ShiftI(const Pel32u* value, T* pSrcDst, int srcDstStep, PeliSize roiSize);

}  // namespace pel::logic
