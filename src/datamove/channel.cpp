#include "datamove/channel.h"

#include <cstdint>

#include "core/common.h"
#include "core/exports.h"
#include "core/lanes.h"
#include "datamove/channel_scalar.h"
#include "datamove/row_channel_kernels.h"
#include "datamove/row_overlap.h"

namespace pel::datamove {

namespace {

// Each operation names the lanes one row of n pixels spans on either side
// (from the lane the pointer addresses) and its vector and scalar row kernels.
// A side that addresses one channel of C-lane pixels ends at that channel of
// the last pixel: the lanes after it need not exist.
template <class U, int C>
struct Extract {
  static uint64_t SrcLanes(uint64_t n) { return (n - 1) * C + 1; }
  static uint64_t DstLanes(uint64_t n) { return n; }
  static void Vector(const U* s, U* d, size_t n) { ExtractRowVec<U, C>(s, d, n); }
  static void Scalar(const U* s, U* d, size_t n) { scalar::ExtractRow<U, C>(s, d, 0, n); }
};

template <class U, int C>
struct Insert {
  static uint64_t SrcLanes(uint64_t n) { return n; }
  static uint64_t DstLanes(uint64_t n) { return (n - 1) * C + 1; }
  static void Vector(const U* s, U* d, size_t n) { InsertRowVec<U, C>(s, d, n); }
  static void Scalar(const U* s, U* d, size_t n) { scalar::InsertRow<U, C>(s, d, 0, n); }
};

template <class U>
struct DropAlpha {
  static uint64_t SrcLanes(uint64_t n) { return n * 4; }
  static uint64_t DstLanes(uint64_t n) { return n * 3; }
  static void Vector(const U* s, U* d, size_t n) { DropAlphaRowVec<U>(s, d, n); }
  static void Scalar(const U* s, U* d, size_t n) { scalar::DropAlphaRow<U>(s, d, 0, n); }
};

template <class U>
struct AddAlpha {
  static uint64_t SrcLanes(uint64_t n) { return n * 3; }
  static uint64_t DstLanes(uint64_t n) { return n * 4; }
  static void Vector(const U* s, U* d, size_t n) { AddAlphaRowVec<U>(s, d, n); }
  static void Scalar(const U* s, U* d, size_t n) { scalar::AddAlphaRow<U>(s, d, 0, n); }
};

template <int C>
struct Duplicate {
  static uint64_t SrcLanes(uint64_t n) { return n; }
  static uint64_t DstLanes(uint64_t n) { return n * C; }
  static void Vector(const uint8_t* s, uint8_t* d, size_t n) { DupRowVec<C>(s, d, n); }
  static void Scalar(const uint8_t* s, uint8_t* d, size_t n) {
    scalar::DupRow<uint8_t, C>(s, d, 0, n);
  }
};

// Checks the arguments, then walks the rows. These copies never bypass the
// cache and never merge rows: every row is handed over on its own.
template <class Op, class T>
PelStatus WalkRows(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roi) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  using U = LaneOf<T>;
  const auto n = static_cast<size_t>(roi.width);
  const uint64_t srcBytes = Op::SrcLanes(n) * sizeof(U);
  const uint64_t dstBytes = Op::DstLanes(n) * sizeof(U);
  for (int y = 0; y < roi.height; ++y) {
    const auto* s = reinterpret_cast<const U*>(Row(pSrc, srcStep, y));
    auto* d = reinterpret_cast<U*>(Row(pDst, dstStep, y));
    if (n <= kScalarRowPixels || Overlap(RangeOf(s, srcBytes), RangeOf(d, dstBytes))) {
      Op::Scalar(s, d, n);
    } else {
      Op::Vector(s, d, n);
    }
  }
  return pelStatusOk;
}

}  // namespace

template <class T, int C>
PelStatus CopyExtract(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  return WalkRows<Extract<LaneOf<T>, C>>(pSrc, srcStep, pDst, dstStep, roiSize);
}

template <class T, int C>
PelStatus CopyInsert(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  return WalkRows<Insert<LaneOf<T>, C>>(pSrc, srcStep, pDst, dstStep, roiSize);
}

template <class T>
PelStatus CopyDropAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  return WalkRows<DropAlpha<LaneOf<T>>>(pSrc, srcStep, pDst, dstStep, roiSize);
}

template <class T>
PelStatus CopyAddAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  return WalkRows<AddAlpha<LaneOf<T>>>(pSrc, srcStep, pDst, dstStep, roiSize);
}

template <int C>
PelStatus Dup(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize) {
  return WalkRows<Duplicate<C>>(pSrc, srcStep, pDst, dstStep, roiSize);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/channel_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
