/* pel-demo's shared pieces: 8-bit images, timing, the one-line report and
 * PNG output. Each family adds a file <family>_demo.c with a function that
 * runs its steps on the input image, registered with PEL_DEMO_STEPS. */
#ifndef PEL_DEMO_H
#define PEL_DEMO_H

#include <stdint.h>

#include "peli.h"

typedef struct {
    Pel8u* data;
    int step;
    int width;
    int height;
    int channels; /* 1, 3 or 4 */
} DemoImage;

/* Allocates with peliMalloc (zeroed, so the pages are faulted in before any
 * timing); prints the reason and returns 0 on failure. */
int DemoAlloc(DemoImage* im, int width, int height, int channels);
void DemoFree(DemoImage* im);
PeliSize DemoRoi(const DemoImage* im);

/* Microseconds from a monotonic clock. */
double DemoNow(void);

/* FNV-1a over the ROI bytes of an image (row padding excluded); chaining the
 * hash through several images gives one checksum for a set of planes. */
uint64_t DemoChecksum(const DemoImage* im, uint64_t hash);
#define DEMO_FNV_OFFSET 0xcbf29ce484222325ULL

/* One line per step: name, time, checksum. Returns 0 (and marks the run as
 * failed) for an error status. */
int DemoReport(const char* step, double micros, PelStatus status, uint64_t checksum);
/* The report of a step with one output image, which is also written to
 * <out>/<png> when the step succeeded. */
void DemoReportImage(const char* step, double micros, PelStatus status, const DemoImage* im,
                     const char* png);
int DemoWritePng(const DemoImage* im, const char* name);
/* Marks the run as failed, with a message. */
void DemoFail(const char* what);

/* A family's steps: run(src) is called once with the RGB input image. They
 * run in ascending order of `order`. */
typedef struct {
    int order;
    const char* family;
    void (*run)(const DemoImage* src);
} DemoSteps;

#define PEL_DEMO_STEPS(orderValue, familyName, function)                                  \
    static const DemoSteps pel_demo_steps_##function                                      \
        __attribute__((used, section("pel_demo_steps"), aligned(sizeof(void*)))) = {     \
            orderValue, familyName, function}

#endif
