// The walkers behind the peliLUT, peliLUT_Linear and peliLUT_Cubic exports.
#pragma once

#include "lut/lut_scalar.h"
#include "lut/walk.h"
#include "peli.h"

namespace pel::lut {

template <class T, int L>
using CurveArg = PerChannel<const ValueOf<T>*, L>;

template <class T, int L, Kind K>
PelStatus Lut(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, CurveArg<T, L> pValues,
              CurveArg<T, L> pLevels, PerChannel<int, L> nLevels);
template <class T, int L, Kind K>
PelStatus LutInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, CurveArg<T, L> pValues, CurveArg<T, L> pLevels,
                     PerChannel<int, L> nLevels);

}  // namespace pel::lut
