// When a layout-changing copy leaves the vector kernels. Vector kernels load
// a whole block before storing it, so a row whose destination shares memory
// with its source would get a result that depends on the block size; such
// rows, and rows too short to fill a block, take the scalar forward loop,
// whose order defines the result.
#pragma once

#include <cstdint>

namespace pel::datamove {

// Rows of at most this many pixels take the scalar loop.
inline constexpr uint64_t kScalarRowPixels = 6;

// The bytes [begin, end) that one side of a row touches.
struct ByteRange {
  uintptr_t begin;
  uintptr_t end;
};

inline ByteRange RangeOf(const void* p, uint64_t bytes) {
  const auto begin = reinterpret_cast<uintptr_t>(p);
  return {begin, begin + static_cast<uintptr_t>(bytes)};
}

inline bool Overlap(ByteRange a, ByteRange b) { return a.begin < b.end && b.begin < a.end; }

}  // namespace pel::datamove
