/* peli_filter.h: the general filter with border; box, median, minimum and maximum filters.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_FILTER_H
#define PELI_FILTER_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- General filter with border -------------------------------------------
 * Correlation with a caller's kernel (not convolution): with ax = (kw-1)>>1
 * and ay = (kh-1)>>1, dst(x,y) = sum K[i][j] * src(x+j-ax, y+i-ay), per
 * channel. Pixels outside the ROI come from memory on the sides flagged
 * pelBorderInMem* (the whole code 240: every side) and from the border rule
 * (replicate 1, mirror 3, constant 6 with one borderValue per channel)
 * elsewhere. Calling order: GetSize, Init (16s, 32f or 64f kernel), an
 * optional SetMode, then any number of filter calls; the spec is read-only
 * while filtering and may be shared, the buffer is each call's scratch.
 * The buffer size may be larger on processors with PEL_CPUID_AVX512WIDE
 * (pelcore.h), so ask GetSize on the machine that filters.
 *
 * Integer kernels (Init_16s) sum exact products in 32-bit integers (which
 * wrap, for kernels whose sums exceed that range), add offset x divisor, and
 * divide: divisor 1 none; a positive power of two 2^n by an arithmetic
 * shift rounded by the mode; any other divisor by the f32 reciprocal. The
 * modes: pelRoundZero truncates toward zero, pelRoundNear rounds to nearest
 * with ties to even, pelRoundAlternate to nearest with halves away from
 * zero; then saturation. pelRoundAccurateFlag changes no result: every path
 * is already exact in its arithmetic. 16u data, and 16s data with 3 or 4
 * channels, a kernel of one row or one column, or one channel and a width
 * below 3, filter with the kernel divided into f32 coefficients.
 * Float kernels sum f32 products row by row, left to right, from zero (64f:
 * f64), add the offset, and for integer data round by the mode and
 * saturate. Results are identical on every processor. */
typedef struct PeliFilterBorderSpec PeliFilterBorderSpec;

PELI_API PelStatus peliFilterBorderGetSize(PeliSize kernelSize, PeliSize roiSize, PelDataType dataType, PelDataType kernelType, int numChannels, int* pSpecSize, int* pBufferSize);
PELI_API PelStatus peliFilterBorderInit_16s(const Pel16s* pKernel, PeliSize kernelSize, int divisor, PelDataType dataType, int numChannels, PelRoundMode roundMode, PeliFilterBorderSpec* pSpec);
PELI_API PelStatus peliFilterBorderInit_32f(const Pel32f* pKernel, PeliSize kernelSize, PelDataType dataType, int numChannels, PelRoundMode roundMode, PeliFilterBorderSpec* pSpec);
PELI_API PelStatus peliFilterBorderInit_64f(const Pel64f* pKernel, PeliSize kernelSize, PelDataType dataType, int numChannels, PelRoundMode roundMode, PeliFilterBorderSpec* pSpec);
/* An offset (unsigned data only) is added to every sum before rounding. */
PELI_API PelStatus peliFilterBorderSetMode(PelHintAlgorithm hint, int offset, PeliFilterBorderSpec* pSpec);

PELI_API PelStatus peliFilterBorder_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel8u* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel8u* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel8u* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel16u* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel16u* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel16u* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel16s* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel16s* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel16s* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel32f* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel32f* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel32f* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBorder_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep, PeliSize roiSize, PeliBorderType border, const Pel64f* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer);

/* ---- Median, box, minimum and maximum with border ----------------------------
 * The mask's anchor is ((w-1)>>1, (h-1)>>1). Border codes as for the general
 * filter; the median takes replicate, constant or 240 only. The median and
 * the minimum/maximum take one border value for every channel; the box
 * takes an array, one value per written channel. AC4 leaves alpha as it is.
 * Every call needs a buffer of the size its GetBufferSize gives.
 *
 * Median: the middle element of the odd-sized neighbourhood (float data:
 * NaN has no defined rank). A 1x1 mask copies (nothing is done in place).
 * The destination may be the source itself. Box: the mean, for integer
 * data rounded to nearest with halves upward (floor(mean + 1/2)); for 32f
 * the columns are summed in f64 top to bottom, the column sums left to
 * right, and the sum divided by the mask's area, narrowed once. Minimum and
 * maximum: any mask size, even ones too. */
PELI_API PelStatus peliFilterMedianBorderGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels, int* pBufferSize);
PELI_API PelStatus peliFilterBoxBorderGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels, int* pBufferSize);
PELI_API PelStatus peliFilterMaxBorderGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels, int* pBufferSize);
PELI_API PelStatus peliFilterMinBorderGetBufferSize(PeliSize roiSize, PeliSize maskSize, PelDataType dataType, int numChannels, int* pBufferSize);

PELI_API PelStatus peliFilterMedianBorder_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMedianBorder_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel8u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel8u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel8u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel8u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16u* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16s* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16s* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16s* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel16s* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel32f* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel32f* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel32f* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterBoxBorder_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, const Pel32f* borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMinBorder_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel8u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16u borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel16s borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);
PELI_API PelStatus peliFilterMaxBorder_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliSize maskSize, PeliBorderType border, Pel32f borderValue, Pel8u* pBuffer);

/* 3x3 dilation (maximum) and erosion (minimum) of 64f without border: the
 * source must hold one pixel around the ROI; srcStep must cover the ROI row
 * and two more pixels, dstStep the ROI row (else pelStatusStepTooSmall). */
PELI_API PelStatus peliDilate3x3_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliErode3x3_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep, PeliSize roiSize);

#ifdef __cplusplus
}
#endif

#endif /* PELI_FILTER_H */
