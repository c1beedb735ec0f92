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

#ifdef __cplusplus
}
#endif

/* ---- The families ---------------------------------------------------------
 * One header a family, each included here. */
#include "peli_datamove.h"
#include "peli_arith.h"
#include "peli_logic.h"
#include "peli_convert.h"
#include "peli_lut.h"
#include "peli_stats.h"
#include "peli_filter.h"
#include "peli_geometry.h"
#include "peli_transform.h"

#endif /* PELI_H */
