// Bad-argument sweeps: every required pointer NULL in turn (also together
// with a bad size, since pointers are checked first), then every bad size;
// each call must return its status and write nothing.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <functional>
#include <string>
#include <vector>

#include "peli.h"

namespace peltest {

// A call of the export under test with the given pointers and ROI size.
template <size_t N>
using CallWith = std::function<PelStatus(const std::array<void*, N>&, PeliSize)>;

// `watched` are the bytes that must stay as they are (the destinations).
template <size_t N>
void ExpectPointerThenSizeChecks(const std::array<void*, N>& good, PeliSize goodSize,
                                 const CallWith<N>& call,
                                 const std::vector<const std::vector<uint8_t>*>& watched) {
  std::vector<std::vector<uint8_t>> before;
  for (const auto* w : watched) before.push_back(*w);
  auto expectUntouched = [&](const std::string& what) {
    for (size_t i = 0; i < watched.size(); ++i) {
      EXPECT_TRUE(*watched[i] == before[i]) << what << ": a destination was written";
    }
  };
  const PeliSize badSizes[] = {{0, goodSize.height}, {goodSize.width, 0}, {-1, goodSize.height},
                               {goodSize.width, -5}, {INT_MIN, INT_MIN}, {0, 0}};
  for (size_t i = 0; i < N; ++i) {
    auto ptrs = good;
    ptrs[i] = nullptr;
    EXPECT_EQ(call(ptrs, goodSize), pelStatusNullPointer) << "pointer " << i << " NULL";
    EXPECT_EQ(call(ptrs, PeliSize{0, 0}), pelStatusNullPointer)
        << "pointer " << i << " NULL with a 0x0 size: pointers come first";
    expectUntouched("pointer " + std::to_string(i) + " NULL");
  }
  for (const PeliSize& s : badSizes) {
    EXPECT_EQ(call(good, s), pelStatusBadSize) << "size " << s.width << "x" << s.height;
    expectUntouched("size " + std::to_string(s.width) + "x" + std::to_string(s.height));
  }
}

}  // namespace peltest
