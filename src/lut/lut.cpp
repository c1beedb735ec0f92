#include "lut/lut.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "core/common.h"
#include "core/exports.h"
#include "core/fp_env.h"
#include "pelcore.h"

namespace pel::lut {

namespace {

// A channel's table covers the source values [lo, lo + count) that lie
// inside its levels; values outside are copied.
template <class T>
struct RangeTable {
  const T* entries = nullptr;
  int lo = 0;
  int count = 0;
};

template <class T, int C, int W>
void ApplyTables(const RangeTable<T>* tables, const T* src, int srcStep, T* dst, int dstStep, PeliSize roi) {
  ForEachRun(src, srcStep, dst, dstStep, roi, C, [&](const T* s, T* d, size_t pixels) {
    scalar::MapPixels<C, W>(s, d, pixels, [&](int c, T x) {
      const RangeTable<T>& t = tables[c];
      const unsigned i = static_cast<unsigned>(static_cast<int>(x) - t.lo);
      return i < static_cast<unsigned>(t.count) ? t.entries[i] : x;
    });
  });
}

template <class T, Kind K, int C, int W>
void ApplySearch(const Curve<ValueOf<T>>* curves, const T* src, int srcStep, T* dst, int dstStep, PeliSize roi) {
  ForEachRun(src, srcStep, dst, dstStep, roi, C, [&](const T* s, T* d, size_t pixels) {
    scalar::MapPixels<C, W>(s, d, pixels, [&](int c, T x) { return scalar::Evaluate<T, K>(curves[c], x); });
  });
}

// Tables over the whole 16-bit range, looked up without a range check: base
// points at the entry of 0, so a signed value indexes it directly.
template <class T, int C, int W>
void ApplyFullTables(const T* const* base, const T* src, int srcStep, T* dst, int dstStep, PeliSize roi) {
  ForEachRun(src, srcStep, dst, dstStep, roi, C, [&](const T* s, T* d, size_t pixels) {
    scalar::MapPixels<C, W>(s, d, pixels, [&](int c, T x) { return base[c][x]; });
  });
}

// 16-bit images. Below this many values a table covers only the levels'
// range (values outside are copied after a range check) and is built only
// when the image has at least half as many values as the table entries, else
// each value is searched among the levels. From it on, each channel gets a
// 65,536-entry table (copies outside the levels), which its fill amortises.
// A failed allocation falls back to the search, which gives the same results.
inline constexpr uint64_t kFullTableValues = uint64_t{1} << 16;

template <class T, Kind K, int C, int W>
void Apply16(const Curve<Pel32s>* curves, const T* src, int srcStep, T* dst, int dstStep, PeliSize roi) {
  constexpr int kMin = std::numeric_limits<T>::min(), kMax = std::numeric_limits<T>::max();
  const uint64_t values = uint64_t(roi.width) * uint64_t(roi.height) * W;
  const bool full = values >= kFullTableValues;
  RangeTable<T> tables[4];
  int64_t total = 0;
  for (int c = 0; c < W; ++c) {
    const int64_t lo = full ? kMin : std::max<int64_t>(curves[c].levels[0], kMin);
    const int64_t end = full ? int64_t{kMax} + 1 : std::min<int64_t>(curves[c].levels[curves[c].n - 1], int64_t{kMax} + 1);
    tables[c].lo = static_cast<int>(lo);
    tables[c].count = end > lo ? static_cast<int>(end - lo) : 0;
    total += tables[c].count;
  }
  T* memory = nullptr;
  if (total > 0 && (full || uint64_t(total) <= 2 * values)) {
    memory = static_cast<T*>(pelMalloc(static_cast<int32_t>(total * int64_t{sizeof(T)})));
  }
  if (memory == nullptr && total > 0) {
    ApplySearch<T, K, C, W>(curves, src, srcStep, dst, dstStep, roi);
    return;
  }
  T* next = memory;
  const T* base[4] = {};
  for (int c = 0; c < W; ++c) {
    scalar::FillTable<T, K>(curves[c], tables[c].lo, tables[c].count, next);
    tables[c].entries = next;
    if (full) base[c] = next - kMin;
    next += tables[c].count;
  }
  if (full) {
    ApplyFullTables<T, C, W>(base, src, srcStep, dst, dstStep, roi);
  } else {
    ApplyTables<T, C, W>(tables, src, srcStep, dst, dstStep, roi);
  }
  pelFree(memory);
}

template <class T, int L, Kind K>
void Apply(const Curve<ValueOf<T>>* curves, const T* src, int srcStep, T* dst, int dstStep, PeliSize roi) {
  constexpr int C = ChannelsOf(L), W = WorkedOf(L);
  if constexpr (sizeof(T) == 1) {
    Lut8Job job;
    job.channels = C;
    job.worked = W;
    for (int c = 0; c < W; ++c) scalar::FillTable<Pel8u, K>(curves[c], 0, 256, job.table[c]);
    RunLut8(job, src, srcStep, dst, dstStep, roi);
  } else if constexpr (sizeof(T) == 2) {
    Apply16<T, K, C, W>(curves, src, srcStep, dst, dstStep, roi);
  } else {
    ApplySearch<T, K, C, W>(curves, src, srcStep, dst, dstStep, roi);
  }
}

template <class T, int L, Kind K>
PelStatus LutImage(const T* src, int srcStep, T* dst, int dstStep, PeliSize roi, CurveArg<T, L> values,
                   CurveArg<T, L> levels, PerChannel<int, L> counts) {
  using V = ValueOf<T>;
  constexpr int W = WorkedOf(L);
  const V* valueOf[4];
  const V* levelOf[4];
  if (AnyNull(src, dst) || !Channels<L>(values, valueOf) || !Channels<L>(levels, levelOf)) return pelStatusNullPointer;
  if constexpr (L != kC1) {
    if (counts == nullptr) return pelStatusNullPointer;
  }
  if (BadSize(roi)) return pelStatusBadSize;
  if (srcStep < 1 || dstStep < 1) return pelStatusBadStep;
  Curve<V> curves[4];
  for (int c = 0; c < W; ++c) {
    if constexpr (L == kC1) {
      curves[c] = {valueOf[c], levelOf[c], counts};
    } else {
      curves[c] = {valueOf[c], levelOf[c], counts[c]};
    }
    if (curves[c].n < 2) return pelStatusLutLevelsError;
  }
  if constexpr (K == Kind::kStep) {
    Apply<T, L, K>(curves, src, srcStep, dst, dstStep, roi);
  } else {
    // The interpolations round through the processor: to nearest for the
    // call, whatever the caller's rounding control says.
    RoundingScope nearest(RoundingScope::kNearest);
    Apply<T, L, K>(curves, src, srcStep, dst, dstStep, roi);
  }
  return pelStatusOk;
}

}  // namespace

template <class T, int L, Kind K>
PelStatus Lut(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, CurveArg<T, L> pValues,
              CurveArg<T, L> pLevels, PerChannel<int, L> nLevels) {
  return LutImage<T, L, K>(pSrc, srcStep, pDst, dstStep, roiSize, pValues, pLevels, nLevels);
}

template <class T, int L, Kind K>
PelStatus LutInPlace(T* pSrcDst, int srcDstStep, PeliSize roiSize, CurveArg<T, L> pValues, CurveArg<T, L> pLevels,
                     PerChannel<int, L> nLevels) {
  return LutImage<T, L, K>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, pValues, pLevels, nLevels);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "lut/lut_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::lut
