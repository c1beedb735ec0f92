// Vector transposes: one source, compiled once per instruction set by
// Highway, chosen at run time. The baseline target runs the scalar
// references, so PEL_CPU=scalar gives exactly those.
//
// A tile of k x k pixels of P bytes (k = 16 / P: 16 x 16 bytes, 8 x 8 words,
// 4 x 4 dwords, 2 x 2 qwords) sits in k 16-byte vectors, one a row. One
// round of interleaving rows i and i + k/2 rotates each pixel's (row,
// column) index bits by one place; log2(k) rounds make the transpose.
// Four-byte pixels use 8 x 8 tiles in 32-byte vectors where the target has
// them (WideTile4). Three-channel pixels (3, 6 and 12 bytes) take the scalar
// reference.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "datamove/row_transpose_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <cstdint>

#include "core/common.h"
#include "datamove/mirror_scalar.h"
#include "datamove/row_mirror_kernels.h"
#include "hwy/highway.h"

#ifndef PEL_DATAMOVE_ROW_TRANSPOSE_TABLES
#define PEL_DATAMOVE_ROW_TRANSPOSE_TABLES
namespace pel::datamove {
namespace {

// The alpha bytes of 16 bytes of four-lane pixels of P bytes.
alignas(16) constexpr uint8_t kAlphaBytes[3][16] = {
    {0, 0, 0, 0xFF, 0, 0, 0, 0xFF, 0, 0, 0, 0xFF, 0, 0, 0, 0xFF},
    {0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF}};

// The blocks of the image walk: bytes of a source row, and rows.
constexpr size_t kStripBytes = 64;
constexpr size_t kBlockRows = 256;

}  // namespace
}  // namespace pel::datamove
#endif

HWY_BEFORE_NAMESPACE();
namespace pel::datamove::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void TransposeTarget(const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep, size_t w,
                     size_t h, PixelBytes px, bool /*stream*/) {
  scalar::TransposeAny(src, srcStep, dst, dstStep, w, h, px);
}
void TransposeSquareInPlaceTarget(void* p, ptrdiff_t step, size_t n, PixelBytes px) {
  scalar::TransposeSquareInPlaceAny(p, step, n, px);
}

#else

namespace {

template <int P>
struct TileLane;
template <>
struct TileLane<1> { using type = uint8_t; };
template <>
struct TileLane<2> { using type = uint16_t; };
template <>
struct TileLane<4> { using type = uint32_t; };
template <>
struct TileLane<8> { using type = uint64_t; };
template <>
struct TileLane<16> { using type = uint64_t; };

// A k x k tile in registers: row r of the tile is vector r.
template <int P>
struct Tile {
  static constexpr int k = 16 / P;
  using L = typename TileLane<P>::type;
  using DL = hn::Full128<L>;
  using V = hn::Vec<DL>;
  V v[k];

  HWY_INLINE void Load(const uint8_t* s, ptrdiff_t step) {
    const hn::Full128<uint8_t> d8;
    for (int r = 0; r < k; ++r) v[r] = hn::BitCast(DL(), hn::LoadU(d8, Row(s, step, r)));
  }

  HWY_INLINE void Transpose() {
    const DL dl;
    for (int width = 1; width < k; width *= 2) {
      V t[k];
      for (int i = 0; i < k / 2; ++i) {
        t[2 * i] = hn::InterleaveLower(dl, v[i], v[i + k / 2]);
        t[2 * i + 1] = hn::InterleaveUpper(dl, v[i], v[i + k / 2]);
      }
      for (int r = 0; r < k; ++r) v[r] = t[r];
    }
  }

  // Streams only where the caller found every row of the tile aligned.
  template <bool kKeep>
  HWY_INLINE void Store(uint8_t* d, ptrdiff_t step, bool stream) const {
    const hn::Full128<uint8_t> d8;
    for (int r = 0; r < k; ++r) {
      uint8_t* p = Row(d, step, r);
      auto bytes = hn::BitCast(d8, v[r]);
      if constexpr (kKeep) {
        const auto alpha = hn::MaskFromVec(hn::Load(d8, kAlphaBytes[P == 4 ? 0 : P == 8 ? 1 : 2]));
        bytes = hn::IfThenElse(alpha, hn::LoadU(d8, p), bytes);
      }
      if (stream) {
        hn::Stream(bytes, d8, p);
      } else {
        hn::StoreU(bytes, d8, p);
      }
    }
  }
};

#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX2
// Four-byte pixels where 32-byte vectors exist: an 8 x 8 tile in eight
// vectors. Interleaving works inside 16-byte halves, so two rounds build
// 4 x 4 transposes in each half and one exchange of halves finishes; per
// pixel that is fewer shuffles and half the stores of the 4 x 4 tile.
struct WideTile4 {
  static constexpr int k = 8;
  using D = hn::FixedTag<uint32_t, 8>;
  using V = hn::Vec<D>;
  V v[k];

  HWY_INLINE void Load(const uint8_t* s, ptrdiff_t step) {
    const hn::FixedTag<uint8_t, 32> d8;
    for (int r = 0; r < k; ++r) v[r] = hn::BitCast(D(), hn::LoadU(d8, Row(s, step, r)));
  }

  HWY_INLINE void Transpose() {
    const D d;
    const hn::Repartition<uint64_t, D> d64;
    const auto lower64 = [&](V a, V b) {
      return hn::BitCast(d, hn::InterleaveLower(d64, hn::BitCast(d64, a), hn::BitCast(d64, b)));
    };
    const auto upper64 = [&](V a, V b) {
      return hn::BitCast(d, hn::InterleaveUpper(d64, hn::BitCast(d64, a), hn::BitCast(d64, b)));
    };
    V t[k];
    for (int i = 0; i < k / 2; ++i) {
      t[2 * i] = hn::InterleaveLower(d, v[2 * i], v[2 * i + 1]);
      t[2 * i + 1] = hn::InterleaveUpper(d, v[2 * i], v[2 * i + 1]);
    }
    // u[4g + c]: column c of rows 4g..4g+3 in the low half, column c + 4 in
    // the high half.
    V u[k];
    for (int g = 0; g < 2; ++g) {
      u[4 * g + 0] = lower64(t[4 * g], t[4 * g + 2]);
      u[4 * g + 1] = upper64(t[4 * g], t[4 * g + 2]);
      u[4 * g + 2] = lower64(t[4 * g + 1], t[4 * g + 3]);
      u[4 * g + 3] = upper64(t[4 * g + 1], t[4 * g + 3]);
    }
    for (int c = 0; c < 4; ++c) {
      v[c] = hn::ConcatLowerLower(d, u[4 + c], u[c]);
      v[c + 4] = hn::ConcatUpperUpper(d, u[4 + c], u[c]);
    }
  }

  template <bool kKeep>
  HWY_INLINE void Store(uint8_t* dst, ptrdiff_t step, bool stream) const {
    static_assert(!kKeep, "alpha-keeping pixels use the 16-byte tile");
    const hn::FixedTag<uint8_t, 32> d8;
    for (int r = 0; r < k; ++r) {
      uint8_t* p = Row(dst, step, r);
      if (stream) {
        hn::Stream(hn::BitCast(d8, v[r]), d8, p);
      } else {
        hn::StoreU(hn::BitCast(d8, v[r]), d8, p);
      }
    }
  }
};
#endif

// Tiles cover the image; where the width or height is not a multiple of k
// the last tile of a row or column overlaps the one before it and writes
// those pixels again with the same values. Images narrower or lower than
// one tile take the reference.
//
// The walk goes through blocks one cache line of source columns wide and
// kBlockRows rows high: each source line is read once, whole, and each
// destination line is filled while it is still in the cache, while the
// pages a block touches stay few enough for the address translation caches.
template <int P, bool kKeep, class TileT = Tile<P>>
void TransposeT(const uint8_t* src, ptrdiff_t ss, uint8_t* dst, ptrdiff_t ds, size_t w, size_t h,
                bool stream) {
  constexpr size_t k = TileT::k;
  constexpr size_t kRowBytes = k * P;  // one tile row, the unit of a streamed store
  if (w < k || h < k) {
    scalar::Transpose<P, kKeep>(src, ss, dst, ds, w, h);
    return;
  }
  constexpr size_t kStrip = kStripBytes / P > k ? kStripBytes / P : k;
  const bool streamRows = stream && ds % kRowBytes == 0;
  for (size_t by = 0; by < h; by += kBlockRows) {
    const size_t yEnd = std::min(by + kBlockRows, h);
    for (size_t bx = 0; bx < w; bx += kStrip) {
      const size_t xEnd = std::min(bx + kStrip, w);
      for (size_t ty = by; ty < yEnd; ty += k) {
        const size_t y = std::min(ty, h - k);
        const uint8_t* s = Row(src, ss, static_cast<ptrdiff_t>(y));
        for (size_t tx = bx; tx < xEnd; tx += k) {
          const size_t x = std::min(tx, w - k);
          TileT t;
          t.Load(s + x * P, ss);
          t.Transpose();
          uint8_t* d = Row(dst, ds, static_cast<ptrdiff_t>(x)) + y * P;
          t.template Store<kKeep>(d, ds,
                                  streamRows && reinterpret_cast<uintptr_t>(d) % kRowBytes == 0);
        }
      }
    }
  }
}

// Whole tiles pair up across the diagonal (the tile at (i, j) with the one
// at (j, i), both loaded before either is stored); the strip past the last
// whole tile exchanges pixel by pixel.
template <int P>
void TransposeSquareInPlaceT(uint8_t* p, ptrdiff_t step, size_t n) {
  constexpr size_t k = Tile<P>::k;
  const size_t whole = n / k * k;
  auto at = [&](size_t x, size_t y) { return Row(p, step, static_cast<ptrdiff_t>(y)) + x * P; };
  for (size_t ty = 0; ty < whole; ty += k) {
    Tile<P> diagonal;
    diagonal.Load(at(ty, ty), step);
    diagonal.Transpose();
    diagonal.template Store<false>(at(ty, ty), step, false);
    for (size_t tx = ty + k; tx < whole; tx += k) {
      Tile<P> a, b;
      a.Load(at(tx, ty), step);
      b.Load(at(ty, tx), step);
      a.Transpose();
      b.Transpose();
      a.template Store<false>(at(ty, tx), step, false);
      b.template Store<false>(at(tx, ty), step, false);
    }
  }
  for (size_t x = whole; x < n; ++x)
    for (size_t y = 0; y < x; ++y) ExchangePixels<P, false>(at(x, y), at(y, x));
}

}  // namespace

void TransposeTarget(const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep, size_t w,
                     size_t h, PixelBytes px, bool stream) {
  const auto* s = static_cast<const uint8_t*>(src);
  auto* d = static_cast<uint8_t*>(dst);
  VisitPixel(px, [&](auto p, auto keep) {
    if constexpr (p() % 3 == 0) {
      scalar::Transpose<p(), keep()>(s, srcStep, d, dstStep, w, h);
#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX2
    } else if constexpr (p() == 4 && !keep()) {
      if (w >= WideTile4::k && h >= WideTile4::k) {
        TransposeT<4, false, WideTile4>(s, srcStep, d, dstStep, w, h, stream);
      } else {
        TransposeT<4, false>(s, srcStep, d, dstStep, w, h, stream);
      }
#endif
    } else {
      TransposeT<p(), keep()>(s, srcStep, d, dstStep, w, h, stream);
    }
  });
}

void TransposeSquareInPlaceTarget(void* p, ptrdiff_t step, size_t n, PixelBytes px) {
  auto* a = static_cast<uint8_t*>(p);
  VisitPixel(px, [&](auto bytes, auto) {
    if constexpr (bytes() % 3 == 0) {
      scalar::TransposeSquareInPlace<bytes()>(a, step, n);
    } else {
      TransposeSquareInPlaceT<bytes()>(a, step, n);
    }
  });
}

#endif

}  // namespace pel::datamove::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::datamove {

HWY_EXPORT(TransposeTarget);
HWY_EXPORT(TransposeSquareInPlaceTarget);

void TransposeRect(const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep, size_t w,
               size_t h, PixelBytes px, bool stream) {
  HWY_DYNAMIC_DISPATCH(TransposeTarget)(src, srcStep, dst, dstStep, w, h, px, stream);
}

void TransposeSquareInPlace(void* p, ptrdiff_t step, size_t n, PixelBytes px) {
  HWY_DYNAMIC_DISPATCH(TransposeSquareInPlaceTarget)(p, step, n, px);
}

}  // namespace pel::datamove
#endif
