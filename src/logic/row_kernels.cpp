// Vector row kernels of the logic and shift family: one source, compiled
// once per instruction set by Highway, chosen at run time. The baseline
// target runs the scalar references, so PEL_CPU=scalar gives exactly those.
//
// Bitwise logic does not care what the bits mean, so it works on bytes: a
// constant operand or an alpha layout is a byte pattern, and one kernel
// serves every element type and channel count. Shifts work on lanes of the
// element's size.
//
// Vectors never leave the row and never run over it a second time: Xor and
// the shifts are not idempotent in place, so the last partial vector of a
// row is done by the scalar reference.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "logic/row_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstddef>
#include <cstdint>

#include "hwy/highway.h"
#include "logic/row_kernels.h"
#include "logic/row_scalar.h"

HWY_BEFORE_NAMESPACE();
namespace pel::logic::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void LogicRowTarget(LogicOp op, const uint8_t* a, const uint8_t* b, uint8_t* d, size_t bytes,
                    const BytePattern& p) {
  scalar::LogicRowAny(op, a, b, d, 0, bytes, p);
}

void ShiftRowTarget(ShiftKind kind, int elemBytes, const void* s, void* d, size_t elements,
                    const ShiftPattern& p) {
  scalar::ShiftRowAny(kind, elemBytes, s, d, 0, elements, p);
}

#else

// Stores v except in the lanes `keep` selects, which keep their value.
// AVX-512 has true masked stores; below it the destination vector is read,
// blended and written back, so kept lanes get their own value again.
template <class D, class M, class V>
HWY_INLINE void StoreKeeping(D d, M keep, V v, hn::TFromD<D>* p) {
#if HWY_TARGET <= HWY_AVX3
  hn::BlendedStore(v, hn::Not(keep), d, p);
#else
  hn::StoreU(hn::IfThenElse(keep, hn::LoadU(d, p), v), d, p);
#endif
}

// A run of three vectors holds a whole number of pattern periods, so vector
// k of every run uses the pattern's k-th vector.
constexpr size_t kRun = 3;
static_assert(kRun * HWY_MAX_BYTES <= kPatternBytes, "patterns hold three vectors");

template <class D>
HWY_INLINE void PatternVectors(D d, const uint8_t* bytes, hn::Vec<D>* out) {
  const auto* lanes = reinterpret_cast<const hn::TFromD<D>*>(bytes);
  for (size_t k = 0; k < kRun; ++k) out[k] = hn::Load(d, lanes + k * hn::Lanes(d));
}

// Computes vector(i, k) for the whole vectors of a row of n lanes (i its
// first lane, k its place in the run) and stores it at d + i, keeping the
// lanes of keep[k] when kKeep. Returns the lanes done; the rest of the row
// is less than a vector.
template <bool kKeep, class D, class F>
HWY_INLINE size_t StoreVectors(D d, hn::TFromD<D>* out, size_t n, const hn::Vec<D>* keep,
                               F vector) {
  const size_t N = hn::Lanes(d);
  auto one = [&](size_t i, size_t k) {
    if constexpr (kKeep) {
      StoreKeeping(d, hn::MaskFromVec(keep[k]), vector(i, k), out + i);
    } else {
      hn::StoreU(vector(i, k), d, out + i);
    }
  };
  size_t i = 0;
  for (; i + kRun * N <= n; i += kRun * N) {
    for (size_t k = 0; k < kRun; ++k) one(i + k * N, k);
  }
  for (size_t k = 0; i + N <= n; i += N, ++k) one(i, k);
  return i;
}

// ---------------------------------------------------------------- logic

template <LogicOp kOp, class V>
HWY_INLINE V Apply(V a, V b) {
  if constexpr (kOp == LogicOp::kAnd) return hn::And(a, b);
  if constexpr (kOp == LogicOp::kOr) return hn::Or(a, b);
  return hn::Xor(a, b);
}

// kImage: the second operand is the image b, else the pattern's constant.
// kKeep: the pattern keeps some bytes (alpha layouts).
template <LogicOp kOp, bool kImage, bool kKeep>
void LogicRowT(const uint8_t* a, const uint8_t* b, uint8_t* d, size_t n, const BytePattern& p) {
  const hn::ScalableTag<uint8_t> du8;
  hn::Vec<decltype(du8)> constant[kRun], keep[kRun];
  if constexpr (!kImage) PatternVectors(du8, p.value, constant);
  if constexpr (kKeep) PatternVectors(du8, p.keep, keep);
  const size_t done = StoreVectors<kKeep>(du8, d, n, keep, [&](size_t i, size_t k) {
    return Apply<kOp>(hn::LoadU(du8, a + i), kImage ? hn::LoadU(du8, b + i) : constant[k]);
  });
  scalar::LogicRow<kOp>(a, kImage ? b : nullptr, d, done, n, p);
}

template <LogicOp kOp>
void LogicRowOp(const uint8_t* a, const uint8_t* b, uint8_t* d, size_t n, const BytePattern& p) {
  if (b != nullptr) {
    if (p.keeps) return LogicRowT<kOp, true, true>(a, b, d, n, p);
    return LogicRowT<kOp, true, false>(a, b, d, n, p);
  }
  if (p.keeps) return LogicRowT<kOp, false, true>(a, b, d, n, p);
  return LogicRowT<kOp, false, false>(a, b, d, n, p);
}

void LogicRowTarget(LogicOp op, const uint8_t* a, const uint8_t* b, uint8_t* d, size_t bytes,
                    const BytePattern& p) {
  switch (op) {
    case LogicOp::kAnd: return LogicRowOp<LogicOp::kAnd>(a, b, d, bytes, p);
    case LogicOp::kOr: return LogicRowOp<LogicOp::kOr>(a, b, d, bytes, p);
    case LogicOp::kXor: return LogicRowOp<LogicOp::kXor>(a, b, d, bytes, p);
  }
}

// ---------------------------------------------------------------- shifts

// Counts arrive cut to the lane width. The lanes' own shifts disagree about
// a count of the full width, so they get width - 1, and a logical shift by
// the full width is then cleared (an arithmetic one already is the sign).
template <ShiftKind kKind, class D, class V = hn::Vec<D>>
HWY_INLINE void CutCounts(D d, V counts, V* cut, V* survives) {
  using T = hn::TFromD<D>;
  const auto width = hn::Set(d, static_cast<T>(8 * sizeof(T)));
  *cut = hn::Min(counts, hn::Sub(width, hn::Set(d, T{1})));
  *survives = kKind == ShiftKind::kRightArithmetic ? hn::Not(hn::Zero(d))
                                                   : hn::VecFromMask(d, hn::Lt(counts, width));
}

// Every lane by one count below the lane width.
template <ShiftKind kKind, class D, class V = hn::Vec<D>>
HWY_INLINE V ShiftSame(D d, V v, int count) {
  if constexpr (kKind == ShiftKind::kLeft) return hn::ShiftLeftSame(v, count);
  if constexpr (kKind == ShiftKind::kRightLogical) return hn::ShiftRightSame(v, count);
  const hn::RebindToSigned<D> di;
  return hn::BitCast(d, hn::ShiftRightSame(hn::BitCast(di, v), count));
}

// Lane by lane, each count below the lane width. Bytes have no shifts of
// their own: each byte is shifted inside its 16-bit pair, by the count of
// the even byte (low) or the odd one (high), and the bits that cross into
// the other byte are cut off.
template <ShiftKind kKind, class D, class V = hn::Vec<D>>
HWY_INLINE V ShiftLanes(D d, V v, V counts) {
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) == 1) {
    const hn::Repartition<uint16_t, D> dw;
    const auto w = hn::BitCast(dw, v);
    const auto c = hn::BitCast(dw, counts);
    const auto lowByte = hn::Set(dw, 0x00FF), highByte = hn::Set(dw, 0xFF00);
    const auto lowCount = hn::And(c, lowByte);
    const auto highCount = hn::ShiftRight<8>(c);
    if constexpr (kKind == ShiftKind::kLeft) {
      return hn::BitCast(d, hn::Or(hn::And(hn::Shl(w, lowCount), lowByte),
                                   hn::Shl(hn::And(w, highByte), highCount)));
    } else {
      static_assert(kKind == ShiftKind::kRightLogical, "no arithmetic shift of bytes");
      return hn::BitCast(d, hn::Or(hn::Shr(hn::And(w, lowByte), lowCount),
                                   hn::And(hn::Shr(w, highCount), highByte)));
    }
  } else if constexpr (kKind == ShiftKind::kLeft) {
    return hn::Shl(v, counts);
  } else if constexpr (kKind == ShiftKind::kRightLogical) {
    return hn::Shr(v, counts);
  } else {
    const hn::RebindToSigned<D> di;
    return hn::BitCast(d, hn::Shr(hn::BitCast(di, v), hn::BitCast(di, counts)));
  }
}

template <ShiftKind kKind, class U>
void ShiftSameRowT(const U* s, U* d, size_t n, const ShiftPattern& p) {
  const hn::ScalableTag<U> du;
  const size_t N = hn::Lanes(du);
  hn::Vec<decltype(du)> cut, survives;
  CutCounts<kKind>(du, hn::Set(du, scalar::LoadAt<U>(p.count, 0)), &cut, &survives);
  const int count = static_cast<int>(hn::GetLane(cut));
  size_t i = 0;
  for (; i + 2 * N <= n; i += 2 * N) {
    const auto v0 = hn::LoadU(du, s + i);
    const auto v1 = hn::LoadU(du, s + i + N);
    hn::StoreU(hn::And(ShiftSame<kKind>(du, v0, count), survives), du, d + i);
    hn::StoreU(hn::And(ShiftSame<kKind>(du, v1, count), survives), du, d + i + N);
  }
  for (; i + N <= n; i += N) {
    hn::StoreU(hn::And(ShiftSame<kKind>(du, hn::LoadU(du, s + i), count), survives), du, d + i);
  }
  scalar::ShiftRow<U>(kKind, s, d, i, n, p);
}

template <ShiftKind kKind, class U, bool kKeep>
void ShiftLanesRowT(const U* s, U* d, size_t n, const ShiftPattern& p) {
  const hn::ScalableTag<U> du;
  hn::Vec<decltype(du)> counts[kRun], survives[kRun], keep[kRun];
  PatternVectors(du, p.count, counts);
  if constexpr (kKeep) PatternVectors(du, p.keep, keep);
  for (size_t k = 0; k < kRun; ++k) CutCounts<kKind>(du, counts[k], &counts[k], &survives[k]);
  const size_t done = StoreVectors<kKeep>(du, d, n, keep, [&](size_t i, size_t k) {
    return hn::And(ShiftLanes<kKind>(du, hn::LoadU(du, s + i), counts[k]), survives[k]);
  });
  scalar::ShiftRow<U>(kKind, s, d, done, n, p);
}

template <ShiftKind kKind, class U>
void ShiftRowT(const void* s, void* d, size_t n, const ShiftPattern& p) {
  const auto* src = static_cast<const U*>(s);
  auto* dst = static_cast<U*>(d);
  if (p.uniform) return ShiftSameRowT<kKind, U>(src, dst, n, p);
  if (p.keeps) return ShiftLanesRowT<kKind, U, true>(src, dst, n, p);
  ShiftLanesRowT<kKind, U, false>(src, dst, n, p);
}

void ShiftRowTarget(ShiftKind kind, int elemBytes, const void* s, void* d, size_t elements,
                    const ShiftPattern& p) {
  switch (kind) {
    case ShiftKind::kLeft:
      if (elemBytes == 1) return ShiftRowT<ShiftKind::kLeft, uint8_t>(s, d, elements, p);
      if (elemBytes == 2) return ShiftRowT<ShiftKind::kLeft, uint16_t>(s, d, elements, p);
      if (elemBytes == 4) return ShiftRowT<ShiftKind::kLeft, uint32_t>(s, d, elements, p);
      break;
    case ShiftKind::kRightLogical:
      if (elemBytes == 1) return ShiftRowT<ShiftKind::kRightLogical, uint8_t>(s, d, elements, p);
      if (elemBytes == 2) return ShiftRowT<ShiftKind::kRightLogical, uint16_t>(s, d, elements, p);
      break;
    case ShiftKind::kRightArithmetic:
      if (elemBytes == 2) return ShiftRowT<ShiftKind::kRightArithmetic, uint16_t>(s, d, elements, p);
      if (elemBytes == 4) return ShiftRowT<ShiftKind::kRightArithmetic, uint32_t>(s, d, elements, p);
      break;
  }
  scalar::ShiftRowAny(kind, elemBytes, s, d, 0, elements, p);
}

#endif

}  // namespace pel::logic::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::logic {

HWY_EXPORT(LogicRowTarget);
HWY_EXPORT(ShiftRowTarget);

void LogicRow(LogicOp op, const uint8_t* a, const uint8_t* b, uint8_t* d, size_t bytes,
              const BytePattern& p) {
  HWY_DYNAMIC_DISPATCH(LogicRowTarget)(op, a, b, d, bytes, p);
}

void ShiftRow(ShiftKind kind, int elemBytes, const void* s, void* d, size_t elements,
              const ShiftPattern& p) {
  HWY_DYNAMIC_DISPATCH(ShiftRowTarget)(kind, elemBytes, s, d, elements, p);
}

}  // namespace pel::logic
#endif
