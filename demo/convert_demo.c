/* Conversion, scaling, threshold and compare: the input to floats and back
 * with a contrast stretch, a posterised copy, a mask of bright pixels. */
#include <stddef.h>
#include <stdio.h>

#include "demo.h"

static void Run(const DemoImage* src) {
    const int w = src->width, h = src->height;
    DemoImage f32, s16, out, poster, mask;
    /* Float and 16-bit images as byte images of 4 and 2 bytes a sample. */
    if (!DemoAlloc(&f32, w * 4, h, 3) || !DemoAlloc(&s16, w * 2, h, 3) || !DemoAlloc(&out, w, h, 3) ||
        !DemoAlloc(&poster, w, h, 3) || !DemoAlloc(&mask, w, h, 1))
        return;
    const PeliSize roi = DemoRoi(src);
    Pel32f* f = (Pel32f*)(void*)f32.data;

    double t0 = DemoNow();
    PelStatus st = peliConvert_8u32f_C3R(src->data, src->step, f, f32.step, roi);
    DemoReport("convert_8u32f_C3R", DemoNow() - t0, st, DemoChecksum(&f32, DEMO_FNV_OFFSET));

    /* Values 64..192 spread over 0..255: a contrast stretch. */
    t0 = DemoNow();
    st = peliScale_32f8u_C3R(f, f32.step, out.data, out.step, roi, 64.0f, 192.0f);
    DemoReportImage("scale_32f8u_C3R", DemoNow() - t0, st, &out, "contrast.png");

    /* Three levels a channel: below 85 black, above 170 full, the rest kept. */
    const Pel8u tLT[3] = {85, 85, 85}, vLT[3] = {0, 0, 0}, tGT[3] = {170, 170, 170}, vGT[3] = {255, 255, 255};
    t0 = DemoNow();
    st = peliThreshold_LTValGTVal_8u_C3R(src->data, src->step, poster.data, poster.step, roi, tLT, vLT, tGT, vGT);
    DemoReportImage("threshold_LTValGTVal_C3R", DemoNow() - t0, st, &poster, "posterised.png");

    /* 255 where every channel is above 128. */
    const Pel8u grey[3] = {128, 128, 128};
    t0 = DemoNow();
    st = peliCompareC_8u_C3R(src->data, src->step, grey, mask.data, mask.step, roi, pelCmpGreater);
    DemoReportImage("compareC_C3R", DemoNow() - t0, st, &mask, "bright_mask.png");

    /* 8u to 16s and back must give the input again. */
    t0 = DemoNow();
    st = peliConvert_8u16s_C3R(src->data, src->step, (Pel16s*)(void*)s16.data, s16.step, roi);
    if (st >= 0) st = peliConvert_16s8u_C3R((const Pel16s*)(void*)s16.data, s16.step, out.data, out.step, roi);
    const double us = DemoNow() - t0;
    if (DemoReport("convert_8u16s8u_C3R", us, st, DemoChecksum(&out, DEMO_FNV_OFFSET)) &&
        DemoChecksum(&out, DEMO_FNV_OFFSET) != DemoChecksum(src, DEMO_FNV_OFFSET))
        DemoFail("8u -> 16s -> 8u did not give the input back");

    DemoFree(&f32);
    DemoFree(&s16);
    DemoFree(&out);
    DemoFree(&poster);
    DemoFree(&mask);
}

PEL_DEMO_STEPS(50, "conversion and threshold", Run);
