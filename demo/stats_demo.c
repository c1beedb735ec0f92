/* Statistics: a few numbers about the input image. */
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>

#include "demo.h"

/* FNV-1a over the result bytes, for the report line. */
static uint64_t Hash(const void* p, size_t n) {
    const unsigned char* b = (const unsigned char*)p;
    uint64_t h = DEMO_FNV_OFFSET;
    for (size_t i = 0; i < n; ++i) h = (h ^ b[i]) * 0x100000001b3ULL;
    return h;
}

static void Run(const DemoImage* src) {
    const PeliSize roi = DemoRoi(src);
    double mean[3], l2[3];
    double t0 = DemoNow();
    PelStatus st = peliMean_8u_C3R(src->data, src->step, roi, mean);
    if (DemoReport("mean_C3R", DemoNow() - t0, st, Hash(mean, sizeof mean)))
        printf("  mean R G B      %.3f %.3f %.3f\n", mean[0], mean[1], mean[2]);

    t0 = DemoNow();
    st = peliNorm_L2_8u_C3R(src->data, src->step, roi, l2);
    if (DemoReport("norm_L2_C3R", DemoNow() - t0, st, Hash(l2, sizeof l2)))
        printf("  L2 R G B        %.1f %.1f %.1f\n", l2[0], l2[1], l2[2]);

    /* Where each channel is brightest: the first such pixel in row order. */
    Pel8u max[3];
    int x[3], y[3];
    t0 = DemoNow();
    st = peliMaxIndx_8u_C3R(src->data, src->step, roi, max, x, y);
    if (DemoReport("maxindx_C3R", DemoNow() - t0, st, Hash(max, sizeof max) ^ Hash(x, sizeof x) ^ Hash(y, sizeof y)))
        printf("  max R G B       %d at (%d,%d), %d at (%d,%d), %d at (%d,%d)\n", max[0], x[0], y[0], max[1],
               x[1], y[1], max[2], x[2], y[2]);

    const Pel8u lo[3] = {192, 192, 192}, hi[3] = {255, 255, 255};
    int bright[3];
    t0 = DemoNow();
    st = peliCountInRange_8u_C3R(src->data, src->step, roi, bright, lo, hi);
    if (DemoReport("count_C3R", DemoNow() - t0, st, Hash(bright, sizeof bright)))
        printf("  192..255 R G B  %d %d %d pixels\n", bright[0], bright[1], bright[2]);

    /* Eight even bins a channel. */
    const Pel32f lower[3] = {0, 0, 0}, upper[3] = {256, 256, 256};
    const int levels[3] = {9, 9, 9};
    int specBytes = 0, bufferBytes = 0;
    st = peliHistogramGetBufferSize(pelType8u, roi, levels, 3, 1, &specBytes, &bufferBytes);
    PeliHistogramSpec* spec = st == pelStatusOk ? (PeliHistogramSpec*)malloc((size_t)specBytes) : NULL;
    Pel8u* buffer = st == pelStatusOk ? (Pel8u*)malloc((size_t)bufferBytes) : NULL;
    if (spec == NULL || buffer == NULL) {
        DemoFail("histogram: no memory for the spec");
    } else {
        Pel32u bins[3][8];
        Pel32u* const hist[3] = {bins[0], bins[1], bins[2]};
        t0 = DemoNow();
        st = peliHistogramUniformInit(pelType8u, lower, upper, levels, 3, spec);
        if (st == pelStatusOk) st = peliHistogram_8u_C3R(src->data, src->step, roi, hist, spec, buffer);
        if (DemoReport("histogram_C3R", DemoNow() - t0, st, Hash(bins, sizeof bins))) {
            for (int c = 0; c < 3; ++c) {
                printf("  %c bins         ", "RGB"[c]);
                for (int k = 0; k < 8; ++k) printf(" %u", bins[c][k]);
                printf("\n");
            }
        }
    }
    free(spec);
    free(buffer);
}

PEL_DEMO_STEPS(60, "statistics", Run);
