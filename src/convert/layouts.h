// Channel layouts of the conversion and threshold family, as one template
// parameter: the channel count, and whether the fourth channel is alpha that
// the call leaves alone (AC4).
#pragma once

namespace pel::convert {

inline constexpr int kC1 = 1;
inline constexpr int kC3 = 3;
inline constexpr int kC4 = 4;
inline constexpr int kAC4 = 0x104;

constexpr int ChannelsOf(int layout) { return layout & 0xFF; }
constexpr bool HasAlpha(int layout) { return layout == kAC4; }
// The channels a call reads for its result and writes.
constexpr int WorkedChannels(int layout) { return HasAlpha(layout) ? 3 : ChannelsOf(layout); }

}  // namespace pel::convert
