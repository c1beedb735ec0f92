// The processor's floating-point rounding control (MXCSR), for the calls
// whose results are defined by it. A scope sets the mode for the duration of
// a call and restores the caller's control word on leaving, rewriting it only
// when it differs.
#pragma once

#include <xmmintrin.h>

namespace pel {

class RoundingScope {
 public:
  // MXCSR rounding-control bits: nearest 0x0000, toward zero 0x6000.
  static constexpr unsigned kNearest = 0x0000;
  static constexpr unsigned kTowardZero = 0x6000;

  explicit RoundingScope(unsigned roundingBits) : saved_(_mm_getcsr()) {
    const unsigned wanted = (saved_ & ~0x6000u) | roundingBits;
    if (wanted != saved_) _mm_setcsr(wanted);
  }
  ~RoundingScope() {
    if (_mm_getcsr() != saved_) _mm_setcsr(saved_);
  }
  RoundingScope(const RoundingScope&) = delete;
  RoundingScope& operator=(const RoundingScope&) = delete;

 private:
  unsigned saved_;
};

}  // namespace pel
