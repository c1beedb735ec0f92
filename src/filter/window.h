// The rows a filter kernel reads. A kw x kh mask with anchor (ax, ay) needs,
// for output row y, the rows y - ay .. y - ay + kh - 1 of the source extended
// by the border rule, each from column -ax on and roiW + kw - 1 pixels wide.
// RowWindow hands out those rows as pointers: a row that lies wholly in
// memory (inside the ROI or on an in-memory side, and not reaching a border
// left or right) is read from the source where it lies; every other row is
// built once into a ring of kh + 1 rows in the caller's buffer, so each
// source row is extended at most once per call however tall the mask is.
// The extra ring row keeps the row that just left the window intact, which
// running sums subtract.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/border.h"
#include "datamove/border_window.h"

namespace pel::filter {

struct MaskGeometry {
  int64_t kw, kh;  // mask size
  int64_t ax, ay;  // anchor: (k - 1) >> 1 in each direction
};

inline MaskGeometry GeometryOf(int kw, int kh) {
  return {kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
}

// Bytes of one ring row and of the whole window's buffer area (ring rows
// rounded to 64 bytes, the row-pointer arrays, alignment slack).
int64_t WindowRowBytes(int64_t roiW, const MaskGeometry& g, int pixelBytes);
int64_t WindowBufferBytes(int64_t roiW, const MaskGeometry& g, int pixelBytes);

class RowWindow {
 public:
  // `buffer` must hold WindowBufferBytes; it is used from its first 64-byte
  // aligned address, End() is the first byte after the window's area.
  // forceCopy: every row is built into the ring, none read in place, so a
  // destination that is the source can be written behind the window (a row
  // is built before any output row at or below it is written).
  RowWindow(const void* src, ptrdiff_t srcStep, int64_t roiW, int64_t roiH, const MaskGeometry& g,
            datamove::PixelBytes px, const datamove::BorderRule& rule, uint8_t* buffer, bool forceCopy = false);

  // The kh rows of output row y (y ascending from 0 by one each call), each
  // pointing at the pixel of column -ax.
  const uint8_t* const* Rows(int64_t y);

  // Output row y in up to three runs of pixels [x0, x0 + count), each with
  // its kh rows pointing at column x0 - ax: the left and right edges, whose
  // reach is extended into small strips, and between them the interior,
  // read from the source where it lies (rows inside the ROI or on an
  // in-memory side), so that a row is not copied just to be read once.
  struct Run {
    const uint8_t* const* rows;
    int64_t x0, count;
  };
  int Runs(int64_t y, Run (&runs)[3]);
  // The row that was first in the previous call's window (valid when y > 0).
  const uint8_t* Leaving() const { return leaving_; }
  uint8_t* End() const { return end_; }

 private:
  const uint8_t* SourceRow(int64_t r) const;
  bool InMemory(int64_t r) const;
  bool BuildStrip(int64_t r, int64_t x0, int64_t width, uint8_t* dst) const;

  datamove::BorderSource src_;
  datamove::BorderRule rule_;
  datamove::PixelBytes px_;
  MaskGeometry g_;
  bool rowsDirect_;  // no horizontal border is built: rows in memory are read in place
  bool split_;       // the interior of a row is read in place, its edges built into strips
  int64_t interior0_, interior1_;  // the interior's output pixels
  int64_t leftBytes_, rightBytes_;  // a strip's bytes (rounded)
  uint8_t* strips_;
  int64_t* stripRow_;               // which extended row each strip slot holds
  const uint8_t** runRows_;         // 3 x kh pointers handed out by Runs
  int64_t rowBytes_;
  uint8_t* ring_;
  int64_t* ringRow_;             // which extended row each ring slot holds
  const uint8_t** rows_;         // kh pointers handed out
  const uint8_t* leaving_ = nullptr;
  uint8_t* end_;
};

// The border rule of a filter call: kind and in-memory flags from the code
// (240 means every side in memory), a side the mask does not reach counting
// as in memory.
datamove::BorderRule RuleOf(int code, const void* value);

}  // namespace pel::filter
