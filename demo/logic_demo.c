/* Logic and shifts: posterise, negative, the top bit plane, and a keyed
 * Xor that undoes itself. */
#include "demo.h"

static void Run(const DemoImage* src) {
    const int w = src->width, h = src->height;
    DemoImage out, back;
    if (!DemoAlloc(&out, w, h, 3) || !DemoAlloc(&back, w, h, 3)) return;
    const PeliSize roi = DemoRoi(src);

    /* Keeping the high bits of each channel leaves 8 levels of red and
     * green and 4 of blue. */
    const Pel8u levels[3] = {0xE0, 0xE0, 0xC0};
    double t0 = DemoNow();
    PelStatus st = peliAndC_8u_C3R(src->data, src->step, levels, out.data, out.step, roi);
    DemoReportImage("andc_C3R.poster", DemoNow() - t0, st, &out, "posterise.png");

    t0 = DemoNow();
    st = peliNot_8u_C3R(src->data, src->step, out.data, out.step, roi);
    DemoReportImage("not_C3R", DemoNow() - t0, st, &out, "negative.png");

    /* The top bit of each channel, moved down and back up: 0 or 128. */
    t0 = DemoNow();
    st = peliRShiftC_8u_C1R(src->data, src->step, 7, out.data, out.step, (PeliSize){w * 3, h});
    if (st >= 0) st = peliLShiftC_8u_C1IR(7, out.data, out.step, (PeliSize){w * 3, h});
    DemoReportImage("shift_C1R.bit7", DemoNow() - t0, st, &out, "bitplane7.png");

    /* Xor with a key scrambles the image; the same key restores it. */
    const Pel8u key[3] = {0x5A, 0xC3, 0x99};
    t0 = DemoNow();
    st = peliXorC_8u_C3R(src->data, src->step, key, out.data, out.step, roi);
    DemoReportImage("xorc_C3R.key", DemoNow() - t0, st, &out, "scrambled.png");
    t0 = DemoNow();
    st = peliXorC_8u_C3R(out.data, out.step, key, back.data, back.step, roi);
    const double us = DemoNow() - t0;
    const uint64_t sum = DemoChecksum(&back, DEMO_FNV_OFFSET);
    if (DemoReport("xorc_C3R.unkey", us, st, sum) && sum != DemoChecksum(src, DEMO_FNV_OFFSET))
        DemoFail("Xor with the same key did not restore the input");

    DemoFree(&out);
    DemoFree(&back);
}

PEL_DEMO_STEPS(40, "logic and shifts", Run);
