// Scalar references of the conversion, threshold and compare family. They
// define the results: every vector kernel must give the same bytes, and the
// lowest dispatch level (PEL_CPU=scalar) runs exactly these.
//
// Floating-point rounding here never goes through the processor's rounding
// control or the C library's rint: on i386 those read the x87 control word,
// not the SSE one the vector kernels use. Each mode is spelled out instead.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "convert/layouts.h"
#include "core/saturate.h"

namespace pel::convert::scalar {

// To nearest, ties to even, in F's own precision (the rounding that the vector
// kernels' Round performs).
template <class F>
F RoundHalfEven(F v) {
  const F t = std::trunc(v);
  const F frac = std::fabs(v - t);  // exact
  if (frac > F(0.5) || (frac == F(0.5) && std::fmod(t, F(2)) != 0)) return t + std::copysign(F(1), v);
  return t;
}

// PelRoundMode: 0 toward zero, 1 to nearest with ties to even, anything else
// halves away from zero by adding 0.5 with v's sign in F's precision (that sum
// itself rounds, as the kernels' does) and truncating.
template <class F>
F RoundFloat(F v, int mode) {
  if (mode == 0) return std::trunc(v);
  if (mode == 1) return RoundHalfEven(v);
  return std::trunc(v + std::copysign(F(0.5), v));
}

// A float (or double) to integer type D. Types of up to 16 bits are clamped in
// F first, min(v, max) taking NaN to the maximum, and then rounded; 32-bit
// types are rounded and then saturated, NaN again giving the maximum. Both
// orders give the same integers, as the bounds are integers.
template <class D, class F>
D FloatToInt(F v, int mode) {
  static_assert(std::is_integral_v<D> && std::is_floating_point_v<F>);
  constexpr F lo = static_cast<F>(std::numeric_limits<D>::min());
  if constexpr (sizeof(D) <= 2) {
    constexpr F hi = static_cast<F>(std::numeric_limits<D>::max());
    F m = v < hi ? v : hi;
    m = m > lo ? m : lo;
    return static_cast<D>(RoundFloat(m, mode));
  } else {
    // One past the maximum, a power of two and so exact in F.
    constexpr F end = static_cast<F>(std::numeric_limits<D>::max() / 2 + 1) * F(2);
    const F r = RoundFloat(v, mode);
    if (!(r < end)) return std::numeric_limits<D>::max();
    if (r < lo) return std::numeric_limits<D>::min();
    return static_cast<D>(r);
  }
}

// v x 2^-sf rounded by PelRoundMode and saturated to D. Mode 1 is the shared
// ties-to-even rule; a negative scale factor shifts left, exactly.
template <class D>
D ScaleInteger(int64_t v, int sf, int mode) {
  if (sf <= 0 || mode == 1) return Saturate<D>(ScaleHalfEven(v, sf));
  if (sf >= 40) return 0;  // |v| < 2^33 for every source type
  const int64_t a = v < 0 ? -v : v;
  const int64_t q = mode == 0 ? a >> sf : (a + (int64_t{1} << (sf - 1))) >> sf;
  return Saturate<D>(v < 0 ? -q : q);
}

// The plain conversion of one element: exact widening, saturating narrowing.
template <class D, class S>
D Convert(S x) {
  if constexpr (std::is_floating_point_v<D>) {
    return static_cast<D>(x);
  } else {
    return Saturate<D>(static_cast<int64_t>(x));
  }
}

// What a row conversion does to each element: converted as it is, or, when
// `affine`, as x * mul + add in single precision (two roundings, no fused
// multiply-add); a float result for an integer type is rounded by `mode`.
struct ConvertJob {
  int layout = kC1;
  int mode = 1;
  bool affine = false;
  float mul = 1.0f;
  float add = 0.0f;
  bool stream = false;  // cache-bypassing stores: speed only
};

template <class S, class D>
D ConvertOne(S x, const ConvertJob& job) {
  if constexpr (std::is_same_v<S, float> || (std::is_same_v<D, float> && !std::is_same_v<S, int32_t>)) {
    float v = static_cast<float>(x);  // exact for the integer sources that come here
    if (job.affine) {
      v = v * job.mul;
      v = v + job.add;
    }
    if constexpr (std::is_same_v<D, float>) {
      return v;
    } else {
      return FloatToInt<D>(v, job.mode);
    }
  } else {
    return Convert<D>(x);
  }
}

// Elements [begin, end) of a row in the job's layout; AC4 skips every fourth.
template <class S, class D>
void ConvertElements(const ConvertJob& job, const S* src, D* dst, size_t begin, size_t end) {
  const bool alpha = HasAlpha(job.layout);
  for (size_t e = begin; e < end; ++e) {
    if (alpha && e % 4 == 3) continue;
    dst[e] = ConvertOne<S, D>(src[e], job);
  }
}

// Elements [begin, end) of one row, each worked channel through f(x); AC4
// skips the fourth. The general form of the rows above.
template <int L, class S, class D, class F>
void MapElements(const S* src, D* dst, size_t begin, size_t end, F&& f) {
  for (size_t e = begin; e < end; ++e) {
    if (HasAlpha(L) && e % 4 == 3) continue;
    dst[e] = f(src[e]);
  }
}

// ---- Threshold ------------------------------------------------------------------

// One operation covers every threshold variant: below tLT gives vLT, above
// tGT gives vGT, anything else (equal values, NaN) stays. kMax and kMin are
// the clamps, whose value is the threshold itself.
enum ThresholdOp { kMax, kMin, kReplace };

template <class T>
struct ThresholdJob {
  int op = kReplace;
  int layout = kC1;
  T tLT[4], vLT[4], tGT[4], vGT[4];  // per channel
  bool stream = false;
};

template <class T>
T ThresholdOne(T x, const ThresholdJob<T>& j, int c) {
  if (j.op != kMin && x < j.tLT[c]) return j.op == kMax ? j.tLT[c] : j.vLT[c];
  if (j.op != kMax && x > j.tGT[c]) return j.op == kMin ? j.tGT[c] : j.vGT[c];
  return x;
}

template <class T>
void ThresholdElements(const ThresholdJob<T>& j, const T* src, T* dst, size_t begin, size_t end) {
  const int C = ChannelsOf(j.layout);
  for (size_t e = begin; e < end; ++e) {
    const int c = static_cast<int>(e % C);
    if (HasAlpha(j.layout) && c == 3) continue;
    dst[e] = ThresholdOne(src[e], j, c);
  }
}

// ---- Compare ---------------------------------------------------------------------

// The comparison kernels that exist; greater comparisons swap the operands.
enum CompareOp { kLess, kLessEq, kEqual, kEqualEps };

template <class T>
struct CompareJob {
  int op = kLess;
  int layout = kC1;
  float eps = 0.0f;
  // An operand that is one pixel of constants (fixedA/fixedB) stays at its
  // first pixel instead of moving along the row.
  bool fixedA = false, fixedB = false;
};

template <class T>
bool CompareOne(T a, T b, int op, float eps) {
  switch (op) {
    case kLess: return a < b;
    case kLessEq: return a <= b;
    case kEqual: return a == b;
    default: return std::fabs(static_cast<float>(a) - static_cast<float>(b)) <= eps;
  }
}

template <class T>
void ComparePixels(const CompareJob<T>& j, const T* a, const T* b, uint8_t* dst, size_t begin, size_t end) {
  const int C = ChannelsOf(j.layout), worked = WorkedChannels(j.layout);
  for (size_t x = begin; x < end; ++x) {
    bool all = true;
    for (int c = 0; c < worked; ++c) {
      all = all && CompareOne(a[(j.fixedA ? 0 : x * C) + c], b[(j.fixedB ? 0 : x * C) + c], j.op, j.eps);
    }
    dst[x] = all ? 255 : 0;
  }
}

}  // namespace pel::convert::scalar
