// Border codes: the low four bits are the kind, the high four the sides that
// already exist in memory.
#pragma once

#include <initializer_list>

#include "peli.h"

namespace pel {

struct Border {
  int kind;     // code & 0x0F
  int inMemory; // code & 0xF0: pelBorderInMemTop | Bottom | Left | Right
};

// The shared check: a code above 255, or a code other than pelBorderInMem
// whose kind is not among `kinds`, is pelStatusBadBorderType.
inline bool BorderCodeAccepted(int code, std::initializer_list<int> kinds) {
  if (code > 255) return false;  // a negative code is judged by its kind
  if (code == pelBorderInMem) return true;
  for (int k : kinds)
    if ((code & 0x0F) == k) return true;
  return false;
}

inline Border SplitBorder(int code) { return {code & 0x0F, code & 0xF0}; }

}  // namespace pel
