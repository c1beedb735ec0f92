// The exports of the one-operand functions.
#pragma once

#include "peli.h"

namespace pel::arith {

PelStatus Sqrt(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PelStatus Ln(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PelStatus Abs(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);

}  // namespace pel::arith
