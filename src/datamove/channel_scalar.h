// Scalar reference row kernels of the channel copies: extract, insert, split,
// merge, alpha drop/add and duplicate. They define the results; every vector
// kernel matches them bit for bit, PEL_CPU=scalar runs them, and the walkers
// use them for short rows and for rows whose source and destination overlap.
//
// Each kernel handles pixels [begin, end) of a row and walks them forward,
// one pixel at a time, reading every source lane of a pixel before writing
// any destination lane of it. That order is what an overlapping call gets.
//
// Lanes are unsigned integers of the element's size: moving bits does not
// depend on what they mean.
#pragma once

#include <cstddef>

namespace pel::datamove::scalar {

// dst[x] = src[x * C]: src addresses the chosen channel of C-channel pixels.
template <class U, int C>
void ExtractRow(const U* src, U* dst, size_t begin, size_t end) {
  for (size_t x = begin; x < end; ++x) dst[x] = src[x * C];
}

// dst[x * C] = src[x]: dst addresses the chosen channel; the other channels
// of each pixel are not touched.
template <class U, int C>
void InsertRow(const U* src, U* dst, size_t begin, size_t end) {
  for (size_t x = begin; x < end; ++x) dst[x * C] = src[x];
}

// planes[c][x] = src[x * C + c].
template <class U, int C>
void SplitRow(const U* src, U* const* planes, size_t begin, size_t end) {
  for (size_t x = begin; x < end; ++x) {
    U pixel[C];
    for (int c = 0; c < C; ++c) pixel[c] = src[x * C + c];
    for (int c = 0; c < C; ++c) planes[c][x] = pixel[c];
  }
}

// dst[x * C + c] = planes[c][x].
template <class U, int C>
void MergeRow(const U* const* planes, U* dst, size_t begin, size_t end) {
  for (size_t x = begin; x < end; ++x) {
    U pixel[C];
    for (int c = 0; c < C; ++c) pixel[c] = planes[c][x];
    for (int c = 0; c < C; ++c) dst[x * C + c] = pixel[c];
  }
}

// The first three lanes of each kSrc-lane pixel into the first three lanes
// of each kDst-lane pixel: 4 -> 3 drops alpha without reading it, 3 -> 4 adds
// an alpha position without touching it.
template <class U, int kSrc, int kDst>
void ThreeLaneRow(const U* src, U* dst, size_t begin, size_t end) {
  for (size_t x = begin; x < end; ++x) {
    const U c0 = src[x * kSrc], c1 = src[x * kSrc + 1], c2 = src[x * kSrc + 2];
    dst[x * kDst] = c0;
    dst[x * kDst + 1] = c1;
    dst[x * kDst + 2] = c2;
  }
}

template <class U>
void DropAlphaRow(const U* src, U* dst, size_t begin, size_t end) {
  ThreeLaneRow<U, 4, 3>(src, dst, begin, end);
}

template <class U>
void AddAlphaRow(const U* src, U* dst, size_t begin, size_t end) {
  ThreeLaneRow<U, 3, 4>(src, dst, begin, end);
}

// dst[x * C + c] = src[x] for every c.
template <class U, int C>
void DupRow(const U* src, U* dst, size_t begin, size_t end) {
  for (size_t x = begin; x < end; ++x) {
    const U v = src[x];
    for (int c = 0; c < C; ++c) dst[x * C + c] = v;
  }
}

}  // namespace pel::datamove::scalar
