// The walker behind the peliLUTPalette exports.
#pragma once

#include "lut/walk.h"
#include "peli.h"

namespace pel::lut {

template <class S, class D, int L>
PelStatus Palette(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize,
                  PerChannel<const D*, L> pTable, int nBitSize);

}  // namespace pel::lut
