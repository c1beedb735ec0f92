/* peli_geometry.h: resize and warps.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_GEOMETRY_H
#define PELI_GEOMETRY_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Shared types ----------------------------------------------------------
 * Offsets of the _L functions are 64 bits wide on every target. */
typedef struct { int64_t x; int64_t y; } PeliPointL;

/* Widths of the frame of source pixels around a region that a method reads. */
typedef struct { int borderLeft; int borderTop; int borderRight; int borderBottom; } PeliBorderSize;

/* ============================================================================
 * Resize
 *
 * A spec, built once per (source size, destination size, method), holds the
 * coordinate tables of both axes; the processing calls only read it, so one
 * spec may serve several threads at once, each with its own work buffer.
 *
 *   1. peliResizeGetSize_*      spec size (and the Init buffer size, 0 here)
 *   2. peliResizeNearestInit_* or peliResizeLinearInit_*  into that memory
 *   3. peliResizeGetBufferSize_* for the widest tile, then one work buffer
 *      per thread
 *   4. per destination tile: peliResizeGetSrcOffset_* (or GetSrcRoi_*) and
 *      the processing call with pSrc at that source pixel.
 *
 * Any tiling of the destination gives exactly the bytes of one call over the
 * whole image.
 *
 * Coordinates: destination pixel i of an axis maps to the source position
 * s = (i + 0.5) x src/dst - 0.5 (pixel centres), computed in double.
 *   Nearest: index = trunc((i + 0.5) x src/dst - 1e-10); a centre that lands
 *   exactly on a pixel boundary takes the lower pixel.
 *   Linear: index = floor(s) and the Q14 weight w = trunc(frac(s) x 16384 +
 *   1e-7) of the right (lower) tap; the left (upper) tap has 16384 - w.
 *
 * Linear arithmetic, per element, with taps p0, p1 of a source row and the
 * upper and lower rows' horizontal results hU, hL:
 *   8u      h = (p0 (16384 - wx) + p1 wx) >> 8            (Q6, truncated)
 *           v = (hU (16384 - wy) + hL wy + 2^19) >> 20
 *   16u     h = (p0 (16384 - wx) + p1 wx + 2^11) >> 12    (Q2, rounded)
 *           v = (hU (16384 - wy) + hL wy + 2^15) >> 16
 *   16s     as 16u on the values plus 32768, minus 32768 again: every
 *           rounding is half up (towards +infinity)
 *   32f     h = p0 a0 + p1 a1 with a0 = (16384 - wx) / 16384, a1 = wx / 16384,
 *           v = hU b0 + hL b1 likewise, each product and sum rounded to
 *           float (no fused multiply-add), 64f the same in double.
 * The results are the same on every processor. The arithmetic depends on the
 * processing function's element type only: a spec built for one type serves
 * the others too.
 *
 * Borders (linear only): a source row or column outside the image (index -1,
 * or the source length) is replaced by its mirror or replicate (kind 3 or 1;
 * kind 4 reads as 1) unless its side is flagged as in memory
 * (pelBorderInMemTop 0x10, Bottom 0x20, Left 0x40, Right 0x80; pelBorderInMem
 * 240 is all four), in which case it is read from memory beside the image.
 * pelBorderConstant is refused (-225); pBorderValue is never read and may be
 * NULL.
 * ========================================================================== */

typedef struct PeliResizeSpec PeliResizeSpec;

/* ---- Sizes ------------------------------------------------------------------
 * interpolation: pelInterpolationNearest (1), pelInterpolationLinear (2);
 * codes 6, 8 and 16 are sized for the high-order methods (their Init functions
 * belong to another family); 0 is refused with -14, others with -23.
 * Spec bytes, A(n) = n rounded up to a multiple of 32:
 *   nearest  (A(dstW) + A(dstH)) x 4 + 264
 *   linear   (A(dstW) + A(dstH)) x 8 + 264
 *   code 6   4 (((4 dstW + 127) & ~31) + ((4 dstH + 127) & ~31)) + 4 (A(dstW) + A(dstH)) + 264
 *   code 16  as code 6 with 6 dstW + 191 and 6 dstH + 191
 *   code 8   (A(dstW) + A(dstH)) x 4 + (A(srcW) + A(srcH)) x 8 + 264
 * The Init buffer is 0 for codes 1, 2 and 8, 4 (A(dstW) + A(dstH)) for 6 and
 * 16. With antialiasing, codes 2, 6 and 16 reserve room for the wider filters
 * of the antialiasing methods (spec: 264 + the sum over both axes of
 * 4 A(dstLen) + 4 A(taps x dstLen), taps = 2, 4 or 6 times
 * ceil(srcLen / dstLen) but at least 2, 4 or 6; Init buffer as for code 6);
 * codes 1 and 8 ignore it and return pelStatusAntialiasingIgnoredWarning (46)
 * with the plain sizes.
 * Checks: out pointers (-8); any dimension 0: pelStatusNoOperation (1), nothing
 * written; negative (-6); code (-23, -14); source too small for the method
 * (-6: linear 2x2, codes 6 and 16 4x4, code 8 at least the destination); a
 * size of 2147483647 or more (-232). The _L form checks dataType after the
 * code: 1, 5, 7, 13 or 19, else pelStatusDataTypeError (-59); dimensions
 * above 2147483647 are pelStatusSizeOverflow (-232). */
PELI_API PelStatus peliResizeGetSize_8u(PeliSize srcSize, PeliSize dstSize, int interpolation,
                                        uint32_t antialiasing, int* pSpecSize, int* pInitBufSize);
PELI_API PelStatus peliResizeGetSize_16u(PeliSize srcSize, PeliSize dstSize, int interpolation,
                                         uint32_t antialiasing, int* pSpecSize, int* pInitBufSize);
PELI_API PelStatus peliResizeGetSize_16s(PeliSize srcSize, PeliSize dstSize, int interpolation,
                                         uint32_t antialiasing, int* pSpecSize, int* pInitBufSize);
PELI_API PelStatus peliResizeGetSize_32f(PeliSize srcSize, PeliSize dstSize, int interpolation,
                                         uint32_t antialiasing, int* pSpecSize, int* pInitBufSize);
PELI_API PelStatus peliResizeGetSize_64f(PeliSize srcSize, PeliSize dstSize, int interpolation,
                                         uint32_t antialiasing, int* pSpecSize, int* pInitBufSize);
PELI_API PelStatus peliResizeGetSize_L(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType,
                                       int interpolation, uint32_t antialiasing, PelIntL* pSpecSize,
                                       PelIntL* pInitBufSize);

/* ---- Init ---------------------------------------------------------------------
 * pSpec: a block of the GetSize size; the spec is used from its first 64-byte
 * aligned address. Checks: pSpec (-8); any dimension 0 (1, nothing done);
 * negative, or for linear a source below 2 in either dimension (-6); _L:
 * dimensions above 2147483647 (-232), then dataType (-59). */
PELI_API PelStatus peliResizeNearestInit_8u(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeNearestInit_16u(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeNearestInit_16s(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeNearestInit_32f(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeNearestInit_L(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType,
                                           PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeLinearInit_8u(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeLinearInit_8u_L(PeliSizeL srcSize, PeliSizeL dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeLinearInit_16u(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeLinearInit_16s(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeLinearInit_32f(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeLinearInit_64f(PeliSize srcSize, PeliSize dstSize, PeliResizeSpec* pSpec);
PELI_API PelStatus peliResizeLinearInit_L(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType,
                                          PeliResizeSpec* pSpec);

/* ---- Queries on a spec ----------------------------------------------------------
 * GetBufferSize: the work buffer of a processing call whose tile is at most
 * dstSize wide, for any element type and the given channel count C (1, 3 or
 * 4): 48 W C + 8 W + 640 bytes for linear, 24 W C + 4 W + 384 for nearest
 * (W = dstSize.width; the height does not matter). It holds the line buffers
 * and the lookup plans of one call. Checks: pointers (-8), width or height 0
 * (1), spec (-13), channels (-53), negative (-6), 2147483647 or more (-232).
 * GetBorderSize: the source pixels read beyond a tile's source region on each
 * side (1 for linear, 0 for nearest).
 * GetSrcOffset: the source pixel of a destination offset,
 * floor(offset x srcLen / dstLen); -11 for an offset outside the destination.
 * GetSrcRoi: the source region a tile needs (the tile first clipped to the
 * destination): from GetSrcOffset to the last tile pixel's (left or upper)
 * index, or to the source's end for a tile at the destination's end. Returns
 * pelStatusAdjusted (48) when the tile's width or height alone exceeds the
 * destination's. */
PELI_API PelStatus peliResizeGetBufferSize_8u(const PeliResizeSpec* pSpec, PeliSize dstSize,
                                              uint32_t numChannels, int* pBufSize);
PELI_API PelStatus peliResizeGetBufferSize_16u(const PeliResizeSpec* pSpec, PeliSize dstSize,
                                               uint32_t numChannels, int* pBufSize);
PELI_API PelStatus peliResizeGetBufferSize_16s(const PeliResizeSpec* pSpec, PeliSize dstSize,
                                               uint32_t numChannels, int* pBufSize);
PELI_API PelStatus peliResizeGetBufferSize_32f(const PeliResizeSpec* pSpec, PeliSize dstSize,
                                               uint32_t numChannels, int* pBufSize);
PELI_API PelStatus peliResizeGetBufferSize_64f(const PeliResizeSpec* pSpec, PeliSize dstSize,
                                               uint32_t numChannels, int* pBufSize);
PELI_API PelStatus peliResizeGetBufferSize_L(const PeliResizeSpec* pSpec, PeliSizeL dstSize,
                                             uint32_t numChannels, PelIntL* pBufSize);

PELI_API PelStatus peliResizeGetBorderSize_8u(const PeliResizeSpec* pSpec, PeliBorderSize* pBorderSize);
PELI_API PelStatus peliResizeGetBorderSize_16u(const PeliResizeSpec* pSpec, PeliBorderSize* pBorderSize);
PELI_API PelStatus peliResizeGetBorderSize_16s(const PeliResizeSpec* pSpec, PeliBorderSize* pBorderSize);
PELI_API PelStatus peliResizeGetBorderSize_32f(const PeliResizeSpec* pSpec, PeliBorderSize* pBorderSize);
PELI_API PelStatus peliResizeGetBorderSize_64f(const PeliResizeSpec* pSpec, PeliBorderSize* pBorderSize);
PELI_API PelStatus peliResizeGetBorderSize_L(const PeliResizeSpec* pSpec, PeliBorderSize* pBorderSize);

PELI_API PelStatus peliResizeGetSrcOffset_8u(const PeliResizeSpec* pSpec, PeliPoint dstOffset,
                                             PeliPoint* pSrcOffset);
PELI_API PelStatus peliResizeGetSrcOffset_16u(const PeliResizeSpec* pSpec, PeliPoint dstOffset,
                                              PeliPoint* pSrcOffset);
PELI_API PelStatus peliResizeGetSrcOffset_16s(const PeliResizeSpec* pSpec, PeliPoint dstOffset,
                                              PeliPoint* pSrcOffset);
PELI_API PelStatus peliResizeGetSrcOffset_32f(const PeliResizeSpec* pSpec, PeliPoint dstOffset,
                                              PeliPoint* pSrcOffset);
PELI_API PelStatus peliResizeGetSrcOffset_64f(const PeliResizeSpec* pSpec, PeliPoint dstOffset,
                                              PeliPoint* pSrcOffset);
PELI_API PelStatus peliResizeGetSrcOffset_L(const PeliResizeSpec* pSpec, PeliPointL dstOffset,
                                            PeliPointL* pSrcOffset);

PELI_API PelStatus peliResizeGetSrcRoi_8u(const PeliResizeSpec* pSpec, PeliPoint dstRoiOffset,
                                          PeliSize dstRoiSize, PeliPoint* pSrcRoiOffset,
                                          PeliSize* pSrcRoiSize);
PELI_API PelStatus peliResizeGetSrcRoi_16u(const PeliResizeSpec* pSpec, PeliPoint dstRoiOffset,
                                           PeliSize dstRoiSize, PeliPoint* pSrcRoiOffset,
                                           PeliSize* pSrcRoiSize);
PELI_API PelStatus peliResizeGetSrcRoi_16s(const PeliResizeSpec* pSpec, PeliPoint dstRoiOffset,
                                           PeliSize dstRoiSize, PeliPoint* pSrcRoiOffset,
                                           PeliSize* pSrcRoiSize);
PELI_API PelStatus peliResizeGetSrcRoi_32f(const PeliResizeSpec* pSpec, PeliPoint dstRoiOffset,
                                           PeliSize dstRoiSize, PeliPoint* pSrcRoiOffset,
                                           PeliSize* pSrcRoiSize);
PELI_API PelStatus peliResizeGetSrcRoi_64f(const PeliResizeSpec* pSpec, PeliPoint dstRoiOffset,
                                           PeliSize dstRoiSize, PeliPoint* pSrcRoiOffset,
                                           PeliSize* pSrcRoiSize);
PELI_API PelStatus peliResizeGetSrcRoi_L(const PeliResizeSpec* pSpec, PeliPointL dstRoiOffset,
                                         PeliSizeL dstRoiSize, PeliPointL* pSrcRoiOffset,
                                         PeliSizeL* pSrcRoiSize);

/* ---- Processing ---------------------------------------------------------------
 * pSrc points at the source pixel that GetSrcOffset gives for dstOffset;
 * pDst at the tile's first pixel; dstOffset and dstSize name the tile inside
 * the spec's destination. A tile that runs past the destination is clipped.
 * Checks, linear: border (kind 4 read as 1; above 255, or neither 240 nor
 * kind 1 or 3: -225); pSrc, pDst, pSpec, pBuffer (-8); tile width or height
 * 0 (1, nothing written); spec magic (-13); negative tile (-6); offset
 * outside the destination (-11); antialiasing spec (-14); a spec of another
 * method (-13). Nearest: the same without the border. Returns 48 (the tile
 * was written) when the tile's width exceeds the destination width or its
 * height the destination height. */
/* Nearest neighbour: 8u, 16u, 16s, 32f; one, three or four channels. */
PELI_API PelStatus peliResizeNearest_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeNearest_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, const PeliResizeSpec* pSpec,
        Pel8u* pBuffer);

/* Bilinear: 8u, 16u, 16s, 32f, 64f; one, three or four channels. */
PELI_API PelStatus peliResizeLinear_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel8u* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel8u* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel8u* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel8u* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel8u* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel8u* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel16u* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel16u* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel16u* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel16u* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel16u* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel16u* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel16s* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel16s* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel16s* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel16s* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel16s* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel16s* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel32f* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel32f* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel32f* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel32f* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel32f* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel32f* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel64f* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_64f_C1R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel64f* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_64f_C3R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel64f* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_64f_C3R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel64f* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_64f_C4R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstOffset, PeliSize dstSize, PeliBorderType border, const Pel64f* pBorderValue,
        const PeliResizeSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliResizeLinear_64f_C4R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst,
        PelIntL dstStep, PeliPointL dstOffset, PeliSizeL dstSize, PeliBorderType border,
        const Pel64f* pBorderValue, const PeliResizeSpec* pSpec, Pel8u* pBuffer);

/* ============================================================================
 * Warps: affine and perspective
 *
 * Matrices are row-major doubles: a 2x3 affine matrix maps (x, y) to
 * (c00 x + c01 y + c02, c10 x + c11 y + c12); a 3x3 perspective matrix maps it
 * to ((c00 x + c01 y + c02) / w, (c10 x + c11 y + c12) / w) with
 * w = c20 x + c21 y + c22. Quadrangles are four points, bounding boxes two
 * (minimum corner, maximum corner). The corners of a rectangle, in quadrangle
 * order: (x, y), (x + width - 1, y), (x + width - 1, y + height - 1),
 * (x, y + height - 1).
 * ========================================================================== */

/* ---- Matrix helpers -----------------------------------------------------------
 * GetRotateTransform: the rotation by angle degrees (reduced to [0, 360)),
 * c00 = c11 = cos, c01 = sin, c10 = -sin, then the shifts; 0, 90, 180 and 270
 * degrees give exact 0 and +-1 entries (450 is 90, -90 is 270). A non-finite
 * angle is pelStatusOutOfRange (-11), before the pointer check.
 * GetRotateShift: the shifts that keep (xCenter, yCenter) in place under that
 * rotation.
 * GetAffineTransform: the matrix that carries the rectangle's corners 0, 1, 2
 * onto quadrangle points 0, 1, 2. Checks: pointers (-8); x or y negative,
 * width or height below 1 (-6); a quadrangle with a straight or reflex
 * corner (-58); a rectangle one pixel wide or high (-57). Returns
 * pelStatusNotParallelogramWarning (28), with the matrix, when the quadrangle
 * is not a parallelogram within a relative 1e-10.
 * GetAffineQuad, GetPerspectiveQuad: the rectangle's corners carried through
 * the matrix; pelStatusCoefficientsSingular (-56), with the quadrangle
 * written, when it is degenerate or not convex.
 * GetAffineBound, GetPerspectiveBound: the box around that quadrangle, with
 * the quadrangle's status.
 * GetPerspectiveTransform: the matrix (c22 = 1) that carries the four corners
 * onto the four points; checks as GetAffineTransform, without the warning. */
PELI_API PelStatus peliGetRotateTransform(double angle, double xShift, double yShift, double coeffs[2][3]);
PELI_API PelStatus peliGetRotateShift(double xCenter, double yCenter, double angle, double* xShift,
                                      double* yShift);
PELI_API PelStatus peliGetAffineTransform(PeliRect srcRoi, const double quad[4][2], double coeffs[2][3]);
PELI_API PelStatus peliGetAffineQuad(PeliRect srcRoi, double quad[4][2], const double coeffs[2][3]);
PELI_API PelStatus peliGetAffineBound(PeliRect srcRoi, double bound[2][2], const double coeffs[2][3]);
PELI_API PelStatus peliGetPerspectiveTransform(PeliRect srcRoi, const double quad[4][2], double coeffs[3][3]);
PELI_API PelStatus peliGetPerspectiveQuad(PeliRect srcRoi, double quad[4][2], const double coeffs[3][3]);
PELI_API PelStatus peliGetPerspectiveBound(PeliRect srcRoi, double bound[2][2], const double coeffs[3][3]);

/* ---- Warp spec ----------------------------------------------------------------
 *   1. peliWarpAffineGetSize (or _L, or peliWarpPerspectiveGetSize): the spec
 *      size and the size of the work buffer of a processing call
 *   2. an Init of the method into the spec
 *   3. per destination tile: the processing call with pSrc at source pixel
 *      (0, 0), pDst at the tile's first pixel, the tile's offset and size.
 * The spec starts at pSpec itself (no alignment needed); its first word is
 * 0x4B617394. One spec may serve several threads, each with its buffer.
 *
 * Direction: 0, the matrix carries source to destination (as cv::warpAffine
 * without WARP_INVERSE_MAP); 1, it carries destination to source (its inverse
 * is the transform, as with WARP_INVERSE_MAP). Either way a destination pixel
 * (x, y), with integer coordinates at pixel centres, is carried back to the
 * source point (sx, sy); for perspective a pixel whose w is not positive has
 * no source point and is read as lying far outside.
 *
 * Rounding: positions are in 1/1024 pixel, Q(v) = floor(1024 v + 0.5) with v
 * held to +-2^30 first; every product and sum is one double rounding (never
 * fused, to nearest whatever the caller's mode). Affine: the column and row
 * terms are rounded apart, X = Q(M00 x) + Q(M01 y + M02) (M the matrix that
 * carries destination to source; likewise Y). Perspective: k = 1024 / w,
 * X = floor(sx k + 0.5), held likewise. Then xi = floor(X / 1024),
 * fx = X - 1024 xi (likewise y); the error against exact arithmetic is at
 * most 1/1024 pixel. A pixel depends only on its position: any tiling, any
 * processor gives the same bytes.
 *   Nearest: pixel round(X / 1024), halves up.
 *   Linear:  taps xi, xi + 1 and yi, yi + 1 with weights 1024 - fx, fx.
 *            Integer types: t = p00 (1024 - fx) + p01 fx (upper row), b likewise,
 *            (t (1024 - fy) + b fy + 2^19) >> 20. Floats, in the element's
 *            type: t = p00 (1 - fx/1024) + p01 fx/1024, ..., t (1 - fy/1024) + b fy/1024.
 *   Cubic:   taps xi - 1 .. xi + 2 with the weights of the (B, C) cubic of
 *            Mitchell and Netravali at t = fx / 1024 (B = 0, C = 0.5 is
 *            Catmull-Rom; B = 0, C = 0.75 is cv::INTER_CUBIC); integer types
 *            in Q14 per axis (the weights rounded, the second set to make
 *            16384), rounded half up and saturated; floats in the type.
 *   A tap of weight 0 is not read (the pixel itself stands for it): an exact
 *   position on the last row or column needs nothing beyond it.
 *
 * Border (checked by GetSize, Init and the processing calls: above 255, or
 * neither 240 nor kind 1, 6 or 7 is -225). A tap outside the source is
 *   kind 1 pelBorderReplicate: the nearest source pixel;
 *   kind 6 pelBorderConstant: the border value (pBorderValue, one double per
 *         channel; integer types round it to nearest, ties to even, and
 *         saturate);
 *   kind 7: the destination pixel is left as it was (cv::BORDER_TRANSPARENT).
 * The in-memory flags (0x10 top, 0x20 bottom, 0x40 left, 0x80 right) let
 * taps read up to 1 (linear) or 2 (cubic) pixels beyond that side from
 * memory; 240 is all four sides, replicated beyond that.
 * ========================================================================== */

typedef struct PeliWarpSpec PeliWarpSpec;

/* Checks, in order: border (-225); pSpecSize, pInitBufSize, coeffs (-8); a
 * width or height below 1 (-6); a side above 33554431 (-232); dataType (1, 5,
 * 7, 13, 19, else -59); interpolation (1, 2, 6, else -23); direction (-231); a
 * singular matrix (-56: affine, |c00 c11 - c01 c10| relative to |c00 c11| at
 * most 1e-10; perspective, |det| at most 1e-10 max|c|^3); a size of
 * 2147483647 or more (-232). The spec is 256 bytes; *pInitBufSize is the work
 * buffer of a processing call, 16 x dstSize.width + 64 bytes. */
PELI_API PelStatus peliWarpAffineGetSize(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[2][3], int interpolation, int direction, PeliBorderType border,
        int* pSpecSize, int* pInitBufSize);
PELI_API PelStatus peliWarpAffineGetSize_L(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType,
        const double coeffs[2][3], int interpolation, int direction, PeliBorderType border,
        PelIntL* pSpecSize, PelIntL* pInitBufSize);
PELI_API PelStatus peliWarpPerspectiveGetSize(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[3][3], int interpolation, int direction, PeliBorderType border,
        int* pSpecSize, int* pInitBufSize);

/* Inits. Checks, in order: border (-225); coeffs, pSpec, and pBorderValue
 * for kind 6 (-8; otherwise it may be NULL); sizes (-6, -232) and dataType
 * (-59) as GetSize; direction (-231); numChannels not 1, 3 or 4 (-53); cubic
 * B or C not finite (-5); smoothEdge not 0 (-14: smooth edges are not
 * provided); a singular matrix (-56). */
PELI_API PelStatus peliWarpAffineNearestInit(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[2][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpAffineNearestInit_L(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType,
        const double coeffs[2][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpAffineLinearInit(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[2][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpAffineLinearInit_L(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType,
        const double coeffs[2][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpAffineCubicInit(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[2][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, double valueB, double valueC, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpAffineCubicInit_L(PeliSizeL srcSize, PeliSizeL dstSize, PelDataType dataType,
        const double coeffs[2][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, double valueB, double valueC, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpPerspectiveNearestInit(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[3][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpPerspectiveLinearInit(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[3][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, int smoothEdge, PeliWarpSpec* pSpec);
PELI_API PelStatus peliWarpPerspectiveCubicInit(PeliSize srcSize, PeliSize dstSize, PelDataType dataType,
        const double coeffs[3][3], int direction, int numChannels, PeliBorderType border,
        const double* pBorderValue, double valueB, double valueC, int smoothEdge, PeliWarpSpec* pSpec);

/* ---- Processing ---------------------------------------------------------------
 * Checks, in order: a non-NULL spec without the magic (-13, before the
 * pointers); pSrc, pDst, pSpec, pBuffer (-8); a width 0 with a height not
 * negative, or a height 0 with a positive width (pelStatusNoOperation, 1); a
 * spec of another method, element type, channel count or of the other warp
 * (-13); a width or height below 1 (-6); an offset outside the destination
 * (-11); a status Init recorded in the spec, returned as it is; the border
 * (-225). A tile that runs past the destination is cut to fit and the call
 * returns pelStatusAdjusted (48). Steps are not checked. pBuffer: the
 * GetSize buffer size (16 x tile width + 64 bytes at least). */
/* Affine nearest: 8u, 16u, 16s, 32f, 64f; one, three or four channels. */
PELI_API PelStatus peliWarpAffineNearest_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_64f_C1R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_64f_C3R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_64f_C3R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_64f_C4R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineNearest_64f_C4R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
/* Affine linear: 8u, 16u, 16s, 32f, 64f; one, three or four channels. */
PELI_API PelStatus peliWarpAffineLinear_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_64f_C1R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_64f_C3R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_64f_C3R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_64f_C4R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineLinear_64f_C4R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
/* Affine cubic: 8u, 16u, 16s, 32f, 64f; one, three or four channels. */
PELI_API PelStatus peliWarpAffineCubic_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_8u_C1R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_8u_C3R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_8u_C4R_L(const Pel8u* pSrc, PelIntL srcStep, Pel8u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16u_C1R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16u_C3R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16u_C4R_L(const Pel16u* pSrc, PelIntL srcStep, Pel16u* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16s_C1R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16s_C3R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_16s_C4R_L(const Pel16s* pSrc, PelIntL srcStep, Pel16s* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_32f_C1R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_32f_C3R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_32f_C4R_L(const Pel32f* pSrc, PelIntL srcStep, Pel32f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_64f_C1R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_64f_C3R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_64f_C3R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_64f_C4R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpAffineCubic_64f_C4R_L(const Pel64f* pSrc, PelIntL srcStep, Pel64f* pDst, PelIntL dstStep,
        PeliPointL dstRoiOffset, PeliSizeL dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
/* Perspective nearest: 8u, 16u, 16s, 32f, 64f; one, three or four channels. */
PELI_API PelStatus peliWarpPerspectiveNearest_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_64f_C3R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveNearest_64f_C4R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
/* Perspective linear: 8u, 16u, 16s, 32f, 64f; one, three or four channels. */
PELI_API PelStatus peliWarpPerspectiveLinear_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_64f_C3R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveLinear_64f_C4R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
/* Perspective cubic: 8u, 16u, 16s, 32f, 64f; one, three or four channels. */
PELI_API PelStatus peliWarpPerspectiveCubic_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_64f_C3R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);
PELI_API PelStatus peliWarpPerspectiveCubic_64f_C4R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
        PeliPoint dstRoiOffset, PeliSize dstRoiSize, const PeliWarpSpec* pSpec, Pel8u* pBuffer);

#ifdef __cplusplus
}
#endif

#endif /* PELI_GEOMETRY_H */
