// Dot products: the walkers behind the peliDotProd exports.
#pragma once

#include "peli.h"

namespace pel::stats {

// C-channel pixels of which the first kUsed channels are multiplied (AC4:
// C = 4, kUsed = 3).
template <class T, int C, int kUsed>
PelStatus DotProd(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PeliSize roiSize,
                  Pel64f* pDp);

}  // namespace pel::stats
