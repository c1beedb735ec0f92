// Which channel each lane of a vector belongs to: LaneChannels<U, C>() + s
// holds (s + k) % C for lane k, for a vector that starts at element s of a
// row of C-channel pixels (s % C < C; up to 64 lanes). Constant data, shared
// by every instruction set.
#pragma once

#include <cstdint>

namespace pel::stats {

template <class U, int C>
struct LaneChannelTable {
  U v[68];
};

template <class U, int C>
constexpr LaneChannelTable<U, C> MakeLaneChannelTable() {
  LaneChannelTable<U, C> t{};
  for (int i = 0; i < 68; ++i) t.v[i] = static_cast<U>(i % C);
  return t;
}

template <class U, int C>
inline constexpr LaneChannelTable<U, C> kLaneChannelTable = MakeLaneChannelTable<U, C>();

template <class U, int C>
const U* LaneChannels() {
  return kLaneChannelTable<U, C>.v;
}

}  // namespace pel::stats
