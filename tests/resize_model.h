// The resize tests' model: the coordinate tables built from their
// definitions, the per-pixel arithmetic, the spec header, and the set-up
// calls a test needs to run a processing function.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <type_traits>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace resizemodel {

using peltest::Layout;

template <class T>
constexpr int TypeCode() {
  if constexpr (std::is_same_v<T, Pel8u>) return 1;
  else if constexpr (std::is_same_v<T, Pel16u>) return 5;
  else if constexpr (std::is_same_v<T, Pel16s>) return 7;
  else if constexpr (std::is_same_v<T, Pel32f>) return 13;
  else return 19;
}

// ---- Tables --------------------------------------------------------------------

struct Axis {
  std::vector<int> index, weight;
  int negative = 0, pastEnd = 0;
  int64_t srcReduced = 1, dstReduced = 1;
  int64_t SrcOffset(int64_t o) const { return o * srcReduced / dstReduced; }
};

// Pixel centres: position i reads (i + 0.5) src/dst - 0.5; the second tap's
// weight is the Q14 fraction, biased by 1e-7.
inline Axis LinearAxis(int src, int dst) {
  Axis a;
  const int g = std::gcd(src, dst);
  a.srcReduced = src / g;
  a.dstReduced = dst / g;
  const double ratio = double(a.srcReduced) / double(a.dstReduced);
  for (int i = 0; i < dst; ++i) {
    const double s = (i + 0.5) * ratio - 0.5, f = std::floor(s);
    a.index.push_back(int(f));
    a.weight.push_back(int((s - f) * 16384 + 1e-07));
    a.negative += s < 0;
    a.pastEnd += s >= src - 1;
  }
  return a;
}

inline Axis NearestAxis(int src, int dst) {
  Axis a;
  const int g = std::gcd(src, dst);
  a.srcReduced = src / g;
  a.dstReduced = dst / g;
  for (int i = 0; i < dst; ++i) a.index.push_back(int((i + 0.5) * (double(src) / double(dst)) - 1e-10));
  return a;
}

// ---- Scenes ----------------------------------------------------------------------

// How a row derives its images from the tile (the ROI): the full destination
// is the tile plus (ex, ey), the tile sits at (ox, oy), the source is about
// dst x (rx, ry); `frame` pixels of memory surround the source.
struct Variant {
  const char* name;
  int ex, ey, ox, oy;
  double rx, ry;
  int border;
  int frame;
};

struct Scene {
  PeliSize tile, dst, src;
  PeliPoint off;
};

inline Scene MakeScene(const Variant& v, PeliSize tile) {
  Scene s;
  s.tile = tile;
  s.dst = {std::max(1, tile.width + v.ex), std::max(1, tile.height + v.ey)};
  s.off = {std::min(v.ox, s.dst.width - 1), std::min(v.oy, s.dst.height - 1)};
  s.src = {std::max(2, int(s.dst.width * v.rx + 0.5)), std::max(2, int(s.dst.height * v.ry + 0.5))};
  return s;
}

// The scene of the query rows: 37x23 to 50x31.
inline Scene FixedScene() { return {{50, 31}, {50, 31}, {37, 23}, {0, 0}}; }

struct Tables {
  bool linear;
  Axis x, y;
  Tables(const Scene& s, bool lin)
      : linear(lin),
        x(lin ? LinearAxis(s.src.width, s.dst.width) : NearestAxis(s.src.width, s.dst.width)),
        y(lin ? LinearAxis(s.src.height, s.dst.height) : NearestAxis(s.src.height, s.dst.height)) {}
};

// ---- Pixels ------------------------------------------------------------------------

// The only outside positions are -1 and the length: mirrored to 1 and
// length - 2, replicated to 0 and length - 1, or read from memory.
inline int Outside(int i, int len, bool mirror, bool lowInMemory, bool highInMemory) {
  if (i < 0) return lowInMemory ? i : mirror ? 1 : 0;
  if (i >= len) return highInMemory ? i : mirror ? len - 2 : len - 1;
  return i;
}

template <class T>
T ModelPixel(peltest::View<T>& in, const Tables& t, const Scene& s, const Variant& v, int X, int Y, int c) {
  const int f = v.frame;
  if (!t.linear) return in(t.x.index[X] + f, t.y.index[Y] + f, c);
  const bool mirror = (v.border & 15) == 3;
  auto tx = [&](int i) { return f + Outside(i, s.src.width, mirror, v.border & 0x40, v.border & 0x80); };
  auto ty = [&](int i) { return f + Outside(i, s.src.height, mirror, v.border & 0x10, v.border & 0x20); };
  const int x0 = tx(t.x.index[X]), x1 = tx(t.x.index[X] + 1), y0 = ty(t.y.index[Y]), y1 = ty(t.y.index[Y] + 1);
  const int64_t wx = t.x.weight[X], wy = t.y.weight[Y];
  if constexpr (std::is_floating_point_v<T>) {
    const T a0 = T(16384 - wx) / 16384, a1 = T(wx) / 16384, b0 = T(16384 - wy) / 16384, b1 = T(wy) / 16384;
    auto h = [&](int y) {
      const T l = in(x0, y, c) * a0, r = in(x1, y, c) * a1;
      return T(l + r);
    };
    const T u = h(y0) * b0, l = h(y1) * b1;
    return T(u + l);
  } else {
    // 8u: Q6 truncated, then rounded; 16-bit: Q2 rounded, then rounded, on
    // values moved to be non-negative.
    const int64_t bias = std::is_signed_v<T> ? 32768 : 0;
    const bool q6 = sizeof(T) == 1;
    auto h = [&](int y) {
      const int64_t sum = (in(x0, y, c) + bias) * (16384 - wx) + (in(x1, y, c) + bias) * wx;
      return q6 ? sum >> 8 : (sum + 2048) >> 12;
    };
    const int64_t sum = h(y0) * (16384 - wy) + h(y1) * wy;
    return T((q6 ? (sum + (1 << 19)) >> 20 : (sum + 32768) >> 16) - bias);
  }
}

// ---- Sizes --------------------------------------------------------------------------

inline int64_t A(int64_t n) { return (n + 31) / 32 * 32; }

struct Sizes {
  int64_t spec, init;
};

inline Sizes SpecSizes(int code, bool aa, PeliSize src, PeliSize dst) {
  const int64_t tables = A(dst.width) + A(dst.height);
  const int taps = code == 2 ? 2 : code == 6 ? 4 : 6;
  if (aa && code != 1 && code != 8) {
    auto axis = [&](int64_t s, int64_t d) { return 4 * A(d) + 4 * A(taps * std::max<int64_t>(1, (s + d - 1) / d) * d); };
    return {264 + axis(src.width, dst.width) + axis(src.height, dst.height), 4 * tables};
  }
  if (code == 1) return {tables * 4 + 264, 0};
  if (code == 2) return {tables * 8 + 264, 0};
  if (code == 8) return {tables * 4 + (A(src.width) + A(src.height)) * 8 + 264, 0};
  const int64_t pad = code == 6 ? 127 : 191;
  const int64_t w = ((taps * int64_t(dst.width) + pad) / 32 * 32) + ((taps * int64_t(dst.height) + pad) / 32 * 32);
  return {4 * w + 4 * tables + 264, 4 * tables};
}

inline int64_t BufferBytes(bool linear, int64_t w, int64_t c) {
  return linear ? 48 * w * c + 8 * w + 640 : 24 * w * c + 4 * w + 384;
}

// The header words and the tables an Init writes, as bytes (table places
// are byte offsets from the header).
inline int SpecContentBytes(bool linear, PeliSize d) {
  return 200 + (linear ? 8 * d.width + 6 * d.height : 4 * (d.width + d.height));
}

inline std::vector<uint8_t> SpecContents(bool linear, int type, PeliSize src, PeliSize dst) {
  std::vector<uint8_t> bytes(size_t(SpecContentBytes(linear, dst)), 0);
  int32_t w[50] = {0x4B617389, linear ? 7 : type == 19 ? 19 : 13, linear ? 2 : 1, linear, linear, 0,
                   linear, linear, linear, linear};
  const int yIndex = 200, xIndex = yIndex + 4 * dst.height;
  const int yWeight = xIndex + 4 * dst.width, xWeight = yWeight + 2 * dst.height;
  auto put = [&](int at, const void* p, size_t n) { std::memcpy(bytes.data() + at, p, n); };
  auto axis = [&](int block, int s, int d, int index, int weight) {
    const Axis a = linear ? LinearAxis(s, d) : NearestAxis(s, d);
    const int32_t head[12] = {s, d, int32_t(a.srcReduced), int32_t(a.dstReduced), index, 0, 0,
                              linear ? weight : 0, 0, a.negative, a.pastEnd, 0};
    std::copy(head, head + 12, w + block);
    put(index, a.index.data(), 4 * size_t(d));
    for (int i = 0; linear && i < d; ++i) {
      const int16_t pair[2] = {int16_t(16384 - a.weight[i]), int16_t(a.weight[i])};
      if (block == 10) put(weight + 2 * i, &pair[1], 2);
      else put(weight + 4 * i, pair, 4);
    }
  };
  axis(10, src.height, dst.height, yIndex, yWeight);
  axis(22, src.width, dst.width, xIndex, xWeight);
  const int32_t tail[7] = {linear ? (type == 1 ? 1 : 0) : 2, 0, src.width, src.height, dst.width, dst.height, linear};
  std::copy(tail, tail + 7, w + 34);
  put(0, w, 200);
  return bytes;
}

// The source region of one axis of a tile [o, o + n), clipped.
inline void SrcRoi(const Axis& a, int o, int n, int srcLen, int64_t* start, int64_t* len) {
  const int dstLen = int(a.index.size());
  n = std::min(n, dstLen - o);
  *start = a.SrcOffset(o);
  *len = o + n == dstLen ? srcLen - *start : a.index[size_t(o + n - 1)] - *start + 1;
}

// ---- The library's functions ------------------------------------------------------

// The set-up and query functions of one element type, or the _L forms, behind
// one signature: results through void pointers (int or PelIntL, PeliPoint or
// PeliPointL), `type` used by the _L forms only.
struct Api {
  std::string token;  // "8u" .. "64f", or "L"
  bool L;
  int type;
  std::function<PelStatus(PeliSize, PeliSize, int type, int code, uint32_t aa, void*, void*)> getSize;
  std::function<PelStatus(PeliSize, PeliSize, int type, PeliResizeSpec*)> nearestInit, linearInit;
  std::function<PelStatus(const PeliResizeSpec*, PeliSize, uint32_t, void*)> bufferSize;
  std::function<PelStatus(const PeliResizeSpec*, PeliBorderSize*)> border;
  std::function<PelStatus(const PeliResizeSpec*, PeliPoint, void*)> srcOffset;
  std::function<PelStatus(const PeliResizeSpec*, PeliPoint, PeliSize, void*, void*)> srcRoi;
};
// 8u, 16u, 16s, 32f, 64f, then L.
const std::vector<Api>& Apis();
const Api& ApiOf(int type, bool L);

// A spec (at an odd address, so that Init must find its aligned start) and a
// work buffer of exactly the reported sizes.
class Built {
 public:
  Built(const Scene& s, bool linear, int C = 1, int type = 1, bool L = false);
  PeliResizeSpec* Spec() { return reinterpret_cast<PeliResizeSpec*>(spec_.data() + 13); }
  Pel8u* Buffer() { return buffer_.data(); }
  int32_t* Words() {
    const auto a = reinterpret_cast<uintptr_t>(Spec());
    return reinterpret_cast<int32_t*>(a + ((0 - a) & 63));
  }
  PeliPoint SrcOffset(PeliPoint dstOffset);

 private:
  const Api* api_;
  std::vector<uint8_t> spec_, buffer_;
};

// A processing export behind one signature, on bytes: (src, srcStep, dst,
// dstStep, offset, tile, border, spec, buffer); the nearest ones ignore the
// border.
using Process = std::function<PelStatus(const void*, int, void*, int, PeliPoint, PeliSize, int,
                                        const PeliResizeSpec*, Pel8u*)>;
template <class T, class F>
Process Adapt(F fn) {
  return [fn](const void* s, int ss, void* d, int ds, PeliPoint o, PeliSize t, int b, const PeliResizeSpec* sp,
              Pel8u* buf) {
    const auto* src = static_cast<const T*>(s);
    auto* dst = static_cast<T*>(d);
    const PeliPointL oL{o.x, o.y};
    const PeliSizeL tL{t.width, t.height};
    if constexpr (std::is_invocable_v<F, const T*, int, T*, int, PeliPoint, PeliSize, const PeliResizeSpec*, Pel8u*>)
      return fn(src, ss, dst, ds, o, t, sp, buf);
    else if constexpr (std::is_invocable_v<F, const T*, PelIntL, T*, PelIntL, PeliPointL, PeliSizeL,
                                           const PeliResizeSpec*, Pel8u*>)
      return fn(src, ss, dst, ds, oL, tL, sp, buf);
    else if constexpr (std::is_invocable_v<F, const T*, int, T*, int, PeliPoint, PeliSize, int, const T*,
                                           const PeliResizeSpec*, Pel8u*>)
      return fn(src, ss, dst, ds, o, t, b, nullptr, sp, buf);
    else
      return fn(src, ss, dst, ds, oL, tL, b, nullptr, sp, buf);
  };
}

// Tiles for the processing rows: widths around the plan blocks and vector
// sizes, heights that reuse lines and skip rows, padded, offset and bottom-up
// images, and images flush against an inaccessible page.
std::vector<Layout> ResizeShapes(int channels);
std::vector<Layout> QueryShapes();

template <class T>
T* AddBytesTo(T* p, ptrdiff_t bytes) {
  return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) + static_cast<uintptr_t>(bytes));
}

}  // namespace resizemodel
