// Image allocation: rows on 64-byte boundaries. Exports with the same bytes
// per pixel share one implementation; the templates only fix the pointer type.
#pragma once
#include "peli.h"

namespace pel::core {

void* MallocImage(int width, int height, int* pStep, int pixelBytes);
void* MallocImageL(PelIntL width, PelIntL height, PelIntL* pStep, int pixelBytes);
void FreeImage(void* ptr);

template <class T, int kChannels>
T* Malloc(int width, int height, int* pStep) {
  return static_cast<T*>(MallocImage(width, height, pStep, sizeof(T) * kChannels));
}

template <class T, int kChannels>
T* MallocL(PelIntL width, PelIntL height, PelIntL* pStep) {
  return static_cast<T*>(MallocImageL(width, height, pStep, sizeof(T) * kChannels));
}

}  // namespace pel::core
