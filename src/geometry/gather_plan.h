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
  const intptr_t* offsets = nullptr;  // blocks x windows: window start, bytes from the row's start
  const uint8_t* patterns = nullptr;  // blocks x windows x 16: window byte, or 0x80 for none

  // Block b writes output bytes [BlockStart(b), BlockStart(b) + 16); the last
  // one ends at the row's end and may overlap the one before.
  size_t BlockStart(size_t b) const { return std::min(16 * b, outBytes - 16); }
};

// Output bytes that are 0 rather than a source byte.
inline constexpr intptr_t kZeroByte = INTPTR_MIN;

// Plans `outBytes` output bytes; sourceByte(k) is the source byte offset of
// output byte k (negative offsets read before the row's pointer), or
// kZeroByte. Uses at most `maxWindows`
// windows a block and the memory at `mem` (PlanBytes(outBytes, maxWindows),
// resize_spec.h). Returns an empty plan when the row is shorter than a block,
// reads fewer than 16 source bytes, or a block spans more windows.
template <class SourceByte>
GatherPlan BuildGatherPlan(size_t outBytes, int maxWindows, SourceByte sourceByte, uint8_t* mem) {
  GatherPlan p;
  if (outBytes < 16) return p;
  intptr_t lo = INTPTR_MAX, hi = INTPTR_MIN;
  for (size_t k = 0; k < outBytes; ++k) {
    const intptr_t s = sourceByte(k);
    if (s == kZeroByte) continue;
    lo = std::min(lo, s);
    hi = std::max(hi, s);
  }
  if (lo == INTPTR_MAX || hi - lo < 15) return p;
  p.outBytes = outBytes;
  const size_t blocks = (outBytes + 15) / 16;
  auto* offsets = reinterpret_cast<intptr_t*>(mem);
  uint8_t* patterns = mem + blocks * size_t(maxWindows) * sizeof(intptr_t);
  int used = 1;
  for (size_t b = 0; b < blocks; ++b) {
    intptr_t src[16];
    intptr_t blo = INTPTR_MAX, bhi = lo;
    for (size_t k = 0; k < 16; ++k) {
      src[k] = sourceByte(p.BlockStart(b) + k);
      if (src[k] == kZeroByte) continue;
      blo = std::min(blo, src[k]);
      bhi = std::max(bhi, src[k]);
    }
    if (blo == INTPTR_MAX) blo = lo;
    const auto needed = static_cast<int>((bhi - blo) / 16 + 1);
    if (needed > maxWindows) return GatherPlan{};
    used = std::max(used, needed);
    intptr_t* off = offsets + b * size_t(maxWindows);
    uint8_t* pat = patterns + b * size_t(maxWindows) * 16;
    // Windows follow each other from the block's lowest byte; one that would
    // run past the row's highest byte moves back to end there.
    for (int j = 0; j < maxWindows; ++j) off[j] = std::min(blo + 16 * std::min(j, needed - 1), hi - 15);
    std::memset(pat, 0x80, size_t(maxWindows) * 16);
    for (size_t k = 0; k < 16; ++k) {
      if (src[k] == kZeroByte) continue;
      int j = 0;
      while (src[k] > off[j] + 15) ++j;
      pat[16 * j + k] = static_cast<uint8_t>(src[k] - off[j]);
    }
  }
  // Every block keeps as many windows as the widest one needs.
  for (size_t b = 1; b < blocks && used < maxWindows; ++b) {
    std::memmove(offsets + b * size_t(used), offsets + b * size_t(maxWindows), size_t(used) * sizeof(intptr_t));
    std::memmove(patterns + b * size_t(used) * 16, patterns + b * size_t(maxWindows) * 16, size_t(used) * 16);
  }
  p.blocks = blocks;
  p.windows = used;
  p.offsets = offsets;
  p.patterns = patterns;
  return p;
}

}  // namespace pel::geometry
