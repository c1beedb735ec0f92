// Row kernels of resize, dispatched to the best instruction set at run time.
// A call prepares the columns once (source taps, weights, gather plans) and
// then runs one kernel per row; every instruction set gives the scalar
// reference's bytes.
#pragma once

#include <cstddef>
#include <cstdint>

#include "geometry/gather_plan.h"

namespace pel::geometry {

enum class ResizeElem : int { k8u, k16u, k16s, k32f, k64f };

inline int ElemBytes(ResizeElem e) {
  switch (e) {
    case ResizeElem::k8u: return 1;
    case ResizeElem::k16u:
    case ResizeElem::k16s: return 2;
    case ResizeElem::k32f: return 4;
    case ResizeElem::k64f: return 8;
  }
  return 1;
}

// Bytes of one element of the horizontal pass's lines: Q6 in 16 bits for 8u,
// Q2 in 32 bits for 16u and 16s, float, double.
inline int LineElemBytes(ResizeElem e) {
  switch (e) {
    case ResizeElem::k8u: return 2;
    case ResizeElem::k64f: return 8;
    default: return 4;
  }
}

// Whether the dispatched kernels run gather plans (false for the scalar
// reference, which reads the taps directly): the walker builds them only
// then.
bool ResizeKernelsUsePlans();

// The columns of a nearest call: pixel x of the tile copies source pixel
// tap[x] (relative to the tile's source pointer).
struct NearestColumns {
  size_t width = 0;
  int pixelBytes = 0;
  const int32_t* tap = nullptr;
  GatherPlan plan;  // over width x pixelBytes bytes
};

void NearestRow(const NearestColumns& cols, const uint8_t* src, uint8_t* dst);

// The columns of a linear call: element (x, c) blends source pixels tap0[x]
// and tap1[x] with the weight pair weight[2x], weight[2x + 1] (Q14, the
// spec's x table). The vector kernels also take the weights per element
// (elementWeights: int16 pairs, or float pairs for 32f) and a plan that
// gathers each element's two taps side by side.
struct LinearColumns {
  ResizeElem elem = ResizeElem::k8u;
  size_t width = 0;
  int channels = 1;
  const int32_t* tap0 = nullptr;
  const int32_t* tap1 = nullptr;
  const int16_t* weight = nullptr;
  const void* elementWeights = nullptr;
  GatherPlan plan;
  // Every column averages source pixels 2x and 2x + 1 from tap0[0] on.
  bool halving = false;
};

// One source row through the horizontal pass, into `line`.
void LinearHorizontal(const LinearColumns& cols, const uint8_t* src, void* line);
// Blends two lines with the Q14 weight wy of the lower one into `n`
// destination elements.
void LinearVertical(ResizeElem elem, const void* upper, const void* lower, int wy, uint8_t* dst, size_t n);

}  // namespace pel::geometry
