// Row kernels of the masked, alpha-keeping and single-channel copies and
// fills, dispatched to the best instruction set at run time.
//
// Pixels have C lanes of `elemBytes` bytes (C = `channels`: 1, 3 or 4), of
// which the first W (`written`) are written: W is C, or 3 for four-lane pixels
// with an alpha lane that keeps its value. Use the typed wrappers below.
//
// Writes stay inside the row. Where a pixel is not selected (mask byte 0,
// alpha lane) a vector kernel may store the destination's own value back
// into it; only the single-channel kernels never store into other lanes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::datamove {

void MaskedCopyRowAny(const void* src, void* dst, const uint8_t* mask, size_t pixels,
                      int elemBytes, int channels, int written);
void MaskedSetRowAny(void* dst, const uint8_t* mask, size_t pixels, const void* value,
                     int elemBytes, int channels, int written);
void AlphaCopyRowAny(const void* src, void* dst, size_t pixels, int elemBytes, bool stream);
void AlphaSetRowAny(void* dst, size_t pixels, const void* value, int elemBytes, bool stream);
void ChannelCopyRowAny(const void* src, void* dst, size_t pixels, int elemBytes, int channels);
void ChannelSetRowAny(void* dst, size_t pixels, const void* value, int elemBytes, int channels);

// Lanes 0..W-1 of the pixels whose mask byte is nonzero.
template <class U, int C, int W>
inline void MaskedCopyRow(const U* src, U* dst, const uint8_t* mask, size_t pixels) {
  MaskedCopyRowAny(src, dst, mask, pixels, sizeof(U), C, W);
}

// value[0..W-1] into the pixels whose mask byte is nonzero.
template <class U, int C, int W>
inline void MaskedSetRow(U* dst, const uint8_t* mask, size_t pixels, const U* value) {
  MaskedSetRowAny(dst, mask, pixels, value, sizeof(U), C, W);
}

// Lanes 0..2 of four-lane pixels, lane 3 kept. `stream` asks for
// cache-bypassing stores; it changes speed, never the bytes written.
template <class U>
inline void AlphaCopyRow(const U* src, U* dst, size_t pixels, bool stream) {
  AlphaCopyRowAny(src, dst, pixels, sizeof(U), stream);
}

template <class U>
inline void AlphaSetRow(U* dst, size_t pixels, const U* value, bool stream) {
  AlphaSetRowAny(dst, pixels, value, sizeof(U), stream);
}

// Lane 0 of C-lane pixels, the pointers at that lane; only lanes
// 0, C, 2C, ..., (pixels - 1) * C are accessed.
template <class U, int C>
inline void ChannelCopyRow(const U* src, U* dst, size_t pixels) {
  ChannelCopyRowAny(src, dst, pixels, sizeof(U), C);
}

template <class U, int C>
inline void ChannelSetRow(U* dst, size_t pixels, U value) {
  ChannelSetRowAny(dst, pixels, &value, sizeof(U), C);
}

}  // namespace pel::datamove
