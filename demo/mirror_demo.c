/* Mirror, transpose, channel swap and border extension. */
#include <stddef.h>

#include "demo.h"

static void Run(const DemoImage* src) {
    const int w = src->width, h = src->height;
    enum { kFrame = 48 };
    DemoImage flipped, turned, swapped, framed;
    if (!DemoAlloc(&flipped, w, h, 3) || !DemoAlloc(&turned, h, w, 3) || !DemoAlloc(&swapped, w, h, 3) ||
        !DemoAlloc(&framed, w + 2 * kFrame, h + 2 * kFrame, 3))
        return;
    const PeliSize roi = DemoRoi(src);
    const PeliSize frame = {w + 2 * kFrame, h + 2 * kFrame};

    double t0 = DemoNow();
    PelStatus st = peliMirror_8u_C3R(src->data, src->step, flipped.data, flipped.step, roi, pelAxisVertical);
    DemoReportImage("mirror_C3R.v", DemoNow() - t0, st, &flipped, "mirror_vertical.png");

    /* Flipping the flipped image back in place gives the input again. */
    t0 = DemoNow();
    st = peliMirror_8u_C3IR(flipped.data, flipped.step, roi, pelAxisVertical);
    const double us = DemoNow() - t0;
    const uint64_t back = DemoChecksum(&flipped, DEMO_FNV_OFFSET);
    if (DemoReport("mirror_C3IR.back", us, st, back) && back != DemoChecksum(src, DEMO_FNV_OFFSET))
        DemoFail("mirroring twice did not give the input");

    t0 = DemoNow();
    st = peliMirror_8u_C3R(src->data, src->step, flipped.data, flipped.step, roi, pelAxisBoth);
    DemoReportImage("mirror_C3R.hv", DemoNow() - t0, st, &flipped, "mirror_both.png");

    t0 = DemoNow();
    st = peliTranspose_8u_C3R(src->data, src->step, turned.data, turned.step, roi);
    DemoReportImage("transpose_C3R", DemoNow() - t0, st, &turned, "transpose.png");

    /* Red and blue exchanged. */
    static const int kBgr[3] = {2, 1, 0};
    t0 = DemoNow();
    st = peliSwapChannels_8u_C3R(src->data, src->step, swapped.data, swapped.step, roi, kBgr);
    DemoReportImage("swap_C3R.bgr", DemoNow() - t0, st, &swapped, "swap_bgr.png");

    /* The image in a frame of each kind. */
    t0 = DemoNow();
    st = peliCopyMirrorBorder_8u_C3R(src->data, src->step, roi, framed.data, framed.step, frame, kFrame, kFrame);
    DemoReportImage("border_C3R.mirror", DemoNow() - t0, st, &framed, "border_mirror.png");
    t0 = DemoNow();
    st = peliCopyReplicateBorder_8u_C3R(src->data, src->step, roi, framed.data, framed.step, frame, kFrame, kFrame);
    DemoReportImage("border_C3R.repl", DemoNow() - t0, st, &framed, "border_replicate.png");
    static const Pel8u kTeal[3] = {0, 128, 128};
    t0 = DemoNow();
    st = peliCopyConstBorder_8u_C3R(src->data, src->step, roi, framed.data, framed.step, frame, kFrame, kFrame,
                                    kTeal);
    DemoReportImage("border_C3R.const", DemoNow() - t0, st, &framed, "border_const.png");

    DemoFree(&flipped);
    DemoFree(&turned);
    DemoFree(&swapped);
    DemoFree(&framed);
}

PEL_DEMO_STEPS(20, "mirror, transpose, swap and border", Run);
