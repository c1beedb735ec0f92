#include "filter/general.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "core/border.h"
#include "core/common.h"
#include "core/exports.h"
#include "core/fp_env.h"
#include "core/spec.h"
#include "filter/row_filter_kernels.h"
#include "filter/window.h"
#include "pelcore.h"

namespace pel::filter {
namespace {

// The spec's header, at the first 64-byte boundary of the caller's block;
// the kernel areas follow it from byte 128, each on a 64-byte boundary.
struct SpecHeader {
  uint32_t kind;  // 0 8u/16s-int, 1 16s/16s-int, 3..5 8u/16s/16u with f32 kernel, 6 32f, 7 64f
  int32_t kernelWidth;
  int32_t kernelHeight;
  uint32_t divisorMode;  // 0 divisor 1, 1 power of two, 2 reciprocal
  uint32_t shift;
  uint32_t roundAddend;
  float scale;
  float divisorAsFloat;
  int32_t divisor;
  uint32_t reserved;
  double scaleAsDouble;
  uint32_t remainderMask;
  float divisorFloat;
  uint32_t roundMode;
  int32_t offset;
  float offsetScaled;
  uint32_t hint;
  const void* reversed;
  const void* packed;
  const void* floatCopy;
  uint32_t packable;
  int32_t numChannels;
};
static_assert(sizeof(SpecHeader) <= 128);
constexpr uint64_t kHeaderBytes = 128;

enum Kind : uint32_t { k8uInt = 0, k16sInt = 1, k8uFloat = 3, k16sFloat = 4, k16uFloat = 5, k32f = 6, k64f = 7 };

uint64_t A64(uint64_t v) { return RoundUp64(v); }

bool RoundModeAccepted(int mode) { return (mode & ~0x11) == 0 || (mode & ~0x10) == 2; }

// 16u data, and 16s data whose integer kernel has no packed integer path,
// filter with the kernel divided out into floats.
bool IntKernelTakesFloatPath(int dataType, int channels, int kw, int kh) {
  if (dataType == pelType16u) return true;
  if (dataType != pelType16s) return false;
  return channels >= 3 || kw == 1 || kh == 1 || (channels == 1 && kw < 3);
}

int64_t ElementBytes(int dataType) {
  switch (dataType) {
    case pelType8u: return 1;
    case pelType16u:
    case pelType16s: return 2;
    case pelType32f: return 4;
    default: return 8;
  }
}

SpecHeader* HeaderOf(const PeliFilterBorderSpec* spec) {
  return reinterpret_cast<SpecHeader*>(AlignUp64(const_cast<PeliFilterBorderSpec*>(spec)));
}
uint8_t* AreaOf(const PeliFilterBorderSpec* spec) { return reinterpret_cast<uint8_t*>(HeaderOf(spec)) + kHeaderBytes; }

// Fills the fields every kind shares; the divisor fields are those of a
// divisor of 1 until the integer Init changes them.
SpecHeader CommonHeader(uint32_t kind, PeliSize k, int channels, int roundMode) {
  SpecHeader h{};
  h.kind = kind;
  h.kernelWidth = k.width;
  h.kernelHeight = k.height;
  h.scale = 1.0f;
  h.divisorAsFloat = 1.0f;
  h.divisor = 1;
  h.scaleAsDouble = 1.0;
  h.divisorFloat = 1.0f;
  h.roundMode = static_cast<uint32_t>(roundMode);
  h.packable = 1;
  h.numChannels = channels;
  return h;
}

// Writes the reversed kernel; an Init whose kernel already lies at the
// destination (in-place) reverses it by exchanges.
template <class K>
void StoreReversed(const K* kernel, int64_t n, K* dst) {
  if (kernel == dst) {
    std::reverse(dst, dst + n);
    return;
  }
  for (int64_t i = 0; i < n; ++i) dst[i] = kernel[n - 1 - i];
}

// The float-kernel layout: reversed copy, a reserved pair area, and the
// coefficients broadcast to four lanes (not for two channels).
void LayOutFloat(SpecHeader& h, const PeliFilterBorderSpec* spec, int64_t n, int64_t kwe, int64_t kh) {
  uint8_t* area = AreaOf(spec);
  h.reversed = area;
  h.packed = area + A64(4 * n);
  const float* rev = reinterpret_cast<const float*>(area);
  auto* wide = reinterpret_cast<float*>(area + A64(4 * n) + A64(80 * kwe * kh));
  h.floatCopy = h.numChannels == 2 ? nullptr : wide;
  if (h.numChannels != 2)
    for (int64_t i = 0; i < n; ++i)
      for (int r = 0; r < 4; ++r) wide[4 * i + r] = rev[i];
}

template <class T>
constexpr Lane LaneFor() {
  return LaneOf<T>();
}

}  // namespace

PelStatus FilterBorderGetSize(PeliSize kernelSize, PeliSize roiSize, PelDataType dataType, PelDataType kernelType,
                              int numChannels, int* pSpecSize, int* pBufferSize) {
  if (BadSize(kernelSize) || BadSize(roiSize)) return pelStatusBadSize;
  if (kernelType == pelType64f) {
    if (dataType != pelType64f) return pelStatusDataTypeError;
    if (numChannels != 1) return pelStatusChannelError;
  } else {
    if (dataType != pelType8u && dataType != pelType16u && dataType != pelType16s && dataType != pelType32f)
      return pelStatusDataTypeError;
    if (kernelType != pelType16s && kernelType != pelType32f) return pelStatusDataTypeError;
    if (numChannels < 1 || numChannels > 4) return pelStatusChannelError;
  }
  if (AnyNull(pSpecSize, pBufferSize)) return pelStatusNullPointer;

  // Far beyond what can be reported: refused before 64-bit products of a
  // huge kernel and a huge ROI could overflow.
  const double bound = (double(kernelSize.width) + roiSize.width) * (double(kernelSize.height) + roiSize.height) * 64;
  if (bound > 1e15) {
    *pBufferSize = 0;
    return pelStatusSizeOverflow;
  }
  const int64_t kw = kernelSize.width, kh = kernelSize.height, n = kw * kh, kwe = (kw + 1) & ~int64_t{1};
  int64_t spec;
  if (kernelType == pelType64f) {
    spec = A64(8 * n) + 191;
  } else if (kernelType == pelType16s && dataType != pelType32f &&
             !IntKernelTakesFloatPath(dataType, numChannels, kernelSize.width, kernelSize.height)) {
    spec = A64(2 * n) + A64(80 * kwe * kh) + 191;
  } else {
    spec = A64(4 * n) + A64(80 * kwe * kh) + 191 + (numChannels != 2 ? A64(16 * n) : 0);
  }

  // The border area of the bands (or of the whole bordered ROI), then this
  // implementation's work area: the ring of extended rows.
  const MaskGeometry g = GeometryOf(kernelSize.width, kernelSize.height);
  const int64_t W = roiSize.width, H = roiSize.height;
  int64_t elems;
  if (kw >= W || kh >= H) {
    elems = (kw + W - 1) * (kh + H - 1);
  } else {
    const int64_t down = kh == 2 ? 2 - g.ay : kh - g.ay - 1;
    const int64_t right = kw == 2 ? 2 - g.ax : kw - g.ax - 1;
    const int64_t rows = kh + down - 1, cols = kw + right - 1;
    elems = std::max(rows < 1 ? 0 : (W + kw - 1) * rows, cols < 1 ? 0 : (H + kh - 1) * cols);
  }
  const int64_t px = ElementBytes(dataType) * numChannels;
  const int64_t borderArea = ((px * elems + 31) & ~int64_t{31}) + 32;
  const int64_t work = (WindowBufferBytes(W, g, static_cast<int>(px)) + 191) & ~int64_t{63};
  int64_t buffer = borderArea + work + (dataType == pelType64f ? 126 : 63);
  // On processors where 64-byte vectors pay for byte and word data, the
  // buffer is also large enough for the kernel spread over 64-byte rows of
  // four taps each, so a size obtained there suits a wide kernel layout too
  // (it only matters for tiny ROIs; the plain size is usually larger).
  if (ownGetFeature(PEL_CPUID_AVX512WIDE)) buffer = std::max(buffer, (kh * 64 * ((kw + 3) / 4) + 191) & ~int64_t{63});
  if (buffer > kMaxReportedSize || spec > kMaxReportedSize) {
    *pBufferSize = 0;
    return pelStatusSizeOverflow;
  }
  *pSpecSize = static_cast<int>(spec);
  *pBufferSize = static_cast<int>(buffer);
  return pelStatusOk;
}

PelStatus FilterBorderInit16s(const Pel16s* pKernel, PeliSize kernelSize, int divisor, PelDataType dataType,
                              int numChannels, PelRoundMode roundMode, PeliFilterBorderSpec* pSpec) {
  if (AnyNull(pKernel, pSpec)) return pelStatusNullPointer;
  if (BadSize(kernelSize)) return pelStatusBadSize;
  if (dataType != pelType8u && dataType != pelType16u && dataType != pelType16s) return pelStatusDataTypeError;
  if (numChannels < 1 || numChannels > 4) return pelStatusChannelError;
  if (!RoundModeAccepted(roundMode)) return pelStatusRoundModeError;
  if (divisor == 0) return pelStatusDivisorError;

  const int64_t kw = kernelSize.width, kh = kernelSize.height, n = kw * kh, kwe = (kw + 1) & ~int64_t{1};
  const bool accurate = (roundMode & pelRoundAccurateFlag) != 0;
  if (IntKernelTakesFloatPath(dataType, numChannels, kernelSize.width, kernelSize.height)) {
    // Coefficients divided once, in double precision, then filtered as a
    // float kernel.
    const double recip = 1.0 / divisor;
    auto* rev = reinterpret_cast<float*>(AreaOf(pSpec));
    for (int64_t i = 0; i < n; ++i) rev[i] = static_cast<float>(pKernel[n - 1 - i] * recip);
    SpecHeader h = CommonHeader(dataType == pelType16u ? k16uFloat : k16sFloat, kernelSize, numChannels,
                                roundMode & ~pelRoundAccurateFlag);
    LayOutFloat(h, pSpec, n, kwe, kh);
    *HeaderOf(pSpec) = h;
    return accurate ? pelStatusAccurateIgnoredWarning : pelStatusOk;
  }

  SpecHeader h = CommonHeader(dataType == pelType8u ? k8uInt : k16sInt, kernelSize, numChannels, roundMode);
  h.divisor = divisor;
  h.divisorFloat = static_cast<float>(divisor);
  const uint32_t d = static_cast<uint32_t>(divisor);
  if (divisor == 1) {
    h.divisorMode = 0;
  } else if (((d - 1) & (d | 0x80000000u)) == 0) {
    int s = 0;
    while (((d >> s) & 1) == 0) ++s;
    h.divisorMode = 1;
    h.shift = static_cast<uint32_t>(s);
    h.roundAddend = 1u << (s - 1);
    h.remainderMask = (s == 32 ? 0 : (1u << s)) - 1;
    h.scale = std::ldexp(1.0f, -s);
    h.divisorAsFloat = h.scale;
    h.scaleAsDouble = std::ldexp(1.0, -s);
  } else {
    h.divisorMode = 2;
    h.scale = 1.0f / static_cast<float>(divisor);
    h.divisorAsFloat = static_cast<float>(divisor);
    h.scaleAsDouble = static_cast<double>(divisor);
  }
  uint8_t* area = AreaOf(pSpec);
  auto* rev = reinterpret_cast<Pel16s*>(area);
  StoreReversed(pKernel, n, rev);
  h.reversed = rev;
  // Coefficient pairs of each row, a pair repeated over 16 bytes, for
  // multiply-add-pairs kernels; 16s one-channel data cannot pair an extreme
  // coefficient.
  auto* packed = reinterpret_cast<Pel16s*>(area + A64(2 * n));
  h.packed = packed;
  bool packable = true;
  if (dataType == pelType16s && numChannels == 1)
    for (int64_t i = 0; i < n; ++i) packable = packable && rev[i] != 32767 && rev[i] != -32768;
  h.packable = packable ? 1 : 0;
  if (packable)
    for (int64_t r = 0; r < kh; ++r)
      for (int64_t p = 0; p < kwe / 2; ++p)
        for (int rep = 0; rep < 4; ++rep) {
          const int64_t c0 = r * kw + 2 * p, c1 = c0 + 1;
          Pel16s* out = packed + ((r * (kwe / 2) + p) * 4 + rep) * 2;
          out[0] = rev[c0];
          out[1] = 2 * p + 1 < kw ? rev[c1] : Pel16s{0};
        }
  *HeaderOf(pSpec) = h;
  const bool hasAccurate = dataType == pelType8u || (dataType == pelType16s && numChannels == 1);
  return accurate && !hasAccurate ? pelStatusAccurateIgnoredWarning : pelStatusOk;
}

PelStatus FilterBorderInit32f(const Pel32f* pKernel, PeliSize kernelSize, PelDataType dataType, int numChannels,
                              PelRoundMode roundMode, PeliFilterBorderSpec* pSpec) {
  if (AnyNull(pKernel, pSpec)) return pelStatusNullPointer;
  if (BadSize(kernelSize)) return pelStatusBadSize;
  if (dataType != pelType8u && dataType != pelType16u && dataType != pelType16s && dataType != pelType32f)
    return pelStatusDataTypeError;
  if (numChannels < 1 || numChannels > 4) return pelStatusChannelError;
  if (!RoundModeAccepted(roundMode)) return pelStatusRoundModeError;
  const int64_t kw = kernelSize.width, kh = kernelSize.height, n = kw * kh, kwe = (kw + 1) & ~int64_t{1};
  const uint32_t kind = dataType == pelType8u    ? k8uFloat
                        : dataType == pelType16s ? k16sFloat
                        : dataType == pelType16u ? k16uFloat
                                                 : k32f;
  StoreReversed(pKernel, n, reinterpret_cast<Pel32f*>(AreaOf(pSpec)));
  SpecHeader h = CommonHeader(kind, kernelSize, numChannels, roundMode & ~pelRoundAccurateFlag);
  LayOutFloat(h, pSpec, n, kwe, kh);
  *HeaderOf(pSpec) = h;
  return (roundMode & pelRoundAccurateFlag) ? pelStatusAccurateIgnoredWarning : pelStatusOk;
}

PelStatus FilterBorderInit64f(const Pel64f* pKernel, PeliSize kernelSize, PelDataType dataType, int numChannels,
                              PelRoundMode roundMode, PeliFilterBorderSpec* pSpec) {
  if (AnyNull(pKernel, pSpec)) return pelStatusNullPointer;
  if (BadSize(kernelSize)) return pelStatusBadSize;
  if (dataType != pelType64f) return pelStatusDataTypeError;
  if (numChannels != 1) return pelStatusChannelError;
  if (roundMode != pelRoundNear && roundMode != (pelRoundNear | pelRoundAccurateFlag)) return pelStatusRoundModeError;
  const int64_t n = int64_t{kernelSize.width} * kernelSize.height;
  auto* rev = reinterpret_cast<Pel64f*>(AreaOf(pSpec));
  StoreReversed(pKernel, n, rev);
  SpecHeader h = CommonHeader(k64f, kernelSize, 1, roundMode);
  h.reversed = rev;
  *HeaderOf(pSpec) = h;
  return pelStatusOk;
}

PelStatus FilterBorderSetMode(PelHintAlgorithm hint, int offset, PeliFilterBorderSpec* pSpec) {
  if (pSpec == nullptr) return pelStatusNullPointer;
  SpecHeader* h = HeaderOf(pSpec);
  const bool signedOrFloat = h->kind == k16sInt || h->kind == k16sFloat || h->kind == k32f || h->kind == k64f;
  if (offset != 0 && signedOrFloat) return pelStatusNotSupportedMode;
  if (h->kind == k64f) return pelStatusOk;
  if (hint == pelHintAccurate) {
    if (h->kind == k8uInt || (h->kind == k16sInt && h->numChannels == 1)) h->roundMode |= pelRoundAccurateFlag;
  } else {
    h->roundMode &= 3;
  }
  h->offset = offset;
  h->offsetScaled = h->kind <= 2 ? static_cast<float>(offset) * static_cast<float>(h->divisor)
                                 : static_cast<float>(offset);
  h->hint = static_cast<uint32_t>(hint);
  return pelStatusOk;
}

template <class T, int C>
PelStatus FilterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PeliSize roiSize, PeliBorderType border,
                       const T* borderValue, const PeliFilterBorderSpec* pSpec, Pel8u* pBuffer) {
  if (AnyNull(pSrc, pDst, pSpec, pBuffer)) return pelStatusNullPointer;
  if ((border & 0x0F) == pelBorderConstant && borderValue == nullptr) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (srcStep < 1 || int64_t{dstStep} < int64_t{roiSize.width} * C * int64_t{sizeof(T)}) return pelStatusBadStep;
  if (!BorderCodeAccepted(border, {pelBorderReplicate, pelBorderMirror, pelBorderConstant}))
    return pelStatusBadBorderType;

  const SpecHeader& h = *HeaderOf(pSpec);
  const uint8_t* area = AreaOf(pSpec);
  CorrelateJob job{};
  job.lane = LaneFor<T>();
  job.C = C;
  job.kw = h.kernelWidth;
  job.kh = h.kernelHeight;
  job.intKernel = h.kind == k8uInt || h.kind == k16sInt;
  job.revI = reinterpret_cast<const int16_t*>(area);
  job.revF = reinterpret_cast<const float*>(area);
  job.revD = reinterpret_cast<const double*>(area);
  job.divMode = static_cast<int>(h.divisorMode);
  job.shift = static_cast<int>(h.shift);
  job.scale = h.scale;
  job.offsetI = static_cast<int32_t>(static_cast<uint32_t>(h.offset) * static_cast<uint32_t>(h.divisor));
  job.offsetF = job.intKernel ? 0.0f : h.offsetScaled;
  job.offsetD = 0;
  job.round = static_cast<int>(h.roundMode & 3);

  const MaskGeometry g = GeometryOf(h.kernelWidth, h.kernelHeight);
  RowWindow window(pSrc, srcStep, roiSize.width, roiSize.height, g, datamove::PixelOf<T, C>(),
                   RuleOf(border, borderValue), pBuffer, static_cast<const void*>(pSrc) == pDst);
  // Nearest-even float rounding is the processor's default; make it so for
  // the call whatever the caller's control word says.
  RoundingScope nearest(RoundingScope::kNearest);
  RowWindow::Run runs[3];
  for (int64_t y = 0; y < roiSize.height; ++y) {
    T* d = Row(pDst, dstStep, y);
    const int n = window.Runs(y, runs);
    for (int k = 0; k < n; ++k) CorrelateRow(job, runs[k].rows, d + runs[k].x0 * C, runs[k].count * C);
  }
  return pelStatusOk;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "filter/general_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::filter
