#include "stats/sums.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "core/extended_precision.h"
#include "stats/reduce_scalar.h"
#include "stats/row_reduce_kernels.h"

namespace pel::stats {

namespace {

// ---- Integer images -----------------------------------------------------------------

template <class T>
constexpr IntKind KindOf() {
  if constexpr (std::is_same_v<T, Pel8u>) return IntKind::U8;
  else if constexpr (std::is_same_v<T, Pel16u>) return IntKind::U16;
  else return IntKind::S16;
}

// What a norm reduces, and how an element becomes its magnitude.
constexpr IntOp OpOf(NormKind k) {
  return k == NormKind::Inf ? IntOp::Max : k == NormKind::L1 ? IntOp::Sum : IntOp::Sq;
}
template <class T>
constexpr IntMap MagnitudeOf(bool diff) {
  return diff ? IntMap::AbsDiff : std::is_same_v<T, Pel16s> ? IntMap::Abs : IntMap::Value;
}

// Per-channel reduction of a whole image (b: the second image of a
// difference, or null). Exact, so rows that follow each other without a gap
// may be reduced as one.
template <class T>
void ReduceInt(IntMap map, IntOp op, const T* a, ptrdiff_t sa, const T* b, ptrdiff_t sb,
               PeliSize roi, int C, uint64_t acc[4]) {
  const uint64_t rowBytes = uint64_t(roi.width) * uint64_t(C) * sizeof(T);
  uint64_t elems = uint64_t(roi.width) * uint64_t(C);
  int rows = roi.height;
  const bool gapless = sa > 0 && uint64_t(sa) == rowBytes && (!b || sb == sa);
  if (gapless && rowBytes * uint64_t(rows) <= SIZE_MAX) {
    elems *= uint64_t(rows);
    rows = 1;
  }
  for (int y = 0; y < rows; ++y)
    IntRowReduce(KindOf<T>(), map, op, Row(a, sa, y), b ? Row(b, sb, y) : nullptr,
                 static_cast<size_t>(elems), C, acc);
}

// The 32768-column strips of 8u one-channel L2 norms: each strip's norm,
// squared back, added in Pel64f.
double StripL2(IntMap map, const Pel8u* a, ptrdiff_t sa, const Pel8u* b, ptrdiff_t sb,
               PeliSize roi) {
  constexpr int kStrip = 32768;
  double total = 0;
  for (int x0 = 0; x0 < roi.width; x0 += kStrip) {
    const int w = roi.width - x0 < kStrip ? roi.width - x0 : kStrip;
    uint64_t acc[4] = {};
    for (int y = 0; y < roi.height; ++y)
      IntRowReduce(IntKind::U8, map, IntOp::Sq, Row(a, sa, y) + x0, b ? Row(b, sb, y) + x0 : nullptr,
                   static_cast<size_t>(w), 1, acc);
    const double norm = std::sqrt(static_cast<double>(acc[0]));
    total += norm * norm;
  }
  return std::sqrt(total);
}

template <NormKind K, class T>
void IntNorms(const T* a, ptrdiff_t sa, const T* b, ptrdiff_t sb, PeliSize roi, int C,
              double out[4]) {
  const IntMap map = MagnitudeOf<T>(b != nullptr);
  if constexpr (K == NormKind::L2 && std::is_same_v<T, Pel8u>) {
    if (C == 1 && roi.width > 32768) {
      out[0] = StripL2(map, a, sa, b, sb, roi);
      return;
    }
  }
  uint64_t acc[4] = {};
  ReduceInt(map, OpOf(K), a, sa, b, sb, roi, C, acc);
  for (int c = 0; c < C; ++c) {
    out[c] = static_cast<double>(acc[c]);
    if (K == NormKind::L2) out[c] = std::sqrt(out[c]);
  }
}

// ---- 32f images --------------------------------------------------------------------------

// Elements before the first 16-byte-aligned address of a row.
size_t AlignmentHead(const float* row) {
  return static_cast<size_t>((0 - reinterpret_cast<uintptr_t>(row)) & 15) / sizeof(float);
}

// Halves q[0..m) pairwise (q[j] op= q[j + m/2]) until `keep` values remain.
template <class F, class Op>
void Fold(F* q, size_t m, size_t keep, Op op) {
  while (m > keep) {
    m /= 2;
    for (size_t j = 0; j < m; ++j) q[j] = op(q[j], q[j + m]);
  }
}

// Partials of channel c (every C-th one) in order.
template <class F>
size_t ChannelPartials(const F* partials, int k, int C, int c, F* q) {
  size_t m = 0;
  for (int j = c; j < k; j += C) q[m++] = partials[j];
  return m;
}

// Fast single-precision totals: per row, the partials of each channel are
// folded to two values, which go into an extended-precision total.
void FloatFast(FloatOp op, const float* a, ptrdiff_t sa, const float* b, ptrdiff_t sb,
               PeliSize roi, int C, double out[4]) {
  const int k = C == 3 ? 48 : 16;
  const size_t n = size_t(roi.width) * size_t(C);
  ExtendedPrecisionScope extended;
  volatile long double total[4] = {0, 0, 0, 0};
  for (int y = 0; y < roi.height; ++y) {
    const float* ra = Row(a, sa, y);
    float partials[48] = {};
    FloatRowPartials(op, ra, b ? Row(b, sb, y) : nullptr, n, C == 1 && !b ? AlignmentHead(ra) : 0,
                     k, partials);
    for (int c = 0; c < C; ++c) {
      float q[16];
      Fold(q, ChannelPartials(partials, k, C, c, q), 2, [](float x, float z) { return x + z; });
      total[c] = total[c] + static_cast<long double>(q[0]);
      total[c] = total[c] + static_cast<long double>(q[1]);
    }
  }
  for (int c = 0; c < C; ++c) out[c] = static_cast<double>(total[c]);
}

// Pel64f totals: per row eight (three channels: 24) partials, folded to one
// value a channel and added to the running total; a one-channel row of odd
// length adds its last element singly.
void FloatAccurate(FloatOp op, const float* a, ptrdiff_t sa, const float* b, ptrdiff_t sb,
                   PeliSize roi, int C, double out[4]) {
  const int k = C == 3 ? 24 : 8;
  const size_t n = size_t(roi.width) * size_t(C);
  const size_t paired = C == 1 ? n & ~size_t{1} : n;
  double total[4] = {};
  for (int y = 0; y < roi.height; ++y) {
    const float* ra = Row(a, sa, y);
    const float* rb = b ? Row(b, sb, y) : nullptr;
    double partials[24] = {};
    DoubleRowPartials(op, ra, rb, paired, k, partials);
    for (int c = 0; c < C; ++c) {
      double q[8];
      Fold(q, ChannelPartials(partials, k, C, c, q), 1, [](double x, double z) { return x + z; });
      total[c] += q[0];
    }
    if (paired < n) {
      const double x = rb ? double{ra[n - 1]} - double{rb[n - 1]} : double{ra[n - 1]};
      total[0] = scalar::DoubleStep(op, total[0], x);
    }
  }
  for (int c = 0; c < C; ++c) out[c] = total[c];
}

// Infinity norms: the running maxima live on from row to row and are folded
// once, with the same rule.
void FloatMax(const float* a, ptrdiff_t sa, const float* b, ptrdiff_t sb, PeliSize roi, int C,
              double out[4]) {
  const int k = C == 3 ? 48 : 16;
  const size_t n = size_t(roi.width) * size_t(C);
  float partials[48] = {};
  for (int y = 0; y < roi.height; ++y) {
    const float* ra = Row(a, sa, y);
    FloatRowPartials(FloatOp::Max, ra, b ? Row(b, sb, y) : nullptr, n,
                     C == 1 && !b ? AlignmentHead(ra) : 0, k, partials);
  }
  for (int c = 0; c < C; ++c) {
    float q[16];
    Fold(q, ChannelPartials(partials, k, C, c, q), 1, [](float x, float z) { return x > z ? x : z; });
    out[c] = q[0];
  }
}

template <NormKind K>
void FloatNorms(const float* a, ptrdiff_t sa, const float* b, ptrdiff_t sb, PeliSize roi, int C,
                PelHintAlgorithm hint, double out[4]) {
  if constexpr (K == NormKind::Inf) {
    FloatMax(a, sa, b, sb, roi, C, out);
  } else {
    const FloatOp op = K == NormKind::L1 ? FloatOp::Abs : FloatOp::Sq;
    if (hint == pelHintAccurate) {
      FloatAccurate(op, a, sa, b, sb, roi, C, out);
    } else {
      FloatFast(op, a, sa, b, sb, roi, C, out);
    }
    if (K == NormKind::L2)
      for (int c = 0; c < C; ++c) out[c] = std::sqrt(out[c]);
  }
}

template <NormKind K, class T>
void Norms(const T* a, ptrdiff_t sa, const T* b, ptrdiff_t sb, PeliSize roi, int C,
           PelHintAlgorithm hint, double out[4]) {
  if constexpr (std::is_same_v<T, Pel32f>) {
    FloatNorms<K>(a, sa, b, sb, roi, C, hint, out);
  } else {
    IntNorms<K>(a, sa, b, sb, roi, C, out);
  }
}

// ---- The exported behaviour ------------------------------------------------------------

template <class T>
void Sums(const T* pSrc, int srcStep, PeliSize roi, int C, PelHintAlgorithm hint, double out[4]) {
  if constexpr (std::is_same_v<T, Pel32f>) {
    if (hint == pelHintAccurate) {
      FloatAccurate(FloatOp::Sum, pSrc, srcStep, nullptr, 0, roi, C, out);
    } else {
      FloatFast(FloatOp::Sum, pSrc, srcStep, nullptr, 0, roi, C, out);
    }
  } else {
    // 16s is summed biased by 32768 and the bias taken off exactly.
    const bool biased = std::is_same_v<T, Pel16s>;
    uint64_t acc[4] = {};
    ReduceInt(biased ? IntMap::Biased : IntMap::Value, IntOp::Sum, pSrc, srcStep,
              static_cast<const T*>(nullptr), 0, roi, C, acc);
    const uint64_t bias = biased ? 32768 * uint64_t(roi.width) * uint64_t(roi.height) : 0;
    for (int c = 0; c < C; ++c) out[c] = static_cast<double>(static_cast<int64_t>(acc[c] - bias));
  }
}

template <class T, int C>
PelStatus SumImpl(const T* pSrc, int srcStep, PeliSize roi, Pel64f* pSum, PelHintAlgorithm hint) {
  if (AnyNull(pSrc, pSum)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  double out[4];
  Sums(pSrc, srcStep, roi, C, hint, out);
  std::memcpy(pSum, out, C * sizeof(double));
  return pelStatusOk;
}

// The count is the 32-bit signed product of width and height. One channel
// divides by it; more channels multiply by its reciprocal.
template <class T, int C>
PelStatus MeanImpl(const T* pSrc, int srcStep, PeliSize roi, Pel64f* pMean, PelHintAlgorithm hint) {
  double out[4];
  const PelStatus status = SumImpl<T, C>(pSrc, srcStep, roi, pMean ? out : nullptr, hint);
  if (status != pelStatusOk) return status;
  const auto count = static_cast<int32_t>(static_cast<uint32_t>(roi.width) * static_cast<uint32_t>(roi.height));
  const double reciprocal = 1.0 / count;
  for (int c = 0; c < C; ++c) pMean[c] = C == 1 ? out[c] / count : out[c] * reciprocal;
  return pelStatusOk;
}

template <NormKind K, class T, int C>
PelStatus NormImpl(const T* pSrc, int srcStep, PeliSize roi, Pel64f* pValue, PelHintAlgorithm hint) {
  if (AnyNull(pSrc, pValue)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (srcStep < 1) return pelStatusBadStep;
  double out[4];
  Norms<K>(pSrc, srcStep, static_cast<const T*>(nullptr), 0, roi, C, hint, out);
  std::memcpy(pValue, out, C * sizeof(double));
  return pelStatusOk;
}

template <NormKind K, class T, int C, bool kRelative>
PelStatus NormTwoImpl(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PeliSize roi,
                      Pel64f* pValue, PelHintAlgorithm hint) {
  if (AnyNull(pSrc1, pSrc2, pValue)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (src1Step < 1 || src2Step < 1) return pelStatusBadStep;
  double diff[4];
  Norms<K>(pSrc1, src1Step, pSrc2, src2Step, roi, C, hint, diff);
  if constexpr (!kRelative) {
    std::memcpy(pValue, diff, C * sizeof(double));
    return pelStatusOk;
  } else {
    double ref[4];
    Norms<K>(pSrc2, src2Step, static_cast<const T*>(nullptr), 0, roi, C, hint, ref);
    PelStatus status = pelStatusOk;
    for (int c = 0; c < C; ++c) {
      if (ref[c] == 0) {
        // 0/0 is the quiet NaN with the sign bit set; x/0 is +infinity.
        const uint64_t bits = diff[c] == 0 ? 0xFFF8000000000000ull : 0x7FF0000000000000ull;
        std::memcpy(&pValue[c], &bits, sizeof bits);
        status = pelStatusDivByZeroWarning;
      } else {
        pValue[c] = diff[c] / ref[c];
      }
    }
    return status;
  }
}

}  // namespace

template <class T, int C>
PelStatus Sum(const T* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum) {
  return SumImpl<T, C>(pSrc, srcStep, roiSize, pSum, 0);
}
template <class T, int C>
PelStatus Mean(const T* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean) {
  return MeanImpl<T, C>(pSrc, srcStep, roiSize, pMean, 0);
}
template <int C>
PelStatus SumF(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pSum,
               PelHintAlgorithm hint) {
  return SumImpl<Pel32f, C>(pSrc, srcStep, roiSize, pSum, hint);
}
template <int C>
PelStatus MeanF(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pMean,
                PelHintAlgorithm hint) {
  return MeanImpl<Pel32f, C>(pSrc, srcStep, roiSize, pMean, hint);
}

template <NormKind K, class T, int C>
PelStatus Norm(const T* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue) {
  return NormImpl<K, T, C>(pSrc, srcStep, roiSize, pValue, 0);
}
template <NormKind K, class T, int C>
PelStatus NormDiff(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PeliSize roiSize,
                   Pel64f* pValue) {
  return NormTwoImpl<K, T, C, false>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, 0);
}
template <NormKind K, class T, int C>
PelStatus NormRel(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PeliSize roiSize,
                  Pel64f* pValue) {
  return NormTwoImpl<K, T, C, true>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, 0);
}
template <NormKind K, int C>
PelStatus NormF(const Pel32f* pSrc, int srcStep, PeliSize roiSize, Pel64f* pValue,
                PelHintAlgorithm hint) {
  return NormImpl<K, Pel32f, C>(pSrc, srcStep, roiSize, pValue, hint);
}
template <NormKind K, int C>
PelStatus NormDiffF(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                    PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint) {
  return NormTwoImpl<K, Pel32f, C, false>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
template <NormKind K, int C>
PelStatus NormRelF(const Pel32f* pSrc1, int src1Step, const Pel32f* pSrc2, int src2Step,
                   PeliSize roiSize, Pel64f* pValue, PelHintAlgorithm hint) {
  return NormTwoImpl<K, Pel32f, C, true>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "stats/sums_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::stats
