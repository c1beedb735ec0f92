// Vector row kernels of the sums, norms, dot products and range counts. One
// source, compiled for each instruction set; the baseline target runs the
// scalar references (reduce_scalar.h), which define every result.
//
// Integer reductions are exact, so any vector width may group the lanes as
// it likes. Multi-channel rows are reduced one channel at a time through a
// lane mask: with three channels a vector's first lane changes channel from
// one vector to the next, so the masks come in three phases.
//
// Float partials fix which element goes to which partial and in what order,
// so a vector holds consecutive partials and every width gives the same
// sums (the partial counts are multiples of 16 lanes).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/row_reduce_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <type_traits>

#include "hwy/highway.h"
#include "stats/lane_channels.h"
#include "stats/lane_reduce-inl.h"
#include "stats/reduce_scalar.h"
#include "stats/row_reduce_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace pel::stats::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void IntRowReduceTarget(IntKind kind, IntMap map, IntOp op, const void* a, const void* b, size_t n,
                        int channels, uint64_t acc[4]) {
  scalar::IntRowReduce(kind, map, op, a, b, 0, n, channels, acc);
}

void FloatRowPartialsTarget(FloatOp op, const float* a, const float* b, size_t n, size_t first,
                            int k, float* partials) {
  scalar::FloatPartialsRange(op, a, b, 0, n, first, static_cast<size_t>(k), partials);
}

void DoubleRowPartialsTarget(FloatOp op, const float* a, const float* b, size_t n, int k,
                             double* partials) {
  scalar::DoublePartialsRange(op, a, b, 0, n, static_cast<size_t>(k), partials);
}

void IntRowDotTarget(IntKind kind, const void* a, const void* b, size_t n, int channels,
                     int64_t sum[4], uint64_t mag[4]) {
  scalar::IntRowDot(kind, a, b, 0, n, channels, sum, mag);
}

void CountRow8uTarget(const uint8_t* row, size_t n, int channels, const uint8_t lo[4],
                      const uint8_t hi[4], uint64_t counts[4]) {
  scalar::CountRange(row, 0, n, channels, lo, hi, counts);
}

void CountRow32fTarget(const float* row, size_t n, int channels, const float lo[4],
                       const float hi[4], uint64_t counts[4]) {
  scalar::CountRange(row, 0, n, channels, lo, hi, counts);
}

#else

template <class D>
using VecOf = decltype(hn::Zero(D()));
template <class D>
using MaskOf = decltype(hn::FirstN(D(), 0));

template <class D>
HWY_INLINE uint64_t LaneSum(D d, VecOf<D> v) {
  HWY_ALIGN hn::TFromD<D> lanes[hn::MaxLanes(D())];
  hn::Store(v, d, lanes);
  uint64_t total = 0;
  for (size_t i = 0; i < hn::MaxLanes(d); ++i) total += lanes[i];
  return total;
}

// Lanes of channel c in the vector that starts at element `start` of a row
// of C-channel pixels.
template <int C, class D>
HWY_INLINE MaskOf<D> ChannelMask(D d, size_t start, int c) {
  using U = hn::TFromD<D>;
  return hn::Eq(hn::LoadU(d, LaneChannels<U, C>() + start % C), hn::Set(d, static_cast<U>(c)));
}

// ---- Accumulators of unsigned magnitudes: Add(vector), Total() ------------------

// 8-bit sums: byte sums against zero into 64-bit lanes.
template <class D>
struct SumU8 {
  using D64 = hn::Repartition<uint64_t, D>;
  VecOf<D64> s;
  HWY_INLINE void Init() { s = hn::Zero(D64()); }
  HWY_INLINE void Add(VecOf<D> m) { s = hn::Add(s, hn::SumsOf8(m)); }
  HWY_INLINE uint64_t Total() { return LaneSum(D64(), s); }
};

// Wide lanes that take what narrower 32-bit lanes gathered before they can
// overflow.
template <class D32>
HWY_INLINE VecOf<hn::Repartition<uint64_t, D32>> Widen32(D32 /*tag*/, VecOf<D32> v) {
  const hn::Repartition<uint64_t, D32> d64;
  const hn::RebindToUnsigned<D32> du;
  const hn::Half<decltype(du)> dh;
  const auto u = hn::BitCast(du, v);
  return hn::Add(hn::PromoteTo(d64, hn::LowerHalf(dh, u)),
                 hn::PromoteTo(d64, hn::UpperHalf(dh, u)));
}

// 32-bit lanes that hand what they gathered on to 64-bit lanes every
// kFlush additions, before any can overflow.
template <class D32, uint32_t kFlush>
struct Wide32 {
  using D64 = hn::Repartition<uint64_t, D32>;
  VecOf<D32> s;
  VecOf<D64> wide;
  uint32_t adds;
  HWY_INLINE void Init() {
    s = hn::Zero(D32());
    wide = hn::Zero(D64());
    adds = 0;
  }
  HWY_INLINE void Counted() {
    if (++adds < kFlush) return;
    wide = hn::Add(wide, Widen32(D32(), s));
    s = hn::Zero(D32());
    adds = 0;
  }
  HWY_INLINE uint64_t Total() { return LaneSum(D64(), hn::Add(wide, Widen32(D32(), s))); }
};

// 8-bit squares: pairwise multiply-add of 16-bit lanes into 32-bit lanes,
// which gain at most 4 x 255^2 an add: 8192 adds stay far below 2^31.
template <class D>
struct SqU8 : Wide32<hn::Repartition<int32_t, D>, 8192> {
  HWY_INLINE void Add(VecOf<D> m) {
    const hn::Half<D> dh;
    const hn::Repartition<int16_t, D> d16;
    const hn::Repartition<int32_t, D> d32;
    const auto lo = hn::PromoteTo(d16, hn::LowerHalf(dh, m));
    const auto hi = hn::PromoteTo(d16, hn::UpperHalf(dh, m));
    VecOf<decltype(d32)> unused;
    this->s = hn::ReorderWidenMulAccumulate(d32, lo, lo, this->s, unused);
    this->s = hn::ReorderWidenMulAccumulate(d32, hi, hi, this->s, unused);
    this->Counted();
  }
};

// 16-bit sums: 32-bit lanes gain at most 2 x 65535 an add.
template <class D>
struct SumU16 : Wide32<hn::Repartition<uint32_t, D>, 32768> {
  HWY_INLINE void Add(VecOf<D> m) {
    const hn::Half<D> dh;
    const hn::Repartition<uint32_t, D> d32;
    this->s = hn::Add(this->s, hn::Add(hn::PromoteTo(d32, hn::LowerHalf(dh, m)),
                                       hn::PromoteTo(d32, hn::UpperHalf(dh, m))));
    this->Counted();
  }
};

// 16-bit squares need 32 bits each: they go straight into 64-bit lanes.
template <class D>
struct SqU16 {
  using D32 = hn::Repartition<uint32_t, D>;
  using D64 = hn::Repartition<uint64_t, D>;
  VecOf<D64> wide;
  HWY_INLINE void Init() { wide = hn::Zero(D64()); }
  HWY_INLINE void Add(VecOf<D> m) {
    const hn::Half<D> dh;
    const auto lo = hn::PromoteTo(D32(), hn::LowerHalf(dh, m));
    const auto hi = hn::PromoteTo(D32(), hn::UpperHalf(dh, m));
    wide = hn::Add(wide, hn::Add(Widen32(D32(), hn::Mul(lo, lo)), Widen32(D32(), hn::Mul(hi, hi))));
  }
  HWY_INLINE uint64_t Total() { return LaneSum(D64(), wide); }
};

template <class D>
struct MaxU {
  VecOf<D> m;
  HWY_INLINE void Init() { m = hn::Zero(D()); }
  HWY_INLINE void Add(VecOf<D> v) { m = hn::Max(m, v); }
  HWY_INLINE uint64_t Total() {
    return ReduceLanes(D(), m, [](auto x, auto y) HWY_ATTR { return hn::Max(x, y); });
  }
};

template <IntOp O, class D>
using AccOf = std::conditional_t<
    O == IntOp::Max, MaxU<D>,
    std::conditional_t<sizeof(hn::TFromD<D>) == 1,
                       std::conditional_t<O == IntOp::Sum, SumU8<D>, SqU8<D>>,
                       std::conditional_t<O == IntOp::Sum, SumU16<D>, SqU16<D>>>>;

// The magnitude vector of elements [i, i + N): 16s elements are read as
// their 16 bits.
template <IntKind K, IntMap M, class D>
HWY_INLINE VecOf<D> LoadMagnitude(D d, const void* a, const void* b, size_t i) {
  using U = hn::TFromD<D>;
  const auto x = hn::LoadU(d, static_cast<const U*>(a) + i);
  if constexpr (M == IntMap::Value) {
    return x;
  } else if constexpr (M == IntMap::Biased) {
    return hn::Xor(x, hn::Set(d, static_cast<U>(0x8000)));
  } else if constexpr (M == IntMap::Abs) {
    const hn::RebindToSigned<D> di;
    return hn::BitCast(d, hn::Abs(hn::BitCast(di, x)));  // |-32768| is 0x8000 as 16 bits
  } else {
    const auto y = hn::LoadU(d, static_cast<const U*>(b) + i);
    if constexpr (K == IntKind::S16) {
      // max - min wraps in 16 bits to exactly |x - y| <= 65535.
      const hn::RebindToSigned<D> di;
      const auto xs = hn::BitCast(di, x), ys = hn::BitCast(di, y);
      return hn::BitCast(d, hn::Sub(hn::Max(xs, ys), hn::Min(xs, ys)));
    } else {
      return hn::Or(hn::SaturatedSub(x, y), hn::SaturatedSub(y, x));
    }
  }
}

template <IntKind K, IntMap M, IntOp O, int C>
void IntReduceT(const void* a, const void* b, size_t n, uint64_t acc[4]) {
  using U = std::conditional_t<K == IntKind::U8, uint8_t, uint16_t>;
  const hn::ScalableTag<U> d;
  constexpr size_t N = hn::MaxLanes(d);
  AccOf<O, decltype(d)> accs[C];
  for (auto& x : accs) x.Init();
  size_t i = 0;
  if constexpr (C == 1) {
    for (; i + 2 * N <= n; i += 2 * N) {
      accs[0].Add(LoadMagnitude<K, M>(d, a, b, i));
      accs[0].Add(LoadMagnitude<K, M>(d, a, b, i + N));
    }
    for (; i + N <= n; i += N) accs[0].Add(LoadMagnitude<K, M>(d, a, b, i));
  } else {
    constexpr size_t kPhases = C == 3 ? 3 : 1;
    MaskOf<decltype(d)> mask[kPhases][C];
    for (size_t r = 0; r < kPhases; ++r)
      for (int c = 0; c < C; ++c) mask[r][c] = ChannelMask<C>(d, r * N, c);
    auto add = [&](size_t r, size_t at) HWY_ATTR {
      const auto m = LoadMagnitude<K, M>(d, a, b, at);
      for (int c = 0; c < C; ++c) accs[c].Add(hn::IfThenElseZero(mask[r][c], m));
    };
    for (; i + kPhases * N <= n; i += kPhases * N)
      for (size_t r = 0; r < kPhases; ++r) add(r, i + r * N);
    for (size_t r = 0; i + N <= n; ++r, i += N) add(r, i);
  }
  for (int c = 0; c < C; ++c) {
    const uint64_t t = accs[c].Total();
    if constexpr (O == IntOp::Max) {
      acc[c] = acc[c] > t ? acc[c] : t;
    } else {
      acc[c] += t;
    }
  }
  scalar::IntRowReduce(K, M, O, a, b, i, n, C, acc);
}

template <IntKind K, IntMap M, IntOp O>
void IntReduceChannels(const void* a, const void* b, size_t n, int channels, uint64_t acc[4]) {
  switch (channels) {
    case 1: return IntReduceT<K, M, O, 1>(a, b, n, acc);
    case 3: return IntReduceT<K, M, O, 3>(a, b, n, acc);
    default: return IntReduceT<K, M, O, 4>(a, b, n, acc);
  }
}

template <IntKind K, IntMap M>
void IntReduceOps(IntOp op, const void* a, const void* b, size_t n, int channels,
                  uint64_t acc[4]) {
  switch (op) {
    case IntOp::Sum: return IntReduceChannels<K, M, IntOp::Sum>(a, b, n, channels, acc);
    case IntOp::Sq: return IntReduceChannels<K, M, IntOp::Sq>(a, b, n, channels, acc);
    case IntOp::Max: return IntReduceChannels<K, M, IntOp::Max>(a, b, n, channels, acc);
  }
}

void IntRowReduceTarget(IntKind kind, IntMap map, IntOp op, const void* a, const void* b, size_t n,
                        int channels, uint64_t acc[4]) {
  // The walkers use these pairs only: 8u and 16u values and differences;
  // 16s biased (sums), absolute values and differences.
  if (kind == IntKind::S16) {
    if (map == IntMap::Biased) return IntReduceChannels<IntKind::S16, IntMap::Biased, IntOp::Sum>(a, b, n, channels, acc);
    if (map == IntMap::Abs) return IntReduceOps<IntKind::S16, IntMap::Abs>(op, a, b, n, channels, acc);
    return IntReduceOps<IntKind::S16, IntMap::AbsDiff>(op, a, b, n, channels, acc);
  }
  if (kind == IntKind::U8) {
    if (map == IntMap::AbsDiff) return IntReduceOps<IntKind::U8, IntMap::AbsDiff>(op, a, b, n, channels, acc);
    return IntReduceOps<IntKind::U8, IntMap::Value>(op, a, b, n, channels, acc);
  }
  if (map == IntMap::AbsDiff) return IntReduceOps<IntKind::U16, IntMap::AbsDiff>(op, a, b, n, channels, acc);
  return IntReduceOps<IntKind::U16, IntMap::Value>(op, a, b, n, channels, acc);
}

// ---- Float partials -----------------------------------------------------------------

template <FloatOp O, class D>
HWY_INLINE VecOf<D> Step(VecOf<D> p, VecOf<D> x) {
  if constexpr (O == FloatOp::Sum) {
    return hn::Add(p, x);
  } else if constexpr (O == FloatOp::Abs) {
    return hn::Add(p, hn::Abs(x));
  } else if constexpr (O == FloatOp::Sq) {
    return hn::Add(p, hn::Mul(x, x));  // two roundings, as the reference: never fused
  } else {
    const auto v = hn::Abs(x);
    return hn::IfThenElse(hn::Gt(p, v), p, v);  // unordered: v
  }
}

template <FloatOp O, size_t K, bool kDiff>
void FloatPartialsT(const float* a, const float* b, size_t n, size_t first, float* partials) {
  const hn::ScalableTag<float> d;
  constexpr size_t N = hn::MaxLanes(d);
  constexpr size_t kVecs = K / N;
  static_assert(K % N == 0);
  // Elements up to the one that feeds partial 0 go singly; from there on a
  // vector of N elements feeds N consecutive partials.
  size_t head = (K - first % K) % K;
  if (head > n) head = n;
  scalar::FloatPartialsRange(O, a, b, 0, head, first, K, partials);
  auto load = [&](size_t i) HWY_ATTR {
    if constexpr (kDiff) return hn::Sub(hn::LoadU(d, a + i), hn::LoadU(d, b + i));
    else return hn::LoadU(d, a + i);
  };
  VecOf<decltype(d)> acc[kVecs];
  for (size_t v = 0; v < kVecs; ++v) acc[v] = hn::LoadU(d, partials + v * N);
  size_t i = head;
  for (; i + K <= n; i += K)
    for (size_t v = 0; v < kVecs; ++v) acc[v] = Step<O, decltype(d)>(acc[v], load(i + v * N));
  for (size_t v = 0; i + N <= n; ++v, i += N) acc[v] = Step<O, decltype(d)>(acc[v], load(i));
  for (size_t v = 0; v < kVecs; ++v) hn::StoreU(acc[v], d, partials + v * N);
  scalar::FloatPartialsRange(O, a, b, i, n, first, K, partials);
}

template <FloatOp O, size_t K>
void FloatPartialsDiff(const float* a, const float* b, size_t n, size_t first, float* partials) {
  if (b) return FloatPartialsT<O, K, true>(a, b, n, first, partials);
  FloatPartialsT<O, K, false>(a, b, n, first, partials);
}

template <FloatOp O>
void FloatPartialsK(const float* a, const float* b, size_t n, size_t first, int k, float* partials) {
  if (k == 48) return FloatPartialsDiff<O, 48>(a, b, n, first, partials);
  FloatPartialsDiff<O, 16>(a, b, n, first, partials);
}

void FloatRowPartialsTarget(FloatOp op, const float* a, const float* b, size_t n, size_t first,
                            int k, float* partials) {
  switch (op) {
    case FloatOp::Sum: return FloatPartialsK<FloatOp::Sum>(a, b, n, first, k, partials);
    case FloatOp::Abs: return FloatPartialsK<FloatOp::Abs>(a, b, n, first, k, partials);
    case FloatOp::Sq: return FloatPartialsK<FloatOp::Sq>(a, b, n, first, k, partials);
    case FloatOp::Max: return FloatPartialsK<FloatOp::Max>(a, b, n, first, k, partials);
  }
}

template <FloatOp O, size_t K, bool kDiff>
void DoublePartialsT(const float* a, const float* b, size_t n, double* partials) {
  const hn::ScalableTag<double> d;
  const hn::Rebind<float, decltype(d)> df;
  constexpr size_t N = hn::MaxLanes(d);
  constexpr size_t kVecs = K / N;
  static_assert(K % N == 0);
  auto load = [&](size_t i) HWY_ATTR {
    const auto x = hn::PromoteTo(d, hn::LoadU(df, a + i));
    if constexpr (kDiff) return hn::Sub(x, hn::PromoteTo(d, hn::LoadU(df, b + i)));
    else return x;
  };
  VecOf<decltype(d)> acc[kVecs];
  for (size_t v = 0; v < kVecs; ++v) acc[v] = hn::LoadU(d, partials + v * N);
  size_t i = 0;
  for (; i + K <= n; i += K)
    for (size_t v = 0; v < kVecs; ++v) acc[v] = Step<O, decltype(d)>(acc[v], load(i + v * N));
  for (size_t v = 0; i + N <= n; ++v, i += N) acc[v] = Step<O, decltype(d)>(acc[v], load(i));
  for (size_t v = 0; v < kVecs; ++v) hn::StoreU(acc[v], d, partials + v * N);
  scalar::DoublePartialsRange(O, a, b, i, n, K, partials);
}

template <FloatOp O, size_t K>
void DoublePartialsDiff(const float* a, const float* b, size_t n, double* partials) {
  if (b) return DoublePartialsT<O, K, true>(a, b, n, partials);
  DoublePartialsT<O, K, false>(a, b, n, partials);
}

template <FloatOp O>
void DoublePartialsK(const float* a, const float* b, size_t n, int k, double* partials) {
  if (k == 24) return DoublePartialsDiff<O, 24>(a, b, n, partials);
  DoublePartialsDiff<O, 8>(a, b, n, partials);
}

void DoubleRowPartialsTarget(FloatOp op, const float* a, const float* b, size_t n, int k,
                             double* partials) {
  switch (op) {
    case FloatOp::Abs: return DoublePartialsK<FloatOp::Abs>(a, b, n, k, partials);
    case FloatOp::Sq: return DoublePartialsK<FloatOp::Sq>(a, b, n, k, partials);
    default: return DoublePartialsK<FloatOp::Sum>(a, b, n, k, partials);
  }
}

// ---- Dot products of 8u rows ------------------------------------------------------------

// Products of bytes, pairwise added into 32-bit lanes (at most 4 x 255^2
// an add, so 8192 adds are safe).
template <int C>
void Dot8uT(const uint8_t* a, const uint8_t* b, size_t n, int64_t sum[4], uint64_t mag[4]) {
  const hn::ScalableTag<uint8_t> d;
  const hn::Half<decltype(d)> dh;
  const hn::Repartition<int16_t, decltype(d)> d16;
  const hn::Repartition<int32_t, decltype(d)> d32;
  constexpr size_t N = hn::MaxLanes(d);
  constexpr size_t kPhases = C == 3 ? 3 : 1;
  MaskOf<decltype(d)> mask[kPhases][C];
  for (size_t r = 0; r < kPhases; ++r)
    for (int c = 0; c < C; ++c) mask[r][c] = ChannelMask<C>(d, r * N, c);
  Wide32<std::remove_const_t<decltype(d32)>, 8192> acc[C];
  for (auto& x : acc) x.Init();
  auto add = [&](size_t r, size_t at) HWY_ATTR {
    const auto va = hn::LoadU(d, a + at);
    const auto vb = hn::LoadU(d, b + at);
    const auto blo = hn::PromoteTo(d16, hn::LowerHalf(dh, vb));
    const auto bhi = hn::PromoteTo(d16, hn::UpperHalf(dh, vb));
    for (int c = 0; c < C; ++c) {
      const auto ac = C == 1 ? va : hn::IfThenElseZero(mask[r][c], va);
      VecOf<decltype(d32)> unused;
      acc[c].s = hn::ReorderWidenMulAccumulate(d32, hn::PromoteTo(d16, hn::LowerHalf(dh, ac)), blo, acc[c].s, unused);
      acc[c].s = hn::ReorderWidenMulAccumulate(d32, hn::PromoteTo(d16, hn::UpperHalf(dh, ac)), bhi, acc[c].s, unused);
      acc[c].Counted();
    }
  };
  size_t i = 0;
  for (; i + kPhases * N <= n; i += kPhases * N)
    for (size_t r = 0; r < kPhases; ++r) add(r, i + r * N);
  for (size_t r = 0; i + N <= n; ++r, i += N) add(r, i);
  for (int c = 0; c < C; ++c) {
    const uint64_t t = acc[c].Total();
    sum[c] += static_cast<int64_t>(t);
    mag[c] += t;
  }
  scalar::IntRowDot(IntKind::U8, a, b, i, n, C, sum, mag);
}

void IntRowDotTarget(IntKind kind, const void* a, const void* b, size_t n, int channels,
                     int64_t sum[4], uint64_t mag[4]) {
  if (kind != IntKind::U8) return scalar::IntRowDot(kind, a, b, 0, n, channels, sum, mag);
  const auto* a8 = static_cast<const uint8_t*>(a);
  const auto* b8 = static_cast<const uint8_t*>(b);
  switch (channels) {
    case 1: return Dot8uT<1>(a8, b8, n, sum, mag);
    case 3: return Dot8uT<3>(a8, b8, n, sum, mag);
    default: return Dot8uT<4>(a8, b8, n, sum, mag);
  }
}

// ---- Counting in a range ----------------------------------------------------------------

// Per-lane bounds of the vector that starts at element `start`.
template <int C, class D, class T = hn::TFromD<D>>
HWY_INLINE VecOf<D> LaneBounds(D d, size_t start, const T bound[4]) {
  HWY_ALIGN T lanes[hn::MaxLanes(D())];
  for (size_t k = 0; k < hn::MaxLanes(d); ++k) lanes[k] = bound[(start + k) % C];
  return hn::Load(d, lanes);
}

// Byte counters gain at most one a pass and are emptied after 255 passes,
// each channel through its lane mask (channel 3 of four is alpha).
template <int C>
void Count8uT(const uint8_t* row, size_t n, const uint8_t lo[4], const uint8_t hi[4],
              uint64_t counts[4]) {
  const hn::ScalableTag<uint8_t> d;
  constexpr size_t N = hn::MaxLanes(d);
  constexpr size_t kPhases = C == 3 ? 3 : 1;
  constexpr int kCounted = C == 4 ? 3 : C;
  uint8_t range[4];
  for (int c = 0; c < C; ++c) range[c] = static_cast<uint8_t>(hi[c] - lo[c]);
  VecOf<decltype(d)> lov[kPhases], rangev[kPhases], cnt[kPhases];
  MaskOf<decltype(d)> mask[kPhases][kCounted];
  for (size_t r = 0; r < kPhases; ++r) {
    lov[r] = LaneBounds<C>(d, r * N, lo);
    rangev[r] = LaneBounds<C>(d, r * N, range);
    cnt[r] = hn::Zero(d);
    for (int c = 0; c < kCounted; ++c) mask[r][c] = ChannelMask<C>(d, r * N, c);
  }
  auto flush = [&]() HWY_ATTR {
    for (size_t r = 0; r < kPhases; ++r) {
      for (int c = 0; c < kCounted; ++c) {
        const auto v = C == 1 ? cnt[r] : hn::IfThenElseZero(mask[r][c], cnt[r]);
        counts[c] += LaneSum(hn::Repartition<uint64_t, decltype(d)>(), hn::SumsOf8(v));
      }
      cnt[r] = hn::Zero(d);
    }
  };
  // v - lo <= hi - lo in unsigned bytes: lo <= v <= hi.
  auto count = [&](size_t r, size_t at) HWY_ATTR {
    const auto dv = hn::Sub(hn::LoadU(d, row + at), lov[r]);
    cnt[r] = hn::Sub(cnt[r], hn::VecFromMask(d, hn::Eq(hn::Min(dv, rangev[r]), dv)));
  };
  size_t i = 0;
  unsigned passes = 0;
  for (; i + kPhases * N <= n; i += kPhases * N) {
    for (size_t r = 0; r < kPhases; ++r) count(r, i + r * N);
    if (++passes == 255) {
      flush();
      passes = 0;
    }
  }
  for (size_t r = 0; i + N <= n; ++r, i += N) count(r, i);
  flush();
  scalar::CountRange(row, i, n, C, lo, hi, counts);
}

template <int C>
void Count32fT(const float* row, size_t n, const float lo[4], const float hi[4],
               uint64_t counts[4]) {
  const hn::ScalableTag<float> d;
  const hn::RebindToUnsigned<decltype(d)> du;
  constexpr size_t N = hn::MaxLanes(d);
  constexpr size_t kPhases = C == 3 ? 3 : 1;
  VecOf<decltype(d)> lov[kPhases], hiv[kPhases];
  VecOf<decltype(du)> cnt[kPhases];
  for (size_t r = 0; r < kPhases; ++r) {
    lov[r] = LaneBounds<C>(d, r * N, lo);
    hiv[r] = LaneBounds<C>(d, r * N, hi);
    cnt[r] = hn::Zero(du);
  }
  auto flush = [&]() HWY_ATTR {
    for (size_t r = 0; r < kPhases; ++r) {
      HWY_ALIGN uint32_t lanes[N];
      hn::Store(cnt[r], du, lanes);
      for (size_t k = 0; k < N; ++k) {
        const size_t c = (r * N + k) % C;
        if (c < 3) counts[c] += lanes[k];
      }
      cnt[r] = hn::Zero(du);
    }
  };
  auto count = [&](size_t r, size_t at) HWY_ATTR {
    const auto v = hn::LoadU(d, row + at);
    const auto in = hn::And(hn::Ge(v, lov[r]), hn::Le(v, hiv[r]));  // false for NaN
    cnt[r] = hn::Sub(cnt[r], hn::VecFromMask(du, hn::RebindMask(du, in)));
  };
  size_t i = 0;
  uint32_t passes = 0;
  for (; i + kPhases * N <= n; i += kPhases * N) {
    for (size_t r = 0; r < kPhases; ++r) count(r, i + r * N);
    if (++passes == (1u << 30)) {
      flush();
      passes = 0;
    }
  }
  for (size_t r = 0; i + N <= n; ++r, i += N) count(r, i);
  flush();
  scalar::CountRange(row, i, n, C, lo, hi, counts);
}

void CountRow8uTarget(const uint8_t* row, size_t n, int channels, const uint8_t lo[4],
                      const uint8_t hi[4], uint64_t counts[4]) {
  switch (channels) {
    case 1: return Count8uT<1>(row, n, lo, hi, counts);
    case 3: return Count8uT<3>(row, n, lo, hi, counts);
    default: return Count8uT<4>(row, n, lo, hi, counts);
  }
}

void CountRow32fTarget(const float* row, size_t n, int channels, const float lo[4],
                       const float hi[4], uint64_t counts[4]) {
  switch (channels) {
    case 1: return Count32fT<1>(row, n, lo, hi, counts);
    case 3: return Count32fT<3>(row, n, lo, hi, counts);
    default: return Count32fT<4>(row, n, lo, hi, counts);
  }
}

#endif

}  // namespace pel::stats::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::stats {

HWY_EXPORT(IntRowReduceTarget);
HWY_EXPORT(FloatRowPartialsTarget);
HWY_EXPORT(DoubleRowPartialsTarget);
HWY_EXPORT(IntRowDotTarget);
HWY_EXPORT(CountRow8uTarget);
HWY_EXPORT(CountRow32fTarget);

void IntRowReduce(IntKind kind, IntMap map, IntOp op, const void* a, const void* b, size_t n,
                  int channels, uint64_t acc[4]) {
  HWY_DYNAMIC_DISPATCH(IntRowReduceTarget)(kind, map, op, a, b, n, channels, acc);
}

void FloatRowPartials(FloatOp op, const float* a, const float* b, size_t n, size_t h, int k,
                      float* partials) {
  const size_t first = (static_cast<size_t>(k) - h % static_cast<size_t>(k)) % static_cast<size_t>(k);
  HWY_DYNAMIC_DISPATCH(FloatRowPartialsTarget)(op, a, b, n, first, k, partials);
}

void DoubleRowPartials(FloatOp op, const float* a, const float* b, size_t n, int k,
                       double* partials) {
  HWY_DYNAMIC_DISPATCH(DoubleRowPartialsTarget)(op, a, b, n, k, partials);
}

void IntRowDot(IntKind kind, const void* a, const void* b, size_t n, int channels, int64_t sum[4],
               uint64_t mag[4]) {
  HWY_DYNAMIC_DISPATCH(IntRowDotTarget)(kind, a, b, n, channels, sum, mag);
}

void CountRow8u(const uint8_t* row, size_t n, int channels, const uint8_t lo[4],
                const uint8_t hi[4], uint64_t counts[4]) {
  HWY_DYNAMIC_DISPATCH(CountRow8uTarget)(row, n, channels, lo, hi, counts);
}

void CountRow32f(const float* row, size_t n, int channels, const float lo[4], const float hi[4],
                 uint64_t counts[4]) {
  HWY_DYNAMIC_DISPATCH(CountRow32fTarget)(row, n, channels, lo, hi, counts);
}

}  // namespace pel::stats
#endif
