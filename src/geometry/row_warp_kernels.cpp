// Vector row kernels of the warps, compiled once per instruction set by
// Highway. The baseline target runs the scalar reference, so PEL_CPU=scalar
// gives exactly that.
//
// Coordinates: the reference's double arithmetic lane by lane (a multiply,
// an add, a division for perspective, floor), so every lane holds the
// reference's value whatever the vector width. Pixels: where every tap of a
// pixel lies inside the source with room for a 32-bit read past it, the taps
// are gathered per channel and blended in 32-bit lanes (8u: the integer
// arithmetic of the reference; 32f: one float rounding per product and per
// sum, never fused, family.cmake). Pixels near or past the source's edges,
// the other types and cubic run the reference.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "geometry/row_warp_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include "geometry/row_warp_kernels.h"
#include "geometry/warp_scalar.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::geometry::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void WarpRowTarget(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow, const WarpCoords& c) {
  scalar::Row(f, y, x0, n, dstRow, c);
}

#else

using scalar::kFar;
using scalar::kOne;

void Coordinates(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, const WarpCoords& c) {
  const hn::ScalableTag<double> dd;
  const hn::Rebind<int32_t, decltype(dd)> di;
  const int64_t N = int64_t(hn::Lanes(dd));
  const double(*b)[3] = f.back;
  const double yd = double(y);
  const auto rowX = hn::Set(dd, b[0][1] * yd + b[0][2]), rowY = hn::Set(dd, b[1][1] * yd + b[1][2]);
  const auto rowW = hn::Set(dd, b[2][1] * yd + b[2][2]);
  const auto b00 = hn::Set(dd, b[0][0]), b10 = hn::Set(dd, b[1][0]), b20 = hn::Set(dd, b[2][0]);
  const auto far = hn::Set(dd, kFar), nearFar = hn::Set(dd, -kFar), one = hn::Set(dd, double(kOne));
  const auto inv = hn::Set(dd, 1.0 / kOne), half = hn::Set(dd, 0.5);
  const auto iota = hn::Iota(dd, 0.0);
  const bool nearest = f.method == pelInterpolationNearest;
  auto hold = [&](auto s) { return hn::IfThenElse(hn::Gt(s, far), far, hn::IfThenElse(hn::Ge(s, nearFar), s, nearFar)); };
  int64_t i = 0;
  for (; i + N <= n; i += N) {
    const auto xd = hn::Add(hn::Set(dd, double(x0 + i)), iota);
    auto sx = hn::Add(hn::Mul(b00, xd), rowX), sy = hn::Add(hn::Mul(b10, xd), rowY);
    if (f.perspective) {
      const auto w = hn::Add(hn::Mul(b20, xd), rowW);
      const auto front = hn::Gt(w, hn::Zero(dd));
      sx = hn::IfThenElse(front, hn::Div(sx, w), nearFar);
      sy = hn::IfThenElse(front, hn::Div(sy, w), nearFar);
    }
    const auto X = hn::Floor(hn::Add(hn::Mul(hold(sx), one), half));
    const auto Y = hn::Floor(hn::Add(hn::Mul(hold(sy), one), half));
    if (nearest) {
      hn::StoreU(hn::DemoteTo(di, hn::Floor(hn::Add(hn::Mul(X, inv), half))), di, c.xi + i);
      hn::StoreU(hn::DemoteTo(di, hn::Floor(hn::Add(hn::Mul(Y, inv), half))), di, c.yi + i);
      hn::StoreU(hn::Zero(di), di, c.fx + i);
      hn::StoreU(hn::Zero(di), di, c.fy + i);
    } else {
      const auto xi = hn::Floor(hn::Mul(X, inv)), yi = hn::Floor(hn::Mul(Y, inv));
      hn::StoreU(hn::DemoteTo(di, xi), di, c.xi + i);
      hn::StoreU(hn::DemoteTo(di, yi), di, c.yi + i);
      hn::StoreU(hn::DemoteTo(di, hn::Sub(X, hn::Mul(xi, one))), di, c.fx + i);
      hn::StoreU(hn::DemoteTo(di, hn::Sub(Y, hn::Mul(yi, one))), di, c.fy + i);
    }
  }
  if (i < n) scalar::Coordinates(f, y, x0 + i, n - i, {c.xi + i, c.yi + i, c.fx + i, c.fy + i});
}

// ---- Coordinates kept in registers ------------------------------------------

using DD = hn::ScalableTag<double>;
using DI = hn::Repartition<int32_t, DD>;  // a block: twice the lanes of a double vector
using DU = hn::RebindToUnsigned<DI>;
using VI = hn::Vec<DI>;
using VU = hn::Vec<DU>;

// A block's sources need no more than 20 bits of pixels, so the vector
// kernels hold coordinates to +-2^20 instead of 2^30, which keeps 1/1024
// pixel in int32 lanes. Both holds put a pixel this far out beyond every tap
// of the source, where it reads the same constant or the same clamped pixel.
constexpr double kNear = 1048576.0;
constexpr int64_t kBlockSourceLimit = (int64_t(1) << 20) - 16;

// The reference's coordinates (1/1024 pixel) of a block of pixels of one row.
class RowMap {
 public:
  RowMap(const WarpFrame& f, int64_t y) : perspective_(f.perspective) {
    const DD dd;
    const double(*b)[3] = f.back;
    const double yd = double(y);
    rowX_ = hn::Set(dd, b[0][1] * yd + b[0][2]);
    rowY_ = hn::Set(dd, b[1][1] * yd + b[1][2]);
    rowW_ = hn::Set(dd, b[2][1] * yd + b[2][2]);
    b00_ = hn::Set(dd, b[0][0]), b10_ = hn::Set(dd, b[1][0]), b20_ = hn::Set(dd, b[2][0]);
  }

  // X and Y of pixels x .. x + Lanes(DI) - 1 (absolute x).
  HWY_INLINE void Map(int64_t x, VI& X, VI& Y) const {
    const DD dd;
    const hn::Half<DI> dh;
    const DI di;
    const auto lo = hn::Add(hn::Set(dd, double(x)), hn::Iota(dd, 0.0));
    const auto hi = hn::Add(lo, hn::Set(dd, double(hn::Lanes(dd))));
    hn::Vec<decltype(dh)> xl, yl, xh, yh;
    Half(lo, xl, yl);
    Half(hi, xh, yh);
    X = hn::Combine(di, xh, xl);
    Y = hn::Combine(di, yh, yl);
  }

 private:
  template <class VD, class VH>
  HWY_INLINE void Half(VD xd, VH& X, VH& Y) const {
    const DD dd;
    const hn::Rebind<int32_t, DD> dh;
    auto sx = hn::Add(hn::Mul(b00_, xd), rowX_), sy = hn::Add(hn::Mul(b10_, xd), rowY_);
    if (perspective_) {
      const auto w = hn::Add(hn::Mul(b20_, xd), rowW_);
      const auto front = hn::Gt(w, hn::Zero(dd));
      sx = hn::IfThenElse(front, hn::Div(sx, w), hn::Set(dd, -kNear));
      sy = hn::IfThenElse(front, hn::Div(sy, w), hn::Set(dd, -kNear));
    }
    const auto lim = hn::Set(dd, kNear), one = hn::Set(dd, double(kOne)), half = hn::Set(dd, 0.5);
    // NaN fails the comparison and goes far left, as in the reference.
    auto fixed = [&](VD s) {
      s = hn::IfThenElse(hn::Ge(s, hn::Neg(lim)), hn::Min(s, lim), hn::Neg(lim));
      return hn::DemoteTo(dh, hn::Floor(hn::Add(hn::Mul(s, one), half)));
    };
    X = fixed(sx);
    Y = fixed(sy);
  }

  bool perspective_;
  hn::Vec<DD> rowX_, rowY_, rowW_, b00_, b10_, b20_;
};

// A block the vector kernels leave to the reference (kind 7 near the edges,
// a row shorter than a block).
inline void ReferenceBlock(const WarpFrame& f, int64_t y, int64_t x, int64_t n, uint8_t* dst) {
  alignas(64) int32_t w[4][hn::MaxLanes(DI())];
  const WarpCoords c{w[0], w[1], w[2], w[3]};
  scalar::Coordinates(f, y, x, n, c);
  scalar::Pixels(f, c, 0, n, dst);
}

// ---- 8u -----------------------------------------------------------------------

// Bytes of a row of 8u pixels read as 32-bit words: the word that starts at
// column byte `col`, or for the last bytes of the readable row the last word
// of it shifted down, so that no read passes the row's end.
class Words8u {
 public:
  Words8u(const WarpFrame& f, int C)
      : base_(reinterpret_cast<const uint32_t*>(f.src)), last_(hn::Set(DI(), int32_t((f.hiX + 1) * C - 4))) {}
  HWY_INLINE VU At(VI row, VI col) const {
    const DU du;
    const auto start = hn::Min(col, last_);
    const auto word = hn::GatherOffset(du, base_, hn::Add(row, start));
    return hn::Shr(word, hn::BitCast(du, hn::ShiftLeft<3>(hn::Sub(col, start))));
  }

 private:
  const uint32_t* base_;
  VI last_;
};

template <int C>
HWY_INLINE void Store8u(const VI (&r)[C], uint8_t* out) {
  const DI di;
  const hn::Rebind<uint8_t, DI> d8;
  if constexpr (C == 1) {
    hn::StoreU(hn::DemoteTo(d8, r[0]), d8, out);
  } else if constexpr (C == 3) {
    hn::StoreInterleaved3(hn::DemoteTo(d8, r[0]), hn::DemoteTo(d8, r[1]), hn::DemoteTo(d8, r[2]), d8, out);
  } else {
    const auto packed = hn::Or(hn::Or(r[0], hn::ShiftLeft<8>(r[1])), hn::Or(hn::ShiftLeft<16>(r[2]), hn::ShiftLeft<24>(r[3])));
    const hn::Repartition<uint8_t, DI> db;
    hn::StoreU(hn::BitCast(db, packed), db, out);
  }
}

// (top << 10 + (bottom - top) fy + 2^19) >> 20 with top and bottom the
// rows' Q10 blends: the reference's integer linear interpolation.
HWY_INLINE VI Blend8u(VI p00, VI p01, VI p10, VI p11, VI fx, VI fy) {
  const auto top = hn::Add(hn::ShiftLeft<10>(p00), hn::Mul(hn::Sub(p01, p00), fx));
  const auto bottom = hn::Add(hn::ShiftLeft<10>(p10), hn::Mul(hn::Sub(p11, p10), fx));
  return hn::ShiftRight<20>(
      hn::Add(hn::Add(hn::ShiftLeft<10>(top), hn::Mul(hn::Sub(bottom, top), fy)), hn::Set(DI(), 1 << 19)));
}

// One row of 8u pixels, nearest or linear, a block at a time. Blocks whose
// taps all lie inside read them directly (1 channel: both taps of a row in
// one word); other blocks clamp each tap into the readable region and, for
// the constant border, take the constant where a tap lies outside, which is
// what the reference does tap by tap. Border kind 7 sends those blocks to the
// reference.
template <int C, bool kLinear>
void Row8u(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dst) {
  const DI di;
  const int64_t N = int64_t(hn::Lanes(di));
  if (n < N) return ReferenceBlock(f, y, x0, n, dst);
  const RowMap map(f, y);
  const Words8u words(f, C);
  const auto step = hn::Set(di, int32_t(f.srcStep));
  const auto loX = hn::Set(di, int32_t(f.loX)), hiX = hn::Set(di, int32_t(f.hiX));
  const auto loY = hn::Set(di, int32_t(f.loY)), hiY = hn::Set(di, int32_t(f.hiY));
  const auto oneI = hn::Set(di, 1), frac = hn::Set(di, kOne - 1), byte = hn::Set(di, 0xFF);
  const bool constant = f.kind == pelBorderConstant, leave = f.kind == 7;
  VI value[C];
  for (int k = 0; k < C; ++k) value[k] = hn::Set(di, f.borderPixel[k]);
  auto channel = [&](VU w, int k) { return hn::And(hn::BitCast(di, hn::ShiftRightSame(w, 8 * k)), byte); };
  auto inside = [&](VI v, VI lo, VI hi) { return hn::Not(hn::Or(hn::Lt(v, lo), hn::Gt(v, hi))); };
  for (int64_t i = 0;; i += N) {
    // The last block ends at the row's end; it may redo pixels of the one before.
    if (i + N > n) {
      if (i >= n) break;
      i = n - N;
    }
    VI X, Y;
    map.Map(x0 + i, X, Y);
    VI r[C];
    if constexpr (kLinear) {
      const auto xi = hn::ShiftRight<10>(X), yi = hn::ShiftRight<10>(Y);
      const auto fx = hn::And(X, frac), fy = hn::And(Y, frac);
      const auto xn = hn::Add(xi, oneI), yn = hn::Add(yi, oneI);
      const auto in = hn::And(inside(xi, loX, hn::Sub(hiX, oneI)), inside(yi, loY, hn::Sub(hiY, oneI)));
      if (hn::AllTrue(di, in)) {
        const auto row = hn::Mul(yi, step), col = hn::Mul(xi, hn::Set(di, C));
        if constexpr (C == 1) {
          const auto top = words.At(row, col), bottom = words.At(hn::Add(row, step), col);
          r[0] = Blend8u(channel(top, 0), channel(top, 1), channel(bottom, 0), channel(bottom, 1), fx, fy);
        } else {
          const auto colN = hn::Add(col, hn::Set(di, C)), rowN = hn::Add(row, step);
          const auto w00 = words.At(row, col), w01 = words.At(row, colN);
          const auto w10 = words.At(rowN, col), w11 = words.At(rowN, colN);
          for (int k = 0; k < C; ++k)
            r[k] = Blend8u(channel(w00, k), channel(w01, k), channel(w10, k), channel(w11, k), fx, fy);
        }
      } else if (leave) {
        ReferenceBlock(f, y, x0 + i, N, dst + i * C);
        continue;
      } else {
        const auto x0c = hn::Min(hn::Max(xi, loX), hiX), x1c = hn::Min(hn::Max(xn, loX), hiX);
        const auto r0 = hn::Mul(hn::Min(hn::Max(yi, loY), hiY), step), r1 = hn::Mul(hn::Min(hn::Max(yn, loY), hiY), step);
        const auto c0 = hn::Mul(x0c, hn::Set(di, C)), c1 = hn::Mul(x1c, hn::Set(di, C));
        const auto w00 = words.At(r0, c0), w01 = words.At(r0, c1), w10 = words.At(r1, c0), w11 = words.At(r1, c1);
        const auto in0 = inside(xi, loX, hiX), in1 = inside(xn, loX, hiX);
        const auto top = inside(yi, loY, hiY), bottom = inside(yn, loY, hiY);
        for (int k = 0; k < C; ++k) {
          auto p00 = channel(w00, k), p01 = channel(w01, k), p10 = channel(w10, k), p11 = channel(w11, k);
          if (constant) {
            p00 = hn::IfThenElse(hn::And(in0, top), p00, value[k]);
            p01 = hn::IfThenElse(hn::And(in1, top), p01, value[k]);
            p10 = hn::IfThenElse(hn::And(in0, bottom), p10, value[k]);
            p11 = hn::IfThenElse(hn::And(in1, bottom), p11, value[k]);
          }
          r[k] = Blend8u(p00, p01, p10, p11, fx, fy);
        }
      }
    } else {
      const auto half = hn::Set(di, kOne / 2);
      const auto xi = hn::ShiftRight<10>(hn::Add(X, half)), yi = hn::ShiftRight<10>(hn::Add(Y, half));
      const auto in = hn::And(inside(xi, loX, hiX), inside(yi, loY, hiY));
      const bool all = hn::AllTrue(di, in);
      if (!all && leave) {
        ReferenceBlock(f, y, x0 + i, N, dst + i * C);
        continue;
      }
      const auto row = hn::Mul(hn::Min(hn::Max(yi, loY), hiY), step);
      const auto col = hn::Mul(hn::Min(hn::Max(xi, loX), hiX), hn::Set(di, C));
      const auto w = words.At(row, col);
      for (int k = 0; k < C; ++k) {
        r[k] = channel(w, k);
        if (constant && !all) r[k] = hn::IfThenElse(in, r[k], value[k]);
      }
    }
    Store8u<C>(r, dst + i * C);
  }
}

// ---- Pixels well inside the source -------------------------------------------

// 8u: each channel's taps read as 32-bit words (the channel in the low byte).
template <int C, bool kLinear>
void Inside8u(const WarpFrame& f, const WarpCoords& c, int64_t a, int64_t b, uint8_t* dstRow) {
  const hn::ScalableTag<int32_t> d;
  const int64_t N = int64_t(hn::Lanes(d));
  const int32_t* base = reinterpret_cast<const int32_t*>(f.src);
  const auto step = hn::Set(d, int32_t(f.srcStep)), ch = hn::Set(d, C), low = hn::Set(d, 0xFF);
  const auto round = hn::Set(d, 1 << 19);
  int64_t i = a;
  for (; i + N <= b; i += N) {
    const auto xi = hn::LoadU(d, c.xi + i), yi = hn::LoadU(d, c.yi + i);
    const auto off = hn::Add(hn::Mul(yi, step), hn::Mul(xi, ch));
    hn::Vec<decltype(d)> r[C];
    for (int k = 0; k < C; ++k) {
      const auto o = hn::Add(off, hn::Set(d, k));
      const auto p00 = hn::And(hn::GatherOffset(d, base, o), low);
      if constexpr (!kLinear) {
        r[k] = p00;
      } else {
        const auto fx = hn::LoadU(d, c.fx + i), fy = hn::LoadU(d, c.fy + i);
        const auto p01 = hn::And(hn::GatherOffset(d, base, hn::Add(o, ch)), low);
        const auto ob = hn::Add(o, step);
        const auto p10 = hn::And(hn::GatherOffset(d, base, ob), low);
        const auto p11 = hn::And(hn::GatherOffset(d, base, hn::Add(ob, ch)), low);
        const auto top = hn::Add(hn::ShiftLeft<10>(p00), hn::Mul(hn::Sub(p01, p00), fx));
        const auto bottom = hn::Add(hn::ShiftLeft<10>(p10), hn::Mul(hn::Sub(p11, p10), fx));
        r[k] = hn::ShiftRight<20>(hn::Add(hn::Add(hn::ShiftLeft<10>(top), hn::Mul(hn::Sub(bottom, top), fy)), round));
      }
    }
    uint8_t* out = dstRow + i * C;
    if constexpr (C == 1) {
      const hn::Rebind<uint8_t, decltype(d)> d8;
      hn::StoreU(hn::DemoteTo(d8, r[0]), d8, out);
    } else {
      auto packed = hn::Or(r[0], hn::Or(hn::ShiftLeft<8>(r[1]), hn::ShiftLeft<16>(r[2])));
      if constexpr (C == 4) {
        packed = hn::Or(packed, hn::ShiftLeft<24>(r[3]));
        hn::StoreU(hn::BitCast(hn::Repartition<uint8_t, decltype(d)>(), packed), hn::Repartition<uint8_t, decltype(d)>(), out);
      } else {
        alignas(64) int32_t lanes[hn::MaxLanes(d)];
        hn::Store(packed, d, lanes);
        for (int64_t k = 0; k < N; ++k) std::memcpy(out + 3 * k, &lanes[k], 3);
      }
    }
  }
  if (i < b) scalar::Pixels(f, c, i, b, dstRow);
}

// 32f: each channel's taps gathered as floats.
template <int C, bool kLinear>
void Inside32f(const WarpFrame& f, const WarpCoords& c, int64_t a, int64_t b, uint8_t* dstRow) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> d;
  const int64_t N = int64_t(hn::Lanes(d));
  const float* base = reinterpret_cast<const float*>(f.src);
  const auto step = hn::Set(d, int32_t(f.srcStep)), pixel = hn::Set(d, 4 * C);
  const auto one = hn::Set(df, 1.0f), inv = hn::Set(df, 1.0f / kOne);
  int64_t i = a;
  for (; i + N <= b; i += N) {
    const auto xi = hn::LoadU(d, c.xi + i), yi = hn::LoadU(d, c.yi + i);
    const auto off = hn::Add(hn::Mul(yi, step), hn::Mul(xi, pixel));
    hn::Vec<decltype(df)> r[4];
    for (int k = 0; k < C; ++k) {
      const auto o = hn::Add(off, hn::Set(d, 4 * k));
      const auto p00 = hn::GatherOffset(df, base, o);
      if constexpr (!kLinear) {
        r[k] = p00;
      } else {
        const auto fx = hn::LoadU(d, c.fx + i), fy = hn::LoadU(d, c.fy + i);
        // A tap of weight 0 is the pixel itself, as in the reference.
        const auto right = hn::IfThenElseZero(hn::Ne(fx, hn::Zero(d)), pixel);
        const auto down = hn::IfThenElseZero(hn::Ne(fy, hn::Zero(d)), step);
        const auto p01 = hn::GatherOffset(df, base, hn::Add(o, right));
        const auto ob = hn::Add(o, down);
        const auto p10 = hn::GatherOffset(df, base, ob);
        const auto p11 = hn::GatherOffset(df, base, hn::Add(ob, right));
        const auto wx1 = hn::Mul(hn::ConvertTo(df, fx), inv), wy1 = hn::Mul(hn::ConvertTo(df, fy), inv);
        const auto wx0 = hn::Sub(one, wx1), wy0 = hn::Sub(one, wy1);
        const auto top = hn::Add(hn::Mul(p00, wx0), hn::Mul(p01, wx1));
        const auto bottom = hn::Add(hn::Mul(p10, wx0), hn::Mul(p11, wx1));
        r[k] = hn::Add(hn::Mul(top, wy0), hn::Mul(bottom, wy1));
      }
    }
    float* out = reinterpret_cast<float*>(dstRow) + i * C;
    if constexpr (C == 1) hn::StoreU(r[0], df, out);
    else if constexpr (C == 3) hn::StoreInterleaved3(r[0], r[1], r[2], df, out);
    else hn::StoreInterleaved4(r[0], r[1], r[2], r[3], df, out);
  }
  if (i < b) scalar::Pixels(f, c, i, b, dstRow);
}

using InsideFn = void (*)(const WarpFrame&, const WarpCoords&, int64_t, int64_t, uint8_t*);

template <bool kLinear>
InsideFn InsideKernel(int elem, int channels) {
  if (elem == kWarp8u) {
    if (channels == 1) return Inside8u<1, kLinear>;
    if (channels == 3) return Inside8u<3, kLinear>;
    return Inside8u<4, kLinear>;
  }
  if (channels == 1) return Inside32f<1, kLinear>;
  if (channels == 3) return Inside32f<3, kLinear>;
  return Inside32f<4, kLinear>;
}

void WarpRowTarget(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow, const WarpCoords& c) {
  const bool blocks = f.offsets32 && f.method != 6 && f.srcWidth <= kBlockSourceLimit &&
                      f.srcHeight <= kBlockSourceLimit && (f.hiX - f.loX + 1) * f.channels >= 4;
  if (blocks && f.elem == kWarp8u) {
    const bool linear = f.method == pelInterpolationLinear;
    switch (f.channels) {
      case 1: return linear ? Row8u<1, true>(f, y, x0, n, dstRow) : Row8u<1, false>(f, y, x0, n, dstRow);
      case 3: return linear ? Row8u<3, true>(f, y, x0, n, dstRow) : Row8u<3, false>(f, y, x0, n, dstRow);
      default: return linear ? Row8u<4, true>(f, y, x0, n, dstRow) : Row8u<4, false>(f, y, x0, n, dstRow);
    }
  }
  Coordinates(f, y, x0, n, c);
  const bool vector = f.offsets32 && (f.elem == kWarp8u || f.elem == kWarp32f) && f.method != 6;
  if (!vector) return scalar::Pixels(f, c, 0, n, dstRow);
  const bool linear = f.method == pelInterpolationLinear;
  const InsideFn inside = linear ? InsideKernel<true>(f.elem, f.channels) : InsideKernel<false>(f.elem, f.channels);
  // Room the 32-bit reads need past a pixel's last tap: 8u reads three bytes
  // past a channel.
  const int32_t past = f.elem == kWarp8u ? (3 + f.channels - 1) / f.channels : 0;
  const int64_t hiX = f.srcWidth - 1 - past - (linear ? 1 : 0), hiY = f.srcHeight - 1 - (linear ? 1 : 0);
  auto fast = [&](int64_t i) { return c.xi[i] >= 0 && c.xi[i] <= hiX && c.yi[i] >= 0 && c.yi[i] <= hiY; };
  for (int64_t i = 0; i < n;) {
    const bool in = fast(i);
    int64_t j = i + 1;
    while (j < n && fast(j) == in) ++j;
    if (in) inside(f, c, i, j, dstRow);
    else scalar::Pixels(f, c, i, j, dstRow);
    i = j;
  }
}

#endif

}  // namespace pel::geometry::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::geometry {
HWY_EXPORT(WarpRowTarget);
void WarpRow(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow, const WarpCoords& c) {
  HWY_DYNAMIC_DISPATCH(WarpRowTarget)(f, y, x0, n, dstRow, c);
}
}  // namespace pel::geometry
#endif
