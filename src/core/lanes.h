// Data movement does not care what the bits mean: a 32-bit float moves like a
// 32-bit integer. Kernels therefore work on unsigned lanes of the element's
// size, and a runtime (element bytes, channels) pair picks the instantiation.
#pragma once

#include <cstdint>
#include <type_traits>

namespace pel {

template <size_t kBytes>
struct UnsignedOfSize;
template <>
struct UnsignedOfSize<1> { using type = uint8_t; };
template <>
struct UnsignedOfSize<2> { using type = uint16_t; };
template <>
struct UnsignedOfSize<4> { using type = uint32_t; };
template <>
struct UnsignedOfSize<8> { using type = uint64_t; };

// The unsigned lane type that carries the bits of T.
template <class T>
using LaneOf = typename UnsignedOfSize<sizeof(T)>::type;

// Calls f(U{}, std::integral_constant<int, C>{}) for the lane type of
// elemBytes (1, 2 or 4) and the channel count (1, 3 or 4).
template <class F>
void VisitLaneAndChannels(int elemBytes, int channels, F&& f) {
  auto withChannels = [&](auto lane) {
    switch (channels) {
      case 1: return f(lane, std::integral_constant<int, 1>{});
      case 3: return f(lane, std::integral_constant<int, 3>{});
      case 4: return f(lane, std::integral_constant<int, 4>{});
    }
  };
  switch (elemBytes) {
    case 1: return withChannels(uint8_t{});
    case 2: return withChannels(uint16_t{});
    case 4: return withChannels(uint32_t{});
  }
}

}  // namespace pel
