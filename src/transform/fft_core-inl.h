// The arithmetic of the FFT, written once for a lane policy: P = ScalarLanes
// runs one transform at a time (the reference), P = a vector policy runs
// as many independent transforms side by side as a vector has lanes. Every
// lane does exactly the float operations of the reference, in its order, so
// every instruction set gives the reference's bits.
//
// Data lives in split planes: element n of a transform is re[n * L + lane]
// and im[n * L + lane] (L = P::kLanes).
//
// Included by row_fft_kernels.cpp once per target, inside its namespace.
#if defined(PEL_TRANSFORM_FFT_CORE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef PEL_TRANSFORM_FFT_CORE_INL_H_
#undef PEL_TRANSFORM_FFT_CORE_INL_H_
#else
#define PEL_TRANSFORM_FFT_CORE_INL_H_
#endif

struct ScalarLanes {
  using V = float;
  static constexpr size_t kLanes = 1;
  static V Load(const float* p) { return *p; }
  static void Store(V v, float* p) { *p = v; }
  static V Set(float x) { return x; }
  static V Neg(V v) { return -v; }
};

// x *= (wr + i wi): four products and two sums, in this order everywhere.
template <class P, class V = typename P::V>
HWY_INLINE void CMul(V& xr, V& xi, const float* w) {
  const V wr = P::Set(w[0]), wi = P::Set(w[1]);
  const V r = xr * wr - xi * wi;
  xi = xr * wi + xi * wr;
  xr = r;
}

// One radix-4 decimation-in-time butterfly on the elements 0, q, 2q, 3q
// (q in floats): with bit-reversed input they hold the quarter transforms of
// the residues 0, 2, 1, 3 (mod 4), so the twiddles W^j, W^2j, W^3j go to the
// elements 2q, q and 3q. No twiddle on the first pass (j = 0 only).
template <class P, bool kTwiddle>
HWY_INLINE void Radix4(float* HWY_RESTRICT r, float* HWY_RESTRICT i, size_t q, const float* w) {
  using V = typename P::V;
  const V a0r = P::Load(r), a0i = P::Load(i);
  V a1r = P::Load(r + q), a1i = P::Load(i + q);
  V a2r = P::Load(r + 2 * q), a2i = P::Load(i + 2 * q);
  V a3r = P::Load(r + 3 * q), a3i = P::Load(i + 3 * q);
  if constexpr (kTwiddle) {
    CMul<P>(a2r, a2i, w);
    CMul<P>(a1r, a1i, w + 2);
    CMul<P>(a3r, a3i, w + 4);
  }
  const V pr = a0r + a1r, pi = a0i + a1i, mr = a0r - a1r, mi = a0i - a1i;
  const V sr = a2r + a3r, si = a2i + a3i, tr = a2r - a3r, ti = a2i - a3i;
  P::Store(pr + sr, r);
  P::Store(pi + si, i);
  P::Store(mr + ti, r + q);  // m - i t
  P::Store(mi - tr, i + q);
  P::Store(pr - sr, r + 2 * q);
  P::Store(pi - si, i + 2 * q);
  P::Store(mr - ti, r + 3 * q);  // m + i t
  P::Store(mi + tr, i + 3 * q);
}

// One radix-4 pass of span s over n elements.
template <class P>
HWY_INLINE void Radix4Pass(float* HWY_RESTRICT re, float* HWY_RESTRICT im, size_t n, size_t s, const float* tw) {
  constexpr size_t L = P::kLanes;
  const size_t q = s * L;
  if (s == 1) {
    for (size_t g = 0; g < n * L; g += 4 * L) Radix4<P, false>(re + g, im + g, q, nullptr);
  } else if (s < 64) {  // short groups: keep each twiddle for all of them
    for (size_t j = 0; j < s; ++j)
      for (size_t g = j * L; g < n * L; g += 4 * q) Radix4<P, true>(re + g, im + g, q, tw + 6 * j);
  } else {
    for (size_t g = 0; g < n * L; g += 4 * q)
      for (size_t j = 0; j < s; ++j) Radix4<P, true>(re + g + j * L, im + g + j * L, q, tw + 6 * j);
  }
}

// In-place complex FFT of 2^m elements whose input stands in bit-reversed
// order; the output is in natural order. One radix-2 pass first when m is
// odd, then radix-4 passes of spans 1 (or 2), 4 (or 8), ... The passes whose
// butterflies stay within 16 KiB of a plane run block by block, so that the
// block stays in the first-level cache for all of them; the order of
// independent butterflies changes no result.
template <class P>
HWY_INLINE void ComplexDit(float* HWY_RESTRICT re, float* HWY_RESTRICT im, int m, const float* tw) {
  using V = typename P::V;
  constexpr size_t L = P::kLanes;
  const size_t M = size_t{1} << m;
  const size_t block = std::min(M, size_t{4096} / L);
  const size_t first = (m & 1) ? 2 : 1;
  const float* later = tw;
  for (size_t b = 0; b < M; b += block) {
    float* r = re + b * L;
    float* i = im + b * L;
    if (m & 1) {
      for (size_t k = 0; k < block * L; k += 2 * L) {
        const V ar = P::Load(r + k), ai = P::Load(i + k);
        const V br = P::Load(r + k + L), bi = P::Load(i + k + L);
        P::Store(ar + br, r + k);
        P::Store(ai + bi, i + k);
        P::Store(ar - br, r + k + L);
        P::Store(ai - bi, i + k + L);
      }
    }
    const float* t = tw;
    for (size_t s = first; 4 * s <= block; s *= 4) {
      Radix4Pass<P>(r, i, block, s, t);
      if (s > 1) t += 6 * s;
    }
    later = t;
  }
  size_t s = first;
  while (4 * s <= block) s *= 4;
  for (; 4 * s <= M; s *= 4) {
    Radix4Pass<P>(re, im, M, s, later);
    later += 6 * s;
  }
}

// The spectrum X[0 .. M] of 2M real points from Z = FFT(even + i odd), in
// place: X[0] and X[M] (both real) go to re[0] and im[0]. The results are
// multiplied by f.
//   X[k] = (Z[k] + conj Z[M-k]) / 2 - i/2 exp(-i pi k / M) (Z[k] - conj Z[M-k])
template <class P>
HWY_INLINE void RealPost(float* HWY_RESTRICT re, float* HWY_RESTRICT im, size_t M, const float* w, float f) {
  using V = typename P::V;
  constexpr size_t L = P::kLanes;
  const V vf = P::Set(f), vh = P::Set(0.5f * f);
  {
    const V zr = P::Load(re), zi = P::Load(im);
    P::Store((zr + zi) * vf, re);
    P::Store((zr - zi) * vf, im);
  }
  for (size_t k = 1; 2 * k < M; ++k) {
    float *ra = re + k * L, *ia = im + k * L, *rb = re + (M - k) * L, *ib = im + (M - k) * L;
    const V ar = P::Load(ra), ai = P::Load(ia), br = P::Load(rb), bi = P::Load(ib);
    const V sr = ar + br, si = ai - bi, dr = ar - br, di = ai + bi;
    const V wr = P::Set(w[2 * k]), wi = P::Set(w[2 * k + 1]);
    const V tr = dr * wr - di * wi, ti = dr * wi + di * wr;
    P::Store((sr + ti) * vh, ra);
    P::Store((si - tr) * vh, ia);
    P::Store((sr - ti) * vh, rb);
    P::Store((P::Neg(si) - tr) * vh, ib);
  }
  if (M >= 2) {  // X[M/2] = conj Z[M/2]
    float *r = re + M / 2 * L, *i = im + M / 2 * L;
    P::Store(P::Load(r) * vf, r);
    P::Store(P::Neg(P::Load(i)) * vf, i);
  }
}

// The inverse of RealPost, times 2: from X[0 .. M] (X[0] in reA[0], X[M] in
// imA[0]) the input Z of an inverse complex FFT, written to B in
// bit-reversed order and multiplied by f.
//   Z[k] = (X[k] + conj X[M-k]) + i exp(i pi k / M) (X[k] - conj X[M-k])
template <class P>
HWY_INLINE void RealPre(const float* HWY_RESTRICT reA, const float* HWY_RESTRICT imA, float* HWY_RESTRICT reB,
                        float* HWY_RESTRICT imB, size_t M, const float* w, const uint32_t* rev, float f) {
  using V = typename P::V;
  constexpr size_t L = P::kLanes;
  const V vf = P::Set(f);
  {
    const V x0 = P::Load(reA), xm = P::Load(imA);
    P::Store((x0 + xm) * vf, reB);
    P::Store((x0 - xm) * vf, imB);
  }
  for (size_t k = 1; 2 * k < M; ++k) {
    const V ar = P::Load(reA + k * L), ai = P::Load(imA + k * L);
    const V br = P::Load(reA + (M - k) * L), bi = P::Load(imA + (M - k) * L);
    const V sr = ar + br, si = ai - bi, dr = ar - br, di = ai + bi;
    const V wr = P::Set(w[2 * k]), wi = P::Set(w[2 * k + 1]);
    const V p = di * wr - dr * wi, q = dr * wr + di * wi;
    const size_t a = rev[k] * L, b = rev[M - k] * L;
    P::Store((sr - p) * vf, reB + a);
    P::Store((si + q) * vf, imB + a);
    P::Store((sr + p) * vf, reB + b);
    P::Store((q - si) * vf, imB + b);
  }
  if (M >= 2) {  // Z[M/2] = 2 conj X[M/2]
    const V r = P::Load(reA + M / 2 * L), i = P::Load(imA + M / 2 * L);
    const size_t a = rev[M / 2] * L;
    P::Store((r + r) * vf, reB + a);
    P::Store((P::Neg(i) - i) * vf, imB + a);
  }
}

#endif  // PEL_TRANSFORM_FFT_CORE_INL_H_
