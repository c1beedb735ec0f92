// What the geometric transforms share: spec blocks that start at their first
// 64-byte-aligned address with a magic word, destination tiles clipped to
// the spec's destination, and the outside pixels of a border code.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/border.h"
#include "core/spec.h"
#include "peli.h"

namespace pel::geometry {

// ---- Spec blocks --------------------------------------------------------------
// A spec is a header of 32-bit words followed by its tables. Table places are
// stored as byte offsets from the header, not as addresses, so the words mean
// the same on 32- and 64-bit targets.

inline int32_t* SpecWords(void* block) { return static_cast<int32_t*>(AlignUp64(block)); }
inline const int32_t* SpecWords(const void* block) {
  return static_cast<const int32_t*>(AlignUp64(const_cast<void*>(block)));
}

template <class T>
const T* SpecTable(const int32_t* words, int32_t offset) {
  return reinterpret_cast<const T*>(reinterpret_cast<const uint8_t*>(words) + offset);
}

// ---- Tiles --------------------------------------------------------------------

// A tile of the destination, in 64 bits whatever the caller's types.
struct Tile {
  int64_t x, y, width, height;
};

// An offset outside the destination is pelStatusOutOfRange.
inline bool OffsetInside(int64_t x, int64_t y, int64_t dstWidth, int64_t dstHeight) {
  return x >= 0 && y >= 0 && x < dstWidth && y < dstHeight;
}

// The part of a tile inside the destination (the offset must be inside).
inline Tile ClipTile(Tile t, int64_t dstWidth, int64_t dstHeight) {
  t.width = std::min(t.width, dstWidth - t.x);
  t.height = std::min(t.height, dstHeight - t.y);
  return t;
}

// A tile that is larger than the destination itself was adjusted: the
// comparison looks at its size alone, not at where it starts.
inline bool TileLargerThanDestination(const Tile& t, int64_t dstWidth, int64_t dstHeight) {
  return t.width > dstWidth || t.height > dstHeight;
}

// ---- Borders ------------------------------------------------------------------

// How an axis reads source positions outside [0, length): mirrored (kind 3)
// or replicated (any other kind), except on a side whose pixels are in
// memory, where the position is read as it is.
struct AxisBorder {
  int64_t length;
  bool mirror;
  bool lowInMemory;   // left or top
  bool highInMemory;  // right or bottom

  int64_t Map(int64_t i) const {
    if (i < 0 && !lowInMemory) return mirror ? std::min(-i, length - 1) : 0;
    if (i >= length && !highInMemory) return mirror ? std::max<int64_t>(2 * (length - 1) - i, 0) : length - 1;
    return i;
  }
};

// The two axes of a border code (already checked), for a source of the given
// size.
inline void SplitAxes(int code, int64_t srcWidth, int64_t srcHeight, AxisBorder* x, AxisBorder* y) {
  const Border b = SplitBorder(code);
  const bool mirror = b.kind == pelBorderMirror;
  *x = {srcWidth, mirror, (b.inMemory & pelBorderInMemLeft) != 0, (b.inMemory & pelBorderInMemRight) != 0};
  *y = {srcHeight, mirror, (b.inMemory & pelBorderInMemTop) != 0, (b.inMemory & pelBorderInMemBottom) != 0};
}

// Kind 4 is read as replicate, keeping the in-memory flags.
inline int ReadKind4AsReplicate(int code) {
  return (code & 0x0F) == 4 ? (code & ~0x0F) | pelBorderReplicate : code;
}

}  // namespace pel::geometry
