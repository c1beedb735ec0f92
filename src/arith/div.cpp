// Div and Div_Round of two images: the step and mode checks, the rounding
// control, and the row loop whose rows keep their own groups of eight.
#include "arith/div.h"

#include "arith/forms.h"
#include "arith/row_kernels.h"
#include "core/common.h"
#include "core/exports.h"
#include "core/fp_env.h"

namespace pel::arith {

namespace {

PelStatus DivRows(Elem e, int layout, const TwoImages& im, int scale, int mode) {
  // 8u and 32f rows start their groups of eight at their first element, so
  // only the 16-bit rows may run together.
  const bool merge = e == Elem::k16u || e == Elem::k16s;
  const Rows rows = RowsOf(uint64_t(im.width), uint64_t(im.height), LanesOf(layout), BytesOf(e),
                           merge, {im.step1, im.step2, im.dstStep});
  const bool alpha = layout == kAC4;
  bool marked = false;
  ForEachRow(im, rows, [&](const void* s1, const void* s2, void* d) {
    if (e == Elem::k32f) {
      marked = FloatDivRow(static_cast<const float*>(s1), static_cast<const float*>(s2),
                           static_cast<float*>(d), rows.lanes, alpha) || marked;
    } else {
      marked = IntDivRow(e, s1, s2, d, rows.lanes, scale, mode, alpha) || marked;
    }
  });
  return marked ? pelStatusDivByZeroWarning : pelStatusOk;
}

}  // namespace

PelStatus RunDiv(Elem e, int layout, const TwoImages& im, int scale, bool hasMode, int mode) {
  // Every member checks its steps except plain Div of 16u.
  if ((hasMode || e != Elem::k16u) && (im.step1 < 1 || im.step2 < 1 || im.dstStep < 1)) {
    return pelStatusBadStep;
  }
  if (hasMode && (mode < 0 || mode > 2)) return pelStatusRoundModeError;
  // 32f quotients are single-precision operations in the caller's rounding;
  // integer quotients round to nearest (or by mode) whatever the caller set.
  if (e == Elem::k32f) return DivRows(e, layout, im, scale, 1);
  const RoundingScope nearest(RoundingScope::kNearest);
  return DivRows(e, layout, im, scale, hasMode ? mode : 1);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "arith/div_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::arith
