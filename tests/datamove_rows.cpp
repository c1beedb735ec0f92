// The copy and set family as rows: one row a member (and a channel), each
// with its model. The runner does the rest (support/rows.h).
#include <random>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

template <class T>
using CopyFn = PelStatus (*)(const T*, int, T*, int, PeliSize);
template <class T>
using CopyFnL = PelStatus (*)(const T*, PelIntL, T*, PelIntL, PeliSizeL);
template <class T>
using CopyMaskFn = PelStatus (*)(const T*, int, T*, int, const Pel8u*, int, PeliSize);
template <class T>
using SplitFn = PelStatus (*)(const T*, int, T* const*, int, PeliSize);
template <class T>
using MergeFn = PelStatus (*)(const T* const*, int, T*, int, PeliSize);
template <class T>
using SetOneFn = PelStatus (*)(T, T*, int, PeliSize);
template <class T>
using SetManyFn = PelStatus (*)(const T*, T*, int, PeliSize);
template <class T>
using SetOneMaskFn = PelStatus (*)(T, T*, int, const Pel8u*, int, PeliSize);
template <class T>
using SetManyMaskFn = PelStatus (*)(const T*, T*, int, const Pel8u*, int, PeliSize);

// Masks in runs of 16-pixel blocks that are all zero, all set or mixed, so
// that every vector width meets every kind of block; set bytes are 1, 0x80,
// 0xFF or anything else nonzero.
Arg Mask() {
  Arg a = In<Pel8u>(1);
  a.fill = [](AnyView& v, std::mt19937& rng) {
    const Pel8u fixed[] = {1, 0x80, 0xFF};
    int kind = 0;
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x) {
        if (x % 16 == 0 && rng() % 100 < 20) kind = static_cast<int>(rng() % 3);
        const bool on = kind == 1 || (kind == 2 && rng() % 2 == 0);
        const uint32_t r = rng() % 4;
        v.at<Pel8u>(x, y) = !on ? 0 : r < 3 ? fixed[r] : static_cast<Pel8u>(1 + rng() % 255);
      }
  };
  return a;
}

// dst(x, y, c) = src(x, y, c) for the first `written` channels of each pixel.
template <class T>
PelStatus CopyModel(Model& m, int src, int dst, int written, int mask = -1) {
  auto s = m.in<T>(src);
  auto d = m.out<T>(dst);
  ForEachPixel(m.roi, [&](int x, int y) {
    if (mask >= 0 && m.in<Pel8u>(mask)(x, y) == 0) return;
    for (int c = 0; c < written; ++c) d(x, y, c) = s(x, y, c);
  });
  return pelStatusOk;
}

template <class T>
void AddCopy(std::vector<Row>& rows, int C, int written, const char* name, CopyFn<T> fn) {
  rows.push_back({name, "", {In<T>(C), Out<T>(C)},
                  [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi); },
                  [written](Model& m) { return CopyModel<T>(m, 0, 1, written); }});
}

template <class T>
void AddCopyL(std::vector<Row>& rows, int C, int written, const char* name, CopyFnL<T> fn) {
  rows.push_back({name, "", {In<T>(C), Out<T>(C)},
                  [fn](Call& c) { return fn(c.p<T>(0), c.stepL(0), c.p<T>(1), c.stepL(1), c.roiL()); },
                  [written](Model& m) { return CopyModel<T>(m, 0, 1, written); }});
}

template <class T>
void AddCopyMasked(std::vector<Row>& rows, int C, int written, const char* name, CopyMaskFn<T> fn) {
  rows.push_back({name, "", {In<T>(C), Out<T>(C), Mask()},
                  [fn](Call& c) {
                    return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.p<Pel8u>(2), c.step(2), c.roi);
                  },
                  [written](Model& m) { return CopyModel<T>(m, 0, 1, written, 2); }});
}

// Channel k of C-channel pixels on the side(s) `srcC`/`dstC` says: the
// pointer addresses that channel; a one-channel side is addressed whole.
// Extraction and insertion (one side with one channel) end at the chosen
// channel of the last pixel: the lanes after it need not exist.
template <class T>
void AddChannel(std::vector<Row>& rows, int srcC, int dstC, const char* name, CopyFn<T> fn) {
  const int C = srcC > dstC ? srcC : dstC;
  for (int k = 0; k < C; ++k) {
    const int sk = srcC == 1 ? 0 : k, dk = dstC == 1 ? 0 : k;
    Arg src = In<T>(srcC), dst = Out<T>(dstC);
    if (srcC != dstC) {
      src.unusedTail = srcC - 1 - sk;
      dst.unusedTail = dstC - 1 - dk;
    }
    rows.push_back({name, "channel" + std::to_string(k), {src, dst},
                    [fn, sk, dk](Call& c) { return fn(c.p<T>(0, sk), c.step(0), c.p<T>(1, dk), c.step(1), c.roi); },
                    [sk, dk](Model& m) {
                      auto s = m.in<T>(0);
                      auto d = m.out<T>(1);
                      ForEachPixel(m.roi, [&](int x, int y) { d(x, y, dk) = s(x, y, sk); });
                      return pelStatusOk;
                    }});
  }
}

// Layout changes: destination channel c takes source channel from[c], or
// keeps its value where from[c] < 0.
template <class T>
void AddReorder(std::vector<Row>& rows, int srcC, std::vector<int> from, const char* name, CopyFn<T> fn) {
  const int dstC = static_cast<int>(from.size());
  rows.push_back({name, "", {In<T>(srcC), Out<T>(dstC)},
                  [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi); },
                  [from](Model& m) {
                    auto s = m.in<T>(0);
                    auto d = m.out<T>(1);
                    ForEachPixel(m.roi, [&](int x, int y) {
                      for (size_t c = 0; c < from.size(); ++c)
                        if (from[c] >= 0) d(x, y, static_cast<int>(c)) = s(x, y, from[c]);
                    });
                    return pelStatusOk;
                  }});
}

// Planar sides: arguments 1..C (split) or 0..C-1 (merge) are the planes,
// which share one step.
template <class T>
std::vector<Arg> PlanarArgs(int C, bool split) {
  std::vector<Arg> args;
  if (split) args.push_back(In<T>(C));
  for (int c = 0; c < C; ++c) {
    Arg plane = split ? Out<T>(1) : In<T>(1);
    plane.stepGroup = 0;
    args.push_back(plane);
  }
  if (!split) args.push_back(Out<T>(C));
  return args;
}

template <class T>
void AddSplit(std::vector<Row>& rows, int C, const char* name, SplitFn<T> fn) {
  rows.push_back({name, "", PlanarArgs<T>(C, true),
                  [fn, C](Call& c) {
                    T* const* planes = C == 3 ? c.planes<T>({1, 2, 3}) : c.planes<T>({1, 2, 3, 4});
                    return fn(c.p<T>(0), c.step(0), planes, c.step(1), c.roi);
                  },
                  [C](Model& m) {
                    for (int k = 0; k < C; ++k) {
                      auto s = m.in<T>(0);
                      auto d = m.out<T>(1 + k);
                      ForEachPixel(m.roi, [&](int x, int y) { d(x, y) = s(x, y, k); });
                    }
                    return pelStatusOk;
                  }});
}

template <class T>
void AddMerge(std::vector<Row>& rows, int C, const char* name, MergeFn<T> fn) {
  rows.push_back({name, "", PlanarArgs<T>(C, false),
                  [fn, C](Call& c) {
                    T* const* planes = C == 3 ? c.planes<T>({0, 1, 2}) : c.planes<T>({0, 1, 2, 3});
                    return fn(planes, c.step(0), c.p<T>(C), c.step(C), c.roi);
                  },
                  [C](Model& m) {
                    auto d = m.out<T>(C);
                    for (int k = 0; k < C; ++k) {
                      auto s = m.in<T>(k);
                      ForEachPixel(m.roi, [&](int x, int y) { d(x, y, k) = s(x, y); });
                    }
                    return pelStatusOk;
                  }});
}

// Fills: argument 0 holds the value(s), argument 1 is the image, argument 2
// the mask if any; the first `written` channels take value[c].
template <class T>
PelStatus SetModel(Model& m, int written, int firstChannel = 0, int mask = -1) {
  auto v = m.in<T>(0);
  auto d = m.out<T>(1);
  ForEachPixel(m.roi, [&](int x, int y) {
    if (mask >= 0 && m.in<Pel8u>(mask)(x, y) == 0) return;
    for (int c = 0; c < written; ++c) d(x, y, firstChannel + c) = v[written == 1 ? 0 : c];
  });
  return pelStatusOk;
}

template <class T>
void AddSetOne(std::vector<Row>& rows, const char* name, SetOneFn<T> fn) {
  rows.push_back({name, "", {Value<T>(), Out<T>(1)},
                  [fn](Call& c) { return fn(c.v<T>(0), c.p<T>(1), c.step(1), c.roi); },
                  [](Model& m) { return SetModel<T>(m, 1); }});
}

template <class T>
void AddSetMany(std::vector<Row>& rows, int C, int written, const char* name, SetManyFn<T> fn) {
  rows.push_back({name, "", {Consts<T>(written), Out<T>(C)},
                  [fn](Call& c) { return fn(c.p<T>(0), c.p<T>(1), c.step(1), c.roi); },
                  [written](Model& m) { return SetModel<T>(m, written); }});
}

template <class T>
void AddSetOneMasked(std::vector<Row>& rows, const char* name, SetOneMaskFn<T> fn) {
  rows.push_back({name, "", {Value<T>(), Out<T>(1), Mask()},
                  [fn](Call& c) { return fn(c.v<T>(0), c.p<T>(1), c.step(1), c.p<Pel8u>(2), c.step(2), c.roi); },
                  [](Model& m) { return SetModel<T>(m, 1, 0, 2); }});
}

template <class T>
void AddSetManyMasked(std::vector<Row>& rows, int C, int written, const char* name, SetManyMaskFn<T> fn) {
  rows.push_back({name, "", {Consts<T>(written), Out<T>(C), Mask()},
                  [fn](Call& c) { return fn(c.p<T>(0), c.p<T>(1), c.step(1), c.p<Pel8u>(2), c.step(2), c.roi); },
                  [written](Model& m) { return SetModel<T>(m, written, 0, 2); }});
}

template <class T>
void AddSetChannel(std::vector<Row>& rows, int C, const char* name, SetOneFn<T> fn) {
  for (int k = 0; k < C; ++k) {
    rows.push_back({name, "channel" + std::to_string(k), {Value<T>(), Out<T>(C)},
                    [fn, k](Call& c) { return fn(c.v<T>(0), c.p<T>(1, k), c.step(1), c.roi); },
                    [k](Model& m) { return SetModel<T>(m, 1, k); }});
  }
}

#define PEL_DATAMOVE_TYPE_ROWS(t)                                                   \
  AddCopy(rows, 1, 1, PEL_NAMED(peliCopy_##t##_C1R));                                \
  AddCopy(rows, 3, 3, PEL_NAMED(peliCopy_##t##_C3R));                                \
  AddCopy(rows, 4, 4, PEL_NAMED(peliCopy_##t##_C4R));                                \
  AddCopy(rows, 4, 3, PEL_NAMED(peliCopy_##t##_AC4R));                               \
  AddCopyL(rows, 1, 1, PEL_NAMED(peliCopy_##t##_C1R_L));                             \
  AddCopyL(rows, 3, 3, PEL_NAMED(peliCopy_##t##_C3R_L));                             \
  AddCopyL(rows, 4, 4, PEL_NAMED(peliCopy_##t##_C4R_L));                             \
  AddCopyL(rows, 4, 3, PEL_NAMED(peliCopy_##t##_AC4R_L));                            \
  AddCopyMasked(rows, 1, 1, PEL_NAMED(peliCopy_##t##_C1MR));                         \
  AddCopyMasked(rows, 3, 3, PEL_NAMED(peliCopy_##t##_C3MR));                         \
  AddCopyMasked(rows, 4, 4, PEL_NAMED(peliCopy_##t##_C4MR));                         \
  AddCopyMasked(rows, 4, 3, PEL_NAMED(peliCopy_##t##_AC4MR));                        \
  AddChannel(rows, 3, 3, PEL_NAMED(peliCopy_##t##_C3CR));                            \
  AddChannel(rows, 4, 4, PEL_NAMED(peliCopy_##t##_C4CR));                            \
  AddChannel(rows, 3, 1, PEL_NAMED(peliCopy_##t##_C3C1R));                           \
  AddChannel(rows, 4, 1, PEL_NAMED(peliCopy_##t##_C4C1R));                           \
  AddChannel(rows, 1, 3, PEL_NAMED(peliCopy_##t##_C1C3R));                           \
  AddChannel(rows, 1, 4, PEL_NAMED(peliCopy_##t##_C1C4R));                           \
  AddSplit(rows, 3, PEL_NAMED(peliCopy_##t##_C3P3R));                                \
  AddSplit(rows, 4, PEL_NAMED(peliCopy_##t##_C4P4R));                                \
  AddMerge(rows, 3, PEL_NAMED(peliCopy_##t##_P3C3R));                                \
  AddMerge(rows, 4, PEL_NAMED(peliCopy_##t##_P4C4R));                                \
  AddReorder(rows, 4, {0, 1, 2}, PEL_NAMED(peliCopy_##t##_AC4C3R));                  \
  AddReorder(rows, 3, {0, 1, 2, -1}, PEL_NAMED(peliCopy_##t##_C3AC4R));              \
  AddSetOne(rows, PEL_NAMED(peliSet_##t##_C1R));                                     \
  AddSetMany(rows, 3, 3, PEL_NAMED(peliSet_##t##_C3R));                              \
  AddSetMany(rows, 4, 4, PEL_NAMED(peliSet_##t##_C4R));                              \
  AddSetMany(rows, 4, 3, PEL_NAMED(peliSet_##t##_AC4R));                             \
  AddSetOneMasked(rows, PEL_NAMED(peliSet_##t##_C1MR));                              \
  AddSetManyMasked(rows, 3, 3, PEL_NAMED(peliSet_##t##_C3MR));                       \
  AddSetManyMasked(rows, 4, 4, PEL_NAMED(peliSet_##t##_C4MR));                       \
  AddSetManyMasked(rows, 4, 3, PEL_NAMED(peliSet_##t##_AC4MR));                      \
  AddSetChannel(rows, 3, PEL_NAMED(peliSet_##t##_C3CR));                             \
  AddSetChannel(rows, 4, PEL_NAMED(peliSet_##t##_C4CR));

std::vector<Row> DataMoveRows() {
  std::vector<Row> rows;
  PEL_DATAMOVE_TYPE_ROWS(8u)
  PEL_DATAMOVE_TYPE_ROWS(16s)
  PEL_DATAMOVE_TYPE_ROWS(16u)
  PEL_DATAMOVE_TYPE_ROWS(32s)
  PEL_DATAMOVE_TYPE_ROWS(32f)
  AddReorder<Pel8u>(rows, 1, {0, 0, 0}, PEL_NAMED(peliDup_8u_C1C3R));
  AddReorder<Pel8u>(rows, 1, {0, 0, 0, 0}, PEL_NAMED(peliDup_8u_C1C4R));
  for (int flags : {0, 1}) {
    rows.push_back({"peliCopyManaged_8u_C1R", "flags" + std::to_string(flags), {In<Pel8u>(), Out<Pel8u>()},
                    [flags](Call& c) {
                      return peliCopyManaged_8u_C1R(c.p<Pel8u>(0), c.step(0), c.p<Pel8u>(1), c.step(1), c.roi, flags);
                    },
                    [](Model& m) { return CopyModel<Pel8u>(m, 0, 1, 1); }});
  }
  return rows;
}

}  // namespace

PEL_ROWS(DataMove, DataMoveRows)
