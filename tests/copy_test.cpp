// Copy of whole pixels (C1R, C3R, C4R and their _L twins) against an element
// by element model, under every CPU level, with guard bytes.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/image.h"
#include "support/signatures.h"
#include "support/sweep.h"

namespace {

using peltest::Image;
using peltest::Layout;

using peltest::CopyFn;
using peltest::CopyFnL;

template <class T>
struct PlainCopies;
#define PEL_PLAIN_COPIES(type)                                                          \
  template <>                                                                           \
  struct PlainCopies<Pel##type> {                                                       \
    static constexpr std::array<std::pair<int, CopyFn<Pel##type>>, 3> plain = {{        \
        {1, peliCopy_##type##_C1R}, {3, peliCopy_##type##_C3R}, {4, peliCopy_##type##_C4R}}}; \
    static constexpr std::array<std::pair<int, CopyFnL<Pel##type>>, 3> large = {{       \
        {1, peliCopy_##type##_C1R_L},                                                   \
        {3, peliCopy_##type##_C3R_L},                                                   \
        {4, peliCopy_##type##_C4R_L}}};                                                 \
  };
PEL_PLAIN_COPIES(8u)
PEL_PLAIN_COPIES(16s)
PEL_PLAIN_COPIES(16u)
PEL_PLAIN_COPIES(32s)
PEL_PLAIN_COPIES(32f)

template <class T>
class CopyPlain : public ::testing::Test {};
TYPED_TEST_SUITE(CopyPlain, peltest::DataMoveTypes);

// Copies src to a fresh destination with `call` and checks every element and
// every byte outside the ROI.
template <class T, class Call>
void CheckCopy(const Layout& srcLayout, const Layout& dstLayout, uint32_t seed, Call call) {
  Image<T> src(srcLayout);
  src.FillRandom(seed);
  Image<T> dst(dstLayout);
  dst.FillRandom(seed + 1);
  const auto before = dst.bytes();
  ASSERT_EQ(call(src, dst), pelStatusOk);
  EXPECT_TRUE(peltest::RoiEquals(dst, [&](int x, int y, int c) { return src.at(x, y, c); }));
  EXPECT_TRUE(peltest::OutsideRoiUnchanged(dst, before));
}

TYPED_TEST(CopyPlain, MatchesModelOnAwkwardShapes) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    for (auto [channels, fn] : PlainCopies<T>::plain) {
      uint32_t seed = 1;
      for (Layout l : peltest::AwkwardLayouts(channels)) {
        Layout d = l;
        d.padBytes = l.padBytes + static_cast<int>(sizeof(T)) * 3;
        d.bottomUp = !l.bottomUp;
        CheckCopy<T>(l, d, seed++, [fn = fn](Image<T>& s, Image<T>& t) {
          return fn(s.data(), s.step(), t.data(), t.step(), s.size());
        });
      }
    }
  });
}

TYPED_TEST(CopyPlain, LargeTwinsMatchModel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    for (auto [channels, fn] : PlainCopies<T>::large) {
      uint32_t seed = 100;
      for (Layout l : peltest::AwkwardLayouts(channels)) {
        CheckCopy<T>(l, l, seed++, [fn = fn](Image<T>& s, Image<T>& t) {
          return fn(s.data(), s.step(), t.data(), t.step(),
                    PeliSizeL{s.size().width, s.size().height});
        });
      }
    }
  });
}

// Rows without gaps are merged into one run; the result must not change.
TYPED_TEST(CopyPlain, ContiguousRowsAsOneRun) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    for (auto [channels, fn] : PlainCopies<T>::plain) {
      for (int w : {1, 5, 64, 333}) {
        Layout l{w, 7, channels, 0, 0, false};
        CheckCopy<T>(l, l, 7, [fn = fn](Image<T>& s, Image<T>& t) {
          return fn(s.data(), s.step(), t.data(), t.step(), s.size());
        });
      }
    }
  });
}

// Above 1 MiB the copy streams past the cache: the bytes must be the same.
TYPED_TEST(CopyPlain, StreamingSizesMatchModel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    auto fn = PlainCopies<T>::plain[0].second;
    const int width = static_cast<int>(1100000 / sizeof(T) / 100) + 3;  // > 1 MiB in 100 rows
    for (bool contiguous : {true, false}) {
      Layout l{width, 100, 1, contiguous ? 0 : 4 * static_cast<int>(sizeof(T)), 12, false};
      CheckCopy<T>(l, l, 3, [fn = fn](Image<T>& s, Image<T>& t) {
        return fn(s.data(), s.step(), t.data(), t.step(), s.size());
      });
    }
  });
}

TYPED_TEST(CopyPlain, PointersThenSizesAreChecked) {
  using T = TypeParam;
  for (auto [channels, fn] : PlainCopies<T>::plain) {
    Image<T> src(Layout{9, 4, channels, 4, 0, false});
    Image<T> dst(Layout{9, 4, channels, 4, 0, false});
    peltest::ExpectPointerThenSizeChecks<2>(
        {src.data(), dst.data()}, src.size(),
        [&, fn = fn](const std::array<void*, 2>& p, PeliSize s) {
          return fn(static_cast<const T*>(p[0]), src.step(), static_cast<T*>(p[1]), dst.step(), s);
        },
        {&dst.bytes()});
  }
}

// A destination step of 0 writes every row onto the same row: the last wins.
TEST(CopyEdge, ZeroDestinationStepKeepsLastRow) {
  Image<Pel8u> src(Layout{19, 5, 1, 3, 0, false});
  src.FillRandom(5);
  std::vector<Pel8u> row(19, 0);
  ASSERT_EQ(peliCopy_8u_C1R(src.data(), src.step(), row.data(), 0, src.size()), pelStatusOk);
  for (int x = 0; x < 19; ++x) EXPECT_EQ(row[x], src.at(x, 4)) << x;
}

// 40000 pixels wide is past the merge limit of the 8-bit copy; the rows are
// then copied one by one, with the same result.
TEST(CopyEdge, WideContiguousRowPastMergeLimit) {
  peltest::ForEachCpuLevel([] {
    Layout l{40000, 1, 1, 0, 0, false};
    CheckCopy<Pel8u>(l, l, 9, [](Image<Pel8u>& s, Image<Pel8u>& t) {
      return peliCopy_8u_C1R(s.data(), s.step(), t.data(), t.step(), s.size());
    });
  });
}

}  // namespace

namespace {

// The managed copy streams only on request; both ways give the same bytes.
TEST(CopyManaged, FlagsChangeNothingButSpeed) {
  peltest::ForEachCpuLevel([] {
    for (int flags : {0, 1, 2, 3}) {
      for (Layout l : peltest::AwkwardLayouts(1)) {
        CheckCopy<Pel8u>(l, l, 11, [flags](Image<Pel8u>& s, Image<Pel8u>& t) {
          return peliCopyManaged_8u_C1R(s.data(), s.step(), t.data(), t.step(), s.size(), flags);
        });
      }
      const Layout contiguous{1500, 800, 1, 0, 0, false};
      CheckCopy<Pel8u>(contiguous, contiguous, 12, [flags](Image<Pel8u>& s, Image<Pel8u>& t) {
        return peliCopyManaged_8u_C1R(s.data(), s.step(), t.data(), t.step(), s.size(), flags);
      });
    }
  });
  Image<Pel8u> src(Layout{9, 4, 1, 4, 0, false});
  Image<Pel8u> dst(Layout{9, 4, 1, 4, 0, false});
  peltest::ExpectPointerThenSizeChecks<2>(
      {src.data(), dst.data()}, src.size(),
      [&](const std::array<void*, 2>& p, PeliSize s) {
        return peliCopyManaged_8u_C1R(static_cast<const Pel8u*>(p[0]), src.step(),
                                      static_cast<Pel8u*>(p[1]), dst.step(), s, 1);
      },
      {&dst.bytes()});
}

}  // namespace
