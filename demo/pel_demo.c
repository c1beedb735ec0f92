/* pel-demo: runs a few of pel's copy and fill primitives on an image and
 * writes every result as a PNG.
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

#include "peli.h"

typedef struct {
    Pel8u* data;
    int step;
    int width;
    int height;
    int channels;
} Image;

static const char* g_outDir = "out";
static int g_failed = 0;

static double NowMicros(void) {
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec * 1e6 + (double)ts.tv_nsec / 1e3;
}

/* FNV-1a over the ROI bytes; chaining the hash through several images gives
 * one checksum for a set of planes. */
static uint64_t Fnv1a(const Image* im, uint64_t hash) {
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
#define FNV_OFFSET 0xcbf29ce484222325ULL

static int AllocImage(Image* im, int width, int height, int channels) {
    im->width = width;
    im->height = height;
    im->channels = channels;
    im->data = channels == 3 ? peliMalloc_8u_C3(width, height, &im->step)
                             : peliMalloc_8u_C1(width, height, &im->step);
    if (im->data == NULL) {
        fprintf(stderr, "pel-demo: peliMalloc failed for %dx%dx%d\n", width, height, channels);
        return 0;
    }
    /* Fault the pages in now, so that the step timings measure pel rather
     * than the kernel handing out fresh memory. */
    memset(im->data, 0, (size_t)im->step * (size_t)height);
    return 1;
}

static PeliSize Roi(const Image* im) {
    PeliSize roi = {im->width, im->height};
    return roi;
}

/* One line per step. A negative status is a failure; the checksum of a
 * failed step is meaningless, so it is not printed. */
static int Report(const char* step, double micros, PelStatus status, uint64_t checksum) {
    if (status < 0) {
        printf("%-16s %10.1f us  FAILED with pel status %d\n", step, micros, status);
        g_failed = 1;
        return 0;
    }
    printf("%-16s %10.1f us  fnv1a %016llx%s\n", step, micros, (unsigned long long)checksum,
           status > 0 ? "  (warning status)" : "");
    return 1;
}

static int WritePng(const Image* im, const char* name) {
    char path[4096];
    snprintf(path, sizeof path, "%s/%s", g_outDir, name);
    png_image png;
    memset(&png, 0, sizeof png);
    png.version = PNG_IMAGE_VERSION;
    png.width = (png_uint_32)im->width;
    png.height = (png_uint_32)im->height;
    png.format = im->channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_GRAY;
    /* 8-bit samples: the row stride in components is the step in bytes. */
    if (!png_image_write_to_file(&png, path, 0, im->data, im->step, NULL)) {
        fprintf(stderr, "pel-demo: cannot write %s: %s\n", path, png.message);
        g_failed = 1;
        return 0;
    }
    return 1;
}

static int LoadPng(Image* im, const char* path) {
    png_image png;
    memset(&png, 0, sizeof png);
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path)) {
        fprintf(stderr, "pel-demo: cannot read %s: %s\n", path, png.message);
        return 0;
    }
    png.format = PNG_FORMAT_RGB;
    if (png.width > 0x7FFFFFFF / 3 || png.height > 0x7FFFFFFF ||
        !AllocImage(im, (int)png.width, (int)png.height, 3)) {
        png_image_free(&png);
        return 0;
    }
    const png_color white = {255, 255, 255};
    if (!png_image_finish_read(&png, &white, im->data, im->step, NULL)) {
        fprintf(stderr, "pel-demo: cannot decode %s: %s\n", path, png.message);
        peliFree(im->data);
        return 0;
    }
    return 1;
}

/* The test card: a colour gradient, a disc, a frame and diagonal stripes,
 * so that every channel and every step has something to show. */
static void DrawTestCard(Image* im) {
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

/* The mask of the masked copy: a ring and a band of checkers. */
static void DrawMask(Image* mask) {
    const int w = mask->width, h = mask->height;
    const int cx = w / 2, cy = h / 2;
    const int outer = (w < h ? w : h) * 2 / 5, inner = outer * 3 / 5;
    for (int y = 0; y < h; ++y) {
        Pel8u* row = mask->data + (size_t)y * (size_t)mask->step;
        for (int x = 0; x < w; ++x) {
            const int d2 = (x - cx) * (x - cx) + (y - cy) * (y - cy);
            const int ring = d2 <= outer * outer && d2 >= inner * inner;
            const int checker = y < h / 6 && ((x / 16 + y / 16) & 1);
            row[x] = (ring || checker) ? 255 : 0;
        }
    }
}

static int MakeDir(const char* path) {
    if (mkdir(path, 0777) == 0 || errno == EEXIST) return 1;
    fprintf(stderr, "pel-demo: cannot create %s: %s\n", path, strerror(errno));
    return 0;
}

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

    Image src, work, chan, planes[3], merged, mask, dup;
    /* Each step's time is taken right after its call, before the checksum. */
    double t0 = NowMicros(), us;
    if (inputPath != NULL) {
        if (!LoadPng(&src, inputPath)) return 2;
    } else {
        if (!AllocImage(&src, 640, 480, 3)) return 2;
        DrawTestCard(&src);
    }
    const int w = src.width, h = src.height;
    us = NowMicros() - t0;
    const uint64_t srcSum = Fnv1a(&src, FNV_OFFSET);
    Report(inputPath != NULL ? "load" : "generate", us, pelStatusOk, srcSum);
    printf("%-16s %dx%d RGB\n", "image", w, h);
    if (!WritePng(&src, "input.png")) return 2;

    if (!AllocImage(&work, w, h, 3) || !AllocImage(&chan, w, h, 1) || !AllocImage(&merged, w, h, 3) ||
        !AllocImage(&mask, w, h, 1) || !AllocImage(&dup, w, h, 3))
        return 2;
    for (int k = 0; k < 3; ++k)
        if (!AllocImage(&planes[k], w, h, 1)) return 2;
    PelStatus st;

    /* Plain copy. */
    t0 = NowMicros();
    st = peliCopy_8u_C3R(src.data, src.step, work.data, work.step, Roi(&src));
    us = NowMicros() - t0;
    if (Report("copy_C3R", us, st, Fnv1a(&work, FNV_OFFSET))) WritePng(&work, "copy.png");

    /* Fill the middle of the copy: a ROI is a pointer to its first pixel and
     * the parent's step. */
    {
        const Pel8u colour[3] = {200, 30, 120};
        Pel8u* corner = work.data + (size_t)(h / 4) * (size_t)work.step + (size_t)(w / 4) * 3;
        const PeliSize roi = {w / 2 > 0 ? w / 2 : 1, h / 2 > 0 ? h / 2 : 1};
        t0 = NowMicros();
        st = peliSet_8u_C3R(colour, corner, work.step, roi);
        us = NowMicros() - t0;
        if (Report("set_C3R", us, st, Fnv1a(&work, FNV_OFFSET))) WritePng(&work, "set.png");
    }

    /* One channel out: the pointer picks the channel. */
    static const char* const kChannelStep[3] = {"extract_C3C1R.r", "extract_C3C1R.g", "extract_C3C1R.b"};
    static const char* const kChannelFile[3] = {"channel_r.png", "channel_g.png", "channel_b.png"};
    for (int k = 0; k < 3; ++k) {
        t0 = NowMicros();
        st = peliCopy_8u_C3C1R(src.data + k, src.step, chan.data, chan.step, Roi(&src));
        us = NowMicros() - t0;
        if (Report(kChannelStep[k], us, st, Fnv1a(&chan, FNV_OFFSET)))
            WritePng(&chan, kChannelFile[k]);
    }

    /* Planes and back: the round trip must give the input again. */
    Pel8u* const planeOut[3] = {planes[0].data, planes[1].data, planes[2].data};
    t0 = NowMicros();
    st = peliCopy_8u_C3P3R(src.data, src.step, planeOut, planes[0].step, Roi(&src));
    us = NowMicros() - t0;
    uint64_t sum = FNV_OFFSET;
    for (int k = 0; k < 3; ++k) sum = Fnv1a(&planes[k], sum);
    const int splitOk = Report("split_C3P3R", us, st, sum);

    const Pel8u* const planeIn[3] = {planes[0].data, planes[1].data, planes[2].data};
    t0 = NowMicros();
    st = peliCopy_8u_P3C3R(planeIn, planes[0].step, merged.data, merged.step, Roi(&src));
    us = NowMicros() - t0;
    sum = Fnv1a(&merged, FNV_OFFSET);
    if (Report("merge_P3C3R", us, st, sum) && splitOk) {
        if (sum != srcSum) {
            printf("%-16s merged planes differ from the input\n", "ERROR");
            g_failed = 1;
        }
        WritePng(&merged, "merged.png");
    }

    /* Merging the planes in reverse order swaps red and blue. */
    const Pel8u* const swapped[3] = {planes[2].data, planes[1].data, planes[0].data};
    t0 = NowMicros();
    st = peliCopy_8u_P3C3R(swapped, planes[0].step, merged.data, merged.step, Roi(&src));
    us = NowMicros() - t0;
    if (Report("merge_P3C3R.bgr", us, st, Fnv1a(&merged, FNV_OFFSET)))
        WritePng(&merged, "merged_bgr.png");

    /* Masked copy onto a flat background. */
    DrawMask(&mask);
    WritePng(&mask, "mask.png");
    {
        const Pel8u grey[3] = {40, 40, 48};
        st = peliSet_8u_C3R(grey, work.data, work.step, Roi(&work));
        if (st < 0) Report("set_C3R.bg", 0.0, st, 0);
    }
    t0 = NowMicros();
    st = peliCopy_8u_C3MR(src.data, src.step, work.data, work.step, mask.data, mask.step, Roi(&src));
    us = NowMicros() - t0;
    if (Report("copy_C3MR", us, st, Fnv1a(&work, FNV_OFFSET))) WritePng(&work, "masked.png");

    /* The green channel as a grey RGB image. */
    t0 = NowMicros();
    st = peliDup_8u_C1C3R(planes[1].data, planes[1].step, dup.data, dup.step, Roi(&src));
    us = NowMicros() - t0;
    if (Report("dup_C1C3R", us, st, Fnv1a(&dup, FNV_OFFSET))) WritePng(&dup, "dup.png");

    peliFree(src.data);
    peliFree(work.data);
    peliFree(chan.data);
    peliFree(merged.data);
    peliFree(mask.data);
    peliFree(dup.data);
    for (int k = 0; k < 3; ++k) peliFree(planes[k].data);

    printf("%s: PNGs in %s/\n", g_failed ? "FAILED" : "done", g_outDir);
    return g_failed ? 1 : 0;
}
