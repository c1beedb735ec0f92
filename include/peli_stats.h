/* peli_stats.h: sums, means, norms, dot products, extremes, range counts
 * and histograms.
 * Part of the C interface of peli; include <peli.h>, which includes this.
 *
 * Every function here reduces a ROI to a few numbers written to the
 * caller's arrays: one per channel (C1R one, C3R three, C4R four; AC4R
 * images have four interleaved channels of which the fourth, alpha, is
 * left out, so three). Nothing is allocated and no result is written when
 * a function fails, except where a group below says otherwise. */
#ifndef PELI_STATS_H
#define PELI_STATS_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Sums and means ========================================================
 * Integer images are summed exactly and converted to Pel64f once, so the
 * results are exact for any ROI a process can hold. The mean divides the
 * sum by width x height, formed as a 32-bit signed product; one channel
 * divides, three and four channels multiply by the reciprocal of the count
 * (the last bit may differ from a division).
 *
 * 32f and the hint: pelHintAccurate widens every element to Pel64f and sums
 * in Pel64f. Any other hint sums in single precision with a fixed structure
 * and is faster: each row feeds consecutive elements to 16 partial sums
 * (element i of a one-channel row goes to partial (i - h) mod 16, where h is
 * the number of elements before the row's first 16-byte-aligned address;
 * three-channel rows use 48 partials, four-channel rows 16, both from the
 * row's first element), the partials of each channel are folded pairwise at
 * the end of the row to two values, and those are added to an 80-bit
 * extended-precision total per channel. The result therefore depends on the
 * ROI width and on the address of every row, and on nothing else: it is the
 * same on every processor.
 *
 * Errors: NULL pointer -8, width or height below 1 -6. The step is not
 * examined. */
PELI_API PelStatus peliSum_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum);
PELI_API PelStatus peliSum_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[3]);
PELI_API PelStatus peliSum_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[4]);
PELI_API PelStatus peliSum_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum);
PELI_API PelStatus peliSum_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[3]);
PELI_API PelStatus peliSum_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[4]);
PELI_API PelStatus peliSum_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum);
PELI_API PelStatus peliSum_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[3]);
PELI_API PelStatus peliSum_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[4]);
PELI_API PelStatus peliSum_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum, PelHintAlgorithm hint);
PELI_API PelStatus peliSum_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[3], PelHintAlgorithm hint);
PELI_API PelStatus peliSum_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f sum[4], PelHintAlgorithm hint);

PELI_API PelStatus peliMean_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean);
PELI_API PelStatus peliMean_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[3]);
PELI_API PelStatus peliMean_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[4]);
PELI_API PelStatus peliMean_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean);
PELI_API PelStatus peliMean_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[3]);
PELI_API PelStatus peliMean_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[4]);
PELI_API PelStatus peliMean_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean);
PELI_API PelStatus peliMean_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[3]);
PELI_API PelStatus peliMean_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[4]);
PELI_API PelStatus peliMean_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean, PelHintAlgorithm hint);
PELI_API PelStatus peliMean_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[3], PelHintAlgorithm hint);
PELI_API PelStatus peliMean_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f mean[4], PelHintAlgorithm hint);

/* ==== Norms ===================================================================
 * Inf: the largest |value|; L1: the sum of |value|; L2: the square root of
 * the sum of squares. Integer images are reduced exactly (8u one-channel L2
 * norms of rows wider than 32768 pixels take the norm of each 32768-column
 * strip, square it back and add the squares in Pel64f). 32f L1 and L2 take
 * the hint as the sums do; the 32f Inf norm keeps a running maximum
 * m = (m > |x|) ? m : |x| in each of the partials above (they persist from
 * row to row; at the end they are folded pairwise the same way), so a NaN
 * survives only when it is the last element of its partial.
 *
 * NormDiff applies the norm to src1 - src2 (exact for integers; in single
 * precision, or in Pel64f under pelHintAccurate, for 32f, whose partials
 * start at each row's first element). NormRel returns
 * norm(src1 - src2) / norm(src2) per channel; where norm(src2) is 0 the
 * channel gets a quiet NaN (bit pattern 0xFFF8000000000000) if the
 * numerator is 0 too and +infinity otherwise, and the function returns
 * pelStatusDivByZeroWarning (2) after writing every channel.
 *
 * Errors: NULL pointer -8, width or height below 1 -6, a step below 1 -16. */
/* Pel8u */
PELI_API PelStatus peliNorm_Inf_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_Inf_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_Inf_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNorm_L1_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_L1_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_L1_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNorm_L2_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_L2_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_L2_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_Inf_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_Inf_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_Inf_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_L1_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_L1_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_L1_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_L2_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_L2_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_L2_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_Inf_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_Inf_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_Inf_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_L1_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_L1_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_L1_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_L2_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_L2_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_L2_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);

/* Pel16u */
PELI_API PelStatus peliNorm_Inf_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_Inf_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_Inf_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNorm_L1_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_L1_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_L1_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNorm_L2_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_L2_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_L2_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_Inf_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_Inf_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_Inf_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_L1_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_L1_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_L1_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_L2_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_L2_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_L2_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_Inf_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_Inf_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_Inf_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_L1_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_L1_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_L1_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_L2_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_L2_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_L2_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);

/* Pel16s */
PELI_API PelStatus peliNorm_Inf_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_Inf_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_Inf_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNorm_L1_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_L1_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_L1_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNorm_L2_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_L2_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_L2_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_Inf_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_Inf_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_Inf_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_L1_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_L1_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_L1_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_L2_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_L2_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_L2_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_Inf_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_Inf_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_Inf_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_L1_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_L1_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_L1_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_L2_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_L2_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_L2_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);

/* Pel32f */
PELI_API PelStatus peliNorm_Inf_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNorm_Inf_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNorm_Inf_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNorm_L1_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);
PELI_API PelStatus peliNorm_L1_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3], PelHintAlgorithm hint);
PELI_API PelStatus peliNorm_L1_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4], PelHintAlgorithm hint);
PELI_API PelStatus peliNorm_L2_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);
PELI_API PelStatus peliNorm_L2_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f value[3], PelHintAlgorithm hint);
PELI_API PelStatus peliNorm_L2_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f value[4], PelHintAlgorithm hint);
PELI_API PelStatus peliNormDiff_Inf_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormDiff_Inf_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormDiff_Inf_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormDiff_L1_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);
PELI_API PelStatus peliNormDiff_L1_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3], PelHintAlgorithm hint);
PELI_API PelStatus peliNormDiff_L1_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4], PelHintAlgorithm hint);
PELI_API PelStatus peliNormDiff_L2_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);
PELI_API PelStatus peliNormDiff_L2_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3], PelHintAlgorithm hint);
PELI_API PelStatus peliNormDiff_L2_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4], PelHintAlgorithm hint);
PELI_API PelStatus peliNormRel_Inf_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue);
PELI_API PelStatus peliNormRel_Inf_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3]);
PELI_API PelStatus peliNormRel_Inf_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4]);
PELI_API PelStatus peliNormRel_L1_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);
PELI_API PelStatus peliNormRel_L1_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3], PelHintAlgorithm hint);
PELI_API PelStatus peliNormRel_L1_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4], PelHintAlgorithm hint);
PELI_API PelStatus peliNormRel_L2_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint);
PELI_API PelStatus peliNormRel_L2_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[3], PelHintAlgorithm hint);
PELI_API PelStatus peliNormRel_L2_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f value[4], PelHintAlgorithm hint);

/* ==== Dot products ==========================================================
 * Per channel the sum of (Pel64f)a x (Pel64f)b, added to one Pel64f
 * running total row by row, left to right: exactly that order's result
 * (integer images get it faster while no intermediate total can round).
 * The results are set to 0 once the pointers are known to be valid, before
 * the other checks.
 *
 * Errors: NULL pointer -8; width or height below 1, or a zero step, -6.
 * Negative steps walk upwards. */
PELI_API PelStatus peliDotProd_8u64f_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pDp);
PELI_API PelStatus peliDotProd_8u64f_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_8u64f_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[4]);
PELI_API PelStatus peliDotProd_8u64f_AC4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_16u64f_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pDp);
PELI_API PelStatus peliDotProd_16u64f_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_16u64f_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[4]);
PELI_API PelStatus peliDotProd_16u64f_AC4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_16s64f_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pDp);
PELI_API PelStatus peliDotProd_16s64f_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_16s64f_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[4]);
PELI_API PelStatus peliDotProd_16s64f_AC4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_32u64f_C1R(const Pel32u* pSrc1, int src1Step, const Pel32u* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pDp);
PELI_API PelStatus peliDotProd_32u64f_C3R(const Pel32u* pSrc1, int src1Step, const Pel32u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_32u64f_C4R(const Pel32u* pSrc1, int src1Step, const Pel32u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[4]);
PELI_API PelStatus peliDotProd_32u64f_AC4R(const Pel32u* pSrc1, int src1Step, const Pel32u* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_32s64f_C1R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pDp);
PELI_API PelStatus peliDotProd_32s64f_C3R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_32s64f_C4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[4]);
PELI_API PelStatus peliDotProd_32s64f_AC4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_32f64f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f* pDp);
PELI_API PelStatus peliDotProd_32f64f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);
PELI_API PelStatus peliDotProd_32f64f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[4]);
PELI_API PelStatus peliDotProd_32f64f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, PeliSize roiSize, Pel64f pDp[3]);

/* ==== Extremes ================================================================
 * Min, Max and MinMax give the extreme values; MinIndx and MaxIndx also
 * their position (x, y). Per channel, the first occurrence in row-major
 * order wins. 32f: NaN elements are passed over; a channel that holds
 * nothing but NaN reports its first element at (0, 0). The value written is
 * the element at the reported position, bit for bit (so -0.0 and +0.0 are
 * told apart by position only).
 *
 * MinEvery and MaxEvery compare element by element: the IR forms write
 * min(src, srcDst) into srcDst, the R forms min(src1, src2) into dst (AC4
 * leaves the destination's alpha as it was). 32f: the first operand is
 * taken only when it is strictly less (MaxEvery: greater) than the second,
 * so a NaN in either gives the second operand.
 *
 * Errors: NULL pointer -8, width or height below 1 -6. Steps are not
 * examined. */
/* Pel8u */
PELI_API PelStatus peliMin_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u* pMin);
PELI_API PelStatus peliMin_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[3]);
PELI_API PelStatus peliMin_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[4]);
PELI_API PelStatus peliMin_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[3]);
PELI_API PelStatus peliMax_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u* pMax);
PELI_API PelStatus peliMax_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u max[3]);
PELI_API PelStatus peliMax_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u max[4]);
PELI_API PelStatus peliMax_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u max[3]);
PELI_API PelStatus peliMinMax_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u* pMin, Pel8u* pMax);
PELI_API PelStatus peliMinMax_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[3], Pel8u max[3]);
PELI_API PelStatus peliMinMax_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[4], Pel8u max[4]);
PELI_API PelStatus peliMinMax_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[3], Pel8u max[3]);
PELI_API PelStatus peliMinIndx_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u* pMin, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMinIndx_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinIndx_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMinIndx_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u* pMax, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMaxIndx_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u max[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMaxIndx_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel8u max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinEvery_8u_C1IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_8u_C3IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_8u_C4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_8u_AC4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_8u_AC4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_C1IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_C3IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_C4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_AC4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_8u_AC4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliMin_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u* pMin);
PELI_API PelStatus peliMin_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[3]);
PELI_API PelStatus peliMin_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[4]);
PELI_API PelStatus peliMin_16u_AC4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[3]);
PELI_API PelStatus peliMax_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u* pMax);
PELI_API PelStatus peliMax_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u max[3]);
PELI_API PelStatus peliMax_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u max[4]);
PELI_API PelStatus peliMax_16u_AC4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u max[3]);
PELI_API PelStatus peliMinMax_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u* pMin, Pel16u* pMax);
PELI_API PelStatus peliMinMax_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[3], Pel16u max[3]);
PELI_API PelStatus peliMinMax_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[4], Pel16u max[4]);
PELI_API PelStatus peliMinMax_16u_AC4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[3], Pel16u max[3]);
PELI_API PelStatus peliMinIndx_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u* pMin, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMinIndx_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinIndx_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMinIndx_16u_AC4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u* pMax, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMaxIndx_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u max[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMaxIndx_16u_AC4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel16u max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinEvery_16u_C1IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16u_C3IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16u_C4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16u_AC4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16u_AC4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_C1IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_C3IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_C4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_AC4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16u_AC4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);

/* Pel16s */
PELI_API PelStatus peliMin_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s* pMin);
PELI_API PelStatus peliMin_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[3]);
PELI_API PelStatus peliMin_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[4]);
PELI_API PelStatus peliMin_16s_AC4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[3]);
PELI_API PelStatus peliMax_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s* pMax);
PELI_API PelStatus peliMax_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s max[3]);
PELI_API PelStatus peliMax_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s max[4]);
PELI_API PelStatus peliMax_16s_AC4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s max[3]);
PELI_API PelStatus peliMinMax_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s* pMin, Pel16s* pMax);
PELI_API PelStatus peliMinMax_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[3], Pel16s max[3]);
PELI_API PelStatus peliMinMax_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[4], Pel16s max[4]);
PELI_API PelStatus peliMinMax_16s_AC4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[3], Pel16s max[3]);
PELI_API PelStatus peliMinIndx_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s* pMin, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMinIndx_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinIndx_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMinIndx_16s_AC4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s* pMax, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMaxIndx_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s max[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMaxIndx_16s_AC4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel16s max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinEvery_16s_C1IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16s_C3IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16s_C4IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16s_AC4IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_16s_AC4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_C1IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_C3IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_C4IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_AC4IR(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_16s_AC4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize);

/* Pel32f */
PELI_API PelStatus peliMin_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f* pMin);
PELI_API PelStatus peliMin_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[3]);
PELI_API PelStatus peliMin_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[4]);
PELI_API PelStatus peliMin_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[3]);
PELI_API PelStatus peliMax_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f* pMax);
PELI_API PelStatus peliMax_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f max[3]);
PELI_API PelStatus peliMax_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f max[4]);
PELI_API PelStatus peliMax_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f max[3]);
PELI_API PelStatus peliMinMax_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f* pMin, Pel32f* pMax);
PELI_API PelStatus peliMinMax_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[3], Pel32f max[3]);
PELI_API PelStatus peliMinMax_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[4], Pel32f max[4]);
PELI_API PelStatus peliMinMax_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[3], Pel32f max[3]);
PELI_API PelStatus peliMinIndx_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f* pMin, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMinIndx_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinIndx_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMinIndx_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f min[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f* pMax, int* pIndexX, int* pIndexY);
PELI_API PelStatus peliMaxIndx_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMaxIndx_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f max[4], int indexX[4], int indexY[4]);
PELI_API PelStatus peliMaxIndx_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32f max[3], int indexX[3], int indexY[3]);
PELI_API PelStatus peliMinEvery_32f_C1IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_32f_C3IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_32f_C4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_32f_AC4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMinEvery_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_C1IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_C3IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_C4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_AC4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMaxEvery_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);

/* ==== Counting in a range =====================================================
 * Counts the pixels with lowerBound <= value <= upperBound, per channel
 * (C3R and AC4R take one bound pair and give one count per channel; counts
 * beyond INT_MAX are reported as INT_MAX). 32f NaN values are never counted.
 *
 * Errors, in this order: NULL pointer -8, a step below 1 -16, width or
 * height below 1 -6, an upper bound below its lower bound
 * pelStatusRangeError (-7). */
PELI_API PelStatus peliCountInRange_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize,
                                           int* pCounts, Pel8u lowerBound, Pel8u upperBound);
PELI_API PelStatus peliCountInRange_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize,
                                           int counts[3], const Pel8u lowerBound[3],
                                           const Pel8u upperBound[3]);
PELI_API PelStatus peliCountInRange_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize,
                                            int counts[3], const Pel8u lowerBound[3],
                                            const Pel8u upperBound[3]);
PELI_API PelStatus peliCountInRange_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize,
                                            int* pCounts, Pel32f lowerBound, Pel32f upperBound);
PELI_API PelStatus peliCountInRange_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize,
                                            int counts[3], const Pel32f lowerBound[3],
                                            const Pel32f upperBound[3]);
PELI_API PelStatus peliCountInRange_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize,
                                             int counts[3], const Pel32f lowerBound[3],
                                             const Pel32f upperBound[3]);

/* ==== Histograms ================================================================
 * A spec holds the levels of each channel (1, 3 or 4 channels of 8u, 16u,
 * 16s or 32f). peliHistogramGetBufferSize reports the bytes of the spec and
 * of the work buffer; peliHistogramInit copies explicit levels (ascending;
 * equal neighbours give an empty bin) and peliHistogramUniformInit spaces
 * nLevels levels evenly from lowerLevel to upperLevel (step computed in
 * Pel64f). Integer specs keep integer levels, truncated toward zero; where
 * an integer channel's uniform step is below 1 some levels coincide and
 * UniformInit returns pelStatusAdjusted (48) after building the spec.
 *
 * peliHistogram_<T>_<C>R writes nLevels - 1 bins per channel: bin k counts
 * the values v with level[k] <= v < level[k + 1], so a value equal to the
 * top level is in no bin (nor is a 32f NaN). Bins count modulo 2^32. The spec
 * is only read: one spec may serve concurrent calls, each with its own
 * buffer. The spec is position-independent (it may be copied).
 *
 * Errors: GetBufferSize and the Inits check the data type first
 * (pelStatusDataTypeError, -59), then pointers (-8), the ROI size (-6,
 * GetBufferSize), the channel count (pelStatusChannelsNotSupported, -53),
 * then per channel fewer than 2 levels (pelStatusHistogramLevelsError,
 * -107) and levels not ascending or a uniform range that is empty or not
 * finite (-7); a spec above 2^31 - 1 bytes gives -232. The histogram checks
 * pointers (-8), the size (-6), the step (below 1 or below the row's bytes,
 * -16), and then the spec: not a histogram spec, or one of another type or
 * channel count, gives pelStatusBadArgument (-5), as does GetLevels. */
typedef struct PeliHistogramSpec PeliHistogramSpec;

PELI_API PelStatus peliHistogramGetBufferSize(PelDataType dataType, PeliSize roiSize,
                                              const int nLevels[], int numChannels, int uniform,
                                              int* pSpecSize, int* pBufferSize);
PELI_API PelStatus peliHistogramInit(PelDataType dataType, const Pel32f* const pLevels[],
                                     const int nLevels[], int numChannels,
                                     PeliHistogramSpec* pSpec);
PELI_API PelStatus peliHistogramUniformInit(PelDataType dataType, const Pel32f lowerLevel[],
                                            const Pel32f upperLevel[], const int nLevels[],
                                            int numChannels, PeliHistogramSpec* pSpec);
/* Each channel's levels as Pel32f (nLevels of them into pLevels[c]). */
PELI_API PelStatus peliHistogramGetLevels(const PeliHistogramSpec* pSpec, Pel32f* const pLevels[]);

PELI_API PelStatus peliHistogram_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel32u* pHist, const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[3], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[4], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel32u* pHist, const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[3], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[4], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel32u* pHist, const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[3], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[4], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32u* pHist, const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[3], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliHistogram_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel32u* const pHist[4], const PeliHistogramSpec* pSpec, Pel8u* pBuffer);

#ifdef __cplusplus
}
#endif

#endif /* PELI_STATS_H */
