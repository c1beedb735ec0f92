// Several vectors of int32 narrowed into one full vector of 8- or 16-bit
// lanes, in order, with the processor's saturating packs, for the kernels of
// any family (included after hwy/highway.h by each kernel file, for every
// target). The packs work within 128-bit blocks; one permutation puts the
// blocks back in order, so the lanes come out as a plain DemoteTo of each
// input would give them, with one full store instead of two or four partial
// ones.
#if defined(PEL_CORE_NARROW_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef PEL_CORE_NARROW_INL_H_
#undef PEL_CORE_NARROW_INL_H_
#else
#define PEL_CORE_NARROW_INL_H_
#endif

#include <cstdint>
#include <type_traits>

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::HWY_NAMESPACE {

#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR

// Four int32 vectors (lanes of a, then b, c, d) to one vector of T (uint8_t
// or int8_t), each lane saturated to T.
template <class T, class VI>
HWY_INLINE hwy::HWY_NAMESPACE::Vec<hwy::HWY_NAMESPACE::ScalableTag<T>> Narrow4(VI a, VI b, VI c, VI d) {
  namespace hn = hwy::HWY_NAMESPACE;
  static_assert(sizeof(T) == 1);
  using V = hn::Vec<hn::ScalableTag<T>>;
  constexpr bool kU = std::is_unsigned_v<T>;
#if HWY_TARGET <= HWY_AVX3
  const __m512i lo = _mm512_packs_epi32(a.raw, b.raw), hi = _mm512_packs_epi32(c.raw, d.raw);
  const __m512i bytes = kU ? _mm512_packus_epi16(lo, hi) : _mm512_packs_epi16(lo, hi);
  const __m512i order = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
  return V{_mm512_permutexvar_epi32(order, bytes)};
#elif HWY_TARGET == HWY_AVX2
  const __m256i lo = _mm256_packs_epi32(a.raw, b.raw), hi = _mm256_packs_epi32(c.raw, d.raw);
  const __m256i bytes = kU ? _mm256_packus_epi16(lo, hi) : _mm256_packs_epi16(lo, hi);
  return V{_mm256_permutevar8x32_epi32(bytes, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7))};
#else
  const __m128i lo = _mm_packs_epi32(a.raw, b.raw), hi = _mm_packs_epi32(c.raw, d.raw);
  return V{kU ? _mm_packus_epi16(lo, hi) : _mm_packs_epi16(lo, hi)};
#endif
}

// Two int32 vectors (lanes of a, then b) to one vector of T (uint16_t or
// int16_t), each lane saturated to T.
template <class T, class VI>
HWY_INLINE hwy::HWY_NAMESPACE::Vec<hwy::HWY_NAMESPACE::ScalableTag<T>> Narrow2(VI a, VI b) {
  namespace hn = hwy::HWY_NAMESPACE;
  static_assert(sizeof(T) == 2);
  using V = hn::Vec<hn::ScalableTag<T>>;
  constexpr bool kU = std::is_unsigned_v<T>;
#if HWY_TARGET <= HWY_AVX3
  const __m512i words = kU ? _mm512_packus_epi32(a.raw, b.raw) : _mm512_packs_epi32(a.raw, b.raw);
  return V{_mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), words)};
#elif HWY_TARGET == HWY_AVX2
  const __m256i words = kU ? _mm256_packus_epi32(a.raw, b.raw) : _mm256_packs_epi32(a.raw, b.raw);
  return V{_mm256_permute4x64_epi64(words, 0xD8)};
#else
  return V{kU ? _mm_packus_epi32(a.raw, b.raw) : _mm_packs_epi32(a.raw, b.raw)};
#endif
}

// Floats to int32 toward zero (TruncInRange) or in the processor's rounding
// (NearestInRange), without the fix-up that Highway's ConvertTo adds for
// lanes beyond the int32 range: such lanes give INT32_MIN, which a caller
// either excludes beforehand or saturates afterwards.
template <class VF>
HWY_INLINE auto TruncInRange(VF v) {
  namespace hn = hwy::HWY_NAMESPACE;
  using DI = hn::RebindToSigned<hn::DFromV<VF>>;
#if HWY_TARGET <= HWY_AVX3
  if constexpr (hn::MaxLanes(DI()) == 16) return hn::Vec<DI>{_mm512_cvttps_epi32(v.raw)};
#endif
#if HWY_TARGET <= HWY_AVX2
  if constexpr (hn::MaxLanes(DI()) == 8) return hn::Vec<DI>{_mm256_cvttps_epi32(v.raw)};
#endif
  if constexpr (hn::MaxLanes(DI()) <= 4) return hn::Vec<DI>{_mm_cvttps_epi32(v.raw)};
}

template <class VF>
HWY_INLINE auto NearestInRange(VF v) {
  namespace hn = hwy::HWY_NAMESPACE;
  using DI = hn::RebindToSigned<hn::DFromV<VF>>;
#if HWY_TARGET <= HWY_AVX3
  if constexpr (hn::MaxLanes(DI()) == 16) return hn::Vec<DI>{_mm512_cvtps_epi32(v.raw)};
#endif
#if HWY_TARGET <= HWY_AVX2
  if constexpr (hn::MaxLanes(DI()) == 8) return hn::Vec<DI>{_mm256_cvtps_epi32(v.raw)};
#endif
  if constexpr (hn::MaxLanes(DI()) <= 4) return hn::Vec<DI>{_mm_cvtps_epi32(v.raw)};
}

#endif

}  // namespace pel::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
