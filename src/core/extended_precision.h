// Running totals in the x87 extended format (long double: 64-bit
// significand), for results that must come out the same on x86-64 and on
// i386 built with -mfpmath=sse: both use the x87 unit for long double, and
// the scope below makes its precision control "extended" for the duration
// of a call (a caller may have lowered it), restoring the caller's control
// word on leaving when it differed. Rounding stays the caller's, as for
// every other floating-point operation of the library.
//
// Keep the totals in volatile long doubles: then the compiler keeps every
// operation on them between the two control-word writes.
#pragma once

#include <cfloat>
#include <cstdint>

static_assert(LDBL_MANT_DIG == 64, "long double must be the x87 extended format");

namespace pel {

class ExtendedPrecisionScope {
 public:
  ExtendedPrecisionScope() {
    asm volatile("fnstcw %0" : "=m"(saved_) : : "memory");
    const uint16_t wanted = static_cast<uint16_t>(saved_ | kPrecisionExtended);
    if (wanted != saved_) asm volatile("fldcw %0" : : "m"(wanted) : "memory");
  }
  ~ExtendedPrecisionScope() {
    uint16_t now;
    asm volatile("fnstcw %0" : "=m"(now) : : "memory");
    if (now != saved_) asm volatile("fldcw %0" : : "m"(saved_) : "memory");
  }
  ExtendedPrecisionScope(const ExtendedPrecisionScope&) = delete;
  ExtendedPrecisionScope& operator=(const ExtendedPrecisionScope&) = delete;

 private:
  // Precision-control bits of the x87 control word: 11 = 64-bit significand.
  static constexpr uint16_t kPrecisionExtended = 0x0300;
  uint16_t saved_;
};

}  // namespace pel
