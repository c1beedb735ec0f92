// The FFT spec: what Init writes into the caller's block and the kernels
// read. A 2-D header at the block's first 64-byte-aligned address points at
// three 1-D specs that follow it, each with its tables behind it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pel::transform {

inline constexpr int32_t kSpecIdComplex = 27;
inline constexpr int32_t kSpecIdReal = 28;
// The 1-D builders refuse longer transforms; the 2-D check is looser (31).
inline constexpr int kMaxOrder1D = 29;

// One 1-D transform: a complex FFT of length 2^order, or a real one of
// length 2^order computed through a complex FFT of half that length.
// Tables are found by byte offsets from the struct, so the 1-D spec itself
// does not care where it lives.
struct Fft1D {
  int32_t id;         // kSpecIdComplex or kSpecIdReal
  int32_t order;      // log2 of the length
  int32_t fwdScaled;  // 1: the forward direction multiplies by factor
  int32_t invScaled;  // 1: the inverse direction multiplies by factor
  float factor;
  int32_t workBytes;
  uint32_t revOffset;   // uint32[M]: bit reversal of log2(M) bits
  uint32_t passOffset;  // float[6 s] per radix-4 pass with s >= 2: W^j, W^2j, W^3j
  uint32_t postOffset;  // float[2 (M/2 + 1)]: exp(-2 pi i k / N), k = 0 .. M/2 (real only)

  // log2 of the complex FFT length M.
  int ComplexOrder() const { return id == kSpecIdReal ? order - 1 : order; }
  const uint32_t* Rev() const { return At<uint32_t>(revOffset); }
  const float* Pass() const { return At<float>(passOffset); }
  const float* Post() const { return At<float>(postOffset); }
  float FwdFactor() const { return fwdScaled ? factor : 1.0f; }
  float InvFactor() const { return invScaled ? factor : 1.0f; }

 private:
  template <class T>
  const T* At(uint32_t offset) const {
    return reinterpret_cast<const T*>(reinterpret_cast<const unsigned char*>(this) + offset);
  }
};

// The 2-D header. Its first 56 bytes are zeroed before the words are set,
// so the spare words and the padding read as zero.
struct FftSpec2D {
  int32_t id;  // kSpecIdReal
  int32_t orderX;
  int32_t orderY;
  int32_t hint;
  int32_t workBytes;  // what a transform needs from the caller's buffer
  int32_t spare[2];
  const Fft1D* col;   // complex, length 2^orderY
  const Fft1D* row;   // real, length 2^orderX
  const Fft1D* row2;  // real, length 2^orderY; null when the orders are equal
  const Fft1D* RealColumns() const { return row2 != nullptr ? row2 : row; }
};
inline constexpr size_t kHeaderZeroBytes = 56;
static_assert(sizeof(FftSpec2D) <= kHeaderZeroBytes);

// Work-buffer planes hold M vectors of up to this many float lanes (the
// widest instruction set); a spec is sized for it whatever runs later.
inline constexpr size_t kMaxLanes = 16;

}  // namespace pel::transform
