// PEL_CPU caps the instruction-set level that the kernels dispatch to:
//   PEL_CPU=scalar   the scalar reference kernels
//   PEL_CPU=sse4     at most SSE4.2 (128-bit vectors)
//   PEL_CPU=avx2     at most AVX2
//   PEL_CPU=avx512   at most AVX-512 (the default on such machines)
// The cap is read once, when the library is loaded, and only lowers the
// level: a level the processor lacks is never chosen. An unknown value is
// ignored. The kernels dispatch through Highway, whose target choice is
// made once per process; the cap is applied to that choice before the first
// kernel runs.
#include <cstdlib>
#include <cstring>

#include "hwy/targets.h"

namespace {

int64_t CapFromName(const char* name) {
  struct Level {
    const char* name;
    int64_t target;
  };
  static constexpr Level kLevels[] = {
      {"scalar", HWY_STATIC_TARGET},
      {"sse4", HWY_SSE4},
      {"avx2", HWY_AVX2},
      {"avx512", HWY_AVX3},
  };
  for (const Level& level : kLevels) {
    if (strcasecmp(name, level.name) == 0) return level.target;
  }
  return 0;
}

// Highway orders its targets by bit: a lower bit is a better target, so a
// cap disables every bit below its own.
__attribute__((constructor)) void ApplyCpuCap() {
  const char* value = std::getenv("PEL_CPU");
  if (value == nullptr) return;
  const int64_t cap = CapFromName(value);
  if (cap == 0) return;
  hwy::DisableTargets(cap - 1);
}

}  // namespace
