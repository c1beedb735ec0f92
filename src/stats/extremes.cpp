#include "stats/extremes.h"

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "stats/row_extreme_kernels.h"

namespace pel::stats {

namespace {

template <class T>
constexpr ElemKind KindOf() {
  if constexpr (std::is_same_v<T, Pel8u>) return ElemKind::U8;
  else if constexpr (std::is_same_v<T, Pel16u>) return ElemKind::U16;
  else if constexpr (std::is_same_v<T, Pel16s>) return ElemKind::S16;
  else return ElemKind::F32;
}

template <class T>
struct Limits {
  using L = std::numeric_limits<T>;
  static constexpr T kLowest = L::has_infinity ? -L::infinity() : L::lowest();
  static constexpr T kHighest = L::has_infinity ? L::infinity() : L::max();
};

// One side (minimum or maximum) of the search, per channel: the best value
// so far and the first row that holds it. Rows are taken only when strictly
// better, so the first row with the overall extreme wins.
template <class T>
struct Side {
  bool isMax;
  T best[4];
  int row[4];
  bool found[4] = {false, false, false, false};

  bool Better(T v, T than) const { return isMax ? v > than : v < than; }
  // The row's extreme of channel c, or the type's far end when the row held
  // nothing but NaN there (far ends that really occur are taken).
  void Offer(T v, int y, int c, const T* rowPtr, int width, int C) {
    const T farEnd = isMax ? Limits<T>::kLowest : Limits<T>::kHighest;
    if (std::is_floating_point_v<T> && v == farEnd) {
      bool present = false;
      for (int x = 0; x < width && !present; ++x) present = rowPtr[x * C + c] == farEnd;
      if (!present) return;
    }
    if (!found[c] || Better(v, best[c])) {
      best[c] = v;
      row[c] = y;
      found[c] = true;
    }
  }
  bool Done(int used) const {
    const T top = isMax ? Limits<T>::kHighest : Limits<T>::kLowest;
    for (int c = 0; c < used; ++c)
      if (!found[c] || best[c] != top) return false;
    return true;
  }
};

// Scans the rows for the requested sides, then finds the first column of
// each channel's winning row; a channel with nothing but NaN reports its
// first element at (0, 0). Values are copied from the image, bit for bit.
template <class T, int C, int kUsed>
void Search(const T* src, int step, PeliSize roi, Side<T>* lo, Side<T>* hi, T* minOut, T* maxOut,
            int* xs[2], int* ys[2]) {
  for (int y = 0; y < roi.height; ++y) {
    const T* r = Row(src, step, y);
    T mins[4], maxs[4];
    for (int c = 0; c < 4; ++c) {
      mins[c] = Limits<T>::kHighest;
      maxs[c] = Limits<T>::kLowest;
    }
    RowExtremes(KindOf<T>(), r, size_t(roi.width) * C, C, mins, maxs);
    for (int c = 0; c < kUsed; ++c) {
      if (lo) lo->Offer(mins[c], y, c, r, roi.width, C);
      if (hi) hi->Offer(maxs[c], y, c, r, roi.width, C);
    }
    if ((!lo || lo->Done(kUsed)) && (!hi || hi->Done(kUsed))) break;
  }
  Side<T>* sides[2] = {lo, hi};
  T* outs[2] = {minOut, maxOut};
  for (int s = 0; s < 2; ++s) {
    if (!sides[s]) continue;
    for (int c = 0; c < kUsed; ++c) {
      int x = 0, y = 0;
      if (sides[s]->found[c]) {
        y = sides[s]->row[c];
        const T* r = Row(src, step, y);
        while (!(r[x * C + c] == sides[s]->best[c])) ++x;
      }
      std::memcpy(&outs[s][c], Row(src, step, y) + x * C + c, sizeof(T));
      if (xs[s]) xs[s][c] = x;
      if (ys[s]) ys[s][c] = y;
    }
  }
}

template <class T, int C, int kUsed>
PelStatus Find(const T* pSrc, int srcStep, PeliSize roi, T* pMin, T* pMax, int* minX, int* minY,
               int* maxX, int* maxY) {
  Side<T> lo{false, {}, {}}, hi{true, {}, {}};
  int* xs[2] = {minX, maxX};
  int* ys[2] = {minY, maxY};
  Search<T, C, kUsed>(pSrc, srcStep, roi, pMin ? &lo : nullptr, pMax ? &hi : nullptr, pMin, pMax,
                      xs, ys);
  return pelStatusOk;
}

// Rows that follow each other without a gap in every image are one row.
template <class T, int C, class F>
void ForEachRun(PeliSize roi, std::initializer_list<int> steps, F&& f) {
  const uint64_t rowBytes = uint64_t(roi.width) * C * sizeof(T);
  bool gapless = rowBytes * uint64_t(roi.height) <= SIZE_MAX;
  for (int s : steps) gapless = gapless && s > 0 && uint64_t(s) == rowBytes;
  if (gapless) return f(0, size_t(rowBytes * uint64_t(roi.height) / sizeof(T)));
  for (int y = 0; y < roi.height; ++y) f(y, size_t(roi.width) * C);
}

}  // namespace

template <class T, int C, int kUsed, bool kMax>
PelStatus Extreme(const T* pSrc, int srcStep, PeliSize roiSize, T* pValue) {
  if (AnyNull(pSrc, pValue)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  return Find<T, C, kUsed>(pSrc, srcStep, roiSize, kMax ? nullptr : pValue, kMax ? pValue : nullptr, nullptr,
                           nullptr, nullptr, nullptr);
}

template <class T, int C, int kUsed>
PelStatus MinMax(const T* pSrc, int srcStep, PeliSize roiSize, T* pMin, T* pMax) {
  if (AnyNull(pSrc, pMin, pMax)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  return Find<T, C, kUsed>(pSrc, srcStep, roiSize, pMin, pMax, nullptr, nullptr, nullptr, nullptr);
}

template <class T, int C, int kUsed, bool kMax>
PelStatus ExtremeIndx(const T* pSrc, int srcStep, PeliSize roiSize, T* pValue, int* pIndexX, int* pIndexY) {
  if (AnyNull(pSrc, pValue, pIndexX, pIndexY)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (kMax) return Find<T, C, kUsed>(pSrc, srcStep, roiSize, nullptr, pValue, nullptr, nullptr, pIndexX, pIndexY);
  return Find<T, C, kUsed>(pSrc, srcStep, roiSize, pValue, nullptr, pIndexX, pIndexY, nullptr, nullptr);
}

template <class T, int C, int kUsed, bool kMax>
PelStatus EveryInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  if (AnyNull(pSrc, pSrcDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  ForEachRun<T, C>(roiSize, {srcStep, srcDstStep}, [&](int y, size_t n) {
    T* d = Row(pSrcDst, srcDstStep, y);
    EveryRow(KindOf<T>(), kMax, kUsed < C, Row(pSrc, srcStep, y), d, d, n);
  });
  return pelStatusOk;
}

template <class T, int C, int kUsed, bool kMax>
PelStatus Every(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                PeliSize roiSize) {
  if (AnyNull(pSrc1, pSrc2, pDst)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  ForEachRun<T, C>(roiSize, {src1Step, src2Step, dstStep}, [&](int y, size_t n) {
    EveryRow(KindOf<T>(), kMax, kUsed < C, Row(pSrc1, src1Step, y), Row(pSrc2, src2Step, y),
             Row(pDst, dstStep, y), n);
  });
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "stats/extremes_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::stats
