// What the logic and shift table cannot say: hand-computed values, fills
// that must not read the source at all, and steps that are not a multiple
// of the element size.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <random>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"

namespace {

TEST(LogicByHand, Values) {
  peltest::ForEachCpuLevel([] {
    const PeliSize roi{2, 1};
    const Pel16s s16[2] = {-5, 5};
    Pel16s d16[2] = {7, 7};
    EXPECT_EQ(peliRShiftC_16s_C1R(s16, 4, 40, d16, 4, roi), pelStatusOk);
    EXPECT_EQ(d16[0], -1);
    EXPECT_EQ(d16[1], 0);
    EXPECT_EQ(peliRShiftC_16s_C1R(s16, 4, 0, d16, 4, roi), pelStatusOk);
    EXPECT_EQ(d16[0], -5);
    EXPECT_EQ(d16[1], 5);
    const Pel8u s8[2] = {200, 3};
    Pel8u d8[2] = {};
    EXPECT_EQ(peliLShiftC_8u_C1R(s8, 2, 1, d8, 2, roi), pelStatusOk);
    EXPECT_EQ(d8[0], 144);
    EXPECT_EQ(d8[1], 6);
    // Equal constants give the bytes of the one-channel member over a row
    // three times as wide.
    std::vector<Pel8u> src(3 * 37), three(src.size()), one(src.size());
    for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Pel8u>(i * 37 + 11);
    const Pel8u k[3] = {0x0F, 0x0F, 0x0F};
    EXPECT_EQ(peliAndC_8u_C3R(src.data(), 111, k, three.data(), 111, PeliSize{37, 1}), pelStatusOk);
    EXPECT_EQ(peliAndC_8u_C1R(src.data(), 111, 0x0F, one.data(), 111, PeliSize{111, 1}), pelStatusOk);
    EXPECT_EQ(three, one);
    // Steps before sizes: a zero step with a zero width is a step error.
    EXPECT_EQ(peliAnd_8u_C1R(s8, 0, s8, 2, d8, 2, PeliSize{0, 1}), pelStatusBadStep);
    EXPECT_EQ(peliAnd_8u_C1R(s8, 2, nullptr, 2, d8, 2, PeliSize{0, 1}), pelStatusNullPointer);
  });
}

// Counts that clear every element fill the destination without reading the
// source: here the source is a page that may not be read.
TEST(LogicByHand, ClearingCountsDoNotReadTheSource) {
  const long page = sysconf(_SC_PAGESIZE);
  void* noRead = mmap(nullptr, page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(noRead, MAP_FAILED);
  const PeliSize roi{9, 3};
  const int step = 4 * 4 * 9;
  std::vector<uint8_t> dst(step * 3);
  // Each call zeroes `rowBytes` bytes of every row but the alpha bytes, the
  // last `alpha` of every `pixel` bytes.
  auto check = [&](const char* what, PelStatus status, int rowBytes, int pixel, int alpha) {
    EXPECT_EQ(status, pelStatusOk) << what;
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < step; ++x) {
        const bool kept = x >= rowBytes || x % pixel >= pixel - alpha;
        EXPECT_EQ(dst[y * step + x], kept ? 0x5A : 0) << what << " x=" << x << " y=" << y;
      }
  };
  const Pel32u past8[3] = {8, 9, 0xFFFFFFFF}, past16[4] = {16, 16, 40, 100}, past32[3] = {32, 33, 99};
  peltest::ForEachCpuLevel([&] {
    std::fill(dst.begin(), dst.end(), 0x5A);
    check("RShiftC_8u_C1R", peliRShiftC_8u_C1R(static_cast<const Pel8u*>(noRead), step, 8, dst.data(), step, roi), 9, 1, 0);
    std::fill(dst.begin(), dst.end(), 0x5A);
    check("LShiftC_8u_C3R", peliLShiftC_8u_C3R(static_cast<const Pel8u*>(noRead), step, past8, dst.data(), step, roi), 27, 3, 0);
    std::fill(dst.begin(), dst.end(), 0x5A);
    check("RShiftC_16u_C4R", peliRShiftC_16u_C4R(static_cast<const Pel16u*>(noRead), step, past16,
                                                 reinterpret_cast<Pel16u*>(dst.data()), step, roi), 72, 8, 0);
    std::fill(dst.begin(), dst.end(), 0x5A);
    check("LShiftC_32s_AC4R", peliLShiftC_32s_AC4R(static_cast<const Pel32s*>(noRead), step, past32,
                                                   reinterpret_cast<Pel32s*>(dst.data()), step, roi), 144, 16, 4);
  });
  munmap(noRead, page);
}

// Steps are byte counts: a 16-bit or 32-bit image whose rows start at odd
// addresses is read and written element by element like any other.
template <class T, class F>
void OddSteps(F call, T (*model)(T, int c)) {
  const int w = 21, h = 5, channels = 3, srcStep = w * channels * int(sizeof(T)) + 3, dstStep = srcStep + 2;
  std::vector<uint8_t> src(1 + size_t(srcStep) * h), dst(1 + size_t(dstStep) * h);
  std::mt19937 rng(5);
  for (auto& b : src) b = static_cast<uint8_t>(rng());
  peltest::ForEachCpuLevel([&] {
    std::fill(dst.begin(), dst.end(), 0xA5);
    std::vector<uint8_t> want = dst;
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < w * channels; ++i) {
        T s;
        std::memcpy(&s, &src[1 + size_t(y) * srcStep + i * sizeof(T)], sizeof s);
        const T d = model(s, i % channels);
        std::memcpy(&want[1 + size_t(y) * dstStep + i * sizeof(T)], &d, sizeof d);
      }
    EXPECT_EQ(call(src.data() + 1, srcStep, dst.data() + 1, dstStep, PeliSize{w, h}), pelStatusOk);
    EXPECT_EQ(dst, want);
  });
}

TEST(LogicByHand, StepsNotAMultipleOfTheElement) {
  static const Pel32u counts[3] = {1, 7, 30};
  OddSteps<Pel32s>(
      [](const uint8_t* s, int ss, uint8_t* d, int ds, PeliSize roi) {
        return peliRShiftC_32s_C3R(reinterpret_cast<const Pel32s*>(s), ss, counts, reinterpret_cast<Pel32s*>(d), ds, roi);
      },
      [](Pel32s s, int c) { return static_cast<Pel32s>(static_cast<int64_t>(s) >> counts[c]); });
  OddSteps<Pel16u>(
      [](const uint8_t* s, int ss, uint8_t* d, int ds, PeliSize roi) {
        return peliLShiftC_16u_C3R(reinterpret_cast<const Pel16u*>(s), ss, counts, reinterpret_cast<Pel16u*>(d), ds, roi);
      },
      [](Pel16u s, int c) { return static_cast<Pel16u>(counts[c] >= 16 ? 0 : s << counts[c]); });
  static const Pel16u k[3] = {0x00FF, 0xF00F, 0x8001};
  OddSteps<Pel16u>(
      [](const uint8_t* s, int ss, uint8_t* d, int ds, PeliSize roi) {
        return peliXorC_16u_C3R(reinterpret_cast<const Pel16u*>(s), ss, k, reinterpret_cast<Pel16u*>(d), ds, roi);
      },
      [](Pel16u s, int c) { return static_cast<Pel16u>(s ^ k[c]); });
}

}  // namespace
