// Pieces the arithmetic kernel files share, compiled once per instruction
// set (included after hwy/highway.h by each kernel file, for every target).
#if defined(PEL_ARITH_ROW_COMMON_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef PEL_ARITH_ROW_COMMON_INL_H_
#undef PEL_ARITH_ROW_COMMON_INL_H_
#else
#define PEL_ARITH_ROW_COMMON_INL_H_
#endif

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::arith::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR

// The lanes of a vector that hold colour in a row of four-lane AC4 pixels
// (every vector starts at a pixel: its lane count is a multiple of four).
template <class D>
HWY_INLINE hn::Mask<D> ColourLanes(D d) {
  const hn::RebindToUnsigned<D> du;
  using U = hn::TFromD<decltype(du)>;
  const auto phase = hn::And(hn::Iota(du, 0), hn::Set(du, U{3}));
  return hn::RebindMask(d, hn::Ne(phase, hn::Set(du, U{3})));
}

// Stores v, or only its colour lanes in an AC4 row. Below AVX-512 the
// masked store reads the destination vector and writes it back whole; the
// alpha lanes get their own value again.
template <class D, class V>
HWY_INLINE void StoreLanes(D d, V v, hn::TFromD<D>* p, bool alpha, hn::Mask<D> colour) {
  if (!alpha) {
    hn::StoreU(v, d, p);
    return;
  }
#if HWY_TARGET <= HWY_AVX3
  hn::BlendedStore(v, colour, d, p);
#else
  hn::StoreU(hn::IfThenElse(colour, v, hn::LoadU(d, p)), d, p);
#endif
}

#endif

}  // namespace pel::arith::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // PEL_ARITH_ROW_COMMON_INL_H_
