// The image FFT and the packed products, compiled once per instruction set
// by Highway and chosen at run time. The baseline target runs one transform
// at a time on floats: that is the reference, PEL_CPU=scalar.
//
// A 2-D forward transform is a real FFT of every row into the packed row
// form, then a complex FFT down every column pair (u = 1 .. W/2 - 1) and a
// real FFT down columns 0 and W - 1, whose values are real after the row
// pass. The inverse runs the column transforms first, then the rows.
//
// Vectors run L transforms side by side, one a lane: L rows, transposed
// into the work buffer in 4 x 4 tiles, or L column pairs, which need only a
// de-interleave. Whatever is left over (the last rows or columns, short
// rows, the two real columns) goes through the same vector code with the
// data gathered one element at a time and unused lanes zero.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "transform/row_fft_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "core/common.h"
#include "hwy/highway.h"
#include "transform/row_fft_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace pel::transform::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#include "transform/fft_core-inl.h"

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR
using Lanes = ScalarLanes;
constexpr bool kVector = false;
#else
constexpr bool kVector = true;

struct VectorLanes {
  using D = hn::ScalableTag<float>;
  using V = hn::Vec<D>;
  static constexpr size_t kLanes = hn::MaxLanes(D());
  static V Load(const float* p) { return hn::Load(D(), p); }
  static void Store(V v, float* p) { hn::Store(v, D(), p); }
  static V Set(float x) { return hn::Set(D(), x); }
  static V Neg(V v) { return hn::Neg(v); }
};
using Lanes = VectorLanes;
using D = VectorLanes::D;
using V = VectorLanes::V;
constexpr size_t L = Lanes::kLanes;

// f(b, block) for every 128-bit block of v, and the vector whose block b is
// f(b).
template <class DB, class F>
HWY_INLINE void ForEachBlock(DB db, hn::Vec<DB> v, size_t first, const F& f) {
  if constexpr (hn::MaxLanes(DB()) <= 4) {
    f(first, v);
  } else {
    const hn::Half<DB> dh;
    ForEachBlock(dh, hn::LowerHalf(dh, v), first, f);
    ForEachBlock(dh, hn::UpperHalf(dh, v), first + hn::MaxLanes(DB()) / 8, f);
  }
}
template <class DB, class F>
HWY_INLINE hn::Vec<DB> FromBlocks(DB db, size_t first, const F& f) {
  if constexpr (hn::MaxLanes(DB()) <= 4) {
    return f(first);
  } else {
    const hn::Half<DB> dh;
    return hn::Combine(db, FromBlocks(dh, first + hn::MaxLanes(DB()) / 8, f), FromBlocks(dh, first, f));
  }
}

// 4 x 4 transpose within every 128-bit block.
template <class DB, class VB = hn::Vec<DB>>
HWY_INLINE void Transpose4(DB d, VB& a, VB& b, VB& c, VB& e) {
  const hn::Repartition<double, DB> dd;
  const auto t0 = hn::BitCast(dd, hn::InterleaveLower(d, a, b));  // a0 b0 a1 b1
  const auto t1 = hn::BitCast(dd, hn::InterleaveLower(d, c, e));  // c0 e0 c1 e1
  const auto t2 = hn::BitCast(dd, hn::InterleaveUpper(d, a, b));  // a2 b2 a3 b3
  const auto t3 = hn::BitCast(dd, hn::InterleaveUpper(d, c, e));  // c2 e2 c3 e3
  a = hn::BitCast(d, hn::InterleaveLower(dd, t0, t1));
  b = hn::BitCast(d, hn::InterleaveUpper(dd, t0, t1));
  c = hn::BitCast(d, hn::InterleaveLower(dd, t2, t3));
  e = hn::BitCast(d, hn::InterleaveUpper(dd, t2, t3));
}

// Between L rows of W >= 4 points and the planes: lane l of the element at
// col(j) is column j of row l. Rows are read and written a whole vector at
// a time (4 rows transposed in 4 x 4 tiles, each tile one element's 4
// lanes), so that every line of rows a power of two apart, which share
// cache sets, is touched once.
template <class DB, class Col>
HWY_INLINE void RowsToPlanes(DB db, const float* src, ptrdiff_t step, size_t W, const Col& col) {
  constexpr size_t kV = hn::MaxLanes(DB());
  const hn::Full128<float> d4;
  for (size_t x = 0; x < W; x += kV)
    for (size_t g = 0; g < L; g += 4) {
      hn::Vec<DB> r[4];
      for (size_t i = 0; i < 4; ++i) r[i] = hn::LoadU(db, Row(src, step, g + i) + x);
      Transpose4(db, r[0], r[1], r[2], r[3]);
      for (size_t k = 0; k < 4; ++k)
        ForEachBlock(db, r[k], 0, [&](size_t b, hn::Vec<hn::Full128<float>> v) {
          hn::Store(v, d4, col(x + 4 * b + k) + g);
        });
    }
}
template <class DB, class Col>
HWY_INLINE void PlanesToRows(DB db, const Col& col, float* dst, ptrdiff_t step, size_t W) {
  constexpr size_t kV = hn::MaxLanes(DB());
  const hn::Full128<float> d4;
  for (size_t x = 0; x < W; x += kV)
    for (size_t g = 0; g < L; g += 4) {
      hn::Vec<DB> r[4];
      for (size_t k = 0; k < 4; ++k)
        r[k] = FromBlocks(db, 0, [&](size_t b) { return hn::Load(d4, col(x + 4 * b + k) + g); });
      Transpose4(db, r[0], r[1], r[2], r[3]);
      for (size_t i = 0; i < 4; ++i) hn::StoreU(r[i], db, Row(dst, step, g + i) + x);
    }
}

// L interleaved (re, im) pairs from two vectors into a vector of re and a
// vector of im, per 128-bit block (the lanes come out in an order of their
// own, which Merge undoes).
HWY_INLINE void Split(V v0, V v1, V& re, V& im) {
  const D d;
  const V t0 = hn::InterleaveLower(d, v0, v1), t1 = hn::InterleaveUpper(d, v0, v1);
  re = hn::InterleaveLower(d, t0, t1);
  im = hn::InterleaveUpper(d, t0, t1);
}
HWY_INLINE void Merge(V re, V im, V& v0, V& v1) {
  const D d;
  v0 = hn::InterleaveLower(d, re, im);
  v1 = hn::InterleaveUpper(d, re, im);
}
#endif

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR
constexpr size_t L = Lanes::kLanes;
#endif

// Element i of a lane that advances `stride` bytes an element.
template <class T>
HWY_INLINE T* At(T* p, ptrdiff_t stride, size_t i) {
  return AddBytes(p, static_cast<ptrdiff_t>(i) * stride);
}

// ---- Real transforms of up to L lanes gathered element by element ---------------

void RealFwdLanes(const Fft1D& s, const float* const* in, ptrdiff_t inStride, float* const* out,
                  ptrdiff_t outStride, size_t lanes, float* work) {
  const size_t N = size_t{1} << s.order;
  if (N == 1) {
    for (size_t l = 0; l < lanes; ++l) *out[l] = *in[l] * s.FwdFactor();
    return;
  }
  const size_t M = N / 2;
  float* re = work;
  float* im = work + M * L;
  const uint32_t* rev = s.Rev();
  for (size_t n = 0; n < M; ++n) {
    float* r = re + rev[n] * L;
    float* i = im + rev[n] * L;
    for (size_t l = 0; l < L; ++l) {
      r[l] = l < lanes ? *At(in[l], inStride, 2 * n) : 0.0f;
      i[l] = l < lanes ? *At(in[l], inStride, 2 * n + 1) : 0.0f;
    }
  }
  ComplexDit<Lanes>(re, im, s.ComplexOrder(), s.Pass());
  RealPost<Lanes>(re, im, M, s.Post(), s.FwdFactor());
  for (size_t l = 0; l < lanes; ++l) {
    *out[l] = re[l];
    for (size_t k = 1; k < M; ++k) {
      *At(out[l], outStride, 2 * k - 1) = re[k * L + l];
      *At(out[l], outStride, 2 * k) = im[k * L + l];
    }
    *At(out[l], outStride, N - 1) = im[l];
  }
}

void RealInvLanes(const Fft1D& s, const float* const* in, ptrdiff_t inStride, float* const* out,
                  ptrdiff_t outStride, size_t lanes, float* work) {
  const size_t N = size_t{1} << s.order;
  if (N == 1) {
    for (size_t l = 0; l < lanes; ++l) *out[l] = *in[l] * s.InvFactor();
    return;
  }
  const size_t M = N / 2;
  float *reA = work, *imA = work + M * L, *reB = work + 2 * M * L, *imB = work + 3 * M * L;
  for (size_t k = 0; k < M; ++k)
    for (size_t l = 0; l < L; ++l) {
      reA[k * L + l] = l < lanes ? *At(in[l], inStride, k == 0 ? 0 : 2 * k - 1) : 0.0f;
      imA[k * L + l] = l < lanes ? *At(in[l], inStride, k == 0 ? N - 1 : 2 * k) : 0.0f;
    }
  // The inverse complex FFT is the forward one with re and im exchanged.
  RealPre<Lanes>(reA, imA, imB, reB, M, s.Post(), s.Rev(), s.InvFactor());
  ComplexDit<Lanes>(reB, imB, s.ComplexOrder(), s.Pass());
  for (size_t l = 0; l < lanes; ++l)
    for (size_t n = 0; n < M; ++n) {
      *At(out[l], outStride, 2 * n) = imB[n * L + l];
      *At(out[l], outStride, 2 * n + 1) = reB[n * L + l];
    }
}

// Any number of lanes, L at a time.
void RealLanes(const Fft1D& s, const float* const* in, ptrdiff_t inStride, float* const* out, ptrdiff_t outStride,
               size_t lanes, bool inverse, float* work) {
  for (size_t l = 0; l < lanes; l += L) {
    const size_t n = std::min(L, lanes - l);
    (inverse ? RealInvLanes : RealFwdLanes)(s, in + l, inStride, out + l, outStride, n, work);
  }
}

// ---- Rows --------------------------------------------------------------------------

#if !(HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR)
// L whole rows of W >= 4 points; lane l is row l.
template <class DB>
void RealRowBlock(DB db, const Fft1D& s, const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep,
                  bool inverse, float* work) {
  const size_t N = size_t{1} << s.order, M = N / 2;
  const uint32_t* rev = s.Rev();
  float *reA = work, *imA = work + M * L, *reB = work + 2 * M * L, *imB = work + 3 * M * L;
  // The packed row: X[0], re X[1], im X[1], ..., X[M]; X[0] and X[M] stand in
  // reA[0] and imA[0].
  auto packed = [&](size_t j) {
    return j == 0 ? reA : j == N - 1 ? imA : (j & 1) ? reA + (j + 1) / 2 * L : imA + j / 2 * L;
  };
  if (!inverse) {
    // Even points to re, odd ones to im, in bit-reversed order.
    RowsToPlanes(db, src, srcStep, N, [&](size_t j) { return ((j & 1) ? imA : reA) + rev[j >> 1] * L; });
    ComplexDit<Lanes>(reA, imA, s.ComplexOrder(), s.Pass());
    RealPost<Lanes>(reA, imA, M, s.Post(), s.FwdFactor());
    PlanesToRows(db, packed, dst, dstStep, N);
  } else {
    RowsToPlanes(db, src, srcStep, N, packed);
    // The inverse complex FFT is the forward one with re and im exchanged.
    RealPre<Lanes>(reA, imA, imB, reB, M, s.Post(), rev, s.InvFactor());
    ComplexDit<Lanes>(reB, imB, s.ComplexOrder(), s.Pass());
    PlanesToRows(db, [&](size_t j) { return ((j & 1) ? reB : imB) + (j >> 1) * L; }, dst, dstStep, N);
  }
}
#endif

void Rows(const Fft1D& s, const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, size_t height,
          bool inverse, float* work) {
  size_t y = 0;
#if !(HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR)
  if (s.order >= 2) {
    const size_t W = size_t{1} << s.order;
    for (; y + L <= height; y += L) {
      const float* from = Row(src, srcStep, y);
      float* to = Row(dst, dstStep, y);
      if (W >= L) RealRowBlock(D(), s, from, srcStep, to, dstStep, inverse, work);
      else RealRowBlock(hn::Full128<float>(), s, from, srcStep, to, dstStep, inverse, work);
    }
  }
#endif
  const float* in[L];
  float* out[L];
  for (; y < height; y += L) {
    const size_t lanes = std::min(L, height - y);
    for (size_t l = 0; l < lanes; ++l) {
      in[l] = Row(src, srcStep, y + l);
      out[l] = Row(dst, dstStep, y + l);
    }
    RealLanes(s, in, sizeof(float), out, sizeof(float), lanes, inverse, work);
  }
}

// ---- Columns -----------------------------------------------------------------------

// The complex FFT down `count` column pairs starting at column 1, L pairs at
// a time. The inverse is the forward transform with re and im exchanged on
// the way in and out.
void PairColumns(const Fft1D& s, const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, size_t count,
                 bool inverse, float* work) {
  using P = Lanes;
  const size_t H = size_t{1} << s.order;
  float* re = work;
  float* im = work + H * L;
  float* a = inverse ? im : re;
  float* b = inverse ? re : im;
  const float f = inverse ? s.InvFactor() : s.FwdFactor();
  [[maybe_unused]] const P::V vf = P::Set(f);
  const uint32_t* rev = s.Rev();
  for (size_t c = 0; c < count; c += L) {
    const size_t n = std::min(L, count - c);
    const size_t x = 1 + 2 * c;
    [[maybe_unused]] const bool whole = kVector && n == L;
    for (size_t y = 0; y < H; ++y) {
      const float* row = Row(src, srcStep, y) + x;
      float* ay = a + rev[y] * L;
      float* by = b + rev[y] * L;
#if !(HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR)
      if (whole) {
        const D d;
        V vr, vi;
        Split(hn::LoadU(d, row), hn::LoadU(d, row + L), vr, vi);
        hn::Store(vr, d, ay);
        hn::Store(vi, d, by);
        continue;
      }
#endif
      for (size_t l = 0; l < L; ++l) {
        ay[l] = l < n ? row[2 * l] : 0.0f;
        by[l] = l < n ? row[2 * l + 1] : 0.0f;
      }
    }
    ComplexDit<P>(re, im, s.order, s.Pass());
    for (size_t y = 0; y < H; ++y) {
      float* row = Row(dst, dstStep, y) + x;
      float* ay = a + y * L;
      float* by = b + y * L;
#if !(HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR)
      if (whole) {
        const D d;
        V v0, v1;
        Merge(hn::Load(d, ay) * vf, hn::Load(d, by) * vf, v0, v1);
        hn::StoreU(v0, d, row);
        hn::StoreU(v1, d, row + L);
        continue;
      }
#endif
      for (size_t l = 0; l < n; ++l) {
        row[2 * l] = ay[l] * f;
        row[2 * l + 1] = by[l] * f;
      }
    }
  }
}

void Transform2D(const FftSpec2D& spec, const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep,
                 float* work, bool inverse) {
  const size_t W = size_t{1} << spec.orderX, H = size_t{1} << spec.orderY;
  // Columns 0 and W - 1 (one column when W is 1): real after the row pass.
  auto realColumns = [&](const float* from, ptrdiff_t fromStep) {
    const float* in[2] = {from, from + (W - 1)};
    float* out[2] = {dst, dst + (W - 1)};
    RealLanes(*spec.RealColumns(), in, fromStep, out, dstStep, W > 1 ? 2 : 1, inverse, work);
  };
  if (!inverse) {
    Rows(*spec.row, src, srcStep, dst, dstStep, H, false, work);
    if (H == 1) return;
    if (W > 2) PairColumns(*spec.col, dst, dstStep, dst, dstStep, W / 2 - 1, false, work);
    realColumns(dst, dstStep);
    return;
  }
  if (H == 1) {
    Rows(*spec.row, src, srcStep, dst, dstStep, 1, true, work);
    return;
  }
  if (W > 2) PairColumns(*spec.col, src, srcStep, dst, dstStep, W / 2 - 1, true, work);
  realColumns(src, srcStep);
  Rows(*spec.row, dst, dstStep, dst, dstStep, H, true, work);
}

// ---- Packed products ------------------------------------------------------------------

template <bool kConj, class V>
HWY_INLINE void PairProduct(V ar, V ai, V br, V bi, V& re, V& im) {
  if constexpr (kConj) {
    re = ar * br + ai * bi;
    im = ai * br - ar * bi;
  } else {
    re = ar * br - ai * bi;
    im = ar * bi + ai * br;
  }
}

template <bool kConj>
void Pairs(const float* a, const float* b, float* d, size_t pairs) {
  size_t i = 0;
#if !(HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR)
  const D df;
  for (; i + L <= pairs; i += L) {
    V ar, ai, br, bi, re, im;
    Split(hn::LoadU(df, a + 2 * i), hn::LoadU(df, a + 2 * i + L), ar, ai);
    Split(hn::LoadU(df, b + 2 * i), hn::LoadU(df, b + 2 * i + L), br, bi);
    PairProduct<kConj>(ar, ai, br, bi, re, im);
    V v0, v1;
    Merge(re, im, v0, v1);
    hn::StoreU(v0, df, d + 2 * i);
    hn::StoreU(v1, df, d + 2 * i + L);
  }
#endif
  for (; i < pairs; ++i) {
    float re, im;
    PairProduct<kConj>(a[2 * i], a[2 * i + 1], b[2 * i], b[2 * i + 1], re, im);
    d[2 * i] = re;
    d[2 * i + 1] = im;
  }
}

void Fft2DTarget(const FftSpec2D& spec, const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep,
                 float* work, bool inverse) {
  Transform2D(spec, src, srcStep, dst, dstStep, work, inverse);
}

void MulPairsTarget(const float* a, const float* b, float* d, size_t pairs, bool conjugateB) {
  if (conjugateB) Pairs<true>(a, b, d, pairs);
  else Pairs<false>(a, b, d, pairs);
}

}  // namespace pel::transform::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::transform {

HWY_EXPORT(Fft2DTarget);
HWY_EXPORT(MulPairsTarget);

void Fft2D(const FftSpec2D& spec, const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, float* work,
           bool inverse) {
  HWY_DYNAMIC_DISPATCH(Fft2DTarget)(spec, src, srcStep, dst, dstStep, work, inverse);
}

void MulPairs(const float* a, const float* b, float* d, size_t pairs, bool conjugateB) {
  HWY_DYNAMIC_DISPATCH(MulPairsTarget)(a, b, d, pairs, conjugateB);
}

}  // namespace pel::transform
#endif
