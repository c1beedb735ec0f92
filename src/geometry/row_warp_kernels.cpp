// Vector row kernels of the warps, compiled once per instruction set by
// Highway. The baseline target runs the scalar reference, so PEL_CPU=scalar
// gives exactly that.
//
// A row goes a block of pixels at a time (twice the lanes of a double
// vector), its coordinates never leaving registers: affine adds the row term
// to the call's table of column terms, perspective does the reference's
// double arithmetic lane by lane. A block whose taps all lie inside reads
// them directly; other blocks clamp each tap into the readable region and
// take the constant where it lies outside, as the reference does tap by tap
// (border kind 7 sends them to the reference). 8u blends in 32-bit lanes
// with the reference's integer arithmetic; 32f with one float rounding per
// product and per sum, never fused (family.cmake).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "geometry/row_warp_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <cmath>

#include "geometry/row_warp_kernels.h"
#include "geometry/warp_scalar.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::geometry::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void WarpRowTarget(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow) {
  scalar::Row(f, y, x0, n, dstRow);
}

#else

using scalar::kFar;
using scalar::kOne;

// ---- Coordinates kept in registers ------------------------------------------

using DD = hn::ScalableTag<double>;
using DI = hn::Repartition<int32_t, DD>;  // a block: twice the lanes of a double vector
using DU = hn::RebindToUnsigned<DI>;
using VI = hn::Vec<DI>;
using VU = hn::Vec<DU>;

// Perspective blocks hold coordinates to +-2^20 pixels instead of 2^30,
// which keeps 1/1024 pixel in int32 lanes: a source of these kernels is
// smaller, so both holds put such a pixel beyond every tap, where it reads
// the same constant or the same clamped pixel.
constexpr double kNear = 1048576.0;
constexpr int64_t kBlockSourceLimit = (int64_t(1) << 20) - 16;
constexpr int64_t kTermLimit = int64_t(1) << 30;

// The reference's fixed-point coordinates of a block of pixels of one row.
class RowMap {
 public:
  // An affine row runs in int32 lanes when the call has its column table and
  // the row's terms fit 30 bits: the sums then fit 31.
  static bool Fits(const WarpFrame& f, int64_t y) {
    if (f.columnX == nullptr) return false;
    const int64_t tx = scalar::RowTermX(f, y), ty = scalar::RowTermY(f, y);
    return tx > -kTermLimit && tx < kTermLimit && ty > -kTermLimit && ty < kTermLimit;
  }

  RowMap(const WarpFrame& f, int64_t y) : f_(f) {
    const DD dd;
    const double(*b)[3] = f.back;
    const double yd = double(y);
    if (f.perspective) {
      rowX_ = hn::Set(dd, b[0][1] * yd + b[0][2]);
      rowY_ = hn::Set(dd, b[1][1] * yd + b[1][2]);
      rowW_ = hn::Set(dd, b[2][1] * yd + b[2][2]);
      b00_ = hn::Set(dd, b[0][0]), b10_ = hn::Set(dd, b[1][0]), b20_ = hn::Set(dd, b[2][0]);
    } else {
      termX_ = hn::Set(DI(), int32_t(scalar::RowTermX(f, y)));
      termY_ = hn::Set(DI(), int32_t(scalar::RowTermY(f, y)));
    }
  }

  // X and Y of pixels x .. x + Lanes(DI) - 1 (absolute x).
  HWY_INLINE void Map(int64_t x, VI& X, VI& Y) const {
    const DI di;
    if (!f_.perspective) {
      const int64_t at = x - f_.columnsX0;
      X = hn::Add(hn::LoadU(di, f_.columnX + at), termX_);
      Y = hn::Add(hn::LoadU(di, f_.columnY + at), termY_);
      return;
    }
    const DD dd;
    const hn::Half<DI> dh;
    const auto lo = hn::Add(hn::Set(dd, double(x)), hn::Iota(dd, 0.0));
    const auto hi = hn::Add(lo, hn::Set(dd, double(hn::Lanes(dd))));
    hn::Vec<decltype(dh)> xl, yl, xh, yh;
    Projected(lo, xl, yl);
    Projected(hi, xh, yh);
    X = hn::Combine(di, xh, xl);
    Y = hn::Combine(di, yh, yl);
  }

 private:
  template <class VD, class VH>
  HWY_INLINE void Projected(VD xd, VH& X, VH& Y) const {
    const DD dd;
    const hn::Rebind<int32_t, DD> dh;
    const auto w = hn::Add(hn::Mul(b20_, xd), rowW_);
    const auto front = hn::Gt(w, hn::Zero(dd));
    const auto k = hn::Div(hn::Set(dd, double(kOne)), w);
    const auto lim = hn::Set(dd, kNear * kOne), half = hn::Set(dd, 0.5);
    // NaN fails the comparison and goes far left, as in the reference.
    auto fixed = [&](VD s) {
      s = hn::IfThenElse(front, hn::Mul(s, k), hn::Neg(lim));
      s = hn::IfThenElse(hn::Ge(s, hn::Neg(lim)), hn::Min(s, lim), hn::Neg(lim));
      return hn::DemoteTo(dh, hn::Floor(hn::Add(s, half)));
    };
    X = fixed(hn::Add(hn::Mul(b00_, xd), rowX_));
    Y = fixed(hn::Add(hn::Mul(b10_, xd), rowY_));
  }

  const WarpFrame& f_;
  hn::Vec<DD> rowX_, rowY_, rowW_, b00_, b10_, b20_;
  VI termX_, termY_;
};

// The pixel nearest to a fixed-point position: floor((X + 512) / 1024).
HWY_INLINE VI NearestOf(VI X) { return hn::ShiftRight<10>(hn::Add(X, hn::Set(DI(), kOne / 2))); }

HWY_INLINE hn::Mask<DI> Inside(VI v, VI lo, VI hi) { return hn::Not(hn::Or(hn::Lt(v, lo), hn::Gt(v, hi))); }

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
  // The word at `col` where it is known to end inside the row.
  HWY_INLINE VU Inner(VI row, VI col) const { return hn::GatherOffset(DU(), base_, hn::Add(row, col)); }

 private:
  const uint32_t* base_;
  VI last_;
};

// Where a destination row's pixels read, four rows below: the source bytes
// that the walk reaches then. No hardware prefetcher follows a slanted walk,
// so the blocks ask for them (measured best at four rows on the bench's
// rotations).
inline int64_t AheadBytes(const WarpFrame& f) {
  // Whole rows: a fraction of a row's step would move the address along the row.
  const double rows = std::nearbyint(4 * f.back[1][1]), cols = std::nearbyint(4 * f.back[0][1]);
  const double v = rows * double(f.srcStep) + cols * double(f.channels * f.elemBytes);
  return v > -1073741824.0 && v < 1073741824.0 ? int64_t(v) : 0;
}

HWY_INLINE void Ahead(const WarpFrame& f, int64_t offset) {
  const uintptr_t at = reinterpret_cast<uintptr_t>(f.src) + uintptr_t(offset);
  hwy::Prefetch(reinterpret_cast<const uint8_t*>(at));
  hwy::Prefetch(reinterpret_cast<const uint8_t*>(at + 64));
}

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
  if (n < N) return scalar::Row(f, y, x0, n, dst);
  const RowMap map(f, y);
  const Words8u words(f, C);
  const int64_t ahead = AheadBytes(f);
  const auto step = hn::Set(di, int32_t(f.srcStep));
  const auto loX = hn::Set(di, int32_t(f.loX)), hiX = hn::Set(di, int32_t(f.hiX));
  const auto loY = hn::Set(di, int32_t(f.loY)), hiY = hn::Set(di, int32_t(f.hiY));
  const auto oneI = hn::Set(di, 1), frac = hn::Set(di, kOne - 1), byte = hn::Set(di, 0xFF);
  const bool constant = f.kind == pelBorderConstant, leave = f.kind == 7;
  VI value[C];
  for (int k = 0; k < C; ++k) value[k] = hn::Set(di, f.borderPixel[k]);
  auto channel = [&](VU w, int k) { return hn::And(hn::BitCast(di, hn::ShiftRightSame(w, 8 * k)), byte); };
  // The last block ends at the row's end; it may redo pixels of the one before.
  for (int64_t b = 0; b < n; b += N) {
    const int64_t i = std::min(b, n - N);
    VI X, Y;
    map.Map(x0 + i, X, Y);
    VI r[C];
    if constexpr (kLinear) {
      const auto xi = hn::ShiftRight<10>(X), yi = hn::ShiftRight<10>(Y);
      const auto fx = hn::And(X, frac), fy = hn::And(Y, frac);
      const auto xn = hn::Add(xi, oneI), yn = hn::Add(yi, oneI);
      // Inside with room for the word reads: the last word of a row then
      // ends at its last byte at most (1 channel: pixels xi .. xi + 3).
      const auto room = hn::Set(di, C == 1 ? 3 : C == 3 ? 2 : 1);
      const auto in = hn::And(Inside(xi, loX, hn::Sub(hiX, room)), Inside(yi, loY, hn::Sub(hiY, oneI)));
      if (hn::AllTrue(di, in)) {
        const auto row = hn::Mul(yi, step), col = hn::Mul(xi, hn::Set(di, C));
        Ahead(f, hn::GetLane(row) + hn::GetLane(col) + ahead);
        if constexpr (C == 1) {
          const auto top = words.Inner(row, col), bottom = words.Inner(hn::Add(row, step), col);
          r[0] = Blend8u(channel(top, 0), channel(top, 1), channel(bottom, 0), channel(bottom, 1), fx, fy);
        } else {
          const auto colN = hn::Add(col, hn::Set(di, C)), rowN = hn::Add(row, step);
          const auto w00 = words.Inner(row, col), w01 = words.Inner(row, colN);
          const auto w10 = words.Inner(rowN, col), w11 = words.Inner(rowN, colN);
          for (int k = 0; k < C; ++k)
            r[k] = Blend8u(channel(w00, k), channel(w01, k), channel(w10, k), channel(w11, k), fx, fy);
        }
      } else if (leave) {
        scalar::Row(f, y, x0 + i, N, dst + i * C);
        continue;
      } else if (constant && hn::AllFalse(di, hn::Or(hn::And(Inside(xi, loX, hiX), Inside(yi, loY, hiY)),
                                                    hn::And(Inside(xn, loX, hiX), Inside(yn, loY, hiY))))) {
        // Every tap outside (the corner taps decide: the others share their
        // column and row): the blend of four constants is the constant.
        for (int k = 0; k < C; ++k) r[k] = value[k];
      } else {
        const auto x0c = hn::Min(hn::Max(xi, loX), hiX), x1c = hn::Min(hn::Max(xn, loX), hiX);
        const auto r0 = hn::Mul(hn::Min(hn::Max(yi, loY), hiY), step), r1 = hn::Mul(hn::Min(hn::Max(yn, loY), hiY), step);
        const auto c0 = hn::Mul(x0c, hn::Set(di, C)), c1 = hn::Mul(x1c, hn::Set(di, C));
        const auto w00 = words.At(r0, c0), w01 = words.At(r0, c1), w10 = words.At(r1, c0), w11 = words.At(r1, c1);
        const auto in0 = Inside(xi, loX, hiX), in1 = Inside(xn, loX, hiX);
        const auto top = Inside(yi, loY, hiY), bottom = Inside(yn, loY, hiY);
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
      const auto xi = NearestOf(X), yi = NearestOf(Y);
      const auto in = hn::And(Inside(xi, loX, hiX), Inside(yi, loY, hiY));
      const bool all = hn::AllTrue(di, in);
      if (!all && leave) {
        scalar::Row(f, y, x0 + i, N, dst + i * C);
        continue;
      }
      if (constant && hn::AllFalse(di, in)) {
        for (int k = 0; k < C; ++k) r[k] = value[k];
        Store8u<C>(r, dst + i * C);
        continue;
      }
      const auto row = hn::Mul(hn::Min(hn::Max(yi, loY), hiY), step);
      const auto col = hn::Mul(hn::Min(hn::Max(xi, loX), hiX), hn::Set(di, C));
      Ahead(f, hn::GetLane(row) + hn::GetLane(col) + ahead);
      const auto w = words.At(row, col);
      for (int k = 0; k < C; ++k) {
        r[k] = channel(w, k);
        if (constant && !all) r[k] = hn::IfThenElse(in, r[k], value[k]);
      }
    }
    Store8u<C>(r, dst + i * C);
  }
}

// ---- 32f ----------------------------------------------------------------------

// One row of 32f pixels, nearest or linear, as Row8u but a gather per
// channel and tap. A tap of weight 0 is the pixel itself, as in the
// reference (it matters for infinities and NaN).
template <int C, bool kLinear>
void Row32f(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow) {
  const DI di;
  const hn::Repartition<float, DI> df;
  const int64_t N = int64_t(hn::Lanes(di));
  if (n < N) return scalar::Row(f, y, x0, n, dstRow);
  const RowMap map(f, y);
  const int64_t ahead = AheadBytes(f);
  const float* base = reinterpret_cast<const float*>(f.src);
  float* dst = reinterpret_cast<float*>(dstRow);
  const auto step = hn::Set(di, int32_t(f.srcStep)), pixel = hn::Set(di, int32_t(4 * C));
  const auto loX = hn::Set(di, int32_t(f.loX)), hiX = hn::Set(di, int32_t(f.hiX));
  const auto loY = hn::Set(di, int32_t(f.loY)), hiY = hn::Set(di, int32_t(f.hiY));
  const auto oneI = hn::Set(di, 1), frac = hn::Set(di, kOne - 1), zero = hn::Zero(di);
  const auto one = hn::Set(df, 1.0f), inv = hn::Set(df, 1.0f / kOne);
  const bool constant = f.kind == pelBorderConstant, leave = f.kind == 7;
  hn::Vec<decltype(df)> value[C], r[C];
  for (int k = 0; k < C; ++k) value[k] = hn::Set(df, reinterpret_cast<const float*>(f.borderPixel)[k]);
  auto at = [&](VI row, VI col, int k) { return hn::GatherOffset(df, base, hn::Add(hn::Add(row, col), hn::Set(di, 4 * k))); };
  // The last block ends at the row's end; it may redo pixels of the one before.
  for (int64_t b = 0; b < n; b += N) {
    const int64_t i = std::min(b, n - N);
    VI X, Y;
    map.Map(x0 + i, X, Y);
    if constexpr (kLinear) {
      const auto xi = hn::ShiftRight<10>(X), yi = hn::ShiftRight<10>(Y);
      const auto fx = hn::And(X, frac), fy = hn::And(Y, frac);
      const auto wx1 = hn::Mul(hn::ConvertTo(df, fx), inv), wy1 = hn::Mul(hn::ConvertTo(df, fy), inv);
      const auto wx0 = hn::Sub(one, wx1), wy0 = hn::Sub(one, wy1);
      const auto xn = hn::IfThenElse(hn::Eq(fx, zero), xi, hn::Add(xi, oneI));
      const auto yn = hn::IfThenElse(hn::Eq(fy, zero), yi, hn::Add(yi, oneI));
      const auto in = hn::And(Inside(xi, loX, hn::Sub(hiX, oneI)), Inside(yi, loY, hn::Sub(hiY, oneI)));
      const bool all = hn::AllTrue(di, in);
      if (!all && leave) {
        scalar::Row(f, y, x0 + i, N, dstRow + i * 4 * C);
        continue;
      }
      auto clampX = [&](VI v) { return all ? v : hn::Min(hn::Max(v, loX), hiX); };
      auto clampY = [&](VI v) { return all ? v : hn::Min(hn::Max(v, loY), hiY); };
      const auto r0 = hn::Mul(clampY(yi), step), r1 = hn::Mul(clampY(yn), step);
      const auto c0 = hn::Mul(clampX(xi), pixel), c1 = hn::Mul(clampX(xn), pixel);
      Ahead(f, hn::GetLane(r0) + hn::GetLane(c0) + ahead);
      const auto in0 = Inside(xi, loX, hiX), in1 = Inside(xn, loX, hiX);
      const auto top = Inside(yi, loY, hiY), bottom = Inside(yn, loY, hiY);
      for (int k = 0; k < C; ++k) {
        auto p00 = at(r0, c0, k), p01 = at(r0, c1, k), p10 = at(r1, c0, k), p11 = at(r1, c1, k);
        if (constant && !all) {
          p00 = hn::IfThenElse(hn::RebindMask(df, hn::And(in0, top)), p00, value[k]);
          p01 = hn::IfThenElse(hn::RebindMask(df, hn::And(in1, top)), p01, value[k]);
          p10 = hn::IfThenElse(hn::RebindMask(df, hn::And(in0, bottom)), p10, value[k]);
          p11 = hn::IfThenElse(hn::RebindMask(df, hn::And(in1, bottom)), p11, value[k]);
        }
        const auto upper = hn::Add(hn::Mul(p00, wx0), hn::Mul(p01, wx1));
        const auto lower = hn::Add(hn::Mul(p10, wx0), hn::Mul(p11, wx1));
        r[k] = hn::Add(hn::Mul(upper, wy0), hn::Mul(lower, wy1));
      }
    } else {
      const auto xi = NearestOf(X), yi = NearestOf(Y);
      const auto in = hn::And(Inside(xi, loX, hiX), Inside(yi, loY, hiY));
      const bool all = hn::AllTrue(di, in);
      if (!all && leave) {
        scalar::Row(f, y, x0 + i, N, dstRow + i * 4 * C);
        continue;
      }
      const auto row = hn::Mul(hn::Min(hn::Max(yi, loY), hiY), step);
      const auto col = hn::Mul(hn::Min(hn::Max(xi, loX), hiX), pixel);
      Ahead(f, hn::GetLane(row) + hn::GetLane(col) + ahead);
      for (int k = 0; k < C; ++k) {
        r[k] = at(row, col, k);
        if (constant && !all) r[k] = hn::IfThenElse(hn::RebindMask(df, in), r[k], value[k]);
      }
    }
    float* out = dst + i * C;
    if constexpr (C == 1) hn::StoreU(r[0], df, out);
    else if constexpr (C == 3) hn::StoreInterleaved3(r[0], r[1], r[2], df, out);
    else hn::StoreInterleaved4(r[0], r[1], r[2], r[3], df, out);
  }
}

void WarpRowTarget(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow) {
  const bool blocks = f.offsets32 && f.method != 6 && (f.elem == kWarp8u || f.elem == kWarp32f) &&
                      f.srcWidth <= kBlockSourceLimit && f.srcHeight <= kBlockSourceLimit &&
                      (f.hiX - f.loX + 1) * f.channels >= 4 && (f.perspective || RowMap::Fits(f, y));
  if (!blocks) return scalar::Row(f, y, x0, n, dstRow);
  const bool linear = f.method == pelInterpolationLinear;
  if (f.elem == kWarp8u) {
    switch (f.channels) {
      case 1: return linear ? Row8u<1, true>(f, y, x0, n, dstRow) : Row8u<1, false>(f, y, x0, n, dstRow);
      case 3: return linear ? Row8u<3, true>(f, y, x0, n, dstRow) : Row8u<3, false>(f, y, x0, n, dstRow);
      default: return linear ? Row8u<4, true>(f, y, x0, n, dstRow) : Row8u<4, false>(f, y, x0, n, dstRow);
    }
  }
  switch (f.channels) {
    case 1: return linear ? Row32f<1, true>(f, y, x0, n, dstRow) : Row32f<1, false>(f, y, x0, n, dstRow);
    case 3: return linear ? Row32f<3, true>(f, y, x0, n, dstRow) : Row32f<3, false>(f, y, x0, n, dstRow);
    default: return linear ? Row32f<4, true>(f, y, x0, n, dstRow) : Row32f<4, false>(f, y, x0, n, dstRow);
  }
}

#endif

}  // namespace pel::geometry::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::geometry {
HWY_EXPORT(WarpRowTarget);
void WarpRow(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow) {
  HWY_DYNAMIC_DISPATCH(WarpRowTarget)(f, y, x0, n, dstRow);
}
}  // namespace pel::geometry
#endif
