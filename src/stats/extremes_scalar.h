// Scalar references of the extreme kernels (row_extreme_kernels.h).
#pragma once

#include <cstddef>
#include <cstdint>

#include "stats/row_extreme_kernels.h"

namespace pel::stats::scalar {

// Elements [begin, end) of a row; element i is channel i % channels. A NaN
// compares false both ways and so never replaces anything.
template <class T>
void ExtremesRange(const T* row, size_t begin, size_t end, int channels, T mins[4], T maxs[4]) {
  int c = static_cast<int>(begin % static_cast<size_t>(channels));
  for (size_t i = begin; i < end; ++i) {
    if (row[i] < mins[c]) mins[c] = row[i];
    if (row[i] > maxs[c]) maxs[c] = row[i];
    if (++c == channels) c = 0;
  }
}

template <class T>
void EveryRange(bool isMax, bool keepAlpha, const T* a, const T* b, T* dst, size_t begin,
                size_t end) {
  for (size_t i = begin; i < end; ++i) {
    if (keepAlpha && i % 4 == 3) continue;
    const T x = a[i], y = b[i];
    dst[i] = (isMax ? x > y : x < y) ? x : y;
  }
}

template <class F>
void VisitKind(ElemKind kind, F&& f) {
  switch (kind) {
    case ElemKind::U8: return f(uint8_t{});
    case ElemKind::U16: return f(uint16_t{});
    case ElemKind::S16: return f(int16_t{});
    case ElemKind::F32: return f(float{});
  }
}

inline void RowExtremes(ElemKind kind, const void* row, size_t begin, size_t end, int channels,
                        void* mins, void* maxs) {
  VisitKind(kind, [&](auto t) {
    using T = decltype(t);
    ExtremesRange(static_cast<const T*>(row), begin, end, channels, static_cast<T*>(mins),
                  static_cast<T*>(maxs));
  });
}

inline void EveryRow(ElemKind kind, bool isMax, bool keepAlpha, const void* a, const void* b,
                     void* dst, size_t begin, size_t end) {
  VisitKind(kind, [&](auto t) {
    using T = decltype(t);
    EveryRange(isMax, keepAlpha, static_cast<const T*>(a), static_cast<const T*>(b),
               static_cast<T*>(dst), begin, end);
  });
}

}  // namespace pel::stats::scalar
