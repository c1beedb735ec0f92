// What the border rows cannot say: worked examples, the checks of the
// frame's geometry, and calls whose destination pointer is the source's.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "peli.h"

namespace {

// One row {a b c} with three border pixels on either side.
TEST(Border, WorkedExamples) {
  const Pel8u src[3] = {'a', 'b', 'c'};
  Pel8u dst[9];
  ASSERT_EQ(peliCopyMirrorBorder_8u_C1R(src, 3, PeliSize{3, 1}, dst, 9, PeliSize{9, 1}, 0, 3), pelStatusOk);
  EXPECT_EQ(std::string(dst, dst + 9), "bcbabcbab");
  ASSERT_EQ(peliCopyReplicateBorder_8u_C1R(src, 3, PeliSize{3, 1}, dst, 9, PeliSize{9, 1}, 0, 3), pelStatusOk);
  EXPECT_EQ(std::string(dst, dst + 9), "aaaabcccc");
  ASSERT_EQ(peliCopyConstBorder_8u_C1R(src, 3, PeliSize{3, 1}, dst, 9, PeliSize{9, 1}, 0, 3, '.'), pelStatusOk);
  EXPECT_EQ(std::string(dst, dst + 9), "...abc...");
  const Pel32s wsrc[2] = {1, 2};
  Pel32s wdst[9];
  ASSERT_EQ(peliCopyWrapBorder_32s_C1R(wsrc, 8, PeliSize{2, 1}, wdst, 36, PeliSize{9, 1}, 0, 5), pelStatusOk);
  EXPECT_EQ(std::vector<Pel32s>(wdst, wdst + 9), (std::vector<Pel32s>{2, 1, 2, 1, 2, 1, 2, 1, 2}));
  // A one-column source mirrors into copies of itself; a zero frame is a copy.
  ASSERT_EQ(peliCopyMirrorBorder_8u_C1R(src + 1, 1, PeliSize{1, 1}, dst, 4, PeliSize{4, 2}, 1, 2), pelStatusOk);
  EXPECT_EQ(std::string(dst, dst + 8), "bbbbbbbb");
  ASSERT_EQ(peliCopyMirrorBorder_8u_C1R(src, 3, PeliSize{3, 1}, dst, 3, PeliSize{3, 1}, 0, 0), pelStatusOk);
  EXPECT_EQ(std::string(dst, dst + 3), "abc");
}

// Steps are checked before sizes; a frame must hold the source.
TEST(Border, FrameChecks) {
  std::vector<Pel16u> src(64), dst(256);
  struct Case {
    int srcStep, dstStep, srcW, dstW, top, left;
    PelStatus want;
  };
  const Case cases[] = {{16, 32, 4, 10, 1, 6, pelStatusOk},     {16, 32, 4, 9, 1, 6, pelStatusBadSize},
                        {16, 32, 4, 10, -1, 2, pelStatusBadSize}, {16, 32, 4, 10, 1, -2, pelStatusBadSize},
                        {16, 32, 4, 10, 4, 0, pelStatusBadSize},  {-16, 32, 4, 10, 1, 6, pelStatusBadStep},
                        {16, 0, 4, 10, 1, 6, pelStatusBadStep},   {16, 0, 0, 10, 1, 6, pelStatusBadStep}};
  for (const Case& c : cases) {
    EXPECT_EQ(peliCopyReplicateBorder_16u_C1R(src.data(), c.srcStep, PeliSize{c.srcW, 3}, dst.data(), c.dstStep,
                                              PeliSize{c.dstW, 6}, c.top, c.left),
              c.want)
        << c.srcW << " " << c.dstW << " " << c.top << " " << c.left;
  }
}

// A destination pointer equal to the source's is the in-place call at that
// pointer: Replicate and Mirror before any check (the destination step is
// not looked at), Wrap after its checks. Const copies as asked.
TEST(Border, SamePointerIsInPlace) {
  const int step = 8;
  auto buffer = [] {
    std::vector<Pel8u> b(8 * 6);
    for (size_t i = 0; i < b.size(); ++i) b[i] = static_cast<Pel8u>('A' + i % 26);
    return b;
  };
  // The source is the 2 x 2 block at (2, 1) of an 8 x 6 buffer; the frame
  // reaches 2 pixels left and 1 row up.
  std::vector<Pel8u> a = buffer(), b = buffer();
  Pel8u* pa = a.data() + 1 * step + 2;
  ASSERT_EQ(peliCopyReplicateBorder_8u_C1R(pa, step, PeliSize{2, 2}, pa, -1, PeliSize{5, 4}, 1, 2), pelStatusOk);
  ASSERT_EQ(peliCopyReplicateBorder_8u_C1IR(b.data() + 1 * step + 2, step, PeliSize{2, 2}, PeliSize{5, 4}, 1, 2), pelStatusOk);
  EXPECT_TRUE(a == b);
  a = buffer();
  pa = a.data() + 1 * step + 2;
  EXPECT_EQ(peliCopyMirrorBorder_8u_C1R(pa, step, PeliSize{2, 2}, pa, 0, PeliSize{5, 4}, 1, 2), pelStatusOk);
  std::vector<Pel32s> w(8 * 6, 7), v(8 * 6, 7);
  w[10] = v[10] = 1;
  w[11] = v[11] = 2;
  EXPECT_EQ(peliCopyWrapBorder_32s_C1R(w.data() + 10, 32, PeliSize{2, 1}, w.data() + 10, 0, PeliSize{5, 2}, 1, 1),
            pelStatusBadStep);
  ASSERT_EQ(peliCopyWrapBorder_32s_C1R(w.data() + 10, 32, PeliSize{2, 1}, w.data() + 10, 32, PeliSize{5, 2}, 1, 1),
            pelStatusOk);
  ASSERT_EQ(peliCopyWrapBorder_32s_C1IR(v.data() + 10, 32, PeliSize{2, 1}, PeliSize{5, 2}, 1, 1), pelStatusOk);
  EXPECT_TRUE(w == v);
  // Const with no left or top border keeps the source where it is and fills
  // the rest of the destination.
  a = buffer();
  ASSERT_EQ(peliCopyConstBorder_8u_C1R(a.data(), step, PeliSize{3, 2}, a.data(), step, PeliSize{5, 3}, 0, 0, '.'), pelStatusOk);
  EXPECT_EQ(std::string(a.begin(), a.begin() + 24), std::string("ABC..FGHIJK..NOP.....VWX"));
}

}  // namespace
