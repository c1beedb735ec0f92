// What the FFT rows cannot say: the same bits at every CPU level and under
// any rounding mode, the forward-then-inverse identity at sizes too large
// for a direct DFT, the spec's header and identity checks, and the
// hand-computed cases (1 x 1, order 30, a null buffer that is not needed,
// the real last column of a product).
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include <xmmintrin.h>

#include "peli.h"
#include "support/cpu_levels.h"

namespace {

using Plane = std::vector<Pel32f>;

struct Fft {
  int ox, oy, flag, w, h, specSize = 0, initSize = 0, workSize = 0;
  std::vector<Pel8u> spec, work;
  Fft(int orderX, int orderY, int f, int specOffset = 0) : ox(orderX), oy(orderY), flag(f), w(1 << ox), h(1 << oy) {
    EXPECT_EQ(peliFFTGetSize_R_32f(ox, oy, flag, pelHintAccurate, &specSize, &initSize, &workSize), pelStatusOk);
    spec.resize(size_t(specSize + specOffset));
    work.resize(size_t(workSize));
    EXPECT_EQ(peliFFTInit_R_32f(ox, oy, flag, pelHintAccurate, Spec(specOffset), nullptr), pelStatusOk);
    offset = specOffset;
  }
  PeliFFTSpec_R_32f* Spec(int k) { return reinterpret_cast<PeliFFTSpec_R_32f*>(spec.data() + k); }
  const PeliFFTSpec_R_32f* Spec() { return Spec(offset); }
  Plane Run(const Plane& in, bool inverse) {
    Plane out(in.size());
    const auto fn = inverse ? peliFFTInv_PackToR_32f_C1R : peliFFTFwd_RToPack_32f_C1R;
    EXPECT_EQ(fn(in.data(), 4 * w, out.data(), 4 * w, Spec(), work.data()), pelStatusOk);
    return out;
  }
  int offset = 0;
};

// Exactly representable values in [-range, range].
Plane Random(size_t n, uint32_t seed, int range = 1000) {
  std::mt19937 rng(seed);
  Plane p(n);
  for (Pel32f& v : p) v = float(int(rng() % uint32_t(16 * range + 1)) - 16 * range) / 16;
  return p;
}

uint64_t Hash(const Plane& p) {
  uint64_t h = 0xcbf29ce484222325ULL;
  for (Pel32f v : p) {
    uint32_t bits;
    std::memcpy(&bits, &v, 4);
    h = (h ^ bits) * 0x100000001b3ULL;
  }
  return h;
}

// Every level gives the reference's bits: rows of 16 (the widest vector)
// and fewer, column pairs in whole vectors and tails, transforms too short
// for tiles. So does every platform (32-bit x86 included): some cases
// carry hashes of their results, taken once. And so does a caller who left
// the rounding mode toward zero: Init rounds the twiddles, and every call
// runs, to nearest.
TEST(FftLevels, SameBitsEverywhere) {
  struct Case {
    int ox, oy;
    uint64_t fwd = 0, inv = 0;  // hashes at flag 4, or 0
  };
  const Case cases[] = {{0, 5}, {5, 0}, {1, 6}, {6, 1}, {2, 4}, {3, 5}, {7, 4}, {4, 7}, {9, 5},
                        {6, 5, 200991819105828736ULL, 7897859230988321481ULL},
                        {8, 4, 8981136250376726673ULL, 10098680506914326282ULL}};
  const unsigned mxcsr = _mm_getcsr();
  for (const Case& k : cases)
    for (int flag : {1, 2, 4, 8}) {
      Fft f(k.ox, k.oy, flag);
      const Plane in = Random(size_t(f.w) * size_t(f.h), uint32_t(k.ox * 37 + k.oy + flag));
      Plane fwd, inv;
      {
        peltest::CpuLevelScope scalar(peltest::CpuLevels().front());
        fwd = f.Run(in, false);
        inv = f.Run(in, true);
      }
      if (k.fwd != 0 && flag == 4) {
        EXPECT_EQ(Hash(fwd), k.fwd) << f.w << "x" << f.h;
        EXPECT_EQ(Hash(inv), k.inv) << f.w << "x" << f.h;
      }
      peltest::ForEachCpuLevel([&] {
        EXPECT_EQ(Hash(f.Run(in, false)), Hash(fwd)) << "forward " << f.w << "x" << f.h << " flag " << flag;
        EXPECT_EQ(Hash(f.Run(in, true)), Hash(inv)) << "inverse " << f.w << "x" << f.h << " flag " << flag;
      });
      _mm_setcsr(mxcsr | 0x6000u);  // toward zero
      Fft truncating(k.ox, k.oy, flag);
      const uint64_t got = Hash(truncating.Run(in, false));
      const unsigned after = _mm_getcsr();
      _mm_setcsr(mxcsr);
      EXPECT_EQ(got, Hash(fwd)) << "rounding toward zero, " << f.w << "x" << f.h;
      EXPECT_EQ(after, mxcsr | 0x6000u) << "the caller's mode is kept";
    }
}

// Forward then inverse gives the image back, scaled by the flags' product
// of factors, at sizes a direct DFT would take too long for.
TEST(FftRoundTrip, GivesTheImageBack) {
  const int orders[][2] = {{9, 7}, {6, 10}, {10, 1}, {0, 11}};
  for (const auto& o : orders)
    for (int flag : {1, 2, 4, 8}) {
      Fft f(o[0], o[1], flag);
      const Plane in = Random(size_t(f.w) * size_t(f.h), uint32_t(flag * 3 + o[0]), 1);
      const double n = double(f.w) * f.h, scale = flag == 8 ? n : 1;
      peltest::ForEachCpuLevel([&] {
        const Plane back = f.Run(f.Run(in, false), true);
        double worst = 0;
        for (size_t i = 0; i < in.size(); ++i) worst = std::max(worst, std::fabs(back[i] / scale - in[i]));
        EXPECT_LT(worst, 2e-6) << f.w << "x" << f.h << " flag " << flag;
      });
    }
}

// A spec works from any block alignment and its first aligned address
// holds the header: identifier 28, the orders, the hint, the work size.
TEST(FftSpec, HeaderAndAnyAlignment) {
  const Plane in = Random(16 * 8, 9);
  Fft aligned(4, 3, pelFftDivFwdByN);
  const Plane want = aligned.Run(in, false);
  for (int offset : {1, 13, 63}) {
    Fft f(4, 3, pelFftDivFwdByN, offset);
    EXPECT_EQ(0, std::memcmp(f.Run(in, false).data(), want.data(), 4 * want.size())) << "offset " << offset;
    const auto a = reinterpret_cast<uintptr_t>(f.spec.data() + offset);
    std::vector<int32_t> words(5);
    std::memcpy(words.data(), f.spec.data() + offset + ((0 - a) & 63), 20);
    EXPECT_EQ(words, (std::vector<int32_t>{28, 4, 3, pelHintAccurate, f.workSize}));
  }
}

TEST(FftSpec, StatusesInOrder) {
  Fft f(3, 2, pelFftNoDivByAny);
  Plane src = Random(8 * 4, 1), dst(8 * 4, 7.0f);
  const Plane before = dst;
  for (auto fn : {peliFFTFwd_RToPack_32f_C1R, peliFFTInv_PackToR_32f_C1R}) {
    EXPECT_EQ(fn(nullptr, 32, nullptr, 32, nullptr, nullptr), pelStatusNullPointer);  // the spec first
    std::vector<Pel8u> other(size_t(f.specSize), 0);
    const auto* notSpec = reinterpret_cast<const PeliFFTSpec_R_32f*>(other.data());
    EXPECT_EQ(fn(nullptr, 0, dst.data(), 32, notSpec, f.work.data()), pelStatusContextMismatch);
    EXPECT_EQ(fn(nullptr, 32, dst.data(), 32, f.Spec(), f.work.data()), pelStatusNullPointer);
    EXPECT_EQ(fn(src.data(), 32, nullptr, 32, f.Spec(), f.work.data()), pelStatusNullPointer);
    EXPECT_EQ(fn(src.data(), 0, dst.data(), 32, f.Spec(), nullptr), pelStatusBadStep);
    EXPECT_EQ(fn(src.data(), 32, dst.data(), -32, f.Spec(), f.work.data()), pelStatusBadStep);
    EXPECT_EQ(fn(src.data(), 32, dst.data(), 32, f.Spec(), nullptr), pelStatusNullPointer);
    EXPECT_EQ(dst, before);
  }
  int a = 1, b = 2, c = 3;
  EXPECT_EQ(peliFFTGetSize_R_32f(2, 2, 8, 0, nullptr, &b, &c), pelStatusNullPointer);
  EXPECT_EQ(peliFFTGetSize_R_32f(31, 2, 0, 0, &a, &b, nullptr), pelStatusNullPointer);
  EXPECT_EQ(peliFFTGetSize_R_32f(29, 29, 8, 0, &a, &b, &c), pelStatusSizeOverflow);
  EXPECT_EQ(a + b + c, 6) << "nothing written on an error";
}

// The worked cases: a 1 x 1 spectrum is its single value (times the
// forward factor, 1 for every flag); a 1 x 1 spec needs no buffer; an order
// of 30 passes the 2-D check and fails the 1-D one.
TEST(FftCases, OneByOneAndOrder30) {
  for (int flag : {1, 2, 4, 8}) {
    Fft f(0, 0, flag);
    EXPECT_EQ(f.workSize, 0);
    EXPECT_EQ(f.initSize, 0);
    const Pel32f x = -3.25f;
    Pel32f X = 0, back = 0;
    EXPECT_EQ(peliFFTFwd_RToPack_32f_C1R(&x, 4, &X, 4, f.Spec(), nullptr), pelStatusOk);
    EXPECT_EQ(X, x);
    EXPECT_EQ(peliFFTInv_PackToR_32f_C1R(&X, 4, &back, 4, f.Spec(), nullptr), pelStatusOk);
    EXPECT_EQ(back, x);
  }
  std::vector<Pel8u> block(4096);
  auto* spec = reinterpret_cast<PeliFFTSpec_R_32f*>(block.data());
  EXPECT_EQ(peliFFTInit_R_32f(30, 0, 8, 0, nullptr, nullptr), pelStatusNullPointer);
  EXPECT_EQ(peliFFTInit_R_32f(30, 0, 8, 0, spec, nullptr), pelStatusFftOrderError);
  EXPECT_EQ(peliFFTInit_R_32f(31, 0, 8, 0, nullptr, nullptr), pelStatusFftOrderError);
  EXPECT_EQ(peliFFTInit_R_32f(2, 30, 5, 0, spec, nullptr), pelStatusFftOrderError) << "order before flag";
}

// A 4 x 3 product by hand: row 0 is X(0,0), X(1,0) as a pair, X(2,0) real;
// columns 0 and 3 hold one pair down rows 1 and 2 (H odd: no real end).
TEST(FftCases, MulPackRealLastColumn) {
  const Pel32f a[12] = {2, 1, 2, 3, 1, 2, 3, 4, -1, 5, 6, 2};
  const Pel32f b[12] = {3, 4, 5, -2, 2, 1, 1, 1, 3, 2, -1, 0.5f};
  // Row 0: 2 x 3; (1 + 2i)(4 + 5i) = -6 + 13i; 3 x -2. Column 0:
  // (1 - i)(2 + 3i) = 5 + i; column 3: (4 + 2i)(1 + 0.5i) = 3 + 4i. Pairs
  // in rows 1 and 2: (2 + 3i)(1 + i) = -1 + 5i, (5 + 6i)(2 - i) = 16 + 7i.
  const Pel32f want[12] = {6, -6, 13, -6, 5, -1, 5, 3, 1, 16, 7, 4};
  for (int step : {16, 19}) {  // a step is rounded down to whole floats
    Pel32f d[12];
    ASSERT_EQ(peliMulPack_32f_C1R(a, step, b, 16, d, step, PeliSize{4, 3}), pelStatusOk);
    for (int i = 0; i < 12; ++i) EXPECT_EQ(d[i], want[i]) << "element " << i << ", step " << step;
  }
}

}  // namespace
