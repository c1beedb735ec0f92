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

/* The members arrive with the family. */

#ifdef __cplusplus
}
#endif

#endif /* PELI_LUT_H */
