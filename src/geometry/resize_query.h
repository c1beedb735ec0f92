// Resize set-up: sizes, Init and the queries on a built spec.
#pragma once

#include "peli.h"

namespace pel::geometry {

// The element types of the plain (not _L) forms, as data-type codes.
inline constexpr int kType8u = 1, kType16u = 5, kType16s = 7, kType32f = 13, kType64f = 19;

PelStatus ResizeGetSize(PeliSize src, PeliSize dst, int interpolation, uint32_t antialiasing, int* pSpecSize,
                        int* pInitBufSize);
PelStatus ResizeGetSizeL(PeliSizeL src, PeliSizeL dst, PelDataType dataType, int interpolation,
                         uint32_t antialiasing, PelIntL* pSpecSize, PelIntL* pInitBufSize);

template <int kType>
PelStatus ResizeNearestInit(PeliSize src, PeliSize dst, PeliResizeSpec* pSpec);
PelStatus ResizeNearestInitL(PeliSizeL src, PeliSizeL dst, PelDataType dataType, PeliResizeSpec* pSpec);
template <int kType>
PelStatus ResizeLinearInit(PeliSize src, PeliSize dst, PeliResizeSpec* pSpec);
PelStatus ResizeLinearInit8uL(PeliSizeL src, PeliSizeL dst, PeliResizeSpec* pSpec);
PelStatus ResizeLinearInitL(PeliSizeL src, PeliSizeL dst, PelDataType dataType, PeliResizeSpec* pSpec);

PelStatus ResizeGetBufferSize(const PeliResizeSpec* pSpec, PeliSize dst, uint32_t channels, int* pSize);
PelStatus ResizeGetBufferSizeL(const PeliResizeSpec* pSpec, PeliSizeL dst, uint32_t channels, PelIntL* pSize);
PelStatus ResizeGetBorderSize(const PeliResizeSpec* pSpec, PeliBorderSize* pBorder);
PelStatus ResizeGetSrcOffset(const PeliResizeSpec* pSpec, PeliPoint dstOffset, PeliPoint* pSrcOffset);
PelStatus ResizeGetSrcOffsetL(const PeliResizeSpec* pSpec, PeliPointL dstOffset, PeliPointL* pSrcOffset);
PelStatus ResizeGetSrcRoi(const PeliResizeSpec* pSpec, PeliPoint dstOffset, PeliSize dstSize,
                          PeliPoint* pSrcOffset, PeliSize* pSrcSize);
PelStatus ResizeGetSrcRoiL(const PeliResizeSpec* pSpec, PeliPointL dstOffset, PeliSizeL dstSize,
                           PeliPointL* pSrcOffset, PeliSizeL* pSrcSize);

}  // namespace pel::geometry
