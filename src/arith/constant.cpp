// AddC, SubC, MulC and DivC: the checks, the shortcuts a constant and scale
// factor allow, and the row loop. The constant is laid out once as pixels in
// a small buffer, and the two-image kernels take that buffer, repeated, as
// one of their operands.
#include "arith/constant.h"

#include <cmath>
#include <cstring>

#include "arith/row_kernels.h"
#include "arith/shortcut.h"
#include "core/common.h"
#include "core/exports.h"
#include "core/fp_env.h"

namespace pel::arith {

namespace {

struct OneImage {
  const void* src;
  ptrdiff_t srcStep;
  void* dst;
  ptrdiff_t dstStep;
  int64_t width;
  int64_t height;
};

enum class Shortcut { kNone, kCopy, kFillZero, kFillMax };

// What the constant and scale factor fix before any pixel is read (the 8u
// rules, and the same bounds rule for 16u and 16s). 32f has none: -0.0 + 0
// is not a copy.
template <class T>
Shortcut Choose(Op op, const T* v, int computed, int s) {
  if constexpr (std::is_floating_point_v<T>) {
    return Shortcut::kNone;
  } else {
    bool allZero = true, allOne = true, noneZero = true;
    for (int c = 0; c < computed; ++c) {
      allZero = allZero && v[c] == 0;
      allOne = allOne && v[c] == 1;
      noneZero = noneZero && v[c] != 0;
    }
    if (op == kDiv) return Shortcut::kNone;
    if (op == kMul && allZero) return Shortcut::kFillZero;
    if (s == 0 && (op == kMul ? allOne : allZero)) return Shortcut::kCopy;
    if (s > ZeroFillAbove(op, ElemOf<T>())) return Shortcut::kFillZero;
    // An unsigned sum of at least 1 shifted left by the type's width or more
    // saturates whatever the source.
    if (op == kAdd && std::is_unsigned_v<T> && noneZero && -s >= int(8 * sizeof(T))) {
      return Shortcut::kFillMax;
    }
    return Shortcut::kNone;
  }
}

// The buffer: 3 KiB, a whole number of pixels of every layout and of vectors
// of every width, so that it repeats along a row of any length.
constexpr size_t kBufferBytes = 3072;

template <class T>
void LayOut(Op op, const T* v, int layout, int s, void* buffer) {
  const int lanes = LanesOf(layout);
  const int computed = ComputedOf(layout);
  if (op == kDiv) {
    // DivC multiplies: by 1/value (32f) or by 2^-s / value, each formed once
    // in single precision. The alpha lane divides by 1.
    const int c = s > 64 ? 64 : s < -64 ? -64 : s;
    const float power = std::is_floating_point_v<T> ? 1.0f : std::ldexp(1.0f, -c);
    float f[4];
    for (int k = 0; k < lanes; ++k) f[k] = k < computed ? power / static_cast<float>(v[k]) : 1.0f;
    auto* out = static_cast<float*>(buffer);
    for (size_t j = 0; j < kBufferBytes / sizeof(float); ++j) out[j] = f[j % lanes];
    return;
  }
  auto* out = static_cast<T*>(buffer);
  for (size_t j = 0; j < kBufferBytes / sizeof(T); ++j) {
    const int k = static_cast<int>(j % lanes);
    out[j] = k < computed ? v[k] : T{0};
  }
}

PelStatus ConstantRows(Op op, Elem e, int layout, const OneImage& im, const void* buffer,
                       int s) {
  const bool alpha = layout == kAC4;
  const Rows rows = RowsOf(uint64_t(im.width), uint64_t(im.height), LanesOf(layout), BytesOf(e),
                           true, {im.srcStep, im.dstStep});
  const Operand value{buffer, kBufferBytes / (op == kDiv ? sizeof(float) : BytesOf(e))};
  for (uint64_t y = 0; y < rows.count; ++y) {
    const Operand src{Row(im.src, im.srcStep, ptrdiff_t(y))};
    void* dst = Row(im.dst, im.dstStep, ptrdiff_t(y));
    // SubC is src - value: Sub subtracts its first operand from its second.
    if (op == kDiv && e != Elem::k32f) {
      IntScaleRow(e, src.p, value, dst, rows.lanes, alpha);
    } else if (e == Elem::k32f) {
      auto* d32 = static_cast<float*>(dst);
      if (op == kSub) FloatBinaryRow(kSub, value, src, d32, rows.lanes, alpha);
      else FloatBinaryRow(op == kAdd ? kAdd : kMul, src, value, d32, rows.lanes, alpha);
    } else if (op == kSub) {
      IntBinaryRow(kSub, e, value, src, dst, rows.lanes, s, alpha);
    } else {
      IntBinaryRow(op, e, src, value, dst, rows.lanes, s, alpha);
    }
  }
  return pelStatusOk;
}

PelStatus RunConstant(Op op, Elem e, int layout, const OneImage& im, const void* values, int s) {
  if (AnyNull(im.src, im.dst, values)) return pelStatusNullPointer;
  if (im.width < 1 || im.height < 1) return pelStatusBadSize;
  const int computed = ComputedOf(layout);
  if (op == kDiv) {
    if (im.srcStep < 1 || im.dstStep < 1) return pelStatusBadStep;
    const bool zero = VisitElem(e, [&](auto t) {
      using T = decltype(t);
      const auto* v = static_cast<const T*>(values);
      bool any = false;
      for (int c = 0; c < computed; ++c) any = any || v[c] == T{0};
      return any;
    });
    if (zero) return pelStatusDivisionByZero;
  }
  // As for two images: below -64 only the sign of the exact value counts.
  if (s < -64) s = -64;
  alignas(64) uint8_t buffer[kBufferBytes];
  const Shortcut shortcut = VisitElem(e, [&](auto t) {
    using T = decltype(t);
    const auto* v = static_cast<const T*>(values);
    const Shortcut chosen = Choose<T>(op, v, computed, s);
    if (chosen == Shortcut::kNone) LayOut<T>(op, v, layout, s, buffer);
    return chosen;
  });
  switch (shortcut) {
    case Shortcut::kCopy:
      return CopyImage(e, layout, im.src, im.srcStep, im.dst, im.dstStep, im.width, im.height);
    case Shortcut::kFillZero:
    case Shortcut::kFillMax:
      return FillImage(e, layout, im.dst, im.dstStep, im.width, im.height,
                       shortcut == Shortcut::kFillMax);
    case Shortcut::kNone: break;
  }
  if (op == kDiv && e != Elem::k32f) {
    const RoundingScope nearest(RoundingScope::kNearest);
    return ConstantRows(op, e, layout, im, buffer, s);
  }
  return ConstantRows(op, e, layout, im, buffer, s);
}

template <class T, int kLayout>
const T* ValuesOf(const ConstArg<T, kLayout>& value) {
  if constexpr (kLayout == kC1) return &value;
  else return value;
}

template <class T, class Step, class Size>
OneImage One(const T* src, Step srcStep, T* dst, Step dstStep, Size roi) {
  return {src, srcStep, dst, dstStep, static_cast<int64_t>(roi.width),
          static_cast<int64_t>(roi.height)};
}

}  // namespace

template <int kOp, class T, int kLayout>
PelStatus Const(const T* pSrc, int srcStep, ConstArg<T, kLayout> value, T* pDst, int dstStep,
                PeliSize roiSize, int scaleFactor) {
  return RunConstant(Op(kOp), ElemOf<T>(), kLayout, One(pSrc, srcStep, pDst, dstStep, roiSize),
                     ValuesOf<T, kLayout>(value), scaleFactor);
}
template <int kOp, class T, int kLayout>
PelStatus ConstI(ConstArg<T, kLayout> value, T* pSrcDst, int srcDstStep, PeliSize roiSize,
                 int scaleFactor) {
  return RunConstant(Op(kOp), ElemOf<T>(), kLayout,
                     One(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize),
                     ValuesOf<T, kLayout>(value), scaleFactor);
}
template <int kOp, class T, int kLayout>
PelStatus ConstL(const T* pSrc, PelIntL srcStep, ConstArg<T, kLayout> value, T* pDst,
                 PelIntL dstStep, PeliSizeL roiSize, int scaleFactor) {
  return RunConstant(Op(kOp), ElemOf<T>(), kLayout, One(pSrc, srcStep, pDst, dstStep, roiSize),
                     ValuesOf<T, kLayout>(value), scaleFactor);
}
template <int kOp, class T, int kLayout>
PelStatus ConstIL(ConstArg<T, kLayout> value, T* pSrcDst, PelIntL srcDstStep, PeliSizeL roiSize,
                  int scaleFactor) {
  return RunConstant(Op(kOp), ElemOf<T>(), kLayout,
                     One(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize),
                     ValuesOf<T, kLayout>(value), scaleFactor);
}

template <int kOp, class T, int kLayout>
PelStatus ConstF(const T* pSrc, int srcStep, ConstArg<T, kLayout> value, T* pDst, int dstStep,
                 PeliSize roiSize) {
  return Const<kOp, T, kLayout>(pSrc, srcStep, value, pDst, dstStep, roiSize, 0);
}
template <int kOp, class T, int kLayout>
PelStatus ConstFI(ConstArg<T, kLayout> value, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return ConstI<kOp, T, kLayout>(value, pSrcDst, srcDstStep, roiSize, 0);
}
template <int kOp, class T, int kLayout>
PelStatus ConstFL(const T* pSrc, PelIntL srcStep, ConstArg<T, kLayout> value, T* pDst,
                  PelIntL dstStep, PeliSizeL roiSize) {
  return ConstL<kOp, T, kLayout>(pSrc, srcStep, value, pDst, dstStep, roiSize, 0);
}
template <int kOp, class T, int kLayout>
PelStatus ConstFIL(ConstArg<T, kLayout> value, T* pSrcDst, PelIntL srcDstStep,
                   PeliSizeL roiSize) {
  return ConstIL<kOp, T, kLayout>(value, pSrcDst, srcDstStep, roiSize, 0);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "arith/constant_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::arith
