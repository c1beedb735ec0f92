#include "logic/shift.h"

#include "core/common.h"
#include "core/exports.h"
#include "core/lanes.h"
#include "datamove/copy.h"
#include "datamove/masked.h"
#include "datamove/set.h"
#include "logic/walk.h"

namespace pel::logic {

namespace {

constexpr bool Clears(ShiftKind kind) { return kind != ShiftKind::kRightArithmetic; }

template <class T>
constexpr Pel32u kBits = 8 * sizeof(T);

// Counts that leave nothing of any element fill the destination with zeros,
// through the fill of the copy and set family, without reading the source.
template <class T, int C, int W>
PelStatus FillZero(T* d, int dStep, PeliSize roi) {
  static constexpr T kZeros[4] = {};
  if constexpr (W < C) {
    return datamove::SetAlpha<T>(kZeros, d, dStep, roi);
  } else if constexpr (C == 1) {
    return datamove::SetC1<T>(T{0}, d, dStep, roi);
  } else {
    return datamove::Set<T, C>(kZeros, d, dStep, roi);
  }
}

// A count of 0 copies; in place there is nothing to do.
template <class T, int C, int W>
PelStatus CopyOrNothing(const T* s, int sStep, T* d, int dStep, PeliSize roi) {
  if (s == d && sStep == dStep) return pelStatusOk;
  if constexpr (W < C) {
    return datamove::CopyAlpha<T>(s, sStep, d, dStep, roi);
  } else {
    return datamove::Copy<T, C>(s, sStep, d, dStep, roi);
  }
}

template <class T, int C>
PelStatus WalkShift(ShiftKind kind, const T* s, int sStep, T* d, int dStep, PeliSize roi,
                    const ShiftPattern& p) {
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * C * sizeof(T);
  ForEachRow(roi, rowBytes, {sStep, dStep}, [&](ptrdiff_t y, size_t bytes) {
    ShiftRow(kind, sizeof(T), Row(s, sStep, y), Row(d, dStep, y), bytes / sizeof(T), p);
  });
  return pelStatusOk;
}

// Every element of C-channel pixels by one count: the one-channel members,
// and the multi-channel ones with equal counts, which are the one-channel
// member over C times the width.
template <class T, int C, ShiftKind kKind>
PelStatus ShiftAll(const T* s, int sStep, Pel32u count, T* d, int dStep, PeliSize roi) {
  if (count == 0) return CopyOrNothing<T, C, C>(s, sStep, d, dStep, roi);
  if (Clears(kKind) && count >= kBits<T>) return FillZero<T, C, C>(d, dStep, roi);
  return WalkShift<T, C>(kKind, s, sStep, d, dStep, roi, MakeShiftPattern<LaneOf<T>>(&count, 1, 1));
}

}  // namespace

template <class T, ShiftKind kKind>
PelStatus ShiftC1(const T* pSrc, int srcStep, Pel32u value, T* pDst, int dstStep,
                  PeliSize roiSize) {
  if (const PelStatus st = CheckArgs(roiSize, {srcStep, dstStep}, pSrc, pDst); st != pelStatusOk) {
    return st;
  }
  return ShiftAll<T, 1, kKind>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}

template <class T, ShiftKind kKind>
PelStatus ShiftC1I(Pel32u value, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return ShiftC1<T, kKind>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}

template <class T, int C, int W, ShiftKind kKind>
PelStatus Shift(const T* pSrc, int srcStep, const Pel32u* value, T* pDst, int dstStep,
                PeliSize roiSize) {
  if (const PelStatus st = CheckArgs(roiSize, {srcStep, dstStep}, pSrc, value, pDst);
      st != pelStatusOk) {
    return st;
  }
  bool equal = true, allClear = Clears(kKind), allZero = true;
  for (int c = 0; c < W; ++c) {
    equal = equal && value[c] == value[0];
    allClear = allClear && value[c] >= kBits<T>;
    allZero = allZero && value[c] == 0;
  }
  if constexpr (W == C) {
    if (equal) return ShiftAll<T, C, kKind>(pSrc, srcStep, value[0], pDst, dstStep, roiSize);
  }
  if (allClear) return FillZero<T, C, W>(pDst, dstStep, roiSize);
  if (allZero) return CopyOrNothing<T, C, W>(pSrc, srcStep, pDst, dstStep, roiSize);
  return WalkShift<T, C>(kKind, pSrc, srcStep, pDst, dstStep, roiSize,
                         MakeShiftPattern<LaneOf<T>>(value, C, W));
}

template <class T, int C, int W, ShiftKind kKind>
PelStatus ShiftI(const Pel32u* value, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return Shift<T, C, W, kKind>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "logic/shift_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::logic
