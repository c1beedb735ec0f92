#include "datamove/set.h"

#include <cstring>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "core/lanes.h"
#include "core/large_transfer.h"
#include "datamove/row_kernels.h"

namespace pel::datamove {

namespace {

template <class T, int C>
PelStatus SetImage(const T* value, T* pDst, int dstStep, PeliSize roi) {
  if (AnyNull(value, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  using U = LaneOf<T>;
  U lanes[C];
  std::memcpy(lanes, value, sizeof lanes);
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * C * sizeof(T);
  const uint64_t total = rowBytes * static_cast<uint64_t>(roi.height);
  bool stream = StreamsPastCache(total);
  if constexpr (std::is_same_v<T, Pel16s> && C == 1) {
    stream = false;  // asks for the cache size like the others, but keeps cached stores
  }
  size_t pixels = static_cast<size_t>(roi.width);
  int rows = roi.height;
  if (dstStep > 0 && static_cast<uint64_t>(dstStep) == rowBytes) {
    pixels = static_cast<size_t>(total / (C * sizeof(T)));
    rows = 1;
  }
  for (int y = 0; y < rows; ++y) {
    SetRow<U, C>(reinterpret_cast<U*>(Row(pDst, dstStep, y)), pixels, lanes, stream);
  }
  if (stream) FinishStreaming();
  return pelStatusOk;
}

}  // namespace

template <class T>
PelStatus SetC1(T value, T* pDst, int dstStep, PeliSize roiSize) {
  return SetImage<T, 1>(&value, pDst, dstStep, roiSize);
}

template <class T, int C>
PelStatus Set(const T* value, T* pDst, int dstStep, PeliSize roiSize) {
  return SetImage<T, C>(value, pDst, dstStep, roiSize);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/set_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
