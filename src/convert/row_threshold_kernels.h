// Threshold and compare row kernels, dispatched to the best instruction set
// at run time, for the element types 8u, 16s, 16u and 32f.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "convert/convert_scalar.h"
#include "peli.h"

namespace pel::convert {

using scalar::CompareJob;
using scalar::ThresholdJob;

// 0 8u, 1 16s, 2 16u, 3 32f.
template <class T>
constexpr int TypeCode() {
  if constexpr (std::is_same_v<T, Pel8u>) return 0;
  else if constexpr (std::is_same_v<T, Pel16s>) return 1;
  else if constexpr (std::is_same_v<T, Pel16u>) return 2;
  else return 3;
}

void ThresholdRowAny(int type, const void* job, const void* src, void* dst, size_t elements);
void CompareRowAny(int type, const void* job, const void* a, const void* b, Pel8u* dst, size_t pixels);
void FinishThresholdStreams();

// `elements` elements (pixels x channels) of one row; src may equal dst.
template <class T>
void ThresholdRow(const ThresholdJob<T>& job, const T* src, T* dst, size_t elements) {
  ThresholdRowAny(TypeCode<T>(), &job, src, dst, elements);
}

// `pixels` mask bytes from a row of each operand (or the fixed pixel).
template <class T>
void CompareRow(const CompareJob<T>& job, const T* a, const T* b, Pel8u* dst, size_t pixels) {
  CompareRowAny(TypeCode<T>(), &job, a, b, dst, pixels);
}

}  // namespace pel::convert
