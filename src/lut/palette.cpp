#include "lut/palette.h"

#include "core/common.h"
#include "core/exports.h"

namespace pel::lut {

template <class S, class D, int L>
PelStatus Palette(const S* pSrc, int srcStep, D* pDst, int dstStep, PeliSize roiSize,
                  PerChannel<const D*, L> pTable, int nBitSize) {
  constexpr int C = ChannelsOf(L), W = WorkedOf(L);
  const D* tables[4];
  if (AnyNull(pSrc, pDst) || !Channels<L>(pTable, tables)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (srcStep < 1 || dstStep < 1) return pelStatusBadStep;
  if (nBitSize < 1 || nBitSize > int{8 * sizeof(S)}) return pelStatusOutOfRange;
  // Only the table's 1 << nBitSize entries are read.
  const unsigned mask = (1u << nBitSize) - 1;
  if constexpr (sizeof(S) == 1 && sizeof(D) == 1) {
    Lut8Job job;
    job.channels = C;
    job.worked = W;
    for (int c = 0; c < W; ++c)
      for (unsigned x = 0; x < 256; ++x) job.table[c][x] = tables[c][x & mask];
    RunLut8(job, pSrc, srcStep, pDst, dstStep, roiSize);
  } else {
    ForEachRun(pSrc, srcStep, pDst, dstStep, roiSize, C, [&](const S* s, D* d, size_t pixels) {
      scalar::MapPixels<C, W>(s, d, pixels, [&](int c, S x) { return tables[c][x & mask]; });
    });
  }
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "lut/palette_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::lut
