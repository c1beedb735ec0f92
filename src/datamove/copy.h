// Copy: the walkers behind the peliCopy exports (checks, then the row loop).
#pragma once

#include "peli.h"

namespace pel::datamove {

// All channels of C-channel pixels (C1R, C3R, C4R).
template <class T, int C>
PelStatus Copy(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);
template <class T, int C>
PelStatus CopyL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliSizeL roiSize);

// Plain 8-bit copy whose caller chooses cache-bypassing stores (flags bit 0).
PelStatus CopyManaged(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize,
                      int flags);

}  // namespace pel::datamove
