// Kernels of the image FFT, dispatched to the best instruction set at run
// time. Every instruction set gives the same bits: each output is computed
// by the same sequence of float operations, vectors only run several
// independent transforms (rows, columns) side by side.
#pragma once

#include <cstddef>

#include "transform/fft_spec.h"

namespace pel::transform {

// The whole 2-D transform of a checked call; `work` is 64-byte aligned and
// holds spec.workBytes (it may be null when that is 0).
void Fft2D(const FftSpec2D& spec, const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep,
           float* work, bool inverse);

// `pairs` complex products of interleaved (re, im) pairs: d = a x b, or
// d = a x conj(b). d may be a or b.
void MulPairs(const float* a, const float* b, float* d, size_t pairs, bool conjugateB);

}  // namespace pel::transform
