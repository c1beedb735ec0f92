// Vector row kernels of the masked, alpha-keeping and single-channel copies
// and fills: one source, compiled once per instruction set by Highway, chosen
// at run time. The baseline target runs the scalar references, so
// PEL_CPU=scalar gives exactly those.
//
// Vectors never leave the row: the loops run whole vectors while they fit
// and hand the rest of the row to the scalar reference. (An overlapping last
// vector, as the plain copy uses, would blend a second time against bytes
// it has just written, which is wrong when source and destination overlap.)
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "datamove/row_mask_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/lanes.h"
#include "datamove/mask_scalar.h"
#include "datamove/row_mask_kernels.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::datamove::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Calls f(U{}, C, W) for the lane type, the lanes per pixel and the lanes
// written per pixel (W == C, or 3 of 4 for alpha layouts).
template <class F>
void VisitLayout(int elemBytes, int channels, int written, F&& f) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    if constexpr (c() == 4) {
      if (written == 3) {
        f(lane, c, std::integral_constant<int, 3>{});
        return;
      }
    }
    f(lane, c, c);
  });
}

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void MaskedCopyRowTarget(const void* src, void* dst, const uint8_t* mask, size_t pixels,
                         int elemBytes, int channels, int written) {
  VisitLayout(elemBytes, channels, written, [&](auto lane, auto c, auto w) {
    using U = decltype(lane);
    scalar::MaskedCopyRow<U, c(), w()>(static_cast<const U*>(src), static_cast<U*>(dst), mask,
                                       pixels);
  });
}

void MaskedSetRowTarget(void* dst, const uint8_t* mask, size_t pixels, const void* value,
                        int elemBytes, int channels, int written) {
  VisitLayout(elemBytes, channels, written, [&](auto lane, auto c, auto w) {
    using U = decltype(lane);
    scalar::MaskedSetRow<U, c(), w()>(static_cast<U*>(dst), mask, pixels,
                                      static_cast<const U*>(value));
  });
}

void AlphaCopyRowTarget(const void* src, void* dst, size_t pixels, int elemBytes,
                        bool /*stream*/) {
  VisitLaneAndChannels(elemBytes, 1, [&](auto lane, auto) {
    using U = decltype(lane);
    scalar::AlphaCopyRow<U>(static_cast<const U*>(src), static_cast<U*>(dst), pixels);
  });
}

void AlphaSetRowTarget(void* dst, size_t pixels, const void* value, int elemBytes,
                       bool /*stream*/) {
  VisitLaneAndChannels(elemBytes, 1, [&](auto lane, auto) {
    using U = decltype(lane);
    scalar::AlphaSetRow<U>(static_cast<U*>(dst), pixels, static_cast<const U*>(value));
  });
}

void ChannelCopyRowTarget(const void* src, void* dst, size_t pixels, int elemBytes,
                          int channels) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    if constexpr (c() > 1) {
      scalar::ChannelCopyRow<U, c()>(static_cast<const U*>(src), static_cast<U*>(dst), pixels);
    }
  });
}

void ChannelSetRowTarget(void* dst, size_t pixels, const void* value, int elemBytes,
                         int channels) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    if constexpr (c() > 1) {
      scalar::ChannelSetRow<U, c()>(static_cast<U*>(dst), pixels, *static_cast<const U*>(value));
    }
  });
}

#else

// Stores the lanes of v where m is set. AVX-512 has true masked stores.
// Below it Highway's 8/16-bit masked store goes lane by lane, so the whole
// destination vector is read, blended and written back: lanes outside m get
// their own value again. Callers only pass vectors that lie inside the row.
template <class D, class M, class V>
HWY_INLINE void StoreWhere(D d, M m, V v, hn::TFromD<D>* p) {
#if HWY_TARGET <= HWY_AVX3
  hn::BlendedStore(v, m, d, p);
#else
  hn::StoreU(hn::IfThenElse(m, v, hn::LoadU(d, p)), d, p);
#endif
}

// ---------------------------------------------------------------- masked

// One-lane pixels use whole vectors, their mask bytes widened lane for lane.
// Wider pixels use 128-bit vectors, in which one byte shuffle spreads each
// mask byte over the lanes of its pixel; wider vectors would need shuffles
// across 128-bit blocks for the three-lane pixels and gain little.
template <class U, int C>
using PixelTag = std::conditional_t<C == 1, hn::ScalableTag<U>, hn::Full128<U>>;

// Spreads the selection of one block of N pixels (N = lanes of one vector)
// over the lanes of the C vectors that hold them. Lanes W..C-1 of a pixel
// (alpha) are never selected.
template <class U, int C, int W>
class PixelMasks {
 public:
  using D = PixelTag<U, C>;
  static constexpr size_t kPixels = hn::MaxLanes(D());
  // The block's mask bytes, one a lane.
  using D8 = hn::CappedTag<uint8_t, kPixels>;

  PixelMasks() {
    if constexpr (C > 1) {
      const hn::Full128<uint8_t> d8;
      for (int k = 0; k < C; ++k) {
        HWY_ALIGN uint8_t index[16];
        for (size_t b = 0; b < 16; ++b) {
          const size_t lane = k * kPixels + b / sizeof(U);
          // An index with the top bit set makes the shuffle give 0.
          index[b] = static_cast<int>(lane % C) < W ? static_cast<uint8_t>(lane / C) : 0x80;
        }
        spread_[k] = hn::Load(d8, index);
      }
    }
  }

  // The lanes of vector k of the block whose mask bytes are `bytes`.
  hn::Mask<D> Lanes(hn::Vec<D8> bytes, int k) const {
    const D d;
    const D8 d8;
    if constexpr (C == 1) {
      (void)k;
      if constexpr (sizeof(U) == 1) {
        return hn::Ne(bytes, hn::Zero(d8));
      } else {
        return hn::Ne(hn::PromoteTo(d, bytes), hn::Zero(d));
      }
    } else {
      const auto on = hn::VecFromMask(d8, hn::Ne(bytes, hn::Zero(d8)));
      return hn::MaskFromVec(hn::BitCast(d, hn::TableLookupBytes(on, spread_[k])));
    }
  }

 private:
  // For C > 1: which mask byte each byte of vector k takes.
  hn::Vec<hn::Full128<uint8_t>> spread_[C];
};

enum class Selected { kNone, kSome, kAll };

template <size_t kBlocks, class D8>
Selected Classify(D8 d8, const hn::Vec<D8>* bytes) {
  auto any = bytes[0];
  auto least = bytes[0];
  for (size_t b = 1; b < kBlocks; ++b) {
    any = hn::Or(any, bytes[b]);
    least = hn::Min(least, bytes[b]);
  }
  if (hn::AllTrue(d8, hn::Eq(any, hn::Zero(d8)))) return Selected::kNone;
  return hn::AllFalse(d8, hn::Eq(least, hn::Zero(d8))) ? Selected::kAll : Selected::kSome;
}

// Blocks are judged in groups: a group with no pixel selected is skipped, a
// wholly selected one stored without blending, any other blended block by
// block. Masks whose runs are shorter than a group then take the blend path
// every time instead of mispredicting a branch per block.
constexpr size_t kGroupBlocks = 4;

// The C vectors of block b of the pixels from x come from source(d, b * C + k,
// x), k = 0..C-1, and go to the destination where the mask selects them.
// Returns the pixels done; the rest, less than a block, is left.
template <class U, int C, int W, class Source>
size_t MaskedVectors(U* dst, const uint8_t* mask, size_t pixels, Source source) {
  using PM = PixelMasks<U, C, W>;
  const typename PM::D d;
  const typename PM::D8 d8;
  constexpr size_t N = PM::kPixels;
  const PM masks;
  size_t x = 0;
  auto blocks = [&](auto count) {
    constexpr size_t kBlocks = decltype(count)::value;
    hn::Vec<typename PM::D8> bytes[kBlocks];
    for (size_t b = 0; b < kBlocks; ++b) bytes[b] = hn::LoadU(d8, mask + x + b * N);
    const Selected selected = Classify<kBlocks>(d8, bytes);
    if (selected == Selected::kNone) return;
    U* out = dst + x * C;
    if (W == C && selected == Selected::kAll) {
      for (size_t i = 0; i < kBlocks * C; ++i) hn::StoreU(source(d, i, x), d, out + i * N);
      return;
    }
    for (size_t b = 0; b < kBlocks; ++b) {
      for (int k = 0; k < C; ++k) {
        const size_t i = b * C + k;
        StoreWhere(d, masks.Lanes(bytes[b], k), source(d, i, x), out + i * N);
      }
    }
  };
  for (; x + kGroupBlocks * N <= pixels; x += kGroupBlocks * N) {
    blocks(std::integral_constant<size_t, kGroupBlocks>{});
  }
  for (; x + N <= pixels; x += N) blocks(std::integral_constant<size_t, 1>{});
  return x;
}

template <class U, int C, int W>
void MaskedCopyRowT(const U* src, U* dst, const uint8_t* mask, size_t pixels) {
  const size_t done = MaskedVectors<U, C, W>(dst, mask, pixels, [src](auto d, size_t i, size_t x) {
    return hn::LoadU(d, src + x * C + i * hn::MaxLanes(d));
  });
  scalar::MaskedCopyRow<U, C, W>(src + done * C, dst + done * C, mask + done, pixels - done);
}

template <class U, int C, int W>
void MaskedSetRowT(U* dst, const uint8_t* mask, size_t pixels, const U* value) {
  using D = PixelTag<U, C>;
  const D d;
  constexpr size_t N = hn::MaxLanes(D());
  // The C vectors of any N pixels are the same: load them once.
  HWY_ALIGN U pattern[C * N];
  for (size_t i = 0; i < C * N; ++i) {
    pattern[i] = static_cast<int>(i % C) < W ? value[i % C] : U{0};
  }
  hn::Vec<D> v[C];
  for (int k = 0; k < C; ++k) v[k] = hn::Load(d, pattern + k * N);
  const size_t done = MaskedVectors<U, C, W>(
      dst, mask, pixels, [&v](auto, size_t i, size_t) { return v[i % C]; });
  scalar::MaskedSetRow<U, C, W>(dst + done * C, mask + done, pixels - done, value);
}

void MaskedCopyRowTarget(const void* src, void* dst, const uint8_t* mask, size_t pixels,
                         int elemBytes, int channels, int written) {
  VisitLayout(elemBytes, channels, written, [&](auto lane, auto c, auto w) {
    using U = decltype(lane);
    MaskedCopyRowT<U, c(), w()>(static_cast<const U*>(src), static_cast<U*>(dst), mask, pixels);
  });
}

void MaskedSetRowTarget(void* dst, const uint8_t* mask, size_t pixels, const void* value,
                        int elemBytes, int channels, int written) {
  VisitLayout(elemBytes, channels, written, [&](auto lane, auto c, auto w) {
    using U = decltype(lane);
    MaskedSetRowT<U, c(), w()>(static_cast<U*>(dst), mask, pixels, static_cast<const U*>(value));
  });
}

// ---------------------------------------------------------------- alpha

// Lanes 0..2 of four-lane pixels from source(d, lane); lane 3 keeps its
// value. A vector holds whole pixels, so one lane mask serves every vector.
// rest(begin, end) does pixels [begin, end) the scalar way.
template <class U, class Source, class Rest>
void AlphaRowT(U* dst, size_t pixels, bool stream, Source source, Rest rest) {
  const hn::ScalableTag<U> d;
  constexpr size_t kPerVector = hn::MaxLanes(decltype(d)()) / 4;
  constexpr size_t kVecBytes = hn::MaxLanes(decltype(d)()) * sizeof(U);
  const auto alpha = hn::Eq(hn::And(hn::Iota(d, 0), hn::Set(d, U{3})), hn::Set(d, U{3}));
  size_t x = 0;
  const uintptr_t address = reinterpret_cast<uintptr_t>(dst);
  // Streaming stores need aligned vectors, which hold whole pixels only if
  // the destination is pixel-aligned; otherwise ordinary stores are used.
  if (stream && address % (4 * sizeof(U)) == 0) {
    size_t head = (kVecBytes - address % kVecBytes) % kVecBytes / (4 * sizeof(U));
    if (head > pixels) head = pixels;
    rest(0, head);
    for (x = head; x + kPerVector <= pixels; x += kPerVector) {
      U* out = dst + x * 4;
      hn::Stream(hn::IfThenElse(alpha, hn::LoadU(d, out), source(d, x * 4)), d, out);
    }
  } else {
    const auto color = hn::Not(alpha);
    for (; x + kPerVector <= pixels; x += kPerVector) {
      StoreWhere(d, color, source(d, x * 4), dst + x * 4);
    }
  }
  rest(x, pixels);
}

template <class U>
void AlphaCopyRowT(const U* src, U* dst, size_t pixels, bool stream) {
  AlphaRowT(
      dst, pixels, stream, [src](auto d, size_t lane) { return hn::LoadU(d, src + lane); },
      [src, dst](size_t begin, size_t end) {
        scalar::AlphaCopyRow<U>(src + begin * 4, dst + begin * 4, end - begin);
      });
}

template <class U>
void AlphaSetRowT(U* dst, size_t pixels, const U* value, bool stream) {
  const hn::ScalableTag<U> d;
  HWY_ALIGN U pattern[hn::MaxLanes(decltype(d)())];
  for (size_t i = 0; i < hn::MaxLanes(d); ++i) pattern[i] = i % 4 < 3 ? value[i % 4] : U{0};
  const auto v = hn::Load(d, pattern);
  AlphaRowT(
      dst, pixels, stream, [v](auto, size_t) { return v; },
      [dst, value](size_t begin, size_t end) {
        scalar::AlphaSetRow<U>(dst + begin * 4, end - begin, value);
      });
}

void AlphaCopyRowTarget(const void* src, void* dst, size_t pixels, int elemBytes, bool stream) {
  VisitLaneAndChannels(elemBytes, 1, [&](auto lane, auto) {
    using U = decltype(lane);
    AlphaCopyRowT<U>(static_cast<const U*>(src), static_cast<U*>(dst), pixels, stream);
  });
}

void AlphaSetRowTarget(void* dst, size_t pixels, const void* value, int elemBytes, bool stream) {
  VisitLaneAndChannels(elemBytes, 1, [&](auto lane, auto) {
    using U = decltype(lane);
    AlphaSetRowT<U>(static_cast<U*>(dst), pixels, static_cast<const U*>(value), stream);
  });
}

// ---------------------------------------------------------------- channel

// Lane 0 of C-lane pixels. The other lanes must not be stored at all (two
// callers may fill two channels of one image at the same time), so vectors
// are used only where masked stores are real: AVX-512. Elsewhere the scalar
// loop is as fast as a read-modify-write would be.
#if HWY_TARGET <= HWY_AVX3
template <class U, int C, class Source>
size_t ChannelVectors(U* dst, size_t pixels, Source source) {
  const hn::ScalableTag<U> d;
  constexpr size_t N = hn::MaxLanes(decltype(d)());
  // C vectors hold N pixels; vector k selects the lanes k * N + j with
  // (k * N + j) % C == 0.
  HWY_ALIGN U select[C * N];
  for (size_t i = 0; i < C * N; ++i) select[i] = i % C == 0 ? static_cast<U>(~U{0}) : U{0};
  hn::Mask<decltype(d)> m[C];
  for (int k = 0; k < C; ++k) m[k] = hn::MaskFromVec(hn::Load(d, select + k * N));
  // The last pixel ends at its own lane, so a block of N pixels fits only
  // while at least one more pixel follows it.
  size_t x = 0;
  for (; x + N < pixels; x += N) {
    for (int k = 0; k < C; ++k) {
      hn::BlendedStore(source(d, x * C + k * N), m[k], d, dst + x * C + k * N);
    }
  }
  return x;
}
#else
template <class U, int C, class Source>
size_t ChannelVectors(U*, size_t, Source) {
  return 0;
}
#endif

template <class U, int C>
void ChannelCopyRowT(const U* src, U* dst, size_t pixels) {
  const size_t done = ChannelVectors<U, C>(
      dst, pixels, [src](auto d, size_t lane) { return hn::LoadU(d, src + lane); });
  scalar::ChannelCopyRow<U, C>(src + done * C, dst + done * C, pixels - done);
}

template <class U, int C>
void ChannelSetRowT(U* dst, size_t pixels, U value) {
  const size_t done = ChannelVectors<U, C>(
      dst, pixels, [value](auto d, size_t) { return hn::Set(d, value); });
  scalar::ChannelSetRow<U, C>(dst + done * C, pixels - done, value);
}

void ChannelCopyRowTarget(const void* src, void* dst, size_t pixels, int elemBytes,
                          int channels) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    if constexpr (c() > 1) {
      ChannelCopyRowT<U, c()>(static_cast<const U*>(src), static_cast<U*>(dst), pixels);
    }
  });
}

void ChannelSetRowTarget(void* dst, size_t pixels, const void* value, int elemBytes,
                         int channels) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    if constexpr (c() > 1) {
      ChannelSetRowT<U, c()>(static_cast<U*>(dst), pixels, *static_cast<const U*>(value));
    }
  });
}

#endif

}  // namespace pel::datamove::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::datamove {

HWY_EXPORT(MaskedCopyRowTarget);
HWY_EXPORT(MaskedSetRowTarget);
HWY_EXPORT(AlphaCopyRowTarget);
HWY_EXPORT(AlphaSetRowTarget);
HWY_EXPORT(ChannelCopyRowTarget);
HWY_EXPORT(ChannelSetRowTarget);

void MaskedCopyRowAny(const void* src, void* dst, const uint8_t* mask, size_t pixels,
                      int elemBytes, int channels, int written) {
  HWY_DYNAMIC_DISPATCH(MaskedCopyRowTarget)(src, dst, mask, pixels, elemBytes, channels, written);
}

void MaskedSetRowAny(void* dst, const uint8_t* mask, size_t pixels, const void* value,
                     int elemBytes, int channels, int written) {
  HWY_DYNAMIC_DISPATCH(MaskedSetRowTarget)(dst, mask, pixels, value, elemBytes, channels, written);
}

void AlphaCopyRowAny(const void* src, void* dst, size_t pixels, int elemBytes, bool stream) {
  HWY_DYNAMIC_DISPATCH(AlphaCopyRowTarget)(src, dst, pixels, elemBytes, stream);
}

void AlphaSetRowAny(void* dst, size_t pixels, const void* value, int elemBytes, bool stream) {
  HWY_DYNAMIC_DISPATCH(AlphaSetRowTarget)(dst, pixels, value, elemBytes, stream);
}

void ChannelCopyRowAny(const void* src, void* dst, size_t pixels, int elemBytes, int channels) {
  HWY_DYNAMIC_DISPATCH(ChannelCopyRowTarget)(src, dst, pixels, elemBytes, channels);
}

void ChannelSetRowAny(void* dst, size_t pixels, const void* value, int elemBytes, int channels) {
  HWY_DYNAMIC_DISPATCH(ChannelSetRowTarget)(dst, pixels, value, elemBytes, channels);
}

}  // namespace pel::datamove
#endif
