// pel_bench: pel against OpenCV (and libc where the operation is a plain
// stream) on the same buffers, single-threaded.
//
// Run:
//   build/release/bench/pel_bench --benchmark_min_time=0.2
//   build/release/bench/pel_bench --quick                 # 1920x1080 only, short runs
//   build/release/bench/pel_bench --benchmark_filter=copy_8u_C1/
//   build/release/bench/pel_bench --cache=fail            # pelcore's cache query fails
//   build/release/bench/pel_bench --cache=33554432        # ... or reports 32 MiB
//   PEL_CPU=avx2 build/release/bench/pel_bench            # cap pel's dispatch level
//   build/release/bench/pel_bench --benchmark_repetitions=9   # best of 9 in the summary
//
// Each case runs at 1920x1080 and 3840x2160 as <case>/<size>/<impl> with impl
// pel, opencv and, for streaming cases, libc (memcpy for copies, memset for
// fills). Throughput counts the bytes read plus the bytes written by one call,
// so a copy of N bytes counts 2N; the ratios do not depend on that choice.
// After the runs a table gives pel/OpenCV and pel/libc throughput ratios.
//
// --cache chooses what pelGetMaxCacheSizeB answers: "native" (the default:
// pelcore's own answer), "fail", or a size in bytes. This program defines
// the service itself, and libpeli calls it through its dynamic symbol, so
// the large-transfer paths of a host whose query fails (or of one with a
// given cache) can be measured on any machine.
#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <unistd.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "bench.h"
#include "pelcore.h"

// ---- The cache query, as --cache says ------------------------------------------

namespace {
enum class CacheMode { Native, Fail, Fixed };
CacheMode gCacheMode = CacheMode::Native;
int gCacheBytes = 0;
}  // namespace

extern "C" __attribute__((visibility("default"))) int pelGetMaxCacheSizeB(int* pSizeByte) {
  if (gCacheMode == CacheMode::Fail) return -1;
  if (gCacheMode == CacheMode::Fixed) {
    if (pSizeByte == nullptr) return -8;
    *pSizeByte = gCacheBytes;
    return 0;
  }
  using Query = int (*)(int*);
  static const Query native = reinterpret_cast<Query>(dlsym(RTLD_NEXT, "pelGetMaxCacheSizeB"));
  return native ? native(pSizeByte) : -1;
}

namespace pelbench {

namespace {

std::vector<Case>& Cases() {
  static std::vector<Case> cases;
  return cases;
}

}  // namespace

bool RegisterCases(const Case* first, size_t count) {
  Cases().insert(Cases().end(), first, first + count);
  return true;
}

Image& Images::img(int cvType, int k) {
  auto it = images_.find({cvType, k});
  if (it != images_.end()) return it->second;
  Image& im = images_[{cvType, k}];
  const int elem = int(CV_ELEM_SIZE(cvType));
  // Every layout is allocated as bytes: width x element size 8-bit pixels.
  Pel8u* p = peliMalloc_8u_C1(w * elem, h, &im.step);
  if (p == nullptr) {
    std::fprintf(stderr, "pel_bench: peliMalloc failed for %dx%d\n", w, h);
    std::exit(2);
  }
  im.mem.reset(p);
  // Touch every page before timing: random words; float images get small
  // finite values, so that no NaN pattern hides a wrong result.
  std::mt19937 rng(uint32_t(cvType * 131 + k * 7 + w));
  const size_t words = im.bytes(h) / 4;  // steps are multiples of 64
  const int depth = CV_MAT_DEPTH(cvType);
  for (size_t i = 0; i < words; ++i) {
    const uint32_t r = rng();
    if (depth == CV_32F) {
      const float f = float(r & 0xFFFF) * 0.25f;
      std::memcpy(p + 4 * i, &f, 4);
    } else if (depth == CV_64F) {
      const float f = float(r & 0xFFFF) * 0.25f;
      const double d = f;
      if (i % 2 == 0 && 4 * i + 8 <= im.bytes(h)) std::memcpy(p + 4 * i, &d, 8);
    } else {
      std::memcpy(p + 4 * i, &r, 4);
    }
  }
  im.mat = cv::Mat(h, w, cvType, p, size_t(im.step));
  return im;
}

Image& Images::mask() {
  if (mask_) return *mask_;
  mask_ = std::make_unique<Image>(std::move(img(CV_8UC1, 1000)));
  images_.erase({CV_8UC1, 1000});
  std::mt19937 rng(5);
  std::bernoulli_distribution flip(0.05);
  bool on = false;
  for (int y = 0; y < h; ++y) {
    Pel8u* row = mask_->u8() + size_t(y) * size_t(mask_->step);
    for (int x = 0; x < w; ++x) {
      if (flip(rng)) on = !on;
      row[x] = on ? 255 : 0;
    }
  }
  return *mask_;
}

namespace {

Images& ImagesFor(int w, int h) {
  static std::map<std::pair<int, int>, std::unique_ptr<Images>> cache;
  auto& slot = cache[{w, h}];
  if (!slot) slot = std::make_unique<Images>(w, h);
  return *slot;
}

struct Size {
  int w, h;
};
// Both widths give rows that fill their 64-byte-rounded step exactly, so the
// images are contiguous and one memcpy or memset covers just the ROI.
const Size kSizes[] = {{1920, 1080}, {3840, 2160}};
const char* const kImpls[] = {"pel", "opencv", "libc"};

// --quick keeps the first size; large-only cases then run at that size too.
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
  call(m);  // makes the case's images on first use, outside the timing
  for (auto _ : state) {
    const PelStatus status = call(m);
    if (status < 0) {
      state.SkipWithError(("pel status " + std::to_string(status)).c_str());
      break;
    }
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(c.bytesPerPixel * s.w * s.h));
}

// Prints the usual console lines and keeps each benchmark's throughput for the
// summary. With repetitions the best run wins (the one least disturbed by
// whatever else the machine was doing), then the median, then single runs.
class SummaryReporter : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> bytesPerSecond;

  explicit SummaryReporter(bool color) : ConsoleReporter(color ? OO_ColorTabular : OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs) {
      if (r.error_occurred) continue;
      auto it = r.counters.find("bytes_per_second");
      if (it == r.counters.end()) continue;
      const std::string name = r.run_name.function_name;
      const int rank = r.run_type != Run::RT_Aggregate ? 1
                       : r.aggregate_name == "best"  ? 3
                       : r.aggregate_name == "median" ? 2
                                                       : 0;
      if (rank > 0 && rank >= rank_[name]) {
        bytesPerSecond[name] = it->second.value;
        rank_[name] = rank;
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }

 private:
  std::map<std::string, int> rank_;
};

void PrintSummary(const SummaryReporter& rep, bool quick) {
  auto find = [&](const std::string& n) {
    auto it = rep.bytesPerSecond.find(n);
    return it == rep.bytesPerSecond.end() ? 0.0 : it->second;
  };
  auto cell = [](double v, double scale) {
    char buf[32];
    if (v <= 0)
      std::snprintf(buf, sizeof buf, "%11s", "-");
    else
      std::snprintf(buf, sizeof buf, "%11.2f", v / scale);
    return std::string(buf);
  };
  std::printf("\n%-24s %-10s %11s %11s %11s %11s %11s\n", "case", "size", "pel GB/s", "OpenCV GB/s",
              "libc GB/s", "pel/OpenCV", "pel/libc");
  for (const Case& c : Cases()) {
    for (const Size& s : kSizes) {
      if (!RunsAt(c, s, quick)) continue;
      const double pel = find(BenchName(c, s, 0));
      const double ocv = c.opencv ? find(BenchName(c, s, 1)) : 0.0;
      const double libc = c.libc ? find(BenchName(c, s, 2)) : 0.0;
      if (pel <= 0 && ocv <= 0 && libc <= 0) continue;
      const std::string size = std::to_string(s.w) + "x" + std::to_string(s.h);
      std::printf("%-24s %-10s %s %s %s %s %s\n", c.name, size.c_str(), cell(pel, 1e9).c_str(),
                  cell(ocv, 1e9).c_str(), cell(libc, 1e9).c_str(),
                  cell(pel > 0 && ocv > 0 ? pel / ocv : 0, 1).c_str(),
                  cell(pel > 0 && libc > 0 ? pel / libc : 0, 1).c_str());
    }
  }
  std::printf("GB/s counts bytes read plus bytes written; libc is memcpy for copies, memset for fills.\n");
}

}  // namespace
}  // namespace pelbench

int main(int argc, char** argv) {
  using namespace pelbench;
  const char* quickEnv = std::getenv("PEL_BENCH_QUICK");
  bool quick = quickEnv != nullptr && std::strcmp(quickEnv, "0") != 0;
  std::string cache = "native";
  std::vector<char*> args;
  for (int i = 0; i < argc; ++i) {
    if (std::strcmp(argv[i], "--quick") == 0) {
      quick = true;
    } else if (std::strncmp(argv[i], "--cache=", 8) == 0) {
      cache = argv[i] + 8;
    } else {
      args.push_back(argv[i]);
    }
  }
  if (cache == "fail") {
    gCacheMode = CacheMode::Fail;
  } else if (cache != "native") {
    gCacheMode = CacheMode::Fixed;
    gCacheBytes = std::atoi(cache.c_str());
  }
  int n = int(args.size());
  args.push_back(nullptr);
  benchmark::Initialize(&n, args.data());
  if (benchmark::ReportUnrecognizedArguments(n, args.data())) return 1;

  cv::setNumThreads(1);
  const PelLibraryVersion* v = peliGetLibVersion();
  int cacheBytes = 0;
  const int query = pelGetMaxCacheSizeB(&cacheBytes);
  std::printf("pel %s (%s), OpenCV %s, single thread%s; cache query: %s\n", v->Version, v->Name, CV_VERSION,
              quick ? ", quick" : "",
              query == 0 ? (std::to_string(cacheBytes) + " bytes").c_str() : "fails");

  for (const Case& c : Cases()) {
    for (const Size& s : kSizes) {
      if (!RunsAt(c, s, quick)) continue;
      for (int impl = 0; impl < 3; ++impl) {
        const Call call = CallOf(c, impl);
        if (call == nullptr) continue;
        auto* b = benchmark::RegisterBenchmark(BenchName(c, s, impl).c_str(),
                                               [&c, s, call](benchmark::State& st) { Run(st, c, s, call); });
        b->UseRealTime()->Unit(benchmark::kMicrosecond);
        // The largest throughput of the repetitions (the smallest time).
        b->ComputeStatistics("best", [](const std::vector<double>& v) {
          return v.empty() ? 0.0 : *std::max_element(v.begin(), v.end());
        });
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
