#include "arith/shortcut.h"

#include <climits>
#include <limits>

#include "core/common.h"
#include "datamove/copy.h"
#include "datamove/masked.h"
#include "datamove/set.h"

namespace pel::arith {

namespace {

template <class T>
PelStatus SetRegion(int layout, T* dst, int step, PeliSize roi, const T* pixel) {
  switch (layout) {
    case kC1: return datamove::SetC1<T>(pixel[0], dst, step, roi);
    case kC3: return datamove::Set<T, 3>(pixel, dst, step, roi);
    case kC4: return datamove::Set<T, 4>(pixel, dst, step, roi);
    default: return datamove::SetAlpha<T>(pixel, dst, step, roi);
  }
}

template <class T>
PelStatus Fill(int layout, T* dst, ptrdiff_t step, int64_t width, int64_t height, T value) {
  const T pixel[4] = {value, value, value, value};
  if (width <= INT_MAX && height <= INT_MAX && step >= INT_MIN && step <= INT_MAX) {
    return SetRegion<T>(layout, dst, static_cast<int>(step), PeliSize{int(width), int(height)},
                        pixel);
  }
  // A region beyond the 32-bit sizes of Set (an _L call): one row at a
  // time, in pieces of at most 2^30 pixels.
  constexpr int64_t kPiece = int64_t{1} << 30;
  const int64_t lanes = LanesOf(layout);
  for (int64_t y = 0; y < height; ++y) {
    T* row = Row(dst, step, static_cast<ptrdiff_t>(y));
    for (int64_t x = 0; x < width; x += kPiece) {
      const int64_t n = width - x < kPiece ? width - x : kPiece;
      SetRegion<T>(layout, row + x * lanes, 0, PeliSize{int(n), 1}, pixel);
    }
  }
  return pelStatusOk;
}

template <class T>
PelStatus Copy(int layout, const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep,
               int64_t width, int64_t height) {
  const PeliSizeL roi{static_cast<PelIntL>(width), static_cast<PelIntL>(height)};
  const auto ss = static_cast<PelIntL>(srcStep);
  const auto ds = static_cast<PelIntL>(dstStep);
  switch (layout) {
    case kC1: return datamove::CopyL<T, 1>(src, ss, dst, ds, roi);
    case kC3: return datamove::CopyL<T, 3>(src, ss, dst, ds, roi);
    case kC4: return datamove::CopyL<T, 4>(src, ss, dst, ds, roi);
    default: return datamove::CopyAlphaL<T>(src, ss, dst, ds, roi);
  }
}

}  // namespace

PelStatus FillImage(Elem e, int layout, void* dst, ptrdiff_t dstStep, int64_t width,
                    int64_t height, bool max) {
  return VisitElem(e, [&](auto t) {
    using T = decltype(t);
    const T value = max ? std::numeric_limits<T>::max() : T{0};
    return Fill<T>(layout, static_cast<T*>(dst), dstStep, width, height, value);
  });
}

PelStatus CopyImage(Elem e, int layout, const void* src, ptrdiff_t srcStep, void* dst,
                    ptrdiff_t dstStep, int64_t width, int64_t height) {
  return VisitElem(e, [&](auto t) {
    using T = decltype(t);
    return Copy<T>(layout, static_cast<const T*>(src), srcStep, static_cast<T*>(dst), dstStep,
                   width, height);
  });
}

}  // namespace pel::arith
