/* The public headers as C99, and a few calls through them. */
#include <stdio.h>
#include <string.h>

#include "pelcore.h"
#include "peli.h"

#define CHECK(cond)                                              \
  do {                                                           \
    if (!(cond)) {                                               \
      fprintf(stderr, "%s:%d: %s failed\n", __FILE__, __LINE__, #cond); \
      return 1;                                                  \
    }                                                            \
  } while (0)

int main(void) {
  const PelLibraryVersion* v = peliGetLibVersion();
  int step = 0, cache = 0;
  PeliSize roi = {5, 3};
  Pel8u* a;
  Pel8u* b;
  int x, y;
  CHECK(v != NULL && v->major == 2021 && strcmp(v->Name, "pelIP SSE2 (w7)") == 0);
  CHECK(sizeof(PeliSize) == 8 && sizeof(PeliSizeL) == 2 * sizeof(void*));
  CHECK(pelStatusSizeOverflow == -232 && pelBorderInMem == 0xF0 && pelType64f == 19);
  CHECK(ownGetFeature(PEL_CPUID_SSE2) != 0);
  CHECK(pelGetMaxCacheSizeB(&cache) != 0 || cache > 0);

  a = peliMalloc_8u_C1(5, 3, &step);
  b = peliMalloc_8u_C1(5, 3, &step);
  CHECK(a != NULL && b != NULL && step == 64);
  CHECK(peliSet_8u_C1R(42, a, step, roi) == pelStatusOk);
  CHECK(peliCopy_8u_C1R(a, step, b, step, roi) == pelStatusOk);
  for (y = 0; y < 3; ++y)
    for (x = 0; x < 5; ++x) CHECK(b[y * step + x] == 42);
  CHECK(peliCopy_8u_C1R(NULL, step, b, step, roi) == pelStatusNullPointer);
  roi.width = 0;
  CHECK(peliCopy_8u_C1R(a, step, b, step, roi) == pelStatusBadSize);
  peliFree(a);
  peliFree(b);
  peliFree(NULL);
  printf("C interface: ok\n");
  return 0;
}
