// The 8-bit table-lookup rows, dispatched to the best instruction set at run
// time. Every target gives the bytes of scalar::LookupPixels8.
#pragma once

#include <cstddef>
#include <cstdint>

#include "lut/lut_scalar.h"

namespace pel::lut {

// `pixels` pixels of job.channels bytes: each of the first job.worked bytes
// of a pixel through its channel's table. src may equal dst.
void LookupRow8(const Lut8Job& job, const uint8_t* src, uint8_t* dst, size_t pixels);

}  // namespace pel::lut
