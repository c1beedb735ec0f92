"""Speed of the Python layer (not a test: numbers only).

    PEL_LIB=build/release/src /usr/bin/python3 python/bench.py [--dask]

1. Per-call overhead on 64 x 64: the Pythonic call against the same export
   called through ctypes with every argument prepared beforehand (which is
   the C time plus ctypes' own dispatch).
2. 1920 x 1080: the Pythonic call against that prepared C call, and against
   OpenCV's Python binding for the same operation.
3. --dask: pel.filter2d with a 5 x 5 kernel through pel.dask.filter on an
   8192 x 8192 float32 image, on a LocalCluster of one and of two workers.
Names after the options pick the cases whose name contains one of them.
Times (1, 2) are the least of 15 rounds that run every contender in turn,
in thread CPU time; (3) is wall time.
"""
import os
import sys
import time
import timeit

import numpy as np

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import cv2  # noqa: E402

cv2.setNumThreads(1)  # pel is single-threaded; so is the comparison
import pel  # noqa: E402
from pel import _core, raw  # noqa: E402


def prepared(name, *arrays_and_args):
    """The export called with every argument converted beforehand."""
    f = raw.function(name).cfunc
    args = [a.ctypes.data if isinstance(a, np.ndarray) else a for a in arrays_and_args]
    keep = arrays_and_args  # the arrays must outlive the addresses taken from them
    return lambda: f(*args) if keep else None


def cases(h, w):
    rng = np.random.default_rng(1)
    a8 = rng.integers(0, 256, (h, w), np.uint8)
    b8 = rng.integers(0, 256, (h, w), np.uint8)
    c8 = rng.integers(0, 256, (h, w, 3), np.uint8)
    f32 = rng.random((h, w), np.float32)
    o8, o83, of = np.empty_like(a8), np.empty_like(c8), np.empty_like(f32)
    S = _core.Size(w, h)
    sw, sw3, sf = a8.strides[0], c8.strides[0], f32.strides[0]
    small = (w // 2, h // 2)
    r = pel.resizer(np.uint8, (w, h), small)
    os8 = np.empty((h // 2, w // 2, 3), np.uint8)
    buf = r.buffer(small, 3)
    return [
        ("copy 8u C1", lambda: pel.copy(a8, out=o8),
         prepared("peliCopy_8u_C1R", a8, sw, o8, sw, S), lambda: np.copyto(o8, a8)),
        ("add 8u C1", lambda: pel.add(a8, b8, out=o8),
         prepared("peliAdd_8u_C1RSfs", a8, sw, b8, sw, o8, sw, S, 0), lambda: cv2.add(a8, b8, dst=o8)),
        ("add 32f C1", lambda: pel.add(f32, f32, out=of),
         prepared("peliAdd_32f_C1R", f32, sf, f32, sf, of, sf, S), lambda: cv2.add(f32, f32, dst=of)),
        ("and 8u C3", lambda: pel.bitwise_and(c8, c8, out=o83),
         prepared("peliAnd_8u_C3R", c8, sw3, c8, sw3, o83, sw3, S), lambda: cv2.bitwise_and(c8, c8, dst=o83)),
        ("threshold> 8u C1", lambda: pel.threshold(a8, 100, ">", out=o8),
         prepared("peliThreshold_GT_8u_C1R", a8, sw, o8, sw, S, 100),
         lambda: cv2.threshold(a8, 100, 255, cv2.THRESH_TRUNC, dst=o8)),
        ("convert 8u->32f", lambda: pel.convert(a8, np.float32, out=of),
         prepared("peliConvert_8u32f_C1R", a8, sw, of, sf, S), lambda: a8.astype(np.float32)),
        ("sum 8u C1", lambda: pel.sum(a8),
         prepared("peliSum_8u_C1R", a8, sw, S, np.zeros(1)), lambda: cv2.sumElems(a8)),
        ("min_max 32f", lambda: pel.min_max(f32),
         prepared("peliMinMax_32f_C1R", f32, sf, S, np.zeros(1, np.float32), np.zeros(1, np.float32)),
         lambda: cv2.minMaxLoc(f32)),
        ("resize 8u C3 1/2", lambda: pel.resize(c8, small, out=os8),
         prepared("peliResizeLinear_8u_C3R", c8, sw3, os8, os8.strides[0], _core.Point(0, 0),
                  _core.Size(*small), 1, None, r.spec, buf),
         lambda: cv2.resize(c8, small, dst=os8, interpolation=cv2.INTER_LINEAR)),
    ] + filter_cases(h, w, a8, c8, f32, o8, o83, of, S)


def _rank_buffer(stem, w, h, k, dt, c):
    n = np.zeros(1, np.int32)
    getattr(raw, "peliFilter%sBorderGetBufferSize" % stem)((w, h), (k, k), dt, c, n)
    return np.empty(int(n[0]), np.uint8)


def filter_cases(h, w, a8, c8, f32, o8, o83, of, S):
    """Filters, lookup tables and warps, beside the OpenCV call of the same
    semantics (replicate borders, the same anchor)."""
    sw, sw3, sf = a8.strides[0], c8.strides[0], f32.strides[0]
    t8, t32 = raw.pelType8u, raw.pelType32f
    k5 = (np.arange(25, dtype=np.float32).reshape(5, 5) - 12) / 100
    spec = pel._filter.kernel_spec(k5, np.float32, 1)
    fbuf = spec.buffer((h, w)).copy()
    zero8, zerof = np.zeros(3, np.uint8), np.zeros(1, np.float32)
    table = (255 - np.arange(256)).astype(np.uint8)
    levels, values = np.arange(257, dtype=np.int32), (255 - np.arange(257)).astype(np.int32)
    m = cv2.getRotationMatrix2D((w / 2, h / 2), 5, 0.95)
    wp = pel.warper("Affine", np.uint8, 1, (w, h), (w, h), m, "linear")
    P = np.vstack([m, [2e-5, 1e-5, 1]])
    pp = pel.warper("Perspective", np.uint8, 1, (w, h), (w, h), P, "linear")
    return [
        ("box 5x5 8u C1", lambda: pel.box_filter(a8, 5, out=o8),
         prepared("peliFilterBoxBorder_8u_C1R", a8, sw, o8, sw, S, _core.Size(5, 5), 1, zero8,
                  _rank_buffer("Box", w, h, 5, t8, 1)),
         lambda: cv2.blur(a8, (5, 5), dst=o8, borderType=cv2.BORDER_REPLICATE)),
        ("median 3x3 8u C1", lambda: pel.median_filter(a8, 3, out=o8),
         prepared("peliFilterMedianBorder_8u_C1R", a8, sw, o8, sw, S, _core.Size(3, 3), 1, 0,
                  _rank_buffer("Median", w, h, 3, t8, 1)),
         lambda: cv2.medianBlur(a8, 3, dst=o8)),
        ("max 3x3 8u C3", lambda: pel.max_filter(c8, 3, out=o83),
         prepared("peliFilterMaxBorder_8u_C3R", c8, sw3, o83, sw3, S, _core.Size(3, 3), 1, 0,
                  _rank_buffer("Max", w, h, 3, t8, 3)),
         lambda: cv2.dilate(c8, np.ones((3, 3), np.uint8), dst=o83, borderType=cv2.BORDER_REPLICATE)),
        ("filter2d 5x5 32f", lambda: pel.filter2d(f32, k5, out=of),
         prepared("peliFilterBorder_32f_C1R", f32, sf, of, sf, S, 1, zerof, spec.spec, fbuf),
         lambda: cv2.filter2D(f32, -1, k5, dst=of, borderType=cv2.BORDER_REPLICATE)),
        ("lut 8u C1", lambda: pel.lut(a8, values[:256], levels, out=o8),
         prepared("peliLUT_8u_C1R", a8, sw, o8, sw, S, values, levels, 257),
         lambda: cv2.LUT(a8, table, dst=o8)),
        ("warp aff lin 8u C1", lambda: pel.warp_affine(a8, m, out=o8),
         prepared("peliWarpAffineLinear_8u_C1R", a8, sw, o8, sw, _core.Point(0, 0), S, wp.spec,
                  wp.buffer()),
         lambda: cv2.warpAffine(a8, m, (w, h), dst=o8, flags=cv2.INTER_LINEAR)),
        ("warp persp lin 8u", lambda: pel.warp_perspective(a8, P, out=o8),
         prepared("peliWarpPerspectiveLinear_8u_C1R", a8, sw, o8, sw, _core.Point(0, 0), S,
                  pp.spec, pp.buffer()),
         lambda: cv2.warpPerspective(a8, P, (w, h), dst=o8, flags=cv2.INTER_LINEAR)),
    ]


def interleaved(fns, rounds=15, seconds=0.01):
    """The least time a call of each function, in thread CPU time, over
    rounds that run every function once in turn: a burst of load on the
    machine then hits all of them alike."""
    timers = [timeit.Timer(f, timer=time.thread_time) for f in fns]
    n = 1
    while timers[0].timeit(number=n) < seconds:
        n *= 2
    best_t = [1e9] * len(fns)
    for _ in range(rounds):
        for i, t in enumerate(timers):
            best_t[i] = min(best_t[i], t.timeit(number=n) / n)
    return best_t


def calls(only=None):
    print("%-18s %10s %10s %9s | %10s %10s %8s %8s" % (
        "operation", "64x64 py", "64x64 C", "overhead", "1080p py", "1080p C", "C/py", "cv2/py"))
    small, large = cases(64, 64), cases(1080, 1920)
    for (name, py, c, _), (_, py2, c2, cv) in zip(small, large):
        if only and not any(o in name for o in only):
            continue
        tp, tc = interleaved([py, c])
        tp2, tc2, tcv = interleaved([py2, c2, cv])
        print("%-18s %8.2fus %8.2fus %7.2fus | %8.1fus %8.1fus %8.3f %8.2f" % (
            name, tp * 1e6, tc * 1e6, (tp - tc) * 1e6, tp2 * 1e6, tc2 * 1e6, tc2 / tp2, tcv / tp2))


def scale_out():
    """pel.filter2d with a 5 x 5 float32 kernel on an 8192 x 8192 float32
    image in chunks of 2048 x 2048, on LocalClusters of one and two worker
    processes (one thread each). The image is made and kept on the workers
    first, and each run sums the result there (a number comes back), so the
    time is the filter, the overlaps, a sum and the scheduling, not
    transfers to the client."""
    import dask.array as da
    import distributed
    import pel.dask
    k5 = (np.arange(25, dtype=np.float32).reshape(5, 5) - 12) / 100
    times = {}
    for n in (1, 2):
        with distributed.LocalCluster(n_workers=n, threads_per_worker=1, processes=True,
                                      dashboard_address=None) as cl, distributed.Client(cl) as cli:
            x = da.random.RandomState(1).random_sample((8192, 8192), chunks=(2048, 2048))
            x = x.astype(np.float32).persist()
            distributed.wait(x)
            t = []
            for i in range(4):
                # A new kernel each run: no result of an earlier run is reused.
                # The sum brings one number back; the filtered chunks stay and go.
                y = pel.dask.filter(pel.filter2d, x, k5 * np.float32(1 + i / 64)).sum()
                t0 = time.perf_counter()
                cli.compute(y).result()
                t.append(time.perf_counter() - t0)
            times[n] = sorted(t[1:])[1]  # the first warms the workers
            print("%d worker(s): %.2f s (median of 3 after one warm-up: %s)"
                  % (n, times[n], ", ".join("%.2f" % v for v in t[1:])))
    print("speed-up 2 workers / 1: %.2fx" % (times[1] / times[2]))


if __name__ == "__main__":
    calls([a for a in sys.argv[1:] if not a.startswith("--")])
    if "--dask" in sys.argv:
        scale_out()
