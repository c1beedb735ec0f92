// Row kernels of the filters, dispatched to the best instruction set; the
// baseline runs the scalar references (filter_scalar.h). Each takes the
// mask's rows of the extended source (RowWindow) and writes one output row
// of `lanes` = roiW x channels elements; element type and channel count are
// run-time arguments so that one dispatch table serves every export.
#pragma once

#include <cstdint>
#include <type_traits>

namespace pel::filter {

enum class Lane { U8, S16, U16, F32, F64 };

template <class T>
constexpr Lane LaneOf() {
  if constexpr (std::is_same_v<T, uint8_t>) return Lane::U8;
  else if constexpr (std::is_same_v<T, int16_t>) return Lane::S16;
  else if constexpr (std::is_same_v<T, uint16_t>) return Lane::U16;
  else if constexpr (std::is_same_v<T, float>) return Lane::F32;
  else return Lane::F64;
}

// f(T{}) for the element type of a lane code.
template <class F>
void VisitLane(Lane lane, F&& f) {
  switch (lane) {
    case Lane::U8: return f(uint8_t{});
    case Lane::S16: return f(int16_t{});
    case Lane::U16: return f(uint16_t{});
    case Lane::F32: return f(float{});
    case Lane::F64: return f(double{});
  }
}

// One general-filter call, from its spec. Coefficient (i, j) of the caller's
// kernel is rev[kw x kh - 1 - (i x kw + j)] (the spec keeps it reversed).
struct CorrelateJob {
  Lane lane;
  int C;
  int kw, kh;
  bool intKernel;        // 16s coefficients, 32-bit integer sums
  const int16_t* revI;
  const float* revF;
  const double* revD;
  int divMode;           // integer kernels: 0 none, 1 shift, 2 reciprocal
  int shift;
  float scale;           // reciprocal of the divisor (mode 2)
  int32_t offsetI;       // offset x divisor, added to integer sums
  float offsetF;
  double offsetD;
  int round;             // 0 toward zero, 1 nearest-even, 2 halves away from zero
};

void CorrelateRow(const CorrelateJob& job, const uint8_t* const* rows, void* dst, int64_t lanes);

// Minimum or maximum over kw x kh; tmp holds lanes + (kw - 1) x C elements.
void ExtremeRow(Lane lane, bool max, int C, int kw, int kh, const uint8_t* const* rows, void* tmp, void* dst,
                int64_t lanes);

// The separable extreme of integer lanes (U8, S16, U16): the horizontal
// extreme of kw taps of one extended row.
void ExtremeHorizontal(Lane lane, bool max, int C, int kw, const uint8_t* row, void* dst, int64_t lanes);

// Both passes for a pair of output rows in one sweep: the rows a and b
// (extended source rows, b may be null) enter the window, their horizontal
// extremes go to hA and hB for later pairs, and out0 (out1) gets the
// vertical extreme of held[0 .. kh - 2] and a (held[1 .. kh - 2], a and b);
// held are the horizontal extremes of the kh - 1 rows above a.
struct ExtremePairJob {
  Lane lane;
  bool max;
  int C, kw, kh;
  const uint8_t* const* held;
  const uint8_t* a = nullptr;
  const uint8_t* b = nullptr;
  void* hA = nullptr;
  void* hB = nullptr;
  void* out0 = nullptr;
  void* out1 = nullptr;
  // Rows the next pair will read, fetched ahead when not null.
  const uint8_t* next0 = nullptr;
  const uint8_t* next1 = nullptr;
};
void ExtremePair(const ExtremePairJob& job, int64_t lanes);

// Median over kw x kh (odd sizes); scratch holds kw x kh elements.
void MedianRow(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* scratch, void* dst,
               int64_t lanes);

// Box mean over kw x kh; colSums holds lanes + (kw - 1) x C eight-byte sums.
void BoxRow(Lane lane, int C, int kw, int kh, const uint8_t* const* rows, void* colSums, void* dst,
            int64_t lanes);

// Two output rows of the 3x3 median of 8- and 16-bit lanes: rows holds the
// four rows they cover; scratch holds 9 elements.
void Median3x3Pair(Lane lane, int C, const uint8_t* const* rows, void* scratch, void* dst0, void* dst1,
                   int64_t lanes);

// The 8-bit box of at most 257 taps with running column sums in 16-bit
// lanes (exact: every sum fits). BoxColumns8 sets col[0, lanes) to the sums
// of the kh rows, or, given `add`, adds the row entering the window and
// subtracts the one leaving it (rows unused). BoxMeans8 writes the rounded
// means of kw column sums, as BoxRow.
void BoxColumns8(int kh, const uint8_t* const* rows, const uint8_t* add, const uint8_t* sub, uint16_t* col,
                 int64_t lanes);
void BoxMeans8(int C, int kw, int kh, const uint16_t* col, uint8_t* dst, int64_t lanes);

}  // namespace pel::filter
