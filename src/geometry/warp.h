// Warp processing: the walkers behind peliWarpAffine{Nearest,Linear,Cubic}_*
// and peliWarpPerspective{Nearest,Linear,Cubic}_* (checks, the tile, then
// the row loop).
#pragma once

#include "peli.h"

namespace pel::geometry {

// kMethod: 1 nearest, 2 linear, 6 cubic.
template <class T, int C, int kMethod, bool kPerspective>
PelStatus Warp(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliPoint dstRoiOffset, PeliSize dstRoiSize,
               const PeliWarpSpec* pSpec, Pel8u* pBuffer);
template <class T, int C, int kMethod, bool kPerspective>
PelStatus WarpL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliPointL dstRoiOffset,
                PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);

}  // namespace pel::geometry
