// Extremes: the walkers behind the peliMin, peliMax, peliMinMax,
// peliMinIndx, peliMaxIndx, peliMinEvery and peliMaxEvery exports. C is the
// channel count of a pixel, kUsed the channels reported (AC4: 4 and 3).
#pragma once

#include "peli.h"

namespace pel::stats {

// The minimum (kMax false) or maximum, or both, of each channel ...
template <class T, int C, int kUsed, bool kMax>
PelStatus Extreme(const T* pSrc, int srcStep, PeliSize roiSize, T* pValue);
template <class T, int C, int kUsed>
PelStatus MinMax(const T* pSrc, int srcStep, PeliSize roiSize, T* pMin, T* pMax);
// ... and where it first occurs.
template <class T, int C, int kUsed, bool kMax>
PelStatus ExtremeIndx(const T* pSrc, int srcStep, PeliSize roiSize, T* pValue, int* pIndexX,
                      int* pIndexY);

// In place (srcDst keeps the lesser or greater of the two) and two-image;
// AC4 leaves the destination's alpha alone.
template <class T, int C, int kUsed, bool kMax>
PelStatus EveryInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize);
template <class T, int C, int kUsed, bool kMax>
PelStatus Every(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                PeliSize roiSize);

}  // namespace pel::stats
