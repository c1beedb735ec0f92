// The arithmetic family as rows: every export with its model, computed in
// exact 64-bit integers and long double with the rounding rule written once
// (ScaleRule, ToInt), and the single-precision formulas where the library
// defines its results by them (division, DivC). The runner does the rest.
#include <climits>
#include <functional>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

enum Op { kAdd, kSub, kMul, kDiv };

// ---- The model ------------------------------------------------------------------

// v x 2^-s to nearest, ties to even; a left shift for s < 0. Any s.
int64_t ScaleRule(int64_t v, int s) {
  if (s <= 0) {
    if (v == 0) return 0;
    if (s < -40) return v > 0 ? INT64_MAX / 2 : INT64_MIN / 2;
    return v * (int64_t{1} << -s);
  }
  if (s > 40) return 0;
  const int64_t unit = int64_t{1} << s;
  const int64_t q = v >= 0 ? v / unit : -((-v + unit - 1) / unit);  // floor
  const int64_t rest = v - q * unit;
  return rest * 2 > unit || (rest * 2 == unit && (q & 1)) ? q + 1 : q;
}

template <class T>
T Clamp(int64_t v) {
  const int64_t lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
  return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
}

// A real quotient to T: clamped, then toward zero (0), to nearest even (1),
// or with 0.5 of its sign added in single precision and truncated (2).
template <class T>
T ToInt(long double q, int mode) {
  const long double lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
  q = q < lo ? lo : q > hi ? hi : q;
  if (mode == 0) return static_cast<T>(std::trunc(q));
  if (mode == 2) return static_cast<T>(std::trunc(float(q) + std::copysign(0.5f, float(q))));
  const long double f = std::floor(q);
  const long double rest = q - f;
  const bool up = rest > 0.5L || (rest == 0.5L && std::fmod(f, 2.0L) != 0);
  return static_cast<T>(up ? f + 1 : f);
}

template <class T>
T IntResult(Op op, T a, T b, int s) {  // a: src1, b: src2
  int64_t v = op == kAdd ? int64_t{a} + b : op == kMul ? int64_t{a} * b : int64_t{b} - a;
  if (op == kSub && std::is_unsigned_v<T>) v = v < 0 ? 0 : v;
  return Clamp<T>(ScaleRule(v, s));
}

float FloatResult(Op op, float a, float b) {
  const long double x = a, y = b;
  return static_cast<float>(op == kAdd ? x + y : op == kMul ? x * y : y - x);
}

float Bits(uint32_t u) {
  float f;
  std::memcpy(&f, &u, 4);
  return f;
}
uint32_t BitsOf(float f) {
  uint32_t u;
  std::memcpy(&u, &f, 4);
  return u;
}

// The library's reciprocal estimate, as its header defines it.
float Estimate(float d) {
  const uint32_t a = BitsOf(d) & 0x7FFFFFFF, sign = BitsOf(d) & 0x80000000;
  if (std::isnan(d)) return d;
  if (a >= 0x7E800000) return Bits(sign);
  if (a < 0x00800000) return Bits(sign | 0x7F800000);
  float y = Bits(0x7EF311C3 - a);
  for (int k = 0; k < 2; ++k) {
    const float ay = Bits(a) * y;
    const float two = 2.0f - ay;
    y = y * two;
  }
  return Bits(BitsOf(y) | sign);
}

float Div32fFast(float n, float d) {
  const float r0 = Estimate(d);
  const float t = (r0 == 0 ? 0.0f : d) * r0;
  const float e = 1.0f - t;
  const float er = e * r0;
  const float u = (er + r0) * e;
  const float r1 = r0 + u;
  return r1 * n;
}

float Div8uFast(float n, float d) {
  const float r0 = Estimate(d);
  const float t = d * r0;
  const float e = 1.0f - t;
  const float q0 = n * r0;
  const float eq = e * q0;
  const float q1 = q0 + eq;
  const float ee = e * e;
  const float eeq = ee * q1;
  return q1 + eeq;
}

// One lane of integer division: divisor d, dividend n.
template <class T>
T IntQuotient(T d, T n, int s, int mode, bool fast) {
  if (d == 0) return n > 0 ? std::numeric_limits<T>::max() : n < 0 ? std::numeric_limits<T>::min() : 0;
  // Beyond 2^40 every quotient of 16-bit elements is 0 or saturated.
  if (s > 40) return 0;
  if (s < -40) return n == 0 ? 0 : (n > 0) == (d > 0) ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
  const float num = std::ldexp(static_cast<float>(n), s < 0 ? -s : 0);
  const float den = std::ldexp(static_cast<float>(d), s > 0 ? s : 0);
  return ToInt<T>(fast ? Div8uFast(num, den) : num / den, mode);
}

// A row of division in lanes, with the groups of eight (8u, 32f) counted
// from the first lane; lanes whose channel is not computed divide by 1 and
// are not written. True when the row met a zero (or, 32f, a NaN in a group
// with a zero).
template <class T>
bool DivRowModel(const std::vector<T>& dv, const std::vector<T>& nv, std::vector<T>& out, int C,
                 int computed, int s, int mode) {
  const size_t n = dv.size();
  auto divisor = [&](size_t j) { return int(j % C) < computed ? dv[j] : T(1); };
  bool marked = false;
  auto group = [&](size_t g, size_t len, bool grouped) {
    bool zero = false;
    for (size_t j = g; j < g + len && j < n; ++j) zero = zero || divisor(j) == T(0);
    for (size_t j = g; j < g + len && j < n; ++j) {
      const T d = divisor(j);
      if constexpr (std::is_same_v<T, float>) {
        if (!zero) out[j] = Div32fFast(nv[j], d);
        else if (d == 0) out[j] = nv[j] > 0 ? INFINITY : nv[j] < 0 ? -INFINITY : Bits(0x7FC00000);
        else if (std::isnan(d)) out[j] = Bits(0x7FC00000);
        else out[j] = nv[j] / d;
        marked = marked || (zero && (d == 0 || std::isnan(d)));
      } else {
        out[j] = IntQuotient<T>(d, nv[j], s, mode, grouped && !zero);
        marked = marked || d == 0;
      }
    }
  };
  size_t g = 0;
  const bool groups = std::is_same_v<T, float> || std::is_same_v<T, Pel8u>;
  for (; groups && g + 8 <= n; g += 8) group(g, 8, true);
  for (; g < n; g += std::is_same_v<T, float> ? 4 : 1) group(g, std::is_same_v<T, float> ? 4 : 1, false);
  return marked;
}

// ---- Fills ------------------------------------------------------------------------------

// Random elements, a quarter of them the type's edge values.
template <class T>
Fill Edges() {
  return [](AnyView& v, std::mt19937& rng) {
    const T edge[] = {0, 1, 2, T(-1), T(-2), 127, 128, std::numeric_limits<T>::max(),
                      std::numeric_limits<T>::min(), T(std::numeric_limits<T>::max() - 1)};
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c) {
          if (!v.image().Has(x, y, c)) continue;
          v.at<T>(x, y, c) = rng() % 4 ? T(rng()) : edge[rng() % std::size(edge)];
        }
  };
}

// Finite floats, an eighth of them zeros, infinities, the quiet NaN,
// subnormals and extremes.
Fill Specials() {
  return [](AnyView& v, std::mt19937& rng) {
    const float special[] = {0.0f, -0.0f, INFINITY, -INFINITY, Bits(0x7FC00000), 1e-40f, -3e-39f,
                             3e38f, -2e38f, 1e-30f, 1.0f, 0.0f};
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c) {
          if (!v.image().Has(x, y, c)) continue;
          v.at<float>(x, y, c) = rng() % 8 ? std::uniform_real_distribution<float>(-1e6f, 1e6f)(rng)
                                           : special[rng() % std::size(special)];
        }
  };
}

template <class T>
Fill DefaultFill() {
  if constexpr (std::is_same_v<T, float>) return Specials();
  else return Edges<T>();
}

template <class T>
Arg Src(int C) {
  Arg a = In<T>(C);
  a.fill = DefaultFill<T>();
  return a;
}
template <class T>
Arg SrcDst(int C) {
  Arg a = InOut<T>(C);
  a.fill = DefaultFill<T>();
  return a;
}

// Constants: the given values, or random nonzero ones when empty.
template <class T>
Arg Constants(int n, bool byValue, std::vector<T> values) {
  Arg a = byValue ? Value<T>() : Consts<T>(n);
  a.fill = [values](AnyView& v, std::mt19937& rng) {
    for (int k = 0; k < v.width(); ++k) {
      T r = values.empty() ? T(rng() % 200 + 1) : values[size_t(k) % values.size()];
      if (values.empty() && std::is_floating_point_v<T>) r = T(std::uniform_real_distribution<float>(-40, 40)(rng)) + T(0.5);
      if (values.empty() && std::is_signed_v<T> && rng() % 2) r = T(-r);
      v.at<T>(k, 0) = r;
    }
  };
  return a;
}

// ---- Shapes -----------------------------------------------------------------------------

// Twins of a member (in place, _L) share its walker and kernels: a few
// shapes suffice for them; the member itself runs them all.
std::vector<Layout> TwinShapes(int C) {
  std::vector<Layout> s{Layout{1, 1, C}, Layout{37, 3, C, 8, 4, true}, Layout{1003, 2, C, 16, 8, false}};
  Layout gapless{64, 5, C};
  gapless.gapless = true;
  s.push_back(gapless);
  s.push_back(Layout{65, 3, C, 0, 0, false, Fence::AtEnd});
  return s;
}
// Extra scale factors and constants of one member.
std::vector<Layout> VariantShapes(int C) { return {Layout{67, 3, C, 8, 4, false}, Layout{1003, 2, C, 0, 12, true}}; }

struct Form {
  int C, computed;  // lanes a pixel, computed lanes
  bool inPlace, large;
};

std::string ScaleName(int s) {
  std::string name = s < 0 ? "sm" : "s";
  name += std::to_string(s < 0 ? -int64_t{s} : int64_t{s});
  return name;
}

// ---- Two images -------------------------------------------------------------------------

template <class T>
PelStatus TwoModel(Model& m, Form f, Op op, int s, int mode) {
  auto a = m.in<T>(0);
  auto b = m.in<T>(1);
  auto d = m.out<T>(f.inPlace ? 1 : 2);
  bool marked = false;
  for (int y = 0; y < m.roi.height; ++y) {
    std::vector<T> av, bv;
    for (int x = 0; x < m.roi.width; ++x)
      for (int c = 0; c < f.C; ++c) {
        av.push_back(a(x, y, c));
        bv.push_back(b(x, y, c));
      }
    std::vector<T> r(av.size());
    if (op == kDiv) {
      marked = DivRowModel<T>(av, bv, r, f.C, f.computed, s, mode) || marked;
    } else {
      for (size_t j = 0; j < av.size(); ++j) {
        if constexpr (std::is_same_v<T, float>) r[j] = FloatResult(op, av[j], bv[j]);
        else r[j] = IntResult<T>(op, av[j], bv[j], s);
      }
    }
    for (int x = 0; x < m.roi.width; ++x)
      for (int c = 0; c < f.computed; ++c) d(x, y, c) = r[size_t(x) * f.C + c];
  }
  return marked ? pelStatusDivByZeroWarning : pelStatusOk;
}

// Calls of the forms: (src1, src2, dst) or (src, srcDst), plain or _L, with
// a scale factor (Sfs), a rounding mode and scale factor (Div_Round), or
// neither (32f).
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, int, const T*, int, T*, int, PeliSize, int), Call& c, int s, int) {
  return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.p<T>(2), c.step(2), c.roi, s);
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, int, T*, int, PeliSize, int), Call& c, int s, int) {
  return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, s);
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, PelIntL, const T*, PelIntL, T*, PelIntL, PeliSizeL, int), Call& c, int s, int) {
  return fn(c.p<T>(0), c.stepL(0), c.p<T>(1), c.stepL(1), c.p<T>(2), c.stepL(2), c.roiL(), s);
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, PelIntL, T*, PelIntL, PeliSizeL, int), Call& c, int s, int) {
  return fn(c.p<T>(0), c.stepL(0), c.p<T>(1), c.stepL(1), c.roiL(), s);
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, int, const T*, int, T*, int, PeliSize), Call& c, int, int) {
  return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.p<T>(2), c.step(2), c.roi);
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, int, T*, int, PeliSize), Call& c, int, int) {
  return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi);
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, PelIntL, const T*, PelIntL, T*, PelIntL, PeliSizeL), Call& c, int, int) {
  return fn(c.p<T>(0), c.stepL(0), c.p<T>(1), c.stepL(1), c.p<T>(2), c.stepL(2), c.roiL());
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, PelIntL, T*, PelIntL, PeliSizeL), Call& c, int, int) {
  return fn(c.p<T>(0), c.stepL(0), c.p<T>(1), c.stepL(1), c.roiL());
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, int, const T*, int, T*, int, PeliSize, PelRoundMode, int), Call& c, int s, int mode) {
  return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.p<T>(2), c.step(2), c.roi, mode, s);
}
template <class T>
PelStatus Invoke(PelStatus (*fn)(const T*, int, T*, int, PeliSize, PelRoundMode, int), Call& c, int s, int mode) {
  return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, mode, s);
}

// The scale factors the members of one operation and type take in turn (the
// classes of the rule: 0, 1, right shifts up to the last nonzero one, the
// zero fill, left shifts up to saturation and beyond, the extremes), and the
// ones the plain C1 member takes besides.
std::vector<int> Scales(int zeroAbove, int bits) {
  return {0, 1, 2, zeroAbove, -1, zeroAbove + 1, 1 - bits, -bits, 5, INT_MAX, -bits - 3, INT_MIN, 4, -2, 1000, -1000};
}

template <class T>
std::vector<int> ScalesFor(Op op, int l, int form);

// A member's call with its scale factor and mode, whatever its signature.
using Invoker = std::function<PelStatus(Call&, int, int)>;

// The rows of one member; one instantiation a type (the signature is
// erased), which keeps the table's compile time down.
template <class T>
[[gnu::noinline]] void AddTwoRows(std::vector<Row>& rows, Op op, Form f, const char* name, Invoker fn, int l,
                                  int form, int mode, bool divRound) {
  const std::vector<int> scales = divRound ? std::vector<int>{ScalesOf<T>(kDiv)[size_t(l + mode + 1) % 8]}
                                  : std::is_same_v<T, float> ? std::vector<int>{0}
                                                             : ScalesFor<T>(op, l, form);
  const bool isDiv = op == kDiv;
  // Div checks steps except plain Div of 16u; a Div_Round row with a bad
  // mode fails after them.
  const bool steps = isDiv && (divRound || !std::is_same_v<T, Pel16u>);
  const bool full = !f.inPlace && !f.large;
  for (size_t k = 0; k < scales.size(); ++k) {
    const int s = scales[k];
    std::vector<Arg> args{Src<T>(f.C), f.inPlace ? SrcDst<T>(f.C) : Src<T>(f.C)};
    if (!f.inPlace) args.push_back(Out<T>(f.C));
    for (Arg& a : args) a.step = steps ? StepRule::Positive : StepRule::None;
    std::string variant = scales.size() > 1 || divRound ? ScaleName(s) : "";
    if (divRound) variant.append("r").append(std::to_string(mode));
    Row r{name, variant, args,
          [fn, s, mode](Call& c) { return fn(c, s, mode); },
          [f, op, s, mode](Model& m) { return TwoModel<T>(m, f, op, s, mode); }};
    if (steps) r.order = {Check::Pointers, Check::Sizes, Check::Steps};
    if (divRound && (mode < 0 || mode > 2)) {
      r.order.push_back(Check::Param);
      r.expect = pelStatusRoundModeError;
    }
    if (!full) r.shapes = TwinShapes(f.C);
    else if (k > 0 || mode != 1) r.shapes = VariantShapes(f.C);
    r.seed = static_cast<uint32_t>(k + 1);
    rows.push_back(r);
  }
}

template <class T, class Fn>
void AddTwo(std::vector<Row>& rows, Op op, Form f, const char* name, Fn fn, int l, int form, int mode = 1,
            bool divRound = false) {
  AddTwoRows<T>(rows, op, f, name, [fn](Call& c, int s, int m) { return Invoke<T>(fn, c, s, m); }, l, form, mode,
                divRound);
}

// ---- Image and constant ---------------------------------------------------------------

template <class T>
PelStatus ConstModel(Model& m, Form f, Op op, int s) {
  const int vArg = f.inPlace ? 0 : 1, src = f.inPlace ? 1 : 0, dst = f.inPlace ? 1 : 2;
  auto v = m.in<T>(vArg);
  if (op == kDiv)
    for (int c = 0; c < f.computed; ++c)
      if (v[c] == T(0)) return pelStatusDivisionByZero;
  auto a = m.in<T>(src);
  auto d = m.out<T>(dst);
  ForEachPixel(m.roi, [&](int x, int y) {
    for (int c = 0; c < f.computed; ++c) {
      const T x0 = a(x, y, c), k = v[f.C == 1 ? 0 : c];
      if constexpr (std::is_same_v<T, float>) {
        d(x, y, c) = op == kDiv ? FloatResult(kMul, x0, 1.0f / k) : op == kSub ? FloatResult(kSub, k, x0) : FloatResult(op, x0, k);
      } else if (op == kDiv) {
        if (s > 64 || s < -64) {  // 0, or saturated by the sign
          const long double big = s > 64 ? 0.0L : 1e30L * x0 / k;
          d(x, y, c) = ToInt<T>(big, 1);
        } else {
          d(x, y, c) = ToInt<T>(float(x0) * (std::ldexp(1.0f, -s) / float(k)), 1);
        }
      } else {
        d(x, y, c) = op == kSub ? IntResult<T>(kSub, k, x0, s) : IntResult<T>(op, x0, k, s);
      }
    }
  });
  return pelStatusOk;
}

template <class T, class V, class Dst>
PelStatus InvokeC(PelStatus (*fn)(const T*, int, V, Dst, int, PeliSize, int), Call& c, int s) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.p<T>(2), c.step(2), c.roi, s);
  else return fn(c.p<T>(0), c.step(0), c.v<T>(1), c.p<T>(2), c.step(2), c.roi, s);
}
template <class T, class V>
PelStatus InvokeC(PelStatus (*fn)(V, T*, int, PeliSize, int), Call& c, int s) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.p<T>(1), c.step(1), c.roi, s);
  else return fn(c.v<T>(0), c.p<T>(1), c.step(1), c.roi, s);
}
template <class T, class V, class Dst>
PelStatus InvokeC(PelStatus (*fn)(const T*, PelIntL, V, Dst, PelIntL, PeliSizeL, int), Call& c, int s) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.stepL(0), c.p<T>(1), c.p<T>(2), c.stepL(2), c.roiL(), s);
  else return fn(c.p<T>(0), c.stepL(0), c.v<T>(1), c.p<T>(2), c.stepL(2), c.roiL(), s);
}
template <class T, class V>
PelStatus InvokeC(PelStatus (*fn)(V, T*, PelIntL, PeliSizeL, int), Call& c, int s) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.p<T>(1), c.stepL(1), c.roiL(), s);
  else return fn(c.v<T>(0), c.p<T>(1), c.stepL(1), c.roiL(), s);
}
template <class T, class V, class Dst>
PelStatus InvokeC(PelStatus (*fn)(const T*, int, V, Dst, int, PeliSize), Call& c, int) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.p<T>(2), c.step(2), c.roi);
  else return fn(c.p<T>(0), c.step(0), c.v<T>(1), c.p<T>(2), c.step(2), c.roi);
}
template <class T, class V>
PelStatus InvokeC(PelStatus (*fn)(V, T*, int, PeliSize), Call& c, int) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.p<T>(1), c.step(1), c.roi);
  else return fn(c.v<T>(0), c.p<T>(1), c.step(1), c.roi);
}
template <class T, class V, class Dst>
PelStatus InvokeC(PelStatus (*fn)(const T*, PelIntL, V, Dst, PelIntL, PeliSizeL), Call& c, int) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.stepL(0), c.p<T>(1), c.p<T>(2), c.stepL(2), c.roiL());
  else return fn(c.p<T>(0), c.stepL(0), c.v<T>(1), c.p<T>(2), c.stepL(2), c.roiL());
}
template <class T, class V>
PelStatus InvokeC(PelStatus (*fn)(V, T*, PelIntL, PeliSizeL), Call& c, int) {
  if constexpr (std::is_pointer_v<V>) return fn(c.p<T>(0), c.p<T>(1), c.stepL(1), c.roiL());
  else return fn(c.v<T>(0), c.p<T>(1), c.stepL(1), c.roiL());
}

// One row per (scale factor, constants) case; empty constants: random.
template <class T>
struct ConstCase {
  int s;
  std::vector<T> values;
  std::string name;
};

template <class T>
std::vector<ConstCase<T>> ConstCases(Op op, int l, int form);

template <class T>
[[gnu::noinline]] void AddConstRows(std::vector<Row>& rows, Op op, Form f, const char* name, Invoker fn, int l,
                                    int form) {
  const std::vector<ConstCase<T>> cases = ConstCases<T>(op, l, form);
  const bool full = !f.inPlace && !f.large;
  const int n = f.C == 1 ? 1 : f.computed;
  for (size_t k = 0; k < cases.size(); ++k) {
    const ConstCase<T> cc = cases[k];
    std::vector<Arg> args{Constants<T>(n, f.C == 1, cc.values), SrcDst<T>(f.C)};  // (value, srcDst)
    if (!f.inPlace) args = {Src<T>(f.C), Constants<T>(n, f.C == 1, cc.values), Out<T>(f.C)};
    if (op == kDiv)
      for (Arg& a : args) a.step = StepRule::Positive;
    Row r{name, cases.size() > 1 ? ScaleName(cc.s) + cc.name : "", args,
          [fn, cc](Call& c) { return fn(c, cc.s, 0); },
          [f, op, cc](Model& m) { return ConstModel<T>(m, f, op, cc.s); }};
    if (op == kDiv) r.order = {Check::Pointers, Check::Sizes, Check::Steps};
    bool zero = false;
    for (T v : cc.values) zero = zero || v == T(0);
    if (op == kDiv && zero) {
      r.order.push_back(Check::Param);
      r.expect = pelStatusDivisionByZero;
    }
    if (!full) r.shapes = TwinShapes(f.C);
    else if (k > 0) r.shapes = VariantShapes(f.C);
    r.seed = static_cast<uint32_t>(k + 1);
    rows.push_back(r);
  }
}

// ---- One operand ---------------------------------------------------------------------

// Row statuses: the first row with a warning decides; within a row the
// logarithm's pole (7) outranks a negative argument (8).
template <class T, class E>
void AddUnary(std::vector<Row>& rows, const char* name, PelStatus (*fn)(const T*, int, T*, int, PeliSize), Fill fill,
              E element) {
  Arg src = In<T>(1), dst = Out<T>(1);
  src.fill = fill;
  src.step = dst.step = StepRule::Positive;
  Row r{name, "", {src, dst}, [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi); },
        [element](Model& m) {
          auto s = m.in<T>(0);
          auto d = m.out<T>(1);
          PelStatus first = pelStatusOk;
          for (int y = 0; y < m.roi.height; ++y) {
            PelStatus row = pelStatusOk;
            for (int x = 0; x < m.roi.width; ++x) {
              const auto [value, status] = element(s(x, y));
              d(x, y) = value;
              if (status == pelStatusLnSingularWarning || row == pelStatusOk) row = status;
            }
            if (first == pelStatusOk) first = row;
          }
          return first;
        }};
  r.order = {Check::Pointers, Check::Sizes, Check::Steps};
  rows.push_back(r);
}

template <class T, class Fn>
void AddConst(std::vector<Row>& rows, Op op, Form f, const char* name, Fn fn, int l, int form) {
  AddConstRows<T>(rows, op, f, name, [fn](Call& c, int s, int) { return InvokeC<T>(fn, c, s); }, l, form);
}

// ---- The table --------------------------------------------------------------------------

constexpr Form kForms[4][4] = {
    // R, IR, R_L, IR_L of C1, C3, C4, AC4
    {{1, 1, false, false}, {1, 1, true, false}, {1, 1, false, true}, {1, 1, true, true}},
    {{3, 3, false, false}, {3, 3, true, false}, {3, 3, false, true}, {3, 3, true, true}},
    {{4, 4, false, false}, {4, 4, true, false}, {4, 4, false, true}, {4, 4, true, true}},
    {{4, 3, false, false}, {4, 3, true, false}, {4, 3, false, true}, {4, 3, true, true}},
};

// The sixteen members of an operation and type (AddTwo or AddConst rows):
// Each takes its scale factors or constant cases by (layout, form).
#define PEL_FORMS_LAYOUT(add, Op, opc, t, T, L, l, sfs)                                   \
  add<T>(rows, opc, kForms[l][0], PEL_NAMED(peli##Op##_##t##_##L##R##sfs), l, 0);         \
  add<T>(rows, opc, kForms[l][1], PEL_NAMED(peli##Op##_##t##_##L##IR##sfs), l, 1);        \
  add<T>(rows, opc, kForms[l][2], PEL_NAMED(peli##Op##_##t##_##L##R##sfs##_L), l, 2);     \
  add<T>(rows, opc, kForms[l][3], PEL_NAMED(peli##Op##_##t##_##L##IR##sfs##_L), l, 3);
#define PEL_FORMS(add, Op, opc, t, T, sfs)            \
  PEL_FORMS_LAYOUT(add, Op, opc, t, T, C1, 0, sfs)      \
  PEL_FORMS_LAYOUT(add, Op, opc, t, T, C3, 1, sfs)      \
  PEL_FORMS_LAYOUT(add, Op, opc, t, T, C4, 2, sfs)      \
  PEL_FORMS_LAYOUT(add, Op, opc, t, T, AC4, 3, sfs)

int ZeroAbove(Op op, int bytes, bool isSigned) {
  if (bytes == 1) return op == kAdd ? 9 : op == kSub ? 8 : op == kMul ? 16 : 8;
  if (!isSigned) return op == kAdd ? 17 : op == kSub ? 16 : op == kMul ? 32 : 16;
  return op == kMul ? 30 : 16;
}

template <class T>
std::vector<int> ScalesOf(Op op) {
  return Scales(ZeroAbove(op, sizeof(T), std::is_signed_v<T>), 8 * sizeof(T));
}

// Every scale factor for the plain C1 member, the next one in turn for the
// other fifteen.
template <class T>
std::vector<int> ScalesFor(Op op, int l, int form) {
  const std::vector<int> all = ScalesOf<T>(op);
  return l == 0 && form == 0 ? all : std::vector<int>{all[size_t(l * 4 + form) % all.size()]};
}

// Constant cases of the plain C1 member: the shortcuts of the scale factor
// and the constant (copy, fills, sign-only and compare kernels) besides
// random constants at each scale factor.
template <class T>
std::vector<ConstCase<T>> ConstCases(Op op, int l, int form) {
  if constexpr (std::is_same_v<T, float>) {
    std::vector<ConstCase<float>> cases{{0, {}, ""}};
    if (l == 0 && form == 0) {  // NaN and infinite constants, -0.0, 9/10, a zero divisor
      cases.push_back({0, {std::numeric_limits<float>::quiet_NaN()}, "nan"});
      cases.push_back({0, {INFINITY}, "inf"});
      cases.push_back({0, {op == kDiv ? 10.0f : -0.0f}, "v"});
      if (op == kDiv) cases.push_back({0, {-0.0f}, "zero"});
    }
    return cases;
  }
  const std::vector<int> scales = ScalesOf<T>(op);
  const int bits = 8 * sizeof(T);
  if (l != 0 || form != 0) return {{scales[size_t(l * 4 + form) % scales.size()], {}, ""}};
  std::vector<ConstCase<T>> cases;
  for (int s : scales) cases.push_back({s, {}, ""});
  if (op == kDiv) {
    cases.push_back({0, {0}, "zero"});
    return cases;
  }
  for (int s : {0, 1 - bits, -bits, -bits - 4, 3, -3}) {
    cases.push_back({s, {0}, "v0"});
    cases.push_back({s, {1}, "v1"});
    cases.push_back({s, {10}, "v10"});
  }
  return cases;
}

std::vector<Row> ArithRows() {
  std::vector<Row> rows;
#define PEL_TYPE(add, t, T, sfs, a, b, c, d) \
  PEL_FORMS(add, a, kAdd, t, T, sfs) PEL_FORMS(add, b, kSub, t, T, sfs) PEL_FORMS(add, c, kMul, t, T, sfs) PEL_FORMS(add, d, kDiv, t, T, sfs)
  PEL_TYPE(AddTwo, 8u, Pel8u, Sfs, Add, Sub, Mul, Div)
  PEL_TYPE(AddTwo, 16u, Pel16u, Sfs, Add, Sub, Mul, Div)
  PEL_TYPE(AddTwo, 16s, Pel16s, Sfs, Add, Sub, Mul, Div)
  PEL_TYPE(AddTwo, 32f, Pel32f, , Add, Sub, Mul, Div)
  PEL_TYPE(AddConst, 8u, Pel8u, Sfs, AddC, SubC, MulC, DivC)
  PEL_TYPE(AddConst, 16u, Pel16u, Sfs, AddC, SubC, MulC, DivC)
  PEL_TYPE(AddConst, 16s, Pel16s, Sfs, AddC, SubC, MulC, DivC)
  PEL_TYPE(AddConst, 32f, Pel32f, , AddC, SubC, MulC, DivC)

  // Div_Round: each member at a scale factor of its own in each mode, and
  // modes out of range.
#define PEL_DIV_ROUND(t, T, L, l)                                                                  \
  for (int mode : {0, 1, 2, 3, -1}) {                                                               \
    AddTwo<T>(rows, kDiv, kForms[l][0], PEL_NAMED(peliDiv_Round_##t##_##L##RSfs), l, 0, mode, true);  \
    AddTwo<T>(rows, kDiv, kForms[l][1], PEL_NAMED(peliDiv_Round_##t##_##L##IRSfs), l, 1, mode, true); \
  }
#define PEL_DIV_ROUND_TYPE(t, T) \
  PEL_DIV_ROUND(t, T, C1, 0) PEL_DIV_ROUND(t, T, C3, 1) PEL_DIV_ROUND(t, T, C4, 2) PEL_DIV_ROUND(t, T, AC4, 3)
  PEL_DIV_ROUND_TYPE(8u, Pel8u)
  PEL_DIV_ROUND_TYPE(16u, Pel16u)
  PEL_DIV_ROUND_TYPE(16s, Pel16s)

  // One operand: the element's result and status.
  AddUnary<float>(rows, PEL_NAMED(peliSqrt_32f_C1R), Specials(), [](float v) {
    // The rows hold whole elements, so rounding steps down to them is no change.
    if (v < 0) return std::pair<float, PelStatus>{Bits(0xFFC00000), pelStatusSqrtNegArgWarning};
    return std::pair<float, PelStatus>{std::isnan(v) ? v : float(std::sqrt(static_cast<long double>(v))), pelStatusOk};
  });
  AddUnary<float>(rows, PEL_NAMED(peliLn_32f_C1R), Specials(), [](float v) {
    if (v < 0) return std::pair<float, PelStatus>{Bits(0xFFC00000), pelStatusLnNegArgWarning};
    if (v == 0) return std::pair<float, PelStatus>{-INFINITY, pelStatusLnSingularWarning};
    return std::pair<float, PelStatus>{std::isnan(v) ? v : float(std::log(static_cast<long double>(v))), pelStatusOk};
  });
  AddUnary<Pel16s>(rows, PEL_NAMED(peliAbs_16s_C1R), Edges<Pel16s>(), [](Pel16s v) {
    return std::pair<Pel16s, PelStatus>{Clamp<Pel16s>(v < 0 ? -int64_t{v} : v), pelStatusOk};
  });
  return rows;
}

}  // namespace

PEL_ROWS(Arith, ArithRows)
