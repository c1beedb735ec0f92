// The reference of the warp kernels: coordinates and pixels one at a time.
// It defines the results; the vector kernels reproduce its bytes.
//
// A destination pixel (x, y) (absolute, integer coordinates at pixel
// centres) goes back through the spec's matrix B. Positions are fixed point,
// 1/1024 pixel, each double first held to [-2^30, 2^30] (NaN to -2^30):
//   Q(v) = floor(v 1024 + 0.5).
// Affine: the column and row terms are rounded apart and added,
//   X = Q(B00 x) + Q(B01 y + B02), Y likewise,
// so a row needs one integer add a pixel (the column terms are a table made
// once a call) and a pixel depends on its position alone, not on the tile.
// Perspective: sx = B00 x + (B01 y + B02), sy likewise, w = B20 x +
// (B21 y + B22), k = 1024 / w, each product, sum and quotient one double
// rounding; X = floor(sx k + 0.5), held as Q holds (one division a pixel for
// both coordinates); a pixel with w <= 0 has no source point (it is read as
// lying far outside).
// Then xi = floor(X / 1024), fx = X - 1024 xi; nearest reads pixel
// floor((X + 512) / 1024).
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
constexpr int64_t kFarFixed = int64_t(1) << 40;  // kFar in fixed point

inline double HoldCoordinate(double s) { return s > kFar ? kFar : (s >= -kFar ? s : -kFar); }

// A position already in 1/1024 pixel, held and rounded.
inline int64_t Rounded(double t) {
  const double far = kFar * kOne;
  return int64_t(std::floor((t > far ? far : (t >= -far ? t : -far)) + 0.5));
}

// Scaling by 1024 is exact, so holding before or after it is the same.
inline int64_t Fixed(double s) { return Rounded(s * kOne); }

// The affine column terms Q(B00 x), Q(B10 x) of columns x0 .. x0 + n - 1
// into tx and ty; false when one needs more than 30 bits (the vector kernels
// then leave the call to the reference).
inline bool ColumnTerms(const WarpFrame& f, int64_t x0, int64_t n, int32_t* tx, int32_t* ty) {
  constexpr int64_t kLimit = int64_t(1) << 30;
  bool fits = true;
  for (int64_t i = 0; i < n; ++i) {
    const double xd = double(x0 + i);
    const int64_t a = Fixed(f.back[0][0] * xd), b = Fixed(f.back[1][0] * xd);
    fits = fits && a > -kLimit && a < kLimit && b > -kLimit && b < kLimit;
    tx[i] = int32_t(std::clamp(a, -kLimit, kLimit));
    ty[i] = int32_t(std::clamp(b, -kLimit, kLimit));
  }
  return fits;
}

// The affine row terms Q(B01 y + B02), Q(B11 y + B12).
inline int64_t RowTermX(const WarpFrame& f, int64_t y) { return Fixed(f.back[0][1] * double(y) + f.back[0][2]); }
inline int64_t RowTermY(const WarpFrame& f, int64_t y) { return Fixed(f.back[1][1] * double(y) + f.back[1][2]); }

// Coordinates of pixels x0 .. x0 + n - 1 of row y.
inline void Coordinates(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, const WarpCoords& out) {
  const double(*b)[3] = f.back;
  const double yd = double(y);
  const double rowX = b[0][1] * yd + b[0][2], rowY = b[1][1] * yd + b[1][2], rowW = b[2][1] * yd + b[2][2];
  const int64_t termX = Fixed(rowX), termY = Fixed(rowY);
  for (int64_t i = 0; i < n; ++i) {
    const double xd = double(x0 + i);
    int64_t X, Y;
    if (f.perspective) {
      const double w = b[2][0] * xd + rowW, k = kOne / w;
      X = w > 0 ? Rounded((b[0][0] * xd + rowX) * k) : -kFarFixed;
      Y = w > 0 ? Rounded((b[1][0] * xd + rowY) * k) : -kFarFixed;
    } else {
      X = std::clamp(Fixed(b[0][0] * xd) + termX, -kFarFixed, kFarFixed);
      Y = std::clamp(Fixed(b[1][0] * xd) + termY, -kFarFixed, kFarFixed);
    }
    if (f.method == pelInterpolationNearest) {
      out.xi[i] = int32_t((X + kOne / 2) >> kFracBits);
      out.yi[i] = int32_t((Y + kOne / 2) >> kFracBits);
      out.fx[i] = out.fy[i] = 0;
    } else {
      out.xi[i] = int32_t(X >> kFracBits);
      out.yi[i] = int32_t(Y >> kFracBits);
      out.fx[i] = int32_t(X & (kOne - 1));
      out.fy[i] = int32_t(Y & (kOne - 1));
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

// Pixels x0 .. x0 + n - 1 of row y, a chunk at a time through small
// coordinate arrays.
inline void Row(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow) {
  constexpr int64_t kChunk = 64;
  int32_t w[4][kChunk];
  const WarpCoords c{w[0], w[1], w[2], w[3]};
  const int64_t pixelBytes = int64_t(f.channels) * int64_t(f.elemBytes);
  for (int64_t i = 0; i < n; i += kChunk) {
    const int64_t m = std::min(kChunk, n - i);
    Coordinates(f, y, x0 + i, m, c);
    Pixels(f, c, 0, m, dstRow + i * pixelBytes);
  }
}

}  // namespace pel::geometry::scalar
