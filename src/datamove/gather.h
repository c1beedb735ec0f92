// Channel gathers: each destination pixel of `dstChannels` lanes takes, lane
// by lane, a lane of the source pixel at the same position, a fixed value,
// or keeps what it holds. Every channel swap is one (3 -> 3, 4 -> 4 with or
// without alpha, 3 -> 4, 4 -> 3).
//
// The plan is built once per call from the channel order and is what every
// dispatch level works from: the scalar reference reads `from` and `value`,
// the vector kernels the byte tables, which say the same for a group of
// 16 / elemBytes pixels (one 16-byte vector per channel on either side).
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace pel::datamove {

inline constexpr int kGatherFill = -1;  // the lane takes the plan's value
inline constexpr int kGatherKeep = -2;  // the lane is not written

struct GatherPlan {
  int elemBytes = 1;
  int srcChannels = 3;
  int dstChannels = 3;
  int from[4] = {0, 1, 2, 3};  // per destination lane: a source lane or kGather*
  uint8_t value[8] = {};       // the fill lane's bytes
  bool anyFill = false;
  bool anyKeep = false;
  // Destination byte j of a group: vector j / 16, byte j % 16. table[k][m]
  // gives, for output vector k, the byte of input vector m it takes (0x80:
  // none from m); fill holds the value bytes, keep 0xFF where the
  // destination byte stays.
  alignas(16) uint8_t table[4][4][16];
  alignas(16) uint8_t fill[4][16];
  alignas(16) uint8_t keep[4][16];
};

inline void BuildGatherPlan(GatherPlan* plan, int elemBytes, int srcChannels, int dstChannels,
                            const int* from, const void* value) {
  plan->elemBytes = elemBytes;
  plan->srcChannels = srcChannels;
  plan->dstChannels = dstChannels;
  std::memset(plan->table, 0x80, sizeof plan->table);
  std::memset(plan->fill, 0, sizeof plan->fill);
  std::memset(plan->keep, 0, sizeof plan->keep);
  if (value != nullptr) std::memcpy(plan->value, value, static_cast<size_t>(elemBytes));
  const int e = elemBytes;
  for (int c = 0; c < dstChannels; ++c) {
    plan->from[c] = from[c];
    plan->anyFill |= from[c] == kGatherFill;
    plan->anyKeep |= from[c] == kGatherKeep;
  }
  for (int j = 0; j < 16 * dstChannels; ++j) {
    const int q = j / (dstChannels * e), c = j % (dstChannels * e) / e, b = j % e;
    const int k = j / 16, at = j % 16;
    if (from[c] >= 0) {
      const int s = q * srcChannels * e + from[c] * e + b;
      plan->table[k][s / 16][at] = static_cast<uint8_t>(s % 16);
    } else if (from[c] == kGatherFill) {
      plan->fill[k][at] = plan->value[b];
    } else {
      plan->keep[k][at] = 0xFF;
    }
  }
}

namespace scalar {

// Pixels [0, n) forward; each source pixel is read whole before its
// destination pixel is written.
template <class U>
void GatherRow(const U* src, U* dst, size_t n, const GatherPlan& plan) {
  const int ci = plan.srcChannels, co = plan.dstChannels;
  U fillValue;
  std::memcpy(&fillValue, plan.value, sizeof(U));
  for (size_t x = 0; x < n; ++x) {
    U pixel[4];
    for (int c = 0; c < ci; ++c) pixel[c] = src[x * ci + c];
    for (int c = 0; c < co; ++c) {
      const int f = plan.from[c];
      if (f >= 0) dst[x * co + c] = pixel[f];
      else if (f == kGatherFill) dst[x * co + c] = fillValue;
    }
  }
}

inline void GatherRowAny(const void* src, void* dst, size_t n, const GatherPlan& plan) {
  switch (plan.elemBytes) {
    case 1: return GatherRow(static_cast<const uint8_t*>(src), static_cast<uint8_t*>(dst), n, plan);
    case 2: return GatherRow(static_cast<const uint16_t*>(src), static_cast<uint16_t*>(dst), n, plan);
    case 4: return GatherRow(static_cast<const uint32_t*>(src), static_cast<uint32_t*>(dst), n, plan);
  }
}

}  // namespace scalar
}  // namespace pel::datamove
