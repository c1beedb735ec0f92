// Lookup plans: a row of output bytes gathered from a row of source bytes
// through byte shuffles. When every row of a call reads the same source
// positions (a resize's columns), the positions are turned once per call into
// a plan of 16-byte output blocks, each the OR of byte shuffles of a few
// 16-byte source windows; a vector kernel then runs the plan on every row.
//
// Windows never reach outside the source bytes that the row reads anyway
// (from the lowest to the highest position), so a plan reads no byte that
// the plain per-element loop would not read.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace pel::geometry {

struct GatherPlan {
  size_t outBytes = 0;
  size_t blocks = 0;  // 0: no plan, the row takes the per-element loop
  int windows = 0;    // windows a block
  // Window j of block b starts at offsets[j * stride + b] (bytes from the
  // row's start) and its pattern is the 16 bytes at patterns + 16 (j *
  // stride + b): a window byte, or 0x80 for none. Window-major, so that the
  // patterns of consecutive blocks are consecutive.
  size_t stride = 0;
  bool contiguous = false;  // window 0 of block b at offsets[0] + 16 b
  const intptr_t* offsets = nullptr;
  const uint8_t* patterns = nullptr;

  // Blocks 0 .. outBytes / 16 - 1 follow each other; a last one for the
  // rest ends at the row's end and overlaps the one before.
  size_t BlockStart(size_t b) const { return std::min(16 * b, outBytes - 16); }
  size_t WholeBlocks() const { return outBytes / 16; }
};

// Output bytes that are 0 rather than a source byte.
inline constexpr intptr_t kZeroByte = INTPTR_MIN;

// Plans `outBytes` output bytes. fillBlock(k, src) writes the source byte
// offsets of output bytes k .. k + 15 to src[0..15] (negative offsets read
// before the row's pointer), or kZeroByte; every offset lies in [lo, hi], the
// bytes the row reads. Uses at most `maxWindows` windows a block and the
// memory at `mem` (PlanBytes(outBytes, maxWindows), resize_spec.h). Returns
// an empty plan when the row is shorter than a block, reads fewer than 16
// source bytes, or a block spans more windows.
template <class FillBlock>
GatherPlan BuildGatherPlan(size_t outBytes, int maxWindows, intptr_t lo, intptr_t hi, FillBlock fillBlock,
                           uint8_t* mem) {
  GatherPlan p;
  if (outBytes < 16 || hi - lo < 15) return p;
  p.outBytes = outBytes;
  const size_t blocks = (outBytes + 15) / 16;
  const size_t stride = blocks;
  auto* offsets = reinterpret_cast<intptr_t*>(mem);
  uint8_t* patterns = mem + stride * size_t(maxWindows) * sizeof(intptr_t);
  int used = 1;
  for (size_t b = 0; b < blocks; ++b) {
    intptr_t src[16];
    fillBlock(p.BlockStart(b), src);
    intptr_t blo = INTPTR_MAX, bhi = lo;
    for (size_t k = 0; k < 16; ++k) {
      if (src[k] == kZeroByte) continue;
      blo = std::min(blo, src[k]);
      bhi = std::max(bhi, src[k]);
    }
    if (blo == INTPTR_MAX) blo = lo;
    const auto needed = static_cast<int>((bhi - blo) / 16 + 1);
    if (needed > maxWindows) return GatherPlan{};
    used = std::max(used, needed);
    // Windows follow each other from the block's lowest byte; one that would
    // run past the row's highest byte moves back to end there. Blocks that
    // need fewer windows than others repeat their last one, with no bytes.
    intptr_t off[16];
    for (int j = 0; j < maxWindows; ++j) {
      off[j] = std::min(blo + 16 * std::min(j, needed - 1), hi - 15);
      offsets[size_t(j) * stride + b] = off[j];
      std::memset(patterns + 16 * (size_t(j) * stride + b), 0x80, 16);
    }
    for (size_t k = 0; k < 16; ++k) {
      if (src[k] == kZeroByte) continue;
      int j = 0;
      while (src[k] > off[j] + 15) ++j;
      patterns[16 * (size_t(j) * stride + b) + k] = static_cast<uint8_t>(src[k] - off[j]);
    }
  }
  p.blocks = blocks;
  p.windows = used;
  p.stride = stride;
  p.offsets = offsets;
  p.patterns = patterns;
  // One window a block, each 16 bytes after the one before: the windows of
  // consecutive blocks are one plain load.
  p.contiguous = used == 1;
  for (size_t b = 1; b < p.WholeBlocks() && p.contiguous; ++b) p.contiguous = offsets[b] == offsets[0] + intptr_t(16 * b);
  return p;
}

}  // namespace pel::geometry
