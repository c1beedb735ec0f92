/* peli_stats.h: sums, means, norms, extremes, counts and histograms.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_STATS_H
#define PELI_STATS_H
#ifndef PELI_H
#error "include <peli.h>, not this header"
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The members arrive with the family. */

#ifdef __cplusplus
}
#endif

#endif /* PELI_STATS_H */
