#include "transform/fft.h"

#include <cmath>
#include <cstring>
#include <initializer_list>

#include "core/common.h"
#include "core/exports.h"
#include "core/fp_env.h"
#include "core/spec.h"
#include "transform/fft_spec.h"
#include "transform/row_fft_kernels.h"

namespace pel::transform {

namespace {

// ---- Sizes ---------------------------------------------------------------------

bool FlagOk(int flag) { return flag == 1 || flag == 2 || flag == 4 || flag == 8; }

// The radix-4 passes of a complex FFT of 2^m points: spans s = 1, 4, 16, ...
// (m even) or 2, 8, 32, ... after one radix-2 pass (m odd), while 4 s <= M.
// The s = 1 pass multiplies by nothing; the others keep 3 twiddles per j < s.
template <class F>
void ForEachTwiddledPass(int m, F&& f) {
  const uint64_t M = uint64_t{1} << m;
  for (uint64_t s = (m & 1) ? 2 : 1; 4 * s <= M; s *= 4)
    if (s > 1) f(s);
}

struct Layout1D {
  uint64_t rev = 0, pass = 0, post = 0, total = 0, work = 0;
};

// Where the tables of a 1-D spec of 2^order points go, and its work bytes.
Layout1D Plan1D(int order, bool real) {
  Layout1D l;
  uint64_t at = RoundUp64(sizeof(Fft1D));
  const uint64_t n = uint64_t{1} << order;
  if (real && order == 0) {  // one point: a scaled copy, no tables, no buffer
    l.total = at;
    return l;
  }
  const int m = real ? order - 1 : order;
  const uint64_t M = uint64_t{1} << m;
  l.rev = at;
  at += RoundUp64(4 * M);
  uint64_t twiddles = 0;
  ForEachTwiddledPass(m, [&](uint64_t s) { twiddles += 6 * s; });
  l.pass = at;
  at += RoundUp64(4 * twiddles);
  if (real) {
    l.post = at;
    at += RoundUp64(8 * (M / 2 + 1));
  }
  l.total = at;
  // Transposed work planes of kMaxLanes lanes: a real transform needs four
  // planes of M (two for the data, two for the reordered inverse input), a
  // complex one two planes of M. A single point needs none. Added to the
  // 2-D sizes below these give 128 bytes a point.
  if (n > 1) l.work = real ? 112 * n : 64 * n;
  return l;
}

struct Sizes {
  uint64_t spec, work;
  Layout1D col, row, row2;
  bool twoRows;
};

Sizes Plan2D(int orderX, int orderY) {
  Sizes s{};
  s.col = Plan1D(orderY, false);
  s.row = Plan1D(orderX, true);
  s.twoRows = orderX != orderY;
  if (s.twoRows) s.row2 = Plan1D(orderY, true);
  s.spec = kSpecAlign + RoundUp64(s.col.total) + RoundUp64(s.row.total) + RoundUp64(s.row2.total);
  const uint64_t W = uint64_t{1} << orderX, H = uint64_t{1} << orderY;
  uint64_t work = 0;
  auto atLeast = [&](uint64_t bytes) { work = bytes > work ? bytes : work; };
  if (W > 1) atLeast(s.row.work + 16 * W);
  if (s.twoRows && H > 1) atLeast(s.row2.work + 16 * H);
  if (H > 1) atLeast(s.col.work + 64 * H);
  s.work = RoundUp64(work);
  return s;
}

// Order and flag checks common to GetSize and Init, after the 2-D check.
PelStatus Check1D(int orderX, int orderY, int flag) {
  if (orderX > kMaxOrder1D || orderY > kMaxOrder1D) return pelStatusFftOrderError;
  if (!FlagOk(flag)) return pelStatusFftFlagError;
  return pelStatusOk;
}

bool Order2DBad(int order) { return static_cast<unsigned>(order) >= 31; }

uint64_t WithSlack(uint64_t bytes) { return bytes > 0 ? bytes + kSpecAlign : 0; }

// ---- Twiddles --------------------------------------------------------------------
// cos and sin on [0, pi/4] by their Taylor series in double: the last terms
// are below 1e-19, and our own polynomials give the same bits on every
// platform where each libm might round its last bit differently.

double SinSmall(double x) {
  const double x2 = x * x;
  double t = 1.0 - x2 / 272.0;
  for (double k : {210.0, 156.0, 110.0, 72.0, 42.0, 20.0, 6.0}) t = 1.0 - x2 / k * t;
  return x * t;
}

double CosSmall(double x) {
  const double x2 = x * x;
  double t = 1.0 - x2 / 306.0;
  for (double k : {240.0, 182.0, 132.0, 90.0, 56.0, 30.0, 12.0, 2.0}) t = 1.0 - x2 / k * t;
  return t;
}

// exp(-2 pi i j / n) for a power of two n, rounded once to float. The angle
// is reduced exactly to its quadrant and to the half quadrant nearest 0.
void Twiddle(uint64_t j, uint64_t n, float* out) {
  constexpr double kHalfPi = 1.5707963267948966;
  j &= n - 1;
  const uint64_t q = 4 * j / n, r = 4 * j - q * n;  // angle = (q + r / n) quarter turns
  double c, s;
  if (2 * r <= n) {
    const double x = kHalfPi * (static_cast<double>(r) / static_cast<double>(n));
    c = CosSmall(x);
    s = SinSmall(x);
  } else {
    const double x = kHalfPi * (static_cast<double>(n - r) / static_cast<double>(n));
    c = SinSmall(x);
    s = CosSmall(x);
  }
  const double cq[4] = {c, -s, -c, s}, sq[4] = {s, c, -s, -c};
  out[0] = static_cast<float>(cq[q]);
  out[1] = static_cast<float>(-sq[q]);
}

Fft1D* Build1D(unsigned char* at, const Layout1D& l, int order, bool real, int flag) {
  auto* s = reinterpret_cast<Fft1D*>(at);
  std::memset(s, 0, sizeof *s);
  s->id = real ? kSpecIdReal : kSpecIdComplex;
  s->order = order;
  s->fwdScaled = flag == 1 || flag == 4;
  s->invScaled = flag == 2 || flag == 4;
  const double n = std::ldexp(1.0, order);
  s->factor = static_cast<float>(flag == 4 ? 1.0 / std::sqrt(n) : flag == 8 ? 1.0 : 1.0 / n);
  s->workBytes = static_cast<int32_t>(l.work);
  s->revOffset = static_cast<uint32_t>(l.rev);
  s->passOffset = static_cast<uint32_t>(l.pass);
  s->postOffset = static_cast<uint32_t>(l.post);
  if (real && order == 0) return s;
  const int m = real ? order - 1 : order;
  const uint64_t M = uint64_t{1} << m;
  auto* rev = reinterpret_cast<uint32_t*>(at + l.rev);
  for (uint64_t k = 0; k < M; ++k) {
    uint32_t r = 0;
    for (int b = 0; b < m; ++b) r |= static_cast<uint32_t>((k >> b) & 1) << (m - 1 - b);
    rev[k] = r;
  }
  auto* tw = reinterpret_cast<float*>(at + l.pass);
  ForEachTwiddledPass(m, [&](uint64_t span) {
    for (uint64_t j = 0; j < span; ++j, tw += 6) {
      Twiddle(j, 4 * span, tw);
      Twiddle(2 * j, 4 * span, tw + 2);
      Twiddle(3 * j, 4 * span, tw + 4);
    }
  });
  if (real) {
    auto* post = reinterpret_cast<float*>(at + l.post);
    for (uint64_t k = 0; k <= M / 2; ++k) Twiddle(k, 2 * M, post + 2 * k);
  }
  return s;
}

// Rows advance by whole floats: a step that is not a multiple of 4 is
// rounded down.
int FloatStep(int step) { return step & ~3; }

const FftSpec2D* SpecOf(const PeliFFTSpec_R_32f* p) {
  return reinterpret_cast<const FftSpec2D*>(AlignUp64(reinterpret_cast<const unsigned char*>(p)));
}

PelStatus Transform(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const PeliFFTSpec_R_32f* pSpec,
                    Pel8u* pBuffer, bool inverse) {
  if (pSpec == nullptr) return pelStatusNullPointer;
  const FftSpec2D& spec = *SpecOf(pSpec);
  if (spec.id != kSpecIdReal) return pelStatusContextMismatch;
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (srcStep < 1 || dstStep < 1) return pelStatusBadStep;
  if (pBuffer == nullptr && spec.workBytes != 0) return pelStatusNullPointer;
  RoundingScope nearest(RoundingScope::kNearest);
  float* work = pBuffer != nullptr ? reinterpret_cast<float*>(AlignUp64(pBuffer)) : nullptr;
  Fft2D(spec, pSrc, FloatStep(srcStep), pDst, FloatStep(dstStep), work, inverse);
  return pelStatusOk;
}

// The packed layout down column x (0, or W - 1 for even W): row 0 real, then
// (re, im) pairs in rows 2v - 1 and 2v, then row H - 1 real for even H.
template <class Product>
void PackedColumn(const Pel32f* a, int aStep, const Pel32f* b, int bStep, Pel32f* d, int dStep, int x, int H,
                  Product product) {
  auto at = [x](auto* p, int step, int y) { return Row(p, step, y) + x; };
  *at(d, dStep, 0) = *at(a, aStep, 0) * *at(b, bStep, 0);
  int y = 1;
  for (; y + 1 < H; y += 2) {
    const float ar = *at(a, aStep, y), ai = *at(a, aStep, y + 1);
    const float br = *at(b, bStep, y), bi = *at(b, bStep, y + 1);
    float re, im;
    product(ar, ai, br, bi, &re, &im);
    *at(d, dStep, y) = re;
    *at(d, dStep, y + 1) = im;
  }
  if (y < H) *at(d, dStep, y) = *at(a, aStep, y) * *at(b, bStep, y);
}

template <bool kConj>
PelStatus PackProduct(const Pel32f* a, int aStep, const Pel32f* b, int bStep, Pel32f* d, int dStep, PeliSize roi) {
  if (AnyNull(a, b, d)) return pelStatusNullPointer;
  if (aStep < 1 || bStep < 1 || dStep < 1) return pelStatusBadStep;
  if (BadSize(roi)) return pelStatusBadSize;
  const int W = roi.width, H = roi.height;
  aStep = FloatStep(aStep);
  bStep = FloatStep(bStep);
  dStep = FloatStep(dStep);
  // Every row: the pairs of columns 1 .. W - 1 (W odd) or W - 2 (W even).
  const size_t pairs = static_cast<size_t>((W - 1) / 2);
  for (int y = 0; y < H && pairs > 0; ++y)
    MulPairs(Row(a, aStep, y) + 1, Row(b, bStep, y) + 1, Row(d, dStep, y) + 1, pairs, kConj);
  // Column 0, and column W - 1 for even W, hold the spectrum down a column.
  auto product = [](float ar, float ai, float br, float bi, float* re, float* im) {
    if constexpr (kConj) {
      *re = ar * br + ai * bi;
      *im = ai * br - ar * bi;
    } else {
      *re = ar * br - ai * bi;
      *im = ar * bi + ai * br;
    }
  };
  PackedColumn(a, aStep, b, bStep, d, dStep, 0, H, product);
  if (W % 2 == 0) PackedColumn(a, aStep, b, bStep, d, dStep, W - 1, H, product);
  return pelStatusOk;
}

}  // namespace

PelStatus FftGetSize(int orderX, int orderY, int flag, PelHintAlgorithm /*hint*/, int* pSpecSize, int* pInitSize,
                     int* pBufferSize) {
  if (AnyNull(pSpecSize, pInitSize, pBufferSize)) return pelStatusNullPointer;
  if (Order2DBad(orderX) || Order2DBad(orderY)) return pelStatusFftOrderError;
  if (const PelStatus st = Check1D(orderX, orderY, flag); st != pelStatusOk) return st;
  const Sizes s = Plan2D(orderX, orderY);
  const uint64_t spec = WithSlack(s.spec), work = WithSlack(s.work);
  if (spec > static_cast<uint64_t>(kMaxReportedSize) || work > static_cast<uint64_t>(kMaxReportedSize))
    return pelStatusSizeOverflow;
  *pSpecSize = static_cast<int>(spec);
  *pInitSize = 0;
  *pBufferSize = static_cast<int>(work);
  return pelStatusOk;
}

PelStatus FftInit(int orderX, int orderY, int flag, PelHintAlgorithm hint, PeliFFTSpec_R_32f* pSpec,
                  Pel8u* /*pMemInit*/) {
  if (Order2DBad(orderX) || Order2DBad(orderY)) return pelStatusFftOrderError;
  if (pSpec == nullptr) return pelStatusNullPointer;
  if (const PelStatus st = Check1D(orderX, orderY, flag); st != pelStatusOk) return st;
  const Sizes s = Plan2D(orderX, orderY);
  if (WithSlack(s.spec) > static_cast<uint64_t>(kMaxReportedSize) ||
      WithSlack(s.work) > static_cast<uint64_t>(kMaxReportedSize))
    return pelStatusSizeOverflow;
  RoundingScope nearest(RoundingScope::kNearest);  // the twiddles' float rounding
  auto* base = AlignUp64(reinterpret_cast<unsigned char*>(pSpec));
  std::memset(base, 0, kHeaderZeroBytes);
  auto* h = reinterpret_cast<FftSpec2D*>(base);
  unsigned char* at = base + kSpecAlign;
  h->col = Build1D(at, s.col, orderY, false, flag);
  at += RoundUp64(s.col.total);
  h->row = Build1D(at, s.row, orderX, true, flag);
  at += RoundUp64(s.row.total);
  h->row2 = s.twoRows ? Build1D(at, s.row2, orderY, true, flag) : nullptr;
  h->orderX = orderX;
  h->orderY = orderY;
  h->hint = hint;
  h->workBytes = static_cast<int32_t>(WithSlack(s.work));
  h->id = kSpecIdReal;  // last: a block is a spec once everything else is in place
  return pelStatusOk;
}

PelStatus FftFwd(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const PeliFFTSpec_R_32f* pSpec,
                 Pel8u* pBuffer) {
  return Transform(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer, false);
}

PelStatus FftInv(const Pel32f* pSrc, int srcStep, Pel32f* pDst, int dstStep, const PeliFFTSpec_R_32f* pSpec,
                 Pel8u* pBuffer) {
  return Transform(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer, true);
}

PelStatus MulPack(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step, Pel32f* pDst, int dstStep,
                  PeliSize roiSize) {
  return PackProduct<false>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}

PelStatus MulPackConj(const Pel32f* pSrc, int srcStep, Pel32f* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return PackProduct<true>(pSrcDst, srcDstStep, pSrc, srcStep, pSrcDst, srcDstStep, roiSize);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "transform/fft_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::transform
