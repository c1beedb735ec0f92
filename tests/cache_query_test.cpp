// The large-transfer decision asks pelcore for the cache size only past
// 512 KiB. This program defines pelGetMaxCacheSizeB itself; libpeli calls the
// service through its dynamic symbol, so this definition replaces pelcore's
// (the program exports its symbols for that).
#include <gtest/gtest.h>

#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"

namespace {
int gQueries = 0;
int gAnswerStatus = 0;
int gAnswerBytes = 1 << 20;
}  // namespace

extern "C" __attribute__((visibility("default"))) int pelGetMaxCacheSizeB(int* pSizeByte) {
  ++gQueries;
  if (gAnswerStatus == 0) *pSizeByte = gAnswerBytes;
  return gAnswerStatus;
}

namespace {

class CacheQuery : public ::testing::Test {
 protected:
  void SetUp() override {
    gQueries = 0;
    gAnswerStatus = 0;
    gAnswerBytes = 1 << 20;
  }
};

TEST_F(CacheQuery, SetAsksOnlyPast512KiB) {
  std::vector<Pel8u> image(524289);
  ASSERT_EQ(peliSet_8u_C1R(7, image.data(), 1024, PeliSize{1024, 512}), pelStatusOk);
  EXPECT_EQ(gQueries, 0) << "exactly 512 KiB uses cached stores without asking";
  ASSERT_EQ(peliSet_8u_C1R(7, image.data(), 524289, PeliSize{524289, 1}), pelStatusOk);
  EXPECT_EQ(gQueries, 1) << "one byte more asks once";
}

TEST_F(CacheQuery, AnswerChangesSpeedNotBytes) {
  const PeliSize size{250, 2000};  // 8 MB of four-channel floats
  for (int status : {0, -1}) {
    for (int cache : {0, 1 << 20, 1 << 30}) {
      gAnswerStatus = status;
      gAnswerBytes = cache;
      peltest::ForEachCpuLevel([&] {
        const int lanes = size.width * 4 * size.height;
        std::vector<Pel32f> image(lanes + 1, -1.0f);
        const Pel32f v[4] = {1.5f, -2.0f, 3.25f, 0.0f};
        ASSERT_EQ(peliSet_32f_C4R(v, image.data(), size.width * 16, size), pelStatusOk);
        for (int i = 0; i < lanes; ++i) ASSERT_EQ(image[i], v[i % 4]) << i;
        EXPECT_EQ(image.back(), -1.0f);
      });
    }
  }
  EXPECT_GT(gQueries, 0);
}

TEST_F(CacheQuery, Set16sC1AsksButKeepsCachedStores) {
  std::vector<Pel16s> image(600000);
  ASSERT_EQ(peliSet_16s_C1R(-3, image.data(), 1200000, PeliSize{600000, 1}), pelStatusOk);
  EXPECT_EQ(gQueries, 1);
  for (Pel16s v : image) ASSERT_EQ(v, -3);
}

TEST_F(CacheQuery, PlainCopyNeverAsks) {
  std::vector<Pel8u> a(3 << 20, 1), b(3 << 20, 0);
  ASSERT_EQ(peliCopy_8u_C1R(a.data(), 3072, b.data(), 3072, PeliSize{3072, 1024}), pelStatusOk);
  EXPECT_EQ(gQueries, 0);
  EXPECT_EQ(a, b);
}

}  // namespace
