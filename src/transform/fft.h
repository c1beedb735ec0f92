// The image FFT: the walkers behind the peliFFT and peliMulPack exports.
#pragma once

#include "peli.h"

namespace pel::transform {

PelStatus FftGetSize(int orderX, int orderY, int flag, PelHintAlgorithm hint, int* pSpecSize,
                     int* pInitSize, int* pBufferSize);
PelStatus FftInit(int orderX, int orderY, int flag, PelHintAlgorithm hint, PeliFFTSpec_R_32f* pSpec,
                  Pel8u* pMemInit);
PelStatus FftFwd(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const PeliFFTSpec_R_32f* pSpec,
                 Pel8u* pBuffer);
PelStatus FftInv(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const PeliFFTSpec_R_32f* pSpec,
                 Pel8u* pBuffer);
PelStatus MulPack(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst,
                  int dstStep, PeliSize roiSize);
PelStatus MulPackConj(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);

}  // namespace pel::transform
