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

using D8 = hn::Full128<uint8_t>;

// Output block b of a plan: the OR of its windows' shuffles.
HWY_INLINE hn::Vec128<uint8_t> Gather(const GatherPlan& p, const uint8_t* src, size_t b) {
  const D8 d;
  const size_t w = size_t(p.windows);
  const intptr_t* off = p.offsets + b * w;
  const uint8_t* pat = p.patterns + b * w * 16;
  auto acc = hn::TableLookupBytesOr0(hn::LoadU(d, src + off[0]), hn::LoadU(d, pat));
  for (size_t j = 1; j < w; ++j) {
    acc = hn::Or(acc, hn::TableLookupBytesOr0(hn::LoadU(d, src + off[j]), hn::LoadU(d, pat + 16 * j)));
  }
  return acc;
}

void NearestRowTarget(const NearestColumns& cols, const uint8_t* src, uint8_t* dst) {
  const GatherPlan& p = cols.plan;
  if (p.blocks == 0) return scalar::NearestRow(cols, src, dst);
  const D8 d;
  for (size_t b = 0; b < p.blocks; ++b) hn::StoreU(Gather(p, src, b), d, dst + p.BlockStart(b));
}

// ---- Horizontal pass: four elements a block ---------------------------------------

// 8u: the plan gives (p0, p1) as 16-bit pairs, which one multiply-add of
// pairs turns into p0 w0 + p1 w1.
void Horizontal8u(const LinearColumns& cols, const uint8_t* src, uint16_t* line) {
  const GatherPlan& p = cols.plan0;
  const hn::Full128<int16_t> d16;
  const hn::Full128<int32_t> d32;
  const hn::Full64<uint16_t> dh;
  const auto* w = static_cast<const int16_t*>(cols.elementWeights);
  for (size_t b = 0; b < p.blocks; ++b) {
    const size_t e = p.BlockStart(b) / 4;
    auto unused = hn::Zero(d32);
    const auto sum = hn::ReorderWidenMulAccumulate(d32, hn::BitCast(d16, Gather(p, src, b)),
                                                   hn::LoadU(d16, w + 2 * e), hn::Zero(d32), unused);
    hn::StoreU(hn::DemoteTo(dh, hn::ShiftRight<8>(sum)), dh, line + e);
  }
}

// 16u and 16s: zero-extended taps (16s moved by 32768), 32-bit arithmetic.
template <bool kSigned>
void Horizontal16(const LinearColumns& cols, const uint8_t* src, uint32_t* line) {
  const hn::Full128<uint32_t> d;
  const size_t n = cols.width * size_t(cols.channels);
  const auto* w0 = static_cast<const uint32_t*>(cols.elementWeights);
  const uint32_t* w1 = w0 + n;
  const auto bias = hn::Set(d, kSigned ? 0x8000u : 0u);
  const auto half = hn::Set(d, 2048u);
  for (size_t b = 0; b < cols.plan0.blocks; ++b) {
    const size_t e = cols.plan0.BlockStart(b) / 4;
    const auto p0 = hn::Xor(hn::BitCast(d, Gather(cols.plan0, src, b)), bias);
    const auto p1 = hn::Xor(hn::BitCast(d, Gather(cols.plan1, src, b)), bias);
    const auto s = hn::Add(hn::Add(hn::Mul(p0, hn::LoadU(d, w0 + e)), hn::Mul(p1, hn::LoadU(d, w1 + e))), half);
    hn::StoreU(hn::ShiftRight<12>(s), d, line + e);
  }
}

void Horizontal32f(const LinearColumns& cols, const uint8_t* src, float* line) {
  const hn::Full128<float> d;
  const size_t n = cols.width * size_t(cols.channels);
  const auto* a0 = static_cast<const float*>(cols.elementWeights);
  const float* a1 = a0 + n;
  for (size_t b = 0; b < cols.plan0.blocks; ++b) {
    const size_t e = cols.plan0.BlockStart(b) / 4;
    const auto p0 = hn::BitCast(d, Gather(cols.plan0, src, b));
    const auto p1 = hn::BitCast(d, Gather(cols.plan1, src, b));
    hn::StoreU(hn::Add(hn::Mul(p0, hn::LoadU(d, a0 + e)), hn::Mul(p1, hn::LoadU(d, a1 + e))), d, line + e);
  }
}

void LinearHorizontalTarget(const LinearColumns& cols, const uint8_t* src, void* line) {
  if (cols.plan0.blocks == 0) return scalar::LinearHorizontal(cols, src, line);
  switch (cols.elem) {
    case ResizeElem::k8u: return Horizontal8u(cols, src, static_cast<uint16_t*>(line));
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
