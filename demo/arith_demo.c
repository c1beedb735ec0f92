/* Arithmetic: brighten, blend, difference, vignette, ratio. */
#include <stddef.h>

#include "demo.h"

/* A vignette: 256 at the centre falling to about 96 at the corners, in
 * every channel. */
static void DrawVignette(DemoImage* v) {
    const int w = v->width, h = v->height;
    const long cx = w / 2, cy = h / 2;
    const long r2 = cx * cx + cy * cy + 1;
    for (int y = 0; y < h; ++y) {
        Pel8u* row = v->data + (size_t)y * (size_t)v->step;
        for (int x = 0; x < w; ++x) {
            const long d2 = (x - cx) * (x - cx) + (y - cy) * (y - cy);
            const long level = 255 - 160 * d2 / r2;
            for (int c = 0; c < 3; ++c) row[3 * x + c] = (Pel8u)level;
        }
    }
}

static void Run(const DemoImage* src) {
    const int w = src->width, h = src->height;
    DemoImage out, vignette, grey;
    if (!DemoAlloc(&out, w, h, 3) || !DemoAlloc(&vignette, w, h, 3) || !DemoAlloc(&grey, w, h, 1))
        return;
    const PeliSize roi = DemoRoi(src);

    /* Brighter by 40 in every channel, saturating at 255. */
    const Pel8u lift[3] = {40, 40, 40};
    double t0 = DemoNow();
    PelStatus st = peliAddC_8u_C3RSfs(src->data, src->step, lift, out.data, out.step, roi, 0);
    DemoReportImage("addc_C3RSfs", DemoNow() - t0, st, &out, "brighter.png");

    /* The image blended half and half with itself moved 8 pixels right:
     * (a + b) / 2 is Add with scale factor 1. */
    const int shift = w > 8 ? 8 : 0;
    const PeliSize inner = {w - shift, h};
    st = peliCopy_8u_C3R(src->data, src->step, out.data, out.step, roi);
    if (st < 0) DemoReport("copy_C3R", 0.0, st, 0);
    t0 = DemoNow();
    st = peliAdd_8u_C3RSfs(src->data, src->step, src->data + 3 * shift, src->step, out.data, out.step,
                           inner, 1);
    DemoReportImage("add_C3RSfs.blend", DemoNow() - t0, st, &out, "blend.png");

    /* Where the image brightens to the right: the moved image minus the
     * image (Sub takes the subtrahend first), doubled, on black. */
    const Pel8u black[3] = {0, 0, 0};
    st = peliSet_8u_C3R(black, out.data, out.step, roi);
    if (st < 0) DemoReport("set_C3R", 0.0, st, 0);
    t0 = DemoNow();
    st = peliSub_8u_C3RSfs(src->data + 3 * shift, src->step, src->data, src->step, out.data, out.step,
                           inner, -1);
    DemoReportImage("sub_C3RSfs.edges", DemoNow() - t0, st, &out, "edges.png");

    /* Vignette: pixel x level / 256 is Mul with scale factor 8. */
    DrawVignette(&vignette);
    t0 = DemoNow();
    st = peliMul_8u_C3RSfs(src->data, src->step, vignette.data, vignette.step, out.data, out.step, roi, 8);
    DemoReportImage("mul_C3RSfs.vignette", DemoNow() - t0, st, &out, "vignette.png");

    /* Green over red, x 64: Div takes the divisor first; a red of 0 gives
     * 255 (and the warning) where green is not 0. */
    st = peliCopy_8u_C3C1R(src->data + 1, src->step, grey.data, grey.step, roi);
    if (st < 0) DemoReport("copy_C3C1R", 0.0, st, 0);
    DemoImage red;
    if (DemoAlloc(&red, w, h, 1)) {
        st = peliCopy_8u_C3C1R(src->data, src->step, red.data, red.step, roi);
        if (st < 0) DemoReport("copy_C3C1R", 0.0, st, 0);
        t0 = DemoNow();
        st = peliDiv_8u_C1IRSfs(red.data, red.step, grey.data, grey.step, roi, -6);
        /* The warning still means a whole result. */
        DemoReportImage("div_C1IRSfs.ratio", DemoNow() - t0, st == pelStatusDivByZeroWarning ? pelStatusOk : st,
                        &grey, "ratio.png");
        DemoFree(&red);
    }

    DemoFree(&out);
    DemoFree(&vignette);
    DemoFree(&grey);
}

PEL_DEMO_STEPS(30, "arithmetic", Run);
