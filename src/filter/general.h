// The general filter with border: sizes, spec set-up and the filter calls.
#pragma once

#include "peli.h"

namespace pel::filter {

PelStatus FilterBorderGetSize(PeliSize kernelSize, PeliSize roiSize, PelDataType dataType, PelDataType kernelType,
                              int numChannels, int* pSpecSize, int* pBufferSize);
PelStatus FilterBorderInit16s(const Pel16s* pKernel, PeliSize kernelSize, int divisor, PelDataType dataType,
                              int numChannels, PelRoundMode roundMode, PeliFilterBorderSpec* pSpec);
PelStatus FilterBorderInit32f(const Pel32f* pKernel, PeliSize kernelSize, PelDataType dataType, int numChannels,
                              PelRoundMode roundMode, PeliFilterBorderSpec* pSpec);
PelStatus FilterBorderInit64f(const Pel64f* pKernel, PeliSize kernelSize, PelDataType dataType, int numChannels,
                              PelRoundMode roundMode, PeliFilterBorderSpec* pSpec);
PelStatus FilterBorderSetMode(PelHintAlgorithm hint, int offset, PeliFilterBorderSpec* pSpec);

template <class T, int C>
PelStatus FilterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliBorderType border,
                       const T* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);

}  // namespace pel::filter
