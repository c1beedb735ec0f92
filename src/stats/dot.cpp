#include "stats/dot.h"

#include <cstdint>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "stats/row_reduce_kernels.h"

namespace pel::stats {

namespace {

// Every integer up to 2^53 is a Pel64f.
constexpr uint64_t kExactLimit = uint64_t{1} << 53;

// The defined result: one Pel64f running total per channel, left to right.
// The totals live in registers for the row: each addition waits for the one
// before, so a trip through memory would lengthen the chain.
template <class T, int C, int kUsed>
void SequentialRow(const T* a, const T* b, int width, double total[4]) {
  double t[kUsed];
  for (int c = 0; c < kUsed; ++c) t[c] = total[c];
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < kUsed; ++c) t[c] += static_cast<double>(a[x * C + c]) * static_cast<double>(b[x * C + c]);
  for (int c = 0; c < kUsed; ++c) total[c] = t[c];
}

// Integer products: while a row cannot take any intermediate total beyond
// 2^53 in magnitude, every addition of the sequence is exact, so the row's
// exact integer sum added at once is the same number.
template <class T, int C, int kUsed>
void IntegerRow(const T* a, const T* b, int width, double total[4]) {
  constexpr IntKind kind = std::is_same_v<T, Pel8u>    ? IntKind::U8
                           : std::is_same_v<T, Pel16u> ? IntKind::U16
                                                       : IntKind::S16;
  int64_t sum[4] = {};
  uint64_t mag[4] = {};
  IntRowDot(kind, a, b, size_t(width) * C, C, sum, mag);
  for (int c = 0; c < kUsed; ++c) {
    const double t = total[c] < 0 ? -total[c] : total[c];
    if (t > static_cast<double>(kExactLimit) || mag[c] > kExactLimit - static_cast<uint64_t>(t)) {
      return SequentialRow<T, C, kUsed>(a, b, width, total);
    }
  }
  for (int c = 0; c < kUsed; ++c) total[c] += static_cast<double>(sum[c]);
}

}  // namespace

template <class T, int C, int kUsed>
PelStatus DotProd(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PeliSize roiSize,
                  Pel64f* pDp) {
  if (AnyNull(pSrc1, pSrc2, pDp)) return pelStatusNullPointer;
  // The results are cleared before the sizes are looked at.
  for (int c = 0; c < kUsed; ++c) pDp[c] = 0;
  if (BadSize(roiSize) || src1Step == 0 || src2Step == 0) return pelStatusBadSize;
  constexpr bool kNarrowInteger = sizeof(T) <= 2;
  double total[4] = {};
  // Integer rows that follow each other without a gap in both images are
  // one row: its order is the same, and so is the bound on its totals.
  int width = roiSize.width, rows = roiSize.height;
  const int64_t rowBytes = int64_t(width) * C * int64_t(sizeof(T));
  if (kNarrowInteger && src1Step == rowBytes && src2Step == rowBytes && rowBytes * rows <= INT32_MAX) {
    width *= rows;
    rows = 1;
  }
  for (int y = 0; y < rows; ++y) {
    const T* a = Row(pSrc1, src1Step, y);
    const T* b = Row(pSrc2, src2Step, y);
    if constexpr (kNarrowInteger) {
      IntegerRow<T, C, kUsed>(a, b, width, total);
    } else {
      SequentialRow<T, C, kUsed>(a, b, width, total);
    }
  }
  for (int c = 0; c < kUsed; ++c) pDp[c] = total[c];
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "stats/dot_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::stats
