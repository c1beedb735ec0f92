// What the warp rows cannot say: the helpers' rounded results, copies through
// identity and integer shifts, any tiling against one whole call at every
// CPU level, the constant fill of a spec that asks for it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "peli.h"
#include "support/cpu_levels.h"
#include "support/image.h"

namespace {

TEST(WarpHelpers, RotationsAndFits) {
  double m[2][3];
  ASSERT_EQ(peliGetRotateTransform(30, 0, 0, m), pelStatusOk);
  EXPECT_NEAR(m[0][0], std::sqrt(3.0) / 2, 1e-15);
  EXPECT_NEAR(m[0][1], 0.5, 1e-15);
  EXPECT_NEAR(m[1][0], -0.5, 1e-15);
  double xs, ys;
  ASSERT_EQ(peliGetRotateShift(10, 20, 30, &xs, &ys), pelStatusOk);
  // The centre stays in place.
  EXPECT_NEAR(m[0][0] * 10 + m[0][1] * 20 + xs, 10, 1e-12);
  EXPECT_NEAR(m[1][0] * 10 + m[1][1] * 20 + ys, 20, 1e-12);

  // A perspective fit carries the four corners onto the four points.
  const PeliRect r{2, 3, 5, 3};
  const double q[4][2] = {{1, 1}, {9, 2}, {8, 6}, {0, 5}};
  double p[3][3];
  ASSERT_EQ(peliGetPerspectiveTransform(r, q, p), pelStatusOk);
  const double corners[4][2] = {{2, 3}, {6, 3}, {6, 5}, {2, 5}};
  for (int i = 0; i < 4; ++i) {
    const double x = corners[i][0], y = corners[i][1], w = p[2][0] * x + p[2][1] * y + p[2][2];
    EXPECT_NEAR((p[0][0] * x + p[0][1] * y + p[0][2]) / w, q[i][0], 1e-12);
    EXPECT_NEAR((p[1][0] * x + p[1][1] * y + p[1][2]) / w, q[i][1], 1e-12);
  }
  double back[4][2];
  EXPECT_EQ(peliGetPerspectiveQuad(r, back, p), pelStatusOk);

  // A flat matrix: the quadrangle is still written, with -56.
  const double flat[2][3] = {{1, 2, 0}, {2, 4, 0}};
  double quad[4][2], bound[2][2];
  EXPECT_EQ(peliGetAffineQuad(r, quad, flat), pelStatusCoefficientsSingular);
  EXPECT_EQ(quad[1][0], 12);
  EXPECT_EQ(quad[2][1], 32);
  EXPECT_EQ(peliGetAffineBound(r, bound, flat), pelStatusCoefficientsSingular);
  EXPECT_EQ(bound[1][1], 32);
}

// One 8u or 32f warp through a fresh spec, tile by tile.
struct Warp8u {
  PeliSize src, dst;
  // The source's last byte touches an unreadable page: a read past it faults.
  peltest::Bytes in{peltest::GuardedAllocator(peltest::Fence::AtEnd)};
  double m[2][3];
  int border = pelBorderReplicate, method = 2, C = 1;

  std::vector<Pel8u> Run(int tileW, int tileH, int fill = 1) const {
    int specBytes = 0, bufBytes = 0;
    EXPECT_EQ(peliWarpAffineGetSize(src, dst, pelType8u, m, method, 1, border, &specBytes, &bufBytes), pelStatusOk);
    std::vector<uint8_t> spec(size_t(specBytes) + 1);
    std::vector<uint8_t> buf(static_cast<size_t>(bufBytes));
    auto* s = reinterpret_cast<PeliWarpSpec*>(spec.data() + 1);
    const double value[4] = {9, 99, 199, 255};
    PelStatus st = method == 1 ? peliWarpAffineNearestInit(src, dst, pelType8u, m, 1, C, border, value, 0, s)
                   : method == 2 ? peliWarpAffineLinearInit(src, dst, pelType8u, m, 1, C, border, value, 0, s)
                                 : peliWarpAffineCubicInit(src, dst, pelType8u, m, 1, C, border, value, 0, 0.5, 0, s);
    EXPECT_EQ(st, pelStatusOk);
    std::memcpy(spec.data() + 1 + 12 * 4, &fill, 4);  // the fill word: 0 asks for the constant fill first
    std::vector<Pel8u> out(size_t(dst.width) * dst.height * C, 77);
    for (int y = 0; y < dst.height; y += tileH)
      for (int x = 0; x < dst.width; x += tileW) {
        const PeliSize t{std::min(tileW, dst.width - x), std::min(tileH, dst.height - y)};
        Pel8u* d = out.data() + (size_t(y) * dst.width + x) * C;
        const int sstep = src.width * C, dstep = dst.width * C;
        st = method == 1 ? (C == 1 ? peliWarpAffineNearest_8u_C1R : C == 3 ? peliWarpAffineNearest_8u_C3R : peliWarpAffineNearest_8u_C4R)(in.data(), sstep, d, dstep, {x, y}, t, s, buf.data())
             : method == 2 ? (C == 1 ? peliWarpAffineLinear_8u_C1R : C == 3 ? peliWarpAffineLinear_8u_C3R : peliWarpAffineLinear_8u_C4R)(in.data(), sstep, d, dstep, {x, y}, t, s, buf.data())
                           : (C == 1 ? peliWarpAffineCubic_8u_C1R : C == 3 ? peliWarpAffineCubic_8u_C3R : peliWarpAffineCubic_8u_C4R)(in.data(), sstep, d, dstep, {x, y}, t, s, buf.data());
        EXPECT_EQ(st, pelStatusOk);
      }
    return out;
  }
};

Warp8u Make(PeliSize src, PeliSize dst, int C) {
  Warp8u w;
  w.src = src, w.dst = dst, w.C = C;
  w.in.resize(size_t(src.width) * src.height * C);
  std::mt19937 rng(5);
  for (auto& v : w.in) v = Pel8u(rng());
  return w;
}

TEST(WarpProcessing, IdentityAndIntegerShiftsCopy) {
  peltest::ForEachCpuLevel([&] {
    for (int C : {1, 3, 4})
      for (int method : {1, 2, 6}) {
        Warp8u w = Make({67, 23}, {67, 23}, C);
        w.method = method;
        const double id[2][3] = {{1, 0, 0}, {0, 1, 0}};
        std::memcpy(w.m, id, sizeof id);
        EXPECT_EQ(w.Run(67, 23), std::vector<Pel8u>(w.in.begin(), w.in.end())) << "identity, method " << method << ", C" << C;
        // dst (x, y) reads src (x + dx, y + dy): a copy where that is inside.
        // (2, 1) ends whole blocks of any width dividing 64 at the source's
        // next-to-last column, next to the last byte of the source.
        for (const std::array<int, 2>& d : {std::array<int, 2>{3, -2}, std::array<int, 2>{2, 1}}) {
          const double shift[2][3] = {{1, 0, double(d[0])}, {0, 1, double(d[1])}};
          std::memcpy(w.m, shift, sizeof shift);
          const std::vector<Pel8u> out = w.Run(67, 23);
          for (int y = std::max(0, -d[1]); y < std::min(23, 23 - d[1]); ++y)
            for (int x = 0; x + d[0] < 67; ++x)
              for (int c = 0; c < C; ++c)
                ASSERT_EQ(out[(size_t(y) * 67 + x) * C + c], w.in[(size_t(y + d[1]) * 67 + x + d[0]) * C + c])
                    << "shift " << d[0] << "," << d[1] << " method " << method << " C" << C << " at " << x << "," << y;
        }
      }
  });
}

TEST(WarpProcessing, AnyTilingGivesTheWholeCall) {
  std::vector<std::vector<Pel8u>> whole;
  peltest::ForEachCpuLevel([&] {
    int k = 0;
    for (int border : {int(pelBorderReplicate), int(pelBorderConstant), 7})
      for (int method : {1, 2, 6}) {
        Warp8u w = Make({90, 61}, {101, 73}, method == 2 ? 3 : 1);
        w.method = method, w.border = border;
        const double a = 0.93 * std::cos(0.2), b = 0.93 * std::sin(0.2);
        const double m[2][3] = {{a, -b, 8.3}, {b, a, -11.6}};
        std::memcpy(w.m, m, sizeof m);
        const std::vector<Pel8u> one = w.Run(101, 73);
        EXPECT_EQ(w.Run(13, 7), one);
        EXPECT_EQ(w.Run(64, 1), one);
        if (border == pelBorderConstant) {
          EXPECT_EQ(w.Run(17, 9, 0), one) << "with the constant fill first";
        }
        // Every level gives the first level's bytes.
        if (whole.size() <= size_t(k)) {
          whole.push_back(one);
        } else {
          EXPECT_EQ(one, whole[size_t(k)]) << "border " << border << ", method " << method;
        }
        ++k;
      }
  });
}

}  // namespace
