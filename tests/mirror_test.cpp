// What the mirror, transpose and swap rows cannot say: worked examples,
// calls whose images share memory (handed over to the in-place forms, or
// refused, or done in an order that every CPU level repeats) and images past
// the large-transfer thresholds.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <numeric>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/rows.h"

namespace {

using peltest::FindRow;
using peltest::Layout;

// Source 2 pixels wide and 3 rows high {a b / c d / e f}; ROI (3, 2) is the
// destination's size.
TEST(MirrorDiagonal, WorkedExample) {
  const Pel8u src[6] = {'a', 'b', 'c', 'd', 'e', 'f'};
  Pel8u dst[6];
  ASSERT_EQ(peliMirror_8u_C1R(src, 2, dst, 3, PeliSize{3, 2}, pelAxisDiagonal), pelStatusOk);
  EXPECT_EQ(std::string(dst, dst + 6), "acebdf");
  ASSERT_EQ(peliMirror_8u_C1R(src, 2, dst, 3, PeliSize{3, 2}, pelAxisAntiDiagonal), pelStatusOk);
  EXPECT_EQ(std::string(dst, dst + 6), "fdbeca");
}

// Diagonal flips refuse images that share memory (even by one byte, either
// way round) and write nothing.
TEST(MirrorDiagonal, SharedMemoryRefused) {
  std::vector<Pel8u> mem(64);
  std::iota(mem.begin(), mem.end(), 0);
  const auto before = mem;
  for (int flip : {pelAxisDiagonal, pelAxisAntiDiagonal}) {
    for (int dst : {1, 5, 15, 31}) {  // the source spans bytes 16..31 (4 rows of 4 at step 4)
      EXPECT_EQ(peliMirror_8u_C1R(mem.data() + 16, 4, mem.data() + dst, 4, PeliSize{4, 4}, flip),
                pelStatusNotSupportedMode)
          << dst;
    }
    EXPECT_EQ(peliMirror_8u_C1R(mem.data() + 16, 4, mem.data() + 16, 4, PeliSize{4, 4}, flip), pelStatusNotSupportedMode);
    EXPECT_EQ(peliMirror_8u_C1R(mem.data() + 16, 4, mem.data() + 32, 4, PeliSize{4, 4}, flip), pelStatusOk);
  }
  EXPECT_TRUE(std::equal(before.begin(), before.begin() + 32, mem.begin()));
}

// Runs `call` on a copy of `mem` under every CPU level; each must give the
// bytes of the scalar reference (the first level).
void SameAtEveryLevel(const std::vector<Pel8u>& mem, const std::function<PelStatus(Pel8u*)>& call) {
  std::vector<Pel8u> reference;
  peltest::ForEachCpuLevel([&] {
    std::vector<Pel8u> m = mem;
    ASSERT_EQ(call(m.data()), pelStatusOk);
    if (reference.empty()) reference = m;
    EXPECT_TRUE(m == reference);
  });
}

// Images that share memory without being the same image: the result is
// whatever the reference's order gives, at every level. The same pointer
// and step is the in-place call.
TEST(MirrorOverlap, SameBytesAtEveryLevel) {
  std::vector<Pel8u> mem(64 * 1024);
  for (size_t i = 0; i < mem.size(); ++i) mem[i] = static_cast<Pel8u>(i * 131 + 7);
  const int step = 4 * 133 + 16;
  for (int delta : {0, 1, 3, 64, -5, -130}) {
    SCOPED_TRACE(delta);
    auto at = [](Pel8u* m, int offset) { return m + 8192 + offset; };
    for (int flip : {0, 1, 2}) {
      SameAtEveryLevel(mem, [&](Pel8u* m) { return peliMirror_8u_C4R(at(m, 0), step, at(m, delta), step, PeliSize{133, 7}, flip); });
      SameAtEveryLevel(mem, [&](Pel8u* m) { return peliMirror_16u_C3R(reinterpret_cast<Pel16u*>(at(m, 0)), step, reinterpret_cast<Pel16u*>(at(m, 2 * delta)), step, PeliSize{67, 9}, flip); });
    }
    SameAtEveryLevel(mem, [&](Pel8u* m) { return peliTranspose_8u_C1R(at(m, 0), step, at(m, delta), step, PeliSize{70, 33}); });
    SameAtEveryLevel(mem, [&](Pel8u* m) {
      return peliTranspose_32f_C1R(reinterpret_cast<Pel32f*>(at(m, 0)), step, reinterpret_cast<Pel32f*>(at(m, 4 * delta)), step, PeliSize{33, 20});
    });
    const int order[4] = {2, 1, 0, 3};
    SameAtEveryLevel(mem, [&](Pel8u* m) { return peliSwapChannels_8u_C3C4R(at(m, 0), step, at(m, delta), step, PeliSize{130, 5}, order, 9); });
    SameAtEveryLevel(mem, [&](Pel8u* m) { return peliSwapChannels_16s_C4C3R(reinterpret_cast<Pel16s*>(at(m, 0)), step, reinterpret_cast<Pel16s*>(at(m, 2 * delta)), step, PeliSize{60, 5}, order); });
  }
  // In place with rows closer than their length, and with a zero step.
  for (int rowStep : {0, 5, 40}) {
    for (int flip : {0, 1, 2})
      SameAtEveryLevel(mem, [&](Pel8u* m) { return peliMirror_8u_AC4IR(m + 4096, rowStep, PeliSize{33, 6}, flip); });
    SameAtEveryLevel(mem, [&](Pel8u* m) { return peliTranspose_16s_C1IR(reinterpret_cast<Pel16s*>(m + 4096), rowStep, PeliSize{20, 9}); });
  }
}

// The not-in-place forms given one image twice are the in-place forms.
TEST(MirrorOverlap, SamePointerIsInPlace) {
  for (PeliSize roi : {PeliSize{17, 33}, PeliSize{40, 9}, PeliSize{16, 16}}) {
    const int n = std::max(roi.width, roi.height), step = 4 * n + 4;
    std::vector<Pel8u> a(step * n), b;
    for (size_t i = 0; i < a.size(); ++i) a[i] = static_cast<Pel8u>(i * 37 + 1);
    b = a;
    ASSERT_EQ(peliTranspose_8u_C4R(a.data(), step, a.data(), step, roi), pelStatusOk);
    ASSERT_EQ(peliTranspose_8u_C4IR(b.data(), step, roi), pelStatusOk);
    EXPECT_TRUE(a == b);
    ASSERT_EQ(peliMirror_8u_C4R(a.data(), step, a.data(), step, roi, pelAxisBoth), pelStatusOk);
    ASSERT_EQ(peliMirror_8u_C4IR(b.data(), step, roi, pelAxisBoth), pelStatusOk);
    EXPECT_TRUE(a == b);
    // The handover happens before the checks: a bad axis is the in-place form's -22.
    EXPECT_EQ(peliMirror_8u_C4R(a.data(), step, a.data(), step, roi, 7), pelStatusMirrorAxisError);
  }
}

// Past 512 KiB flips of one and three channels stream (by the bytes they
// touch), four-channel flips and 32-bit transposes ask for the cache size:
// the bytes are the model's either way, for every alignment.
TEST(MirrorLarge, SameBytesPastTheThresholds) {
  struct Case {
    const char* name;
    const char* variant;
    int width, height;
  };
  const Case cases[] = {{"peliMirror_8u_C1R", "flip0", 1201, 450},  {"peliMirror_8u_C1R", "flip1", 1201, 230},
                        {"peliMirror_16s_C1R", "flip2", 601, 230},  {"peliMirror_32f_C3R", "flip1", 101, 230},
                        {"peliMirror_8u_C4R", "flip1", 301, 230},   {"peliMirror_16u_AC4R", "flip2", 151, 230},
                        {"peliTranspose_32f_C1R", "", 301, 230},    {"peliTranspose_32s_C4R", "", 131, 130}};
  for (const Case& c : cases) {
    const peltest::Row row = FindRow(c.name, c.variant);
    peltest::ForEachCpuLevel([&] {
      for (int offset : {0, 4, 12}) peltest::RunRow(row, Layout{c.width, c.height, 1, 16, offset, false}, 5);
    });
  }
}

}  // namespace
