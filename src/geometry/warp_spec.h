// The warp spec: a plain block (it starts at the caller's pointer, no
// alignment step) whose first word is the magic. It holds what the
// processing calls need: sizes, the method, the border, and the matrix that
// carries a destination pixel back into the source. It is read through
// memcpy, so the caller's block needs no particular alignment.
#pragma once

#include <cstdint>
#include <cstring>

#include "peli.h"

namespace pel::geometry {

constexpr int32_t kWarpMagic = 0x4B617394;

// The element-type word: an index, 0 for 8u, as the processing calls compare it.
enum WarpElem : int32_t { kWarp8u = 0, kWarp16u = 1, kWarp16s = 2, kWarp32f = 3, kWarp64f = 4 };
enum WarpKind : int32_t { kWarpAffine = 0, kWarpPerspective = 1 };

// The one processing path of every spec.
constexpr int32_t kWarpPath = 1;

struct WarpSpec {
  int32_t magic;
  int32_t kind;           // affine or perspective
  int32_t srcWidth, srcHeight, dstWidth, dstHeight;
  int32_t elem;           // WarpElem
  int32_t channels;       // 1, 3 or 4
  int32_t interpolation;  // 1 nearest, 2 linear, 6 cubic
  int32_t path;
  int32_t border;         // the code as given
  int32_t smoothEdge;
  int32_t fillDone;       // the kernels write every pixel: no constant fill first
  int32_t status;         // what Init found; returned as is by the processing calls
  int32_t reserved[2];
  double borderValue[4];
  double back[3][3];      // destination (x, y, 1) -> source (x w, y w, w)
  double cubicB, cubicC;
};

// Bytes that GetSize reports for the spec: the header rounded up, room to grow.
constexpr int kWarpSpecBytes = 256;
static_assert(sizeof(WarpSpec) <= kWarpSpecBytes, "the spec outgrew its reported size");

// The work buffer of a processing call: four 32-bit words (source column,
// row and their fractions) for each pixel of a tile row, and slack.
inline int64_t WarpBufferBytes(int64_t tileWidth) { return 16 * tileWidth + 64; }

inline int32_t WarpMagicOf(const void* spec) {
  int32_t m;
  std::memcpy(&m, spec, sizeof m);
  return m;
}

inline WarpSpec ReadWarpSpec(const void* spec) {
  WarpSpec s;
  std::memcpy(&s, spec, sizeof s);
  return s;
}

}  // namespace pel::geometry
