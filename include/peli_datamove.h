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

/* ---- Border extension ---------------------------------------------------------
 * Copy a source ROI into a larger destination and fill the frame around it.
 * The source's first pixel lands at (leftBorderWidth, topBorderHeight) of the
 * destination; the right border is dstW - srcW - leftBorderWidth pixels wide
 * and the bottom one dstH - srcH - topBorderHeight rows high. A border pixel
 * at (x, y), counted from the source's first pixel, takes:
 *   Const      the value (one element for C1, an array of 3 for C3 and AC4,
 *              of 4 for C4);
 *   Replicate  the source pixel (clamp(x, 0, srcW-1), clamp(y, 0, srcH-1));
 *   Mirror     the source pixel (m(x, srcW), m(y, srcH)): the image reflected
 *              about its edge pixel, which is not repeated (m(-1) = 1,
 *              m(W) = W-2), periodically for borders wider than the image
 *              (period 2W-2; a size of 1 repeats the single pixel);
 *   Wrap       the source pixel (x mod srcW, y mod srcH), non-negative.
 * In-place forms (IR) take the source's first pixel inside a buffer that has
 * room for the frame, with one step: the destination starts topBorderHeight
 * rows above and leftBorderWidth pixels before it, and only the frame is
 * written. AC4 forms never write the alpha channel, frame included.
 * A not-in-place Replicate, Mirror or Wrap call with pDst equal to pSrc is
 * the in-place call at pSrc with srcStep (Replicate and Mirror before any
 * check, Wrap after its own); Const copies as asked.
 * Checks, in order: NULL image pointer -8; a step below 1 -16; a size below
 * 1, a negative border or a source that does not fit -6; a NULL value array
 * -8. The _L forms take pointer-sized steps, sizes and border widths. */

/* Const */

/* Pel8u */
PELI_API PelStatus peliCopyConstBorder_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel8u value);
PELI_API PelStatus peliCopyConstBorder_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel8u value);
PELI_API PelStatus peliCopyConstBorder_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel8u value);
PELI_API PelStatus peliCopyConstBorder_8u_C1IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel8u value);
PELI_API PelStatus peliCopyConstBorder_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel8u value[3]);
PELI_API PelStatus peliCopyConstBorder_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel8u value[3]);
PELI_API PelStatus peliCopyConstBorder_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel8u value[3]);
PELI_API PelStatus peliCopyConstBorder_8u_C3IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel8u value[3]);
PELI_API PelStatus peliCopyConstBorder_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel8u value[4]);
PELI_API PelStatus peliCopyConstBorder_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel8u value[4]);
PELI_API PelStatus peliCopyConstBorder_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel8u value[4]);
PELI_API PelStatus peliCopyConstBorder_8u_C4IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel8u value[4]);
PELI_API PelStatus peliCopyConstBorder_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel8u value[3]);
PELI_API PelStatus peliCopyConstBorder_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel8u value[3]);
PELI_API PelStatus peliCopyConstBorder_8u_AC4R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel8u value[3]);
PELI_API PelStatus peliCopyConstBorder_8u_AC4IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel8u value[3]);

/* Pel16s */
PELI_API PelStatus peliCopyConstBorder_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel16s value);
PELI_API PelStatus peliCopyConstBorder_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel16s value);
PELI_API PelStatus peliCopyConstBorder_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel16s value);
PELI_API PelStatus peliCopyConstBorder_16s_C1IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel16s value);
PELI_API PelStatus peliCopyConstBorder_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16s value[3]);
PELI_API PelStatus peliCopyConstBorder_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16s value[3]);
PELI_API PelStatus peliCopyConstBorder_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16s value[3]);
PELI_API PelStatus peliCopyConstBorder_16s_C3IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16s value[3]);
PELI_API PelStatus peliCopyConstBorder_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16s value[4]);
PELI_API PelStatus peliCopyConstBorder_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16s value[4]);
PELI_API PelStatus peliCopyConstBorder_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16s value[4]);
PELI_API PelStatus peliCopyConstBorder_16s_C4IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16s value[4]);
PELI_API PelStatus peliCopyConstBorder_16s_AC4R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16s value[3]);
PELI_API PelStatus peliCopyConstBorder_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16s value[3]);
PELI_API PelStatus peliCopyConstBorder_16s_AC4R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16s value[3]);
PELI_API PelStatus peliCopyConstBorder_16s_AC4IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16s value[3]);

/* Pel16u */
PELI_API PelStatus peliCopyConstBorder_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel16u value);
PELI_API PelStatus peliCopyConstBorder_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel16u value);
PELI_API PelStatus peliCopyConstBorder_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel16u value);
PELI_API PelStatus peliCopyConstBorder_16u_C1IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel16u value);
PELI_API PelStatus peliCopyConstBorder_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16u value[3]);
PELI_API PelStatus peliCopyConstBorder_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16u value[3]);
PELI_API PelStatus peliCopyConstBorder_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16u value[3]);
PELI_API PelStatus peliCopyConstBorder_16u_C3IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16u value[3]);
PELI_API PelStatus peliCopyConstBorder_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16u value[4]);
PELI_API PelStatus peliCopyConstBorder_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16u value[4]);
PELI_API PelStatus peliCopyConstBorder_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16u value[4]);
PELI_API PelStatus peliCopyConstBorder_16u_C4IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16u value[4]);
PELI_API PelStatus peliCopyConstBorder_16u_AC4R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16u value[3]);
PELI_API PelStatus peliCopyConstBorder_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel16u value[3]);
PELI_API PelStatus peliCopyConstBorder_16u_AC4R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16u value[3]);
PELI_API PelStatus peliCopyConstBorder_16u_AC4IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel16u value[3]);

/* Pel32s */
PELI_API PelStatus peliCopyConstBorder_32s_C1R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel32s value);
PELI_API PelStatus peliCopyConstBorder_32s_C1IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel32s value);
PELI_API PelStatus peliCopyConstBorder_32s_C1R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel32s value);
PELI_API PelStatus peliCopyConstBorder_32s_C1IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel32s value);
PELI_API PelStatus peliCopyConstBorder_32s_C3R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32s value[3]);
PELI_API PelStatus peliCopyConstBorder_32s_C3IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32s value[3]);
PELI_API PelStatus peliCopyConstBorder_32s_C3R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32s value[3]);
PELI_API PelStatus peliCopyConstBorder_32s_C3IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32s value[3]);
PELI_API PelStatus peliCopyConstBorder_32s_C4R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32s value[4]);
PELI_API PelStatus peliCopyConstBorder_32s_C4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32s value[4]);
PELI_API PelStatus peliCopyConstBorder_32s_C4R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32s value[4]);
PELI_API PelStatus peliCopyConstBorder_32s_C4IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32s value[4]);
PELI_API PelStatus peliCopyConstBorder_32s_AC4R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32s value[3]);
PELI_API PelStatus peliCopyConstBorder_32s_AC4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32s value[3]);
PELI_API PelStatus peliCopyConstBorder_32s_AC4R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32s value[3]);
PELI_API PelStatus peliCopyConstBorder_32s_AC4IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32s value[3]);

/* Pel32f */
PELI_API PelStatus peliCopyConstBorder_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel32f value);
PELI_API PelStatus peliCopyConstBorder_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Pel32f value);
PELI_API PelStatus peliCopyConstBorder_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel32f value);
PELI_API PelStatus peliCopyConstBorder_32f_C1IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, Pel32f value);
PELI_API PelStatus peliCopyConstBorder_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32f value[3]);
PELI_API PelStatus peliCopyConstBorder_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32f value[3]);
PELI_API PelStatus peliCopyConstBorder_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32f value[3]);
PELI_API PelStatus peliCopyConstBorder_32f_C3IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32f value[3]);
PELI_API PelStatus peliCopyConstBorder_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32f value[4]);
PELI_API PelStatus peliCopyConstBorder_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32f value[4]);
PELI_API PelStatus peliCopyConstBorder_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32f value[4]);
PELI_API PelStatus peliCopyConstBorder_32f_C4IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32f value[4]);
PELI_API PelStatus peliCopyConstBorder_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32f value[3]);
PELI_API PelStatus peliCopyConstBorder_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Pel32f value[3]);
PELI_API PelStatus peliCopyConstBorder_32f_AC4R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32f value[3]);
PELI_API PelStatus peliCopyConstBorder_32f_AC4IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth, const Pel32f value[3]);

/* Replicate */

/* Pel8u */
PELI_API PelStatus peliCopyReplicateBorder_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C1IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C3IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_C4IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_AC4R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_AC4R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_8u_AC4IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel16s */
PELI_API PelStatus peliCopyReplicateBorder_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C1IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C3IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_C4IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_AC4R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_AC4R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16s_AC4IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel16u */
PELI_API PelStatus peliCopyReplicateBorder_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C1IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C3IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_C4IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_AC4R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_AC4R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_16u_AC4IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel32s */
PELI_API PelStatus peliCopyReplicateBorder_32s_C1R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C1IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C1R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C1IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C3R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C3IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C3R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C3IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C4R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C4R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_C4IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_AC4R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_AC4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_AC4R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32s_AC4IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel32f */
PELI_API PelStatus peliCopyReplicateBorder_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C1IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C3IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_C4IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_AC4R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_AC4R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyReplicateBorder_32f_AC4IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Mirror */

/* Pel8u */
PELI_API PelStatus peliCopyMirrorBorder_8u_C1R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C1IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C3R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C3IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C4R(const Pel8u* pSrc, int srcStep, PeliSize srcRoiSize, Pel8u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel8u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_8u_C4IR_L(Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel16s */
PELI_API PelStatus peliCopyMirrorBorder_16s_C1R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C1IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C3R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C3IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C4R(const Pel16s* pSrc, int srcStep, PeliSize srcRoiSize, Pel16s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16s_C4IR_L(Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel16u */
PELI_API PelStatus peliCopyMirrorBorder_16u_C1R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C1IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C3R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C3IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C4R(const Pel16u* pSrc, int srcStep, PeliSize srcRoiSize, Pel16u* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel16u* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_16u_C4IR_L(Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel32s */
PELI_API PelStatus peliCopyMirrorBorder_32s_C1R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C1IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C1R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C1IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C3R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C3IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C3R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C3IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C4R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C4R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32s_C4IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel32f */
PELI_API PelStatus peliCopyMirrorBorder_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C1IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C3R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C3IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C4R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyMirrorBorder_32f_C4IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Wrap */

/* Pel32s */
PELI_API PelStatus peliCopyWrapBorder_32s_C1R(const Pel32s* pSrc, int srcStep, PeliSize srcRoiSize, Pel32s* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyWrapBorder_32s_C1IR(Pel32s* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyWrapBorder_32s_C1R_L(const Pel32s* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32s* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyWrapBorder_32s_C1IR_L(Pel32s* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* Pel32f */
PELI_API PelStatus peliCopyWrapBorder_32f_C1R(const Pel32f* pSrc, int srcStep, PeliSize srcRoiSize, Pel32f* pDst, int dstStep, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyWrapBorder_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize srcRoiSize, PeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
PELI_API PelStatus peliCopyWrapBorder_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, PeliSizeL srcRoiSize, Pel32f* pDst, PelIntL dstStep, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);
PELI_API PelStatus peliCopyWrapBorder_32f_C1IR_L(Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL srcRoiSize, PeliSizeL dstRoiSize, PelIntL topBorderHeight, PelIntL leftBorderWidth);

/* ---- Mirror -------------------------------------------------------------------
 * Flip an image about an axis (flip, one of the PeliAxis codes):
 *   pelAxisHorizontal   destination row H-1-y = source row y;
 *   pelAxisVertical     each row reversed pixel by pixel;
 *   pelAxisBoth         both;
 *   pelAxisDiagonal     destination pixel (x, y) = source pixel (y, x);
 *   pelAxisAntiDiagonal destination pixel (x, y) = source pixel
 *                       (H-1-y, W-1-x).
 * For the diagonals roiSize (W, H) is the destination's size: the source is
 * H pixels wide and W rows high. AC4 forms never write the alpha channel.
 * Not in place, the diagonals check pointers (-8), steps below 1 (-16) and
 * sizes (-6), and refuse images that share memory (-14); the other axes
 * check pointers (-8), sizes (-6) and the axis (-22), not steps, and a call
 * with pDst equal to pSrc and equal steps is the in-place call. In place
 * (IR) the diagonals are refused (-22); an odd middle row or column stays. */
typedef int PeliAxis;
enum {
    pelAxisHorizontal = 0,
    pelAxisVertical = 1,
    pelAxisBoth = 2,
    pelAxisDiagonal = 3,
    pelAxisAntiDiagonal = 4
};

/* Pel8u */
PELI_API PelStatus peliMirror_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);

/* Pel16s */
PELI_API PelStatus peliMirror_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);

/* Pel16u */
PELI_API PelStatus peliMirror_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);

/* Pel32s */
PELI_API PelStatus peliMirror_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32s_C1IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32s_C3R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32s_C3IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32s_C4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32s_C4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32s_AC4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32s_AC4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);

/* Pel32f */
PELI_API PelStatus peliMirror_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, PeliAxis flip);
PELI_API PelStatus peliMirror_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize, PeliAxis flip);

/* ---- Transpose ----------------------------------------------------------------
 * Swap rows and columns: destination pixel (x, y) = source pixel (y, x).
 * roiSize is the source's size; the destination is roiSize.height pixels wide
 * and roiSize.width rows high. Statuses: -8 for a NULL pointer, -6 for a size
 * below 1; steps are not checked. A call with pDst equal to pSrc and equal
 * steps is the in-place call. In place (IR) the buffer must hold both images
 * (max(W, H) square from the pointer); pixels of the buffer that belong to
 * neither image are left as they were. */
/* Pel8u */
PELI_API PelStatus peliTranspose_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16s */
PELI_API PelStatus peliTranspose_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliTranspose_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliTranspose_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32s_C1IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32s_C3R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32s_C3IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32s_C4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32s_C4IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32f */
PELI_API PelStatus peliTranspose_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliTranspose_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);

PELI_API PelStatus peliTranspose_32fc_C1R(const Pel32fc* pSrc, int srcStep, Pel32fc* pDst, int dstStep, PeliSize roiSize);

/* ---- Channel swap --------------------------------------------------------------
 * Reorder the channels of each pixel: destination channel i takes source
 * channel dstOrder[i] (entries may repeat).
 *   C3R, AC4R, C3IR  three entries 0..2 (AC4: the destination's alpha kept);
 *   C4R, C4IR        four entries 0..3;
 *   C4C3R            three entries 0..3, from four channels to three;
 *   C3C4R            four entries: 0..2 take that source channel, 3 writes
 *                    val, 4 or more leave that destination channel as it is.
 * Checks, in order: NULL pointer, dstOrder included, -8; a size below 1 -6;
 * an entry out of range (negative included) -60. Steps are not checked. A
 * call whose source and destination are the same pixels works in place. */
/* Pel8u */
PELI_API PelStatus peliSwapChannels_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4]);
PELI_API PelStatus peliSwapChannels_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_8u_C3C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4], Pel8u val);
PELI_API PelStatus peliSwapChannels_8u_C4C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, const int dstOrder[4]);

/* Pel16s */
PELI_API PelStatus peliSwapChannels_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4]);
PELI_API PelStatus peliSwapChannels_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_16s_C3C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4], Pel16s val);
PELI_API PelStatus peliSwapChannels_16s_C4C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);

/* Pel16u */
PELI_API PelStatus peliSwapChannels_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4]);
PELI_API PelStatus peliSwapChannels_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_16u_C3C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4], Pel16u val);
PELI_API PelStatus peliSwapChannels_16u_C4C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);

/* Pel32s */
PELI_API PelStatus peliSwapChannels_32s_C3R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_32s_C4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4]);
PELI_API PelStatus peliSwapChannels_32s_AC4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_32s_C3C4R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4], Pel32s val);
PELI_API PelStatus peliSwapChannels_32s_C4C3R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);

/* Pel32f */
PELI_API PelStatus peliSwapChannels_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4]);
PELI_API PelStatus peliSwapChannels_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);
PELI_API PelStatus peliSwapChannels_32f_C3C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, const int dstOrder[4], Pel32f val);
PELI_API PelStatus peliSwapChannels_32f_C4C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize, const int dstOrder[3]);

#ifdef __cplusplus
}
#endif

#endif /* PELI_DATAMOVE_H */
