// The walkers behind the alpha-keeping (AC4R), masked (MR) and
// single-channel (C3CR, C4CR) members of Copy and Set.
#pragma once

#include "peli.h"

namespace pel::datamove {

// Channels 0-2 of four-channel pixels; destination alpha keeps its value.
template <class T>
PelStatus CopyAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);
template <class T>
PelStatus CopyAlphaL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep,
                     PeliSizeL roiSize);

// Channels 0..W-1 of the C-channel pixels whose mask byte is nonzero
// (C1MR, C3MR, C4MR; AC4MR is C = 4, W = 3).
template <class T, int C, int W>
PelStatus CopyMasked(const T* pSrc, int srcStep, T* pDst, int dstStep, const Pel8u* pMask,
                     int maskStep, PeliSize roiSize);

// The one channel of C the pointers point at, into the same channel.
template <class T, int C>
PelStatus CopyChannel(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);

// Three values into channels 0-2; alpha keeps its value.
template <class T>
PelStatus SetAlpha(const T* value, T* pDst, int dstStep, PeliSize roiSize);

// value into the masked pixels of a one-channel image.
template <class T>
PelStatus SetMaskedC1(T value, T* pDst, int dstStep, const Pel8u* pMask, int maskStep,
                      PeliSize roiSize);
// value[0..W-1] into channels 0..W-1 of the masked C-channel pixels.
template <class T, int C, int W>
PelStatus SetMasked(const T* value, T* pDst, int dstStep, const Pel8u* pMask, int maskStep,
                    PeliSize roiSize);

// value into the one channel of C the pointer points at.
template <class T, int C>
PelStatus SetChannel(T value, T* pDst, int dstStep, PeliSize roiSize);

}  // namespace pel::datamove
