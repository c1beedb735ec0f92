// The _L copies may see rows far longer than one kernel call should handle:
// such a row goes to the kernel in pieces of at most 1 GiB, which keeps every
// length the kernels compute well inside their arithmetic on any target.
#pragma once

#include <cstdint>

namespace pel::datamove {

inline constexpr uint64_t kMaxPieceBytes = 0x40000000;

// Calls f(offset, bytes) for consecutive pieces covering [0, length). The
// piece size is a power of two, so pieces hold whole pixels of
// every power-of-two size (the byte copies do not care).
template <class F>
void ForEachPiece(uint64_t length, F&& f) {
  for (uint64_t done = 0; done < length; done += kMaxPieceBytes) {
    f(done, length - done < kMaxPieceBytes ? length - done : kMaxPieceBytes);
  }
}

}  // namespace pel::datamove
