// Convert, Scale and ScaleC as rows: each export with a model written apart
// from the library's arithmetic (double-precision values, the C library's
// rounding functions), on float sources that sit on and around every rounding
// boundary. Rows for extra modes and scale factors run on a few shapes only.
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <type_traits>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

constexpr int kAC4 = -4;  // layout: four channels, the fourth left alone
int ChannelsOf(int layout) { return layout == kAC4 ? 4 : layout; }
int WorkedOf(int layout) { return layout == kAC4 ? 3 : layout; }

// Floats on and next to the halves, NaN, infinities, values beyond any
// destination range and plain values in [lo, hi].
Fill FillBoundaries(double lo, double hi) {
  return [lo, hi](AnyView& v, std::mt19937& rng) {
    std::uniform_real_distribution<double> in(lo, hi);
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c) {
          if (!v.image().Has(x, y, c)) continue;
          const double half = std::floor(in(rng)) + 0.5;
          double f = in(rng);
          switch (rng() % 12) {
            case 0: f = half; break;
            case 1: f = std::nextafter(static_cast<float>(half), -1e30f); break;
            case 2: f = std::nextafter(static_cast<float>(half), 1e30f); break;
            case 3: f = -half; break;
            case 4: f = std::numeric_limits<double>::quiet_NaN(); break;
            case 5: f = rng() % 2 ? HUGE_VAL : -HUGE_VAL; break;
            case 6: f = rng() % 2 ? 3e9 : -3e9; break;
            case 7: f = rng() % 2 ? 0.49999997f : -0.49999997f; break;
            case 8: f = std::floor(f); break;
          }
          if (v.type().bytes == 4) v.at<float>(x, y, c) = static_cast<float>(f);
          else v.at<double>(x, y, c) = f;
        }
  };
}

// A few shapes for the extra rows of an export already run on every shape.
std::vector<Layout> FewShapes(int channels) {
  return {Layout{65, 3, channels, 8, 4, false}, Layout{1003, 1, channels}, Layout{5, 2, channels, 0, 2, true}};
}

// ---- Models -------------------------------------------------------------------

template <class D>
D Clamp(double v) {
  if (std::isnan(v)) return std::numeric_limits<D>::max();
  if constexpr (std::is_floating_point_v<D>) return static_cast<D>(v);
  const double lo = static_cast<double>(std::numeric_limits<D>::min());
  const double hi = static_cast<double>(std::numeric_limits<D>::max());
  return static_cast<D>(v < lo ? lo : v > hi ? hi : v);
}

// x * 2^-sf formed in F, clamped, rounded by mode (2 adds a signed half in F
// and truncates), NaN to the maximum.
template <class D, class F>
D FloatModel(F x, int mode, int sf) {
  const F v = static_cast<F>(std::ldexp(static_cast<double>(x), -sf));
  if (std::isnan(v)) return std::numeric_limits<D>::max();
  const double lo = static_cast<double>(std::numeric_limits<D>::min());
  const double hi = static_cast<double>(std::numeric_limits<D>::max());
  const double c = v < lo ? lo : v > hi ? hi : v;
  if (mode == 0) return Clamp<D>(std::trunc(c));
  if (mode == 1) return Clamp<D>(std::nearbyint(c));
  const F sum = static_cast<F>(c) + (c < 0 ? F(-0.5) : F(0.5));
  return Clamp<D>(std::trunc(sum));
}

template <class D>
D IntegerModel(double x, int sf, int mode) {
  const double v = std::ldexp(x, -sf);  // exact
  return Clamp<D>(mode == 0 ? std::trunc(v) : mode == 1 ? std::nearbyint(v) : std::round(v));
}

// ---- Rows ---------------------------------------------------------------------

using Caller = std::function<PelStatus(Call&)>;

// "m1s3"-style variant names (appends rather than operator+, which GCC 12
// warns about wrongly).
std::string Tag(const char* a, int x, const char* b = nullptr, int y = 0) {
  std::string s(a);
  s.append(std::to_string(x));
  if (b != nullptr) s.append(b).append(std::to_string(y));
  return s;
}

Row MakeRow(const char* name, const std::string& variant, std::vector<Arg> args, Caller call,
            std::function<PelStatus(Model&)> model) {
  Row r;
  r.name = name;
  r.variant = variant;
  r.args = std::move(args);
  r.call = std::move(call);
  r.model = std::move(model);
  return r;
}

template <class S, class D, class... A>
Caller CallOf(PelStatus (*fn)(const S*, int, D*, int, PeliSize, A...), std::type_identity_t<A>... a) {
  return [=](Call& c) { return fn(c.p<S>(0), c.step(0), c.p<D>(1), c.step(1), c.roi, a...); };
}

// dst = f(src) for each worked channel; `steps`: the export checks them.
template <class S, class D>
Row& AddMap(std::vector<Row>& rows, const char* name, const std::string& variant, int layout, bool steps,
            Caller call, std::function<D(S)> f, Fill fill = {}) {
  Arg src = In<S>(ChannelsOf(layout)), dst = Out<D>(ChannelsOf(layout));
  src.fill = fill;
  const int worked = WorkedOf(layout);
  Row r = MakeRow(name, variant, {src, dst}, call, [f, worked](Model& m) {
          auto s = m.in<S>(0);
          auto d = m.out<D>(1);
          ForEachPixel(m.roi, [&](int x, int y) {
            for (int c = 0; c < worked; ++c) d(x, y, c) = f(s(x, y, c));
          });
          return pelStatusOk;
        });
  if (steps) {
    r.args[0].step = r.args[1].step = StepRule::Positive;
    r.order = {Check::Pointers, Check::Sizes, Check::Steps};
  }
  if (!variant.empty()) r.shapes = FewShapes(ChannelsOf(layout));
  rows.push_back(r);
  return rows.back();
}

template <class S, class D>
void AddWiden(std::vector<Row>& rows, int layout, const char* name, PelStatus (*fn)(const S*, int, D*, int, PeliSize)) {
  AddMap<S, D>(rows, name, "", layout, false, CallOf(fn), [](S x) { return static_cast<D>(x); });
}

template <class S, class D>
void AddNarrow(std::vector<Row>& rows, int layout, const char* name, PelStatus (*fn)(const S*, int, D*, int, PeliSize)) {
  AddMap<S, D>(rows, name, "", layout, true, CallOf(fn), [](S x) { return Clamp<D>(x); });
}

template <class S, class D>
void AddUnsigned(std::vector<Row>& rows, const char* name, PelStatus (*fn)(const S*, int, D*, int, PeliSize)) {
  AddMap<S, D>(rows, name, "", 1, false, CallOf(fn), [](S x) { return static_cast<D>(x < 0 ? 0 : x); });
}

struct ModeScale {
  int mode, sf;
};

template <class S, class D>
void AddIntegerSfs(std::vector<Row>& rows, const char* name,
                   PelStatus (*fn)(const S*, int, D*, int, PeliSize, PelRoundMode, int)) {
  for (ModeScale k : {ModeScale{1, 0}, {1, 3}, {0, 3}, {2, 3}, {7, 1}, {1, -3}, {1, -40}, {0, 40}}) {
    const std::string variant = k.mode == 1 && k.sf == 0 ? "" : Tag("m", k.mode, "s", k.sf);
    AddMap<S, D>(rows, name, variant, 1, false, CallOf(fn, k.mode, k.sf),
                 [k](S x) { return IntegerModel<D>(static_cast<double>(x), k.sf, k.mode); });
  }
}

template <class D>
void AddFloatRound(std::vector<Row>& rows, int layout, const char* name,
                   PelStatus (*fn)(const Pel32f*, int, D*, int, PeliSize, PelRoundMode)) {
  for (int mode : {1, 0, 2, 7}) {
    AddMap<Pel32f, D>(rows, name, mode == 1 ? "" : Tag("mode", mode), layout, true, CallOf(fn, mode),
                      [mode](Pel32f x) { return FloatModel<D>(x, mode, 0); }, FillBoundaries(-300, 70000));
  }
}

template <class S, class D>
void AddFloatSfs(std::vector<Row>& rows, const char* name,
                 PelStatus (*fn)(const S*, int, D*, int, PeliSize, PelRoundMode, int)) {
  for (ModeScale k : {ModeScale{1, 0}, {1, 1}, {0, 1}, {2, 1}, {7, -3}, {1, -140}, {2, 200}}) {
    const std::string variant = k.mode == 1 && k.sf == 0 ? "" : Tag("m", k.mode, "s", k.sf);
    AddMap<S, D>(rows, name, variant, 1, false, CallOf(fn, k.mode, k.sf),
                 [k](S x) { return FloatModel<D>(x, k.mode, k.sf); }, FillBoundaries(-300, 70000));
  }
}

void AddFloatSfsInPlace(std::vector<Row>& rows) {
  for (ModeScale k : {ModeScale{1, 0}, {2, 1}, {0, -2}}) {
    Arg img = InOut<Pel32f>();
    img.fill = FillBoundaries(-300, 70000);
    Row r = MakeRow("peliConvert_32f32u_C1IRSfs", k.mode == 1 ? "" : Tag("m", k.mode),
          {img},
          [k](Call& c) { return peliConvert_32f32u_C1IRSfs(c.p<Pel32u>(0), c.step(0), c.roi, k.mode, k.sf); },
          [k](Model& m) {
            auto s = m.in<Pel32f>(0);
            ForEachPixel(m.roi, [&](int x, int y) {
              const Pel32u v = FloatModel<Pel32u>(s(x, y), k.mode, k.sf);
              std::memcpy(&m.out<Pel32f>(0)(x, y), &v, 4);
            });
            return pelStatusOk;
          });
    if (k.mode != 1) r.shapes = FewShapes(1);
    rows.push_back(r);
  }
}

// Scale: ranges onto ranges. Integer forms in double, rounded to nearest.
template <class D>
void AddScaleUp(std::vector<Row>& rows, int layout, const char* name, PelStatus (*fn)(const Pel8u*, int, D*, int, PeliSize)) {
  AddMap<Pel8u, D>(rows, name, "", layout, true, CallOf(fn), [](Pel8u x) {
    const double lo = std::numeric_limits<D>::min(), hi = std::numeric_limits<D>::max();
    return static_cast<D>(std::llround(lo + x * (hi - lo) / 255.0));
  });
}

template <class S>
void AddScaleDown(std::vector<Row>& rows, int layout, const char* name,
                  PelStatus (*fn)(const S*, int, Pel8u*, int, PeliSize, PelHintAlgorithm)) {
  for (int hint : {0, int{pelHintAccurate}}) {
    AddMap<S, Pel8u>(rows, name, hint ? "" : "hint0", layout, true, CallOf(fn, hint), [](S x) {
      const double lo = std::numeric_limits<S>::min(), hi = std::numeric_limits<S>::max();
      return static_cast<Pel8u>(std::llround((x - lo) * 255.0 / (hi - lo)));
    });
  }
}

struct Range {
  float vMin, vMax;
};

void AddScaleFloat(std::vector<Row>& rows, int layout, const char* toName,
                   PelStatus (*to)(const Pel8u*, int, Pel32f*, int, PeliSize, Pel32f, Pel32f), const char* fromName,
                   PelStatus (*from)(const Pel32f*, int, Pel8u*, int, PeliSize, Pel32f, Pel32f)) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const Range ranges[] = {{-10.0f, 300.0f}, {0.0f, 255.0f}, {-1.5f, 1.0e6f}, {0.0f, nan}};
  for (int k = 0; k < 4; ++k) {
    const Range r = ranges[k];
    const std::string variant = k == 0 ? "" : Tag("range", k);
    AddMap<Pel8u, Pel32f>(rows, toName, variant, layout, true, CallOf(to, r.vMin, r.vMax), [r](Pel8u x) {
      const float f = (r.vMax - r.vMin) / 255.0f;
      const float p = f * static_cast<float>(x);
      return p + r.vMin;
    });
    AddMap<Pel32f, Pel8u>(rows, fromName, variant, layout, true, CallOf(from, r.vMin, r.vMax), [r](Pel32f x) {
      const float f = 255.0f / (r.vMax - r.vMin);
      const float o = -(f * r.vMin);
      const float p = f * x;
      return FloatModel<Pel8u>(p + o, 1, 0);
    }, FillBoundaries(-20, 320));
  }
  // An empty or reversed range fails before anything else is looked at.
  for (Range r : {Range{5.0f, 5.0f}, {3.0f, -3.0f}}) {
    const std::string variant = Tag("empty", int(r.vMax));
    AddMap<Pel8u, Pel32f>(rows, toName, variant, layout, true, CallOf(to, r.vMin, r.vMax), nullptr);
    AddMap<Pel32f, Pel8u>(rows, fromName, variant, layout, true, CallOf(from, r.vMin, r.vMax), nullptr);
    for (Row* row : {&rows[rows.size() - 2], &rows.back()}) {
      row->expect = pelStatusScaleRangeError;
      row->order = {Check::Param, Check::Pointers, Check::Sizes, Check::Steps};
      row->shapes = {Layout{3, 2, ChannelsOf(layout)}};
    }
  }
}

struct Affine {
  double m, a;
};

template <class S, class D>
D ScaleCModel(S x, Affine k) {
  const double p = static_cast<double>(x) * k.m;
  const double v = p + k.a;
  if constexpr (std::is_floating_point_v<D>) return static_cast<D>(v);
  return Clamp<D>(std::nearbyint(v));
}

template <class S>
Fill ScaleCFill() {
  if constexpr (std::is_floating_point_v<S>) return FillBoundaries(-70000, 70000);
  return {};
}

template <class S, class D>
void AddScaleC(std::vector<Row>& rows, const char* name,
               PelStatus (*fn)(const S*, int, D*, int, PeliSize, Pel64f, Pel64f, PelHintAlgorithm)) {
  for (Affine k : {Affine{1.7, -3.25}, {0.5, 0.0}, {-300.0, 1e5}}) {
    AddMap<S, D>(rows, name, k.m == 1.7 ? "" : Tag("m", int(k.m)), 1, true, CallOf(fn, k.m, k.a, 0),
                 [k](S x) { return ScaleCModel<S, D>(x, k); }, ScaleCFill<S>());
  }
}

template <class T>
void AddScaleCInPlace(std::vector<Row>& rows, const char* name,
                      PelStatus (*fn)(T*, int, PeliSize, Pel64f, Pel64f, PelHintAlgorithm)) {
  const Affine k{0.5, 0.25};
  Arg img = InOut<T>();
  img.fill = ScaleCFill<T>();
  img.step = StepRule::Positive;
  Row r = MakeRow(name, "", {img}, [fn, k](Call& c) { return fn(c.p<T>(0), c.step(0), c.roi, k.m, k.a, pelHintAccurate); },
        [k](Model& m) {
          auto s = m.in<T>(0);
          auto d = m.out<T>(0);
          ForEachPixel(m.roi, [&](int x, int y) { d(x, y) = ScaleCModel<T, T>(s(x, y), k); });
          return pelStatusOk;
        });
  r.order = {Check::Pointers, Check::Sizes, Check::Steps};
  rows.push_back(r);
}

#define PEL_LAYOUTS(add, name) \
  add(rows, 1, PEL_NAMED(name##_C1R)); \
  add(rows, 3, PEL_NAMED(name##_C3R)); \
  add(rows, 4, PEL_NAMED(name##_C4R)); \
  add(rows, kAC4, PEL_NAMED(name##_AC4R));

#define PEL_SCALEC_ROW(s, d) AddScaleC(rows, PEL_NAMED(peliScaleC_##s##d##_C1R));
#define PEL_SCALEC_FROM(s)                                                                                    \
  AddScaleC(rows, PEL_NAMED(peliScaleC_##s##_C1R));                                                           \
  AddScaleCInPlace(rows, PEL_NAMED(peliScaleC_##s##_C1IR));

std::vector<Row> ConvertRows() {
  std::vector<Row> rows;
  PEL_LAYOUTS(AddWiden, peliConvert_8u16s)
  PEL_LAYOUTS(AddWiden, peliConvert_8u16u)
  PEL_LAYOUTS(AddWiden, peliConvert_8u32s)
  PEL_LAYOUTS(AddWiden, peliConvert_8u32f)
  PEL_LAYOUTS(AddWiden, peliConvert_8s32s)
  PEL_LAYOUTS(AddWiden, peliConvert_8s32f)
  PEL_LAYOUTS(AddWiden, peliConvert_16u32s)
  PEL_LAYOUTS(AddWiden, peliConvert_16u32f)
  PEL_LAYOUTS(AddWiden, peliConvert_16s32s)
  PEL_LAYOUTS(AddWiden, peliConvert_16s32f)
  AddWiden(rows, 1, PEL_NAMED(peliConvert_8s16s_C1R));
  AddWiden(rows, 1, PEL_NAMED(peliConvert_8s64f_C1R));
  AddWiden(rows, 1, PEL_NAMED(peliConvert_16u32u_C1R));
  AddWiden(rows, 1, PEL_NAMED(peliConvert_32s32f_C1R));
  AddWiden(rows, 1, PEL_NAMED(peliConvert_32u32f_C1R));
  PEL_LAYOUTS(AddNarrow, peliConvert_16s8u)
  PEL_LAYOUTS(AddNarrow, peliConvert_16u8u)
  PEL_LAYOUTS(AddNarrow, peliConvert_32s8u)
  PEL_LAYOUTS(AddNarrow, peliConvert_32s8s)
  AddUnsigned(rows, PEL_NAMED(peliConvert_8s8u_C1Rs));
  AddUnsigned(rows, PEL_NAMED(peliConvert_8s16u_C1Rs));
  AddUnsigned(rows, PEL_NAMED(peliConvert_8s32u_C1Rs));
  AddUnsigned(rows, PEL_NAMED(peliConvert_16s16u_C1Rs));
  AddUnsigned(rows, PEL_NAMED(peliConvert_16s32u_C1Rs));
  AddUnsigned(rows, PEL_NAMED(peliConvert_32s32u_C1Rs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_8u8s_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_16s8s_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_16u8s_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_16u16s_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_32s16s_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_32s16u_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_32u8u_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_32u8s_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_32u16u_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_32u16s_C1RSfs));
  AddIntegerSfs(rows, PEL_NAMED(peliConvert_32u32s_C1RSfs));
  PEL_LAYOUTS(AddFloatRound, peliConvert_32f8u)
  PEL_LAYOUTS(AddFloatRound, peliConvert_32f8s)
  PEL_LAYOUTS(AddFloatRound, peliConvert_32f16u)
  PEL_LAYOUTS(AddFloatRound, peliConvert_32f16s)
  AddFloatSfs(rows, PEL_NAMED(peliConvert_32f8u_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_32f8s_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_32f16u_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_32f16s_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_32f32s_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_32f32u_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_64f8u_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_64f8s_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_64f16u_C1RSfs));
  AddFloatSfs(rows, PEL_NAMED(peliConvert_64f16s_C1RSfs));
  AddFloatSfsInPlace(rows);
  PEL_LAYOUTS(AddScaleUp, peliScale_8u16u)
  PEL_LAYOUTS(AddScaleUp, peliScale_8u16s)
  PEL_LAYOUTS(AddScaleUp, peliScale_8u32s)
  PEL_LAYOUTS(AddScaleDown, peliScale_16u8u)
  PEL_LAYOUTS(AddScaleDown, peliScale_16s8u)
  PEL_LAYOUTS(AddScaleDown, peliScale_32s8u)
  AddScaleFloat(rows, 1, PEL_NAMED(peliScale_8u32f_C1R), PEL_NAMED(peliScale_32f8u_C1R));
  AddScaleFloat(rows, 3, PEL_NAMED(peliScale_8u32f_C3R), PEL_NAMED(peliScale_32f8u_C3R));
  AddScaleFloat(rows, 4, PEL_NAMED(peliScale_8u32f_C4R), PEL_NAMED(peliScale_32f8u_C4R));
  AddScaleFloat(rows, kAC4, PEL_NAMED(peliScale_8u32f_AC4R), PEL_NAMED(peliScale_32f8u_AC4R));
#define PEL_SCALEC_CROSS(s, a, b, c, d, e, f) \
  PEL_SCALEC_ROW(s, a) PEL_SCALEC_ROW(s, b) PEL_SCALEC_ROW(s, c) PEL_SCALEC_ROW(s, d) PEL_SCALEC_ROW(s, e) PEL_SCALEC_ROW(s, f)
  PEL_SCALEC_FROM(8u) PEL_SCALEC_CROSS(8u, 8s, 16u, 16s, 32s, 32f, 64f)
  PEL_SCALEC_FROM(8s) PEL_SCALEC_CROSS(8s, 8u, 16u, 16s, 32s, 32f, 64f)
  PEL_SCALEC_FROM(16u) PEL_SCALEC_CROSS(16u, 8u, 8s, 16s, 32s, 32f, 64f)
  PEL_SCALEC_FROM(16s) PEL_SCALEC_CROSS(16s, 8u, 8s, 16u, 32s, 32f, 64f)
  PEL_SCALEC_FROM(32s) PEL_SCALEC_CROSS(32s, 8u, 8s, 16u, 16s, 32f, 64f)
  PEL_SCALEC_FROM(32f) PEL_SCALEC_CROSS(32f, 8u, 8s, 16u, 16s, 32s, 64f)
  PEL_SCALEC_FROM(64f) PEL_SCALEC_CROSS(64f, 8u, 8s, 16u, 16s, 32s, 32f)
  return rows;
}

}  // namespace

PEL_ROWS(Convert, ConvertRows)
