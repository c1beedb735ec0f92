#include "datamove/copy.h"

#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "core/large_transfer.h"
#include "datamove/row_kernels.h"

namespace pel::datamove {

namespace {

// Largest piece of a row that an _L copy hands to the row kernel at once.
constexpr uint64_t kMaxPieceBytes = 0x40000000;

// Rows that follow each other without a gap are copied as one long row.
// The 8-bit one-channel copy merges only images below 32768 in both
// dimensions, which keeps width x height far from any overflow.
template <class T, int C>
bool RowsAreOneRun(ptrdiff_t srcStep, ptrdiff_t dstStep, uint64_t rowBytes, PelIntL width,
                   PelIntL height) {
  if (srcStep != dstStep || srcStep <= 0 || static_cast<uint64_t>(srcStep) != rowBytes) {
    return false;
  }
  if constexpr (std::is_same_v<T, Pel8u> && C == 1) {
    return ((width | height) & ~PelIntL{0x7FFF}) == 0;
  }
  return true;
}

template <class T, int C, class Step, class Size>
PelStatus CopyImage(const T* pSrc, Step srcStep, T* pDst, Step dstStep, Size roi) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * C * sizeof(T);
  const uint64_t total = rowBytes * static_cast<uint64_t>(roi.height);
  const bool stream = StreamsAsPlainCopy(total);
  uint64_t length = rowBytes;
  PelIntL rows = roi.height;
  if (RowsAreOneRun<T, C>(srcStep, dstStep, rowBytes, roi.width, roi.height)) {
    length = total;
    rows = 1;
  }
  for (PelIntL y = 0; y < rows; ++y) {
    const auto* s = reinterpret_cast<const uint8_t*>(Row(pSrc, srcStep, y));
    auto* d = reinterpret_cast<uint8_t*>(Row(pDst, dstStep, y));
    for (uint64_t done = 0; done < length; done += kMaxPieceBytes) {
      const uint64_t piece = length - done < kMaxPieceBytes ? length - done : kMaxPieceBytes;
      CopyRow(s + done, d + done, static_cast<size_t>(piece), stream);
    }
  }
  return pelStatusOk;
}

}  // namespace

template <class T, int C>
PelStatus Copy(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  return CopyImage<T, C, ptrdiff_t>(pSrc, srcStep, pDst, dstStep, roiSize);
}

template <class T, int C>
PelStatus CopyL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliSizeL roiSize) {
  return CopyImage<T, C, ptrdiff_t>(pSrc, srcStep, pDst, dstStep, roiSize);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/copy_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
