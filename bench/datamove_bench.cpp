// Copy and set against OpenCV and libc.
#include <opencv2/core.hpp>

#include <algorithm>
#include <cstring>

#include "bench.h"
#include "pelcore.h"

namespace {

using pelbench::Image;
using pelbench::Images;

const Pel8u kFill3[3] = {10, 200, 77};

Image& S8(Images& m) { return m.img(CV_8UC1, 0); }
Image& D8(Images& m) { return m.img(CV_8UC1, 1); }
Image& S8C3(Images& m) { return m.img(CV_8UC3, 0); }
Image& D8C3(Images& m) { return m.img(CV_8UC3, 1); }
Image& S32f(Images& m) { return m.img(CV_32FC1, 0); }
Image& D32f(Images& m) { return m.img(CV_32FC1, 1); }

// copy_8u_C1_cold walks round robin through buffer pairs that together are
// twice the largest cache, so that every call starts cold.
struct ColdPairs {
  std::vector<std::pair<Image*, Image*>> pairs;
  size_t next = 0;
};
ColdPairs& Cold(Images& m) {
  auto& slot = m.extra["cold"];
  if (!slot) {
    auto cold = std::make_shared<ColdPairs>();
    int cache = 0;
    if (pelGetMaxCacheSizeB(&cache) != 0 || cache <= 0) cache = 32 << 20;
    const size_t pairBytes = 2 * size_t(m.w) * size_t(m.h);
    const size_t n = std::max<size_t>(2, 2 * size_t(cache) / pairBytes + 1);
    for (size_t i = 0; i < n; ++i)
      cold->pairs.push_back({&m.img(CV_8UC1, 100 + 2 * int(i)), &m.img(CV_8UC1, 101 + 2 * int(i))});
    slot = cold;
  }
  return *static_cast<ColdPairs*>(slot.get());
}
std::pair<Image*, Image*> NextCold(Images& m) {
  ColdPairs& c = Cold(m);
  return c.pairs[c.next++ % c.pairs.size()];
}

Pel8u* const* Planes(Images& m, Pel8u* (&p)[3]) {
  for (int k = 0; k < 3; ++k) p[k] = m.img(CV_8UC1, 10 + k).u8();
  return p;
}
std::vector<cv::Mat> PlaneMats(Images& m) {
  return {m.img(CV_8UC1, 10).mat, m.img(CV_8UC1, 11).mat, m.img(CV_8UC1, 12).mat};
}

const pelbench::Case kCases[] = {
    {"copy_8u_C1", 2,
     [](Images& m) { return peliCopy_8u_C1R(S8(m).u8(), S8(m).step, D8(m).u8(), D8(m).step, m.roi); },
     [](Images& m) { S8(m).mat.copyTo(D8(m).mat); return 0; },
     [](Images& m) { std::memcpy(D8(m).u8(), S8(m).u8(), S8(m).bytes(m.h)); return 0; }},
    {"copy_8u_C3", 6,
     [](Images& m) { return peliCopy_8u_C3R(S8C3(m).u8(), S8C3(m).step, D8C3(m).u8(), D8C3(m).step, m.roi); },
     [](Images& m) { S8C3(m).mat.copyTo(D8C3(m).mat); return 0; },
     [](Images& m) { std::memcpy(D8C3(m).u8(), S8C3(m).u8(), S8C3(m).bytes(m.h)); return 0; }},
    {"copy_32f_C1", 8,
     [](Images& m) { return peliCopy_32f_C1R(S32f(m).as<Pel32f>(), S32f(m).step, D32f(m).as<Pel32f>(), D32f(m).step, m.roi); },
     [](Images& m) { S32f(m).mat.copyTo(D32f(m).mat); return 0; },
     [](Images& m) { std::memcpy(D32f(m).u8(), S32f(m).u8(), S32f(m).bytes(m.h)); return 0; }},
    // The same bytes through the copy whose caller picks the stores: flags 0
    // keeps them cached, which is what memcpy and OpenCV do at these sizes,
    // while peliCopy_8u_C1R bypasses the cache above 1 MiB.
    {"copy_cached_8u_C1", 2,
     [](Images& m) { return peliCopyManaged_8u_C1R(S8(m).u8(), S8(m).step, D8(m).u8(), D8(m).step, m.roi, 0); },
     [](Images& m) { S8(m).mat.copyTo(D8(m).mat); return 0; },
     [](Images& m) { std::memcpy(D8(m).u8(), S8(m).u8(), S8(m).bytes(m.h)); return 0; }},
    {"set_8u_C1", 1,
     [](Images& m) { return peliSet_8u_C1R(Pel8u{42}, D8(m).u8(), D8(m).step, m.roi); },
     [](Images& m) { D8(m).mat.setTo(cv::Scalar(42)); return 0; },
     [](Images& m) { std::memset(D8(m).u8(), 42, D8(m).bytes(m.h)); return 0; }},
    {"set_8u_C3", 3,
     [](Images& m) { return peliSet_8u_C3R(kFill3, D8C3(m).u8(), D8C3(m).step, m.roi); },
     [](Images& m) { D8C3(m).mat.setTo(cv::Scalar(kFill3[0], kFill3[1], kFill3[2])); return 0; },
     [](Images& m) { std::memset(D8C3(m).u8(), 42, D8C3(m).bytes(m.h)); return 0; }},
    {"set_32f_C1", 4,
     [](Images& m) { return peliSet_32f_C1R(1.5f, D32f(m).as<Pel32f>(), D32f(m).step, m.roi); },
     [](Images& m) { D32f(m).mat.setTo(cv::Scalar(1.5)); return 0; },
     [](Images& m) { std::memset(D32f(m).u8(), 42, D32f(m).bytes(m.h)); return 0; }},
    {"copy_masked_8u_C1", 3,
     [](Images& m) {
       return peliCopy_8u_C1MR(S8(m).u8(), S8(m).step, D8(m).u8(), D8(m).step, m.mask().u8(), m.mask().step, m.roi);
     },
     [](Images& m) { S8(m).mat.copyTo(D8(m).mat, m.mask().mat); return 0; }},
    {"extract_8u_C3C1", 4,
     [](Images& m) { return peliCopy_8u_C3C1R(S8C3(m).u8() + 1, S8C3(m).step, D8(m).u8(), D8(m).step, m.roi); },
     [](Images& m) { cv::extractChannel(S8C3(m).mat, D8(m).mat, 1); return 0; }},
    {"split_8u_C3P3", 6,
     [](Images& m) {
       Pel8u* p[3];
       return peliCopy_8u_C3P3R(S8C3(m).u8(), S8C3(m).step, Planes(m, p), m.img(CV_8UC1, 10).step, m.roi);
     },
     [](Images& m) { auto planes = PlaneMats(m); cv::split(S8C3(m).mat, planes.data()); return 0; }},
    {"merge_8u_P3C3", 6,
     [](Images& m) {
       Pel8u* p[3];
       Planes(m, p);
       const Pel8u* const planes[3] = {p[0], p[1], p[2]};
       return peliCopy_8u_P3C3R(planes, m.img(CV_8UC1, 10).step, D8C3(m).u8(), D8C3(m).step, m.roi);
     },
     [](Images& m) { auto planes = PlaneMats(m); cv::merge(planes.data(), 3, D8C3(m).mat); return 0; }},
    {"copy_8u_C1_cold", 2,
     [](Images& m) {
       auto [src, dst] = NextCold(m);
       return peliCopy_8u_C1R(src->u8(), src->step, dst->u8(), dst->step, m.roi);
     },
     [](Images& m) {
       auto [src, dst] = NextCold(m);
       src->mat.copyTo(dst->mat);
       return 0;
     },
     [](Images& m) {
       auto [src, dst] = NextCold(m);
       std::memcpy(dst->u8(), src->u8(), src->bytes(m.h));
       return 0;
     },
     true, [](Images& m) { Cold(m); }},
};

}  // namespace

PEL_BENCH_CASES(kCases)
