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
