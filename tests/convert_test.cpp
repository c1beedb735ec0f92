// What the conversion and threshold tables cannot say: hand-computed values,
// every 8- and 16-bit source value at once, and what a call leaves in the
// processor's rounding control.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cmath>
#include <limits>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/rows.h"

namespace {

using peltest::Layout;

const float kNaN = std::numeric_limits<float>::quiet_NaN();

// One row of n values through a one-row export; returns the row.
template <class D, class S, class F>
std::vector<D> OneRow(const std::vector<S>& in, F call, PelStatus want = pelStatusOk) {
  std::vector<D> out(in.size(), D(77));
  const int n = static_cast<int>(in.size());
  EXPECT_EQ(call(in.data(), n * int(sizeof(S)), out.data(), n * int(sizeof(D)), PeliSize{n, 1}), want);
  return out;
}

TEST(ConvertByHand, FloatTo8uInEveryMode) {
  const std::vector<float> src{0.5f, 1.5f, 254.5f, 300.0f, -3.0f, kNaN, 0.99f, 255.9f, 2.5f, -0.5f};
  peltest::ForEachCpuLevel([&] {
    auto mode = [&](int m) {
      return OneRow<Pel8u>(src, [m](auto... a) { return peliConvert_32f8u_C1R(a..., m); });
    };
    EXPECT_EQ(mode(pelRoundNear), (std::vector<Pel8u>{0, 2, 254, 255, 0, 255, 1, 255, 2, 0}));
    EXPECT_EQ(mode(pelRoundZero), (std::vector<Pel8u>{0, 1, 254, 255, 0, 255, 0, 255, 2, 0}));
    EXPECT_EQ(mode(pelRoundAlternate), (std::vector<Pel8u>{1, 2, 255, 255, 0, 255, 1, 255, 3, 0}));
    EXPECT_EQ(mode(7), mode(pelRoundAlternate));
  });
}

TEST(ConvertByHand, ScaleFactors) {
  const std::vector<float> five{5.0f};
  auto sfs = [&](int m) { return OneRow<Pel8u>(five, [m](auto... a) { return peliConvert_32f8u_C1RSfs(a..., m, 1); }); };
  EXPECT_EQ(sfs(pelRoundNear)[0], 2);
  EXPECT_EQ(sfs(pelRoundAlternate)[0], 3);
  const std::vector<Pel16s> s16{-32768, 32767, -1, 5};
  EXPECT_EQ(OneRow<Pel16u>(s16, peliConvert_16s16u_C1Rs), (std::vector<Pel16u>{0, 32767, 0, 5}));
  const std::vector<Pel8u> u8{1, 0, 255, 127};
  EXPECT_EQ(OneRow<Pel8s>(u8, [](auto... a) { return peliConvert_8u8s_C1RSfs(a..., pelRoundNear, -7); }),
            (std::vector<Pel8s>{127, 0, 127, 127}));
  EXPECT_EQ(OneRow<Pel8s>(u8, [](auto... a) { return peliConvert_8u8s_C1RSfs(a..., pelRoundNear, 0); }),
            (std::vector<Pel8s>{1, 0, 127, 127}));
  const std::vector<Pel16s> narrow{300, -5, 255, 0};
  EXPECT_EQ(OneRow<Pel8u>(narrow, peliConvert_16s8u_C1R), (std::vector<Pel8u>{255, 0, 255, 0}));
}

TEST(ThresholdByHand, Examples) {
  std::vector<Pel8u> px{99, 100, 101};
  EXPECT_EQ(OneRow<Pel8u>(px, [](auto... a) { return peliThreshold_8u_C1R(a..., 100, pelCmpLess); }),
            (std::vector<Pel8u>{100, 100, 101}));
  OneRow<Pel8u>(px, [](auto... a) { return peliThreshold_8u_C1R(a..., 100, pelCmpLessEq); }, pelStatusNotSupportedMode);
  EXPECT_EQ(peliThreshold_Val_8u_C1R(nullptr, 1, px.data(), 3, PeliSize{3, 1}, 1, 2, pelCmpEq),
            pelStatusNotSupportedMode);
  EXPECT_EQ(OneRow<Pel8u>(px, [](auto... a) { return peliThreshold_GTVal_8u_C1R(a..., 100, 0); }),
            (std::vector<Pel8u>{99, 100, 0}));
  OneRow<Pel8u>(px, [](auto... a) { return peliThreshold_LTValGTVal_8u_C1R(a..., 50, 0, 40, 255); },
             pelStatusThresholdError);
}

TEST(CompareByHand, ThreeChannelLess) {
  const Pel8u a[] = {1, 2, 3, 1, 2, 3};
  const Pel8u b[] = {2, 3, 3, 2, 3, 4};
  Pel8u mask[2] = {9, 9};
  EXPECT_EQ(peliCompare_8u_C3R(a, 6, b, 6, mask, 2, PeliSize{2, 1}, pelCmpLess), pelStatusOk);
  EXPECT_EQ(mask[0], 0);
  EXPECT_EQ(mask[1], 255);
  EXPECT_EQ(peliCompareEqualEps_32f_C1R(nullptr, 4, nullptr, 4, mask, 1, PeliSize{1, 1}, -0.5f),
            pelStatusNullPointer);
}

// Every value of an 8- or 16-bit source in one image, under every CPU level,
// against the row's model.
void Exhaustive(const char* name, const std::string& variant = "") {
  peltest::Row row = peltest::FindRow(name, variant);
  const int bytes = row.args[0].type.bytes;
  const int width = bytes == 1 ? 256 : 512, height = bytes == 1 ? 1 : 128;
  row.args[0].fill = [bytes](peltest::AnyView& v, std::mt19937&) {
    uint32_t k = 0;
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x, ++k) std::memcpy(v.image().bytesAt(x, y), &k, bytes);
  };
  peltest::ForEachCpuLevel([&] {
    peltest::RunRow(row, Layout{width, height, 1}, 3);
    peltest::RunRow(row, Layout{width, height, 1, 6, 2, false}, 3);
  });
}

TEST(ConvertExhaustive, EverySmallSourceValue) {
  for (const char* name : {"peliConvert_16s8u_C1R", "peliConvert_16u8u_C1R", "peliConvert_8u16s_C1R",
                           "peliConvert_8u32f_C1R", "peliConvert_16s32f_C1R", "peliConvert_16u32f_C1R",
                           "peliScale_16u8u_C1R", "peliScale_16s8u_C1R", "peliScale_8u16s_C1R",
                           "peliConvert_16u8s_C1RSfs", "peliConvert_8u8s_C1RSfs", "peliScale_8u32f_C1R",
                           "peliThreshold_16s_C1R", "peliThreshold_LTValGTVal_16u_C1IR", "peliThreshold_8u_C1IR",
                           "peliCompareC_16u_C1R", "peliCompareC_8u_C1R"}) {
    Exhaustive(name);
  }
  Exhaustive("peliConvert_16u8s_C1RSfs", "m2s3");
}

// Rounding control: set for the call and put back, whatever the mode asked.
TEST(RoundingControl, RestoredAfterConversions) {
  const unsigned original = _mm_getcsr();
  const std::vector<float> src{2.5f, -1.5f};
  for (unsigned caller : {0x0000u, 0x2000u, 0x4000u, 0x6000u}) {
    _mm_setcsr((original & ~0x6000u) | caller);
    for (int mode : {0, 1, 2}) {
      OneRow<Pel16s>(src, [mode](auto... a) { return peliConvert_32f16s_C1R(a..., mode); });
      EXPECT_EQ(_mm_getcsr() & 0x6000u, caller) << "mode " << mode;
      OneRow<Pel32s>(src, [mode](auto... a) { return peliConvert_32f32s_C1RSfs(a..., mode, 2); });
      EXPECT_EQ(_mm_getcsr() & 0x6000u, caller) << "mode " << mode;
    }
    // The results do not depend on the caller's rounding either.
    EXPECT_EQ(OneRow<Pel16s>(src, [](auto... a) { return peliConvert_32f16s_C1R(a..., pelRoundNear); }),
              (std::vector<Pel16s>{2, -2}));
  }
  _mm_setcsr(original);
}

// The range scaling leaves round-to-nearest set when it fails, and restores
// the caller's rounding only when it succeeds.
TEST(RoundingControl, ScaleLeavesNearestOnError) {
  const unsigned original = _mm_getcsr();
  float src[2] = {1.0f, 2.0f};
  Pel8u dst[2];
  auto call = [&](const float* s, PeliSize roi, float vMax) {
    _mm_setcsr(original | 0x6000u);
    return peliScale_32f8u_C1R(s, 8, dst, 2, roi, 0.0f, vMax);
  };
  EXPECT_EQ(call(src, PeliSize{2, 1}, 0.0f), pelStatusScaleRangeError);
  EXPECT_EQ(_mm_getcsr() & 0x6000u, 0u);
  EXPECT_EQ(call(nullptr, PeliSize{2, 1}, 4.0f), pelStatusNullPointer);
  EXPECT_EQ(_mm_getcsr() & 0x6000u, 0u);
  EXPECT_EQ(call(src, PeliSize{0, 1}, 4.0f), pelStatusBadSize);
  EXPECT_EQ(_mm_getcsr() & 0x6000u, 0u);
  EXPECT_EQ(call(src, PeliSize{2, 1}, 4.0f), pelStatusOk);
  EXPECT_EQ(_mm_getcsr() & 0x6000u, 0x6000u);
  EXPECT_EQ(dst[0], 64);   // 1 x 63.75 rounds up
  EXPECT_EQ(dst[1], 128);  // 127.5: ties to even
  _mm_setcsr(original);
}

}  // namespace
