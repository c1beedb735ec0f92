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

namespace pel::datamove {

// How a frame row makes the pixels left and right of a source row.
enum FrameKind { kFrameConstant, kFrameReplicate, kFrameMirror, kFrameWrap };

namespace scalar {

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

// left pixels, the row (unless it is there already), right pixels; the
// frame narrower than the row on both sides.
template <int P, bool kKeep>
void FrameRow(const uint8_t* row, uint8_t* out, size_t w, size_t left, size_t right, FrameKind kind,
              const uint8_t* value, bool middleThere) {
  const auto W = static_cast<ptrdiff_t>(w);
  for (ptrdiff_t x = -static_cast<ptrdiff_t>(left); x < W + static_cast<ptrdiff_t>(right); ++x) {
    const bool inside = x >= 0 && x < W;
    if (inside && middleThere) continue;
    ptrdiff_t from = x;
    if (!inside) {
      switch (kind) {
        case kFrameConstant: from = -1; break;
        case kFrameReplicate: from = x < 0 ? 0 : W - 1; break;
        case kFrameMirror: from = x < 0 ? -x : 2 * W - 2 - x; break;
        case kFrameWrap: from = x < 0 ? x + W : x - W; break;
      }
    }
    MovePixel<P, kKeep>(out + (x + static_cast<ptrdiff_t>(left)) * P, from < 0 ? value : row + from * P);
  }
}

// Runtime-typed forms, for walkers that fall back to the reference.
inline void FrameRowAny(const void* row, void* out, size_t w, size_t left, size_t right, FrameKind kind,
                        PixelBytes px, const void* value, bool middleThere) {
  VisitPixel(px, [&](auto p, auto k) {
    FrameRow<p(), k()>(static_cast<const uint8_t*>(row), static_cast<uint8_t*>(out), w, left, right, kind,
                       static_cast<const uint8_t*>(value), middleThere);
  });
}
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

}  // namespace scalar
}  // namespace pel::datamove
