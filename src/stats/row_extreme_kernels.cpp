// Vector row kernels of the extremes. The baseline target runs the scalar
// references (extremes_scalar.h).
//
// Minimum and maximum are exact and NaN-free in the accumulators (a NaN never
// wins a comparison), so any lane grouping gives the reference's values.
// Three accumulators take turns, so that with three channels each
// accumulator lane always sees the same channel.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/row_extreme_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <limits>
#include <type_traits>

#include "hwy/highway.h"
#include "stats/extremes_scalar.h"
#include "stats/lane_reduce-inl.h"
#include "stats/lane_channels.h"
#include "stats/row_extreme_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace pel::stats::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void RowExtremesTarget(ElemKind kind, const void* row, size_t n, int channels, void* mins,
                       void* maxs) {
  scalar::RowExtremes(kind, row, 0, n, channels, mins, maxs);
}

void EveryRowTarget(ElemKind kind, bool isMax, bool keepAlpha, const void* a, const void* b,
                    void* dst, size_t n) {
  scalar::EveryRow(kind, isMax, keepAlpha, a, b, dst, 0, n);
}

#else

template <class D>
using VecOf = decltype(hn::Zero(D()));

template <class D>
HWY_INLINE VecOf<D> Lower(VecOf<D> x, VecOf<D> y) {
  if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
    return hn::IfThenElse(hn::Lt(x, y), x, y);  // a NaN x keeps y
  } else {
    return hn::Min(x, y);
  }
}

template <class D>
HWY_INLINE VecOf<D> Higher(VecOf<D> x, VecOf<D> y) {
  if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
    return hn::IfThenElse(hn::Gt(x, y), x, y);
  } else {
    return hn::Max(x, y);
  }
}

template <class T>
void ExtremesT(const T* row, size_t n, int channels, T mins[4], T maxs[4]) {
  const hn::ScalableTag<T> d;
  constexpr size_t N = hn::MaxLanes(d);
  using D = decltype(d);
  using Lim = std::numeric_limits<T>;
  const T lowest = Lim::has_infinity ? -Lim::infinity() : Lim::lowest();
  const T highest = Lim::has_infinity ? Lim::infinity() : Lim::max();
  VecOf<D> mn[3], mx[3];
  for (int r = 0; r < 3; ++r) {
    mn[r] = hn::Set(d, highest);
    mx[r] = hn::Set(d, lowest);
  }
  size_t i = 0;
  for (; i + 3 * N <= n; i += 3 * N) {
    for (size_t r = 0; r < 3; ++r) {
      const auto x = hn::LoadU(d, row + i + r * N);
      mn[r] = Lower<D>(x, mn[r]);
      mx[r] = Higher<D>(x, mx[r]);
    }
  }
  for (size_t r = 0; i + N <= n; ++r, i += N) {
    const auto x = hn::LoadU(d, row + i);
    mn[r] = Lower<D>(x, mn[r]);
    mx[r] = Higher<D>(x, mx[r]);
  }
  // Lane p of the three accumulators side by side saw elements p, p + 3N,
  // ...: channel p mod channels, since 3N is a multiple of 3 and of 4. With
  // one or four channels the three agree lane by lane and merge first.
  size_t lanes = 3 * N;
  if (channels != 3) {
    mn[0] = Lower<D>(mn[0], Lower<D>(mn[1], mn[2]));
    mx[0] = Higher<D>(mx[0], Higher<D>(mx[1], mx[2]));
    lanes = N;
    if (channels == 1) {
      const T lo = ReduceLanes(d, mn[0], [](auto x, auto y) HWY_ATTR { return Lower<decltype(hn::DFromV<decltype(x)>())>(x, y); });
      const T hi = ReduceLanes(d, mx[0], [](auto x, auto y) HWY_ATTR { return Higher<decltype(hn::DFromV<decltype(x)>())>(x, y); });
      if (lo < mins[0]) mins[0] = lo;
      if (hi > maxs[0]) maxs[0] = hi;
      return scalar::ExtremesRange(row, i, n, channels, mins, maxs);
    }
  }
  HWY_ALIGN T lo[3 * N], hi[3 * N];
  for (size_t r = 0; r < 3; ++r) {
    hn::Store(mn[r], d, lo + r * N);
    hn::Store(mx[r], d, hi + r * N);
  }
  for (size_t p = 0; p < lanes; ++p) {
    const size_t c = p % static_cast<size_t>(channels);
    if (lo[p] < mins[c]) mins[c] = lo[p];
    if (hi[p] > maxs[c]) maxs[c] = hi[p];
  }
  scalar::ExtremesRange(row, i, n, channels, mins, maxs);
}

void RowExtremesTarget(ElemKind kind, const void* row, size_t n, int channels, void* mins,
                       void* maxs) {
  scalar::VisitKind(kind, [&](auto t) HWY_ATTR {
    using T = decltype(t);
    ExtremesT(static_cast<const T*>(row), n, channels, static_cast<T*>(mins), static_cast<T*>(maxs));
  });
}

// A row of at least one vector ends with a vector that overlaps the one
// before: recomputing a picked element gives it again, so that is harmless.
template <class T, bool kMax, bool kAlpha>
void EveryT(const T* a, const T* b, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  using D = decltype(d);
  constexpr size_t N = hn::MaxLanes(d);
  if (n < N) return scalar::EveryRange(kMax, kAlpha, a, b, dst, 0, n);
  using U = hwy::MakeUnsigned<T>;
  const hn::RebindToUnsigned<D> du;
  const auto alpha = hn::RebindMask(d, hn::Eq(hn::LoadU(du, LaneChannels<U, 4>()), hn::Set(du, U{3})));
  auto pick = [&](size_t i) HWY_ATTR {
    const auto x = hn::LoadU(d, a + i), y = hn::LoadU(d, b + i);
    auto r = kMax ? Higher<D>(x, y) : Lower<D>(x, y);
    if constexpr (kAlpha) r = hn::IfThenElse(alpha, hn::LoadU(d, dst + i), r);
    hn::StoreU(r, d, dst + i);
  };
  size_t i = 0;
  for (; i + N <= n; i += N) pick(i);
  if (i < n) pick(n - N);
}

template <class T, bool kMax>
void EveryAlpha(bool keepAlpha, const void* a, const void* b, void* dst, size_t n) {
  const T* ta = static_cast<const T*>(a);
  const T* tb = static_cast<const T*>(b);
  T* td = static_cast<T*>(dst);
  if (keepAlpha) return EveryT<T, kMax, true>(ta, tb, td, n);
  EveryT<T, kMax, false>(ta, tb, td, n);
}

void EveryRowTarget(ElemKind kind, bool isMax, bool keepAlpha, const void* a, const void* b,
                    void* dst, size_t n) {
  scalar::VisitKind(kind, [&](auto t) HWY_ATTR {
    using T = decltype(t);
    if (isMax) return EveryAlpha<T, true>(keepAlpha, a, b, dst, n);
    EveryAlpha<T, false>(keepAlpha, a, b, dst, n);
  });
}

#endif

}  // namespace pel::stats::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::stats {

HWY_EXPORT(RowExtremesTarget);
HWY_EXPORT(EveryRowTarget);

void RowExtremes(ElemKind kind, const void* row, size_t n, int channels, void* mins, void* maxs) {
  HWY_DYNAMIC_DISPATCH(RowExtremesTarget)(kind, row, n, channels, mins, maxs);
}

void EveryRow(ElemKind kind, bool isMax, bool keepAlpha, const void* a, const void* b, void* dst,
              size_t n) {
  HWY_DYNAMIC_DISPATCH(EveryRowTarget)(kind, isMax, keepAlpha, a, b, dst, n);
}

}  // namespace pel::stats
#endif
