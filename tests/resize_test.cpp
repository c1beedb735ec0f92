// What the resize table cannot say: hand-computed tables and results of the
// worked cases, and that any tiling gives the bytes of one whole call, at
// every CPU level and for far ratios too. (Border kind 4 meets the model of
// kind 1 in the table's "sides" rows.)
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "resize_model.h"
#include "support/cpu_levels.h"

namespace {

using namespace resizemodel;

// One axis of a built spec, read through its header: indices and the second
// tap's weights (the x table's pairs must add up to 16384).
void ExpectAxis(Built& b, bool x, const std::vector<int>& index, const std::vector<int>& weight) {
  const int32_t* w = b.Words();
  const int32_t* block = w + (x ? 22 : 10);
  ASSERT_EQ(block[1], int(index.size()));
  const auto* base = reinterpret_cast<const uint8_t*>(w);
  const auto* idx = reinterpret_cast<const int32_t*>(base + block[4]);
  const auto* wt = reinterpret_cast<const int16_t*>(base + block[7]);
  for (size_t i = 0; i < index.size(); ++i) {
    EXPECT_EQ(idx[i], index[i]) << "position " << i;
    if (weight.empty()) continue;
    EXPECT_EQ(x ? wt[2 * i + 1] : wt[i], weight[i]) << "position " << i;
    if (x) {
      EXPECT_EQ(wt[2 * i] + wt[2 * i + 1], 16384);
    }
  }
}

TEST(ResizeWorked, Tables) {
  struct Case {
    int src, dst;
    bool linear;
    std::vector<int> index, weight;
    int negative, pastEnd;
  } const cases[] = {
      {5, 5, true, {0, 1, 2, 3, 4}, {0, 0, 0, 0, 0}, 0, 1},  // equal lengths: s = i
      {5, 5, false, {0, 1, 2, 3, 4}, {}, 0, 0},
      {4, 2, true, {0, 2}, {8192, 8192}, 0, 0},              // halving: s = 0.5, 2.5
      {4, 2, false, {0, 2}, {}, 0, 0},
      {2, 4, false, {0, 0, 1, 1}, {}, 0, 0},                 // doubling: 0.25, 0.75, 1.25, 1.75
      {2, 4, true, {-1, 0, 0, 1}, {12288, 4096, 12288, 4096}, 1, 1},  // s = -0.25, 0.25, 0.75, 1.25
      {3, 1, false, {1}, {}, 0, 0},                          // 1.5 - 1e-10: the lower pixel
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.src) + " to " + std::to_string(c.dst) + (c.linear ? " linear" : " nearest"));
    Built b(Scene{{c.dst, c.dst}, {c.dst, c.dst}, {c.src, c.src}, {0, 0}}, c.linear);
    ExpectAxis(b, true, c.index, c.weight);
    ExpectAxis(b, false, c.index, c.weight);
    EXPECT_EQ(b.Words()[22 + 9], c.negative);
    EXPECT_EQ(b.Words()[22 + 10], c.pastEnd);
  }
}

TEST(ResizeWorked, Sizes) {
  const PeliSize src{1920, 1080}, dst{960, 540};
  // (code, spec, init): A(960) = 960, A(540) = 544.
  const int want[][3] = {{1, 6280, 0}, {2, 12296, 0}, {6, 31112, 6016}, {16, 43656, 6016}};
  for (const auto& w : want) {
    int spec = -1, init = -1;
    EXPECT_EQ(peliResizeGetSize_8u(src, dst, w[0], 0, &spec, &init), pelStatusOk);
    EXPECT_EQ(spec, w[1]) << "code " << w[0];
    EXPECT_EQ(init, w[2]) << "code " << w[0];
  }
  int spec = 0, init = 0;
  EXPECT_EQ(peliResizeGetSize_8u({1, 7}, dst, 2, 0, &spec, &init), pelStatusBadSize);  // a 1-pixel-wide source
  EXPECT_EQ(peliResizeGetSize_8u({1, 7}, dst, 1, 0, &spec, &init), pelStatusOk);
}

// A processing call on a source of `src` pixels behind a frame of one pixel,
// into a destination of `dst`.
struct Job {
  const char* name;
  Process call;
  bool linear;
  int type, pixelBytes;
  PeliSize src, dst;
  int border;
};

struct Images {
  std::vector<uint8_t> src, dst;
  int srcStep, dstStep;
};

Images MakeImages(const Job& j, uint32_t seed) {
  Images im;
  im.srcStep = (j.src.width + 2) * j.pixelBytes;
  im.dstStep = j.dst.width * j.pixelBytes + 8;
  im.src.resize(size_t(im.srcStep) * size_t(j.src.height + 2));
  im.dst.assign(size_t(im.dstStep) * size_t(j.dst.height), 0);
  std::mt19937 rng(seed);
  for (uint8_t& b : im.src) b = uint8_t(rng());
  // Floats: finite, of either sign, from 2 up (the top byte's exponent bits
  // set to 1000000).
  const int eb = j.type == 13 ? 4 : j.type == 19 ? 8 : 0;
  for (size_t i = size_t(eb - 1); eb && i < im.src.size(); i += size_t(eb)) im.src[i] = uint8_t((im.src[i] & 0x80) | 0x40);
  return im;
}

// One tile into im.dst: pSrc at the tile's source offset.
PelStatus RunTile(const Job& j, Built& b, Images& im, PeliPoint off, PeliSize tile) {
  const PeliPoint so = b.SrcOffset(off);
  const uint8_t* s = im.src.data() + size_t(im.srcStep) * size_t(1 + so.y) + size_t((1 + so.x) * j.pixelBytes);
  uint8_t* d = im.dst.data() + size_t(im.dstStep) * size_t(off.y) + size_t(off.x * j.pixelBytes);
  return j.call(s, im.srcStep, d, im.dstStep, off, tile, j.border, b.Spec(), b.Buffer());
}

// Cuts [0, n) at random places.
std::vector<int> Cuts(int n, std::mt19937& rng) {
  std::vector<int> cuts{0};
  while (cuts.back() < n) cuts.push_back(std::min(n, cuts.back() + 1 + int(rng() % uint32_t(n / 3 + 2))));
  return cuts;
}

TEST(ResizeTiles, AnyTilingGivesTheWholeCall) {
  const int mem = pelBorderInMem, mirrorSides = pelBorderMirror | pelBorderInMemTop | pelBorderInMemRight;
  const Job jobs[] = {
      {"8u C3 up 2.7", Adapt<Pel8u>(peliResizeLinear_8u_C3R), true, 1, 3, {37, 11}, {100, 30}, pelBorderReplicate},
      {"8u C1 down 3.4", Adapt<Pel8u>(peliResizeLinear_8u_C1R), true, 1, 1, {340, 31}, {100, 9}, pelBorderMirror},
      {"8u C4 down 7.3", Adapt<Pel8u>(peliResizeLinear_8u_C4R), true, 1, 4, {730, 40}, {100, 5}, mirrorSides},
      {"8u C1 exact half", Adapt<Pel8u>(peliResizeLinear_8u_C1R), true, 1, 1, {202, 40}, {101, 20}, pelBorderReplicate},
      {"16s C4 up 5", Adapt<Pel16s>(peliResizeLinear_16s_C4R), true, 7, 8, {13, 7}, {65, 35}, mem},
      {"16u C3 down 1.3", Adapt<Pel16u>(peliResizeLinear_16u_C3R), true, 5, 6, {130, 13}, {100, 10}, pelBorderReplicate},
      {"32f C1 down 2.3", Adapt<Pel32f>(peliResizeLinear_32f_C1R), true, 13, 4, {230, 23}, {100, 10}, mirrorSides},
      {"32f C3 up 1.9", Adapt<Pel32f>(peliResizeLinear_32f_C3R), true, 13, 12, {53, 9}, {101, 17}, pelBorderReplicate},
      {"64f C1 up 3", Adapt<Pel64f>(peliResizeLinear_64f_C1R), true, 19, 8, {31, 5}, {93, 15}, mem},
      {"8u C1 nearest down 9.1", Adapt<Pel8u>(peliResizeNearest_8u_C1R), false, 1, 1, {910, 20}, {100, 7}, 0},
      {"8u C3 nearest up 3.3", Adapt<Pel8u>(peliResizeNearest_8u_C3R), false, 1, 3, {30, 6}, {99, 20}, 0},
      {"32f C4 nearest down 1.7", Adapt<Pel32f>(peliResizeNearest_32f_C4R), false, 13, 16, {170, 17}, {100, 10}, 0},
  };
  for (const Job& j : jobs) {
    SCOPED_TRACE(j.name);
    const int eb = j.type == 1 ? 1 : j.type == 13 ? 4 : j.type == 19 ? 8 : 2;
    Built b(Scene{j.dst, j.dst, j.src, {0, 0}}, j.linear, j.pixelBytes / eb, j.type);
    Images whole = MakeImages(j, 3);
    {
      peltest::CpuLevelScope scalar(peltest::CpuLevels().front());
      ASSERT_EQ(RunTile(j, b, whole, {0, 0}, j.dst), pelStatusOk);
    }
    std::mt19937 rng(11);
    peltest::ForEachCpuLevel([&] {
      for (int tiling = 0; tiling < 3; ++tiling) {
        Images tiled = MakeImages(j, 3);
        const std::vector<int> xs = Cuts(j.dst.width, rng), ys = Cuts(j.dst.height, rng);
        for (size_t ty = 0; ty + 1 < ys.size(); ++ty)
          for (size_t tx = 0; tx + 1 < xs.size(); ++tx)
            ASSERT_EQ(RunTile(j, b, tiled, {xs[tx], ys[ty]}, {xs[tx + 1] - xs[tx], ys[ty + 1] - ys[ty]}), pelStatusOk);
        ASSERT_TRUE(tiled.dst == whole.dst) << "tiling " << tiling;
      }
    });
  }
}

// Results a reader can check by hand.
TEST(ResizeWorked, Pixels) {
  auto run = [](const Job& j, const std::vector<uint8_t>& pixels) {
    Images im = MakeImages(j, 1);
    for (int y = 0; y < j.src.height; ++y)
      std::memcpy(&im.src[size_t(im.srcStep) * size_t(y + 1) + size_t(j.pixelBytes)],
                  &pixels[size_t(y * j.src.width * j.pixelBytes)], size_t(j.src.width * j.pixelBytes));
    Built b(Scene{j.dst, j.dst, j.src, {0, 0}}, j.linear, j.pixelBytes);
    EXPECT_EQ(RunTile(j, b, im, {0, 0}, j.dst), pelStatusOk);
    std::vector<uint8_t> out;
    for (int y = 0; y < j.dst.height; ++y)
      out.insert(out.end(), im.dst.begin() + y * im.dstStep, im.dst.begin() + y * im.dstStep + j.dst.width * j.pixelBytes);
    return out;
  };
  peltest::ForEachCpuLevel([&] {
    // Halving 4x2 to 2x1: the means of 2x2 blocks, rounded half up.
    EXPECT_EQ(run({"", Adapt<Pel8u>(peliResizeLinear_8u_C1R), true, 1, 1, {4, 2}, {2, 1}, 1}, {10, 20, 30, 40, 50, 60, 70, 80}),
              (std::vector<uint8_t>{35, 55}));
    // Doubling 2 to 4, nearest: each pixel twice.
    EXPECT_EQ(run({"", Adapt<Pel8u>(peliResizeNearest_8u_C1R), false, 1, 1, {2, 1}, {4, 2}, 0}, {7, 9}),
              (std::vector<uint8_t>{7, 7, 9, 9, 7, 7, 9, 9}));
    // A 1-pixel source: every destination pixel is that pixel.
    EXPECT_EQ(run({"", Adapt<Pel8u>(peliResizeNearest_8u_C3R), false, 1, 3, {1, 1}, {3, 2}, 0}, {1, 2, 3}),
              (std::vector<uint8_t>{1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3}));
    // Equal sizes: a copy, at both borders.
    std::vector<uint8_t> px(5 * 3 * 3);
    for (size_t i = 0; i < px.size(); ++i) px[i] = uint8_t(i * 37 + 5);
    EXPECT_EQ(run({"", Adapt<Pel8u>(peliResizeLinear_8u_C3R), true, 1, 3, {5, 3}, {5, 3}, 3}, px), px);
    EXPECT_EQ(run({"", Adapt<Pel8u>(peliResizeNearest_8u_C3R), false, 1, 3, {5, 3}, {5, 3}, 0}, px), px);
  });
}

}  // namespace
