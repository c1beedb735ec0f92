// Border extension inside the library: any window of an image extended
// beyond its ROI by a border rule, written into caller memory. The
// peliCopy*Border exports are this with the window of the whole destination;
// the filters build the bands and strips their kernels reach into with it
// (docs/mirror.md).
//
// Pixel (x, y) of the extended image, in ROI coordinates (the ROI's first
// pixel is (0, 0); x < 0 is left of it, y < 0 above it), is
//   - the pixel in memory at (x, y) when x is inside [0, width) or on a side
//     that the rule says is in memory, and likewise y;
//   - otherwise each coordinate outside the ROI and not in memory is mapped
//     into the ROI by the kind: Replicate clamps, Mirror reflects about the
//     edge pixel without repeating it (period 2 x size - 2; a size of 1
//     replicates), Wrap takes it modulo the size; Constant gives the rule's
//     value for the whole pixel.
// The coordinates map independently, so a corner whose row is in memory and
// whose column is not takes the mapped column of that memory row.
#pragma once

#include <cstddef>
#include <cstdint>

#include "datamove/pixel_bytes.h"

namespace pel::datamove {

enum class BorderKind { Replicate, Mirror, Constant, Wrap };

struct BorderSource {
  const void* pixels;  // the ROI's first pixel
  ptrdiff_t step;      // bytes from a row to the next, any sign
  int64_t width;       // the ROI, at least 1 x 1
  int64_t height;
};

struct BorderRule {
  BorderKind kind = BorderKind::Replicate;
  // pelBorderInMemTop | Bottom | Left | Right: the pixels on that side of
  // the ROI exist in memory and are read as they lie.
  int inMemory = 0;
  // Constant: one pixel (its written lanes); not read for the other kinds.
  const void* value = nullptr;
};

// [x, x + width) x [y, y + height) of the extended image, in ROI coordinates.
struct BorderWindow {
  int64_t x;
  int64_t y;
  int64_t width;
  int64_t height;
};

// Writes the window into dst (first pixel of the window, dstStep between
// rows) row by row, top to bottom, and within a row from left to right in
// runs: copies and reversed copies of source rows and fills. An AC4 pixel
// (px.keepAlpha) keeps the destination's alpha everywhere. When
// `roiAlreadyThere` is set, the ROI's own pixels lie in dst exactly where the
// window puts them (an in-place border) and are not rewritten. Nothing is
// checked: the window must fit in dst, and memory on in-memory sides must
// exist as far as the window reaches.
void BuildBorderWindow(const BorderSource& src, const BorderRule& rule, PixelBytes px,
                       const BorderWindow& window, void* dst, ptrdiff_t dstStep,
                       bool roiAlreadyThere = false);

}  // namespace pel::datamove
