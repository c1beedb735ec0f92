/* Filters: a box blur, a median, an edge kernel through the general filter,
 * and erosion and dilation. */
#include <stdlib.h>

#include "demo.h"

/* A buffer of the size a size call gave (called before, so that the size is
 * known), or 0 after reporting the step as failed. */
static Pel8u* Buffer(const char* step, PelStatus sizeStatus, int bytes) {
    Pel8u* p = sizeStatus == pelStatusOk ? (Pel8u*)malloc((size_t)bytes) : NULL;
    if (!p) DemoReport(step, 0, sizeStatus == pelStatusOk ? pelStatusNoMemory : sizeStatus, 0);
    return p;
}

static void Run(const DemoImage* src) {
    DemoImage out;
    if (!DemoAlloc(&out, src->width, src->height, 3)) return;
    const PeliSize roi = DemoRoi(src);
    int bytes = 0;

    /* 9x9 box blur. */
    const PeliSize box = {9, 9};
    PelStatus sizeSt = peliFilterBoxBorderGetBufferSize(roi, box, pelType8u, 3, &bytes);
    Pel8u* buf = Buffer("box_C3R.9x9", sizeSt, bytes);
    if (buf) {
        double t0 = DemoNow();
        PelStatus st = peliFilterBoxBorder_8u_C3R(src->data, src->step, out.data, out.step, roi, box,
                                                  pelBorderReplicate, NULL, buf);
        DemoReportImage("box_C3R.9x9", DemoNow() - t0, st, &out, "filter_box.png");
        free(buf);
    }

    /* 7x7 median: flattens texture, keeps edges. */
    const PeliSize med = {7, 7};
    sizeSt = peliFilterMedianBorderGetBufferSize(roi, med, pelType8u, 3, &bytes);
    buf = Buffer("median_C3R.7x7", sizeSt, bytes);
    if (buf) {
        double t0 = DemoNow();
        PelStatus st = peliFilterMedianBorder_8u_C3R(src->data, src->step, out.data, out.step, roi, med,
                                                     pelBorderReplicate, 0, buf);
        DemoReportImage("median_C3R.7x7", DemoNow() - t0, st, &out, "filter_median.png");
        free(buf);
    }

    /* Edges: a Laplacian, offset to mid-grey so that both signs show. */
    static const Pel16s kLaplace[9] = {-1, -1, -1, -1, 8, -1, -1, -1, -1};
    const PeliSize k3 = {3, 3};
    int specBytes = 0;
    sizeSt = peliFilterBorderGetSize(k3, roi, pelType8u, pelType16s, 3, &specBytes, &bytes);
    Pel8u* spec = Buffer("filter_C3R.laplace", sizeSt, specBytes);
    buf = spec ? Buffer("filter_C3R.laplace", sizeSt, bytes) : NULL;
    if (buf) {
        PeliFilterBorderSpec* s = (PeliFilterBorderSpec*)spec;
        double t0 = DemoNow();
        PelStatus st = peliFilterBorderInit_16s(kLaplace, k3, 1, pelType8u, 3, pelRoundNear, s);
        if (st == pelStatusOk) st = peliFilterBorderSetMode(0, 128, s);
        if (st == pelStatusOk)
            st = peliFilterBorder_8u_C3R(src->data, src->step, out.data, out.step, roi, pelBorderMirror, NULL, s, buf);
        DemoReportImage("filter_C3R.laplace", DemoNow() - t0, st, &out, "filter_edges.png");
    }
    free(buf);
    free(spec);

    /* 5x5 erosion and dilation. */
    const PeliSize morph = {5, 5};
    sizeSt = peliFilterMinBorderGetBufferSize(roi, morph, pelType8u, 3, &bytes);
    buf = Buffer("min_C3R.5x5", sizeSt, bytes);
    if (buf) {
        double t0 = DemoNow();
        PelStatus st = peliFilterMinBorder_8u_C3R(src->data, src->step, out.data, out.step, roi, morph,
                                                  pelBorderReplicate, 0, buf);
        DemoReportImage("min_C3R.5x5", DemoNow() - t0, st, &out, "filter_erode.png");
        t0 = DemoNow();
        st = peliFilterMaxBorder_8u_C3R(src->data, src->step, out.data, out.step, roi, morph, pelBorderReplicate, 0,
                                        buf);
        DemoReportImage("max_C3R.5x5", DemoNow() - t0, st, &out, "filter_dilate.png");
        free(buf);
    }
    DemoFree(&out);
}

PEL_DEMO_STEPS(65, "filters", Run);
