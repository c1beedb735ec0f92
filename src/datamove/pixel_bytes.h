// Mirroring, transposing and border extension move whole pixels and never
// look inside them, so their kernels know a pixel only by its size in bytes
// and by whether its last lane (the alpha of an AC4 pixel) must keep the
// destination's value. 8u C4, 16s C2 and 32f C1 pixels all move alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace pel::datamove {

struct PixelBytes {
  int bytes;         // 1, 2, 3, 4, 6, 8, 12 or 16
  bool keepAlpha;    // four lanes of which the last is never written (4, 8 or 16 bytes)

  // The bytes of a pixel that are written: all, or the three colour lanes.
  int written() const { return keepAlpha ? bytes - bytes / 4 : bytes; }
};

template <class T, int C, int W = C>
constexpr PixelBytes PixelOf() {
  return PixelBytes{static_cast<int>(sizeof(T)) * C, W != C};
}

// Calls f(std::integral_constant<int, P>{}, std::integral_constant<bool, K>{})
// for the pixel's size and alpha rule.
template <class F>
void VisitPixel(PixelBytes px, F&& f) {
  using std::integral_constant;
  if (px.keepAlpha) {
    switch (px.bytes) {
      case 4: return f(integral_constant<int, 4>{}, integral_constant<bool, true>{});
      case 8: return f(integral_constant<int, 8>{}, integral_constant<bool, true>{});
      case 16: return f(integral_constant<int, 16>{}, integral_constant<bool, true>{});
    }
    return;
  }
  switch (px.bytes) {
    case 1: return f(integral_constant<int, 1>{}, integral_constant<bool, false>{});
    case 2: return f(integral_constant<int, 2>{}, integral_constant<bool, false>{});
    case 3: return f(integral_constant<int, 3>{}, integral_constant<bool, false>{});
    case 4: return f(integral_constant<int, 4>{}, integral_constant<bool, false>{});
    case 6: return f(integral_constant<int, 6>{}, integral_constant<bool, false>{});
    case 8: return f(integral_constant<int, 8>{}, integral_constant<bool, false>{});
    case 12: return f(integral_constant<int, 12>{}, integral_constant<bool, false>{});
    case 16: return f(integral_constant<int, 16>{}, integral_constant<bool, false>{});
  }
}

// One pixel from s to d: all its bytes, or all but the alpha lane's. The
// fixed size lets the compiler turn the copy into a move or two.
template <int P, bool kKeep>
inline void MovePixel(uint8_t* d, const uint8_t* s) {
  std::memcpy(d, s, kKeep ? P - P / 4 : P);
}

// Exchanges the written bytes of two pixels. Both are read before either
// is written, so rows that share memory (a zero step) give a defined result.
template <int P, bool kKeep>
inline void ExchangePixels(uint8_t* a, uint8_t* b) {
  uint8_t ta[P], tb[P];
  MovePixel<P, false>(ta, a);
  MovePixel<P, false>(tb, b);
  MovePixel<P, kKeep>(a, tb);
  MovePixel<P, kKeep>(b, ta);
}

}  // namespace pel::datamove
