// libpelcore: aligned memory, the largest cache size and the feature query.
// The processor's answers are read once per process and kept as constants:
// cpuid can cost microseconds under a hypervisor, and libpeli asks for the
// cache size on every large transfer.
#include "pelcore.h"

#include <cpuid.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr size_t kAlignment = 64;

void* AlignedAlloc(uint64_t size) {
  if (size < 1 || size > SIZE_MAX - kAlignment) return nullptr;
  void* p = nullptr;
  if (posix_memalign(&p, kAlignment, static_cast<size_t>(size)) != 0) return nullptr;
  return p;
}

struct CpuidRegs {
  unsigned a = 0, b = 0, c = 0, d = 0;
};

CpuidRegs Cpuid(unsigned leaf, unsigned subleaf = 0) {
  CpuidRegs r;
  if (static_cast<unsigned>(__get_cpuid_max(leaf & 0x80000000u, nullptr)) < leaf) return r;
  __cpuid_count(leaf, subleaf, r.a, r.b, r.c, r.d);
  return r;
}

uint64_t Xgetbv0() {
  unsigned lo = 0, hi = 0;
  __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
  return (static_cast<uint64_t>(hi) << 32) | lo;
}

bool Bit(unsigned reg, int bit) { return (reg >> bit) & 1u; }

uint64_t FeatureMask() {
  const CpuidRegs l1 = Cpuid(1);
  const CpuidRegs l7 = Cpuid(7);
  uint64_t m = 0;
  auto set = [&m](bool has, uint64_t bit) {
    if (has) m |= bit;
  };
  set(Bit(l1.d, 23), PEL_CPUID_MMX);
  set(Bit(l1.d, 25), PEL_CPUID_SSE);
  set(Bit(l1.d, 26), PEL_CPUID_SSE2);
  set(Bit(l1.c, 0), PEL_CPUID_SSE3);
  set(Bit(l1.c, 9), PEL_CPUID_SSSE3);
  set(Bit(l1.c, 22), PEL_CPUID_MOVBE);
  set(Bit(l1.c, 19), PEL_CPUID_SSE41);
  set(Bit(l1.c, 20), PEL_CPUID_SSE42);
  set(Bit(l1.c, 25), PEL_CPUID_AES);
  set(Bit(l1.c, 1), PEL_CPUID_CLMUL);
  set(Bit(l1.c, 30), PEL_CPUID_RDRAND);
  set(Bit(l1.c, 23), PEL_CPUID_POPCNT);
  set(Bit(l7.b, 3), PEL_CPUID_BMI1);
  set(Bit(l7.b, 8), PEL_CPUID_BMI2);
  set(Bit(l7.b, 19), PEL_CPUID_ADX);
  set(Bit(l7.b, 18), PEL_CPUID_RDSEED);
  set(Bit(l7.b, 29), PEL_CPUID_SHA);

  // The vector extensions count only when the operating system saves their
  // registers (OSXSAVE and the XCR0 state bits).
  const bool osxsave = Bit(l1.c, 27);
  const uint64_t xcr0 = osxsave ? Xgetbv0() : 0;
  const bool ymmState = (xcr0 & 0x6) == 0x6;
  const bool zmmState = (xcr0 & 0xE6) == 0xE6;
  if (ymmState && Bit(l1.c, 28)) {
    m |= PEL_CPUID_AVX;
    set(Bit(l1.c, 29), PEL_CPUID_F16C);
    set(Bit(l1.c, 12), PEL_CPUID_FMA);
    set(Bit(l7.b, 5), PEL_CPUID_AVX2);
  }
  if (zmmState && Bit(l7.b, 16)) {
    m |= PEL_CPUID_AVX512F;
    set(Bit(l7.b, 28), PEL_CPUID_AVX512CD);
    set(Bit(l7.b, 17), PEL_CPUID_AVX512DQ);
    set(Bit(l7.b, 30), PEL_CPUID_AVX512BW);
    set(Bit(l7.b, 31), PEL_CPUID_AVX512VL);
    set(Bit(l7.c, 1), PEL_CPUID_AVX512VBMI);
    if (Bit(l7.b, 30) && Bit(l7.b, 31)) m |= PEL_CPUID_AVX512WIDE;
  }
  return m;
}

constexpr uint64_t kKnownFeatures = (PEL_CPUID_AVX512WIDE << 1) - 1;

// Largest cache from the deterministic cache-parameter leaves: 4 on Intel,
// 0x8000001D on AMD. Each subleaf describes one cache until type 0.
int64_t CacheFromCpuid() {
  const CpuidRegs vendor = Cpuid(0);
  const bool amd = vendor.b == 0x68747541u;  // "Auth"enticAMD
  const unsigned leaf = amd ? 0x8000001Du : 4u;
  int64_t best = 0;
  for (unsigned i = 0; i < 16; ++i) {
    const CpuidRegs r = Cpuid(leaf, i);
    if ((r.a & 0x1F) == 0) break;
    const int64_t ways = ((r.b >> 22) & 0x3FF) + 1;
    const int64_t partitions = ((r.b >> 12) & 0x3FF) + 1;
    const int64_t lineSize = (r.b & 0xFFF) + 1;
    const int64_t sets = static_cast<int64_t>(r.c) + 1;
    const int64_t size = ways * partitions * lineSize * sets;
    if (size > best) best = size;
  }
  return best;
}

// Fallback when cpuid has no cache leaves (some emulators and hypervisors).
int64_t CacheFromSysfs() {
  int64_t best = 0;
  for (int i = 0; i < 8; ++i) {
    char path[80];
    std::snprintf(path, sizeof path, "/sys/devices/system/cpu/cpu0/cache/index%d/size", i);
    FILE* f = std::fopen(path, "r");
    if (!f) break;
    long long value = 0;
    char unit = 0;
    const int n = std::fscanf(f, "%lld%c", &value, &unit);
    std::fclose(f);
    if (n < 1) continue;
    if (unit == 'K') value *= 1024;
    if (unit == 'M') value *= 1024 * 1024;
    if (value > best) best = value;
  }
  return best;
}

}  // namespace

extern "C" {

void* pelMalloc(int32_t size) { return size < 1 ? nullptr : AlignedAlloc(static_cast<uint64_t>(size)); }

void* pelMalloc_L(int64_t size) { return size < 1 ? nullptr : AlignedAlloc(static_cast<uint64_t>(size)); }

void pelFree(void* ptr) { std::free(ptr); }

int pelGetMaxCacheSizeB(int* pSizeByte) {
  if (pSizeByte == nullptr) return -8;
  static const int64_t size = [] {
    const int64_t fromCpuid = CacheFromCpuid();
    return fromCpuid > 0 ? fromCpuid : CacheFromSysfs();
  }();
  if (size <= 0 || size > INT32_MAX) return -1;
  *pSizeByte = static_cast<int>(size);
  return 0;
}

int ownGetFeature(uint64_t featureMask) {
  if (featureMask & ~kKnownFeatures) return 0;
  static const uint64_t features = FeatureMask();
  return (features & featureMask) == featureMask ? 1 : 0;
}

}  // extern "C"
