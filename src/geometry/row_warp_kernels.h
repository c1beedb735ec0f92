// Row kernels of the warps, dispatched to the best instruction set at run
// time. 8u and 32f nearest and linear go a block of pixels at a time with
// the coordinates in registers; the rest goes through the reference.
#pragma once

#include <cstddef>
#include <cstdint>

#include "geometry/warp_spec.h"

namespace pel::geometry {

// What a processing call fixes for all its rows.
struct WarpFrame {
  const uint8_t* src;  // source pixel (0, 0)
  ptrdiff_t srcStep;
  int64_t srcWidth, srcHeight;
  int channels;
  int elem;    // WarpElem
  int elemBytes;
  int method;  // 1 nearest, 2 linear, 6 cubic
  bool perspective;
  // 1 clamp to the readable region (replicate, and every side of 240),
  // 6 constant, 7 leave the pixel.
  int kind;
  // The readable region: the source, widened on the sides that are in memory
  // by the reach of the method (linear 1, cubic 2 pixels).
  int64_t loX, hiX, loY, hiY;
  alignas(8) uint8_t borderPixel[32];  // the constant pixel in the element type
  double cubicB, cubicC;
  double back[3][3];
  // The source's byte offsets fit 32-bit gathers (the vector kernels need it).
  bool offsets32;
  // Affine: the column terms of the tile's columns (from column columnsX0),
  // or null when they do not fit 30 bits.
  const int32_t* columnX;
  const int32_t* columnY;
  int64_t columnsX0;
};

// Coordinates of a run of pixels: source column and row, and their
// fractions in 1/1024 (0 for nearest).
struct WarpCoords {
  int32_t* xi;
  int32_t* yi;
  int32_t* fx;
  int32_t* fy;
};

// Pixels x0 .. x0 + n - 1 of destination row y into dstRow.
void WarpRow(const WarpFrame& f, int64_t y, int64_t x0, int64_t n, uint8_t* dstRow);

}  // namespace pel::geometry
