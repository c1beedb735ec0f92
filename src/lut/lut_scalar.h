// The curves of the lookup-table family evaluated one value at a time, and
// the scalar row loops. This is the reference: the tables the walkers build
// and the vector rows give exactly what Evaluate gives.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/saturate.h"
#include "peli.h"

namespace pel::lut {

enum class Kind { kStep, kLinear, kCubic };

// One channel's curve: n levels and the values that go with them.
template <class V>
struct Curve {
  const V* values = nullptr;
  const V* levels = nullptr;
  int n = 0;
};

// Levels and values are 32-bit integers for the integer images.
template <class T>
using ValueOf = std::conditional_t<std::is_floating_point_v<T>, Pel32f, Pel32s>;

// Per-call state of an 8-bit row: a 256-entry table per channel and the same
// tables cut into the sixteen 16-byte pieces that byte shuffles look up, each
// piece stored as the XOR with the piece before it in its half (0..127 or
// 128..255), so that XOR-ing the lookups of a half telescopes to one piece.
struct Lut8Job {
  alignas(64) uint8_t table[4][256];
  alignas(64) uint8_t pieces[4][16][16];
  int channels = 1;
  int worked = 1;  // channels looked up; an AC4 row keeps its fourth
};

namespace scalar {

// Written so that a NaN is never inside.
template <class V, class X>
bool Inside(const Curve<V>& c, X x) {
  return c.levels[0] <= x && x < c.levels[c.n - 1];
}

// The interval of an inside x. Halving keeps level[lo] <= x < level[hi], so
// the answer is an interval that holds x whatever the order of the levels;
// for increasing levels it is the only one.
template <class V, class X>
int Interval(const Curve<V>& c, X x) {
  int lo = 0, hi = c.n - 1;
  while (hi - lo > 1) {
    const int mid = lo + (hi - lo) / 2;
    if (c.levels[mid] <= x) {
      lo = mid;
    } else {
      hi = mid;
    }
  }
  return lo;
}

// A result in double to the element type: to nearest with ties to even,
// saturated. NaN cannot arise from integer levels; it would give the lowest
// value rather than undefined behaviour.
template <class T>
T Narrow(double r) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(r);
  } else {
    constexpr double lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    r = RoundHalfEven(r);
    if (r >= hi) return std::numeric_limits<T>::max();
    return r > lo ? static_cast<T>(r) : std::numeric_limits<T>::min();
  }
}

// The curve's value at x in interval k.
template <class T, Kind K, class V>
T At(const Curve<V>& c, int k, double x) {
  if constexpr (K == Kind::kStep) {
    if constexpr (std::is_floating_point_v<T>) {
      return c.values[k];
    } else {
      return Saturate<T>(c.values[k]);
    }
  } else if constexpr (K == Kind::kLinear) {
    const double v0 = c.values[k], v1 = c.values[k + 1];
    const double l0 = c.levels[k], l1 = c.levels[k + 1];
    return Narrow<T>(v0 + (v1 - v0) * (x - l0) / (l1 - l0));
  } else {
    // Points k-1 and k+2 take part where they exist and their levels differ
    // from their neighbours' (level[k] < level[k+1] always holds), so no two
    // points share a level and no denominator is zero.
    const int first = k > 0 && c.levels[k - 1] < c.levels[k] ? k - 1 : k;
    const int last = k + 2 < c.n && c.levels[k + 2] > c.levels[k + 1] ? k + 2 : k + 1;
    double sum = 0.0;
    for (int i = first; i <= last; ++i) {
      double num = 1.0, den = 1.0;
      for (int j = first; j <= last; ++j) {
        if (j == i) continue;
        num *= x - static_cast<double>(c.levels[j]);
        den *= static_cast<double>(c.levels[i]) - static_cast<double>(c.levels[j]);
      }
      // num / den first: exactly 1 and 0 at the points, so the curve passes
      // through the values there.
      sum += static_cast<double>(c.values[i]) * (num / den);
    }
    return Narrow<T>(sum);
  }
}

template <class T, Kind K, class V>
T Evaluate(const Curve<V>& c, T x) {
  if (!Inside(c, x)) return x;
  return At<T, K>(c, Interval(c, x), static_cast<double>(x));
}

template <class V>
bool Nondecreasing(const Curve<V>& c) {
  for (int i = 1; i < c.n; ++i)
    if (!(c.levels[i - 1] <= c.levels[i])) return false;
  return true;
}

// table[i] = Evaluate(lo + i) for i < count. For ordered levels the interval
// is found once and then followed as x grows, which gives the same interval
// as the search; other levels are searched value by value.
template <class T, Kind K>
void FillTable(const Curve<Pel32s>& c, int lo, int count, T* table) {
  if (!Nondecreasing(c)) {
    for (int i = 0; i < count; ++i) table[i] = Evaluate<T, K>(c, static_cast<T>(lo + i));
    return;
  }
  int k = -1;
  for (int i = 0; i < count; ++i) {
    const int x = lo + i;
    if (!Inside(c, x)) {
      table[i] = static_cast<T>(x);
      continue;
    }
    if (k < 0) {
      k = Interval(c, x);
    } else {
      while (c.levels[k + 1] <= x) ++k;
    }
    table[i] = At<T, K>(c, k, static_cast<double>(x));
  }
}

// dst = f(channel, src) for the first W of every C elements; the others are
// not touched.
template <int C, int W, class S, class D, class F>
void MapPixels(const S* src, D* dst, size_t pixels, F&& f) {
  for (size_t x = 0; x < pixels; ++x, src += C, dst += C)
    for (int c = 0; c < W; ++c) dst[c] = f(c, src[c]);
}

// The reference of the vector 8-bit rows: pixels [from, to).
inline void LookupPixels8(const Lut8Job& j, const uint8_t* src, uint8_t* dst, size_t from, size_t to) {
  const size_t C = static_cast<size_t>(j.channels);
  for (size_t x = from; x < to; ++x)
    for (int c = 0; c < j.worked; ++c) dst[x * C + c] = j.table[c][src[x * C + c]];
}

// The telescoped pieces of Lut8Job, from its tables.
inline void CutPieces(Lut8Job& j) {
  for (int c = 0; c < j.worked; ++c)
    for (int h = 0; h < 16; ++h)
      for (int i = 0; i < 16; ++i)
        j.pieces[c][h][i] = static_cast<uint8_t>(j.table[c][16 * h + i] ^ (h % 8 ? j.table[c][16 * h - 16 + i] : 0));
}

}  // namespace scalar
}  // namespace pel::lut
