// Scalar reference row kernels of the masked, alpha-keeping and
// single-channel copies and fills. They define the results: every vector
// kernel must match them bit for bit, and PEL_CPU=scalar runs exactly these.
//
// Pixels have C lanes of which the first W are written; W is C, or 3 for
// four-lane pixels whose lane 3 (alpha) is never touched.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::datamove::scalar {

// Lanes 0..W-1 of every pixel whose mask byte is nonzero.
template <class U, int C, int W>
void MaskedCopyRow(const U* src, U* dst, const uint8_t* mask, size_t pixels) {
  for (size_t x = 0; x < pixels; ++x) {
    if (mask[x] == 0) continue;
    for (int c = 0; c < W; ++c) dst[x * C + c] = src[x * C + c];
  }
}

// value[0..W-1] into every pixel whose mask byte is nonzero.
template <class U, int C, int W>
void MaskedSetRow(U* dst, const uint8_t* mask, size_t pixels, const U* value) {
  for (size_t x = 0; x < pixels; ++x) {
    if (mask[x] == 0) continue;
    for (int c = 0; c < W; ++c) dst[x * C + c] = value[c];
  }
}

// Lanes 0..2 of four-lane pixels; lane 3 is neither read nor written.
template <class U>
void AlphaCopyRow(const U* src, U* dst, size_t pixels) {
  for (size_t x = 0; x < pixels; ++x) {
    for (int c = 0; c < 3; ++c) dst[x * 4 + c] = src[x * 4 + c];
  }
}

template <class U>
void AlphaSetRow(U* dst, size_t pixels, const U* value) {
  for (size_t x = 0; x < pixels; ++x) {
    for (int c = 0; c < 3; ++c) dst[x * 4 + c] = value[c];
  }
}

// One lane every C lanes, starting at the pointers. The last pixel may end
// right after its lane, so lanes past (pixels - 1) * C are never accessed.
template <class U, int C>
void ChannelCopyRow(const U* src, U* dst, size_t pixels) {
  for (size_t x = 0; x < pixels; ++x) dst[x * C] = src[x * C];
}

template <class U, int C>
void ChannelSetRow(U* dst, size_t pixels, U value) {
  for (size_t x = 0; x < pixels; ++x) dst[x * C] = value;
}

}  // namespace pel::datamove::scalar
