// Version record and image allocation.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "peli.h"
#include "support/cpu_levels.h"

namespace {

// The test helper really switches what the kernels dispatch to.
TEST(CpuLevels, EachScopeLeavesExactlyThatLevel) {
  const auto levels = peltest::CpuLevels();
  ASSERT_FALSE(levels.empty());
  EXPECT_EQ(levels.front(), HWY_STATIC_TARGET) << "the scalar reference comes first";
  for (int64_t level : levels) {
    peltest::CpuLevelScope scope(level);
    EXPECT_EQ(hwy::SupportedTargets() & HWY_TARGETS & ~HWY_STATIC_TARGET,
              level & ~HWY_STATIC_TARGET)
        << peltest::CpuLevelName(level);
  }
}

TEST(Version, ExactRecordAndSamePointer) {
  const PelLibraryVersion* v = peliGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, peliGetLibVersion());
  EXPECT_EQ(v->major, 2021);
  EXPECT_EQ(v->minor, 11);
  EXPECT_EQ(v->majorBuild, 0);
  EXPECT_EQ(static_cast<uint32_t>(v->build), 0xCD107B02u);
  EXPECT_EQ(std::memcmp(v->targetCpu, "w7\0\0", 4), 0);
  EXPECT_STREQ(v->Name, "pelIP SSE2 (w7)");
  EXPECT_STREQ(v->Version, "2021.11.0 (r0xcd107b02)");
  EXPECT_STREQ(v->BuildDate, "Jan 30 2024");
}

// Every allocation export with the bytes one of its pixels takes, written out
// from the element sizes rather than taken from the library.
struct AllocCase {
  const char* name;
  void* (*plain)(int, int, int*);
  void* (*large)(PelIntL, PelIntL, PelIntL*);
  int pixelBytes;
};

#define PEL_ALLOC_CASE(type, layout, bytes)                                                   \
  AllocCase {                                                                                 \
    "peliMalloc_" #type "_" #layout,                                                          \
        [](int w, int h, int* s) -> void* { return peliMalloc_##type##_##layout(w, h, s); },  \
        [](PelIntL w, PelIntL h, PelIntL* s) -> void* {                                       \
          return peliMalloc_##type##_##layout##_L(w, h, s);                                   \
        },                                                                                    \
        bytes                                                                                 \
  }

const AllocCase kAllocCases[] = {
    PEL_ALLOC_CASE(8u, C1, 1),    PEL_ALLOC_CASE(8u, C2, 2),    PEL_ALLOC_CASE(8u, C3, 3),
    PEL_ALLOC_CASE(8u, C4, 4),    PEL_ALLOC_CASE(8u, AC4, 4),   PEL_ALLOC_CASE(16u, C1, 2),
    PEL_ALLOC_CASE(16u, C2, 4),   PEL_ALLOC_CASE(16u, C3, 6),   PEL_ALLOC_CASE(16u, C4, 8),
    PEL_ALLOC_CASE(16u, AC4, 8),  PEL_ALLOC_CASE(16s, C1, 2),   PEL_ALLOC_CASE(16s, C2, 4),
    PEL_ALLOC_CASE(16s, C3, 6),   PEL_ALLOC_CASE(16s, C4, 8),   PEL_ALLOC_CASE(16s, AC4, 8),
    PEL_ALLOC_CASE(32s, C1, 4),   PEL_ALLOC_CASE(32s, C2, 8),   PEL_ALLOC_CASE(32s, C3, 12),
    PEL_ALLOC_CASE(32s, C4, 16),  PEL_ALLOC_CASE(32s, AC4, 16), PEL_ALLOC_CASE(32f, C1, 4),
    PEL_ALLOC_CASE(32f, C2, 8),   PEL_ALLOC_CASE(32f, C3, 12),  PEL_ALLOC_CASE(32f, C4, 16),
    PEL_ALLOC_CASE(32f, AC4, 16), PEL_ALLOC_CASE(32sc, C1, 8),  PEL_ALLOC_CASE(32sc, C2, 16),
    PEL_ALLOC_CASE(32sc, C3, 24), PEL_ALLOC_CASE(32sc, C4, 32), PEL_ALLOC_CASE(32sc, AC4, 32),
    PEL_ALLOC_CASE(32fc, C1, 8),  PEL_ALLOC_CASE(32fc, C2, 16), PEL_ALLOC_CASE(32fc, C3, 24),
    PEL_ALLOC_CASE(32fc, C4, 32), PEL_ALLOC_CASE(32fc, AC4, 32),
};

void PrintTo(const AllocCase& c, std::ostream* os) { *os << c.name; }

class Alloc : public ::testing::TestWithParam<AllocCase> {};

int64_t RoundedStep(int64_t width, int pixelBytes) { return (width * pixelBytes + 63) / 64 * 64; }

TEST_P(Alloc, StepAlignmentAndWritableRows) {
  const AllocCase& c = GetParam();
  for (int width : {1, 2, 3, 21, 22, 63, 64, 65, 1000}) {
    for (int height : {1, 5}) {
      int step = -1;
      auto* p = static_cast<uint8_t*>(c.plain(width, height, &step));
      ASSERT_NE(p, nullptr) << c.name << " " << width << "x" << height;
      EXPECT_EQ(step, RoundedStep(width, c.pixelBytes)) << c.name << " width " << width;
      EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u) << c.name;
      std::memset(p, 0x5A, static_cast<size_t>(step) * height);  // the block holds every row
      peliFree(p);

      PelIntL stepL = -1;
      p = static_cast<uint8_t*>(c.large(width, height, &stepL));
      ASSERT_NE(p, nullptr) << c.name << "_L";
      EXPECT_EQ(stepL, RoundedStep(width, c.pixelBytes)) << c.name << "_L width " << width;
      EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u) << c.name << "_L";
      std::memset(p, 0x5A, static_cast<size_t>(stepL) * height);
      peliFree(p);
    }
  }
}

TEST_P(Alloc, BadSizesWriteZeroStep) {
  const AllocCase& c = GetParam();
  const int bad[][2] = {{0, 1}, {1, 0}, {-1, 5}, {5, -1}, {INT32_MIN, 1}};
  for (const auto& wh : bad) {
    int step = 77;
    EXPECT_EQ(c.plain(wh[0], wh[1], &step), nullptr) << c.name;
    EXPECT_EQ(step, 0) << c.name << " " << wh[0] << "x" << wh[1];
    PelIntL stepL = 77;
    EXPECT_EQ(c.large(wh[0], wh[1], &stepL), nullptr) << c.name << "_L";
    EXPECT_EQ(stepL, 0) << c.name << "_L";
  }
  EXPECT_EQ(c.plain(16, 16, nullptr), nullptr);
  EXPECT_EQ(c.large(16, 16, nullptr), nullptr);
}

// The row of a plain allocation must fit 31 bits, and so must step x height;
// the step is reported in the second case only.
TEST_P(Alloc, PlainOverflows) {
  const AllocCase& c = GetParam();
  const int64_t tooWide = int64_t{0x7FFFFFFF} / c.pixelBytes + 1;
  int step = 77;
  if (tooWide <= INT32_MAX) {  // one-byte pixels cannot make a row that long
    EXPECT_EQ(c.plain(static_cast<int>(tooWide), 1, &step), nullptr);
    EXPECT_EQ(step, 0);
  }
  const int64_t width = 0x7FFFFFC0 / c.pixelBytes;  // rounds to a step of 0x7FFFFFC0 or just below
  step = 77;
  EXPECT_EQ(c.plain(static_cast<int>(width), 2, &step), nullptr);
  EXPECT_EQ(step, RoundedStep(width, c.pixelBytes));
  step = 77;
  EXPECT_EQ(c.plain(64, INT32_MAX, &step), nullptr);
  EXPECT_EQ(step, RoundedStep(64, c.pixelBytes));
}

INSTANTIATE_TEST_SUITE_P(AllExports, Alloc, ::testing::ValuesIn(kAllocCases),
                         [](const auto& info) { return std::string(info.param.name + 11); });

TEST(AllocExamples, HandComputedSteps) {
  int step = 0;
  Pel8u* p = peliMalloc_8u_C1(1, 1, &step);
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(step, 64);
  peliFree(p);
  p = peliMalloc_8u_C1(64, 2, &step);
  EXPECT_EQ(step, 64);
  peliFree(p);
  p = peliMalloc_8u_C1(65, 2, &step);
  EXPECT_EQ(step, 128);
  peliFree(p);
  p = peliMalloc_8u_C3(22, 1, &step);
  EXPECT_EQ(step, 128);
  peliFree(p);
  peliFree(nullptr);
}

TEST(AllocExamples, LargeTwinsComputeIn64Bits) {
  PelIntL step = 0;
  // 0x7FFFFFC0 bytes a row, two rows: above the plain limit, fine for _L
  // where memory allows; either way the step is reported.
  void* p = peliMalloc_8u_C1_L(0x7FFFFFC0, 2, &step);
  EXPECT_EQ(step, static_cast<PelIntL>(0x7FFFFFC0));
  peliFree(p);
  step = 77;
  if constexpr (sizeof(PelIntL) == 8) {
    // Rows whose byte count overflows, and a product above 2^63.
    EXPECT_EQ(peliMalloc_32fc_C4_L(static_cast<PelIntL>(INT64_MAX / 16), 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    step = 77;
    const auto wide = static_cast<PelIntL>(int64_t{1} << 40);
    EXPECT_EQ(peliMalloc_8u_C1_L(wide, static_cast<PelIntL>(int64_t{1} << 30), &step), nullptr);
    EXPECT_EQ(step, wide);
  } else {
    EXPECT_EQ(peliMalloc_8u_C4_L(0x7FFFFFF0, 1, &step), nullptr);  // row bytes beyond 32 bits
    EXPECT_EQ(step, 0);
  }
}

}  // namespace
