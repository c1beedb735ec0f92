// Set of whole pixels (C1R, C3R, C4R) against a model, under every CPU level.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/image.h"
#include "support/signatures.h"
#include "support/sweep.h"

namespace {

using peltest::Image;
using peltest::Layout;

using peltest::RandomValues;
using peltest::SetManyFn;
using peltest::SetOneFn;

template <class T>
struct PlainSets;
#define PEL_PLAIN_SETS(type)                                                             \
  template <>                                                                            \
  struct PlainSets<Pel##type> {                                                          \
    static constexpr SetOneFn<Pel##type> c1 = peliSet_##type##_C1R;                      \
    static constexpr std::array<std::pair<int, SetManyFn<Pel##type>>, 2> many = {        \
        {{3, peliSet_##type##_C3R}, {4, peliSet_##type##_C4R}}};                         \
  };
PEL_PLAIN_SETS(8u)
PEL_PLAIN_SETS(16s)
PEL_PLAIN_SETS(16u)
PEL_PLAIN_SETS(32s)
PEL_PLAIN_SETS(32f)

template <class T>
class SetPlain : public ::testing::Test {};
TYPED_TEST_SUITE(SetPlain, peltest::DataMoveTypes);

template <class T, class Call>
void CheckSet(const Layout& l, const std::array<T, 4>& value, uint32_t seed, Call call) {
  Image<T> dst(l);
  dst.FillRandom(seed);
  const auto before = dst.bytes();
  ASSERT_EQ(call(dst), pelStatusOk);
  EXPECT_TRUE(peltest::RoiEquals(dst, [&](int, int, int c) { return value[c]; }));
  EXPECT_TRUE(peltest::OutsideRoiUnchanged(dst, before));
}

TYPED_TEST(SetPlain, MatchesModelOnAwkwardShapes) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 1;
    for (const Layout& l : peltest::AwkwardLayouts(1)) {
      const auto v = RandomValues<T>(seed);
      CheckSet<T>(l, v, seed++, [&](Image<T>& d) {
        return PlainSets<T>::c1(v[0], d.data(), d.step(), d.size());
      });
    }
    for (auto [channels, fn] : PlainSets<T>::many) {
      for (const Layout& l : peltest::AwkwardLayouts(channels)) {
        const auto v = RandomValues<T>(seed);
        CheckSet<T>(l, v, seed++, [&, fn = fn](Image<T>& d) {
          return fn(v.data(), d.data(), d.step(), d.size());
        });
      }
    }
  });
}

// Past 512 KiB the fill may stream past the cache; contiguous rows merge.
TYPED_TEST(SetPlain, LargeAndContiguousMatchModel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    const int width = static_cast<int>(600000 / sizeof(T) / 64) + 1;
    for (int pad : {0, 4 * static_cast<int>(sizeof(T))}) {
      const Layout l{width, 64, 1, pad, 0, false};
      const auto v = RandomValues<T>(3);
      CheckSet<T>(l, v, 4, [&](Image<T>& d) {
        return PlainSets<T>::c1(v[0], d.data(), d.step(), d.size());
      });
      for (auto [channels, fn] : PlainSets<T>::many) {
        const Layout lc{width / channels, 64, channels, pad, 0, false};
        CheckSet<T>(lc, v, 5, [&, fn = fn](Image<T>& d) {
          return fn(v.data(), d.data(), d.step(), d.size());
        });
      }
    }
  });
}

TYPED_TEST(SetPlain, PointersThenSizesAreChecked) {
  using T = TypeParam;
  Image<T> dst(Layout{9, 4, 4, 4, 0, false});
  const auto v = RandomValues<T>(1);
  peltest::ExpectPointerThenSizeChecks<1>(
      {dst.data()}, dst.size(),
      [&](const std::array<void*, 1>& p, PeliSize s) {
        return PlainSets<T>::c1(v[0], static_cast<T*>(p[0]), dst.step(), s);
      },
      {&dst.bytes()});
  for (auto [channels, fn] : PlainSets<T>::many) {
    peltest::ExpectPointerThenSizeChecks<2>(
        {const_cast<T*>(v.data()), dst.data()}, PeliSize{9 * 4 / channels, 4},
        [&, fn = fn](const std::array<void*, 2>& p, PeliSize s) {
          return fn(static_cast<const T*>(p[0]), static_cast<T*>(p[1]), dst.step(), s);
        },
        {&dst.bytes()});
  }
}

TEST(SetEdge, OnePixelC3WritesThreeBytes) {
  peltest::ForEachCpuLevel([] {
    Image<Pel8u> d(Layout{1, 1, 3, 0, 0, false});
    const auto before = d.bytes();
    const Pel8u v[3] = {1, 2, 3};
    ASSERT_EQ(peliSet_8u_C3R(v, d.data(), d.step(), d.size()), pelStatusOk);
    size_t changed = 0;
    for (size_t i = 0; i < before.size(); ++i) changed += before[i] != d.bytes()[i];
    EXPECT_EQ(changed, 3u);
    EXPECT_EQ(d.at(0, 0, 0), 1);
    EXPECT_EQ(d.at(0, 0, 2), 3);
  });
}

}  // namespace
