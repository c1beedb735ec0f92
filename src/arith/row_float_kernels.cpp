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

HWY_INLINE VF RecipQuotient8u(VF n, VF d) {
  const DF df;
  const auto r0 = RecipEstimate(d);
  const auto e = hn::Sub(hn::Set(df, 1.0f), hn::Mul(d, r0));
  const auto q0 = hn::Mul(n, r0);
  const auto q1 = hn::Add(q0, hn::Mul(e, q0));
  return hn::Add(q1, hn::Mul(hn::Mul(e, e), q1));
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
size_t FloatBinaryLoop(const float* s1, const float* s2, float* d, size_t n, bool alpha) {
  const DF df;
  const auto colour = ColourLanes(df);
  size_t i = 0;
  for (; i + kLanes <= n; i += kLanes) {
    const auto a = hn::LoadU(df, s1 + i);
    const auto b = hn::LoadU(df, s2 + i);
    const auto v = op == kAdd ? hn::Add(a, b) : op == kSub ? hn::Sub(b, a) : hn::Mul(a, b);
    StoreLanes(df, v, d + i, alpha, colour);
  }
  return i;
}

size_t FloatDivLoop(const float* s1, const float* s2, float* d, size_t n, bool alpha,
                    bool* marked) {
  const DF df;
  const auto colour = ColourLanes(df);
  const auto one = hn::Set(df, 1.0f);
  const auto zeroV = hn::Zero(df);
  const auto inf = hn::Set(df, std::numeric_limits<float>::infinity());
  const auto qnan = hn::BitCast(df, hn::Set(DI(), static_cast<int32_t>(scalar::kQuietNaN)));
  constexpr size_t kBlock = kGroupVectors * kLanes;
  size_t i = 0;
  for (; i + kBlock <= n; i += kBlock) {
    VF dv[kGroupVectors], nv[kGroupVectors];
    MF zero[kGroupVectors];
    bool any = false;
    for (size_t k = 0; k < kGroupVectors; ++k) {
      dv[k] = hn::LoadU(df, s1 + i + k * kLanes);
      if (alpha) dv[k] = hn::IfThenElse(colour, dv[k], one);
      nv[k] = hn::LoadU(df, s2 + i + k * kLanes);
      zero[k] = hn::Eq(dv[k], zeroV);
      any = any || !hn::AllFalse(df, zero[k]);
    }
    if (!any) {
      for (size_t k = 0; k < kGroupVectors; ++k) {
        StoreLanes(df, RecipDiv32f(nv[k], dv[k]), d + i + k * kLanes, alpha, colour);
      }
      continue;
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
      StoreLanes(df, v, d + i + k * kLanes, alpha, colour);
    }
  }
  return i;
}

// ---- Integers through single precision ----------------------------------------------

// A clamped float quotient to int32 by rounding mode.
HWY_INLINE hn::Vec<DI> RoundByMode(VF q, VF lo, VF hi, int mode) {
  const DF df;
  const DI di;
  q = hn::Min(hn::Max(q, lo), hi);
  if (mode == 1) return hn::NearestInt(q);
  if (mode == 0) return hn::ConvertTo(di, q);
  return hn::ConvertTo(di, hn::Add(q, hn::CopySign(hn::Set(df, 0.5f), q)));
}

template <class T>
size_t IntDivLoop(const T* s1, const T* s2, T* d, size_t n, int s, int mode, bool alpha,
                  bool* marked) {
  const DF df;
  const DI di;
  const hn::Rebind<T, DF> dn;
  constexpr bool kGroups = std::is_same_v<T, uint8_t>;
  constexpr size_t kVectors = kGroups ? kGroupVectors : 1;
  constexpr size_t kBlock = kVectors * kLanes;
  const auto colourF = ColourLanes(df);
  const auto colourN = ColourLanes(dn);
  const auto one = hn::Set(df, 1.0f);
  const auto zeroF = hn::Zero(df);
  const scalar::DivScale scale(s);
  const auto numScale = hn::Set(df, scale.dividend);
  const auto denScale = hn::Set(df, scale.divisor);
  const auto lo = hn::Set(df, static_cast<float>(hwy::LimitsMin<T>()));
  const auto hi = hn::Set(df, static_cast<float>(hwy::LimitsMax<T>()));
  const auto maxI = hn::Set(di, static_cast<int32_t>(hwy::LimitsMax<T>()));
  const auto minI = hn::Set(di, static_cast<int32_t>(hwy::LimitsMin<T>()));
  size_t i = 0;
  for (; i + kBlock <= n; i += kBlock) {
    hn::Vec<DI> nI[kVectors];
    VF num[kVectors], den[kVectors];
    MF zero[kVectors];
    bool any = false;
    for (size_t k = 0; k < kVectors; ++k) {
      auto dF = hn::ConvertTo(df, hn::PromoteTo(di, hn::LoadU(dn, s1 + i + k * kLanes)));
      if (alpha) dF = hn::IfThenElse(colourF, dF, one);
      nI[k] = hn::PromoteTo(di, hn::LoadU(dn, s2 + i + k * kLanes));
      zero[k] = hn::Eq(dF, zeroF);
      any = any || !hn::AllFalse(df, zero[k]);
      num[k] = hn::Mul(hn::ConvertTo(df, nI[k]), numScale);
      den[k] = hn::Mul(dF, denScale);
    }
    MF slow[kVectors];
    if constexpr (kGroups) {
      if (any) GroupsWithZero(zero, slow);
    }
    for (size_t k = 0; k < kVectors; ++k) {
      VF q;
      if constexpr (kGroups) {
        q = RecipQuotient8u(num[k], den[k]);
        if (any) q = hn::IfThenElse(slow[k], hn::Div(num[k], hn::IfThenElse(zero[k], one, den[k])), q);
      } else {
        q = hn::Div(num[k], hn::IfThenElse(zero[k], one, den[k]));
      }
      auto r = RoundByMode(q, lo, hi, mode);
      if (any) {
        const auto byZero = hn::IfThenElse(
            hn::Gt(nI[k], hn::Zero(di)), maxI,
            hn::IfThenElse(hn::Lt(nI[k], hn::Zero(di)), minI, hn::Zero(di)));
        r = hn::IfThenElse(hn::RebindMask(di, zero[k]), byZero, r);
      }
      StoreLanes(dn, hn::DemoteTo(dn, r), d + i + k * kLanes, alpha, colourN);
    }
    *marked = *marked || any;
  }
  return i;
}

template <class T>
size_t IntScaleLoop(const T* src, const float* f, T* d, size_t n, bool alpha) {
  const DF df;
  const DI di;
  const hn::Rebind<T, DF> dn;
  const auto colour = ColourLanes(dn);
  const auto lo = hn::Set(df, static_cast<float>(hwy::LimitsMin<T>()));
  const auto hi = hn::Set(df, static_cast<float>(hwy::LimitsMax<T>()));
  size_t i = 0;
  for (; i + kLanes <= n; i += kLanes) {
    const auto x = hn::ConvertTo(df, hn::PromoteTo(di, hn::LoadU(dn, src + i)));
    const auto r = RoundByMode(hn::Mul(x, hn::LoadU(df, f + i)), lo, hi, 1);
    StoreLanes(dn, hn::DemoteTo(dn, r), d + i, alpha, colour);
  }
  return i;
}

#endif

// ---- Dispatched entries ---------------------------------------------------------------

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR
#define PEL_VECTOR(expr) size_t{0}
#else
#define PEL_VECTOR(expr) (expr)
#endif

void FloatBinaryRowTarget(Op op, const float* s1, const float* s2, float* d, size_t n,
                          bool alpha) {
  const size_t done = op == kAdd   ? PEL_VECTOR(FloatBinaryLoop<kAdd>(s1, s2, d, n, alpha))
                      : op == kSub ? PEL_VECTOR(FloatBinaryLoop<kSub>(s1, s2, d, n, alpha))
                                   : PEL_VECTOR(FloatBinaryLoop<kMul>(s1, s2, d, n, alpha));
  scalar::FloatBinaryRow(op, s1 + done, s2 + done, d + done, n - done, alpha);
}

bool FloatDivRowTarget(const float* s1, const float* s2, float* d, size_t n, bool alpha) {
  bool marked = false;
  const size_t done = PEL_VECTOR(FloatDivLoop(s1, s2, d, n, alpha, &marked));
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
      const size_t done = PEL_VECTOR(IntDivLoop<T>(s1, s2, d, n, s, mode, alpha, &marked));
      return scalar::IntDivRow<T>(s1 + done, s2 + done, d + done, n - done, s, mode, alpha) ||
             marked;
    }
    return false;
  });
}

void IntScaleRowTarget(Elem e, const void* src, const float* f, void* dst, size_t n, bool alpha) {
  VisitElem(e, [&](auto t) {
    using T = decltype(t);
    if constexpr (std::is_integral_v<T>) {
      const T* s = static_cast<const T*>(src);
      T* d = static_cast<T*>(dst);
      const size_t done = PEL_VECTOR(IntScaleLoop<T>(s, f, d, n, alpha));
      scalar::IntScaleRow<T>(s + done, f + done, d + done, n - done, alpha);
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

void FloatBinaryRow(Op op, const float* src1, const float* src2, float* dst, size_t lanes,
                    bool alpha) {
  HWY_DYNAMIC_DISPATCH(FloatBinaryRowTarget)(op, src1, src2, dst, lanes, alpha);
}
bool FloatDivRow(const float* src1, const float* src2, float* dst, size_t lanes, bool alpha) {
  return HWY_DYNAMIC_DISPATCH(FloatDivRowTarget)(src1, src2, dst, lanes, alpha);
}
bool IntDivRow(Elem e, const void* src1, const void* src2, void* dst, size_t lanes, int s,
               int mode, bool alpha) {
  return HWY_DYNAMIC_DISPATCH(IntDivRowTarget)(e, src1, src2, dst, lanes, s, mode, alpha);
}
void IntScaleRow(Elem e, const void* src, const float* factor, void* dst, size_t lanes,
                 bool alpha) {
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
