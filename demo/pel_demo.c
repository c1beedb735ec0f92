/* pel-demo: runs pel's primitives, family by family, on an image and writes
 * every result as a PNG.
 *
 *   pel-demo [-o DIR] [IMAGE.png]
 *
 * Without IMAGE it draws a 640x480 RGB test card; with IMAGE it loads that
 * file as 8-bit RGB (grey, palette, 16-bit and alpha images are converted,
 * alpha over white). Results go to DIR (default "out", created if needed).
 * For each step it prints the step name, the time of the pel call in
 * microseconds and an FNV-1a checksum of the output pixels (ROI bytes only,
 * row padding excluded), so runs on different machines or CPU levels
 * (PEL_CPU=scalar|sse4|avx2|avx512) can be compared line by line.
 *
 * Exit status: 0 on success, 1 when a pel call fails or a result is wrong,
 * 2 on a usage or file error. */
#define _POSIX_C_SOURCE 200809L

#include <errno.h>
#include <png.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>

#include "demo.h"

static const char* g_outDir = "out";
static int g_failed = 0;

double DemoNow(void) {
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec * 1e6 + (double)ts.tv_nsec / 1e3;
}

uint64_t DemoChecksum(const DemoImage* im, uint64_t hash) {
    const size_t rowBytes = (size_t)im->width * (size_t)im->channels;
    for (int y = 0; y < im->height; ++y) {
        const Pel8u* row = im->data + (size_t)y * (size_t)im->step;
        for (size_t i = 0; i < rowBytes; ++i) {
            hash ^= row[i];
            hash *= 0x100000001b3ULL;
        }
    }
    return hash;
}

int DemoAlloc(DemoImage* im, int width, int height, int channels) {
    im->width = width;
    im->height = height;
    im->channels = channels;
    im->data = channels == 4   ? peliMalloc_8u_C4(width, height, &im->step)
               : channels == 3 ? peliMalloc_8u_C3(width, height, &im->step)
                               : peliMalloc_8u_C1(width, height, &im->step);
    if (im->data == NULL) {
        fprintf(stderr, "pel-demo: peliMalloc failed for %dx%dx%d\n", width, height, channels);
        g_failed = 1;
        return 0;
    }
    memset(im->data, 0, (size_t)im->step * (size_t)height);
    return 1;
}

void DemoFree(DemoImage* im) {
    peliFree(im->data);
    im->data = NULL;
}

PeliSize DemoRoi(const DemoImage* im) {
    PeliSize roi = {im->width, im->height};
    return roi;
}

void DemoFail(const char* what) {
    printf("%-16s %s\n", "ERROR", what);
    g_failed = 1;
}

/* A negative status is a failure; the checksum of a failed step is
 * meaningless, so it is not printed. */
int DemoReport(const char* step, double micros, PelStatus status, uint64_t checksum) {
    if (status < 0) {
        printf("%-16s %10.1f us  FAILED with pel status %d\n", step, micros, status);
        g_failed = 1;
        return 0;
    }
    printf("%-16s %10.1f us  fnv1a %016llx%s\n", step, micros, (unsigned long long)checksum,
           status > 0 ? "  (warning status)" : "");
    return 1;
}

void DemoReportImage(const char* step, double micros, PelStatus status, const DemoImage* im,
                     const char* png) {
    if (DemoReport(step, micros, status, DemoChecksum(im, DEMO_FNV_OFFSET))) DemoWritePng(im, png);
}

int DemoWritePng(const DemoImage* im, const char* name) {
    char path[4096];
    snprintf(path, sizeof path, "%s/%s", g_outDir, name);
    png_image png;
    memset(&png, 0, sizeof png);
    png.version = PNG_IMAGE_VERSION;
    png.width = (png_uint_32)im->width;
    png.height = (png_uint_32)im->height;
    png.format = im->channels == 4 ? PNG_FORMAT_RGBA : im->channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_GRAY;
    /* 8-bit samples: the row stride in components is the step in bytes. */
    if (!png_image_write_to_file(&png, path, 0, im->data, im->step, NULL)) {
        fprintf(stderr, "pel-demo: cannot write %s: %s\n", path, png.message);
        g_failed = 1;
        return 0;
    }
    return 1;
}

static int LoadPng(DemoImage* im, const char* path) {
    png_image png;
    memset(&png, 0, sizeof png);
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path)) {
        fprintf(stderr, "pel-demo: cannot read %s: %s\n", path, png.message);
        return 0;
    }
    png.format = PNG_FORMAT_RGB;
    if (png.width > 0x7FFFFFFF / 3 || png.height > 0x7FFFFFFF ||
        !DemoAlloc(im, (int)png.width, (int)png.height, 3)) {
        png_image_free(&png);
        return 0;
    }
    const png_color white = {255, 255, 255};
    if (!png_image_finish_read(&png, &white, im->data, im->step, NULL)) {
        fprintf(stderr, "pel-demo: cannot decode %s: %s\n", path, png.message);
        DemoFree(im);
        return 0;
    }
    return 1;
}

/* The test card: a colour gradient, a disc, a frame and diagonal stripes,
 * so that every channel and every step has something to show. */
static void DrawTestCard(DemoImage* im) {
    const int w = im->width, h = im->height;
    for (int y = 0; y < h; ++y) {
        Pel8u* row = im->data + (size_t)y * (size_t)im->step;
        for (int x = 0; x < w; ++x) {
            int r = x * 255 / (w - 1 > 0 ? w - 1 : 1);
            int g = y * 255 / (h - 1 > 0 ? h - 1 : 1);
            int b = 255 - (r + g) / 2;
            const int dx = x - w / 3, dy = y - h / 2, radius = h / 4;
            if (dx * dx + dy * dy <= radius * radius) {
                r = 250; g = 210; b = 20;
            }
            if (x > w / 2 && x < w - w / 10 && y > h / 6 && y < h - h / 6 &&
                (x < w / 2 + 16 || x > w - w / 10 - 16 || y < h / 6 + 16 || y > h - h / 6 - 16)) {
                r = 20; g = 220; b = 230;
            }
            if (((x + y) / 24) % 4 == 0 && y > h - h / 8) {
                r = 255 - r; g = 255 - g; b = 255 - b;
            }
            row[3 * x + 0] = (Pel8u)r;
            row[3 * x + 1] = (Pel8u)g;
            row[3 * x + 2] = (Pel8u)b;
        }
    }
}

static int MakeDir(const char* path) {
    if (mkdir(path, 0777) == 0 || errno == EEXIST) return 1;
    fprintf(stderr, "pel-demo: cannot create %s: %s\n", path, strerror(errno));
    return 0;
}

/* The families' steps, gathered by the linker into one section. */
extern const DemoSteps __start_pel_demo_steps[];
extern const DemoSteps __stop_pel_demo_steps[];

int main(int argc, char** argv) {
    const char* inputPath = NULL;
    for (int i = 1; i < argc; ++i) {
        if (strcmp(argv[i], "-o") == 0 && i + 1 < argc) {
            g_outDir = argv[++i];
        } else if (argv[i][0] == '-' || inputPath != NULL) {
            fprintf(stderr, "usage: %s [-o DIR] [IMAGE.png]\n", argv[0]);
            return 2;
        } else {
            inputPath = argv[i];
        }
    }
    if (!MakeDir(g_outDir)) return 2;

    const PelLibraryVersion* version = peliGetLibVersion();
    printf("%s %s\n", version->Name, version->Version);

    DemoImage src;
    const double t0 = DemoNow();
    if (inputPath != NULL) {
        if (!LoadPng(&src, inputPath)) return 2;
    } else {
        if (!DemoAlloc(&src, 640, 480, 3)) return 2;
        DrawTestCard(&src);
    }
    DemoReport(inputPath != NULL ? "load" : "generate", DemoNow() - t0, pelStatusOk,
               DemoChecksum(&src, DEMO_FNV_OFFSET));
    printf("%-16s %dx%d RGB\n", "image", src.width, src.height);
    if (!DemoWritePng(&src, "input.png")) return 2;

    /* Every family's steps, in their order. */
    const size_t count = (size_t)(__stop_pel_demo_steps - __start_pel_demo_steps);
    int last = -1;
    for (size_t done = 0; done < count; ++done) {
        const DemoSteps* next = NULL;
        for (const DemoSteps* s = __start_pel_demo_steps; s < __stop_pel_demo_steps; ++s)
            if (s->order > last && (next == NULL || s->order < next->order)) next = s;
        if (next == NULL) break;
        printf("-- %s\n", next->family);
        next->run(&src);
        last = next->order;
    }

    DemoFree(&src);
    printf("%s: PNGs in %s/\n", g_failed ? "FAILED" : "done", g_outDir);
    return g_failed ? 1 : 0;
}
