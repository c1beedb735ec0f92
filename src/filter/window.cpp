#include "filter/window.h"

#include <algorithm>
#include <cstring>

#include "core/common.h"
#include "core/spec.h"

namespace pel::filter {

using datamove::BorderKind;
using datamove::BorderRule;

int64_t WindowRowBytes(int64_t roiW, const MaskGeometry& g, int pixelBytes) {
  return static_cast<int64_t>(RoundUp64(static_cast<uint64_t>((roiW + g.kw - 1) * pixelBytes)));
}

namespace {

// Strips of the left and right edges. An edge run covers at least 64 bytes
// of output pixels (more than the mask's reach when that is short), so that
// the row kernels run it with full vectors rather than their scalar tails:
// the outputs [0, left) reach columns [-ax, left + kw - 1 - ax), the
// outputs [W - right, W) columns [W - right - ax, W + kw - 1 - ax).
int64_t EdgePixels(int pixelBytes) { return (64 + pixelBytes - 1) / pixelBytes; }
int64_t LeftEdge(const MaskGeometry& g, int pixelBytes) { return std::max(g.ax, EdgePixels(pixelBytes)); }
int64_t RightEdge(const MaskGeometry& g, int pixelBytes) {
  return std::max(g.kw - g.ax - 1, EdgePixels(pixelBytes));
}
int64_t LeftStripBytes(const MaskGeometry& g, int pixelBytes) {
  return static_cast<int64_t>(RoundUp64(static_cast<uint64_t>((LeftEdge(g, pixelBytes) + g.kw - 1) * pixelBytes)));
}
int64_t RightStripBytes(const MaskGeometry& g, int pixelBytes) {
  return static_cast<int64_t>(RoundUp64(static_cast<uint64_t>((RightEdge(g, pixelBytes) + g.kw - 1) * pixelBytes)));
}
int64_t PointerBytes(const MaskGeometry& g) {
  const int64_t slots = g.kh + 1;
  return static_cast<int64_t>(RoundUp64(static_cast<uint64_t>(2 * slots * 8 + 4 * g.kh * 8)));
}

}  // namespace

namespace {

// One pixel, with the size known to the compiler (a call to memcpy would
// cost more than the copy).
void CopyPixel(uint8_t* dst, const void* src, int bytes) {
  switch (bytes) {
    case 1: std::memcpy(dst, src, 1); return;
    case 2: std::memcpy(dst, src, 2); return;
    case 3: std::memcpy(dst, src, 3); return;
    case 4: std::memcpy(dst, src, 4); return;
    case 6: std::memcpy(dst, src, 6); return;
    case 8: std::memcpy(dst, src, 8); return;
    case 12: std::memcpy(dst, src, 12); return;
    case 16: std::memcpy(dst, src, 16); return;
    default: std::memcpy(dst, src, static_cast<size_t>(bytes)); return;
  }
}

}  // namespace

// A strip of row r (a row in memory) that is a few pixels wide, built pixel
// by pixel: the general builder's set-up costs more than such a strip. Only
// where every column outside the ROI maps in one step (one clamp or one
// reflection) and pixels are whole; otherwise false, and nothing is written.
bool RowWindow::BuildStrip(int64_t r, int64_t x0, int64_t width, uint8_t* dst) const {
  const int64_t W = src_.width;
  const int bytes = px_.bytes;
  if (px_.keepAlpha || rule_.kind == BorderKind::Wrap) return false;
  const bool memLeft = (rule_.inMemory & pelBorderInMemLeft) != 0;
  const bool memRight = (rule_.inMemory & pelBorderInMemRight) != 0;
  if (rule_.kind == BorderKind::Mirror) {
    if (W < 2) return false;
    if (!memLeft && x0 < 0 && -x0 >= W) return false;
    if (!memRight && x0 + width > W && 2 * W - 2 - (x0 + width - 1) < 0) return false;
  }
  const auto* row = Row(static_cast<const uint8_t*>(src_.pixels), src_.step, static_cast<ptrdiff_t>(r));
  // The columns read where they lie, in one copy; then the others.
  const int64_t end = x0 + width;
  const int64_t lo = memLeft ? x0 : std::max<int64_t>(x0, 0);
  const int64_t hi = memRight ? end : std::min(end, W);
  // A column outside the ROI, on a side not in memory.
  auto put = [&](int64_t x) {
    const void* from = rule_.value;
    if (rule_.kind == BorderKind::Replicate) from = row + (x < 0 ? 0 : W - 1) * bytes;
    else if (rule_.kind == BorderKind::Mirror) from = row + (x < 0 ? -x : 2 * W - 2 - x) * bytes;
    CopyPixel(dst + (x - x0) * bytes, from, bytes);
  };
  if (lo < hi) {
    std::memcpy(dst + (lo - x0) * bytes, row + lo * bytes, static_cast<size_t>((hi - lo) * bytes));
    for (int64_t x = x0; x < lo; ++x) put(x);
    for (int64_t x = hi; x < end; ++x) put(x);
  } else {
    for (int64_t x = x0; x < end; ++x) put(x);
  }
  return true;
}

int64_t WindowBufferBytes(int64_t roiW, const MaskGeometry& g, int pixelBytes) {
  const int64_t slots = g.kh + 1;
  return 64 + slots * (WindowRowBytes(roiW, g, pixelBytes) + LeftStripBytes(g, pixelBytes) +
                       RightStripBytes(g, pixelBytes)) +
         PointerBytes(g);
}

BorderRule RuleOf(int code, const void* value) {
  BorderRule rule;
  const Border b = SplitBorder(code);
  rule.inMemory = code == pelBorderInMem ? pelBorderInMem : b.inMemory;
  rule.kind = b.kind == pelBorderMirror     ? BorderKind::Mirror
              : b.kind == pelBorderConstant ? BorderKind::Constant
                                            : BorderKind::Replicate;
  rule.value = value;
  return rule;
}

RowWindow::RowWindow(const void* src, ptrdiff_t srcStep, int64_t roiW, int64_t roiH, const MaskGeometry& g,
                     datamove::PixelBytes px, const BorderRule& rule, uint8_t* buffer, bool forceCopy)
    : src_{src, srcStep, roiW, roiH}, rule_(rule), px_(px), g_(g) {
  // A side the mask never reaches needs no border, as if it were in memory.
  if (g.ax == 0) rule_.inMemory |= pelBorderInMemLeft;
  if (g.kw - g.ax - 1 == 0) rule_.inMemory |= pelBorderInMemRight;
  if (g.ay == 0) rule_.inMemory |= pelBorderInMemTop;
  if (g.kh - g.ay - 1 == 0) rule_.inMemory |= pelBorderInMemBottom;
  rowsDirect_ = (rule_.inMemory & (pelBorderInMemLeft | pelBorderInMemRight)) ==
                    (pelBorderInMemLeft | pelBorderInMemRight) &&
                !forceCopy;
  rowBytes_ = WindowRowBytes(roiW, g, px.bytes);
  leftBytes_ = LeftStripBytes(g, px.bytes);
  rightBytes_ = RightStripBytes(g, px.bytes);
  const int64_t slots = g.kh + 1;
  ring_ = AlignUp64(buffer);
  strips_ = ring_ + slots * rowBytes_;
  ringRow_ = reinterpret_cast<int64_t*>(strips_ + slots * (leftBytes_ + rightBytes_));
  stripRow_ = ringRow_ + slots;
  rows_ = reinterpret_cast<const uint8_t**>(stripRow_ + slots);
  runRows_ = rows_ + g.kh;
  end_ = reinterpret_cast<uint8_t*>(ringRow_) + PointerBytes(g);
  for (int64_t s = 0; s < slots; ++s) ringRow_[s] = stripRow_[s] = INT64_MIN;
  // The interior: outputs whose reach stays inside the ROI or runs onto an
  // in-memory side.
  interior0_ = (rule_.inMemory & pelBorderInMemLeft) ? 0 : LeftEdge(g, px.bytes);
  interior1_ = (rule_.inMemory & pelBorderInMemRight) ? roiW : roiW - RightEdge(g, px.bytes);
  split_ = !rowsDirect_ && !forceCopy && interior1_ > interior0_;
}

int RowWindow::Runs(int64_t y, Run (&runs)[3]) {
  if (!split_) {
    runs[0] = {Rows(y), 0, src_.width};
    return 1;
  }
  const int64_t slots = g_.kh + 1;
  const uint8_t** left = runRows_;
  const uint8_t** mid = runRows_ + g_.kh;
  const uint8_t** right = runRows_ + 2 * g_.kh;
  const int64_t rightX0 = interior1_;
  // One division a call: the slots of consecutive rows follow each other.
  int64_t slot = (((y - g_.ay) % slots) + slots) % slots;
  for (int64_t i = 0; i < g_.kh; ++i, slot = slot + 1 == slots ? 0 : slot + 1) {
    const int64_t r = y - g_.ay + i;
    if (!InMemory(r)) {
      // A synthesised row: built whole, once, and shared by the three runs.
      uint8_t* row = ring_ + slot * rowBytes_;
      if (ringRow_[slot] != r) {
        datamove::BuildBorderWindow(src_, rule_, px_, {-g_.ax, r, src_.width + g_.kw - 1, 1}, row, rowBytes_);
        ringRow_[slot] = r;
      }
      left[i] = row;
      mid[i] = row + interior0_ * px_.bytes;
      right[i] = row + rightX0 * px_.bytes;
      continue;
    }
    uint8_t* ls = strips_ + slot * (leftBytes_ + rightBytes_);
    uint8_t* rs = ls + leftBytes_;
    if (stripRow_[slot] != r) {
      const int64_t leftW = interior0_ + g_.kw - 1;
      if (interior0_ > 0 && !BuildStrip(r, -g_.ax, leftW, ls))
        datamove::BuildBorderWindow(src_, rule_, px_, {-g_.ax, r, leftW, 1}, ls, leftBytes_);
      const int64_t rightW = src_.width - rightX0 + g_.kw - 1;
      if (interior1_ < src_.width && !BuildStrip(r, rightX0 - g_.ax, rightW, rs))
        datamove::BuildBorderWindow(src_, rule_, px_, {rightX0 - g_.ax, r, rightW, 1}, rs, rightBytes_);
      stripRow_[slot] = r;
    }
    left[i] = ls;
    mid[i] = SourceRow(r) + interior0_ * px_.bytes;
    right[i] = rs;
  }
  int n = 0;
  if (interior0_ > 0) runs[n++] = {left, 0, interior0_};
  runs[n++] = {mid, interior0_, interior1_ - interior0_};
  if (interior1_ < src_.width) runs[n++] = {right, interior1_, src_.width - interior1_};
  return n;
}

bool RowWindow::InMemory(int64_t r) const {
  if (r < 0) return (rule_.inMemory & pelBorderInMemTop) != 0;
  if (r >= src_.height) return (rule_.inMemory & pelBorderInMemBottom) != 0;
  return true;
}

const uint8_t* RowWindow::SourceRow(int64_t r) const {
  const auto* row = Row(static_cast<const uint8_t*>(src_.pixels), src_.step, static_cast<ptrdiff_t>(r));
  return row - g_.ax * px_.bytes;
}

const uint8_t* const* RowWindow::Rows(int64_t y) {
  const int64_t slots = g_.kh + 1;
  leaving_ = y > 0 ? rows_[0] : nullptr;
  int64_t slot = (((y - g_.ay) % slots) + slots) % slots;
  for (int64_t i = 0; i < g_.kh; ++i, slot = slot + 1 == slots ? 0 : slot + 1) {
    const int64_t r = y - g_.ay + i;
    if (rowsDirect_ && InMemory(r)) {
      rows_[i] = SourceRow(r);
      continue;
    }
    uint8_t* row = ring_ + slot * rowBytes_;
    if (ringRow_[slot] != r) {
      datamove::BuildBorderWindow(src_, rule_, px_, {-g_.ax, r, src_.width + g_.kw - 1, 1}, row, rowBytes_);
      ringRow_[slot] = r;
    }
    rows_[i] = row;
  }
  return rows_;
}

}  // namespace pel::filter
