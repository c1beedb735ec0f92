// Test images with guard bytes: the ROI sits inside a larger buffer, rows
// are padded, the first pixel may be offset, rows may run bottom-up (negative
// step). Everything outside the ROI's rows is checked after a call.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "peli.h"

namespace peltest {

struct Layout {
  int width = 1;
  int height = 1;
  int channels = 1;
  int padBytes = 0;     // extra bytes after each row (keep a multiple of the element size)
  int offsetBytes = 0;  // bytes before the first pixel of the first row
  bool bottomUp = false;  // first ROI row is the last in memory: negative step

  std::string Describe() const {
    std::ostringstream s;
    s << width << "x" << height << " C" << channels << " pad" << padBytes << " off" << offsetBytes
      << (bottomUp ? " bottom-up" : "");
    return s.str();
  }
};

// Bytes around the image that no call may touch.
inline constexpr int kGuardBytes = 64;
inline constexpr uint8_t kGuardByte = 0xA5;

template <class T>
class Image {
 public:
  explicit Image(const Layout& l) : layout_(l) {
    rowBytes_ = static_cast<size_t>(l.width) * l.channels * sizeof(T);
    pitch_ = rowBytes_ + l.padBytes;
    buffer_.assign(kGuardBytes + l.offsetBytes + pitch_ * l.height + kGuardBytes, kGuardByte);
  }

  T* data() {
    uint8_t* first = buffer_.data() + kGuardBytes + layout_.offsetBytes;
    if (layout_.bottomUp) first += pitch_ * (layout_.height - 1);
    return reinterpret_cast<T*>(first);
  }
  const T* data() const { return const_cast<Image*>(this)->data(); }
  int step() const { return layout_.bottomUp ? -static_cast<int>(pitch_) : static_cast<int>(pitch_); }
  PeliSize size() const { return {layout_.width, layout_.height}; }
  const Layout& layout() const { return layout_; }
  int channels() const { return layout_.channels; }

  T& at(int x, int y, int c = 0) {
    auto* row = reinterpret_cast<uint8_t*>(data()) + static_cast<ptrdiff_t>(step()) * y;
    return reinterpret_cast<T*>(row)[x * layout_.channels + c];
  }
  T at(int x, int y, int c = 0) const { return const_cast<Image*>(this)->at(x, y, c); }

  // Random bytes in every ROI element, the same for a given seed. Float
  // images get finite values so that comparisons print readably.
  void FillRandom(uint32_t seed) {
    std::mt19937 rng(seed);
    for (int y = 0; y < layout_.height; ++y)
      for (int x = 0; x < layout_.width; ++x)
        for (int c = 0; c < layout_.channels; ++c) {
          T v;
          if constexpr (std::is_floating_point_v<T>) {
            v = static_cast<T>(std::uniform_real_distribution<double>(-1e6, 1e6)(rng));
          } else {
            const uint64_t bits = (uint64_t{rng()} << 32) | rng();
            std::memcpy(&v, &bits, sizeof v);
          }
          at(x, y, c) = v;
        }
  }

  // The whole buffer, guards and padding included.
  const std::vector<uint8_t>& bytes() const { return buffer_; }

  // True for a buffer byte that belongs to element (x, y, c) of the ROI.
  bool InRoi(size_t index) const {
    const ptrdiff_t first = kGuardBytes + layout_.offsetBytes;
    const ptrdiff_t rel = static_cast<ptrdiff_t>(index) - first;
    if (rel < 0) return false;
    const size_t row = static_cast<size_t>(rel) / pitch_;
    return row < static_cast<size_t>(layout_.height) && static_cast<size_t>(rel) % pitch_ < rowBytes_;
  }

 private:
  Layout layout_;
  size_t rowBytes_ = 0;
  size_t pitch_ = 0;
  std::vector<uint8_t> buffer_;
};

// Every byte outside the ROI is as it was in `before`.
template <class T>
::testing::AssertionResult OutsideRoiUnchanged(const Image<T>& img, const std::vector<uint8_t>& before) {
  const auto& now = img.bytes();
  for (size_t i = 0; i < now.size(); ++i) {
    if (!img.InRoi(i) && now[i] != before[i]) {
      return ::testing::AssertionFailure()
             << "byte " << i << " outside the ROI changed from " << int(before[i]) << " to "
             << int(now[i]) << " (" << img.layout().Describe() << ")";
    }
  }
  return ::testing::AssertionSuccess();
}

// Nothing at all changed (an error must write nothing).
template <class T>
::testing::AssertionResult Untouched(const Image<T>& img, const std::vector<uint8_t>& before) {
  if (img.bytes() == before) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "image written by a call that failed";
}

template <class T>
std::string ValueText(T v) {
  std::ostringstream s;
  if constexpr (sizeof(T) == 1) s << int(v);
  else s << +v;
  return s.str();
}

// Compares the ROI element by element against an expected image (or a
// function (x, y, c) -> value), bit for bit, and names the first difference.
template <class T, class Expected>
::testing::AssertionResult RoiEquals(const Image<T>& got, Expected&& expected) {
  const Layout& l = got.layout();
  for (int y = 0; y < l.height; ++y)
    for (int x = 0; x < l.width; ++x)
      for (int c = 0; c < l.channels; ++c) {
        const T want = expected(x, y, c);
        const T have = got.at(x, y, c);
        if (std::memcmp(&want, &have, sizeof(T)) != 0) {
          return ::testing::AssertionFailure()
                 << "first difference at x=" << x << " y=" << y << " c=" << c << ": got "
                 << ValueText(have) << ", want " << ValueText(want) << " (" << l.Describe() << ")";
        }
      }
  return ::testing::AssertionSuccess();
}

// Shapes every kernel meets: odd widths around the vector sizes, one row,
// one column, 1x1, padded and odd steps, offsets, bottom-up rows.
inline std::vector<Layout> AwkwardLayouts(int channels) {
  std::vector<Layout> out;
  const int widths[] = {1, 2, 7, 15, 16, 17, 31, 33, 63, 64, 65, 129, 1003};
  int k = 0;
  for (int w : widths) {
    for (int h : {1, 3}) {
      Layout l;
      l.width = w;
      l.height = h;
      l.channels = channels;
      l.padBytes = (k % 3) * 8;  // 0, 8 or 16 bytes of padding
      l.offsetBytes = (k % 4) * 4 + (k % 2 ? 4 : 0);
      l.bottomUp = (k % 5) == 4;
      out.push_back(l);
      ++k;
    }
  }
  Layout column;
  column.width = 1;
  column.height = 37;
  column.channels = channels;
  column.padBytes = 4;
  out.push_back(column);
  return out;
}

}  // namespace peltest
