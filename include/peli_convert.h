/* peli_convert.h: conversion and scaling, threshold and compare.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_CONVERT_H
#define PELI_CONVERT_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Widening conversions: every source value is exactly representable in the
 * destination type. AC4: the destination's fourth element of each pixel keeps
 * its value. Steps are not checked. */
PelStatus peliConvert_8u16s_C1R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u16s_C3R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u16s_C4R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u16s_AC4R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_8u16u_C1R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u16u_C3R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u16u_C4R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u16u_AC4R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_8u32s_C1R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u32s_C3R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u32s_C4R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u32s_AC4R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_8u32f_C1R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u32f_C3R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u32f_C4R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8u32f_AC4R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_8s32s_C1R(const Pel8s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s32s_C3R(const Pel8s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s32s_C4R(const Pel8s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s32s_AC4R(const Pel8s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_8s32f_C1R(const Pel8s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s32f_C3R(const Pel8s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s32f_C4R(const Pel8s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s32f_AC4R(const Pel8s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u32s_C1R(const Pel16u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u32s_C3R(const Pel16u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u32s_C4R(const Pel16u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u32s_AC4R(const Pel16u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                  PeliSize roiSize);
PelStatus peliConvert_16u32f_C1R(const Pel16u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u32f_C3R(const Pel16u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u32f_C4R(const Pel16u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u32f_AC4R(const Pel16u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                  PeliSize roiSize);
PelStatus peliConvert_16s32s_C1R(const Pel16s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16s32s_C3R(const Pel16s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16s32s_C4R(const Pel16s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16s32s_AC4R(const Pel16s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                  PeliSize roiSize);
PelStatus peliConvert_16s32f_C1R(const Pel16s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16s32f_C3R(const Pel16s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16s32f_C4R(const Pel16s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16s32f_AC4R(const Pel16s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                  PeliSize roiSize);
PelStatus peliConvert_8s16s_C1R(const Pel8s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s64f_C1R(const Pel8s* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_16u32u_C1R(const Pel16u* pSrc, int srcStep, Pel32u* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_32s32f_C1R(const Pel32s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_32u32f_C1R(const Pel32u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize);

/* Narrowing integer conversions: values saturate to the destination range
 * (16s 300 gives 255, -5 gives 0). Status: -8 null pointer, -6 width or height
 * below 1, -16 a step below 1. */
PelStatus peliConvert_16s8u_C1R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_16s8u_C3R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_16s8u_C4R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_16s8u_AC4R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16u8u_C1R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_16u8u_C3R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_16u8u_C4R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_16u8u_AC4R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_32s8u_C1R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_32s8u_C3R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_32s8u_C4R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_32s8u_AC4R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_32s8s_C1R(const Pel32s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_32s8s_C3R(const Pel32s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_32s8s_C4R(const Pel32s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_32s8s_AC4R(const Pel32s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                 PeliSize roiSize);

/* Signed to unsigned: values below 1 become 0, the rest are copied (the
 * destination holds every non-negative source value). Steps are not checked. */
PelStatus peliConvert_8s8u_C1Rs(const Pel8s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize);
PelStatus peliConvert_8s16u_C1Rs(const Pel8s* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_8s32u_C1Rs(const Pel8s* pSrc, int srcStep, Pel32u* pDst, int dstStep,
                                 PeliSize roiSize);
PelStatus peliConvert_16s16u_C1Rs(const Pel16s* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                  PeliSize roiSize);
PelStatus peliConvert_16s32u_C1Rs(const Pel16s* pSrc, int srcStep, Pel32u* pDst, int dstStep,
                                  PeliSize roiSize);
PelStatus peliConvert_32s32u_C1Rs(const Pel32s* pSrc, int srcStep, Pel32u* pDst, int dstStep,
                                  PeliSize roiSize);

/* Integer conversions with a scale factor: the result is x * 2^-scaleFactor
 * (a right shift for a positive scale factor, a left shift for a negative one),
 * rounded by roundMode (0 toward zero, 1 to nearest with ties to even, any other
 * value to nearest with halves away from zero) and saturated. Neither roundMode
 * nor scaleFactor is ever rejected; steps are not checked. */
PelStatus peliConvert_8u8s_C1RSfs(const Pel8u* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                  PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_16s8s_C1RSfs(const Pel16s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_16u8s_C1RSfs(const Pel16u* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_16u16s_C1RSfs(const Pel16u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32s16s_C1RSfs(const Pel32s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32s16u_C1RSfs(const Pel32s* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32u8u_C1RSfs(const Pel32u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32u8s_C1RSfs(const Pel32u* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32u16u_C1RSfs(const Pel32u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32u16s_C1RSfs(const Pel32u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32u32s_C1RSfs(const Pel32u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);

/* Float to integer with a rounding mode. Each value is clamped to the
 * destination range first (NaN and +infinity give the maximum, -infinity the
 * minimum), then rounded: pelRoundZero toward zero, pelRoundNear to nearest
 * with ties to even (2.5 gives 2), any other value halves away from zero by
 * adding 0.5 with the sign of x in single precision and truncating (2.5 gives 3).
 * The processor's rounding control is set for the call and restored before the
 * return (rewritten only where it differs). Status: -8, -6, -16 (a step below 1). */
PelStatus peliConvert_32f8u_C1R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f8u_C3R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f8u_C4R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f8u_AC4R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f8s_C1R(const Pel32f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f8s_C3R(const Pel32f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f8s_C4R(const Pel32f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f8s_AC4R(const Pel32f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16u_C1R(const Pel32f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16u_C3R(const Pel32f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16u_C4R(const Pel32f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16u_AC4R(const Pel32f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                  PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16s_C1R(const Pel32f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16s_C3R(const Pel32f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16s_C4R(const Pel32f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, PelRoundMode roundMode);
PelStatus peliConvert_32f16s_AC4R(const Pel32f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                  PeliSize roiSize, PelRoundMode roundMode);

/* Float to integer with a rounding mode and a scale factor: x * 2^-scaleFactor
 * is formed in the source's precision (exact unless it over- or underflows),
 * then clamped, rounded and saturated as above; 32s and 32u destinations
 * saturate the rounded value. NaN gives the destination's maximum. The in-place
 * member reads Pel32f values from pSrcDst and writes Pel32u values over them.
 * roundMode and scaleFactor are never rejected; steps are not checked. */
PelStatus peliConvert_32f8u_C1RSfs(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32f8s_C1RSfs(const Pel32f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32f16u_C1RSfs(const Pel32f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32f16s_C1RSfs(const Pel32f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32f32s_C1RSfs(const Pel32f* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32f32u_C1RSfs(const Pel32f* pSrc, int srcStep, Pel32u* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_64f8u_C1RSfs(const Pel64f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_64f8s_C1RSfs(const Pel64f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                                   PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_64f16u_C1RSfs(const Pel64f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_64f16s_C1RSfs(const Pel64f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, PelRoundMode roundMode, int scaleFactor);
PelStatus peliConvert_32f32u_C1IRSfs(Pel32u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     PelRoundMode roundMode, int scaleFactor);

/* Scale: the whole range of one type mapped linearly onto the whole range of
 * the other, exactly. 8u to 16u: x * 257; 8u to 16s: x * 257 - 32768; 8u to 32s:
 * x * 16843009 - 2147483648 (0 and 255 reach both ends of the range). Status:
 * -8, -6, -16 (a step below 1). */
PelStatus peliScale_8u16u_C1R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u16u_C3R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u16u_C4R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u16u_AC4R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                               PeliSize roiSize);
PelStatus peliScale_8u16s_C1R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u16s_C3R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u16s_C4R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u16s_AC4R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                               PeliSize roiSize);
PelStatus peliScale_8u32s_C1R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u32s_C3R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u32s_C4R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                              PeliSize roiSize);
PelStatus peliScale_8u32s_AC4R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                               PeliSize roiSize);

/* Scale to 8u: the source type's whole range onto 0..255, rounded to nearest
 * (no value lies halfway): 16u (x + 128) / 257; 16s (x + 32768 + 128) / 257;
 * 32s (x + 2147483648 + 8421504) / 16843009. The result is exact for every hint
 * value, which is accepted unchecked. Status: -8, -6, -16 (a step below 1). */
PelStatus peliScale_16u8u_C1R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_16u8u_C3R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_16u8u_C4R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_16u8u_AC4R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_16s8u_C1R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_16s8u_C3R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_16s8u_C4R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_16s8u_AC4R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_32s8u_C1R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_32s8u_C3R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_32s8u_C4R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelHintAlgorithm hint);
PelStatus peliScale_32s8u_AC4R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, PelHintAlgorithm hint);

/* Scale between 8u and 32f through the range [vMin, vMax], in single
 * precision (each operation rounded to nearest, no fused multiply-add).
 * 8u to 32f: factor = (vMax - vMin) / 255, result factor * x + vMin. 32f to 8u:
 * d = vMax - vMin, factor = 255 / d, offset = -(factor * vMin), result
 * factor * x + offset rounded to nearest (ties to even) and saturated (NaN gives
 * 255). Status, in this order: -12 when d is not above 0 (before the pointer
 * checks; a NaN d passes), -8, -6, -16 (a step below 1). The 32f-to-8u members
 * set round-to-nearest when they start and restore the caller's rounding
 * control only when they succeed: their error returns leave it at
 * round-to-nearest. */
PelStatus peliScale_8u32f_C1R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                              PeliSize roiSize, Pel32f vMin, Pel32f vMax);
PelStatus peliScale_8u32f_C3R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                              PeliSize roiSize, Pel32f vMin, Pel32f vMax);
PelStatus peliScale_8u32f_C4R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                              PeliSize roiSize, Pel32f vMin, Pel32f vMax);
PelStatus peliScale_8u32f_AC4R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                               PeliSize roiSize, Pel32f vMin, Pel32f vMax);
PelStatus peliScale_32f8u_C1R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, Pel32f vMin, Pel32f vMax);
PelStatus peliScale_32f8u_C3R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, Pel32f vMin, Pel32f vMax);
PelStatus peliScale_32f8u_C4R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, Pel32f vMin, Pel32f vMax);
PelStatus peliScale_32f8u_AC4R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, Pel32f vMin, Pel32f vMax);

/* ScaleC: x * mVal + aVal in double precision (multiply, then add, each rounded
 * to nearest), then rounded to nearest with ties to even and saturated for an
 * integer destination (NaN gives the destination's maximum), rounded to single
 * precision for 32f. The hint is accepted unchecked: every value gives these
 * results. The processor's rounding control is set to nearest for the call and
 * restored. Status: -8, -6, -16 (a step below 1). */
PelStatus peliScaleC_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                            PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8u8s_C1R(const Pel8u* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                              PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8u16u_C1R(const Pel8u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8u16s_C1R(const Pel8u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8u32s_C1R(const Pel8u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8u32f_C1R(const Pel8u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8u64f_C1R(const Pel8u* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s8u_C1R(const Pel8s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s_C1R(const Pel8s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                            PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s16u_C1R(const Pel8s* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s16s_C1R(const Pel8s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s32s_C1R(const Pel8s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s32f_C1R(const Pel8s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s64f_C1R(const Pel8s* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u8u_C1R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u8s_C1R(const Pel16u* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                             PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u16s_C1R(const Pel16u* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u32s_C1R(const Pel16u* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u32f_C1R(const Pel16u* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u64f_C1R(const Pel16u* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s8u_C1R(const Pel16s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s8s_C1R(const Pel16s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s16u_C1R(const Pel16s* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                             PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s32s_C1R(const Pel16s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s32f_C1R(const Pel16s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s64f_C1R(const Pel16s* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s8u_C1R(const Pel32s* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s8s_C1R(const Pel32s* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s16u_C1R(const Pel32s* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s16s_C1R(const Pel32s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s_C1R(const Pel32s* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                             PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s32f_C1R(const Pel32s* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s64f_C1R(const Pel32s* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f8u_C1R(const Pel32f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f8s_C1R(const Pel32f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f16u_C1R(const Pel32f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f16s_C1R(const Pel32f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f32s_C1R(const Pel32f* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                             PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f64f_C1R(const Pel32f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f8u_C1R(const Pel64f* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f8s_C1R(const Pel64f* pSrc, int srcStep, Pel8s* pDst, int dstStep,
                               PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f16u_C1R(const Pel64f* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f16s_C1R(const Pel64f* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f32s_C1R(const Pel64f* pSrc, int srcStep, Pel32s* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f32f_C1R(const Pel64f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f_C1R(const Pel64f* pSrc, int srcStep, Pel64f* pDst, int dstStep,
                             PeliSize roiSize, Pel64f mVal, Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal,
                             Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_8s_C1IR(Pel8s* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal,
                             Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal,
                              Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal,
                              Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32s_C1IR(Pel32s* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal,
                              Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal,
                              Pel64f aVal, PelHintAlgorithm hint);
PelStatus peliScaleC_64f_C1IR(Pel64f* pSrcDst, int srcDstStep, PeliSize roiSize, Pel64f mVal,
                              Pel64f aVal, PelHintAlgorithm hint);

/* Threshold, strict comparisons throughout: a value equal to a threshold is
 * kept, and so is NaN. Multi-channel members take one threshold (and value) per
 * channel; AC4 members leave the fourth element of each pixel as it was.
 * Status, in this order: -8 null image, -6 width or height below 1, -16 a step
 * below 1, -8 null threshold or value array (multi-channel members), then the
 * member's own checks below. The I forms work in place. */

/* Threshold: pelCmpLess gives max(x, threshold), pelCmpGreater
 * min(x, threshold); any other cmpOp gives -14 after the checks above. */
PelStatus peliThreshold_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, Pel8u threshold, PelCmpOp cmpOp);
PelStatus peliThreshold_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, Pel8u threshold,
                                PelCmpOp cmpOp);
PelStatus peliThreshold_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, const Pel8u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                const Pel8u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel8u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel8u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, Pel16s threshold, PelCmpOp cmpOp);
PelStatus peliThreshold_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 Pel16s threshold, PelCmpOp cmpOp);
PelStatus peliThreshold_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, const Pel16s threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel16s threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, const Pel16s threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel16s threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, Pel16u threshold, PelCmpOp cmpOp);
PelStatus peliThreshold_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 Pel16u threshold, PelCmpOp cmpOp);
PelStatus peliThreshold_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, const Pel16u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel16u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel16u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel16u threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, Pel32f threshold, PelCmpOp cmpOp);
PelStatus peliThreshold_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 Pel32f threshold, PelCmpOp cmpOp);
PelStatus peliThreshold_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, const Pel32f threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32f threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32f threshold[3], PelCmpOp cmpOp);
PelStatus peliThreshold_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32f threshold[3], PelCmpOp cmpOp);

/* Threshold_LT: max(x, threshold). */
PelStatus peliThreshold_LT_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                  PeliSize roiSize, Pel8u threshold);
PelStatus peliThreshold_LT_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                   Pel8u threshold);
PelStatus peliThreshold_LT_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                  PeliSize roiSize, const Pel8u threshold[3]);
PelStatus peliThreshold_LT_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                   const Pel8u threshold[3]);
PelStatus peliThreshold_LT_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, const Pel8u threshold[3]);
PelStatus peliThreshold_LT_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel8u threshold[3]);
PelStatus peliThreshold_LT_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                   PeliSize roiSize, Pel16s threshold);
PelStatus peliThreshold_LT_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    Pel16s threshold);
PelStatus peliThreshold_LT_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                   PeliSize roiSize, const Pel16s threshold[3]);
PelStatus peliThreshold_LT_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel16s threshold[3]);
PelStatus peliThreshold_LT_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, const Pel16s threshold[3]);
PelStatus peliThreshold_LT_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel16s threshold[3]);
PelStatus peliThreshold_LT_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                   PeliSize roiSize, Pel16u threshold);
PelStatus peliThreshold_LT_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    Pel16u threshold);
PelStatus peliThreshold_LT_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                   PeliSize roiSize, const Pel16u threshold[3]);
PelStatus peliThreshold_LT_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel16u threshold[3]);
PelStatus peliThreshold_LT_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, const Pel16u threshold[3]);
PelStatus peliThreshold_LT_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel16u threshold[3]);
PelStatus peliThreshold_LT_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                   PeliSize roiSize, Pel32f threshold);
PelStatus peliThreshold_LT_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    Pel32f threshold);
PelStatus peliThreshold_LT_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                   PeliSize roiSize, const Pel32f threshold[3]);
PelStatus peliThreshold_LT_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel32f threshold[3]);
PelStatus peliThreshold_LT_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                    PeliSize roiSize, const Pel32f threshold[3]);
PelStatus peliThreshold_LT_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel32f threshold[3]);

/* Threshold_GT: min(x, threshold). */
PelStatus peliThreshold_GT_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                  PeliSize roiSize, Pel8u threshold);
PelStatus peliThreshold_GT_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                   Pel8u threshold);
PelStatus peliThreshold_GT_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                  PeliSize roiSize, const Pel8u threshold[3]);
PelStatus peliThreshold_GT_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                   const Pel8u threshold[3]);
PelStatus peliThreshold_GT_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, const Pel8u threshold[3]);
PelStatus peliThreshold_GT_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel8u threshold[3]);
PelStatus peliThreshold_GT_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                   PeliSize roiSize, Pel16s threshold);
PelStatus peliThreshold_GT_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    Pel16s threshold);
PelStatus peliThreshold_GT_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                   PeliSize roiSize, const Pel16s threshold[3]);
PelStatus peliThreshold_GT_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel16s threshold[3]);
PelStatus peliThreshold_GT_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, const Pel16s threshold[3]);
PelStatus peliThreshold_GT_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel16s threshold[3]);
PelStatus peliThreshold_GT_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                   PeliSize roiSize, Pel16u threshold);
PelStatus peliThreshold_GT_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    Pel16u threshold);
PelStatus peliThreshold_GT_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                   PeliSize roiSize, const Pel16u threshold[3]);
PelStatus peliThreshold_GT_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel16u threshold[3]);
PelStatus peliThreshold_GT_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, const Pel16u threshold[3]);
PelStatus peliThreshold_GT_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel16u threshold[3]);
PelStatus peliThreshold_GT_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                   PeliSize roiSize, Pel32f threshold);
PelStatus peliThreshold_GT_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    Pel32f threshold);
PelStatus peliThreshold_GT_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                   PeliSize roiSize, const Pel32f threshold[3]);
PelStatus peliThreshold_GT_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel32f threshold[3]);
PelStatus peliThreshold_GT_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                    PeliSize roiSize, const Pel32f threshold[3]);
PelStatus peliThreshold_GT_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel32f threshold[3]);

/* Threshold_Val: pelCmpLess: x < threshold gives value; pelCmpGreater:
 * x > threshold gives value; otherwise x. A cmpOp other than those two gives
 * -14 before any other check. */
PelStatus peliThreshold_Val_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, Pel8u threshold, Pel8u value, PelCmpOp cmpOp);
PelStatus peliThreshold_Val_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    Pel8u threshold, Pel8u value, PelCmpOp cmpOp);
PelStatus peliThreshold_Val_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, const Pel8u threshold[3], const Pel8u value[3],
                                   PelCmpOp cmpOp);
PelStatus peliThreshold_Val_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                    const Pel8u threshold[3], const Pel8u value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                    PeliSize roiSize, const Pel8u threshold[3],
                                    const Pel8u value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel8u threshold[3], const Pel8u value[3],
                                     PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, Pel16s threshold, Pel16s value,
                                    PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     Pel16s threshold, Pel16s value, PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                    PeliSize roiSize, const Pel16s threshold[3],
                                    const Pel16s value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel16s threshold[3], const Pel16s value[3],
                                     PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                     PeliSize roiSize, const Pel16s threshold[3],
                                     const Pel16s value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      const Pel16s threshold[3], const Pel16s value[3],
                                      PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, Pel16u threshold, Pel16u value,
                                    PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     Pel16u threshold, Pel16u value, PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                    PeliSize roiSize, const Pel16u threshold[3],
                                    const Pel16u value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel16u threshold[3], const Pel16u value[3],
                                     PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                     PeliSize roiSize, const Pel16u threshold[3],
                                     const Pel16u value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      const Pel16u threshold[3], const Pel16u value[3],
                                      PelCmpOp cmpOp);
PelStatus peliThreshold_Val_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                    PeliSize roiSize, Pel32f threshold, Pel32f value,
                                    PelCmpOp cmpOp);
PelStatus peliThreshold_Val_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     Pel32f threshold, Pel32f value, PelCmpOp cmpOp);
PelStatus peliThreshold_Val_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                    PeliSize roiSize, const Pel32f threshold[3],
                                    const Pel32f value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                     const Pel32f threshold[3], const Pel32f value[3],
                                     PelCmpOp cmpOp);
PelStatus peliThreshold_Val_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                     PeliSize roiSize, const Pel32f threshold[3],
                                     const Pel32f value[3], PelCmpOp cmpOp);
PelStatus peliThreshold_Val_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      const Pel32f threshold[3], const Pel32f value[3],
                                      PelCmpOp cmpOp);

/* Threshold_LTVal: x < threshold gives value, else x. */
PelStatus peliThreshold_LTVal_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                     PeliSize roiSize, Pel8u threshold, Pel8u value);
PelStatus peliThreshold_LTVal_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      Pel8u threshold, Pel8u value);
PelStatus peliThreshold_LTVal_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                     PeliSize roiSize, const Pel8u threshold[3],
                                     const Pel8u value[3]);
PelStatus peliThreshold_LTVal_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      const Pel8u threshold[3], const Pel8u value[3]);
PelStatus peliThreshold_LTVal_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                      PeliSize roiSize, const Pel8u threshold[3],
                                      const Pel8u value[3]);
PelStatus peliThreshold_LTVal_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel8u threshold[3], const Pel8u value[3]);
PelStatus peliThreshold_LTVal_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                     PeliSize roiSize, const Pel8u threshold[4],
                                     const Pel8u value[4]);
PelStatus peliThreshold_LTVal_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      const Pel8u threshold[4], const Pel8u value[4]);
PelStatus peliThreshold_LTVal_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                      PeliSize roiSize, Pel16s threshold, Pel16s value);
PelStatus peliThreshold_LTVal_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       Pel16s threshold, Pel16s value);
PelStatus peliThreshold_LTVal_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16s threshold[3],
                                      const Pel16s value[3]);
PelStatus peliThreshold_LTVal_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16s threshold[3], const Pel16s value[3]);
PelStatus peliThreshold_LTVal_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                       PeliSize roiSize, const Pel16s threshold[3],
                                       const Pel16s value[3]);
PelStatus peliThreshold_LTVal_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                        const Pel16s threshold[3], const Pel16s value[3]);
PelStatus peliThreshold_LTVal_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16s threshold[4],
                                      const Pel16s value[4]);
PelStatus peliThreshold_LTVal_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16s threshold[4], const Pel16s value[4]);
PelStatus peliThreshold_LTVal_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                      PeliSize roiSize, Pel16u threshold, Pel16u value);
PelStatus peliThreshold_LTVal_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       Pel16u threshold, Pel16u value);
PelStatus peliThreshold_LTVal_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16u threshold[3],
                                      const Pel16u value[3]);
PelStatus peliThreshold_LTVal_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16u threshold[3], const Pel16u value[3]);
PelStatus peliThreshold_LTVal_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                       PeliSize roiSize, const Pel16u threshold[3],
                                       const Pel16u value[3]);
PelStatus peliThreshold_LTVal_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                        const Pel16u threshold[3], const Pel16u value[3]);
PelStatus peliThreshold_LTVal_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16u threshold[4],
                                      const Pel16u value[4]);
PelStatus peliThreshold_LTVal_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16u threshold[4], const Pel16u value[4]);
PelStatus peliThreshold_LTVal_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                      PeliSize roiSize, Pel32f threshold, Pel32f value);
PelStatus peliThreshold_LTVal_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       Pel32f threshold, Pel32f value);
PelStatus peliThreshold_LTVal_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                      PeliSize roiSize, const Pel32f threshold[3],
                                      const Pel32f value[3]);
PelStatus peliThreshold_LTVal_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel32f threshold[3], const Pel32f value[3]);
PelStatus peliThreshold_LTVal_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                       PeliSize roiSize, const Pel32f threshold[3],
                                       const Pel32f value[3]);
PelStatus peliThreshold_LTVal_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                        const Pel32f threshold[3], const Pel32f value[3]);
PelStatus peliThreshold_LTVal_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                      PeliSize roiSize, const Pel32f threshold[4],
                                      const Pel32f value[4]);
PelStatus peliThreshold_LTVal_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel32f threshold[4], const Pel32f value[4]);

/* Threshold_GTVal: x > threshold gives value, else x. */
PelStatus peliThreshold_GTVal_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                     PeliSize roiSize, Pel8u threshold, Pel8u value);
PelStatus peliThreshold_GTVal_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      Pel8u threshold, Pel8u value);
PelStatus peliThreshold_GTVal_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                     PeliSize roiSize, const Pel8u threshold[3],
                                     const Pel8u value[3]);
PelStatus peliThreshold_GTVal_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      const Pel8u threshold[3], const Pel8u value[3]);
PelStatus peliThreshold_GTVal_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                      PeliSize roiSize, const Pel8u threshold[3],
                                      const Pel8u value[3]);
PelStatus peliThreshold_GTVal_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel8u threshold[3], const Pel8u value[3]);
PelStatus peliThreshold_GTVal_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                     PeliSize roiSize, const Pel8u threshold[4],
                                     const Pel8u value[4]);
PelStatus peliThreshold_GTVal_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                      const Pel8u threshold[4], const Pel8u value[4]);
PelStatus peliThreshold_GTVal_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                      PeliSize roiSize, Pel16s threshold, Pel16s value);
PelStatus peliThreshold_GTVal_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       Pel16s threshold, Pel16s value);
PelStatus peliThreshold_GTVal_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16s threshold[3],
                                      const Pel16s value[3]);
PelStatus peliThreshold_GTVal_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16s threshold[3], const Pel16s value[3]);
PelStatus peliThreshold_GTVal_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                       PeliSize roiSize, const Pel16s threshold[3],
                                       const Pel16s value[3]);
PelStatus peliThreshold_GTVal_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                        const Pel16s threshold[3], const Pel16s value[3]);
PelStatus peliThreshold_GTVal_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16s threshold[4],
                                      const Pel16s value[4]);
PelStatus peliThreshold_GTVal_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16s threshold[4], const Pel16s value[4]);
PelStatus peliThreshold_GTVal_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                      PeliSize roiSize, Pel16u threshold, Pel16u value);
PelStatus peliThreshold_GTVal_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       Pel16u threshold, Pel16u value);
PelStatus peliThreshold_GTVal_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16u threshold[3],
                                      const Pel16u value[3]);
PelStatus peliThreshold_GTVal_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16u threshold[3], const Pel16u value[3]);
PelStatus peliThreshold_GTVal_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                       PeliSize roiSize, const Pel16u threshold[3],
                                       const Pel16u value[3]);
PelStatus peliThreshold_GTVal_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                        const Pel16u threshold[3], const Pel16u value[3]);
PelStatus peliThreshold_GTVal_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                      PeliSize roiSize, const Pel16u threshold[4],
                                      const Pel16u value[4]);
PelStatus peliThreshold_GTVal_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel16u threshold[4], const Pel16u value[4]);
PelStatus peliThreshold_GTVal_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                      PeliSize roiSize, Pel32f threshold, Pel32f value);
PelStatus peliThreshold_GTVal_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       Pel32f threshold, Pel32f value);
PelStatus peliThreshold_GTVal_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                      PeliSize roiSize, const Pel32f threshold[3],
                                      const Pel32f value[3]);
PelStatus peliThreshold_GTVal_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel32f threshold[3], const Pel32f value[3]);
PelStatus peliThreshold_GTVal_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                       PeliSize roiSize, const Pel32f threshold[3],
                                       const Pel32f value[3]);
PelStatus peliThreshold_GTVal_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                        const Pel32f threshold[3], const Pel32f value[3]);
PelStatus peliThreshold_GTVal_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                      PeliSize roiSize, const Pel32f threshold[4],
                                      const Pel32f value[4]);
PelStatus peliThreshold_GTVal_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                       const Pel32f threshold[4], const Pel32f value[4]);

/* Threshold_LTValGTVal: x < thresholdLT gives valueLT, x > thresholdGT gives
 * valueGT, else x. thresholdGT below thresholdLT (in any channel) gives -19
 * after the checks above; equal thresholds are accepted. */
PelStatus peliThreshold_LTValGTVal_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                          PeliSize roiSize, Pel8u thresholdLT, Pel8u valueLT,
                                          Pel8u thresholdGT, Pel8u valueGT);
PelStatus peliThreshold_LTValGTVal_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                           Pel8u thresholdLT, Pel8u valueLT, Pel8u thresholdGT,
                                           Pel8u valueGT);
PelStatus peliThreshold_LTValGTVal_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                          PeliSize roiSize, const Pel8u thresholdLT[3],
                                          const Pel8u valueLT[3], const Pel8u thresholdGT[3],
                                          const Pel8u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                           const Pel8u thresholdLT[3], const Pel8u valueLT[3],
                                           const Pel8u thresholdGT[3], const Pel8u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                           PeliSize roiSize, const Pel8u thresholdLT[3],
                                           const Pel8u valueLT[3], const Pel8u thresholdGT[3],
                                           const Pel8u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                            const Pel8u thresholdLT[3], const Pel8u valueLT[3],
                                            const Pel8u thresholdGT[3], const Pel8u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst,
                                           int dstStep, PeliSize roiSize, Pel16s thresholdLT,
                                           Pel16s valueLT, Pel16s thresholdGT, Pel16s valueGT);
PelStatus peliThreshold_LTValGTVal_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                            Pel16s thresholdLT, Pel16s valueLT, Pel16s thresholdGT,
                                            Pel16s valueGT);
PelStatus peliThreshold_LTValGTVal_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst,
                                           int dstStep, PeliSize roiSize,
                                           const Pel16s thresholdLT[3], const Pel16s valueLT[3],
                                           const Pel16s thresholdGT[3], const Pel16s valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                            const Pel16s thresholdLT[3], const Pel16s valueLT[3],
                                            const Pel16s thresholdGT[3], const Pel16s valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst,
                                            int dstStep, PeliSize roiSize,
                                            const Pel16s thresholdLT[3], const Pel16s valueLT[3],
                                            const Pel16s thresholdGT[3], const Pel16s valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                             const Pel16s thresholdLT[3], const Pel16s valueLT[3],
                                             const Pel16s thresholdGT[3], const Pel16s valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst,
                                           int dstStep, PeliSize roiSize, Pel16u thresholdLT,
                                           Pel16u valueLT, Pel16u thresholdGT, Pel16u valueGT);
PelStatus peliThreshold_LTValGTVal_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                            Pel16u thresholdLT, Pel16u valueLT, Pel16u thresholdGT,
                                            Pel16u valueGT);
PelStatus peliThreshold_LTValGTVal_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst,
                                           int dstStep, PeliSize roiSize,
                                           const Pel16u thresholdLT[3], const Pel16u valueLT[3],
                                           const Pel16u thresholdGT[3], const Pel16u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                            const Pel16u thresholdLT[3], const Pel16u valueLT[3],
                                            const Pel16u thresholdGT[3], const Pel16u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst,
                                            int dstStep, PeliSize roiSize,
                                            const Pel16u thresholdLT[3], const Pel16u valueLT[3],
                                            const Pel16u thresholdGT[3], const Pel16u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                             const Pel16u thresholdLT[3], const Pel16u valueLT[3],
                                             const Pel16u thresholdGT[3], const Pel16u valueGT[3]);
PelStatus peliThreshold_LTValGTVal_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst,
                                           int dstStep, PeliSize roiSize, Pel32f thresholdLT,
                                           Pel32f valueLT, Pel32f thresholdGT, Pel32f valueGT);
PelStatus peliThreshold_LTValGTVal_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                            Pel32f thresholdLT, Pel32f valueLT, Pel32f thresholdGT,
                                            Pel32f valueGT);
PelStatus peliThreshold_LTValGTVal_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst,
                                           int dstStep, PeliSize roiSize,
                                           const Pel32f thresholdLT[3], const Pel32f valueLT[3],
                                           const Pel32f thresholdGT[3], const Pel32f valueGT[3]);
PelStatus peliThreshold_LTValGTVal_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                            const Pel32f thresholdLT[3], const Pel32f valueLT[3],
                                            const Pel32f thresholdGT[3], const Pel32f valueGT[3]);
PelStatus peliThreshold_LTValGTVal_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst,
                                            int dstStep, PeliSize roiSize,
                                            const Pel32f thresholdLT[3], const Pel32f valueLT[3],
                                            const Pel32f thresholdGT[3], const Pel32f valueGT[3]);
PelStatus peliThreshold_LTValGTVal_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                             const Pel32f thresholdLT[3], const Pel32f valueLT[3],
                                             const Pel32f thresholdGT[3], const Pel32f valueGT[3]);

/* Compare: the destination is one Pel8u a pixel, 255 where the comparison holds
 * for every compared channel (three for C3 and AC4, four for C4) and 0 where it
 * does not. A greater comparison of a and b is exactly the less comparison of b
 * and a; NaN compares false. Status, in this order: -8 null pointer (the value
 * array of CompareC included), -16 a step below 1, -6 width or height below 1,
 * -36 eps below 0 (EqualEps); a cmpOp above 4 or negative returns 0 and writes
 * nothing. Compare: mask = src1 op src2. */
PelStatus peliCompare_8u_C1R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step,
                             Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_8u_C3R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step,
                             Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_8u_C4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step,
                             Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_8u_AC4R(const Pel8u* pSrc1, int src1Step, const Pel8u* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16s_C1R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16s_C3R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16s_C4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16s_AC4R(const Pel16s* pSrc1, int src1Step, const Pel16s* pSrc2, int src2Step,
                               Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16u_C1R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16u_C3R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16u_C4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_16u_AC4R(const Pel16u* pSrc1, int src1Step, const Pel16u* pSrc2, int src2Step,
                               Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                              Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompare_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                               Pel8u* pDst, int dstStep, PeliSize roiSize, PelCmpOp cmpOp);

/* CompareC: mask = src op value (one value a channel). */
PelStatus peliCompareC_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u value, Pel8u* pDst, int dstStep,
                              PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_8u_C3R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst,
                              int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_8u_C4R(const Pel8u* pSrc, int srcStep, const Pel8u value[4], Pel8u* pDst,
                              int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_8u_AC4R(const Pel8u* pSrc, int srcStep, const Pel8u value[3], Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s value, Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16s_C3R(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16s_C4R(const Pel16s* pSrc, int srcStep, const Pel16s value[4], Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16s_AC4R(const Pel16s* pSrc, int srcStep, const Pel16s value[3], Pel8u* pDst,
                                int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u value, Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16u_C3R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16u_C4R(const Pel16u* pSrc, int srcStep, const Pel16u value[4], Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_16u_AC4R(const Pel16u* pSrc, int srcStep, const Pel16u value[3], Pel8u* pDst,
                                int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f value, Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_32f_C3R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_32f_C4R(const Pel32f* pSrc, int srcStep, const Pel32f value[4], Pel8u* pDst,
                               int dstStep, PeliSize roiSize, PelCmpOp cmpOp);
PelStatus peliCompareC_32f_AC4R(const Pel32f* pSrc, int srcStep, const Pel32f value[3], Pel8u* pDst,
                                int dstStep, PeliSize roiSize, PelCmpOp cmpOp);

/* CompareEqualEps(C): mask = |src1 - src2| <= eps, the difference taken in
 * single precision; eps 0 is an exact equality test. */
PelStatus peliCompareEqualEps_32f_C1R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2,
                                      int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize,
                                      Pel32f eps);
PelStatus peliCompareEqualEps_32f_C3R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2,
                                      int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize,
                                      Pel32f eps);
PelStatus peliCompareEqualEps_32f_C4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2,
                                      int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize,
                                      Pel32f eps);
PelStatus peliCompareEqualEps_32f_AC4R(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2,
                                       int src2Step, Pel8u* pDst, int dstStep, PeliSize roiSize,
                                       Pel32f eps);
PelStatus peliCompareEqualEpsC_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f value, Pel8u* pDst,
                                       int dstStep, PeliSize roiSize, Pel32f eps);
PelStatus peliCompareEqualEpsC_32f_C3R(const Pel32f* pSrc, int srcStep, const Pel32f value[3],
                                       Pel8u* pDst, int dstStep, PeliSize roiSize, Pel32f eps);
PelStatus peliCompareEqualEpsC_32f_C4R(const Pel32f* pSrc, int srcStep, const Pel32f value[4],
                                       Pel8u* pDst, int dstStep, PeliSize roiSize, Pel32f eps);
PelStatus peliCompareEqualEpsC_32f_AC4R(const Pel32f* pSrc, int srcStep, const Pel32f value[3],
                                        Pel8u* pDst, int dstStep, PeliSize roiSize, Pel32f eps);

#ifdef __cplusplus
}
#endif

#endif /* PELI_CONVERT_H */
