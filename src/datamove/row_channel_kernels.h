// Row kernels of the channel copies, dispatched to the best instruction set at
// run time. Each handles one row of `pixels` pixels and gives exactly the
// bytes of its scalar reference in channel_scalar.h.
//
// The source and destination ranges of a row must not overlap (walkers send
// overlapping rows to the scalar reference, whose forward order defines the
// result). `stream` asks for cache-bypassing stores; it changes speed only.
// Streamed stores are not fenced here: the caller fences once after its last
// row (FinishStreaming in row_kernels.h), since a fence per row stalls on
// every short row.
//
// Lane types are the unsigned integers of 1, 2 or 4 bytes; channel counts are
// 3 or 4. Use the typed templates at the end.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::datamove {

void ExtractRowAny(const void* src, void* dst, size_t pixels, int elemBytes, int channels);
void InsertRowAny(const void* src, void* dst, size_t pixels, int elemBytes, int channels);
void SplitRowAny(const void* src, void* const* planes, size_t pixels, int elemBytes,
                 int channels, bool stream);
void MergeRowAny(const void* const* planes, void* dst, size_t pixels, int elemBytes,
                 int channels, bool stream);
void DropAlphaRowAny(const void* src, void* dst, size_t pixels, int elemBytes);
void AddAlphaRowAny(const void* src, void* dst, size_t pixels, int elemBytes);
// 8-bit lanes only: the one family member that duplicates.
void DupRowAny(const uint8_t* src, uint8_t* dst, size_t pixels, int channels);

// Orders the streamed stores of all rows before whatever the caller does next.

template <class U, int C>
inline void ExtractRowVec(const U* src, U* dst, size_t pixels) {
  ExtractRowAny(src, dst, pixels, sizeof(U), C);
}

template <class U, int C>
inline void InsertRowVec(const U* src, U* dst, size_t pixels) {
  InsertRowAny(src, dst, pixels, sizeof(U), C);
}

template <class U, int C>
inline void SplitRowVec(const U* src, U* const* planes, size_t pixels, bool stream) {
  void* p[C];
  for (int c = 0; c < C; ++c) p[c] = planes[c];
  SplitRowAny(src, p, pixels, sizeof(U), C, stream);
}

template <class U, int C>
inline void MergeRowVec(const U* const* planes, U* dst, size_t pixels, bool stream) {
  const void* p[C];
  for (int c = 0; c < C; ++c) p[c] = planes[c];
  MergeRowAny(p, dst, pixels, sizeof(U), C, stream);
}

template <class U>
inline void DropAlphaRowVec(const U* src, U* dst, size_t pixels) {
  DropAlphaRowAny(src, dst, pixels, sizeof(U));
}

template <class U>
inline void AddAlphaRowVec(const U* src, U* dst, size_t pixels) {
  AddAlphaRowAny(src, dst, pixels, sizeof(U));
}

template <int C>
inline void DupRowVec(const uint8_t* src, uint8_t* dst, size_t pixels) {
  DupRowAny(src, dst, pixels, C);
}

}  // namespace pel::datamove
