/* Built against an installed pel, once through its CMake package and once
 * through pkg-config: the header is found, both libraries link, and calls
 * work. Exit 0 on success. */
#include <stdio.h>
#include <string.h>

#include <peli.h>

int main(void) {
    const PelLibraryVersion* v = peliGetLibVersion();
    if (v == NULL || v->Name == NULL || v->Version == NULL) {
        fprintf(stderr, "consumer: no version record\n");
        return 1;
    }
    printf("consumer: %s %s\n", v->Name, v->Version);

    /* A 5x3 region out of padded rows; the bytes around it must stay. */
    enum { W = 5, H = 3, SRC_STEP = 8, DST_STEP = 11 };
    Pel8u src[H * SRC_STEP];
    Pel8u dst[H * DST_STEP];
    for (int i = 0; i < H * SRC_STEP; ++i) src[i] = (Pel8u)(i * 7 + 1);
    memset(dst, 0xEE, sizeof dst);
    const PeliSize roi = {W, H};
    const PelStatus status = peliCopy_8u_C1R(src, SRC_STEP, dst, DST_STEP, roi);
    if (status != pelStatusOk) {
        fprintf(stderr, "consumer: peliCopy_8u_C1R returned %d\n", status);
        return 1;
    }
    for (int y = 0; y < H; ++y) {
        for (int x = 0; x < DST_STEP; ++x) {
            const Pel8u want = x < W ? src[y * SRC_STEP + x] : 0xEE;
            if (dst[y * DST_STEP + x] != want) {
                fprintf(stderr, "consumer: byte (%d,%d) is %d, want %d\n", x, y, dst[y * DST_STEP + x], want);
                return 1;
            }
        }
    }
    printf("consumer: copy ok\n");
    return 0;
}
