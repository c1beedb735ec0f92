// pel_bench: pel against OpenCV (and libc where the operation is a plain
// stream) on the same buffers, single-threaded.
//
// Run:
//   build/release/bench/pel_bench --benchmark_min_time=0.2
//   build/release/bench/pel_bench --quick                 # 1920x1080 only, short runs
//   build/release/bench/pel_bench --benchmark_filter=copy_8u_C1/
//   PEL_BENCH_QUICK=1 build/release/bench/pel_bench       # same as --quick
//   PEL_CPU=avx2 build/release/bench/pel_bench            # cap pel's dispatch level
//
// Each case runs at 1920x1080 and 3840x2160 as <case>/<size>/<impl> with impl
// pel, opencv and, for streaming cases, libc (memcpy for copies, memset for
// fills). Throughput counts the bytes read plus the bytes written by one call,
// so a copy of N bytes counts 2N; the ratios do not depend on that choice.
// After the runs a table gives pel/OpenCV and pel/libc throughput ratios.
//
// The images come from peliMalloc (64-byte aligned rows); the OpenCV side
// wraps the very same buffers in cv::Mat headers, so both libraries see the
// same alignment, steps and pages. copy_8u_C1_cold rotates through enough
// buffer pairs to exceed the last-level cache, so every call starts cold.
#include <benchmark/benchmark.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <unistd.h>

#include "pelcore.h"
#include "peli.h"

namespace {

struct FreeDeleter {
  void operator()(void* p) const { peliFree(p); }
};
using Buffer = std::unique_ptr<Pel8u, FreeDeleter>;

// One image: peliMalloc memory, its step and a cv::Mat header over it.
struct Image {
  Buffer mem;
  int step = 0;
  cv::Mat mat;

  Pel8u* u8() const { return mem.get(); }
  Pel32f* f32() const { return reinterpret_cast<Pel32f*>(mem.get()); }
  size_t bytes(int height) const { return size_t(step) * size_t(height); }
};

Image MakeImage(int w, int h, int cvType, std::mt19937& rng) {
  Image im;
  Pel8u* p = nullptr;
  switch (cvType) {
    case CV_8UC1: p = peliMalloc_8u_C1(w, h, &im.step); break;
    case CV_8UC3: p = peliMalloc_8u_C3(w, h, &im.step); break;
    case CV_32FC1: p = reinterpret_cast<Pel8u*>(peliMalloc_32f_C1(w, h, &im.step)); break;
    default: break;
  }
  if (p == nullptr) {
    std::fprintf(stderr, "pel_bench: peliMalloc failed for %dx%d\n", w, h);
    std::exit(2);
  }
  im.mem.reset(p);
  // Touch every page before timing. Random 32-bit words; for float images
  // small finite values, so no NaN pattern can hide a wrong copy.
  const size_t words = im.bytes(h) / 4;  // steps are multiples of 64
  for (size_t i = 0; i < words; ++i) {
    const uint32_t r = rng();
    if (cvType == CV_32FC1) {
      const float f = float(r & 0xFFFF) * 0.25f;
      std::memcpy(p + 4 * i, &f, 4);
    } else {
      std::memcpy(p + 4 * i, &r, 4);
    }
  }
  im.mat = cv::Mat(h, w, cvType, p, size_t(im.step));
  return im;
}

// Every buffer the cases of one image size use, made on first use so that a
// filtered run allocates only what it needs.
struct Images {
  int w, h;
  PeliSize roi;
  Image c1Src, c1Dst, mask, c3Src, c3Dst, f32Src, f32Dst;
  Image plane[3];
  Pel8u* planePtr[3];
  std::vector<cv::Mat> planeMats;
  // copy_8u_C1_cold: pairs walked round robin.
  std::vector<std::pair<Image, Image>> cold;
  size_t coldNext = 0;

  Images(int width, int height) : w(width), h(height), roi{width, height} {
    std::mt19937 rng(uint32_t(width) * 31u + uint32_t(height));
    c1Src = MakeImage(w, h, CV_8UC1, rng);
    c1Dst = MakeImage(w, h, CV_8UC1, rng);
    mask = MakeImage(w, h, CV_8UC1, rng);
    // About half the pixels selected, in runs of mixed length like a real
    // segmentation mask rather than pure noise.
    std::bernoulli_distribution flip(0.05);
    bool on = false;
    for (int y = 0; y < h; ++y) {
      Pel8u* row = mask.u8() + size_t(y) * size_t(mask.step);
      for (int x = 0; x < w; ++x) {
        if (flip(rng)) on = !on;
        row[x] = on ? 255 : 0;
      }
    }
    c3Src = MakeImage(w, h, CV_8UC3, rng);
    c3Dst = MakeImage(w, h, CV_8UC3, rng);
    f32Src = MakeImage(w, h, CV_32FC1, rng);
    f32Dst = MakeImage(w, h, CV_32FC1, rng);
    for (int k = 0; k < 3; ++k) {
      plane[k] = MakeImage(w, h, CV_8UC1, rng);
      planePtr[k] = plane[k].u8();
      planeMats.push_back(plane[k].mat);
    }
  }

  void PrepareCold() {
    if (!cold.empty()) return;
    int cache = 0;
    if (pelGetMaxCacheSizeB(&cache) != 0 || cache <= 0) cache = 32 << 20;
    std::mt19937 rng(7);
    const size_t pairBytes = 2 * size_t(w) * size_t(h);
    // Twice the cache, so nothing of a pair survives until its next turn.
    const size_t pairs = std::max<size_t>(2, 2 * size_t(cache) / pairBytes + 1);
    for (size_t i = 0; i < pairs; ++i)
      cold.emplace_back(MakeImage(w, h, CV_8UC1, rng), MakeImage(w, h, CV_8UC1, rng));
  }
  std::pair<Image, Image>& NextCold() { return cold[coldNext++ % cold.size()]; }
};

Images& ImagesFor(int w, int h) {
  static std::map<std::pair<int, int>, std::unique_ptr<Images>> cache;
  auto& slot = cache[{w, h}];
  if (!slot) slot = std::make_unique<Images>(w, h);
  return *slot;
}

// ---- The cases ---------------------------------------------------------------
// A call returns a pel status (OpenCV and libc calls return 0).
using Call = PelStatus (*)(Images&);

struct Case {
  const char* name;
  double bytesPerPixel;  // read + written per pixel, for SetBytesProcessed
  Call pel;
  Call opencv;
  Call libc;          // nullptr: not a plain stream, no libc baseline
  bool largeOnly;     // run only at the largest size
  void (*prepare)(Images&);
};

const Pel8u kFill3[3] = {10, 200, 77};

const Case kCases[] = {
    {"copy_8u_C1", 2,
     [](Images& m) { return peliCopy_8u_C1R(m.c1Src.u8(), m.c1Src.step, m.c1Dst.u8(), m.c1Dst.step, m.roi); },
     [](Images& m) { m.c1Src.mat.copyTo(m.c1Dst.mat); return 0; },
     [](Images& m) { std::memcpy(m.c1Dst.u8(), m.c1Src.u8(), m.c1Src.bytes(m.h)); return 0; }, false, nullptr},
    {"copy_8u_C3", 6,
     [](Images& m) { return peliCopy_8u_C3R(m.c3Src.u8(), m.c3Src.step, m.c3Dst.u8(), m.c3Dst.step, m.roi); },
     [](Images& m) { m.c3Src.mat.copyTo(m.c3Dst.mat); return 0; },
     [](Images& m) { std::memcpy(m.c3Dst.u8(), m.c3Src.u8(), m.c3Src.bytes(m.h)); return 0; }, false, nullptr},
    {"copy_32f_C1", 8,
     [](Images& m) { return peliCopy_32f_C1R(m.f32Src.f32(), m.f32Src.step, m.f32Dst.f32(), m.f32Dst.step, m.roi); },
     [](Images& m) { m.f32Src.mat.copyTo(m.f32Dst.mat); return 0; },
     [](Images& m) { std::memcpy(m.f32Dst.u8(), m.f32Src.u8(), m.f32Src.bytes(m.h)); return 0; }, false, nullptr},
    // The same bytes through the copy whose caller picks the stores: flags 0
    // keeps them cached, which is what memcpy and OpenCV do at these sizes,
    // while peliCopy_8u_C1R bypasses the cache above 1 MiB.
    {"copy_cached_8u_C1", 2,
     [](Images& m) {
       return peliCopyManaged_8u_C1R(m.c1Src.u8(), m.c1Src.step, m.c1Dst.u8(), m.c1Dst.step, m.roi, 0);
     },
     [](Images& m) { m.c1Src.mat.copyTo(m.c1Dst.mat); return 0; },
     [](Images& m) { std::memcpy(m.c1Dst.u8(), m.c1Src.u8(), m.c1Src.bytes(m.h)); return 0; }, false, nullptr},
    {"set_8u_C1", 1,
     [](Images& m) { return peliSet_8u_C1R(Pel8u{42}, m.c1Dst.u8(), m.c1Dst.step, m.roi); },
     [](Images& m) { m.c1Dst.mat.setTo(cv::Scalar(42)); return 0; },
     [](Images& m) { std::memset(m.c1Dst.u8(), 42, m.c1Dst.bytes(m.h)); return 0; }, false, nullptr},
    {"set_8u_C3", 3,
     [](Images& m) { return peliSet_8u_C3R(kFill3, m.c3Dst.u8(), m.c3Dst.step, m.roi); },
     [](Images& m) { m.c3Dst.mat.setTo(cv::Scalar(kFill3[0], kFill3[1], kFill3[2])); return 0; },
     [](Images& m) { std::memset(m.c3Dst.u8(), 42, m.c3Dst.bytes(m.h)); return 0; }, false, nullptr},
    {"set_32f_C1", 4,
     [](Images& m) { return peliSet_32f_C1R(1.5f, m.f32Dst.f32(), m.f32Dst.step, m.roi); },
     [](Images& m) { m.f32Dst.mat.setTo(cv::Scalar(1.5)); return 0; },
     [](Images& m) { std::memset(m.f32Dst.u8(), 42, m.f32Dst.bytes(m.h)); return 0; }, false, nullptr},
    {"copy_masked_8u_C1", 3,
     [](Images& m) {
       return peliCopy_8u_C1MR(m.c1Src.u8(), m.c1Src.step, m.c1Dst.u8(), m.c1Dst.step, m.mask.u8(), m.mask.step, m.roi);
     },
     [](Images& m) { m.c1Src.mat.copyTo(m.c1Dst.mat, m.mask.mat); return 0; }, nullptr, false, nullptr},
    {"extract_8u_C3C1", 4,
     [](Images& m) { return peliCopy_8u_C3C1R(m.c3Src.u8() + 1, m.c3Src.step, m.c1Dst.u8(), m.c1Dst.step, m.roi); },
     [](Images& m) { cv::extractChannel(m.c3Src.mat, m.c1Dst.mat, 1); return 0; }, nullptr, false, nullptr},
    {"split_8u_C3P3", 6,
     [](Images& m) { return peliCopy_8u_C3P3R(m.c3Src.u8(), m.c3Src.step, m.planePtr, m.plane[0].step, m.roi); },
     [](Images& m) { cv::split(m.c3Src.mat, m.planeMats.data()); return 0; }, nullptr, false, nullptr},
    {"merge_8u_P3C3", 6,
     [](Images& m) {
       const Pel8u* const planes[3] = {m.planePtr[0], m.planePtr[1], m.planePtr[2]};
       return peliCopy_8u_P3C3R(planes, m.plane[0].step, m.c3Dst.u8(), m.c3Dst.step, m.roi);
     },
     [](Images& m) { cv::merge(m.planeMats.data(), 3, m.c3Dst.mat); return 0; }, nullptr, false, nullptr},
    {"copy_8u_C1_cold", 2,
     [](Images& m) {
       auto& [src, dst] = m.NextCold();
       return peliCopy_8u_C1R(src.u8(), src.step, dst.u8(), dst.step, m.roi);
     },
     [](Images& m) {
       auto& [src, dst] = m.NextCold();
       src.mat.copyTo(dst.mat);
       return 0;
     },
     [](Images& m) {
       auto& [src, dst] = m.NextCold();
       std::memcpy(dst.u8(), src.u8(), src.bytes(m.h));
       return 0;
     },
     true, [](Images& m) { m.PrepareCold(); }},
};

struct Size {
  int w, h;
};
// Both widths give rows that fill their 64-byte-rounded step exactly, so the
// images are contiguous and one memcpy or memset covers just the ROI.
const Size kSizes[] = {{1920, 1080}, {3840, 2160}};
const char* const kImpls[] = {"pel", "opencv", "libc"};

// --quick keeps the first size; large-only cases then run at that size too,
// so that a quick run still shows every case.
bool RunsAt(const Case& c, const Size& s, bool quick) {
  if (quick) return &s == &kSizes[0];
  return !c.largeOnly || &s == &kSizes[std::size(kSizes) - 1];
}

Call CallOf(const Case& c, int impl) { return impl == 0 ? c.pel : impl == 1 ? c.opencv : c.libc; }

std::string BenchName(const Case& c, const Size& s, int impl) {
  return std::string(c.name) + "/" + std::to_string(s.w) + "x" + std::to_string(s.h) + "/" + kImpls[impl];
}

void Run(benchmark::State& state, const Case& c, Size s, Call call) {
  Images& m = ImagesFor(s.w, s.h);
  if (c.prepare) c.prepare(m);
  for (auto _ : state) {
    const PelStatus status = call(m);
    if (status != pelStatusOk) {
      state.SkipWithError(("pel status " + std::to_string(status)).c_str());
      break;
    }
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(c.bytesPerPixel * s.w * s.h));
}

// Prints the usual console lines and keeps each benchmark's throughput for the
// summary. With repetitions the median wins over the single runs.
class SummaryReporter : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> bytesPerSecond;

  explicit SummaryReporter(bool color)
      : ConsoleReporter(color ? OO_ColorTabular : OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs) {
      if (r.error_occurred) continue;
      auto it = r.counters.find("bytes_per_second");
      if (it == r.counters.end()) continue;
      const std::string name = r.run_name.function_name;  // without the min_time and real_time suffixes
      if (r.run_type == Run::RT_Aggregate) {
        if (r.aggregate_name == "median") {
          bytesPerSecond[name] = it->second.value;
          haveMedian_[name] = true;
        }
      } else if (!haveMedian_[name]) {
        bytesPerSecond[name] = it->second.value;
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }

 private:
  std::map<std::string, bool> haveMedian_;
};

void PrintSummary(const SummaryReporter& rep, bool quick) {
  auto find = [&](const std::string& n) {
    auto it = rep.bytesPerSecond.find(n);
    return it == rep.bytesPerSecond.end() ? 0.0 : it->second;
  };
  // Throughputs in GB/s, ratios as they are; "-" where there is no figure.
  auto cell = [](double v, double scale) {
    char buf[32];
    if (v <= 0)
      std::snprintf(buf, sizeof buf, "%11s", "-");
    else
      std::snprintf(buf, sizeof buf, "%11.2f", v / scale);
    return std::string(buf);
  };
  std::printf("\n%-18s %-10s %11s %11s %11s %11s %11s\n", "case", "size", "pel GB/s", "OpenCV GB/s",
              "libc GB/s", "pel/OpenCV", "pel/libc");
  for (const Case& c : kCases) {
    for (const Size& s : kSizes) {
      if (!RunsAt(c, s, quick)) continue;
      const double pel = find(BenchName(c, s, 0));
      const double ocv = find(BenchName(c, s, 1));
      const double libc = c.libc ? find(BenchName(c, s, 2)) : 0.0;
      if (pel <= 0 && ocv <= 0 && libc <= 0) continue;
      const std::string size = std::to_string(s.w) + "x" + std::to_string(s.h);
      std::printf("%-18s %-10s %s %s %s %s %s\n", c.name, size.c_str(), cell(pel, 1e9).c_str(),
                  cell(ocv, 1e9).c_str(), cell(libc, 1e9).c_str(),
                  cell(pel > 0 && ocv > 0 ? pel / ocv : 0, 1).c_str(),
                  cell(pel > 0 && libc > 0 ? pel / libc : 0, 1).c_str());
    }
  }
  std::printf("GB/s counts bytes read plus bytes written; libc is memcpy for copies, memset for fills.\n");
}

}  // namespace

int main(int argc, char** argv) {
  const char* quickEnv = std::getenv("PEL_BENCH_QUICK");
  bool quick = quickEnv != nullptr && std::strcmp(quickEnv, "0") != 0;
  std::vector<char*> args;
  for (int i = 0; i < argc; ++i) {
    if (std::strcmp(argv[i], "--quick") == 0)
      quick = true;
    else
      args.push_back(argv[i]);
  }
  int n = int(args.size());
  args.push_back(nullptr);
  benchmark::Initialize(&n, args.data());
  if (benchmark::ReportUnrecognizedArguments(n, args.data())) return 1;

  cv::setNumThreads(1);
  const PelLibraryVersion* v = peliGetLibVersion();
  std::printf("pel %s (%s), OpenCV %s, single thread%s\n", v->Version, v->Name, CV_VERSION,
              quick ? ", quick" : "");

  for (const Case& c : kCases) {
    for (const Size& s : kSizes) {
      if (!RunsAt(c, s, quick)) continue;
      for (int impl = 0; impl < 3; ++impl) {
        const Call call = CallOf(c, impl);
        if (call == nullptr) continue;
        auto* b = benchmark::RegisterBenchmark(BenchName(c, s, impl).c_str(),
                                               [&c, s, call](benchmark::State& st) { Run(st, c, s, call); });
        b->UseRealTime()->Unit(benchmark::kMicrosecond);
        if (quick) b->MinTime(0.05);
      }
    }
  }

  SummaryReporter reporter(isatty(fileno(stdout)) != 0);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintSummary(reporter, quick);
  benchmark::Shutdown();
  return 0;
}
