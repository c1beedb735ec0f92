// Row kernels of the arithmetic family, dispatched at run time to the best
// instruction set; each gives exactly the bytes of its scalar reference in
// row_scalar.h. A row is `lanes` elements; `alpha` makes it a row of AC4
// pixels whose fourth lane is neither used nor written.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/arith.h"

namespace pel::arith {

// A source row: `lanes` elements from p on, or, with a period, the first
// `period` elements at p over and over (a constant laid out as pixels). A
// period is a multiple of every vector's lane count and of the pixel.
struct Operand {
  const void* p;
  size_t period = 0;
};

// The periods of two operands.
struct Periods {
  size_t a = 0, b = 0;
};

// Where the vector loops stand in two operands: lanes from the start, or
// from the start of the period.
struct Cursor {
  size_t a = 0, b = 0;
  void Advance(size_t lanes, size_t periodA, size_t periodB) {
    a += lanes;
    if (a == periodA) a = 0;
    b += lanes;
    if (b == periodB) b = 0;
  }
};

// Integer Add, Sub or Mul (e: 8u, 16u or 16s) with scale factor s, which
// must not exceed ZeroFillAbove(op, e). dst = src1 op src2 (Sub: src2 - src1).
void IntBinaryRow(Op op, Elem e, Operand src1, Operand src2, void* dst, size_t lanes, int s,
                  bool alpha);

// 32f Add, Sub or Mul.
void FloatBinaryRow(Op op, Operand src1, Operand src2, float* dst, size_t lanes, bool alpha);

// 32f dst = src2 / src1 from the first lane of a row (the groups start
// there). True when the row met a zero divisor (or a NaN one in a group
// with a zero).
bool FloatDivRow(const float* src1, const float* src2, float* dst, size_t lanes, bool alpha);

// Integer dst = src2 / src1 from the first lane of a row, scaled by 2^-s and
// rounded by mode (0, 1, 2); the caller holds round-to-nearest. True when a
// divisor was 0.
bool IntDivRow(Elem e, const void* src1, const void* src2, void* dst, size_t lanes, int s,
               int mode, bool alpha);

// Integer dst = src x factor (floats) in single precision, to nearest even,
// saturated (DivC); the caller holds round-to-nearest.
void IntScaleRow(Elem e, const void* src, Operand factor, void* dst, size_t lanes, bool alpha);

// True when an element was negative.
bool SqrtRow(const float* src, float* dst, size_t lanes);

void AbsRow(const int16_t* src, int16_t* dst, size_t lanes);

}  // namespace pel::arith
