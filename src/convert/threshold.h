// Threshold: the walkers behind the peliThreshold exports.
#pragma once

#include <type_traits>

#include "convert/layouts.h"
#include "peli.h"

namespace pel::convert {

// One-channel members take their thresholds and values by value, the others
// one per channel through a pointer.
template <class T, int L>
using PerChannel = std::conditional_t<L == kC1, T, const T*>;

// The per-channel argument as a pointer: a one-channel member's by-value
// argument is addressed where it lies (valid for the call).
template <int L, class P>
auto Addr(const P& p) {
  if constexpr (L == kC1) {
    return &p;
  } else {
    return p;
  }
}

#define PEL_THRESHOLD_DECLARE(Name, ...)                                                               \
  template <class T, int L>                                                                            \
  PelStatus Name(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, __VA_ARGS__);     \
  template <class T, int L>                                                                            \
  PelStatus Name##InPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, __VA_ARGS__);

PEL_THRESHOLD_DECLARE(Threshold, PerChannel<T, L> threshold, PelCmpOp cmpOp)
PEL_THRESHOLD_DECLARE(ThresholdLT, PerChannel<T, L> threshold)
PEL_THRESHOLD_DECLARE(ThresholdGT, PerChannel<T, L> threshold)
PEL_THRESHOLD_DECLARE(ThresholdVal, PerChannel<T, L> threshold, PerChannel<T, L> value, PelCmpOp cmpOp)
PEL_THRESHOLD_DECLARE(ThresholdLTVal, PerChannel<T, L> threshold, PerChannel<T, L> value)
PEL_THRESHOLD_DECLARE(ThresholdGTVal, PerChannel<T, L> threshold, PerChannel<T, L> value)
PEL_THRESHOLD_DECLARE(ThresholdLTValGTVal, PerChannel<T, L> thresholdLT, PerChannel<T, L> valueLT,
                      PerChannel<T, L> thresholdGT, PerChannel<T, L> valueGT)
#undef PEL_THRESHOLD_DECLARE

}  // namespace pel::convert
