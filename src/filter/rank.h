// Box, median, minimum and maximum filters with border, and the 3x3
// morphology of 64f.
#pragma once

#include "peli.h"

namespace pel::filter {

PelStatus MedianGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels,
                              int* pBufferSize);
PelStatus BoxGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels,
                           int* pBufferSize);
PelStatus ExtremeGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels,
                               int* pBufferSize);

// W: the channels written (3 of 4 for AC4).
template <class T, int C, int W>
PelStatus Median(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize,
                 PeliBorderType border, T borderValue, Pel8u* pBuffer);
template <class T, int C, int W>
PelStatus Box(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize,
              PeliBorderType border, const T* borderValue, Pel8u* pBuffer);
template <class T, int C, int W, bool kMax>
PelStatus Extreme(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize,
                  PeliBorderType border, T borderValue, Pel8u* pBuffer);
template <bool kMax>
PelStatus Morph3x3(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep, PeliSize roiSize);

}  // namespace pel::filter
