// Lookup tables against OpenCV's LUT with the same 256-entry table; the
// 16-bit table, which OpenCV has no function for, runs alone (its rate is
// the figure to watch).
#include <opencv2/core.hpp>

#include <array>
#include <cmath>
#include <vector>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

// A gamma curve as a classic table: levels 0..256, 256 values.
struct Table8 {
  std::array<Pel32s, 257> levels{};
  std::array<Pel32s, 257> values{};
  cv::Mat cv1, cv3;
  Table8() {
    cv1.create(1, 256, CV_8UC1);
    cv3.create(1, 256, CV_8UC3);
    for (int i = 0; i <= 256; ++i) {
      levels[i] = i;
      values[i] = Pel32s(std::lround(255.0 * std::pow(std::min(i, 255) / 255.0, 1 / 2.2)));
    }
    for (int i = 0; i < 256; ++i) {
      cv1.at<uchar>(i) = uchar(values[i]);
      cv3.at<cv::Vec3b>(i) = cv::Vec3b(uchar(values[i]), uchar(values[i]), uchar(values[i]));
    }
  }
};
const Table8& Gamma() {
  static const Table8 t;
  return t;
}

// 1,024 levels over the 16-bit range, values a falling ramp.
struct Table16 {
  std::vector<Pel32s> levels, values;
  Table16() {
    for (int i = 0; i < 1024; ++i) {
      levels.push_back(i * 64);
      values.push_back(65535 - i * 64);
    }
  }
};
const Table16& Ramp() {
  static const Table16 t;
  return t;
}

const pelbench::Case kCases[] = {
    {"lut_8u_C1", 2,
     [](Images& m) {
       Image &s = m.img(CV_8UC1, 0), &d = m.img(CV_8UC1, 1);
       return peliLUT_8u_C1R(s.u8(), s.step, d.u8(), d.step, m.roi, Gamma().values.data(), Gamma().levels.data(), 257);
     },
     [](Images& m) {
       cv::LUT(m.img(CV_8UC1, 0).mat, Gamma().cv1, m.img(CV_8UC1, 1).mat);
       return 0;
     }},
    {"lut_8u_C3", 6,
     [](Images& m) {
       Image &s = m.img(CV_8UC3, 0), &d = m.img(CV_8UC3, 1);
       const Pel32s* v[3] = {Gamma().values.data(), Gamma().values.data(), Gamma().values.data()};
       const Pel32s* l[3] = {Gamma().levels.data(), Gamma().levels.data(), Gamma().levels.data()};
       int n[3] = {257, 257, 257};
       return peliLUT_8u_C3R(s.u8(), s.step, d.u8(), d.step, m.roi, v, l, n);
     },
     [](Images& m) {
       cv::LUT(m.img(CV_8UC3, 0).mat, Gamma().cv3, m.img(CV_8UC3, 1).mat);
       return 0;
     }},
    {"lut_16u_C1_1024", 4,
     [](Images& m) {
       Image &s = m.img(CV_16UC1, 0), &d = m.img(CV_16UC1, 1);
       return peliLUT_16u_C1R(s.as<Pel16u>(), s.step, d.as<Pel16u>(), d.step, m.roi, Ramp().values.data(),
                              Ramp().levels.data(), 1024);
     },
     nullptr},
};

}  // namespace

PEL_BENCH_CASES(kCases)
