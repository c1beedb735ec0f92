#include "stats/histogram.h"

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/common.h"
#include "core/exports.h"
#include "core/spec.h"
#include "stats/row_reduce_kernels.h"

namespace pel::stats {

namespace {

// ---- Counting in a range ---------------------------------------------------------------

// Channel 3 of AC4 pixels (alpha) is never counted. Counts beyond INT_MAX
// are reported as INT_MAX.
template <class T, int C>
PelStatus CountImpl(const T* pSrc, int srcStep, PeliSize roi, int* counts, const T* lower,
                    const T* upper) {
  if (srcStep < 1) return pelStatusBadStep;
  if (BadSize(roi)) return pelStatusBadSize;
  constexpr int kUsed = C == 4 ? 3 : C;
  T lo[4] = {}, hi[4] = {};
  for (int c = 0; c < kUsed; ++c) {
    if (upper[c] < lower[c]) return pelStatusRangeError;
    lo[c] = lower[c];
    hi[c] = upper[c];
  }
  uint64_t total[4] = {};
  const uint64_t rowBytes = uint64_t(roi.width) * C * sizeof(T);
  uint64_t elems = uint64_t(roi.width) * C;
  int rows = roi.height;
  if (uint64_t(srcStep) == rowBytes && rowBytes * uint64_t(rows) <= SIZE_MAX) {
    elems *= uint64_t(rows);
    rows = 1;
  }
  for (int y = 0; y < rows; ++y) {
    if constexpr (std::is_same_v<T, Pel8u>) {
      CountRow8u(Row(pSrc, srcStep, y), size_t(elems), C, lo, hi, total);
    } else {
      CountRow32f(Row(pSrc, srcStep, y), size_t(elems), C, lo, hi, total);
    }
  }
  for (int c = 0; c < kUsed; ++c) counts[c] = total[c] > INT_MAX ? INT_MAX : static_cast<int>(total[c]);
  return pelStatusOk;
}

// ---- The histogram spec ----------------------------------------------------------------
//
// 32-bit words, read and written by memcpy (the caller's block need not be
// aligned): data type, channels, uniform flag, the magic "hist" (written
// last), levels per channel [4], byte offset of each channel's levels from
// the start of the spec [4], f32 step of uniform 32f levels [4]; the level
// arrays (int32 for integer types, f32 for 32f) follow from byte 64 on.

constexpr int32_t kMagic = 0x74736968;  // "hist" read little-endian
enum Word { kType = 0, kChannels = 1, kUniform = 2, kMagicWord = 3, kLevels = 4, kOffset = 8, kStep = 12 };
constexpr int kHeaderBytes = 64;

int32_t Get(const void* spec, int word) {
  int32_t v;
  std::memcpy(&v, static_cast<const uint8_t*>(spec) + 4 * word, 4);
  return v;
}
void Put(void* spec, int word, int32_t v) {
  std::memcpy(static_cast<uint8_t*>(spec) + 4 * word, &v, 4);
}
template <class L>
L Level(const void* spec, int c, int k) {
  L v;
  std::memcpy(&v, static_cast<const uint8_t*>(spec) + Get(spec, kOffset + c) + 4 * k, 4);
  return v;
}

bool KnownType(PelDataType t) {
  return t == pelType8u || t == pelType16u || t == pelType16s || t == pelType32f;
}
bool KnownChannels(int c) { return c == 1 || c == 3 || c == 4; }

// Integer levels: truncated toward zero, held within 32 bits.
int32_t IntegerLevel(double v) {
  if (v <= static_cast<double>(INT32_MIN)) return INT32_MIN;
  if (v >= static_cast<double>(INT32_MAX)) return INT32_MAX;
  return static_cast<int32_t>(v);
}

// Writes the header and channel c's levels level(k), k < n; the magic comes
// last, once the caller has written every channel.
template <class LevelOf>
void PutChannel(void* spec, PelDataType type, int c, int& offset, int n, float step, LevelOf level) {
  Put(spec, kLevels + c, n);
  Put(spec, kOffset + c, offset);
  int32_t stepBits;
  std::memcpy(&stepBits, &step, 4);
  Put(spec, kStep + c, stepBits);
  auto* p = static_cast<uint8_t*>(spec) + offset;
  for (int k = 0; k < n; ++k, p += 4) {
    const double v = level(k);
    if (type == pelType32f) {
      const float f = static_cast<float>(v);
      std::memcpy(p, &f, 4);
    } else {
      const int32_t i = IntegerLevel(v);
      std::memcpy(p, &i, 4);
    }
  }
  offset += 4 * n;
}

void PutHeader(void* spec, PelDataType type, int channels, bool uniform) {
  Put(spec, kType, type);
  Put(spec, kChannels, channels);
  Put(spec, kUniform, uniform ? 1 : 0);
  for (int c = channels; c < 4; ++c) {
    Put(spec, kLevels + c, 0);
    Put(spec, kOffset + c, 0);
    Put(spec, kStep + c, 0);
  }
}

// ---- Histograms ------------------------------------------------------------------------

template <class T>
constexpr PelDataType TypeOf() {
  if constexpr (std::is_same_v<T, Pel8u>) return pelType8u;
  else if constexpr (std::is_same_v<T, Pel16u>) return pelType16u;
  else if constexpr (std::is_same_v<T, Pel16s>) return pelType16s;
  else return pelType32f;
}

// Count tables in the buffer. 8u: four interleaved tables of 256 a channel
// (one-channel rows spread consecutive pixels over them, so that runs of one
// value do not wait on each other), all channels in one pass; large
// one-channel images count pairs of neighbours in a table of 65536 instead,
// which halves the counting stores, the bottleneck. 16-bit: one table of
// 65536 and a slot, reused channel after channel, which keeps the buffer at
// 256 KiB whatever the channel count.
constexpr int64_t kPairEntries = 65536;
constexpr int64_t BufferBytes(PelDataType type, int channels) {
  const int64_t entries = type == pelType8u ? (channels == 1 ? 1024 + kPairEntries : 1024 * channels)
                          : type == pelType32f ? 0 : 65537;
  return entries * 4 + int64_t(kSpecAlign);
}

// Below this many pixels clearing and folding the pair table costs more
// than it saves.
constexpr int64_t kPairPixels = 1 << 17;

// Pixel pairs (x, x + 1) of each row count in pairs[first + 256 * second];
// a row's odd last pixel counts in tables[0..255]. The pair counts are then
// folded into tables[0..255] (each pair holds a first and a second value).
void CountPairs(const Pel8u* src, int step, PeliSize roi, uint32_t* tables) {
  uint32_t* pairs = tables + 1024;
  std::memset(tables, 0, (1024 + kPairEntries) * sizeof(uint32_t));
  for (int y = 0; y < roi.height; ++y) {
    const Pel8u* r = Row(src, step, y);
    int x = 0;
    for (; x + 8 <= roi.width; x += 8) {
      uint64_t v;
      std::memcpy(&v, r + x, 8);
      for (int k = 0; k < 4; ++k) ++pairs[(v >> (16 * k)) & 0xFFFF];
    }
    for (; x + 2 <= roi.width; x += 2) ++pairs[r[x] + 256 * r[x + 1]];
    if (x < roi.width) ++tables[r[x]];
  }
  uint32_t firsts[256] = {};
  for (int second = 0; second < 256; ++second) {
    const uint32_t* row = pairs + 256 * second;
    uint32_t n = 0;
    for (int first = 0; first < 256; ++first) {
      n += row[first];
      firsts[first] += row[first];
    }
    tables[second] += n;
  }
  for (int v = 0; v < 256; ++v) tables[v] += firsts[v];
}

template <int C>
void Count8u(const Pel8u* src, int step, PeliSize roi, uint32_t* tables) {
  if (C == 1 && int64_t(roi.width) * roi.height >= kPairPixels) return CountPairs(src, step, roi, tables);
  std::memset(tables, 0, 1024 * C * sizeof(uint32_t));
  for (int y = 0; y < roi.height; ++y) {
    const Pel8u* r = Row(src, step, y);
    if constexpr (C == 1) {
      // Eight pixels a load; the compiler need not reload pixels after each
      // count (a byte store could alias them).
      int x = 0;
      for (; x + 8 <= roi.width; x += 8) {
        uint64_t v;
        std::memcpy(&v, r + x, 8);
        for (int k = 0; k < 8; ++k) ++tables[256 * (k & 3) + ((v >> (8 * k)) & 255)];
      }
      for (; x < roi.width; ++x) ++tables[r[x]];
    } else {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < C; ++c) ++tables[1024 * c + r[x * C + c]];
    }
  }
}

template <class T, int C>
void Count16(const T* src, int step, PeliSize roi, int c, uint32_t* table) {
  constexpr int kBias = std::is_same_v<T, Pel16s> ? 32768 : 0;
  std::memset(table, 0, 65536 * sizeof(uint32_t));
  for (int y = 0; y < roi.height; ++y) {
    const T* r = Row(src, step, y) + c;
    for (int x = 0; x < roi.width; ++x) ++table[r[x * C] + kBias];
  }
}

// Turns channel c's counts into prefix sums P[v] = counts below v (modulo
// 2^32, as the bins are), with P[values] the total.
template <class T>
void PrefixSums(uint32_t* t) {
  constexpr size_t kValues = sizeof(T) == 1 ? 256 : 65536;
  if constexpr (sizeof(T) == 1)
    for (size_t v = 0; v < 256; ++v) t[v] += t[256 + v] + t[512 + v] + t[768 + v];
  uint32_t running = 0;
  for (size_t v = 0; v < kValues; ++v) {
    const uint32_t n = t[v];
    t[v] = running;
    running += n;
  }
  t[kValues] = running;
}

// Bin k counts values lo <= v < hi with lo, hi its levels held to the
// values the type has; empty when lo >= hi.
template <class T>
void IntegerBins(const void* spec, int c, const uint32_t* prefix, Pel32u* hist) {
  constexpr int64_t kMin = std::is_same_v<T, Pel16s> ? -32768 : 0;
  constexpr int64_t kEnd = kMin + (sizeof(T) == 1 ? 256 : 65536);
  auto index = [](int32_t level) {
    const int64_t v = level < kMin ? kMin : level > kEnd ? kEnd : level;
    return static_cast<size_t>(v - kMin);
  };
  const int n = Get(spec, kLevels + c);
  for (int k = 0; k + 1 < n; ++k) {
    const size_t lo = index(Level<int32_t>(spec, c, k));
    const size_t hi = index(Level<int32_t>(spec, c, k + 1));
    hist[k] = lo < hi ? prefix[hi] - prefix[lo] : 0;
  }
}

// 32f: the bin of v is the last level <= v, if v is below the top level
// (a NaN is below nothing and above nothing).
template <int C>
void FloatBins(const float* src, int step, PeliSize roi, const void* spec, Pel32u* const* hist) {
  const float* levels[C];
  int n[C];
  for (int c = 0; c < C; ++c) {
    n[c] = Get(spec, kLevels + c);
    levels[c] = reinterpret_cast<const float*>(static_cast<const uint8_t*>(spec) + Get(spec, kOffset + c));
    std::memset(hist[c], 0, size_t(n[c] - 1) * sizeof(Pel32u));
  }
  for (int y = 0; y < roi.height; ++y) {
    const float* r = Row(src, step, y);
    for (int x = 0; x < roi.width; ++x) {
      for (int c = 0; c < C; ++c) {
        const float v = r[x * C + c];
        float lo;
        std::memcpy(&lo, levels[c], 4);
        float top;
        std::memcpy(&top, levels[c] + n[c] - 1, 4);
        if (!(v >= lo && v < top)) continue;
        int a = 0, b = n[c] - 1;  // level[a] <= v < level[b]
        while (b - a > 1) {
          const int m = (a + b) / 2;
          float lm;
          std::memcpy(&lm, levels[c] + m, 4);
          if (lm <= v) a = m; else b = m;
        }
        ++hist[c][a];
      }
    }
  }
}

template <class T, int C>
PelStatus HistogramImpl(const T* pSrc, int srcStep, PeliSize roi, Pel32u* const* pHist,
                        const PeliHistogramSpec* pSpec, Pel8u* pBuffer) {
  if (BadSize(roi)) return pelStatusBadSize;
  if (srcStep < 1 || uint64_t(srcStep) < uint64_t(roi.width) * C * sizeof(T)) return pelStatusBadStep;
  if (Get(pSpec, kMagicWord) != kMagic || Get(pSpec, kType) != TypeOf<T>() ||
      Get(pSpec, kChannels) != C) {
    return pelStatusBadArgument;
  }
  if constexpr (std::is_same_v<T, Pel32f>) {
    FloatBins<C>(pSrc, srcStep, roi, pSpec, pHist);
  } else {
    auto* tables = reinterpret_cast<uint32_t*>(AlignUp64(pBuffer));
    if constexpr (sizeof(T) == 1) Count8u<C>(pSrc, srcStep, roi, tables);
    for (int c = 0; c < C; ++c) {
      uint32_t* t = tables;
      if constexpr (sizeof(T) == 1) t += 1024 * c;
      else Count16<T, C>(pSrc, srcStep, roi, c, t);
      PrefixSums<T>(t);
      IntegerBins<T>(pSpec, c, t, pHist[c]);
    }
  }
  return pelStatusOk;
}

}  // namespace

template <class T>
PelStatus CountInRange1(const T* pSrc, int srcStep, PeliSize roiSize, int* pCounts, T lowerBound,
                        T upperBound) {
  if (AnyNull(pSrc, pCounts)) return pelStatusNullPointer;
  return CountImpl<T, 1>(pSrc, srcStep, roiSize, pCounts, &lowerBound, &upperBound);
}

template <class T, int C>
PelStatus CountInRangeN(const T* pSrc, int srcStep, PeliSize roiSize, int* counts,
                        const T* lowerBound, const T* upperBound) {
  if (AnyNull(pSrc, counts, lowerBound, upperBound)) return pelStatusNullPointer;
  return CountImpl<T, C>(pSrc, srcStep, roiSize, counts, lowerBound, upperBound);
}

// The buffer does not depend on the ROI or on uniform levels: count tables
// for the integer types, nothing for 32f (a minimal block all the same).
PelStatus HistogramGetBufferSize(PelDataType dataType, PeliSize roiSize, const int nLevels[],
                                 int numChannels, int /*uniform*/, int* pSpecSize, int* pBufferSize) {
  if (!KnownType(dataType)) return pelStatusDataTypeError;
  if (AnyNull(nLevels, pSpecSize, pBufferSize)) return pelStatusNullPointer;
  if (BadSize(roiSize)) return pelStatusBadSize;
  if (!KnownChannels(numChannels)) return pelStatusChannelsNotSupported;
  int64_t levels = 0;
  for (int c = 0; c < numChannels; ++c) {
    if (nLevels[c] < 2) return pelStatusHistogramLevelsError;
    levels += nLevels[c];
  }
  const int64_t spec = kHeaderBytes + 4 * levels;
  if (spec > kMaxReportedSize) return pelStatusSizeOverflow;
  *pSpecSize = static_cast<int>(spec);
  *pBufferSize = static_cast<int>(BufferBytes(dataType, numChannels));
  return pelStatusOk;
}

PelStatus HistogramInit(PelDataType dataType, const Pel32f* const pLevels[], const int nLevels[],
                        int numChannels, PeliHistogramSpec* pSpec) {
  if (!KnownType(dataType)) return pelStatusDataTypeError;
  if (AnyNull(pLevels, nLevels, pSpec)) return pelStatusNullPointer;
  if (!KnownChannels(numChannels)) return pelStatusChannelsNotSupported;
  for (int c = 0; c < numChannels; ++c)
    if (pLevels[c] == nullptr) return pelStatusNullPointer;
  for (int c = 0; c < numChannels; ++c) {
    if (nLevels[c] < 2) return pelStatusHistogramLevelsError;
    for (int k = 0; k + 1 < nLevels[c]; ++k)
      if (!(pLevels[c][k] <= pLevels[c][k + 1])) return pelStatusRangeError;  // NaN too
  }
  int offset = kHeaderBytes;
  PutHeader(pSpec, dataType, numChannels, false);
  for (int c = 0; c < numChannels; ++c)
    PutChannel(pSpec, dataType, c, offset, nLevels[c], 0.0f, [&](int k) { return double{pLevels[c][k]}; });
  Put(pSpec, kMagicWord, kMagic);
  return pelStatusOk;
}

// Levels lo + k * step with step = (hi - lo) / (n - 1) in Pel64f, the ends
// exactly lo and hi.
PelStatus HistogramUniformInit(PelDataType dataType, const Pel32f lowerLevel[],
                               const Pel32f upperLevel[], const int nLevels[], int numChannels,
                               PeliHistogramSpec* pSpec) {
  if (!KnownType(dataType)) return pelStatusDataTypeError;
  if (AnyNull(lowerLevel, upperLevel, nLevels, pSpec)) return pelStatusNullPointer;
  if (!KnownChannels(numChannels)) return pelStatusChannelsNotSupported;
  for (int c = 0; c < numChannels; ++c) {
    if (nLevels[c] < 2) return pelStatusHistogramLevelsError;
    // An empty range, a NaN or an infinite end gives no levels to space.
    if (!(lowerLevel[c] < upperLevel[c]) || !std::isfinite(lowerLevel[c]) || !std::isfinite(upperLevel[c]))
      return pelStatusRangeError;
  }
  bool adjusted = false;
  int offset = kHeaderBytes;
  PutHeader(pSpec, dataType, numChannels, true);
  for (int c = 0; c < numChannels; ++c) {
    const double lo = lowerLevel[c], hi = upperLevel[c];
    const int n = nLevels[c];
    const double step = (hi - lo) / (n - 1);
    if (dataType != pelType32f && step < 1.0) adjusted = true;
    PutChannel(pSpec, dataType, c, offset, n, dataType == pelType32f ? static_cast<float>(step) : 0.0f,
               [&](int k) { return k == 0 ? lo : k == n - 1 ? hi : lo + k * step; });
  }
  Put(pSpec, kMagicWord, kMagic);
  return adjusted ? pelStatusAdjusted : pelStatusOk;
}

PelStatus HistogramGetLevels(const PeliHistogramSpec* pSpec, Pel32f* const pLevels[]) {
  if (AnyNull(pSpec, pLevels)) return pelStatusNullPointer;
  if (Get(pSpec, kMagicWord) != kMagic) return pelStatusBadArgument;
  const int channels = Get(pSpec, kChannels);
  for (int c = 0; c < channels; ++c)
    if (pLevels[c] == nullptr) return pelStatusNullPointer;
  const bool isFloat = Get(pSpec, kType) == pelType32f;
  for (int c = 0; c < channels; ++c)
    for (int k = 0; k < Get(pSpec, kLevels + c); ++k)
      pLevels[c][k] = isFloat ? Level<float>(pSpec, c, k) : static_cast<float>(Level<int32_t>(pSpec, c, k));
  return pelStatusOk;
}

template <class T>
PelStatus Histogram1(const T* pSrc, int srcStep, PeliSize roiSize, Pel32u* pHist,
                     const PeliHistogramSpec* pSpec, Pel8u* pBuffer) {
  if (AnyNull(pSrc, pHist, pSpec, pBuffer)) return pelStatusNullPointer;
  Pel32u* const hist[1] = {pHist};
  return HistogramImpl<T, 1>(pSrc, srcStep, roiSize, hist, pSpec, pBuffer);
}

template <class T, int C>
PelStatus HistogramN(const T* pSrc, int srcStep, PeliSize roiSize, Pel32u* const* pHist,
                     const PeliHistogramSpec* pSpec, Pel8u* pBuffer) {
  if (AnyNull(pSrc, pHist, pSpec, pBuffer)) return pelStatusNullPointer;
  for (int c = 0; c < C; ++c)
    if (pHist[c] == nullptr) return pelStatusNullPointer;
  return HistogramImpl<T, C>(pSrc, srcStep, roiSize, pHist, pSpec, pBuffer);
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "stats/histogram_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::stats
