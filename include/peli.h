/* peli: image-processing primitives, C interface.
 *
 * Images live in the caller's memory. A function takes each image as a
 * pointer to its first ROI pixel and a row step in bytes (signed; padded,
 * zero and negative steps are used as given), the ROI size by value, and
 * returns a PelStatus: 0 success, negative an error (nothing was written),
 * positive a warning (the work was done). Arguments are checked in this
 * order: pointers (-8), sizes (-6), steps where a function checks them,
 * then function parameters.
 *
 * Every function is reentrant: the library keeps no state between calls and
 * allocates memory only in the peliMalloc functions. */
#ifndef PELI_H
#define PELI_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define PELI_API
#else
#define PELI_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Element types ------------------------------------------------------ */
typedef uint8_t  Pel8u;
typedef int8_t   Pel8s;
typedef uint16_t Pel16u;
typedef int16_t  Pel16s;
typedef uint32_t Pel32u;
typedef int32_t  Pel32s;
typedef float    Pel32f;
typedef double   Pel64f;

/* Complex elements: real part first. */
typedef struct { Pel16s re, im; } Pel16sc;
typedef struct { Pel32s re, im; } Pel32sc;
typedef struct { Pel32f re, im; } Pel32fc;
typedef struct { Pel64f re, im; } Pel64fc;

/* ---- Regions -------------------------------------------------------------
 * PeliSize counts pixels. The _L functions take pointer-sized sizes and
 * steps (PelIntL): 64 bits on x86-64, 32 bits on i386. */
typedef intptr_t PelIntL;

typedef struct { int width; int height; } PeliSize;
typedef struct { PelIntL width; PelIntL height; } PeliSizeL;
typedef struct { int x; int y; } PeliPoint;
typedef struct { int x; int y; int width; int height; } PeliRect;

/* ---- Status codes --------------------------------------------------------
 * 0 success, negative errors, positive warnings. */
typedef int PelStatus;

enum {
    /* warnings */
    pelStatusNoOperation                = 1,
    pelStatusDivByZeroWarning           = 2,
    pelStatusSqrtNegArgWarning          = 3,
    pelStatusLnSingularWarning          = 7,
    pelStatusLnNegArgWarning            = 8,
    pelStatusNotParallelogramWarning    = 28,
    pelStatusWrongIntersectRoi          = 29,
    pelStatusWrongIntersectQuad         = 30,
    pelStatusWrongIntersectVolume       = 40,
    pelStatusAntialiasingIgnoredWarning = 46,
    pelStatusAdjusted                   = 48,
    pelStatusAccurateIgnoredWarning     = 52,
    /* success */
    pelStatusOk                         = 0,
    /* errors */
    pelStatusBadArgument                = -5,
    pelStatusBadSize                    = -6,
    pelStatusRangeError                 = -7,
    pelStatusNullPointer                = -8,
    pelStatusNoMemory                   = -9,
    pelStatusDivisionByZero             = -10,
    pelStatusOutOfRange                 = -11,
    pelStatusScaleRangeError            = -12,
    pelStatusContextMismatch            = -13,
    pelStatusNotSupportedMode           = -14,
    pelStatusBadStep                    = -16,
    pelStatusFftOrderError              = -17,
    pelStatusFftFlagError               = -18,
    pelStatusThresholdError             = -19,
    pelStatusMomentZero                 = -21,
    pelStatusMirrorAxisError            = -22,
    pelStatusInterpolationError         = -23,
    pelStatusBadMaskSize                = -33,
    pelStatusAnchorError                = -34,
    pelStatusEpsilonError               = -36,
    pelStatusStepTooSmall               = -37,
    pelStatusChannelError               = -47,
    pelStatusZeroParameter              = -49,
    pelStatusAlphaTypeError             = -50,
    pelStatusDivisorError               = -51,
    pelStatusChannelsNotSupported       = -53,
    pelStatusCoefficientsSingular       = -56,
    pelStatusCoefficientsError          = -57,
    pelStatusQuadrangleError            = -58,
    pelStatusDataTypeError              = -59,
    pelStatusChannelOrderError          = -60,
    pelStatusLutLevelsError             = -106,
    pelStatusHistogramLevelsError       = -107,
    pelStatusStepNotMultiple            = -108,
    pelStatusWienerError                = -125,
    pelStatusRoundModeError             = -213,
    pelStatusBadBorderType              = -225,
    pelStatusOddOffsetError             = -227,
    pelStatusAlgorithmTypeError         = -228,
    pelStatusWarpDirectionError         = -231,
    pelStatusSizeOverflow               = -232
};

/* ---- Shared codes -------------------------------------------------------- */

/* Border type: the low 4 bits are the kind; the high 4 bits say which sides
 * outside the ROI already exist in memory. Codes above 255 are rejected. */
typedef int PeliBorderType;
enum {
    pelBorderReplicate    = 1,
    pelBorderMirror       = 3,
    pelBorderConstant     = 6,
    pelBorderInMemTop     = 0x10,
    pelBorderInMemBottom  = 0x20,
    pelBorderInMemLeft    = 0x40,
    pelBorderInMemRight   = 0x80,
    pelBorderInMem        = 0xF0
};

/* Rounding of a real result to an integer. */
typedef int PelRoundMode;
enum {
    pelRoundZero         = 0, /* toward zero */
    pelRoundNear         = 1, /* to nearest, ties to even */
    pelRoundAlternate    = 2, /* to nearest, halves away from zero */
    pelRoundAccurateFlag = 16 /* or-ed onto a mode: the accurate integer path */
};

/* Element type codes of the set-up functions. */
typedef int PelDataType;
enum {
    pelType8u  = 1,
    pelType16u = 5,
    pelType16s = 7,
    pelType32f = 13,
    pelType64f = 19
};

/* Algorithm hint: accurate selects the slower, more exact path. */
typedef int PelHintAlgorithm;
enum { pelHintAccurate = 2 };

/* Comparison operators. */
typedef int PelCmpOp;
enum {
    pelCmpLess      = 0,
    pelCmpLessEq    = 1,
    pelCmpEq        = 2,
    pelCmpGreaterEq = 3,
    pelCmpGreater   = 4
};

/* Interpolation codes of the resize and warp functions. */
enum {
    pelInterpolationCode0   = 0,
    pelInterpolationNearest = 1,
    pelInterpolationLinear  = 2,
    pelInterpolationCode6   = 6,
    pelInterpolationCode8   = 8,
    pelInterpolationCode16  = 16
};

/* ---- Version -------------------------------------------------------------- */
typedef struct {
    int major;
    int minor;
    int majorBuild;
    int build;
    char targetCpu[4];
    const char* Name;
    const char* Version;
    const char* BuildDate;
} PelLibraryVersion;

/* The one constant version record of this library; never NULL. */
PELI_API const PelLibraryVersion* peliGetLibVersion(void);

/* ---- Image allocation ------------------------------------------------------
 * Every row starts on a 64-byte boundary; *pStep receives the row step
 * (width x bytes per pixel rounded up to 64). NULL on any bad size or
 * overflow (and when pStep is NULL). Release with peliFree. */

PELI_API Pel8u* peliMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);

PELI_API Pel8u* peliMalloc_8u_C1_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_C2_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_C3_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_C4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel8u* peliMalloc_8u_AC4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C1_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C2_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C3_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_C4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16u* peliMalloc_16u_AC4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C1_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C2_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C3_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_C4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel16s* peliMalloc_16s_AC4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C1_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C2_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C3_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_C4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32s* peliMalloc_32s_AC4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C1_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C2_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C3_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_C4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32f* peliMalloc_32f_AC4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C1_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C2_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C3_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_C4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32sc* peliMalloc_32sc_AC4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C1_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C2_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C3_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_C4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API Pel32fc* peliMalloc_32fc_AC4_L(PelIntL widthPixels, PelIntL heightPixels, PelIntL* pStepBytes);
PELI_API void peliFree(void* ptr);

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

#endif /* PELI_H */
