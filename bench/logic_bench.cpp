// Logic and shifts against OpenCV's bitwise functions; shifts, which OpenCV
// has no function for, against memcpy of the same bytes.
#include <opencv2/core.hpp>

#include <cstring>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

Image& A8(Images& m) { return m.img(CV_8UC1, 0); }
Image& B8(Images& m) { return m.img(CV_8UC1, 1); }
Image& D8(Images& m) { return m.img(CV_8UC1, 2); }
Image& A8C3(Images& m) { return m.img(CV_8UC3, 0); }
Image& D8C3(Images& m) { return m.img(CV_8UC3, 1); }
Image& A16(Images& m) { return m.img(CV_16UC1, 0); }
Image& D16(Images& m) { return m.img(CV_16UC1, 1); }

int Memcpy(Image& src, Image& dst, int h) {
  std::memcpy(dst.u8(), src.u8(), src.bytes(h));
  return 0;
}

const Pel8u kColour[3] = {0xF0, 0x3C, 0x0F};

const pelbench::Case kCases[] = {
    {"and_8u_C1", 3,
     [](Images& m) {
       return peliAnd_8u_C1R(A8(m).u8(), A8(m).step, B8(m).u8(), B8(m).step, D8(m).u8(), D8(m).step, m.roi);
     },
     [](Images& m) { cv::bitwise_and(A8(m).mat, B8(m).mat, D8(m).mat); return 0; }},
    {"xor_8u_C1", 3,
     [](Images& m) {
       return peliXor_8u_C1R(A8(m).u8(), A8(m).step, B8(m).u8(), B8(m).step, D8(m).u8(), D8(m).step, m.roi);
     },
     [](Images& m) { cv::bitwise_xor(A8(m).mat, B8(m).mat, D8(m).mat); return 0; }},
    {"not_8u_C1", 2,
     [](Images& m) { return peliNot_8u_C1R(A8(m).u8(), A8(m).step, D8(m).u8(), D8(m).step, m.roi); },
     [](Images& m) { cv::bitwise_not(A8(m).mat, D8(m).mat); return 0; },
     [](Images& m) { return Memcpy(A8(m), D8(m), m.h); }},
    {"andc_8u_C3", 6,
     [](Images& m) { return peliAndC_8u_C3R(A8C3(m).u8(), A8C3(m).step, kColour, D8C3(m).u8(), D8C3(m).step, m.roi); },
     [](Images& m) {
       cv::bitwise_and(A8C3(m).mat, cv::Scalar(kColour[0], kColour[1], kColour[2]), D8C3(m).mat);
       return 0;
     }},
    {"lshift_8u_C1", 2,
     [](Images& m) { return peliLShiftC_8u_C1R(A8(m).u8(), A8(m).step, 3, D8(m).u8(), D8(m).step, m.roi); },
     nullptr, [](Images& m) { return Memcpy(A8(m), D8(m), m.h); }},
    {"rshift_8u_C1", 2,
     [](Images& m) { return peliRShiftC_8u_C1R(A8(m).u8(), A8(m).step, 3, D8(m).u8(), D8(m).step, m.roi); },
     nullptr, [](Images& m) { return Memcpy(A8(m), D8(m), m.h); }},
    {"lshift_16u_C1", 4,
     [](Images& m) {
       return peliLShiftC_16u_C1R(A16(m).as<Pel16u>(), A16(m).step, 3, D16(m).as<Pel16u>(), D16(m).step, m.roi);
     },
     nullptr, [](Images& m) { return Memcpy(A16(m), D16(m), m.h); }},
    {"rshift_16u_C1", 4,
     [](Images& m) {
       return peliRShiftC_16u_C1R(A16(m).as<Pel16u>(), A16(m).step, 3, D16(m).as<Pel16u>(), D16(m).step, m.roi);
     },
     nullptr, [](Images& m) { return Memcpy(A16(m), D16(m), m.h); }},
    {"rshift_8u_C3", 6,
     [](Images& m) {
       static const Pel32u counts[3] = {1, 2, 3};
       return peliRShiftC_8u_C3R(A8C3(m).u8(), A8C3(m).step, counts, D8C3(m).u8(), D8C3(m).step, m.roi);
     },
     nullptr, [](Images& m) { return Memcpy(A8C3(m), D8C3(m), m.h); }},
};

}  // namespace

PEL_BENCH_CASES(kCases)
