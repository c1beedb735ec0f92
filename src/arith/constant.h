// The exports of AddC, SubC, MulC and DivC. The constant is one value for C1
// layouts and an array of one value a computed channel otherwise. The 8u,
// 16u and 16s forms take a scale factor, the 32f forms (F) none. I: in
// place; L: pointer-sized steps and sizes.
#pragma once

#include <type_traits>

#include "arith/arith.h"
#include "peli.h"

namespace pel::arith {

template <class T, int kLayout>
using ConstArg = std::conditional_t<kLayout == kC1, T, const T*>;

template <int kOp, class T, int kLayout>
PelStatus Const(const T* pSrc, int srcStep, ConstArg<T, kLayout> value, T* pDst, int dstStep,
                PeliSize roiSize, int scaleFactor);
template <int kOp, class T, int kLayout>
PelStatus ConstI(ConstArg<T, kLayout> value, T* pSrcDst, int srcDstStep, PeliSize roiSize,
                 int scaleFactor);
template <int kOp, class T, int kLayout>
PelStatus ConstL(const T* pSrc, PelIntL srcStep, ConstArg<T, kLayout> value, T* pDst,
                 PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
template <int kOp, class T, int kLayout>
PelStatus ConstIL(ConstArg<T, kLayout> value, T* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize,
                  int scaleFactor);

template <int kOp, class T, int kLayout>
PelStatus ConstF(const T* pSrc, int srcStep, ConstArg<T, kLayout> value, T* pDst, int dstStep,
                 PeliSize roiSize);
template <int kOp, class T, int kLayout>
PelStatus ConstFI(ConstArg<T, kLayout> value, T* pSrcDst, int srcDstStep, PeliSize roiSize);
template <int kOp, class T, int kLayout>
PelStatus ConstFL(const T* pSrc, PelIntL srcStep, ConstArg<T, kLayout> value, T* pDst,
                  PelIntL dstStep, PeliSizeL roiSize);
template <int kOp, class T, int kLayout>
PelStatus ConstFIL(ConstArg<T, kLayout> value, T* pSrcDst, PelIntL srcDstStep,
                   PeliSizeL roiSize);

}  // namespace pel::arith
