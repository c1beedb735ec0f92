// Scalar references of the filter kernels: plain loops that define the
// results every instruction set must reproduce bit for bit. A row kernel
// sees the mask's rows of the extended source (each starting at the mask's
// leftmost column) and writes `lanes` = roiW x channels elements; tap j of
// lane l is element l + j x C of a row, so every layout is one loop.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "filter/row_filter_kernels.h"

namespace pel::filter::scalar {

template <class T>
inline T Load(const uint8_t* row, int64_t i) {
  T v;
  std::memcpy(&v, row + i * static_cast<int64_t>(sizeof(T)), sizeof(T));
  return v;
}

// Wrapping 32-bit arithmetic, as vector lanes do it.
inline int32_t WrapAdd(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

// The integer quotient of a power-of-two divisor 2^n under a rounding mode.
inline int32_t ShiftRound(int32_t v, int n, int round) {
  const int32_t addend = int32_t{1} << (n - 1);
  if (round == 0) return WrapAdd(v, v < 0 ? 2 * addend - 1 : 0) >> n;
  if (round == 1) return WrapAdd(v, addend - 1 + ((v >> n) & 1)) >> n;
  return WrapAdd(v, v < 0 ? addend - 1 : addend) >> n;
}

// A float rounded by mode (0 toward zero, 1 nearest-even, 2 halves away
// from zero, all in single precision) and saturated to T.
template <class T>
inline T RoundSaturate(float v, int round) {
  if (round == 0) v = std::trunc(v);
  else if (round == 1) v = std::nearbyint(v);
  else v = std::trunc(v + std::copysign(0.5f, v));
  const float lo = static_cast<float>(std::numeric_limits<T>::min());
  const float hi = static_cast<float>(std::numeric_limits<T>::max());
  v = v < lo ? lo : v;
  v = v > hi ? hi : v;
  return static_cast<T>(static_cast<int32_t>(v));
}

template <class T>
inline T SaturateInt(int32_t v) {
  const int32_t lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
  return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
}

// Correlation of one row, coefficient (i, j) being rev[kw kh - 1 - (i kw + j)].
template <class T>
void CorrelateRow(const CorrelateJob& job, const uint8_t* const* rows, T* dst, int64_t begin, int64_t lanes) {
  const int kn = job.kw * job.kh;
  for (int64_t l = begin; l < lanes; ++l) {
    if constexpr (std::is_same_v<T, double>) {
      double acc = 0;
      for (int i = 0; i < job.kh; ++i)
        for (int j = 0; j < job.kw; ++j)
          acc = acc + job.revD[kn - 1 - (i * job.kw + j)] * Load<T>(rows[i], l + j * job.C);
      dst[l] = acc + job.offsetD;
    } else if (job.intKernel) {
      if constexpr (!std::is_floating_point_v<T>) {
        int32_t acc = 0;
        for (int i = 0; i < job.kh; ++i)
          for (int j = 0; j < job.kw; ++j)
            acc = WrapAdd(acc, int32_t{job.revI[kn - 1 - (i * job.kw + j)]} * Load<T>(rows[i], l + j * job.C));
        acc = WrapAdd(acc, job.offsetI);
        if (job.divMode == 0) dst[l] = SaturateInt<T>(acc);
        else if (job.divMode == 1) dst[l] = SaturateInt<T>(ShiftRound(acc, job.shift, job.round));
        else dst[l] = RoundSaturate<T>(static_cast<float>(acc) * job.scale, job.round);
      }
    } else {
      float acc = 0;
      for (int i = 0; i < job.kh; ++i)
        for (int j = 0; j < job.kw; ++j)
          acc = acc + job.revF[kn - 1 - (i * job.kw + j)] * static_cast<float>(Load<T>(rows[i], l + j * job.C));
      acc = acc + job.offsetF;
      if constexpr (std::is_floating_point_v<T>) dst[l] = acc;
      else dst[l] = RoundSaturate<T>(acc, job.round);
    }
  }
}

// Minimum and maximum in the form of the processors' min/max instructions,
// so that every level picks the same operand.
template <class T>
inline T MinOf(T a, T b) { return a < b ? a : b; }
template <class T>
inline T MaxOf(T a, T b) { return a > b ? a : b; }

// Vertical extreme of the kh rows over the lanes the mask reaches, then the
// horizontal extreme of kw taps.
template <class T>
void ExtremeRow(bool max, int C, int kw, int kh, const uint8_t* const* rows, T* tmp, T* dst, int64_t begin,
                int64_t lanes) {
  const int64_t wide = lanes + int64_t{kw - 1} * C;
  for (int64_t l = begin; l < wide; ++l) {
    T v = Load<T>(rows[0], l);
    for (int i = 1; i < kh; ++i) v = max ? MaxOf(v, Load<T>(rows[i], l)) : MinOf(v, Load<T>(rows[i], l));
    tmp[l] = v;
  }
  for (int64_t l = begin; l < lanes; ++l) {
    T v = tmp[l];
    for (int j = 1; j < kw; ++j) v = max ? MaxOf(v, tmp[l + j * C]) : MinOf(v, tmp[l + j * C]);
    dst[l] = v;
  }
}

// The separable extreme of integers (where the order of the taps cannot
// change the result): the horizontal extreme of kw taps of one extended
// row, and both passes for a pair of output rows (row_filter_kernels.h).
template <class T>
void ExtremeHorizontal(bool max, int C, int kw, const uint8_t* row, T* dst, int64_t begin, int64_t lanes) {
  for (int64_t l = begin; l < lanes; ++l) {
    T v = Load<T>(row, l);
    for (int j = 1; j < kw; ++j) v = max ? MaxOf(v, Load<T>(row, l + j * C)) : MinOf(v, Load<T>(row, l + j * C));
    dst[l] = v;
  }
}

template <class T>
void ExtremePair(const ExtremePairJob& job, int64_t begin, int64_t lanes) {
  auto ext = [&](T x, T y) { return job.max ? MaxOf(x, y) : MinOf(x, y); };
  auto horizontal = [&](const uint8_t* row, int64_t l) {
    T v = Load<T>(row, l);
    for (int j = 1; j < job.kw; ++j) v = ext(v, Load<T>(row, l + j * job.C));
    return v;
  };
  for (int64_t l = begin; l < lanes; ++l) {
    const T ha = horizontal(job.a, l);
    static_cast<T*>(job.hA)[l] = ha;
    T m = ha;
    for (int i = 1; i < job.kh - 1; ++i) m = ext(m, Load<T>(job.held[i], l));
    static_cast<T*>(job.out0)[l] = job.kh > 1 ? ext(m, Load<T>(job.held[0], l)) : m;
    if (job.b == nullptr) continue;
    const T hb = horizontal(job.b, l);
    static_cast<T*>(job.hB)[l] = hb;
    static_cast<T*>(job.out1)[l] = job.kh > 1 ? ext(m, hb) : hb;
  }
}

// The element of rank (N - 1) / 2 of each neighbourhood, by selection in a
// copy of it (scratch holds kw x kh elements).
template <class T>
void MedianRow(int C, int kw, int kh, const uint8_t* const* rows, T* scratch, T* dst, int64_t begin, int64_t lanes) {
  const int n = kw * kh;
  for (int64_t l = begin; l < lanes; ++l) {
    for (int i = 0; i < kh; ++i)
      for (int j = 0; j < kw; ++j) scratch[i * kw + j] = Load<T>(rows[i], l + j * C);
    std::nth_element(scratch, scratch + (n - 1) / 2, scratch + n);
    dst[l] = scratch[(n - 1) / 2];
  }
}

// The mean of integers, rounded to nearest with halves upward: floor((2s +
// N) / 2N), exact for every sum.
template <class T>
inline T RoundedMean(int64_t sum, int64_t n) {
  const int64_t num = 2 * sum + n, den = 2 * n;
  int64_t q = num / den;
  if (num % den != 0 && num < 0) --q;
  return static_cast<T>(q);
}

// Box mean of a row. Integers: exact sums. 32f: column sums of the kh rows
// in f64 (top to bottom), then the kw column sums left to right, divided by
// N and narrowed once. colSums holds lanes + (kw - 1) x C values.
template <class T>
void BoxRow(int C, int kw, int kh, const uint8_t* const* rows, void* colSums, T* dst, int64_t begin, int64_t lanes) {
  const int64_t wide = lanes + int64_t{kw - 1} * C;
  const int64_t n = int64_t{kw} * kh;
  using S = std::conditional_t<std::is_floating_point_v<T>, double, int64_t>;
  S* col = static_cast<S*>(colSums);
  for (int64_t l = begin; l < wide; ++l) {
    S s = 0;
    for (int i = 0; i < kh; ++i) s = s + static_cast<S>(Load<T>(rows[i], l));
    col[l] = s;
  }
  for (int64_t l = begin; l < lanes; ++l) {
    S s = 0;
    for (int j = 0; j < kw; ++j) s = s + col[l + j * C];
    if constexpr (std::is_floating_point_v<T>) dst[l] = static_cast<T>(s / static_cast<double>(n));
    else dst[l] = RoundedMean<T>(s, n);
  }
}

// Running 16-bit column sums of the 8-bit box (row_filter_kernels.h).
inline void BoxColumns8(int kh, const uint8_t* const* rows, const uint8_t* add, const uint8_t* sub, uint16_t* col,
                        int64_t begin, int64_t lanes) {
  for (int64_t l = begin; l < lanes; ++l) {
    if (add != nullptr) {
      col[l] = static_cast<uint16_t>(col[l] + add[l] - sub[l]);
      continue;
    }
    unsigned s = 0;
    for (int i = 0; i < kh; ++i) s += rows[i][l];
    col[l] = static_cast<uint16_t>(s);
  }
}

inline void BoxMeans8(int C, int kw, int kh, const uint16_t* col, uint8_t* dst, int64_t begin, int64_t lanes) {
  for (int64_t l = begin; l < lanes; ++l) {
    int64_t s = 0;
    for (int j = 0; j < kw; ++j) s += col[l + j * C];
    dst[l] = RoundedMean<uint8_t>(s, int64_t{kw} * kh);
  }
}

}  // namespace pel::filter::scalar
