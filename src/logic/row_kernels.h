// Row kernels of the logic and shift family, dispatched to the best
// instruction set at run time. They see rows, not images: a walker hands
// them one row, or the whole image as one row when its rows follow each
// other without a gap.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::logic {

enum class LogicOp : uint8_t { kAnd, kOr, kXor };

// Bytes that repeat along a row from its first byte, `period` bytes long: the
// constant operand, and which destination bytes keep their value (alpha).
// Periods are 1, 2, 3, 4, 6, 8, 12 or 16: three vectors of 16 bytes or more
// always hold a whole number of them.
struct BytePattern {
  uint8_t value[16] = {};
  uint8_t keep[16] = {};  // nonzero: the destination byte is left as it is
  int period = 1;
  bool keeps = false;  // some keep byte is set
};

// d[i] = a[i] op b[i], or a[i] op value[i % period] when b is null, for i in
// [0, bytes), except the bytes the pattern keeps. d may be a or b.
void LogicRow(LogicOp op, const uint8_t* a, const uint8_t* b, uint8_t* d, size_t bytes,
              const BytePattern& p);

enum class ShiftKind : uint8_t { kLeft, kRightLogical, kRightArithmetic };

// Counts that repeat along a row every `period` elements (1, 3 or 4).
// A logical shift by the element's width or more gives 0; an arithmetic one
// gives the sign (0 or all ones).
struct ShiftPattern {
  uint32_t count[4] = {};
  bool keep[4] = {};  // the element is left as it is (alpha)
  int period = 1;
};

// d[i] = s[i] shifted by count[i % period], for `elements` elements of
// `elemBytes` (1, 2 or 4) bytes; kRightLogical takes 1 or 2 bytes,
// kRightArithmetic 2 or 4. d may be s. Rows need not be element-aligned.
void ShiftRow(ShiftKind kind, int elemBytes, const void* s, void* d, size_t elements,
              const ShiftPattern& p);

}  // namespace pel::logic
