// Resize against OpenCV's cv::resize: nearest and bilinear, down by 2, up by
// 2 and to 2/3, for 8u C1, 8u C3 and 32f C1. The spec and the work buffer are
// made once (as a caller would for a video stream); a call is one tile, the
// whole destination.
#include <opencv2/imgproc.hpp>

#include <memory>
#include <string>
#include <vector>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

enum Kind { k8uC1, k8uC3, k32fC1 };

constexpr int CvType(Kind k) { return k == k8uC1 ? CV_8UC1 : k == k8uC3 ? CV_8UC3 : CV_32FC1; }

// One case's spec, buffer and destination, kept between calls.
struct Job {
  std::vector<uint8_t> spec, buffer;
  std::unique_ptr<Pel8u, pelbench::FreeDeleter> dst;
  int step = 0;
  PeliSize size{};
  cv::Mat mat;
};

template <bool kLinear, Kind K, int N, int D>
struct Resize {
  static std::string Key() { return "resize" + std::to_string(kLinear) + std::to_string(K) + std::to_string(N * 10 + D); }

  static Job& Get(Images& m) {
    auto& slot = m.extra[Key()];
    if (!slot) {
      auto job = std::make_shared<Job>();
      const PeliSize src = m.roi;
      job->size = {m.w * N / D, m.h * N / D};
      int specBytes = 0, initBytes = 0, bufBytes = 0;
      peliResizeGetSize_8u(src, job->size, kLinear ? pelInterpolationLinear : pelInterpolationNearest, 0, &specBytes,
                           &initBytes);
      job->spec.resize(size_t(specBytes));
      auto* spec = reinterpret_cast<PeliResizeSpec*>(job->spec.data());
      if (kLinear) peliResizeLinearInit_8u(src, job->size, spec);
      else peliResizeNearestInit_8u(src, job->size, spec);
      peliResizeGetBufferSize_8u(spec, job->size, K == k8uC3 ? 3 : 1, &bufBytes);
      job->buffer.resize(size_t(bufBytes));
      const int pixelBytes = K == k8uC1 ? 1 : K == k8uC3 ? 3 : 4;
      job->dst.reset(peliMalloc_8u_C1(job->size.width * pixelBytes, job->size.height, &job->step));
      job->mat = cv::Mat(job->size.height, job->size.width, CvType(K), job->dst.get(), size_t(job->step));
      job->mat.setTo(0);
      slot = job;
    }
    return *static_cast<Job*>(slot.get());
  }

  static PelStatus Pel(Images& m) {
    Job& j = Get(m);
    const Image& s = m.img(CvType(K), 0);
    const auto* spec = reinterpret_cast<const PeliResizeSpec*>(j.spec.data());
    const PeliPoint at{0, 0};
    Pel8u* d = j.dst.get();
    if constexpr (K == k32fC1) {
      auto* df = reinterpret_cast<Pel32f*>(d);
      if (kLinear)
        return peliResizeLinear_32f_C1R(s.as<Pel32f>(), s.step, df, j.step, at, j.size, pelBorderReplicate, nullptr,
                                        spec, j.buffer.data());
      return peliResizeNearest_32f_C1R(s.as<Pel32f>(), s.step, df, j.step, at, j.size, spec, j.buffer.data());
    } else if constexpr (K == k8uC3) {
      if (kLinear)
        return peliResizeLinear_8u_C3R(s.u8(), s.step, d, j.step, at, j.size, pelBorderReplicate, nullptr, spec,
                                       j.buffer.data());
      return peliResizeNearest_8u_C3R(s.u8(), s.step, d, j.step, at, j.size, spec, j.buffer.data());
    } else {
      if (kLinear)
        return peliResizeLinear_8u_C1R(s.u8(), s.step, d, j.step, at, j.size, pelBorderReplicate, nullptr, spec,
                                       j.buffer.data());
      return peliResizeNearest_8u_C1R(s.u8(), s.step, d, j.step, at, j.size, spec, j.buffer.data());
    }
  }

  static PelStatus Cv(Images& m) {
    Job& j = Get(m);
    cv::resize(m.img(CvType(K), 0).mat, j.mat, j.mat.size(), 0, 0, kLinear ? cv::INTER_LINEAR : cv::INTER_NEAREST);
    return 0;
  }

  // Throughput per source pixel: the source read once, the destination
  // written once.
  static constexpr double kBytes = (K == k8uC1 ? 1 : K == k8uC3 ? 3 : 4) * (1.0 + double(N * N) / double(D * D));
};

#define PEL_RESIZE_CASE(name, linear, kind, n, d) \
  {name, Resize<linear, kind, n, d>::kBytes, Resize<linear, kind, n, d>::Pel, Resize<linear, kind, n, d>::Cv}

const pelbench::Case kCases[] = {
    PEL_RESIZE_CASE("resize_linear_down2_8u_C1", true, k8uC1, 1, 2),
    PEL_RESIZE_CASE("resize_linear_up2_8u_C1", true, k8uC1, 2, 1),
    PEL_RESIZE_CASE("resize_linear_2of3_8u_C1", true, k8uC1, 2, 3),
    PEL_RESIZE_CASE("resize_linear_down2_8u_C3", true, k8uC3, 1, 2),
    PEL_RESIZE_CASE("resize_linear_up2_8u_C3", true, k8uC3, 2, 1),
    PEL_RESIZE_CASE("resize_linear_2of3_8u_C3", true, k8uC3, 2, 3),
    PEL_RESIZE_CASE("resize_linear_down2_32f_C1", true, k32fC1, 1, 2),
    PEL_RESIZE_CASE("resize_linear_up2_32f_C1", true, k32fC1, 2, 1),
    PEL_RESIZE_CASE("resize_linear_2of3_32f_C1", true, k32fC1, 2, 3),
    PEL_RESIZE_CASE("resize_nearest_down2_8u_C1", false, k8uC1, 1, 2),
    PEL_RESIZE_CASE("resize_nearest_up2_8u_C1", false, k8uC1, 2, 1),
    PEL_RESIZE_CASE("resize_nearest_2of3_8u_C1", false, k8uC1, 2, 3),
    PEL_RESIZE_CASE("resize_nearest_down2_8u_C3", false, k8uC3, 1, 2),
    PEL_RESIZE_CASE("resize_nearest_up2_8u_C3", false, k8uC3, 2, 1),
    PEL_RESIZE_CASE("resize_nearest_2of3_8u_C3", false, k8uC3, 2, 3),
    PEL_RESIZE_CASE("resize_nearest_down2_32f_C1", false, k32fC1, 1, 2),
    PEL_RESIZE_CASE("resize_nearest_up2_32f_C1", false, k32fC1, 2, 1),
    PEL_RESIZE_CASE("resize_nearest_2of3_32f_C1", false, k32fC1, 2, 3),
};

}  // namespace

PEL_BENCH_CASES(kCases)
