/* peli_transform.h: image FFT.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_TRANSFORM_H
#define PELI_TRANSFORM_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Real 2-D FFT -------------------------------------------------------------
 * The transform of a real 32f image of 2^orderX x 2^orderY pixels into its
 * packed spectrum, and back. X(u, v) is the spectrum at horizontal frequency
 * u and vertical frequency v (forward kernel exp(-2 pi i (u x / W + v y / H))),
 * W = 2^orderX, H = 2^orderY. The packed spectrum has W x H reals:
 *   - row 0: column 0 holds X(0, 0); columns 2u - 1 and 2u the real and
 *     imaginary parts of X(u, 0), u = 1 .. W/2 - 1; column W - 1 (W even)
 *     holds X(W/2, 0);
 *   - column 0, rows 1 and below: rows 2v - 1 and 2v hold X(0, v), and row
 *     H - 1 (H even) holds X(0, H/2); for W even, column W - 1 holds the
 *     column u = W/2 in the same way;
 *   - rows r = 1 .. H - 1, columns 2u - 1 and 2u: X(u, r), u = 1 .. W/2 - 1.
 * Every value marked "holds X" above is real (its imaginary part is zero).
 *
 * Use: peliFFTGetSize_R_32f reports three byte counts; allocate a spec block
 * of the first, call peliFFTInit_R_32f on it, and pass a work buffer of the
 * third to each transform. The init buffer is not needed (its size is 0 and
 * the pointer may be NULL). Blocks and buffers may have any alignment: they
 * are used from their first 64-byte-aligned address and the sizes include
 * the slack for that. A spec holds pointers into its own block: build it
 * where it is used, do not copy it. It is only read by the transforms, so
 * one spec may serve several threads at once, each with its own buffer.
 * The work size is 0 only for the 1 x 1 transform; a NULL buffer is then
 * accepted.
 *
 * Steps are in bytes; rows advance by the step rounded down to a multiple
 * of 4.
 *
 * Results are bit-identical on every processor and instruction set, 32-bit
 * and 64-bit, and independent of the caller's rounding mode: the twiddle
 * factors are computed in double precision and rounded to float once, and
 * every sum is taken in the same order everywhere. The forward transform
 * may run in place (pSrc == pDst with equal steps); so may the inverse. */

/* Normalisation flags. */
enum {
    pelFftDivFwdByN   = 1, /* forward result divided by W x H */
    pelFftDivInvByN   = 2, /* inverse result divided by W x H */
    pelFftDivBySqrtN  = 4, /* both divided by sqrt(W x H) */
    pelFftNoDivByAny  = 8  /* no scaling: inverse(forward(x)) = W x H x x */
};

/* The spec block, opaque. */
typedef struct PeliFFTSpec_R_32f PeliFFTSpec_R_32f;

/* Byte sizes of the spec block, the init buffer (always 0) and the work
 * buffer. Statuses: -8 for a NULL result pointer; -17 for an order of 30 or
 * more (negative orders included); -18 for a flag not listed above; -232 when
 * a size exceeds 2147483647 bytes. Nothing is written on an error. */
PELI_API PelStatus peliFFTGetSize_R_32f(int orderX, int orderY, int flag, PelHintAlgorithm hint,
                                        int* pSpecSize, int* pInitSize, int* pBufferSize);

/* Builds the spec in pSpec (a block of the reported size). pMemInit is not
 * used. The hint is recorded and does not change results. Statuses, in this
 * order: -17 for an order of 31 or more, -8 for a NULL spec, -17 for an order
 * of 30, -18 for a bad flag; nothing is written on an error. */
PELI_API PelStatus peliFFTInit_R_32f(int orderX, int orderY, int flag, PelHintAlgorithm hint,
                                     PeliFFTSpec_R_32f* pSpec, Pel8u* pMemInit);

/* Forward transform of a 2^orderX x 2^orderY real image into its packed
 * spectrum. Statuses, in this order: -8 for a NULL spec, -13 for a block
 * that is not an FFT_R_32f spec, -8 for a NULL source or destination, -16
 * for a step below 1, -8 for a NULL buffer when the spec needs one. Steps
 * are not compared with the row length. */
PELI_API PelStatus peliFFTFwd_RToPack_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                              const PeliFFTSpec_R_32f* pSpec, Pel8u* pBuffer);

/* Inverse transform of a packed spectrum into a real image; the statuses of
 * the forward transform. */
PELI_API PelStatus peliFFTInv_PackToR_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                              const PeliFFTSpec_R_32f* pSpec, Pel8u* pBuffer);

/* ---- Products of packed spectra ----------------------------------------------
 * Element by element in the packed layout above, for any W x H (not only
 * powers of two): the real values (X(0, 0), X(W/2, 0), X(0, H/2) and
 * X(W/2, H/2) where W or H is even) are multiplied as reals, every
 * (real, imaginary) pair as complex numbers:
 *   (a + ib)(c + id) = (ac - bd) + i(ad + bc).
 * In the spectrum domain this is circular convolution; the conjugate product
 * is circular cross-correlation. Statuses: -8 for a NULL pointer, -16 for a
 * step below 1, -6 for a width or height below 1 (in this order). */

/* Steps as for the transforms: at least 1, rounded down to a multiple of 4. */

/* pDst = pSrc1 x pSrc2. Either source may be the destination (same pointer
 * and step). */
PELI_API PelStatus peliMulPack_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                                       Pel32f* pDst, int dstStep, PeliSize roiSize);

/* pSrcDst = pSrcDst x conj(pSrc): the destination (a + ib) times the
 * conjugate of the source (c - id) = (ac + bd) + i(bc - ad). Real values are
 * their own conjugates. */
PELI_API PelStatus peliMulPackConj_32f_C1IR(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep,
                                            PeliSize roiSize);

#ifdef __cplusplus
}
#endif

#endif /* PELI_TRANSFORM_H */
