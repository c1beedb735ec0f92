#include "core/alloc.h"

#include <cstdint>

#include "pelcore.h"

namespace pel::core {

namespace {
constexpr int64_t kRowAlign = 64;
constexpr int64_t kMax32 = 0x7FFFFFFF;

int64_t RoundUpToRow(int64_t bytes) { return (bytes + kRowAlign - 1) & ~(kRowAlign - 1); }
}  // namespace

// The order of the checks decides what *pStep holds on failure, and callers
// have been told only that it is not reliable then; keep it anyway.
void* MallocImage(int width, int height, int* pStep, int pixelBytes) {
  if (pStep == nullptr) return nullptr;
  if (width < 1 || height < 1) {
    *pStep = 0;
    return nullptr;
  }
  const int64_t rowBytes = int64_t{width} * pixelBytes;
  if (rowBytes > kMax32) {
    *pStep = 0;
    return nullptr;
  }
  const int64_t step = RoundUpToRow(rowBytes);
  *pStep = static_cast<int>(step);
  const int64_t total = step * height;
  if (total > kMax32) return nullptr;
  return pelMalloc(static_cast<int32_t>(total));
}

void* MallocImageL(PelIntL width, PelIntL height, PelIntL* pStep, int pixelBytes) {
  if (pStep == nullptr) return nullptr;
  if (width < 1 || height < 1) {
    *pStep = 0;
    return nullptr;
  }
  // Unsigned arithmetic: an overflow wraps instead of being undefined, and
  // the wrap shows as a rounded step below the row length.
  const uint64_t rowBytes = static_cast<uint64_t>(width) * static_cast<uint64_t>(pixelBytes);
  const uint64_t step = (rowBytes + kRowAlign - 1) & ~uint64_t(kRowAlign - 1);
  if (step < rowBytes || static_cast<uint64_t>(static_cast<PelIntL>(step)) != step ||
      static_cast<PelIntL>(step) < 0) {
    *pStep = 0;
    return nullptr;
  }
  *pStep = static_cast<PelIntL>(step);
  // step x height must fit a signed 64-bit product.
  const uint64_t h = static_cast<uint64_t>(height);
  if ((step >> 31) != 0 && (h >> 31) != 0) return nullptr;
  if (step != 0 && h > static_cast<uint64_t>(INT64_MAX) / step) return nullptr;
  return pelMalloc_L(static_cast<int64_t>(step * h));
}

void FreeImage(void* ptr) { pelFree(ptr); }

}  // namespace pel::core
