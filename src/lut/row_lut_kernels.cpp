// Vector 8-bit table lookups. A 256-entry table does not fit a byte shuffle,
// which looks up 16 entries, so each half of the table is looked up as eight
// shuffles of its 16-byte pieces: the index drops by 16 before each piece;
// the shuffle gives 0 for lanes whose index went negative (or is still 128
// or more) and entry index & 15 for the others (x86 byte shuffles, the only
// vector targets built); the pieces are stored as XORs of neighbours, so
// that the lookups of a half XOR to the one piece each lane belongs to. The
// sign of the byte picks the half. Multi-channel rows are split into one
// vector per channel first. Rows shorter than a vector, and the tail of each
// row, run the scalar loop: an in-place row cannot end with an overlapping
// vector.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "lut/row_lut_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include "hwy/highway.h"
#include "core/pixels-inl.h"
#include "lut/row_lut_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace pel::lut::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void LookupRow8Target(const Lut8Job& j, const uint8_t* src, uint8_t* dst, size_t pixels) {
  scalar::LookupPixels8(j, src, dst, 0, pixels);
}

#else

using pel::HWY_NAMESPACE::LoadPixels;
using pel::HWY_NAMESPACE::StorePixels;

template <class D, class V = hn::Vec<D>>
HWY_INLINE V Lookup(D d, const V* pieces, V v) {
  const hn::RebindToSigned<D> di;
  const V k16 = hn::Set(d, uint8_t{16});
  V index = v, low = hn::Zero(d), high = hn::Zero(d);
  for (int h = 0; h < 8; ++h) {
    low = hn::Xor(low, hn::TableLookupBytesOr0(pieces[h], index));
    index = hn::Sub(index, k16);
  }
  for (int h = 8; h < 16; ++h) {
    high = hn::Xor(high, hn::TableLookupBytesOr0(pieces[h], index));
    index = hn::Sub(index, k16);
  }
  return hn::BitCast(d, hn::IfNegativeThenElse(hn::BitCast(di, v), hn::BitCast(di, high), hn::BitCast(di, low)));
}

// W channels of C looked up; an AC4 pixel's fourth byte is written back as
// the destination holds it.
template <int C, int W>
void LookupRowT(const Lut8Job& j, const uint8_t* src, uint8_t* dst, size_t pixels) {
  const hn::ScalableTag<uint8_t> d;
  using V = hn::Vec<decltype(d)>;
  const size_t N = hn::Lanes(d);
  V pieces[W][16];
  for (int c = 0; c < W; ++c)
    for (int h = 0; h < 16; ++h) pieces[c][h] = hn::LoadDup128(d, j.pieces[c][h]);
  size_t x = 0;
  for (; x + N <= pixels; x += N) {
    V v[C];
    LoadPixels<C>(d, src + x * C, v);
    if constexpr (W < C) {
      V kept[C];
      LoadPixels<C>(d, dst + x * C, kept);
      v[C - 1] = kept[C - 1];
    }
    for (int c = 0; c < W; ++c) v[c] = Lookup(d, pieces[c], v[c]);
    StorePixels<C>(d, v, dst + x * C);
  }
  scalar::LookupPixels8(j, src, dst, x, pixels);
}

void LookupRow8Target(const Lut8Job& j, const uint8_t* src, uint8_t* dst, size_t pixels) {
  switch (j.channels * 8 + j.worked) {
    case 1 * 8 + 1: return LookupRowT<1, 1>(j, src, dst, pixels);
    case 3 * 8 + 3: return LookupRowT<3, 3>(j, src, dst, pixels);
    case 4 * 8 + 4: return LookupRowT<4, 4>(j, src, dst, pixels);
    default: return LookupRowT<4, 3>(j, src, dst, pixels);
  }
}

#endif

}  // namespace pel::lut::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::lut {

HWY_EXPORT(LookupRow8Target);

void LookupRow8(const Lut8Job& job, const uint8_t* src, uint8_t* dst, size_t pixels) {
  HWY_DYNAMIC_DISPATCH(LookupRow8Target)(job, src, dst, pixels);
}

}  // namespace pel::lut
#endif
