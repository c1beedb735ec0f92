// Range counts and histograms: the walkers behind peliCountInRange,
// peliHistogram and the histogram spec functions.
#pragma once

#include "peli.h"

namespace pel::stats {

// One channel (bounds by value) and three channels or AC4 (bound arrays).
template <class T>
PelStatus CountInRange1(const T* pSrc, int srcStep, PeliSize roiSize, int* pCounts, T lowerBound,
                        T upperBound);
template <class T, int C>
PelStatus CountInRangeN(const T* pSrc, int srcStep, PeliSize roiSize, int* counts,
                        const T* lowerBound, const T* upperBound);

PelStatus HistogramGetBufferSize(PelDataType dataType, PeliSize roiSize, const int nLevels[],
                                 int numChannels, int uniform, int* pSpecSize, int* pBufferSize);
PelStatus HistogramInit(PelDataType dataType, const Pel32f* const pLevels[], const int nLevels[],
                        int numChannels, PeliHistogramSpec* pSpec);
PelStatus HistogramUniformInit(PelDataType dataType, const Pel32f lowerLevel[],
                               const Pel32f upperLevel[], const int nLevels[], int numChannels,
                               PeliHistogramSpec* pSpec);
PelStatus HistogramGetLevels(const PeliHistogramSpec* pSpec, Pel32f* const pLevels[]);

template <class T>
PelStatus Histogram1(const T* pSrc, int srcStep, PeliSize roiSize, Pel32u* pHist,
                     const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
template <class T, int C>
PelStatus HistogramN(const T* pSrc, int srcStep, PeliSize roiSize, Pel32u* const* pHist,
                     const PeliHistogramSpec* pSpec, Pel8u* pBuffer);

}  // namespace pel::stats
