// Scalar references of the reduction kernels (row_reduce_kernels.h): plain
// loops that define the results. The vector kernels call them for the
// elements after their last whole vector.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "stats/row_reduce_kernels.h"

namespace pel::stats::scalar {

template <class T>
uint32_t Magnitude(IntMap map, T a, T b) {
  const int32_t x = a;
  switch (map) {
    case IntMap::Value: return static_cast<uint32_t>(x);
    case IntMap::Biased: return static_cast<uint32_t>(x + 32768);
    case IntMap::Abs: return static_cast<uint32_t>(x < 0 ? -x : x);
    case IntMap::AbsDiff: break;
  }
  const int32_t d = x - int32_t{b};
  return static_cast<uint32_t>(d < 0 ? -d : d);
}

// Elements [begin, end) of a row; element i is channel i % channels.
template <class T>
void IntReduceRange(IntMap map, IntOp op, const T* a, const T* b, size_t begin, size_t end,
                    int channels, uint64_t acc[4]) {
  int c = static_cast<int>(begin % static_cast<size_t>(channels));
  for (size_t i = begin; i < end; ++i) {
    const uint64_t m = Magnitude<T>(map, a[i], b ? b[i] : T{});
    switch (op) {
      case IntOp::Sum: acc[c] += m; break;
      case IntOp::Sq: acc[c] += m * m; break;
      case IntOp::Max: acc[c] = acc[c] > m ? acc[c] : m; break;
    }
    if (++c == channels) c = 0;
  }
}

inline void IntRowReduce(IntKind kind, IntMap map, IntOp op, const void* a, const void* b,
                         size_t begin, size_t end, int channels, uint64_t acc[4]) {
  switch (kind) {
    case IntKind::U8:
      return IntReduceRange(map, op, static_cast<const uint8_t*>(a), static_cast<const uint8_t*>(b),
                            begin, end, channels, acc);
    case IntKind::U16:
      return IntReduceRange(map, op, static_cast<const uint16_t*>(a),
                            static_cast<const uint16_t*>(b), begin, end, channels, acc);
    case IntKind::S16:
      return IntReduceRange(map, op, static_cast<const int16_t*>(a), static_cast<const int16_t*>(b),
                            begin, end, channels, acc);
  }
}

// One step of a float partial.
inline float FloatStep(FloatOp op, float p, float x) {
  switch (op) {
    case FloatOp::Sum: return p + x;
    case FloatOp::Abs: return p + std::fabs(x);
    case FloatOp::Sq: return p + x * x;
    case FloatOp::Max: break;
  }
  const float v = std::fabs(x);
  return p > v ? p : v;  // an unordered comparison takes v
}

// Elements [begin, end); element i goes to partials[(first + i) % k].
inline void FloatPartialsRange(FloatOp op, const float* a, const float* b, size_t begin, size_t end,
                               size_t first, size_t k, float* partials) {
  size_t j = (first + begin) % k;
  for (size_t i = begin; i < end; ++i) {
    partials[j] = FloatStep(op, partials[j], b ? a[i] - b[i] : a[i]);
    if (++j == k) j = 0;
  }
}

inline double DoubleStep(FloatOp op, double p, double x) {
  switch (op) {
    case FloatOp::Abs: return p + std::fabs(x);
    case FloatOp::Sq: return p + x * x;
    default: return p + x;
  }
}

inline void DoublePartialsRange(FloatOp op, const float* a, const float* b, size_t begin,
                                size_t end, size_t k, double* partials) {
  size_t j = begin % k;
  for (size_t i = begin; i < end; ++i) {
    const double x = b ? double{a[i]} - double{b[i]} : double{a[i]};
    partials[j] = DoubleStep(op, partials[j], x);
    if (++j == k) j = 0;
  }
}

template <class T>
void DotRange(const T* a, const T* b, size_t begin, size_t end, int channels, int64_t sum[4],
              uint64_t mag[4]) {
  int c = static_cast<int>(begin % static_cast<size_t>(channels));
  for (size_t i = begin; i < end; ++i) {
    const int64_t p = int64_t{a[i]} * int64_t{b[i]};
    sum[c] += p;
    mag[c] += static_cast<uint64_t>(p < 0 ? -p : p);
    if (++c == channels) c = 0;
  }
}

inline void IntRowDot(IntKind kind, const void* a, const void* b, size_t begin, size_t end,
                      int channels, int64_t sum[4], uint64_t mag[4]) {
  switch (kind) {
    case IntKind::U8:
      return DotRange(static_cast<const uint8_t*>(a), static_cast<const uint8_t*>(b), begin, end,
                      channels, sum, mag);
    case IntKind::U16:
      return DotRange(static_cast<const uint16_t*>(a), static_cast<const uint16_t*>(b), begin, end,
                      channels, sum, mag);
    case IntKind::S16:
      return DotRange(static_cast<const int16_t*>(a), static_cast<const int16_t*>(b), begin, end,
                      channels, sum, mag);
  }
}

// Channel 3 of four-channel pixels is alpha and is not counted.
template <class T>
void CountRange(const T* row, size_t begin, size_t end, int channels, const T lo[4], const T hi[4],
                uint64_t counts[4]) {
  int c = static_cast<int>(begin % static_cast<size_t>(channels));
  for (size_t i = begin; i < end; ++i) {
    if (c < 3 && lo[c] <= row[i] && row[i] <= hi[c]) ++counts[c];
    if (++c == channels) c = 0;
  }
}

}  // namespace pel::stats::scalar
