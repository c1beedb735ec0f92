// Lookup tables and palettes as rows. Each channel's levels are drawn once
// per row, unevenly spaced; images are drawn half on the levels and their
// neighbours (so every boundary case turns up: on a level, just below the
// first, at and above the last) and half anywhere in the type's range.
// Values run past the type's range, so that results saturate.
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

constexpr int kAC4 = -4;  // layout: four channels, the fourth left alone
int ChannelsOf(int layout) { return layout == kAC4 ? 4 : layout; }
int WorkedOf(int layout) { return layout == kAC4 ? 3 : layout; }

enum Kind { kStep, kLinear, kCubic };

template <class T>
using ValueOf = std::conditional_t<std::is_floating_point_v<T>, Pel32f, Pel32s>;

// ---- The model --------------------------------------------------------------

template <class T>
T Narrow(double r) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(r);
  } else {
    r = std::nearbyint(r);
    return static_cast<T>(std::clamp<double>(r, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
  }
}

// The curve through (level[i], value[i]) at x: a plain scan for the interval;
// the cubic's points are those of k-1..k+2 that exist.
template <class T, class V>
T Curve(int kind, const V* values, const V* levels, int n, T x) {
  int k = 0;
  while (k + 1 < n && !(levels[k] <= x && x < levels[k + 1])) ++k;
  if (k + 1 == n) return x;
  const double dx = x;
  if (kind == kStep) return std::is_floating_point_v<T> ? T(values[k]) : Narrow<T>(values[k]);
  if (kind == kLinear) {
    return Narrow<T>(values[k] + (double(values[k + 1]) - values[k]) * (dx - levels[k]) / (double(levels[k + 1]) - levels[k]));
  }
  double sum = 0.0;
  for (int i = std::max(k - 1, 0); i <= std::min(k + 2, n - 1); ++i) {
    double num = 1.0, den = 1.0;
    for (int j = std::max(k - 1, 0); j <= std::min(k + 2, n - 1); ++j) {
      if (j == i) continue;
      num *= dx - levels[j];
      den *= double(levels[i]) - levels[j];
    }
    sum += values[i] * (num / den);
  }
  return Narrow<T>(sum);
}

// ---- Levels and images -----------------------------------------------------------

struct LevelSet {
  int n;
  double lo, hi;
};

// 0: inside the type's range, 1: past both ends, 2: a narrow range (the
// 16-bit images then take the table path on most shapes), 3: wholly outside
// the type's range (every value copied).
template <class T>
LevelSet LevelsOf(int set) {
  if constexpr (std::is_same_v<T, Pel8u>) {
    const LevelSet s[] = {{9, 3, 250}, {5, -20, 300}, {2, 100, 101}, {3, 256, 400}};
    return s[set];
  } else if constexpr (std::is_same_v<T, Pel16u>) {
    const LevelSet s[] = {{12, 1000, 60000}, {20, -5, 70000}, {40, 30000, 30300}, {3, -900, -1}};
    return s[set];
  } else if constexpr (std::is_same_v<T, Pel16s>) {
    const LevelSet s[] = {{12, -30000, 30000}, {20, -40000, 40000}, {40, -150, 150}, {3, 32768, 40000}};
    return s[set];
  } else {
    const LevelSet s[] = {{12, -500, 500}, {20, -2000, 2000}, {3, 0.25, 0.75}, {3, 1e30, 2e30}};
    return s[set];
  }
}

// n increasing levels from lo to hi, both included, unevenly spaced.
template <class V>
std::vector<V> DrawLevels(LevelSet s, uint32_t seed) {
  std::mt19937 rng(seed);
  std::vector<V> out{V(s.lo), V(s.hi)};
  while (int(out.size()) < s.n) {
    const V v = V(std::uniform_real_distribution<double>(s.lo, s.hi)(rng));
    if (std::find(out.begin(), out.end(), v) == out.end()) out.push_back(v);
  }
  std::sort(out.begin(), out.end());
  return out;
}

// Half the elements on a level or next to one, half anywhere.
template <class T, class V>
Fill NearLevels(std::vector<std::vector<V>> levels, double lo, double hi) {
  return [=](AnyView& v, std::mt19937& rng) {
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c) {
          if (!v.image().Has(x, y, c)) continue;
          const std::vector<V>& l = levels[std::min<size_t>(c, levels.size() - 1)];
          double e = std::uniform_real_distribution<double>(lo, hi)(rng);
          if (rng() % 2) {
            const double at = l[rng() % l.size()];
            const int side = int(rng() % 3) - 1;
            e = !std::is_floating_point_v<T> ? at + side : side == 0 ? at : std::nextafter(float(at), side * INFINITY);
          } else if (std::is_floating_point_v<T> && rng() % 16 == 0) {
            e = NAN;
          }
          v.at<T>(x, y, c) = std::is_floating_point_v<T> ? T(e) : T(std::clamp(std::floor(e), lo, hi));
        }
  };
}

template <class V>
Fill Fixed(std::vector<V> values) {
  return [=](AnyView& v, std::mt19937&) {
    for (size_t i = 0; i < values.size(); ++i) v.at<V>(int(i), 0) = values[i];
  };
}

template <class T>
Fill Values() {
  if constexpr (std::is_same_v<T, Pel8u>) return FillRange(-50, 300);
  else if constexpr (std::is_same_v<T, Pel16u>) return FillRange(-3000, 68000);
  else if constexpr (std::is_same_v<T, Pel16s>) return FillRange(-35000, 35000);
  else return FillRange(-1e4, 1e4);
}

template <class E>
const E** Array(E* const* p) {
  return const_cast<const E**>(reinterpret_cast<const E* const*>(p));
}

// Per-channel arrays of a call: argument `first`, then one every `stride`.
template <class E>
const E** Arrays(Call& c, int worked, int first, int stride) {
  if (worked == 3) return Array(c.planes<E>({first, first + stride, first + 2 * stride}));
  return Array(c.planes<E>({first, first + stride, first + 2 * stride, first + 3 * stride}));
}

Row MakeRow(const char* name, std::string variant, std::vector<Arg> args) {
  Row r;
  r.name = name;
  r.variant = std::move(variant);
  r.args = std::move(args);
  r.order = {Check::Pointers, Check::Sizes, Check::Steps};
  return r;
}

// The images of a row: the source (or the in-place image) and the destination.
template <class S, class D>
std::vector<Arg> Images(int layout, bool inPlace, Fill fill) {
  std::vector<Arg> args{inPlace ? InOut<S>(ChannelsOf(layout)) : In<S>(ChannelsOf(layout))};
  if (!inPlace) args.push_back(Out<D>(ChannelsOf(layout)));
  for (Arg& a : args) a.step = StepRule::Positive;
  args[0].fill = std::move(fill);
  return args;
}

// ---- LUT, LUT_Linear, LUT_Cubic --------------------------------------------------

// set: the level set of every channel (C1), or -1: set c % 3 for channel c.
// badCount: a count below 2 for the last channel instead.
template <class T, int L, int K, bool kInPlace, class Fn>
void AddLut(std::vector<Row>& rows, const char* name, Fn fn, int set, int badCount = 2) {
  using V = ValueOf<T>;
  const int W = WorkedOf(L), p0 = kInPlace ? 1 : 2;
  std::vector<std::vector<V>> levels;
  std::vector<int> counts;
  for (int c = 0; c < W; ++c) {
    levels.push_back(DrawLevels<V>(LevelsOf<T>(set < 0 ? c % 3 : set), 17u * uint32_t(set + 2) + uint32_t(c)));
    counts.push_back(c == W - 1 && badCount < 2 ? badCount : int(levels[c].size()));
  }
  const double lo = std::is_floating_point_v<T> ? -3000.0 : double(std::numeric_limits<T>::lowest());
  const double hi = std::is_floating_point_v<T> ? 3000.0 : double(std::numeric_limits<T>::max());
  std::vector<Arg> args = Images<T, T>(L, kInPlace, NearLevels<T, V>(levels, lo, hi));
  for (int c = 0; c < W; ++c) {
    args.push_back(Consts<V>(std::max(counts[c] - (K == kStep ? 1 : 0), 1)));
    args.back().fill = Values<T>();
    args.push_back(Consts<V>(int(levels[c].size())));
    args.back().fill = Fixed(levels[c]);
  }
  if (L != 1) {
    args.push_back(Consts<int>(W));
    args.back().fill = Fixed(counts);
  }
  Row r = MakeRow(name, badCount < 2 ? "levels<2" : set < 0 ? "" : "set" + std::to_string(set), args);
  const int n1 = counts[0];
  r.call = [=](Call& c) {
    auto run = [&](auto values, auto levelArrays, auto count) {
      if constexpr (kInPlace) {
        return fn(c.p<T>(0), c.step(0), c.roi, values, levelArrays, count);
      } else {
        return fn(c.p<const T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, values, levelArrays, count);
      }
    };
    if constexpr (L == 1) {
      return run(c.p<const V>(p0), c.p<const V>(p0 + 1), n1);
    } else {
      return run(Arrays<V>(c, W, p0, 2), Arrays<V>(c, W, p0 + 1, 2), c.p<int>(p0 + 2 * W));
    }
  };
  r.model = [=](Model& m) {
    const int out = kInPlace ? 0 : 1;
    ForEachPixel(m.roi, [&](int x, int y) {
      for (int c = 0; c < W; ++c) {
        m.out<T>(out)(x, y, c) = Curve<T>(K, &m.in<V>(p0 + 2 * c)[0], &m.in<V>(p0 + 2 * c + 1)[0], counts[c],
                                          m.in<T>(0)(x, y, c));
      }
    });
    return pelStatusOk;
  };
  if (badCount < 2) {
    r.order.push_back(Check::Param);
    r.expect = pelStatusLutLevelsError;
  } else if (sizeof(T) == 2) {
    // Enough values for a table of the widest levels' range, and for tables
    // of the whole type.
    r.shapes = AwkwardLayouts(ChannelsOf(L));
    for (const Layout& l : FencedLayouts(ChannelsOf(L))) r.shapes.push_back(l);
    if (L == 1) r.shapes.push_back(Layout{260, 130, 1});
    r.shapes.push_back(Layout{300, 220 / W + 1, ChannelsOf(L)});
  }
  rows.push_back(std::move(r));
}

template <class T, int L, int K, bool kInPlace, class Fn>
void AddLutRows(std::vector<Row>& rows, const char* name, Fn fn) {
  if (L == 1 && !kInPlace) {
    for (int set = 0; set < 4; ++set) AddLut<T, L, K, kInPlace>(rows, name, fn, set);
  } else {
    AddLut<T, L, K, kInPlace>(rows, name, fn, L == 1 ? 0 : -1);
  }
  AddLut<T, L, K, kInPlace>(rows, name, fn, L == 1 ? 0 : -1, 2 - ChannelsOf(L));
}

// ---- Palettes ---------------------------------------------------------------------

template <class S, class D, int L, class Fn>
void AddPalette(std::vector<Row>& rows, const char* name, Fn fn) {
  const int W = WorkedOf(L), full = 8 * int(sizeof(S));
  // The one-channel rows take the widest mask; several 65,536-entry tables
  // would only slow the runner down.
  const int wide = L == 1 ? full : std::min(full, 11);
  for (int bits : {wide, 3, 0, full + 1}) {
    const bool bad = bits < 1 || bits > full;
    std::vector<Arg> args = Images<S, D>(L, false, FillBits());
    for (int c = 0; c < W; ++c) args.push_back(Consts<D>(bad ? 1 : 1 << bits));
    Row r = MakeRow(name, "bits" + std::to_string(bits), args);
    r.call = [=](Call& c) {
      if constexpr (L == 1) {
        return fn(c.p<const S>(0), c.step(0), c.p<D>(1), c.step(1), c.roi, c.p<const D>(2), bits);
      } else {
        return fn(c.p<const S>(0), c.step(0), c.p<D>(1), c.step(1), c.roi, Arrays<D>(c, W, 2, 1), bits);
      }
    };
    r.model = [=](Model& m) {
      ForEachPixel(m.roi, [&](int x, int y) {
        for (int c = 0; c < W; ++c) m.out<D>(1)(x, y, c) = m.in<D>(2 + c)[m.in<S>(0)(x, y, c) & ((1 << bits) - 1)];
      });
      return pelStatusOk;
    };
    if (bad) {
      r.order.push_back(Check::Param);
      r.expect = pelStatusOutOfRange;
    }
    rows.push_back(std::move(r));
  }
}

#define PEL_LUT_LAYOUTS(op, K, t, T)                                                   \
  AddLutRows<T, 1, K, false>(rows, PEL_NAMED(peli##op##_##t##_C1R));                   \
  AddLutRows<T, 1, K, true>(rows, PEL_NAMED(peli##op##_##t##_C1IR));                   \
  AddLutRows<T, 3, K, false>(rows, PEL_NAMED(peli##op##_##t##_C3R));                   \
  AddLutRows<T, 3, K, true>(rows, PEL_NAMED(peli##op##_##t##_C3IR));                   \
  AddLutRows<T, 4, K, false>(rows, PEL_NAMED(peli##op##_##t##_C4R));                   \
  AddLutRows<T, 4, K, true>(rows, PEL_NAMED(peli##op##_##t##_C4IR));                   \
  AddLutRows<T, kAC4, K, false>(rows, PEL_NAMED(peli##op##_##t##_AC4R));               \
  AddLutRows<T, kAC4, K, true>(rows, PEL_NAMED(peli##op##_##t##_AC4IR));
#define PEL_LUT_TYPES(op, K)            \
  PEL_LUT_LAYOUTS(op, K, 8u, Pel8u)     \
  PEL_LUT_LAYOUTS(op, K, 16u, Pel16u)   \
  PEL_LUT_LAYOUTS(op, K, 16s, Pel16s)   \
  PEL_LUT_LAYOUTS(op, K, 32f, Pel32f)

std::vector<Row> LutRows() {
  std::vector<Row> rows;
  PEL_LUT_TYPES(LUT, kStep)
  PEL_LUT_TYPES(LUT_Linear, kLinear)
  PEL_LUT_TYPES(LUT_Cubic, kCubic)
  AddPalette<Pel8u, Pel8u, 1>(rows, PEL_NAMED(peliLUTPalette_8u_C1R));
  AddPalette<Pel8u, Pel8u, 3>(rows, PEL_NAMED(peliLUTPalette_8u_C3R));
  AddPalette<Pel8u, Pel8u, 4>(rows, PEL_NAMED(peliLUTPalette_8u_C4R));
  AddPalette<Pel8u, Pel8u, kAC4>(rows, PEL_NAMED(peliLUTPalette_8u_AC4R));
  AddPalette<Pel16u, Pel16u, 1>(rows, PEL_NAMED(peliLUTPalette_16u_C1R));
  AddPalette<Pel16u, Pel16u, 3>(rows, PEL_NAMED(peliLUTPalette_16u_C3R));
  AddPalette<Pel16u, Pel16u, 4>(rows, PEL_NAMED(peliLUTPalette_16u_C4R));
  AddPalette<Pel16u, Pel16u, kAC4>(rows, PEL_NAMED(peliLUTPalette_16u_AC4R));
  AddPalette<Pel8u, Pel32u, 1>(rows, PEL_NAMED(peliLUTPalette_8u32u_C1R));
  AddPalette<Pel16u, Pel8u, 1>(rows, PEL_NAMED(peliLUTPalette_16u8u_C1R));
  AddPalette<Pel16u, Pel32u, 1>(rows, PEL_NAMED(peliLUTPalette_16u32u_C1R));
  return rows;
}

}  // namespace

PEL_ROWS(Lut, LutRows)
