/* peli_arith.h: arithmetic of two images, with constants, and one-operand functions.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_ARITH_H
#define PELI_ARITH_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Two images: Add, Sub, Mul ----------------------------------------------
 * Element by element over the ROI of two images of one type and layout:
 *   Add  src1 + src2        Sub  src2 - src1 (the first image is subtracted)
 *   Mul  src1 * src2
 * In-place (IR) forms compute srcDst = srcDst op src.
 * Integer forms (Sfs) compute the exact result v, then scale it by
 * 2^-scaleFactor: a positive scale factor rounds v / 2^scaleFactor to the
 * nearest integer with ties to even, a negative one multiplies by
 * 2^-scaleFactor; the result saturates to the type. Every scale factor is
 * accepted. For 8u and 16u Sub a negative difference is 0 before scaling.
 * Scale factors at which every possible result is 0 fill the destination
 * with 0 without reading the sources (Add 8u above 9, Sub 8u above 8, Mul 8u
 * above 16, Add 16u above 17, Sub 16u above 16, Mul 16u above 32, Add and
 * Sub 16s above 16, Mul 16s above 30).
 * 32f forms are one single-precision operation an element in the thread's
 * rounding mode; infinities and NaNs propagate (which NaN a NaN-NaN pair
 * yields is not fixed).
 * C3 and C4 images are rows of width x channels elements. AC4 forms compute
 * the first three channels and never write the fourth.
 * _L forms take pointer-sized steps and sizes and behave as their plain
 * forms. Steps are used as given (zero and negative steps too).
 * Statuses: -8 for a NULL pointer, -6 for a width or height below 1. */

/* Add Pel8u */
PELI_API PelStatus peliAdd_8u_C1RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C1IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C1RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C1IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C3RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C3IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C3RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C3IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_C4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_AC4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_AC4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_AC4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_8u_AC4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Add Pel16u */
PELI_API PelStatus peliAdd_16u_C1RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C1IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C1RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C1IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C3RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C3IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C3RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C3IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_C4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_AC4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_AC4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_AC4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16u_AC4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Add Pel16s */
PELI_API PelStatus peliAdd_16s_C1RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C1IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C1RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C1IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C3RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C3IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C3RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C3IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_C4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_AC4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_AC4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_AC4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAdd_16s_AC4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Add Pel32f */
PELI_API PelStatus peliAdd_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_C1IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_C1R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAdd_32f_C1IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAdd_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_C3IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_C3R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAdd_32f_C3IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAdd_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_C4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_C4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAdd_32f_C4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAdd_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_AC4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAdd_32f_AC4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAdd_32f_AC4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* Sub Pel8u */
PELI_API PelStatus peliSub_8u_C1RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C1IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C1RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C1IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C3RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C3IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C3RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C3IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_C4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_AC4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_AC4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_AC4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_8u_AC4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Sub Pel16u */
PELI_API PelStatus peliSub_16u_C1RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C1IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C1RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C1IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C3RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C3IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C3RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C3IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_C4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_AC4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_AC4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_AC4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16u_AC4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Sub Pel16s */
PELI_API PelStatus peliSub_16s_C1RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C1IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C1RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C1IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C3RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C3IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C3RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C3IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_C4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_AC4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_AC4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_AC4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSub_16s_AC4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Sub Pel32f */
PELI_API PelStatus peliSub_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_C1IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_C1R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSub_32f_C1IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSub_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_C3IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_C3R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSub_32f_C3IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSub_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_C4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_C4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSub_32f_C4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSub_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_AC4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSub_32f_AC4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSub_32f_AC4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* Mul Pel8u */
PELI_API PelStatus peliMul_8u_C1RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C1IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C1RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C1IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C3RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C3IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C3RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C3IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_C4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_AC4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_AC4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_AC4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_8u_AC4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Mul Pel16u */
PELI_API PelStatus peliMul_16u_C1RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C1IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C1RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C1IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C3RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C3IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C3RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C3IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_C4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_AC4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_AC4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_AC4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16u_AC4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Mul Pel16s */
PELI_API PelStatus peliMul_16s_C1RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C1IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C1RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C1IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C3RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C3IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C3RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C3IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_C4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_AC4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_AC4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_AC4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMul_16s_AC4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Mul Pel32f */
PELI_API PelStatus peliMul_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_C1IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_C1R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMul_32f_C1IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMul_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_C3IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_C3R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMul_32f_C3IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMul_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_C4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_C4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMul_32f_C4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMul_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_AC4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMul_32f_AC4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMul_32f_AC4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* ---- Two images: Div ---------------------------------------------------------
 * dst = src2 / src1: the FIRST image is the divisor (IR: srcDst / src).
 * Integer forms (Sfs): with divisor d and dividend n, the quotient is
 * n / (d * 2^scaleFactor) for scaleFactor >= 0 and (n * 2^-scaleFactor) / d
 * otherwise, formed in single precision, rounded to the nearest integer with
 * ties to even (whatever the thread's rounding mode) and saturated. A zero
 * divisor gives the type's maximum for n > 0, its minimum for n < 0 and 0
 * for n = 0. In 8u forms each group of eight elements from the start of a
 * row whose divisors are all nonzero divides through a refined reciprocal
 * estimate r0 (see below) of the scaled divisor d': q0 = n'*r0,
 * q1 = q0 + e*q0, q = q1 + (e*e)*q1 with e = 1 - d'*r0 and n' the scaled
 * dividend; the last (width x channels) mod 8 elements of a row and the
 * groups with a zero divisor divide exactly.
 * 32f forms: in each group of eight elements from the start of a row (the
 * last elements in groups of four) whose divisors are all nonzero, the
 * quotient is (r0 + (e*r0 + r0)*e) * n with e = 1 - d*r0, each operation in
 * single precision; it may differ from n / d in the last bit. In a group with
 * a zero divisor the other elements divide exactly; a zero divisor (either
 * sign) gives +inf for n > 0, -inf for n < 0 and the NaN 0x7FC00000 for n = 0
 * or NaN, and a NaN divisor in such a group gives 0x7FC00000 too.
 * The reciprocal estimate r0 of a divisor d is defined bit for bit, so that
 * every processor gives the same quotients: with a = |d|, r0 is 0 for
 * a >= 2^126 (then d counts as 0 in e), infinite for a subnormal a, NaN for
 * a NaN d, and otherwise y = float with bits 0x7EF311C3 - bits(a) refined
 * twice by y = y * (2 - a*y), with the sign of d (about 17 correct bits).
 * In AC4 forms groups count all four channels; alpha counts as divisor 1.
 * Statuses: 2 (pelStatusDivByZeroWarning) when a divisor was 0 (32f: or a
 * NaN in a group with a zero), with the whole destination written; -8, -6,
 * then -16 for a step below 1 (the 16u forms do not check steps). */

/* Div Pel8u */
PELI_API PelStatus peliDiv_8u_C1RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C1IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C1RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C1IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C3RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C3IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C3RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C3IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_C4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_AC4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_AC4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_AC4RSfs_L(const Pel8u* pSrc1, PelIntL src1Step, const Pel8u* pSrc2, PelIntL src2Step, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_8u_AC4IRSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Div Pel16u */
PELI_API PelStatus peliDiv_16u_C1RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C1IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C1RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C1IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C3RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C3IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C3RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C3IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_C4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_AC4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_AC4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_AC4RSfs_L(const Pel16u* pSrc1, PelIntL src1Step, const Pel16u* pSrc2, PelIntL src2Step, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16u_AC4IRSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Div Pel16s */
PELI_API PelStatus peliDiv_16s_C1RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C1IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C1RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C1IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C3RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C3IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C3RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C3IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_C4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_AC4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_AC4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_AC4RSfs_L(const Pel16s* pSrc1, PelIntL src1Step, const Pel16s* pSrc2, PelIntL src2Step, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDiv_16s_AC4IRSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* Div Pel32f */
PELI_API PelStatus peliDiv_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_C1IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_C1R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDiv_32f_C1IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDiv_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_C3IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_C3R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDiv_32f_C3IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDiv_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_C4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_C4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDiv_32f_C4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDiv_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_AC4IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDiv_32f_AC4R_L(const Pel32f* pSrc1, PelIntL src1Step, const Pel32f* pSrc2, PelIntL src2Step, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDiv_32f_AC4IR_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* ---- Two images: Div_Round ---------------------------------------------------
 * As Div, but the scaled quotient is rounded by rndMode: pelRoundZero (0)
 * toward zero, pelRoundNear (1) to nearest with ties to even,
 * pelRoundAlternate (2) by adding 0.5 with the quotient's sign in single
 * precision and truncating. Statuses: -8, -6, -16 for a step below 1, then
 * -213 (pelStatusRoundModeError) for another rndMode; 2 as Div. */

/* Div_Round Pel8u */
PELI_API PelStatus peliDiv_Round_8u_C1RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_8u_C1IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_8u_C3RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_8u_C3IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_8u_C4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_8u_C4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_8u_AC4RSfs(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_8u_AC4IRSfs(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);

/* Div_Round Pel16u */
PELI_API PelStatus peliDiv_Round_16u_C1RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16u_C1IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16u_C3RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16u_C3IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16u_C4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16u_C4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16u_AC4RSfs(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16u_AC4IRSfs(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);

/* Div_Round Pel16s */
PELI_API PelStatus peliDiv_Round_16s_C1RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16s_C1IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16s_C3RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16s_C3IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16s_C4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16s_C4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16s_AC4RSfs(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step, Pel16s* pDst, int dstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);
PELI_API PelStatus peliDiv_Round_16s_AC4IRSfs(const Pel16s* pSrc, int srcStep, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode rndMode, int scaleFactor);

/* ---- Image and constant: AddC, SubC, MulC, DivC ------------------------------
 *   AddC src + value   SubC src - value   MulC src * value   DivC src / value
 * C1 forms take the value itself; C3 and C4 forms an array of one value a
 * channel, AC4 forms an array of three (the fourth channel is never
 * written); the array pointer counts among the pointers checked for NULL.
 * Integer forms scale, round and saturate as Add; for 8u and 16u SubC a
 * negative difference is 0 before scaling. Where the constant and scale
 * factor fix the result, the destination is copied from the source (AddC and
 * SubC with every value 0, MulC with every value 1, at scale factor 0) or
 * filled (MulC with every value 0 at any scale factor; every result 0 above
 * the scale factors listed for Add, Sub and Mul; unsigned AddC with every
 * value nonzero at scale factors that saturate every result).
 * Integer DivC computes f = 2^-scaleFactor / value once in single precision
 * and each result as src * f in single precision, rounded to nearest with
 * ties to even and saturated. 32f DivC multiplies by 1/value formed once in
 * single precision (so 9/10 gives 0x3F666667); a NaN value is accepted.
 * Statuses: -8 for a NULL pointer, -6 for a width or height below 1; DivC
 * then -16 for a step below 1 and -10 (pelStatusDivisionByZero) when a value
 * equals 0 (or -0.0), writing nothing. */

/* AddC Pel8u */
PELI_API PelStatus peliAddC_8u_C1RSfs(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C1IRSfs(Pel8u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C1RSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u value, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C1IRSfs_L(Pel8u value, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C3RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C3IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C3RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C3IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C4IRSfs(const Pel8u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[4], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_C4IRSfs_L(const Pel8u value[4], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_AC4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_AC4IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_AC4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_8u_AC4IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* AddC Pel16u */
PELI_API PelStatus peliAddC_16u_C1RSfs(const Pel16u* pSrc, int srcStep, Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C1IRSfs(Pel16u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C1RSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u value, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C1IRSfs_L(Pel16u value, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C3RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C3IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C3RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C3IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C4IRSfs(const Pel16u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[4], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_C4IRSfs_L(const Pel16u value[4], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_AC4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_AC4IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_AC4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16u_AC4IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* AddC Pel16s */
PELI_API PelStatus peliAddC_16s_C1RSfs(const Pel16s* pSrc, int srcStep, Pel16s value, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C1IRSfs(Pel16s value, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C1RSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s value, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C1IRSfs_L(Pel16s value, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C3RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C3IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C3RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C3IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[4], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C4IRSfs(const Pel16s value[4], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[4], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_C4IRSfs_L(const Pel16s value[4], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_AC4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_AC4IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_AC4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliAddC_16s_AC4IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* AddC Pel32f */
PELI_API PelStatus peliAddC_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f value, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_C1IR(Pel32f value, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f value, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAddC_32f_C1IR_L(Pel32f value, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAddC_32f_C3R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_C3IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAddC_32f_C3IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAddC_32f_C4R(const Pel32f* pSrc, int srcStep, const Pel32f value[4], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_C4IR(const Pel32f value[4], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[4], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAddC_32f_C4IR_L(const Pel32f value[4], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAddC_32f_AC4R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_AC4IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAddC_32f_AC4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliAddC_32f_AC4IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* SubC Pel8u */
PELI_API PelStatus peliSubC_8u_C1RSfs(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C1IRSfs(Pel8u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C1RSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u value, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C1IRSfs_L(Pel8u value, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C3RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C3IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C3RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C3IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C4IRSfs(const Pel8u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[4], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_C4IRSfs_L(const Pel8u value[4], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_AC4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_AC4IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_AC4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_8u_AC4IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* SubC Pel16u */
PELI_API PelStatus peliSubC_16u_C1RSfs(const Pel16u* pSrc, int srcStep, Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C1IRSfs(Pel16u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C1RSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u value, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C1IRSfs_L(Pel16u value, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C3RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C3IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C3RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C3IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C4IRSfs(const Pel16u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[4], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_C4IRSfs_L(const Pel16u value[4], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_AC4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_AC4IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_AC4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16u_AC4IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* SubC Pel16s */
PELI_API PelStatus peliSubC_16s_C1RSfs(const Pel16s* pSrc, int srcStep, Pel16s value, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C1IRSfs(Pel16s value, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C1RSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s value, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C1IRSfs_L(Pel16s value, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C3RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C3IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C3RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C3IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[4], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C4IRSfs(const Pel16s value[4], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[4], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_C4IRSfs_L(const Pel16s value[4], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_AC4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_AC4IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_AC4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliSubC_16s_AC4IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* SubC Pel32f */
PELI_API PelStatus peliSubC_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f value, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_C1IR(Pel32f value, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f value, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSubC_32f_C1IR_L(Pel32f value, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSubC_32f_C3R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_C3IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSubC_32f_C3IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSubC_32f_C4R(const Pel32f* pSrc, int srcStep, const Pel32f value[4], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_C4IR(const Pel32f value[4], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[4], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSubC_32f_C4IR_L(const Pel32f value[4], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSubC_32f_AC4R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_AC4IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliSubC_32f_AC4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliSubC_32f_AC4IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* MulC Pel8u */
PELI_API PelStatus peliMulC_8u_C1RSfs(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C1IRSfs(Pel8u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C1RSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u value, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C1IRSfs_L(Pel8u value, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C3RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C3IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C3RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C3IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C4IRSfs(const Pel8u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[4], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_C4IRSfs_L(const Pel8u value[4], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_AC4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_AC4IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_AC4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_8u_AC4IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* MulC Pel16u */
PELI_API PelStatus peliMulC_16u_C1RSfs(const Pel16u* pSrc, int srcStep, Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C1IRSfs(Pel16u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C1RSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u value, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C1IRSfs_L(Pel16u value, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C3RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C3IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C3RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C3IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C4IRSfs(const Pel16u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[4], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_C4IRSfs_L(const Pel16u value[4], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_AC4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_AC4IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_AC4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16u_AC4IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* MulC Pel16s */
PELI_API PelStatus peliMulC_16s_C1RSfs(const Pel16s* pSrc, int srcStep, Pel16s value, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C1IRSfs(Pel16s value, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C1RSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s value, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C1IRSfs_L(Pel16s value, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C3RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C3IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C3RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C3IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[4], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C4IRSfs(const Pel16s value[4], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[4], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_C4IRSfs_L(const Pel16s value[4], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_AC4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_AC4IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_AC4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliMulC_16s_AC4IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* MulC Pel32f */
PELI_API PelStatus peliMulC_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f value, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_C1IR(Pel32f value, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f value, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMulC_32f_C1IR_L(Pel32f value, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMulC_32f_C3R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_C3IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMulC_32f_C3IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMulC_32f_C4R(const Pel32f* pSrc, int srcStep, const Pel32f value[4], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_C4IR(const Pel32f value[4], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[4], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMulC_32f_C4IR_L(const Pel32f value[4], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMulC_32f_AC4R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_AC4IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliMulC_32f_AC4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliMulC_32f_AC4IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* DivC Pel8u */
PELI_API PelStatus peliDivC_8u_C1RSfs(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C1IRSfs(Pel8u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C1RSfs_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u value, Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C1IRSfs_L(Pel8u value, Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C3RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C3IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C3RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C3IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C4IRSfs(const Pel8u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[4], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_C4IRSfs_L(const Pel8u value[4], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_AC4RSfs(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_AC4IRSfs(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_AC4RSfs_L(const Pel8u* pSrc, PelIntL srcStep, const Pel8u value[3], Pel8u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_8u_AC4IRSfs_L(const Pel8u value[3], Pel8u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* DivC Pel16u */
PELI_API PelStatus peliDivC_16u_C1RSfs(const Pel16u* pSrc, int srcStep, Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C1IRSfs(Pel16u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C1RSfs_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u value, Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C1IRSfs_L(Pel16u value, Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C3RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C3IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C3RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C3IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C4IRSfs(const Pel16u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[4], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_C4IRSfs_L(const Pel16u value[4], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_AC4RSfs(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_AC4IRSfs(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_AC4RSfs_L(const Pel16u* pSrc, PelIntL srcStep, const Pel16u value[3], Pel16u* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16u_AC4IRSfs_L(const Pel16u value[3], Pel16u* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* DivC Pel16s */
PELI_API PelStatus peliDivC_16s_C1RSfs(const Pel16s* pSrc, int srcStep, Pel16s value, Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C1IRSfs(Pel16s value, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C1RSfs_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s value, Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C1IRSfs_L(Pel16s value, Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C3RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C3IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C3RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C3IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[4], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C4IRSfs(const Pel16s value[4], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[4], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_C4IRSfs_L(const Pel16s value[4], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_AC4RSfs(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel16s* pDst, int dstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_AC4IRSfs(const Pel16s value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_AC4RSfs_L(const Pel16s* pSrc, PelIntL srcStep, const Pel16s value[3], Pel16s* pDst, PelIntL dstStep, PeliSizeL roiSize, int scaleFactor);
PELI_API PelStatus peliDivC_16s_AC4IRSfs_L(const Pel16s value[3], Pel16s* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize, int scaleFactor);

/* DivC Pel32f */
PELI_API PelStatus peliDivC_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f value, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_C1IR(Pel32f value, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f value, Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDivC_32f_C1IR_L(Pel32f value, Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDivC_32f_C3R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_C3IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDivC_32f_C3IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDivC_32f_C4R(const Pel32f* pSrc, int srcStep, const Pel32f value[4], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_C4IR(const Pel32f value[4], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[4], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDivC_32f_C4IR_L(const Pel32f value[4], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDivC_32f_AC4R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_AC4IR(const Pel32f value[3], Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliDivC_32f_AC4R_L(const Pel32f* pSrc, PelIntL srcStep, const Pel32f value[3], Pel32f* pDst, PelIntL dstStep, PeliSizeL roiSize);
PELI_API PelStatus peliDivC_32f_AC4IR_L(const Pel32f value[3], Pel32f* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize);

/* ---- One image: Sqrt, Ln, Abs -------------------------------------------------
 * peliSqrt_32f_C1R: the correctly rounded square root; a negative element
 *   gives the NaN 0xFFC00000 and status 3 (pelStatusSqrtNegArgWarning).
 *   Both steps are rounded down to a multiple of 4 bytes.
 * peliLn_32f_C1R: the natural logarithm, correctly rounded to single
 *   precision in all but vanishingly rare cases; a negative element gives
 *   the NaN 0xFFC00000 and status 8 (pelStatusLnNegArgWarning), a zero of
 *   either sign gives -inf and status 7 (pelStatusLnSingularWarning), which
 *   takes precedence within its row. The status of the first row with a
 *   warning is returned; every element is written.
 * peliAbs_16s_C1R: |src|, with -32768 giving 32767.
 * Statuses: -8, -6, then -16 for a step below 1. */

PELI_API PelStatus peliSqrt_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLn_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAbs_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep, PeliSize roiSize);

#ifdef __cplusplus
}
#endif

#endif /* PELI_ARITH_H */
