// Row kernels of the sums, norms, dot products and range counts: each
// reduces one row (or a run of gapless rows) and adds to the caller's
// accumulators. Dispatched by Highway; the baseline runs reduce_scalar.h.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::stats {

// Element kinds of the integer kernels.
enum class IntKind { U8, U16, S16 };

// How an integer element becomes the unsigned magnitude that is reduced:
// itself (8u, 16u), biased by 32768 (16s sums: the bias is taken off by the
// caller), its absolute value (16s), or |a - b| of two rows.
enum class IntMap { Value, Biased, Abs, AbsDiff };

// What is reduced: the sum of the magnitudes, of their squares, or their
// maximum.
enum class IntOp { Sum, Sq, Max };

// acc[c] += (or max=) the magnitudes of channel c of the n elements of a
// row of `channels`-channel pixels (1, 3 or 4; element i is channel
// i mod channels). `b` is read only for IntMap::AbsDiff. Exact.
void IntRowReduce(IntKind kind, IntMap map, IntOp op, const void* a, const void* b, size_t n,
                  int channels, uint64_t acc[4]);

// What a float row adds to its partials: x, |x|, x * x, or the running
// maximum m = (m > |x|) ? m : |x| (a NaN replaces m and is itself replaced
// by the next element of that partial). x is a[i], or a[i] - b[i] when b is
// not null.
enum class FloatOp { Sum, Abs, Sq, Max };

// Single precision: element i of the row adds to partials[(i + k - h) mod k]
// (k = 16 or 48, 0 <= h < k), in order of i. The same on every processor.
void FloatRowPartials(FloatOp op, const float* a, const float* b, size_t n, size_t h, int k,
                      float* partials);

// Pel64f: element i, widened, adds to partials[i mod k] (k = 8 or 24);
// FloatOp::Max is not used here.
void DoubleRowPartials(FloatOp op, const float* a, const float* b, size_t n, int k,
                       double* partials);

// Exact row sums of products a[i] * b[i] per channel (channel i mod
// channels, 1, 3 or 4): sum[c] += the products, mag[c] += their absolute
// values.
void IntRowDot(IntKind kind, const void* a, const void* b, size_t n, int channels, int64_t sum[4],
               uint64_t mag[4]);

// counts[c] += the elements of channel c with lo[c] <= v <= hi[c]
// (channels 1, 3 or 4; with 4, channel 3 is not counted).
void CountRow8u(const uint8_t* row, size_t n, int channels, const uint8_t lo[4],
                const uint8_t hi[4], uint64_t counts[4]);
void CountRow32f(const float* row, size_t n, int channels, const float lo[4], const float hi[4],
                 uint64_t counts[4]);

}  // namespace pel::stats
