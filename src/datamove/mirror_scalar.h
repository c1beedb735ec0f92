// Scalar references of the mirror, transpose and channel-swap kernels. They
// define the results: every vector kernel gives the same bytes, the lowest
// dispatch level (PEL_CPU=scalar) runs these, and the walkers use them where
// a source and a destination share memory, walking forward one pixel at a
// time and reading a whole pixel before writing any of it. That order is
// what such a call gets, at every dispatch level.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/common.h"
#include "datamove/pixel_bytes.h"

namespace pel::datamove::scalar {

// dst pixel n-1-x = src pixel x.
template <int P, bool kKeep>
void ReverseRow(const uint8_t* src, uint8_t* dst, size_t n) {
  for (size_t x = 0; x < n; ++x) {
    uint8_t t[P];
    MovePixel<P, false>(t, src + x * P);
    MovePixel<P, kKeep>(dst + (n - 1 - x) * P, t);
  }
}

// The row reversed where it lies; an odd row keeps its middle pixel.
template <int P, bool kKeep>
void ReverseRowInPlace(uint8_t* a, size_t n) {
  for (size_t x = 0; x < n / 2; ++x) ExchangePixels<P, kKeep>(a + x * P, a + (n - 1 - x) * P);
}

// Two different rows exchanged and both reversed: a[x] <-> b[n-1-x].
template <int P, bool kKeep>
void ReverseSwapRows(uint8_t* a, uint8_t* b, size_t n) {
  for (size_t x = 0; x < n; ++x) ExchangePixels<P, kKeep>(a + x * P, b + (n - 1 - x) * P);
}

// a[x] <-> b[x].
template <int P, bool kKeep>
void SwapRows(uint8_t* a, uint8_t* b, size_t n) {
  for (size_t x = 0; x < n; ++x) ExchangePixels<P, kKeep>(a + x * P, b + x * P);
}

// dst(x = j, y = i) = src(x = i, y = j) for a source of w x h pixels,
// destination row by destination row.
template <int P, bool kKeep>
void Transpose(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, size_t w,
               size_t h) {
  for (size_t i = 0; i < w; ++i) {
    uint8_t* d = Row(dst, dstStep, static_cast<ptrdiff_t>(i));
    for (size_t j = 0; j < h; ++j) {
      uint8_t t[P];
      MovePixel<P, false>(t, Row(src, srcStep, static_cast<ptrdiff_t>(j)) + i * P);
      MovePixel<P, kKeep>(d + j * P, t);
    }
  }
}

// An n x n square transposed where it lies: (x, y) <-> (y, x) for x > y.
template <int P>
void TransposeSquareInPlace(uint8_t* p, ptrdiff_t step, size_t n) {
  for (size_t y = 0; y < n; ++y)
    for (size_t x = y + 1; x < n; ++x) {
      ExchangePixels<P, false>(Row(p, step, static_cast<ptrdiff_t>(y)) + x * P,
                               Row(p, step, static_cast<ptrdiff_t>(x)) + y * P);
    }
}

// Runtime-typed forms, for walkers that fall back to the reference.
inline void ReverseRowAny(const void* src, void* dst, size_t n, PixelBytes px) {
  VisitPixel(px, [&](auto p, auto k) {
    ReverseRow<p(), k()>(static_cast<const uint8_t*>(src), static_cast<uint8_t*>(dst), n);
  });
}
inline void ReverseRowInPlaceAny(void* a, size_t n, PixelBytes px) {
  VisitPixel(px, [&](auto p, auto k) { ReverseRowInPlace<p(), k()>(static_cast<uint8_t*>(a), n); });
}
inline void ReverseSwapRowsAny(void* a, void* b, size_t n, PixelBytes px) {
  VisitPixel(px, [&](auto p, auto k) {
    ReverseSwapRows<p(), k()>(static_cast<uint8_t*>(a), static_cast<uint8_t*>(b), n);
  });
}
inline void SwapRowsAny(void* a, void* b, size_t n, PixelBytes px) {
  VisitPixel(px, [&](auto p, auto k) {
    SwapRows<p(), k()>(static_cast<uint8_t*>(a), static_cast<uint8_t*>(b), n);
  });
}
inline void TransposeAny(const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep,
                         size_t w, size_t h, PixelBytes px) {
  VisitPixel(px, [&](auto p, auto k) {
    Transpose<p(), k()>(static_cast<const uint8_t*>(src), srcStep, static_cast<uint8_t*>(dst),
                        dstStep, w, h);
  });
}
inline void TransposeSquareInPlaceAny(void* a, ptrdiff_t step, size_t n, PixelBytes px) {
  VisitPixel(px, [&](auto p, auto) { TransposeSquareInPlace<p()>(static_cast<uint8_t*>(a), step, n); });
}

}  // namespace pel::datamove::scalar
