#include "convert/threshold.h"

#include <limits>

#include "convert/row_threshold_kernels.h"
#include "convert/walk.h"
#include "core/exports.h"
#include "core/large_transfer.h"

namespace pel::convert {

namespace {

enum Variant { kCmp, kLT, kGT, kVal, kLTVal, kGTVal, kLTValGTVal };

bool LessOrGreater(int cmpOp) { return cmpOp == pelCmpLess || cmpOp == pelCmpGreater; }

// The per-channel arguments of a call: thresholds and values, below and
// above. A one-channel member's come from its by-value arguments.
template <class T>
struct Limits {
  const T* tLT = nullptr;
  const T* vLT = nullptr;
  const T* tGT = nullptr;
  const T* vGT = nullptr;
};

// Comparisons with these never hold: nothing lies below the lowest value or
// above the highest (for floats, the infinities; NaN compares false anyway).
template <class T>
constexpr T Lowest() {
  return std::numeric_limits<T>::has_infinity ? -std::numeric_limits<T>::infinity()
                                              : std::numeric_limits<T>::lowest();
}
template <class T>
constexpr T Highest() {
  return std::numeric_limits<T>::has_infinity ? std::numeric_limits<T>::infinity()
                                              : std::numeric_limits<T>::max();
}

template <class T, int L>
PelStatus ThresholdImage(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roi, Variant variant,
                         int cmpOp, Limits<T> lim) {
  if (variant == kVal && !LessOrGreater(cmpOp)) return pelStatusNotSupportedMode;
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  if (BadSteps(srcStep, dstStep)) return pelStatusBadStep;
  // A variant's own arrays: which of the four it takes.
  const bool takesLT = variant == kLT || variant == kLTVal || variant == kLTValGTVal ||
                       ((variant == kCmp || variant == kVal) && cmpOp == pelCmpLess);
  const bool takesGT = variant == kGT || variant == kGTVal || variant == kLTValGTVal ||
                       ((variant == kCmp || variant == kVal) && cmpOp == pelCmpGreater);
  const bool values = variant != kCmp && variant != kLT && variant != kGT;
  if (variant == kCmp || variant == kVal) {
    // One threshold (and value) array whatever the comparison: checked as such.
    if (lim.tLT == nullptr || (values && lim.vLT == nullptr)) return pelStatusNullPointer;
  } else if ((takesLT && (lim.tLT == nullptr || (values && lim.vLT == nullptr))) ||
             (takesGT && (lim.tGT == nullptr || (values && lim.vGT == nullptr)))) {
    return pelStatusNullPointer;
  }
  if (variant == kCmp && !LessOrGreater(cmpOp)) return pelStatusNotSupportedMode;
  if (variant == kCmp || variant == kVal) {
    // The one threshold (and value) serves the side the comparison names.
    if (cmpOp == pelCmpGreater) {
      lim.tGT = lim.tLT;
      lim.vGT = lim.vLT;
    }
  }
  constexpr int worked = WorkedChannels(L);
  if (variant == kLTValGTVal) {
    for (int c = 0; c < worked; ++c)
      if (lim.tGT[c] < lim.tLT[c]) return pelStatusThresholdError;
  }
  ThresholdJob<T> job;
  job.layout = L;
  job.op = values ? scalar::kReplace : takesLT ? scalar::kMax : scalar::kMin;
  for (int c = 0; c < 4; ++c) {
    const bool on = c < worked;
    job.tLT[c] = on && takesLT ? lim.tLT[c] : Lowest<T>();
    job.vLT[c] = on && takesLT && values ? lim.vLT[c] : T{};
    job.tGT[c] = on && takesGT ? lim.tGT[c] : Highest<T>();
    job.vGT[c] = on && takesGT && values ? lim.vGT[c] : T{};
  }
  if constexpr (sizeof(T) == 2) job.stream = StreamsPastCache(BytesTouched<L, T, T>(roi));
  WalkRows<L>(pSrc, srcStep, pDst, dstStep, roi, [&](const T* s, T* d, size_t n) { ThresholdRow(job, s, d, n); });
  if (job.stream) FinishThresholdStreams();
  return pelStatusOk;
}

}  // namespace

#define PEL_THRESHOLD_DEFINE(Name, variant, cmp, params, ...)                                         \
  template <class T, int L>                                                                            \
  PelStatus Name(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PEL_UNPAREN params) { \
    return ThresholdImage<T, L>(pSrc, srcStep, pDst, dstStep, roiSize, variant, cmp, Limits<T>{__VA_ARGS__}); \
  }                                                                                                    \
  template <class T, int L>                                                                            \
  PelStatus Name##InPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, PEL_UNPAREN params) {          \
    return ThresholdImage<T, L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, variant, cmp,       \
                                Limits<T>{__VA_ARGS__});                                               \
  }
#define PEL_UNPAREN(...) __VA_ARGS__

PEL_THRESHOLD_DEFINE(Threshold, kCmp, cmpOp, (PerChannel<T, L> threshold, PelCmpOp cmpOp),
                     Addr<L>(threshold))
PEL_THRESHOLD_DEFINE(ThresholdLT, kLT, 0, (PerChannel<T, L> threshold), Addr<L>(threshold))
PEL_THRESHOLD_DEFINE(ThresholdGT, kGT, 0, (PerChannel<T, L> threshold), nullptr, nullptr, Addr<L>(threshold))
PEL_THRESHOLD_DEFINE(ThresholdVal, kVal, cmpOp, (PerChannel<T, L> threshold, PerChannel<T, L> value, PelCmpOp cmpOp),
                     Addr<L>(threshold), Addr<L>(value))
PEL_THRESHOLD_DEFINE(ThresholdLTVal, kLTVal, 0, (PerChannel<T, L> threshold, PerChannel<T, L> value),
                     Addr<L>(threshold), Addr<L>(value))
PEL_THRESHOLD_DEFINE(ThresholdGTVal, kGTVal, 0, (PerChannel<T, L> threshold, PerChannel<T, L> value), nullptr,
                     nullptr, Addr<L>(threshold), Addr<L>(value))
PEL_THRESHOLD_DEFINE(ThresholdLTValGTVal, kLTValGTVal, 0,
                     (PerChannel<T, L> thresholdLT, PerChannel<T, L> valueLT, PerChannel<T, L> thresholdGT,
                      PerChannel<T, L> valueGT),
                     Addr<L>(thresholdLT), Addr<L>(valueLT), Addr<L>(thresholdGT), Addr<L>(valueGT))
#undef PEL_THRESHOLD_DEFINE
#undef PEL_UNPAREN

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "convert/threshold_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::convert
