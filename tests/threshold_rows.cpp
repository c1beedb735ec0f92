// Threshold and compare as rows. Images and constants are drawn near one
// another (with NaN among the floats), so that equal values, which every
// strict comparison must keep, turn up in every row.
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <type_traits>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;
using Caller = std::function<PelStatus(Call&)>;

constexpr int kAC4 = -4;  // layout: four channels, the fourth left alone
int ChannelsOf(int layout) { return layout == kAC4 ? 4 : layout; }
int WorkedOf(int layout) { return layout == kAC4 ? 3 : layout; }

// Mostly values within `spread` of `center`; one in four (when `wild`)
// anything at all (random bits, or for floats a wide value, NaN or an
// infinity).
template <class T>
Fill FillNear(int center, int spread, bool wild = true) {
  return [=](AnyView& v, std::mt19937& rng) {
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c) {
          if (!v.image().Has(x, y, c)) continue;
          T& e = v.at<T>(x, y, c);
          const int near = center + static_cast<int>(rng() % (2 * spread + 1)) - spread;
          if (!wild || rng() % 4 != 0) {
            e = static_cast<T>(near);
          } else if constexpr (std::is_floating_point_v<T>) {
            const T wild[] = {std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::infinity(),
                              -std::numeric_limits<T>::infinity(), T(-0.0), T(near) + T(0.25)};
            e = rng() % 2 ? wild[rng() % 5] : static_cast<T>(std::uniform_real_distribution<double>(-1e6, 1e6)(rng));
          } else {
            e = static_cast<T>(rng());
          }
        }
  };
}

template <class T>
constexpr int Center() {
  return std::is_same_v<T, Pel8u> ? 100 : std::is_same_v<T, Pel16u> ? 30000 : -100;
}

Row MakeRow(std::string name, std::string variant, std::vector<Arg> args, Caller call,
            std::function<PelStatus(Model&)> model) {
  Row r;
  r.name = std::move(name);
  r.variant = std::move(variant);
  r.args = std::move(args);
  r.call = std::move(call);
  r.model = std::move(model);
  return r;
}

std::vector<Layout> OneShape(int channels) { return {Layout{9, 2, channels, 8, 4, false}}; }
std::vector<Layout> FewShapes(int channels) {
  return {Layout{67, 3, channels, 8, 4, false}, Layout{1003, 1, channels}, Layout{3, 2, channels}};
}

// ---- Threshold ---------------------------------------------------------------------

enum Variant { kCmp, kLT, kGT, kVal, kLTVal, kGTVal, kBoth };
constexpr int kParams[] = {1, 1, 1, 2, 2, 2, 4};

template <class T>
T ThresholdModel(int variant, int cmp, T x, const T* p) {
  switch (variant) {
    case kCmp: return cmp == pelCmpLess ? (x < p[0] ? p[0] : x) : (x > p[0] ? p[0] : x);
    case kLT: return x < p[0] ? p[0] : x;
    case kGT: return x > p[0] ? p[0] : x;
    case kVal: return (cmp == pelCmpLess ? x < p[0] : x > p[0]) ? p[1] : x;
    case kLTVal: return x < p[0] ? p[1] : x;
    case kGTVal: return x > p[0] ? p[1] : x;
    default: return x < p[0] ? p[1] : x > p[2] ? p[3] : x;
  }
}

template <class T, int L>
auto Param(Call& c, int arg) {
  if constexpr (L == 1) {
    return c.v<T>(arg);
  } else {
    return static_cast<const T*>(c.p<T>(arg));
  }
}

template <class T, int L, int V, bool kInPlace, class Fn>
PelStatus InvokeThreshold(Fn fn, Call& c, int cmp) {
  constexpr int p0 = kInPlace ? 1 : 2;
  auto img = [&](auto... rest) {
    if constexpr (kInPlace) {
      return fn(c.p<T>(0), c.step(0), c.roi, rest...);
    } else {
      return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, rest...);
    }
  };
  if constexpr (V == kCmp) return img(Param<T, L>(c, p0), cmp);
  else if constexpr (V == kLT || V == kGT) return img(Param<T, L>(c, p0));
  else if constexpr (V == kVal) return img(Param<T, L>(c, p0), Param<T, L>(c, p0 + 1), cmp);
  else if constexpr (V == kLTVal || V == kGTVal) return img(Param<T, L>(c, p0), Param<T, L>(c, p0 + 1));
  else return img(Param<T, L>(c, p0), Param<T, L>(c, p0 + 1), Param<T, L>(c, p0 + 2), Param<T, L>(c, p0 + 3));
}

// Thresholds just below and above the images' centre, so that both sides of
// every comparison, and equality, occur; thresholdGT at least thresholdLT
// unless `reversed`.
template <class T>
Arg ThresholdArg(int L, int variant, int k, bool reversed) {
  Arg a = L == 1 ? Value<T>() : Consts<T>(WorkedOf(L));
  a.latePointer = L != 1;
  const bool value = (variant >= kVal && k % 2 == 1);
  const bool upper = variant == kGT || variant == kGTVal || (variant == kBoth && k >= 2);
  a.fill = value ? FillNear<T>(Center<T>(), 100) : FillNear<T>(Center<T>() + (upper ? 1 : -1) * (reversed ? -3 : 1), 1, false);
  return a;
}

template <class T, int L, int V, bool kInPlace, class Fn>
void AddThreshold(std::vector<Row>& rows, const char* name, Fn fn) {
  const int C = ChannelsOf(L), worked = WorkedOf(L);
  const int p0 = kInPlace ? 1 : 2;
  auto make = [&](const std::string& variant, int cmp, bool reversed) -> Row& {
    std::vector<Arg> args;
    args.push_back(kInPlace ? InOut<T>(C) : In<T>(C));
    if (!kInPlace) args.push_back(Out<T>(C));
    for (Arg& a : args) {
      a.step = StepRule::Positive;
      a.fill = FillNear<T>(Center<T>(), 3);
    }
    for (int k = 0; k < kParams[V]; ++k) args.push_back(ThresholdArg<T>(L, V, k, reversed));
    Row r = MakeRow(name, variant, args, [fn, cmp](Call& c) { return InvokeThreshold<T, L, V, kInPlace>(fn, c, cmp); },
                    [=](Model& m) {
                      auto s = m.in<T>(0);
                      auto d = m.out<T>(p0 - 1);
                      ForEachPixel(m.roi, [&](int x, int y) {
                        for (int c = 0; c < worked; ++c) {
                          T p[4];
                          for (int k = 0; k < kParams[V]; ++k) p[k] = m.in<T>(p0 + k)[L == 1 ? 0 : c];
                          d(x, y, c) = ThresholdModel<T>(V, cmp, s(x, y, c), p);
                        }
                      });
                      return pelStatusOk;
                    });
    r.order = {Check::Pointers, Check::Sizes, Check::Steps, Check::LatePointers};
    rows.push_back(r);
    return rows.back();
  };
  if constexpr (V == kCmp || V == kVal) {
    make("", pelCmpLess, false);
    make("greater", pelCmpGreater, false).shapes = FewShapes(C);
    // An unsupported comparison: Val rejects it before anything else, the
    // plain threshold after its arrays.
    Row& bad = make("cmp1", pelCmpLessEq, false);
    bad.expect = pelStatusNotSupportedMode;
    bad.order = V == kVal ? std::vector<Check>{Check::Param, Check::Pointers, Check::Sizes, Check::Steps, Check::LatePointers}
                          : std::vector<Check>{Check::Pointers, Check::Sizes, Check::Steps, Check::LatePointers, Check::Param};
    bad.shapes = OneShape(C);
  } else {
    make("", pelCmpLess, false);
  }
  if constexpr (V == kBoth) {
    Row& bad = make("reversed", 0, true);
    bad.expect = pelStatusThresholdError;
    bad.order.push_back(Check::Param);
    bad.shapes = OneShape(C);
  }
}

#define PEL_THRESHOLD_FORMS(V, op, t, L, lay)                                   \
  AddThreshold<Pel##t, L, V, false>(rows, PEL_NAMED(peliThreshold##op##_##t##_##lay##R)); \
  AddThreshold<Pel##t, L, V, true>(rows, PEL_NAMED(peliThreshold##op##_##t##_##lay##IR));
#define PEL_THRESHOLD_LAYOUTS(V, op, t)        \
  PEL_THRESHOLD_FORMS(V, op, t, 1, C1)         \
  PEL_THRESHOLD_FORMS(V, op, t, 3, C3)         \
  PEL_THRESHOLD_FORMS(V, op, t, kAC4, AC4)
#define PEL_THRESHOLD_TYPE(t)                                                 \
  PEL_THRESHOLD_LAYOUTS(kCmp, , t)                                            \
  PEL_THRESHOLD_LAYOUTS(kLT, _LT, t)                                          \
  PEL_THRESHOLD_LAYOUTS(kGT, _GT, t)                                          \
  PEL_THRESHOLD_LAYOUTS(kVal, _Val, t)                                        \
  PEL_THRESHOLD_LAYOUTS(kLTVal, _LTVal, t)                                    \
  PEL_THRESHOLD_LAYOUTS(kGTVal, _GTVal, t)                                    \
  PEL_THRESHOLD_LAYOUTS(kBoth, _LTValGTVal, t)                                \
  PEL_THRESHOLD_FORMS(kLTVal, _LTVal, t, 4, C4)                               \
  PEL_THRESHOLD_FORMS(kGTVal, _GTVal, t, 4, C4)

// ---- Compare -------------------------------------------------------------------------

bool Holds(int op, double a, double b) {
  switch (op) {
    case pelCmpLess: return a < b;
    case pelCmpLessEq: return a <= b;
    case pelCmpEq: return a == b;
    case pelCmpGreaterEq: return a >= b;
    default: return a > b;
  }
}

// dst = 255 where every worked channel of pixel (x, y) satisfies test(a, b),
// b from argument 1 (an image, or a constant array when `constant`).
template <class T>
std::function<PelStatus(Model&)> MaskModel(int L, bool constant, std::function<bool(T, T)> test) {
  return [=](Model& m) {
    auto a = m.in<T>(0);
    auto b = m.in<T>(1);
    auto d = m.out<Pel8u>(2);
    ForEachPixel(m.roi, [&](int x, int y) {
      bool all = true;
      for (int c = 0; c < WorkedOf(L); ++c) all = all && test(a(x, y, c), constant ? b[L == 1 ? 0 : c] : b(x, y, c));
      d(x, y) = all ? 255 : 0;
    });
    return pelStatusOk;
  };
}

template <class T>
std::vector<Arg> CompareArgs(int L, bool constant, Fill fill) {
  std::vector<Arg> args{In<T>(ChannelsOf(L)), In<T>(ChannelsOf(L)), Out<Pel8u>(1)};
  if (constant) args[1] = L == 1 ? Value<T>() : Consts<T>(WorkedOf(L));
  for (Arg& a : args) {
    if (a.count == 0) a.step = StepRule::Positive;
    if (a.use == Use::In) a.fill = fill;
  }
  return args;
}

// Ops 0 to 4 (those with their own kernels on every shape), and two codes
// outside the set, which succeed without writing.
template <class T>
void AddCompareOps(std::vector<Row>& rows, const char* name, int L, bool constant,
                   std::function<PelStatus(Call&, int)> call) {
  for (int op : {0, 1, 2, 3, 4, 5, -1}) {
    std::function<PelStatus(Model&)> model = [](Model&) { return pelStatusOk; };
    if (op >= 0 && op <= 4) model = MaskModel<T>(L, constant, [op](T a, T b) { return Holds(op, a, b); });
    std::string variant = op == 0 ? "" : op > 0 ? std::string("op").append(std::to_string(op)) : "opMinus1";
    Row r = MakeRow(name, variant, CompareArgs<T>(L, constant, FillNear<T>(Center<T>(), 1)),
                    [call, op](Call& c) { return call(c, op); }, model);
    r.order = {Check::Pointers, Check::Steps, Check::Sizes};
    if (op > 2 || op < 0) r.shapes = FewShapes(ChannelsOf(L));
    rows.push_back(r);
  }
}

template <class T, int L>
void AddCompare(std::vector<Row>& rows, const char* name,
                PelStatus (*fn)(const T*, int, const T*, int, Pel8u*, int, PeliSize, PelCmpOp)) {
  AddCompareOps<T>(rows, name, L, false, [fn](Call& c, int op) {
    return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.p<Pel8u>(2), c.step(2), c.roi, op);
  });
}

template <class T, int L, class V>
void AddCompareC(std::vector<Row>& rows, const char* name, PelStatus (*fn)(const T*, int, V, Pel8u*, int, PeliSize, PelCmpOp)) {
  AddCompareOps<T>(rows, name, L, true, [fn](Call& c, int op) {
    return fn(c.p<T>(0), c.step(0), Param<T, L>(c, 1), c.p<Pel8u>(2), c.step(2), c.roi, op);
  });
}

// eps 0 (exact equality), a tolerance that takes in the neighbours, and a
// negative one, refused after the sizes.
template <int L, class F>
void AddEps(std::vector<Row>& rows, const char* name, bool constant, F call) {
  for (float eps : {0.0f, 1.0f, -0.5f}) {
    Row r = MakeRow(name, eps == 0.0f ? "" : eps > 0 ? "eps1" : "negative",
                    CompareArgs<Pel32f>(L, constant, FillNear<Pel32f>(-100, 1)),
                    [call, eps](Call& c) { return call(c, eps); },
                    MaskModel<Pel32f>(L, constant, [eps](float a, float b) { return std::fabs(a - b) <= eps; }));
    r.order = {Check::Pointers, Check::Steps, Check::Sizes};
    if (eps != 0.0f) r.shapes = FewShapes(ChannelsOf(L));
    if (eps < 0) {
      r.expect = pelStatusEpsilonError;
      r.order.push_back(Check::Param);
    }
    rows.push_back(r);
  }
}

template <int L>
void AddEqualEps(std::vector<Row>& rows, const char* name,
                 PelStatus (*fn)(const Pel32f*, int, const Pel32f*, int, Pel8u*, int, PeliSize, Pel32f)) {
  AddEps<L>(rows, name, false, [fn](Call& c, float eps) {
    return fn(c.p<Pel32f>(0), c.step(0), c.p<Pel32f>(1), c.step(1), c.p<Pel8u>(2), c.step(2), c.roi, eps);
  });
}

template <int L, class V>
void AddEqualEpsC(std::vector<Row>& rows, const char* name, PelStatus (*fn)(const Pel32f*, int, V, Pel8u*, int, PeliSize, Pel32f)) {
  AddEps<L>(rows, name, true, [fn](Call& c, float eps) {
    return fn(c.p<Pel32f>(0), c.step(0), Param<Pel32f, L>(c, 1), c.p<Pel8u>(2), c.step(2), c.roi, eps);
  });
}

#define PEL_COMPARE_TYPE(t)                                                      \
  AddCompare<Pel##t, 1>(rows, PEL_NAMED(peliCompare_##t##_C1R));                 \
  AddCompare<Pel##t, 3>(rows, PEL_NAMED(peliCompare_##t##_C3R));                 \
  AddCompare<Pel##t, 4>(rows, PEL_NAMED(peliCompare_##t##_C4R));                 \
  AddCompare<Pel##t, kAC4>(rows, PEL_NAMED(peliCompare_##t##_AC4R));             \
  AddCompareC<Pel##t, 1>(rows, PEL_NAMED(peliCompareC_##t##_C1R));               \
  AddCompareC<Pel##t, 3>(rows, PEL_NAMED(peliCompareC_##t##_C3R));               \
  AddCompareC<Pel##t, 4>(rows, PEL_NAMED(peliCompareC_##t##_C4R));               \
  AddCompareC<Pel##t, kAC4>(rows, PEL_NAMED(peliCompareC_##t##_AC4R));

// The comparisons of an 8u constant that can never hold: the mask is all
// zero whatever the source.
void AddImpossibleCompares(std::vector<Row>& rows) {
  for (int op : {pelCmpLess, pelCmpGreater}) {
    std::vector<Arg> args = CompareArgs<Pel8u>(1, true, {});
    const Pel8u value = op == pelCmpLess ? 0 : 255;
    args[1].fill = [value](AnyView& v, std::mt19937&) { v.at<Pel8u>(0, 0) = value; };
    Row r = MakeRow("peliCompareC_8u_C1R", op == pelCmpLess ? "never0" : "never255", args,
                    [op](Call& c) {
                      return peliCompareC_8u_C1R(c.p<Pel8u>(0), c.step(0), c.v<Pel8u>(1), c.p<Pel8u>(2), c.step(2),
                                                 c.roi, op);
                    },
                    [](Model& m) {
                      ForEachPixel(m.roi, [&](int x, int y) { m.out<Pel8u>(2)(x, y) = 0; });
                      return pelStatusOk;
                    });
    r.order = {Check::Pointers, Check::Steps, Check::Sizes};
    r.shapes = FewShapes(1);
    rows.push_back(r);
  }
}

std::vector<Row> ThresholdRows() {
  std::vector<Row> rows;
  PEL_THRESHOLD_TYPE(8u)
  PEL_THRESHOLD_TYPE(16s)
  PEL_THRESHOLD_TYPE(16u)
  PEL_THRESHOLD_TYPE(32f)
  PEL_COMPARE_TYPE(8u)
  PEL_COMPARE_TYPE(16s)
  PEL_COMPARE_TYPE(16u)
  PEL_COMPARE_TYPE(32f)
  AddImpossibleCompares(rows);
  AddEqualEps<1>(rows, PEL_NAMED(peliCompareEqualEps_32f_C1R));
  AddEqualEps<3>(rows, PEL_NAMED(peliCompareEqualEps_32f_C3R));
  AddEqualEps<4>(rows, PEL_NAMED(peliCompareEqualEps_32f_C4R));
  AddEqualEps<kAC4>(rows, PEL_NAMED(peliCompareEqualEps_32f_AC4R));
  AddEqualEpsC<1>(rows, PEL_NAMED(peliCompareEqualEpsC_32f_C1R));
  AddEqualEpsC<3>(rows, PEL_NAMED(peliCompareEqualEpsC_32f_C3R));
  AddEqualEpsC<4>(rows, PEL_NAMED(peliCompareEqualEpsC_32f_C4R));
  AddEqualEpsC<kAC4>(rows, PEL_NAMED(peliCompareEqualEpsC_32f_AC4R));
  return rows;
}

}  // namespace

PEL_ROWS(Threshold, ThresholdRows)
