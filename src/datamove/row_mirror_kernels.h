// Row kernels of the mirror, transpose and channel-swap family, dispatched
// to the best instruction set at run time. Each gives exactly the bytes of
// its scalar reference (mirror_scalar.h, gather.h).
//
// Rows given to one call must not share memory, except where a kernel says
// so: the walkers send such rows to the scalar references, whose order
// defines the result. Streamed stores (`stream`) change speed only; they are
// not fenced here, the walker calls FinishStreaming once after its last row.
#pragma once

#include <cstddef>
#include <cstdint>

#include "datamove/gather.h"
#include "datamove/mirror_scalar.h"
#include "datamove/pixel_bytes.h"

namespace pel::datamove {

// dst pixel n-1-x = src pixel x.
void ReverseRow(const void* src, void* dst, size_t pixels, PixelBytes px, bool stream);
// One row reversed where it lies.
void ReverseRowInPlace(void* row, size_t pixels, PixelBytes px);
// a <- b reversed and b <- a reversed, for two rows that share no memory.
void ReverseSwapRows(void* a, void* b, size_t pixels, PixelBytes px);
// a <-> b, for two rows that share no memory.
void SwapRows(void* a, void* b, size_t pixels, PixelBytes px);
// The plan's gather over one row. The rows may be the very same memory
// (pixels of equal size, same start); otherwise they share none.
void GatherRow(const void* src, void* dst, size_t pixels, const GatherPlan& plan);

// One row of a frame narrower than its source on both sides (left and
// right below `width`): `left` pixels, the source row, `right` pixels, the
// border pixels made by `kind` (0 Constant from `value`, 1 Replicate,
// 2 Mirror, 3 Wrap). With `middleThere` the source row already lies in the
// middle of `out` and is not copied. `out` shares no memory with `row`
// other than that middle.
void FrameRow(const void* row, void* out, size_t width, size_t left, size_t right, FrameKind kind,
              PixelBytes px, const void* value, bool middleThere);

// dst(x = j, y = i) = src(x = i, y = j) for a source of w x h pixels; the
// two images share no memory.
void TransposeRect(const void* src, ptrdiff_t srcStep, void* dst, ptrdiff_t dstStep, size_t w,
               size_t h, PixelBytes px, bool stream);
// An n x n square transposed where it lies; its rows share no memory.
void TransposeSquareInPlace(void* p, ptrdiff_t step, size_t n, PixelBytes px);

}  // namespace pel::datamove
