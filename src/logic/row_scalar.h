// Scalar reference row kernels of the logic and shift family. They define
// the results: every vector kernel matches them bit for bit, the lowest
// dispatch level (PEL_CPU=scalar) runs them, and the vector kernels finish
// their rows with them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "logic/row_kernels.h"

namespace pel::logic::scalar {

template <LogicOp kOp>
inline uint8_t Apply(uint8_t a, uint8_t b) {
  if constexpr (kOp == LogicOp::kAnd) return a & b;
  if constexpr (kOp == LogicOp::kOr) return a | b;
  return a ^ b;
}

// Bytes [begin, end) of a row; the pattern's phase counts from byte 0.
template <LogicOp kOp>
void LogicRow(const uint8_t* a, const uint8_t* b, uint8_t* d, size_t begin, size_t end,
              const BytePattern& p) {
  size_t k = begin % kPatternBytes;
  for (size_t i = begin; i < end; ++i) {
    const uint8_t other = b != nullptr ? b[i] : p.value[k];
    if (p.keep[k] == 0) d[i] = Apply<kOp>(a[i], other);
    if (++k == kPatternBytes) k = 0;
  }
}

inline void LogicRowAny(LogicOp op, const uint8_t* a, const uint8_t* b, uint8_t* d, size_t begin,
                        size_t end, const BytePattern& p) {
  switch (op) {
    case LogicOp::kAnd: return LogicRow<LogicOp::kAnd>(a, b, d, begin, end, p);
    case LogicOp::kOr: return LogicRow<LogicOp::kOr>(a, b, d, begin, end, p);
    case LogicOp::kXor: return LogicRow<LogicOp::kXor>(a, b, d, begin, end, p);
  }
}

// Rows advance by byte steps, so an element may sit at any address: access
// goes through memcpy, which compiles to a plain load or store.
template <class U>
inline U LoadAt(const void* p, size_t i) {
  U v;
  std::memcpy(&v, static_cast<const uint8_t*>(p) + i * sizeof(U), sizeof v);
  return v;
}
template <class U>
inline void StoreAt(void* p, size_t i, U v) {
  std::memcpy(static_cast<uint8_t*>(p) + i * sizeof(U), &v, sizeof v);
}

template <class U>
inline U Shift(ShiftKind kind, U s, uint32_t count) {
  constexpr uint32_t kBits = 8 * sizeof(U);
  switch (kind) {
    case ShiftKind::kLeft: return count >= kBits ? U{0} : static_cast<U>(s << count);
    case ShiftKind::kRightLogical: return count >= kBits ? U{0} : static_cast<U>(s >> count);
    case ShiftKind::kRightArithmetic: {
      using S = std::make_signed_t<U>;
      return static_cast<U>(static_cast<S>(s) >> (count < kBits ? count : kBits - 1));
    }
  }
  return s;
}

// Elements [begin, end) of a row; the counts' phase counts from element 0.
template <class U>
void ShiftRow(ShiftKind kind, const void* s, void* d, size_t begin, size_t end,
              const ShiftPattern& p) {
  constexpr size_t kLanes = kPatternBytes / sizeof(U);
  size_t k = begin % kLanes;
  for (size_t i = begin; i < end; ++i) {
    if (p.keep[k * sizeof(U)] == 0) {
      StoreAt<U>(d, i, Shift<U>(kind, LoadAt<U>(s, i), LoadAt<U>(p.count, k)));
    }
    if (++k == kLanes) k = 0;
  }
}

inline void ShiftRowAny(ShiftKind kind, int elemBytes, const void* s, void* d, size_t begin,
                        size_t end, const ShiftPattern& p) {
  switch (elemBytes) {
    case 1: return ShiftRow<uint8_t>(kind, s, d, begin, end, p);
    case 2: return ShiftRow<uint16_t>(kind, s, d, begin, end, p);
    case 4: return ShiftRow<uint32_t>(kind, s, d, begin, end, p);
  }
}

}  // namespace pel::logic::scalar
