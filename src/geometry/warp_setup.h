// Set-up of the warps: the size query and the Init functions of each method.
#pragma once

#include "peli.h"

namespace pel::geometry {

PelStatus WarpAffineGetSize(PeliSize srcSize, PeliSize dstSize, PelDataType dataType, const double coeffs[2][3],
                            int interpolation, int direction, PeliBorderType border, int* pSpecSize,
                            int* pInitBufSize);
PelStatus WarpAffineGetSizeL(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType, const double coeffs[2][3],
                             int interpolation, int direction, PeliBorderType border, PelIntL* pSpecSize,
                             PelIntL* pInitBufSize);
PelStatus WarpPerspectiveGetSize(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
                                 const double coeffs[3][3], int interpolation, int direction,
                                 PeliBorderType border, int* pSpecSize, int* pInitBufSize);

// Nearest (1) and linear (2) Inits.
// kPerspective: coeffs has three rows.
template <int kInterpolation, bool kPerspective, class Size>
PelStatus WarpInit(Size srcSize, Size dstSize, PelDataType dataType, const double (*coeffs)[3], int direction,
                   int numChannels, PeliBorderType border, const double* pBorderValue, int smoothEdge,
                   PeliWarpSpec* pSpec);
template <bool kPerspective, class Size>
PelStatus WarpCubicInit(Size srcSize, Size dstSize, PelDataType dataType, const double (*coeffs)[3], int direction,
                        int numChannels, PeliBorderType border, const double* pBorderValue, double valueB,
                        double valueC, int smoothEdge, PeliWarpSpec* pSpec);

}  // namespace pel::geometry
