#include "datamove/copy.h"

#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "core/large_transfer.h"
#include "datamove/row_kernels.h"
#include "datamove/row_pieces.h"

namespace pel::datamove {

namespace {

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

// Copies `rows` rows of `length` bytes, each row in pieces (row_pieces.h).
void CopyRows(const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep, uint64_t length,
              PelIntL rows, bool stream) {
  for (PelIntL y = 0; y < rows; ++y) {
    const auto* s = static_cast<const uint8_t*>(Row(src, srcStep, y));
    auto* d = static_cast<uint8_t*>(Row(dst, dstStep, y));
    ForEachPiece(length, [&](uint64_t offset, uint64_t bytes) {
      CopyRow(s + offset, d + offset, static_cast<size_t>(bytes), stream);
    });
  }
  if (stream) FinishStreaming();
}

template <class T, int C, class Size>
PelStatus CopyImage(const T* pSrc, ptrdiff_t srcStep, T* pDst, ptrdiff_t dstStep, Size roi) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roi)) return pelStatusBadSize;
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * C * sizeof(T);
  const uint64_t total = rowBytes * static_cast<uint64_t>(roi.height);
  const bool stream = StreamsAsPlainCopy(total);
  if (RowsAreOneRun<T, C>(srcStep, dstStep, rowBytes, roi.width, roi.height)) {
    CopyRows(pSrc, srcStep, pDst, dstStep, total, 1, stream);
  } else {
    CopyRows(pSrc, srcStep, pDst, dstStep, rowBytes, roi.height, stream);
  }
  return pelStatusOk;
}

}  // namespace

template <class T, int C>
PelStatus Copy(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize) {
  return CopyImage<T, C>(pSrc, srcStep, pDst, dstStep, roiSize);
}

template <class T, int C>
PelStatus CopyL(const T* pSrc, PelIntL srcStep, T* pDst, PelIntL dstStep, PeliSizeL roiSize) {
  return CopyImage<T, C>(pSrc, srcStep, pDst, dstStep, roiSize);
}

// The caller decides about the cache: flags bit 0 streams. Rows merge when
// both steps equal the width and the whole image stays within 32 bits.
PelStatus CopyManaged(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize,
                      int flags) {
  if (AnyNull(pSrc, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  const bool stream = (flags & 1) != 0;
  const uint64_t total = uint64_t(roiSize.width) * uint64_t(roiSize.height);
  if (srcStep == roiSize.width && dstStep == roiSize.width && total <= UINT32_MAX) {
    CopyRows(pSrc, srcStep, pDst, dstStep, total, 1, stream);
  } else {
    CopyRows(pSrc, srcStep, pDst, dstStep, uint64_t(roiSize.width), roiSize.height, stream);
  }
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "datamove/copy_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::datamove
