// What the copy and set table cannot say: transfers past the streaming
// thresholds, the 8-bit split's run rule, rows whose source and destination
// overlap, and zero steps.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/rows.h"

namespace {

using peltest::FindRow;
using peltest::Layout;

// Past 1 MiB plain copies stream, past 512 KiB fills and planar copies ask
// for the cache size: the bytes must be those of the cached path.
TEST(DataMoveLarge, SameBytesPastTheThresholds) {
  const char* const names[] = {"peliCopy_8u_C1R",  "peliCopy_16s_C3R",  "peliCopy_32f_C4R",
                               "peliCopy_8u_AC4R", "peliCopy_32s_AC4R_L", "peliCopy_16u_C1R_L",
                               "peliSet_8u_C1R",   "peliSet_16s_C1R",   "peliSet_32f_C4R",
                               "peliSet_16u_AC4R", "peliCopy_8u_C3P3R", "peliCopy_16s_P4C4R",
                               "peliCopyManaged_8u_C1R"};
  for (const char* name : names) {
    const peltest::Row row = FindRow(name, std::strstr(name, "Managed") ? "flags1" : "");
    int pixelBytes = 1;  // the widest pixel of the call: past 1 MiB in 64 rows
    for (const peltest::Arg& a : row.args) pixelBytes = std::max(pixelBytes, a.channels * a.type.bytes);
    const int width = 1100000 / 64 / pixelBytes + 3;
    peltest::ForEachCpuLevel([&] {
      for (int offset : {0, 1, 5}) {
        Layout gapless{width, 64, 1};
        gapless.gapless = true;
        peltest::RunRow(row, offset == 0 ? gapless : Layout{width, 64, 1, 8, offset * 4, false}, 7);
      }
    });
  }
}

// Contiguous 8-bit three-channel rows (source step 3 x plane step, plane step
// = width) split as one run, unless the image is big and a pointer is off a
// 4-byte boundary; the bytes are the same either way.
TEST(DataMoveSplit, EightBitRunRule) {
  struct Case {
    int width, height, srcOffset, plane2Offset, pad;
  };
  const Case cases[] = {{37, 11, 0, 0, 0},  {37, 11, 0, 1, 0},   {401, 400, 0, 0, 0}, {401, 400, 0, 1, 0},
                        {401, 400, 3, 0, 0}, {133, 400, 1, 2, 0}, {401, 400, 0, 0, 5}};
  const peltest::Row row = FindRow("peliCopy_8u_C3P3R");
  peltest::ForEachCpuLevel([&] {
    for (const Case& k : cases) {
      std::vector<Layout> l{{k.width, k.height, 3, 3 * k.pad, k.srcOffset, false}};
      for (int c = 0; c < 3; ++c) l.push_back({k.width, k.height, 1, k.pad, 8 * c + (c == 2 ? k.plane2Offset : 0), false});
      peltest::RunRowOn(row, l, PeliSize{k.width, k.height}, 11);
    }
  });
}

// A destination step of 0 writes every row onto the same row: the last wins.
// 40000 contiguous pixels exceed the 8-bit copy's merge limit and are copied
// row by row, with the same bytes.
TEST(DataMoveEdge, ZeroStepAndMergeLimit) {
  std::vector<Pel8u> src(19 * 5), row(19, 0);
  for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Pel8u>(i * 7 + 1);
  ASSERT_EQ(peliCopy_8u_C1R(src.data(), 19, row.data(), 0, PeliSize{19, 5}), pelStatusOk);
  EXPECT_EQ(0, std::memcmp(row.data(), src.data() + 4 * 19, 19));
  Layout wide{40000, 2, 1};
  wide.gapless = true;
  const peltest::Row copy = FindRow("peliCopy_8u_C1R");
  peltest::ForEachCpuLevel([&] { peltest::RunRow(copy, wide, 3); });
}

// ---- Overlapping rows: the forward pixel loop defines the result ----------------

// One 8-bit layout change: the lanes of a pixel on either side, and where
// each destination lane comes from (channel forms are called with their
// pointer moved to the chosen lane).
struct Overlapping {
  const char* name;
  int srcLanes, dstLanes;  // lanes per pixel on either side
  std::vector<int> from;   // destination lane c takes source lane from[c]; -1 keeps
  PelStatus (*fn)(const Pel8u*, int, Pel8u*, int, PeliSize);
};

TEST(DataMoveOverlap, ForwardPixelLoop) {
  const Overlapping ops[] = {
      {"C3C1", 3, 1, {1}, [](const Pel8u* s, int ss, Pel8u* d, int ds, PeliSize r) { return peliCopy_8u_C3C1R(s + 1, ss, d, ds, r); }},
      {"C1C4", 1, 4, {-1, -1, 0, -1}, [](const Pel8u* s, int ss, Pel8u* d, int ds, PeliSize r) { return peliCopy_8u_C1C4R(s, ss, d + 2, ds, r); }},
      {"AC4C3", 4, 3, {0, 1, 2}, peliCopy_8u_AC4C3R},
      {"C3AC4", 3, 4, {0, 1, 2, -1}, peliCopy_8u_C3AC4R},
      {"Dup C1C3", 1, 3, {0, 0, 0}, peliDup_8u_C1C3R},
  };
  peltest::ForEachCpuLevel([&] {
    for (const Overlapping& op : ops)
      for (int width : {3, 6, 7, 40, 131})
        for (int delta : {0, 1, 2, 5, -1, -3, -40}) {
          SCOPED_TRACE(std::string(op.name) + " width " + std::to_string(width) + " delta " + std::to_string(delta));
          const int step = 8 * width + 64, margin = 256;
          std::vector<Pel8u> mem(2 * margin + 3 * step);
          for (size_t i = 0; i < mem.size(); ++i) mem[i] = static_cast<Pel8u>(i * 131 + 7);
          const int src = margin, dst = margin + (width - 2) + delta;
          // The model: per row, per pixel from left to right, read the
          // pixel's source lanes, then write its destination lanes.
          std::vector<Pel8u> want = mem;
          for (int y = 0; y < 3; ++y)
            for (int x = 0; x < width; ++x) {
              std::vector<Pel8u> read(op.srcLanes);
              for (int l = 0; l < op.srcLanes; ++l) read[l] = want[y * step + src + x * op.srcLanes + l];
              for (int c = 0; c < op.dstLanes; ++c)
                if (op.from[c] >= 0) want[y * step + dst + x * op.dstLanes + c] = read[op.from[c]];
            }
          ASSERT_EQ(op.fn(mem.data() + src, step, mem.data() + dst, step, PeliSize{width, 3}), pelStatusOk);
          ASSERT_TRUE(mem == want);
        }
  });
}

// A masked copy onto itself changes nothing.
TEST(DataMoveOverlap, MaskedCopyInPlace) {
  peltest::ForEachCpuLevel([] {
    std::vector<Pel8u> img(4 * 129 * 3), mask(129 * 3);
    for (size_t i = 0; i < img.size(); ++i) img[i] = static_cast<Pel8u>(i * 13);
    for (size_t i = 0; i < mask.size(); ++i) mask[i] = static_cast<Pel8u>((i / 16) % 3 == 0 ? 0 : i);
    const auto before = img;
    ASSERT_EQ(peliCopy_8u_AC4MR(img.data(), 4 * 129, img.data(), 4 * 129, mask.data(), 129, PeliSize{129, 3}),
              pelStatusOk);
    EXPECT_TRUE(img == before);
  });
}

}  // namespace
