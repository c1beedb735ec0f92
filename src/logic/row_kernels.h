// Row kernels of the logic and shift family, dispatched to the best
// instruction set at run time. They see rows, not images: a walker hands
// them one row, or the whole image as one row when its rows follow each
// other without a gap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace pel::logic {

// Constants and alpha layouts repeat with the pixel (1 to 16 bytes). A
// walker writes the repetition out once per call over 192 bytes, three of
// the widest vectors and a multiple of every pixel size, so that a kernel
// starts each row with three plain vector loads and byte i of any row uses
// byte i % 192 of the pattern.
inline constexpr size_t kPatternBytes = 192;

// Repeats the first `period` bytes of `from` over `to`.
inline void RepeatOver(uint8_t* to, const uint8_t* from, size_t period) {
  for (size_t i = 0; i < kPatternBytes; i += period) std::memcpy(to + i, from, period);
}

enum class LogicOp : uint8_t { kAnd, kOr, kXor };

struct BytePattern {
  alignas(64) uint8_t value[kPatternBytes];  // the constant operand
  alignas(64) uint8_t keep[kPatternBytes];   // 0xFF: the destination byte keeps its value
  bool keeps;                                // some keep byte is set (alpha layouts)
};

// d[i] = a[i] op b[i], or a[i] op value[i % 192] when b is null, for i in
// [0, bytes), except the bytes the pattern keeps. d may be a or b.
void LogicRow(LogicOp op, const uint8_t* a, const uint8_t* b, uint8_t* d, size_t bytes,
              const BytePattern& p);

enum class ShiftKind : uint8_t { kLeft, kRightLogical, kRightArithmetic };

// Counts as lanes of the element's size, written out like BytePattern.
// A logical shift by the element's width or more gives 0, an arithmetic one
// the sign (0 or all ones); counts are stored cut to the width, which says
// the same and fits the lane.
struct ShiftPattern {
  alignas(64) uint8_t count[kPatternBytes];
  alignas(64) uint8_t keep[kPatternBytes];  // 0xFF bytes: the element keeps its value
  bool uniform;                             // one count for every element, none kept
  bool keeps;                               // some element is kept (alpha layouts)
};

// Channel c of `channels`-lane pixels shifted by counts[c], for c < shifted;
// the other channels (alpha) kept.
template <class U>
ShiftPattern MakeShiftPattern(const uint32_t* counts, int channels, int shifted) {
  constexpr uint32_t kBits = 8 * sizeof(U);
  ShiftPattern p;
  uint8_t count[4 * sizeof(U)], keep[4 * sizeof(U)];
  for (int c = 0; c < channels; ++c) {
    const U lane = static_cast<U>(c < shifted ? (counts[c] < kBits ? counts[c] : kBits) : 0);
    std::memcpy(count + c * sizeof(U), &lane, sizeof lane);
    std::memset(keep + c * sizeof(U), c < shifted ? 0 : 0xFF, sizeof(U));
  }
  RepeatOver(p.count, count, channels * sizeof(U));
  RepeatOver(p.keep, keep, channels * sizeof(U));
  p.uniform = channels == 1;
  p.keeps = shifted < channels;
  return p;
}

// d[i] = s[i] shifted by its count, for `elements` elements of `elemBytes`
// (1, 2 or 4) bytes. d may be s. Rows need not be element-aligned.
void ShiftRow(ShiftKind kind, int elemBytes, const void* s, void* d, size_t elements,
              const ShiftPattern& p);

}  // namespace pel::logic
