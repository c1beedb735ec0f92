// Mirror, transpose and channel swap as rows, each with a model written
// from the definitions: where each destination pixel comes from.
#include <algorithm>
#include <string>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

template <class T>
using MirrorFn = PelStatus (*)(const T*, int, T*, int, PeliSize, PeliAxis);
template <class T>
using MirrorIFn = PelStatus (*)(T*, int, PeliSize, PeliAxis);
template <class T>
using TransposeFn = PelStatus (*)(const T*, int, T*, int, PeliSize);
template <class T>
using TransposeIFn = PelStatus (*)(T*, int, PeliSize);
template <class T>
using SwapFn = PelStatus (*)(const T*, int, T*, int, PeliSize, const int*);
template <class T>
using SwapValFn = PelStatus (*)(const T*, int, T*, int, PeliSize, const int*, T);
template <class T>
using SwapIFn = PelStatus (*)(T*, int, PeliSize, const int*);

// Shapes for tiles: square and long images on both sides of 2, 4, 8 and 16
// pixels, padded, offset and bottom-up, and fenced.
std::vector<Layout> TileShapes(int channels) {
  const int sizes[][2] = {{1, 1},   {1, 19},  {19, 1},  {2, 8},   {8, 2},   {3, 17},  {4, 4},
                          {16, 16}, {17, 33}, {33, 17}, {64, 64}, {65, 66}, {130, 20}, {20, 130}};
  std::vector<Layout> out;
  int k = 0;
  for (const auto& s : sizes) {
    out.push_back(Layout{s[0], s[1], channels, k % 3 * 8, k % 4 * 4 + (k % 2 ? 4 : 0), k % 5 == 4});
    ++k;
  }
  out.push_back(Layout{17, 33, channels, 0, 0, false, Fence::AtEnd});
  out.push_back(Layout{33, 18, channels, 0, 0, false, Fence::AtStart});
  Layout gapless{16, 16, channels};
  gapless.gapless = true;
  out.push_back(gapless);
  return out;
}

// The awkward shapes and some of even height, for in-place row exchanges.
std::vector<Layout> EvenHeights(int channels) {
  std::vector<Layout> out = AwkwardLayouts(channels);
  for (int w : {1, 6, 33, 130}) out.push_back(Layout{w, w % 2 ? 2 : 4, channels, 8, 4, w % 3 == 0});
  return out;
}

// Where destination pixel (x, y) of a w x h flip comes from.
struct Point {
  int x, y;
};
Point Flipped(int flip, int x, int y, PeliSize roi) {
  switch (flip) {
    case 0: return {x, roi.height - 1 - y};
    case 1: return {roi.width - 1 - x, y};
    case 2: return {roi.width - 1 - x, roi.height - 1 - y};
    case 3: return {y, x};
    default: return {roi.height - 1 - y, roi.width - 1 - x};
  }
}

// dst(x, y, c) = src(from(x, y), c) for the first `written` channels.
template <class T, class From>
PelStatus MoveModel(Model& m, int src, int dst, PeliSize out, int written, From from) {
  auto s = m.in<T>(src);
  auto d = m.out<T>(dst);
  ForEachPixel(out, [&](int x, int y) {
    const Point p = from(x, y);
    for (int c = 0; c < written; ++c) d(x, y, c) = s(p.x, p.y, c);
  });
  return pelStatusOk;
}

PeliSize Swapped(PeliSize s) { return {s.height, s.width}; }

template <class T>
void AddMirror(std::vector<Row>& rows, int C, int W, const char* name, MirrorFn<T> fn) {
  for (int flip = -1; flip <= 5; ++flip) {
    Row r{name, "flip" + std::to_string(flip), {In<T>(C), Out<T>(C)},
          [fn, flip](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, flip); },
          [flip, W](Model& m) {
            return MoveModel<T>(m, 0, 1, m.roi, W, [&](int x, int y) { return Flipped(flip, x, y, m.roi); });
          }};
    if (flip < 0 || flip > 4) {
      r.order.push_back(Check::Param);
      r.expect = pelStatusMirrorAxisError;
    } else if (flip >= 3) {
      r.args[0].size = Swapped;  // the ROI is the destination's size
      for (Arg& a : r.args) a.step = StepRule::Positive;
      r.order = {Check::Pointers, Check::Steps, Check::Sizes};
      r.shapes = TileShapes(C);
    }
    rows.push_back(r);
  }
}

template <class T>
void AddMirrorInPlace(std::vector<Row>& rows, int C, int W, const char* name, MirrorIFn<T> fn) {
  for (int flip = 0; flip <= 5; flip += flip == 2 ? 3 : 1) {
    Row r{name, "flip" + std::to_string(flip), {InOut<T>(C)},
          [fn, flip](Call& c) { return fn(c.p<T>(0), c.step(0), c.roi, flip); },
          [flip, W](Model& m) {
            return MoveModel<T>(m, 0, 0, m.roi, W, [&](int x, int y) { return Flipped(flip, x, y, m.roi); });
          }};
    r.shapes = EvenHeights(C);
    if (flip > 2) {
      r.order.push_back(Check::Param);
      r.expect = pelStatusMirrorAxisError;
    }
    rows.push_back(r);
  }
}

template <class T>
void AddTranspose(std::vector<Row>& rows, int C, const char* name, TransposeFn<T> fn) {
  Row r{name, "", {In<T>(C), Out<T>(C)},
        [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi); },
        [](Model& m) {
          const int C = m.out<T>(1).channels();
          return MoveModel<T>(m, 0, 1, Swapped(m.roi), C, [](int x, int y) { return Point{y, x}; });
        }};
  r.args[1].size = Swapped;
  r.shapes = TileShapes(C);
  rows.push_back(r);
}

// In place the buffer holds both images: the pixels of neither stay.
template <class T>
void AddTransposeInPlace(std::vector<Row>& rows, int C, const char* name, TransposeIFn<T> fn) {
  Row r{name, "", {InOut<T>(C)}, [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.roi); },
        [C](Model& m) {
          return MoveModel<T>(m, 0, 0, Swapped(m.roi), C, [](int x, int y) { return Point{y, x}; });
        }};
  r.args[0].size = [](PeliSize s) {
    const int n = std::max(s.width, s.height);
    return PeliSize{n, n};
  };
  r.shapes = TileShapes(C);
  rows.push_back(r);
}

// The channel order as an array argument.
Arg Order(std::vector<int> order) {
  Arg a = Consts<int>(static_cast<int>(order.size()));
  a.fill = [order](AnyView& v, std::mt19937&) {
    for (size_t i = 0; i < order.size(); ++i) v.at<int>(static_cast<int>(i), 0) = order[i];
  };
  return a;
}

std::string Named(const std::vector<int>& order) {
  std::string s = "order";
  for (int o : order) {
    if (o < 0) s += 'm';  // minus
    s += std::to_string(o < 0 ? -o : o);
  }
  return s;
}

// Destination channel c: source channel order[c] when in [0, srcC), the
// value (argument 3) for an entry of srcC in the 3 -> 4 form, else kept.
// `bad` orders must fail with -60.
template <class T>
PelStatus SwapModel(Model& m, int srcC, int dstC, const std::vector<int>& order, bool inPlace) {
  auto s = m.in<T>(0);
  auto d = m.out<T>(inPlace ? 0 : 1);
  ForEachPixel(m.roi, [&](int x, int y) {
    for (int c = 0; c < static_cast<int>(order.size()) && c < dstC; ++c) {
      if (order[c] < srcC) d(x, y, c) = s(x, y, order[c]);
      else if (order[c] == 3 && srcC == 3 && dstC == 4) d(x, y, c) = m.in<T>(3)[0];
    }
  });
  return pelStatusOk;
}

template <class T, class Fn>
void AddSwap(std::vector<Row>& rows, int srcC, int dstC, std::vector<std::vector<int>> orders, bool bad,
             const char* name, Fn fn) {
  for (const auto& order : orders) {
    Row r{name, Named(order), {In<T>(srcC), Out<T>(dstC), Order(order)},
          [fn](Call& c) {
            if constexpr (std::is_same_v<Fn, SwapValFn<T>>) {
              return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, c.p<int>(2), c.v<T>(3));
            } else {
              return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi, c.p<int>(2));
            }
          },
          [srcC, dstC, order](Model& m) { return SwapModel<T>(m, srcC, dstC, order, false); }};
    if (std::is_same_v<Fn, SwapValFn<T>>) r.args.push_back(Value<T>());
    if (bad) {
      r.order.push_back(Check::Param);
      r.expect = pelStatusChannelOrderError;
    }
    rows.push_back(r);
  }
}

void AddSwapInPlace(std::vector<Row>& rows, int C, std::vector<std::vector<int>> orders, bool bad,
                    const char* name, SwapIFn<Pel8u> fn) {
  for (const auto& order : orders) {
    Row r{name, Named(order), {InOut<Pel8u>(C), Order(order)},
          [fn](Call& c) { return fn(c.p<Pel8u>(0), c.step(0), c.roi, c.p<int>(1)); },
          [C, order](Model& m) { return SwapModel<Pel8u>(m, C, C, order, true); }};
    if (bad) {
      r.order.push_back(Check::Param);
      r.expect = pelStatusChannelOrderError;
    }
    rows.push_back(r);
  }
}

const std::vector<std::vector<int>> kOrders3 = {{2, 1, 0}, {1, 2, 0}, {0, 0, 2}};
const std::vector<std::vector<int>> kBad3 = {{0, 1, 3}, {-1, 1, 2}};
const std::vector<std::vector<int>> kOrders4 = {{2, 1, 0, 3}, {3, 0, 1, 1}};
const std::vector<std::vector<int>> kBad4 = {{0, 1, 2, 4}, {0, -2, 1, 2}};

#define PEL_MIRROR_TYPE_ROWS(t, T)                                                                  \
  AddMirror<T>(rows, 1, 1, PEL_NAMED(peliMirror_##t##_C1R));                                         \
  AddMirror<T>(rows, 3, 3, PEL_NAMED(peliMirror_##t##_C3R));                                         \
  AddMirror<T>(rows, 4, 4, PEL_NAMED(peliMirror_##t##_C4R));                                         \
  AddMirror<T>(rows, 4, 3, PEL_NAMED(peliMirror_##t##_AC4R));                                        \
  AddMirrorInPlace<T>(rows, 1, 1, PEL_NAMED(peliMirror_##t##_C1IR));                                 \
  AddMirrorInPlace<T>(rows, 3, 3, PEL_NAMED(peliMirror_##t##_C3IR));                                 \
  AddMirrorInPlace<T>(rows, 4, 4, PEL_NAMED(peliMirror_##t##_C4IR));                                 \
  AddMirrorInPlace<T>(rows, 4, 3, PEL_NAMED(peliMirror_##t##_AC4IR));                                \
  AddTranspose<T>(rows, 1, PEL_NAMED(peliTranspose_##t##_C1R));                                      \
  AddTranspose<T>(rows, 3, PEL_NAMED(peliTranspose_##t##_C3R));                                      \
  AddTranspose<T>(rows, 4, PEL_NAMED(peliTranspose_##t##_C4R));                                      \
  AddTransposeInPlace<T>(rows, 1, PEL_NAMED(peliTranspose_##t##_C1IR));                              \
  AddTransposeInPlace<T>(rows, 3, PEL_NAMED(peliTranspose_##t##_C3IR));                              \
  AddTransposeInPlace<T>(rows, 4, PEL_NAMED(peliTranspose_##t##_C4IR));                              \
  for (bool bad : {false, true}) {                                                                   \
    AddSwap<T>(rows, 3, 3, bad ? kBad3 : kOrders3, bad, PEL_NAMED(peliSwapChannels_##t##_C3R));      \
    AddSwap<T>(rows, 4, 4, bad ? kBad4 : kOrders4, bad, PEL_NAMED(peliSwapChannels_##t##_C4R));      \
    AddSwap<T>(rows, 4, 4, bad ? kBad3 : kOrders3, bad, PEL_NAMED(peliSwapChannels_##t##_AC4R));     \
    AddSwap<T>(rows, 4, 3, bad ? std::vector<std::vector<int>>{{4, 0, 1}} : kOrders4, bad,            \
               PEL_NAMED(peliSwapChannels_##t##_C4C3R));                                             \
    AddSwap<T>(rows, 3, 4,                                                                           \
               bad ? std::vector<std::vector<int>>{{0, 1, -3, 3}}                                    \
                   : std::vector<std::vector<int>>{{2, 1, 0, 3}, {2, 1, 0, 4}, {7, 0, 1, 2}, {3, 3, 2, 2}}, \
               bad, PEL_NAMED(peliSwapChannels_##t##_C3C4R));                                        \
  }

std::vector<Row> MirrorRows() {
  std::vector<Row> rows;
  PEL_MIRROR_TYPE_ROWS(8u, Pel8u)
  PEL_MIRROR_TYPE_ROWS(16s, Pel16s)
  PEL_MIRROR_TYPE_ROWS(16u, Pel16u)
  PEL_MIRROR_TYPE_ROWS(32s, Pel32s)
  PEL_MIRROR_TYPE_ROWS(32f, Pel32f)
  AddTranspose<Pel32fc>(rows, 1, PEL_NAMED(peliTranspose_32fc_C1R));
  for (bool bad : {false, true}) {
    AddSwapInPlace(rows, 3, bad ? kBad3 : kOrders3, bad, PEL_NAMED(peliSwapChannels_8u_C3IR));
    AddSwapInPlace(rows, 4, bad ? kBad4 : kOrders4, bad, PEL_NAMED(peliSwapChannels_8u_C4IR));
  }
  return rows;
}

}  // namespace

PEL_ROWS(Mirror, MirrorRows)
