// The logic and shift family as rows: one row a member, more for the
// constants and counts that take other paths (equal constants, counts of 0,
// at and past the element width). The runner does the rest (support/rows.h).
#include <climits>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "peli.h"
#include "support/rows.h"

namespace {

using namespace peltest;

// ---- Models: what an element becomes, written from the meaning of the ops.

template <class T>
T AndOf(T a, T b) { return static_cast<T>(a & b); }
template <class T>
T OrOf(T a, T b) { return static_cast<T>(a | b); }
template <class T>
T XorOf(T a, T b) { return static_cast<T>(a ^ b); }

constexpr int64_t Bits(int bytes) { return 8 * bytes; }

// s << n in the element's width: bits shifted out are lost.
template <class T>
T LeftOf(T s, Pel32u n) {
  if (n >= Bits(sizeof(T))) return 0;
  return static_cast<T>(static_cast<uint64_t>(static_cast<std::make_unsigned_t<T>>(s)) << n);
}
// s >> n: unsigned types lose their bits, signed ones keep their sign.
template <class T>
T RightOf(T s, Pel32u n) {
  if (n >= Bits(sizeof(T))) return std::is_signed_v<T> && s < 0 ? T(-1) : T(0);
  return static_cast<T>(static_cast<int64_t>(s) >> n);
}

// The second operand of an element: another image, or a constant read from
// an array argument (per channel, or one for all channels).
template <class S>
using Operand = std::function<S(Model&, int x, int y, int c)>;

template <class S>
Operand<S> ImageAt(int arg) {
  return [arg](Model& m, int x, int y, int c) { return m.in<S>(arg)(x, y, c); };
}
template <class S>
Operand<S> ConstAt(int arg, bool perChannel) {
  return [arg, perChannel](Model& m, int, int, int c) { return m.in<S>(arg)[perChannel ? c : 0]; };
}

// dst(x, y, c) = f(src(x, y, c), second(x, y, c)) for the first W channels;
// the others (alpha) keep their value.
template <class T, class S>
std::function<PelStatus(Model&)> Elementwise(int W, int src, int dst, Operand<S> second, T (*f)(T, S)) {
  return [=](Model& m) {
    auto s = m.in<T>(src);
    auto d = m.out<T>(dst);
    ForEachPixel(m.roi, [&](int x, int y) {
      for (int c = 0; c < W; ++c) d(x, y, c) = f(s(x, y, c), second(m, x, y, c));
    });
    return pelStatusOk;
  };
}

// ---- Rows.

// Every image's step is checked (at least 1), before the sizes.
template <class T>
Arg Image(Use use, int channels) {
  Arg a = ArgOf(ElemOf<T>(), channels, use);
  a.step = StepRule::Positive;
  return a;
}

// Constants: by value (one) or through a pointer (n); fixed values or, when
// `fixed` is empty, random bits.
template <class S>
Arg Constants(int n, bool byValue, std::vector<S> fixed) {
  Arg a = byValue ? Value<S>() : Consts<S>(n);
  if (!fixed.empty()) {
    a.fill = [fixed](AnyView& v, std::mt19937&) {
      for (size_t i = 0; i < fixed.size(); ++i) v.at<S>(static_cast<int>(i), 0) = fixed[i];
    };
  }
  return a;
}

Row Make(const char* name, std::string variant, std::vector<Arg> args, std::function<PelStatus(Call&)> call,
         std::function<PelStatus(Model&)> model) {
  Row r;
  r.name = name;
  r.variant = std::move(variant);
  r.args = std::move(args);
  r.call = std::move(call);
  r.model = std::move(model);
  r.order = {Check::Pointers, Check::Steps, Check::Sizes};
  return r;
}

// Rows of the extra constants and counts run on a few shapes: widths with
// and without a partial vector, 1x1, and rows merged into one run.
Row Quick(Row r, int channels) {
  Layout gapless{333, 3, channels};
  gapless.gapless = true;
  r.shapes = {Layout{70, 2, channels, 8, 4}, Layout{1, 1, channels}, gapless};
  return r;
}

template <class T>
using BinaryFn = PelStatus (*)(const T*, int, const T*, int, T*, int, PeliSize);
template <class T>
using BinaryIFn = PelStatus (*)(const T*, int, T*, int, PeliSize);

template <class T>
void AddBinary(std::vector<Row>& rows, int C, int W, T (*op)(T, T), const char* name, BinaryFn<T> fn) {
  rows.push_back(Make(name, "", {Image<T>(Use::In, C), Image<T>(Use::In, C), Image<T>(Use::Out, C)},
                      [fn](Call& c) {
                        return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.p<T>(2), c.step(2), c.roi);
                      },
                      Elementwise<T, T>(W, 0, 2, ImageAt<T>(1), op)));
}

template <class T>
void AddBinaryI(std::vector<Row>& rows, int C, int W, T (*op)(T, T), const char* name, BinaryIFn<T> fn) {
  rows.push_back(Make(name, "", {Image<T>(Use::In, C), Image<T>(Use::InOut, C)},
                      [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<T>(1), c.step(1), c.roi); },
                      Elementwise<T, T>(W, 1, 1, ImageAt<T>(0), op)));
}

// Forms with a constant operand S (the element type, or a shift count):
// one by value (C1) or an array of W through a pointer.
template <class T, class S>
using OneFn = PelStatus (*)(const T*, int, S, T*, int, PeliSize);
template <class T, class S>
using OneIFn = PelStatus (*)(S, T*, int, PeliSize);
template <class T, class S>
using ManyFn = PelStatus (*)(const T*, int, const S*, T*, int, PeliSize);
template <class T, class S>
using ManyIFn = PelStatus (*)(const S*, T*, int, PeliSize);

template <class T, class S>
Row OneRow(T (*op)(T, S), const char* name, OneFn<T, S> fn, std::string variant, std::vector<S> fixed) {
  return Make(name, variant, {Image<T>(Use::In, 1), Constants<S>(1, true, fixed), Image<T>(Use::Out, 1)},
              [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.v<S>(1), c.p<T>(2), c.step(2), c.roi); },
              Elementwise<T, S>(1, 0, 2, ConstAt<S>(1, false), op));
}
template <class T, class S>
Row OneIRow(T (*op)(T, S), const char* name, OneIFn<T, S> fn, std::string variant, std::vector<S> fixed) {
  return Make(name, variant, {Constants<S>(1, true, fixed), Image<T>(Use::InOut, 1)},
              [fn](Call& c) { return fn(c.v<S>(0), c.p<T>(1), c.step(1), c.roi); },
              Elementwise<T, S>(1, 1, 1, ConstAt<S>(0, false), op));
}
template <class T, class S>
Row ManyRow(int C, int W, T (*op)(T, S), const char* name, ManyFn<T, S> fn, std::string variant,
            std::vector<S> fixed) {
  return Make(name, variant, {Image<T>(Use::In, C), Constants<S>(W, false, fixed), Image<T>(Use::Out, C)},
              [fn](Call& c) { return fn(c.p<T>(0), c.step(0), c.p<S>(1), c.p<T>(2), c.step(2), c.roi); },
              Elementwise<T, S>(W, 0, 2, ConstAt<S>(1, true), op));
}
template <class T, class S>
Row ManyIRow(int C, int W, T (*op)(T, S), const char* name, ManyIFn<T, S> fn, std::string variant,
             std::vector<S> fixed) {
  return Make(name, variant, {Constants<S>(W, false, fixed), Image<T>(Use::InOut, C)},
              [fn](Call& c) { return fn(c.p<S>(0), c.p<T>(1), c.step(1), c.roi); },
              Elementwise<T, S>(W, 1, 1, ConstAt<S>(0, true), op));
}

// Constants: random bits on every shape; then 0, all ones and the sign bit,
// equal channels (the one-channel path) and a mix, on the quick shapes.
template <class T>
std::vector<std::pair<std::string, std::vector<T>>> SpecialConstants(int W) {
  const T ones = static_cast<T>(~T{0}), sign = static_cast<T>(T{1} << (Bits(sizeof(T)) - 1));
  std::vector<T> mixed{sign, ones, 0, static_cast<T>(0x5A5A5A5A)};
  mixed.resize(W);
  return {{"zero", std::vector<T>(W, 0)}, {"ones", std::vector<T>(W, ones)}, {"sign", std::vector<T>(W, sign)},
          {"equal", std::vector<T>(W, static_cast<T>(0x0F0F0F0F))}, {"mixed", mixed}};
}

template <class T>
void AddConstOne(std::vector<Row>& rows, T (*op)(T, T), const char* name, OneFn<T, T> fn) {
  rows.push_back(OneRow<T, T>(op, name, fn, "", {}));
  for (const auto& [variant, v] : SpecialConstants<T>(1))
    if (variant != "equal" && variant != "mixed") rows.push_back(Quick(OneRow<T, T>(op, name, fn, variant, v), 1));
}
template <class T>
void AddConstMany(std::vector<Row>& rows, int C, int W, T (*op)(T, T), const char* name, ManyFn<T, T> fn) {
  rows.push_back(ManyRow<T, T>(C, W, op, name, fn, "", {}));
  for (const auto& [variant, v] : SpecialConstants<T>(W))
    if (variant == "equal" || variant == "mixed") rows.push_back(Quick(ManyRow<T, T>(C, W, op, name, fn, variant, v), C));
}

// Counts: on every shape a mid count (C1) or a count each of 3, width - 1,
// width and 0 (which the one-channel path would take whole); then every
// count from 0 to 33 (C1), and on three channels the triples that cover
// them, equal counts, counts all past the width and all 0.
template <class T>
std::vector<Pel32u> BaseCounts(int W) {
  std::vector<Pel32u> v{3, Pel32u(Bits(sizeof(T)) - 1), Pel32u(Bits(sizeof(T))), 0};
  v.resize(W);
  return v;
}

template <class T>
void AddShiftOne(std::vector<Row>& rows, T (*op)(T, Pel32u), const char* name, OneFn<T, Pel32u> fn) {
  rows.push_back(OneRow<T, Pel32u>(op, name, fn, "", {3}));
  for (Pel32u n = 0; n <= 33; ++n)
    rows.push_back(Quick(OneRow<T, Pel32u>(op, name, fn, "count" + std::to_string(n), {n}), 1));
  rows.push_back(Quick(OneRow<T, Pel32u>(op, name, fn, "countMax", {UINT32_MAX}), 1));
}
template <class T>
void AddShiftOneI(std::vector<Row>& rows, T (*op)(T, Pel32u), const char* name, OneIFn<T, Pel32u> fn) {
  for (Pel32u n : {Pel32u{0}, Pel32u{3}, Pel32u(Bits(sizeof(T)))})
    rows.push_back(OneIRow<T, Pel32u>(op, name, fn, n == 3 ? "" : "count" + std::to_string(n), {n}));
}
template <class T>
void AddShiftMany(std::vector<Row>& rows, int C, int W, T (*op)(T, Pel32u), const char* name,
                  ManyFn<T, Pel32u> fn) {
  rows.push_back(ManyRow<T, Pel32u>(C, W, op, name, fn, "", BaseCounts<T>(W)));
  std::vector<std::pair<std::string, std::vector<Pel32u>>> more{
      {"equal", std::vector<Pel32u>(W, 5)},
      {"zero", std::vector<Pel32u>(W, 0)},
      {"past", std::vector<Pel32u>{Pel32u(Bits(sizeof(T))), 0x80000000u, UINT32_MAX, 40}}};
  more.back().second.resize(W);
  if (C == 3)
    for (Pel32u k = 0; k < 12; ++k) more.push_back({"counts" + std::to_string(k), {k, k + 12, k + 24}});
  for (const auto& [variant, v] : more) rows.push_back(Quick(ManyRow<T, Pel32u>(C, W, op, name, fn, variant, v), C));
}
template <class T>
void AddShiftManyI(std::vector<Row>& rows, int C, int W, T (*op)(T, Pel32u), const char* name,
                   ManyIFn<T, Pel32u> fn) {
  rows.push_back(ManyIRow<T, Pel32u>(C, W, op, name, fn, "", BaseCounts<T>(W)));
}

// Not is Xor with all ones.
using NotFn = PelStatus (*)(const Pel8u*, int, Pel8u*, int, PeliSize);
using NotIFn = PelStatus (*)(Pel8u*, int, PeliSize);
Pel8u NotOf(Pel8u s, Pel8u) { return static_cast<Pel8u>(~s); }

void AddNot(std::vector<Row>& rows, int C, int W, const char* name, NotFn fn) {
  rows.push_back(Make(name, "", {Image<Pel8u>(Use::In, C), Image<Pel8u>(Use::Out, C)},
                      [fn](Call& c) { return fn(c.p<Pel8u>(0), c.step(0), c.p<Pel8u>(1), c.step(1), c.roi); },
                      Elementwise<Pel8u, Pel8u>(W, 0, 1, ImageAt<Pel8u>(0), NotOf)));
}
void AddNotI(std::vector<Row>& rows, int C, int W, const char* name, NotIFn fn) {
  rows.push_back(Make(name, "", {Image<Pel8u>(Use::InOut, C)},
                      [fn](Call& c) { return fn(c.p<Pel8u>(0), c.step(0), c.roi); },
                      Elementwise<Pel8u, Pel8u>(W, 0, 0, ImageAt<Pel8u>(0), NotOf)));
}

#define PEL_LOGIC_ROWS(op, t, T)                                                        \
  AddBinary<T>(rows, 1, 1, op##Of<T>, PEL_NAMED(peli##op##_##t##_C1R));                 \
  AddBinary<T>(rows, 3, 3, op##Of<T>, PEL_NAMED(peli##op##_##t##_C3R));                 \
  AddBinary<T>(rows, 4, 4, op##Of<T>, PEL_NAMED(peli##op##_##t##_C4R));                 \
  AddBinary<T>(rows, 4, 3, op##Of<T>, PEL_NAMED(peli##op##_##t##_AC4R));                \
  AddBinaryI<T>(rows, 1, 1, op##Of<T>, PEL_NAMED(peli##op##_##t##_C1IR));               \
  AddBinaryI<T>(rows, 3, 3, op##Of<T>, PEL_NAMED(peli##op##_##t##_C3IR));               \
  AddBinaryI<T>(rows, 4, 4, op##Of<T>, PEL_NAMED(peli##op##_##t##_C4IR));               \
  AddBinaryI<T>(rows, 4, 3, op##Of<T>, PEL_NAMED(peli##op##_##t##_AC4IR));              \
  AddConstOne<T>(rows, op##Of<T>, PEL_NAMED(peli##op##C_##t##_C1R));                    \
  AddConstMany<T>(rows, 3, 3, op##Of<T>, PEL_NAMED(peli##op##C_##t##_C3R));             \
  AddConstMany<T>(rows, 4, 4, op##Of<T>, PEL_NAMED(peli##op##C_##t##_C4R));             \
  AddConstMany<T>(rows, 4, 3, op##Of<T>, PEL_NAMED(peli##op##C_##t##_AC4R));            \
  rows.push_back(OneIRow<T, T>(op##Of<T>, PEL_NAMED(peli##op##C_##t##_C1IR), "", {}));  \
  rows.push_back(ManyIRow<T, T>(3, 3, op##Of<T>, PEL_NAMED(peli##op##C_##t##_C3IR), "", {})); \
  rows.push_back(ManyIRow<T, T>(4, 4, op##Of<T>, PEL_NAMED(peli##op##C_##t##_C4IR), "", {})); \
  rows.push_back(ManyIRow<T, T>(4, 3, op##Of<T>, PEL_NAMED(peli##op##C_##t##_AC4IR), "", {}));

#define PEL_SHIFT_ROWS(op, model, t, T)                                               \
  AddShiftOne<T>(rows, model<T>, PEL_NAMED(peli##op##_##t##_C1R));                    \
  AddShiftMany<T>(rows, 3, 3, model<T>, PEL_NAMED(peli##op##_##t##_C3R));             \
  AddShiftMany<T>(rows, 4, 4, model<T>, PEL_NAMED(peli##op##_##t##_C4R));             \
  AddShiftMany<T>(rows, 4, 3, model<T>, PEL_NAMED(peli##op##_##t##_AC4R));            \
  AddShiftOneI<T>(rows, model<T>, PEL_NAMED(peli##op##_##t##_C1IR));                  \
  AddShiftManyI<T>(rows, 3, 3, model<T>, PEL_NAMED(peli##op##_##t##_C3IR));           \
  AddShiftManyI<T>(rows, 4, 4, model<T>, PEL_NAMED(peli##op##_##t##_C4IR));           \
  AddShiftManyI<T>(rows, 4, 3, model<T>, PEL_NAMED(peli##op##_##t##_AC4IR));

std::vector<Row> LogicRows() {
  std::vector<Row> rows;
  PEL_LOGIC_ROWS(And, 8u, Pel8u)
  PEL_LOGIC_ROWS(And, 16u, Pel16u)
  PEL_LOGIC_ROWS(And, 32s, Pel32s)
  PEL_LOGIC_ROWS(Or, 8u, Pel8u)
  PEL_LOGIC_ROWS(Or, 16u, Pel16u)
  PEL_LOGIC_ROWS(Or, 32s, Pel32s)
  PEL_LOGIC_ROWS(Xor, 8u, Pel8u)
  PEL_LOGIC_ROWS(Xor, 16u, Pel16u)
  PEL_LOGIC_ROWS(Xor, 32s, Pel32s)
  AddNot(rows, 1, 1, PEL_NAMED(peliNot_8u_C1R));
  AddNot(rows, 3, 3, PEL_NAMED(peliNot_8u_C3R));
  AddNot(rows, 4, 4, PEL_NAMED(peliNot_8u_C4R));
  AddNot(rows, 4, 3, PEL_NAMED(peliNot_8u_AC4R));
  AddNotI(rows, 1, 1, PEL_NAMED(peliNot_8u_C1IR));
  AddNotI(rows, 3, 3, PEL_NAMED(peliNot_8u_C3IR));
  AddNotI(rows, 4, 4, PEL_NAMED(peliNot_8u_C4IR));
  AddNotI(rows, 4, 3, PEL_NAMED(peliNot_8u_AC4IR));
  PEL_SHIFT_ROWS(LShiftC, LeftOf, 8u, Pel8u)
  PEL_SHIFT_ROWS(LShiftC, LeftOf, 16u, Pel16u)
  PEL_SHIFT_ROWS(LShiftC, LeftOf, 32s, Pel32s)
  PEL_SHIFT_ROWS(RShiftC, RightOf, 8u, Pel8u)
  PEL_SHIFT_ROWS(RShiftC, RightOf, 16u, Pel16u)
  PEL_SHIFT_ROWS(RShiftC, RightOf, 16s, Pel16s)
  PEL_SHIFT_ROWS(RShiftC, RightOf, 32s, Pel32s)
  return rows;
}

}  // namespace

PEL_ROWS(Logic, LogicRows)
