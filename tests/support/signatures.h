// The export signatures of the copy and set family, and the element types
// it serves, for the tables of members in the tests.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

#include "peli.h"
#include "support/image.h"

namespace peltest {

using DataMoveTypes = ::testing::Types<Pel8u, Pel16s, Pel16u, Pel32s, Pel32f>;

template <class T>
using CopyFn = PelStatus (*)(const T*, int, T*, int, PeliSize);
template <class T>
using CopyFnL = PelStatus (*)(const T*, PelIntL, T*, PelIntL, PeliSizeL);
template <class T>
using CopyMaskFn = PelStatus (*)(const T*, int, T*, int, const Pel8u*, int, PeliSize);
template <class T>
using SplitFn = PelStatus (*)(const T*, int, T* const*, int, PeliSize);
template <class T>
using MergeFn = PelStatus (*)(const T* const*, int, T*, int, PeliSize);
template <class T>
using SetOneFn = PelStatus (*)(T, T*, int, PeliSize);
template <class T>
using SetManyFn = PelStatus (*)(const T*, T*, int, PeliSize);
template <class T>
using SetOneMaskFn = PelStatus (*)(T, T*, int, const Pel8u*, int, PeliSize);
template <class T>
using SetManyMaskFn = PelStatus (*)(const T*, T*, int, const Pel8u*, int, PeliSize);

// Four random values of T (finite for floats), the same for a given seed.
template <class T>
std::array<T, 4> RandomValues(uint32_t seed) {
  Image<T> v(Layout{4, 1, 1, 0, 0, false});
  v.FillRandom(seed);
  return {v.at(0, 0), v.at(1, 0), v.at(2, 0), v.at(3, 0)};
}

}  // namespace peltest
