// What the arithmetic rows cannot say: every pair of 8-bit operands at the
// scale factors of the rows, the worked examples of the documentation
// computed by hand, steps of zero, and the caller's rounding control.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/rows.h"

namespace {

using peltest::AnyView;

// All 65,536 pairs of 8-bit operands, in three arrangements: a 256x256
// image with src1(x, y) = x and src2(x, y) = y; for division also rows of
// seven, shorter than a group of eight (so divided exactly), and rows of
// eight whose first divisor is 0 (so the other seven are divided exactly).
enum class Arrangement { kSquare, kSevens, kZeroFirst };

void Exhaustive(const std::string& name, const std::string& variant, Arrangement how) {
  peltest::Row row = peltest::FindRow(name, variant);
  const int w = how == Arrangement::kSquare ? 256 : how == Arrangement::kSevens ? 7 : 8;
  const int h = how == Arrangement::kSquare ? 256 : (65536 + 6) / 7;
  auto pair = [how, w](int x, int y) {  // (src1, src2)
    if (how == Arrangement::kSquare) return std::pair<int, int>{x, y};
    if (how == Arrangement::kZeroFirst && x == 0) return std::pair<int, int>{0, y & 255};
    const int p = (y * 7 + x - (how == Arrangement::kZeroFirst ? 1 : 0)) & 0xFFFF;
    (void)w;
    return std::pair<int, int>{p >> 8, p & 255};
  };
  for (int k = 0; k < 2; ++k) {
    row.args[k].fill = [pair, k](AnyView& v, std::mt19937&) {
      for (int y = 0; y < v.height(); ++y)
        for (int x = 0; x < v.width(); ++x) v.at<Pel8u>(x, y) = Pel8u(k == 0 ? pair(x, y).first : pair(x, y).second);
    };
  }
  const std::vector<peltest::Layout> layouts(row.args.size(), peltest::Layout{w, h, 1});
  peltest::ForEachCpuLevel([&] { peltest::RunRowOn(row, layouts, PeliSize{w, h}, 1); });
}

// Every row of the member (each scale factor and rounding mode it has) but
// those whose scale factor repeats the class of another (the extremes).
class EveryPair : public ::testing::TestWithParam<std::string> {};

TEST_P(EveryPair, MatchesModel) {
  for (const auto& f : peltest::Families())
    for (const auto& r : f.rows())
      if (r.name == GetParam() && r.variant.find("214748364") == std::string::npos &&
          r.variant.find("1000") == std::string::npos) {
        SCOPED_TRACE(r.variant);
        Exhaustive(r.name, r.variant, Arrangement::kSquare);
        if (r.name.find("Div") != std::string::npos) {
          Exhaustive(r.name, r.variant, Arrangement::kSevens);
          Exhaustive(r.name, r.variant, Arrangement::kZeroFirst);
        }
      }
}

INSTANTIATE_TEST_SUITE_P(Arith8u, EveryPair,
                         ::testing::Values("peliAdd_8u_C1RSfs", "peliSub_8u_C1RSfs", "peliMul_8u_C1RSfs",
                                           "peliDiv_8u_C1RSfs", "peliDiv_Round_8u_C1RSfs"));

// 8u quotients of every pair at every scale factor up to the two shortcuts
// and in every rounding mode: each dispatch level gives the scalar
// reference's bytes (the rows check the reference against the model at
// their scale factors). Divisors run along rows (zeros in row 0 only) and
// along columns (a zero in every row's first group), so that each pair
// meets both the reciprocal and the exact path.
TEST(Div8u, EveryPairAtEveryScaleOnEveryLevel) {
  std::vector<Pel8u> a(65536), b(65536), want(65536), got(65536);
  auto run = [&](std::vector<Pel8u>& out, int s, int mode) {
    const PeliSize roi{256, 256};
    return mode < 0 ? peliDiv_8u_C1RSfs(a.data(), 256, b.data(), 256, out.data(), 256, roi, s)
                    : peliDiv_Round_8u_C1RSfs(a.data(), 256, b.data(), 256, out.data(), 256, roi, PelRoundMode(mode), s);
  };
  const std::vector<int64_t> levels = peltest::CpuLevels();
  for (int by = 0; by < 2; ++by) {
    for (int i = 0; i < 65536; ++i) {
      a[size_t(i)] = Pel8u(by ? i >> 8 : i & 255);  // divisor
      b[size_t(i)] = Pel8u(by ? i & 255 : i >> 8);  // dividend
    }
    for (int s = -17; s <= 10; ++s) {
      for (int mode = -1; mode <= 2; ++mode) {  // -1: Div
        {
          peltest::CpuLevelScope scalar(levels.front());
          ASSERT_EQ(run(want, s, mode), pelStatusDivByZeroWarning);
        }
        for (size_t l = 1; l < levels.size(); ++l) {
          peltest::CpuLevelScope level(levels[l]);
          ASSERT_EQ(run(got, s, mode), pelStatusDivByZeroWarning);
          const size_t at = size_t(std::mismatch(want.begin(), want.end(), got.begin()).first - want.begin());
          EXPECT_EQ(at, want.size()) << peltest::CpuLevelName(levels[l]) << " s " << s << " mode " << mode << ": "
                                      << int(b[at % 65536]) << " / " << int(a[at % 65536]);
        }
      }
    }
  }
}

// ---- The worked examples ---------------------------------------------------------------

template <class T, class F>
std::vector<T> Apply(F call, std::vector<T> src1, std::vector<T> src2, PelStatus want = pelStatusOk) {
  std::vector<T> dst(src1.size(), T(99));
  const int step = int(src1.size() * sizeof(T));
  EXPECT_EQ(call(src1.data(), step, src2.data(), step, dst.data(), step, PeliSize{int(src1.size()), 1}), want);
  return dst;
}

using V8 = std::vector<Pel8u>;
using V16 = std::vector<Pel16s>;

TEST(ArithExamples, TwoImages) {
  auto add = [](int s) {
    return [s](auto... a) { return peliAdd_8u_C1RSfs(a..., s); };
  };
  EXPECT_EQ(Apply<Pel8u>(add(1), {1, 1, 2, 255}, {0, 2, 3, 255}), (V8{0, 2, 2, 255}));
  EXPECT_EQ(Apply<Pel8u>(add(9), {255, 1}, {255, 1}), (V8{1, 0}));
  EXPECT_EQ(Apply<Pel8u>(add(10), {255, 1}, {255, 1}), (V8{0, 0}));
  auto sub = [](auto... a) { return peliSub_8u_C1RSfs(a..., 0); };
  EXPECT_EQ(Apply<Pel8u>(sub, {10, 3}, {3, 10}), (V8{0, 7}));
  auto sub16 = [](auto... a) { return peliSub_16s_C1RSfs(a..., 1); };
  EXPECT_EQ(Apply<Pel16s>(sub16, {1, 3}, {0, 0}), (V16{0, -2}));
  auto mul = [](auto... a) { return peliMul_8u_C1RSfs(a..., -8); };
  EXPECT_EQ(Apply<Pel8u>(mul, {1, 0, 7}, {1, 9, 0}), (V8{255, 0, 0}));
  auto mul16 = [](int s) {
    return [s](auto... a) { return peliMul_16s_C1RSfs(a..., s); };
  };
  EXPECT_EQ(Apply<Pel16s>(mul16(30), {-32768, 32767}, {-32768, 32767}), (V16{1, 1}));
  EXPECT_EQ(Apply<Pel16s>(mul16(31), {-32768, -32768}, {-32768, 32767}), (V16{0, 0}));
  auto div = [](auto... a) { return peliDiv_8u_C1RSfs(a..., 0); };
  EXPECT_EQ(Apply<Pel8u>(div, {0, 0, 2, 2}, {7, 0, 5, 7}, pelStatusDivByZeroWarning), (V8{255, 0, 2, 4}));
  auto div16 = [](auto... a) { return peliDiv_16s_C1RSfs(a..., 0); };
  EXPECT_EQ(Apply<Pel16s>(div16, {0, 0, -2}, {-5, 5, 7}, pelStatusDivByZeroWarning), (V16{-32768, 32767, -4}));
  const std::vector<float> q =
      Apply<float>([](auto... a) { return peliDiv_32f_C1R(a...); }, {0, 0, 0, -0.0f, 4}, {1, -1, 0, 1, 2},
                 pelStatusDivByZeroWarning);
  EXPECT_EQ(q[0], INFINITY);
  EXPECT_EQ(q[1], -INFINITY);
  uint32_t bits;
  std::memcpy(&bits, &q[2], 4);
  EXPECT_EQ(bits, 0x7FC00000u);
  EXPECT_EQ(q[3], INFINITY);  // a zero divisor of either sign
  EXPECT_EQ(q[4], 0.5f);
}

TEST(ArithExamples, Constants) {
  const V8 src{0, 3, 13, 255};
  V8 dst(4);
  const PeliSize roi{4, 1};
  EXPECT_EQ(peliAddC_8u_C1RSfs(src.data(), 4, 0, dst.data(), 4, roi, 0), pelStatusOk);
  EXPECT_EQ(dst, src);
  EXPECT_EQ(peliAddC_8u_C1RSfs(src.data(), 4, 1, dst.data(), 4, roi, -8), pelStatusOk);
  EXPECT_EQ(dst, (V8{255, 255, 255, 255}));
  EXPECT_EQ(peliAddC_8u_C1RSfs(src.data(), 4, 0, dst.data(), 4, roi, -8), pelStatusOk);
  EXPECT_EQ(dst, (V8{0, 255, 255, 255}));
  EXPECT_EQ(peliSubC_8u_C1RSfs(src.data(), 4, 10, dst.data(), 4, roi, 0), pelStatusOk);
  EXPECT_EQ(dst, (V8{0, 0, 3, 245}));
  EXPECT_EQ(peliMulC_8u_C1RSfs(src.data(), 4, 0, dst.data(), 4, roi, -20), pelStatusOk);
  EXPECT_EQ(dst, (V8{0, 0, 0, 0}));
  EXPECT_EQ(peliDivC_8u_C1RSfs(src.data(), 0, 0, dst.data(), 4, roi, 0), pelStatusBadStep);
  EXPECT_EQ(peliDivC_8u_C1RSfs(src.data(), 4, 0, dst.data(), 4, roi, 0), pelStatusDivisionByZero);

  const float nine = 9.0f, two[2] = {3.0f, -7.5f};
  float out[2] = {42, 42}, viaMul[2];
  EXPECT_EQ(peliDivC_32f_C1R(&nine, 4, 0.0f, out, 4, PeliSize{1, 1}), pelStatusDivisionByZero);
  EXPECT_EQ(peliDivC_32f_C1R(&nine, 4, -0.0f, out, 4, PeliSize{1, 1}), pelStatusDivisionByZero);
  EXPECT_EQ(out[0], 42.0f);
  EXPECT_EQ(peliDivC_32f_C1R(&nine, 4, 10.0f, out, 4, PeliSize{1, 1}), pelStatusOk);
  uint32_t bits;
  std::memcpy(&bits, out, 4);
  EXPECT_EQ(bits, 0x3F666667u);
  EXPECT_EQ(peliDivC_32f_C1R(two, 8, 2.0f, out, 8, PeliSize{2, 1}), pelStatusOk);
  EXPECT_EQ(peliMulC_32f_C1R(two, 8, 0.5f, viaMul, 8, PeliSize{2, 1}), pelStatusOk);
  EXPECT_EQ(std::memcmp(out, viaMul, sizeof out), 0);
}

// A step of 0 reads and writes one row again and again: Add takes it, Div
// refuses it.
TEST(ArithExamples, ZeroStep) {
  V8 a{1, 2, 3}, b{4, 5, 6}, d(3);
  EXPECT_EQ(peliAdd_8u_C1RSfs(a.data(), 0, b.data(), 0, d.data(), 0, PeliSize{3, 5}, 0), pelStatusOk);
  EXPECT_EQ(d, (V8{5, 7, 9}));
  EXPECT_EQ(peliDiv_8u_C1RSfs(a.data(), 0, b.data(), 3, d.data(), 3, PeliSize{3, 1}, 0), pelStatusBadStep);
  EXPECT_EQ(peliDiv_16u_C1RSfs(reinterpret_cast<Pel16u*>(a.data()), 0, reinterpret_cast<Pel16u*>(b.data()), 0,
                               reinterpret_cast<Pel16u*>(d.data()), 0, PeliSize{1, 2}, 0),
            pelStatusOk);
}

// Integer quotients round to nearest even whatever rounding the caller set,
// and the caller's control word is back afterwards.
TEST(ArithExamples, CallerRounding) {
  const unsigned saved = _mm_getcsr();
  _mm_setcsr((saved & ~0x6000u) | 0x6000u);  // toward zero
  const V8 d{2, 2, 4, 4, 2, 2, 4, 4, 2}, n{5, 7, 6, 10, 5, 7, 6, 10, 5};
  V8 q(9);
  const PelStatus st = peliDiv_8u_C1RSfs(d.data(), 9, n.data(), 9, q.data(), 9, PeliSize{9, 1}, 0);
  const unsigned after = _mm_getcsr();
  _mm_setcsr(saved);
  EXPECT_EQ(st, pelStatusOk);
  EXPECT_EQ(q, (V8{2, 4, 2, 2, 2, 4, 2, 2, 2}));
  EXPECT_EQ(after & 0x6000u, 0x6000u);
}

}  // namespace
