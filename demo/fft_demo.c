/* Image FFT: a Gaussian blur done in the frequency domain. The grey image
 * (cropped to powers of two) and a Gaussian centred on pixel (0, 0), with
 * wrap-around, go through the forward transform; the product of their
 * packed spectra, transformed back, is the circular convolution. The
 * Gaussian is binomial (36 taps, sigma 3), which needs no libm. */
#include <stddef.h>
#include <stdio.h>

#include "demo.h"

static int FloorLog2(int n) {
    int k = 0;
    while ((2 << k) <= n) ++k;
    return k;
}

static Pel32f* Row32f(Pel32f* base, int step, int y) { return (Pel32f*)((Pel8u*)base + (size_t)y * (size_t)step); }

/* A float plane as bytes, for the checksum. */
static uint64_t Checksum32f(Pel32f* p, int step, int w, int h) {
    DemoImage bytes = {(Pel8u*)p, step, 4 * w, h, 1};
    return DemoChecksum(&bytes, DEMO_FNV_OFFSET);
}

static void Run(const DemoImage* src) {
    const int ox = FloorLog2(src->width), oy = FloorLog2(src->height);
    const int w = 1 << ox, h = 1 << oy;
    const PeliSize roi = {w, h};
    int specSize = 0, initSize = 0, workSize = 0;
    PelStatus st = peliFFTGetSize_R_32f(ox, oy, pelFftDivInvByN, pelHintAccurate, &specSize, &initSize, &workSize);
    if (!DemoReport("fft_getsize", 0.0, st, (uint64_t)specSize)) return;
    int step = 0, step2 = 0;
    Pel8u* spec = peliMalloc_8u_C1(specSize, 1, &step);
    Pel8u* work = peliMalloc_8u_C1(workSize > 0 ? workSize : 1, 1, &step);
    Pel32f* image = peliMalloc_32f_C1(w, h, &step);
    Pel32f* kernel = peliMalloc_32f_C1(w, h, &step2);
    DemoImage out;
    if (!spec || !work || !image || !kernel || step != step2 || !DemoAlloc(&out, w, h, 1)) {
        DemoFail("fft: allocation failed");
        peliFree(spec), peliFree(work), peliFree(image), peliFree(kernel);
        return;
    }
    PeliFFTSpec_R_32f* fft = (PeliFFTSpec_R_32f*)spec;
    double t0 = DemoNow();
    st = peliFFTInit_R_32f(ox, oy, pelFftDivInvByN, pelHintAccurate, fft, NULL);
    DemoReport("fft_init", DemoNow() - t0, st, 0);

    /* Grey levels of the top-left w x h. */
    for (int y = 0; y < h; ++y) {
        const Pel8u* rgb = src->data + (size_t)y * (size_t)src->step;
        Pel32f* g = Row32f(image, step, y);
        Pel32f* k = Row32f(kernel, step, y);
        for (int x = 0; x < w; ++x) {
            g[x] = 0.299f * rgb[3 * x] + 0.587f * rgb[3 * x + 1] + 0.114f * rgb[3 * x + 2];
            k[x] = 0;
        }
    }
    /* The kernel: binomial weights C(36, k) / 2^36 in both directions,
     * centred on (0, 0) and wrapped around the edges. */
    enum { kTaps = 36 };
    double b[kTaps + 1];
    b[0] = 1.0 / 68719476736.0;
    for (int k = 0; k < kTaps; ++k) b[k + 1] = b[k] * (kTaps - k) / (k + 1);
    for (int dy = -kTaps / 2; dy <= kTaps / 2; ++dy)
        for (int dx = -kTaps / 2; dx <= kTaps / 2; ++dx) {
            const int y = ((dy % h) + h) % h, x = ((dx % w) + w) % w;
            Row32f(kernel, step, y)[x] += (Pel32f)(b[dy + kTaps / 2] * b[dx + kTaps / 2]);
        }

    t0 = DemoNow();
    st = peliFFTFwd_RToPack_32f_C1R(image, step, image, step, fft, work);
    DemoReport("fft_fwd", DemoNow() - t0, st, Checksum32f(image, step, w, h));
    st = peliFFTFwd_RToPack_32f_C1R(kernel, step, kernel, step, fft, work);
    if (st < 0) DemoReport("fft_fwd.kernel", 0.0, st, 0);
    t0 = DemoNow();
    st = peliMulPack_32f_C1R(image, step, kernel, step, image, step, roi);
    DemoReport("fft_mulpack", DemoNow() - t0, st, Checksum32f(image, step, w, h));
    t0 = DemoNow();
    st = peliFFTInv_PackToR_32f_C1R(image, step, image, step, fft, work);
    const double us = DemoNow() - t0;

    for (int y = 0; y < h; ++y) {
        const Pel32f* g = Row32f(image, step, y);
        Pel8u* o = out.data + (size_t)y * (size_t)out.step;
        for (int x = 0; x < w; ++x) o[x] = (Pel8u)(g[x] < 0 ? 0 : g[x] > 255 ? 255 : g[x] + 0.5f);
    }
    DemoReportImage("fft_inv.blur", us, st, &out, "fft_blur.png");

    DemoFree(&out);
    peliFree(spec);
    peliFree(work);
    peliFree(image);
    peliFree(kernel);
}

PEL_DEMO_STEPS(90, "fft", Run);
