// Vector row kernels of integer Add, Sub and Mul with scale factor, compiled
// once per instruction set by Highway. The baseline target runs the scalar
// reference, so PEL_CPU=scalar gives exactly that.
//
// The results are integers defined by an exact rule, so any vector width
// gives the same bytes: at scale factor 0 Add and Sub are the processor's
// saturating operations and 16-bit Mul checks the high half of the product;
// otherwise each element is widened (8u to 16 bits, 16u and 16s to 32),
// combined exactly, shifted with rounding and narrowed with saturation.
// Vectors never leave the row; the last lanes go to the scalar reference.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/row_int_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <type_traits>

#include "arith/row_kernels.h"
#include "arith/row_scalar.h"
#include "hwy/highway.h"
#include "arith/row_common-inl.h"

HWY_BEFORE_NAMESPACE();
namespace pel::arith::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR

// The lane type that holds every exact result of two elements of T (the
// unsigned difference is clamped at 0 before it widens).
template <class T>
struct Wide;
template <>
struct Wide<uint8_t> { using type = uint16_t; };
template <>
struct Wide<uint16_t> { using type = uint32_t; };
template <>
struct Wide<int16_t> { using type = int32_t; };

// Scale factor 0 in the lanes of T: f(a, b) gives the result vector.
template <class T, class F>
size_t NarrowLoop(const T* s1, const T* s2, Periods p, Cursor& cursor, T* d, size_t n,
                  bool alpha, F f) {
  const hn::ScalableTag<T> dt;
  const size_t N = hn::Lanes(dt);
  const auto colour = ColourLanes(dt);
  Cursor at = cursor;  // in a register: the stores may alias the caller's
  size_t i = 0;
  // Four vectors a step while they fit (a period holds whole steps of four:
  // the cursor starts each row at 0), then one.
  for (; i + 4 * N <= n; i += 4 * N, at.Advance(4 * N, p.a, p.b)) {
    for (size_t k = 0; k < 4 * N; k += N) {
      StoreLanes(dt, f(hn::LoadU(dt, s1 + at.a + k), hn::LoadU(dt, s2 + at.b + k)), d + i + k,
                 alpha, colour);
    }
  }
  for (; i + N <= n; i += N, at.Advance(N, p.a, p.b)) {
    StoreLanes(dt, f(hn::LoadU(dt, s1 + at.a), hn::LoadU(dt, s2 + at.b)), d + i, alpha, colour);
  }
  cursor = at;
  return i;
}

// Add and Sub: the saturating instructions are the rule.
template <Op op>
struct Saturating {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return op == kAdd ? hn::SaturatedAdd(a, b) : hn::SaturatedSub(b, a);
  }
};

// 16-bit Mul: the low half is the result when the high half only extends
// its sign; otherwise the product saturates by its sign.
struct Mul16 {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    using T = hn::TFromV<V>;
    const hn::DFromV<V> dt;
    const auto lo = hn::Mul(a, b);
    const auto hi = hn::MulHigh(a, b);
    if constexpr (std::is_unsigned_v<T>) {
      return hn::IfThenElse(hn::Eq(hi, hn::Zero(dt)), lo, hn::Set(dt, T{0xFFFF}));
    } else {
      const auto fits = hn::Eq(hi, hn::ShiftRight<15>(lo));
      return hn::IfThenElse(fits, lo, hn::Xor(hn::ShiftRight<15>(hi), hn::Set(dt, T{0x7FFF})));
    }
  }
};

// The exact value of op on the next lanes of both rows, widened.
template <Op op, class DW, class DN, class T>
HWY_INLINE hn::Vec<DW> WideValue(DW dw, DN dn, const T* s1, const T* s2) {
  const auto a = hn::LoadU(dn, s1);
  const auto b = hn::LoadU(dn, s2);
  if constexpr (op == kSub && std::is_unsigned_v<T>) {
    return hn::PromoteTo(dw, hn::SaturatedSub(b, a));
  } else {
    const auto aw = hn::PromoteTo(dw, a);
    const auto bw = hn::PromoteTo(dw, b);
    if constexpr (op == kAdd) return hn::Add(aw, bw);
    else if constexpr (op == kSub) return hn::Sub(bw, aw);
    else return hn::Mul(aw, bw);
  }
}

// Wide lanes back to T with saturation.
template <class T, class DW, class DN, class VW>
HWY_INLINE hn::Vec<DN> Narrow(DW dw, DN dn, VW r) {
  if constexpr (std::is_signed_v<T>) {
    return hn::DemoteTo(dn, r);
  } else {
    const hn::RebindToSigned<DW> di;
    using W = hn::TFromD<DW>;
    return hn::DemoteTo(dn, hn::BitCast(di, hn::Min(r, hn::Set(dw, W{hwy::LimitsMax<T>()}))));
  }
}

// Any other scale factor. kRight (s > 0): v / 2^s to nearest, ties to even,
// without forming v + 2^(s-1), which could leave the wide lane: with
// q = v >> (s-1), the result is (q >> 1) plus q's last bit when the result
// would be odd or a bit below it is set. Otherwise (s <= 0): v clamped to
// T's range (which saturates the same) and shifted left; from a shift of
// T's width on only the sign of v counts, so v is clamped to -1..1.
template <Op op, class T, bool kRight>
size_t WideLoop(const T* s1, const T* s2, Periods p, Cursor& cursor, T* d, size_t n, int s,
                bool alpha) {
  using W = typename Wide<T>::type;
  const hn::ScalableTag<W> dw;
  const hn::Rebind<T, decltype(dw)> dn;
  const size_t N = hn::Lanes(dw);
  const auto colour = ColourLanes(dn);
  const auto one = hn::Set(dw, W{1});
  constexpr int kBits = 8 * sizeof(T);
  const int left = -s >= kBits ? kBits : -s;
  const W lo = -s >= kBits ? W(std::is_signed_v<T> ? -1 : 0) : W(hwy::LimitsMin<T>());
  const W hi = -s >= kBits ? W{1} : W(hwy::LimitsMax<T>());
  const auto vlo = hn::Set(dw, lo);
  const auto vhi = hn::Set(dw, hi);
  const auto below = hn::Set(dw, kRight ? static_cast<W>((W{1} << (s - 1)) - 1) : W{0});
  Cursor at = cursor;  // in a register: the stores may alias the caller's
  size_t i = 0;
  for (; i + N <= n; i += N, at.Advance(N, p.a, p.b)) {
    const auto v = WideValue<op>(dw, dn, s1 + at.a, s2 + at.b);
    hn::Vec<decltype(dw)> r;
    if constexpr (kRight) {
      const auto q = hn::ShiftRightSame(v, s - 1);
      const auto half = hn::ShiftRight<1>(q);
      const auto sticky = hn::Min(hn::And(v, below), one);
      const auto up = hn::And(hn::And(q, one), hn::Or(hn::And(half, one), sticky));
      r = hn::Add(half, up);
    } else {
      r = hn::ShiftLeftSame(hn::Min(hn::Max(v, vlo), vhi), left);
    }
    StoreLanes(dn, Narrow<T>(dw, dn, r), d + i, alpha, colour);
  }
  cursor = at;
  return i;
}

template <Op op, class T>
size_t IntBinaryLoop(const T* s1, const T* s2, Periods p, Cursor& cursor, T* d, size_t n,
                     int s, bool alpha) {
  if constexpr (op != kMul) {
    if (s == 0) return NarrowLoop<T>(s1, s2, p, cursor, d, n, alpha, Saturating<op>());
  } else if constexpr (sizeof(T) == 2) {
    if (s == 0) return NarrowLoop<T>(s1, s2, p, cursor, d, n, alpha, Mul16());
  }
  return s > 0 ? WideLoop<op, T, true>(s1, s2, p, cursor, d, n, s, alpha)
               : WideLoop<op, T, false>(s1, s2, p, cursor, d, n, s, alpha);
}

#endif

void IntBinaryRowTarget(Op op, Elem e, Operand src1, Operand src2, void* dst, size_t n, int s,
                        bool alpha) {
  VisitElem(e, [&](auto t) {
    using T = decltype(t);
    if constexpr (std::is_integral_v<T>) {
      const T* s1 = static_cast<const T*>(src1.p);
      const T* s2 = static_cast<const T*>(src2.p);
      const Periods p{src1.period, src2.period};
      T* d = static_cast<T*>(dst);
      Cursor at;
      size_t done = 0;
#if HWY_TARGET != HWY_EMU128 && HWY_TARGET != HWY_SCALAR
      switch (op) {
        case kAdd: done = IntBinaryLoop<kAdd, T>(s1, s2, p, at, d, n, s, alpha); break;
        case kSub: done = IntBinaryLoop<kSub, T>(s1, s2, p, at, d, n, s, alpha); break;
        default: done = IntBinaryLoop<kMul, T>(s1, s2, p, at, d, n, s, alpha); break;
      }
#endif
      // The rest lies within one period of a repeating source.
      scalar::IntBinaryRow<T>(op, s1 + at.a, p.a, s2 + at.b, p.b, d + done, n - done, s, alpha);
    }
  });
}

}  // namespace pel::arith::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::arith {

HWY_EXPORT(IntBinaryRowTarget);

void IntBinaryRow(Op op, Elem e, Operand src1, Operand src2, void* dst, size_t lanes, int s,
                  bool alpha) {
  HWY_DYNAMIC_DISPATCH(IntBinaryRowTarget)(op, e, src1, src2, dst, lanes, s, alpha);
}

}  // namespace pel::arith
#endif
