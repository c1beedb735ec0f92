// Warps against OpenCV's cv::warpAffine and cv::warpPerspective: a rotation
// by 5 degrees with a scale of 0.95 about the centre (and a mild perspective),
// destination as large as the source, 8u C1 and C3 and 32f C1 linear. The
// spec and buffer are made once; a call is one tile, the whole destination.
#include <opencv2/imgproc.hpp>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "bench.h"

namespace {

using pelbench::Image;
using pelbench::Images;

struct Job {
  std::vector<uint8_t> spec, buffer;
  std::unique_ptr<Pel8u, pelbench::FreeDeleter> dst;
  int step = 0;
  cv::Mat mat, cvM;
};

// Forward (source -> destination) matrices.
void Matrix(const Images& m, bool persp, double out[3][3]) {
  const double a = 0.95 * std::cos(5 * 3.141592653589793 / 180), b = 0.95 * std::sin(5 * 3.141592653589793 / 180);
  const double cx = (m.w - 1) / 2.0, cy = (m.h - 1) / 2.0;
  const double r[3][3] = {{a, b, cx - a * cx - b * cy}, {-b, a, cy + b * cx - a * cy}, {0, 0, 1}};
  std::memcpy(out, r, sizeof r);
  if (persp) out[2][0] = 1e-5, out[2][1] = -2e-5, out[2][2] = 1;
}

template <int kMethod, int C, int kBorder, bool kPersp, bool kFloat = false>
struct Warp {
  static constexpr int kCv = kFloat ? (C == 1 ? CV_32FC1 : CV_32FC3) : (C == 1 ? CV_8UC1 : CV_8UC3);
  static std::string Key() {
    return "warp" + std::to_string(kFloat * 10000 + kMethod * 1000 + C * 100 + kBorder * 10 + kPersp);
  }
  static Job& Get(Images& m) {
    auto& slot = m.extra[Key()];
    if (!slot) {
      auto job = std::make_shared<Job>();
      double M[3][3];
      Matrix(m, kPersp, M);
      int specBytes = 0, bufBytes = 0;
      const int type = kFloat ? pelType32f : pelType8u;
      if (kPersp) peliWarpPerspectiveGetSize(m.roi, m.roi, type, M, kMethod, 0, kBorder, &specBytes, &bufBytes);
      else peliWarpAffineGetSize(m.roi, m.roi, type, M, kMethod, 0, kBorder, &specBytes, &bufBytes);
      job->spec.resize(size_t(specBytes));
      job->buffer.resize(size_t(bufBytes));
      auto* spec = reinterpret_cast<PeliWarpSpec*>(job->spec.data());
      const double value[4] = {0, 0, 0, 0};
      if (kPersp) peliWarpPerspectiveLinearInit(m.roi, m.roi, type, M, 0, C, kBorder, value, 0, spec);
      else if (kMethod == 2) peliWarpAffineLinearInit(m.roi, m.roi, type, M, 0, C, kBorder, value, 0, spec);
      else peliWarpAffineNearestInit(m.roi, m.roi, type, M, 0, C, kBorder, value, 0, spec);
      job->dst.reset(peliMalloc_8u_C1(m.w * C * (kFloat ? 4 : 1), m.h, &job->step));
      job->mat = cv::Mat(m.h, m.w, kCv, job->dst.get(), size_t(job->step));
      job->cvM = cv::Mat(kPersp ? 3 : 2, 3, CV_64F);
      for (int i = 0; i < job->cvM.rows; ++i)
        for (int k = 0; k < 3; ++k) job->cvM.at<double>(i, k) = M[i][k];
      slot = job;
    }
    return *static_cast<Job*>(slot.get());
  }
  static PelStatus Pel(Images& m) {
    Job& j = Get(m);
    const Image& s = m.img(kCv, 0);
    const auto* spec = reinterpret_cast<const PeliWarpSpec*>(j.spec.data());
    if constexpr (kFloat) {
      return peliWarpAffineLinear_32f_C1R(s.as<Pel32f>(), s.step, reinterpret_cast<Pel32f*>(j.dst.get()), j.step, {0, 0},
                                          m.roi, spec, j.buffer.data());
    }
    if (kPersp) return peliWarpPerspectiveLinear_8u_C1R(s.u8(), s.step, j.dst.get(), j.step, {0, 0}, m.roi, spec, j.buffer.data());
    if (kMethod == 2)
      return (C == 1 ? peliWarpAffineLinear_8u_C1R : peliWarpAffineLinear_8u_C3R)(s.u8(), s.step, j.dst.get(), j.step, {0, 0}, m.roi, spec, j.buffer.data());
    return (C == 1 ? peliWarpAffineNearest_8u_C1R : peliWarpAffineNearest_8u_C3R)(s.u8(), s.step, j.dst.get(), j.step, {0, 0}, m.roi, spec, j.buffer.data());
  }
  static PelStatus Cv(Images& m) {
    Job& j = Get(m);
    const int flags = kMethod == 2 ? cv::INTER_LINEAR : cv::INTER_NEAREST;
    const int border = kBorder == pelBorderConstant ? cv::BORDER_CONSTANT : cv::BORDER_REPLICATE;
    const cv::Mat& src = m.img(kCv, 0).mat;
    if (kPersp) cv::warpPerspective(src, j.mat, j.cvM, j.mat.size(), flags, border);
    else cv::warpAffine(src, j.mat, j.cvM, j.mat.size(), flags, border);
    return 0;
  }
  static constexpr double kBytes = 2.0 * C * (kFloat ? 4 : 1);
};

#define PEL_WARP_CASE(name, method, c, border, persp) \
  {name, Warp<method, c, border, persp>::kBytes, Warp<method, c, border, persp>::Pel, Warp<method, c, border, persp>::Cv}

const pelbench::Case kCases[] = {
    PEL_WARP_CASE("warp_affine_linear_const_8u_C1", 2, 1, pelBorderConstant, false),
    PEL_WARP_CASE("warp_affine_linear_const_8u_C3", 2, 3, pelBorderConstant, false),
    PEL_WARP_CASE("warp_affine_linear_repl_8u_C1", 2, 1, pelBorderReplicate, false),
    PEL_WARP_CASE("warp_affine_linear_repl_8u_C3", 2, 3, pelBorderReplicate, false),
    PEL_WARP_CASE("warp_affine_nearest_const_8u_C1", 1, 1, pelBorderConstant, false),
    PEL_WARP_CASE("warp_affine_nearest_const_8u_C3", 1, 3, pelBorderConstant, false),
    PEL_WARP_CASE("warp_persp_linear_const_8u_C1", 2, 1, pelBorderConstant, true),
    {"warp_affine_linear_const_32f_C1", Warp<2, 1, pelBorderConstant, false, true>::kBytes,
     Warp<2, 1, pelBorderConstant, false, true>::Pel, Warp<2, 1, pelBorderConstant, false, true>::Cv},
};

}  // namespace

PEL_BENCH_CASES(kCases)
