/* peli_arith.h: arithmetic of two images, with constants, and one-operand functions.
 * Part of the C interface of peli; include <peli.h>, which includes this. */
#ifndef PELI_ARITH_H
#define PELI_ARITH_H
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

#endif /* PELI_ARITH_H */
