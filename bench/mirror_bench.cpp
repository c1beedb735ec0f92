// Mirror, transpose, channel swap and border copies against OpenCV.
// flip_h reverses each row (OpenCV flip code 1), flip_v reverses the order
// of the rows (code 0), flip_hv both (code -1).
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cstring>
#include <memory>
#include <string>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

// Frame width of the border cases, on every side.
constexpr int kFrame = 16;

Image& S(Images& m, int type) { return m.img(type, 0); }
Image& D(Images& m, int type) { return m.img(type, 1); }

// An image of another size than the case's (a transposed or framed
// destination), made once and kept with the case's buffers.
Image& Sized(Images& m, int type, int w, int h) {
  const std::string key = "mirror" + std::to_string(type) + "x" + std::to_string(w) + "x" + std::to_string(h);
  auto& slot = m.extra[key];
  if (!slot) {
    auto im = std::make_shared<Image>();
    Pel8u* p = peliMalloc_8u_C1(w * int(CV_ELEM_SIZE(type)), h, &im->step);
    std::memset(p, 0, size_t(im->step) * size_t(h));  // fault the pages in before timing
    im->mem.reset(p);
    im->mat = cv::Mat(h, w, type, p, size_t(im->step));
    slot = im;
  }
  return *static_cast<Image*>(slot.get());
}
Image& Transposed(Images& m, int type) { return Sized(m, type, m.h, m.w); }
Image& Framed(Images& m) { return Sized(m, CV_8UC1, m.w + 2 * kFrame, m.h + 2 * kFrame); }

template <int kType, PeliAxis kFlip>
PelStatus PelFlip(Images& m) {
  if constexpr (kType == CV_8UC1) {
    return peliMirror_8u_C1R(S(m, kType).u8(), S(m, kType).step, D(m, kType).u8(), D(m, kType).step, m.roi, kFlip);
  } else {
    return peliMirror_8u_C4R(S(m, kType).u8(), S(m, kType).step, D(m, kType).u8(), D(m, kType).step, m.roi, kFlip);
  }
}

template <int kType, int kCode>
PelStatus CvFlip(Images& m) {
  cv::flip(S(m, kType).mat, D(m, kType).mat, kCode);
  return 0;
}

PelStatus CvBorder(Images& m, int kind) {
  Image& d = Framed(m);
  cv::copyMakeBorder(S(m, CV_8UC1).mat, d.mat, kFrame, kFrame, kFrame, kFrame, kind, cv::Scalar(7));
  return 0;
}

const int kBgrToRgb[3] = {2, 1, 0};
const int kBgraToRgba[4] = {2, 1, 0, 3};

const pelbench::Case kCases[] = {
    {"flip_h_8u_C1", 2, PelFlip<CV_8UC1, pelAxisVertical>, CvFlip<CV_8UC1, 1>},
    {"flip_h_8u_C4", 8, PelFlip<CV_8UC4, pelAxisVertical>, CvFlip<CV_8UC4, 1>},
    {"flip_v_8u_C1", 2, PelFlip<CV_8UC1, pelAxisHorizontal>, CvFlip<CV_8UC1, 0>},
    {"flip_v_8u_C4", 8, PelFlip<CV_8UC4, pelAxisHorizontal>, CvFlip<CV_8UC4, 0>},
    {"flip_hv_8u_C1", 2, PelFlip<CV_8UC1, pelAxisBoth>, CvFlip<CV_8UC1, -1>},
    {"flip_hv_8u_C4", 8, PelFlip<CV_8UC4, pelAxisBoth>, CvFlip<CV_8UC4, -1>},
    {"transpose_8u_C1", 2,
     [](Images& m) {
       Image& d = Transposed(m, CV_8UC1);
       return peliTranspose_8u_C1R(S(m, CV_8UC1).u8(), S(m, CV_8UC1).step, d.u8(), d.step, m.roi);
     },
     [](Images& m) { cv::transpose(S(m, CV_8UC1).mat, Transposed(m, CV_8UC1).mat); return 0; }},
    {"transpose_32f_C1", 8,
     [](Images& m) {
       Image& d = Transposed(m, CV_32FC1);
       return peliTranspose_32f_C1R(S(m, CV_32FC1).as<Pel32f>(), S(m, CV_32FC1).step, d.as<Pel32f>(), d.step, m.roi);
     },
     [](Images& m) { cv::transpose(S(m, CV_32FC1).mat, Transposed(m, CV_32FC1).mat); return 0; }},
    {"swap_8u_C3_bgr2rgb", 6,
     [](Images& m) {
       return peliSwapChannels_8u_C3R(S(m, CV_8UC3).u8(), S(m, CV_8UC3).step, D(m, CV_8UC3).u8(), D(m, CV_8UC3).step,
                                      m.roi, kBgrToRgb);
     },
     [](Images& m) { cv::cvtColor(S(m, CV_8UC3).mat, D(m, CV_8UC3).mat, cv::COLOR_BGR2RGB); return 0; }},
    {"swap_8u_C4_mixchannels", 8,
     [](Images& m) {
       return peliSwapChannels_8u_C4R(S(m, CV_8UC4).u8(), S(m, CV_8UC4).step, D(m, CV_8UC4).u8(), D(m, CV_8UC4).step,
                                      m.roi, kBgraToRgba);
     },
     [](Images& m) {
       const int fromTo[8] = {0, 2, 1, 1, 2, 0, 3, 3};
       cv::mixChannels(&S(m, CV_8UC4).mat, 1, &D(m, CV_8UC4).mat, 1, fromTo, 4);
       return 0;
     }},
    {"swap_8u_C4_bgra2rgba", 8,
     [](Images& m) {
       return peliSwapChannels_8u_C4R(S(m, CV_8UC4).u8(), S(m, CV_8UC4).step, D(m, CV_8UC4).u8(), D(m, CV_8UC4).step,
                                      m.roi, kBgraToRgba);
     },
     [](Images& m) { cv::cvtColor(S(m, CV_8UC4).mat, D(m, CV_8UC4).mat, cv::COLOR_BGRA2RGBA); return 0; }},
    {"border_replicate_8u_C1", 2,
     [](Images& m) {
       Image& d = Framed(m);
       return peliCopyReplicateBorder_8u_C1R(S(m, CV_8UC1).u8(), S(m, CV_8UC1).step, m.roi, d.u8(), d.step,
                                             PeliSize{m.w + 2 * kFrame, m.h + 2 * kFrame}, kFrame, kFrame);
     },
     [](Images& m) { return CvBorder(m, cv::BORDER_REPLICATE); }},
    {"border_mirror_8u_C1", 2,
     [](Images& m) {
       Image& d = Framed(m);
       return peliCopyMirrorBorder_8u_C1R(S(m, CV_8UC1).u8(), S(m, CV_8UC1).step, m.roi, d.u8(), d.step,
                                          PeliSize{m.w + 2 * kFrame, m.h + 2 * kFrame}, kFrame, kFrame);
     },
     [](Images& m) { return CvBorder(m, cv::BORDER_REFLECT_101); }},
    {"border_const_8u_C1", 2,
     [](Images& m) {
       Image& d = Framed(m);
       return peliCopyConstBorder_8u_C1R(S(m, CV_8UC1).u8(), S(m, CV_8UC1).step, m.roi, d.u8(), d.step,
                                         PeliSize{m.w + 2 * kFrame, m.h + 2 * kFrame}, kFrame, kFrame, 7);
     },
     [](Images& m) { return CvBorder(m, cv::BORDER_CONSTANT); }},
};

}  // namespace

PEL_BENCH_CASES(kCases)
