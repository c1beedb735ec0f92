// Resize as rows: every export against a model that builds the coordinate
// tables from their definitions and applies the arithmetic per pixel, on the
// full image (tiles are cut from it), without lines, plans or tiles of its own.
#include <algorithm>
#include <climits>
#include <cstring>
#include <memory>
#include <vector>

#include "resize_model.h"

namespace {

using namespace peltest;
using namespace resizemodel;

// ---- Processing --------------------------------------------------------------

// What a bad-parameter row breaks.
struct Fault {
  PelStatus expect = pelStatusOk;
  std::vector<Check> order{Check::Pointers, Check::ZeroSizes, Check::Sizes};
  int border = -1;               // >= 0: this border code
  bool otherMethod = false;      // a spec of the other method
  int word = -1, value = 0;      // spec header word set to value
  PeliPoint offset{INT_MIN, 0};  // this offset, unless INT_MIN
};

template <class T>
void AddProcessing(std::vector<Row>& rows, const std::string& name, int C, Process fn, bool linear, bool L,
                   const Variant& v, const Fault& f = {}) {
  Arg src = In<T>(C);
  src.size = [v](PeliSize tile) {
    const Scene s = MakeScene(v, tile);
    return PeliSize{s.src.width + 2 * v.frame, s.src.height + 2 * v.frame};
  };
  if constexpr (std::is_floating_point_v<T>) src.fill = FillRange(-1000, 1000);
  rows.push_back(
      {name, v.name, {src, Out<T>(C)},
       [=](Call& c) {
         const Scene s = MakeScene(v, (*c.images)[1].size());
         Built b(s, linear != f.otherMethod, C, TypeCode<T>(), L);
         const PeliPoint so = b.SrcOffset(s.off);
         if (f.word >= 0) b.Words()[f.word] = f.value;
         T* p = c.p<T>(0);
         if (p) p = AddBytesTo(p, (v.frame + so.y) * c.step(0)) + (v.frame + so.x) * C;
         return fn(p, c.step(0), c.p<T>(1), c.step(1), f.offset.x != INT_MIN ? f.offset : s.off, c.roi,
                   f.border >= 0 ? f.border : v.border, c.own(0, b.Spec()), c.own(1, b.Buffer()));
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
       f.order, f.expect, ResizeShapes(C)});
}

// Sources of about dst x (rx, ry), the full destination the tile plus (ex,
// ey), the tile at (ox, oy); a frame of memory pixels around the source where
// a side is read from memory. Each border kind meets upscaling on each side.
const Variant kUp{"up", 0, 0, 0, 0, 0.67, 0.45, pelBorderMirror, 0};
const Variant kDown{"down", 9, 6, 5, 3, 2.6, 1.7, pelBorderReplicate, 0};
const Variant kMemory{"memory", 7, 5, 4, 2, 0.77, 1.37, pelBorderInMem, 1};
const Variant kSides{"sides", 3, 4, 2, 3, 0.7, 0.5, 4 | pelBorderInMemTop | pelBorderInMemLeft, 1};
const Variant kHalve{"halve", 4, 2, 3, 1, 2.0, 2.0, pelBorderReplicate, 0};
const Variant kTile{"tile", 11, 2, 6, 1, 0.8, 1.3, pelBorderReplicate | pelBorderInMemRight | pelBorderInMemBottom, 1};
const Variant kLarger{"larger", -3, -2, 0, 0, 1.5, 0.7, pelBorderReplicate, 0};

template <class T>
void AddMethod(std::vector<Row>& rows, const std::string& name, int C, Process fn, bool linear, bool L) {
  std::vector<Variant> vs{kTile};
  if (!L) vs = linear ? std::vector<Variant>{kUp, kDown, kMemory, kSides, kHalve} : std::vector<Variant>{kUp, kDown};
  for (Variant v : vs) {
    if (!linear) v.border = v.frame = 0;
    AddProcessing<T>(rows, name, C, fn, linear, L, v);
  }
}

// The statuses of the processing calls, on one export of each method.
void AddProcessingFaults(std::vector<Row>& rows) {
  const std::vector<Check> paramFirst{Check::Param, Check::Pointers, Check::ZeroSizes, Check::Sizes};
  const std::vector<Check> paramLast{Check::Pointers, Check::ZeroSizes, Check::Sizes, Check::Param};
  const std::vector<Check> magic{Check::Pointers, Check::ZeroSizes, Check::Param, Check::Sizes};
  for (bool linear : {true, false}) {
    const std::string name = linear ? "peliResizeLinear_8u_C1R" : "peliResizeNearest_8u_C1R";
    const Process fn = linear ? Adapt<Pel8u>(peliResizeLinear_8u_C1R) : Adapt<Pel8u>(peliResizeNearest_8u_C1R);
    auto add = [&](const std::string& variant, Fault f) {
      AddProcessing<Pel8u>(rows, name, 1, fn, linear, false, {variant.c_str(), 4, 3, 2, 1, 1.3, 0.8, 1, 0}, f);
    };
    for (int border : {6, 6 | 0x10, 0x101, 0x104, 0, 2, 5, 0x1F0})
      if (linear) add("border" + std::to_string(border), {pelStatusBadBorderType, paramFirst, border});
    add("otherMethod", {pelStatusContextMismatch, paramLast, -1, true});
    add("magic", {pelStatusContextMismatch, magic, -1, false, 0, 0x4B617388});
    add("antialiasing", {pelStatusNotSupportedMode, paramLast, -1, false, 5, 1});
    add("offsetRight", {pelStatusOutOfRange, paramLast, -1, false, -1, 0, {10000, 0}});
    add("offsetUp", {pelStatusOutOfRange, paramLast, -1, false, -1, 0, {0, -1}});
    AddProcessing<Pel8u>(rows, linear ? "peliResizeLinear_8u_C3R" : "peliResizeNearest_8u_C3R", 3,
                         linear ? Adapt<Pel8u>(peliResizeLinear_8u_C3R) : Adapt<Pel8u>(peliResizeNearest_8u_C3R),
                         linear, false, kLarger);
  }
}

// ---- Set-up and queries ------------------------------------------------------------

// Results of an _L or a plain query: PelIntL or int.
Arg SizeResults(bool L, int n) { return L ? Results<PelIntL>(n) : Results<int>(n); }
void PutSize(Model& m, bool L, int arg, int k, int64_t value) {
  if (L) m.out<PelIntL>(arg)[k] = PelIntL(value);
  else m.out<int>(arg)[k] = int(value);
}
Arg PointResults(bool L) { return L ? Results<int64_t>(2) : Results<int>(2); }
void PutPoint(Model& m, bool L, int arg, int64_t x, int64_t y) {
  if (L) m.out<int64_t>(arg)[0] = x, m.out<int64_t>(arg)[1] = y;
  else m.out<int>(arg)[0] = int(x), m.out<int>(arg)[1] = int(y);
}

PeliSize Positive(PeliSize d, PeliSize (*f)(PeliSize)) { return d.width < 1 || d.height < 1 ? d : f(d); }

// GetSize: every code, from the destination (the ROI) and a source derived
// from it; the statuses on the 8u and _L forms.
void AddGetSize(std::vector<Row>& rows, const Api& api) {
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
  if (api.token == "8u" || api.L) {
    vs.push_back({"code3", 3, 0, pelStatusInterpolationError});
    vs.push_back({"code0", 0, 0, pelStatusNotSupportedMode});
    vs.push_back({"narrow", 2, 0, pelStatusBadSize, [](PeliSize d) { return PeliSize{1, d.height + 1}; }});
    vs.push_back({"flat", 6, 0, pelStatusBadSize, [](PeliSize d) { return PeliSize{d.width + 4, 3}; }});
    vs.push_back({"shrink8", 8, 0, pelStatusBadSize, [](PeliSize d) { return PeliSize{d.width, d.height / 2}; }});
    if (!api.L || sizeof(PelIntL) == 4)  // 2^28 + w: past 2^31 bytes
      vs.push_back({"overflow", 2, 0, pelStatusSizeOverflow, [](PeliSize d) { return PeliSize{-7, d.height}; }});
    if (api.L) vs.push_back({"type", 2, 0, pelStatusDataTypeError, V{}.src, 2});
  }
  for (const V& v : vs) {
    Row r{"peliResizeGetSize_" + api.token, v.name, {SizeResults(api.L, 1), SizeResults(api.L, 1)},
          [api, v](Call& c) {
            PeliSize src = Positive(c.roi, v.src), dst = c.roi;
            if (src.width == -7) src = {1 << 28, 5}, dst.width = dst.width > 0 ? (1 << 28) + dst.width : dst.width;
            return api.getSize(src, dst, v.type, v.code, v.aa, c.p<uint8_t>(0), c.p<uint8_t>(1));
          },
          [api, v](Model& m) {
            const Sizes s = SpecSizes(v.code, v.aa != 0, v.src(m.roi), m.roi);
            PutSize(m, api.L, 0, 0, s.spec);
            PutSize(m, api.L, 1, 0, s.init);
            return v.aa && (v.code == 1 || v.code == 8) ? pelStatusAntialiasingIgnoredWarning : pelStatusOk;
          },
          {Check::Pointers, Check::ZeroSizes, Check::Sizes, Check::Param}, v.expect, QueryShapes()};
    if (v.expect == pelStatusOk) r.order.pop_back();
    if (v.code == 8 && v.expect != pelStatusOk) r.shapes.erase(r.shapes.begin());  // nothing below 1x1
    rows.push_back(r);
  }
}

// Init: the header words and tables it writes, copied out of the spec.
void AddInit(std::vector<Row>& rows, const std::string& name, const Api& api, bool linear, int type,
             bool fixedType = false) {
  using InitFn = std::function<PelStatus(PeliSize, PeliSize, int, PeliResizeSpec*)>;
  const InitFn init = fixedType ? InitFn([](PeliSize s, PeliSize d, int, PeliResizeSpec* p) {
                        return peliResizeLinearInit_8u_L({s.width, s.height}, {d.width, d.height}, p);
                      })
                                : linear ? api.linearInit : api.nearestInit;
  auto srcOf = [](PeliSize d) { return PeliSize{d.width * 5 / 3 + 2, d.height / 2 + 2}; };
  Arg contents = Out<Pel8u>(1);
  contents.size = [linear](PeliSize d) { return PeliSize{SpecContentBytes(linear, d), 1}; };
  Row r{name, "", {contents},
        [=](Call& c) {
          std::vector<uint8_t> block(size_t(SpecContentBytes(linear, {std::max(c.roi.width, 1), std::max(c.roi.height, 1)})) + 77);
          auto* spec = reinterpret_cast<PeliResizeSpec*>(block.data() + 13);
          const PelStatus st = init(Positive(c.roi, srcOf), c.roi, type, c.own(0, spec));
          const auto at = reinterpret_cast<uintptr_t>(spec);
          if (st == pelStatusOk)
            std::memcpy(c.unswept<uint8_t>(0), reinterpret_cast<void*>(at + ((0 - at) & 63)),
                        size_t(SpecContentBytes(linear, c.roi)));
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
  const bool typed = api.L && !fixedType;
  if (!linear && !typed) return;
  r.variant = typed ? "type" : "narrow";
  r.call = [=](Call& c) {
    std::vector<uint8_t> block(1 << 16);
    return init(typed ? Positive(c.roi, srcOf) : PeliSize{1, 5}, c.roi, typed ? 3 : type,
                c.own(0, reinterpret_cast<PeliResizeSpec*>(block.data())));
  };
  r.expect = typed ? pelStatusDataTypeError : pelStatusBadSize;
  r.order.push_back(Check::Param);
  rows.push_back(r);
}

// Queries on a spec built for a fixed scene; the ROI is the tile where a
// query takes one. The statuses on the 8u and _L forms.
void AddQueries(std::vector<Row>& rows, const Api& q) {
  const std::string buffer = "peliResizeGetBufferSize_" + q.token, border = "peliResizeGetBorderSize_" + q.token;
  const std::string offset = "peliResizeGetSrcOffset_" + q.token, roi = "peliResizeGetSrcRoi_" + q.token;
  const bool L = q.L, faults = q.token == "8u" || L;
  const std::vector<Check> bufferOrder{Check::Pointers, Check::ZeroSizes, Check::Sizes};
  const std::vector<Check> magicFirst{Check::Pointers, Check::ZeroSizes, Check::Param, Check::Sizes};
  const Scene s = FixedScene();
  for (bool linear : {true, false}) {
    const std::string method = linear ? "linear" : "nearest";
    auto spec = [linear, s](int brokenWord) {
      auto b = std::make_shared<Built>(s, linear);
      if (brokenWord >= 0) b->Words()[brokenWord] = 27;
      return b;
    };
    for (uint32_t C : {1u, 3u, 4u, 2u}) {
      const bool bad = C == 2;
      if (bad && !faults) continue;
      rows.push_back({buffer, method + std::to_string(C), {SizeResults(L, 1)},
                      [=](Call& c) { return q.bufferSize(c.own(0, spec(-1)->Spec()), c.roi, C, c.p<uint8_t>(0)); },
                      [=](Model& m) {
                        PutSize(m, L, 0, 0, BufferBytes(linear, m.roi.width, C));
                        return pelStatusOk;
                      },
                      bad ? magicFirst : bufferOrder, bad ? pelStatusChannelsNotSupported : pelStatusOk, QueryShapes()});
    }
    rows.push_back({border, method, {Results<int>(4)},
                    [=](Call& c) { return q.border(c.own(0, spec(-1)->Spec()), c.p<PeliBorderSize>(0)); },
                    [=](Model& m) {
                      for (int k = 0; k < 4; ++k) m.out<int>(0)[k] = linear;
                      return pelStatusOk;
                    },
                    {Check::Pointers}, pelStatusOk, QueryShapes()});
    std::vector<PeliPoint> offsets{{0, 0}, {7, 5}, {49, 30}, {23, 17}};
    if (faults) offsets.insert(offsets.end(), {{50, 0}, {0, 31}, {-1, 2}, {3, -4}});
    for (PeliPoint o : offsets) {
      const bool outside = o.x < 0 || o.y < 0 || o.x >= s.dst.width || o.y >= s.dst.height;
      const PelStatus expect = outside ? pelStatusOutOfRange : pelStatusOk;
      const std::string at = method + std::to_string(o.x) + "_" + std::to_string(o.y);
      rows.push_back({offset, at, {PointResults(L)},
                      [=](Call& c) { return q.srcOffset(c.own(0, spec(-1)->Spec()), o, c.p<uint8_t>(0)); },
                      [=](Model& m) {
                        const Tables t(s, linear);
                        PutPoint(m, L, 0, t.x.SrcOffset(o.x), t.y.SrcOffset(o.y));
                        return pelStatusOk;
                      },
                      {Check::Pointers, Check::Param}, expect, QueryShapes()});
      rows.push_back({roi, at, {PointResults(L), SizeResults(L, 2)},
                      [=](Call& c) { return q.srcRoi(c.own(0, spec(-1)->Spec()), o, c.roi, c.p<uint8_t>(0), c.p<uint8_t>(1)); },
                      [=](Model& m) {
                        const Tables t(s, linear);
                        int64_t r[4];
                        SrcRoi(t.x, o.x, m.roi.width, s.src.width, &r[0], &r[2]);
                        SrcRoi(t.y, o.y, m.roi.height, s.src.height, &r[1], &r[3]);
                        PutPoint(m, L, 0, r[0], r[1]);
                        PutSize(m, L, 1, 0, r[2]);
                        PutSize(m, L, 1, 1, r[3]);
                        return m.roi.width > s.dst.width || m.roi.height > s.dst.height ? pelStatusAdjusted : pelStatusOk;
                      },
                      {Check::Pointers, Check::Sizes, Check::Param}, expect, QueryShapes()});
    }
    if (!faults) continue;
    rows.push_back({buffer, "magic" + method, {SizeResults(L, 1)},
                    [=](Call& c) { return q.bufferSize(c.own(0, spec(0)->Spec()), c.roi, 3, c.p<uint8_t>(0)); }, nullptr,
                    magicFirst, pelStatusContextMismatch, QueryShapes()});
    rows.push_back({border, "magic" + method, {Results<int>(4)},
                    [=](Call& c) { return q.border(c.own(0, spec(0)->Spec()), c.p<PeliBorderSize>(0)); }, nullptr,
                    {Check::Pointers, Check::Param}, pelStatusContextMismatch, QueryShapes()});
    rows.push_back({roi, "magic" + method, {PointResults(L), SizeResults(L, 2)},
                    [=](Call& c) {
                      return q.srcRoi(c.own(0, spec(0)->Spec()), PeliPoint{1, 1}, c.roi, c.p<uint8_t>(0), c.p<uint8_t>(1));
                    },
                    nullptr, {Check::Pointers, Check::Sizes, Check::Param}, pelStatusContextMismatch, QueryShapes()});
  }
}

// Each export of a method and type, C1, C3, C4, plain and _L.
#define PEL_METHOD(Method, t, linear)                                                                    \
  for (int C : {1, 3, 4}) {                                                                              \
    const std::string name = std::string("peliResize" #Method "_" #t "_C") + std::to_string(C) + "R";    \
    auto pick = [C](auto f1, auto f3, auto f4) { return Adapt<Pel##t>(C == 1 ? f1 : C == 3 ? f3 : f4); }; \
    AddMethod<Pel##t>(rows, name, C,                                                                     \
                      pick(peliResize##Method##_##t##_C1R, peliResize##Method##_##t##_C3R,               \
                           peliResize##Method##_##t##_C4R),                                              \
                      linear, false);                                                                    \
    AddMethod<Pel##t>(rows, name + "_L", C,                                                              \
                      pick(peliResize##Method##_##t##_C1R_L, peliResize##Method##_##t##_C3R_L,           \
                           peliResize##Method##_##t##_C4R_L),                                            \
                      linear, true);                                                                     \
  }

std::vector<Row> ResizeRows() {
  std::vector<Row> rows;
  PEL_METHOD(Linear, 8u, true)
  PEL_METHOD(Linear, 16u, true)
  PEL_METHOD(Linear, 16s, true)
  PEL_METHOD(Linear, 32f, true)
  PEL_METHOD(Linear, 64f, true)
  PEL_METHOD(Nearest, 8u, false)
  PEL_METHOD(Nearest, 16u, false)
  PEL_METHOD(Nearest, 16s, false)
  PEL_METHOD(Nearest, 32f, false)
  AddProcessingFaults(rows);
  for (const Api& api : Apis()) {
    AddGetSize(rows, api);
    AddQueries(rows, api);
    // Nearest _L built for 64f writes kind 19; linear _L for 16s path 0.
    const int type = api.L ? 19 : api.type;
    if (api.nearestInit) AddInit(rows, "peliResizeNearestInit_" + api.token, api, false, type);
    AddInit(rows, "peliResizeLinearInit_" + api.token, api, true, api.L ? 7 : type);
  }
  AddInit(rows, "peliResizeLinearInit_8u_L", Apis()[0], true, 1, true);
  return rows;
}

}  // namespace

PEL_ROWS(Resize, ResizeRows)

// ---- The library's functions for the model ------------------------------------------

namespace resizemodel {

namespace {

PeliSizeL Wide(PeliSize s) { return {s.width, s.height}; }

#define PEL_API(tok, nearest)                                                                                      \
  Api {                                                                                                          \
    #tok, false, TypeCode<Pel##tok>(),                                                                               \
        [](PeliSize s, PeliSize d, int, int code, uint32_t aa, void* a, void* b) {                               \
          return peliResizeGetSize_##tok(s, d, code, aa, static_cast<int*>(a), static_cast<int*>(b));             \
        },                                                                                                       \
        nearest, [](PeliSize s, PeliSize d, int, PeliResizeSpec* p) { return peliResizeLinearInit_##tok(s, d, p); }, \
        [](const PeliResizeSpec* p, PeliSize t, uint32_t c, void* z) {                                           \
          return peliResizeGetBufferSize_##tok(p, t, c, static_cast<int*>(z));                                     \
        },                                                                                                       \
        peliResizeGetBorderSize_##tok,                                                                             \
        [](const PeliResizeSpec* p, PeliPoint o, void* r) {                                                      \
          return peliResizeGetSrcOffset_##tok(p, o, static_cast<PeliPoint*>(r));                                   \
        },                                                                                                       \
        [](const PeliResizeSpec* p, PeliPoint o, PeliSize t, void* r, void* z) {                                 \
          return peliResizeGetSrcRoi_##tok(p, o, t, static_cast<PeliPoint*>(r), static_cast<PeliSize*>(z));        \
        }                                                                                                        \
  }
#define PEL_NEAREST_INIT(tok) \
  [](PeliSize s, PeliSize d, int, PeliResizeSpec* p) { return peliResizeNearestInit_##tok(s, d, p); }

std::vector<Api> MakeApis() {
  std::vector<Api> apis{PEL_API(8u, PEL_NEAREST_INIT(8u)), PEL_API(16u, PEL_NEAREST_INIT(16u)),
                        PEL_API(16s, PEL_NEAREST_INIT(16s)), PEL_API(32f, PEL_NEAREST_INIT(32f)), PEL_API(64f, nullptr)};
  apis.push_back(
      {"L", true, 0,
       [](PeliSize s, PeliSize d, int type, int code, uint32_t aa, void* a, void* b) {
         return peliResizeGetSize_L(Wide(s), Wide(d), type, code, aa, static_cast<PelIntL*>(a), static_cast<PelIntL*>(b));
       },
       [](PeliSize s, PeliSize d, int type, PeliResizeSpec* p) { return peliResizeNearestInit_L(Wide(s), Wide(d), type, p); },
       [](PeliSize s, PeliSize d, int type, PeliResizeSpec* p) { return peliResizeLinearInit_L(Wide(s), Wide(d), type, p); },
       [](const PeliResizeSpec* p, PeliSize t, uint32_t c, void* z) {
         return peliResizeGetBufferSize_L(p, Wide(t), c, static_cast<PelIntL*>(z));
       },
       peliResizeGetBorderSize_L,
       [](const PeliResizeSpec* p, PeliPoint o, void* r) {
         return peliResizeGetSrcOffset_L(p, PeliPointL{o.x, o.y}, static_cast<PeliPointL*>(r));
       },
       [](const PeliResizeSpec* p, PeliPoint o, PeliSize t, void* r, void* z) {
         return peliResizeGetSrcRoi_L(p, PeliPointL{o.x, o.y}, Wide(t), static_cast<PeliPointL*>(r),
                                      static_cast<PeliSizeL*>(z));
       }});
  return apis;
}

}  // namespace

const std::vector<Api>& Apis() {
  static const std::vector<Api> apis = MakeApis();
  return apis;
}

const Api& ApiOf(int type, bool L) {
  for (const Api& a : Apis())
    if (L ? a.L : a.type == type) return a;
  return Apis()[0];
}

Built::Built(const Scene& s, bool linear, int C, int type, bool L) {
  api_ = &ApiOf(type, L || (!linear && type == 19));  // no plain nearest Init for 64f
  // Spec, Init buffer and work buffer sizes: an int in the low bytes of a
  // zeroed 64-bit word reads as itself.
  int64_t sizes[3] = {0, 0, 0};
  EXPECT_EQ(api_->getSize(s.src, s.dst, type, linear ? 2 : 1, 0, &sizes[0], &sizes[1]), pelStatusOk);
  spec_.resize(size_t(sizes[0]) + 13);
  EXPECT_EQ((linear ? api_->linearInit : api_->nearestInit)(s.src, s.dst, type, Spec()), pelStatusOk);
  EXPECT_EQ(api_->bufferSize(Spec(), s.tile, uint32_t(C), &sizes[2]), pelStatusOk);
  buffer_.resize(size_t(sizes[2]));
}

PeliPoint Built::SrcOffset(PeliPoint o) {
  int64_t r[2] = {0, 0};
  EXPECT_EQ(api_->srcOffset(Spec(), o, r), pelStatusOk);
  if (api_->L) return {int(r[0]), int(r[1])};
  PeliPoint p;
  std::memcpy(&p, r, sizeof p);
  return p;
}

std::vector<Layout> ResizeShapes(int C) {
  std::vector<Layout> out;
  const int sizes[][2] = {{1, 1}, {2, 1}, {1, 6}, {3, 3}, {5, 2}, {7, 4}, {15, 3}, {16, 5}, {17, 2},
                          {31, 7}, {33, 3}, {64, 2}, {65, 9}, {129, 4}, {250, 3}};
  int k = 0;
  for (const auto& s : sizes) {
    out.push_back(Layout{s[0], s[1], C, (k % 3) * 8, (k % 4) * 4 + (k % 2 ? 4 : 0), k % 5 == 4});
    ++k;
  }
  for (int w : {1, 7, 33, 100})
    out.push_back(Layout{w, w % 3 + 2, C, 0, 0, false, w % 2 ? peltest::Fence::AtEnd : peltest::Fence::AtStart});
  return out;
}

std::vector<Layout> QueryShapes() { return {Layout{1, 1}, Layout{5, 3}, Layout{17, 9}, Layout{60, 40}}; }

}  // namespace resizemodel
