// Row conversion kernels, dispatched to the best instruction set at run time
// for the pairs of types that have a vector kernel; the other pairs run the
// scalar reference directly.
#pragma once

#include <cstddef>

#include "convert/convert_scalar.h"
#include "peli.h"

namespace pel::convert {

using scalar::ConvertJob;

// The pairs with a vector kernel, numbered.
#define PEL_CONVERT_VECTOR_PAIRS(X)                                                         \
  X(0, Pel8u, Pel16s) X(1, Pel8u, Pel16u) X(2, Pel8u, Pel32s) X(3, Pel8u, Pel32f)           \
  X(4, Pel8s, Pel32s) X(5, Pel8s, Pel32f) X(6, Pel16u, Pel32s) X(7, Pel16u, Pel32f)         \
  X(8, Pel16s, Pel32s) X(9, Pel16s, Pel32f) X(10, Pel16s, Pel8u) X(11, Pel16u, Pel8u)       \
  X(12, Pel32s, Pel8u) X(13, Pel32s, Pel8s) X(14, Pel32f, Pel8u) X(15, Pel32f, Pel8s)       \
  X(16, Pel32f, Pel16u) X(17, Pel32f, Pel16s)

template <class S, class D>
inline constexpr int kVectorPair = -1;
#define PEL_CONVERT_PAIR_INDEX(i, S, D) \
  template <>                           \
  inline constexpr int kVectorPair<S, D> = i;
PEL_CONVERT_VECTOR_PAIRS(PEL_CONVERT_PAIR_INDEX)
#undef PEL_CONVERT_PAIR_INDEX

void ConvertRowAny(int pair, const ConvertJob& job, const void* src, void* dst, size_t elements);
// Orders streamed stores before the call returns; once per call.
void FinishStreams();

// `elements` elements of a row (pixels x channels) in the job's layout.
template <class S, class D>
void ConvertRow(const ConvertJob& job, const S* src, D* dst, size_t elements) {
  if constexpr (kVectorPair<S, D> >= 0) {
    ConvertRowAny(kVectorPair<S, D>, job, src, dst, elements);
  } else {
    scalar::ConvertElements(job, src, dst, 0, elements);
  }
}

}  // namespace pel::convert
