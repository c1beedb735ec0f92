// Copies between interleaved and planar layouts: the walkers behind the
// peliCopy C3P3R, C4P4R, P3C3R and P4C4R exports.
#pragma once

#include "peli.h"

namespace pel::datamove {

// C3P3R, C4P4R: C-channel pixels into C planes that share one step.
template <class T, int C>
PelStatus CopySplit(const T* pSrc, int srcStep, T* const pDst[C], int dstStep, PeliSize roiSize);
// P3C3R, P4C4R: C planes that share one step into C-channel pixels.
template <class T, int C>
PelStatus CopyMerge(const T* const pSrc[C], int srcStep, T* pDst, int dstStep, PeliSize roiSize);

}  // namespace pel::datamove
