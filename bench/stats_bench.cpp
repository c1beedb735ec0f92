// Statistics against OpenCV: sums, means, norms, dot products, extremes with
// their positions, range counts and the 256-bin histogram.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <memory>
#include <vector>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

Image& A8(Images& m) { return m.img(CV_8UC1, 0); }
// Values 1..254: random bytes hold 255 (and 0) in the first row, where the
// search for the index of an extreme may stop.
Image& Mid8(Images& m) { return m.img(CV_8UC1, 20); }
void PrepareMid8(Images& m) {
  Image& im = Mid8(m);
  for (size_t i = 0; i < im.bytes(m.h); ++i)
    if (im.u8()[i] == 0 || im.u8()[i] == 255) im.u8()[i] = 128;
}
Image& B8(Images& m) { return m.img(CV_8UC1, 1); }
Image& A32(Images& m) { return m.img(CV_32FC1, 0); }
Image& B32(Images& m) { return m.img(CV_32FC1, 1); }
const Pel32f* F(Image& i) { return i.as<Pel32f>(); }

// Results go somewhere the compiler cannot drop.
volatile double gSink;

// The 256-bin histogram's spec and buffer, made once per size.
struct Hist {
  std::vector<Pel8u> spec, buffer;
  Pel32u bins[256];
};
Hist& HistOf(Images& m) {
  auto& slot = m.extra["hist8u"];
  if (!slot) {
    auto h = std::make_shared<Hist>();
    const Pel32f lo[1] = {0}, hi[1] = {256};
    const int n[1] = {257};
    int specBytes = 0, bufferBytes = 0;
    peliHistogramGetBufferSize(pelType8u, m.roi, n, 1, 1, &specBytes, &bufferBytes);
    h->spec.resize(specBytes);
    h->buffer.resize(bufferBytes);
    peliHistogramUniformInit(pelType8u, lo, hi, n, 1, reinterpret_cast<PeliHistogramSpec*>(h->spec.data()));
    slot = h;
  }
  return *static_cast<Hist*>(slot.get());
}

template <class T>
PelStatus Keep(PelStatus s, T v) {
  gSink = double(v);
  return s;
}

#define PEL_ONE(call)  \
  [](Images& m) {      \
    double v = 0;      \
    return Keep(call, v); \
  }
#define CV_ONE(expr)       \
  [](Images& m) {          \
    gSink = double(expr);  \
    return 0;              \
  }

const pelbench::Case kCases[] = {
    {"sum_8u_C1", 1, PEL_ONE(peliSum_8u_C1R(A8(m).u8(), A8(m).step, m.roi, &v)), CV_ONE(cv::sum(A8(m).mat)[0])},
    {"mean_8u_C1", 1, PEL_ONE(peliMean_8u_C1R(A8(m).u8(), A8(m).step, m.roi, &v)), CV_ONE(cv::mean(A8(m).mat)[0])},
    {"sum_32f_C1", 4, PEL_ONE(peliSum_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v, 0)), CV_ONE(cv::sum(A32(m).mat)[0])},
    {"sum_32f_C1_accurate", 4, PEL_ONE(peliSum_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v, pelHintAccurate)),
     CV_ONE(cv::sum(A32(m).mat)[0])},
    {"mean_32f_C1", 4, PEL_ONE(peliMean_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v, 0)), CV_ONE(cv::mean(A32(m).mat)[0])},
    {"norm_inf_8u_C1", 1, PEL_ONE(peliNorm_Inf_8u_C1R(A8(m).u8(), A8(m).step, m.roi, &v)),
     CV_ONE(cv::norm(A8(m).mat, cv::NORM_INF))},
    {"norm_l1_8u_C1", 1, PEL_ONE(peliNorm_L1_8u_C1R(A8(m).u8(), A8(m).step, m.roi, &v)),
     CV_ONE(cv::norm(A8(m).mat, cv::NORM_L1))},
    {"norm_l2_8u_C1", 1, PEL_ONE(peliNorm_L2_8u_C1R(A8(m).u8(), A8(m).step, m.roi, &v)),
     CV_ONE(cv::norm(A8(m).mat, cv::NORM_L2))},
    {"norm_inf_32f_C1", 4, PEL_ONE(peliNorm_Inf_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v)),
     CV_ONE(cv::norm(A32(m).mat, cv::NORM_INF))},
    {"norm_l1_32f_C1", 4, PEL_ONE(peliNorm_L1_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v, 0)),
     CV_ONE(cv::norm(A32(m).mat, cv::NORM_L1))},
    {"norm_l2_32f_C1", 4, PEL_ONE(peliNorm_L2_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v, 0)),
     CV_ONE(cv::norm(A32(m).mat, cv::NORM_L2))},
    {"norm_l2_32f_C1_accurate", 4, PEL_ONE(peliNorm_L2_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v, pelHintAccurate)),
     CV_ONE(cv::norm(A32(m).mat, cv::NORM_L2))},
    {"normdiff_l2_8u_C1", 2,
     PEL_ONE(peliNormDiff_L2_8u_C1R(A8(m).u8(), A8(m).step, B8(m).u8(), B8(m).step, m.roi, &v)),
     CV_ONE(cv::norm(A8(m).mat, B8(m).mat, cv::NORM_L2))},
    {"dot_8u_C1", 2, PEL_ONE(peliDotProd_8u64f_C1R(A8(m).u8(), A8(m).step, B8(m).u8(), B8(m).step, m.roi, &v)),
     CV_ONE(A8(m).mat.dot(B8(m).mat))},
    {"dot_32f_C1", 8, PEL_ONE(peliDotProd_32f64f_C1R(F(A32(m)), A32(m).step, F(B32(m)), B32(m).step, m.roi, &v)),
     CV_ONE(A32(m).mat.dot(B32(m).mat))},
    // OpenCV finds both extremes in one pass, pel one a call.
    {"maxindx_8u_C1", 1,
     [](Images& m) {
       Pel8u v = 0;
       int x = 0, y = 0;
       return Keep(peliMaxIndx_8u_C1R(Mid8(m).u8(), Mid8(m).step, m.roi, &v, &x, &y), v + x + y);
     },
     [](Images& m) {
       double mn, mx;
       cv::Point a, b;
       cv::minMaxLoc(Mid8(m).mat, &mn, &mx, &a, &b);
       gSink = mx + b.x;
       return 0;
     },
     nullptr, false, PrepareMid8},
    {"maxindx_32f_C1", 4,
     [](Images& m) {
       Pel32f v = 0;
       int x = 0, y = 0;
       return Keep(peliMaxIndx_32f_C1R(F(A32(m)), A32(m).step, m.roi, &v, &x, &y), v + x + y);
     },
     [](Images& m) {
       double mn, mx;
       cv::Point a, b;
       cv::minMaxLoc(A32(m).mat, &mn, &mx, &a, &b);
       gSink = mx + b.x;
       return 0;
     }},
    {"minmax_8u_C1", 1,
     [](Images& m) {
       Pel8u lo = 0, hi = 0;
       return Keep(peliMinMax_8u_C1R(Mid8(m).u8(), Mid8(m).step, m.roi, &lo, &hi), lo + hi);
     },
     [](Images& m) {
       double mn, mx;
       cv::minMaxLoc(Mid8(m).mat, &mn, &mx);
       gSink = mn + mx;
       return 0;
     },
     nullptr, false, PrepareMid8},
    {"histogram_8u_C1", 1,
     [](Images& m) {
       Hist& h = HistOf(m);
       return peliHistogram_8u_C1R(A8(m).u8(), A8(m).step, m.roi, h.bins,
                                   reinterpret_cast<const PeliHistogramSpec*>(h.spec.data()), h.buffer.data());
     },
     [](Images& m) {
       const int channels[1] = {0}, size[1] = {256};
       const float range[2] = {0, 256};
       const float* ranges[1] = {range};
       cv::Mat hist;
       cv::calcHist(&A8(m).mat, 1, channels, cv::Mat(), hist, 1, size, ranges);
       gSink = hist.at<float>(0);
       return 0;
     }},
    {"count_in_range_8u_C1", 1,
     [](Images& m) {
       int n = 0;
       return Keep(peliCountInRange_8u_C1R(A8(m).u8(), A8(m).step, m.roi, &n, 50, 180), n);
     },
     [](Images& m) {
       cv::Mat& mask = m.img(CV_8UC1, 7).mat;
       cv::inRange(A8(m).mat, cv::Scalar(50), cv::Scalar(180), mask);
       gSink = cv::countNonZero(mask);
       return 0;
     }},
};

}  // namespace

PEL_BENCH_CASES(kCases)
