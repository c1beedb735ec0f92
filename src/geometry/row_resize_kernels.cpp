// Vector row kernels of resize, compiled once per instruction set by Highway.
// The baseline target runs the scalar references, so PEL_CPU=scalar gives
// exactly those.
//
// Horizontally, every row of a call reads the same source columns: the walker
// turns them into gather plans (gather_plan.h) once, and a row is a run of
// 16-byte byte shuffles, then the arithmetic on 128-bit vectors. Vertically,
// the two lines are blended with full-width vectors; the last vector of a row
// overlaps the one before (the destination never aliases the lines), rows
// shorter than a vector go scalar. All arithmetic is exact integer arithmetic
// or one float rounding per product and per sum, lane by lane, so the vector
// width never changes a result. The file is compiled without contraction of
// multiplies and adds into fused operations (family.cmake), which would.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "geometry/row_resize_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include "geometry/resize_scalar.h"
#include "geometry/row_resize_kernels.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace pel::geometry::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

bool UsePlansTarget() { return false; }

void NearestRowTarget(const NearestColumns& cols, const uint8_t* src, uint8_t* dst) {
  scalar::NearestRow(cols, src, dst);
}

void LinearHorizontalTarget(const LinearColumns& cols, const uint8_t* src, void* line) {
  scalar::LinearHorizontal(cols, src, line);
}

void LinearVerticalTarget(ResizeElem elem, const void* upper, const void* lower, int wy, uint8_t* dst, size_t n) {
  scalar::LinearVertical(elem, upper, lower, wy, dst, n);
}

#else

bool UsePlansTarget() { return true; }

// A plan's fields in locals, which stores through the kernels' outputs
// cannot change.
struct Plan {
  const intptr_t* offsets;
  const uint8_t* patterns;
  size_t stride, blocks, whole, outBytes;
  bool contiguous;
  explicit Plan(const GatherPlan& p)
      : offsets(p.offsets), patterns(p.patterns), stride(p.stride), blocks(p.blocks), whole(p.WholeBlocks()),
        outBytes(p.outBytes), contiguous(p.contiguous) {}
  size_t BlockStart(size_t b) const { return std::min(16 * b, outBytes - 16); }
};

// The 16-byte windows at src + off[k], one in each 128-bit block of a vector.
template <class D>
HWY_INLINE hn::VFromD<D> LoadWindows(D d, const uint8_t* src, const intptr_t* off) {
  if constexpr (hn::MaxLanes(d) == 64) {
    const hn::Half<D> d2;
    const hn::Half<decltype(d2)> d1;
    return hn::Combine(d, hn::Combine(d2, hn::LoadU(d1, src + off[3]), hn::LoadU(d1, src + off[2])),
                       hn::Combine(d2, hn::LoadU(d1, src + off[1]), hn::LoadU(d1, src + off[0])));
  } else if constexpr (hn::MaxLanes(d) == 32) {
    const hn::Half<D> d1;
    return hn::Combine(d, hn::LoadU(d1, src + off[1]), hn::LoadU(d1, src + off[0]));
  } else {
    return hn::LoadU(d, src + off[0]);
  }
}

// Output blocks b, b + 1, ... (one a 128-bit block of the vector): the OR of
// their windows' shuffles. kWindows 0: the plan's count, at run time; -1:
// one window a block, contiguous.
template <int kWindows, class D>
HWY_INLINE hn::VFromD<D> Gather(D d, const Plan& p, int windows, const uint8_t* src, size_t b) {
  if constexpr (kWindows < 0) {
    const intptr_t at = b < p.whole ? p.offsets[0] + intptr_t(16 * b) : p.offsets[b];  // the last block overlaps
    return hn::TableLookupBytesOr0(hn::LoadU(d, src + at), hn::LoadU(d, p.patterns + 16 * b));
  }
  const int w = kWindows ? kWindows : windows;
  auto acc = hn::TableLookupBytesOr0(LoadWindows(d, src, p.offsets + b), hn::LoadU(d, p.patterns + 16 * b));
  for (int j = 1; j < w; ++j) {
    const size_t k = size_t(j) * p.stride + b;
    acc = hn::Or(acc, hn::TableLookupBytesOr0(LoadWindows(d, src, p.offsets + k), hn::LoadU(d, p.patterns + 16 * k)));
  }
  return acc;
}

// Runs body(d, b, outByte) over a plan's blocks: whole vectors of
// consecutive blocks, then the rest one block at a time.
template <class Body>
HWY_INLINE void ForEachGroup(const Plan& p, Body body) {
  const hn::ScalableTag<uint8_t> d;
  constexpr size_t kGroup = hn::MaxLanes(d) / 16;
  size_t b = 0;
  for (; b + kGroup <= p.whole; b += kGroup) body(d, b, 16 * b);
  const hn::Full128<uint8_t> d1;
  for (; b < p.blocks; ++b) body(d1, b, p.BlockStart(b));
}

template <int kWindows>
void NearestPlanned(const Plan& p, int windows, const uint8_t* src, uint8_t* dst) {
  ForEachGroup(p, [&](auto d, size_t b, size_t at) { hn::StoreU(Gather<kWindows>(d, p, windows, src, b), d, dst + at); });
}

void NearestRowTarget(const NearestColumns& cols, const uint8_t* src, uint8_t* dst) {
  const Plan p(cols.plan);
  switch (cols.plan.windows) {
    case 0: return scalar::NearestRow(cols, src, dst);
    case 1: return p.contiguous ? NearestPlanned<-1>(p, 1, src, dst) : NearestPlanned<1>(p, 1, src, dst);
    case 2: return NearestPlanned<2>(p, 2, src, dst);
    default: return NearestPlanned<0>(p, cols.plan.windows, src, dst);
  }
}

// ---- Horizontal pass: each element's two taps side by side ----------------------

// 8u: (p0, p1) byte pairs, widened to 16 bits, times (w0, w1) in one
// multiply-add of pairs.
template <int kWindows>
void Horizontal8u(const LinearColumns& cols, const uint8_t* src, uint16_t* line) {
  const Plan p(cols.plan);
  const int windows = cols.plan.windows;
  const auto* w = static_cast<const int16_t*>(cols.elementWeights);
  ForEachGroup(p, [&](auto d8, size_t b, size_t at) {
    const hn::Half<decltype(d8)> dh;
    const hn::Repartition<uint16_t, decltype(d8)> du;
    const hn::Repartition<int16_t, decltype(d8)> d16;
    const hn::Repartition<int32_t, decltype(d8)> d32;
    const hn::Rebind<uint16_t, decltype(d32)> dn;
    const size_t e = at / 2, half = hn::Lanes(d32);
    const auto pairs = Gather<kWindows>(d8, p, windows, src, b);
    const auto lo = hn::BitCast(d16, hn::PromoteTo(du, hn::LowerHalf(dh, pairs)));
    const auto hi = hn::BitCast(d16, hn::PromoteTo(du, hn::UpperHalf(dh, pairs)));
    auto unused = hn::Zero(d32);
    const auto s0 = hn::ReorderWidenMulAccumulate(d32, lo, hn::LoadU(d16, w + 2 * e), hn::Zero(d32), unused);
    const auto s1 = hn::ReorderWidenMulAccumulate(d32, hi, hn::LoadU(d16, w + 2 * (e + half)), hn::Zero(d32), unused);
    hn::StoreU(hn::DemoteTo(dn, hn::ShiftRight<8>(s0)), dn, line + e);
    hn::StoreU(hn::DemoteTo(dn, hn::ShiftRight<8>(s1)), dn, line + e + half);
  });
}

// 16u and 16s: the multiply-add of pairs is signed, so 16u taps move down by
// 32768 (16s taps are signed already) and the sum moves back up by 32768 x
// 16384, the weights' total: the result is that of the values plus 32768.
template <bool kSigned>
void Horizontal16(const LinearColumns& cols, const uint8_t* src, uint32_t* line) {
  const Plan p(cols.plan);
  const int windows = cols.plan.windows;
  const auto* w = static_cast<const int16_t*>(cols.elementWeights);
  ForEachGroup(p, [&](auto d8, size_t b, size_t at) {
    const hn::Repartition<int16_t, decltype(d8)> d16;
    const hn::Repartition<int32_t, decltype(d8)> d32;
    const hn::Repartition<uint32_t, decltype(d8)> du;
    const size_t e = at / 4;
    auto pairs = hn::BitCast(d16, Gather<0>(d8, p, windows, src, b));
    if (!kSigned) pairs = hn::Xor(pairs, hn::Set(d16, int16_t(-32768)));
    auto unused = hn::Zero(d32);
    const auto sum = hn::ReorderWidenMulAccumulate(d32, pairs, hn::LoadU(d16, w + 2 * e),
                                                   hn::Set(d32, (1 << 29) + 2048), unused);
    hn::StoreU(hn::BitCast(du, hn::ShiftRight<12>(sum)), du, line + e);
  });
}

// 32f: (p0, p1) float pairs times (a0, a1); two vectors of pairs give one of
// sums, even lanes plus odd lanes.
void Horizontal32f(const LinearColumns& cols, const uint8_t* src, float* line) {
  const Plan p(cols.plan);
  const int windows = cols.plan.windows;
  const auto* w = static_cast<const float*>(cols.elementWeights);
  const hn::ScalableTag<uint8_t> d8;
  const hn::ScalableTag<float> d;
  const size_t group = hn::MaxLanes(d8) / 16, L = hn::Lanes(d);
  size_t b = 0;
  for (; b + 2 * group <= p.whole; b += 2 * group) {
    const size_t e = 2 * b;
    const auto v0 = hn::Mul(hn::BitCast(d, Gather<0>(d8, p, windows, src, b)), hn::LoadU(d, w + 2 * e));
    const auto v1 = hn::Mul(hn::BitCast(d, Gather<0>(d8, p, windows, src, b + group)), hn::LoadU(d, w + 2 * e + L));
    hn::StoreU(hn::Add(hn::ConcatEven(d, v1, v0), hn::ConcatOdd(d, v1, v0)), d, line + e);
  }
  const hn::Full128<uint8_t> d1;
  const hn::Full128<float> df;
  const hn::Full64<float> dn;
  for (; b < p.blocks; ++b) {
    const size_t e = p.BlockStart(b) / 8;
    const auto v = hn::Mul(hn::BitCast(df, Gather<0>(d1, p, windows, src, b)), hn::LoadU(df, w + 2 * e));
    hn::StoreU(hn::LowerHalf(dn, hn::Add(hn::ConcatEven(df, v, v), hn::ConcatOdd(df, v, v))), dn, line + e);
  }
}

// Exact reductions by 2: each element is the mean of two neighbours, read
// with plain loads; the rest of the row (less than a vector) goes scalar.
// 8u: (p0 + p1) x 32 is the Q6 blend with weights 8192; C1 pairs are the
// bytes of a 16-bit lane, C4 pairs are put side by side first.
template <int C>
size_t Halve8u(const uint8_t* src, uint16_t* line, size_t n) {
  const hn::ScalableTag<uint8_t> d8;
  const hn::Repartition<uint16_t, decltype(d8)> d16;
  const size_t L = hn::Lanes(d16);
  alignas(16) static constexpr uint8_t kPairs[16] = {0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15};
  const auto pairs = hn::LoadDup128(d8, kPairs);
  const auto low = hn::Set(d16, 0xFF);
  size_t e = 0;
  for (; e + L <= n; e += L) {
    auto v = hn::LoadU(d8, src + 2 * e);
    if (C == 4) v = hn::TableLookupBytes(v, pairs);
    const auto w = hn::BitCast(d16, v);
    hn::StoreU(hn::ShiftLeft<5>(hn::Add(hn::And(w, low), hn::ShiftRight<8>(w))), d16, line + e);
  }
  return e;
}

// Stores each 128-bit block of v at p, p + stride, p + 2 stride, ...
template <class D, class T>
HWY_INLINE void StoreEachBlock(D d, hn::VFromD<D> v, T* p, size_t stride) {
  if constexpr (hn::MaxLanes(d) * sizeof(T) > 16) {
    const hn::Half<D> dh;
    StoreEachBlock(dh, hn::LowerHalf(dh, v), p, stride);
    StoreEachBlock(dh, hn::UpperHalf(dh, v), p + stride * (hn::MaxLanes(d) * sizeof(T) / 32), stride);
  } else {
    hn::StoreU(v, d, p);
  }
}

// 8u C3: 12 source bytes (two pairs of pixels) a 128-bit block give six
// elements: one load, its 32-bit lanes spread so that block k starts at byte
// 12 k; each block is stored on its own, its last two lanes overwritten by
// the next block's.
template <class D8>
size_t Halve8uC3(D8 d8, const uint8_t* src, uint16_t* line, size_t e, size_t n) {
  const hn::Repartition<uint16_t, D8> d16;
  const hn::Repartition<uint32_t, D8> d32;
  const size_t blocks = hn::MaxLanes(d8) / 16;
  alignas(64) static constexpr uint32_t kSpread[16] = {0, 1, 2, 3, 3, 4, 5, 6, 6, 7, 8, 9, 9, 10, 11, 12};
  alignas(16) static constexpr uint8_t kPairs[16] = {0, 3, 1, 4, 2, 5, 6, 9, 7, 10, 8, 11, 12, 12, 12, 12};
  const auto spread = hn::SetTableIndices(d32, kSpread);
  const auto pairs = hn::LoadDup128(d8, kPairs);
  const auto low = hn::Set(d16, 0xFF);
  for (; e + 8 * blocks <= n; e += 6 * blocks) {
    const auto v = hn::BitCast(d8, hn::TableLookupLanes(hn::BitCast(d32, hn::LoadU(d8, src + 2 * e)), spread));
    const auto w = hn::BitCast(d16, hn::TableLookupBytes(v, pairs));
    StoreEachBlock(d16, hn::ShiftLeft<5>(hn::Add(hn::And(w, low), hn::ShiftRight<8>(w))), line + e, 6);
  }
  return e;
}

// 32f C1: p0 a + p1 a with a = 1/2, even lanes plus odd lanes.
size_t Halve32f(const float* src, float* line, size_t n) {
  const hn::ScalableTag<float> d;
  const size_t L = hn::Lanes(d);
  const auto half = hn::Set(d, 0.5f);
  size_t e = 0;
  for (; e + L <= n; e += L) {
    const auto v0 = hn::Mul(hn::LoadU(d, src + 2 * e), half);
    const auto v1 = hn::Mul(hn::LoadU(d, src + 2 * e + L), half);
    hn::StoreU(hn::Add(hn::ConcatEven(d, v1, v0), hn::ConcatOdd(d, v1, v0)), d, line + e);
  }
  return e;
}

bool Halve(const LinearColumns& cols, const uint8_t* row, void* line) {
  const size_t n = cols.width * size_t(cols.channels);
  const intptr_t first = intptr_t(cols.tap0[0]) * cols.channels;
  size_t done;
  if (cols.elem == ResizeElem::k8u && cols.channels == 1) {
    done = Halve8u<1>(row + first, static_cast<uint16_t*>(line), n);
  } else if (cols.elem == ResizeElem::k8u && cols.channels == 3) {
    auto* out = static_cast<uint16_t*>(line);
    done = Halve8uC3(hn::Full128<uint8_t>(), row + first, out, Halve8uC3(hn::ScalableTag<uint8_t>(), row + first, out, 0, n), n);
  } else if (cols.elem == ResizeElem::k8u && cols.channels == 4) {
    done = Halve8u<4>(row + first, static_cast<uint16_t*>(line), n);
  } else if (cols.elem == ResizeElem::k32f && cols.channels == 1) {
    done = Halve32f(reinterpret_cast<const float*>(row) + first, static_cast<float*>(line), n);
  } else {
    return false;
  }
  scalar::LinearHorizontal(cols, row, line, done);
  return true;
}

void LinearHorizontalTarget(const LinearColumns& cols, const uint8_t* src, void* line) {
  if (cols.halving && Halve(cols, src, line)) return;
  if (cols.plan.blocks == 0) return scalar::LinearHorizontal(cols, src, line);
  switch (cols.elem) {
    case ResizeElem::k8u:
      if (cols.plan.contiguous) return Horizontal8u<-1>(cols, src, static_cast<uint16_t*>(line));
      if (cols.plan.windows == 1) return Horizontal8u<1>(cols, src, static_cast<uint16_t*>(line));
      return Horizontal8u<0>(cols, src, static_cast<uint16_t*>(line));
    case ResizeElem::k16u: return Horizontal16<false>(cols, src, static_cast<uint32_t*>(line));
    case ResizeElem::k16s: return Horizontal16<true>(cols, src, static_cast<uint32_t*>(line));
    case ResizeElem::k32f: return Horizontal32f(cols, src, static_cast<float*>(line));
    case ResizeElem::k64f: return scalar::LinearHorizontal(cols, src, line);
  }
}

// ---- Vertical pass: full vectors ----------------------------------------------------

// Runs body(i) for vectors of `lanes` elements over n elements, the last one
// overlapping; false when the row is shorter than a vector.
template <class Body>
HWY_INLINE bool ForEachVector(size_t n, size_t lanes, Body body) {
  if (n < lanes) return false;
  size_t i = 0;
  for (; i + lanes <= n; i += lanes) body(i);
  if (i < n) body(n - lanes);
  return true;
}

// 8u: (hU, hL) pairs times (16384 - wy, wy) pairs in one multiply-add.
bool Vertical8u(const uint16_t* u, const uint16_t* l, int wy, uint8_t* dst, size_t n) {
  if (wy == 8192) {
    // Equal weights: (hU 8192 + hL 8192 + 2^19) >> 20 is (hU + hL + 64) >> 7,
    // and the sum of two Q6 values fits 16 bits.
    const hn::ScalableTag<uint16_t> d;
    const hn::Rebind<uint8_t, decltype(d)> d8;
    const auto round = hn::Set(d, 64);
    return ForEachVector(n, hn::Lanes(d), [&](size_t i) {
      const auto v = hn::ShiftRight<7>(hn::Add(hn::Add(hn::LoadU(d, u + i), hn::LoadU(d, l + i)), round));
      hn::StoreU(hn::DemoteTo(d8, hn::BitCast(hn::RebindToSigned<decltype(d)>(), v)), d8, dst + i);
    });
  }
  const hn::ScalableTag<int16_t> d16;
  const hn::Repartition<int32_t, decltype(d16)> d32;
  const hn::Rebind<uint8_t, decltype(d16)> d8;
  const auto weights = hn::BitCast(d16, hn::Set(d32, int32_t(uint32_t(16384 - wy) | (uint32_t(wy) << 16))));
  const auto round = hn::Set(d32, 1 << 19);
  return ForEachVector(n, hn::Lanes(d16), [&](size_t i) {
    const auto a = hn::BitCast(d16, hn::LoadU(hn::RebindToUnsigned<decltype(d16)>(), u + i));
    const auto b = hn::BitCast(d16, hn::LoadU(hn::RebindToUnsigned<decltype(d16)>(), l + i));
    auto unused = hn::Zero(d32);
    const auto lo = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveLower(d16, a, b), weights, round, unused);
    const auto hi = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveUpper(d16, a, b), weights, round, unused);
    const auto v = hn::ReorderDemote2To(d16, hn::ShiftRight<20>(lo), hn::ShiftRight<20>(hi));
    hn::StoreU(hn::DemoteTo(d8, v), d8, dst + i);
  });
}

template <bool kSigned>
bool Vertical16(const uint32_t* u, const uint32_t* l, int wy, uint8_t* dstBytes, size_t n) {
  const hn::ScalableTag<uint32_t> d;
  const hn::RebindToSigned<decltype(d)> di;
  const hn::Rebind<uint16_t, decltype(d)> d16;
  const auto b0 = hn::Set(d, uint32_t(16384 - wy));
  const auto b1 = hn::Set(d, uint32_t(wy));
  const auto half = hn::Set(d, 32768u);
  const auto bias = hn::Set(d16, uint16_t(kSigned ? 0x8000 : 0));
  auto* dst = reinterpret_cast<uint16_t*>(dstBytes);
  return ForEachVector(n, hn::Lanes(d), [&](size_t i) {
    const auto s = hn::Add(hn::Add(hn::Mul(hn::LoadU(d, u + i), b0), hn::Mul(hn::LoadU(d, l + i), b1)), half);
    hn::StoreU(hn::Xor(hn::DemoteTo(d16, hn::BitCast(di, hn::ShiftRight<16>(s))), bias), d16, dst + i);
  });
}

template <class F>
bool VerticalFloat(const F* u, const F* l, int wy, uint8_t* dstBytes, size_t n) {
  const hn::ScalableTag<F> d;
  const auto b0 = hn::Set(d, scalar::FloatMath<F>::Weight(16384 - wy));
  const auto b1 = hn::Set(d, scalar::FloatMath<F>::Weight(wy));
  auto* dst = reinterpret_cast<F*>(dstBytes);
  return ForEachVector(n, hn::Lanes(d), [&](size_t i) {
    hn::StoreU(hn::Add(hn::Mul(hn::LoadU(d, u + i), b0), hn::Mul(hn::LoadU(d, l + i), b1)), d, dst + i);
  });
}

void LinearVerticalTarget(ResizeElem elem, const void* upper, const void* lower, int wy, uint8_t* dst, size_t n) {
  bool done = false;
  switch (elem) {
    case ResizeElem::k8u:
      done = Vertical8u(static_cast<const uint16_t*>(upper), static_cast<const uint16_t*>(lower), wy, dst, n);
      break;
    case ResizeElem::k16u:
      done = Vertical16<false>(static_cast<const uint32_t*>(upper), static_cast<const uint32_t*>(lower), wy, dst, n);
      break;
    case ResizeElem::k16s:
      done = Vertical16<true>(static_cast<const uint32_t*>(upper), static_cast<const uint32_t*>(lower), wy, dst, n);
      break;
    case ResizeElem::k32f:
      done = VerticalFloat(static_cast<const float*>(upper), static_cast<const float*>(lower), wy, dst, n);
      break;
    case ResizeElem::k64f:
      done = VerticalFloat(static_cast<const double*>(upper), static_cast<const double*>(lower), wy, dst, n);
      break;
  }
  if (!done) scalar::LinearVertical(elem, upper, lower, wy, dst, n);
}

#endif

}  // namespace pel::geometry::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::geometry {

HWY_EXPORT(UsePlansTarget);
HWY_EXPORT(NearestRowTarget);
HWY_EXPORT(LinearHorizontalTarget);
HWY_EXPORT(LinearVerticalTarget);

bool ResizeKernelsUsePlans() { return HWY_DYNAMIC_DISPATCH(UsePlansTarget)(); }

void NearestRow(const NearestColumns& cols, const uint8_t* src, uint8_t* dst) {
  HWY_DYNAMIC_DISPATCH(NearestRowTarget)(cols, src, dst);
}

void LinearHorizontal(const LinearColumns& cols, const uint8_t* src, void* line) {
  HWY_DYNAMIC_DISPATCH(LinearHorizontalTarget)(cols, src, line);
}

void LinearVertical(ResizeElem elem, const void* upper, const void* lower, int wy, uint8_t* dst, size_t n) {
  HWY_DYNAMIC_DISPATCH(LinearVerticalTarget)(elem, upper, lower, wy, dst, n);
}

}  // namespace pel::geometry
#endif
