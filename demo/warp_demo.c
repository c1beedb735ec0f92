/* Warp: the input rotated by 30 degrees about its centre (bilinear, black
 * outside), from the matrix helpers through the spec to the pixels. */
#include <stdlib.h>

#include "demo.h"

static void Run(const DemoImage* src) {
    const PeliSize size = DemoRoi(src);
    double m[2][3], xs = 0, ys = 0;
    int specBytes = 0, bufBytes = 0;
    DemoImage out;
    PelStatus st = peliGetRotateShift((size.width - 1) / 2.0, (size.height - 1) / 2.0, 30, &xs, &ys);
    if (st == pelStatusOk) st = peliGetRotateTransform(30, xs, ys, m);
    if (st == pelStatusOk)
        st = peliWarpAffineGetSize(size, size, pelType8u, (const double(*)[3])m, pelInterpolationLinear, 0,
                                   pelBorderConstant, &specBytes, &bufBytes);
    if (st != pelStatusOk) {
        DemoReport("warp set-up", 0.0, st < 0 ? st : -1, 0);
        return;
    }
    if (!DemoAlloc(&out, size.width, size.height, 3)) return;
    PeliWarpSpec* spec = (PeliWarpSpec*)malloc((size_t)specBytes);
    Pel8u* buffer = (Pel8u*)malloc((size_t)bufBytes);
    const double black[3] = {0, 0, 0};
    if (spec && buffer) {
        st = peliWarpAffineLinearInit(size, size, pelType8u, (const double(*)[3])m, 0, 3, pelBorderConstant, black, 0,
                                      spec);
        const PeliPoint origin = {0, 0};
        const double t0 = DemoNow();
        if (st == pelStatusOk)
            st = peliWarpAffineLinear_8u_C3R(src->data, src->step, out.data, out.step, origin, size, spec, buffer);
        DemoReportImage("warp_rotate30", DemoNow() - t0, st, &out, "warp_rotate30.png");
    }
    free(spec);
    free(buffer);
    DemoFree(&out);
}

PEL_DEMO_STEPS(75, "warp", Run);
