// What the arithmetic family's walkers and kernels share: the operations,
// the layouts, the element kinds the kernels are chosen by, and the bounds
// of the integer scale factor.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "peli.h"

namespace pel::arith {

// The operation of a two-image or constant member.
enum Op : int { kAdd, kSub, kMul, kDiv };

// C1, C3, C4: every element is computed. AC4: four lanes a pixel, the
// fourth never written.
enum Layout : int { kC1 = 1, kC3 = 3, kC4 = 4, kAC4 = 5 };

// Lanes a pixel occupies in memory, and lanes it computes.
constexpr int LanesOf(int layout) { return layout == kAC4 ? 4 : layout; }
constexpr int ComputedOf(int layout) { return layout == kAC4 ? 3 : layout; }

// The element types of the family. Kernels take an Elem at run time and
// pick their instantiation from it, so that one dispatch table serves all.
enum class Elem : uint8_t { k8u, k16u, k16s, k32f };

template <class T>
constexpr Elem ElemOf() {
  if constexpr (std::is_same_v<T, Pel8u>) return Elem::k8u;
  else if constexpr (std::is_same_v<T, Pel16u>) return Elem::k16u;
  else if constexpr (std::is_same_v<T, Pel16s>) return Elem::k16s;
  else {
    static_assert(std::is_same_v<T, Pel32f>);
    return Elem::k32f;
  }
}

constexpr size_t BytesOf(Elem e) {
  return e == Elem::k8u ? 1 : e == Elem::k32f ? 4 : 2;
}

// Calls f(T{}) with the element type of e.
template <class F>
decltype(auto) VisitElem(Elem e, F&& f) {
  switch (e) {
    case Elem::k8u: return f(Pel8u{});
    case Elem::k16u: return f(Pel16u{});
    case Elem::k16s: return f(Pel16s{});
    case Elem::k32f: break;
  }
  return f(Pel32f{});
}

// Above this scale factor every exact result of op on two elements of the
// type rounds to 0: the walkers then fill with 0 and read nothing. It is the
// first shift at which the largest |v| (510, 255, 65025; 131070, 65535,
// 4294836225; 65536, 65535, 2^30) drops below one half.
constexpr int ZeroFillAbove(Op op, Elem e) {
  switch (e) {
    case Elem::k8u: return op == kAdd ? 9 : op == kSub ? 8 : 16;
    case Elem::k16u: return op == kAdd ? 17 : op == kSub ? 16 : 32;
    default: return op == kMul ? 30 : 16;
  }
}

// Rows of a region: `lanes` elements each. Regions whose rows follow each
// other without a gap in every image walk as one row when the operation
// allows it (rows are independent and no group structure starts at a row).
struct Rows {
  uint64_t lanes;
  uint64_t count;
};

inline Rows RowsOf(uint64_t width, uint64_t height, int lanesPerPixel, size_t elemBytes,
                   bool mayMerge, std::initializer_list<ptrdiff_t> steps) {
  const uint64_t lanes = width * static_cast<uint64_t>(lanesPerPixel);
  if (mayMerge) {
    bool gapless = true;
    for (ptrdiff_t s : steps) gapless = gapless && s > 0 && static_cast<uint64_t>(s) == lanes * elemBytes;
    if (gapless) return {lanes * height, 1};
  }
  return {lanes, height};
}

}  // namespace pel::arith
