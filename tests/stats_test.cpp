// What the statistics table cannot say: the worked examples, constant images
// at the sizes where narrower accumulators would overflow, and where the
// infinity norm lets a NaN survive.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/image.h"

namespace {

uint64_t Bits(double v) {
  uint64_t b;
  std::memcpy(&b, &v, 8);
  return b;
}

// The result a call writes to v, or a negative number that names its status.
#define PEL_RESULT(type, call)                          \
  [&] {                                                 \
    type v{};                                           \
    const PelStatus s = call;                           \
    return s == pelStatusOk ? double(v) : -1000.0 + s;  \
  }

// Constant images, each call checked under every CPU level.
struct Big {
  const char* what;
  std::function<double()> got;
  double want;
};

TEST(StatsLarge, ExactAtTheAccumulatorLimits) {
  const int w = 3133, h = 2689;  // w x (h - 1) = 8421504 = 0x808080 pixels
  std::vector<Pel8u> u8(size_t(w) * h * 4, 255);  // also 4096 x 4096
  std::vector<Pel8u> zero(size_t(4096) * 4096, 0);
  std::vector<Pel16u> u16(size_t(4096) * 2048, 65535);
  std::vector<Pel16s> s16(size_t(4096) * 2048, -32768);
  const Pel8u* p8 = u8.data();
  const PeliSize sq{4096, 4096}, half{4096, 2048};
  std::vector<Big> cases = {
      {"Sum_8u_C1R 4096x4096", PEL_RESULT(double, peliSum_8u_C1R(p8, 4096, sq, &v)), 4278190080.0},
      {"Norm_L1_8u_C1R", PEL_RESULT(double, peliNorm_L1_8u_C1R(p8, 4096, sq, &v)), 4278190080.0},
      {"Norm_L2_8u_C1R", PEL_RESULT(double, peliNorm_L2_8u_C1R(p8, 4096, sq, &v)), 255.0 * 4096},
      {"NormDiff_L2_8u_C1R", PEL_RESULT(double, peliNormDiff_L2_8u_C1R(p8, 4096, zero.data(), 4096, sq, &v)), 255.0 * 4096},
      {"DotProd_8u64f_C1R", PEL_RESULT(double, peliDotProd_8u64f_C1R(p8, 4096, p8, 4096, sq, &v)), 65025.0 * 4096 * 4096},
      {"CountInRange_8u_C1R", PEL_RESULT(int, peliCountInRange_8u_C1R(p8, 4096, sq, &v, 255, 255)), 4096.0 * 4096},
      {"Sum_16u_C1R", PEL_RESULT(double, peliSum_16u_C1R(u16.data(), 8192, half, &v)), 65535.0 * 4096 * 2048},
      {"Norm_L2_16u_C1R", PEL_RESULT(double, peliNorm_L2_16u_C1R(u16.data(), 8192, half, &v)),
       std::sqrt(double(uint64_t{65535} * 65535 * 4096 * 2048))},
      {"Sum_16s_C1R", PEL_RESULT(double, peliSum_16s_C1R(s16.data(), 8192, half, &v)), -32768.0 * 4096 * 2048},
      {"Norm_L1_16s_C1R", PEL_RESULT(double, peliNorm_L1_16s_C1R(s16.data(), 8192, half, &v)), 32768.0 * 4096 * 2048},
      // 40000 columns: norms of the strips 0..32767 and 32768..39999, squared back.
      {"Norm_L2_8u_C1R 40000x1", PEL_RESULT(double, peliNorm_L2_8u_C1R(p8, 40000, {40000, 1}, &v)),
       std::sqrt(std::pow(std::sqrt(32768.0 * 65025), 2) + std::pow(std::sqrt(7232.0 * 65025), 2))},
  };
  // Three and four channels at 0x808080 pixels and one row more.
  for (int rows : {h - 1, h})
    for (int C : {3, 4}) {
      const double want = 255.0 * w * rows;
      cases.push_back({C == 3 ? "Sum_8u_C3R" : "Sum_8u_C4R", [=] {
                         double v[4] = {};
                         const PelStatus s = C == 3 ? peliSum_8u_C3R(p8, w * 3, {w, rows}, v) : peliSum_8u_C4R(p8, w * 4, {w, rows}, v);
                         return s == pelStatusOk && v[0] == v[C - 1] && v[1] == v[0] ? v[0] : -1;
                       }, want});
    }
  // Past 2^53 the 16-bit dot product adds every product in Pel64f, in order.
  double sequential = 0;
  for (int i = 0; i < 2200 * 1100; ++i) sequential += 65535.0 * 65535.0;
  cases.push_back({"DotProd_16u64f_C1R past 2^53",
                   PEL_RESULT(double, peliDotProd_16u64f_C1R(u16.data(), 4400, u16.data(), 4400, {2200, 1100}, &v)),
                   sequential});
  peltest::ForEachCpuLevel([&] {
    for (const Big& k : cases) EXPECT_EQ(Bits(k.got()), Bits(k.want)) << k.what << ": " << k.got() << " vs " << k.want;
  });
}

// ---- Worked examples -------------------------------------------------------------------

TEST(StatsExamples, SumOfOnePixelAndRelativeNormOfZero) {
  const Pel8u px = 201;
  double v = 0;
  EXPECT_EQ(peliSum_8u_C1R(&px, 1, {1, 1}, &v), pelStatusOk);
  EXPECT_EQ(v, 201.0);
  const Pel16s zeros[6] = {}, some[6] = {0, 0, -3, 0, 0, 0};
  EXPECT_EQ(peliNormRel_L1_16s_C1R(zeros, 6, zeros, 6, {3, 2}, &v), pelStatusDivByZeroWarning);
  EXPECT_EQ(Bits(v), 0xFFF8000000000000ull);
  EXPECT_EQ(peliNormRel_L1_16s_C1R(some, 6, zeros, 6, {3, 2}, &v), pelStatusDivByZeroWarning);
  EXPECT_EQ(v, std::numeric_limits<double>::infinity());
}

// Ties go to the first in row-major order; a row holding 65535 ends the scan
// (the row after it here lies on an inaccessible page).
TEST(StatsExamples, MaxIndexFirstOccurrenceAndEarlyEnd) {
  std::vector<Pel16u> img(10 * 5, 7);
  img[2 * 10 + 5] = img[3 * 10 + 1] = 900;
  Pel16u max = 0;
  int x = -1, y = -1;
  peltest::ForEachCpuLevel([&] {
    EXPECT_EQ(peliMaxIndx_16u_C1R(img.data(), 20, {10, 5}, &max, &x, &y), pelStatusOk);
    EXPECT_EQ(max, 900);
    EXPECT_EQ(x, 5);
    EXPECT_EQ(y, 2);
    peltest::Image<Pel16u> fenced(peltest::Layout{40, 1, 1, 0, 0, false, peltest::Fence::AtEnd});
    for (int i = 0; i < 40; ++i) fenced.at(i, 0) = Pel16u(i == 33 ? 65535 : i);
    EXPECT_EQ(peliMaxIndx_16u_C1R(fenced.data(), 80, {40, 2}, &max, &x, &y), pelStatusOk);
    EXPECT_EQ(max, 65535);
    EXPECT_EQ(x, 33);
    EXPECT_EQ(y, 0);
  });
}

TEST(StatsExamples, UniformLevelsAndTheTopBin) {
  const Pel32f lo[1] = {0}, hi256[1] = {256}, hi2[1] = {2};
  const int n[1] = {5};
  int specBytes = 0, bufferBytes = 0;
  ASSERT_EQ(peliHistogramGetBufferSize(pelType8u, {4, 1}, n, 1, 1, &specBytes, &bufferBytes), pelStatusOk);
  std::vector<Pel8u> spec(specBytes), buffer(bufferBytes);
  auto* s = reinterpret_cast<PeliHistogramSpec*>(spec.data());
  Pel32f levels[5];
  Pel32f* const out[1] = {levels};
  ASSERT_EQ(peliHistogramUniformInit(pelType8u, lo, hi256, n, 1, s), pelStatusOk);
  ASSERT_EQ(peliHistogramGetLevels(s, out), pelStatusOk);
  EXPECT_EQ(std::vector<Pel32f>(levels, levels + 5), (std::vector<Pel32f>{0, 64, 128, 192, 256}));
  const Pel8u px[4] = {255, 64, 63, 0};
  Pel32u bins[4] = {};
  ASSERT_EQ(peliHistogram_8u_C1R(px, 4, {4, 1}, bins, s, buffer.data()), pelStatusOk);
  EXPECT_EQ(std::vector<Pel32u>(bins, bins + 4), (std::vector<Pel32u>{2, 1, 0, 1}));
  // Step 0.5: levels coincide, and Init says so.
  EXPECT_EQ(peliHistogramUniformInit(pelType8u, lo, hi2, n, 1, s), pelStatusAdjusted);
  ASSERT_EQ(peliHistogramGetLevels(s, out), pelStatusOk);
  EXPECT_EQ(std::vector<Pel32f>(levels, levels + 5), (std::vector<Pel32f>{0, 0, 1, 1, 2}));
}

// Fast 32f infinity norm of a row that starts `offset` elements after a
// 16-byte boundary: element i feeds partial (i - h) mod 16 (h elements before
// the next boundary), a NaN survives only as the last element of its partial,
// and the fold m = (m > v) ? m : v over partials p and p + 8, then + 4, + 2,
// + 1 keeps it only from partial 15.
TEST(StatsExamples, InfinityNormNaNPlacement) {
  struct Case {
    int offset, width, nanAt, laterAt;  // laterAt < 0: no later element there
    bool nan;
  };
  const Case cases[] = {{0, 17, 15, -1, true}, {0, 32, 15, 31, false}, {0, 17, 16, -1, false},
                        {0, 20, 3, -1, false}, {1, 18, 2, -1, true},   {1, 20, 2, 18, false},
                        {3, 9, 0, -1, true},   {3, 20, 0, 16, false}};
  int step = 0;
  Pel32f* img = peliMalloc_32f_C1(64, 1, &step);
  ASSERT_NE(img, nullptr);
  peltest::ForEachCpuLevel([&] {
    for (const Case& k : cases) {
      Pel32f* row = img + k.offset;
      for (int i = 0; i < k.width; ++i) row[i] = float(i % 7) - 3.5f;
      row[k.nanAt] = std::numeric_limits<float>::quiet_NaN();
      if (k.laterAt >= 0) row[k.laterAt] = 100.0f;
      double v = 0;
      ASSERT_EQ(peliNorm_Inf_32f_C1R(row, step, {k.width, 1}, &v), pelStatusOk);
      EXPECT_EQ(std::isnan(v), k.nan) << "offset " << k.offset << " NaN at " << k.nanAt << ": " << v;
      if (!k.nan) {
        EXPECT_EQ(v, k.laterAt >= 0 ? 100.0 : 3.5);
      }
    }
  });
  peliFree(img);
}

}  // namespace
