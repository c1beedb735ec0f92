// The resize spec: a 200-byte header of 32-bit words at the block's first
// 64-byte-aligned address, then the coordinate tables of both axes.
#pragma once

#include <cstdint>

#include "geometry/geometry_frame.h"

namespace pel::geometry {

inline constexpr int32_t kResizeMagic = 0x4B617389;
inline constexpr int kResizeHeaderBytes = 200;

// Header words (0-based).
enum ResizeWord : int {
  kWordMagic = 0,
  kWordKind = 1,         // 7 linear, 13 nearest (19 nearest built for 64f)
  kWordInterpolation = 2,
  kWordXParam = 3,
  kWordYParam = 4,
  kWordAntialiasing = 5,
  kWordBorder = 6,       // four words: the widths GetBorderSize reports
  kWordYAxis = 10,       // twelve words each, see AxisWord
  kWordXAxis = 22,
  kWordPath = 34,        // 1: the 8u linear spec, 2: nearest
  kWordSrcWidth = 36,
  kWordSrcHeight = 37,
  kWordDstWidth = 38,
  kWordDstHeight = 39,
  kWordLinearMark = 40,
};

// Words of an axis block, from its first word.
enum AxisWord : int {
  kAxisSrcLen = 0,
  kAxisDstLen = 1,
  kAxisSrcReduced = 2,  // srcLen / gcd
  kAxisDstReduced = 3,  // dstLen / gcd
  kAxisIndexTable = 4,  // byte offset from the header
  kAxisWeightTable = 7,
  kAxisNegative = 9,    // positions whose source coordinate is below 0
  kAxisPastEnd = 10,    // positions at or past srcLen - 1
};

enum ResizeKind : int { kKindLinear = 7, kKindNearest = 13, kKindNearest64f = 19 };

// One axis of a spec, as the processing functions read it.
struct ResizeAxis {
  int64_t srcLen, dstLen, srcReduced, dstReduced;
  const int32_t* index;   // per destination position
  const int16_t* weight;  // y: w per position; x: (16384 - w, w) per position
  int64_t negative, pastEnd;

  // The first source pixel a tile starting at destination position `o` reads:
  // floor(o x srcLen / dstLen), exactly.
  int64_t SrcOffset(int64_t o) const { return o * srcReduced / dstReduced; }
};

struct ResizeSpecView {
  const int32_t* words;
  ResizeAxis x, y;
  int64_t Interpolation() const { return words[kWordInterpolation]; }
};

inline ResizeAxis ReadAxis(const int32_t* w, int block) {
  const int32_t* a = w + block;
  return {a[kAxisSrcLen],
          a[kAxisDstLen],
          a[kAxisSrcReduced],
          a[kAxisDstReduced],
          SpecTable<int32_t>(w, a[kAxisIndexTable]),
          a[kAxisWeightTable] ? SpecTable<int16_t>(w, a[kAxisWeightTable]) : nullptr,
          a[kAxisNegative],
          a[kAxisPastEnd]};
}

inline bool IsResizeSpec(const void* spec) { return SpecWords(spec)[kWordMagic] == kResizeMagic; }

inline ResizeSpecView ReadResizeSpec(const void* spec) {
  const int32_t* w = SpecWords(spec);
  return {w, ReadAxis(w, kWordXAxis), ReadAxis(w, kWordYAxis)};
}

// ---- Work buffer --------------------------------------------------------------
// Where a processing call keeps its pieces, from the buffer's first 64-byte
// aligned address. The same layout function sizes the buffer (for the widest
// element, so that one size serves every type) and carves it.

struct ResizeBufferLayout {
  uint64_t columns = 0;     // per tile column: source taps
  uint64_t elementData = 0; // per element: weights of the vector kernels
  uint64_t plans = 0;       // gather plans
  uint64_t lines = 0;       // the two horizontal-pass lines (linear)
  uint64_t total = 0;
};

// Lookup plans gather 16-byte blocks through at most this many 16-byte source
// windows each; wider spans take the scalar path.
inline constexpr int kLinearPlanWindows = 2;
inline constexpr int kNearestPlanWindows = 4;

// Bytes of a plan over `outBytes` output bytes with up to `windows` windows a
// block (one offset and one 16-byte pattern a window).
inline uint64_t PlanBytes(uint64_t outBytes, int windows) {
  const uint64_t blocks = (outBytes + 15) / 16 + 1;
  return blocks * uint64_t(windows) * (16 + sizeof(intptr_t));
}

inline uint64_t ResizeBufferLayoutFor(bool linear, uint64_t width, uint64_t channels, uint64_t elemBytes,
                                      ResizeBufferLayout* l) {
  const uint64_t n = width * channels;
  if (linear) {
    l->columns = RoundUp64(8 * width);
    l->elementData = RoundUp64(8 * n);
    // One plan of (p0, p1) pairs, up to 8 bytes an element.
    l->plans = RoundUp64(PlanBytes(8 * n, kLinearPlanWindows));
    l->lines = 2 * RoundUp64(n * (elemBytes == 8 ? 8 : 4));
  } else {
    l->columns = RoundUp64(4 * width);
    l->elementData = 0;
    l->plans = RoundUp64(PlanBytes(n * elemBytes, kNearestPlanWindows));
    l->lines = 0;
  }
  l->total = kSpecAlign + l->columns + l->elementData + l->plans + l->lines;
  return l->total;
}

// The size GetBufferSize reports: a round bound of the layout for the widest
// element (8 bytes linear, 4 nearest), so that one size serves every type.
inline uint64_t ResizeBufferBytes(bool linear, uint64_t width, uint64_t channels) {
  const uint64_t n = width * channels;
  return linear ? 48 * n + 8 * width + 640 : 24 * n + 4 * width + 384;
}

}  // namespace pel::geometry
