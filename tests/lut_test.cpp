// What the lookup-table rows cannot say: curves worked out by hand, a full
// 256-entry table of distinct random bytes through the shuffle kernel, and
// the rounding control, which the interpolating calls set and put back.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <numeric>
#include <random>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"

namespace {

// x = -1..7 through a 16s curve, one row.
std::vector<int> Through16s(PelStatus (*fn)(const Pel16s*, int, Pel16s*, int, PeliSize, const Pel32s*,
                                            const Pel32s*, int),
                            std::vector<Pel32s> values, std::vector<Pel32s> levels) {
  std::vector<Pel16s> src(9), dst(9);
  std::iota(src.begin(), src.end(), Pel16s(-1));
  EXPECT_EQ(fn(src.data(), 18, dst.data(), 18, PeliSize{9, 1}, values.data(), levels.data(), int(levels.size())),
            pelStatusOk);
  return {dst.begin(), dst.end()};
}

// Values of x^3 at the levels 0, 2, 4, 6. Inside, the cubic through all four
// points is x^3 itself; the end intervals take the quadratic through three
// (6x^2 - 8x at the low end, 12x^2 - 44x + 48 at the high end). 6 and
// beyond, and -1, are outside and copied.
TEST(LutWorked, CubicNearTheEnds) {
  EXPECT_EQ(Through16s(peliLUT_Cubic_16s_C1R, {0, 8, 64, 216}, {0, 2, 4, 6}),
            (std::vector<int>{-1, 0, -2, 8, 27, 64, 128, 6, 7}));
}

// Halves go to the even neighbour; values past the type saturate.
TEST(LutWorked, LinearTiesToEvenAndSaturation) {
  EXPECT_EQ(Through16s(peliLUT_Linear_16s_C1R, {0, 2, 0}, {0, 4, 6}), (std::vector<int>{-1, 0, 0, 1, 2, 2, 1, 6, 7}));
  EXPECT_EQ(Through16s(peliLUT_Linear_16s_C1R, {-90000, 90000}, {0, 4}),
            (std::vector<int>{-1, -32768, -32768, 0, 32767, 4, 5, 6, 7}));
  EXPECT_EQ(Through16s(peliLUT_16s_C1R, {-40000, 7, 40000}, {1, 2, 4, 5}),
            (std::vector<int>{-1, 0, -32768, 7, 7, 32767, 5, 6, 7}));
}

// Levels 0..256 with 256 values are the classic table, entry for entry,
// whatever the entries and on every CPU level.
TEST(LutWorked, ClassicTableOnEveryLevel) {
  std::mt19937 rng(7);
  std::vector<Pel32s> levels(257), values(257);
  std::iota(levels.begin(), levels.end(), 0);
  std::iota(values.begin(), values.end(), 0);
  std::shuffle(values.begin(), values.begin() + 256, rng);
  const PeliSize roi{333, 3};
  std::vector<Pel8u> src(size_t(roi.width) * 4 * roi.height);
  for (Pel8u& v : src) v = Pel8u(rng());
  peltest::ForEachCpuLevel([&] {
    for (int c : {1, 3, 4}) {
      std::vector<Pel8u> dst(src.size());
      const Pel32s* v[4] = {values.data(), values.data(), values.data(), values.data()};
      const Pel32s* l[4] = {levels.data(), levels.data(), levels.data(), levels.data()};
      int n[4] = {257, 257, 257, 257};
      const int step = roi.width * c;
      const PelStatus st =
          c == 1   ? peliLUT_8u_C1R(src.data(), step, dst.data(), step, roi, values.data(), levels.data(), 257)
          : c == 3 ? peliLUT_8u_C3R(src.data(), step, dst.data(), step, roi, v, l, n)
                   : peliLUT_8u_C4R(src.data(), step, dst.data(), step, roi, v, l, n);
      ASSERT_EQ(st, pelStatusOk);
      for (size_t i = 0; i < size_t(step) * roi.height; ++i)
        ASSERT_EQ(dst[i], values[src[i]]) << "channels " << c << " element " << i;
    }
  });
}

// Under every caller rounding mode the results are those of nearest, and
// the caller's mode is back on return.
TEST(LutWorked, RoundingControlSetAndRestored) {
  const unsigned original = _mm_getcsr();
  const std::vector<int> nearest = Through16s(peliLUT_Linear_16s_C1R, {0, 2, 0}, {0, 4, 6});
  std::vector<float> src{0.5f, 1.5f, 2.5f}, dst(3);
  const Pel32f levels[2] = {0.0f, 4.0f}, values[2] = {0.0f, 1.0f / 3.0f};
  for (unsigned mode : {0x2000u, 0x4000u, 0x6000u}) {
    _mm_setcsr((original & ~0x6000u) | mode);
    EXPECT_EQ(Through16s(peliLUT_Linear_16s_C1R, {0, 2, 0}, {0, 4, 6}), nearest) << "mode " << mode;
    ASSERT_EQ(peliLUT_Cubic_32f_C1R(src.data(), 12, dst.data(), 12, PeliSize{3, 1}, values, levels, 2), pelStatusOk);
    EXPECT_EQ(_mm_getcsr() & 0x6000u, mode);
    _mm_setcsr(original);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(dst[i], float(double(values[1]) * (double(src[i]) / 4.0))) << "mode " << mode << " x " << src[i];
  }
  _mm_setcsr(original);
}

}  // namespace
