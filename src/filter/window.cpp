#include "filter/window.h"

#include "core/common.h"
#include "core/spec.h"

namespace pel::filter {

using datamove::BorderKind;
using datamove::BorderRule;

int64_t WindowRowBytes(int64_t roiW, const MaskGeometry& g, int pixelBytes) {
  return static_cast<int64_t>(RoundUp64(static_cast<uint64_t>((roiW + g.kw - 1) * pixelBytes)));
}

int64_t WindowBufferBytes(int64_t roiW, const MaskGeometry& g, int pixelBytes) {
  const int64_t slots = g.kh + 1;
  return 64 + slots * WindowRowBytes(roiW, g, pixelBytes) +
         static_cast<int64_t>(RoundUp64(static_cast<uint64_t>(slots * 8 + g.kh * 8)));
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
  const int64_t slots = g.kh + 1;
  ring_ = AlignUp64(buffer);
  ringRow_ = reinterpret_cast<int64_t*>(ring_ + slots * rowBytes_);
  rows_ = reinterpret_cast<const uint8_t**>(ringRow_ + slots);
  end_ = ring_ + slots * rowBytes_ + RoundUp64(static_cast<uint64_t>(slots * 8 + g.kh * 8));
  for (int64_t s = 0; s < slots; ++s) ringRow_[s] = INT64_MIN;
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
  for (int64_t i = 0; i < g_.kh; ++i) {
    const int64_t r = y - g_.ay + i;
    if (rowsDirect_ && InMemory(r)) {
      rows_[i] = SourceRow(r);
      continue;
    }
    const int64_t slot = ((r % slots) + slots) % slots;
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
