// Add, Sub and Mul of two images: the checks, the zero fill that a large
// scale factor implies, and the row loop.
#include "arith/binary.h"

#include "arith/forms.h"
#include "arith/row_kernels.h"
#include "arith/shortcut.h"
#include "core/common.h"
#include "core/exports.h"

namespace pel::arith {

PelStatus RunDiv(Elem e, int layout, const TwoImages& im, int scale, bool hasMode, int mode);

PelStatus RunTwoImages(Op op, Elem e, int layout, const TwoImages& im, int scale, bool hasMode,
                       int mode) {
  if (AnyNull(im.src1, im.src2, im.dst)) return pelStatusNullPointer;
  if (im.width < 1 || im.height < 1) return pelStatusBadSize;
  if (op == kDiv) return RunDiv(e, layout, im, scale, hasMode, mode);
  // From a left shift of 64 on only the sign of the exact value counts; the
  // clamp keeps every later negation of the scale factor defined.
  if (scale < -64) scale = -64;
  // No step is checked: zero and negative steps are used as given.
  if (e != Elem::k32f && scale > ZeroFillAbove(op, e)) {
    return FillImage(e, layout, im.dst, im.dstStep, im.width, im.height, false);
  }
  const Rows rows = RowsOf(uint64_t(im.width), uint64_t(im.height), LanesOf(layout), BytesOf(e),
                           true, {im.step1, im.step2, im.dstStep});
  const bool alpha = layout == kAC4;
  ForEachRow(im, rows, [&](const void* s1, const void* s2, void* d) {
    if (e == Elem::k32f) {
      FloatBinaryRow(op, {s1}, {s2}, static_cast<float*>(d), rows.lanes, alpha);
    } else {
      IntBinaryRow(op, e, {s1}, {s2}, d, rows.lanes, scale, alpha);
    }
  });
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "arith/binary_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::arith
