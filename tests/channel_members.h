// The channel copies of each element type as uniform test cases: the images
// a call takes (its sides), where each written element comes from, and the
// call itself. One element model then checks every member.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "peli.h"
#include "support/image.h"
#include "support/signatures.h"

namespace peltest {

template <class T>
using ChannelFn = CopyFn<T>;

template <class T>
struct ChannelMembers;
#define PEL_CHANNEL_MEMBERS(type)                                                       \
  template <>                                                                           \
  struct ChannelMembers<Pel##type> {                                                    \
    using T = Pel##type;                                                                \
    static constexpr std::array<std::pair<int, ChannelFn<T>>, 2> extract = {            \
        {{3, peliCopy_##type##_C3C1R}, {4, peliCopy_##type##_C4C1R}}};                  \
    static constexpr std::array<std::pair<int, ChannelFn<T>>, 2> insert = {             \
        {{3, peliCopy_##type##_C1C3R}, {4, peliCopy_##type##_C1C4R}}};                  \
    static constexpr std::array<std::pair<int, SplitFn<T>>, 2> split = {                \
        {{3, peliCopy_##type##_C3P3R}, {4, peliCopy_##type##_C4P4R}}};                  \
    static constexpr std::array<std::pair<int, MergeFn<T>>, 2> merge = {                \
        {{3, peliCopy_##type##_P3C3R}, {4, peliCopy_##type##_P4C4R}}};                  \
    static constexpr ChannelFn<T> dropAlpha = peliCopy_##type##_AC4C3R;                 \
    static constexpr ChannelFn<T> addAlpha = peliCopy_##type##_C3AC4R;                  \
  };
PEL_CHANNEL_MEMBERS(8u)
PEL_CHANNEL_MEMBERS(16s)
PEL_CHANNEL_MEMBERS(16u)
PEL_CHANNEL_MEMBERS(32s)
PEL_CHANNEL_MEMBERS(32f)
#undef PEL_CHANNEL_MEMBERS

using ChannelTypes = DataMoveTypes;

// One image of a call.
struct Side {
  int channels;
  bool written;
  bool plane = false;    // one of the planes, which share one step
  int first = 0;         // the call's pointer addresses this channel of the first pixel
  bool oneLane = false;  // only that channel of each pixel is touched
};

// Where a written element comes from: channel `channel` of the same pixel
// of side `side`, or (side < 0) its own prior value.
struct From {
  int side;
  int channel;
};
inline constexpr From kKeep{-1, 0};

template <class T>
struct ChannelOp {
  std::string name;
  std::vector<Side> sides;
  std::function<From(int side, int channel)> from;
  // p[s] addresses side s as Side::first says; a planar call gets a NULL
  // plane array when nullArray is set.
  std::function<PelStatus(const std::vector<T*>& p, const std::vector<int>& steps, PeliSize roi,
                          bool nullArray)>
      call;

  bool planar() const {
    for (const Side& s : sides)
      if (s.plane) return true;
    return false;
  }
  // Lanes a row of n pixels spans on side s, from the side's pointer.
  size_t RowLanes(int s, size_t n) const {
    const Side& side = sides[s];
    return side.oneLane ? (n - 1) * side.channels + 1 : n * side.channels;
  }
};

template <class T>
std::vector<ChannelOp<T>> ChannelOps() {
  using M = ChannelMembers<T>;
  using P = std::vector<T*>;
  using S = std::vector<int>;
  const auto plain = [](ChannelFn<T> fn) {
    return [fn](const P& p, const S& s, PeliSize roi, bool) { return fn(p[0], s[0], p[1], s[1], roi); };
  };
  std::vector<ChannelOp<T>> ops;
  for (auto [C, fn] : M::extract) {
    for (int k = 0; k < C; ++k) {
      ops.push_back({"C" + std::to_string(C) + "C1R channel " + std::to_string(k),
                     {{C, false, false, k, true}, {1, true}},
                     [k = k](int, int) { return From{0, k}; }, plain(fn)});
    }
  }
  for (auto [C, fn] : M::insert) {
    for (int k = 0; k < C; ++k) {
      ops.push_back({"C1C" + std::to_string(C) + "R channel " + std::to_string(k),
                     {{1, false}, {C, true, false, k, true}},
                     [k = k](int, int c) { return c == k ? From{0, 0} : kKeep; }, plain(fn)});
    }
  }
  ops.push_back({"AC4C3R", {{4, false}, {3, true}}, [](int, int c) { return From{0, c}; },
                 plain(M::dropAlpha)});
  ops.push_back({"C3AC4R", {{3, false}, {4, true}},
                 [](int, int c) { return c < 3 ? From{0, c} : kKeep; }, plain(M::addAlpha)});
  for (auto [C, fn] : M::split) {
    std::vector<Side> sides{{C, false}};
    for (int c = 0; c < C; ++c) sides.push_back({1, true, true});
    ops.push_back({"C" + std::to_string(C) + "P" + std::to_string(C) + "R", sides,
                   [](int s, int) { return From{0, s - 1}; },
                   [C = C, fn = fn](const P& p, const S& s, PeliSize roi, bool nullArray) {
                     T* planes[4];
                     for (int c = 0; c < C; ++c) planes[c] = p[1 + c];
                     return fn(p[0], s[0], nullArray ? nullptr : planes, s[1], roi);
                   }});
  }
  for (auto [C, fn] : M::merge) {
    std::vector<Side> sides;
    for (int c = 0; c < C; ++c) sides.push_back({1, false, true});
    sides.push_back({C, true});
    ops.push_back({"P" + std::to_string(C) + "C" + std::to_string(C) + "R", sides,
                   [](int, int c) { return From{c, 0}; },
                   [C = C, fn = fn](const P& p, const S& s, PeliSize roi, bool nullArray) {
                     const T* planes[4];
                     for (int c = 0; c < C; ++c) planes[c] = p[c];
                     return fn(nullArray ? nullptr : planes, s[0], p[C], s[C], roi);
                   }});
  }
  if constexpr (std::is_same_v<T, Pel8u>) {
    ops.push_back({"Dup C1C3R", {{1, false}, {3, true}}, [](int, int) { return From{0, 0}; },
                   plain(peliDup_8u_C1C3R)});
    ops.push_back({"Dup C1C4R", {{1, false}, {4, true}}, [](int, int) { return From{0, 0}; },
                   plain(peliDup_8u_C1C4R)});
  }
  return ops;
}

template <class T>
ChannelOp<T> FindOp(const std::string& name) {
  for (auto& op : ChannelOps<T>())
    if (op.name == name) return op;
  ADD_FAILURE() << "no member " << name;
  return {};
}

// Random bits in every ROI element. A float whose bits form a NaN is made a
// quiet NaN, which passes through any float register unchanged, so a
// comparison sees exactly the bits that were moved.
template <class T>
void FillBits(Image<T>& img, uint32_t seed) {
  std::mt19937 rng(seed);
  const Layout& l = img.layout();
  for (int y = 0; y < l.height; ++y)
    for (int x = 0; x < l.width; ++x)
      for (int c = 0; c < l.channels; ++c) {
        uint32_t bits = rng();
        if constexpr (std::is_floating_point_v<T>) {
          if ((bits & 0x7F800000u) == 0x7F800000u) bits |= 0x00400000u;
        }
        T v;
        std::memcpy(&v, &bits, sizeof v);
        img.at(x, y, c) = v;
      }
}

// Layouts for the sides of `op` derived from one shape: the first side (and
// any plane that is a source with it) as given, the others with other
// padding, offset and row direction; each plane at its own offset.
template <class T>
std::vector<Layout> LayoutsFor(const ChannelOp<T>& op, const Layout& l) {
  constexpr int e = static_cast<int>(sizeof(T));
  std::vector<Layout> out;
  int plane = 0;
  for (size_t s = 0; s < op.sides.size(); ++s) {
    const Side& side = op.sides[s];
    Layout d = l;
    if (s > 0 && !(side.plane && op.sides[0].plane)) {
      d.padBytes = l.padBytes + 3 * e;
      d.offsetBytes = l.offsetBytes + 5 * e;
      d.bottomUp = !l.bottomUp;
    }
    d.channels = side.channels;
    if (side.plane) d.offsetBytes += 4 * e * plane++;
    out.push_back(d);
  }
  return out;
}

// Runs op on random images of the given layouts and checks every written
// element against the model, every byte outside the written ROIs, and that
// the sources are unchanged.
template <class T>
void CheckOp(const ChannelOp<T>& op, const std::vector<Layout>& layouts, uint32_t seed) {
  SCOPED_TRACE(op.name + ", " + layouts[0].Describe());
  std::vector<Image<T>> img;
  for (size_t s = 0; s < layouts.size(); ++s) {
    img.emplace_back(layouts[s]);
    FillBits(img[s], seed + static_cast<uint32_t>(s));
  }
  const std::vector<Image<T>> prior = img;
  std::vector<T*> p;
  std::vector<int> steps;
  for (size_t s = 0; s < img.size(); ++s) {
    p.push_back(&img[s].at(0, 0, op.sides[s].first));
    steps.push_back(img[s].step());
  }
  ASSERT_EQ(op.call(p, steps, img[0].size(), false), pelStatusOk);
  for (size_t s = 0; s < img.size(); ++s) {
    if (!op.sides[s].written) {
      EXPECT_TRUE(img[s].bytes() == prior[s].bytes()) << "source " << s << " was written";
      continue;
    }
    EXPECT_TRUE(RoiEquals(img[s], [&](int x, int y, int c) {
      const From f = op.from(static_cast<int>(s), c);
      return f.side < 0 ? prior[s].at(x, y, c) : prior[f.side].at(x, y, f.channel);
    })) << "side " << s;
    EXPECT_TRUE(OutsideRoiUnchanged(img[s], prior[s].bytes())) << "side " << s;
  }
}

}  // namespace peltest
