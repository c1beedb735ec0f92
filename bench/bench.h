// pel_bench: each family adds a file <family>_bench.cpp with a table of
// cases, registered with PEL_BENCH_CASES. A case runs pel and its OpenCV
// equivalent (and libc for plain streams) on the very same buffers.
#pragma once

#include <opencv2/core.hpp>

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "peli.h"

namespace pelbench {

struct FreeDeleter {
  void operator()(void* p) const { peliFree(p); }
};

// One image in peliMalloc memory (64-byte aligned rows), with a cv::Mat
// header over the same bytes.
struct Image {
  std::unique_ptr<Pel8u, FreeDeleter> mem;
  int step = 0;
  cv::Mat mat;

  Pel8u* u8() const { return mem.get(); }
  template <class T>
  T* as() const {
    return reinterpret_cast<T*>(mem.get());
  }
  size_t bytes(int height) const { return size_t(step) * size_t(height); }
};

// The buffers of one image size, made on first use: img(cvType, k) is the
// k-th image of that OpenCV type (random contents, small finite floats), so
// a case takes img(CV_8UC1, 0) as a source and img(CV_8UC1, 1) as a
// destination.
class Images {
 public:
  Images(int width, int height) : w(width), h(height), roi{width, height} {}
  Image& img(int cvType, int k = 0);
  // A mask of 0 and 255 in runs, about half set.
  Image& mask();

  const int w, h;
  const PeliSize roi;
  // Anything else a family's case keeps between calls (specs, buffers).
  std::map<std::string, std::shared_ptr<void>> extra;

 private:
  std::map<std::pair<int, int>, Image> images_;
  std::unique_ptr<Image> mask_;
};

// A call returns a pel status (OpenCV and libc calls return 0).
using Call = PelStatus (*)(Images&);

struct Case {
  const char* name;
  double bytesPerPixel;  // read + written per pixel, for the throughput figure
  Call pel;
  Call opencv;
  Call libc = nullptr;               // a plain stream's memcpy or memset, if any
  bool largeOnly = false;            // only at the largest size
  void (*prepare)(Images&) = nullptr;
};

bool RegisterCases(const Case* first, size_t count);

}  // namespace pelbench

#define PEL_BENCH_CASES(table) \
  [[maybe_unused]] static const bool pel_bench_registered = ::pelbench::RegisterCases(table, std::size(table));
