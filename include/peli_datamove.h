/* peli_datamove.h: copy and set; border extension; mirror, transpose and channel swap.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_DATAMOVE_H
#define PELI_DATAMOVE_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif
/* ---- Copy -------------------------------------------------------------------
 * Copy pixels between two images of one element type. In the C3C1, C4C1,
 * C1C3, C1C4, C3C and C4C forms the pointer on the multi-channel side points
 * at the selected channel of the first pixel, and the other channels of the
 * destination are never written. AC4 forms never read or write the alpha
 * (fourth) channel of the destination. Masked (M) forms copy the pixels
 * whose mask byte is nonzero. Planar sides take one pointer a plane and one
 * step for all planes. Statuses: -8 for a NULL pointer, -6 for a width or
 * height below 1; steps are not checked. */

/* Pel8u */
PELI_API PelStatus peliCopy_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_8u_AC4R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_8u_C1MR(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C3MR(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C4MR(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_AC4MR(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C3CR(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C4CR(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C3C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C4C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C1C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C1C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C3P3R(const Pel8u* pSrc, int srcStep, Pel8u* const pDst[3], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C4P4R(const Pel8u* pSrc, int srcStep, Pel8u* const pDst[4], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_P3C3R(const Pel8u* const pSrc[3], int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_P4C4R(const Pel8u* const pSrc[4], int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_AC4C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_8u_C3AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);

/* Pel16s */
PELI_API PelStatus peliCopy_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16s_AC4R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16s_C1MR(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C3MR(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C4MR(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_AC4MR(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C3CR(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C4CR(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C3C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C4C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C1C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C1C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C3P3R(const Pel16s* pSrc, int srcStep, Pel16s* const pDst[3], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C4P4R(const Pel16s* pSrc, int srcStep, Pel16s* const pDst[4], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_P3C3R(const Pel16s* const pSrc[3], int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_P4C4R(const Pel16s* const pSrc[4], int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_AC4C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16s_C3AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliCopy_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16u_AC4R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_16u_C1MR(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C3MR(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C4MR(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_AC4MR(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C3CR(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C4CR(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C3C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C4C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C1C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C1C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C3P3R(const Pel16u* pSrc, int srcStep, Pel16u* const pDst[3], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C4P4R(const Pel16u* pSrc, int srcStep, Pel16u* const pDst[4], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_P3C3R(const Pel16u* const pSrc[3], int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_P4C4R(const Pel16u* const pSrc[4], int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_AC4C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_16u_C3AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliCopy_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C3R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_AC4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C1R_L(const Pel32s* pSrc, PelIntL srcStep, Pel32s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32s_C3R_L(const Pel32s* pSrc, PelIntL srcStep, Pel32s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32s_C4R_L(const Pel32s* pSrc, PelIntL srcStep, Pel32s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32s_AC4R_L(const Pel32s* pSrc, PelIntL srcStep, Pel32s* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32s_C1MR(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C3MR(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C4MR(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_AC4MR(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C3CR(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C4CR(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C3C1R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C4C1R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C1C3R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C1C4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C3P3R(const Pel32s* pSrc, int srcStep, Pel32s* const pDst[3], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C4P4R(const Pel32s* pSrc, int srcStep, Pel32s* const pDst[4], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_P3C3R(const Pel32s* const pSrc[3], int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_P4C4R(const Pel32s* const pSrc[4], int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_AC4C3R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32s_C3AC4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);

/* Pel32f */
PELI_API PelStatus peliCopy_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32f_AC4R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliCopy_32f_C1MR(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C3MR(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C4MR(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_AC4MR(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C3CR(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C4CR(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C3C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C4C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C1C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C1C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C3P3R(const Pel32f* pSrc, int srcStep, Pel32f* const pDst[3], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C4P4R(const Pel32f* pSrc, int srcStep, Pel32f* const pDst[4], int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_P3C3R(const Pel32f* const pSrc[3], int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_P4C4R(const Pel32f* const pSrc[4], int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_AC4C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliCopy_32f_C3AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);

/* Plain 8-bit copy; flags bit 0 set forces cache-bypassing stores. */
PELI_API PelStatus peliCopyManaged_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, int flags);

/* Duplicate the one source channel into every channel of the destination. */
PELI_API PelStatus peliDup_8u_C1C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDup_8u_C1C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);

/* ---- Set --------------------------------------------------------------------
 * Fill an image, one channel of it, or its masked pixels with a constant.
 * C3 and AC4 take three values, C4 four; AC4 keeps the destination alpha.
 * Statuses: -8 for a NULL pointer, -6 for a width or height below 1. */

/* Pel8u */
PELI_API PelStatus peliSet_8u_C1R(Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_C3R(const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_C4R(const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_AC4R(const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_C1MR(Pel8u value, Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_C3MR(const Pel8u value[3], Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_C4MR(const Pel8u value[4], Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_AC4MR(const Pel8u value[3], Pel8u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_C3CR(Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_8u_C4CR(Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize);

/* Pel16s */
PELI_API PelStatus peliSet_16s_C1R(Pel16s value, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_C3R(const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_C4R(const Pel16s value[4], Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_AC4R(const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_C1MR(Pel16s value, Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_C3MR(const Pel16s value[3], Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_C4MR(const Pel16s value[4], Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_AC4MR(const Pel16s value[3], Pel16s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_C3CR(Pel16s value, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16s_C4CR(Pel16s value, Pel16s* pDst, int dstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliSet_16u_C1R(Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_C3R(const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_C4R(const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_AC4R(const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_C1MR(Pel16u value, Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_C3MR(const Pel16u value[3], Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_C4MR(const Pel16u value[4], Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_AC4MR(const Pel16u value[3], Pel16u* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_C3CR(Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_16u_C4CR(Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliSet_32s_C1R(Pel32s value, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_C3R(const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_C4R(const Pel32s value[4], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_AC4R(const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_C1MR(Pel32s value, Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_C3MR(const Pel32s value[3], Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_C4MR(const Pel32s value[4], Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_AC4MR(const Pel32s value[3], Pel32s* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_C3CR(Pel32s value, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32s_C4CR(Pel32s value, Pel32s* pDst, int dstStep, PeliSize roiSize);

/* Pel32f */
PELI_API PelStatus peliSet_32f_C1R(Pel32f value, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_C3R(const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_C4R(const Pel32f value[4], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_AC4R(const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_C1MR(Pel32f value, Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_C3MR(const Pel32f value[3], Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_C4MR(const Pel32f value[4], Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_AC4MR(const Pel32f value[3], Pel32f* pDst, int dstStep, const Pel8u* pMask, int maskStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_C3CR(Pel32f value, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSet_32f_C4CR(Pel32f value, Pel32f* pDst, int dstStep, PeliSize roiSize);

#ifdef __cplusplus
}
#endif

#endif /* PELI_DATAMOVE_H */
