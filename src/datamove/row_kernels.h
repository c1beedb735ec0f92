// Row kernels of the copy and set family, dispatched to the best instruction
// set at run time. `stream` asks for cache-bypassing stores; it changes speed,
// never the bytes written.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::datamove {

// Streamed stores are not fenced by the row kernels: a walker that streamed
// calls FinishStreaming once after its last row, before it returns, so that
// the caller sees the stores in order. A fence per row stalls on short rows.
void FinishStreaming();

// Copies `bytes` bytes. The ranges must not overlap unless they are equal.
void CopyRow(const void* src, void* dst, size_t bytes, bool stream);

// Fills `pixels` pixels of `channels` lanes of `elemBytes` bytes each with
// the pixel at `value`. Use SetRow<U, C> below.
void SetRowAny(void* dst, size_t pixels, const void* value, int elemBytes, int channels,
               bool stream);

template <class U, int C>
inline void SetRow(U* dst, size_t pixels, const U* value, bool stream) {
  SetRowAny(dst, pixels, value, sizeof(U), C, stream);
}

}  // namespace pel::datamove
