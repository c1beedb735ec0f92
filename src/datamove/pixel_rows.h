// Whole-pixel row operations for the mirror and border walkers: copy,
// reverse and fill a run of pixels of any size, with or without an alpha
// lane that keeps its value. They pick the vector kernel, or the scalar
// reference where the two ranges share memory, so that a call whose source
// and destination overlap gets the same bytes at every dispatch level. Runs
// longer than 1 GiB go to the kernels in pieces (see row_pieces.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <algorithm>
#include <cstring>

#include "core/common.h"
#include "datamove/mask_scalar.h"
#include "datamove/mirror_scalar.h"
#include "datamove/pixel_bytes.h"
#include "datamove/row_kernels.h"
#include "datamove/row_mask_kernels.h"
#include "datamove/row_mirror_kernels.h"
#include "datamove/row_overlap.h"
#include "datamove/row_pieces.h"
#include "datamove/row_scalar.h"

namespace pel::datamove {

inline bool Share(const void* a, const void* b, uint64_t bytes) {
  return Overlap(RangeOf(a, bytes), RangeOf(b, bytes));
}

inline uint64_t Magnitude(ptrdiff_t step) {
  return step < 0 ? uint64_t{0} - static_cast<uint64_t>(step) : static_cast<uint64_t>(step);
}

// The bytes from the lowest to the highest address that `rows` rows of
// `rowBytes` bytes span, whichever way the step runs.
inline ByteRange SpanOf(const void* first, ptrdiff_t step, uint64_t rows, uint64_t rowBytes) {
  const void* lowest = step < 0 ? Row(first, step, static_cast<ptrdiff_t>(rows - 1)) : first;
  return RangeOf(lowest, Magnitude(step) * (rows - 1) + rowBytes);
}

// Pixels of a run in one kernel call: a whole number of pixels of any size
// within a piece.
inline constexpr uint64_t kPiecePixels = kMaxPieceBytes / 16;

// Runs up to this many bytes (the frames of most borders) are moved here:
// a kernel call would cost more than the bytes. The bytes are the same.
inline constexpr uint64_t kShortRunBytes = 64;

// n pixels from s to d, forward.
inline void CopyPixels(const uint8_t* s, uint8_t* d, uint64_t n, PixelBytes px, bool stream) {
  const auto P = static_cast<uint64_t>(px.bytes);
  if (s == d) return;  // the pixels are already where they belong
  const bool shared = Share(s, d, n * P);
  if (!shared && !px.keepAlpha) {
    // Stores that straddle two cache lines cost two: the bytes up to the
    // destination's first 64-byte boundary go first, so that the kernel's
    // stores are all aligned (a frame's copies start anywhere in a row).
    const uint64_t head = std::min<uint64_t>(n * P, (64 - reinterpret_cast<uintptr_t>(d) % 64) % 64);
    std::memcpy(d, s, static_cast<size_t>(head));
    if (n * P - head <= kShortRunBytes) {
      std::memcpy(d + head, s + head, static_cast<size_t>(n * P - head));
    } else {
      ForEachPiece(n * P - head, [&](uint64_t offset, uint64_t bytes) {
        CopyRow(s + head + offset, d + head + offset, static_cast<size_t>(bytes), stream);
      });
    }
    return;
  }
  for (uint64_t done = 0; done < n; done += kPiecePixels) {
    const auto m = static_cast<size_t>(n - done < kPiecePixels ? n - done : kPiecePixels);
    const uint8_t* ps = s + done * P;
    uint8_t* pd = d + done * P;
    if (!px.keepAlpha) {
      scalar::CopyRow(ps, pd, m * P);
      continue;
    }
    const int e = px.bytes / 4;
    if (!shared) {
      AlphaCopyRowAny(ps, pd, m, e, stream);
    } else if (e == 1) {
      scalar::AlphaCopyRow(ps, pd, m);
    } else if (e == 2) {
      scalar::AlphaCopyRow(reinterpret_cast<const uint16_t*>(ps), reinterpret_cast<uint16_t*>(pd), m);
    } else {
      scalar::AlphaCopyRow(reinterpret_cast<const uint32_t*>(ps), reinterpret_cast<uint32_t*>(pd), m);
    }
  }
}

// d pixel n-1-x = s pixel x.
inline void ReversePixels(const uint8_t* s, uint8_t* d, uint64_t n, PixelBytes px, bool stream) {
  const auto m = static_cast<size_t>(n);
  const uint64_t bytes = n * static_cast<uint64_t>(px.bytes);
  if (bytes <= kShortRunBytes || Share(s, d, bytes)) {
    scalar::ReverseRowAny(s, d, m, px);
  } else {
    ReverseRow(s, d, m, px, stream);
  }
}

// n pixels set to the pixel at `value` (whose alpha lane, if kept, is not
// read). The value is taken before the first store, so it may lie in the run.
inline void FillPixels(uint8_t* d, uint64_t n, const void* value, PixelBytes px) {
  uint8_t pixel[16];
  std::memcpy(pixel, value, static_cast<size_t>(px.written()));
  const int P = px.bytes;
  if (n * static_cast<uint64_t>(P) <= kShortRunBytes) {
    if (P == 1) {
      std::memset(d, pixel[0], static_cast<size_t>(n));
    } else {
      VisitPixel(px, [&](auto p, auto keep) {
        for (size_t x = 0; x < n; ++x) MovePixel<p(), keep()>(d + x * p(), pixel);
      });
    }
    return;
  }
  // SetRowAny wants lanes and channels: a three-lane pixel has P / 3-byte
  // lanes, a four-lane one P / 4, the others are one lane. A pixel of four
  // bytes may be four 8-bit lanes, which need not be aligned for one 32-bit
  // lane: such a run doubles a first pixel by byte copies instead.
  const int lanes = P % 3 == 0 ? 3 : P > 4 ? 4 : 1;
  const int laneBytes = P / lanes;
  if (!px.keepAlpha && reinterpret_cast<uintptr_t>(d) % static_cast<uintptr_t>(laneBytes) != 0) {
    std::memcpy(d, pixel, static_cast<size_t>(P));
    for (uint64_t filled = 1; filled < n;) {
      const uint64_t more = n - filled < filled ? n - filled : filled;
      CopyPixels(d, d + filled * static_cast<uint64_t>(P), more, px, false);
      filled += more;
    }
    return;
  }
  for (uint64_t done = 0; done < n; done += kPiecePixels) {
    const auto m = static_cast<size_t>(n - done < kPiecePixels ? n - done : kPiecePixels);
    uint8_t* pd = d + done * static_cast<uint64_t>(P);
    if (px.keepAlpha) {
      AlphaSetRowAny(pd, m, pixel, P / 4, false);
    } else {
      SetRowAny(pd, m, pixel, laneBytes, lanes, false);
    }
  }
}

}  // namespace pel::datamove
