// Channel swaps: the walkers behind the peliSwapChannels exports.
#pragma once

#include "peli.h"

namespace pel::datamove {

// C3R and C4R: destination channel i takes source channel dstOrder[i].
template <class T, int C>
PelStatus SwapChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                       const int* dstOrder);
// AC4R: channels 0-2 as above, the destination's alpha kept.
template <class T>
PelStatus SwapChannelsAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                            const int* dstOrder);
// C3C4R: entries 0-2 take a source channel, 3 writes val, 4 and more keep.
template <class T>
PelStatus SwapChannelsToFour(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                             const int* dstOrder, T val);
// C4C3R: three entries choosing among four source channels.
template <class T>
PelStatus SwapChannelsToThree(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize,
                              const int* dstOrder);
// C3IR and C4IR.
template <class T, int C>
PelStatus SwapChannelsInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, const int* dstOrder);

}  // namespace pel::datamove
