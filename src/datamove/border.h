// Border copies: the walkers behind the peliCopy{Const,Replicate,Mirror,Wrap}
// Border exports. Size is PeliSize or PeliSizeL, Int int or PelIntL (the
// _L twins), for steps and border widths alike; C-lane pixels of which the
// first W are written (AC4: C 4, W 3).
#pragma once

#include "datamove/border_window.h"
#include "peli.h"

namespace pel::datamove {

template <class T, class Int, class Size>
PelStatus ConstBorderC1(const T* pSrc, Int srcStep, Size srcRoiSize, T* pDst, Int dstStep,
                        Size dstRoiSize, Int topBorderHeight, Int leftBorderWidth, T value);
template <class T, int C, int W, class Int, class Size>
PelStatus ConstBorder(const T* pSrc, Int srcStep, Size srcRoiSize, T* pDst, Int dstStep,
                      Size dstRoiSize, Int topBorderHeight, Int leftBorderWidth, const T* value);
template <class T, class Int, class Size>
PelStatus ConstBorderC1InPlace(T* pSrcDst, Int srcDstStep, Size srcRoiSize, Size dstRoiSize,
                               Int topBorderHeight, Int leftBorderWidth, T value);
template <class T, int C, int W, class Int, class Size>
PelStatus ConstBorderInPlace(T* pSrcDst, Int srcDstStep, Size srcRoiSize, Size dstRoiSize,
                             Int topBorderHeight, Int leftBorderWidth, const T* value);

// Replicate, Mirror and Wrap: the frame comes from the source.
template <BorderKind Kind, class T, int C, int W, class Int, class Size>
PelStatus SourceBorder(const T* pSrc, Int srcStep, Size srcRoiSize, T* pDst, Int dstStep,
                       Size dstRoiSize, Int topBorderHeight, Int leftBorderWidth);
template <BorderKind Kind, class T, int C, int W, class Int, class Size>
PelStatus SourceBorderInPlace(T* pSrcDst, Int srcDstStep, Size srcRoiSize, Size dstRoiSize,
                              Int topBorderHeight, Int leftBorderWidth);

}  // namespace pel::datamove
