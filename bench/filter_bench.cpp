// The filters beside OpenCV: general filter (filter2D), box (blur), median
// (medianBlur), minimum and maximum (erode, dilate), replicate border.
#include <opencv2/imgproc.hpp>

#include <cstring>
#include <string>
#include <vector>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

Image& S(Images& m, int type) { return m.img(type, 0); }
Image& D(Images& m, int type) { return m.img(type, 1); }

// Caller memory kept with the case's buffers: a spec or a work buffer.
std::vector<uint8_t>& Block(Images& m, const std::string& key, size_t bytes) {
  auto& slot = m.extra["filter" + key];
  if (!slot) slot = std::make_shared<std::vector<uint8_t>>(bytes);
  return *static_cast<std::vector<uint8_t>*>(slot.get());
}

// Sharpening kernels with a divisor: 3x3 and 5x5.
std::vector<Pel16s> IntKernel(int k) {
  std::vector<Pel16s> v(size_t(k * k), -1);
  v[size_t(k * k / 2)] = static_cast<Pel16s>(k * k + 15);
  return v;
}

template <int K, bool kFloat>
PelStatus PelFilter(Images& m) {
  const int type = kFloat ? CV_32FC1 : CV_8UC1;
  const std::string key = std::to_string(K) + (kFloat ? "f" : "i") + std::to_string(m.w);
  auto& spec = Block(m, "spec" + key, 0);
  auto& buf = Block(m, "buf" + key, 0);
  if (spec.empty()) {
    int ss = 0, bs = 0;
    peliFilterBorderGetSize({K, K}, m.roi, kFloat ? pelType32f : pelType8u, kFloat ? pelType32f : pelType16s, 1, &ss, &bs);
    spec.resize(size_t(ss));
    buf.resize(size_t(bs));
    const std::vector<Pel16s> ki = IntKernel(K);
    auto* s = reinterpret_cast<PeliFilterBorderSpec*>(spec.data());
    if (kFloat) {
      std::vector<Pel32f> kf(ki.begin(), ki.end());
      for (auto& v : kf) v /= 16.0f;
      peliFilterBorderInit_32f(kf.data(), {K, K}, pelType32f, 1, pelRoundNear, s);
    } else {
      peliFilterBorderInit_16s(ki.data(), {K, K}, 16, pelType8u, 1, pelRoundNear, s);
    }
  }
  const auto* s = reinterpret_cast<const PeliFilterBorderSpec*>(spec.data());
  if (kFloat)
    return peliFilterBorder_32f_C1R(S(m, type).as<Pel32f>(), S(m, type).step, D(m, type).as<Pel32f>(), D(m, type).step,
                                    m.roi, pelBorderReplicate, nullptr, s, buf.data());
  return peliFilterBorder_8u_C1R(S(m, type).u8(), S(m, type).step, D(m, type).u8(), D(m, type).step, m.roi,
                                 pelBorderReplicate, nullptr, s, buf.data());
}

template <int K, bool kFloat>
PelStatus CvFilter(Images& m) {
  const int type = kFloat ? CV_32FC1 : CV_8UC1;
  const std::vector<Pel16s> ki = IntKernel(K);
  cv::Mat k(K, K, CV_32F);
  for (int i = 0; i < K * K; ++i) k.at<float>(i / K, i % K) = ki[size_t(i)] / 16.0f;
  cv::filter2D(S(m, type).mat, D(m, type).mat, -1, k, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
  return 0;
}

enum class Op { Box, Median, Min, Max };

template <Op kOp, int KW, int KH, int kType>
PelStatus PelRank(Images& m) {
  constexpr bool f = kType == CV_32FC1;
  constexpr int C = kType == CV_8UC3 ? 3 : 1;
  const PelDataType dt = f ? pelType32f : pelType8u;
  const std::string key = "rank" + std::to_string(int(kOp)) + "_" + std::to_string(KW) + "_" + std::to_string(kType) +
                          "_" + std::to_string(m.w);
  auto& buf = Block(m, key, 0);
  if (buf.empty()) {
    int bs = 0;
    if (kOp == Op::Box) peliFilterBoxBorderGetBufferSize(m.roi, {KW, KH}, dt, C, &bs);
    else if (kOp == Op::Median) peliFilterMedianBorderGetBufferSize(m.roi, {KW, KH}, dt, C, &bs);
    else peliFilterMaxBorderGetBufferSize(m.roi, {KW, KH}, dt, C, &bs);
    buf.resize(size_t(bs));
  }
  Image& s = S(m, kType);
  Image& d = D(m, kType);
  const PeliSize k{KW, KH};
  if constexpr (f) {
    auto* sp = s.as<Pel32f>();
    auto* dp = d.as<Pel32f>();
    if (kOp == Op::Box) return peliFilterBoxBorder_32f_C1R(sp, s.step, dp, d.step, m.roi, k, pelBorderReplicate, nullptr, buf.data());
    if (kOp == Op::Min) return peliFilterMinBorder_32f_C1R(sp, s.step, dp, d.step, m.roi, k, pelBorderReplicate, 0, buf.data());
    return peliFilterMaxBorder_32f_C1R(sp, s.step, dp, d.step, m.roi, k, pelBorderReplicate, 0, buf.data());
  } else if constexpr (C == 3) {
    return peliFilterMedianBorder_8u_C3R(s.u8(), s.step, d.u8(), d.step, m.roi, k, pelBorderReplicate, 0, buf.data());
  } else {
    if (kOp == Op::Box) return peliFilterBoxBorder_8u_C1R(s.u8(), s.step, d.u8(), d.step, m.roi, k, pelBorderReplicate, nullptr, buf.data());
    if (kOp == Op::Median) return peliFilterMedianBorder_8u_C1R(s.u8(), s.step, d.u8(), d.step, m.roi, k, pelBorderReplicate, 0, buf.data());
    if (kOp == Op::Min) return peliFilterMinBorder_8u_C1R(s.u8(), s.step, d.u8(), d.step, m.roi, k, pelBorderReplicate, 0, buf.data());
    return peliFilterMaxBorder_8u_C1R(s.u8(), s.step, d.u8(), d.step, m.roi, k, pelBorderReplicate, 0, buf.data());
  }
}

template <Op kOp, int KW, int KH, int kType>
PelStatus CvRank(Images& m) {
  const cv::Mat& s = S(m, kType).mat;
  cv::Mat& d = D(m, kType).mat;
  const cv::Mat element = cv::getStructuringElement(cv::MORPH_RECT, {KW, KH});
  if (kOp == Op::Box) cv::blur(s, d, {KW, KH}, {-1, -1}, cv::BORDER_REPLICATE);
  else if (kOp == Op::Median) cv::medianBlur(s, d, KW);
  else if (kOp == Op::Min) cv::erode(s, d, element, {-1, -1}, 1, cv::BORDER_REPLICATE);
  else cv::dilate(s, d, element, {-1, -1}, 1, cv::BORDER_REPLICATE);
  return 0;
}

#define PEL_RANK_CASE(name, op, kw, kh, type, bpp) \
  {name, bpp, PelRank<op, kw, kh, type>, CvRank<op, kw, kh, type>}

const pelbench::Case kCases[] = {
    {"filter_3x3_8u", 2, PelFilter<3, false>, CvFilter<3, false>},
    {"filter_5x5_8u", 2, PelFilter<5, false>, CvFilter<5, false>},
    {"filter_3x3_32f", 8, PelFilter<3, true>, CvFilter<3, true>},
    {"filter_5x5_32f", 8, PelFilter<5, true>, CvFilter<5, true>},
    PEL_RANK_CASE("box_3x3_8u", Op::Box, 3, 3, CV_8UC1, 2),
    PEL_RANK_CASE("box_5x5_8u", Op::Box, 5, 5, CV_8UC1, 2),
    PEL_RANK_CASE("box_11x11_8u", Op::Box, 11, 11, CV_8UC1, 2),
    PEL_RANK_CASE("box_5x5_32f", Op::Box, 5, 5, CV_32FC1, 8),
    PEL_RANK_CASE("median_3x3_8u", Op::Median, 3, 3, CV_8UC1, 2),
    PEL_RANK_CASE("median_5x5_8u", Op::Median, 5, 5, CV_8UC1, 2),
    PEL_RANK_CASE("median_3x3_8u_C3", Op::Median, 3, 3, CV_8UC3, 6),
    PEL_RANK_CASE("median_7x7_8u", Op::Median, 7, 7, CV_8UC1, 2),
    PEL_RANK_CASE("median_15x15_8u", Op::Median, 15, 15, CV_8UC1, 2),
    PEL_RANK_CASE("median_21x21_8u", Op::Median, 21, 21, CV_8UC1, 2),
    PEL_RANK_CASE("min_3x3_8u", Op::Min, 3, 3, CV_8UC1, 2),
    PEL_RANK_CASE("min_7x7_8u", Op::Min, 7, 7, CV_8UC1, 2),
    PEL_RANK_CASE("min_3x3_32f", Op::Min, 3, 3, CV_32FC1, 8),
    PEL_RANK_CASE("max_3x3_8u", Op::Max, 3, 3, CV_8UC1, 2),
    PEL_RANK_CASE("max_7x7_8u", Op::Max, 7, 7, CV_8UC1, 2),
    PEL_RANK_CASE("max_3x3_32f", Op::Max, 3, 3, CV_32FC1, 8),
};

}  // namespace

PEL_BENCH_CASES(kCases)
