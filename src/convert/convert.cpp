#include "convert/convert.h"

#include <cmath>
#include <cstring>
#include <type_traits>

#include "convert/row_convert_kernels.h"
#include "convert/walk.h"
#include "core/exports.h"
#include "core/fp_env.h"
#include "core/large_transfer.h"

namespace pel::convert {

namespace {

// Every conversion through the row kernels: the checks (steps only where the
// member checks them), the cache decision for widening 8- and 16-bit
// sources, and the walk.
template <int L, bool kCheckSteps, class S, class D>
PelStatus ConvertImage(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roi, ConvertJob job) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (kCheckSteps && BadSteps(srcStep, dstStep)) return pelStatusBadStep;
  job.layout = L;
  if constexpr (sizeof(S) <= 2 && sizeof(D) > sizeof(S)) job.stream = StreamsPastCache(BytesTouched<L, S, D>(roi));
  WalkRows<L>(pSrc, srcStep, pDst, dstStep, roi,
              [&](const S* s, D* d, size_t n) { ConvertRow(job, s, d, n); });
  if (job.stream) FinishStreams();
  return pelStatusOk;
}

// One-channel conversions of a scalar element function, steps unchecked.
template <class S, class D, class F>
PelStatus MapImage(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roi, F&& f) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  WalkRows<kC1>(pSrc, srcStep, pDst, dstStep, roi,
                [&](const S* s, D* d, size_t n) { scalar::MapElements<kC1>(s, d, 0, n, f); });
  return pelStatusOk;
}

// The processor rounding that a PelRoundMode asks for; mode 2's own
// arithmetic (adding a half) also rounds to nearest.
unsigned RoundingBitsOf(int mode) {
  return mode == 0 ? RoundingScope::kTowardZero : RoundingScope::kNearest;
}

int KernelMode(int mode) { return mode == 0 || mode == 1 ? mode : 2; }

// Scale factors beyond this change no result: 2^400 overflows every float
// and double that is not zero, 2^-400 rounds every one to 0.
int ClampScale(int sf) { return sf < -2200 ? -2200 : sf > 2200 ? 2200 : sf; }

}  // namespace

template <class S, class D, int L>
PelStatus Widen(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize) {
  return ConvertImage<L, false>(pSrc, srcStep, pDst, dstStep, roiSize, ConvertJob{});
}

template <class S, class D, int L>
PelStatus Narrow(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize) {
  return ConvertImage<L, true>(pSrc, srcStep, pDst, dstStep, roiSize, ConvertJob{});
}

template <class S, class D>
PelStatus ToUnsigned(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize) {
  return MapImage(pSrc, srcStep, pDst, dstStep, roiSize, [](S x) { return x < 1 ? D{0} : static_cast<D>(x); });
}

template <class S, class D>
PelStatus IntegerSfs(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize, PelRoundMode roundMode,
                     int scaleFactor) {
  const int mode = KernelMode(roundMode);
  return MapImage(pSrc, srcStep, pDst, dstStep, roiSize,
                  [=](S x) { return scalar::ScaleInteger<D>(static_cast<int64_t>(x), scaleFactor, mode); });
}

template <class D, int L>
PelStatus FloatRound(const Pel32f* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize,
                     PelRoundMode roundMode) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (BadSteps(srcStep, dstStep)) return pelStatusBadStep;
  RoundingScope rounding(RoundingBitsOf(roundMode));
  ConvertJob job;
  job.mode = KernelMode(roundMode);
  return ConvertImage<L, false>(pSrc, srcStep, pDst, dstStep, roiSize, job);
}

template <class S, class D>
PelStatus FloatSfs(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize, PelRoundMode roundMode,
                   int scaleFactor) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  RoundingScope rounding(RoundingBitsOf(roundMode));
  const int mode = KernelMode(roundMode);
  const int sf = ClampScale(scaleFactor);
  // x * 2^-sf is exact unless it leaves the normal range, where every way of
  // forming it gives the same integer; the kernels multiply by 2^-sf while
  // that is a normal float.
  if constexpr (std::is_same_v<S, Pel32f> && sizeof(D) <= 2) {
    if (sf >= -127 && sf <= 126) {
      ConvertJob job;
      job.mode = mode;
      job.affine = true;
      job.mul = std::ldexp(1.0f, -sf);
      return ConvertImage<kC1, false>(pSrc, srcStep, pDst, dstStep, roiSize, job);
    }
  }
  return MapImage(pSrc, srcStep, pDst, dstStep, roiSize,
                  [=](S x) { return scalar::FloatToInt<D>(std::ldexp(x, -sf), mode); });
}

// The buffer holds floats on entry and 32u on return; elements go through
// memcpy, as the two types may not alias.
PelStatus FloatSfsInPlace(Pel32u* pSrcDst, int srcDstStep, PeliSize roiSize, PelRoundMode roundMode,
                          int scaleFactor) {
  if (AnyNull(pSrcDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  RoundingScope rounding(RoundingBitsOf(roundMode));
  const int mode = KernelMode(roundMode);
  const int sf = ClampScale(scaleFactor);
  for (int y = 0; y < roiSize.height; ++y) {
    Pel32u* row = Row(pSrcDst, srcDstStep, y);
    for (int x = 0; x < roiSize.width; ++x) {
      float v;
      std::memcpy(&v, row + x, sizeof v);
      row[x] = scalar::FloatToInt<Pel32u>(std::ldexp(v, -sf), mode);
    }
  }
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "convert/convert_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::convert
