// PEL_CPU, read when libpeli is loaded, caps the dispatch level. CTest runs
// this program with PEL_CPU set to each level; it checks that no better
// level than the cap remains and that the kernels still give right results.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "hwy/targets.h"
#include "peli.h"

namespace {

TEST(CpuCap, NoLevelAboveTheCap) {
  const char* cap = std::getenv("PEL_CPU");
  ASSERT_NE(cap, nullptr) << "run with PEL_CPU set";
  // Load-time work happened already; make a call so dispatch has chosen.
  std::vector<Pel8u> a(4096, 3), b(4096, 0);
  ASSERT_EQ(peliCopy_8u_C1R(a.data(), 4096, b.data(), 4096, PeliSize{4096, 1}), pelStatusOk);
  EXPECT_EQ(a, b);
  const int64_t supported = hwy::SupportedTargets();
  const std::string level = cap;
  int64_t forbidden = 0;
  if (level == "scalar") forbidden = HWY_SSE4 | HWY_AVX2 | HWY_AVX3;
  if (level == "sse4") forbidden = HWY_AVX2 | HWY_AVX3;
  if (level == "avx2") forbidden = HWY_AVX3;
  EXPECT_EQ(supported & forbidden, 0) << "PEL_CPU=" << level << " left "
                                      << hwy::TargetName(supported & forbidden & -(supported & forbidden));
}

}  // namespace
