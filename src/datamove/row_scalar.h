// Scalar reference row kernels of the copy and set family. They are the
// definition of the results: every vector kernel must match them bit for bit,
// and the lowest dispatch level (PEL_CPU=scalar) runs them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::datamove::scalar {

inline void CopyRow(const uint8_t* src, uint8_t* dst, size_t bytes) {
  for (size_t i = 0; i < bytes; ++i) dst[i] = src[i];
}

// Fills `pixels` pixels of C lanes each with value[0..C-1].
template <class U, int C>
void SetRow(U* dst, size_t pixels, const U* value) {
  for (size_t x = 0; x < pixels; ++x) {
    for (int c = 0; c < C; ++c) dst[x * C + c] = value[c];
  }
}

}  // namespace pel::datamove::scalar
