// Arithmetic against OpenCV. pel's Sub and Div take the subtrahend and the
// divisor first, so they get OpenCV's operands in the other order. A scale
// factor s is OpenCV's scale 2^-s (both round to nearest even and saturate).
#include <opencv2/core.hpp>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

Image& A(Images& m, int type) { return m.img(type, 0); }
Image& B(Images& m, int type) { return m.img(type, 1); }
Image& D(Images& m, int type) { return m.img(type, 2); }

template <class T>
T* P(Image& im) {
  return im.as<T>();
}

// pel's two-image call on images 0 and 1 of a type into image 2.
#define PEL_TWO(fn, T, type, ...) \
  [](Images& m) { return fn(P<T>(A(m, type)), A(m, type).step, P<T>(B(m, type)), B(m, type).step, P<T>(D(m, type)), D(m, type).step, m.roi __VA_OPT__(,) __VA_ARGS__); }

const Pel8u kAdd3[3] = {10, 200, 77};

const pelbench::Case kCases[] = {
    {"add_8u_C1", 3, PEL_TWO(peliAdd_8u_C1RSfs, Pel8u, CV_8UC1, 0),
     [](Images& m) { cv::add(A(m, CV_8UC1).mat, B(m, CV_8UC1).mat, D(m, CV_8UC1).mat); return 0; }},
    {"add_16s_C1", 6, PEL_TWO(peliAdd_16s_C1RSfs, Pel16s, CV_16SC1, 0),
     [](Images& m) { cv::add(A(m, CV_16SC1).mat, B(m, CV_16SC1).mat, D(m, CV_16SC1).mat); return 0; }},
    {"add_32f_C1", 12, PEL_TWO(peliAdd_32f_C1R, Pel32f, CV_32FC1),
     [](Images& m) { cv::add(A(m, CV_32FC1).mat, B(m, CV_32FC1).mat, D(m, CV_32FC1).mat); return 0; }},
    {"sub_8u_C1", 3, PEL_TWO(peliSub_8u_C1RSfs, Pel8u, CV_8UC1, 0),
     [](Images& m) { cv::subtract(B(m, CV_8UC1).mat, A(m, CV_8UC1).mat, D(m, CV_8UC1).mat); return 0; }},
    {"sub_16s_C1", 6, PEL_TWO(peliSub_16s_C1RSfs, Pel16s, CV_16SC1, 0),
     [](Images& m) { cv::subtract(B(m, CV_16SC1).mat, A(m, CV_16SC1).mat, D(m, CV_16SC1).mat); return 0; }},
    {"sub_32f_C1", 12, PEL_TWO(peliSub_32f_C1R, Pel32f, CV_32FC1),
     [](Images& m) { cv::subtract(B(m, CV_32FC1).mat, A(m, CV_32FC1).mat, D(m, CV_32FC1).mat); return 0; }},
    {"mul_scale_8u_C1", 3, PEL_TWO(peliMul_8u_C1RSfs, Pel8u, CV_8UC1, 7),
     [](Images& m) {
       cv::multiply(A(m, CV_8UC1).mat, B(m, CV_8UC1).mat, D(m, CV_8UC1).mat, 1.0 / 128);
       return 0;
     }},
    {"div_8u_C1", 3, PEL_TWO(peliDiv_8u_C1RSfs, Pel8u, CV_8UC1, 0),
     [](Images& m) { cv::divide(B(m, CV_8UC1).mat, A(m, CV_8UC1).mat, D(m, CV_8UC1).mat); return 0; }},
    {"div_32f_C1", 12, PEL_TWO(peliDiv_32f_C1R, Pel32f, CV_32FC1),
     [](Images& m) { cv::divide(B(m, CV_32FC1).mat, A(m, CV_32FC1).mat, D(m, CV_32FC1).mat); return 0; }},
    {"addc_8u_C3", 6,
     [](Images& m) {
       return peliAddC_8u_C3RSfs(A(m, CV_8UC3).u8(), A(m, CV_8UC3).step, kAdd3, D(m, CV_8UC3).u8(),
                                 D(m, CV_8UC3).step, m.roi, 0);
     },
     [](Images& m) {
       cv::add(A(m, CV_8UC3).mat, cv::Scalar(kAdd3[0], kAdd3[1], kAdd3[2]), D(m, CV_8UC3).mat);
       return 0;
     }},
    {"mulc_32f_C1", 8,
     [](Images& m) {
       return peliMulC_32f_C1R(P<Pel32f>(A(m, CV_32FC1)), A(m, CV_32FC1).step, 0.37f, P<Pel32f>(D(m, CV_32FC1)),
                               D(m, CV_32FC1).step, m.roi);
     },
     [](Images& m) { cv::multiply(A(m, CV_32FC1).mat, cv::Scalar(0.37), D(m, CV_32FC1).mat); return 0; }},
    {"mulc_32f_C1_vs_convertTo", 8,
     [](Images& m) {
       return peliMulC_32f_C1R(P<Pel32f>(A(m, CV_32FC1)), A(m, CV_32FC1).step, 0.37f, P<Pel32f>(D(m, CV_32FC1)),
                               D(m, CV_32FC1).step, m.roi);
     },
     [](Images& m) { A(m, CV_32FC1).mat.convertTo(D(m, CV_32FC1).mat, CV_32F, 0.37); return 0; }},
};

}  // namespace

PEL_BENCH_CASES(kCases)
