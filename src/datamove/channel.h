// Channel copies between interleaved layouts: the walkers behind the
// peliCopy exports that extract, insert, drop or add a channel, and peliDup.
#pragma once

#include "peli.h"

namespace pel::datamove {

// C3C1R, C4C1R: the channel pSrc points at, into a one-channel image.
template <class T, int C>
PelStatus CopyExtract(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);
// C1C3R, C1C4R: a one-channel image into the channel pDst points at.
template <class T, int C>
PelStatus CopyInsert(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);
// AC4C3R: channels 0-2 of four-channel pixels into three-channel pixels.
template <class T>
PelStatus CopyDropAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);
// C3AC4R: three-channel pixels into channels 0-2 of four-channel pixels.
template <class T>
PelStatus CopyAddAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);
// Dup C1C3R, C1C4R: the one source channel into every destination channel.
template <int C>
PelStatus Dup(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);

}  // namespace pel::datamove
