#include "logic/logic.h"

#include <cstring>

#include "core/common.h"
#include "core/exports.h"
#include "logic/walk.h"

namespace pel::logic {

namespace {

// The byte pattern of a pixel of C elements: value[c] in the first W
// channels (none when value is null), the rest kept.
template <class T, int C, int W>
BytePattern PixelPattern(const T* value) {
  uint8_t pixel[C * sizeof(T)] = {}, keep[C * sizeof(T)] = {};
  for (int c = 0; c < C; ++c) {
    if (c < W && value != nullptr) std::memcpy(pixel + c * sizeof(T), &value[c], sizeof(T));
    if (c >= W) std::memset(keep + c * sizeof(T), 0xFF, sizeof(T));
  }
  BytePattern p;
  RepeatOver(p.value, pixel, sizeof pixel);
  RepeatOver(p.keep, keep, sizeof keep);
  p.keeps = W < C;
  return p;
}

template <class T, int C>
void WalkLogic(LogicOp op, const T* a, int aStep, const T* b, int bStep, T* d, int dStep,
               PeliSize roi, const BytePattern& p) {
  const uint64_t rowBytes = static_cast<uint64_t>(roi.width) * C * sizeof(T);
  auto bytes = [](const T* image, int step, ptrdiff_t y) {
    return reinterpret_cast<const uint8_t*>(Row(image, step, y));
  };
  ForEachRow(roi, rowBytes, {aStep, b != nullptr ? bStep : aStep, dStep},
             [&](ptrdiff_t y, size_t n) {
               LogicRow(op, bytes(a, aStep, y), b != nullptr ? bytes(b, bStep, y) : nullptr,
                        reinterpret_cast<uint8_t*>(Row(d, dStep, y)), n, p);
             });
}

template <class T, int C, int W>
PelStatus ConstImage(LogicOp op, const T* s, int sStep, const T* value, T* d, int dStep,
                     PeliSize roi) {
  if (const PelStatus st = CheckArgs(roi, {sStep, dStep}, s, value, d); st != pelStatusOk) {
    return st;
  }
  WalkLogic<T, C>(op, s, sStep, nullptr, 0, d, dStep, roi, PixelPattern<T, C, W>(value));
  return pelStatusOk;
}

}  // namespace

template <class T, int C, int W, LogicOp kOp>
PelStatus Binary(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                 PeliSize roiSize) {
  if (const PelStatus st = CheckArgs(roiSize, {src1Step, src2Step, dstStep}, pSrc1, pSrc2, pDst);
      st != pelStatusOk) {
    return st;
  }
  WalkLogic<T, C>(kOp, pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize,
                  PixelPattern<T, C, W>(nullptr));
  return pelStatusOk;
}

template <class T, int C, int W, LogicOp kOp>
PelStatus BinaryI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return Binary<T, C, W, kOp>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}

template <class T, LogicOp kOp>
PelStatus ConstC1(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PeliSize roiSize) {
  return ConstImage<T, 1, 1>(kOp, pSrc, srcStep, &value, pDst, dstStep, roiSize);
}

template <class T, LogicOp kOp>
PelStatus ConstC1I(T value, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return ConstImage<T, 1, 1>(kOp, pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roiSize);
}

template <class T, int C, int W, LogicOp kOp>
PelStatus Const(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep,
                PeliSize roiSize) {
  return ConstImage<T, C, W>(kOp, pSrc, srcStep, value, pDst, dstStep, roiSize);
}

template <class T, int C, int W, LogicOp kOp>
PelStatus ConstI(const T* value, T* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return ConstImage<T, C, W>(kOp, pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}

template <int C, int W>
PelStatus Not(const Pel8u* pSrc, int srcStep, Pel8u* pDst, int dstStep, PeliSize roiSize) {
  static constexpr Pel8u kAllOnes[4] = {0xFF, 0xFF, 0xFF, 0xFF};
  return ConstImage<Pel8u, C, W>(LogicOp::kXor, pSrc, srcStep, kAllOnes, pDst, dstStep, roiSize);
}

template <int C, int W>
PelStatus NotI(Pel8u* pSrcDst, int srcDstStep, PeliSize roiSize) {
  return Not<C, W>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "logic/logic_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::logic
