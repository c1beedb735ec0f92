// The results that a scale factor or a constant fixes before any pixel is
// read: the destination filled through the image Set, or copied from the
// source through the image Copy, of the copy and set family.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/arith.h"
#include "peli.h"

namespace pel::arith {

// Fills the computed channels of every pixel with 0, or with the type's
// maximum when `max`.
PelStatus FillImage(Elem e, int layout, void* dst, ptrdiff_t dstStep, int64_t width,
                    int64_t height, bool max);

// Copies the computed channels of every pixel.
PelStatus CopyImage(Elem e, int layout, const void* src, ptrdiff_t srcStep, void* dst,
                    ptrdiff_t dstStep, int64_t width, int64_t height);

}  // namespace pel::arith
