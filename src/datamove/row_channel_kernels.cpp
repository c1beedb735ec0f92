// Vector row kernels of the channel copies: one source, compiled once per
// instruction set by Highway and chosen at run time. The baseline target runs
// the scalar references, so PEL_CPU=scalar gives exactly those.
//
// Interleaved pixels are (de)interleaved with Highway's Load/StoreInterleaved
// into one vector per channel. Rows shorter than a vector go scalar; longer
// rows end with one more full block that overlaps the block before it and
// rewrites those pixels with the values they already have (the walkers only
// send rows here whose source and destination do not overlap).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "datamove/row_channel_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstdint>
#include <type_traits>

#include "datamove/channel_scalar.h"
#include "datamove/row_channel_kernels.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"
#include "core/pixels-inl.h"

#ifndef PEL_DATAMOVE_ROW_CHANNEL_KERNELS_VISIT
#define PEL_DATAMOVE_ROW_CHANNEL_KERNELS_VISIT
namespace pel::datamove {
namespace {

// f(U{}) for the unsigned lane type of elemBytes (1, 2 or 4).
template <class F>
void VisitLane(int elemBytes, F&& f) {
  switch (elemBytes) {
    case 1: return f(uint8_t{});
    case 2: return f(uint16_t{});
    case 4: return f(uint32_t{});
  }
}

// f(U{}, std::integral_constant<int, C>{}) for C of 3 or 4.
template <class F>
void VisitLaneAndChannels(int elemBytes, int channels, F&& f) {
  VisitLane(elemBytes, [&](auto lane) {
    if (channels == 3) return f(lane, std::integral_constant<int, 3>{});
    if (channels == 4) return f(lane, std::integral_constant<int, 4>{});
  });
}

}  // namespace
}  // namespace pel::datamove
#endif

HWY_BEFORE_NAMESPACE();
namespace pel::datamove::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

template <class U, int C>
void ExtractRowT(const U* src, U* dst, size_t n) {
  scalar::ExtractRow<U, C>(src, dst, 0, n);
}
template <class U, int C>
void InsertRowT(const U* src, U* dst, size_t n) {
  scalar::InsertRow<U, C>(src, dst, 0, n);
}
template <class U, int C>
void SplitRowT(const U* src, U* const* planes, size_t n, bool /*stream*/) {
  scalar::SplitRow<U, C>(src, planes, 0, n);
}
template <class U, int C>
void MergeRowT(const U* const* planes, U* dst, size_t n, bool /*stream*/) {
  scalar::MergeRow<U, C>(planes, dst, 0, n);
}
template <class U>
void DropAlphaRowT(const U* src, U* dst, size_t n) {
  scalar::DropAlphaRow<U>(src, dst, 0, n);
}
template <class U>
void AddAlphaRowT(const U* src, U* dst, size_t n) {
  scalar::AddAlphaRow<U>(src, dst, 0, n);
}
template <class U, int C>
void DupRowT(const U* src, U* dst, size_t n) {
  scalar::DupRow<U, C>(src, dst, 0, n);
}

#else

namespace {

// The per-block lambdas are called from a loop and from the head and tail;
// left to itself the compiler keeps them out of line and reloads their
// shuffle tables on every block.
#ifndef PEL_BLOCK_INLINE
#define PEL_BLOCK_INLINE __attribute__((always_inline))
#endif

using pel::HWY_NAMESPACE::LoadPixels;
using pel::HWY_NAMESPACE::StorePixels;

// body(i) for blocks of N pixels starting at i that together cover [0, n),
// n >= N; the last block may overlap the one before it.
template <class Body>
HWY_INLINE void ForEachBlock(size_t n, size_t N, Body&& body) {
  size_t i = 0;
  for (; i + N <= n; i += N) body(i);
  if (i < n) body(n - N);
}

// Big planar copies run at memory speed with one load stream beside three or
// four store streams; asking for the loads this far ahead keeps more of them
// in flight than the hardware prefetcher does on its own. A prefetch never
// faults, so asking past the end of a row is harmless.
constexpr size_t kPrefetchBytes = 2048;

// ForEachBlock that first asks, for every stream in `streams` (each advancing
// `lanesPerPixel` lanes a pixel), for the lanes kPrefetchBytes ahead.
template <class U, size_t K, class Body>
HWY_INLINE void ForEachBlockPrefetching(size_t n, size_t N, const U* const (&streams)[K],
                                        size_t lanesPerPixel, Body&& body) {
  const size_t ahead = kPrefetchBytes / sizeof(U);
  const size_t vectorsPerBlock = lanesPerPixel;  // a block of N pixels spans this many vectors
  size_t i = 0;
  for (; i + N <= n; i += N) {
    for (size_t k = 0; k < K; ++k) {
      const U* at = streams[k] + i * lanesPerPixel + ahead;
      for (size_t v = 0; v < vectorsPerBlock; ++v) hwy::Prefetch(at + v * N);
    }
    body(i);
  }
  if (i < n) body(n - N);
}

constexpr size_t kNeverAligned = ~size_t{0};

// How many pixels of `lanesPerPixel` lanes lie between p and the first
// vector-aligned pixel (less than one vector's worth), or kNeverAligned when
// stepping by whole pixels never reaches a vector boundary.
template <class D, class U = hn::TFromD<D>>
size_t PixelsToAlignment(D d, const U* p, size_t lanesPerPixel) {
  const uintptr_t address = reinterpret_cast<uintptr_t>(p);
  const size_t vecBytes = hn::Lanes(d) * sizeof(U);
  for (size_t k = 0; k < hn::Lanes(d); ++k) {
    if ((address + k * lanesPerPixel * sizeof(U)) % vecBytes == 0) return k;
  }
  return kNeverAligned;
}

// The source addresses one channel of its pixels (extract) or the
// destination does (insert), so the row may end as early as that channel of
// the last pixel: vectors cover all pixels but the last, which goes scalar.
template <class U, int C>
void ExtractRowT(const U* src, U* dst, size_t n) {
  const hn::ScalableTag<U> d;
  const size_t N = hn::Lanes(d);
  if (n <= N) {
    scalar::ExtractRow<U, C>(src, dst, 0, n);
    return;
  }
  const auto body = [&](size_t i) PEL_BLOCK_INLINE {
    hn::Vec<decltype(d)> v[C];
    LoadPixels<C>(d, src + i * C, v);
    hn::StoreU(v[0], d, dst + i);
  };
  const U* const streams[1] = {src};
  ForEachBlockPrefetching(n - 1, N, streams, C, body);
  scalar::ExtractRow<U, C>(src, dst, n - 1, n);
}

// Reads the destination pixels, replaces the chosen channel and writes them
// back: the other channels get their own values again.
template <class U, int C>
void InsertRowT(const U* src, U* dst, size_t n) {
  const hn::ScalableTag<U> d;
  const size_t N = hn::Lanes(d);
  if (n <= N) {
    scalar::InsertRow<U, C>(src, dst, 0, n);
    return;
  }
  ForEachBlock(n - 1, N, [&](size_t i) PEL_BLOCK_INLINE {
    hn::Vec<decltype(d)> v[C];
    LoadPixels<C>(d, dst + i * C, v);
    v[0] = hn::LoadU(d, src + i);
    StorePixels<C>(d, v, dst + i * C);
  });
  scalar::InsertRow<U, C>(src, dst, n - 1, n);
}

template <class U, int C>
void SplitRowT(const U* src, U* const* planes, size_t n, bool stream) {
  const hn::ScalableTag<U> d;
  using V = hn::Vec<decltype(d)>;
  const size_t N = hn::Lanes(d);
  if (n < N) {
    scalar::SplitRow<U, C>(src, planes, 0, n);
    return;
  }
  U* p[C];
  for (int c = 0; c < C; ++c) p[c] = planes[c];
  const auto block = [&](size_t i) PEL_BLOCK_INLINE {
    V v[C];
    LoadPixels<C>(d, src + i * C, v);
    for (int c = 0; c < C; ++c) hn::StoreU(v[c], d, p[c] + i);
  };
  if (stream) {
    // Streaming needs aligned stores, so only planes that reach a vector
    // boundary at the same pixel stream.
    const size_t head = PixelsToAlignment(d, p[0], 1);
    bool together = head != kNeverAligned && head + N <= n;
    for (int c = 1; together && c < C; ++c) {
      together = PixelsToAlignment(d, p[c], 1) == head;
    }
    if (together) {
      if (head != 0) block(0);
      size_t i = head;
      for (; i + N <= n; i += N) {
        V v[C];
        LoadPixels<C>(d, src + i * C, v);
        for (int c = 0; c < C; ++c) hn::Stream(v[c], d, p[c] + i);
      }
      if (i < n) block(n - N);
      return;
    }
  }
  const U* const streams[1] = {src};
  ForEachBlockPrefetching(n, N, streams, C, block);
}

template <class U, int C>
void MergeRowT(const U* const* planes, U* dst, size_t n, bool stream) {
  const hn::ScalableTag<U> d;
  using V = hn::Vec<decltype(d)>;
  const size_t N = hn::Lanes(d);
  if (n < N) {
    scalar::MergeRow<U, C>(planes, dst, 0, n);
    return;
  }
  const U* p[C];
  for (int c = 0; c < C; ++c) p[c] = planes[c];
  const auto block = [&](size_t i) PEL_BLOCK_INLINE {
    V v[C];
    for (int c = 0; c < C; ++c) v[c] = hn::LoadU(d, p[c] + i);
    StorePixels<C>(d, v, dst + i * C);
  };
  if (stream) {
    const size_t head = PixelsToAlignment(d, dst, C);
    if (head != kNeverAligned && head + N <= n) {
      if (head != 0) block(0);
      // Interleaving writes to memory, so it goes through an aligned buffer
      // that is then streamed out whole.
      HWY_ALIGN U buffer[C * (HWY_MAX_BYTES / sizeof(U))];
      size_t i = head;
      for (; i + N <= n; i += N) {
        V v[C];
        for (int c = 0; c < C; ++c) v[c] = hn::LoadU(d, p[c] + i);
        StorePixels<C>(d, v, buffer);
        for (int k = 0; k < C; ++k) hn::Stream(hn::Load(d, buffer + k * N), d, dst + i * C + k * N);
      }
      if (i < n) block(n - N);
      return;
    }
  }
  ForEachBlockPrefetching(n, N, p, 1, block);
}

template <class U>
void DropAlphaRowT(const U* src, U* dst, size_t n) {
  const hn::ScalableTag<U> d;
  using V = hn::Vec<decltype(d)>;
  const size_t N = hn::Lanes(d);
  if (n < N) {
    scalar::DropAlphaRow<U>(src, dst, 0, n);
    return;
  }
  ForEachBlock(n, N, [&](size_t i) PEL_BLOCK_INLINE {
    V v[4];
    LoadPixels<4>(d, src + i * 4, v);
    const V colour[3] = {v[0], v[1], v[2]};
    StorePixels<3>(d, colour, dst + i * 3);
  });
}

// The destination's fourth lane is read and written back unchanged.
template <class U>
void AddAlphaRowT(const U* src, U* dst, size_t n) {
  const hn::ScalableTag<U> d;
  using V = hn::Vec<decltype(d)>;
  const size_t N = hn::Lanes(d);
  if (n < N) {
    scalar::AddAlphaRow<U>(src, dst, 0, n);
    return;
  }
  ForEachBlock(n, N, [&](size_t i) PEL_BLOCK_INLINE {
    V colour[3];
    LoadPixels<3>(d, src + i * 3, colour);
    V v[4];
    LoadPixels<4>(d, dst + i * 4, v);
    for (int c = 0; c < 3; ++c) v[c] = colour[c];
    StorePixels<4>(d, v, dst + i * 4);
  });
}

template <class U, int C>
void DupRowT(const U* src, U* dst, size_t n) {
  const hn::ScalableTag<U> d;
  using V = hn::Vec<decltype(d)>;
  const size_t N = hn::Lanes(d);
  if (n < N) {
    scalar::DupRow<U, C>(src, dst, 0, n);
    return;
  }
  ForEachBlock(n, N, [&](size_t i) PEL_BLOCK_INLINE {
    V v[C];
    v[0] = hn::LoadU(d, src + i);
    for (int c = 1; c < C; ++c) v[c] = v[0];
    StorePixels<C>(d, v, dst + i * C);
  });
}

}  // namespace

#endif

void ExtractRowTarget(const void* src, void* dst, size_t n, int elemBytes, int channels) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    ExtractRowT<U, c()>(static_cast<const U*>(src), static_cast<U*>(dst), n);
  });
}

void InsertRowTarget(const void* src, void* dst, size_t n, int elemBytes, int channels) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    InsertRowT<U, c()>(static_cast<const U*>(src), static_cast<U*>(dst), n);
  });
}

void SplitRowTarget(const void* src, void* const* planes, size_t n, int elemBytes, int channels,
                    bool stream) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    U* p[c()];
    for (int k = 0; k < c(); ++k) p[k] = static_cast<U*>(planes[k]);
    SplitRowT<U, c()>(static_cast<const U*>(src), p, n, stream);
  });
}

void MergeRowTarget(const void* const* planes, void* dst, size_t n, int elemBytes, int channels,
                    bool stream) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    const U* p[c()];
    for (int k = 0; k < c(); ++k) p[k] = static_cast<const U*>(planes[k]);
    MergeRowT<U, c()>(p, static_cast<U*>(dst), n, stream);
  });
}

void DropAlphaRowTarget(const void* src, void* dst, size_t n, int elemBytes) {
  VisitLane(elemBytes, [&](auto lane) {
    using U = decltype(lane);
    DropAlphaRowT<U>(static_cast<const U*>(src), static_cast<U*>(dst), n);
  });
}

void AddAlphaRowTarget(const void* src, void* dst, size_t n, int elemBytes) {
  VisitLane(elemBytes, [&](auto lane) {
    using U = decltype(lane);
    AddAlphaRowT<U>(static_cast<const U*>(src), static_cast<U*>(dst), n);
  });
}

void DupRowTarget(const uint8_t* src, uint8_t* dst, size_t n, int channels) {
  if (channels == 3) DupRowT<uint8_t, 3>(src, dst, n);
  if (channels == 4) DupRowT<uint8_t, 4>(src, dst, n);
}

}  // namespace pel::datamove::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::datamove {

HWY_EXPORT(ExtractRowTarget);
HWY_EXPORT(InsertRowTarget);
HWY_EXPORT(SplitRowTarget);
HWY_EXPORT(MergeRowTarget);
HWY_EXPORT(DropAlphaRowTarget);
HWY_EXPORT(AddAlphaRowTarget);
HWY_EXPORT(DupRowTarget);

void ExtractRowAny(const void* src, void* dst, size_t pixels, int elemBytes, int channels) {
  HWY_DYNAMIC_DISPATCH(ExtractRowTarget)(src, dst, pixels, elemBytes, channels);
}

void InsertRowAny(const void* src, void* dst, size_t pixels, int elemBytes, int channels) {
  HWY_DYNAMIC_DISPATCH(InsertRowTarget)(src, dst, pixels, elemBytes, channels);
}

void SplitRowAny(const void* src, void* const* planes, size_t pixels, int elemBytes,
                 int channels, bool stream) {
  HWY_DYNAMIC_DISPATCH(SplitRowTarget)(src, planes, pixels, elemBytes, channels, stream);
}

void MergeRowAny(const void* const* planes, void* dst, size_t pixels, int elemBytes,
                 int channels, bool stream) {
  HWY_DYNAMIC_DISPATCH(MergeRowTarget)(planes, dst, pixels, elemBytes, channels, stream);
}

void DropAlphaRowAny(const void* src, void* dst, size_t pixels, int elemBytes) {
  HWY_DYNAMIC_DISPATCH(DropAlphaRowTarget)(src, dst, pixels, elemBytes);
}

void AddAlphaRowAny(const void* src, void* dst, size_t pixels, int elemBytes) {
  HWY_DYNAMIC_DISPATCH(AddAlphaRowTarget)(src, dst, pixels, elemBytes);
}

void DupRowAny(const uint8_t* src, uint8_t* dst, size_t pixels, int channels) {
  HWY_DYNAMIC_DISPATCH(DupRowTarget)(src, dst, pixels, channels);
}

}  // namespace pel::datamove
#endif
