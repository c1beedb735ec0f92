/* peli_filter.h: the general filter with border; box, median, minimum and maximum filters.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_FILTER_H
#define PELI_FILTER_H
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

#endif /* PELI_FILTER_H */
