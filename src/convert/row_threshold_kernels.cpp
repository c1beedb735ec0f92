// Vector threshold and compare rows, compiled for each instruction set by
// Highway and chosen at run time; the baseline target runs the scalar
// reference. Comparisons are exact on every target; the float clamps use
// Max(t, x) and Min(t, x), whose x86 forms return the second operand when
// either is NaN or both are equal, which is exactly "x < t gives t, else x"
// and "x > t gives t, else x".
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/row_threshold_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include "convert/row_threshold_kernels.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"
#include "core/pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace pel::convert::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

template <class T>
void ThresholdType(const void* job, const void* src, void* dst, size_t n) {
  scalar::ThresholdElements(*static_cast<const ThresholdJob<T>*>(job), static_cast<const T*>(src),
                            static_cast<T*>(dst), 0, n);
}

template <class T>
void CompareType(const void* job, const void* a, const void* b, Pel8u* dst, size_t n) {
  scalar::ComparePixels(*static_cast<const CompareJob<T>*>(job), static_cast<const T*>(a),
                        static_cast<const T*>(b), dst, 0, n);
}

#else

// ---- Threshold ---------------------------------------------------------------------

template <int kOp, class D, class V = hn::Vec<D>>
HWY_INLINE V ThresholdVec(D, V x, V tLT, V vLT, V tGT, V vGT) {
  if constexpr (kOp == scalar::kMax) {
    return hn::Max(tLT, x);
  } else if constexpr (kOp == scalar::kMin) {
    return hn::Min(tGT, x);
  } else {
    return hn::IfThenElse(hn::Lt(x, tLT), vLT, hn::IfThenElse(hn::Gt(x, tGT), vGT, x));
  }
}

// P: the period of the per-channel constants in lanes (1, 3 or 4). A run of
// kRun vectors is a whole number of periods, so the same kRun constant
// vectors serve every run.
template <class T, int P, int kOp>
void ThresholdRowT(const ThresholdJob<T>& j, const T* HWY_RESTRICT src, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  constexpr size_t kRun = P == 3 ? 3 : 1;
  if (n < kRun * N) {
    scalar::ThresholdElements(j, src, dst, 0, n);
    return;
  }
  size_t i = 0;
  const bool stream = j.stream && reinterpret_cast<uintptr_t>(dst) % sizeof(T) == 0;
  if (stream) {
    const size_t misalign = reinterpret_cast<uintptr_t>(dst) & (N * sizeof(T) - 1);
    i = misalign == 0 ? 0 : (N * sizeof(T) - misalign) / sizeof(T);
    scalar::ThresholdElements(j, src, dst, 0, i);
  }
  using V = hn::Vec<decltype(d)>;
  V tLT[kRun], vLT[kRun], tGT[kRun], vGT[kRun];
  HWY_ALIGN T lanes[4][kRun * HWY_MAX_BYTES / sizeof(T)];
  for (size_t e = 0; e < kRun * N; ++e) {
    const size_t c = (i + e) % P;
    lanes[0][e] = j.tLT[c];
    lanes[1][e] = j.vLT[c];
    lanes[2][e] = j.tGT[c];
    lanes[3][e] = j.vGT[c];
  }
  for (size_t k = 0; k < kRun; ++k) {
    tLT[k] = hn::Load(d, lanes[0] + k * N);
    vLT[k] = hn::Load(d, lanes[1] + k * N);
    tGT[k] = hn::Load(d, lanes[2] + k * N);
    vGT[k] = hn::Load(d, lanes[3] + k * N);
  }
  const bool alpha = HasAlpha(j.layout);
  const hn::RebindToUnsigned<decltype(d)> du;
  using U = hn::TFromD<decltype(du)>;
  const auto alphaLanes = hn::RebindMask(
      d, hn::Eq(hn::And(hn::Iota(du, static_cast<U>(i & 3)), hn::Set(du, U{3})), hn::Set(du, U{3})));
  auto one = [&](size_t at, size_t k) {
    V r = ThresholdVec<kOp>(d, hn::LoadU(d, src + at), tLT[k], vLT[k], tGT[k], vGT[k]);
    if (alpha) r = hn::IfThenElse(alphaLanes, hn::LoadU(d, dst + at), r);
    if (stream) {
      hn::Stream(r, d, dst + at);
    } else {
      hn::StoreU(r, d, dst + at);
    }
  };
  for (; i + kRun * N <= n; i += kRun * N) {
    for (size_t k = 0; k < kRun; ++k) one(i + k * N, k);
  }
  for (size_t k = 0; i + N <= n; ++k, i += N) one(i, k);
  scalar::ThresholdElements(j, src, dst, i, n);
}

template <class T, int P>
void ThresholdPeriod(const ThresholdJob<T>& j, const T* src, T* dst, size_t n) {
  switch (j.op) {
    case scalar::kMax: return ThresholdRowT<T, P, scalar::kMax>(j, src, dst, n);
    case scalar::kMin: return ThresholdRowT<T, P, scalar::kMin>(j, src, dst, n);
    default: return ThresholdRowT<T, P, scalar::kReplace>(j, src, dst, n);
  }
}

template <class T>
void ThresholdType(const void* jobv, const void* srcv, void* dstv, size_t n) {
  const auto& j = *static_cast<const ThresholdJob<T>*>(jobv);
  const auto* src = static_cast<const T*>(srcv);
  auto* dst = static_cast<T*>(dstv);
  switch (ChannelsOf(j.layout)) {
    case 1: return ThresholdPeriod<T, 1>(j, src, dst, n);
    case 3: return ThresholdPeriod<T, 3>(j, src, dst, n);
    default: return ThresholdPeriod<T, 4>(j, src, dst, n);
  }
}

// ---- Compare -------------------------------------------------------------------------

using pel::HWY_NAMESPACE::LoadPixels;

template <int kOp, class D, class V = hn::Vec<D>>
HWY_INLINE auto CompareVec(D d, V a, V b, V eps) {
  (void)d;
  (void)eps;
  if constexpr (kOp == scalar::kLess) {
    return hn::Lt(a, b);
  } else if constexpr (kOp == scalar::kLessEq) {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::Le(a, b);  // false for NaN, unlike the negation of Lt
    } else {
      return hn::Not(hn::Lt(b, a));  // integer lanes have no Le here
    }
  } else if constexpr (kOp == scalar::kEqual) {
    return hn::Eq(a, b);
  } else {
    return hn::Le(hn::Abs(hn::Sub(a, b)), eps);
  }
}

// Lanes of all-ones or zero to one byte each: 0xFF or 0.
template <class D, class M>
HWY_INLINE void StoreMaskBytes(D d, M m, Pel8u* HWY_RESTRICT dst) {
  using T = hn::TFromD<D>;
  const hn::Rebind<uint8_t, D> d8;
  if constexpr (sizeof(T) == 1) {
    hn::StoreU(hn::BitCast(d8, hn::VecFromMask(d, m)), d8, dst);
  } else {
    const hn::RebindToSigned<D> di;
    const hn::Rebind<int8_t, D> di8;
    hn::StoreU(hn::BitCast(d8, hn::DemoteTo(di8, hn::BitCast(di, hn::VecFromMask(d, m)))), d8, dst);
  }
}

template <class T, int C, int kOp>
void CompareRowT(const CompareJob<T>& j, const T* HWY_RESTRICT a, const T* HWY_RESTRICT b, Pel8u* dst,
                 size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  using V = hn::Vec<decltype(d)>;
  V va[C], vb[C];
  const int worked = WorkedChannels(j.layout);
  // A fixed pixel has only the worked channels (an AC4 constant has three).
  for (int c = 0; c < C; ++c) {
    va[c] = vb[c] = hn::Zero(d);
    if (j.fixedA && c < worked) va[c] = hn::Set(d, a[c]);
    if (j.fixedB && c < worked) vb[c] = hn::Set(d, b[c]);
  }
  const V eps = hn::Set(d, static_cast<T>(j.eps));
  size_t x = 0;
  for (; x + N <= n; x += N) {
    if (!j.fixedA) LoadPixels<C>(d, a + x * C, va);
    if (!j.fixedB) LoadPixels<C>(d, b + x * C, vb);
    auto m = CompareVec<kOp>(d, va[0], vb[0], eps);
    for (int c = 1; c < worked; ++c) m = hn::And(m, CompareVec<kOp>(d, va[c], vb[c], eps));
    StoreMaskBytes(d, m, dst + x);
  }
  scalar::ComparePixels(j, a, b, dst, x, n);
}

template <class T, int C>
void CompareChannels(const CompareJob<T>& j, const T* a, const T* b, Pel8u* dst, size_t n) {
  switch (j.op) {
    case scalar::kLess: return CompareRowT<T, C, scalar::kLess>(j, a, b, dst, n);
    case scalar::kLessEq: return CompareRowT<T, C, scalar::kLessEq>(j, a, b, dst, n);
    case scalar::kEqual: return CompareRowT<T, C, scalar::kEqual>(j, a, b, dst, n);
  }
  if constexpr (std::is_floating_point_v<T>) CompareRowT<T, C, scalar::kEqualEps>(j, a, b, dst, n);
}

template <class T>
void CompareType(const void* jobv, const void* av, const void* bv, Pel8u* dst, size_t n) {
  const auto& j = *static_cast<const CompareJob<T>*>(jobv);
  const auto* a = static_cast<const T*>(av);
  const auto* b = static_cast<const T*>(bv);
  switch (ChannelsOf(j.layout)) {
    case 1: return CompareChannels<T, 1>(j, a, b, dst, n);
    case 3: return CompareChannels<T, 3>(j, a, b, dst, n);
    default: return CompareChannels<T, 4>(j, a, b, dst, n);
  }
}

#endif

void ThresholdRowTarget(int type, const void* job, const void* src, void* dst, size_t n) {
  switch (type) {
    case 0: return ThresholdType<Pel8u>(job, src, dst, n);
    case 1: return ThresholdType<Pel16s>(job, src, dst, n);
    case 2: return ThresholdType<Pel16u>(job, src, dst, n);
    default: return ThresholdType<Pel32f>(job, src, dst, n);
  }
}

void CompareRowTarget(int type, const void* job, const void* a, const void* b, Pel8u* dst, size_t n) {
  switch (type) {
    case 0: return CompareType<Pel8u>(job, a, b, dst, n);
    case 1: return CompareType<Pel16s>(job, a, b, dst, n);
    case 2: return CompareType<Pel16u>(job, a, b, dst, n);
    default: return CompareType<Pel32f>(job, a, b, dst, n);
  }
}

}  // namespace pel::convert::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::convert {

HWY_EXPORT(ThresholdRowTarget);
HWY_EXPORT(CompareRowTarget);

void ThresholdRowAny(int type, const void* job, const void* src, void* dst, size_t elements) {
  HWY_DYNAMIC_DISPATCH(ThresholdRowTarget)(type, job, src, dst, elements);
}

void CompareRowAny(int type, const void* job, const void* a, const void* b, Pel8u* dst, size_t pixels) {
  HWY_DYNAMIC_DISPATCH(CompareRowTarget)(type, job, a, b, dst, pixels);
}

void FinishThresholdStreams() { hwy::FlushStream(); }

}  // namespace pel::convert
#endif
