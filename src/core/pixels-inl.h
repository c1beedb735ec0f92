// Whole pixels of one, three or four interleaved channels to one vector per
// channel and back, for the kernels of any family (included after
// hwy/highway.h by each kernel file, for every target). Alike on every
// target: lane i of channel c is element i * C + c of the row.
#if defined(PEL_CORE_PIXELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef PEL_CORE_PIXELS_INL_H_
#undef PEL_CORE_PIXELS_INL_H_
#else
#define PEL_CORE_PIXELS_INL_H_
#endif

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::HWY_NAMESPACE {

#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR

// Lanes(d) pixels of C channels from p into v[0..C).
template <int C, class D, class V = hwy::HWY_NAMESPACE::Vec<D>>
HWY_INLINE void LoadPixels(D d, const hwy::HWY_NAMESPACE::TFromD<D>* HWY_RESTRICT p, V* v) {
  namespace hn = hwy::HWY_NAMESPACE;
  static_assert(C == 1 || C == 3 || C == 4);
  if constexpr (C == 1) {
    v[0] = hn::LoadU(d, p);
  } else if constexpr (C == 3) {
    hn::LoadInterleaved3(d, p, v[0], v[1], v[2]);
  } else {
    hn::LoadInterleaved4(d, p, v[0], v[1], v[2], v[3]);
  }
}

// v[0..C) to Lanes(d) pixels at p.
template <int C, class D, class V = hwy::HWY_NAMESPACE::Vec<D>>
HWY_INLINE void StorePixels(D d, const V* v, hwy::HWY_NAMESPACE::TFromD<D>* HWY_RESTRICT p) {
  namespace hn = hwy::HWY_NAMESPACE;
  static_assert(C == 1 || C == 3 || C == 4);
  if constexpr (C == 1) {
    hn::StoreU(v[0], d, p);
  } else if constexpr (C == 3) {
    hn::StoreInterleaved3(v[0], v[1], v[2], d, p);
  } else {
    hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, p);
  }
}

#endif

}  // namespace pel::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
