// The warp tests' model: a destination pixel carried back through the
// matrix and read from the source by the documented rules, one pixel at a
// time, without rows, spans or buffers.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace warpmodel {

// Pixels of memory around the source, for the sides a border reads from
// memory; the call's pSrc is pixel (kFrame, kFrame) of the source argument.
constexpr int kFrame = 2;

struct Scene {
  int srcW, srcH;     // the source, without the frame
  int dstW, dstH;     // the whole destination
  int offX, offY;     // the tile
  double back[3][3];  // destination -> source
  bool perspective;
  int method;         // 1, 2, 6
  int border;
  double value[4];
  double B, C;
};

inline int64_t Quantize(double s) {
  if (!(s >= -1073741824.0)) s = -1073741824.0;
  if (s > 1073741824.0) s = 1073741824.0;
  return int64_t(std::floor(s * 1024 + 0.5));
}

inline int64_t FloorDiv1024(int64_t v) { return v >= 0 ? v / 1024 : -((-v + 1023) / 1024); }

template <class T>
T Saturated(double v) {
  if constexpr (std::is_floating_point_v<T>) return T(v);
  const double lo = std::is_same_v<T, Pel16s> ? -32768 : 0, hi = std::is_same_v<T, Pel8u> ? 255 : std::is_same_v<T, Pel16s> ? 32767 : 65535;
  if (!(v >= lo)) return T(lo);
  if (v > hi) return T(hi);
  return T(std::nearbyint(v));  // the tests run in the default rounding mode: ties to even
}

inline void Cubic(double t, double B, double C, double w[4]) {
  auto k = [&](double a) {
    if (a < 1) return ((12 - 9 * B - 6 * C) * a * a * a + (-18 + 12 * B + 6 * C) * a * a + (6 - 2 * B)) / 6;
    return ((-B - 6 * C) * a * a * a + (6 * B + 30 * C) * a * a + (-12 * B - 48 * C) * a + (8 * B + 24 * C)) / 6;
  };
  w[0] = k(1 + t), w[1] = k(t), w[2] = k(1 - t), w[3] = k(2 - t);
}

// Expected tile pixel (x, y) (tile coordinates), channel by channel into
// `out`; false when the pixel is left as it was.
template <class T>
bool Expected(const Scene& s, peltest::View<T>& src, int C, int x, int y, T* out) {
  const double X = x + s.offX, Y = y + s.offY;
  const double(*b)[3] = s.back;
  int64_t qx, qy;
  if (s.perspective) {
    const double w = b[2][0] * X + (b[2][1] * Y + b[2][2]);
    const double k = 1024 / w;  // one division for both: the scaled position is rounded
    qx = Quantize(w > 0 ? (b[0][0] * X + (b[0][1] * Y + b[0][2])) * k / 1024 : -1e300);
    qy = Quantize(w > 0 ? (b[1][0] * X + (b[1][1] * Y + b[1][2])) * k / 1024 : -1e300);
  } else {  // column and row terms rounded apart
    const int64_t far = int64_t(1) << 40;
    qx = std::clamp(Quantize(b[0][0] * X) + Quantize(b[0][1] * Y + b[0][2]), -far, far);
    qy = std::clamp(Quantize(b[1][0] * X) + Quantize(b[1][1] * Y + b[1][2]), -far, far);
  }
  int64_t ix[4], iy[4];
  double wx[4], wy[4];
  int n;
  const bool integer = std::is_integral_v<T>;
  if (s.method == 1) {
    n = 1, ix[0] = FloorDiv1024(qx + 512), iy[0] = FloorDiv1024(qy + 512), wx[0] = wy[0] = 1;
  } else {
    const int64_t x0 = FloorDiv1024(qx), y0 = FloorDiv1024(qy);
    const double tx = double(qx - 1024 * x0) / 1024, ty = double(qy - 1024 * y0) / 1024;
    if (s.method == 2) {
      n = 2;
      wx[0] = 1 - tx, wx[1] = tx, wy[0] = 1 - ty, wy[1] = ty;
    } else {
      n = 4;
      Cubic(tx, s.B, s.C, wx);
      Cubic(ty, s.B, s.C, wy);
      if (integer) {  // Q14, the second weight making up the sum
        for (double* w : {wx, wy}) {
          for (int k = 0; k < 4; ++k) w[k] = std::floor(w[k] * 16384 + 0.5);
          w[1] = 16384 - w[0] - w[2] - w[3];
          for (int k = 0; k < 4; ++k) w[k] /= 16384;
        }
      }
    }
    for (int k = 0; k < n; ++k) {
      ix[k] = x0 + k - (n == 4);
      iy[k] = y0 + k - (n == 4);
      if (wx[k] == 0) ix[k] = x0;
      if (wy[k] == 0) iy[k] = y0;
    }
  }
  const int reach = s.method == 1 ? 0 : s.method == 2 ? 1 : 2;
  const int flags = s.border & 0xF0, kind = s.border == 240 ? 1 : s.border & 0x0F;
  const int64_t loX = flags & 0x40 ? -reach : 0, hiX = s.srcW - 1 + (flags & 0x80 ? reach : 0);
  const int64_t loY = flags & 0x10 ? -reach : 0, hiY = s.srcH - 1 + (flags & 0x20 ? reach : 0);
  for (int c = 0; c < C; ++c) {
    double acc = 0;  // exact for the integer types (sums of products of small integers and Q14 fractions)
    T rowsF[4] = {};
    for (int r = 0; r < n; ++r) {
      double h = 0;
      for (int k = 0; k < n; ++k) {
        int64_t px = ix[k], py = iy[r];
        double p;
        if (px < loX || px > hiX || py < loY || py > hiY) {
          if (kind == 7) return false;
          if (kind == 6) {
            p = double(Saturated<T>(s.value[c]));
          } else {
            px = std::clamp(px, loX, hiX), py = std::clamp(py, loY, hiY);
            p = double(src(int(px) + kFrame, int(py) + kFrame, c));
          }
        } else {
          p = double(src(int(px) + kFrame, int(py) + kFrame, c));
        }
        if (integer) h += p * wx[k];
        else if (n == 1) rowsF[r] = T(p);
        else rowsF[r] = k == 0 ? T(T(p) * T(wx[k])) : T(rowsF[r] + T(T(p) * T(wx[k])));
      }
      if (integer) acc += h * wy[r];
    }
    if (!integer) {
      T v = rowsF[0];
      if (n > 1) {
        v = T(rowsF[0] * T(wy[0]));
        for (int r = 1; r < n; ++r) v = T(v + T(rowsF[r] * T(wy[r])));
      }
      out[c] = v;
    } else {
      // Halves up (the kernels add half and shift).
      out[c] = Saturated<T>(std::floor(acc + 0.5));
    }
  }
  return true;
}

}  // namespace warpmodel
