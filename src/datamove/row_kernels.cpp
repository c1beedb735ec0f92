// Vector row kernels of the copy and set family: one source, compiled once per
// instruction set by Highway, chosen at run time. The baseline target runs the
// scalar references, so PEL_CPU=scalar gives exactly those.
//
// Tails: a row of at least one vector ends with one more full vector that
// overlaps the previous one (it rewrites a few bytes with the same values),
// so no access ever leaves the row. Rows shorter than a vector go scalar.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "datamove/row_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstring>

#include "core/lanes.h"
#include "datamove/row_kernels.h"
#include "datamove/row_scalar.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::datamove::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void CopyRowTarget(const void* src, void* dst, size_t bytes, bool /*stream*/) {
  scalar::CopyRow(static_cast<const uint8_t*>(src), static_cast<uint8_t*>(dst), bytes);
}

void SetRowTarget(void* dst, size_t pixels, const void* value, int elemBytes, int channels,
                  bool /*stream*/) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    scalar::SetRow<U, c()>(static_cast<U*>(dst), pixels, static_cast<const U*>(value));
  });
}

#else

// Lanes from `begin` up to the first address aligned for a full vector.
template <class D, class U>
size_t LanesToAlignment(D d, const U* p) {
  const size_t vecBytes = hn::Lanes(d) * sizeof(U);
  const size_t misalign = reinterpret_cast<uintptr_t>(p) & (vecBytes - 1);
  return misalign == 0 ? 0 : (vecBytes - misalign) / sizeof(U);
}

template <class U>
bool ElementAligned(const U* p) {
  return reinterpret_cast<uintptr_t>(p) % sizeof(U) == 0;
}

void CopyRowTarget(const void* srcv, void* dstv, size_t n, bool stream) {
  const auto* src = static_cast<const uint8_t*>(srcv);
  auto* dst = static_cast<uint8_t*>(dstv);
  const hn::ScalableTag<uint8_t> d;
  const size_t N = hn::Lanes(d);
  if (n < N) {
    std::memcpy(dst, src, n);
    return;
  }
  size_t i = 0;
  if (stream) {
    // One unaligned vector covers the bytes before the first aligned address.
    hn::StoreU(hn::LoadU(d, src), d, dst);
    for (i = LanesToAlignment(d, dst); i + N <= n; i += N) {
      hn::Stream(hn::LoadU(d, src + i), d, dst + i);
    }
  } else {
    for (; i + 4 * N <= n; i += 4 * N) {
      const auto v0 = hn::LoadU(d, src + i);
      const auto v1 = hn::LoadU(d, src + i + N);
      const auto v2 = hn::LoadU(d, src + i + 2 * N);
      const auto v3 = hn::LoadU(d, src + i + 3 * N);
      hn::StoreU(v0, d, dst + i);
      hn::StoreU(v1, d, dst + i + N);
      hn::StoreU(v2, d, dst + i + 2 * N);
      hn::StoreU(v3, d, dst + i + 3 * N);
    }
    for (; i + N <= n; i += N) hn::StoreU(hn::LoadU(d, src + i), d, dst + i);
  }
  if (i < n) hn::StoreU(hn::LoadU(d, src + n - N), d, dst + n - N);
}

// Stores kRun vectors that cycle through v[0..C-1] from dst + o on.
template <bool kStream, size_t kRun, class D, class V, class U = hn::TFromD<D>>
HWY_INLINE void StoreRun(D d, const V* v, U* HWY_RESTRICT dst) {
  const size_t N = hn::Lanes(d);
  for (size_t k = 0; k < kRun; ++k) {
    if constexpr (kStream) {
      hn::Stream(v[k], d, dst + k * N);
    } else {
      hn::StoreU(v[k], d, dst + k * N);
    }
  }
}

// Fills lanes [o, total) of dst with a pattern of period C lanes, where o is
// the caller's start. The fill is ordinary vector stores, whatever its size:
// its speed is ours to control, not left to how the C library's memset
// guesses at the caches (which switches to cache-bypassing stores at sizes
// that still fit the cache on some hosts). pattern holds at least C + Lanes(d) lanes of it, so the
// vector that starts at lane i is LoadU(pattern + i % C) for any i.
template <size_t C, bool kStream, class D, class U = hn::TFromD<D>>
HWY_INLINE size_t FillPattern(D d, U* HWY_RESTRICT dst, size_t o, size_t total,
                              const U* pattern) {
  const size_t N = hn::Lanes(d);
  // C vectors are a whole number of periods, so the same C vectors repeat;
  // load them once for the phase of the first. One-channel fills unroll four.
  constexpr size_t kRun = C == 1 ? 4 : C;
  using V = decltype(hn::Zero(d));
  V v[kRun];
  for (size_t k = 0; k < kRun; ++k) v[k] = hn::LoadU(d, pattern + (o + k * N) % C);
  for (; o + kRun * N <= total; o += kRun * N) StoreRun<kStream, kRun>(d, v, dst + o);
  for (size_t k = 0; o + N <= total; ++k, o += N) StoreRun<kStream, 1>(d, v + k, dst + o);
  return o;
}

template <class U, int C>
void SetRowT(U* dst, size_t pixels, const U* value, bool stream) {
  const hn::ScalableTag<U> d;
  const size_t N = hn::Lanes(d);
  const size_t total = pixels * C;
  if (total < N) {
    scalar::SetRow<U, C>(dst, pixels, value);
    return;
  }
  HWY_ALIGN U pattern[HWY_MAX_BYTES / sizeof(U) + 4];
  for (size_t i = 0; i < N + C; ++i) pattern[i] = value[i % C];
  // One unaligned vector covers the lanes before the first aligned address;
  // from there every store is aligned (a store that splits two cache lines
  // costs two), and streamed stores need the alignment anyway.
  size_t o = 0;
  const bool aligned = ElementAligned(dst);
  if (aligned) {
    hn::StoreU(hn::LoadU(d, pattern), d, dst);
    o = LanesToAlignment(d, dst);
  }
  if (stream && aligned) {
    o = FillPattern<C, true>(d, dst, o, total, pattern);
  } else {
    o = FillPattern<C, false>(d, dst, o, total, pattern);
  }
  if (o < total) {
    const size_t last = total - N;
    hn::StoreU(hn::LoadU(d, pattern + last % C), d, dst + last);
  }
}

void SetRowTarget(void* dst, size_t pixels, const void* value, int elemBytes, int channels,
                  bool stream) {
  VisitLaneAndChannels(elemBytes, channels, [&](auto lane, auto c) {
    using U = decltype(lane);
    SetRowT<U, c()>(static_cast<U*>(dst), pixels, static_cast<const U*>(value), stream);
  });
}

#endif

}  // namespace pel::datamove::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::datamove {

HWY_EXPORT(CopyRowTarget);

void FinishStreaming() { hwy::FlushStream(); }
HWY_EXPORT(SetRowTarget);

void CopyRow(const void* src, void* dst, size_t bytes, bool stream) {
  HWY_DYNAMIC_DISPATCH(CopyRowTarget)(src, dst, bytes, stream);
}

void SetRowAny(void* dst, size_t pixels, const void* value, int elemBytes, int channels,
               bool stream) {
  HWY_DYNAMIC_DISPATCH(SetRowTarget)(dst, pixels, value, elemBytes, channels, stream);
}

}  // namespace pel::datamove
#endif
