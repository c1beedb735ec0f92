/* Copy and set: plain and masked copies, fills, channels and planes. */
#include <stddef.h>
#include <stdio.h>

#include "demo.h"

/* The mask of the masked copy: a ring and a band of checkers. */
static void DrawMask(DemoImage* mask) {
    const int w = mask->width, h = mask->height;
    const int cx = w / 2, cy = h / 2;
    const int outer = (w < h ? w : h) * 2 / 5, inner = outer * 3 / 5;
    for (int y = 0; y < h; ++y) {
        Pel8u* row = mask->data + (size_t)y * (size_t)mask->step;
        for (int x = 0; x < w; ++x) {
            const int d2 = (x - cx) * (x - cx) + (y - cy) * (y - cy);
            const int ring = d2 <= outer * outer && d2 >= inner * inner;
            const int checker = y < h / 6 && ((x / 16 + y / 16) & 1);
            row[x] = (ring || checker) ? 255 : 0;
        }
    }
}

static void Run(const DemoImage* src) {
    const int w = src->width, h = src->height;
    DemoImage work, chan, planes[3], merged, mask, dup;
    if (!DemoAlloc(&work, w, h, 3) || !DemoAlloc(&chan, w, h, 1) || !DemoAlloc(&merged, w, h, 3) ||
        !DemoAlloc(&mask, w, h, 1) || !DemoAlloc(&dup, w, h, 3) || !DemoAlloc(&planes[0], w, h, 1) ||
        !DemoAlloc(&planes[1], w, h, 1) || !DemoAlloc(&planes[2], w, h, 1))
        return;
    const PeliSize roi = DemoRoi(src);
    double t0 = DemoNow();
    PelStatus st = peliCopy_8u_C3R(src->data, src->step, work.data, work.step, roi);
    DemoReportImage("copy_C3R", DemoNow() - t0, st, &work, "copy.png");

    /* Fill the middle of the copy: a ROI is a pointer to its first pixel and
     * the parent's step. */
    const Pel8u colour[3] = {200, 30, 120};
    Pel8u* corner = work.data + (size_t)(h / 4) * (size_t)work.step + (size_t)(w / 4) * 3;
    const PeliSize middle = {w / 2 > 0 ? w / 2 : 1, h / 2 > 0 ? h / 2 : 1};
    t0 = DemoNow();
    st = peliSet_8u_C3R(colour, corner, work.step, middle);
    DemoReportImage("set_C3R", DemoNow() - t0, st, &work, "set.png");

    /* One channel out: the pointer picks the channel. */
    static const char* const kStep[3] = {"extract_C3C1R.r", "extract_C3C1R.g", "extract_C3C1R.b"};
    static const char* const kFile[3] = {"channel_r.png", "channel_g.png", "channel_b.png"};
    for (int k = 0; k < 3; ++k) {
        t0 = DemoNow();
        st = peliCopy_8u_C3C1R(src->data + k, src->step, chan.data, chan.step, roi);
        DemoReportImage(kStep[k], DemoNow() - t0, st, &chan, kFile[k]);
    }

    /* Planes and back: the round trip must give the input again. */
    Pel8u* const planeOut[3] = {planes[0].data, planes[1].data, planes[2].data};
    t0 = DemoNow();
    st = peliCopy_8u_C3P3R(src->data, src->step, planeOut, planes[0].step, roi);
    double us = DemoNow() - t0;
    uint64_t sum = DEMO_FNV_OFFSET;
    for (int k = 0; k < 3; ++k) sum = DemoChecksum(&planes[k], sum);
    const int splitOk = DemoReport("split_C3P3R", us, st, sum);
    const Pel8u* const planeIn[3] = {planes[0].data, planes[1].data, planes[2].data};
    t0 = DemoNow();
    st = peliCopy_8u_P3C3R(planeIn, planes[0].step, merged.data, merged.step, roi);
    us = DemoNow() - t0;
    sum = DemoChecksum(&merged, DEMO_FNV_OFFSET);
    if (DemoReport("merge_P3C3R", us, st, sum) && splitOk) {
        if (sum != DemoChecksum(src, DEMO_FNV_OFFSET)) DemoFail("merged planes differ from the input");
        DemoWritePng(&merged, "merged.png");
    }

    /* Merging the planes in reverse order swaps red and blue. */
    const Pel8u* const swapped[3] = {planes[2].data, planes[1].data, planes[0].data};
    t0 = DemoNow();
    st = peliCopy_8u_P3C3R(swapped, planes[0].step, merged.data, merged.step, roi);
    DemoReportImage("merge_P3C3R.bgr", DemoNow() - t0, st, &merged, "merged_bgr.png");

    /* Masked copy onto a flat background. */
    DrawMask(&mask);
    DemoWritePng(&mask, "mask.png");
    const Pel8u grey[3] = {40, 40, 48};
    st = peliSet_8u_C3R(grey, work.data, work.step, roi);
    if (st < 0) DemoReport("set_C3R.bg", 0.0, st, 0);
    t0 = DemoNow();
    st = peliCopy_8u_C3MR(src->data, src->step, work.data, work.step, mask.data, mask.step, roi);
    DemoReportImage("copy_C3MR", DemoNow() - t0, st, &work, "masked.png");

    /* The green channel as a grey RGB image. */
    t0 = DemoNow();
    st = peliDup_8u_C1C3R(planes[1].data, planes[1].step, dup.data, dup.step, roi);
    DemoReportImage("dup_C1C3R", DemoNow() - t0, st, &dup, "dup.png");

    DemoFree(&work);
    DemoFree(&chan);
    DemoFree(&merged);
    DemoFree(&mask);
    DemoFree(&dup);
    for (int k = 0; k < 3; ++k) DemoFree(&planes[k]);
}

PEL_DEMO_STEPS(10, "copy and set", Run);
