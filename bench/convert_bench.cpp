// Conversion, scaling, threshold and compare against OpenCV's convertTo,
// threshold and compare on the same buffers.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

Image& U8(Images& m, int k) { return m.img(CV_8UC1, k); }
Image& S16(Images& m, int k) { return m.img(CV_16SC1, k); }
Image& F32(Images& m, int k) { return m.img(CV_32FC1, k); }

const pelbench::Case kCases[] = {
    {"convert_8u32f_C1", 5,
     [](Images& m) { return peliConvert_8u32f_C1R(U8(m, 0).u8(), U8(m, 0).step, F32(m, 1).as<Pel32f>(), F32(m, 1).step, m.roi); },
     [](Images& m) { U8(m, 0).mat.convertTo(F32(m, 1).mat, CV_32F); return 0; }},
    {"convert_32f8u_C1", 5,
     [](Images& m) {
       return peliConvert_32f8u_C1R(F32(m, 0).as<Pel32f>(), F32(m, 0).step, U8(m, 1).u8(), U8(m, 1).step, m.roi,
                                    pelRoundNear);
     },
     [](Images& m) { F32(m, 0).mat.convertTo(U8(m, 1).mat, CV_8U); return 0; }},
    {"convert_16s8u_C1", 3,
     [](Images& m) { return peliConvert_16s8u_C1R(S16(m, 0).as<Pel16s>(), S16(m, 0).step, U8(m, 1).u8(), U8(m, 1).step, m.roi); },
     [](Images& m) { S16(m, 0).mat.convertTo(U8(m, 1).mat, CV_8U); return 0; }},
    {"convert_8u16s_C1", 3,
     [](Images& m) { return peliConvert_8u16s_C1R(U8(m, 0).u8(), U8(m, 0).step, S16(m, 1).as<Pel16s>(), S16(m, 1).step, m.roi); },
     [](Images& m) { U8(m, 0).mat.convertTo(S16(m, 1).mat, CV_16S); return 0; }},
    // [vMin, vMax] onto 0..255: x * 255 / (vMax - vMin) - vMin * that.
    {"scale_32f8u_C1", 5,
     [](Images& m) {
       return peliScale_32f8u_C1R(F32(m, 0).as<Pel32f>(), F32(m, 0).step, U8(m, 1).u8(), U8(m, 1).step, m.roi, -50.0f,
                                  300.0f);
     },
     [](Images& m) {
       const double f = 255.0 / 350.0;
       F32(m, 0).mat.convertTo(U8(m, 1).mat, CV_8U, f, 50.0 * f);
       return 0;
     }},
    {"threshold_gt_8u_C1", 2,
     [](Images& m) { return peliThreshold_8u_C1R(U8(m, 0).u8(), U8(m, 0).step, U8(m, 1).u8(), U8(m, 1).step, m.roi, 128, pelCmpGreater); },
     [](Images& m) { cv::threshold(U8(m, 0).mat, U8(m, 1).mat, 128, 255, cv::THRESH_TRUNC); return 0; }},
    // x <= 128 gives 0, as THRESH_TOZERO does.
    {"threshold_ltval0_8u_C1", 2,
     [](Images& m) { return peliThreshold_LTVal_8u_C1R(U8(m, 0).u8(), U8(m, 0).step, U8(m, 1).u8(), U8(m, 1).step, m.roi, 129, 0); },
     [](Images& m) { cv::threshold(U8(m, 0).mat, U8(m, 1).mat, 128, 255, cv::THRESH_TOZERO); return 0; }},
    {"threshold_gt_32f_C1", 8,
     [](Images& m) {
       return peliThreshold_32f_C1R(F32(m, 0).as<Pel32f>(), F32(m, 0).step, F32(m, 1).as<Pel32f>(), F32(m, 1).step, m.roi,
                                    0.5f, pelCmpGreater);
     },
     [](Images& m) { cv::threshold(F32(m, 0).mat, F32(m, 1).mat, 0.5, 255, cv::THRESH_TRUNC); return 0; }},
    {"threshold_ltval0_32f_C1", 8,
     [](Images& m) {
       return peliThreshold_LTVal_32f_C1R(F32(m, 0).as<Pel32f>(), F32(m, 0).step, F32(m, 1).as<Pel32f>(), F32(m, 1).step,
                                          m.roi, 0.5f, 0.0f);
     },
     [](Images& m) { cv::threshold(F32(m, 0).mat, F32(m, 1).mat, 0.5, 255, cv::THRESH_TOZERO); return 0; }},
    {"compare_8u_C1", 3,
     [](Images& m) {
       return peliCompare_8u_C1R(U8(m, 0).u8(), U8(m, 0).step, U8(m, 2).u8(), U8(m, 2).step, U8(m, 1).u8(), U8(m, 1).step,
                                 m.roi, pelCmpLess);
     },
     [](Images& m) { cv::compare(U8(m, 0).mat, U8(m, 2).mat, U8(m, 1).mat, cv::CMP_LT); return 0; }},
    {"compareC_8u_C1", 2,
     [](Images& m) {
       return peliCompareC_8u_C1R(U8(m, 0).u8(), U8(m, 0).step, 128, U8(m, 1).u8(), U8(m, 1).step, m.roi, pelCmpGreater);
     },
     [](Images& m) { cv::compare(U8(m, 0).mat, 128, U8(m, 1).mat, cv::CMP_GT); return 0; }},
};

}  // namespace

PEL_BENCH_CASES(kCases)
