// The image FFT as rows: the transforms against a direct DFT in long double
// (within a tolerance: float sums round), the packed products exactly, the
// set-up functions through their bad parameters. Sizes come from the ROI;
// each call builds its spec and buffer with exactly the reported sizes,
// flush against an inaccessible page.
#include <cmath>
#include <complex>
#include <string>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;
using Cx = std::complex<long double>;

int Log2(int n) {
  int k = 0;
  while ((1 << k) < n) ++k;
  return k;
}

// What packed cell (x, y) of a W x H spectrum holds: part of X(u, v).
struct Cell {
  int u, v;
  bool imag;      // the imaginary part (else the real part)
  bool realOnly;  // a value without imaginary part
  bool down;      // its pair runs down a column (else along the row)
};
Cell CellAt(int x, int y, int W, int H) {
  if (x == 0 || (W % 2 == 0 && x == W - 1)) {
    const int u = x == 0 ? 0 : W / 2;
    if (y == 0) return {u, 0, false, true, true};
    if (H % 2 == 0 && y == H - 1) return {u, H / 2, false, true, true};
    return {u, (y + 1) / 2, y % 2 == 0, false, true};
  }
  return {(x + 1) / 2, y, x % 2 == 0, false, false};
}

// exp(sign 2 pi i k / n) for k < n.
std::vector<Cx> Roots(int n, int sign) {
  std::vector<Cx> r(static_cast<size_t>(n));
  for (int k = 0; k < n; ++k) r[k] = std::polar(1.0L, sign * 2 * 3.141592653589793238462643383279L * k / n);
  return r;
}

// X(u, v), u = 0 .. W/2, of the image `in`, by the definition (rows, then
// columns), packed into `out` and scaled.
PelStatus ForwardModel(Model& m, int inArg, int outArg, long double scale) {
  auto in = m.in<Pel32f>(inArg);
  auto out = m.out<Pel32f>(outArg);
  const int W = m.roi.width, H = m.roi.height, U = W / 2 + 1;
  const std::vector<Cx> rw = Roots(W, -1), rh = Roots(H, -1);
  std::vector<Cx> rows(static_cast<size_t>(U * H)), X(static_cast<size_t>(U * H));
  for (int y = 0; y < H; ++y)
    for (int u = 0; u < U; ++u)
      for (int x = 0; x < W; ++x) rows[y * U + u] += static_cast<long double>(in(x, y)) * rw[(u * x) % W];
  for (int v = 0; v < H; ++v)
    for (int u = 0; u < U; ++u)
      for (int y = 0; y < H; ++y) X[v * U + u] += rows[y * U + u] * rh[(v * y) % H];
  ForEachPixel(m.roi, [&](int x, int y) {
    const Cell c = CellAt(x, y, W, H);
    const Cx value = X[c.v * U + c.u] * scale;
    out(x, y) = static_cast<Pel32f>(c.imag ? value.imag() : value.real());
  });
  return pelStatusOk;
}

// The real image whose spectrum `in` holds in packed form, scaled: the
// columns' inverse DFTs, then the rows' (the rest of each row's spectrum is
// the conjugate of the half that is stored).
PelStatus InverseModel(Model& m, int inArg, int outArg, long double scale) {
  auto in = m.in<Pel32f>(inArg);
  auto out = m.out<Pel32f>(outArg);
  const int W = m.roi.width, H = m.roi.height, U = W / 2 + 1;
  std::vector<Cx> X(static_cast<size_t>(U * H)), cols(static_cast<size_t>(U * H));
  ForEachPixel(m.roi, [&](int x, int y) {
    const Cell c = CellAt(x, y, W, H);
    Cx& value = X[c.v * U + c.u];
    value = c.imag ? Cx(value.real(), in(x, y)) : Cx(in(x, y), value.imag());
  });
  for (int u : {0, W / 2})  // the stored half of the columns u = 0 and W/2
    for (int v = H / 2 + 1; v < H; ++v) X[v * U + u] = std::conj(X[(H - v) * U + u]);
  const std::vector<Cx> rw = Roots(W, 1), rh = Roots(H, 1);
  for (int y = 0; y < H; ++y)
    for (int u = 0; u < U; ++u)
      for (int v = 0; v < H; ++v) cols[y * U + u] += X[v * U + u] * rh[(v * y) % H];
  ForEachPixel(m.roi, [&](int x, int y) {
    long double sum = cols[y * U].real();
    if (W % 2 == 0 && W > 1) sum += cols[y * U + W / 2].real() * (x % 2 ? -1 : 1);
    for (int u = 1; 2 * u < W; ++u) sum += 2 * (cols[y * U + u] * rw[(u * x) % W]).real();
    out(x, y) = static_cast<Pel32f>(sum * scale);
  });
  return pelStatusOk;
}

// Powers of two up to 64 x 32 in both directions, some with padded rows and
// odd offsets, and against inaccessible pages.
std::vector<Layout> TransformShapes() {
  std::vector<Layout> shapes;
  const int sizes[][2] = {{1, 1}, {2, 1}, {1, 2},  {2, 2},  {4, 1},  {1, 8},  {8, 2},  {2, 16},
                          {4, 4}, {4, 16}, {16, 4}, {32, 8}, {8, 32}, {64, 16}, {16, 32}, {64, 32}};
  int k = 0;
  for (const auto& s : sizes) {
    shapes.push_back(Layout{s[0], s[1], 1, 8 * (k % 3), 4 * (k % 5), false});
    ++k;
  }
  shapes.push_back(Layout{32, 16, 1, 0, 0, false, Fence::AtEnd});
  shapes.push_back(Layout{8, 4, 1, 0, 0, false, Fence::AtStart});
  return shapes;
}

using TransformFn = PelStatus (*)(const Pel32f*, int, Pel32f*, int, const PeliFFTSpec_R_32f*, Pel8u*);

// Spec and work buffer of a call, of exactly the reported sizes.
PelStatus WithSpec(Call& c, int flag, TransformFn fn, int src, int dst) {
  const int ox = Log2(c.roi.width), oy = Log2(c.roi.height);
  int specSize = 0, initSize = 0, workSize = 0;
  if (peliFFTGetSize_R_32f(ox, oy, flag, pelHintAccurate, &specSize, &initSize, &workSize) != pelStatusOk)
    return -1000;
  Bytes spec(static_cast<size_t>(specSize), 0, GuardedAllocator(Fence::AtEnd));
  Bytes work(static_cast<size_t>(workSize), 0, GuardedAllocator(Fence::AtEnd));
  auto* s = reinterpret_cast<PeliFFTSpec_R_32f*>(spec.data());
  if (peliFFTInit_R_32f(ox, oy, flag, pelHintAccurate, s, nullptr) != pelStatusOk) return -1001;
  return fn(c.p<Pel32f>(src), c.step(src), c.p<Pel32f>(dst), c.step(dst), s, work.data());
}

struct Scales {
  int flag;
  const char* name;
  long double fwd, inv;  // powers of W x H
};
const Scales kScales[] = {{8, "none", 0, 0}, {1, "fwdN", -1, 0}, {2, "invN", 0, -1}, {4, "sqrtN", -0.5L, -0.5L}};

void AddTransform(std::vector<Row>& rows, const char* name, TransformFn fn, bool inverse, const Scales& s,
                  bool inPlace) {
  Arg src = inPlace ? InOut<Pel32f>() : In<Pel32f>();
  src.fill = FillRange(-1, 1);
  src.step = StepRule::Positive;
  Arg dst = Out<Pel32f>();
  dst.step = StepRule::Positive;
  (inPlace ? src : dst).tolerance = 2e-6;
  std::vector<Arg> args{src};
  if (!inPlace) args.push_back(dst);
  const int out = inPlace ? 0 : 1;
  Row row{
      name, std::string(s.name) + (inPlace ? "_inplace" : ""), args,
      [fn, flag = s.flag, out](Call& c) { return WithSpec(c, flag, fn, 0, out); },
      [inverse, s, out](Model& m) {
        const long double n = static_cast<long double>(m.roi.width) * m.roi.height;
        return inverse ? InverseModel(m, 0, out, std::pow(n, s.inv)) : ForwardModel(m, 0, out, std::pow(n, s.fwd));
      },
      {Check::Pointers, Check::Steps}};
  row.shapes = TransformShapes();
  row.sweepShape = Layout{8, 4, 1, 8, 4, false};
  rows.push_back(row);
}

// The packed products against the cells' meaning.
PelStatus ProductModel(Model& m, int a, int b, int d, bool conj) {
  auto A = m.in<Pel32f>(a);
  auto B = m.in<Pel32f>(b);
  auto Dst = m.out<Pel32f>(d);
  const int W = m.roi.width, H = m.roi.height;
  ForEachPixel(m.roi, [&](int x, int y) {
    const Cell c = CellAt(x, y, W, H);
    if (c.realOnly) {
      Dst(x, y) = A(x, y) * B(x, y);
      return;
    }
    if (c.imag) return;  // written with its real part
    const int x2 = c.down ? x : x + 1, y2 = c.down ? y + 1 : y;
    const float ar = A(x, y), ai = A(x2, y2), br = B(x, y), bi = B(x2, y2);
    Dst(x, y) = conj ? ar * br + ai * bi : ar * br - ai * bi;
    Dst(x2, y2) = conj ? ai * br - ar * bi : ar * bi + ai * br;
  });
  return pelStatusOk;
}

Arg Positive(Arg a) {
  a.step = StepRule::Positive;
  return a;
}

void AddProducts(std::vector<Row>& rows) {
  const std::vector<Check> order{Check::Pointers, Check::Steps, Check::Sizes};
  const auto mul = peliMulPack_32f_C1R;
  rows.push_back(Row{"peliMulPack_32f_C1R", "",
                  {Positive(In<Pel32f>()), Positive(In<Pel32f>()), Positive(Out<Pel32f>())},
                  [mul](Call& c) {
                    return mul(c.p<Pel32f>(0), c.step(0), c.p<Pel32f>(1), c.step(1), c.p<Pel32f>(2), c.step(2), c.roi);
                  },
                  [](Model& m) { return ProductModel(m, 0, 1, 2, false); }, order});
  // Either source may be the destination.
  for (int same : {0, 1}) {
    rows.push_back(Row{"peliMulPack_32f_C1R", same == 0 ? "dst_is_src1" : "dst_is_src2",
                    {Positive(InOut<Pel32f>()), Positive(In<Pel32f>())},
                    [mul, same](Call& c) {
                      Pel32f* d = c.p<Pel32f>(0);
                      const Pel32f* o = c.p<Pel32f>(1);
                      return same == 0 ? mul(d, c.step(0), o, c.step(1), d, c.step(0), c.roi)
                                       : mul(o, c.step(1), d, c.step(0), d, c.step(0), c.roi);
                    },
                    [same](Model& m) { return ProductModel(m, same == 0 ? 0 : 1, same == 0 ? 1 : 0, 0, false); },
                    order});
  }
  rows.push_back(Row{"peliMulPackConj_32f_C1IR", "",
                  {Positive(In<Pel32f>()), Positive(InOut<Pel32f>())},
                  [](Call& c) {
                    return peliMulPackConj_32f_C1IR(c.p<Pel32f>(0), c.step(0), c.p<Pel32f>(1), c.step(1), c.roi);
                  },
                  [](Model& m) { return ProductModel(m, 1, 0, 1, true); }, order});
}

// The set-up functions' parameter errors: status, order, nothing written.
// Init looks at orders of 31 and more before its spec pointer, at 30 and at
// the flag after it.
void AddSetUp(std::vector<Row>& rows) {
  struct Bad {
    bool init;
    int ox, oy, flag;
    PelStatus status;
    const char* name;
  };
  const Bad bad[] = {{false, 30, 1, 8, pelStatusFftOrderError, "order30"},
                     {false, 2, -1, 8, pelStatusFftOrderError, "orderNegative"},
                     {false, 3, 2, 3, pelStatusFftFlagError, "flag3"},
                     {true, 31, 0, 8, pelStatusFftOrderError, "order31"},
                     {true, 0, 30, 8, pelStatusFftOrderError, "order30"},
                     {true, 2, 2, 0, pelStatusFftFlagError, "flag0"}};
  for (const Bad& b : bad) {
    Row row{
        b.init ? "peliFFTInit_R_32f" : "peliFFTGetSize_R_32f", b.name,
        b.init ? std::vector<Arg>{Results<Pel8u>(512)} : std::vector<Arg>(3, Results<Pel32s>(1)),
        [b](Call& c) {
          return b.init ? peliFFTInit_R_32f(b.ox, b.oy, b.flag, 0, reinterpret_cast<PeliFFTSpec_R_32f*>(c.p<Pel8u>(0)),
                                            nullptr)
                        : peliFFTGetSize_R_32f(b.ox, b.oy, b.flag, 0, c.p<int>(0), c.p<int>(1), c.p<int>(2));
        },
        nullptr, {Check::Pointers, Check::Param}, b.status};
    if (b.ox == 31) row.order = {Check::Param, Check::Pointers};
    row.shapes = {Layout{1, 1}};
    rows.push_back(row);
  }
}

std::vector<Row> FftRows() {
  std::vector<Row> rows;
  for (const Scales& s : kScales) {
    AddTransform(rows, "peliFFTFwd_RToPack_32f_C1R", peliFFTFwd_RToPack_32f_C1R, false, s, false);
    AddTransform(rows, "peliFFTInv_PackToR_32f_C1R", peliFFTInv_PackToR_32f_C1R, true, s, false);
  }
  AddTransform(rows, "peliFFTFwd_RToPack_32f_C1R", peliFFTFwd_RToPack_32f_C1R, false, kScales[2], true);
  AddTransform(rows, "peliFFTInv_PackToR_32f_C1R", peliFFTInv_PackToR_32f_C1R, true, kScales[2], true);
  AddProducts(rows);
  AddSetUp(rows);
  return rows;
}

}  // namespace

PEL_ROWS(Fft, FftRows)
