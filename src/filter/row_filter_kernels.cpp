// Vector row kernels of the filters. Every lane of an output row is computed
// on its own, in the scalar reference's order of operations (sums start at
// zero and add taps row by row, left to right; no fused multiply-add), so
// full-width vectors give the reference's bits on every target. Ends of rows
// shorter than a vector run the scalar reference.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/row_filter_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <algorithm>
#include <utility>

#include "filter/filter_scalar.h"
#include "filter/median_network.h"
#include "filter/row_filter_kernels.h"
#include "hwy/cache_control.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::filter::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void CorrelateRowTarget(const CorrelateJob& job, const uint8_t* const* rows, void* dst, int64_t lanes) {
  VisitLane(job.lane, [&](auto t) { scalar::CorrelateRow(job, rows, static_cast<decltype(t)*>(dst), 0, lanes); });
}
void ExtremeRowTarget(Lane lane, bool max, int C, int kw, int kh, const uint8_t* const* rows, void* tmp, void* dst,
                      int64_t lanes) {
  VisitLane(lane, [&](auto t) {
    using T = decltype(t);
    scalar::ExtremeRow(max, C, kw, kh, rows, static_cast<T*>(tmp), static_cast<T*>(dst), 0, lanes);
  });
}
void ExtremeHorizontalTarget(Lane lane, bool max, int C, int kw, const uint8_t* row, void* dst, int64_t lanes) {
  VisitLane(lane, [&](auto t) { scalar::ExtremeHorizontal(max, C, kw, row, static_cast<decltype(t)*>(dst), 0, lanes); });
}
void ExtremePairTarget(const ExtremePairJob& job, int64_t lanes) {
  VisitLane(job.lane, [&](auto t) { scalar::ExtremePair<decltype(t)>(job, 0, lanes); });
}
void BoxColumns8Target(int kh, const uint8_t* const* rows, const uint8_t* add, const uint8_t* sub, uint16_t* col,
                       int64_t lanes) {
  scalar::BoxColumns8(kh, rows, add, sub, col, 0, lanes);
}
void BoxMeans8Target(int C, int kw, int kh, const uint16_t* col, uint8_t* dst, int64_t lanes) {
  scalar::BoxMeans8(C, kw, kh, col, dst, 0, lanes);
}
void Median3x3PairTarget(Lane lane, int C, const uint8_t* const* rows, void* scratch, void* dst0,
                         void* dst1, int64_t lanes) {
  VisitLane(lane, [&](auto t) {
    using T = decltype(t);
    scalar::MedianRow(C, 3, 3, rows, static_cast<T*>(scratch), static_cast<T*>(dst0), 0, lanes);
    scalar::MedianRow(C, 3, 3, rows + 1, static_cast<T*>(scratch), static_cast<T*>(dst1), 0, lanes);
  });
}
void MedianRowTarget(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* scratch,
                     void* dst, int64_t lanes) {
  VisitLane(lane, [&](auto t) {
    using T = decltype(t);
    scalar::MedianRow(C, kw, kh, rows, static_cast<T*>(scratch), static_cast<T*>(dst), 0, lanes);
  });
}
void BoxRowTarget(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* colSums, void* dst,
                  int64_t lanes) {
  VisitLane(lane, [&](auto t) { scalar::BoxRow(C, kw, kh, rows, colSums, static_cast<decltype(t)*>(dst), 0, lanes); });
}

#else

template <class T>
const T* At(const uint8_t* row, int64_t lane) {
  return reinterpret_cast<const T*>(row) + lane;
}

// Asks for the source 2 KiB ahead of a lane in a row that enters the
// window with this output row. On images larger than the last-level cache
// such rows come from memory, and loops that read several rows at once
// leave the hardware prefetchers behind (the 3x3 minimum of 32f and the 3x3
// median of 8u C3 on 3840x2160 took a fifth longer without). Prefetches
// never fault.
template <class T>
HWY_INLINE void PrefetchAhead(const uint8_t* row, int64_t lane) {
  hwy::Prefetch(row + lane * static_cast<int64_t>(sizeof(T)) + 2048);
}

// Lanes of T from p to the next address aligned to n lanes (0 when p is not
// aligned to T). Row loops start their second vector there, since stores
// that split cache lines cost about twice as much; every vector is computed
// on its own, so the overlap rewrites equal values.
template <class T>
HWY_INLINE int64_t Skew(const T* p, int64_t n) {
  const auto addr = reinterpret_cast<uintptr_t>(p);
  const auto bytes = static_cast<uintptr_t>(n) * sizeof(T);
  if (addr % sizeof(T) != 0) return 0;
  return static_cast<int64_t>(((bytes - addr % bytes) % bytes) / sizeof(T));
}
HWY_INLINE int64_t Next(int64_t x, int64_t skew, int64_t n) { return x == 0 && skew != 0 ? skew : x + n; }

// Elements of T widened to the 32-bit lanes of d (float lanes: converted).
template <class T, class D>
HWY_INLINE hn::Vec<D> LoadWide(D d, const T* p) {
  using L = hn::TFromD<D>;
  if constexpr (sizeof(T) == sizeof(L)) {
    return hn::LoadU(d, reinterpret_cast<const L*>(p));
  } else if constexpr (std::is_floating_point_v<L>) {
    const hn::RebindToSigned<D> di;
    return hn::ConvertTo(d, hn::PromoteTo(di, hn::LoadU(hn::Rebind<T, D>(), p)));
  } else {
    return hn::PromoteTo(d, hn::LoadU(hn::Rebind<T, D>(), p));
  }
}

// Float to T by the rounding mode, saturated, as scalar::RoundSaturate.
template <class T, class DF>
HWY_INLINE void StoreRounded(DF df, hn::Vec<DF> v, int round, T* dst) {
  if (round == 0) v = hn::Trunc(v);
  else if (round == 1) v = hn::Round(v);
  else v = hn::Trunc(hn::Add(v, hn::CopySign(hn::Set(df, 0.5f), v)));
  v = hn::Min(hn::Max(v, hn::Set(df, static_cast<float>(std::numeric_limits<T>::min()))),
              hn::Set(df, static_cast<float>(std::numeric_limits<T>::max())));
  const hn::RebindToSigned<DF> di;
  hn::StoreU(hn::DemoteTo(hn::Rebind<T, DF>(), hn::ConvertTo(di, v)), hn::Rebind<T, DF>(), dst);
}

// kU vectors of output from lane l: the sums run over the taps in the
// reference's order, kU chunks side by side so that the additions of one
// chunk do not wait for those of another.
template <int kU, class T>
HWY_INLINE void CorrelateBlock(const CorrelateJob& job, const uint8_t* const* rows, T* dst, int64_t l) {
  const int kn = job.kw * job.kh;
  if constexpr (std::is_same_v<T, double>) {
    const hn::ScalableTag<double> d;
    const int64_t N = static_cast<int64_t>(hn::Lanes(d));
    hn::Vec<decltype(d)> acc[kU];
    for (int u = 0; u < kU; ++u) acc[u] = hn::Zero(d);
    const double* k = job.revD + kn;
    for (int i = 0; i < job.kh; ++i)
      for (int j = 0; j < job.kw; ++j) {
        const auto coef = hn::Set(d, *--k);
        const double* p = At<double>(rows[i], l + j * job.C);
        for (int u = 0; u < kU; ++u) acc[u] = hn::Add(acc[u], hn::Mul(coef, hn::LoadU(d, p + u * N)));
      }
    for (int u = 0; u < kU; ++u) hn::StoreU(hn::Add(acc[u], hn::Set(d, job.offsetD)), d, dst + l + u * N);
  } else if (job.intKernel) {
    if constexpr (!std::is_floating_point_v<T>) {
      const hn::ScalableTag<float> df;
      const hn::ScalableTag<int32_t> di;
      const int64_t N = static_cast<int64_t>(hn::Lanes(di));
      hn::Vec<decltype(di)> acc[kU];
      for (int u = 0; u < kU; ++u) acc[u] = hn::Set(di, job.offsetI);
      const int16_t* k = job.revI + kn;
      for (int i = 0; i < job.kh; ++i)
        for (int j = 0; j < job.kw; ++j) {
          const auto coef = hn::Set(di, *--k);
          const T* p = At<T>(rows[i], l + j * job.C);
          for (int u = 0; u < kU; ++u) acc[u] = hn::Add(acc[u], hn::Mul(coef, LoadWide(di, p + u * N)));
        }
      const int n = job.shift;
      const auto addend = hn::Set(di, n > 0 ? (1 << (n - 1)) : 0);
      const auto one = hn::Set(di, 1);
      for (int u = 0; u < kU; ++u) {
        auto a = acc[u];
        T* out = dst + l + u * N;
        if (job.divMode == 2) {
          StoreRounded(df, hn::Mul(hn::ConvertTo(df, a), hn::Set(df, job.scale)), job.round, out);
          continue;
        }
        if (job.divMode == 1) {
          const auto neg = hn::Lt(a, hn::Zero(di));
          hn::Vec<decltype(di)> add;
          if (job.round == 0) add = hn::IfThenElseZero(neg, hn::Sub(hn::Add(addend, addend), one));
          else if (job.round == 1) add = hn::Add(hn::Sub(addend, one), hn::And(hn::ShiftRightSame(a, n), one));
          else add = hn::IfThenElse(neg, hn::Sub(addend, one), addend);
          a = hn::ShiftRightSame(hn::Add(a, add), n);
        }
        hn::StoreU(hn::DemoteTo(hn::Rebind<T, decltype(di)>(), a), hn::Rebind<T, decltype(di)>(), out);
      }
    }
  } else {
    const hn::ScalableTag<float> df;
    const int64_t N = static_cast<int64_t>(hn::Lanes(df));
    hn::Vec<decltype(df)> acc[kU];
    for (int u = 0; u < kU; ++u) acc[u] = hn::Zero(df);
    const float* k = job.revF + kn;
    for (int i = 0; i < job.kh; ++i)
      for (int j = 0; j < job.kw; ++j) {
        const auto coef = hn::Set(df, *--k);
        const T* p = At<T>(rows[i], l + j * job.C);
        for (int u = 0; u < kU; ++u) acc[u] = hn::Add(acc[u], hn::Mul(coef, LoadWide(df, p + u * N)));
      }
    for (int u = 0; u < kU; ++u) {
      const auto a = hn::Add(acc[u], hn::Set(df, job.offsetF));
      if constexpr (std::is_same_v<T, float>) hn::StoreU(a, df, dst + l + u * N);
      else StoreRounded(df, a, job.round, dst + l + u * N);
    }
  }
}

// 8-bit data with 16-bit coefficients and no reciprocal: taps go in pairs
// through the 16-bit multiply-add (two exact products summed into a 32-bit
// lane). Interleaving two taps' pixels puts them in the block order of the
// interleave; packing the results back undoes it. Wrapping 32-bit sums are
// the same in any order, so this is the reference's sum.
HWY_INLINE void CorrelateU8Block(const CorrelateJob& job, const uint8_t* const* taps, const int32_t* pairs, int nPairs,
                                 uint8_t* dst, int64_t l) {
  const hn::ScalableTag<int16_t> d16;
  const hn::RebindToUnsigned<decltype(d16)> du16;
  const hn::Rebind<uint8_t, decltype(d16)> d8;
  const hn::RepartitionToWide<decltype(d16)> d32;
  auto lo = hn::Set(d32, job.offsetI), hi = lo, unused = hn::Zero(d32);
  for (int p = 0; p < nPairs; ++p) {
    const auto x0 = hn::BitCast(d16, hn::PromoteTo(du16, hn::LoadU(d8, taps[2 * p] + l)));
    const auto x1 = hn::BitCast(d16, hn::PromoteTo(du16, hn::LoadU(d8, taps[2 * p + 1] + l)));
    const auto c = hn::BitCast(d16, hn::Set(d32, pairs[p]));
    lo = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveLower(d16, x0, x1), c, lo, unused);
    hi = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveUpper(d16, x0, x1), c, hi, unused);
  }
  if (job.divMode == 1) {
    const int n = job.shift;
    const auto addend = hn::Set(d32, 1 << (n - 1));
    const auto one = hn::Set(d32, 1);
    auto divide = [&](auto a) HWY_ATTR {
      const auto neg = hn::Lt(a, hn::Zero(d32));
      hn::Vec<decltype(d32)> add;
      if (job.round == 0) add = hn::IfThenElseZero(neg, hn::Sub(hn::Add(addend, addend), one));
      else if (job.round == 1) add = hn::Add(hn::Sub(addend, one), hn::And(hn::ShiftRightSame(a, n), one));
      else add = hn::IfThenElse(neg, hn::Sub(addend, one), addend);
      return hn::ShiftRightSame(hn::Add(a, add), n);
    };
    lo = divide(lo);
    hi = divide(hi);
  }
  hn::StoreU(hn::DemoteTo(d8, hn::ReorderDemote2To(d16, lo, hi)), d8, dst + l);
}

template <class T>
void Correlate(const CorrelateJob& job, const uint8_t* const* rows, T* dst, int64_t lanes) {
  using L = std::conditional_t<std::is_same_v<T, double>, double, float>;
  const int64_t N = static_cast<int64_t>(hn::Lanes(hn::ScalableTag<L>()));
  if (lanes < N) return scalar::CorrelateRow(job, rows, dst, 0, lanes);
  if constexpr (std::is_same_v<T, uint8_t>) {
    const int64_t N16 = static_cast<int64_t>(hn::Lanes(hn::ScalableTag<int16_t>()));
    constexpr int kMaxTaps = 64;
    const int kn = job.kw * job.kh;
    if (job.intKernel && job.divMode != 2 && lanes >= N16 && kn <= kMaxTaps) {
      // The taps' first elements and their coefficients two by two (an odd
      // last tap pairs with itself under a zero coefficient).
      const uint8_t* taps[kMaxTaps + 1];
      int32_t pairs[(kMaxTaps + 1) / 2];
      for (int t = 0; t < kn; ++t) taps[t] = rows[t / job.kw] + int64_t{t % job.kw} * job.C;
      taps[kn] = taps[kn - 1];
      const int nPairs = (kn + 1) / 2;
      for (int p = 0; p < nPairs; ++p) {
        const auto c0 = static_cast<uint16_t>(job.revI[kn - 1 - 2 * p]);
        const auto c1 = 2 * p + 1 < kn ? static_cast<uint16_t>(job.revI[kn - 2 - 2 * p]) : uint16_t{0};
        pairs[p] = static_cast<int32_t>(c0 | (uint32_t{c1} << 16));
      }
      int64_t l = Skew(dst, N16);
      if (l != 0) CorrelateU8Block(job, taps, pairs, nPairs, dst, 0);
      for (; l + N16 <= lanes; l += N16) CorrelateU8Block(job, taps, pairs, nPairs, dst, l);
      if (l < lanes) CorrelateU8Block(job, taps, pairs, nPairs, dst, lanes - N16);
      return;
    }
  }
  int64_t l = Skew(dst, N);
  if (l != 0) CorrelateBlock<1>(job, rows, dst, 0);
  for (; l + 4 * N <= lanes; l += 4 * N) CorrelateBlock<4>(job, rows, dst, l);
  for (; l + N <= lanes; l += N) CorrelateBlock<1>(job, rows, dst, l);
  // The last lanes again as one full vector: every lane is computed on its
  // own from the rows, so rewriting the overlap gives the same values.
  if (l < lanes) CorrelateBlock<1>(job, rows, dst, lanes - N);
}

void CorrelateRowTarget(const CorrelateJob& job, const uint8_t* const* rows, void* dst, int64_t lanes) {
  VisitLane(job.lane, [&](auto t) { Correlate(job, rows, static_cast<decltype(t)*>(dst), lanes); });
}

template <bool kMax, class T>
void Extreme(int C, int kw, int kh, const uint8_t* const* rows, T* tmp, T* dst, int64_t lanes) {
  constexpr bool max = kMax;
  const hn::ScalableTag<T> d;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  const int64_t reach = int64_t{kw - 1} * C;
  // max/min with the operand order of scalar::MaxOf/MinOf; both are
  // idempotent, so a last vector may overlap the one before it.
  auto op = [](auto a, auto b) {
    if constexpr (kMax) return hn::Max(a, b);
    else return hn::Min(a, b);
  };
  // Pieces whose vertical extremes stay in the first-level cache.
  const int64_t piece = N * std::max<int64_t>(1, 4096 / (N * static_cast<int64_t>(sizeof(T))));
  int64_t base = 0;
  for (; base + N <= lanes; base += piece) {
    const int64_t len = std::min(piece, lanes - base);
    const int64_t span = len + reach;
    for (int64_t l = 0; l < span; l += N) {
      const int64_t at = std::min(l, span - N);
      PrefetchAhead<T>(rows[kh - 1], base + at);
      auto v = hn::LoadU(d, At<T>(rows[0], base + at));
      for (int i = 1; i < kh; ++i) v = op(v, hn::LoadU(d, At<T>(rows[i], base + at)));
      hn::StoreU(v, d, tmp + at);
    }
    for (int64_t l = 0, skew = Skew(dst + base, N); l < len; l = Next(l, skew, N)) {
      const int64_t at = std::min(l, len - N);
      auto v = hn::LoadU(d, tmp + at);
      for (int j = 1; j < kw; ++j) v = op(v, hn::LoadU(d, tmp + at + j * C));
      hn::StoreU(v, d, dst + base + at);
    }
  }
  if (base < lanes) scalar::ExtremeRow(max, C, kw, kh, rows, tmp, dst, base, lanes);
}

void ExtremeRowTarget(Lane lane, bool max, int C, int kw, int kh, const uint8_t* const* rows, void* tmp, void* dst,
                      int64_t lanes) {
  VisitLane(lane, [&](auto t) {
    using T = decltype(t);
    if (max) Extreme<true>(C, kw, kh, rows, static_cast<T*>(tmp), static_cast<T*>(dst), lanes);
    else Extreme<false>(C, kw, kh, rows, static_cast<T*>(tmp), static_cast<T*>(dst), lanes);
  });
}

template <bool kMax, class V>
HWY_INLINE V ExtremeOf(V a, V b) {
  if constexpr (kMax) return hn::Max(a, b);
  else return hn::Min(a, b);
}

// Integer lanes only: the order of the taps does not matter, and both
// operations are idempotent, so a last vector may overlap the one before.
template <bool kMax, class T>
void Horizontal(int C, int kw, const uint8_t* row, T* dst, int64_t lanes) {
  const hn::ScalableTag<T> d;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  if (lanes < N) return scalar::ExtremeHorizontal(kMax, C, kw, row, dst, 0, lanes);
  const T* p = reinterpret_cast<const T*>(row);
  for (int64_t x = 0; x < lanes; x += N) {
    const int64_t l = std::min(x, lanes - N);
    auto v = hn::LoadU(d, p + l);
    for (int j = 1; j < kw; ++j) v = ExtremeOf<kMax>(v, hn::LoadU(d, p + l + j * C));
    hn::StoreU(v, d, dst + l);
  }
}

// kKW, kKH: the mask's size when fixed at compile time (the common square
// masks, fully unrolled), 0 when read from the job.
template <bool kMax, int kKW, int kKH, class T>
void Pair(const ExtremePairJob& job, int64_t lanes) {
  const hn::ScalableTag<T> d;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  if (lanes < N) return scalar::ExtremePair<T>(job, 0, lanes);
  const int C = job.C;
  const int kw = kKW ? kKW : job.kw, kh = kKH ? kKH : job.kh;
  const T* a = reinterpret_cast<const T*>(job.a);
  const T* b = reinterpret_cast<const T*>(job.b);
  const T* held[kKH ? kKH : 1];
  if constexpr (kKH != 0)
    for (int i = 0; i + 1 < kKH; ++i) held[i] = reinterpret_cast<const T*>(job.held[i]);
  auto heldAt = [&](int i, int64_t l) {
    if constexpr (kKH != 0) return hn::LoadU(d, held[i] + l);
    else return hn::LoadU(d, reinterpret_cast<const T*>(job.held[i]) + l);
  };
  auto horizontal = [&](const T* p) HWY_ATTR {
    auto v = hn::LoadU(d, p);
    for (int j = 1; j < kw; ++j) v = ExtremeOf<kMax>(v, hn::LoadU(d, p + j * C));
    return v;
  };
  for (int64_t x = 0, skew = Skew(static_cast<const T*>(job.out0), N); x < lanes; x = Next(x, skew, N)) {
    const int64_t l = std::min(x, lanes - N);
    if (job.next0 != nullptr) {
      hwy::Prefetch(reinterpret_cast<const T*>(job.next0) + l);
      hwy::Prefetch(reinterpret_cast<const T*>(job.next1) + l);
    }
    const auto ha = horizontal(a + l);
    hn::StoreU(ha, d, static_cast<T*>(job.hA) + l);
    auto m = ha;
    for (int i = 1; i < kh - 1; ++i) m = ExtremeOf<kMax>(m, heldAt(i, l));
    hn::StoreU(kh > 1 ? ExtremeOf<kMax>(m, heldAt(0, l)) : m, d, static_cast<T*>(job.out0) + l);
    if (b == nullptr) continue;
    const auto hb = horizontal(b + l);
    hn::StoreU(hb, d, static_cast<T*>(job.hB) + l);
    hn::StoreU(kh > 1 ? ExtremeOf<kMax>(m, hb) : hb, d, static_cast<T*>(job.out1) + l);
  }
}

template <bool kMax, class T>
void PairOfSize(const ExtremePairJob& job, int64_t lanes) {
  if (job.kw == 3 && job.kh == 3) Pair<kMax, 3, 3, T>(job, lanes);
  else if (job.kw == 5 && job.kh == 5) Pair<kMax, 5, 5, T>(job, lanes);
  else if (job.kw == 7 && job.kh == 7) Pair<kMax, 7, 7, T>(job, lanes);
  else Pair<kMax, 0, 0, T>(job, lanes);
}

void ExtremePairTarget(const ExtremePairJob& job, int64_t lanes) {
  VisitLane(job.lane, [&](auto t) {
    using T = decltype(t);
    if constexpr (std::is_integral_v<T>) {
      if (job.max) PairOfSize<true, T>(job, lanes);
      else PairOfSize<false, T>(job, lanes);
    } else {
      scalar::ExtremePair<T>(job, 0, lanes);
    }
  });
}

void ExtremeHorizontalTarget(Lane lane, bool max, int C, int kw, const uint8_t* row, void* dst, int64_t lanes) {
  VisitLane(lane, [&](auto t) {
    using T = decltype(t);
    if constexpr (std::is_integral_v<T>) {
      if (max) Horizontal<true>(C, kw, row, static_cast<T*>(dst), lanes);
      else Horizontal<false>(C, kw, row, static_cast<T*>(dst), lanes);
    } else {
      scalar::ExtremeHorizontal(max, C, kw, row, static_cast<T*>(dst), 0, lanes);
    }
  });
}

// Small medians: the selection network over the kw x kh taps of each lane,
// unrolled at compile time for the common sizes so that the taps stay in
// registers; other sizes walk the network's table.
template <int kN, class V, size_t... I>
HWY_INLINE void RunNetwork(V* v, std::index_sequence<I...>) {
  constexpr MedianNetwork net = MedianNetworkOf<kN>();
  (
      [&] {
        V& a = v[net.a[I]];
        V& b = v[net.b[I]];
        const V lo = hn::Min(a, b);
        if constexpr ((net.use[I] & 2) != 0) b = hn::Max(a, b);
        a = lo;
      }(),
      ...);
}

template <int kN, class T>
int64_t MedianFixed(int C, int kw, int kh, const uint8_t* const* rows, T* dst, int64_t lanes) {
  constexpr int kOps = MedianNetworkOf<kN>().count;
  const hn::ScalableTag<T> d;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  using V = hn::Vec<decltype(d)>;
  if (lanes < N) return 0;
  for (int64_t x = 0, skew = Skew(dst, N); x < lanes; x = Next(x, skew, N)) {
    const int64_t l = std::min(x, lanes - N);  // the last vector may overlap the one before
    V v[kN];
    for (int i = 0; i < kh; ++i)
      for (int j = 0; j < kw; ++j) v[i * kw + j] = hn::LoadU(d, At<T>(rows[i], l + j * C));
    RunNetwork<kN>(v, std::make_index_sequence<kOps>());
    hn::StoreU(v[(kN - 1) / 2], d, dst + l);
  }
  return lanes;
}

template <class T>
int64_t MedianByNetwork(int C, int kw, int kh, const uint8_t* const* rows, T* dst, int64_t lanes) {
  switch (kw * kh) {
    case 3: return MedianFixed<3>(C, kw, kh, rows, dst, lanes);
    case 5: return MedianFixed<5>(C, kw, kh, rows, dst, lanes);
    case 9: return MedianFixed<9>(C, kw, kh, rows, dst, lanes);
    case 15: return MedianFixed<15>(C, kw, kh, rows, dst, lanes);
    case 25: return MedianFixed<25>(C, kw, kh, rows, dst, lanes);
  }
  MedianNetwork net;
  BuildMedianNetwork(kw * kh, net);
  const hn::ScalableTag<T> d;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  hn::Vec<decltype(d)> v[MedianNetwork::kMaxWires];
  int64_t l = 0;
  for (; l + N <= lanes; l += N) {
    for (int i = 0; i < kh; ++i)
      for (int j = 0; j < kw; ++j) v[i * kw + j] = hn::LoadU(d, At<T>(rows[i], l + j * C));
    for (int c = 0; c < net.count; ++c) {
      auto& a = v[net.a[c]];
      auto& b = v[net.b[c]];
      const auto lo = hn::Min(a, b);
      if (net.use[c] & 2) b = hn::Max(a, b);
      a = lo;
    }
    hn::StoreU(v[(kw * kh - 1) / 2], d, dst + l);
  }
  return l;
}

// 3x3, one output row, in one pass over its three rows: each of the three
// columns is sorted, and the median of the nine is the median of the
// largest column minimum, the median of the column medians and the smallest
// column maximum. Floats keep this order of comparisons on every target, as
// the scalar reference has it (it decides which of -0 and +0 comes out).
template <class T>
int64_t Median3x3(int C, const uint8_t* const* rows, T* dst, int64_t lanes) {
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  if (lanes < N) return 0;
  auto med3 = [](V a, V b, V c) HWY_ATTR { return hn::Max(hn::Min(a, b), hn::Min(hn::Max(a, b), c)); };
  for (int64_t x = 0, skew = Skew(dst, N); x < lanes; x = Next(x, skew, N)) {
    const int64_t l = std::min(x, lanes - N);  // the last vector may overlap the one before
    PrefetchAhead<T>(rows[2], l);
    V lo[3], mid[3], hi[3];
    for (int k = 0; k < 3; ++k) {
      const int64_t at = l + k * C;
      const V a = hn::LoadU(d, At<T>(rows[0], at));
      const V b = hn::LoadU(d, At<T>(rows[1], at));
      const V c = hn::LoadU(d, At<T>(rows[2], at));
      const V ab0 = hn::Min(a, b), ab1 = hn::Max(a, b);
      const V t = hn::Max(ab0, c);
      lo[k] = hn::Min(ab0, c);
      mid[k] = hn::Min(ab1, t);
      hi[k] = hn::Max(ab1, t);
    }
    const V maxLo = hn::Max(hn::Max(lo[0], lo[1]), lo[2]);
    const V minHi = hn::Min(hn::Min(hi[0], hi[1]), hi[2]);
    hn::StoreU(med3(maxLo, med3(mid[0], mid[1], mid[2]), minHi), d, dst + l);
  }
  return lanes;
}

// Two output rows of the 3x3 median of integers (rows holds four), in one
// pass with no scratch: for each of the three columns the middle two rows
// are ordered once for both outputs, and the column's order then takes the
// top row for the first output and the bottom one for the second. The
// median of nine is the median of the largest column minimum, the median of
// the column medians and the smallest column maximum. Integers have one
// median however it is found, so this gives the bytes of two single rows.
template <class T>
void Median3x3Pair(int C, const uint8_t* const* rows, T* dst0, T* dst1, int64_t lanes) {
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  auto med3 = [](V a, V b, V c) HWY_ATTR { return hn::Max(hn::Min(a, b), hn::Min(hn::Max(a, b), c)); };
  for (int64_t x = 0, skew = Skew(dst0, N); x < lanes; x = Next(x, skew, N)) {
    const int64_t l = std::min(x, lanes - N);  // the last vector may overlap the one before
    PrefetchAhead<T>(rows[2], l);  // the two rows new to this pair
    PrefetchAhead<T>(rows[3], l);
    V lo0, hi0, lo1, hi1, mid0[3], mid1[3];
    for (int k = 0; k < 3; ++k) {
      const int64_t at = l + k * C;
      const V top = hn::LoadU(d, At<T>(rows[0], at));
      const V b = hn::LoadU(d, At<T>(rows[1], at));
      const V c = hn::LoadU(d, At<T>(rows[2], at));
      const V bottom = hn::LoadU(d, At<T>(rows[3], at));
      const V small = hn::Min(b, c), large = hn::Max(b, c);
      mid0[k] = hn::Max(small, hn::Min(large, top));
      mid1[k] = hn::Max(small, hn::Min(large, bottom));
      const V l0 = hn::Min(small, top), h0 = hn::Max(large, top);
      const V l1 = hn::Min(small, bottom), h1 = hn::Max(large, bottom);
      lo0 = k == 0 ? l0 : hn::Max(lo0, l0);
      hi0 = k == 0 ? h0 : hn::Min(hi0, h0);
      lo1 = k == 0 ? l1 : hn::Max(lo1, l1);
      hi1 = k == 0 ? h1 : hn::Min(hi1, h1);
    }
    hn::StoreU(med3(lo0, med3(mid0[0], mid0[1], mid0[2]), hi0), d, dst0 + l);
    hn::StoreU(med3(lo1, med3(mid1[0], mid1[1], mid1[2]), hi1), d, dst1 + l);
  }
}

void Median3x3PairTarget(Lane lane, int C, const uint8_t* const* rows, void* scratch, void* dst0,
                         void* dst1, int64_t lanes) {
  VisitLane(lane, [&](auto t) {
    using T = decltype(t);
    const int64_t N = static_cast<int64_t>(hn::Lanes(hn::ScalableTag<T>()));
    if constexpr (std::is_integral_v<T>) {
      if (lanes >= N) return Median3x3Pair(C, rows, static_cast<T*>(dst0), static_cast<T*>(dst1), lanes);
    }
    scalar::MedianRow(C, 3, 3, rows, static_cast<T*>(scratch), static_cast<T*>(dst0), 0, lanes);
    scalar::MedianRow(C, 3, 3, rows + 1, static_cast<T*>(scratch), static_cast<T*>(dst1), 0, lanes);
  });
}

// Larger 8-bit medians: the result is built bit by bit from the top; a bit
// stays set when at most rank taps lie below the value so far with it set.
// Counts fit 8-bit lanes for masks of up to 255 taps.
int64_t MedianByBits(int C, int kw, int kh, const uint8_t* const* rows, uint8_t* dst, int64_t lanes) {
  const hn::ScalableTag<uint8_t> d;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  const auto rank = hn::Set(d, static_cast<uint8_t>((kw * kh - 1) / 2));
  if (lanes < N) return 0;
  for (int64_t x = 0, skew = Skew(dst, N); x < lanes; x = Next(x, skew, N)) {
    const int64_t l = std::min(x, lanes - N);  // the last vector may overlap the one before
    auto result = hn::Zero(d);
    for (int bit = 7; bit >= 0; --bit) {
      const auto t = hn::Or(result, hn::Set(d, static_cast<uint8_t>(1u << bit)));
      const auto below = hn::Sub(t, hn::Set(d, 1));  // x < t  <=>  min(x, t - 1) == x
#if HWY_TARGET <= HWY_AVX3
      // A compare into a mask register and a masked increment a tap, in two
      // chains so that the increments do not wait on each other.
      (void)below;
      const __m512i tr = t.raw, one = _mm512_set1_epi8(1);
      __m512i c0 = _mm512_setzero_si512(), c1 = _mm512_setzero_si512();
      int tap = 0;
      for (int i = 0; i < kh; ++i)
        for (int j = 0; j < kw; ++j, ++tap) {
          const __m512i x = _mm512_loadu_si512(At<uint8_t>(rows[i], l + j * C));
          if (tap & 1) c1 = _mm512_mask_add_epi8(c1, _mm512_cmplt_epu8_mask(x, tr), c1, one);
          else c0 = _mm512_mask_add_epi8(c0, _mm512_cmplt_epu8_mask(x, tr), c0, one);
        }
      const hn::Vec<decltype(d)> count{_mm512_add_epi8(c0, c1)};
#else
      auto count = hn::Zero(d);
      for (int i = 0; i < kh; ++i)
        for (int j = 0; j < kw; ++j) {
          const auto x = hn::LoadU(d, At<uint8_t>(rows[i], l + j * C));
          count = hn::Sub(count, hn::VecFromMask(d, hn::Eq(hn::Min(x, below), x)));
        }
#endif
      result = hn::IfThenElse(hn::Eq(hn::Min(count, rank), count), t, result);
    }
    hn::StoreU(result, d, dst + l);
  }
  return lanes;
}

// 8-bit medians of more than 255 taps: a histogram of the window slides
// along the row, one channel at a time. Each step takes the leaving column
// out and the entering one in, and the median walks from where it was, so
// a step costs about 2 x kh counts instead of a selection among kw x kh.
int64_t MedianByHistogram(int C, int kw, int kh, const uint8_t* const* rows, uint8_t* dst, int64_t lanes) {
  const int rank = (kw * kh - 1) / 2;
  const int64_t enter = int64_t{kw - 1} * C;
  for (int c = 0; c < C && c < lanes; ++c) {
    uint32_t hist[256] = {};
    for (int i = 0; i < kh; ++i)
      for (int j = 0; j < kw; ++j) ++hist[rows[i][c + j * C]];
    int m = 0, below = 0;  // below: taps less than m
    while (below + static_cast<int>(hist[m]) <= rank) below += static_cast<int>(hist[m++]);
    dst[c] = static_cast<uint8_t>(m);
    for (int64_t l = c + C; l < lanes; l += C) {
      for (int i = 0; i < kh; ++i) {
        const int out = rows[i][l - C], in = rows[i][l + enter];
        --hist[out];
        ++hist[in];
        below += (in < m) - (out < m);
      }
      while (below > rank) below -= static_cast<int>(hist[--m]);
      while (below + static_cast<int>(hist[m]) <= rank) below += static_cast<int>(hist[m++]);
      dst[l] = static_cast<uint8_t>(m);
    }
  }
  return lanes;
}

void MedianRowTarget(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* scratch,
                     void* dst, int64_t lanes) {
  VisitLane(lane, [&](auto t) {
    using T = decltype(t);
    int64_t done = 0;
    if constexpr (!std::is_same_v<T, double>) {
      if (kw == 3 && kh == 3) done = Median3x3(C, rows, static_cast<T*>(dst), lanes);
      else if (kw * kh <= MedianNetwork::kMaxWires) done = MedianByNetwork(C, kw, kh, rows, static_cast<T*>(dst), lanes);
      else if constexpr (std::is_same_v<T, uint8_t>) {
        if (kw * kh <= 255) done = MedianByBits(C, kw, kh, rows, static_cast<T*>(dst), lanes);
        else done = MedianByHistogram(C, kw, kh, rows, static_cast<T*>(dst), lanes);
      }
    }
    scalar::MedianRow(C, kw, kh, rows, static_cast<T*>(scratch), static_cast<T*>(dst), done, lanes);
  });
}

// 8-bit box with at most 257 taps: sums fit 16 bits, and 16-bit lanes wrap,
// so adding the entering row and subtracting the leaving one keeps every
// column sum exact.
void BoxColumns8Target(int kh, const uint8_t* const* rows, const uint8_t* add, const uint8_t* sub, uint16_t* col,
                       int64_t lanes) {
  const hn::ScalableTag<uint16_t> d16;
  const int64_t N16 = static_cast<int64_t>(hn::Lanes(d16));
  int64_t l = 0;
  if (add != nullptr) {
    for (; l + N16 <= lanes; l += N16)
      hn::StoreU(hn::Sub(hn::Add(hn::LoadU(d16, col + l), LoadWide(d16, add + l)), LoadWide(d16, sub + l)), d16,
                 col + l);
  } else {
    for (; l + N16 <= lanes; l += N16) {
      auto s = hn::Zero(d16);
      for (int i = 0; i < kh; ++i) s = hn::Add(s, LoadWide(d16, At<uint8_t>(rows[i], l)));
      hn::StoreU(s, d16, col + l);
    }
  }
  scalar::BoxColumns8(kh, rows, add, sub, col, l, lanes);
}

// The rounded mean floor((2s + N) / 2N) is exact in single precision from
// (2s + N + 1/2) times the reciprocal, the error staying far below the
// distance 1/4N of every such quotient from an integer.
void BoxMeans8Target(int C, int kw, int kh, const uint16_t* col, uint8_t* dst, int64_t lanes) {
  const hn::ScalableTag<uint16_t> d16;
  const int64_t N16 = static_cast<int64_t>(hn::Lanes(d16));
  if (lanes < N16) return scalar::BoxMeans8(C, kw, kh, col, dst, 0, lanes);
  // Sums of up to 257 taps fit 16-bit lanes; the division widens them.
  const hn::Half<decltype(d16)> dh16;
  const hn::Rebind<uint32_t, decltype(dh16)> du;
  const hn::RebindToSigned<decltype(du)> di;
  const hn::Rebind<float, decltype(di)> df;
  const hn::Rebind<uint8_t, decltype(di)> d8;
  const int64_t NH = static_cast<int64_t>(hn::Lanes(di));
  const int n = kw * kh;
  const auto bias = hn::Set(di, n);
  const auto half = hn::Set(df, 0.5f);
  const auto recip = hn::Set(df, 1.0f / static_cast<float>(2 * n));
  auto mean = [&](auto s16, uint8_t* out) HWY_ATTR {
    const auto s = hn::BitCast(di, hn::PromoteTo(du, s16));
    const auto q = hn::Mul(hn::Add(hn::ConvertTo(df, hn::Add(hn::Add(s, s), bias)), half), recip);
    hn::StoreU(hn::DemoteTo(d8, hn::ConvertTo(di, q)), d8, out);
  };
  for (int64_t x = 0, skew = Skew(dst, N16); x < lanes; x = Next(x, skew, N16)) {
    const int64_t l = std::min(x, lanes - N16);  // the last vector may overlap the one before
    auto s = hn::Zero(d16);
    for (int j = 0; j < kw; ++j) s = hn::Add(s, hn::LoadU(d16, col + l + j * C));
    mean(hn::LowerHalf(dh16, s), dst + l);
    mean(hn::UpperHalf(dh16, s), dst + l + NH);
  }
}

// 32f box: f64 column sums, then the kw sums left to right, as the reference.
int64_t Box32f(int C, int kw, int kh, const uint8_t* const* rows, double* col, float* dst, int64_t lanes) {
  const hn::ScalableTag<double> d;
  const hn::Rebind<float, decltype(d)> dh;
  const int64_t N = static_cast<int64_t>(hn::Lanes(d));
  const int64_t wide = lanes + int64_t{kw - 1} * C;
  int64_t l = 0;
  for (; l + N <= wide; l += N) {
    auto s = hn::Zero(d);
    for (int i = 0; i < kh; ++i) s = hn::Add(s, hn::PromoteTo(d, hn::LoadU(dh, At<float>(rows[i], l))));
    hn::StoreU(s, d, col + l);
  }
  for (; l < wide; ++l) {
    double s = 0;
    for (int i = 0; i < kh; ++i) s = s + static_cast<double>(scalar::Load<float>(rows[i], l));
    col[l] = s;
  }
  const auto n = hn::Set(d, static_cast<double>(int64_t{kw} * kh));
  if (lanes < N) return 0;
  for (int64_t x = 0, skew = Skew(dst, N); x < lanes; x = Next(x, skew, N)) {
    l = std::min(x, lanes - N);  // the last vector may overlap the one before
    auto s = hn::Zero(d);
    for (int j = 0; j < kw; ++j) s = hn::Add(s, hn::LoadU(d, col + l + j * C));
    hn::StoreU(hn::DemoteTo(dh, hn::Div(s, n)), dh, dst + l);
  }
  return lanes;
}

void BoxRowTarget(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* colSums, void* dst,
                  int64_t lanes) {
  if (lane == Lane::U8 && int64_t{kw} * kh <= 257) {
    auto* col = static_cast<uint16_t*>(colSums);
    BoxColumns8Target(kh, rows, nullptr, nullptr, col, lanes + int64_t{kw - 1} * C);
    BoxMeans8Target(C, kw, kh, col, static_cast<uint8_t*>(dst), lanes);
    return;
  }
  if (lane == Lane::F32) {
    auto* d = static_cast<float*>(dst);
    auto* col = static_cast<double*>(colSums);
    const int64_t done = Box32f(C, kw, kh, rows, col, d, lanes);
    for (int64_t l = done; l < lanes; ++l) {
      double s = 0;
      for (int j = 0; j < kw; ++j) s = s + col[l + j * C];
      d[l] = static_cast<float>(s / static_cast<double>(int64_t{kw} * kh));
    }
    return;
  }
  VisitLane(lane, [&](auto t) { scalar::BoxRow(C, kw, kh, rows, colSums, static_cast<decltype(t)*>(dst), 0, lanes); });
}

#endif

}  // namespace pel::filter::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::filter {
HWY_EXPORT(CorrelateRowTarget);
HWY_EXPORT(ExtremeRowTarget);
HWY_EXPORT(ExtremeHorizontalTarget);
HWY_EXPORT(ExtremePairTarget);
HWY_EXPORT(MedianRowTarget);
HWY_EXPORT(Median3x3PairTarget);
HWY_EXPORT(BoxRowTarget);
HWY_EXPORT(BoxColumns8Target);
HWY_EXPORT(BoxMeans8Target);

void CorrelateRow(const CorrelateJob& job, const uint8_t* const* rows, void* dst, int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(CorrelateRowTarget)(job, rows, dst, lanes);
}
void ExtremeRow(Lane lane, bool max, int C, int kw, int kh, const uint8_t* const* rows, void* tmp, void* dst,
                int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(ExtremeRowTarget)(lane, max, C, kw, kh, rows, tmp, dst, lanes);
}
void ExtremeHorizontal(Lane lane, bool max, int C, int kw, const uint8_t* row, void* dst, int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(ExtremeHorizontalTarget)(lane, max, C, kw, row, dst, lanes);
}
void ExtremePair(const ExtremePairJob& job, int64_t lanes) { HWY_DYNAMIC_DISPATCH(ExtremePairTarget)(job, lanes); }
void MedianRow(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* scratch, void* dst,
               int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(MedianRowTarget)(lane, C, kw, kh, rows, scratch, dst, lanes);
}
void BoxRow(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* colSums, void* dst,
            int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(BoxRowTarget)(lane, C, kw, kh, rows, colSums, dst, lanes);
}
void Median3x3Pair(Lane lane, int C, const uint8_t* const* rows, void* scratch, void* dst0, void* dst1,
                   int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(Median3x3PairTarget)(lane, C, rows, scratch, dst0, dst1, lanes);
}
void BoxColumns8(int kh, const uint8_t* const* rows, const uint8_t* add, const uint8_t* sub, uint16_t* col,
                 int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(BoxColumns8Target)(kh, rows, add, sub, col, lanes);
}
void BoxMeans8(int C, int kw, int kh, const uint16_t* col, uint8_t* dst, int64_t lanes) {
  HWY_DYNAMIC_DISPATCH(BoxMeans8Target)(C, kw, kh, col, dst, lanes);
}
}  // namespace pel::filter
#endif
