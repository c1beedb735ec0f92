// The reference row kernels of resize: plain loops over the taps that define
// the results. The vector kernels must give exactly these bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "geometry/row_resize_kernels.h"

namespace pel::geometry::scalar {

template <int kPixelBytes>
void NearestPixels(const NearestColumns& cols, const uint8_t* src, uint8_t* dst, size_t from) {
  for (size_t x = from; x < cols.width; ++x)
    std::memcpy(dst + x * kPixelBytes, src + intptr_t(cols.tap[x]) * kPixelBytes, kPixelBytes);
}

// Pixels from `from` on.
inline void NearestRow(const NearestColumns& cols, const uint8_t* src, uint8_t* dst, size_t from = 0) {
  switch (cols.pixelBytes) {
    case 1: return NearestPixels<1>(cols, src, dst, from);
    case 2: return NearestPixels<2>(cols, src, dst, from);
    case 3: return NearestPixels<3>(cols, src, dst, from);
    case 4: return NearestPixels<4>(cols, src, dst, from);
    case 6: return NearestPixels<6>(cols, src, dst, from);
    case 8: return NearestPixels<8>(cols, src, dst, from);
    case 12: return NearestPixels<12>(cols, src, dst, from);
    case 16: return NearestPixels<16>(cols, src, dst, from);
  }
}

// ---- Linear -------------------------------------------------------------------
// The arithmetic of one element type: the horizontal blend of two taps into
// a line element and the vertical blend of two line elements.

template <ResizeElem E>
struct LinearMath;

// Q6 without rounding, then a rounded Q20 shift: the results never leave
// 0..255, a weighted mean of 8-bit values.
template <>
struct LinearMath<ResizeElem::k8u> {
  using T = uint8_t;
  using Line = uint16_t;
  static Line H(T p0, T p1, int w0, int w1) { return Line((p0 * w0 + p1 * w1) >> 8); }
  static T V(Line u, Line l, int wy) { return T((u * (16384 - wy) + l * wy + (1 << 19)) >> 20); }
};

// Q2 with rounding, so that the vertical products stay within 32 bits.
template <>
struct LinearMath<ResizeElem::k16u> {
  using T = uint16_t;
  using Line = uint32_t;
  static Line H(T p0, T p1, int w0, int w1) { return (p0 * uint32_t(w0) + p1 * uint32_t(w1) + 2048) >> 12; }
  static T V(Line u, Line l, int wy) { return T((u * uint32_t(16384 - wy) + l * uint32_t(wy) + 32768) >> 16); }
};

// Signed values go through the unsigned arithmetic moved by 32768: the
// shifts then round half up on both.
template <>
struct LinearMath<ResizeElem::k16s> {
  using T = int16_t;
  using Line = uint32_t;
  using U = LinearMath<ResizeElem::k16u>;
  static uint16_t Biased(T v) { return uint16_t(uint16_t(v) ^ 0x8000); }
  static Line H(T p0, T p1, int w0, int w1) { return U::H(Biased(p0), Biased(p1), w0, w1); }
  static T V(Line u, Line l, int wy) { return T(U::V(u, l, wy) ^ 0x8000); }
};

template <class F>
struct FloatMath {
  using T = F;
  using Line = F;
  static F Weight(int w) { return F(w) * F(1.0 / 16384); }  // exact: a Q14 fraction
  static F H(F p0, F p1, int w0, int w1) {
    const F a = p0 * Weight(w0);
    const F b = p1 * Weight(w1);
    return a + b;
  }
  static F V(F u, F l, int wy) {
    const F a = u * Weight(16384 - wy);
    const F b = l * Weight(wy);
    return a + b;
  }
};
template <>
struct LinearMath<ResizeElem::k32f> : FloatMath<float> {};
template <>
struct LinearMath<ResizeElem::k64f> : FloatMath<double> {};

// Elements from `from` (an element index, x x channels + c) on.
template <ResizeElem E>
void LinearHorizontalT(const LinearColumns& cols, const uint8_t* srcBytes, void* lineOut, size_t from) {
  using M = LinearMath<E>;
  const auto* src = reinterpret_cast<const typename M::T*>(srcBytes);
  auto* line = static_cast<typename M::Line*>(lineOut);
  const int C = cols.channels;
  size_t x = from / size_t(C);
  for (int c = int(from % size_t(C)); x < cols.width; ++x, c = 0) {
    for (; c < C; ++c) {
      const auto p0 = src[intptr_t(cols.tap0[x]) * C + c];
      const auto p1 = src[intptr_t(cols.tap1[x]) * C + c];
      line[x * size_t(C) + size_t(c)] = M::H(p0, p1, cols.weight[2 * x], cols.weight[2 * x + 1]);
    }
  }
}

template <ResizeElem E>
void LinearVerticalT(const void* upper, const void* lower, int wy, uint8_t* dstBytes, size_t from, size_t n) {
  using M = LinearMath<E>;
  const auto* u = static_cast<const typename M::Line*>(upper);
  const auto* l = static_cast<const typename M::Line*>(lower);
  auto* dst = reinterpret_cast<typename M::T*>(dstBytes);
  for (size_t i = from; i < n; ++i) dst[i] = M::V(u[i], l[i], wy);
}

template <class F>
void VisitElem(ResizeElem e, F&& f) {
  switch (e) {
    case ResizeElem::k8u: return f(std::integral_constant<ResizeElem, ResizeElem::k8u>{});
    case ResizeElem::k16u: return f(std::integral_constant<ResizeElem, ResizeElem::k16u>{});
    case ResizeElem::k16s: return f(std::integral_constant<ResizeElem, ResizeElem::k16s>{});
    case ResizeElem::k32f: return f(std::integral_constant<ResizeElem, ResizeElem::k32f>{});
    case ResizeElem::k64f: return f(std::integral_constant<ResizeElem, ResizeElem::k64f>{});
  }
}

inline void LinearHorizontal(const LinearColumns& cols, const uint8_t* src, void* line, size_t from = 0) {
  VisitElem(cols.elem, [&](auto e) { LinearHorizontalT<e()>(cols, src, line, from); });
}

inline void LinearVertical(ResizeElem elem, const void* upper, const void* lower, int wy, uint8_t* dst,
                           size_t n, size_t from = 0) {
  VisitElem(elem, [&](auto e) { LinearVerticalT<e()>(upper, lower, wy, dst, from, n); });
}

}  // namespace pel::geometry::scalar
