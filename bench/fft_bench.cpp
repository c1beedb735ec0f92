// The image FFT against OpenCV's dft (real input, packed output) and, when
// the build finds FFTW (PEL_HAVE_FFTW3F), FFTW's single-precision real 2-D
// transform planned with FFTW_MEASURE, which takes the third ("libc")
// column of the summary. The transforms are square, 256 to 2048 points a
// side, whatever the size the harness names: each case keeps its own images,
// and its throughput counts 4 bytes read and 4 written a point.
#include <opencv2/core.hpp>

#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "bench.h"

#ifdef PEL_HAVE_FFTW3F
#include <fftw3.h>
#endif

namespace {

using pelbench::Images;

struct FreePel {
  void operator()(void* p) const { peliFree(p); }
};

// The images, spec and buffers of one transform size.
struct FftCase {
  int n = 0, step = 0;
  std::unique_ptr<Pel32f, FreePel> real, packed, out;
  std::vector<Pel8u> spec, work;
  cv::Mat realMat, packedMat, outMat;
#ifdef PEL_HAVE_FFTW3F
  float* fftwReal = nullptr;
  fftwf_complex* fftwSpectrum = nullptr;
  fftwf_plan forward = nullptr, inverse = nullptr;
  ~FftCase() {
    fftwf_destroy_plan(forward);
    fftwf_destroy_plan(inverse);
    fftwf_free(fftwReal);
    fftwf_free(fftwSpectrum);
  }
#endif
  const PeliFFTSpec_R_32f* Spec() const { return reinterpret_cast<const PeliFFTSpec_R_32f*>(spec.data()); }
};

template <int kOrder>
FftCase& Get(Images& m) {
  auto& slot = m.extra["fft" + std::to_string(kOrder)];
  if (slot) return *static_cast<FftCase*>(slot.get());
  auto c = std::make_shared<FftCase>();
  const int n = 1 << kOrder;
  c->n = n;
  c->real.reset(peliMalloc_32f_C1(n, n, &c->step));
  c->packed.reset(peliMalloc_32f_C1(n, n, &c->step));
  c->out.reset(peliMalloc_32f_C1(n, n, &c->step));
  std::mt19937 rng(kOrder);
  for (int y = 0; y < n; ++y)
    for (int x = 0; x < n; ++x)
      c->real.get()[size_t(y) * size_t(c->step) / 4 + size_t(x)] = std::uniform_real_distribution<float>(-1, 1)(rng);
  int specSize = 0, initSize = 0, workSize = 0;
  peliFFTGetSize_R_32f(kOrder, kOrder, pelFftDivInvByN, pelHintAccurate, &specSize, &initSize, &workSize);
  c->spec.resize(size_t(specSize));
  c->work.resize(size_t(workSize));
  peliFFTInit_R_32f(kOrder, kOrder, pelFftDivInvByN, pelHintAccurate,
                    reinterpret_cast<PeliFFTSpec_R_32f*>(c->spec.data()), nullptr);
  peliFFTFwd_RToPack_32f_C1R(c->real.get(), c->step, c->packed.get(), c->step, c->Spec(), c->work.data());
  c->realMat = cv::Mat(n, n, CV_32FC1, c->real.get(), size_t(c->step));
  c->packedMat = cv::Mat(n, n, CV_32FC1, c->packed.get(), size_t(c->step));
  c->outMat = cv::Mat(n, n, CV_32FC1, c->out.get(), size_t(c->step));
#ifdef PEL_HAVE_FFTW3F
  c->fftwReal = fftwf_alloc_real(size_t(n) * size_t(n));
  c->fftwSpectrum = fftwf_alloc_complex(size_t(n) * size_t(n / 2 + 1));
  c->forward = fftwf_plan_dft_r2c_2d(n, n, c->fftwReal, c->fftwSpectrum, FFTW_MEASURE);
  c->inverse = fftwf_plan_dft_c2r_2d(n, n, c->fftwSpectrum, c->fftwReal, FFTW_MEASURE);
  for (int y = 0; y < n; ++y)
    std::memcpy(c->fftwReal + size_t(y) * size_t(n), c->real.get() + size_t(y) * size_t(c->step) / 4,
                size_t(n) * 4);
  fftwf_execute(c->forward);
#endif
  slot = c;
  return *c;
}

template <int kOrder>
PelStatus PelFwd(Images& m) {
  FftCase& c = Get<kOrder>(m);
  return peliFFTFwd_RToPack_32f_C1R(c.real.get(), c.step, c.out.get(), c.step, c.Spec(), c.work.data());
}
template <int kOrder>
PelStatus PelInv(Images& m) {
  FftCase& c = Get<kOrder>(m);
  return peliFFTInv_PackToR_32f_C1R(c.packed.get(), c.step, c.out.get(), c.step, c.Spec(), c.work.data());
}
template <int kOrder>
PelStatus CvFwd(Images& m) {
  FftCase& c = Get<kOrder>(m);
  cv::dft(c.realMat, c.outMat, 0);
  return 0;
}
template <int kOrder>
PelStatus CvInv(Images& m) {
  FftCase& c = Get<kOrder>(m);
  cv::dft(c.packedMat, c.outMat, cv::DFT_INVERSE | cv::DFT_REAL_OUTPUT | cv::DFT_SCALE);
  return 0;
}
#ifdef PEL_HAVE_FFTW3F
template <int kOrder>
PelStatus FftwFwd(Images& m) {
  fftwf_execute(Get<kOrder>(m).forward);
  return 0;
}
// c2r overwrites its input; the values it leaves do not change the time.
template <int kOrder>
PelStatus FftwInv(Images& m) {
  fftwf_execute(Get<kOrder>(m).inverse);
  return 0;
}
#define PEL_FFTW(fn, k) fn<k>
#else
#define PEL_FFTW(fn, k) nullptr
#endif

// Bytes a call moves (4 read, 4 written a point) over the pixels the harness
// multiplies by (its largest size).
constexpr double PerPixel(int order) { return 8.0 * double(1 << order) * double(1 << order) / (3840.0 * 2160.0); }

#define PEL_FFT_CASES(k, side)                                                                \
  {"fft_fwd_" #side, PerPixel(k), PelFwd<k>, CvFwd<k>, PEL_FFTW(FftwFwd, k), true},           \
  {"fft_inv_" #side, PerPixel(k), PelInv<k>, CvInv<k>, PEL_FFTW(FftwInv, k), true}

const pelbench::Case kCases[] = {PEL_FFT_CASES(8, 256), PEL_FFT_CASES(9, 512), PEL_FFT_CASES(10, 1024),
                                 PEL_FFT_CASES(11, 2048)};

}  // namespace

PEL_BENCH_CASES(kCases)
