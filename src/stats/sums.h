// Sums, means and norms: the walkers behind the peliSum, peliMean,
// peliNorm, peliNormDiff and peliNormRel exports.
#pragma once

#include "peli.h"

namespace pel::stats {

enum class NormKind { Inf, L1, L2 };

// Integer images (8u, 16u, 16s) of C channels.
template <class T, int C>
PelStatus Sum(const T* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum);
template <class T, int C>
PelStatus Mean(const T* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean);

// 32f, with the hint.
template <int C>
PelStatus SumF(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum,
               PelHintAlgorithm hint);
template <int C>
PelStatus MeanF(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean,
                PelHintAlgorithm hint);

// Norms without a hint (every integer norm and the 32f Inf norms) ...
template <NormKind K, class T, int C>
PelStatus Norm(const T* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
template <NormKind K, class T, int C>
PelStatus NormDiff(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PeliSize roiSize,
                   Pel64f* pValue);
template <NormKind K, class T, int C>
PelStatus NormRel(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PeliSize roiSize,
                  Pel64f* pValue);

// ... and the 32f L1 and L2 norms, which take one.
template <NormKind K, int C>
PelStatus NormF(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue,
                PelHintAlgorithm hint);
template <NormKind K, int C>
PelStatus NormDiffF(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                    PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);
template <NormKind K, int C>
PelStatus NormRelF(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                   PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);

}  // namespace pel::stats
