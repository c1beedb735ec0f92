// Vector row conversions: one source, compiled for each instruction set by
// Highway and chosen at run time. The baseline target runs the scalar
// reference, so PEL_CPU=scalar gives exactly that.
//
// Each pair computes in lanes of one working type: float when either side is
// float, otherwise the wider of the two. Every vector step is exact or
// rounds as the reference does (see ClampRound for floats to integers), so
// all targets give the reference's bytes. Floats to 8- and 16-bit lanes are
// narrowed several vectors at a time into one full store. A row ends in the
// scalar reference; AC4 rows keep the destination's alpha by blending it
// back in before each store.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/row_convert_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <limits>
#include <type_traits>

#include "convert/row_convert_kernels.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"
#include "core/narrow-inl.h"

HWY_BEFORE_NAMESPACE();
namespace pel::convert::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

template <class S, class D>
void ConvertPair(const ConvertJob& job, const void* src, void* dst, size_t n) {
  scalar::ConvertElements(job, static_cast<const S*>(src), static_cast<D*>(dst), 0, n);
}

#else

template <class S, class D>
using WorkOf = std::conditional_t<std::is_floating_point_v<S> || std::is_floating_point_v<D>, float,
                                  std::conditional_t<(sizeof(D) > sizeof(S)), D, S>>;

template <class DW, class S>
HWY_INLINE hn::Vec<DW> LoadAs(DW dw, const S* HWY_RESTRICT p) {
  using W = hn::TFromD<DW>;
  const hn::Rebind<S, DW> ds;
  if constexpr (std::is_same_v<S, W>) {
    return hn::LoadU(dw, p);
  } else if constexpr (std::is_same_v<W, float>) {
    return hn::ConvertTo(dw, hn::PromoteTo(hn::Rebind<int32_t, DW>(), hn::LoadU(ds, p)));
  } else {
    return hn::PromoteTo(dw, hn::LoadU(ds, p));
  }
}

// Float lanes to int32, rounded by kMode, for a destination D of up to 16
// bits that the caller narrows with saturation. Only the upper clamp is
// done here, min(x, max) with the maximum second so that NaN becomes the
// maximum; values below D's minimum round to integers at or below it (very
// negative ones and -inf to INT32_MIN), which the saturating narrowing takes
// to the minimum, as rounding after the lower clamp would. Mode 0 is the
// truncating conversion itself, mode 2 adds 0.5 with the sign first, and
// mode 1 converts in the processor's rounding, which every caller of mode 1
// has set to nearest for the call.
template <class D, int kMode, class DF>
HWY_INLINE auto ClampRound(DF df, hn::Vec<DF> v) {
  namespace pn = pel::HWY_NAMESPACE;
  v = hn::Min(v, hn::Set(df, static_cast<float>(std::numeric_limits<D>::max())));
  if constexpr (kMode == 0) {
    return pn::TruncInRange(v);
  } else if constexpr (kMode == 1) {
    return pn::NearestInRange(v);
  } else {
    return pn::TruncInRange(hn::Add(v, hn::CopySign(hn::Set(df, 0.5f), v)));
  }
}

// Working lanes to the destination type: clamp and round floats, saturate
// integers.
template <class D, int kMode, class DW>
HWY_INLINE auto ToDestination(DW dw, hn::Vec<DW> v) {
  using W = hn::TFromD<DW>;
  const hn::Rebind<D, DW> dd;
  if constexpr (std::is_same_v<W, D>) {
    return v;
  } else if constexpr (std::is_same_v<W, float>) {
    return hn::DemoteTo(dd, ClampRound<D, kMode>(dw, v));
  } else if constexpr (std::is_same_v<W, uint16_t>) {
    const auto clamped = hn::Min(v, hn::Set(dw, uint16_t{255}));
    return hn::DemoteTo(dd, hn::BitCast(hn::RebindToSigned<DW>(), clamped));
  } else {
    return hn::DemoteTo(dd, v);
  }
}

template <class S, class D, int kMode>
void ConvertRowT(const ConvertJob& job, const S* HWY_RESTRICT src, D* HWY_RESTRICT dst, size_t n) {
  using W = WorkOf<S, D>;
  const hn::ScalableTag<W> dw;
  const hn::Rebind<D, decltype(dw)> dd;
  const size_t N = hn::Lanes(dw);
  if (n < N) {
    scalar::ConvertElements(job, src, dst, 0, n);
    return;
  }
  size_t i = 0;
  // Streamed stores need aligned addresses: the elements before the first
  // one go scalar. Only widening pairs stream (their stores are full vectors).
  bool stream = false;
  if constexpr (sizeof(D) == sizeof(W)) {
    stream = job.stream && reinterpret_cast<uintptr_t>(dst) % sizeof(D) == 0;
    if (stream) {
      const size_t misalign = reinterpret_cast<uintptr_t>(dst) & (N * sizeof(D) - 1);
      i = misalign == 0 ? 0 : (N * sizeof(D) - misalign) / sizeof(D);
      scalar::ConvertElements(job, src, dst, 0, i);
    }
  }
  const hn::RebindToUnsigned<decltype(dd)> du;
  using U = hn::TFromD<decltype(du)>;
  const auto alphaLanes = hn::RebindMask(
      dd, hn::Eq(hn::And(hn::Iota(du, static_cast<U>(i & 3)), hn::Set(du, U{3})), hn::Set(du, U{3})));
  const auto mul = hn::Set(dw, static_cast<W>(job.mul));
  const auto add = hn::Set(dw, static_cast<W>(job.add));
  // One loop per combination of the per-row choices, so that none of them
  // costs a branch per vector; two vectors a step.
  auto loop = [&](auto kAffine, auto kAlpha, auto kStream) {
    auto load = [&](size_t at) {
      auto v = LoadAs(dw, src + at);
      if constexpr (kAffine()) v = hn::Add(hn::Mul(v, mul), add);
      return v;
    };
    // Floats to 8- or 16-bit lanes: as many vectors as fill one full vector
    // of D a step, narrowed together and stored once.
    if constexpr (std::is_same_v<W, float> && sizeof(D) < 4) {
      constexpr size_t K = 4 / sizeof(D);
      const hn::ScalableTag<D> dfull;
      const hn::RebindToUnsigned<decltype(dfull)> dufull;
      const auto alphaFull = hn::RebindMask(
          dfull, hn::Eq(hn::And(hn::Iota(dufull, static_cast<U>(i & 3)), hn::Set(dufull, U{3})),
                        hn::Set(dufull, U{3})));
      for (; i + K * N <= n; i += K * N) {
        decltype(ClampRound<D, kMode>(dw, hn::Zero(dw))) r[K];
        for (size_t k = 0; k < K; ++k) r[k] = ClampRound<D, kMode>(dw, load(i + k * N));
        hn::Vec<decltype(dfull)> out;
        if constexpr (K == 4) {
          out = pel::HWY_NAMESPACE::Narrow4<D>(r[0], r[1], r[2], r[3]);
        } else {
          out = pel::HWY_NAMESPACE::Narrow2<D>(r[0], r[1]);
        }
        if constexpr (kAlpha()) out = hn::IfThenElse(alphaFull, hn::LoadU(dfull, dst + i), out);
        hn::StoreU(out, dfull, dst + i);
      }
    }
    auto one = [&](size_t at) {
      auto v = load(at);
      auto out = ToDestination<D, kMode>(dw, v);
      if constexpr (kAlpha()) out = hn::IfThenElse(alphaLanes, hn::LoadU(dd, dst + at), out);
      if constexpr (kStream()) {
        hn::Stream(out, dd, dst + at);
      } else {
        hn::StoreU(out, dd, dst + at);
      }
    };
    for (; i + 2 * N <= n; i += 2 * N) {
      one(i);
      one(i + N);
    }
    if (i + N <= n) {
      one(i);
      i += N;
    }
  };
  using False = std::false_type;
  using True = std::true_type;
  auto withStream = [&](auto kAffine, auto kAlpha) {
    if constexpr (sizeof(D) == sizeof(W)) {
      if (stream) return loop(kAffine, kAlpha, True{});
    }
    loop(kAffine, kAlpha, False{});
  };
  auto withAlpha = [&](auto kAffine) {
    if (HasAlpha(job.layout)) return withStream(kAffine, True{});
    withStream(kAffine, False{});
  };
  if constexpr (std::is_same_v<W, float>) {
    if (job.affine) {
      withAlpha(True{});
    } else {
      withAlpha(False{});
    }
  } else {
    withAlpha(False{});
  }
  scalar::ConvertElements(job, src, dst, i, n);
}

template <class S, class D>
void ConvertPair(const ConvertJob& job, const void* srcv, void* dstv, size_t n) {
  const auto* src = static_cast<const S*>(srcv);
  auto* dst = static_cast<D*>(dstv);
  if constexpr (std::is_floating_point_v<S>) {
    if (job.mode == 0) return ConvertRowT<S, D, 0>(job, src, dst, n);
    if (job.mode == 1) return ConvertRowT<S, D, 1>(job, src, dst, n);
    return ConvertRowT<S, D, 2>(job, src, dst, n);
  } else {
    return ConvertRowT<S, D, 1>(job, src, dst, n);
  }
}

#endif

void ConvertRowTarget(int pair, const ConvertJob& job, const void* src, void* dst, size_t n) {
  switch (pair) {
#define PEL_CONVERT_CASE(i, S, D) \
  case i:                         \
    return ConvertPair<S, D>(job, src, dst, n);
    PEL_CONVERT_VECTOR_PAIRS(PEL_CONVERT_CASE)
#undef PEL_CONVERT_CASE
  }
}

}  // namespace pel::convert::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::convert {

HWY_EXPORT(ConvertRowTarget);

void ConvertRowAny(int pair, const ConvertJob& job, const void* src, void* dst, size_t elements) {
  HWY_DYNAMIC_DISPATCH(ConvertRowTarget)(pair, job, src, dst, elements);
}

void FinishStreams() { hwy::FlushStream(); }

}  // namespace pel::convert
#endif
