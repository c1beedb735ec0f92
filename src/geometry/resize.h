// Resize processing: the walkers behind peliResizeNearest_* and
// peliResizeLinear_* (checks, tile set-up, then the row loop).
#pragma once

#include "peli.h"

namespace pel::geometry {

template <class T, int C>
PelStatus ResizeNearest(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliPoint dstOffset, PeliSize dstSize,
                        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
template <class T, int C>
PelStatus ResizeNearestL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliPointL dstOffset,
                         PeliSizeL dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
template <class T, int C>
PelStatus ResizeLinear(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliPoint dstOffset, PeliSize dstSize,
                       PeliBorderType border, const T* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
template <class T, int C>
PelStatus ResizeLinearL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliPointL dstOffset,
                        PeliSizeL dstSize, PeliBorderType border, const T* pBorderValue,
                        const PeliResizeSpec* pSpec, Pel8u* pBuffer);

}  // namespace pel::geometry
