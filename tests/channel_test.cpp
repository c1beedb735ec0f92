// Channel copies (extract, insert, split, merge, alpha drop/add, Dup) against
// an element model under every CPU level, with guard bytes and with fenced
// pages; rows whose source and destination overlap against a second model,
// a forward pixel loop.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <new>
#include <random>
#include <string>
#include <vector>

#include "channel_members.h"
#include "peli.h"
#include "pelcore.h"
#include "support/cpu_levels.h"
#include "support/image.h"
#include "support/sweep.h"

namespace {

using peltest::ChannelOp;
using peltest::Image;
using peltest::Layout;

template <class T>
class ChannelCopy : public ::testing::Test {};
TYPED_TEST_SUITE(ChannelCopy, peltest::ChannelTypes);

TYPED_TEST(ChannelCopy, MatchesModelOnAwkwardShapes) {
  using T = TypeParam;
  std::vector<Layout> shapes = peltest::AwkwardLayouts(1);
  for (int w = 1; w <= 7; ++w) shapes.push_back(Layout{w, 2, 1, 4 * (w % 3), 4 * w, w == 3});
  peltest::ForEachCpuLevel([&] {
    uint32_t seed = 1;
    for (const auto& op : peltest::ChannelOps<T>())
      for (const Layout& l : shapes) peltest::CheckOp(op, peltest::LayoutsFor(op, l), seed += 7);
  });
}

// Past 512 KiB the planar copies ask for the cache size; the bytes must not
// depend on the answer.
TYPED_TEST(ChannelCopy, PlanarPast512KiB) {
  using T = TypeParam;
  const int width = static_cast<int>(600000 / sizeof(T) / 3 / 64) + 1;
  peltest::ForEachCpuLevel([&] {
    for (const auto& op : peltest::ChannelOps<T>())
      if (op.planar()) peltest::CheckOp(op, peltest::LayoutsFor(op, Layout{width, 64, 1, 16, 8, false}), 3);
  });
}

// Pointers in call order (for a planar call the plane array itself second),
// then sizes; an error writes nothing.
TYPED_TEST(ChannelCopy, PointersThenSizesAreChecked) {
  using T = TypeParam;
  int arrayMarker = 0;
  for (const auto& op : peltest::ChannelOps<T>()) {
    SCOPED_TRACE(op.name);
    std::vector<Image<T>> img;
    for (const Layout& l : peltest::LayoutsFor(op, Layout{9, 4, 1, 4, 0, false})) img.emplace_back(l);
    std::vector<void*> good;
    std::vector<int> steps;
    std::vector<const std::vector<uint8_t>*> watched;
    for (size_t s = 0; s < img.size(); ++s) {
      good.push_back(&img[s].at(0, 0, op.sides[s].first));
      steps.push_back(img[s].step());
      if (op.sides[s].written) watched.push_back(&img[s].bytes());
    }
    // A planar call's plane array sits after the interleaved pointer of a
    // split and before the plane pointers of a merge: it goes last here.
    if (op.planar()) good.push_back(&arrayMarker);
    const auto call = [&](const auto& p, PeliSize roi) {
      std::vector<T*> sides;
      for (size_t s = 0; s < img.size(); ++s) sides.push_back(static_cast<T*>(p[s]));
      return op.call(sides, steps, roi, op.planar() && p[img.size()] == nullptr);
    };
    const auto sweep = [&](auto n) {
      std::array<void*, n()> g;
      std::copy(good.begin(), good.end(), g.begin());
      peltest::ExpectPointerThenSizeChecks<n()>(g, img[0].size(), call, watched);
    };
    if (good.size() == 2) sweep(std::integral_constant<size_t, 2>{});
    if (good.size() == 5) sweep(std::integral_constant<size_t, 5>{});
    if (good.size() == 6) sweep(std::integral_constant<size_t, 6>{});
  }
}

// ---- Overlapping rows: the forward pixel loop defines the result ----

// A second model, on one buffer that holds every side: per row, per pixel
// from left to right, all reads of the pixel, then its writes side by side
// and channel by channel. base[s] is side s's pointer in lanes.
template <class U>
void ForwardModel(std::vector<U>& mem, const ChannelOp<U>& op, const std::vector<ptrdiff_t>& base,
                  int width, int height, ptrdiff_t step) {
  const auto lane = [&](size_t s, ptrdiff_t x, int c) {
    const peltest::Side& side = op.sides[s];
    return base[s] + x * side.channels + c - side.first;
  };
  for (ptrdiff_t y = 0; y < height; ++y)
    for (ptrdiff_t x = 0; x < width; ++x) {
      std::vector<std::pair<ptrdiff_t, U>> writes;
      for (size_t s = 0; s < op.sides.size(); ++s) {
        if (!op.sides[s].written) continue;
        for (int c = 0; c < op.sides[s].channels; ++c) {
          const peltest::From f = op.from(static_cast<int>(s), c);
          if (f.side >= 0) writes.push_back({lane(s, x, c), mem[y * step + lane(f.side, x, f.channel)]});
        }
      }
      for (const auto& [at, v] : writes) mem[y * step + at] = v;
    }
}

TYPED_TEST(ChannelCopy, OverlappingRowsFollowTheForwardLoop) {
  using T = TypeParam;
  constexpr ptrdiff_t kMargin = 256;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 600;
    for (const auto& op : peltest::ChannelOps<T>())
      for (int width : {3, 6, 7, 40, 131})
        for (ptrdiff_t delta : {0, 1, 2, 5, -1, -3, -40}) {
          SCOPED_TRACE(op.name + ", width " + std::to_string(width) + ", delta " + std::to_string(delta));
          // Side s starts s x (width - 2) lanes in, a written side delta more.
          std::vector<ptrdiff_t> base;
          for (size_t s = 0; s < op.sides.size(); ++s) {
            base.push_back(kMargin + static_cast<ptrdiff_t>(s) * (width - 2) + (op.sides[s].written ? delta : 0));
          }
          const ptrdiff_t step = 8 * width + 64;
          Image<T> buffer(Layout{static_cast<int>(2 * kMargin + 3 * step), 1, 1, 0, 0, false});
          peltest::FillBits(buffer, seed++);
          T* mem = buffer.data();
          std::vector<T> want(mem, mem + buffer.size().width);
          ForwardModel(want, op, base, width, 3, step);
          std::vector<T*> p;
          for (ptrdiff_t b : base) p.push_back(mem + b);
          const std::vector<int> steps(p.size(), static_cast<int>(step * sizeof(T)));
          ASSERT_EQ(op.call(p, steps, PeliSize{width, 3}, false), pelStatusOk);
          ASSERT_EQ(0, std::memcmp(mem, want.data(), want.size() * sizeof(T)));
        }
  });
}

// In place, pixel 0 overwrites the source of pixels 1 and 2, which spread it
// further: every destination byte becomes source byte 0.
TEST(Dup8u, InPlaceSpreadsTheFirstByte) {
  peltest::ForEachCpuLevel([] {
    for (int width : {2, 6, 7, 100}) {
      std::vector<Pel8u> row(3 * width + 16, 0x5A);
      for (int x = 0; x < width; ++x) row[x] = static_cast<Pel8u>(x + 1);
      ASSERT_EQ(peliDup_8u_C1C3R(row.data(), 0, row.data(), 0, PeliSize{width, 1}), pelStatusOk);
      for (int i = 0; i < 3 * width; ++i) ASSERT_EQ(row[i], 1) << "width " << width << " byte " << i;
      for (size_t i = 3 * width; i < row.size(); ++i) ASSERT_EQ(row[i], 0x5A);
    }
  });
}

// ---- Nothing outside the row is read or written ----

// Bytes between two inaccessible pages: one access past either end crashes.
class FencedBytes {
 public:
  explicit FencedBytes(size_t bytes) {
    page_ = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    usable_ = (bytes + page_ - 1) / page_ * page_;
    void* p = mmap(nullptr, usable_ + 2 * page_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) throw std::bad_alloc();
    base_ = static_cast<uint8_t*>(p);
    mprotect(base_, page_, PROT_NONE);
    mprotect(base_ + page_ + usable_, page_, PROT_NONE);
  }
  ~FencedBytes() { munmap(base_, usable_ + 2 * page_); }
  FencedBytes(const FencedBytes&) = delete;
  FencedBytes& operator=(const FencedBytes&) = delete;
  uint8_t* begin() const { return base_ + page_; }
  uint8_t* end() const { return base_ + page_ + usable_; }

 private:
  size_t page_ = 0, usable_ = 0;
  uint8_t* base_ = nullptr;
};

// Every side holds exactly the lanes its rows may touch, flush against a
// fence at its start or its end; each CPU level must give the bytes of the
// scalar reference (the first level).
TYPED_TEST(ChannelCopy, StaysInsideTheRow) {
  using T = TypeParam;
  for (const auto& op : peltest::ChannelOps<T>())
    for (int width : {1, 6, 7, 33, 64, 65, 200, 1001})
      for (int height : {1, 3})
        for (bool atEnd : {false, true}) {
          SCOPED_TRACE(op.name + ", " + std::to_string(width) + "x" + std::to_string(height) +
                       (atEnd ? " at the end" : " at the start"));
          std::vector<std::vector<uint8_t>> reference;
          peltest::ForEachCpuLevel([&] {
            std::vector<std::unique_ptr<FencedBytes>> fences;
            std::vector<T*> p;
            std::vector<int> steps;
            std::mt19937 rng(width);
            for (size_t s = 0; s < op.sides.size(); ++s) {
              const size_t rowBytes = op.RowLanes(static_cast<int>(s), width) * sizeof(T);
              fences.push_back(std::make_unique<FencedBytes>(rowBytes * height));
              uint8_t* first = atEnd ? fences[s]->end() - rowBytes * height : fences[s]->begin();
              for (size_t i = 0; i < rowBytes * height; ++i) first[i] = static_cast<uint8_t>(rng());
              p.push_back(reinterpret_cast<T*>(first));
              steps.push_back(static_cast<int>(rowBytes));
            }
            ASSERT_EQ(op.call(p, steps, PeliSize{width, height}, false), pelStatusOk);
            std::vector<std::vector<uint8_t>> got;
            for (size_t s = 0; s < p.size(); ++s) {
              const auto* b = reinterpret_cast<const uint8_t*>(p[s]);
              got.emplace_back(b, b + steps[s] * height);
            }
            if (reference.empty()) reference = got;
            EXPECT_TRUE(got == reference);
          });
        }
}

// ---- Planar 8-bit copies: merged rows, past the cache ----

// Contiguous rows (source step 3 x plane step, plane step = width) are one
// run unless the image is big and a pointer is off a 4-byte boundary.
TEST(Split8uC3, ContiguousRowsWithAndWithoutMerge) {
  struct Case {
    const char* what;
    int width, height, srcOffset, plane2Offset, planePad;
  };
  const Case cases[] = {
      {"small contiguous", 37, 11, 0, 0, 0},
      {"small contiguous, misaligned plane", 37, 11, 0, 1, 0},
      {"big contiguous, aligned", 401, 400, 0, 0, 0},
      {"big contiguous, misaligned plane", 401, 400, 0, 1, 0},
      {"big contiguous, misaligned source", 401, 400, 3, 0, 0},
      {"below the limit (159600 bytes), misaligned", 133, 400, 1, 2, 0},
      {"padded planes and source", 401, 400, 0, 0, 5},
  };
  const auto op = peltest::FindOp<Pel8u>("C3P3R");
  peltest::ForEachCpuLevel([&] {
    for (const Case& k : cases) {
      SCOPED_TRACE(k.what);
      std::vector<Layout> l{{k.width, k.height, 3, 3 * k.planePad, k.srcOffset, false}};
      for (int c = 0; c < 3; ++c) l.push_back({k.width, k.height, 1, k.planePad, 8 * c + (c == 2 ? k.plane2Offset : 0), false});
      peltest::CheckOp(op, l, 11);
    }
  });
}

TEST(Planar8u, PastTheCacheSize) {
  int cache = 0;
  if (pelGetMaxCacheSizeB(&cache) != 0 || cache <= 0 || cache > (64 << 20)) GTEST_SKIP() << "no usable cache size";
  const int height = 1000;
  const int width = cache / 6 / height + 3;  // 6 bytes a pixel, both sides
  peltest::ForEachCpuLevel([&] {
    for (const char* name : {"C3P3R", "P3C3R"}) {
      const auto op = peltest::FindOp<Pel8u>(name);
      peltest::CheckOp(op, peltest::LayoutsFor(op, Layout{width, height, 1, 0, 64, false}), 12);
    }
  });
}

}  // namespace
