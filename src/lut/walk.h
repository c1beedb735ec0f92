// How the family's walkers visit a region, shared by lut.cpp and palette.cpp.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/common.h"
#include "lut/row_lut_kernels.h"
#include "peli.h"

namespace pel::lut {

// Calls run(src, dst, pixels) for each row of the ROI, or once for the whole
// region when neither image leaves a gap between rows. src may equal dst.
template <class S, class D, class F>
void ForEachRun(const S* src, int srcStep, D* dst, int dstStep, PeliSize roi, int channels, F&& run) {
  const uint64_t width = static_cast<uint64_t>(roi.width);
  const uint64_t pixels = width * static_cast<uint64_t>(roi.height);
  if (static_cast<uint64_t>(srcStep) == width * channels * sizeof(S) &&
      static_cast<uint64_t>(dstStep) == width * channels * sizeof(D) && pixels <= SIZE_MAX / 16) {
    run(src, dst, static_cast<size_t>(pixels));
    return;
  }
  for (int y = 0; y < roi.height; ++y) run(Row(src, srcStep, y), Row(dst, dstStep, y), static_cast<size_t>(width));
}

// An 8-bit image through the tables of `job`, which the caller has filled.
inline void RunLut8(Lut8Job& job, const Pel8u* src, int srcStep, Pel8u* dst, int dstStep, PeliSize roi) {
  scalar::CutPieces(job);
  ForEachRun(src, srcStep, dst, dstStep, roi, job.channels,
             [&](const Pel8u* s, Pel8u* d, size_t pixels) { LookupRow8(job, s, d, pixels); });
}

// Channel layouts: the channel count, and AC4 (four channels, the fourth
// left alone) as a code of its own.
inline constexpr int kC1 = 1;
inline constexpr int kC3 = 3;
inline constexpr int kC4 = 4;
inline constexpr int kAC4 = 0x104;

constexpr int ChannelsOf(int layout) { return layout & 0xFF; }
constexpr int WorkedOf(int layout) { return layout == kAC4 ? 3 : ChannelsOf(layout); }

// A one-channel member takes its table (or levels, values, count) directly,
// the others an array with one entry per worked channel.
template <class E, int L>
using PerChannel = std::conditional_t<L == kC1, E, E*>;

// The per-channel entries of p into out; false when p or an entry is NULL
// (every pointer is checked before anything else).
template <int L, class E>
bool Channels(PerChannel<const E*, L> p, const E* (&out)[4]) {
  if constexpr (L == kC1) {
    out[0] = p;
    return p != nullptr;
  } else {
    if (p == nullptr) return false;
    for (int c = 0; c < WorkedOf(L); ++c) {
      out[c] = p[c];
      if (p[c] == nullptr) return false;
    }
    return true;
  }
}

}  // namespace pel::lut
