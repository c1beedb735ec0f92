// Saturation and the integer scale factor, shared by every family that
// narrows a wider result into an element type.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace pel {

// v clamped to the range of integer type T.
template <class T>
constexpr T Saturate(int64_t v) {
  static_assert(std::is_integral_v<T>);
  constexpr int64_t lo = static_cast<int64_t>(std::numeric_limits<T>::min());
  constexpr int64_t hi = static_cast<int64_t>(std::numeric_limits<T>::max());
  return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
}

// v x 2^-s rounded to nearest with ties to even, for any scale factor s: a
// right shift with rounding for s > 0 (exact in integers, also for negative
// v), a left shift for s < 0 that saturates to the int64 range first. The
// caller saturates the result to its element type.
constexpr int64_t ScaleHalfEven(int64_t v, int s) {
  if (s == 0) return v;
  if (s > 0) {
    if (s >= 63) return 0;  // |v| < 2^62 here: every value rounds to 0
    const int64_t half = (int64_t{1} << (s - 1)) - 1;
    return (v + half + ((v >> s) & 1)) >> s;
  }
  const int left = -s;
  if (v == 0) return 0;
  if (left >= 62 || (v > 0 ? v > (INT64_MAX >> left) : v < (INT64_MIN >> left))) {
    return v > 0 ? INT64_MAX : INT64_MIN;
  }
  return v * (int64_t{1} << left);
}

// v rounded to the nearest integer, ties to even, whatever the rounding
// control: floor and the difference r - floor(r) are exact in every mode.
// (std::nearbyint follows the x87 control word on 32-bit x86, which a
// caller's fesetround changes and an SSE rounding scope does not restore.)
inline double RoundHalfEven(double v) {
  const double f = std::floor(v);
  const double d = v - f;
  if (d > 0.5) return f + 1.0;
  if (d < 0.5) return f;
  return std::fmod(f, 2.0) == 0.0 ? f : f + 1.0;
}

// Rounding of a real value to an integer by a PelRoundMode: 0 toward zero,
// 1 to nearest with ties to even, anything else halves away from zero.
inline double RoundByMode(double v, int mode) {
  if (mode == 0) return std::trunc(v);
  if (mode == 1) return RoundHalfEven(v);
  return std::trunc(v + (v < 0 ? -0.5 : 0.5));
}

}  // namespace pel
