/* Resize: bilinear down to 2/3 and up by 3/2, nearest up by 2, and the
 * reduction again in four tiles, which must give the same bytes. */
#include <stdlib.h>

#include "demo.h"

/* A spec and a work buffer for src -> dst (linear or nearest); 0 on failure. */
typedef struct {
    PeliResizeSpec* spec;
    Pel8u* buffer;
} Resizer;

static int MakeResizer(Resizer* r, PeliSize src, PeliSize dst, int linear) {
    int specBytes = 0, initBytes = 0, bufBytes = 0;
    r->spec = NULL;
    r->buffer = NULL;
    PelStatus st = peliResizeGetSize_8u(src, dst, linear ? pelInterpolationLinear : pelInterpolationNearest, 0,
                                        &specBytes, &initBytes);
    if (st != pelStatusOk) return DemoReport("resize set-up", 0.0, st < 0 ? st : -1, 0);
    r->spec = (PeliResizeSpec*)malloc((size_t)specBytes);
    if (!r->spec) return 0;
    st = linear ? peliResizeLinearInit_8u(src, dst, r->spec) : peliResizeNearestInit_8u(src, dst, r->spec);
    if (st == pelStatusOk) st = peliResizeGetBufferSize_8u(r->spec, dst, 3, &bufBytes);
    if (st != pelStatusOk) return DemoReport("resize set-up", 0.0, st < 0 ? st : -1, 0);
    r->buffer = (Pel8u*)malloc((size_t)bufBytes);
    return r->buffer != NULL;
}

static void FreeResizer(Resizer* r) {
    free(r->spec);
    free(r->buffer);
}

/* One tile of dst: the source pointer goes to the pixel GetSrcOffset names. */
static PelStatus LinearTile(const DemoImage* src, DemoImage* dst, const Resizer* r, PeliPoint at, PeliSize size) {
    PeliPoint from;
    PelStatus st = peliResizeGetSrcOffset_8u(r->spec, at, &from);
    if (st != pelStatusOk) return st;
    const Pel8u* s = src->data + (size_t)from.y * (size_t)src->step + (size_t)from.x * 3;
    Pel8u* d = dst->data + (size_t)at.y * (size_t)dst->step + (size_t)at.x * 3;
    return peliResizeLinear_8u_C3R(s, src->step, d, dst->step, at, size, pelBorderReplicate, NULL, r->spec,
                                   r->buffer);
}

static void Run(const DemoImage* src) {
    const PeliSize in = DemoRoi(src);
    const PeliSize small = {in.width * 2 / 3 > 0 ? in.width * 2 / 3 : 1, in.height * 2 / 3 > 0 ? in.height * 2 / 3 : 1};
    const PeliSize large = {in.width * 3 / 2, in.height * 3 / 2};
    const PeliSize twice = {in.width * 2, in.height * 2};
    DemoImage down, up, near, tiled;
    Resizer rDown = {NULL, NULL}, rUp = {NULL, NULL}, rNear = {NULL, NULL};
    if (in.width < 2 || in.height < 2) {
        DemoFail("resize needs an input of at least 2x2");
        return;
    }
    if (!DemoAlloc(&down, small.width, small.height, 3) || !DemoAlloc(&tiled, small.width, small.height, 3) ||
        !DemoAlloc(&up, large.width, large.height, 3) || !DemoAlloc(&near, twice.width, twice.height, 3))
        return;
    if (MakeResizer(&rDown, in, small, 1) && MakeResizer(&rUp, in, large, 1) && MakeResizer(&rNear, in, twice, 0)) {
        const PeliPoint origin = {0, 0};
        double t0 = DemoNow();
        PelStatus st = LinearTile(src, &down, &rDown, origin, small);
        DemoReportImage("resize_linear_2of3", DemoNow() - t0, st, &down, "resize_2of3.png");

        t0 = DemoNow();
        st = peliResizeLinear_8u_C3R(src->data, src->step, up.data, up.step, origin, large, pelBorderReplicate, NULL,
                                     rUp.spec, rUp.buffer);
        DemoReportImage("resize_linear_3of2", DemoNow() - t0, st, &up, "resize_3of2.png");

        t0 = DemoNow();
        st = peliResizeNearest_8u_C3R(src->data, src->step, near.data, near.step, origin, twice, rNear.spec,
                                      rNear.buffer);
        DemoReportImage("resize_nearest_x2", DemoNow() - t0, st, &near, "resize_nearest_x2.png");

        /* Four tiles, as four threads would make them: the same bytes. */
        const int hw = small.width / 2, hh = small.height / 2;
        const PeliPoint at[4] = {{0, 0}, {hw, 0}, {0, hh}, {hw, hh}};
        const PeliSize size[4] = {{hw, hh}, {small.width - hw, hh}, {hw, small.height - hh},
                                  {small.width - hw, small.height - hh}};
        st = pelStatusOk;
        t0 = DemoNow();
        for (int k = 0; k < 4 && st >= 0; ++k)
            if (size[k].width > 0 && size[k].height > 0) st = LinearTile(src, &tiled, &rDown, at[k], size[k]);
        const uint64_t sum = DemoChecksum(&tiled, DEMO_FNV_OFFSET);
        if (DemoReport("resize_tiles", DemoNow() - t0, st, sum) && sum != DemoChecksum(&down, DEMO_FNV_OFFSET))
            DemoFail("tiles differ from the whole image");
    }
    FreeResizer(&rDown);
    FreeResizer(&rUp);
    FreeResizer(&rNear);
    DemoFree(&down);
    DemoFree(&tiled);
    DemoFree(&up);
    DemoFree(&near);
}

PEL_DEMO_STEPS(70, "resize", Run);
