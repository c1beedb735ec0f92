// Set: the walkers behind the peliSet exports.
#pragma once

#include "peli.h"

namespace pel::datamove {

// One value for every pixel of a one-channel image.
template <class T>
PelStatus SetC1(T value, T* pDst, int dstStep, PeliSize roiSize);
// C values for every pixel of a C-channel image (C3R, C4R).
template <class T, int C>
PelStatus Set(const T* value, T* pDst, int dstStep, PeliSize roiSize);

}  // namespace pel::datamove
