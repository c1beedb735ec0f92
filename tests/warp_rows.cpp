// Warps as rows: every export against the per-pixel model of warp_model.h
// (the tile cut from a destination whose pixels depend on their position
// alone), the matrix helpers against hand-computed results, and the
// statuses of the set-up and processing calls.
#include <climits>
#include <cmath>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "warp_model.h"

namespace {

using namespace peltest;
using namespace warpmodel;

// ---- Processing ----------------------------------------------------------------

// A matrix and a border; the destination is the tile plus a margin, the tile
// at (2, 1) of it, the source about as large.
struct Variant {
  const char* name;
  int matrix;  // 0 rotation, 1 shear, 2 scale by 2 and 1/2 (direction 0), 3 perspective, 4 zoom out
  int border;
  bool past = false;  // the destination ends inside the tile: cut, 48
};

struct Set {
  PeliSize src, dst;
  PeliPoint off;
};
Set Sizes(const Variant& v, PeliSize tile) {
  Set s{{tile.width + 5, tile.height + 3}, {tile.width + 3, tile.height + 2}, {2, 1}};
  if (v.past) s.dst = {tile.width + 2, tile.height + 1}, s.off = {3, 0};
  return s;
}

// The matrix passed to Init (direction 1 except for the scaling) and the one
// that carries the destination back (exact in both cases).
void Matrices(const Variant& v, const Set& s, double given[3][3], double back[3][3], int* direction) {
  const double cxs = (s.src.width - 1) / 2.0, cys = (s.src.height - 1) / 2.0;
  const double cxd = (s.dst.width - 1) / 2.0, cyd = (s.dst.height - 1) / 2.0;
  double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  *direction = 1;
  if (v.matrix == 0) {  // 20 degrees, scaled by 0.9, centre onto centre
    const double a = 0.9 * std::cos(0.3490658503988659), b = 0.9 * std::sin(0.3490658503988659);
    m[0][0] = a, m[0][1] = -b, m[0][2] = cxs - a * cxd + b * cyd;
    m[1][0] = b, m[1][1] = a, m[1][2] = cys - b * cxd - a * cyd;
  } else if (v.matrix == 1) {
    m[0][0] = 1.1, m[0][1] = 0.3, m[0][2] = -2.5, m[1][0] = -0.2, m[1][1] = 0.95, m[1][2] = 1.7;
  } else if (v.matrix == 2) {
    // Given source -> destination: u = x / 2 + 1.5, v = 2 y - 2; back exactly.
    double g[3][3] = {{0.5, 0, 1.5}, {0, 2, -2}, {0, 0, 1}}, bk[3][3] = {{2, 0, -3}, {0, 0.5, 1}, {0, 0, 1}};
    std::memcpy(given, g, sizeof g), std::memcpy(back, bk, sizeof bk);
    *direction = 0;
    return;
  } else if (v.matrix == 4) {  // the source small inside the destination: every edge of it crossed
    const double a = 1.5 * std::cos(0.12), b = 1.5 * std::sin(0.12);
    m[0][0] = a, m[0][1] = -b, m[0][2] = cxs - a * cxd + b * cyd;
    m[1][0] = b, m[1][1] = a, m[1][2] = cys - b * cxd - a * cyd;
  } else {
    m[0][0] = 1.05, m[0][1] = 0.1, m[0][2] = -1.5, m[1][0] = 0.05, m[1][1] = 0.98, m[1][2] = 0.7;
    m[2][0] = 0.004, m[2][1] = -0.003, m[2][2] = 1;
  }
  std::memcpy(given, m, sizeof m), std::memcpy(back, m, sizeof m);
}

template <class T>
constexpr int TypeCode() {
  if constexpr (std::is_same_v<T, Pel8u>) return pelType8u;
  else if constexpr (std::is_same_v<T, Pel16u>) return pelType16u;
  else if constexpr (std::is_same_v<T, Pel16s>) return pelType16s;
  else if constexpr (std::is_same_v<T, Pel32f>) return pelType32f;
  else return pelType64f;
}

constexpr double kValue[4] = {17.5, 200.7, -3, 1e6};
constexpr double kB = 0, kC = 0.75;

// Builds the spec of a variant with the Init of its method.
struct Built {
  std::vector<uint8_t> spec = std::vector<uint8_t>(4096), buffer;
  PelStatus status;
  Built(const Variant& v, const Set& s, int method, int type, int C) {
    double given[3][3], back[3][3];
    int direction;
    Matrices(v, s, given, back, &direction);
    auto* p = reinterpret_cast<PeliWarpSpec*>(spec.data() + 3);  // no alignment needed
    const bool persp = v.matrix == 3;
    if (!persp && method == 1) status = peliWarpAffineNearestInit(s.src, s.dst, type, given, direction, C, v.border, kValue, 0, p);
    if (!persp && method == 2) status = peliWarpAffineLinearInit(s.src, s.dst, type, given, direction, C, v.border, kValue, 0, p);
    if (!persp && method == 6) status = peliWarpAffineCubicInit(s.src, s.dst, type, given, direction, C, v.border, kValue, kB, kC, 0, p);
    if (persp && method == 1) status = peliWarpPerspectiveNearestInit(s.src, s.dst, type, given, direction, C, v.border, kValue, 0, p);
    if (persp && method == 2) status = peliWarpPerspectiveLinearInit(s.src, s.dst, type, given, direction, C, v.border, kValue, 0, p);
    if (persp && method == 6) status = peliWarpPerspectiveCubicInit(s.src, s.dst, type, given, direction, C, v.border, kValue, kB, kC, 0, p);
    int specBytes = 0, bufBytes = 0;
    if (persp) peliWarpPerspectiveGetSize(s.src, s.dst, type, given, method, direction, v.border, &specBytes, &bufBytes);
    else peliWarpAffineGetSize(s.src, s.dst, type, given, method, direction, v.border, &specBytes, &bufBytes);
    buffer.resize(size_t(std::max(bufBytes, 1)));
  }
  PeliWarpSpec* Spec() { return reinterpret_cast<PeliWarpSpec*>(spec.data() + 3); }
};

template <class T>
using Fn = PelStatus (*)(const T*, int, T*, int, PeliPoint, PeliSize, const PeliWarpSpec*, Pel8u*);
template <class T>
using FnL = PelStatus (*)(const T*, PelIntL, T*, PelIntL, PeliPointL, PeliSizeL, const PeliWarpSpec*, Pel8u*);

std::vector<Layout> WarpShapes(int C) {
  std::vector<Layout> out;
  const int sizes[][2] = {{1, 1}, {2, 1}, {1, 6}, {3, 3}, {7, 4}, {17, 5}, {33, 7}, {65, 6}, {130, 3}};
  int k = 0;
  for (const auto& s : sizes) {
    out.push_back(Layout{s[0], s[1], C, (k % 3) * 8, (k % 4) * 4 + (k % 2 ? 4 : 0), k % 5 == 4});
    ++k;
  }
  for (int w : {7, 40}) out.push_back(Layout{w, 4, C, 0, 0, false, w % 2 ? Fence::AtEnd : Fence::AtStart});
  return out;
}

// What a bad-parameter row breaks.
struct Fault {
  PelStatus expect = pelStatusOk;
  std::vector<Check> order{Check::Pointers, Check::ZeroSizes, Check::Sizes};
  int word = -1, value = 0;       // spec word set to value
  PeliPoint offset{INT_MIN, 0};   // this offset, unless INT_MIN
  int otherMethod = 0;            // a spec of this method instead
  bool specSwept = true;          // false: the spec is never NULL (its magic is checked first)
};

template <class T>
void AddProcessing(std::vector<Row>& rows, const std::string& name, int C, int method, Fn<T> fn, FnL<T> fnL,
                   const Variant& v, const Fault& f = {}) {
  Arg src = In<T>(C);
  src.size = [v](PeliSize tile) {
    const Set s = Sizes(v, {std::max(tile.width, 1), std::max(tile.height, 1)});
    return PeliSize{s.src.width + 2 * kFrame, s.src.height + 2 * kFrame};
  };
  if constexpr (std::is_floating_point_v<T>) src.fill = FillRange(-1000, 1000);
  Arg dst = InOut<T>(C);
  if constexpr (std::is_floating_point_v<T>) dst.fill = FillRange(-1000, 1000);
  const int type = TypeCode<T>();
  rows.push_back(
      {name, v.name, {src, dst},
       [=](Call& c) {
         const PeliSize tile = c.roi;
         const Set s = Sizes(v, {std::max(tile.width, 1), std::max(tile.height, 1)});
         Built b(v, s, f.otherMethod ? f.otherMethod : method, type, C);
         if (f.word >= 0) std::memcpy(b.spec.data() + 3 + 4 * f.word, &f.value, 4);
         T* p = c.p<T>(0);
         if (p) p = reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) + uintptr_t(intptr_t(kFrame) * c.step(0))) + kFrame * C;
         const PeliPoint off = f.offset.x != INT_MIN ? f.offset : s.off;
         PeliWarpSpec* spec = f.specSwept ? c.own(0, b.Spec()) : b.Spec();
         Pel8u* buf = c.own(1, b.buffer.data());
         if (fnL) return fnL(p, c.stepL(0), c.p<T>(1), c.stepL(1), PeliPointL{off.x, off.y}, c.roiL(), spec, buf);
         return fn(p, c.step(0), c.p<T>(1), c.step(1), off, tile, spec, buf);
       },
       [=](Model& m) {
         const Set st = Sizes(v, m.roi);
         double given[3][3];
         Scene s{st.src.width, st.src.height, st.dst.width, st.dst.height, st.off.x, st.off.y, {}, v.matrix == 3,
                 method, v.border, {kValue[0], kValue[1], kValue[2], kValue[3]}, kB, kC};
         int direction;
         Matrices(v, st, given, s.back, &direction);
         if (s.offX >= s.dstW) return pelStatusOutOfRange;
         auto in = m.in<T>(0);
         auto out = m.out<T>(1);
         const int w = std::min(m.roi.width, s.dstW - s.offX), h = std::min(m.roi.height, s.dstH - s.offY);
         ForEachPixel({w, h}, [&](int x, int y) {
           T px[4];
           if (Expected<T>(s, in, C, x, y, px))
             for (int c = 0; c < C; ++c) out(x, y, c) = px[c];
         });
         return w < m.roi.width || h < m.roi.height ? pelStatusAdjusted : pelStatusOk;
       },
       f.order, f.expect, WarpShapes(C)});
}

const Variant kRotReplicate{"rotReplicate", 0, pelBorderReplicate};
const Variant kShearConstant{"shearConstant", 1, pelBorderConstant};
const Variant kScaleTransparent{"scaleTransparent", 2, 7};
const Variant kRotMemory{"rotMemory", 0, pelBorderInMem};
const Variant kShearSides{"shearSides", 1, pelBorderConstant | pelBorderInMemLeft | pelBorderInMemTop};
const Variant kRotConstantPast{"rotConstantPast", 0, pelBorderConstant, true};
const Variant kZoomConstant{"zoomConstant", 4, pelBorderConstant};
const Variant kPerspConstant{"perspConstant", 3, pelBorderConstant};
const Variant kPerspReplicate{"perspReplicate", 3, pelBorderReplicate | pelBorderInMemRight | pelBorderInMemBottom};
const Variant kPerspTransparent{"perspTransparent", 3, 7};

template <class T, int C>
void AddType(std::vector<Row>& rows, const std::string& token, const std::string& layout,
             const Fn<T> (&affine)[3], const FnL<T> (&affineL)[3], const Fn<T> (&persp)[3]) {
  const bool hot = std::is_same_v<T, Pel8u> || std::is_same_v<T, Pel32f>;
  const char* methods[3] = {"Nearest", "Linear", "Cubic"};
  const int codes[3] = {1, 2, 6};
  for (int k = 0; k < 3; ++k) {
    const std::string a = std::string("peliWarpAffine") + methods[k] + "_" + token + "_" + layout;
    const std::string p = std::string("peliWarpPerspective") + methods[k] + "_" + token + "_" + layout;
    std::vector<Variant> vs = hot ? std::vector<Variant>{kRotReplicate, kShearConstant, kScaleTransparent, kRotMemory, kShearSides, kZoomConstant}
                                  : std::vector<Variant>{kRotReplicate, kShearConstant};
    for (const Variant& v : vs) AddProcessing<T>(rows, a, C, codes[k], affine[k], nullptr, v);
    AddProcessing<T>(rows, a + "_L", C, codes[k], nullptr, affineL[k], hot ? kRotConstantPast : kScaleTransparent);
    std::vector<Variant> ps = hot ? std::vector<Variant>{kPerspConstant, kPerspReplicate, kPerspTransparent}
                                  : std::vector<Variant>{kPerspConstant};
    for (const Variant& v : ps) AddProcessing<T>(rows, p, C, codes[k], persp[k], nullptr, v);
  }
}

#define PEL_WARP_TYPE(T, t, c)                                                                             \
  AddType<T, c>(rows, #t, "C" #c "R",                                                                       \
                {peliWarpAffineNearest_##t##_C##c##R, peliWarpAffineLinear_##t##_C##c##R,                 \
                 peliWarpAffineCubic_##t##_C##c##R},                                                       \
                {peliWarpAffineNearest_##t##_C##c##R_L, peliWarpAffineLinear_##t##_C##c##R_L,             \
                 peliWarpAffineCubic_##t##_C##c##R_L},                                                     \
                {peliWarpPerspectiveNearest_##t##_C##c##R, peliWarpPerspectiveLinear_##t##_C##c##R,       \
                 peliWarpPerspectiveCubic_##t##_C##c##R})
#define PEL_WARP_CHANNELS(T, t) PEL_WARP_TYPE(T, t, 1); PEL_WARP_TYPE(T, t, 3); PEL_WARP_TYPE(T, t, 4)

// The statuses of the processing calls, in their order, on the linear 8u
// one-channel member.
void AddProcessingFaults(std::vector<Row>& rows) {
  const std::vector<Check> magic{Check::Param, Check::Pointers, Check::ZeroSizes, Check::Sizes};
  const std::vector<Check> spec{Check::Pointers, Check::ZeroSizes, Check::Param, Check::Sizes};
  const std::vector<Check> late{Check::Pointers, Check::ZeroSizes, Check::Sizes, Check::Param};
  auto add = [&](const char* name, Fault f) {
    Variant v{name, 1, pelBorderReplicate};
    AddProcessing<Pel8u>(rows, "peliWarpAffineLinear_8u_C1R", 1, 2, peliWarpAffineLinear_8u_C1R, nullptr, v, f);
  };
  add("magic", {pelStatusContextMismatch, magic, 0, 0x4B617395, {INT_MIN, 0}, 0, false});
  add("nearestSpec", {pelStatusContextMismatch, spec, -1, 0, {INT_MIN, 0}, 1});
  add("typeWord", {pelStatusContextMismatch, spec, 6, 3});
  add("channelWord", {pelStatusContextMismatch, spec, 7, 3});
  add("pathWord", {pelStatusContextMismatch, spec, 9, 2});
  add("perspectiveWord", {pelStatusContextMismatch, spec, 1, 1});
  add("offsetRight", {pelStatusOutOfRange, late, -1, 0, {10000, 0}});
  add("offsetUp", {pelStatusOutOfRange, late, -1, 0, {0, -1}});
  add("recorded", {pelStatusWrongIntersectRoi, late, 13, pelStatusWrongIntersectRoi});
  add("borderWord", {pelStatusBadBorderType, late, 10, 0x103});
}

// ---- Matrix helpers ----------------------------------------------------------------

// A helper call with its results in arrays of doubles and its hand-computed
// answer.
Row Helper(const std::string& name, const std::string& variant, std::vector<int> counts,
           std::function<PelStatus(Call&)> call, std::vector<std::vector<double>> want, PelStatus status,
           PelStatus expect = pelStatusOk, std::vector<Check> order = {Check::Pointers}) {
  std::vector<Arg> args;
  for (int n : counts) args.push_back(Results<double>(n));
  return {name, variant, args, call,
          [=](Model& m) {
            for (size_t a = 0; a < want.size(); ++a)
              for (size_t i = 0; i < want[a].size(); ++i) m.out<double>(int(a))[int(i)] = want[a][i];
            return status;
          },
          order, expect, {Layout{1, 1}}};
}

using Quad = double[4][2];
using M23 = double[2][3];
using M33 = double[3][3];

void AddHelpers(std::vector<Row>& rows) {
  auto rotate = [](double angle) {
    return [angle](Call& c) { return peliGetRotateTransform(angle, 5, -7, c.p<double[3]>(0)); };
  };
  rows.push_back(Helper("peliGetRotateTransform", "450", {6}, rotate(450), {{0, 1, 5, -1, 0, -7}}, pelStatusOk));
  rows.push_back(Helper("peliGetRotateTransform", "-90", {6}, rotate(-90), {{0, -1, 5, 1, 0, -7}}, pelStatusOk));
  rows.push_back(Helper("peliGetRotateTransform", "-180", {6}, rotate(-180), {{-1, 0, 5, 0, -1, -7}}, pelStatusOk));
  rows.push_back(Helper("peliGetRotateTransform", "720", {6}, rotate(720), {{1, 0, 5, 0, 1, -7}}, pelStatusOk));
  rows.push_back(Helper("peliGetRotateTransform", "nan", {6}, rotate(NAN), {{}}, pelStatusOk, pelStatusOutOfRange,
                        {Check::Param, Check::Pointers}));
  rows.push_back(Helper("peliGetRotateTransform", "inf", {6}, rotate(-INFINITY), {{}}, pelStatusOk,
                        pelStatusOutOfRange, {Check::Param, Check::Pointers}));
  auto shift = [](double angle) {
    return [angle](Call& c) { return peliGetRotateShift(10, 20, angle, c.p<double>(0), c.p<double>(1)); };
  };
  rows.push_back(Helper("peliGetRotateShift", "180", {1, 1}, shift(180), {{20}, {40}}, pelStatusOk));
  rows.push_back(Helper("peliGetRotateShift", "90", {1, 1}, shift(-270), {{-10}, {30}}, pelStatusOk));
  rows.push_back(Helper("peliGetRotateShift", "270", {1, 1}, shift(270), {{30}, {10}}, pelStatusOk));
  rows.push_back(Helper("peliGetRotateShift", "0", {1, 1}, shift(360), {{0}, {0}}, pelStatusOk));

  // The rectangle (2, 3) 5 x 3 (corners (2, 3), (6, 3), (6, 5), (2, 5)).
  const PeliRect rect{2, 3, 5, 3};
  auto affine = [rect](std::vector<double> q, PeliRect r) {
    return [q, r](Call& c) {
      Quad quad;
      std::memcpy(quad, q.data(), sizeof quad);
      return peliGetAffineTransform(r, c.own(0, quad), c.p<double[3]>(0));
    };
  };
  // Scale x2 then shift: (2,3)->(1,1), (6,3)->(9,1), (6,5)->(9,5).
  rows.push_back(Helper("peliGetAffineTransform", "parallelogram", {6}, affine({1, 1, 9, 1, 9, 5, 1, 5}, rect),
                        {{2, 0, -3, 0, 2, -5}}, pelStatusOk));
  rows.push_back(Helper("peliGetAffineTransform", "trapezium", {6}, affine({1, 1, 9, 1, 9, 5, 2, 5}, rect),
                        {{2, 0, -3, 0, 2, -5}}, pelStatusNotParallelogramWarning));
  rows.push_back(Helper("peliGetAffineTransform", "oneColumn", {6}, affine({1, 1, 9, 1, 9, 5, 1, 5}, {2, 3, 1, 4}),
                        {{}}, pelStatusOk, pelStatusCoefficientsError, {Check::Pointers, Check::Param}));
  rows.push_back(Helper("peliGetAffineTransform", "degenerate", {6}, affine({1, 1, 5, 1, 9, 1, 1, 5}, rect), {{}},
                        pelStatusOk, pelStatusQuadrangleError, {Check::Pointers, Check::Param}));
  rows.push_back(Helper("peliGetAffineTransform", "bowtie", {6}, affine({1, 1, 9, 5, 9, 1, 1, 5}, rect), {{}},
                        pelStatusOk, pelStatusQuadrangleError, {Check::Pointers, Check::Param}));
  rows.push_back(Helper("peliGetAffineTransform", "badRect", {6}, affine({1, 1, 9, 1, 9, 5, 1, 5}, {-1, 3, 5, 3}),
                        {{}}, pelStatusOk, pelStatusBadSize, {Check::Pointers, Check::Param}));

  const M23 shear{{1, 0.5, 1}, {0, 2, -1}};
  auto quad = [rect](const M23& mm, bool bound) {
    M23 m;
    std::memcpy(m, mm, sizeof m);
    return [rect, m, bound](Call& c) {
      return bound ? peliGetAffineBound(rect, c.p<double[2]>(0), c.own(0, m)) : peliGetAffineQuad(rect, c.p<double[2]>(0), c.own(0, m));
    };
  };
  // (2,3)->(4.5,5), (6,3)->(8.5,5), (6,5)->(9.5,9), (2,5)->(5.5,9).
  rows.push_back(Helper("peliGetAffineQuad", "shear", {8}, quad(shear, false), {{4.5, 5, 8.5, 5, 9.5, 9, 5.5, 9}}, pelStatusOk));
  rows.push_back(Helper("peliGetAffineBound", "shear", {4}, quad(shear, true), {{4.5, 5, 9.5, 9}}, pelStatusOk));

  // Perspective: w = 1 + x / 10 halves the far corners.
  const M33 persp{{1, 0, 0}, {0, 1, 0}, {0.25, 0, 1}};
  auto pquad = [rect](const M33& mm, bool bound) {
    M33 m;
    std::memcpy(m, mm, sizeof m);
    return [rect, m, bound](Call& c) {
      return bound ? peliGetPerspectiveBound(rect, c.p<double[2]>(0), c.own(0, m))
                   : peliGetPerspectiveQuad(rect, c.p<double[2]>(0), c.own(0, m));
    };
  };
  // w = 1.5 at x = 2, 2.5 at x = 6.
  rows.push_back(Helper("peliGetPerspectiveQuad", "", {8}, pquad(persp, false),
                        {{2 / 1.5, 3 / 1.5, 6 / 2.5, 3 / 2.5, 6 / 2.5, 5 / 2.5, 2 / 1.5, 5 / 1.5}}, pelStatusOk));
  rows.push_back(Helper("peliGetPerspectiveBound", "", {4}, pquad(persp, true),
                        {{2 / 1.5, 3 / 2.5, 6 / 2.5, 5 / 1.5}}, pelStatusOk));
  auto ptransform = [rect](std::vector<double> q, PeliRect r) {
    return [q, r](Call& c) {
      Quad qq;
      std::memcpy(qq, q.data(), sizeof qq);
      return peliGetPerspectiveTransform(r, c.own(0, qq), c.p<double[3]>(0));
    };
  };
  rows.push_back(Helper("peliGetPerspectiveTransform", "oneRow", {9}, ptransform({1, 1, 9, 1, 9, 5, 1, 5}, {2, 3, 4, 1}),
                        {{}}, pelStatusOk, pelStatusCoefficientsError, {Check::Pointers, Check::Param}));
  rows.push_back(Helper("peliGetPerspectiveTransform", "bowtie", {9}, ptransform({1, 1, 9, 5, 9, 1, 1, 5}, rect),
                        {{}}, pelStatusOk, pelStatusQuadrangleError, {Check::Pointers, Check::Param}));
}

// ---- Size query and Inits ----------------------------------------------------------

struct SetupFault {
  const char* name;
  PelStatus expect;
  bool first = false;  // checked before the pointers (border)
  int type = pelType8u, interpolation = 2, direction = 0, border = pelBorderConstant, channels = 1;
  bool singular = false, big = false;
  double b = 0;
  int smooth = 0;
};

const std::vector<SetupFault>& SetupFaults() {
  static const std::vector<SetupFault> f{
      {"ok", pelStatusOk},
      {"border0x106", pelStatusBadBorderType, true, 1, 2, 0, 0x106},
      {"border3", pelStatusBadBorderType, true, 1, 2, 0, pelBorderMirror},
      {"big", pelStatusSizeOverflow, false, 1, 2, 0, 6, 1, false, true},
      {"type", pelStatusDataTypeError, false, 2},
      {"direction", pelStatusWarpDirectionError, false, 1, 2, 2},
      {"singular", pelStatusCoefficientsSingular, false, 1, 2, 1, 6, 1, true},
      {"interpolation", pelStatusInterpolationError, false, 1, 3},
      {"channels", pelStatusChannelsNotSupported, false, 1, 2, 0, 6, 2},
      {"cubicB", pelStatusBadArgument, false, 1, 6, 0, 6, 1, false, false, INFINITY},
      {"smoothEdge", pelStatusNotSupportedMode, false, 1, 2, 0, 6, 1, false, false, 0, 1}};
  return f;
}

enum class Setup { AffineSize, AffineSizeL, PerspSize, Init };

void AddSetup(std::vector<Row>& rows, const std::string& name, Setup kind, bool persp, int method, bool L) {
  for (const SetupFault& f : SetupFaults()) {
    const bool isSize = kind != Setup::Init;
    if (isSize && (f.name == std::string("channels") || f.name == std::string("cubicB") || f.name == std::string("smoothEdge"))) continue;
    if (!isSize && f.name == std::string("interpolation")) continue;
    if (!isSize && f.name == std::string("cubicB") && method != 6) continue;
    std::vector<Arg> args{L ? Results<PelIntL>(2) : Results<int>(2)};
    Row r{name, f.name, args,
          [=](Call& c) {
            const double m3[3][3] = {{0.9, 0.2, 3}, {-0.1, 1.1, 2}, {f.singular ? 0.0 : 0.001, 0, 1}};
            double m[3][3];
            std::memcpy(m, m3, sizeof m);
            if (f.singular) m[0][0] = 2, m[0][1] = 1, m[1][0] = 4, m[1][1] = 2;
            double* mp = c.own(0, &m[0][0]);
            const auto* coeffs = reinterpret_cast<const double(*)[3]>(mp);
            PeliSize src = c.roi, dst{c.roi.width + 3, c.roi.height};
            if (f.big && src.width > 0) src.width = 33554432;
            const int interp = isSize ? f.interpolation : method;
            if (kind == Setup::AffineSize) return peliWarpAffineGetSize(src, dst, f.type, coeffs, interp, f.direction, f.border, c.p<int>(0), c.p<int>(0, 1));
            if (kind == Setup::PerspSize) return peliWarpPerspectiveGetSize(src, dst, f.type, coeffs, interp, f.direction, f.border, c.p<int>(0), c.p<int>(0, 1));
            if (kind == Setup::AffineSizeL)
              return peliWarpAffineGetSize_L(PeliSizeL{src.width, src.height}, PeliSizeL{dst.width, dst.height}, f.type, coeffs, interp, f.direction, f.border, c.p<PelIntL>(0), c.p<PelIntL>(0, 1));
            // Init: the spec's first word copied out, the block's start unaligned.
            std::vector<uint8_t> block(300);
            auto* spec = reinterpret_cast<PeliWarpSpec*>(block.data() + 1);
            PeliWarpSpec* sp = c.own(1, spec);
            const double* value = c.own(2, kValue);
            PelStatus st;
            const PeliSizeL sL{src.width, src.height}, dL{dst.width, dst.height};
            if (persp) {
              if (method == 1) st = peliWarpPerspectiveNearestInit(src, dst, f.type, coeffs, f.direction, f.channels, f.border, value, f.smooth, sp);
              else if (method == 2) st = peliWarpPerspectiveLinearInit(src, dst, f.type, coeffs, f.direction, f.channels, f.border, value, f.smooth, sp);
              else st = peliWarpPerspectiveCubicInit(src, dst, f.type, coeffs, f.direction, f.channels, f.border, value, f.b, 0.5, f.smooth, sp);
            } else if (L) {
              if (method == 1) st = peliWarpAffineNearestInit_L(sL, dL, f.type, coeffs, f.direction, f.channels, f.border, value, f.smooth, sp);
              else if (method == 2) st = peliWarpAffineLinearInit_L(sL, dL, f.type, coeffs, f.direction, f.channels, f.border, value, f.smooth, sp);
              else st = peliWarpAffineCubicInit_L(sL, dL, f.type, coeffs, f.direction, f.channels, f.border, value, f.b, 0.5, f.smooth, sp);
            } else {
              if (method == 1) st = peliWarpAffineNearestInit(src, dst, f.type, coeffs, f.direction, f.channels, f.border, value, f.smooth, sp);
              else if (method == 2) st = peliWarpAffineLinearInit(src, dst, f.type, coeffs, f.direction, f.channels, f.border, value, f.smooth, sp);
              else st = peliWarpAffineCubicInit(src, dst, f.type, coeffs, f.direction, f.channels, f.border, value, f.b, 0.5, f.smooth, sp);
            }
            if (st == pelStatusOk) {
              int32_t magic;
              std::memcpy(&magic, spec, 4);
              if (L) c.unswept<PelIntL>(0)[0] = magic;
              else c.unswept<int>(0)[0] = magic;
            }
            return st;
          },
          [=](Model& m) {
            const int64_t a = isSize ? 256 : 0x4B617394, b = isSize ? 16 * (m.roi.width + 3) + 64 : -1;
            if (L) m.out<PelIntL>(0)[0] = PelIntL(a);
            else m.out<int>(0)[0] = int(a);
            if (isSize) {
              if (L) m.out<PelIntL>(0)[1] = PelIntL(b);
              else m.out<int>(0)[1] = int(b);
            }
            return pelStatusOk;
          },
          {Check::Pointers, Check::Sizes}, f.expect, {Layout{1, 1}, Layout{9, 4}, Layout{40, 30}}};
    if (f.expect != pelStatusOk) r.order = f.first ? std::vector<Check>{Check::Param, Check::Pointers, Check::Sizes}
                                                   : std::vector<Check>{Check::Pointers, Check::Sizes, Check::Param};
    rows.push_back(r);
  }
}

std::vector<Row> WarpRows() {
  std::vector<Row> rows;
  PEL_WARP_CHANNELS(Pel8u, 8u);
  PEL_WARP_CHANNELS(Pel16u, 16u);
  PEL_WARP_CHANNELS(Pel16s, 16s);
  PEL_WARP_CHANNELS(Pel32f, 32f);
  PEL_WARP_CHANNELS(Pel64f, 64f);
  AddProcessingFaults(rows);
  AddHelpers(rows);
  AddSetup(rows, "peliWarpAffineGetSize", Setup::AffineSize, false, 2, false);
  AddSetup(rows, "peliWarpAffineGetSize_L", Setup::AffineSizeL, false, 2, true);
  AddSetup(rows, "peliWarpPerspectiveGetSize", Setup::PerspSize, true, 2, false);
  const char* methods[3] = {"Nearest", "Linear", "Cubic"};
  const int codes[3] = {1, 2, 6};
  for (int k = 0; k < 3; ++k) {
    AddSetup(rows, std::string("peliWarpAffine") + methods[k] + "Init", Setup::Init, false, codes[k], false);
    AddSetup(rows, std::string("peliWarpAffine") + methods[k] + "Init_L", Setup::Init, false, codes[k], true);
    AddSetup(rows, std::string("peliWarpPerspective") + methods[k] + "Init", Setup::Init, true, codes[k], false);
  }
  return rows;
}

}  // namespace

PEL_ROWS(Warp, WarpRows)
