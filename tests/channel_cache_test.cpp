// The planar copies decide about bypassing the cache from the bytes read and
// written together; the other channel copies never ask. This program defines
// pelGetMaxCacheSizeB itself (libpeli calls it through its dynamic symbol), so
// it counts the questions and can answer with a small cache, which sends
// modest images down the streaming paths.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "channel_members.h"
#include "peli.h"
#include "support/cpu_levels.h"

namespace {
int gQueries = 0;
int gAnswerBytes = 1 << 30;
}  // namespace

extern "C" __attribute__((visibility("default"))) int pelGetMaxCacheSizeB(int* pSizeByte) {
  ++gQueries;
  *pSizeByte = gAnswerBytes;
  return 0;
}

namespace {

using peltest::Layout;

// How often one call on a one-row image of `width` pixels asks.
template <class T>
int QueriesOf(const std::string& name, int width) {
  const auto op = peltest::FindOp<T>(name);
  std::vector<std::vector<T>> sides;
  std::vector<T*> p;
  for (size_t s = 0; s < op.sides.size(); ++s) {
    sides.emplace_back(op.RowLanes(static_cast<int>(s), width));
    p.push_back(sides.back().data());
  }
  gQueries = 0;
  EXPECT_EQ(op.call(p, std::vector<int>(p.size(), 0), PeliSize{width, 1}, false), pelStatusOk);
  return gQueries;
}

// Bytes per pixel are channels x element size x 2: the widest row at 512 KiB
// keeps cached stores without asking, one more pixel asks once.
TEST(PlanarCacheQuery, CountsBothSidesAgainst512KiB) {
  struct Case {
    int (*queries)(const std::string&, int);
    const char* name;
    int widthAtLimit;
  };
  const Case cases[] = {
      {QueriesOf<Pel8u>, "C3P3R", 87381},   // 6 bytes a pixel: 524286
      {QueriesOf<Pel8u>, "P3C3R", 87381},
      {QueriesOf<Pel8u>, "C4P4R", 65536},   // 8: exactly 524288
      {QueriesOf<Pel16s>, "C3P3R", 43690},  // 12
      {QueriesOf<Pel16u>, "P4C4R", 32768},  // 16
      {QueriesOf<Pel32f>, "C3P3R", 21845},  // 24
      {QueriesOf<Pel32s>, "P4C4R", 16384},  // 32
  };
  for (const Case& c : cases) {
    EXPECT_EQ(c.queries(c.name, c.widthAtLimit), 0) << c.name << " " << c.widthAtLimit;
    EXPECT_EQ(c.queries(c.name, c.widthAtLimit + 1), 1) << c.name << " " << c.widthAtLimit + 1;
  }
}

TEST(PlanarCacheQuery, InterleavedChannelCopiesNeverAsk) {
  for (const auto& op : peltest::ChannelOps<Pel8u>()) {
    if (op.planar()) continue;
    EXPECT_EQ(QueriesOf<Pel8u>(op.name, 1 << 20), 0) << op.name;
  }
}

template <class T>
class PlanarStreaming : public ::testing::Test {
 protected:
  void SetUp() override { gAnswerBytes = 600000; }
  void TearDown() override { gAnswerBytes = 1 << 30; }
};
TYPED_TEST_SUITE(PlanarStreaming, peltest::ChannelTypes);

// With a 600000-byte cache these images stream. Planes 64 bytes apart share
// the vector alignment and take streaming stores; a plane shifted by an
// element does not; the interleaved side streams from wherever whole pixels
// reach alignment.
TYPED_TEST(PlanarStreaming, SameBytesAsCachedStores) {
  using T = TypeParam;
  constexpr int e = sizeof(T);
  const int height = 16;
  peltest::ForEachCpuLevel([&] {
    for (const auto& op : peltest::ChannelOps<T>()) {
      if (!op.planar()) continue;
      const int C = static_cast<int>(op.sides.size()) - 1;
      const int width = 600000 / (2 * C * e * height) + 7;
      for (int planeShift : {0, 1, 3})
        for (int interleavedShift : {0, 1, 4, 12})
          for (int pad : {0, 5, 16}) {
            std::vector<Layout> l;
            int plane = 0;
            for (const peltest::Side& side : op.sides) {
              if (side.plane) {
                l.push_back({width, height, 1, pad * e, (64 * plane + (plane == 1 ? planeShift * e : 0)), false});
                ++plane;
              } else {
                l.push_back({width, height, C, C * pad * e, interleavedShift * e, false});
              }
            }
            peltest::CheckOp(op, l, static_cast<uint32_t>(planeShift * 100 + interleavedShift * 10 + pad));
          }
    }
  });
  EXPECT_GT(gQueries, 0);
}

}  // namespace
