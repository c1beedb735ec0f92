// When a transfer bypasses the cache. The choice is made once per call and
// handed to the row kernels as a flag; it changes speed, never results.
#pragma once

#include <cstdint>

#include "pelcore.h"

namespace pel {

// Up to this many bytes a transfer always uses ordinary stores, without
// asking pelcore for the cache size.
inline constexpr uint64_t kCachedTransferBytes = 524288;

// Plain copies stream above 1 MiB without asking for the cache size.
inline constexpr uint64_t kStreamingCopyBytes = 1048576;

// The cache-size rule: stream when the transfer touches more than 512 KiB and
// at least as many bytes as the largest cache holds. A failed query means
// "unknown", and then ordinary stores are used.
inline bool StreamsPastCache(uint64_t bytesTouched) {
  if (bytesTouched <= kCachedTransferBytes) return false;
  int cacheBytes = 0;
  if (pelGetMaxCacheSizeB(&cacheBytes) != 0) return false;
  return static_cast<int64_t>(bytesTouched) >= static_cast<int64_t>(cacheBytes);
}

inline bool StreamsAsPlainCopy(uint64_t bytesTouched) {
  return bytesTouched > kStreamingCopyBytes;
}

}  // namespace pel
