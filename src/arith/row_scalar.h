// The scalar reference of the arithmetic kernels: plain loops that define
// the results. The vector kernels give the same bytes on every target, and
// finish their rows with these loops.
//
// Floating-point expressions are written one operation a statement and never
// contracted into fused multiply-adds, so that a compiler targeting FMA
// hardware still rounds after every step as the vector kernels do.
#pragma once

#include <xmmintrin.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "arith/arith.h"
#include "core/saturate.h"

#ifdef __clang__
#pragma clang fp contract(off)
#endif

namespace pel::arith::scalar {

inline float FloatFromBits(uint32_t b) {
  float f;
  std::memcpy(&f, &b, sizeof f);
  return f;
}
inline uint32_t BitsOf(float f) {
  uint32_t b;
  std::memcpy(&b, &f, sizeof b);
  return b;
}

inline constexpr uint32_t kQuietNaN = 0x7FC00000;     // the quotient of 0 by 0
inline constexpr uint32_t kDefaultNaN = 0xFFC00000;   // what x86 makes of sqrt(-1)

// Lane j of an operand that repeats every `period` lanes (0: never).
inline size_t At(size_t j, size_t period) { return period ? j % period : j; }

// Lane j of a row is the alpha lane of an AC4 pixel.
inline bool AlphaLane(bool alpha, size_t j) { return alpha && (j & 3) == 3; }

// ---- Two integer elements ---------------------------------------------------

// The exact value of op on src1 element a and src2 element b, scaled by
// 2^-s with ties to even and saturated. Unsigned differences stop at 0
// before scaling.
template <class T>
T IntBinary(Op op, T a, T b, int s) {
  int64_t v;
  if (op == kAdd) {
    v = int64_t{a} + b;
  } else if (op == kSub) {
    v = int64_t{b} - a;
    if (std::is_unsigned_v<T> && v < 0) v = 0;
  } else {
    v = int64_t{a} * b;
  }
  return Saturate<T>(ScaleHalfEven(v, s));
}

inline float FloatBinary(Op op, float a, float b) {
  if (op == kAdd) return a + b;
  if (op == kSub) return b - a;
  return a * b;
}

// ---- Division ------------------------------------------------------------------

// The reciprocal estimate r0 of d: an integer first guess refined twice by
// Newton's step, about 17 correct bits, the same bits on every processor.
// Magnitudes of 2^126 and above give 0 (their reciprocal would be
// subnormal), subnormal ones infinity, NaN gives d itself.
inline float RecipEstimate(float d) {
  const uint32_t bits = BitsOf(d);
  const uint32_t sign = bits & 0x80000000u;
  const uint32_t a = bits & 0x7FFFFFFFu;
  if (a > 0x7F800000u) return d;
  if (a >= 0x7E800000u) return FloatFromBits(sign);
  if (a < 0x00800000u) return FloatFromBits(sign | 0x7F800000u);
  const float af = FloatFromBits(a);
  float y = FloatFromBits(0x7EF311C3u - a);
  for (int k = 0; k < 2; ++k) {
    float t = af * y;
    t = 2.0f - t;
    y = y * t;
  }
  return FloatFromBits(BitsOf(y) | sign);
}

// n / d of the 32f groups without a zero divisor: one Newton step on r0,
// then a multiplication. An r0 of 0 counts d as 0.
inline float RecipDiv32f(float n, float d) {
  const float r0 = RecipEstimate(d);
  const float dd = r0 == 0.0f ? 0.0f : d;
  const float t = dd * r0;
  const float e = 1.0f - t;
  float u = e * r0;
  u = u + r0;
  u = u * e;
  const float r1 = r0 + u;
  return r1 * n;
}

// n / d of the 8u groups without a zero divisor.
inline float RecipQuotient8u(float n, float d) {
  const float r0 = RecipEstimate(d);
  const float t = d * r0;
  const float e = 1.0f - t;
  const float q0 = n * r0;
  float q1 = e * q0;
  q1 = q0 + q1;
  float ee = e * e;
  ee = ee * q1;
  return q1 + ee;
}

// What a zero divisor gives a 32f dividend.
inline float ZeroDivisor32f(float n) {
  if (n > 0.0f) return std::numeric_limits<float>::infinity();
  if (n < 0.0f) return -std::numeric_limits<float>::infinity();
  return FloatFromBits(kQuietNaN);
}

// The scale factor as the powers of two that multiply the divisor (s >= 0)
// or the dividend (s < 0). Beyond 64 every quotient of 16-bit elements has
// settled (to 0, or to saturation), so larger factors change nothing.
struct DivScale {
  float dividend = 1.0f;
  float divisor = 1.0f;
  explicit DivScale(int s) {
    const int c = s > 64 ? 64 : s < -64 ? -64 : s;
    if (c >= 0) divisor = std::ldexp(1.0f, c);
    else dividend = std::ldexp(1.0f, -c);
  }
};

// A float quotient to T: clamped to T's range, then rounded by mode (0
// toward zero, 1 to nearest even, 2 halves away from zero by adding 0.5
// with the sign in single precision).
template <class T>
T RoundQuotient(float q, int mode) {
  constexpr float lo = static_cast<float>(std::numeric_limits<T>::min());
  constexpr float hi = static_cast<float>(std::numeric_limits<T>::max());
  q = q < lo ? lo : q > hi ? hi : q;
  float r;
  if (mode == 0) {
    r = std::trunc(q);
  } else if (mode == 1) {
    r = static_cast<float>(RoundHalfEven(q));  // ties to even in every rounding mode
  } else {
    const float half = std::copysign(0.5f, q);
    r = std::trunc(q + half);
  }
  return static_cast<T>(static_cast<int32_t>(r));
}

template <class T>
T ZeroDivisorInt(T n) {
  if (n > 0) return std::numeric_limits<T>::max();
  if (n < 0) return std::numeric_limits<T>::min();
  return 0;
}

// ---- Rows ---------------------------------------------------------------------------

// p1, p2: the periods of the sources (0: none).
template <class T>
void IntBinaryRow(Op op, const T* s1, size_t p1, const T* s2, size_t p2, T* d, size_t n, int s,
                  bool alpha) {
  for (size_t j = 0; j < n; ++j) {
    if (!AlphaLane(alpha, j)) d[j] = IntBinary<T>(op, s1[At(j, p1)], s2[At(j, p2)], s);
  }
}

inline void FloatBinaryRow(Op op, const float* s1, size_t p1, const float* s2, size_t p2,
                           float* d, size_t n, bool alpha) {
  for (size_t j = 0; j < n; ++j) {
    if (!AlphaLane(alpha, j)) d[j] = FloatBinary(op, s1[At(j, p1)], s2[At(j, p2)]);
  }
}

// 32f division d = s2 / s1 of one row from its first lane: groups of eight,
// the rest in groups of four (lanes past the row count as divisor 1). True
// when a zero divisor, or a NaN divisor in a group with a zero, was met.
inline bool FloatDivRow(const float* s1, const float* s2, float* d, size_t n, bool alpha) {
  bool marked = false;
  auto group = [&](size_t g, size_t len) {
    const size_t end = g + len < n ? g + len : n;
    bool slow = false;
    for (size_t j = g; j < end; ++j) slow = slow || (!AlphaLane(alpha, j) && s1[j] == 0.0f);
    for (size_t j = g; j < end; ++j) {
      if (AlphaLane(alpha, j)) continue;
      const float dv = s1[j];
      const float nv = s2[j];
      if (!slow) {
        d[j] = RecipDiv32f(nv, dv);
      } else if (dv == 0.0f) {
        d[j] = ZeroDivisor32f(nv);
        marked = true;
      } else if (std::isnan(dv)) {
        d[j] = FloatFromBits(kQuietNaN);
        marked = true;
      } else {
        d[j] = nv / dv;
      }
    }
  };
  size_t g = 0;
  for (; g + 8 <= n; g += 8) group(g, 8);
  for (; g < n; g += 4) group(g, 4);
  return marked;
}

// Integer division d = s2 / s1 of one row from its first lane, scaled by
// 2^-s and rounded by mode. In 8u rows, groups of eight whose divisors are
// all nonzero use the reciprocal; the last n mod 8 lanes divide exactly.
// True when a divisor was 0.
template <class T>
bool IntDivRow(const T* s1, const T* s2, T* d, size_t n, int s, int mode, bool alpha) {
  const DivScale scale(s);
  bool marked = false;
  auto element = [&](size_t j, bool reciprocal) {
    if (AlphaLane(alpha, j)) return;
    const T dv = s1[j];
    const T nv = s2[j];
    if (dv == 0) {
      d[j] = ZeroDivisorInt<T>(nv);
      marked = true;
      return;
    }
    const float num = static_cast<float>(nv) * scale.dividend;
    const float den = static_cast<float>(dv) * scale.divisor;
    d[j] = RoundQuotient<T>(reciprocal ? RecipQuotient8u(num, den) : num / den, mode);
  };
  size_t g = 0;
  if constexpr (std::is_same_v<T, Pel8u>) {
    for (; g + 8 <= n; g += 8) {
      bool zero = false;
      for (size_t j = g; j < g + 8; ++j) zero = zero || (!AlphaLane(alpha, j) && s1[j] == 0);
      for (size_t j = g; j < g + 8; ++j) element(j, !zero);
    }
  }
  for (; g < n; ++g) element(g, false);
  return marked;
}

// Integer DivC: src x f in single precision, to nearest even, saturated.
template <class T>
void IntScaleRow(const T* src, const float* f, size_t period, T* d, size_t n, bool alpha) {
  for (size_t j = 0; j < n; ++j) {
    if (!AlphaLane(alpha, j)) {
      d[j] = RoundQuotient<T>(static_cast<float>(src[j]) * f[At(j, period)], 1);
    }
  }
}

// True when an element was negative (its root is the default NaN).
inline bool SqrtRow(const float* src, float* d, size_t n) {
  bool negative = false;
  for (size_t j = 0; j < n; ++j) {
    const float v = src[j];
    negative = negative || v < 0.0f;
    d[j] = _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(v)));
  }
  return negative;
}

inline void AbsRow(const int16_t* src, int16_t* d, size_t n) {
  for (size_t j = 0; j < n; ++j) {
    const int v = src[j];
    d[j] = static_cast<int16_t>(v < 0 ? (v == -32768 ? 32767 : -v) : v);
  }
}

}  // namespace pel::arith::scalar
