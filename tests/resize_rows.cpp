// Resize as rows: every export against a model that builds the coordinate
// tables from their definitions and applies the arithmetic per pixel, on the
// full image (tiles are cut from it), without lines, plans or tiles of its own.
#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <numeric>
#include <vector>

#include "resize_model.h"

namespace {

using namespace peltest;
using namespace resizemodel;

// ---- Processing --------------------------------------------------------------

// A processing call, whichever method and width: (src, srcStep, dst, dstStep,
// offset, tile, border, spec, buffer).
template <class T>
using Process = std::function<PelStatus(const T*, int, T*, int, PeliPoint, PeliSize, int, const PeliResizeSpec*,
                                        Pel8u*)>;

template <class T>
Process<T> Adapt(PelStatus (*fn)(const T*, int, T*, int, PeliPoint, PeliSize, const PeliResizeSpec*, Pel8u*)) {
  return [fn](const T* s, int ss, T* d, int ds, PeliPoint o, PeliSize t, int, const PeliResizeSpec* sp, Pel8u* b) {
    return fn(s, ss, d, ds, o, t, sp, b);
  };
}
template <class T>
Process<T> Adapt(PelStatus (*fn)(const T*, PelIntL, T*, PelIntL, PeliPointL, PeliSizeL, const PeliResizeSpec*,
                                 Pel8u*)) {
  return [fn](const T* s, int ss, T* d, int ds, PeliPoint o, PeliSize t, int, const PeliResizeSpec* sp, Pel8u* b) {
    return fn(s, ss, d, ds, PeliPointL{o.x, o.y}, PeliSizeL{t.width, t.height}, sp, b);
  };
}
template <class T>
Process<T> Adapt(PelStatus (*fn)(const T*, int, T*, int, PeliPoint, PeliSize, PeliBorderType, const T*,
                                 const PeliResizeSpec*, Pel8u*)) {
  return [fn](const T* s, int ss, T* d, int ds, PeliPoint o, PeliSize t, int bo, const PeliResizeSpec* sp,
              Pel8u* b) { return fn(s, ss, d, ds, o, t, bo, nullptr, sp, b); };
}
template <class T>
Process<T> Adapt(PelStatus (*fn)(const T*, PelIntL, T*, PelIntL, PeliPointL, PeliSizeL, PeliBorderType, const T*,
                                 const PeliResizeSpec*, Pel8u*)) {
  return [fn](const T* s, int ss, T* d, int ds, PeliPoint o, PeliSize t, int bo, const PeliResizeSpec* sp,
              Pel8u* b) {
    return fn(s, ss, d, ds, PeliPointL{o.x, o.y}, PeliSizeL{t.width, t.height}, bo, nullptr, sp, b);
  };
}

// What a bad-parameter row breaks.
struct Fault {
  PelStatus expect = pelStatusOk;
  std::vector<Check> order{Check::Pointers, Check::ZeroSizes, Check::Sizes};
  int border = -1;          // >= 0: this border code
  bool otherMethod = false; // a spec of the other method
  int word = -1, value = 0; // spec header word set to value
  PeliPoint offset{INT_MIN, 0}; // this offset, unless INT_MIN
};

Scene SceneOf(Call& c, const Variant& v) { return MakeScene(v, (*c.images)[1].size()); }

template <class T>
void AddProcessing(std::vector<Row>& rows, const std::string& name, int C, Process<T> fn, bool linear, bool L,
                   const Variant& v, const Fault& f = {}) {
  Arg src = In<T>(C);
  src.size = [v](PeliSize tile) {
    const Scene s = MakeScene(v, tile);
    return PeliSize{s.src.width + 2 * v.frame, s.src.height + 2 * v.frame};
  };
  if constexpr (std::is_floating_point_v<T>) src.fill = FillRange(-1000, 1000);
  Row r{name, v.name, {src, Out<T>(C)},
        [=](Call& c) {
          const Scene s = SceneOf(c, v);
          Built b(s, linear != f.otherMethod, C, TypeCode<T>(), L);
          const PeliPoint so = b.SrcOffset(s.off);
          if (f.word >= 0) b.Words()[f.word] = f.value;
          T* p = c.p<T>(0);
          if (p) p = AddBytesTo(p, (v.frame + so.y) * c.step(0)) + (v.frame + so.x) * C;
          PeliPoint off = s.off;
          if (f.offset.x != INT_MIN) off = f.offset;
          return fn(p, c.step(0), c.p<T>(1), c.step(1), off, c.roi, f.border >= 0 ? f.border : v.border,
                    c.own(0, b.Spec()), c.own(1, b.Buffer()));
        },
        [=](Model& m) {
          const Scene s = MakeScene(v, m.roi);
          auto in = m.in<T>(0);
          auto out = m.out<T>(1);
          const Tables t(s, linear);
          const int w = std::min(m.roi.width, s.dst.width - s.off.x), h = std::min(m.roi.height, s.dst.height - s.off.y);
          ForEachPixel({w, h}, [&](int x, int y) {
            for (int c = 0; c < C; ++c) out(x, y, c) = ModelPixel<T>(in, t, s, v, s.off.x + x, s.off.y + y, c);
          });
          return m.roi.width > s.dst.width || m.roi.height > s.dst.height ? pelStatusAdjusted : pelStatusOk;
        },
        f.order, f.expect, ResizeShapes(C)};
  rows.push_back(r);
}

// Source sizes: about dst x rx (rounded, at least 2), the full destination
// the tile plus (ex, ey), the tile at (ox, oy); borders with a frame of
// memory pixels around the source where a side is read from memory.
const Variant kUp{"up", 0, 0, 0, 0, 0.67, 0.45, pelBorderMirror, 0};
const Variant kDown{"down", 9, 6, 5, 3, 2.6, 1.7, pelBorderReplicate, 0};
const Variant kMemory{"memory", 7, 5, 4, 2, 0.77, 1.37, pelBorderInMem, 1};
const Variant kSides{"sides", 3, 4, 2, 3, 0.7, 0.5, 4 | pelBorderInMemTop | pelBorderInMemLeft, 1};
const Variant kLongRows{"tile", 11, 2, 6, 1, 0.8, 1.3, pelBorderReplicate | pelBorderInMemRight | pelBorderInMemBottom, 1};
const Variant kHalve{"halve", 4, 2, 3, 1, 2.0, 2.0, pelBorderReplicate, 0};
const Variant kLarger{"larger", -3, -2, 0, 0, 1.5, 0.7, pelBorderReplicate, 0};

template <class T>
void AddLinear(std::vector<Row>& rows, const std::string& name, int C, Process<T> fn, bool L) {
  for (const Variant& v : L ? std::vector<Variant>{kLongRows} : std::vector<Variant>{kUp, kDown, kMemory, kSides, kHalve})
    AddProcessing<T>(rows, name, C, fn, true, L, v);
}

template <class T>
void AddNearest(std::vector<Row>& rows, const std::string& name, int C, Process<T> fn, bool L) {
  for (const Variant& v : L ? std::vector<Variant>{kLongRows} : std::vector<Variant>{kUp, kDown})
    AddProcessing<T>(rows, name, C, fn, false, L, Variant{v.name, v.ex, v.ey, v.ox, v.oy, v.rx, v.ry, 0, 0});
}

// The statuses of the processing calls, on one export of each method.
void AddProcessingFaults(std::vector<Row>& rows) {
  const auto lin = Adapt<Pel8u>(peliResizeLinear_8u_C1R);
  const auto near = Adapt<Pel8u>(peliResizeNearest_8u_C1R);
  const std::vector<Check> paramFirst{Check::Param, Check::Pointers, Check::ZeroSizes, Check::Sizes};
  const std::vector<Check> paramLast{Check::Pointers, Check::ZeroSizes, Check::Sizes, Check::Param};
  const std::vector<Check> magic{Check::Pointers, Check::ZeroSizes, Check::Param, Check::Sizes};
  auto add = [&](const char* name, Process<Pel8u> fn, bool linear, const char* variant, Fault f) {
    AddProcessing<Pel8u>(rows, name, 1, fn, linear, false, Variant{variant, 4, 3, 2, 1, 1.3, 0.8, 1, 0}, f);
  };
  for (int border : std::initializer_list<int>{pelBorderConstant, pelBorderConstant | pelBorderInMemTop, 0x101, 0x104, 0, 2, 5, 0x1F0})
    add("peliResizeLinear_8u_C1R", lin, true, ("border" + std::to_string(border)).c_str(),
        {pelStatusBadBorderType, paramFirst, border});
  for (bool linear : {true, false}) {
    const char* name = linear ? "peliResizeLinear_8u_C1R" : "peliResizeNearest_8u_C1R";
    const auto fn = linear ? lin : near;
    add(name, fn, linear, "otherMethod", {pelStatusContextMismatch, paramLast, -1, true});
    add(name, fn, linear, "magic", {pelStatusContextMismatch, magic, -1, false, 0, 0x4B617388});
    add(name, fn, linear, "antialiasing", {pelStatusNotSupportedMode, paramLast, -1, false, 5, 1});
    add(name, fn, linear, "offsetRight", {pelStatusOutOfRange, paramLast, -1, false, -1, 0, {10000, 0}});
    add(name, fn, linear, "offsetUp", {pelStatusOutOfRange, paramLast, -1, false, -1, 0, {0, -1}});
    AddProcessing<Pel8u>(rows, name, 3, linear ? Adapt<Pel8u>(peliResizeLinear_8u_C3R)
                                                : Adapt<Pel8u>(peliResizeNearest_8u_C3R),
                         linear, false, kLarger);
  }
}

// ---- Set-up and queries ------------------------------------------------------------

// GetSize: the sizes of every code, from the destination (the ROI) and a
// source derived from it.
template <class R>
void AddGetSize(std::vector<Row>& rows, const std::string& name, SizeQuery<R> fn, bool L) {
  struct V {
    const char* name;
    int code;
    uint32_t aa;
    PelStatus expect = pelStatusOk;
    PeliSize (*src)(PeliSize) = [](PeliSize d) { return PeliSize{d.width * 3 / 2 + 3, d.height + 4}; };
    int type = 1;
  };
  std::vector<V> vs{{"nearest", 1, 0}, {"linear", 2, 0}, {"code6", 6, 0},  {"code8", 8, 0},  {"code16", 16, 0},
                    {"nearestAA", 1, 1}, {"linearAA", 2, 1}, {"code8AA", 8, 1}, {"code16AA", 16, 1}};
  if (name == "peliResizeGetSize_8u" || L) {
    vs.push_back({"code3", 3, 0, pelStatusInterpolationError});
    vs.push_back({"code0", 0, 0, pelStatusNotSupportedMode});
    vs.push_back({"narrow", 2, 0, pelStatusBadSize, [](PeliSize d) { return PeliSize{1, d.height + 1}; }});
    vs.push_back({"flat", 6, 0, pelStatusBadSize, [](PeliSize d) { return PeliSize{d.width + 4, 3}; }});
    vs.push_back({"shrink8", 8, 0, pelStatusBadSize, [](PeliSize d) { return PeliSize{d.width, d.height / 2}; }});
    if (!L || sizeof(PelIntL) == 4)
      vs.push_back({"overflow", 2, 0, pelStatusSizeOverflow, [](PeliSize) { return PeliSize{-7, 0}; }});
    if (L) vs.push_back({"type", 2, 0, pelStatusDataTypeError, V{}.src, 2});
  }
  for (const V& v : vs) {
    Row r{name, v.name, {Results<R>(1), Results<R>(1)},
          [fn, v](Call& c) {
            PeliSize src = c.roi.width < 1 || c.roi.height < 1 ? c.roi : v.src(c.roi), dst = c.roi;
            if (src.width == -7) src = {1 << 28, 5}, dst.width = dst.width > 0 ? (1 << 28) + dst.width : dst.width;
            return fn(src, dst, v.type, v.code, v.aa, c.p<R>(0), c.p<R>(1));
          },
          [v](Model& m) {
            const Sizes s = SpecSizes(v.code, v.aa != 0, v.src(m.roi), m.roi);
            m.out<R>(0)[0] = R(s.spec);
            m.out<R>(1)[0] = R(s.init);
            return v.aa && (v.code == 1 || v.code == 8) ? pelStatusAntialiasingIgnoredWarning : pelStatusOk;
          },
          {Check::Pointers, Check::ZeroSizes, Check::Sizes, Check::Param}, v.expect, QueryShapes()};
    if (v.expect == pelStatusOk) r.order.pop_back();
    if (v.code == 8 && v.expect != pelStatusOk) r.shapes.erase(r.shapes.begin());  // nothing below 1x1
    rows.push_back(r);
  }
}

// Init: the header words and tables it writes, copied out of the spec.
void AddInit(std::vector<Row>& rows, const std::string& name, InitCall init, bool linear, int type, bool typed) {
  auto srcOf = [](PeliSize d) { return d.width < 1 || d.height < 1 ? d : PeliSize{d.width * 5 / 3 + 2, d.height / 2 + 2}; };
  Arg contents = Out<Pel8u>(1);
  contents.size = [linear](PeliSize d) { return PeliSize{SpecContentBytes(linear, d), 1}; };
  Row r{name, "", {contents},
        [=](Call& c) {
          std::vector<uint8_t> block(SpecContentBytes(linear, PeliSize{std::max(c.roi.width, 1), std::max(c.roi.height, 1)}) + 64 + 13);
          PeliResizeSpec* spec = reinterpret_cast<PeliResizeSpec*>(block.data() + 13);
          const PelStatus st = init(srcOf(c.roi), c.roi, type, c.own(0, spec));
          if (st == pelStatusOk) {
            const auto* words = block.data() + 13 + ((0 - reinterpret_cast<uintptr_t>(block.data() + 13)) & 63);
            std::memcpy(c.unswept<uint8_t>(0), words, size_t(SpecContentBytes(linear, c.roi)));
          }
          return st;
        },
        [=](Model& m) {
          const std::vector<uint8_t> want = SpecContents(linear, type, srcOf(m.roi), m.roi);
          for (size_t i = 0; i < want.size(); ++i) m.out<Pel8u>(0)(int(i), 0) = want[i];
          return pelStatusOk;
        },
        {Check::Pointers, Check::ZeroSizes, Check::Sizes}, pelStatusOk, QueryShapes()};
  rows.push_back(r);
  // A source one pixel wide (linear), a data type outside the set (_L).
  if (!linear && !typed) return;
  r.variant = typed ? "type" : "narrow";
  r.call = [=](Call& c) {
    std::vector<uint8_t> block(1 << 16);
    const PeliSize src = typed ? srcOf(c.roi) : PeliSize{1, 5};
    return init(src, c.roi, typed ? 3 : type, c.own(0, reinterpret_cast<PeliResizeSpec*>(block.data())));
  };
  r.expect = typed ? pelStatusDataTypeError : pelStatusBadSize;
  r.order.push_back(Check::Param);
  rows.push_back(r);
}

// Queries on a spec built for a fixed scene; the ROI is the tile where a
// query takes one.
template <class P, class S>
void AddQueries(std::vector<Row>& rows, const char* type, const QueryCalls<P, S>& q) {
  const std::string bufferName = std::string("peliResizeGetBufferSize_") + type;
  const std::string borderName = std::string("peliResizeGetBorderSize_") + type;
  const std::string offsetName = std::string("peliResizeGetSrcOffset_") + type;
  const std::string roiName = std::string("peliResizeGetSrcRoi_") + type;
  const bool faults = std::string(type) == "8u" || std::string(type) == "L";
  const std::vector<Check> magicOrder{Check::Pointers, Check::ZeroSizes, Check::Param, Check::Sizes};
  for (bool linear : {true, false}) {
    const char* method = linear ? "linear" : "nearest";
    for (uint32_t C : {1u, 3u, 4u}) {
      rows.push_back({bufferName, method + std::to_string(C), {Results<S>(1)},
                      [=](Call& c) {
                        Built b(FixedScene(), linear);
                        return q.buffer(c.own(0, b.Spec()), c.roi, C, c.p<S>(0));
                      },
                      [=](Model& m) {
                        m.out<S>(0)[0] = S(BufferBytes(linear, m.roi.width, C));
                        return pelStatusOk;
                      },
                      {Check::Pointers, Check::ZeroSizes, Check::Sizes}, pelStatusOk, QueryShapes()});
    }
    rows.push_back({borderName, method, {Results<int>(4)},
                    [=](Call& c) {
                      Built b(FixedScene(), linear);
                      return q.border(c.own(0, b.Spec()), c.p<PeliBorderSize>(0));
                    },
                    [=](Model& m) {
                      for (int k = 0; k < 4; ++k) m.out<int>(0)[k] = linear;
                      return pelStatusOk;
                    },
                    {Check::Pointers}, pelStatusOk, QueryShapes()});
    for (PeliPoint o : {PeliPoint{0, 0}, PeliPoint{7, 5}, PeliPoint{49, 30}, PeliPoint{23, 17}}) {
      const std::string at = method + std::to_string(o.x) + "_" + std::to_string(o.y);
      rows.push_back({offsetName, at, {Results<P>(2)},
                      [=](Call& c) {
                        Built b(FixedScene(), linear);
                        return q.offset(c.own(0, b.Spec()), o, c.p<P>(0));
                      },
                      [=](Model& m) {
                        const Tables t(FixedScene(), linear);
                        m.out<P>(0)[0] = P(t.x.SrcOffset(o.x));
                        m.out<P>(0)[1] = P(t.y.SrcOffset(o.y));
                        return pelStatusOk;
                      },
                      {Check::Pointers}, pelStatusOk, QueryShapes()});
      rows.push_back({roiName, at, {Results<P>(2), Results<S>(2)},
                      [=](Call& c) {
                        Built b(FixedScene(), linear);
                        return q.roi(c.own(0, b.Spec()), o, c.roi, c.p<P>(0), c.p<S>(1));
                      },
                      [=](Model& m) {
                        const Tables t(FixedScene(), linear);
                        const Scene s = FixedScene();
                        int64_t r[4];
                        SrcRoi(t.x, o.x, m.roi.width, s.src.width, &r[0], &r[2]);
                        SrcRoi(t.y, o.y, m.roi.height, s.src.height, &r[1], &r[3]);
                        for (int k = 0; k < 2; ++k) m.out<P>(0)[k] = P(r[k]), m.out<S>(1)[k] = S(r[2 + k]);
                        return m.roi.width > s.dst.width || m.roi.height > s.dst.height ? pelStatusAdjusted
                                                                                         : pelStatusOk;
                      },
                      {Check::Pointers, Check::Sizes}, pelStatusOk, QueryShapes()});
    }
    if (!faults) continue;
    // Statuses: a broken spec, a bad channel count, offsets outside.
    auto broken = [](bool lin) {
      auto b = std::make_shared<Built>(FixedScene(), lin);
      b->Words()[0] = 27;
      return b;
    };
    rows.push_back({bufferName, std::string("magic") + method, {Results<S>(1)},
                    [=](Call& c) { auto b = broken(linear); return q.buffer(c.own(0, b->Spec()), c.roi, 3, c.p<S>(0)); },
                    nullptr, magicOrder, pelStatusContextMismatch, QueryShapes()});
    rows.push_back({bufferName, std::string("channels") + method, {Results<S>(1)},
                    [=](Call& c) { Built b(FixedScene(), linear); return q.buffer(c.own(0, b.Spec()), c.roi, 2, c.p<S>(0)); },
                    nullptr, magicOrder, pelStatusChannelsNotSupported, QueryShapes()});
    rows.push_back({borderName, std::string("magic") + method, {Results<int>(4)},
                    [=](Call& c) { auto b = broken(linear); return q.border(c.own(0, b->Spec()), c.p<PeliBorderSize>(0)); },
                    nullptr, {Check::Pointers, Check::Param}, pelStatusContextMismatch, QueryShapes()});
    for (PeliPoint o : {PeliPoint{50, 0}, PeliPoint{0, 31}, PeliPoint{-1, 2}, PeliPoint{3, -4}}) {
      const std::string at = std::string("outside") + method + std::to_string(o.x) + "_" + std::to_string(o.y);
      rows.push_back({offsetName, at, {Results<P>(2)},
                      [=](Call& c) { Built b(FixedScene(), linear); return q.offset(c.own(0, b.Spec()), o, c.p<P>(0)); },
                      nullptr, {Check::Pointers, Check::Param}, pelStatusOutOfRange, QueryShapes()});
      rows.push_back({roiName, at, {Results<P>(2), Results<S>(2)},
                      [=](Call& c) {
                        Built b(FixedScene(), linear);
                        return q.roi(c.own(0, b.Spec()), o, c.roi, c.p<P>(0), c.p<S>(1));
                      },
                      nullptr, {Check::Pointers, Check::Sizes, Check::Param}, pelStatusOutOfRange, QueryShapes()});
    }
    rows.push_back({roiName, std::string("magic") + method, {Results<P>(2), Results<S>(2)},
                    [=](Call& c) {
                      auto b = broken(linear);
                      return q.roi(c.own(0, b->Spec()), PeliPoint{1, 1}, c.roi, c.p<P>(0), c.p<S>(1));
                    },
                    nullptr, {Check::Pointers, Check::Sizes, Check::Param}, pelStatusContextMismatch, QueryShapes()});
  }
}

// Each export of a method and type, C1, C3, C4, plain and _L.
#define PEL_METHOD(Method, t)                                                                          \
  for (int C : {1, 3, 4}) {                                                                            \
    const std::string name = std::string("peliResize" #Method "_" #t "_C") + std::to_string(C) + "R";  \
    auto pick = [C](auto f1, auto f3, auto f4) { return C == 1 ? f1 : C == 3 ? f3 : f4; };            \
    Add##Method<Pel##t>(rows, name, C,                                                                 \
                        Adapt<Pel##t>(pick(peliResize##Method##_##t##_C1R, peliResize##Method##_##t##_C3R, \
                                           peliResize##Method##_##t##_C4R)),                          \
                        false);                                                                        \
    Add##Method<Pel##t>(rows, name + "_L", C,                                                          \
                        Adapt<Pel##t>(pick(peliResize##Method##_##t##_C1R_L,                           \
                                           peliResize##Method##_##t##_C3R_L,                           \
                                           peliResize##Method##_##t##_C4R_L)),                         \
                        true);                                                                         \
  }

std::vector<Row> ResizeRows() {
  std::vector<Row> rows;
  PEL_METHOD(Linear, 8u)
  PEL_METHOD(Linear, 16u)
  PEL_METHOD(Linear, 16s)
  PEL_METHOD(Linear, 32f)
  PEL_METHOD(Linear, 64f)
  PEL_METHOD(Nearest, 8u)
  PEL_METHOD(Nearest, 16u)
  PEL_METHOD(Nearest, 16s)
  PEL_METHOD(Nearest, 32f)
  AddProcessingFaults(rows);
  for (const auto& [name, fn] : PlainSizeQueries()) AddGetSize<int>(rows, name, fn, false);
  AddGetSize<PelIntL>(rows, "peliResizeGetSize_L", SizeQueryL(), true);
  for (const InitCase& i : InitCases()) AddInit(rows, i.name, i.init, i.linear, i.type, i.typed);
  for (const auto& [type, q] : PlainQueries()) AddQueries(rows, type, q);
  AddQueries(rows, "L", QueriesL());
  return rows;
}

}  // namespace

PEL_ROWS(Resize, ResizeRows)

// ---- The model's set-up calls ------------------------------------------------------

namespace resizemodel {

namespace {

struct TypeCalls {
  PelStatus (*getSize)(PeliSize, PeliSize, int, uint32_t, int*, int*);
  PelStatus (*nearestInit)(PeliSize, PeliSize, PeliResizeSpec*);
  PelStatus (*linearInit)(PeliSize, PeliSize, PeliResizeSpec*);
  PelStatus (*bufferSize)(const PeliResizeSpec*, PeliSize, uint32_t, int*);
  PelStatus (*border)(const PeliResizeSpec*, PeliBorderSize*);
  PelStatus (*offset)(const PeliResizeSpec*, PeliPoint, PeliPoint*);
  PelStatus (*roi)(const PeliResizeSpec*, PeliPoint, PeliSize, PeliPoint*, PeliSize*);
};

#define PEL_TYPE_CALLS(t, nearest)                                                                  \
  TypeCalls {                                                                                       \
    peliResizeGetSize_##t, nearest, peliResizeLinearInit_##t, peliResizeGetBufferSize_##t,          \
        peliResizeGetBorderSize_##t, peliResizeGetSrcOffset_##t, peliResizeGetSrcRoi_##t            \
  }

struct TypeEntry {
  const char* token;
  int type;
  TypeCalls calls;
};
const TypeEntry kTypes[] = {{"8u", 1, PEL_TYPE_CALLS(8u, peliResizeNearestInit_8u)},
                            {"16u", 5, PEL_TYPE_CALLS(16u, peliResizeNearestInit_16u)},
                            {"16s", 7, PEL_TYPE_CALLS(16s, peliResizeNearestInit_16s)},
                            {"32f", 13, PEL_TYPE_CALLS(32f, peliResizeNearestInit_32f)},
                            {"64f", 19, PEL_TYPE_CALLS(64f, nullptr)}};

const TypeCalls& CallsOf(int type) {
  for (const TypeEntry& e : kTypes)
    if (e.type == type) return e.calls;
  return kTypes[0].calls;
}

PeliSizeL Wide(PeliSize s) { return {s.width, s.height}; }

}  // namespace

Built::Built(const Scene& s, bool linear, int C, int type, bool L) : L_(L) {
  const int code = linear ? 2 : 1;
  const TypeCalls& t = CallsOf(type);
  PelStatus st[3];
  if (L || (!linear && !t.nearestInit)) {
    L_ = true;
    PelIntL specBytes = 0, initBytes = 0, bufBytes = 0;
    st[0] = peliResizeGetSize_L(Wide(s.src), Wide(s.dst), type, code, 0, &specBytes, &initBytes);
    spec_.resize(size_t(specBytes) + kShift);
    st[1] = (linear ? peliResizeLinearInit_L : peliResizeNearestInit_L)(Wide(s.src), Wide(s.dst), type, Spec());
    st[2] = peliResizeGetBufferSize_L(Spec(), Wide(s.tile), uint32_t(C), &bufBytes);
    buffer_.resize(size_t(bufBytes));
  } else {
    int specBytes = 0, initBytes = 0, bufBytes = 0;
    st[0] = t.getSize(s.src, s.dst, code, 0, &specBytes, &initBytes);
    spec_.resize(size_t(specBytes) + kShift);
    st[1] = (linear ? t.linearInit : t.nearestInit)(s.src, s.dst, Spec());
    st[2] = t.bufferSize(Spec(), s.tile, uint32_t(C), &bufBytes);
    buffer_.resize(size_t(bufBytes));
  }
  for (PelStatus x : st) EXPECT_EQ(x, pelStatusOk) << "resize set-up";
}

PeliPoint Built::SrcOffset(PeliPoint o) {
  PeliPoint p{};
  if (L_) {
    PeliPointL q{};
    EXPECT_EQ(peliResizeGetSrcOffset_L(Spec(), PeliPointL{o.x, o.y}, &q), pelStatusOk);
    return {int(q.x), int(q.y)};
  }
  EXPECT_EQ(peliResizeGetSrcOffset_8u(Spec(), o, &p), pelStatusOk);
  return p;
}

std::vector<std::pair<std::string, SizeQuery<int>>> PlainSizeQueries() {
  std::vector<std::pair<std::string, SizeQuery<int>>> out;
  for (const TypeEntry& e : kTypes) {
    auto fn = e.calls.getSize;
    out.push_back({std::string("peliResizeGetSize_") + e.token,
                   [fn](PeliSize s, PeliSize d, int, int code, uint32_t aa, int* a, int* b) {
                     return fn(s, d, code, aa, a, b);
                   }});
  }
  return out;
}

SizeQuery<PelIntL> SizeQueryL() {
  return [](PeliSize s, PeliSize d, int type, int code, uint32_t aa, PelIntL* a, PelIntL* b) {
    return peliResizeGetSize_L(Wide(s), Wide(d), type, code, aa, a, b);
  };
}

std::vector<InitCase> InitCases() {
  std::vector<InitCase> out;
  for (const TypeEntry& e : kTypes) {
    for (bool linear : {false, true}) {
      auto fn = linear ? e.calls.linearInit : e.calls.nearestInit;
      if (!fn) continue;
      out.push_back({std::string(linear ? "peliResizeLinearInit_" : "peliResizeNearestInit_") + e.token,
                     [fn](PeliSize s, PeliSize d, int, PeliResizeSpec* p) { return fn(s, d, p); }, linear, e.type,
                     false});
    }
  }
  auto wide = [](PelStatus (*fn)(PeliSizeL, PeliSizeL, PelDataType, PeliResizeSpec*)) {
    return [fn](PeliSize s, PeliSize d, int type, PeliResizeSpec* p) { return fn(Wide(s), Wide(d), type, p); };
  };
  out.push_back({"peliResizeNearestInit_L", wide(peliResizeNearestInit_L), false, 19, true});
  out.push_back({"peliResizeLinearInit_L", wide(peliResizeLinearInit_L), true, 7, true});
  out.push_back({"peliResizeLinearInit_8u_L",
                 [](PeliSize s, PeliSize d, int, PeliResizeSpec* p) { return peliResizeLinearInit_8u_L(Wide(s), Wide(d), p); },
                 true, 1, false});
  return out;
}

std::vector<std::pair<const char*, QueryCalls<int, int>>> PlainQueries() {
  std::vector<std::pair<const char*, QueryCalls<int, int>>> out;
  for (const TypeEntry& e : kTypes) {
    const TypeCalls c = e.calls;
    out.push_back({e.token,
                   {c.bufferSize, c.border,
                    [c](const PeliResizeSpec* s, PeliPoint o, int* p) { return c.offset(s, o, reinterpret_cast<PeliPoint*>(p)); },
                    [c](const PeliResizeSpec* s, PeliPoint o, PeliSize t2, int* p, int* z) {
                      return c.roi(s, o, t2, reinterpret_cast<PeliPoint*>(p), reinterpret_cast<PeliSize*>(z));
                    }}});
  }
  return out;
}

QueryCalls<int64_t, PelIntL> QueriesL() {
  return {[](const PeliResizeSpec* s, PeliSize t, uint32_t c, PelIntL* z) { return peliResizeGetBufferSize_L(s, Wide(t), c, z); },
          peliResizeGetBorderSize_L,
          [](const PeliResizeSpec* s, PeliPoint o, int64_t* p) {
            return peliResizeGetSrcOffset_L(s, PeliPointL{o.x, o.y}, reinterpret_cast<PeliPointL*>(p));
          },
          [](const PeliResizeSpec* s, PeliPoint o, PeliSize t, int64_t* p, PelIntL* z) {
            return peliResizeGetSrcRoi_L(s, PeliPointL{o.x, o.y}, Wide(t), reinterpret_cast<PeliPointL*>(p),
                                         reinterpret_cast<PeliSizeL*>(z));
          }};
}

std::vector<Layout> ResizeShapes(int C) {
  std::vector<Layout> out;
  const int sizes[][2] = {{1, 1}, {2, 1}, {1, 6}, {3, 3}, {5, 2}, {7, 4}, {15, 3}, {16, 5}, {17, 2},
                          {31, 7}, {33, 3}, {64, 2}, {65, 9}, {129, 4}, {250, 3}};
  int k = 0;
  for (const auto& s : sizes) {
    Layout l{s[0], s[1], C, (k % 3) * 8, (k % 4) * 4 + (k % 2 ? 4 : 0), k % 5 == 4};
    out.push_back(l);
    ++k;
  }
  for (int w : {1, 7, 33, 100})
    out.push_back(Layout{w, w % 3 + 2, C, 0, 0, false, w % 2 ? peltest::Fence::AtEnd : peltest::Fence::AtStart});
  return out;
}

std::vector<Layout> QueryShapes() { return {Layout{1, 1}, Layout{5, 3}, Layout{17, 9}, Layout{60, 40}}; }

}  // namespace resizemodel
