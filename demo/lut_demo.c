/* Lookup tables: a gamma curve expanded from fourteen points into a classic
 * 256-entry table, an S-shaped tone curve through five points, a straight
 * line that must give the input back, and a palette of eight shades. */
#include "demo.h"

static void Run(const DemoImage* src) {
    const int w = src->width, h = src->height;
    DemoImage out;
    if (!DemoAlloc(&out, w, h, 3)) return;
    const PeliSize roi = DemoRoi(src);

    /* Gamma 1/2.2 through fourteen points, expanded once into a classic
     * 256-entry table by running the curve over a ramp; the table (levels
     * 0..256, entry i the value of byte i) then maps the image. */
    const Pel32s knots[14] = {0, 1, 2, 4, 8, 16, 32, 64, 96, 128, 160, 192, 224, 256};
    const Pel32s gammaAt[14] = {0, 21, 28, 39, 53, 72, 99, 136, 164, 186, 206, 224, 240, 255};
    Pel8u ramp[256], curve[256];
    Pel32s levels[257], gamma[257];
    for (int i = 0; i < 256; ++i) ramp[i] = (Pel8u)i;
    double t0 = DemoNow();
    PelStatus st = peliLUT_Cubic_8u_C1R(ramp, 256, curve, 256, (PeliSize){256, 1}, gammaAt, knots, 14);
    for (int i = 0; i <= 256; ++i) {
        levels[i] = i;
        gamma[i] = curve[i < 255 ? i : 255];
    }
    const Pel32s* gv[3] = {gamma, gamma, gamma};
    const Pel32s* gl[3] = {levels, levels, levels};
    int gn[3] = {257, 257, 257};
    if (st >= 0) st = peliLUT_8u_C3R(src->data, src->step, out.data, out.step, roi, gv, gl, gn);
    DemoReportImage("lut_C3R.gamma", DemoNow() - t0, st, &out, "gamma.png");

    /* More contrast in the mid-tones; the last level is 256 so that 255 is
     * inside the curve. */
    const Pel32s sl[5] = {0, 64, 128, 192, 256};
    const Pel32s sv[5] = {0, 40, 128, 216, 256};
    const Pel32s* cv[3] = {sv, sv, sv};
    const Pel32s* cl[3] = {sl, sl, sl};
    int cn[3] = {5, 5, 5};
    t0 = DemoNow();
    st = peliLUT_Cubic_8u_C3R(src->data, src->step, out.data, out.step, roi, cv, cl, cn);
    DemoReportImage("lut_cubic_C3R.scurve", DemoNow() - t0, st, &out, "scurve.png");

    /* The line through (0, 0) and (256, 256) is the identity. */
    const Pel32s ll[2] = {0, 256};
    const Pel32s* lv[3] = {ll, ll, ll};
    int ln[3] = {2, 2, 2};
    t0 = DemoNow();
    st = peliLUT_Linear_8u_C3R(src->data, src->step, out.data, out.step, roi, lv, lv, ln);
    const double us = DemoNow() - t0;
    const uint64_t sum = DemoChecksum(&out, DEMO_FNV_OFFSET);
    if (DemoReport("lut_linear_C3R.identity", us, st, sum) && sum != DemoChecksum(src, DEMO_FNV_OFFSET))
        DemoFail("the identity line changed the image");

    /* Eight shades a channel: the palette maps each byte to the shade of its
     * top three bits, spread back over 0..255. */
    Pel8u shades[256];
    for (int i = 0; i < 256; ++i) shades[i] = (Pel8u)((i >> 5) * 255 / 7);
    const Pel8u* pt[3] = {shades, shades, shades};
    t0 = DemoNow();
    st = peliLUTPalette_8u_C3R(src->data, src->step, out.data, out.step, roi, pt, 8);
    DemoReportImage("lutpalette_C3R.shades", DemoNow() - t0, st, &out, "shades.png");

    DemoFree(&out);
}

PEL_DEMO_STEPS(55, "lookup tables", Run);
