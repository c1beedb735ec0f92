// Row kernels of the extremes: per-channel minimum and maximum of a row, and
// the element-wise minimum or maximum of two rows. Dispatched by Highway;
// the baseline runs extremes_scalar.h.
#pragma once

#include <cstddef>

namespace pel::stats {

enum class ElemKind { U8, U16, S16, F32 };

// mins[c] and maxs[c] (arrays of four elements of the kind's type, which
// the caller starts at the type's largest and smallest values, or +inf and
// -inf) take the extremes of channel c of the n elements of a row of
// `channels`-channel pixels (1, 3 or 4; element i is channel i mod
// channels). NaN elements are passed over.
void RowExtremes(ElemKind kind, const void* row, size_t n, int channels, void* mins, void* maxs);

// dst[i] = a[i] if a[i] < b[i] (isMax: a[i] > b[i]), else b[i], for the n
// elements of a row; with keepAlpha every fourth element (i mod 4 == 3) of
// dst is left as it is. dst may be b.
void EveryRow(ElemKind kind, bool isMax, bool keepAlpha, const void* a, const void* b, void* dst,
              size_t n);

}  // namespace pel::stats
