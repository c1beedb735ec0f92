// One lane from all lanes of a vector (minimum or maximum), by halving the
// vector down to 128 bits and rotating within them: Highway 1.0.3 reduces
// 8-bit lanes of wider vectors only through memory. Included by each kernel
// file once per instruction set (Highway's per-target include guard).
#if defined(PEL_STATS_LANE_REDUCE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef PEL_STATS_LANE_REDUCE_INL_H_
#undef PEL_STATS_LANE_REDUCE_INL_H_
#else
#define PEL_STATS_LANE_REDUCE_INL_H_
#endif

#include <type_traits>

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::stats::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR

// op(a, b) is the lesser or greater of two vectors; NaN-free lanes.
template <class D, class V, class Op>
HWY_INLINE hn::TFromD<D> ReduceLanes(D d, V v, Op op) {
  using T = hn::TFromD<D>;
  if constexpr (hn::MaxLanes(D()) * sizeof(T) > 16) {
    const hn::Half<D> dh;
    return ReduceLanes(dh, op(hn::LowerHalf(dh, v), hn::UpperHalf(dh, v)), op);
  } else {
    v = op(v, hn::CombineShiftRightBytes<8>(d, v, v));
    if constexpr (sizeof(T) <= 4) v = op(v, hn::CombineShiftRightBytes<4>(d, v, v));
    if constexpr (sizeof(T) <= 2) v = op(v, hn::CombineShiftRightBytes<2>(d, v, v));
    if constexpr (sizeof(T) == 1) v = op(v, hn::CombineShiftRightBytes<1>(d, v, v));
    return hn::GetLane(v);
  }
}

#endif

}  // namespace pel::stats::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
