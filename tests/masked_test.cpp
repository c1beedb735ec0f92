// The alpha-keeping (AC4R), masked (MR) and single-channel (C3CR, C4CR)
// members of Copy and Set against an element-by-element model, under every
// CPU level, with guard bytes around every image.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
#include <vector>

#include "peli.h"
#include "pelcore.h"
#include "support/cpu_levels.h"
#include "support/image.h"
#include "support/signatures.h"
#include "support/sweep.h"

namespace {

using peltest::Image;
using peltest::Layout;

using peltest::CopyFn;
using peltest::CopyFnL;
using peltest::CopyMaskFn;
using peltest::RandomValues;
using peltest::SetManyFn;
using peltest::SetManyMaskFn;
using peltest::SetOneFn;
using peltest::SetOneMaskFn;

// `channels` per pixel, of which the first `written` are written.
template <class Fn>
struct Member {
  int channels;
  int written;
  Fn fn;
};

// The one-value masked fill, called like the others through a value array.
template <class T, SetOneMaskFn<T> F>
PelStatus SetC1Masked(const T* value, T* d, int step, const Pel8u* m, int mstep, PeliSize s) {
  return F(*value, d, step, m, mstep, s);
}

template <class T>
struct Members;
#define PEL_MASKED_MEMBERS(t)                                                                \
  template <>                                                                                \
  struct Members<Pel##t> {                                                                   \
    using T = Pel##t;                                                                        \
    static constexpr CopyFn<T> copyAlpha = peliCopy_##t##_AC4R;                              \
    static constexpr CopyFnL<T> copyAlphaL = peliCopy_##t##_AC4R_L;                          \
    static constexpr std::array<Member<CopyMaskFn<T>>, 4> copyMasked = {{                    \
        {1, 1, peliCopy_##t##_C1MR},                                                         \
        {3, 3, peliCopy_##t##_C3MR},                                                         \
        {4, 4, peliCopy_##t##_C4MR},                                                         \
        {4, 3, peliCopy_##t##_AC4MR}}};                                                      \
    static constexpr std::array<Member<CopyFn<T>>, 2> copyChannel = {{                       \
        {3, 1, peliCopy_##t##_C3CR}, {4, 1, peliCopy_##t##_C4CR}}};                          \
    static constexpr SetManyFn<T> setAlpha = peliSet_##t##_AC4R;                             \
    static constexpr SetOneMaskFn<T> setMaskedC1 = peliSet_##t##_C1MR;                       \
    static constexpr std::array<Member<SetManyMaskFn<T>>, 4> setMasked = {{                  \
        {1, 1, SetC1Masked<T, peliSet_##t##_C1MR>},                                          \
        {3, 3, peliSet_##t##_C3MR},                                                          \
        {4, 4, peliSet_##t##_C4MR},                                                          \
        {4, 3, peliSet_##t##_AC4MR}}};                                                       \
    static constexpr std::array<Member<SetOneFn<T>>, 2> setChannel = {{                      \
        {3, 1, peliSet_##t##_C3CR}, {4, 1, peliSet_##t##_C4CR}}};                            \
  };
PEL_MASKED_MEMBERS(8u)
PEL_MASKED_MEMBERS(16s)
PEL_MASKED_MEMBERS(16u)
PEL_MASKED_MEMBERS(32s)
PEL_MASKED_MEMBERS(32f)

template <class T>
class Masked : public ::testing::Test {};
using MaskedTypes = peltest::DataMoveTypes;
TYPED_TEST_SUITE(Masked, MaskedTypes);

// A mask for the image layout `l`, with a layout of its own. It is built in
// runs of 16-pixel blocks that are all zero, all nonzero or mixed, so that
// every vector width meets every kind of block, and its nonzero bytes are 1,
// 0x80, 0xFF and other values: any of them selects the pixel.
Image<Pel8u> MakeMask(const Layout& l, uint32_t seed) {
  Layout m = l;
  m.channels = 1;
  m.padBytes = static_cast<int>(seed % 3) * 5;
  m.offsetBytes = static_cast<int>(seed % 7);
  m.bottomUp = seed % 4 == 1;
  Image<Pel8u> mask(m);
  std::mt19937 rng(seed);
  auto nonzero = [&] {
    const Pel8u fixed[] = {1, 0x80, 0xFF};
    const uint32_t r = rng() % 4;
    return r < 3 ? fixed[r] : static_cast<Pel8u>(1 + rng() % 255);
  };
  int kind = 0;
  for (int y = 0; y < m.height; ++y) {
    for (int x = 0; x < m.width; ++x) {
      if (x % 16 == 0 && rng() % 100 < 10) kind = static_cast<int>(rng() % 3);
      const bool on = kind == 1 || (kind == 2 && rng() % 2 == 0);
      mask.at(x, y) = on ? nonzero() : 0;
    }
  }
  return mask;
}

// The destination layout for a source layout: other padding and direction.
Layout Other(Layout l, int elemBytes) {
  l.padBytes += 3 * elemBytes;
  l.offsetBytes = (l.offsetBytes + 2 * elemBytes) % 24;
  l.bottomUp = !l.bottomUp;
  return l;
}

// Runs `call` on a random destination and checks it against the model:
// element (x, y, c) becomes want(x, y, c, old) and nothing else changes.
template <class T, class Call, class Want>
void Check(const Layout& dstLayout, uint32_t seed, Call call, Want want) {
  Image<T> dst(dstLayout);
  dst.FillRandom(seed);
  const Image<T> before = dst;
  ASSERT_EQ(call(dst), pelStatusOk);
  EXPECT_TRUE(peltest::RoiEquals(
      dst, [&](int x, int y, int c) { return want(x, y, c, before.at(x, y, c)); }));
  EXPECT_TRUE(peltest::OutsideRoiUnchanged(dst, before.bytes()));
}

TYPED_TEST(Masked, CopyAlphaKeepsDestinationAlpha) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 1;
    for (const Layout& l : peltest::AwkwardLayouts(4)) {
      Image<T> src(l);
      src.FillRandom(seed);
      auto want = [&](int x, int y, int c, T old) { return c < 3 ? src.at(x, y, c) : old; };
      Check<T>(Other(l, sizeof(T)), seed + 1, [&](Image<T>& d) {
        return Members<T>::copyAlpha(src.data(), src.step(), d.data(), d.step(), src.size());
      }, want);
      Check<T>(l, seed + 2, [&](Image<T>& d) {
        return Members<T>::copyAlphaL(src.data(), src.step(), d.data(), d.step(),
                                      PeliSizeL{l.width, l.height});
      }, want);
      seed += 3;
    }
  });
}

TYPED_TEST(Masked, CopyMaskedMatchesModel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 10;
    for (const auto& [channels, written, fn] : Members<T>::copyMasked) {
      for (const Layout& l : peltest::AwkwardLayouts(channels)) {
        Image<T> src(l);
        src.FillRandom(seed);
        const Image<Pel8u> mask = MakeMask(l, seed);
        Check<T>(Other(l, sizeof(T)), seed + 1, [&, fn = fn](Image<T>& d) {
          return fn(src.data(), src.step(), d.data(), d.step(), mask.data(), mask.step(),
                    src.size());
        }, [&, written = written](int x, int y, int c, T old) {
          return mask.at(x, y) != 0 && c < written ? src.at(x, y, c) : old;
        });
        seed += 2;
      }
    }
  });
}

TYPED_TEST(Masked, CopyChannelWritesOnlyThatChannel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 20;
    for (const auto& m : Members<T>::copyChannel) {
      for (const Layout& l : peltest::AwkwardLayouts(m.channels)) {
        Image<T> src(l);
        src.FillRandom(seed);
        for (int k = 0; k < m.channels; ++k) {
          Check<T>(Other(l, sizeof(T)), seed + k, [&](Image<T>& d) {
            return m.fn(src.data() + k, src.step(), d.data() + k, d.step(), src.size());
          }, [&](int x, int y, int c, T old) { return c == k ? src.at(x, y, c) : old; });
        }
        ++seed;
      }
    }
  });
}

TYPED_TEST(Masked, SetAlphaKeepsDestinationAlpha) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 30;
    for (const Layout& l : peltest::AwkwardLayouts(4)) {
      const auto v = RandomValues<T>(seed);
      Check<T>(l, seed, [&](Image<T>& d) {
        return Members<T>::setAlpha(v.data(), d.data(), d.step(), d.size());
      }, [&](int, int, int c, T old) { return c < 3 ? v[c] : old; });
      ++seed;
    }
  });
}

TYPED_TEST(Masked, SetMaskedMatchesModel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 40;
    for (const auto& [channels, written, fn] : Members<T>::setMasked) {
      for (const Layout& l : peltest::AwkwardLayouts(channels)) {
        const auto v = RandomValues<T>(seed);
        const Image<Pel8u> mask = MakeMask(l, seed);
        Check<T>(l, seed, [&, fn = fn](Image<T>& d) {
          return fn(v.data(), d.data(), d.step(), mask.data(), mask.step(), d.size());
        }, [&, written = written](int x, int y, int c, T old) {
          return mask.at(x, y) != 0 && c < written ? v[c] : old;
        });
        ++seed;
      }
    }
  });
}

TYPED_TEST(Masked, SetChannelWritesOnlyThatChannel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    uint32_t seed = 50;
    for (const auto& m : Members<T>::setChannel) {
      for (const Layout& l : peltest::AwkwardLayouts(m.channels)) {
        const T v = RandomValues<T>(seed)[0];
        for (int k = 0; k < m.channels; ++k) {
          Check<T>(l, seed + k, [&](Image<T>& d) {
            return m.fn(v, d.data() + k, d.step(), d.size());
          }, [&](int, int, int c, T old) { return c == k ? v : old; });
        }
        ++seed;
      }
    }
  });
}

// Images without gaps between rows are walked as one long row; the result
// must be the same as row by row.
TYPED_TEST(Masked, GaplessImagesAsOneRun) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    for (int w : {1, 5, 64, 333}) {
      const uint32_t seed = static_cast<uint32_t>(w);
      const Layout l4{w, 7, 4, 0, 0, false};
      Image<T> src4(l4);
      src4.FillRandom(seed);
      Check<T>(l4, seed + 1, [&](Image<T>& d) {
        return Members<T>::copyAlpha(src4.data(), src4.step(), d.data(), d.step(), d.size());
      }, [&](int x, int y, int c, T old) { return c < 3 ? src4.at(x, y, c) : old; });
      const auto v = RandomValues<T>(seed);
      Check<T>(l4, seed + 2, [&](Image<T>& d) {
        return Members<T>::setAlpha(v.data(), d.data(), d.step(), d.size());
      }, [&](int, int, int c, T old) { return c < 3 ? v[c] : old; });
      for (const auto& [channels, written, fn] : Members<T>::copyMasked) {
        const Layout l{w, 7, channels, 0, 0, false};
        Image<T> src(l);
        src.FillRandom(seed);
        Image<Pel8u> mask(Layout{w, 7, 1, 0, 0, false});
        mask.FillRandom(seed);  // random bytes: mostly nonzero, some zero
        for (int y = 0; y < 7; ++y) mask.at(w / 2, y) = 0;
        Check<T>(l, seed + 3, [&, fn = fn](Image<T>& d) {
          return fn(src.data(), src.step(), d.data(), d.step(), mask.data(), mask.step(),
                    d.size());
        }, [&, written = written](int x, int y, int c, T old) {
          return mask.at(x, y) != 0 && c < written ? src.at(x, y, c) : old;
        });
      }
      for (const auto& m : Members<T>::copyChannel) {
        const Layout l{w, 7, m.channels, 0, 0, false};
        Image<T> src(l);
        src.FillRandom(seed);
        const int k = m.channels - 1;  // the last channel: the run ends at its last lane
        Check<T>(l, seed + 4, [&](Image<T>& d) {
          return m.fn(src.data() + k, src.step(), d.data() + k, d.step(), d.size());
        }, [&](int x, int y, int c, T old) { return c == k ? src.at(x, y, c) : old; });
        Check<T>(l, seed + 5, [&](Image<T>& d) {
          return Members<T>::setChannel[m.channels - 3].fn(v[1], d.data() + k, d.step(),
                                                           d.size());
        }, [&](int, int, int c, T old) { return c == k ? v[1] : old; });
      }
    }
  });
}

// Above 1 MiB the alpha copy streams past the cache; the bytes written must
// be those of the cached path. The offsets give every head length before the
// first aligned vector, and destinations that are not pixel-aligned.
TYPED_TEST(Masked, CopyAlphaStreamingMatchesModel) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    const int width = static_cast<int>(1100000 / (4 * sizeof(T)) / 64) + 3;  // > 1 MiB in 64 rows
    uint32_t seed = 60;
    for (int offset : {0, 4, 12, 16, 20, 48}) {
      for (bool gapless : {true, false}) {
        const Layout l{width, 64, 4, gapless ? 0 : 8 * static_cast<int>(sizeof(T)), offset,
                       false};
        Image<T> src(Layout{width, 64, 4, l.padBytes, 0, false});
        src.FillRandom(seed);
        auto want = [&](int x, int y, int c, T old) { return c < 3 ? src.at(x, y, c) : old; };
        Check<T>(l, seed, [&](Image<T>& d) {
          return Members<T>::copyAlpha(src.data(), src.step(), d.data(), d.step(), d.size());
        }, want);
        Check<T>(l, seed + 1, [&](Image<T>& d) {
          return Members<T>::copyAlphaL(src.data(), src.step(), d.data(), d.step(),
                                        PeliSizeL{width, 64});
        }, want);
        seed += 2;
      }
    }
  });
}

// The alpha fill streams when it covers at least the largest cache; the
// image is made just larger than that (when the cache size is known and the
// image stays reasonable) and checked byte for byte against the model.
TYPED_TEST(Masked, SetAlphaPastCacheSizeMatchesModel) {
  using T = TypeParam;
  int cacheBytes = 0;
  if (pelGetMaxCacheSizeB(&cacheBytes) != 0 || cacheBytes > (64 << 20)) {
    GTEST_SKIP() << "cache size unknown or too large for a test image";
  }
  const int height = 256;
  const int width = static_cast<int>((static_cast<int64_t>(cacheBytes) + (1 << 20)) /
                                     (4 * sizeof(T)) / height) + 1;
  const auto v = RandomValues<T>(7);
  for (int offset : {0, 4, 24}) {
    Image<T> dst(Layout{width, height, 4, offset % 8 == 0 ? 0 : 4 * static_cast<int>(sizeof(T)),
                        offset, false});
    dst.FillRandom(9);
    Image<T> want = dst;
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x)
        for (int c = 0; c < 3; ++c) want.at(x, y, c) = v[c];
    peltest::ForEachCpuLevel([&] {
      Image<T> d = dst;
      ASSERT_EQ(Members<T>::setAlpha(v.data(), d.data(), d.step(), d.size()), pelStatusOk);
      EXPECT_TRUE(d.bytes() == want.bytes()) << "offset " << offset;
    });
  }
}

// Where source and destination are the same image, a masked copy changes
// nothing.
TYPED_TEST(Masked, CopyMaskedInPlaceChangesNothing) {
  using T = TypeParam;
  peltest::ForEachCpuLevel([] {
    for (const auto& m : Members<T>::copyMasked) {
      const Layout l{129, 3, m.channels, 8, 4, false};
      Image<T> img(l);
      img.FillRandom(70);
      const auto before = img.bytes();
      const Image<Pel8u> mask = MakeMask(l, 71);
      ASSERT_EQ(m.fn(img.data(), img.step(), img.data(), img.step(), mask.data(), mask.step(),
                     img.size()),
                pelStatusOk);
      EXPECT_TRUE(img.bytes() == before);
    }
  });
}

TYPED_TEST(Masked, PointersThenSizesAreChecked) {
  using T = TypeParam;
  using M = Members<T>;
  Image<T> src(Layout{9, 4, 4, 4, 0, false});
  Image<T> dst(Layout{9, 4, 4, 4, 0, false});
  Image<Pel8u> mask(Layout{9, 4, 1, 3, 0, false});
  mask.FillRandom(1);
  const auto v = RandomValues<T>(1);
  T* value = const_cast<T*>(v.data());
  const std::vector<const std::vector<uint8_t>*> watched = {&dst.bytes()};
  using P2 = std::array<void*, 2>;
  using P3 = std::array<void*, 3>;
  auto S = [](void* p) { return static_cast<const T*>(p); };
  auto D = [](void* p) { return static_cast<T*>(p); };
  auto K = [](void* p) { return static_cast<const Pel8u*>(p); };
  peltest::ExpectPointerThenSizeChecks<2>({src.data(), dst.data()}, src.size(),
      [&](const P2& p, PeliSize s) {
        return M::copyAlpha(S(p[0]), src.step(), D(p[1]), dst.step(), s);
      }, watched);
  peltest::ExpectPointerThenSizeChecks<2>({src.data(), dst.data()}, src.size(),
      [&](const P2& p, PeliSize s) {
        return M::copyAlphaL(S(p[0]), src.step(), D(p[1]), dst.step(),
                             PeliSizeL{s.width, s.height});
      }, watched);
  for (const auto& m : M::copyMasked) {
    peltest::ExpectPointerThenSizeChecks<3>({src.data(), dst.data(), mask.data()}, src.size(),
        [&](const P3& p, PeliSize s) {
          return m.fn(S(p[0]), src.step(), D(p[1]), dst.step(), K(p[2]), mask.step(), s);
        }, watched);
  }
  for (const auto& m : M::copyChannel) {
    peltest::ExpectPointerThenSizeChecks<2>({src.data(), dst.data()}, src.size(),
        [&](const P2& p, PeliSize s) {
          return m.fn(S(p[0]), src.step(), D(p[1]), dst.step(), s);
        }, watched);
  }
  peltest::ExpectPointerThenSizeChecks<2>({value, dst.data()}, dst.size(),
      [&](const P2& p, PeliSize s) { return M::setAlpha(S(p[0]), D(p[1]), dst.step(), s); },
      watched);
  peltest::ExpectPointerThenSizeChecks<2>({dst.data(), mask.data()}, dst.size(),
      [&](const P2& p, PeliSize s) {
        return M::setMaskedC1(v[0], D(p[0]), dst.step(), K(p[1]), mask.step(), s);
      }, watched);
  for (const auto& m : M::setMasked) {
    if (m.channels == 1) continue;  // no value pointer: done above
    peltest::ExpectPointerThenSizeChecks<3>({value, dst.data(), mask.data()}, dst.size(),
        [&](const P3& p, PeliSize s) {
          return m.fn(S(p[0]), D(p[1]), dst.step(), K(p[2]), mask.step(), s);
        }, watched);
  }
  for (const auto& m : M::setChannel) {
    peltest::ExpectPointerThenSizeChecks<1>({dst.data()}, dst.size(),
        [&](const std::array<void*, 1>& p, PeliSize s) {
          return m.fn(v[0], D(p[0]), dst.step(), s);
        }, watched);
  }
}

// Mask bytes of 0x80 (the sign bit alone) select their pixels like any other
// nonzero byte.
TEST(MaskedEdge, MaskBytes0x80Copy) {
  peltest::ForEachCpuLevel([] {
    for (int width : {5, 16, 40, 70}) {
      std::vector<Pel8u> src(width), dst(width, 0xEE), mask(width);
      for (int x = 0; x < width; ++x) {
        src[x] = static_cast<Pel8u>(x + 1);
        mask[x] = x % 3 == 0 ? 0 : 0x80;
      }
      ASSERT_EQ(peliCopy_8u_C1MR(src.data(), width, dst.data(), width, mask.data(), width,
                                 PeliSize{width, 1}),
                pelStatusOk);
      for (int x = 0; x < width; ++x) {
        EXPECT_EQ(dst[x], x % 3 == 0 ? 0xEE : x + 1) << "width " << width << " x " << x;
      }
    }
  });
}

// Byte 3 of every destination pixel stays as it was, whatever the source.
TEST(MaskedEdge, Copy8uAC4NeverChangesByte3) {
  peltest::ForEachCpuLevel([] {
    for (int width : {1, 3, 4, 17, 100}) {
      std::vector<Pel8u> src(width * 4), dst(width * 4 + 8);
      for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Pel8u>(0x10 + i);
      for (size_t i = 0; i < dst.size(); ++i) dst[i] = static_cast<Pel8u>(0xF0 ^ i);
      const auto before = dst;
      ASSERT_EQ(peliCopy_8u_AC4R(src.data(), width * 4, dst.data(), width * 4,
                                 PeliSize{width, 1}),
                pelStatusOk);
      for (size_t i = 0; i < dst.size(); ++i) {
        const bool color = i < src.size() && i % 4 != 3;
        EXPECT_EQ(dst[i], color ? src[i] : before[i]) << "width " << width << " byte " << i;
      }
    }
  });
}

}  // namespace
