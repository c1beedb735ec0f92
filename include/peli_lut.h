/* peli_lut.h: lookup tables and palettes.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_LUT_H
#define PELI_LUT_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Lookup tables given as levels and values.
 *
 * A channel's curve is nLevels levels, in increasing order, and its values:
 * pValues holds nLevels values (peliLUT reads only the first nLevels - 1).
 * The values and levels are Pel32s for 8u, 16u and 16s images and Pel32f for
 * 32f images. A source value x with pLevels[k] <= x < pLevels[k+1] lies in
 * interval k; a value below pLevels[0], at or above pLevels[nLevels-1], or
 * NaN is copied unchanged.
 *
 *   peliLUT         interval k gives pValues[k].
 *   peliLUT_Linear  the line through (level[k], value[k]) and
 *                   (level[k+1], value[k+1]), computed in double as
 *                   value[k] + (value[k+1] - value[k]) * (x - level[k]) /
 *                   (level[k+1] - level[k]).
 *   peliLUT_Cubic   the Lagrange polynomial through the points k-1, k, k+1
 *                   and k+2, in double; at the ends (and where a level equals
 *                   its neighbour's) the points that do not exist are left
 *                   out: the quadratic through three points, or the line
 *                   through two. For each point i the weight is the product
 *                   of (x - level[j]) over the other points j divided by the
 *                   product of (level[i] - level[j]), both in increasing j,
 *                   and the terms value[i] * weight are summed in increasing i
 *                   from 0.0. At a level the result is that level's value.
 *
 * Integer images: the result is rounded to nearest with ties to even and
 * saturated to the element type (peliLUT saturates the value). 32f images:
 * the double is converted to float, to nearest. Linear and Cubic set the
 * processor's rounding control to nearest for the call and restore the
 * caller's on return, so their results do not depend on it.
 *
 * An 8u curve of 257 levels 0, 1, ..., 256 and 256 values is a classic
 * 256-entry table.
 *
 * C3 and AC4 take three curves (pValues[c], pLevels[c], nLevels[c]), C4
 * four. AC4 leaves the destination's fourth channel as it was. The IR forms
 * work in place.
 *
 * Checks, in this order: any pointer NULL, the arrays of curves and each
 * channel's values and levels included: pelStatusNullPointer (-8); width or
 * height below 1: pelStatusBadSize (-6); a step below 1: pelStatusBadStep
 * (-16); any channel's nLevels below 2: pelStatusLutLevelsError (-106).
 * Nothing is written on an error.
 *
 * Results are the same on every processor. 8u images go through one
 * 256-entry table per channel, built for the call. For 16-bit images a table
 * of the levels' range is built (in memory from pelMalloc, released before
 * the call returns) when the image is large enough to pay for it, otherwise
 * each value is searched among the levels; both give the same results.
 * Levels that are not increasing give results that depend only on the
 * arguments, never a crash. */

/* Step curves: each interval gives its value. */
PelStatus peliLUT_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                         PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                         int nLevels);
PelStatus peliLUT_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize, const Pel32s* pValues,
                          const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                         PeliSize roiSize, const Pel32s* pValues[3], const Pel32s* pLevels[3],
                         int nLevels[3]);
PelStatus peliLUT_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                          const Pel32s* pValues[3], const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                         PeliSize roiSize, const Pel32s* pValues[4], const Pel32s* pLevels[4],
                         int nLevels[4]);
PelStatus peliLUT_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                          const Pel32s* pValues[4], const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                          PeliSize roiSize, const Pel32s* pValues[3], const Pel32s* pLevels[3],
                          int nLevels[3]);
PelStatus peliLUT_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32s* pValues[3], const Pel32s* pLevels[3], int nLevels[3]);

PelStatus peliLUT_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                          PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                          int nLevels);
PelStatus peliLUT_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                          PeliSize roiSize, const Pel32s* pValues[3], const Pel32s* pLevels[3],
                          int nLevels[3]);
PelStatus peliLUT_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32s* pValues[3], const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                          PeliSize roiSize, const Pel32s* pValues[4], const Pel32s* pLevels[4],
                          int nLevels[4]);
PelStatus peliLUT_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32s* pValues[4], const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                           PeliSize roiSize, const Pel32s* pValues[3], const Pel32s* pLevels[3],
                           int nLevels[3]);
PelStatus peliLUT_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                            const Pel32s* pValues[3], const Pel32s* pLevels[3], int nLevels[3]);

PelStatus peliLUT_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                          PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                          int nLevels);
PelStatus peliLUT_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                          PeliSize roiSize, const Pel32s* pValues[3], const Pel32s* pLevels[3],
                          int nLevels[3]);
PelStatus peliLUT_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32s* pValues[3], const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                          PeliSize roiSize, const Pel32s* pValues[4], const Pel32s* pLevels[4],
                          int nLevels[4]);
PelStatus peliLUT_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32s* pValues[4], const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                           PeliSize roiSize, const Pel32s* pValues[3], const Pel32s* pLevels[3],
                           int nLevels[3]);
PelStatus peliLUT_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                            const Pel32s* pValues[3], const Pel32s* pLevels[3], int nLevels[3]);

PelStatus peliLUT_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                          PeliSize roiSize, const Pel32f* pValues, const Pel32f* pLevels,
                          int nLevels);
PelStatus peliLUT_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32f* pValues, const Pel32f* pLevels, int nLevels);
PelStatus peliLUT_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                          PeliSize roiSize, const Pel32f* pValues[3], const Pel32f* pLevels[3],
                          int nLevels[3]);
PelStatus peliLUT_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32f* pValues[3], const Pel32f* pLevels[3], int nLevels[3]);
PelStatus peliLUT_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                          PeliSize roiSize, const Pel32f* pValues[4], const Pel32f* pLevels[4],
                          int nLevels[4]);
PelStatus peliLUT_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                           const Pel32f* pValues[4], const Pel32f* pLevels[4], int nLevels[4]);
PelStatus peliLUT_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                           PeliSize roiSize, const Pel32f* pValues[3], const Pel32f* pLevels[3],
                           int nLevels[3]);
PelStatus peliLUT_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                            const Pel32f* pValues[3], const Pel32f* pLevels[3], int nLevels[3]);

/* Piecewise-linear curves. */
PelStatus peliLUT_Linear_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                                int nLevels);
PelStatus peliLUT_Linear_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_Linear_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues[3],
                                const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                 int nLevels[3]);
PelStatus peliLUT_Linear_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues[4],
                                const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Linear_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues[4], const Pel32s* pLevels[4],
                                 int nLevels[4]);
PelStatus peliLUT_Linear_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues[3],
                                 const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                  int nLevels[3]);

PelStatus peliLUT_Linear_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                                 int nLevels);
PelStatus peliLUT_Linear_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_Linear_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues[3],
                                 const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                  int nLevels[3]);
PelStatus peliLUT_Linear_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues[4],
                                 const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Linear_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues[4], const Pel32s* pLevels[4],
                                  int nLevels[4]);
PelStatus peliLUT_Linear_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                  PeliSize roiSize, const Pel32s* pValues[3],
                                  const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                   const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                   int nLevels[3]);

PelStatus peliLUT_Linear_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                                 int nLevels);
PelStatus peliLUT_Linear_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_Linear_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues[3],
                                 const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                  int nLevels[3]);
PelStatus peliLUT_Linear_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues[4],
                                 const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Linear_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues[4], const Pel32s* pLevels[4],
                                  int nLevels[4]);
PelStatus peliLUT_Linear_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                  PeliSize roiSize, const Pel32s* pValues[3],
                                  const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                   const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                   int nLevels[3]);

PelStatus peliLUT_Linear_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32f* pValues, const Pel32f* pLevels,
                                 int nLevels);
PelStatus peliLUT_Linear_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32f* pValues, const Pel32f* pLevels, int nLevels);
PelStatus peliLUT_Linear_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32f* pValues[3],
                                 const Pel32f* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32f* pValues[3], const Pel32f* pLevels[3],
                                  int nLevels[3]);
PelStatus peliLUT_Linear_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32f* pValues[4],
                                 const Pel32f* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Linear_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32f* pValues[4], const Pel32f* pLevels[4],
                                  int nLevels[4]);
PelStatus peliLUT_Linear_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                  PeliSize roiSize, const Pel32f* pValues[3],
                                  const Pel32f* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Linear_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                   const Pel32f* pValues[3], const Pel32f* pLevels[3],
                                   int nLevels[3]);

/* Cubic curves through the levels. */
PelStatus peliLUT_Cubic_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                               int nLevels);
PelStatus peliLUT_Cubic_8u_C1IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_Cubic_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, const Pel32s* pValues[3],
                               const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_8u_C3IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                const Pel32s* pValues[3], const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                               PeliSize roiSize, const Pel32s* pValues[4],
                               const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Cubic_8u_C4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                const Pel32s* pValues[4], const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Cubic_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues[3],
                                const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_8u_AC4IR(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                 int nLevels[3]);

PelStatus peliLUT_Cubic_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                                int nLevels);
PelStatus peliLUT_Cubic_16u_C1IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_Cubic_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues[3],
                                const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_16u_C3IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                 int nLevels[3]);
PelStatus peliLUT_Cubic_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues[4],
                                const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Cubic_16u_C4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues[4], const Pel32s* pLevels[4],
                                 int nLevels[4]);
PelStatus peliLUT_Cubic_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues[3],
                                 const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_16u_AC4IR(Pel16u* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                  int nLevels[3]);

PelStatus peliLUT_Cubic_16s_C1R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues, const Pel32s* pLevels,
                                int nLevels);
PelStatus peliLUT_Cubic_16s_C1IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues, const Pel32s* pLevels, int nLevels);
PelStatus peliLUT_Cubic_16s_C3R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues[3],
                                const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_16s_C3IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                 int nLevels[3]);
PelStatus peliLUT_Cubic_16s_C4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                PeliSize roiSize, const Pel32s* pValues[4],
                                const Pel32s* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Cubic_16s_C4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32s* pValues[4], const Pel32s* pLevels[4],
                                 int nLevels[4]);
PelStatus peliLUT_Cubic_16s_AC4R(const Pel16s* pSrc, int srcStep, Pel16s* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32s* pValues[3],
                                 const Pel32s* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_16s_AC4IR(Pel16s* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32s* pValues[3], const Pel32s* pLevels[3],
                                  int nLevels[3]);

PelStatus peliLUT_Cubic_32f_C1R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, const Pel32f* pValues, const Pel32f* pLevels,
                                int nLevels);
PelStatus peliLUT_Cubic_32f_C1IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32f* pValues, const Pel32f* pLevels, int nLevels);
PelStatus peliLUT_Cubic_32f_C3R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, const Pel32f* pValues[3],
                                const Pel32f* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_32f_C3IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32f* pValues[3], const Pel32f* pLevels[3],
                                 int nLevels[3]);
PelStatus peliLUT_Cubic_32f_C4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                PeliSize roiSize, const Pel32f* pValues[4],
                                const Pel32f* pLevels[4], int nLevels[4]);
PelStatus peliLUT_Cubic_32f_C4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                 const Pel32f* pValues[4], const Pel32f* pLevels[4],
                                 int nLevels[4]);
PelStatus peliLUT_Cubic_32f_AC4R(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep,
                                 PeliSize roiSize, const Pel32f* pValues[3],
                                 const Pel32f* pLevels[3], int nLevels[3]);
PelStatus peliLUT_Cubic_32f_AC4IR(Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize,
                                  const Pel32f* pValues[3], const Pel32f* pLevels[3],
                                  int nLevels[3]);

/* Palettes: dst = pTable[x & ((1 << nBitSize) - 1)] for each channel; the
 * table has 1 << nBitSize entries (C3 and AC4 take three tables, C4 four;
 * AC4 leaves the destination's fourth channel as it was). nBitSize is 1..8
 * for 8u sources and 1..16 for 16u sources.
 *
 * Checks, in this order: any pointer NULL, each channel's table included:
 * pelStatusNullPointer (-8); width or height below 1: pelStatusBadSize (-6);
 * a step below 1: pelStatusBadStep (-16); nBitSize out of its range:
 * pelStatusOutOfRange (-11). Nothing is written on an error. */
PelStatus peliLUTPalette_8u_C1R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel8u* pTable, int nBitSize);
PelStatus peliLUTPalette_8u_C3R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel8u* pTable[3], int nBitSize);
PelStatus peliLUTPalette_8u_C4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                PeliSize roiSize, const Pel8u* pTable[4], int nBitSize);
PelStatus peliLUTPalette_8u_AC4R(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel8u* pTable[3], int nBitSize);
PelStatus peliLUTPalette_16u_C1R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel16u* pTable, int nBitSize);
PelStatus peliLUTPalette_16u_C3R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel16u* pTable[3], int nBitSize);
PelStatus peliLUTPalette_16u_C4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                 PeliSize roiSize, const Pel16u* pTable[4], int nBitSize);
PelStatus peliLUTPalette_16u_AC4R(const Pel16u* pSrc, int srcStep, Pel16u* pDst, int dstStep,
                                  PeliSize roiSize, const Pel16u* pTable[3], int nBitSize);
PelStatus peliLUTPalette_8u32u_C1R(const Pel8u* pSrc, int srcStep, Pel32u* pDst, int dstStep,
                                   PeliSize roiSize, const Pel32u* pTable, int nBitSize);
PelStatus peliLUTPalette_16u8u_C1R(const Pel16u* pSrc, int srcStep, Pel8u* pDst, int dstStep,
                                   PeliSize roiSize, const Pel8u* pTable, int nBitSize);
PelStatus peliLUTPalette_16u32u_C1R(const Pel16u* pSrc, int srcStep, Pel32u* pDst, int dstStep,
                                    PeliSize roiSize, const Pel32u* pTable, int nBitSize);

#ifdef __cplusplus
}
#endif

#endif /* PELI_LUT_H */
