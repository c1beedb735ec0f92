// Mirror and transpose: the walkers behind the peliMirror and peliTranspose
// exports (checks, then the row or tile loop).
#pragma once

#include "peli.h"

namespace pel::datamove {

// Pixels of C lanes of which the first W are written (AC4: C 4, W 3).
template <class T, int C, int W = C>
PelStatus Mirror(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, int flip);
template <class T, int C, int W = C>
PelStatus MirrorInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, int flip);

template <class T, int C>
PelStatus TransposeImage(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize);
template <class T, int C>
PelStatus TransposeImageInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize);

}  // namespace pel::datamove
