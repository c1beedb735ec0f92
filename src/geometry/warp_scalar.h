// The reference of the warp kernels: coordinates and pixels one at a time.
// It defines the results; the vector kernels reproduce its bytes.
//
// A destination pixel (x, y) (absolute, integer coordinates at pixel
// centres) goes back through the spec's matrix B:
//   sx = B00 x + (B01 y + B02), sy likewise; for perspective both are divided
//   by w = B20 x + (B21 y + B22), and a pixel with w <= 0 has no source
//   point (it is read as lying far outside).
// Each product and sum is one double rounding, so a pixel's coordinates
// depend on its position alone, not on the tile it is computed in. They are
// then held to [-2^30, 2^30] (NaN to -2^30) and rounded to 1/1024 pixel:
//   X = floor(sx 1024 + 0.5), xi = floor(X / 1024), fx = X - 1024 xi.
// Nearest reads pixel floor(X / 1024 + 0.5).
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/common.h"
#include "geometry/row_warp_kernels.h"

namespace pel::geometry::scalar {

constexpr double kFar = 1073741824.0;  // 2^30 pixels: beyond any source
constexpr int kFracBits = 10;
constexpr int kOne = 1 << kFracBits;

inline double HoldCoordinate(double s) { return s > kFar ? kFar : (s >= -kFar ? s : -kFar); }

// Coordinates of pixels x0 .. x0 + n - 1 of row y.
inline void Coordinates(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, const WarpCoords& out) {
  const double(*b)[3] = f.back;
  const double yd = double(y);
  const double rowX = b[0][1] * yd + b[0][2], rowY = b[1][1] * yd + b[1][2], rowW = b[2][1] * yd + b[2][2];
  for (int64_t i = 0; i < n; ++i) {
    const double xd = double(x0 + i);
    double sx = b[0][0] * xd + rowX, sy = b[1][0] * xd + rowY;
    if (f.perspective) {
      const double w = b[2][0] * xd + rowW;
      if (w > 0) {
        sx = sx / w;
        sy = sy / w;
      } else {
        sx = sy = -kFar;
      }
    }
    const double X = std::floor(HoldCoordinate(sx) * kOne + 0.5), Y = std::floor(HoldCoordinate(sy) * kOne + 0.5);
    if (f.method == pelInterpolationNearest) {
      out.xi[i] = int32_t(std::floor(X * (1.0 / kOne) + 0.5));
      out.yi[i] = int32_t(std::floor(Y * (1.0 / kOne) + 0.5));
      out.fx[i] = out.fy[i] = 0;
    } else {
      const double xi = std::floor(X * (1.0 / kOne)), yi = std::floor(Y * (1.0 / kOne));
      out.xi[i] = int32_t(xi);
      out.yi[i] = int32_t(yi);
      out.fx[i] = int32_t(X - xi * kOne);
      out.fy[i] = int32_t(Y - yi * kOne);
    }
  }
}

// ---- Weights ------------------------------------------------------------------

// The four weights of taps xi - 1 .. xi + 2 at fraction t of the cubic with
// parameters B and C (Mitchell and Netravali's family: B = 0, C = 0.5 is
// Catmull-Rom).
inline void CubicWeights(double t, double B, double C, double w[4]) {
  const double d[4] = {1 + t, t, 1 - t, 2 - t};
  for (int k = 0; k < 4; ++k) {
    const double a = d[k];
    w[k] = a < 1 ? ((12 - 9 * B - 6 * C) * a * a * a + (-18 + 12 * B + 6 * C) * a * a + (6 - 2 * B)) / 6
                 : ((-B - 6 * C) * a * a * a + (6 * B + 30 * C) * a * a + (-12 * B - 48 * C) * a + (8 * B + 24 * C)) / 6;
  }
}

// Integer weights of an axis in Q14 (they sum to 16384, so a flat region
// stays flat), or the float weights.
struct AxisTaps {
  int count;
  int64_t index[4];
  int32_t q[4];
  double w[4];
};

inline AxisTaps Taps(const WarpFrame& f, int32_t i, int32_t frac, bool integer) {
  AxisTaps t{};
  if (f.method == pelInterpolationNearest) {
    t.count = 1, t.index[0] = i, t.q[0] = 1 << 14, t.w[0] = 1;
  } else if (f.method == pelInterpolationLinear) {
    t.count = 2;
    t.index[0] = i, t.index[1] = int64_t(i) + 1;
    t.q[0] = kOne - frac, t.q[1] = frac;  // Q10 here: linear has its own shifts
    t.w[0] = 1 - frac * (1.0 / kOne), t.w[1] = frac * (1.0 / kOne);
  } else {
    t.count = 4;
    double w[4];
    CubicWeights(frac * (1.0 / kOne), f.cubicB, f.cubicC, w);
    for (int k = 0; k < 4; ++k) {
      t.index[k] = int64_t(i) - 1 + k;
      t.w[k] = w[k];
      t.q[k] = int32_t(std::floor(w[k] * 16384 + 0.5));
    }
    t.q[1] = 16384 - t.q[0] - t.q[2] - t.q[3];
  }
  // A tap of weight 0 is not read: it reads the centre tap instead, so that
  // an exact position never reaches past the source's edge.
  for (int k = 0; k < t.count; ++k)
    if (integer ? t.q[k] == 0 : t.w[k] == 0) t.index[k] = i;
  return t;
}

// ---- Pixels -------------------------------------------------------------------

template <class T>
constexpr bool kInteger = std::is_integral_v<T>;

template <class T>
T SaturateFrom(int64_t v) {
  if constexpr (std::is_same_v<T, Pel8u>) return T(std::clamp<int64_t>(v, 0, 255));
  else if constexpr (std::is_same_v<T, Pel16u>) return T(std::clamp<int64_t>(v, 0, 65535));
  else return T(std::clamp<int64_t>(v, -32768, 32767));
}

// Writes pixel `i` of the arrays to dst (C elements), or leaves it (an
// outside tap with border kind 7).
template <class T>
void Pixel(const WarpFrame& f, const WarpCoords& c, int64_t i, T* dst) {
  using Acc = std::conditional_t<std::is_same_v<T, Pel64f>, double, std::conditional_t<kInteger<T>, int64_t, float>>;
  const AxisTaps tx = Taps(f, c.xi[i], c.fx[i], kInteger<T>);
  const AxisTaps ty = Taps(f, c.yi[i], c.fy[i], kInteger<T>);
  const int C = f.channels;
  Acc rows[4][4] = {};
  for (int r = 0; r < ty.count; ++r) {
    for (int k = 0; k < tx.count; ++k) {
      int64_t ix = tx.index[k], iy = ty.index[r];
      const T* p;
      const bool inside = ix >= f.loX && ix <= f.hiX && iy >= f.loY && iy <= f.hiY;
      if (inside) {
        p = reinterpret_cast<const T*>(f.src + iy * f.srcStep) + ix * C;
      } else if (f.kind == 7) {
        return;
      } else if (f.kind == pelBorderConstant) {
        p = reinterpret_cast<const T*>(f.borderPixel);
      } else {
        ix = std::clamp(ix, f.loX, f.hiX);
        iy = std::clamp(iy, f.loY, f.hiY);
        p = reinterpret_cast<const T*>(f.src + iy * f.srcStep) + ix * C;
      }
      for (int ch = 0; ch < C; ++ch) {
        if constexpr (kInteger<T>) rows[r][ch] += Acc(p[ch]) * tx.q[k];
        else if (tx.count == 1) rows[r][ch] = p[ch];
        else if (k == 0) rows[r][ch] = Acc(p[ch]) * Acc(tx.w[k]);  // no 0 + first: it would turn -0 into +0
        else rows[r][ch] = rows[r][ch] + Acc(p[ch]) * Acc(tx.w[k]);
      }
    }
  }
  for (int ch = 0; ch < C; ++ch) {
    if (f.method == pelInterpolationNearest) {
      if constexpr (kInteger<T>) dst[ch] = T(rows[0][ch] >> 14);
      else dst[ch] = T(rows[0][ch]);
    } else if (f.method == pelInterpolationLinear) {
      if constexpr (kInteger<T>) {
        // top + (bottom - top) fy, in Q20, rounded half up.
        const int64_t top = rows[0][ch], bottom = rows[1][ch];
        dst[ch] = T((top * kOne + (bottom - top) * ty.q[1] + (1 << 19)) >> 20);
      } else {
        dst[ch] = T(rows[0][ch] * Acc(ty.w[0]) + rows[1][ch] * Acc(ty.w[1]));
      }
    } else {
      Acc v = 0;
      for (int r = 0; r < 4; ++r) {
        if constexpr (kInteger<T>) v += rows[r][ch] * ty.q[r];
        else v = r == 0 ? rows[r][ch] * Acc(ty.w[r]) : v + rows[r][ch] * Acc(ty.w[r]);
      }
      if constexpr (kInteger<T>) dst[ch] = SaturateFrom<T>((v + (int64_t(1) << 27)) >> 28);
      else dst[ch] = T(v);
    }
  }
}

// Pixels [a, b) of a row whose coordinates are in c.
inline void Pixels(const WarpFrame& f, const WarpCoords& c, int64_t a, int64_t b, uint8_t* dstRow) {
  auto run = [&](auto zero) {
    using T = decltype(zero);
    T* d = reinterpret_cast<T*>(dstRow);
    for (int64_t i = a; i < b; ++i) Pixel<T>(f, c, i, d + i * f.channels);
  };
  switch (f.elem) {
    case kWarp8u: return run(Pel8u{});
    case kWarp16u: return run(Pel16u{});
    case kWarp16s: return run(Pel16s{});
    case kWarp32f: return run(Pel32f{});
    default: return run(Pel64f{});
  }
}

inline void Row(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow, const WarpCoords& c) {
  Coordinates(f, y, x0, n, c);
  Pixels(f, c, 0, n, dstRow);
}

}  // namespace pel::geometry::scalar
