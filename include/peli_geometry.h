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

#ifdef __cplusplus
}
#endif

#endif /* PELI_GEOMETRY_H */
