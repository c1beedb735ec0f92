// Test images with guard bytes: the ROI sits inside a larger buffer, rows
// are padded, the first pixel may be offset, rows may run bottom-up (negative
// step). A call may write only the ROI; every other byte is checked.
#pragma once

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "peli.h"

namespace peltest {

enum class Fence { None, AtEnd, AtStart };

struct Layout {
  int width = 1;
  int height = 1;
  int channels = 1;
  int padBytes = 0;       // extra bytes after each row
  int offsetBytes = 0;    // bytes before the first pixel of the first row
  bool bottomUp = false;  // first ROI row is the last in memory: negative step
  // Fenced: no guard bytes, the image's last (or first) byte touches an
  // inaccessible page, so that a read past the image crashes.
  Fence fence = Fence::None;
  // Every image of the call without padding or offset, top-down: rows that
  // follow each other without a gap, which walkers may merge into one.
  bool gapless = false;
  // With a fence at the end: the buffer stops this many bytes before the end
  // of the last row (elements the export must not even read).
  int trimBytes = 0;

  std::string Describe() const;
};

// Heap memory, or memory flush against an inaccessible page (at the end or
// the start of the allocation). Copies are ordinary heap memory.
struct GuardedAllocator {
  using value_type = uint8_t;
  template <class U>
  struct rebind {
    static_assert(std::is_same_v<U, uint8_t>);
    using other = GuardedAllocator;
  };
  Fence fence = Fence::None;
  GuardedAllocator() = default;
  explicit GuardedAllocator(Fence f) : fence(f) {}
  uint8_t* allocate(size_t n);
  void deallocate(uint8_t* p, size_t n);
  GuardedAllocator select_on_container_copy_construction() const { return {}; }
  bool operator==(const GuardedAllocator& o) const { return fence == o.fence; }
};
using Bytes = std::vector<uint8_t, GuardedAllocator>;

// Bytes around the image that no call may touch.
inline constexpr int kGuardBytes = 64;
inline constexpr uint8_t kGuardByte = 0xA5;

// An image of elements of `elemBytes` bytes, whatever they mean.
class AnyImage {
 public:
  AnyImage() = default;
  AnyImage(const Layout& l, int elemBytes);

  uint8_t* bytesAt(int x, int y, int c = 0);
  const uint8_t* bytesAt(int x, int y, int c = 0) const {
    return const_cast<AnyImage*>(this)->bytesAt(x, y, c);
  }
  uint8_t* first() { return bytesAt(0, 0); }
  // False for an element that a trimmed, fenced image leaves out.
  bool Has(int x, int y, int c = 0) const {
    return static_cast<size_t>(bytesAt(x, y, c) - buffer_.data()) + elemBytes_ <= buffer_.size();
  }
  int step() const { return layout_.bottomUp ? -static_cast<int>(pitch_) : static_cast<int>(pitch_); }
  PeliSize size() const { return {layout_.width, layout_.height}; }
  const Layout& layout() const { return layout_; }
  int elemBytes() const { return elemBytes_; }

  // Every element gets random bytes (the same for a given seed).
  void FillRandomBytes(uint32_t seed);

  // The whole buffer, guards and padding included.
  const Bytes& bytes() const { return buffer_; }
  Bytes& bytes() { return buffer_; }

  // Where buffer byte `index` lies: "x=.. y=.. c=.." inside the ROI, or which
  // guard, padding or offset byte it is. Sets *element when inside.
  std::string Where(size_t index, bool* inside = nullptr, size_t* elementStart = nullptr) const;

 private:
  Layout layout_;
  int elemBytes_ = 1;
  size_t rowBytes_ = 0;
  size_t pitch_ = 0;
  size_t guard_ = kGuardBytes;
  Bytes buffer_;
};

template <class T>
class Image : public AnyImage {
 public:
  Image() = default;
  explicit Image(const Layout& l) : AnyImage(l, sizeof(T)) {}
  T* data() { return reinterpret_cast<T*>(first()); }
  const T* data() const { return const_cast<Image*>(this)->data(); }
  int channels() const { return layout().channels; }
  T& at(int x, int y, int c = 0) { return *reinterpret_cast<T*>(bytesAt(x, y, c)); }
  T at(int x, int y, int c = 0) const { return const_cast<Image*>(this)->at(x, y, c); }
  // Random elements; floats get finite values of either sign.
  void FillRandom(uint32_t seed);
};

// Float values a model can print and compare; integers are printed as numbers.
std::string ValueText(const uint8_t* bytes, int elemBytes, char kind);

// Shapes every kernel meets: widths around the vector sizes, one row, one
// column, 1x1, padded rows, offsets, bottom-up rows.
std::vector<Layout> AwkwardLayouts(int channels = 1);
// Shapes whose images touch an inaccessible page at their end or start.
std::vector<Layout> FencedLayouts(int channels = 1);

template <class T>
void Image<T>::FillRandom(uint32_t seed) {
  std::mt19937 rng(seed);
  const Layout& l = layout();
  for (int y = 0; y < l.height; ++y)
    for (int x = 0; x < l.width; ++x)
      for (int c = 0; c < l.channels; ++c) {
        if constexpr (std::is_floating_point_v<T>) {
          at(x, y, c) = static_cast<T>(std::uniform_real_distribution<double>(-1e6, 1e6)(rng));
        } else {
          const uint64_t bits = (uint64_t{rng()} << 32) | rng();
          std::memcpy(&at(x, y, c), &bits, sizeof(T));
        }
      }
}

}  // namespace peltest
