// Vector kernels of the mirror and channel-swap family: one source, compiled
// once per instruction set by Highway, chosen at run time. The baseline
// target runs the scalar references, so PEL_CPU=scalar gives exactly those.
//
// Pixels of 1, 2, 4, 8 or 16 bytes tile a 16-byte block, so a vector of any
// width is reversed by a byte shuffle inside each block and a reversal of
// the blocks. Three-channel pixels (3, 6 or 12 bytes) do not: they are
// handled in groups of 48 bytes (three 16-byte vectors, a whole number of
// pixels), each output vector an OR of byte shuffles of the inputs it draws
// from. Channel swaps use the same groups with tables built per call from
// the channel order.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "datamove/row_mirror_kernels.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep

#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

#include "datamove/gather.h"
#include "datamove/mirror_scalar.h"
#include "datamove/pixel_rows.h"
#include "datamove/row_mirror_kernels.h"
#include "hwy/highway.h"

#ifndef PEL_DATAMOVE_ROW_MIRROR_TABLES
#define PEL_DATAMOVE_ROW_MIRROR_TABLES
namespace pel::datamove {
namespace {

// Byte j of a 16-byte block of P-byte pixels comes from this byte of the
// block when the block's pixels are reversed.
template <int P>
constexpr std::array<uint8_t, 16> BlockReverseTable() {
  std::array<uint8_t, 16> t{};
  for (int j = 0; j < 16; ++j) t[j] = static_cast<uint8_t>((16 / P - 1 - j / P) * P + j % P);
  return t;
}
template <int P>
alignas(16) constexpr std::array<uint8_t, 16> kBlockReverse = BlockReverseTable<P>();

// Byte tables of a three-vector group: out[k] = OR over m of in[m] shuffled
// by t[k][m]; reach[k][m] says whether in[m] contributes to out[k] at all.
struct GroupTables {
  alignas(16) uint8_t t[3][3][16];
  bool reach[3][3];
};

// The 48 / P pixels of a group of P-byte pixels in reverse order.
template <int P>
constexpr GroupTables GroupReverseTables() {
  GroupTables g{};
  for (auto& k : g.t)
    for (auto& m : k)
      for (auto& b : m) b = 0x80;
  constexpr int Q = 48 / P;
  for (int j = 0; j < 48; ++j) {
    const int s = (Q - 1 - j / P) * P + j % P;
    g.t[j / 16][s / 16][j % 16] = static_cast<uint8_t>(s % 16);
    g.reach[j / 16][s / 16] = true;
  }
  return g;
}
template <int P>
constexpr GroupTables kGroupReverse = GroupReverseTables<P>();

// Whether output vector k of a gather group (16 / E pixels, Ci lanes in,
// Co lanes out) can draw from input vector m, whatever the order.
constexpr bool GatherReach(int ci, int co, int e, int k, int m) {
  const int q0 = 16 * k / (co * e), q1 = (16 * k + 15) / (co * e);
  const int first = q0 * ci * e / 16, last = ((q1 + 1) * ci * e - 1) / 16;
  return m >= first && m <= last;
}

alignas(16) constexpr uint8_t kAlphaKeep4[16] = {0, 0, 0, 0xFF, 0, 0, 0, 0xFF,
                                                 0, 0, 0, 0xFF, 0, 0, 0, 0xFF};
alignas(16) constexpr uint8_t kAlphaKeep8[16] = {0, 0, 0, 0, 0, 0, 0xFF, 0xFF,
                                                 0, 0, 0, 0, 0, 0, 0xFF, 0xFF};
alignas(16) constexpr uint8_t kAlphaKeep16[16] = {0, 0, 0, 0, 0, 0, 0, 0,
                                                  0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF};

template <int P>
constexpr const uint8_t* AlphaKeepBytes() {
  return P == 4 ? kAlphaKeep4 : P == 8 ? kAlphaKeep8 : kAlphaKeep16;
}

}  // namespace
}  // namespace pel::datamove
#endif

HWY_BEFORE_NAMESPACE();
namespace pel::datamove::HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_EMU128 || HWY_TARGET == HWY_SCALAR

void ReverseRowTarget(const void* src, void* dst, size_t n, PixelBytes px, bool /*stream*/) {
  scalar::ReverseRowAny(src, dst, n, px);
}
void ReverseRowInPlaceTarget(void* a, size_t n, PixelBytes px) { scalar::ReverseRowInPlaceAny(a, n, px); }
void ReverseSwapRowsTarget(void* a, void* b, size_t n, PixelBytes px) {
  scalar::ReverseSwapRowsAny(a, b, n, px);
}
void SwapRowsTarget(void* a, void* b, size_t n, PixelBytes px) { scalar::SwapRowsAny(a, b, n, px); }
void GatherRowTarget(const void* src, void* dst, size_t n, const GatherPlan& plan) {
  scalar::GatherRowAny(src, dst, n, plan);
}
void FrameRowTarget(const void* row, void* out, size_t width, size_t left, size_t right, FrameKind kind,
                    PixelBytes px, const void* value, bool middleThere) {
  scalar::FrameRowAny(row, out, width, left, right, kind, px, value, middleThere);
}

#else

namespace {

template <size_t... I, class F>
HWY_INLINE void UnrollSeq(std::index_sequence<I...>, F&& f) {
  (f(std::integral_constant<size_t, I>{}), ...);
}
// f(0), f(1), ... f(N - 1), each index a compile-time constant.
template <size_t N, class F>
HWY_INLINE void Unroll(F&& f) {
  UnrollSeq(std::make_index_sequence<N>{}, f);
}

// Q pixels of P in {1, 2, 4, 8, 16} bytes in one vector of the target's
// width (or of 16 bytes, for short runs).
template <int P, bool kKeepAlpha, class Tag = hn::ScalableTag<uint8_t>>
struct WideBlock {
  static constexpr int kP = P;
  static constexpr bool kKeep = kKeepAlpha;
  using D = Tag;
  using B = hn::Vec<D>;
  D d;
  size_t Q;
  B table;
  B keep;

  HWY_INLINE WideBlock()
      : Q(hn::Lanes(d) / P),
        table(hn::LoadDup128(d, kBlockReverse<P>.data())),
        keep(kKeepAlpha ? hn::LoadDup128(d, AlphaKeepBytes<P>()) : hn::Zero(d)) {}

  HWY_INLINE B Load(const uint8_t* p) const { return hn::LoadU(d, p); }
  HWY_INLINE B Blend(B v, const uint8_t* p) const {
    if constexpr (kKeepAlpha) v = hn::IfThenElse(hn::MaskFromVec(keep), hn::LoadU(d, p), v);
    return v;
  }
  HWY_INLINE void Store(B v, uint8_t* p) const { hn::StoreU(Blend(v, p), d, p); }
  HWY_INLINE void StreamTo(B v, uint8_t* p) const { hn::Stream(Blend(v, p), d, p); }
  HWY_INLINE B Reverse(B v) const {
    if constexpr (P != 16) v = hn::TableLookupBytes(v, table);
    return hn::ReverseBlocks(d, v);
  }
};

// Q = 48 / P pixels of P in {3, 6, 12} bytes in three 16-byte vectors.
template <int P>
struct GroupBlock {
  static constexpr int kP = P;
  static constexpr bool kKeep = false;
  using D = hn::Full128<uint8_t>;
  using V = hn::Vec<D>;
  struct B {
    V v[3];
  };
  D d;
  size_t Q;

  HWY_INLINE GroupBlock() : Q(48 / P) {}

  HWY_INLINE B Load(const uint8_t* p) const {
    return B{{hn::LoadU(d, p), hn::LoadU(d, p + 16), hn::LoadU(d, p + 32)}};
  }
  HWY_INLINE void Store(const B& b, uint8_t* p) const {
    for (int k = 0; k < 3; ++k) hn::StoreU(b.v[k], d, p + 16 * k);
  }
  HWY_INLINE void StreamTo(const B& b, uint8_t* p) const { Store(b, p); }
  HWY_INLINE B Reverse(const B& in) const {
    B out;
    Unroll<3>([&](auto k) HWY_ATTR {
      V acc = hn::Zero(d);
      Unroll<3>([&](auto m) HWY_ATTR {
        if constexpr (kGroupReverse<P>.reach[k()][m()]) {
          acc = hn::Or(acc, hn::TableLookupBytesOr0(in.v[m()], hn::Load(d, kGroupReverse<P>.t[k()][m()])));
        }
      });
      out.v[k()] = acc;
    });
    return out;
  }
};

// f(block) with the block type for the pixel.
template <class F>
HWY_INLINE void WithBlock(PixelBytes px, F&& f) {
  VisitPixel(px, [&](auto p, auto k) {
    if constexpr (p() % 3 == 0) {
      f(GroupBlock<p()>());
    } else {
      f(WideBlock<p(), k()>());
    }
  });
}

// Destination pixels [j, j + Q) take source pixels [n - j - Q, n - j)
// reversed. The last block may overlap the one before it: it rewrites
// those pixels with the values they already have.
template <class Blk>
void ReverseRowT(const Blk& k, const uint8_t* src, uint8_t* dst, size_t n, bool stream) {
  constexpr int P = Blk::kP;
  const size_t Q = k.Q;
  if (n < Q) {
    scalar::ReverseRow<P, Blk::kKeep>(src, dst, n);
    return;
  }
  const auto block = [&](size_t j) HWY_ATTR { return k.Reverse(k.Load(src + (n - j - Q) * P)); };
  size_t j = 0;
  const size_t vecBytes = Q * P;
  const auto address = reinterpret_cast<uintptr_t>(dst);
  if (P % 3 != 0 && stream && address % P == 0) {
    // One unaligned block covers the pixels before the first aligned one.
    k.Store(block(0), dst);
    for (j = (vecBytes - address % vecBytes) % vecBytes / P; j + Q <= n; j += Q) {
      k.StreamTo(block(j), dst + j * P);
    }
  } else {
    for (; j + 2 * Q <= n; j += 2 * Q) {
      const auto a = block(j);
      const auto b = block(j + Q);
      k.Store(a, dst + j * P);
      k.Store(b, dst + (j + Q) * P);
    }
    for (; j + Q <= n; j += Q) k.Store(block(j), dst + j * P);
  }
  if (j < n) k.Store(block(n - Q), dst + (n - Q) * P);
}

// Blocks from both ends are loaded before either is stored, so the two may
// overlap in the middle; a middle shorter than a block goes scalar.
template <class Blk>
void ReverseRowInPlaceT(const Blk& k, uint8_t* a, size_t n) {
  constexpr int P = Blk::kP;
  const size_t Q = k.Q;
  const auto pair = [&](size_t i) HWY_ATTR {
    const auto x = k.Load(a + i * P);
    const auto y = k.Load(a + (n - i - Q) * P);
    k.Store(k.Reverse(y), a + i * P);
    k.Store(k.Reverse(x), a + (n - i - Q) * P);
  };
  size_t i = 0;
  for (; n - 2 * i >= 2 * Q; i += Q) pair(i);
  if (n - 2 * i >= Q) {
    pair(i);
  } else {
    scalar::ReverseRowInPlace<P, Blk::kKeep>(a + i * P, n - 2 * i);
  }
}

template <class Blk>
void ReverseSwapRowsT(const Blk& k, uint8_t* a, uint8_t* b, size_t n) {
  constexpr int P = Blk::kP;
  const size_t Q = k.Q;
  const auto quad = [&](size_t i) HWY_ATTR {
    const size_t far = (n - i - Q) * P;
    const auto af = k.Load(a + i * P), ab = k.Load(a + far);
    const auto bf = k.Load(b + i * P), bb = k.Load(b + far);
    k.Store(k.Reverse(bb), a + i * P);
    k.Store(k.Reverse(bf), a + far);
    k.Store(k.Reverse(ab), b + i * P);
    k.Store(k.Reverse(af), b + far);
  };
  size_t i = 0;
  for (; n - 2 * i >= 2 * Q; i += Q) quad(i);
  if (n - 2 * i >= Q) {
    quad(i);
  } else {
    scalar::ReverseSwapRows<P, Blk::kKeep>(a + i * P, b + i * P, n - 2 * i);
  }
}

// The last block is loaded before the loop: the loop's blocks may then
// overlap it without the exchange being done twice.
template <int P, bool kKeep>
void SwapRowsT(uint8_t* a, uint8_t* b, size_t n) {
  const WideBlock<P, kKeep> k;
  const size_t Q = k.Q;
  if (n < Q) {
    scalar::SwapRows<P, kKeep>(a, b, n);
    return;
  }
  const size_t last = (n - Q) * P;
  const auto lastA = k.Load(a + last), lastB = k.Load(b + last);
  size_t i = 0;
  for (; i + Q <= n; i += Q) {
    const auto x = k.Load(a + i * P), y = k.Load(b + i * P);
    k.Store(y, a + i * P);
    k.Store(x, b + i * P);
  }
  if (i < n) {
    k.Store(lastB, a + last);
    k.Store(lastA, b + last);
  }
}

// Four lanes in and out: every 16-byte block holds whole pixels and takes
// the same shuffle, so vectors of any width work.
template <class U>
void GatherFourT(const uint8_t* src, uint8_t* dst, size_t n, const GatherPlan& plan) {
  const hn::ScalableTag<uint8_t> d;
  const size_t Q = hn::Lanes(d) / (4 * sizeof(U));
  const auto table = hn::LoadDup128(d, plan.table[0][0]);
  const auto fill = hn::LoadDup128(d, plan.fill[0]);
  const auto keep = hn::MaskFromVec(hn::LoadDup128(d, plan.keep[0]));
  size_t i = 0;
  for (; i + Q <= n; i += Q) {
    auto v = hn::Or(hn::TableLookupBytesOr0(hn::LoadU(d, src + i * 4 * sizeof(U)), table), fill);
    if (plan.anyKeep) v = hn::IfThenElse(keep, hn::LoadU(d, dst + i * 4 * sizeof(U)), v);
    hn::StoreU(v, d, dst + i * 4 * sizeof(U));
  }
  scalar::GatherRow(reinterpret_cast<const U*>(src) + i * 4, reinterpret_cast<U*>(dst) + i * 4, n - i,
                    plan);
}

// Groups of 16 / sizeof(U) pixels: Ci input vectors, Co output vectors of
// 16 bytes. B consecutive groups go side by side in the 16-byte blocks of
// one B x 16-byte vector, so that each shuffle serves all of them (the
// tables are the same for every group).
template <class U, int Ci, int Co, size_t B = 1>
void GatherGroupsT(const uint8_t* src, uint8_t* dst, size_t n, const GatherPlan& plan) {
  const hn::FixedTag<uint8_t, 16 * B> d;
  const hn::Full128<uint8_t> d16;
  using V = hn::Vec<decltype(d)>;
  constexpr int E = sizeof(U);
  constexpr size_t G = 16 / E;
  // The 16-byte part m of B groups lying `stride` bytes apart.
  const auto load = [&](const uint8_t* p, size_t stride) HWY_ATTR {
    if constexpr (B == 1) {
      (void)stride;
      return hn::LoadU(d, p);
    } else {
      static_assert(B == 2);
      return hn::Combine(d, hn::LoadU(d16, p + stride), hn::LoadU(d16, p));
    }
  };
  const auto store = [&](V v, uint8_t* p, size_t stride) HWY_ATTR {
    if constexpr (B == 1) {
      (void)stride;
      hn::StoreU(v, d, p);
    } else {
      hn::StoreU(hn::LowerHalf(d16, v), d16, p);
      hn::StoreU(hn::UpperHalf(d16, v), d16, p + stride);
    }
  };
  V table[Co][Ci];
  V fill[Co];
  V keep[Co];
  Unroll<Co>([&](auto k) HWY_ATTR {
    fill[k()] = hn::LoadDup128(d, plan.fill[k()]);
    keep[k()] = hn::LoadDup128(d, plan.keep[k()]);
    Unroll<Ci>([&](auto m) HWY_ATTR {
      if constexpr (GatherReach(Ci, Co, E, k(), m())) table[k()][m()] = hn::LoadDup128(d, plan.table[k()][m()]);
    });
  });
  size_t i = 0;
  for (; i + B * G <= n; i += B * G) {
    V in[Ci];
    Unroll<Ci>([&](auto m) HWY_ATTR { in[m()] = load(src + i * Ci * E + 16 * m(), 16 * Ci); });
    V out[Co];
    Unroll<Co>([&](auto k) HWY_ATTR {
      V acc = fill[k()];
      Unroll<Ci>([&](auto m) HWY_ATTR {
        if constexpr (GatherReach(Ci, Co, E, k(), m())) {
          acc = hn::Or(acc, hn::TableLookupBytesOr0(in[m()], table[k()][m()]));
        }
      });
      out[k()] = acc;
    });
    Unroll<Co>([&](auto k) HWY_ATTR {
      uint8_t* p = dst + i * Co * E + 16 * k();
      V v = out[k()];
      if (plan.anyKeep) v = hn::IfThenElse(hn::MaskFromVec(keep[k()]), load(p, 16 * Co), v);
      store(v, p, 16 * Co);
    });
  }
  if constexpr (B > 1) return GatherGroupsT<U, Ci, Co, 1>(src + i * Ci * E, dst + i * Co * E, n - i, plan);
  scalar::GatherRow(reinterpret_cast<const U*>(src) + i * Ci, reinterpret_cast<U*>(dst) + i * Co,
                    n - i, plan);
}

#if HWY_MAX_BYTES > 16
#define PEL_GATHER_THREE(Ci, Co) GatherGroupsT<U, Ci, Co, 2>
#else
#define PEL_GATHER_THREE(Ci, Co) GatherGroupsT<U, Ci, Co>
#endif

template <class U>
void GatherT(const uint8_t* src, uint8_t* dst, size_t n, const GatherPlan& plan) {
  const int ci = plan.srcChannels, co = plan.dstChannels;
  if (ci == 4 && co == 4) return GatherFourT<U>(src, dst, n, plan);
  if (ci == 3 && co == 3) return PEL_GATHER_THREE(3, 3)(src, dst, n, plan);
  if (ci == 3 && co == 4) return PEL_GATHER_THREE(3, 4)(src, dst, n, plan);
  if (ci == 4 && co == 3) return PEL_GATHER_THREE(4, 3)(src, dst, n, plan);
}
#undef PEL_GATHER_THREE

// Bytes from s to d: the bytes up to d's first 64-byte boundary first, so
// that the loop's stores never straddle two cache lines. The loads then
// straddle one wherever s and d disagree modulo 64; with 32-byte vectors
// at most every other one does, with 64-byte vectors every one.
HWY_INLINE void CopyBytes(const uint8_t* s, uint8_t* d, size_t n) {
  const hn::CappedTag<uint8_t, 32> tag;
  const size_t N = hn::Lanes(tag);
  const size_t head = (64 - reinterpret_cast<uintptr_t>(d) % 64) % 64;
  if (n < head + 4 * N) {
    std::memcpy(d, s, n);
    return;
  }
  std::memcpy(d, s, head);
  size_t i = head;
  for (; i + 4 * N <= n; i += 4 * N) {
    const auto v0 = hn::LoadU(tag, s + i), v1 = hn::LoadU(tag, s + i + N);
    const auto v2 = hn::LoadU(tag, s + i + 2 * N), v3 = hn::LoadU(tag, s + i + 3 * N);
    hn::Store(v0, tag, d + i);
    hn::Store(v1, tag, d + i + N);
    hn::Store(v2, tag, d + i + 2 * N);
    hn::Store(v3, tag, d + i + 3 * N);
  }
  for (; i + N <= n; i += N) hn::Store(hn::LoadU(tag, s + i), tag, d + i);
  if (i < n) hn::StoreU(hn::LoadU(tag, s + n - N), tag, d + n - N);
}

// Runs of a frame row: short ones here, long ones (wide frames, rare) by
// the general kernels.
template <int P, bool kKeep>
HWY_INLINE void CopyRun(const uint8_t* s, uint8_t* d, size_t n) {
  if constexpr (kKeep) {
    if (n * P > 64) return AlphaCopyRowAny(s, d, n, P / 4, false);
    for (size_t x = 0; x < n; ++x) MovePixel<P, true>(d + x * P, s + x * P);
  } else {
    CopyBytes(s, d, n * P);
  }
}

template <int P, bool kKeep>
HWY_INLINE void FillRun(uint8_t* d, size_t n, const uint8_t* pixel) {
  if (n * P > 64) return FillPixels(d, n, pixel, PixelBytes{P, kKeep});
  if constexpr (P == 1) {
    std::memset(d, pixel[0], n);
  } else {
    for (size_t x = 0; x < n; ++x) MovePixel<P, kKeep>(d + x * P, pixel);
  }
}

template <int P, bool kKeep>
HWY_INLINE void ReverseRun(const uint8_t* s, uint8_t* d, size_t n) {
  if constexpr (P % 3 == 0) {
    scalar::ReverseRow<P, kKeep>(s, d, n);
  } else if (n * P >= 64) {
    ReverseRowT(WideBlock<P, kKeep>(), s, d, n, false);
  } else {
    ReverseRowT(WideBlock<P, kKeep, hn::Full128<uint8_t>>(), s, d, n, false);  // scalar below 16 bytes
  }
}

template <int P, bool kKeep>
void FrameRowT(const uint8_t* row, uint8_t* out, size_t W, size_t L, size_t R, FrameKind kind,
               const uint8_t* value, bool middleThere) {
  uint8_t* mid = out + L * P;
  uint8_t* right = mid + W * P;
  switch (kind) {
    case kFrameConstant: FillRun<P, kKeep>(out, L, value); break;
    case kFrameReplicate: FillRun<P, kKeep>(out, L, row); break;
    case kFrameMirror: ReverseRun<P, kKeep>(row + P, out, L); break;
    case kFrameWrap: CopyRun<P, kKeep>(row + (W - L) * P, out, L); break;
  }
  if (!middleThere) CopyRun<P, kKeep>(row, mid, W);
  switch (kind) {
    case kFrameConstant: FillRun<P, kKeep>(right, R, value); break;
    case kFrameReplicate: FillRun<P, kKeep>(right, R, row + (W - 1) * P); break;
    case kFrameMirror: ReverseRun<P, kKeep>(row + (W - 1 - R) * P, right, R); break;
    case kFrameWrap: CopyRun<P, kKeep>(row, right, R); break;
  }
}

}  // namespace

void FrameRowTarget(const void* row, void* out, size_t width, size_t left, size_t right, FrameKind kind,
                    PixelBytes px, const void* value, bool middleThere) {
  VisitPixel(px, [&](auto p, auto k) {
    FrameRowT<p(), k()>(static_cast<const uint8_t*>(row), static_cast<uint8_t*>(out), width, left, right,
                        kind, static_cast<const uint8_t*>(value), middleThere);
  });
}

void ReverseRowTarget(const void* src, void* dst, size_t n, PixelBytes px, bool stream) {
  WithBlock(px, [&](const auto& k) {
    ReverseRowT(k, static_cast<const uint8_t*>(src), static_cast<uint8_t*>(dst), n, stream);
  });
}

void ReverseRowInPlaceTarget(void* a, size_t n, PixelBytes px) {
  WithBlock(px, [&](const auto& k) { ReverseRowInPlaceT(k, static_cast<uint8_t*>(a), n); });
}

void ReverseSwapRowsTarget(void* a, void* b, size_t n, PixelBytes px) {
  WithBlock(px, [&](const auto& k) {
    ReverseSwapRowsT(k, static_cast<uint8_t*>(a), static_cast<uint8_t*>(b), n);
  });
}

// Without an alpha to keep, the exchange is the same for bytes of any pixel.
void SwapRowsTarget(void* a, void* b, size_t n, PixelBytes px) {
  auto* pa = static_cast<uint8_t*>(a);
  auto* pb = static_cast<uint8_t*>(b);
  switch (px.keepAlpha ? px.bytes : 0) {
    case 4: return SwapRowsT<4, true>(pa, pb, n);
    case 8: return SwapRowsT<8, true>(pa, pb, n);
    case 16: return SwapRowsT<16, true>(pa, pb, n);
    default: return SwapRowsT<1, false>(pa, pb, n * static_cast<size_t>(px.bytes));
  }
}

void GatherRowTarget(const void* src, void* dst, size_t n, const GatherPlan& plan) {
  const auto* s = static_cast<const uint8_t*>(src);
  auto* d = static_cast<uint8_t*>(dst);
  switch (plan.elemBytes) {
    case 1: return GatherT<uint8_t>(s, d, n, plan);
    case 2: return GatherT<uint16_t>(s, d, n, plan);
    case 4: return GatherT<uint32_t>(s, d, n, plan);
  }
}

#endif

}  // namespace pel::datamove::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace pel::datamove {

HWY_EXPORT(ReverseRowTarget);
HWY_EXPORT(ReverseRowInPlaceTarget);
HWY_EXPORT(ReverseSwapRowsTarget);
HWY_EXPORT(SwapRowsTarget);
HWY_EXPORT(GatherRowTarget);
HWY_EXPORT(FrameRowTarget);

void FrameRow(const void* row, void* out, size_t width, size_t left, size_t right, FrameKind kind,
              PixelBytes px, const void* value, bool middleThere) {
  HWY_DYNAMIC_DISPATCH(FrameRowTarget)(row, out, width, left, right, kind, px, value, middleThere);
}

void ReverseRow(const void* src, void* dst, size_t pixels, PixelBytes px, bool stream) {
  HWY_DYNAMIC_DISPATCH(ReverseRowTarget)(src, dst, pixels, px, stream);
}
void ReverseRowInPlace(void* row, size_t pixels, PixelBytes px) {
  HWY_DYNAMIC_DISPATCH(ReverseRowInPlaceTarget)(row, pixels, px);
}
void ReverseSwapRows(void* a, void* b, size_t pixels, PixelBytes px) {
  HWY_DYNAMIC_DISPATCH(ReverseSwapRowsTarget)(a, b, pixels, px);
}
void SwapRows(void* a, void* b, size_t pixels, PixelBytes px) {
  HWY_DYNAMIC_DISPATCH(SwapRowsTarget)(a, b, pixels, px);
}
void GatherRow(const void* src, void* dst, size_t pixels, const GatherPlan& plan) {
  HWY_DYNAMIC_DISPATCH(GatherRowTarget)(src, dst, pixels, plan);
}

}  // namespace pel::datamove
#endif
