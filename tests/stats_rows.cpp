// The statistics family as rows: a row a member (and a hint, a fill or a set
// of levels), each with a model that computes the results its own plain way.
// The runner does the rest (support/rows.h).
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

enum class Stat { Sum, Mean, Inf, L1, L2 };

// ---- Models of the reductions -------------------------------------------------------

// q[0..m) halved pairwise (q[j] = op(q[j], q[j + m/2])) until `keep` remain.
template <class F, class Op>
void Halve(F* q, int m, int keep, Op op) {
  for (; m > keep; m /= 2)
    for (int j = 0; j < m / 2; ++j) q[j] = op(q[j], q[j + m / 2]);
}

// Element (x, y, c) of argument a, minus that of b when b >= 0.
template <class F>
F Elem(Model& m, int a, int b, int x, int y, int c) {
  const F v = m.in<float>(a)(x, y, c);
  return b < 0 ? v : v - F(m.in<float>(b)(x, y, c));
}

float MaxStep(float p, float x) { const float v = std::fabs(x); return p > v ? p : v; }
float FastStep(Stat s, float p, float x) { return s == Stat::L1 ? p + std::fabs(x) : s == Stat::L2 ? p + x * x : p + x; }
double WideStep(Stat s, double p, double x) { return s == Stat::L1 ? p + std::fabs(x) : s == Stat::L2 ? p + x * x : p + x; }

// The single-precision structure of the fast float paths, written out once.
// Per row, interleaved element i adds to partial (i - h) mod k: k is 16 (48
// with three channels), h the elements of a one-channel row before its first
// 16-byte-aligned address (0 for differences and several channels). At the
// row's end the partials of channel c (every C-th) are halved pairwise to
// two values, both added to an extended-precision total. Infinity norms keep
// their partials from row to row and halve them to one at the end.
void FastFloat(Model& m, int C, int a, int b, Stat s, double out[4]) {
  const int k = C == 3 ? 48 : 16;
  const bool inf = s == Stat::Inf;
  long double total[4] = {};
  float p[48] = {};
  for (int y = 0; y < m.roi.height; ++y) {
    if (!inf) std::fill(p, p + 48, 0.0f);
    const int h = C == 1 && b < 0 ? int((0 - m.address(a, 0, y)) & 15) / 4 : 0;
    for (int x = 0; x < m.roi.width; ++x)
      for (int c = 0; c < C; ++c) {
        float& q = p[(x * C + c + k - h) % k];
        q = inf ? MaxStep(q, Elem<float>(m, a, b, x, y, c)) : FastStep(s, q, Elem<float>(m, a, b, x, y, c));
      }
    for (int c = 0; c < C && !inf; ++c) {
      float q[16];
      for (int j = 0; j < k / C; ++j) q[j] = p[c + j * C];
      Halve(q, k / C, 2, [](float u, float v) { return u + v; });
      total[c] += q[0];
      total[c] += q[1];
    }
  }
  for (int c = 0; c < C; ++c) {
    float q[16];
    for (int j = 0; j < k / C; ++j) q[j] = p[c + j * C];
    Halve(q, k / C, 1, [](float u, float v) { return u > v ? u : v; });
    out[c] = inf ? double{q[0]} : double(total[c]);
  }
}

// pelHintAccurate: per row element i (widened) adds to partial i mod k
// (k = 8, 24 with three channels), the partials of a channel are halved to
// one and added to the total; an odd one-channel row adds its last element
// singly after that.
void AccurateFloat(Model& m, int C, int a, int b, Stat s, double out[4]) {
  const int k = C == 3 ? 24 : 8, n = m.roi.width * C;
  const int paired = C == 1 ? n & ~1 : n;
  double total[4] = {};
  for (int y = 0; y < m.roi.height; ++y) {
    double p[24] = {};
    for (int i = 0; i < paired; ++i) p[i % k] = WideStep(s, p[i % k], Elem<double>(m, a, b, i / C, y, i % C));
    for (int c = 0; c < C; ++c) {
      double q[8];
      for (int j = 0; j < k / C; ++j) q[j] = p[c + j * C];
      Halve(q, k / C, 1, [](double u, double v) { return u + v; });
      total[c] += q[0];
    }
    if (paired < n) total[0] = WideStep(s, total[0], Elem<double>(m, a, b, n - 1, y, 0));
  }
  std::copy(total, total + C, out);
}

// Integers: exact in 64 bits.
template <class T>
void ExactInt(Model& m, int C, Stat s, int a, int b, double out[4]) {
  for (int c = 0; c < C; ++c) {
    int64_t sum = 0;
    uint64_t abs = 0, sq = 0, max = 0;
    ForEachPixel(m.roi, [&](int x, int y) {
      const int64_t d = int64_t{m.in<T>(a)(x, y, c)} - (b < 0 ? 0 : int64_t{m.in<T>(b)(x, y, c)});
      const uint64_t mag = static_cast<uint64_t>(d < 0 ? -d : d);
      sum += d;
      abs += mag;
      sq += mag * mag;
      max = std::max(max, mag);
    });
    out[c] = s == Stat::Inf ? double(max) : s == Stat::L1 ? double(abs) : s == Stat::L2 ? double(sq) : double(sum);
  }
}

template <class T>
void Compute(Model& m, int C, Stat s, int a, int b, int hint, double out[4]) {
  if constexpr (std::is_same_v<T, float>) {
    if (hint == pelHintAccurate && s != Stat::Inf) AccurateFloat(m, C, a, b, s, out);
    else FastFloat(m, C, a, b, s, out);
  } else {
    ExactInt<T>(m, C, s, a, b, out);
  }
  const auto count = static_cast<int32_t>(uint32_t(m.roi.width) * uint32_t(m.roi.height));
  for (int c = 0; c < C; ++c) {
    if (s == Stat::L2) out[c] = std::sqrt(out[c]);
    if (s == Stat::Mean) out[c] = C == 1 ? out[c] / count : out[c] * (1.0 / count);
  }
}

// A mix of special values: signed zeros, infinities, NaN, ties.
Fill FillSpecial() {
  return [](AnyView& v, std::mt19937& rng) {
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    const float pick[] = {0.0f, -0.0f, 1.0f, -1.0f, 2.5f, -7.0f, inf, -inf, nan, 1e30f, -1e30f, 3.0f};
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c)
          if (v.image().Has(x, y, c)) v.at<float>(x, y, c) = pick[rng() % 12];
  };
}

// Fixed values for an array argument (bounds, levels, level counts).
template <class T>
Fill Values(std::vector<double> values) {
  return [values](AnyView& v, std::mt19937&) {
    for (size_t i = 0; i < values.size(); ++i) v.at<T>(int(i), 0) = static_cast<T>(values[i]);
  };
}

Fill Zeros() {
  return [](AnyView& v, std::mt19937&) {
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c)
          if (v.image().Has(x, y, c)) std::memset(v.image().bytesAt(x, y, c), 0, v.type().bytes);
  };
}

// ---- Sums, means and norms ------------------------------------------------------------

template <class T, class F>
constexpr bool kTakesHint = std::is_invocable_v<F, const T*, int, PeliSize, Pel64f*, int> ||
                            std::is_invocable_v<F, const T*, int, const T*, int, PeliSize, Pel64f*, int>;

template <class T, class F>
void AddOne(std::vector<Row>& rows, const char* name, F fn, int C, Stat s) {
  constexpr bool kHint = kTakesHint<T, F>;
  for (int hint : {0, int{pelHintAccurate}}) {
    if (hint && !kHint) break;
    Arg src = In<T>(C);
    const bool norm = s != Stat::Sum && s != Stat::Mean;
    if (norm) src.step = StepRule::Positive;
    Row r{name, kHint ? "hint" + std::to_string(hint) : "", {src, Results<double>(C)},
          [fn, hint](Call& c) {
            (void)hint;
            if constexpr (kHint) return fn(c.p<T>(0), c.step(0), c.roi, c.p<double>(1), hint);
            else return fn(c.p<T>(0), c.step(0), c.roi, c.p<double>(1));
          },
          [C, s, hint](Model& m) {
            double v[4];
            Compute<T>(m, C, s, 0, -1, hint, v);
            for (int c = 0; c < C; ++c) m.out<double>(1)[c] = v[c];
            return pelStatusOk;
          }};
    if (norm) r.order = {Check::Pointers, Check::Sizes, Check::Steps};
    rows.push_back(r);
    if (std::is_same_v<T, float> && s == Stat::Inf) {
      r.variant = "special";
      r.args[0].fill = FillSpecial();
      rows.push_back(r);
    }
  }
}

// NormDiff (relative = false) and NormRel; the "zero" variant makes the
// reference image 0 (a quiet NaN where the difference is 0 too, +inf else).
template <class T, class F>
void AddTwo(std::vector<Row>& rows, const char* name, F fn, int C, Stat s, bool relative) {
  constexpr bool kHint = kTakesHint<T, F>;
  for (int hint : {0, int{pelHintAccurate}}) {
    if (hint && !kHint) break;
    for (int zero = 0; zero < (relative ? 2 : 1); ++zero) {
      Arg a = In<T>(C), b = In<T>(C);
      a.step = b.step = StepRule::Positive;
      if (zero) b.fill = Zeros();
      if (std::is_same_v<T, float> && s == Stat::Inf && hint == 0 && !zero) a.fill = b.fill = FillSpecial();
      Row r{name, (kHint ? "hint" + std::to_string(hint) : "") + (zero ? "zero" : ""), {a, b, Results<double>(C)},
            [fn, hint](Call& c) {
              (void)hint;
              if constexpr (kHint) return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, c.p<double>(2), hint);
              else return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, c.p<double>(2));
            },
            [C, s, hint, relative](Model& m) {
              double d[4], ref[4];
              Compute<T>(m, C, s, 0, 1, hint, d);
              if (relative) Compute<T>(m, C, s, 1, -1, hint, ref);
              PelStatus status = pelStatusOk;
              for (int c = 0; c < C; ++c) {
                double v = d[c];
                if (relative && ref[c] == 0) {
                  const uint64_t bits = d[c] == 0 ? 0xFFF8000000000000ull : 0x7FF0000000000000ull;
                  std::memcpy(&v, &bits, 8);
                  status = pelStatusDivByZeroWarning;
                } else if (relative) {
                  v = d[c] / ref[c];
                }
                m.out<double>(2)[c] = v;
              }
              return status;
            }};
      r.order = {Check::Pointers, Check::Sizes, Check::Steps};
      rows.push_back(r);
    }
  }
}

// ---- Dot products -------------------------------------------------------------------

template <class T, class F>
void AddDot(std::vector<Row>& rows, const char* name, F fn, int C, int used) {
  Arg a = In<T>(C), b = In<T>(C), dp = Results<double>(used);
  a.step = b.step = StepRule::NonZero;
  dp.zeroedAfter = Check::Pointers;
  Row r{name, "", {a, b, dp},
        [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, c.p<double>(2)); },
        [used](Model& m) {
          for (int c = 0; c < used; ++c) {
            double t = 0;
            ForEachPixel(m.roi, [&](int x, int y) { t += double(m.in<T>(0)(x, y, c)) * double(m.in<T>(1)(x, y, c)); });
            m.out<double>(2)[c] = t;
          }
          return pelStatusOk;
        }};
  r.order = {Check::Pointers, Check::Sizes, Check::Steps};
  r.badStepStatus = pelStatusBadSize;  // a zero step is a size error
  rows.push_back(r);
}

// ---- Extremes ---------------------------------------------------------------------------

// Per channel the first element (row-major) not beaten by any later one,
// NaN passed over, (0, 0) if nothing else; its bits, x and y.
template <class T>
void Extreme(Model& m, int used, bool isMax, int val, int xs, int ys) {
  auto s = m.in<T>(0);
  for (int c = 0; c < used; ++c) {
    int bx = -1, by = 0;
    ForEachPixel(m.roi, [&](int x, int y) {
      const T v = s(x, y, c);
      if (v != v) return;
      if (bx < 0 || (isMax ? v > s(bx, by, c) : v < s(bx, by, c))) bx = x, by = y;
    });
    if (bx < 0) bx = 0;
    std::memcpy(&m.out<T>(val)[c], &s(bx, by, c), sizeof(T));
    if (xs >= 0) m.out<int>(xs)[c] = bx;
    if (ys >= 0) m.out<int>(ys)[c] = by;
  }
}

enum class Ext { Min, Max, MinMax, MinIndx, MaxIndx };

template <class T, class F>
void AddExtreme(std::vector<Row>& rows, const char* name, F fn, int C, int used, Ext e) {
  std::vector<Arg> args{In<T>(C), Results<T>(used)};
  if (e == Ext::MinMax) args.push_back(Results<T>(used));
  if (e == Ext::MinIndx || e == Ext::MaxIndx) args.insert(args.end(), 2, Results<int>(used));
  Row r{name, "", args,
        [fn](Call& c) {
          if constexpr (std::is_invocable_v<F, const T*, int, PeliSize, T*>) return fn(c.p<T>(0), c.step(0), c.roi, c.p<T>(1));
          else if constexpr (std::is_invocable_v<F, const T*, int, PeliSize, T*, T*>) return fn(c.p<T>(0), c.step(0), c.roi, c.p<T>(1), c.p<T>(2));
          else return fn(c.p<T>(0), c.step(0), c.roi, c.p<T>(1), c.p<int>(2), c.p<int>(3));
        },
        [used, e](Model& m) {
          const bool indexed = e == Ext::MinIndx || e == Ext::MaxIndx;
          if (e != Ext::Max && e != Ext::MaxIndx) Extreme<T>(m, used, false, 1, indexed ? 2 : -1, indexed ? 3 : -1);
          if (e == Ext::Max || e == Ext::MaxIndx) Extreme<T>(m, used, true, 1, indexed ? 2 : -1, indexed ? 3 : -1);
          if (e == Ext::MinMax) Extreme<T>(m, used, true, 2, -1, -1);
          return pelStatusOk;
        }};
  rows.push_back(r);
  if (std::is_same_v<T, float>) {
    r.variant = "special";
    r.args[0].fill = FillSpecial();
    rows.push_back(r);
  }
}

// Element-wise: the first operand where strictly less (greater), else the
// second; AC4 leaves the destination's alpha.
template <class T, class F>
void AddEvery(std::vector<Row>& rows, const char* name, F fn, int C, int used, bool isMax) {
  constexpr bool kInPlace = std::is_invocable_v<F, const T*, int, T*, int, PeliSize>;
  std::vector<Arg> args{In<T>(C), kInPlace ? InOut<T>(C) : In<T>(C)};
  if (!kInPlace) args.push_back(Out<T>(C));
  for (int special = 0; special < (std::is_same_v<T, float> ? 2 : 1); ++special) {
    if (special) args[0].fill = args[1].fill = FillSpecial();
    rows.push_back({name, special ? "special" : "", args,
                    [fn](Call& c) {
                      if constexpr (kInPlace) return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi);
                      else return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.p<T>(2), c.step(2), c.roi);
                    },
                    [used, isMax](Model& m) {
                      auto d = m.out<T>(kInPlace ? 1 : 2);
                      ForEachPixel(m.roi, [&](int x, int y) {
                        for (int c = 0; c < used; ++c) {
                          const T a = m.in<T>(0)(x, y, c), b = m.in<T>(1)(x, y, c);
                          std::memcpy(&d(x, y, c), (isMax ? a > b : a < b) ? &m.in<T>(0)(x, y, c) : &m.in<T>(1)(x, y, c), sizeof(T));
                        }
                      });
                      return pelStatusOk;
                    }});
  }
}

// ---- Counting in a range -----------------------------------------------------------------

template <class T, class F>
void AddCount(std::vector<Row>& rows, const char* name, F fn, int C, std::vector<double> lo, std::vector<double> hi) {
  constexpr bool kByValue = std::is_invocable_v<F, const T*, int, PeliSize, int*, T, T>;
  const int used = C == 4 ? 3 : C;
  for (int reversed = 0; reversed < 2; ++reversed) {
    std::vector<double> l = lo, h = hi;
    if (reversed) std::swap(l[used > 1], h[used > 1]);  // channel 1's bounds (C1: 0) swapped
    Arg src = In<T>(C), lower = kByValue ? Value<T>() : Consts<T>(used), upper = lower;
    src.step = StepRule::Positive;
    lower.fill = Values<T>(l);
    upper.fill = Values<T>(h);
    Row r{name, reversed ? "reversed" : "", {src, Results<int>(used), lower, upper},
          [fn](Call& c) {
            if constexpr (kByValue) return fn(c.p<T>(0), c.step(0), c.roi, c.p<int>(1), c.v<T>(2), c.v<T>(3));
            else return fn(c.p<T>(0), c.step(0), c.roi, c.p<int>(1), c.p<T>(2), c.p<T>(3));
          },
          [used](Model& m) {
            for (int c = 0; c < used; ++c) {
              const T a = m.in<T>(2)[c], b = m.in<T>(3)[c];
              int n = 0;
              ForEachPixel(m.roi, [&](int x, int y) { n += a <= m.in<T>(0)(x, y, c) && m.in<T>(0)(x, y, c) <= b; });
              m.out<int>(1)[c] = n;
            }
            return pelStatusOk;
          }};
    r.order = {Check::Pointers, Check::Steps, Check::Sizes, Check::Param};
    if (reversed) r.expect = pelStatusRangeError;
    rows.push_back(r);
    if (std::is_same_v<T, float> && !reversed) {
      r.variant = "special";
      r.args[0].fill = FillSpecial();
      rows.push_back(r);
    }
  }
}

// ---- Histograms -------------------------------------------------------------------------

// Levels of up to four channels: uniform (lo, hi, n) or explicit.
struct Levels {
  PelDataType type;
  bool uniform;
  std::vector<float> lo, hi;
  std::vector<std::vector<float>> explicitLevels;
  int n(int c) const { return uniform ? nUniform[c] : int(explicitLevels[c].size()); }
  std::vector<int> nUniform;

  // What the spec holds: f64 steps, ends exact, integers truncated.
  double Held(int c, int k) const {
    double v;
    if (!uniform) {
      v = explicitLevels[c][k];
    } else {
      const double step = (double(hi[c]) - lo[c]) / (n(c) - 1);
      v = k == 0 ? lo[c] : k == n(c) - 1 ? hi[c] : lo[c] + k * step;
    }
    return type == pelType32f ? double(float(v)) : std::trunc(v);
  }
  PelStatus Init(int C, void* spec) const {
    std::vector<const float*> p;
    std::vector<int> counts;
    for (int c = 0; c < C; ++c) {
      counts.push_back(n(c));
      if (!uniform) p.push_back(explicitLevels[c].data());
    }
    auto* s = static_cast<PeliHistogramSpec*>(spec);
    return uniform ? peliHistogramUniformInit(type, lo.data(), hi.data(), counts.data(), C, s)
                   : peliHistogramInit(type, p.data(), counts.data(), C, s);
  }
  int SpecBytes(int C) const {
    int bytes = 64;
    for (int c = 0; c < C; ++c) bytes += 4 * n(c);
    return bytes;
  }
};

template <class T>
std::vector<Levels> LevelsOf() {
  const float inf = std::numeric_limits<float>::infinity();
  if constexpr (std::is_same_v<T, Pel8u>)
    return {{pelType8u, true, {0, 10, 0, 3}, {256, 200, 2, 250}, {}, {5, 7, 5, 9}},
            {pelType8u, false, {}, {}, {{0, 7, 7, 64.9f, 100, 255, 256, 300}, {-5, 3, 128, 129}, {0, 255}, {1, 2, 3, 250, 251}}, {}}};
  else if constexpr (std::is_same_v<T, Pel16u>)
    return {{pelType16u, true, {0, 1000, 0, 65000}, {65536, 60000, 65535, 65536}, {}, {9, 5, 17, 3}},
            {pelType16u, false, {}, {}, {{0, 100, 30000, 30000, 65535}, {-10, 70000}, {5, 6, 40000}, {0, 65536}}, {}}};
  else if constexpr (std::is_same_v<T, Pel16s>)
    return {{pelType16s, true, {-32768, -40000, -100, 0}, {32768, 40000, 100, 3}, {}, {9, 11, 5, 7}},
            {pelType16s, false, {}, {}, {{-32768, -1, 0, 1, 32767}, {-40000, 0, 40000}, {-100.5f, 100}, {-5, -4, 30000}}, {}}};
  else
    return {{pelType32f, true, {-5e5f, -1e6f, 0, -1}, {5e5f, 1e6f, 3e5f, 1}, {}, {11, 4, 7, 3}},
            {pelType32f, false, {}, {}, {{-1e6f, -5.5f, 0, 0, 2e5f, 9e5f}, {-inf, 0, inf}, {-3e5f, 3e5f}, {1, 2}}, {}}};
}

// The spec filled by Init (the "bad" variant: a spec that is not one).
Fill SpecFill(Levels L, int C, bool bad) {
  return [L, C, bad](AnyView& v, std::mt19937&) {
    if (bad) std::memset(v.image().bytesAt(0, 0), 0, 64);
    else L.Init(C, v.image().bytesAt(0, 0));
  };
}

template <class T, class F>
void AddHistogram(std::vector<Row>& rows, const char* name, F fn, int C) {
  for (const Levels& L : LevelsOf<T>()) {
    for (int bad = 0; bad < (L.uniform ? 2 : 1); ++bad) {
      std::vector<int> counts;
      for (int c = 0; c < C; ++c) counts.push_back(L.n(c));
      int specBytes = 0, bufferBytes = 0;
      peliHistogramGetBufferSize(L.type, PeliSize{1, 1}, counts.data(), C, L.uniform, &specBytes, &bufferBytes);
      Arg src = In<T>(C), spec = Consts<Pel8u>(specBytes), buffer = Results<Pel8u>(bufferBytes);
      src.step = StepRule::RowBytes;
      spec.fill = SpecFill(L, C, bad);
      buffer.scratch = true;
      std::vector<Arg> args{src, spec, buffer};
      for (int c = 0; c < C; ++c) args.push_back(Results<Pel32u>(L.n(c) - 1));
      Row r{name, std::string(L.uniform ? "uniform" : "levels") + (bad ? "bad" : ""), args,
            [fn, C](Call& c) {
              (void)C;
              const auto* s = reinterpret_cast<const PeliHistogramSpec*>(c.p<Pel8u>(1));
              if constexpr (std::is_invocable_v<F, const T*, int, PeliSize, Pel32u*, const PeliHistogramSpec*, Pel8u*>)
                return fn(c.p<T>(0), c.step(0), c.roi, c.p<Pel32u>(3), s, c.p<Pel8u>(2));
              else
                return fn(c.p<T>(0), c.step(0), c.roi, C == 3 ? c.planes<Pel32u>({3, 4, 5}) : c.planes<Pel32u>({3, 4, 5, 6}), s, c.p<Pel8u>(2));
            },
            [L, C](Model& m) {
              for (int c = 0; c < C; ++c) {
                auto hist = m.out<Pel32u>(3 + c);
                for (int k = 0; k + 1 < L.n(c); ++k) {
                  uint32_t n = 0;
                  ForEachPixel(m.roi, [&](int x, int y) {
                    const double v = m.in<T>(0)(x, y, c);
                    n += L.Held(c, k) <= v && v < L.Held(c, k + 1);
                  });
                  hist[k] = n;
                }
              }
              return pelStatusOk;
            }};
      r.order = {Check::Pointers, Check::Sizes, Check::Steps, Check::Param};
      if (bad) r.expect = pelStatusBadArgument;
      if (std::is_same_v<T, float> && !L.uniform) r.args[0].fill = FillSpecial();
      // The 16-bit count table (256 KiB) makes every shape costly; these
      // kernels are not dispatched, so a few shapes say enough.
      if (sizeof(T) == 2 || bad)
        r.shapes = {Layout{1, 1, C}, Layout{17, 3, C, 8, 4, true}, Layout{65, 2, C, 16, 8},
                    Layout{33, 3, C, 0, 0, false, Fence::AtEnd}};
      rows.push_back(r);
    }
  }
}

// The spec's documented layout: type, channels, uniform, "hist", levels per
// channel, byte offset of each channel's levels, f32 uniform step, levels.
void SpecModel(View<Pel8u> out, const Levels& L, int C) {
  auto put = [&](int at, const void* p) { std::memcpy(&out[at], p, 4); };
  const int32_t head[4] = {L.type, C, L.uniform, 0x74736968};
  for (int w = 0; w < 4; ++w) put(4 * w, &head[w]);
  int offset = 64;
  for (int c = 0; c < 4; ++c) {
    const int32_t n = c < C ? L.n(c) : 0, at = c < C ? offset : 0;
    const float step = c < C && L.uniform && L.type == pelType32f ? float((double(L.hi[c]) - L.lo[c]) / (n - 1)) : 0.0f;
    put(16 + 4 * c, &n);
    put(32 + 4 * c, &at);
    put(48 + 4 * c, &step);
    for (int k = 0; k < n; ++k, offset += 4) {
      const float f = float(L.Held(c, k));
      const int32_t i = int32_t(L.Held(c, k));
      put(offset, L.type == pelType32f ? static_cast<const void*>(&f) : &i);
    }
  }
}

// Init, UniformInit and GetLevels of one set of levels; `status` is what
// Init returns (a bad-parameter row when negative, with its check order).
void AddLevels(std::vector<Row>& rows, const std::string& variant, const Levels& L, int C, PelStatus status,
               std::vector<Check> order = {Check::Pointers}) {
  const int specArg = L.uniform ? 3 : C + 1;
  std::vector<Arg> args;
  if (L.uniform) {
    args = {Consts<float>(C), Consts<float>(C), Consts<int>(C)};
    args[0].fill = Values<float>({L.lo.begin(), L.lo.begin() + C});
    args[1].fill = Values<float>({L.hi.begin(), L.hi.begin() + C});
    args[2].fill = Values<int>({L.nUniform.begin(), L.nUniform.begin() + C});
  } else {
    std::vector<double> n;
    for (int c = 0; c < C; ++c) {
      args.push_back(Consts<float>(L.n(c)));
      args.back().fill = Values<float>({L.explicitLevels[c].begin(), L.explicitLevels[c].end()});
      n.push_back(L.n(c));
    }
    args.push_back(Consts<int>(C));
    args.back().fill = Values<int>(n);
  }
  args.push_back(Results<Pel8u>(std::max(64, L.SpecBytes(std::max(C, 1)))));
  auto planes = [C](Call& c, int first) {
    return C == 1 ? c.planes<float>({first}) : c.planes<float>({first, first + 1, first + 2});
  };
  Row init{L.uniform ? "peliHistogramUniformInit" : "peliHistogramInit", variant, args,
           [L, C, specArg, planes](Call& c) {
             auto* s = reinterpret_cast<PeliHistogramSpec*>(c.p<Pel8u>(specArg));
             if (L.uniform) return peliHistogramUniformInit(L.type, c.p<float>(0), c.p<float>(1), c.p<int>(2), C, s);
             return peliHistogramInit(L.type, reinterpret_cast<const float* const*>(planes(c, 0)), c.p<int>(C), C, s);
           },
           [L, C, specArg, status](Model& m) {
             SpecModel(m.out<Pel8u>(specArg), L, C);
             return status;
           }};
  init.order = order;
  if (status < 0) init.expect = status;
  init.shapes = {Layout{1, 1}};
  rows.push_back(init);
  if (status < 0) return;
  for (int bad = 0; bad < 2; ++bad) {
    Arg spec = Consts<Pel8u>(L.SpecBytes(C));
    spec.fill = SpecFill(L, C, bad);
    std::vector<Arg> out{spec};
    for (int c = 0; c < C; ++c) {
      out.push_back(Results<float>(L.n(c)));
      out.back().latePointer = true;  // known only from a valid spec
    }
    Row get{"peliHistogramGetLevels", variant + (bad ? "bad" : ""), out,
            [planes](Call& c) { return peliHistogramGetLevels(reinterpret_cast<const PeliHistogramSpec*>(c.p<Pel8u>(0)), planes(c, 1)); },
            [L, C](Model& m) {
              for (int c = 0; c < C; ++c)
                for (int k = 0; k < L.n(c); ++k) m.out<float>(1 + c)[k] = float(L.Held(c, k));
              return pelStatusOk;
            }};
    get.shapes = {Layout{1, 1}};
    get.order = {Check::Pointers, Check::Param, Check::LatePointers};
    if (bad) get.expect = pelStatusBadArgument;
    rows.push_back(get);
    if (L.type != pelType8u || C != 1) break;  // one bad spec is enough
  }
}

// UniformInit warns when an integer channel's step is below 1.
PelStatus InitStatus(const Levels& L, int C) {
  for (int c = 0; c < C && L.uniform && L.type != pelType32f; ++c)
    if ((double(L.hi[c]) - L.lo[c]) / (L.n(c) - 1) < 1.0) return pelStatusAdjusted;
  return pelStatusOk;
}

void AddSetup(std::vector<Row>& rows) {
  for (auto all : {LevelsOf<Pel8u>(), LevelsOf<Pel16u>(), LevelsOf<Pel16s>(), LevelsOf<Pel32f>()}) {
    for (const Levels& L : all) {
      const std::string t = (L.uniform ? "uniform" : "levels") + std::to_string(L.type);
      AddLevels(rows, t + "C1", L, 1, InitStatus(L, 1));
      AddLevels(rows, t + "C3", L, 3, InitStatus(L, 3));
    }
  }
  Levels u = LevelsOf<Pel8u>()[0], e = LevelsOf<Pel8u>()[1];
  Levels badType = u, badLevels = e, badRange = u, oneLevel = u;
  badType.type = 3;
  std::swap(badLevels.explicitLevels[0][1], badLevels.explicitLevels[0][3]);
  badRange.hi[0] = badRange.lo[0];
  oneLevel.nUniform[0] = 1;
  AddLevels(rows, "badType", badType, 1, pelStatusDataTypeError, {Check::Param, Check::Pointers});
  AddLevels(rows, "badChannels", u, 2, pelStatusChannelsNotSupported, {Check::Pointers, Check::Param});
  AddLevels(rows, "descending", badLevels, 1, pelStatusRangeError, {Check::Pointers, Check::Param});
  AddLevels(rows, "emptyRange", badRange, 1, pelStatusRangeError, {Check::Pointers, Check::Param});
  AddLevels(rows, "oneLevel", oneLevel, 1, pelStatusHistogramLevelsError, {Check::Pointers, Check::Param});
  // GetBufferSize: the spec's bytes; the buffer's size is the Histogram
  // rows' business (they allocate exactly that much).
  struct Case { const char* name; PelDataType type; int C; std::vector<double> n; PelStatus status; };
  for (const Case& k : {Case{"8uC1", pelType8u, 1, {256}, 0}, Case{"16uC3", pelType16u, 3, {2, 9, 17}, 0},
                        Case{"16sC4", pelType16s, 4, {3, 3, 3, 3}, 0}, Case{"32fC1", pelType32f, 1, {1000}, 0},
                        Case{"badType", 2, 1, {5}, pelStatusDataTypeError}, Case{"badChannels", pelType8u, 5, {5, 5, 5, 5, 5}, pelStatusChannelsNotSupported},
                        Case{"oneLevel", pelType8u, 3, {5, 1, 5}, pelStatusHistogramLevelsError}}) {
    Arg n = Consts<int>(int(k.n.size())), bufferSize = Results<int>(1);
    n.fill = Values<int>(k.n);
    bufferSize.scratch = true;
    Row r{"peliHistogramGetBufferSize", k.name, {n, Results<int>(1), bufferSize},
          [k](Call& c) { return peliHistogramGetBufferSize(k.type, c.roi, c.p<int>(0), k.C, 1, c.p<int>(1), c.p<int>(2)); },
          [k](Model& m) {
            int bytes = 64;
            for (double v : k.n) bytes += 4 * int(v);
            m.out<int>(1)[0] = bytes;
            return pelStatusOk;
          }};
    r.shapes = {Layout{1, 1}, Layout{3000, 2000}};
    if (k.status != 0) {
      r.expect = k.status;
      r.order = k.status == pelStatusDataTypeError ? std::vector<Check>{Check::Param, Check::Pointers, Check::Sizes}
                                                   : std::vector<Check>{Check::Pointers, Check::Sizes, Check::Param};
    }
    rows.push_back(r);
  }
}

// ---- The table ------------------------------------------------------------------------------

#define PEL_STATS_CHANNELS(add, T, name, ...) \
  add<T>(rows, PEL_NAMED(name##_C1R), 1 __VA_OPT__(,) __VA_ARGS__); \
  add<T>(rows, PEL_NAMED(name##_C3R), 3 __VA_OPT__(,) __VA_ARGS__); \
  add<T>(rows, PEL_NAMED(name##_C4R), 4 __VA_OPT__(,) __VA_ARGS__);
#define PEL_STATS_LAYOUTS(add, T, name, ...) \
  add<T>(rows, PEL_NAMED(name##_C1R), 1, 1 __VA_OPT__(,) __VA_ARGS__); \
  add<T>(rows, PEL_NAMED(name##_C3R), 3, 3 __VA_OPT__(,) __VA_ARGS__); \
  add<T>(rows, PEL_NAMED(name##_C4R), 4, 4 __VA_OPT__(,) __VA_ARGS__); \
  add<T>(rows, PEL_NAMED(name##_AC4R), 4, 3 __VA_OPT__(,) __VA_ARGS__);
#define PEL_STATS_NORMS(T, t, kind)                                        \
  PEL_STATS_CHANNELS(AddOne, T, peliNorm_##kind##_##t, Stat::kind)         \
  PEL_STATS_CHANNELS(AddTwo, T, peliNormDiff_##kind##_##t, Stat::kind, false) \
  PEL_STATS_CHANNELS(AddTwo, T, peliNormRel_##kind##_##t, Stat::kind, true)
#define PEL_STATS_TYPE(T, t)                                               \
  PEL_STATS_CHANNELS(AddOne, T, peliSum_##t, Stat::Sum)                    \
  PEL_STATS_CHANNELS(AddOne, T, peliMean_##t, Stat::Mean)                  \
  PEL_STATS_NORMS(T, t, Inf)                                               \
  PEL_STATS_NORMS(T, t, L1)                                                \
  PEL_STATS_NORMS(T, t, L2)                                                \
  PEL_STATS_LAYOUTS(AddDot, T, peliDotProd_##t##64f)                       \
  PEL_STATS_LAYOUTS(AddExtreme, T, peliMin_##t, Ext::Min)                  \
  PEL_STATS_LAYOUTS(AddExtreme, T, peliMax_##t, Ext::Max)                  \
  PEL_STATS_LAYOUTS(AddExtreme, T, peliMinMax_##t, Ext::MinMax)            \
  PEL_STATS_LAYOUTS(AddExtreme, T, peliMinIndx_##t, Ext::MinIndx)          \
  PEL_STATS_LAYOUTS(AddExtreme, T, peliMaxIndx_##t, Ext::MaxIndx)          \
  PEL_STATS_LAYOUTS(AddEvery, T, peliMinEvery_##t, false)                  \
  PEL_STATS_LAYOUTS(AddEvery, T, peliMaxEvery_##t, true)                   \
  PEL_STATS_CHANNELS(AddHistogram, T, peliHistogram_##t)

#define PEL_STATS_EVERY_IR(T, t)                                           \
  AddEvery<T>(rows, PEL_NAMED(peliMinEvery_##t##_C1IR), 1, 1, false);      \
  AddEvery<T>(rows, PEL_NAMED(peliMinEvery_##t##_C3IR), 3, 3, false);      \
  AddEvery<T>(rows, PEL_NAMED(peliMinEvery_##t##_C4IR), 4, 4, false);      \
  AddEvery<T>(rows, PEL_NAMED(peliMinEvery_##t##_AC4IR), 4, 3, false);     \
  AddEvery<T>(rows, PEL_NAMED(peliMaxEvery_##t##_C1IR), 1, 1, true);       \
  AddEvery<T>(rows, PEL_NAMED(peliMaxEvery_##t##_C3IR), 3, 3, true);       \
  AddEvery<T>(rows, PEL_NAMED(peliMaxEvery_##t##_C4IR), 4, 4, true);       \
  AddEvery<T>(rows, PEL_NAMED(peliMaxEvery_##t##_AC4IR), 4, 3, true);

std::vector<Row> StatsRows() {
  std::vector<Row> rows;
  PEL_STATS_TYPE(Pel8u, 8u)
  PEL_STATS_TYPE(Pel16u, 16u)
  PEL_STATS_TYPE(Pel16s, 16s)
  PEL_STATS_TYPE(Pel32f, 32f)
  PEL_STATS_EVERY_IR(Pel8u, 8u)
  PEL_STATS_EVERY_IR(Pel16u, 16u)
  PEL_STATS_EVERY_IR(Pel16s, 16s)
  PEL_STATS_EVERY_IR(Pel32f, 32f)
  PEL_STATS_LAYOUTS(AddDot, Pel32u, peliDotProd_32u64f)
  PEL_STATS_LAYOUTS(AddDot, Pel32s, peliDotProd_32s64f)
  AddCount<Pel8u>(rows, PEL_NAMED(peliCountInRange_8u_C1R), 1, {50}, {180});
  AddCount<Pel8u>(rows, PEL_NAMED(peliCountInRange_8u_C3R), 3, {50, 0, 77}, {180, 255, 77});
  AddCount<Pel8u>(rows, PEL_NAMED(peliCountInRange_8u_AC4R), 4, {50, 0, 77}, {180, 255, 77});
  AddCount<Pel32f>(rows, PEL_NAMED(peliCountInRange_32f_C1R), 1, {-2e5}, {3e5});
  AddCount<Pel32f>(rows, PEL_NAMED(peliCountInRange_32f_C3R), 3, {-2e5, -1e6, 0}, {3e5, 1e6, 2.5});
  AddCount<Pel32f>(rows, PEL_NAMED(peliCountInRange_32f_AC4R), 4, {-2e5, -1e6, 0}, {3e5, 1e6, 2.5});
  AddSetup(rows);
  return rows;
}

}  // namespace

PEL_ROWS(Stats, StatsRows)
