/* pelcore: the services libpeli takes from outside.
 *
 * Five functions, nothing else: aligned memory, the size of the processor's
 * largest cache, and one processor-feature query. libpeli calls them through
 * this library's dynamic symbols, so a replacement libpelcore.so changes what
 * libpeli sees. */
#ifndef PELCORE_H
#define PELCORE_H

#include <stdint.h>

#if defined(_WIN32)
#define PELCORE_API
#else
#define PELCORE_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Memory aligned to 64 bytes (the widest vector access), or NULL when size is
 * below 1 or the memory is not available. Release it with pelFree. */
PELCORE_API void* pelMalloc(int32_t size);
/* The same for 64-bit byte counts (the _L allocation functions). */
PELCORE_API void* pelMalloc_L(int64_t size);
/* Releases what pelMalloc or pelMalloc_L returned; NULL is ignored. */
PELCORE_API void pelFree(void* ptr);

/* Writes the size in bytes of the largest cache of this processor to
 * *pSizeByte and returns 0; returns -8 for a NULL pointer and -1 when the size
 * cannot be found (then *pSizeByte is not written). */
PELCORE_API int pelGetMaxCacheSizeB(int* pSizeByte);

/* Processor features, one bit each, as ownGetFeature understands them. A bit
 * that needs operating-system support (the AVX and AVX-512 register state) is
 * set only when the system has enabled that state. */
#define PEL_CPUID_MMX        (1ULL << 0)
#define PEL_CPUID_SSE        (1ULL << 1)
#define PEL_CPUID_SSE2       (1ULL << 2)
#define PEL_CPUID_SSE3       (1ULL << 3)
#define PEL_CPUID_SSSE3      (1ULL << 4)
#define PEL_CPUID_MOVBE      (1ULL << 5)
#define PEL_CPUID_SSE41      (1ULL << 6)
#define PEL_CPUID_SSE42      (1ULL << 7)
#define PEL_CPUID_AVX        (1ULL << 8)
#define PEL_CPUID_AES        (1ULL << 9)
#define PEL_CPUID_CLMUL      (1ULL << 10)
#define PEL_CPUID_RDRAND     (1ULL << 11)
#define PEL_CPUID_F16C       (1ULL << 12)
#define PEL_CPUID_AVX2       (1ULL << 13)
#define PEL_CPUID_FMA        (1ULL << 14)
#define PEL_CPUID_BMI1       (1ULL << 15)
#define PEL_CPUID_BMI2       (1ULL << 16)
#define PEL_CPUID_ADX        (1ULL << 17)
#define PEL_CPUID_RDSEED     (1ULL << 18)
#define PEL_CPUID_SHA        (1ULL << 19)
#define PEL_CPUID_POPCNT     (1ULL << 20)
#define PEL_CPUID_AVX512F    (1ULL << 21)
#define PEL_CPUID_AVX512CD   (1ULL << 22)
#define PEL_CPUID_AVX512DQ   (1ULL << 23)
#define PEL_CPUID_AVX512BW   (1ULL << 24)
#define PEL_CPUID_AVX512VL   (1ULL << 25)
#define PEL_CPUID_AVX512VBMI (1ULL << 26)
/* Bit 27: 64-byte vectors are worth using for byte and word data: AVX-512 F,
 * BW and VL together with the operating system's ZMM state. The general
 * filter's size query asks for this bit to choose its wide buffer layout. */
#define PEL_CPUID_AVX512WIDE (1ULL << 27)

/* Nonzero when the processor has every feature of featureMask (so a mask of
 * 0 gives nonzero); 0 when a feature is missing or a bit is not one of the
 * above. */
PELCORE_API int ownGetFeature(uint64_t featureMask);

#ifdef __cplusplus
}
#endif

#endif /* PELCORE_H */
