// The large-transfer decision. This program defines pelGetMaxCacheSizeB
// itself; libpeli calls the service through its dynamic symbol, so this
// definition replaces pelcore's (the program exports its symbols for that).
// It counts the questions and answers with a chosen status and size.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/rows.h"

namespace {
int gQueries = 0;
int gAnswerStatus = 0;
int gAnswerBytes = 1 << 30;
}  // namespace

extern "C" __attribute__((visibility("default"))) int pelGetMaxCacheSizeB(int* pSizeByte) {
  ++gQueries;
  if (gAnswerStatus == 0) *pSizeByte = gAnswerBytes;
  return gAnswerStatus;
}

namespace {

using peltest::Layout;

class CacheQuery : public ::testing::Test {
 protected:
  void SetUp() override {
    gQueries = 0;
    gAnswerStatus = 0;
    gAnswerBytes = 1 << 30;
  }
};

// How often one call of a row on a one-row image of `width` pixels asks.
int QueriesOf(const std::string& name, int width) {
  const peltest::Row row = peltest::FindRow(name);
  gQueries = 0;
  peltest::RunRow(row, Layout{width, 1, 1}, 1);
  return gQueries;
}

// Fills count the bytes written, planar copies the bytes read and written
// (channels x element size x 2 a pixel); up to 512 KiB nobody asks, one
// pixel more asks once. Plain copies and interleaved channel copies never ask;
// the 16-bit one-channel fill asks but keeps cached stores whatever it hears.
TEST_F(CacheQuery, WhoAsksAndFromWhatSize) {
  struct Case {
    const char* name;
    int widthAtLimit;
  };
  const Case asks[] = {{"peliSet_8u_C1R", 524288},    {"peliSet_16s_C1R", 262144},
                       {"peliSet_32f_C3R", 43690},     {"peliCopy_8u_C3P3R", 87381},
                       {"peliCopy_8u_P3C3R", 87381},   {"peliCopy_8u_C4P4R", 65536},
                       {"peliCopy_16s_C3P3R", 43690},  {"peliCopy_16u_P4C4R", 32768},
                       {"peliCopy_32f_C3P3R", 21845},  {"peliCopy_32s_P4C4R", 16384}};
  for (const Case& c : asks) {
    EXPECT_EQ(QueriesOf(c.name, c.widthAtLimit), 0) << c.name;
    EXPECT_EQ(QueriesOf(c.name, c.widthAtLimit + 1), 1) << c.name;
  }
  for (const char* name : {"peliCopy_8u_C1R", "peliCopy_32f_C4R", "peliCopy_8u_AC4C3R", "peliCopy_16u_C3AC4R"}) {
    EXPECT_EQ(QueriesOf(name, 1 << 20), 0) << name;
  }
}

// A small cache sends modest images down the streaming paths, with every
// alignment of the destination; a failed query keeps cached stores. The
// bytes are the model's either way.
TEST_F(CacheQuery, AnswerChangesSpeedNotBytes) {
  const char* const names[] = {"peliSet_8u_C1R", "peliSet_16s_C3R", "peliSet_32f_C4R", "peliSet_32s_AC4R",
                               "peliSet_8u_C3R",  "peliCopy_8u_C3P3R", "peliCopy_16u_C4P4R",
                               "peliCopy_32f_P3C3R", "peliCopy_8u_P4C4R", "peliCopy_16s_AC4R"};
  for (int status : {0, -1}) {
    gAnswerStatus = status;
    gAnswerBytes = 600000;
    for (const char* name : names) {
      const peltest::Row row = peltest::FindRow(name);
      peltest::ForEachCpuLevel([&] {
        for (int offset : {0, 1, 5})
          for (int pad : {0, 2}) peltest::RunRow(row, Layout{1201, 60, 1, pad * 8, offset * 4, false}, 3);
      });
    }
  }
  EXPECT_GT(gQueries, 0);
}

}  // namespace

namespace {

// How often one call of a row on a one-row image of `width` pixels asks.
int QueriesOfVariant(const std::string& name, const std::string& variant, int width) {
  const peltest::Row row = peltest::FindRow(name, variant);
  gQueries = 0;
  peltest::RunRow(row, Layout{width, 1, 1}, 1);
  return gQueries;
}

// Mirrors of four-channel images and transposes of 32-bit data count the
// bytes of both images; other mirrors and transposes never ask.
TEST_F(CacheQuery, MirrorAndTranspose) {
  struct Case {
    const char* name;
    const char* variant;
    int widthAtLimit;
  };
  const Case asks[] = {{"peliMirror_8u_C4R", "flip1", 65536},     {"peliMirror_16s_AC4R", "flip0", 32768},
                       {"peliMirror_32f_C4R", "flip2", 16384},    {"peliTranspose_32f_C1R", "", 65536},
                       {"peliTranspose_32s_C3R", "", 21845},      {"peliTranspose_32fc_C1R", "", 32768}};
  for (const Case& c : asks) {
    EXPECT_EQ(QueriesOfVariant(c.name, c.variant, c.widthAtLimit), 0) << c.name;
    EXPECT_EQ(QueriesOfVariant(c.name, c.variant, c.widthAtLimit + 1), 1) << c.name;
  }
  EXPECT_EQ(QueriesOfVariant("peliMirror_8u_C1R", "flip1", 1 << 20), 0);
  EXPECT_EQ(QueriesOfVariant("peliMirror_8u_C4IR", "flip1", 1 << 18), 0);
  EXPECT_EQ(QueriesOfVariant("peliTranspose_16s_C4R", "", 1 << 18), 0);
  EXPECT_EQ(QueriesOfVariant("peliTranspose_32f_C1IR", "", 512), 0);  // a 512 x 512 buffer

  // A small cache streams: the bytes stay the model's, with rows aligned
  // for streamed stores and not.
  gAnswerBytes = 600000;
  const char* const flips[][2] = {{"peliMirror_8u_C4R", "flip0"}, {"peliMirror_8u_C4R", "flip1"},
                                  {"peliMirror_16u_AC4R", "flip2"}, {"peliMirror_32s_C4R", "flip1"}};
  for (const auto& f : flips) {
    const peltest::Row row = peltest::FindRow(f[0], f[1]);
    peltest::ForEachCpuLevel([&] {
      for (int offset : {0, 4, 12}) peltest::RunRowOn(row, {Layout{601, 130, 4, 0, offset}, Layout{601, 130, 4, 16, 0}}, PeliSize{601, 130}, 3);
    });
  }
  for (const char* name : {"peliTranspose_32f_C1R", "peliTranspose_32s_C4R"}) {
    const peltest::Row row = peltest::FindRow(name);
    const int c = std::string(name).find("C4") != std::string::npos ? 4 : 1;
    peltest::ForEachCpuLevel([&] {
      for (int offset : {0, 4}) {
        peltest::RunRowOn(row, {Layout{400, 420 / c, c, 0, 0}, Layout{420 / c, 400, c, 0, offset}}, PeliSize{400, 420 / c}, 3);
      }
    });
  }
  EXPECT_GT(gQueries, 0);
}

}  // namespace
