// Selection networks for the small medians: Batcher's odd-even merge sort
// over the next power of two, cut down to the comparators that can reach the
// middle output. Wires past n stand for +infinity, so a comparator touching
// one never exchanges and is dropped; a comparator of which only the lower
// (upper) output is used becomes a single minimum (maximum).
#pragma once

#include <cstdint>

namespace pel::filter {

struct MedianNetwork {
  static constexpr int kMaxWires = 25;
  static constexpr int kMaxOps = 256;
  int count = 0;
  uint8_t a[kMaxOps]{}, b[kMaxOps]{};  // a receives the minimum, b the maximum
  uint8_t use[kMaxOps]{};              // 3 both outputs, 1 only the minimum, 2 only the maximum
};

constexpr void BuildMedianNetwork(int n, MedianNetwork& net) {
  int n2 = 1;
  while (n2 < n) n2 *= 2;
  uint8_t ca[1024]{}, cb[1024]{};
  int m = 0;
  for (int p = 1; p < n2; p *= 2)
    for (int k = p; k >= 1; k /= 2)
      for (int j = k % p; j + k < n2; j += 2 * k)
        for (int i = 0; i < k && i + j + k < n2; ++i)
          if ((i + j) / (2 * p) == (i + j + k) / (2 * p) && i + j + k < n) {
            ca[m] = static_cast<uint8_t>(i + j);
            cb[m] = static_cast<uint8_t>(i + j + k);
            ++m;
          }
  bool needed[32]{};
  needed[(n - 1) / 2] = true;
  uint8_t ra[MedianNetwork::kMaxOps]{}, rb[MedianNetwork::kMaxOps]{}, ru[MedianNetwork::kMaxOps]{};
  int r = 0;
  for (int c = m - 1; c >= 0; --c) {
    const bool lo = needed[ca[c]], hi = needed[cb[c]];
    if (!lo && !hi) continue;
    ra[r] = ca[c];
    rb[r] = cb[c];
    ru[r] = static_cast<uint8_t>((lo ? 1 : 0) | (hi ? 2 : 0));
    ++r;
    needed[ca[c]] = needed[cb[c]] = true;
  }
  net.count = r;
  for (int c = 0; c < r; ++c) {
    net.a[c] = ra[r - 1 - c];
    net.b[c] = rb[r - 1 - c];
    net.use[c] = ru[r - 1 - c];
  }
}

// The network of n wires as a constant, for kernels that unroll it.
template <int kN>
constexpr MedianNetwork MedianNetworkOf() {
  MedianNetwork net;
  BuildMedianNetwork(kN, net);
  return net;
}

}  // namespace pel::filter
