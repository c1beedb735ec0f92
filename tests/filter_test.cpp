// The filters' worked cases, by hand: what a row's model would only restate.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "pelcore.h"
#include "peli.h"

namespace {

// Filters a one-row or small image with an integer kernel through the
// library's own set-up calls.
template <class T>
std::vector<T> Filter16s(const std::vector<T>& src, PeliSize roi, const std::vector<Pel16s>& kernel, PeliSize k,
                         int divisor, int round, int border = pelBorderReplicate) {
  const PelDataType type = sizeof(T) == 1 ? pelType8u : pelType16s;
  int specBytes = 0, bufBytes = 0;
  EXPECT_EQ(peliFilterBorderGetSize(k, roi, type, pelType16s, 1, &specBytes, &bufBytes), pelStatusOk);
  std::vector<uint8_t> spec(static_cast<size_t>(specBytes)), buf(static_cast<size_t>(bufBytes));
  auto* s = reinterpret_cast<PeliFilterBorderSpec*>(spec.data());
  EXPECT_EQ(peliFilterBorderInit_16s(kernel.data(), k, divisor, type, 1, round, s), pelStatusOk);
  std::vector<T> dst(src.size());
  const int step = roi.width * int(sizeof(T));
  PelStatus st;
  if constexpr (sizeof(T) == 1)
    st = peliFilterBorder_8u_C1R(src.data(), step, dst.data(), step, roi, border, nullptr, s, buf.data());
  else
    st = peliFilterBorder_16s_C1R(src.data(), step, dst.data(), step, roi, border, nullptr, s, buf.data());
  EXPECT_EQ(st, pelStatusOk);
  return dst;
}

TEST(FilterWorked, CorrelationNotConvolution) {
  const std::vector<Pel8u> src{10, 20, 30, 40, 50};
  // 3x1 {1, 0, 0}: each output is the pixel to its left.
  EXPECT_EQ(Filter16s(src, {5, 1}, {1, 0, 0}, {3, 1}, 1, 1), (std::vector<Pel8u>{10, 10, 20, 30, 40}));
  // Width 4: the anchor is column 1, so the kernel reaches 1 left and 2 right.
  EXPECT_EQ(Filter16s(src, {5, 1}, {0, 1, 0, 0}, {4, 1}, 1, 1), src);
  EXPECT_EQ(Filter16s(src, {5, 1}, {0, 0, 0, 1}, {4, 1}, 1, 1), (std::vector<Pel8u>{30, 40, 50, 50, 50}));
  // 1x1 with divisor 1 copies.
  EXPECT_EQ(Filter16s(src, {5, 1}, {1}, {1, 1}, 1, 1), src);
}

TEST(FilterWorked, DivisorsAndRounding) {
  // 16s data with a 3x3 kernel keeps the integer path; only the centre
  // weighs. Quotients of 2.5 and -2.5 by mode: toward zero, ties to even,
  // halves away from zero. Divisor 8 shifts, -4 multiplies by the reciprocal.
  const std::vector<Pel16s> centre{0, 0, 0, 0, 1, 0, 0, 0, 0};
  const std::vector<Pel16s> src{20, -20, 12, -12, 4};
  const PeliSize roi{5, 1};
  EXPECT_EQ(Filter16s(src, roi, centre, {3, 3}, 8, pelRoundZero), (std::vector<Pel16s>{2, -2, 1, -1, 0}));
  EXPECT_EQ(Filter16s(src, roi, centre, {3, 3}, 8, pelRoundNear), (std::vector<Pel16s>{2, -2, 2, -2, 0}));
  EXPECT_EQ(Filter16s(src, roi, centre, {3, 3}, 8, pelRoundAlternate), (std::vector<Pel16s>{3, -3, 2, -2, 1}));
  const std::vector<Pel16s> quarter{-10, 10, 6, -6, 1};
  EXPECT_EQ(Filter16s(quarter, roi, centre, {3, 3}, -4, pelRoundZero), (std::vector<Pel16s>{2, -2, -1, 1, 0}));
  EXPECT_EQ(Filter16s(quarter, roi, centre, {3, 3}, -4, pelRoundNear), (std::vector<Pel16s>{2, -2, -2, 2, 0}));
  EXPECT_EQ(Filter16s(quarter, roi, centre, {3, 3}, -4, pelRoundAlternate), (std::vector<Pel16s>{3, -3, -2, 2, 0}));
  // Saturation of 8u results.
  EXPECT_EQ(Filter16s(std::vector<Pel8u>{200, 100}, {2, 1}, {2}, {1, 1}, 1, 1), (std::vector<Pel8u>{255, 200}));
}

TEST(FilterWorked, InPlaceInit) {
  // The kernel already at the spec's kernel area, reversed where it lies.
  int specBytes = 0, bufBytes = 0;
  ASSERT_EQ(peliFilterBorderGetSize({3, 1}, {4, 1}, pelType32f, pelType32f, 1, &specBytes, &bufBytes), pelStatusOk);
  std::vector<uint8_t> spec(static_cast<size_t>(specBytes)), buf(static_cast<size_t>(bufBytes));
  uint8_t* aligned = spec.data() + ((64 - reinterpret_cast<uintptr_t>(spec.data()) % 64) % 64);
  auto* inside = reinterpret_cast<Pel32f*>(aligned + 128);
  inside[0] = 1, inside[1] = 0, inside[2] = 0;
  auto* s = reinterpret_cast<PeliFilterBorderSpec*>(spec.data());
  ASSERT_EQ(peliFilterBorderInit_32f(inside, {3, 1}, pelType32f, 1, pelRoundNear, s), pelStatusOk);
  const Pel32f src[4] = {1, 2, 3, 4};
  Pel32f dst[4] = {};
  ASSERT_EQ(peliFilterBorder_32f_C1R(src, 16, dst, 16, {4, 1}, pelBorderReplicate, nullptr, s, buf.data()), pelStatusOk);
  EXPECT_EQ(std::vector<Pel32f>(dst, dst + 4), (std::vector<Pel32f>{1, 1, 2, 3}));
}

TEST(FilterWorked, BufferRoomForWideKernelLayout) {
  // A 63x63 kernel over one pixel: with 64-byte byte vectors the buffer holds
  // 63 rows of sixteen 64-byte groups of four taps, plus the 128-byte slack,
  // which is more than the plain layout needs.
  int specBytes = 0, bufBytes = 0;
  ASSERT_EQ(peliFilterBorderGetSize({63, 63}, {1, 1}, pelType8u, pelType16s, 1, &specBytes, &bufBytes), pelStatusOk);
  const int wide = (63 * 64 * 16 + 191) & ~63;
  if (ownGetFeature(PEL_CPUID_AVX512WIDE)) EXPECT_EQ(bufBytes, wide);
  else EXPECT_LT(bufBytes, wide);
}

TEST(FilterWorked, MedianInPlace) {
  std::vector<Pel8u> img(33 * 7), copy;
  for (size_t i = 0; i < img.size(); ++i) img[i] = Pel8u(i * 37 % 251);
  copy = img;
  int bytes = 0;
  ASSERT_EQ(peliFilterMedianBorderGetBufferSize({33, 7}, {3, 3}, pelType8u, 1, &bytes), pelStatusOk);
  std::vector<uint8_t> buf(static_cast<size_t>(bytes));
  // 1x1 with the destination the source: nothing is done.
  EXPECT_EQ(peliFilterMedianBorder_8u_C1R(img.data(), 33, img.data(), 33, {33, 7}, {1, 1}, 1, 0, buf.data()), pelStatusOk);
  EXPECT_EQ(img, copy);
  // 3x3 in place equals 3x3 into another image.
  std::vector<Pel8u> out(img.size());
  ASSERT_EQ(peliFilterMedianBorder_8u_C1R(img.data(), 33, out.data(), 33, {33, 7}, {3, 3}, 1, 0, buf.data()), pelStatusOk);
  ASSERT_EQ(peliFilterMedianBorder_8u_C1R(img.data(), 33, img.data(), 33, {33, 7}, {3, 3}, 1, 0, buf.data()), pelStatusOk);
  EXPECT_EQ(img, out);
}

}  // namespace
