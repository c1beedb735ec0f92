// The filters as rows. Every model builds the extended source pixel by pixel
// from the border rule's definition (in-memory sides read where they lie,
// replicate clamps, mirror reflects again and again, constant gives the
// value) and applies the filter's definition to each neighbourhood: a
// correlation in the documented order of sums, a sorted neighbourhood's
// middle, a mean, an extreme.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

// A name piece; also keeps GCC 12's -Wrestrict quiet about literal + string.
std::string Tag(const char* prefix, long value) {
  std::string s(prefix);
  s += std::to_string(value);
  return s;
}

// Guard bytes after each work buffer and spec.
constexpr size_t kGuard = 64;
PelStatus Guarded(PelStatus status, const std::vector<uint8_t>& b) {
  const bool intact = std::all_of(b.end() - kGuard, b.end(), [](uint8_t v) { return v == 0xA5; });
  return intact ? status : static_cast<PelStatus>(-9999);
}

// ---- The extended source ---------------------------------------------------------

struct Mask {
  int kw, kh, border;
  int ax() const { return (kw - 1) >> 1; }
  int ay() const { return (kh - 1) >> 1; }
  bool mem(int flag) const { return border == pelBorderInMem || (border & flag) != 0; }
  // Pixels of memory around the ROI: only on in-memory sides, so that a
  // fenced source catches a read of a side that should be synthesised.
  int left() const { return mem(pelBorderInMemLeft) ? ax() : 0; }
  int top() const { return mem(pelBorderInMemTop) ? ay() : 0; }
  int right() const { return mem(pelBorderInMemRight) ? kw - ax() - 1 : 0; }
  int bottom() const { return mem(pelBorderInMemBottom) ? kh - ay() - 1 : 0; }
  std::string Name() const { return std::to_string(kw) + Tag("x", kh) + Tag("b", border); }
};

int MapInto(int v, int n, int kind) {
  if (kind != pelBorderMirror) return std::clamp(v, 0, n - 1);
  if (n == 1) return 0;
  while (v < 0 || v >= n) v = v < 0 ? -v : 2 * (n - 1) - v;
  return v;
}

// Source pixel (x, y, c) in ROI coordinates, extended by the mask's rule.
template <class T>
T Ext(View<T>& s, const Mask& k, PeliSize roi, int x, int y, int c, const T* value) {
  const bool inX = (x >= 0 && x < roi.width) || (x < 0 && k.mem(pelBorderInMemLeft)) ||
                   (x >= roi.width && k.mem(pelBorderInMemRight));
  const bool inY = (y >= 0 && y < roi.height) || (y < 0 && k.mem(pelBorderInMemTop)) ||
                   (y >= roi.height && k.mem(pelBorderInMemBottom));
  const int kind = k.border == pelBorderInMem ? pelBorderReplicate : k.border & 15;
  if (kind == pelBorderConstant && (!inX || !inY)) return value[c];
  return s((inX ? x : MapInto(x, roi.width, kind)) + k.left(), (inY ? y : MapInto(y, roi.height, kind)) + k.top(), c);
}

template <class T>
Arg Source(int C, const Mask& k) {
  Arg a = In<T>(C);
  a.size = [k](PeliSize s) { return PeliSize{s.width + k.left() + k.right(), s.height + k.top() + k.bottom()}; };
  if constexpr (std::is_floating_point_v<T>) a.fill = FillRange(-100, 100);
  return a;
}

// The ROI's first pixel inside the source argument.
template <class T>
const T* RoiOf(Call& c, const Mask& k, int C) {
  const T* p = c.p<T>(0);
  return p ? reinterpret_cast<const T*>(reinterpret_cast<const uint8_t*>(p) + ptrdiff_t{k.top()} * c.step(0)) +
                 k.left() * C
           : p;
}

// Writes dst(x, y, c) = f(neighbourhood of (x, y, c) as a vector, row by row)
// for the W written channels.
template <class T, class F>
PelStatus NeighbourModel(Model& m, const Mask& k, int W, const T* value, F&& f) {
  auto s = m.in<T>(0);
  auto d = m.out<T>(1);
  std::vector<T> hood(static_cast<size_t>(k.kw * k.kh));
  ForEachPixel(m.roi, [&](int x, int y) {
    for (int c = 0; c < W; ++c) {
      for (int i = 0; i < k.kh; ++i)
        for (int j = 0; j < k.kw; ++j) hood[i * k.kw + j] = Ext(s, k, m.roi, x + j - k.ax(), y + i - k.ay(), c, value);
      d(x, y, c) = f(hood);
    }
  });
  return pelStatusOk;
}

template <class T>
std::vector<T> ValueOf(Model& m, int arg, int n) {
  std::vector<T> v(4);
  for (int c = 0; c < n; ++c) v[c] = m.in<T>(arg)[c];
  return v;
}

// ---- General filter -----------------------------------------------------------------

template <class T>
constexpr PelDataType TypeCode() {
  if constexpr (std::is_same_v<T, Pel8u>) return pelType8u;
  else if constexpr (std::is_same_v<T, Pel16u>) return pelType16u;
  else if constexpr (std::is_same_v<T, Pel16s>) return pelType16s;
  else if constexpr (std::is_same_v<T, Pel32f>) return pelType32f;
  else return pelType64f;
}

// A kernel for the general filter: integer (with its divisor) or float.
struct Kernel {
  Mask k;
  int divisor;  // 0: a float kernel (64f data: a 64f kernel)
  int round;
  int offset = 0;
  std::string Name() const {
    return k.Name() + (divisor ? Tag("d", divisor) : "f") + Tag("r", round) +
           (offset ? Tag("o", offset) : "");
  }
};

double Coefficient(int n, bool integral) {
  const int v = (n * 7 + 3) % 9 - 4;  // -4 .. 4, mixed signs
  return integral ? v : v * 0.37 + 0.01 * n;
}

float RoundF(float v, int round) {
  if (round == 0) return std::trunc(v);
  if (round == 1) return std::nearbyint(v);
  return std::trunc(v + std::copysign(0.5f, v));
}

template <class T>
T Narrow(double v) {
  if constexpr (std::is_floating_point_v<T>) return static_cast<T>(v);
  else return static_cast<T>(std::clamp(v, double(std::numeric_limits<T>::min()), double(std::numeric_limits<T>::max())));
}

template <class T>
using FilterFn = PelStatus (*)(const T*, int, T*, int, PeliSize, PeliBorderType, const T*, const PeliFilterBorderSpec*,
                               Pel8u*);

// The spec and buffer of one call, made by the library's own set-up calls.
template <class T>
struct Prepared {
  std::vector<uint8_t> spec, buffer;
  PelStatus status = pelStatusOk;
  Prepared(const Kernel& kn, PeliSize roi, int C) {
    const bool integral = kn.divisor != 0 && !std::is_same_v<T, Pel64f>;
    const PelDataType kt = std::is_same_v<T, Pel64f> ? pelType64f : integral ? pelType16s : pelType32f;
    int specSize = 0, bufSize = 0;
    const PeliSize safe{std::max(roi.width, 1), std::max(roi.height, 1)};
    peliFilterBorderGetSize({kn.k.kw, kn.k.kh}, safe, TypeCode<T>(), kt, C, &specSize, &bufSize);
    spec.resize(size_t(specSize) + kGuard, 0xA5);
    buffer.resize(size_t(bufSize) + kGuard, 0xA5);
    std::fill(buffer.begin(), buffer.end() - kGuard, uint8_t{0});
    std::fill(spec.begin(), spec.end() - kGuard, uint8_t{0});
    const int n = kn.k.kw * kn.k.kh;
    auto* s = reinterpret_cast<PeliFilterBorderSpec*>(spec.data());
    if (std::is_same_v<T, Pel64f>) {
      std::vector<Pel64f> kd(n);
      for (int i = 0; i < n; ++i) kd[i] = Coefficient(i, false);
      status = peliFilterBorderInit_64f(kd.data(), {kn.k.kw, kn.k.kh}, pelType64f, 1, pelRoundNear, s);
    } else if (integral) {
      std::vector<Pel16s> ki(n);
      for (int i = 0; i < n; ++i) ki[i] = static_cast<Pel16s>(Coefficient(i, true));
      status = peliFilterBorderInit_16s(ki.data(), {kn.k.kw, kn.k.kh}, kn.divisor, TypeCode<T>(), C, kn.round, s);
    } else {
      std::vector<Pel32f> kf(n);
      for (int i = 0; i < n; ++i) kf[i] = static_cast<Pel32f>(Coefficient(i, false));
      status = peliFilterBorderInit_32f(kf.data(), {kn.k.kw, kn.k.kh}, TypeCode<T>(), C, kn.round, s);
    }
    if (kn.offset) peliFilterBorderSetMode(0, kn.offset, s);
  }
};

// The correlation of one channel at (x, y) by the documented arithmetic.
template <class T>
T Correlate(View<T>& s, const Kernel& kn, PeliSize roi, int C, int x, int y, int c, const T* value) {
  const Mask& k = kn.k;
  auto px = [&](int i, int j) { return Ext(s, k, roi, x + j - k.ax(), y + i - k.ay(), c, value); };
  const bool integral = kn.divisor != 0 && !std::is_same_v<T, Pel64f>;
  const bool floatPath = TypeCode<T>() == pelType16u ||
                         (TypeCode<T>() == pelType16s && (C >= 3 || k.kw == 1 || k.kh == 1 || (C == 1 && k.kw < 3)));
  if constexpr (std::is_same_v<T, Pel64f>) {
    double acc = 0;
    for (int i = 0; i < k.kh; ++i)
      for (int j = 0; j < k.kw; ++j) acc = acc + Coefficient(i * k.kw + j, false) * px(i, j);
    return acc;
  } else if (integral && !floatPath) {
    int64_t acc = int64_t{kn.offset} * kn.divisor;
    for (int i = 0; i < k.kh; ++i)
      for (int j = 0; j < k.kw; ++j) acc += static_cast<int64_t>(Coefficient(i * k.kw + j, true)) * px(i, j);
    const int d = kn.divisor;
    if (d == 1) return Narrow<T>(double(acc));
    if (d > 0 && (d & (d - 1)) == 0) {
      const double q = double(acc) / d;  // exact
      return Narrow<T>(kn.round == 0 ? std::trunc(q) : kn.round == 1 ? std::nearbyint(q) : std::trunc(q + std::copysign(0.5, q)));
    }
    return Narrow<T>(RoundF(static_cast<float>(acc) * (1.0f / static_cast<float>(d)), kn.round));
  } else {
    float acc = 0;
    for (int i = 0; i < k.kh; ++i)
      for (int j = 0; j < k.kw; ++j) {
        const int idx = i * k.kw + j;
        const float coef = integral ? static_cast<float>(Coefficient(idx, true) * (1.0 / kn.divisor))
                                    : static_cast<float>(Coefficient(idx, false));
        acc = acc + coef * static_cast<float>(px(i, j));
      }
    acc = acc + static_cast<float>(kn.offset);
    if constexpr (std::is_same_v<T, Pel32f>) return acc;
    else return Narrow<T>(RoundF(acc, kn.round));
  }
}

template <class T>
void AddFilter(std::vector<Row>& rows, const char* name, FilterFn<T> fn, int C, const Kernel& kn,
               PelStatus expect = pelStatusOk) {
  const Mask k = kn.k;
  std::vector<Arg> args{Source<T>(C, k), Out<T>(C)};
  args[0].step = StepRule::Positive;
  args[1].step = StepRule::RowBytes;
  const bool constant = (k.border & 15) == pelBorderConstant;
  if (constant) args.push_back(Consts<T>(C));
  std::vector<Check> order{Check::Pointers, Check::Sizes, Check::Steps};
  if (expect != pelStatusOk) order.push_back(Check::Param);
  rows.push_back({name, kn.Name(), args,
                  [=](Call& c) {
                    Prepared<T> p(kn, c.roi, C);
                    const PelStatus st = fn(RoiOf<T>(c, k, C), c.step(0), c.p<T>(1), c.step(1), c.roi, k.border,
                                            constant ? c.p<T>(2) : nullptr,
                                            c.own(0, reinterpret_cast<const PeliFilterBorderSpec*>(p.spec.data())),
                                            c.own(1, p.buffer.data()));
                    return Guarded(Guarded(st, p.buffer), p.spec);
                  },
                  [=](Model& m) -> PelStatus {
                    if (expect != pelStatusOk) return expect;
                    const std::vector<T> value = constant ? ValueOf<T>(m, 2, C) : std::vector<T>(4);
                    auto s = m.in<T>(0);
                    auto d = m.out<T>(1);
                    ForEachPixel(m.roi, [&](int x, int y) {
                      for (int ch = 0; ch < C; ++ch) d(x, y, ch) = Correlate(s, kn, m.roi, C, x, y, ch, value.data());
                    });
                    return pelStatusOk;
                  },
                  order, expect});
}

// Every type and layout meets an integer and a float kernel, odd and even
// sizes, each border kind and in-memory sides.
template <class T>
void AddFilters(std::vector<Row>& rows, const char* name, FilterFn<T> fn, int C) {
  const bool f64 = std::is_same_v<T, Pel64f>;
  const int intDiv = std::is_floating_point_v<T> ? 0 : 8;
  AddFilter<T>(rows, name, fn, C, {{3, 3, pelBorderReplicate}, intDiv, 1});
  AddFilter<T>(rows, name, fn, C, {{5, 4, pelBorderMirror | pelBorderInMemTop}, f64 ? 1 : 0, 2});
  AddFilter<T>(rows, name, fn, C, {{4, 1, pelBorderConstant | pelBorderInMemRight}, intDiv ? -4 : 0, 0});
  AddFilter<T>(rows, name, fn, C, {{2, 3, pelBorderInMem}, intDiv ? 3 : 0, 2});
}

// ---- Rank filters ------------------------------------------------------------------------

template <class T>
using RankFn = PelStatus (*)(const T*, int, T*, int, PeliSize, PeliSize, PeliBorderType, T, Pel8u*);
template <class T>
using BoxFn = PelStatus (*)(const T*, int, T*, int, PeliSize, PeliSize, PeliBorderType, const T*, Pel8u*);
using SizeFn = PelStatus (*)(PeliSize, PeliSize, PelDataType, int, int*);

enum class Op { Median, Box, Min, Max };

template <class T>
T Apply(Op op, std::vector<T>& h) {
  if (op == Op::Median) {
    std::sort(h.begin(), h.end());
    return h[(h.size() - 1) / 2];
  }
  if (op == Op::Min) return *std::min_element(h.begin(), h.end());
  if (op == Op::Max) return *std::max_element(h.begin(), h.end());
  return T{};
}

// The box mean of a neighbourhood given row by row (kw wide).
template <class T>
T BoxMean(const std::vector<T>& h, int kw) {
  const int kh = static_cast<int>(h.size()) / kw;
  const int64_t n = int64_t{kw} * kh;
  if constexpr (std::is_floating_point_v<T>) {
    double sum = 0;
    for (int j = 0; j < kw; ++j) {
      double col = 0;
      for (int i = 0; i < kh; ++i) col = col + h[i * kw + j];
      sum = sum + col;
    }
    return static_cast<T>(sum / static_cast<double>(n));
  } else {
    int64_t sum = 0;
    for (T v : h) sum += v;
    return static_cast<T>(std::floor((static_cast<double>(sum) + n / 2.0) / n));  // halves upward
  }
}

// A work buffer of the size the library asks for, with guard bytes after
// it: a call that writes past its buffer reports itself through Guarded.
std::vector<uint8_t> BufferFor(SizeFn size, PeliSize roi, const Mask& k, PelDataType type, int C) {
  int bytes = 0;
  const PeliSize safe{std::max(roi.width, 1), std::max(roi.height, 1)};
  if (size(safe, {std::max(k.kw | 1, 1), std::max(k.kh | 1, 1)}, type, C, &bytes) != pelStatusOk) bytes = 64;
  std::vector<uint8_t> b(size_t(bytes) + kGuard, 0);
  std::fill(b.end() - kGuard, b.end(), uint8_t{0xA5});
  return b;
}

template <class T>
void AddRank(std::vector<Row>& rows, const char* name, Op op, RankFn<T> rank, BoxFn<T> box, SizeFn size, int C,
             int W, const Mask& k, PelStatus expect = pelStatusOk) {
  std::vector<Arg> args{Source<T>(C, k), Out<T>(C)};
  const bool constant = (k.border & 15) == pelBorderConstant && k.border != pelBorderInMem;
  std::vector<Check> order{Check::Pointers, Check::Sizes};
  if (op == Op::Box) {
    args[0].step = args[1].step = StepRule::Positive;
    args.push_back(Consts<T>(W));
    args[2].latePointer = true;
    order = {Check::Pointers, Check::Steps, Check::Sizes};
    if (expect != pelStatusOk) order.push_back(Check::Param);
    if (constant) order.push_back(Check::LatePointers);
  } else {
    args.push_back(Value<T>());
    if (expect != pelStatusOk) order.push_back(Check::Param);
  }
  rows.push_back({name, k.Name(), args,
                  [=](Call& c) {
                    std::vector<uint8_t> buf = BufferFor(size, c.roi, k, TypeCode<T>(), C);
                    const T* src = RoiOf<T>(c, k, C);
                    if (op == Op::Box)
                      return Guarded(box(src, c.step(0), c.p<T>(1), c.step(1), c.roi, {k.kw, k.kh}, k.border,
                                         constant ? c.p<T>(2) : c.unswept<T>(2), c.own(0, buf.data())),
                                     buf);
                    return Guarded(rank(src, c.step(0), c.p<T>(1), c.step(1), c.roi, {k.kw, k.kh}, k.border,
                                        c.v<T>(2), c.own(0, buf.data())),
                                   buf);
                  },
                  [=](Model& m) -> PelStatus {
                    if (expect != pelStatusOk) return expect;
                    std::vector<T> value = ValueOf<T>(m, 2, op == Op::Box ? W : 1);
                    if (op != Op::Box) std::fill(value.begin(), value.end(), value[0]);
                    return NeighbourModel<T>(m, k, W, value.data(), [&](std::vector<T>& h) {
                      return op == Op::Box ? BoxMean(h, k.kw) : Apply(op, h);
                    });
                  },
                  order, expect});
}

// ---- Set-up calls ---------------------------------------------------------------------

// A set-up or size call: its status, after the pointers (or before them,
// for the size calls that check their parameters first).
Row SetupRow(const char* name, const std::string& variant, std::vector<Arg> args, std::function<PelStatus(Call&)> call,
             int expect, bool paramFirst = false) {
  const PelStatus e = static_cast<PelStatus>(expect);
  std::vector<Check> order{Check::Pointers};
  if (e < 0) order.insert(paramFirst ? order.begin() : order.end(), Check::Param);
  Row r{name, variant, std::move(args), std::move(call), [e](Model&) { return e; }, order, e < 0 ? e : pelStatusOk};
  r.shapes = {Layout{3, 2}};
  return r;
}

// Spec sizes by the layout's formula, worked by hand for a 3x3 kernel:
// integer 64 + 960 + 191, float 64 + 960 + 191 + 192 (two channels without
// the broadcast area), 64f 128 + 191.
void AddGetSize(std::vector<Row>& rows) {
  struct Case {
    PeliSize kernel;
    int data, kernelType, C, expect, specSize;
  };
  const Case cases[] = {
      {{3, 3}, pelType8u, pelType16s, 1, pelStatusOk, 1215},   {{3, 3}, pelType8u, pelType32f, 1, pelStatusOk, 1407},
      {{3, 3}, pelType32f, pelType32f, 2, pelStatusOk, 1215},  {{3, 3}, pelType16u, pelType16s, 1, pelStatusOk, 1407},
      {{3, 3}, pelType16s, pelType16s, 3, pelStatusOk, 1407},  {{3, 3}, pelType16s, pelType16s, 1, pelStatusOk, 1215},
      {{3, 3}, pelType64f, pelType64f, 1, pelStatusOk, 319},   {{0, 3}, pelType8u, pelType16s, 1, pelStatusBadSize, 0},
      {{3, 3}, pelType64f, pelType32f, 1, pelStatusDataTypeError, 0},
      {{3, 3}, pelType8u, pelType64f, 1, pelStatusDataTypeError, 0},
      {{3, 3}, pelType64f, pelType64f, 2, pelStatusChannelError, 0},
      {{3, 3}, pelType8u, 8, 1, pelStatusDataTypeError, 0},    {{3, 3}, pelType8u, pelType16s, 5, pelStatusChannelError, 0},
  };
  int serial = 0;
  for (const Case& k : cases) {
    std::vector<Arg> args{Results<int>(1), Results<int>(1)};
    args[1].scratch = true;  // the work area is this implementation's own
    Row r = SetupRow("peliFilterBorderGetSize", Tag("n", serial++) + Tag("s", k.expect), args,
                     [k](Call& c) {
                       return peliFilterBorderGetSize(k.kernel, {9, 4}, k.data, k.kernelType, k.C, c.p<int>(0), c.p<int>(1));
                     },
                     k.expect, true);
    r.model = [k](Model& m) {
      if (k.expect == 0) m.out<int>(0)[0] = k.specSize;
      return static_cast<PelStatus>(k.expect);
    };
    rows.push_back(r);
  }
  // A buffer beyond 2^31 - 1 bytes: the size is 0 and the spec size untouched.
  std::vector<Arg> sizes{Results<int>(1), Results<int>(1)};
  sizes[1].zeroedAfter = Check::Pointers;
  Row big = SetupRow("peliFilterBorderGetSize", "overflow", sizes,
                     [](Call& c) {
                       return peliFilterBorderGetSize({3, 40000}, {40000, 40000}, pelType32f, pelType32f, 4, c.p<int>(0),
                                                      c.p<int>(1));
                     },
                     pelStatusSizeOverflow);
  big.model = [](Model& m) {
    m.out<int>(1)[0] = 0;
    return pelStatusSizeOverflow;
  };
  rows.push_back(big);
}

void AddInits(std::vector<Row>& rows) {
  auto spec = [](Call& c, std::vector<uint8_t>& b) { return c.own(0, reinterpret_cast<PeliFilterBorderSpec*>(b.data())); };
  struct Case16 {
    PeliSize k;
    int divisor, data, C, round, expect;
  };
  const Case16 c16[] = {{{3, 3}, 8, pelType8u, 1, 17, 0},  {{3, 3}, 3, pelType16u, 1, 16, 52}, {{3, 3}, 1, pelType16s, 1, 18, 0},
                        {{3, 0}, 1, pelType8u, 1, 1, -6},  {{3, 3}, 1, pelType32f, 1, 1, -59}, {{3, 3}, 1, pelType8u, 0, 1, -47},
                        {{3, 3}, 1, pelType8u, 1, 3, -213}, {{3, 3}, 0, pelType8u, 1, 1, -51}, {{3, 3}, 1, pelType16s, 3, 17, 52}};
  for (const Case16& k : c16)
    rows.push_back(SetupRow("peliFilterBorderInit_16s", Tag("d", k.divisor) + Tag("s", k.expect),
                            {Consts<Pel16s>(9)},
                            [k, spec](Call& c) {
                              std::vector<uint8_t> b(4096);
                              return peliFilterBorderInit_16s(c.p<Pel16s>(0), k.k, k.divisor, k.data, k.C, k.round, spec(c, b));
                            },
                            k.expect));
  struct CaseF {
    bool f64;
    int data, C, round, expect;
  };
  const CaseF cf[] = {{false, pelType32f, 4, 2, 0},   {false, pelType8u, 1, 17, 52},  {false, pelType64f, 1, 1, -59},
                      {false, pelType8u, 5, 1, -47},  {false, pelType8u, 1, 4, -213}, {true, pelType64f, 1, 17, 0},
                      {true, pelType32f, 1, 1, -59}, {true, pelType64f, 2, 1, -47},  {true, pelType64f, 1, 0, -213}};
  for (const CaseF& k : cf) {
    const std::string v = Tag("t", k.data) + Tag("s", k.expect);
    if (k.f64)
      rows.push_back(SetupRow("peliFilterBorderInit_64f", v, {Consts<Pel64f>(6)},
                              [k, spec](Call& c) {
                                std::vector<uint8_t> b(4096);
                                return peliFilterBorderInit_64f(c.p<Pel64f>(0), {3, 2}, k.data, k.C, k.round, spec(c, b));
                              },
                              k.expect));
    else
      rows.push_back(SetupRow("peliFilterBorderInit_32f", v, {Consts<Pel32f>(6)},
                              [k, spec](Call& c) {
                                std::vector<uint8_t> b(4096);
                                return peliFilterBorderInit_32f(c.p<Pel32f>(0), {2, 3}, k.data, k.C, k.round, spec(c, b));
                              },
                              k.expect));
  }
  // SetMode: offsets only for unsigned data; a 64f spec takes offset 0 and returns.
  struct CaseM {
    int data, offset, expect;
  };
  for (CaseM k : {CaseM{pelType8u, 5, 0}, CaseM{pelType16s, 1, -14}, CaseM{pelType64f, 0, 0}, CaseM{pelType32f, 2, -14}})
    rows.push_back(SetupRow("peliFilterBorderSetMode", Tag("t", k.data) + Tag("o", k.offset),
                            {}, [k, spec](Call& c) {
                              std::vector<uint8_t> b(4096);
                              auto* s = reinterpret_cast<PeliFilterBorderSpec*>(b.data());
                              const Pel16s ki[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
                              const Pel64f kd[9] = {1};
                              if (k.data == pelType64f) peliFilterBorderInit_64f(kd, {3, 3}, k.data, 1, 1, s);
                              else if (k.data == pelType32f) peliFilterBorderInit_32f(reinterpret_cast<const Pel32f*>(kd), {1, 1}, k.data, 1, 1, s);
                              else peliFilterBorderInit_16s(ki, {3, 3}, 16, k.data, 1, 1, s);
                              return peliFilterBorderSetMode(pelHintAccurate, k.offset, c.own(0, s));
                            },
                            k.expect));
}

// ---- The table ------------------------------------------------------------------------

#define PEL_FILTER(t, c, C) AddFilters<Pel##t>(rows, PEL_NAMED(peliFilterBorder_##t##_##c##R), C)
#define PEL_RANK(fam, op, t, c, C, W, ...)                                                                       \
  for (const Mask& k : masks)                                                                                    \
  AddRank<Pel##t>(rows, "peliFilter" #fam "Border_" #t "_" #c "R", op, __VA_ARGS__, peliFilter##fam##BorderGetBufferSize, \
                  C, W, k)

std::vector<Row> FilterRows() {
  std::vector<Row> rows;
  AddGetSize(rows);
  AddInits(rows);
  PEL_FILTER(8u, C1, 1);
  PEL_FILTER(8u, C3, 3);
  PEL_FILTER(8u, C4, 4);
  PEL_FILTER(16u, C1, 1);
  PEL_FILTER(16u, C3, 3);
  PEL_FILTER(16u, C4, 4);
  PEL_FILTER(16s, C1, 1);
  PEL_FILTER(16s, C3, 3);
  PEL_FILTER(16s, C4, 4);
  PEL_FILTER(32f, C1, 1);
  PEL_FILTER(32f, C3, 3);
  PEL_FILTER(32f, C4, 4);
  PEL_FILTER(64f, C1, 1);
  {
    // The integer path's divisors and rounding modes, offsets, every border
    // kind with each side in memory, a 1x1 kernel and one larger than most ROIs.
    auto add = [&](Kernel k, PelStatus expect = pelStatusOk) {
      AddFilter<Pel8u>(rows, PEL_NAMED(peliFilterBorder_8u_C1R), 1, k, expect);
    };
    for (int d : {1, 3, -4, 8, 16})
      for (int r : {0, 1, 2}) add({{3, 2, pelBorderReplicate}, d, r, d == 3 ? 40 : 0});
    add({{1, 1, pelBorderReplicate}, 1, 1});
    add({{7, 7, pelBorderMirror}, 0, 1, 9});
    add({{3, 1, pelBorderReplicate | pelBorderInMemLeft}, 1, 1});
    add({{3, 5, pelBorderMirror | pelBorderInMemBottom}, 0, 2});
    add({{6, 3, pelBorderConstant | pelBorderInMemTop}, 2, 1});
    add({{4, 4, pelBorderReplicate | pelBorderInMemRight | pelBorderInMemBottom}, 0, 0});
    for (int b : {2, 256, 0, pelBorderInMem | 0x100})
      add({{3, 3, b}, 1, 1}, pelStatusBadBorderType);
    AddFilter<Pel16s>(rows, PEL_NAMED(peliFilterBorder_16s_C1R), 1, {{3, 3, pelBorderMirror}, -3, 2});
  }

#define PEL_RANK_TYPE(t)                                                                                       \
  {                                                                                                            \
    std::vector<Mask> masks{{3, 3, pelBorderReplicate}, {5, 5, pelBorderConstant | pelBorderInMemLeft}};       \
    PEL_RANK(Median, Op::Median, t, C1, 1, 1, peliFilterMedianBorder_##t##_C1R, nullptr);                      \
    if (std::string(#t) != "32f") {                                                                            \
      PEL_RANK(Median, Op::Median, t, C3, 3, 3, peliFilterMedianBorder_##t##_C3R, nullptr);                    \
      PEL_RANK(Median, Op::Median, t, C4, 4, 4, peliFilterMedianBorder_##t##_C4R, nullptr);                    \
      PEL_RANK(Median, Op::Median, t, AC4, 4, 3, peliFilterMedianBorder_##t##_AC4R, nullptr);                  \
    }                                                                                                          \
    masks = {{3, 3, pelBorderReplicate}, {4, 5, pelBorderMirror | pelBorderInMemTop},                          \
             {11, 1, pelBorderConstant | pelBorderInMemRight}};                                                 \
    PEL_RANK(Box, Op::Box, t, C1, 1, 1, nullptr, peliFilterBoxBorder_##t##_C1R);                               \
    PEL_RANK(Box, Op::Box, t, C3, 3, 3, nullptr, peliFilterBoxBorder_##t##_C3R);                               \
    PEL_RANK(Box, Op::Box, t, C4, 4, 4, nullptr, peliFilterBoxBorder_##t##_C4R);                               \
    PEL_RANK(Box, Op::Box, t, AC4, 4, 3, nullptr, peliFilterBoxBorder_##t##_AC4R);                             \
    masks = {{3, 3, pelBorderReplicate}, {4, 2, pelBorderMirror | pelBorderInMemRight},                        \
             {7, 7, pelBorderConstant | pelBorderInMemBottom}, {4, 3, pelBorderMirror}};                        \
    PEL_RANK(Min, Op::Min, t, C1, 1, 1, peliFilterMinBorder_##t##_C1R, nullptr);                               \
    PEL_RANK(Min, Op::Min, t, C3, 3, 3, peliFilterMinBorder_##t##_C3R, nullptr);                               \
    PEL_RANK(Min, Op::Min, t, C4, 4, 4, peliFilterMinBorder_##t##_C4R, nullptr);                               \
    PEL_RANK(Min, Op::Min, t, AC4, 4, 3, peliFilterMinBorder_##t##_AC4R, nullptr);                             \
    PEL_RANK(Max, Op::Max, t, C1, 1, 1, peliFilterMaxBorder_##t##_C1R, nullptr);                               \
    PEL_RANK(Max, Op::Max, t, C3, 3, 3, peliFilterMaxBorder_##t##_C3R, nullptr);                               \
    PEL_RANK(Max, Op::Max, t, C4, 4, 4, peliFilterMaxBorder_##t##_C4R, nullptr);                               \
    PEL_RANK(Max, Op::Max, t, AC4, 4, 3, peliFilterMaxBorder_##t##_AC4R, nullptr);                             \
  }
  PEL_RANK_TYPE(8u)
  PEL_RANK_TYPE(16u)
  PEL_RANK_TYPE(16s)
  {
    std::vector<Mask> masks{{3, 3, pelBorderReplicate}, {5, 5, pelBorderConstant | pelBorderInMemLeft}};
    PEL_RANK(Median, Op::Median, 32f, C1, 1, 1, peliFilterMedianBorder_32f_C1R, nullptr);
    masks = {{3, 3, pelBorderReplicate}, {5, 5, pelBorderMirror | pelBorderInMemTop}, {11, 1, pelBorderConstant}};
    PEL_RANK(Box, Op::Box, 32f, C1, 1, 1, nullptr, peliFilterBoxBorder_32f_C1R);
    PEL_RANK(Box, Op::Box, 32f, C3, 3, 3, nullptr, peliFilterBoxBorder_32f_C3R);
    PEL_RANK(Box, Op::Box, 32f, C4, 4, 4, nullptr, peliFilterBoxBorder_32f_C4R);
    PEL_RANK(Box, Op::Box, 32f, AC4, 4, 3, nullptr, peliFilterBoxBorder_32f_AC4R);
    masks = {{3, 3, pelBorderReplicate}, {2, 4, pelBorderMirror | pelBorderInMemLeft}, {7, 7, pelBorderConstant}};
    PEL_RANK(Min, Op::Min, 32f, C1, 1, 1, peliFilterMinBorder_32f_C1R, nullptr);
    PEL_RANK(Min, Op::Min, 32f, C3, 3, 3, peliFilterMinBorder_32f_C3R, nullptr);
    PEL_RANK(Min, Op::Min, 32f, C4, 4, 4, peliFilterMinBorder_32f_C4R, nullptr);
    PEL_RANK(Min, Op::Min, 32f, AC4, 4, 3, peliFilterMinBorder_32f_AC4R, nullptr);
    PEL_RANK(Max, Op::Max, 32f, C1, 1, 1, peliFilterMaxBorder_32f_C1R, nullptr);
    PEL_RANK(Max, Op::Max, 32f, C3, 3, 3, peliFilterMaxBorder_32f_C3R, nullptr);
    PEL_RANK(Max, Op::Max, 32f, C4, 4, 4, peliFilterMaxBorder_32f_C4R, nullptr);
    PEL_RANK(Max, Op::Max, 32f, AC4, 4, 3, peliFilterMaxBorder_32f_AC4R, nullptr);
  }
  {
    // The median's methods by mask (the selection networks, bit-by-bit
    // selection up to 255 taps, the sliding histogram beyond), its border
    // codes; box sums beyond 16 bits; bad masks and codes.
    std::vector<Mask> masks{{7, 7, pelBorderInMem}, {1, 5, pelBorderReplicate}, {5, 1, pelBorderConstant},
                            {3, 5, pelBorderReplicate}, {17, 3, pelBorderReplicate | pelBorderInMemTop},
                            {1, 1, pelBorderReplicate}, {23, 13, pelBorderReplicate}};
    PEL_RANK(Median, Op::Median, 8u, C1, 1, 1, peliFilterMedianBorder_8u_C1R, nullptr);
    masks.pop_back();
    PEL_RANK(Median, Op::Median, 16s, C1, 1, 1, peliFilterMedianBorder_16s_C1R, nullptr);
    masks = {{7, 7, pelBorderReplicate}, {9, 9, pelBorderReplicate}, {17, 17, pelBorderConstant | pelBorderInMemRight}};
    PEL_RANK(Median, Op::Median, 8u, C3, 3, 3, peliFilterMedianBorder_8u_C3R, nullptr);
    masks = {{19, 15, pelBorderReplicate | pelBorderInMemTop}};
    PEL_RANK(Median, Op::Median, 8u, AC4, 4, 3, peliFilterMedianBorder_8u_AC4R, nullptr);
    masks = {{9, 9, pelBorderReplicate}};
    PEL_RANK(Box, Op::Box, 8u, C3, 3, 3, nullptr, peliFilterBoxBorder_8u_C3R);
    masks = {{23, 13, pelBorderReplicate}, {1, 1, pelBorderMirror}};
    PEL_RANK(Box, Op::Box, 8u, C1, 1, 1, nullptr, peliFilterBoxBorder_8u_C1R);
    auto bad = [&](const char* name, Op op, RankFn<Pel8u> r, BoxFn<Pel8u> b, SizeFn s, Mask k, PelStatus e) {
      AddRank<Pel8u>(rows, name, op, r, b, s, 1, 1, k, e);
    };
    bad("peliFilterMedianBorder_8u_C1R", Op::Median, peliFilterMedianBorder_8u_C1R, nullptr,
        peliFilterMedianBorderGetBufferSize, {3, 3, pelBorderMirror}, pelStatusBadBorderType);
    bad("peliFilterMedianBorder_8u_C1R", Op::Median, peliFilterMedianBorder_8u_C1R, nullptr,
        peliFilterMedianBorderGetBufferSize, {2, 3, pelBorderReplicate}, pelStatusBadMaskSize);
    bad("peliFilterMaxBorder_8u_C1R", Op::Max, peliFilterMaxBorder_8u_C1R, nullptr, peliFilterMaxBorderGetBufferSize,
        {3, 3, 0x101}, pelStatusBadBorderType);
    bad("peliFilterBoxBorder_8u_C1R", Op::Box, nullptr, peliFilterBoxBorder_8u_C1R, peliFilterBoxBorderGetBufferSize,
        {0, 3, pelBorderReplicate}, pelStatusBadMaskSize);
    bad("peliFilterBoxBorder_8u_C1R", Op::Box, nullptr, peliFilterBoxBorder_8u_C1R, peliFilterBoxBorderGetBufferSize,
        {3, 3, 2}, pelStatusBadBorderType);
    bad("peliFilterMinBorder_8u_C1R", Op::Min, peliFilterMinBorder_8u_C1R, nullptr, peliFilterMinBorderGetBufferSize,
        {3, -1, pelBorderReplicate}, pelStatusBadMaskSize);
  }

  {
    // Buffer sizes: the statuses; the sizes themselves are this
    // implementation's and are exercised by every filter row above.
    struct Case {
      const char* name;
      SizeFn fn;
      PeliSize roi, mask;
      int type, C, expect;
    };
    const Case cases[] = {
        {"peliFilterMedianBorderGetBufferSize", peliFilterMedianBorderGetBufferSize, {9, 4}, {3, 5}, pelType16s, 4, 0},
        {"peliFilterMedianBorderGetBufferSize", peliFilterMedianBorderGetBufferSize, {0, 4}, {3, 5}, pelType8u, 1, -6},
        {"peliFilterMedianBorderGetBufferSize", peliFilterMedianBorderGetBufferSize, {9, 4}, {3, 4}, pelType8u, 1, -33},
        {"peliFilterMedianBorderGetBufferSize", peliFilterMedianBorderGetBufferSize, {9, 4}, {3, 3}, pelType8u, 2, -53},
        {"peliFilterMedianBorderGetBufferSize", peliFilterMedianBorderGetBufferSize, {9, 4}, {3, 3}, pelType32f, 3, -59},
        {"peliFilterMedianBorderGetBufferSize", peliFilterMedianBorderGetBufferSize, {9, 4}, {3, 3}, pelType64f, 1, -59},
        {"peliFilterBoxBorderGetBufferSize", peliFilterBoxBorderGetBufferSize, {9, 4}, {4, 2}, pelType32f, 3, 0},
        {"peliFilterBoxBorderGetBufferSize", peliFilterBoxBorderGetBufferSize, {9, 4}, {0, 2}, pelType8u, 1, -33},
        {"peliFilterBoxBorderGetBufferSize", peliFilterBoxBorderGetBufferSize, {9, 4}, {3, 3}, pelType64f, 1, -59},
        {"peliFilterBoxBorderGetBufferSize", peliFilterBoxBorderGetBufferSize, {9, 4}, {3, 3}, pelType8u, 2, -53},
        {"peliFilterBoxBorderGetBufferSize", peliFilterBoxBorderGetBufferSize, {9, 4}, {3, 30000000}, pelType8u, 4, -232},
        {"peliFilterMaxBorderGetBufferSize", peliFilterMaxBorderGetBufferSize, {9, 4}, {2, 2}, pelType16u, 4, 0},
        {"peliFilterMaxBorderGetBufferSize", peliFilterMaxBorderGetBufferSize, {9, 4}, {2, 0}, pelType16u, 4, -33},
        {"peliFilterMinBorderGetBufferSize", peliFilterMinBorderGetBufferSize, {9, 4}, {6, 1}, pelType8u, 1, 0},
        {"peliFilterMinBorderGetBufferSize", peliFilterMinBorderGetBufferSize, {9, -4}, {6, 1}, pelType8u, 1, -6},
    };
    for (const Case& k : cases) {
      std::vector<Arg> args{Results<int>(1)};
      args[0].scratch = true;
      rows.push_back(SetupRow(k.name, std::to_string(k.mask.width) + Tag("t", k.type) + Tag("s", k.expect),
                              args, [k](Call& c) { return k.fn(k.roi, k.mask, k.type, k.C, c.p<int>(0)); },
                              k.expect));
    }
  }
  for (bool dilate : {true, false}) {
    // 3x3 morphology of 64f reads one pixel around the ROI from memory.
    const Mask k{3, 3, pelBorderInMem};
    std::vector<Arg> args{Source<Pel64f>(1, k), Out<Pel64f>(1)};
    args[0].step = args[1].step = StepRule::RowBytes;
    auto fn = dilate ? peliDilate3x3_64f_C1R : peliErode3x3_64f_C1R;
    Row r{dilate ? "peliDilate3x3_64f_C1R" : "peliErode3x3_64f_C1R", "", args,
          [=](Call& c) { return fn(RoiOf<Pel64f>(c, k, 1), c.step(0), c.p<Pel64f>(1), c.step(1), c.roi); },
          [=](Model& m) {
            return NeighbourModel<Pel64f>(m, k, 1, nullptr,
                                          [&](std::vector<Pel64f>& h) { return Apply(dilate ? Op::Max : Op::Min, h); });
          },
          {Check::Pointers, Check::Sizes, Check::Steps}};
    r.badStepStatus = pelStatusStepTooSmall;
    rows.push_back(r);
  }
  return rows;
}

}  // namespace

PEL_ROWS(Filter, FilterRows)
