// Border copies as rows. The model maps each destination pixel back into
// the source by walking the border rule's definition (clamping, reflecting
// again and again, or counting periods), independently of the library's
// closed formulas.
#include <algorithm>
#include <string>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

enum class Kind { Const, Replicate, Mirror, Wrap };

// Widths of the frame: top, left, bottom, right.
struct Frame {
  const char* name;
  int top, left, bottom, right;
};
// A thin frame, and one wider than most of the shapes' sources.
const Frame kFrames[] = {{"thin", 1, 3, 2, 1}, {"wide", 5, 40, 9, 21}};

// The runs a frame is made of are the copy, fill and mirror kernels, which
// their own rows run on every awkward shape; here a few sources around the
// vector sizes, padded and offset, and fenced, cover the walker.
std::vector<Layout> BorderShapes(int channels) {
  std::vector<Layout> out;
  const int sizes[][2] = {{1, 1}, {2, 3}, {7, 1}, {17, 3}, {33, 4}, {64, 2}, {129, 3}};
  int k = 0;
  for (const auto& s : sizes) {
    out.push_back(Layout{s[0], s[1], channels, k % 3 * 8, k % 4 * 4 + (k % 2 ? 4 : 0), false});
    ++k;
  }
  for (int w : {1, 8, 33}) out.push_back(Layout{w, 2, channels, 0, 0, false, w % 2 ? Fence::AtEnd : Fence::AtStart});
  Layout gapless{5, 7, channels};
  gapless.gapless = true;
  out.push_back(gapless);
  return out;
}

int MapInto(int v, int n, Kind kind) {
  if (kind == Kind::Replicate) return std::clamp(v, 0, n - 1);
  if (n == 1) return 0;
  if (kind == Kind::Wrap) {
    while (v < 0) v += n;
    while (v >= n) v -= n;
    return v;
  }
  while (v < 0 || v >= n) v = v < 0 ? -v : 2 * (n - 1) - v;  // reflect about the edge pixel
  return v;
}

// The frame around the source: from the source image `src` (or, in place,
// the source part of the image itself), the value array or constant at
// argument `value`.
template <class T>
PelStatus BorderModel(Model& m, Kind kind, const Frame& f, int C, int W, bool inPlace) {
  const int dst = inPlace ? 0 : 1;
  auto d = m.out<T>(dst);
  auto s = m.in<T>(0);
  const int ox = inPlace ? f.left : 0, oy = inPlace ? f.top : 0;  // the source inside argument 0
  const PeliSize out{m.roi.width + f.left + f.right, m.roi.height + f.top + f.bottom};
  ForEachPixel(out, [&](int x, int y) {
    const int sx = x - f.left, sy = y - f.top;
    const bool inside = sx >= 0 && sx < m.roi.width && sy >= 0 && sy < m.roi.height;
    if (inside && inPlace) return;
    for (int c = 0; c < W; ++c) {
      if (kind == Kind::Const && !inside) {
        d(x, y, c) = m.in<T>(2)[C == 1 ? 0 : c];
      } else {
        d(x, y, c) = s(ox + MapInto(sx, m.roi.width, kind), oy + MapInto(sy, m.roi.height, kind), c);
      }
    }
  });
  return pelStatusOk;
}

PeliSize Framed(PeliSize s, const Frame& f) {
  return {s.width + f.left + f.right, s.height + f.top + f.bottom};
}

// The two calls: sizes and steps of the plain form, or of the _L form.
template <class Int, class Size>
Size SizeOf(PeliSize s) {
  return Size{s.width, s.height};
}

// Adds the rows of one export (both frames). Fn is its pointer type; the
// value, if any, is argument 2 (by value for C1, an array otherwise).
template <class T, class Int, class Size, class Fn>
void AddBorder(std::vector<Row>& rows, Kind kind, int C, int W, bool inPlace, const char* name, Fn fn) {
  const bool byValue = kind == Kind::Const && C == 1;
  for (const Frame& f : kFrames) {
    std::vector<Arg> args;
    if (inPlace) {
      args.push_back(InOut<T>(C));
      args[0].size = [f](PeliSize s) { return Framed(s, f); };
      args.push_back(Value<T>());  // a placeholder that keeps the value at argument 2
    } else {
      args = {In<T>(C), Out<T>(C)};
      args[1].size = [f](PeliSize s) { return Framed(s, f); };
    }
    for (Arg& a : args) a.step = StepRule::Positive;
    if (kind == Kind::Const) {
      args.push_back(byValue ? Value<T>() : Consts<T>(W));
      args.back().latePointer = true;
    }
    Row r{name, f.name, args,
          [fn, f](Call& c) {
            const Size src = SizeOf<Int, Size>(c.roi), dst = SizeOf<Int, Size>(Framed(c.roi, f));
            const Int top = f.top, left = f.left, s0 = c.step(0);
            // In place the pointer is the source's first pixel, inside the frame.
            T* p = c.p<T>(0);
            if (p != nullptr) p = reinterpret_cast<T*>(reinterpret_cast<char*>(p) + f.top * c.step(0)) + f.left * (*c.args)[0].channels;
            if constexpr (std::is_invocable_v<Fn, T*, Int, Size, Size, Int, Int>) {
              return fn(p, s0, src, dst, top, left);
            } else if constexpr (std::is_invocable_v<Fn, T*, Int, Size, Size, Int, Int, T>) {
              return fn(p, s0, src, dst, top, left, c.v<T>(2));
            } else if constexpr (std::is_invocable_v<Fn, T*, Int, Size, Size, Int, Int, const T*>) {
              return fn(p, s0, src, dst, top, left, c.p<T>(2));
            } else if constexpr (std::is_invocable_v<Fn, const T*, Int, Size, T*, Int, Size, Int, Int>) {
              return fn(c.p<T>(0), s0, src, c.p<T>(1), Int(c.step(1)), dst, top, left);
            } else if constexpr (std::is_invocable_v<Fn, const T*, Int, Size, T*, Int, Size, Int, Int, T>) {
              return fn(c.p<T>(0), s0, src, c.p<T>(1), Int(c.step(1)), dst, top, left, c.v<T>(2));
            } else {
              return fn(c.p<T>(0), s0, src, c.p<T>(1), Int(c.step(1)), dst, top, left, c.p<T>(2));
            }
          },
          [kind, f, C, W, inPlace](Model& m) { return BorderModel<T>(m, kind, f, C, W, inPlace); }};
    r.order = {Check::Pointers, Check::Steps, Check::Sizes, Check::LatePointers};
    r.shapes = BorderShapes(C);
    rows.push_back(r);
  }
}

#define PEL_BORDER_FORMS(Name, kind, t, T, lay, C, W)                                          \
  AddBorder<T, int, PeliSize>(rows, kind, C, W, false, PEL_NAMED(peliCopy##Name##Border_##t##_##lay##R));        \
  AddBorder<T, int, PeliSize>(rows, kind, C, W, true, PEL_NAMED(peliCopy##Name##Border_##t##_##lay##IR));        \
  AddBorder<T, PelIntL, PeliSizeL>(rows, kind, C, W, false, PEL_NAMED(peliCopy##Name##Border_##t##_##lay##R_L)); \
  AddBorder<T, PelIntL, PeliSizeL>(rows, kind, C, W, true, PEL_NAMED(peliCopy##Name##Border_##t##_##lay##IR_L));

#define PEL_BORDER_TYPE_ROWS(t, T)                                        \
  PEL_BORDER_FORMS(Const, Kind::Const, t, T, C1, 1, 1)                    \
  PEL_BORDER_FORMS(Const, Kind::Const, t, T, C3, 3, 3)                    \
  PEL_BORDER_FORMS(Const, Kind::Const, t, T, C4, 4, 4)                    \
  PEL_BORDER_FORMS(Const, Kind::Const, t, T, AC4, 4, 3)                   \
  PEL_BORDER_FORMS(Replicate, Kind::Replicate, t, T, C1, 1, 1)            \
  PEL_BORDER_FORMS(Replicate, Kind::Replicate, t, T, C3, 3, 3)            \
  PEL_BORDER_FORMS(Replicate, Kind::Replicate, t, T, C4, 4, 4)            \
  PEL_BORDER_FORMS(Replicate, Kind::Replicate, t, T, AC4, 4, 3)           \
  PEL_BORDER_FORMS(Mirror, Kind::Mirror, t, T, C1, 1, 1)                  \
  PEL_BORDER_FORMS(Mirror, Kind::Mirror, t, T, C3, 3, 3)                  \
  PEL_BORDER_FORMS(Mirror, Kind::Mirror, t, T, C4, 4, 4)

std::vector<Row> BorderRows() {
  std::vector<Row> rows;
  PEL_BORDER_TYPE_ROWS(8u, Pel8u)
  PEL_BORDER_TYPE_ROWS(16s, Pel16s)
  PEL_BORDER_TYPE_ROWS(16u, Pel16u)
  PEL_BORDER_TYPE_ROWS(32s, Pel32s)
  PEL_BORDER_TYPE_ROWS(32f, Pel32f)
  PEL_BORDER_FORMS(Wrap, Kind::Wrap, 32s, Pel32s, C1, 1, 1)
  PEL_BORDER_FORMS(Wrap, Kind::Wrap, 32f, Pel32f, C1, 1, 1)
  return rows;
}

}  // namespace

PEL_ROWS(Border, BorderRows)
