// Caller-owned spec blocks and work buffers: they are used from their first
// 64-byte-aligned address, and sizes include the slack for that.
#pragma once

#include <cstdint>

namespace pel {

inline constexpr uint64_t kSpecAlign = 64;

template <class T>
T* AlignUp64(T* p) {
  const auto a = reinterpret_cast<uintptr_t>(p);
  return reinterpret_cast<T*>(a + ((0 - a) & (kSpecAlign - 1)));
}

constexpr uint64_t RoundUp64(uint64_t bytes) { return (bytes + kSpecAlign - 1) & ~(kSpecAlign - 1); }

// Size results that a PelStatus-returning size function may report.
inline constexpr int64_t kMaxReportedSize = 0x7FFFFFFF;

}  // namespace pel
