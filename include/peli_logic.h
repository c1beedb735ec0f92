/* peli_logic.h: bitwise logic (And, Or, Xor, Not) and shifts of integer images.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_LOGIC_H
#define PELI_LOGIC_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif
/* ---- And, Or, Xor of two images ----------------------------------------------
 * pDst = pSrc1 AND/OR/XOR pSrc2, element by element; in place (IR)
 * pSrcDst = pSrc AND/OR/XOR pSrcDst. The result depends on the bits only,
 * so the element type says nothing but the pixel size. AC4 forms never write
 * the alpha (fourth) channel of the destination: it keeps its value.
 *
 * Every function of this header checks, in this order and stopping at the
 * first failure: every pointer non-NULL (pelStatusNullPointer, -8); every
 * step at least 1 (pelStatusBadStep, -16); width and height at least 1
 * (pelStatusBadSize, -6). Steps are checked before sizes. On an error
 * nothing is written. Steps are byte counts and need not be multiples of the
 * element size. Images of one call must not overlap except where a source
 * is the destination itself (the IR forms, or pSrc == pDst). */

/* Pel8u */
PELI_API PelStatus peliAnd_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_8u_AC4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_8u_C1IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_8u_C3IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_8u_C4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_8u_AC4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliAnd_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_16u_AC4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_16u_C1IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_16u_C3IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_16u_C4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_16u_AC4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliAnd_32s_C1R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_32s_C3R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_32s_C4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_32s_AC4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_32s_C1IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_32s_C3IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_32s_C4IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAnd_32s_AC4IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- Or ---------------------------------------------------------------------- */

/* Pel8u */
PELI_API PelStatus peliOr_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_8u_AC4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_8u_C1IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_8u_C3IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_8u_C4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_8u_AC4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliOr_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_16u_AC4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_16u_C1IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_16u_C3IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_16u_C4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_16u_AC4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliOr_32s_C1R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_32s_C3R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_32s_C4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_32s_AC4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_32s_C1IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_32s_C3IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_32s_C4IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOr_32s_AC4IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- Xor --------------------------------------------------------------------- */

/* Pel8u */
PELI_API PelStatus peliXor_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_8u_AC4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_8u_C1IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_8u_C3IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_8u_C4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_8u_AC4IR(const Pel8u* pSrc, int srcStep, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliXor_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_16u_AC4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_16u_C1IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_16u_C3IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_16u_C4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_16u_AC4IR(const Pel16u* pSrc, int srcStep, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliXor_32s_C1R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_32s_C3R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_32s_C4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_32s_AC4R(const Pel32s* pSrc1, int src1Step, const Pel32s* pSrc2, int src2Step, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_32s_C1IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_32s_C3IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_32s_C4IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXor_32s_AC4IR(const Pel32s* pSrc, int srcStep, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- And, Or, Xor with a constant --------------------------------------------
 * pDst = pSrc AND/OR/XOR value; channel k of every pixel uses value[k] (C3,
 * C4, AC4; AC4 takes three values and keeps the destination's alpha). The IR
 * forms work on pSrcDst in place. */

/* Pel8u */
PELI_API PelStatus peliAndC_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_8u_C3R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_8u_C4R(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_8u_AC4R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_8u_C1IR(Pel8u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_8u_C3IR(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_8u_C4IR(const Pel8u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_8u_AC4IR(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliAndC_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_16u_C3R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_16u_C4R(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_16u_AC4R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_16u_C1IR(Pel16u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_16u_C3IR(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_16u_C4IR(const Pel16u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_16u_AC4IR(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliAndC_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32s value, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_32s_C3R(const Pel32s* pSrc, int srcStep, const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_32s_C4R(const Pel32s* pSrc, int srcStep, const Pel32s value[4], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_32s_AC4R(const Pel32s* pSrc, int srcStep, const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_32s_C1IR(Pel32s value, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_32s_C3IR(const Pel32s value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_32s_C4IR(const Pel32s value[4], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliAndC_32s_AC4IR(const Pel32s value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- OrC --------------------------------------------------------------------- */

/* Pel8u */
PELI_API PelStatus peliOrC_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_8u_C3R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_8u_C4R(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_8u_AC4R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_8u_C1IR(Pel8u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_8u_C3IR(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_8u_C4IR(const Pel8u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_8u_AC4IR(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliOrC_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_16u_C3R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_16u_C4R(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_16u_AC4R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_16u_C1IR(Pel16u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_16u_C3IR(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_16u_C4IR(const Pel16u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_16u_AC4IR(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliOrC_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32s value, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_32s_C3R(const Pel32s* pSrc, int srcStep, const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_32s_C4R(const Pel32s* pSrc, int srcStep, const Pel32s value[4], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_32s_AC4R(const Pel32s* pSrc, int srcStep, const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_32s_C1IR(Pel32s value, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_32s_C3IR(const Pel32s value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_32s_C4IR(const Pel32s value[4], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliOrC_32s_AC4IR(const Pel32s value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- XorC -------------------------------------------------------------------- */

/* Pel8u */
PELI_API PelStatus peliXorC_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_8u_C3R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_8u_C4R(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_8u_AC4R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_8u_C1IR(Pel8u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_8u_C3IR(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_8u_C4IR(const Pel8u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_8u_AC4IR(const Pel8u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliXorC_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u value, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_16u_C3R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_16u_C4R(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_16u_AC4R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_16u_C1IR(Pel16u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_16u_C3IR(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_16u_C4IR(const Pel16u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_16u_AC4IR(const Pel16u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliXorC_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32s value, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_32s_C3R(const Pel32s* pSrc, int srcStep, const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_32s_C4R(const Pel32s* pSrc, int srcStep, const Pel32s value[4], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_32s_AC4R(const Pel32s* pSrc, int srcStep, const Pel32s value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_32s_C1IR(Pel32s value, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_32s_C3IR(const Pel32s value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_32s_C4IR(const Pel32s value[4], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliXorC_32s_AC4IR(const Pel32s value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- Not ---------------------------------------------------------------------
 * pDst = NOT pSrc (pSrc XOR 255); AC4 keeps the destination's alpha. */
PELI_API PelStatus peliNot_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliNot_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliNot_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliNot_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliNot_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliNot_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliNot_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliNot_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- Shifts by a constant count ----------------------------------------------
 * pDst = pSrc << value (LShiftC) or pSrc >> value (RShiftC), element by
 * element; C3, C4 and AC4 forms shift channel k by value[k] (AC4: three
 * counts, alpha kept). Counts are unsigned. Left shifts drop the bits that
 * leave the element. Right shifts of 8u and 16u are logical, of 16s and
 * 32s arithmetic. A count of at least the element's width in bits gives 0,
 * except for the arithmetic right shifts, where every element becomes its
 * sign (0 or -1) however large the count. A count of 0 copies. */

/* Pel8u */
PELI_API PelStatus peliLShiftC_8u_C1R(const Pel8u* pSrc, int srcStep, Pel32u value, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_8u_C3R(const Pel8u* pSrc, int srcStep, const Pel32u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_8u_C4R(const Pel8u* pSrc, int srcStep, const Pel32u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_8u_AC4R(const Pel8u* pSrc, int srcStep, const Pel32u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_8u_C1IR(Pel32u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_8u_C3IR(const Pel32u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_8u_C4IR(const Pel32u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_8u_AC4IR(const Pel32u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliLShiftC_16u_C1R(const Pel16u* pSrc, int srcStep, Pel32u value, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_16u_C3R(const Pel16u* pSrc, int srcStep, const Pel32u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_16u_C4R(const Pel16u* pSrc, int srcStep, const Pel32u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_16u_AC4R(const Pel16u* pSrc, int srcStep, const Pel32u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_16u_C1IR(Pel32u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_16u_C3IR(const Pel32u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_16u_C4IR(const Pel32u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_16u_AC4IR(const Pel32u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliLShiftC_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32u value, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_32s_C3R(const Pel32s* pSrc, int srcStep, const Pel32u value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_32s_C4R(const Pel32s* pSrc, int srcStep, const Pel32u value[4], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_32s_AC4R(const Pel32s* pSrc, int srcStep, const Pel32u value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_32s_C1IR(Pel32u value, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_32s_C3IR(const Pel32u value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_32s_C4IR(const Pel32u value[4], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliLShiftC_32s_AC4IR(const Pel32u value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* ---- RShiftC ----------------------------------------------------------------- */

/* Pel8u */
PELI_API PelStatus peliRShiftC_8u_C1R(const Pel8u* pSrc, int srcStep, Pel32u value, Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_8u_C3R(const Pel8u* pSrc, int srcStep, const Pel32u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_8u_C4R(const Pel8u* pSrc, int srcStep, const Pel32u value[4], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_8u_AC4R(const Pel8u* pSrc, int srcStep, const Pel32u value[3], Pel8u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_8u_C1IR(Pel32u value, Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_8u_C3IR(const Pel32u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_8u_C4IR(const Pel32u value[4], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_8u_AC4IR(const Pel32u value[3], Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16u */
PELI_API PelStatus peliRShiftC_16u_C1R(const Pel16u* pSrc, int srcStep, Pel32u value, Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16u_C3R(const Pel16u* pSrc, int srcStep, const Pel32u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16u_C4R(const Pel16u* pSrc, int srcStep, const Pel32u value[4], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16u_AC4R(const Pel16u* pSrc, int srcStep, const Pel32u value[3], Pel16u* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16u_C1IR(Pel32u value, Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16u_C3IR(const Pel32u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16u_C4IR(const Pel32u value[4], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16u_AC4IR(const Pel32u value[3], Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel16s */
PELI_API PelStatus peliRShiftC_16s_C1R(const Pel16s* pSrc, int srcStep, Pel32u value, Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16s_C3R(const Pel16s* pSrc, int srcStep, const Pel32u value[3], Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16s_C4R(const Pel16s* pSrc, int srcStep, const Pel32u value[4], Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16s_AC4R(const Pel16s* pSrc, int srcStep, const Pel32u value[3], Pel16s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16s_C1IR(Pel32u value, Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16s_C3IR(const Pel32u value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16s_C4IR(const Pel32u value[4], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_16s_AC4IR(const Pel32u value[3], Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize);

/* Pel32s */
PELI_API PelStatus peliRShiftC_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32u value, Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_32s_C3R(const Pel32s* pSrc, int srcStep, const Pel32u value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_32s_C4R(const Pel32s* pSrc, int srcStep, const Pel32u value[4], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_32s_AC4R(const Pel32s* pSrc, int srcStep, const Pel32u value[3], Pel32s* pDst, int dstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_32s_C1IR(Pel32u value, Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_32s_C3IR(const Pel32u value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_32s_C4IR(const Pel32u value[4], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);
PELI_API PelStatus peliRShiftC_32s_AC4IR(const Pel32u value[3], Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize);

#ifdef __cplusplus
}
#endif

#endif /* PELI_LOGIC_H */
