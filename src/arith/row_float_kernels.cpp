// Vector row kernels of the arithmetic that goes through single precision:
// 32f Add, Sub, Mul and Div, integer Div and Div_Round, integer DivC, Sqrt,
// and the 16s Abs. Compiled once per instruction set by Highway; the
// baseline target runs the scalar reference.
//
// Every lane is computed alone, with the operations of the scalar reference
// in its order and never fused, so every vector width gives its bytes. The
// one structure that spans lanes is the division's groups of eight: a block
// of whole groups is loaded, and only when one of its divisors is zero are
// the groups told apart (through the mask bits).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/row_float_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <cstring>
#include <limits>
#include <type_traits>

#include "arith/row_kernels.h"
#include "arith/row_scalar.h"
#include "hwy/highway.h"
#include "arith/row_common-inl.h"
#include "core/narrow-inl.h"

HWY_BEFORE_NAMESPACE();
namespace pel::arith::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR

using DF = hn::ScalableTag<float>;
using DI = hn::RebindToSigned<DF>;
using VF = hn::Vec<DF>;
using MF = hn::Mask<DF>;
constexpr size_t kLanes = hn::MaxLanes(DF());
// Vectors a block of whole groups of eight takes.
constexpr size_t kGroupVectors = kLanes >= 8 ? 1 : 8 / kLanes;

// ---- The reciprocal of the scalar reference, lane for lane -------------------------

HWY_INLINE VF RecipEstimate(VF d) {
  const DF df;
  const DI di;
  const auto bits = hn::BitCast(di, d);
  const auto a = hn::And(bits, hn::Set(di, 0x7FFFFFFF));
  const auto sign = hn::Xor(bits, a);
  const auto af = hn::BitCast(df, a);
  const auto two = hn::Set(df, 2.0f);
  auto y = hn::BitCast(df, hn::Sub(hn::Set(di, 0x7EF311C3), a));
  for (int k = 0; k < 2; ++k) y = hn::Mul(y, hn::Sub(two, hn::Mul(af, y)));
  auto r = hn::Or(hn::BitCast(di, y), sign);
  r = hn::IfThenElse(hn::Gt(a, hn::Set(di, 0x7E7FFFFF)), sign, r);
  r = hn::IfThenElse(hn::Lt(a, hn::Set(di, 0x00800000)), hn::Or(sign, hn::Set(di, 0x7F800000)), r);
  return hn::IfThenElse(hn::RebindMask(df, hn::Gt(a, hn::Set(di, 0x7F800000))), d,
                        hn::BitCast(df, r));
}

HWY_INLINE VF RecipDiv32f(VF n, VF d) {
  const DF df;
  const auto r0 = RecipEstimate(d);
  const auto dd = hn::IfThenZeroElse(hn::Eq(r0, hn::Zero(df)), d);
  const auto e = hn::Sub(hn::Set(df, 1.0f), hn::Mul(dd, r0));
  const auto u = hn::Mul(hn::Add(hn::Mul(e, r0), r0), e);
  return hn::Mul(hn::Add(r0, u), n);
}

// The same for divisors whose magnitude a lies in [2^-126, 2^126), the
// common case, where the estimate has none of its range cases and is not 0.
HWY_INLINE VF RecipDivOrdinary(VF n, VF d, hn::Vec<DI> a) {
  const DF df;
  const DI di;
  const auto two = hn::Set(df, 2.0f);
  const auto af = hn::BitCast(df, a);
  auto y = hn::BitCast(df, hn::Sub(hn::Set(di, 0x7EF311C3), a));
  for (int k = 0; k < 2; ++k) y = hn::Mul(y, hn::Sub(two, hn::Mul(af, y)));
  const auto r0 = hn::BitCast(df, hn::Or(hn::BitCast(di, y), hn::Xor(hn::BitCast(di, d), a)));
  const auto e = hn::Sub(hn::Set(df, 1.0f), hn::Mul(d, r0));
  const auto u = hn::Mul(hn::Add(hn::Mul(e, r0), r0), e);
  return hn::Mul(hn::Add(r0, u), n);
}


// The 8u quotient for positive normal divisors (integers times powers of
// two), where the estimate needs none of its range cases. Its last step,
// q1 + (e*e)*q1, is left out: with 17 correct bits in r0, |e| < 7e-6, so
// (e*e)*q1 is below a quarter of q1's last place and adding it rounds back
// to q1 (n = 0 gives 0 either way).
HWY_INLINE VF RecipQuotient8u(VF n, VF d) {
  const DF df;
  const DI di;
  const auto two = hn::Set(df, 2.0f);
  auto r0 = hn::BitCast(df, hn::Sub(hn::Set(di, 0x7EF311C3), hn::BitCast(di, d)));
  for (int k = 0; k < 2; ++k) r0 = hn::Mul(r0, hn::Sub(two, hn::Mul(d, r0)));
  const auto e = hn::Sub(hn::Set(df, 1.0f), hn::Mul(d, r0));
  const auto q0 = hn::Mul(n, r0);
  return hn::Add(q0, hn::Mul(e, q0));
}

// The lanes of the groups of eight that hold a zero divisor, for a block of
// kGroupVectors vectors.
HWY_INLINE void GroupsWithZero(const MF* zero, MF* slow) {
  const DF df;
  uint64_t bits = 0;
  for (size_t k = 0; k < kGroupVectors; ++k) {
    uint8_t b[8] = {};
    hn::StoreMaskBits(df, zero[k], b);
    uint64_t v;
    std::memcpy(&v, b, sizeof v);
    bits |= (v & ((uint64_t{1} << kLanes) - 1)) << (k * kLanes);
  }
  uint64_t groups = 0;
  for (size_t g = 0; g < kGroupVectors * kLanes; g += 8) {
    if ((bits >> g) & 0xFF) groups |= uint64_t{0xFF} << g;
  }
  for (size_t k = 0; k < kGroupVectors; ++k) {
    const uint64_t part = groups >> (k * kLanes);
    uint8_t b[8];
    std::memcpy(b, &part, sizeof b);
    slow[k] = hn::LoadMaskBits(df, b);
  }
}

// ---- 32f --------------------------------------------------------------------------------

template <Op op>
size_t FloatBinaryLoop(const float* s1, const float* s2, Periods p, Cursor& cursor, float* d,
                       size_t n, bool alpha) {
  const DF df;
  const auto colour = ColourLanes(df);
  Cursor at = cursor;  // in a register: the stores may alias the caller's
  size_t i = 0;
  auto one = [&](size_t k) {
    const auto a = hn::LoadU(df, s1 + at.a + k);
    const auto b = hn::LoadU(df, s2 + at.b + k);
    const auto v = op == kAdd ? hn::Add(a, b) : op == kSub ? hn::Sub(b, a) : hn::Mul(a, b);
    StoreLanes(df, v, d + i + k, alpha, colour);
  };
  // Four vectors a step while they fit (a period holds whole steps of four:
  // the cursor starts each row at 0), then one.
  for (; i + 4 * kLanes <= n; i += 4 * kLanes, at.Advance(4 * kLanes, p.a, p.b)) {
    for (size_t k = 0; k < 4 * kLanes; k += kLanes) one(k);
  }
  for (; i + kLanes <= n; i += kLanes, at.Advance(kLanes, p.a, p.b)) one(0);
  cursor = at;
  return i;
}

// One block of whole groups of eight whose divisors are not all ordinary:
// groups with a zero divide exactly and give the zero-divisor values.
HWY_INLINE void FloatDivBlock(const VF* dv, const VF* nv, float* d, bool alpha, MF colour,
                              bool* marked) {
  const DF df;
  const auto one = hn::Set(df, 1.0f);
  const auto zeroV = hn::Zero(df);
  const auto inf = hn::Set(df, std::numeric_limits<float>::infinity());
  const auto qnan = hn::BitCast(df, hn::Set(DI(), static_cast<int32_t>(scalar::kQuietNaN)));
  MF zero[kGroupVectors];
  bool any = false;
  for (size_t k = 0; k < kGroupVectors; ++k) {
    zero[k] = hn::Eq(dv[k], zeroV);
    any = any || !hn::AllFalse(df, zero[k]);
  }
  if (!any) {
    for (size_t k = 0; k < kGroupVectors; ++k) {
      StoreLanes(df, RecipDiv32f(nv[k], dv[k]), d + k * kLanes, alpha, colour);
    }
    return;
  }
  *marked = true;
  MF slow[kGroupVectors];
  GroupsWithZero(zero, slow);
  for (size_t k = 0; k < kGroupVectors; ++k) {
    const auto exact = hn::Div(nv[k], hn::IfThenElse(zero[k], one, dv[k]));
    const auto byZero = hn::IfThenElse(
        hn::Gt(nv[k], zeroV), inf, hn::IfThenElse(hn::Lt(nv[k], zeroV), hn::Neg(inf), qnan));
    const auto special = hn::IfThenElse(zero[k], byZero, qnan);
    const auto bad = hn::Or(zero[k], hn::IsNaN(dv[k]));
    const auto v = hn::IfThenElse(slow[k], hn::IfThenElse(bad, special, exact),
                                  RecipDiv32f(nv[k], dv[k]));
    StoreLanes(df, v, d + k * kLanes, alpha, colour);
  }
}

// One step of four vectors that holds a divisor out of the ordinary: each
// block of whole groups goes alone. Kept out of line and reloading its
// operands, so that the common step keeps them in registers.
HWY_NOINLINE void FloatDivStepSlow(const float* s1, const float* s2, float* d, bool alpha,
                                   bool* marked) {
  const DF df;
  const auto colour = ColourLanes(df);
  const auto one = hn::Set(df, 1.0f);
  constexpr size_t kV = 4;
  VF dv[kV], nv[kV];
  for (size_t k = 0; k < kV; ++k) {
    dv[k] = hn::LoadU(df, s1 + k * kLanes);
    if (alpha) dv[k] = hn::IfThenElse(colour, dv[k], one);
    nv[k] = hn::LoadU(df, s2 + k * kLanes);
  }
  for (size_t k = 0; k < kV; k += kGroupVectors) {
    FloatDivBlock(dv + k, nv + k, d + k * kLanes, alpha, colour, marked);
  }
}

// Four vectors a step; when every divisor is ordinary (the common case) all
// four take the short path, else the step goes to FloatDivStepSlow. Nothing
// of a step is stored before its divisors are checked, so the slow step may
// reload sources that the destination overwrites (in place).
template <bool kAlpha>
size_t FloatDivLoop(const float* s1, const float* s2, float* d, size_t n, bool* marked) {
  const DF df;
  const DI di;
  const hn::RebindToUnsigned<DF> du;
  const auto colour = ColourLanes(df);
  const auto one = hn::Set(df, 1.0f);
  constexpr size_t kV = 4;  // a multiple of kGroupVectors
  size_t i = 0;
  for (; i + kV * kLanes <= n; i += kV * kLanes) {
    VF dv[kV], nv[kV];
    hn::Vec<DI> a[kV];
    auto ordinary = hn::Set(du, 0u);
    for (size_t k = 0; k < kV; ++k) {
      dv[k] = hn::LoadU(df, s1 + i + k * kLanes);
      nv[k] = hn::LoadU(df, s2 + i + k * kLanes);
      if constexpr (kAlpha) dv[k] = hn::IfThenElse(colour, dv[k], one);
      a[k] = hn::And(hn::BitCast(di, dv[k]), hn::Set(di, 0x7FFFFFFF));
      // Magnitudes in [2^-126, 2^126): a - 2^-126 below 0x7E000000 unsigned.
      ordinary = hn::Max(ordinary, hn::BitCast(du, hn::Sub(a[k], hn::Set(di, 0x00800000))));
    }
    if (HWY_LIKELY(hn::AllTrue(du, hn::Lt(ordinary, hn::Set(du, 0x7E000000u))))) {
      for (size_t k = 0; k < kV; ++k) {
        StoreLanes(df, RecipDivOrdinary(nv[k], dv[k], a[k]), d + i + k * kLanes, kAlpha, colour);
      }
      continue;
    }
    FloatDivStepSlow(s1 + i, s2 + i, d + i, kAlpha, marked);
  }
  return i;
}

// ---- Integers through single precision ----------------------------------------------

// A float quotient to int32 by rounding mode. The caller keeps quotients
// within the int32 range (narrowing then saturates), so the conversion needs
// none of Highway's fix-ups for out-of-range values.
HWY_INLINE hn::Vec<DI> RoundByMode(VF q, int mode) {
  const DF df;
  const DI di;
  if (mode == 1) {
#if HWY_TARGET <= HWY_AVX3
    return hn::Vec<DI>{_mm512_cvtps_epi32(q.raw)};
#elif HWY_TARGET == HWY_AVX2
    return hn::Vec<DI>{_mm256_cvtps_epi32(q.raw)};
#else
    return hn::Vec<DI>{_mm_cvtps_epi32(q.raw)};
#endif
  }
  if (mode == 0) return hn::ConvertTo(di, q);
  return hn::ConvertTo(di, hn::Add(q, hn::CopySign(hn::Set(df, 0.5f), q)));
}

// Four vectors of int32 to 4 x kLanes elements of T with saturation, in
// order, with full-width stores.
template <class T>
HWY_INLINE void Pack4(const hn::Vec<DI>* r, T* d, bool alpha) {
  const hn::ScalableTag<T> dt;
  const auto colour = ColourLanes(dt);
  if constexpr (sizeof(T) == 1) {
    StoreLanes(dt, pel::HWY_NAMESPACE::Narrow4<T>(r[0], r[1], r[2], r[3]), d, alpha, colour);
  } else {
    StoreLanes(dt, pel::HWY_NAMESPACE::Narrow2<T>(r[0], r[1]), d, alpha, colour);
    StoreLanes(dt, pel::HWY_NAMESPACE::Narrow2<T>(r[2], r[3]), d + 2 * kLanes, alpha, colour);
  }
}

// Integer division, four vectors of lanes a step. In 8u rows the lanes
// divide through the reciprocal unless their group of eight holds a zero
// divisor; the other types divide exactly. kNearest: rounding mode 1, the
// mode of Div.
template <class T, bool kNearest>
size_t IntDivLoop(const T* s1, const T* s2, T* d, size_t n, int s, int mode, bool alpha,
                  bool* marked) {
  const DF df;
  const DI di;
  const hn::Rebind<T, DF> dn;
  constexpr bool kGroups = std::is_same_v<T, uint8_t>;
  constexpr size_t kV = 4;  // a multiple of kGroupVectors
  const auto colourF = ColourLanes(df);
  const auto one = hn::Set(df, 1.0f);
  const auto zeroF = hn::Zero(df);
  const scalar::DivScale scale(s);
  const bool scaled = s != 0;
  const auto numScale = hn::Set(df, scale.dividend);
  const auto denScale = hn::Set(df, scale.divisor);
  // With s >= 0 every quotient lies within the type's range but for a half,
  // which narrowing saturates; a shifted dividend can exceed any range.
  const bool clamp = s < 0;
  const auto lo = hn::Set(df, static_cast<float>(hwy::LimitsMin<T>()));
  const auto hi = hn::Set(df, static_cast<float>(hwy::LimitsMax<T>()));
  const auto maxI = hn::Set(di, static_cast<int32_t>(hwy::LimitsMax<T>()));
  const auto minI = hn::Set(di, static_cast<int32_t>(hwy::LimitsMin<T>()));
  auto finish = [&](VF q) {
    if (clamp) q = hn::Min(hn::Max(q, lo), hi);
    return RoundByMode(q, kNearest ? 1 : mode);
  };
  // A local flag: a store through the pointer would be reloaded after every
  // store of 8u results, which may alias it.
  bool met = false;
  size_t i = 0;
  for (; i + kV * kLanes <= n; i += kV * kLanes) {
    hn::Vec<DI> nI[kV], r[kV];
    VF num[kV], den[kV];
    MF zero[kV];
    for (size_t k = 0; k < kV; ++k) {
      den[k] = hn::ConvertTo(df, hn::PromoteTo(di, hn::LoadU(dn, s1 + i + k * kLanes)));
      if (alpha) den[k] = hn::IfThenElse(colourF, den[k], one);
      nI[k] = hn::PromoteTo(di, hn::LoadU(dn, s2 + i + k * kLanes));
      num[k] = hn::ConvertTo(df, nI[k]);
      zero[k] = hn::Eq(den[k], zeroF);
      if (scaled) {
        num[k] = hn::Mul(num[k], numScale);
        den[k] = hn::Mul(den[k], denScale);
      }
    }
    // Blocks of whole groups decide alone: a zero divisor is rare in most
    // images, and one block's slow path leaves the others fast.
    for (size_t k = 0; k < kV; k += kGroupVectors) {
      MF anyZero = zero[k];
      if (kGroupVectors == 2) anyZero = hn::Or(anyZero, zero[k + 1]);
      if (HWY_LIKELY(hn::AllFalse(df, anyZero))) {
        for (size_t j = k; j < k + kGroupVectors; ++j) {
          r[j] = finish(kGroups ? RecipQuotient8u(num[j], den[j]) : hn::Div(num[j], den[j]));
        }
        continue;
      }
      met = true;
      MF slow[kGroupVectors];
      if constexpr (kGroups) GroupsWithZero(zero + k, slow);
      for (size_t j = k; j < k + kGroupVectors; ++j) {
        den[j] = hn::IfThenElse(zero[j], one, den[j]);
        VF q = hn::Div(num[j], den[j]);
        if constexpr (kGroups) q = hn::IfThenElse(slow[j - k], q, RecipQuotient8u(num[j], den[j]));
        const auto byZero = hn::IfThenElse(
            hn::Gt(nI[j], hn::Zero(di)), maxI,
            hn::IfThenElse(hn::Lt(nI[j], hn::Zero(di)), minI, hn::Zero(di)));
        r[j] = hn::IfThenElse(hn::RebindMask(di, zero[j]), byZero, finish(q));
      }
    }
    Pack4<T>(r, d + i, alpha);
  }
  *marked = met;
  return i;
}

// 8u quotients of one vector that holds a zero divisor (one vector is a
// block of whole groups of eight here): its groups with a zero divide
// exactly, the others take the reciprocal, and zero divisors give 255 or 0.
// Inline: a call would have every vector register saved around it.
HWY_INLINE hn::Vec<DI> Quotients8uWithZero(VF num, VF den, int mode, bool clamp) {
  const DF df;
  const DI di;
  const MF zero = hn::Eq(den, hn::Zero(df));
  MF slow;
#if HWY_TARGET <= HWY_AVX3
  if constexpr (kLanes == 16) {
    // Two groups of eight: each half of the mask spreads to its whole half.
    const unsigned bits = zero.raw;
    slow = MF{static_cast<__mmask16>(((bits & 0xFFu) ? 0xFFu : 0u) | ((bits & 0xFF00u) ? 0xFF00u : 0u))};
  } else
#endif
  if constexpr (kLanes == 8) {
    slow = hn::FirstN(df, 8);  // the vector is one group
  } else {
    GroupsWithZero(&zero, &slow);
  }
  den = hn::IfThenElse(zero, hn::Set(df, 1.0f), den);
  VF q = hn::IfThenElse(slow, hn::Div(num, den), RecipQuotient8u(num, den));
  if (clamp) q = hn::Min(q, hn::Set(df, 255.0f));
  const auto byZero = hn::IfThenElse(hn::RebindMask(di, hn::Gt(num, hn::Zero(df))), hn::Set(di, 255), hn::Zero(di));
  return hn::IfThenElse(hn::RebindMask(di, zero), byZero, RoundByMode(q, mode));
}

// 8u division four vectors a step, with the per-call choices (AC4 lanes,
// which operand the scale factor shifts, the clamp of a shifted dividend)
// fixed at compile time. Vectors of at least eight lanes: each is a block of
// whole groups and decides alone.
template <bool kNearest, bool kAlpha, int kShift>  // kShift: the sign of s
size_t Div8uLoop(const uint8_t* s1, const uint8_t* s2, uint8_t* d, size_t n, int s, int mode,
                 bool* marked) {
  const DF df;
  const DI di;
  const hn::Rebind<uint8_t, DF> dn;
  constexpr size_t kV = 4;
  const auto colourF = ColourLanes(df);
  const auto one = hn::Set(df, 1.0f);
  const auto zeroF = hn::Zero(df);
  const scalar::DivScale scale(s);
  const auto numScale = hn::Set(df, scale.dividend);
  const auto denScale = hn::Set(df, scale.divisor);
  const auto hi = hn::Set(df, 255.0f);
  const int m = kNearest ? 1 : mode;
  bool met = false;
  size_t i = 0;
  for (; i + kV * kLanes <= n; i += kV * kLanes) {
    // Every load of the step first: rows that come from memory rather than
    // cache keep more of them in flight.
    VF den[kV], num[kV];
    for (size_t k = 0; k < kV; ++k) {
      den[k] = hn::ConvertTo(df, hn::PromoteTo(di, hn::LoadU(dn, s1 + i + k * kLanes)));
      num[k] = hn::ConvertTo(df, hn::PromoteTo(di, hn::LoadU(dn, s2 + i + k * kLanes)));
    }
    hn::Vec<DI> r[kV];
    for (size_t k = 0; k < kV; ++k) {
      if constexpr (kAlpha) den[k] = hn::IfThenElse(colourF, den[k], one);
      if constexpr (kShift < 0) num[k] = hn::Mul(num[k], numScale);
      if constexpr (kShift > 0) den[k] = hn::Mul(den[k], denScale);
      if (HWY_UNLIKELY(!hn::AllFalse(df, hn::Eq(den[k], zeroF)))) {
        met = true;
        r[k] = Quotients8uWithZero(num[k], den[k], m, kShift < 0);
        continue;
      }
      VF q = RecipQuotient8u(num[k], den[k]);
      // A shifted dividend can exceed any range; otherwise every quotient
      // lies within 255 but for a half, which narrowing saturates.
      if constexpr (kShift < 0) q = hn::Min(q, hi);
      r[k] = RoundByMode(q, m);
    }
    Pack4<uint8_t>(r, d + i, kAlpha);
  }
  *marked = met;
  return i;
}

template <bool kNearest>
size_t Div8u(const uint8_t* s1, const uint8_t* s2, uint8_t* d, size_t n, int s, int mode, bool alpha,
             bool* marked) {
  if constexpr (kGroupVectors > 1) {
    return IntDivLoop<uint8_t, kNearest>(s1, s2, d, n, s, mode, alpha, marked);
  } else {
    if (alpha) {
      if (s < 0) return Div8uLoop<kNearest, true, -1>(s1, s2, d, n, s, mode, marked);
      if (s > 0) return Div8uLoop<kNearest, true, 1>(s1, s2, d, n, s, mode, marked);
      return Div8uLoop<kNearest, true, 0>(s1, s2, d, n, s, mode, marked);
    }
    if (s < 0) return Div8uLoop<kNearest, false, -1>(s1, s2, d, n, s, mode, marked);
    if (s > 0) return Div8uLoop<kNearest, false, 1>(s1, s2, d, n, s, mode, marked);
    return Div8uLoop<kNearest, false, 0>(s1, s2, d, n, s, mode, marked);
  }
}

template <class T>
size_t IntScaleLoop(const T* src, const float* f, size_t period, Cursor& cursor, T* d, size_t n,
                    bool alpha) {
  const DF df;
  const DI di;
  const hn::Rebind<T, DF> dn;
  const auto colour = ColourLanes(dn);
  const auto lo = hn::Set(df, static_cast<float>(hwy::LimitsMin<T>()));
  const auto hi = hn::Set(df, static_cast<float>(hwy::LimitsMax<T>()));
  Cursor at = cursor;  // in a register: the stores may alias the caller's
  size_t i = 0;
  for (; i + kLanes <= n; i += kLanes, at.Advance(kLanes, 0, period)) {
    const auto x = hn::ConvertTo(df, hn::PromoteTo(di, hn::LoadU(dn, src + i)));
    const auto r = RoundByMode(hn::Min(hn::Max(hn::Mul(x, hn::LoadU(df, f + at.b)), lo), hi), 1);
    StoreLanes(dn, hn::DemoteTo(dn, r), d + i, alpha, colour);
  }
  cursor = at;
  return i;
}

#endif

// ---- Dispatched entries ---------------------------------------------------------------

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR
#define PEL_VECTOR(expr) size_t{0}
#else
#define PEL_VECTOR(expr) (expr)
#endif

void FloatBinaryRowTarget(Op op, Operand src1, Operand src2, float* d, size_t n, bool alpha) {
  const auto* s1 = static_cast<const float*>(src1.p);
  const auto* s2 = static_cast<const float*>(src2.p);
  const Periods p{src1.period, src2.period};
  Cursor at;
  const size_t done = op == kAdd   ? PEL_VECTOR(FloatBinaryLoop<kAdd>(s1, s2, p, at, d, n, alpha))
                      : op == kSub ? PEL_VECTOR(FloatBinaryLoop<kSub>(s1, s2, p, at, d, n, alpha))
                                   : PEL_VECTOR(FloatBinaryLoop<kMul>(s1, s2, p, at, d, n, alpha));
  scalar::FloatBinaryRow(op, s1 + at.a, p.a, s2 + at.b, p.b, d + done, n - done, alpha);
}

bool FloatDivRowTarget(const float* s1, const float* s2, float* d, size_t n, bool alpha) {
  bool marked = false;
  const size_t done = alpha ? PEL_VECTOR(FloatDivLoop<true>(s1, s2, d, n, &marked))
                            : PEL_VECTOR(FloatDivLoop<false>(s1, s2, d, n, &marked));
  // done is a whole number of groups of eight: the rest keeps its groups.
  return scalar::FloatDivRow(s1 + done, s2 + done, d + done, n - done, alpha) || marked;
}

bool IntDivRowTarget(Elem e, const void* src1, const void* src2, void* dst, size_t n, int s,
                     int mode, bool alpha) {
  return VisitElem(e, [&](auto t) {
    using T = decltype(t);
    if constexpr (std::is_integral_v<T>) {
      const T* s1 = static_cast<const T*>(src1);
      const T* s2 = static_cast<const T*>(src2);
      T* d = static_cast<T*>(dst);
      bool marked = false;
      size_t done;
      if constexpr (std::is_same_v<T, uint8_t>) {
        done = mode == 1 ? PEL_VECTOR((Div8u<true>(s1, s2, d, n, s, mode, alpha, &marked)))
                         : PEL_VECTOR((Div8u<false>(s1, s2, d, n, s, mode, alpha, &marked)));
      } else {
        done = mode == 1 ? PEL_VECTOR((IntDivLoop<T, true>(s1, s2, d, n, s, mode, alpha, &marked)))
                         : PEL_VECTOR((IntDivLoop<T, false>(s1, s2, d, n, s, mode, alpha, &marked)));
      }
      return scalar::IntDivRow<T>(s1 + done, s2 + done, d + done, n - done, s, mode, alpha) ||
             marked;
    }
    return false;
  });
}

void IntScaleRowTarget(Elem e, const void* src, Operand factor, void* dst, size_t n, bool alpha) {
  VisitElem(e, [&](auto t) {
    using T = decltype(t);
    if constexpr (std::is_integral_v<T>) {
      const T* s = static_cast<const T*>(src);
      const auto* f = static_cast<const float*>(factor.p);
      T* d = static_cast<T*>(dst);
      Cursor at;
      const size_t done = PEL_VECTOR(IntScaleLoop<T>(s, f, factor.period, at, d, n, alpha));
      scalar::IntScaleRow<T>(s + done, f + at.b, factor.period, d + done, n - done, alpha);
    }
  });
}

bool SqrtRowTarget(const float* src, float* d, size_t n) {
  size_t i = 0;
  bool negative = false;
#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR
  const DF df;
  for (; i + kLanes <= n; i += kLanes) {
    const auto v = hn::LoadU(df, src + i);
    negative = negative || !hn::AllFalse(df, hn::Lt(v, hn::Zero(df)));
    hn::StoreU(hn::Sqrt(v), df, d + i);
  }
#endif
  return scalar::SqrtRow(src + i, d + i, n - i) || negative;
}

void AbsRowTarget(const int16_t* src, int16_t* d, size_t n) {
  size_t i = 0;
#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR
  const hn::ScalableTag<int16_t> dt;
  const size_t N = hn::Lanes(dt);
  for (; i + N <= n; i += N) {
    hn::StoreU(hn::Abs(hn::Max(hn::LoadU(dt, src + i), hn::Set(dt, int16_t{-32767}))), dt, d + i);
  }
#endif
  scalar::AbsRow(src + i, d + i, n - i);
}

#undef PEL_VECTOR

}  // namespace pel::arith::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::arith {

HWY_EXPORT(FloatBinaryRowTarget);
HWY_EXPORT(FloatDivRowTarget);
HWY_EXPORT(IntDivRowTarget);
HWY_EXPORT(IntScaleRowTarget);
HWY_EXPORT(SqrtRowTarget);
HWY_EXPORT(AbsRowTarget);

void FloatBinaryRow(Op op, Operand src1, Operand src2, float* dst, size_t lanes, bool alpha) {
  HWY_DYNAMIC_DISPATCH(FloatBinaryRowTarget)(op, src1, src2, dst, lanes, alpha);
}
bool FloatDivRow(const float* src1, const float* src2, float* dst, size_t lanes, bool alpha) {
  return HWY_DYNAMIC_DISPATCH(FloatDivRowTarget)(src1, src2, dst, lanes, alpha);
}
bool IntDivRow(Elem e, const void* src1, const void* src2, void* dst, size_t lanes, int s,
               int mode, bool alpha) {
  return HWY_DYNAMIC_DISPATCH(IntDivRowTarget)(e, src1, src2, dst, lanes, s, mode, alpha);
}
void IntScaleRow(Elem e, const void* src, Operand factor, void* dst, size_t lanes, bool alpha) {
  HWY_DYNAMIC_DISPATCH(IntScaleRowTarget)(e, src, factor, dst, lanes, alpha);
}
bool SqrtRow(const float* src, float* dst, size_t lanes) {
  return HWY_DYNAMIC_DISPATCH(SqrtRowTarget)(src, dst, lanes);
}
void AbsRow(const int16_t* src, int16_t* dst, size_t lanes) {
  HWY_DYNAMIC_DISPATCH(AbsRowTarget)(src, dst, lanes);
}

}  // namespace pel::arith
#endif
