// Shared by every family: pointer/step arithmetic and the first two argument
// checks that all exports make in the same order.
#pragma once

#include <cstddef>
#include <cstdint>

#include "peli.h"

#define PEL_HIDDEN __attribute__((visibility("hidden")))

namespace pel {

// Pointer moved by a byte count. Steps are signed and may be zero or
// negative; the arithmetic goes through uintptr_t so that a step that walks
// "backwards" past the start of an allocation is never pointer overflow.
template <class T>
inline T* AddBytes(T* p, ptrdiff_t bytes) {
  return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) +
                              static_cast<uintptr_t>(bytes));
}

// Row y of an image given by its first-row pointer and step.
template <class T>
inline T* Row(T* p, ptrdiff_t step, ptrdiff_t y) {
  return AddBytes(p, step * y);
}

// The same memory as bytes, for kernels that move whole pixels whatever
// their element type.
template <class T>
inline const uint8_t* Bytes(const T* p) {
  return reinterpret_cast<const uint8_t*>(p);
}
template <class T>
inline uint8_t* Bytes(T* p) {
  return reinterpret_cast<uint8_t*>(p);
}

template <class... P>
constexpr bool AnyNull(const P*... p) {
  return ((p == nullptr) || ...);
}

template <class Size>
constexpr bool BadSize(Size s) {
  return s.width < 1 || s.height < 1;
}

}  // namespace pel
