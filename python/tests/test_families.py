"""Filters, lookup tables and warps against OpenCV or numpy models, one row
an operation: (name, call, model, dtypes, channel counts, tolerance)."""
import cv2
import numpy as np
import pytest

import pel
from conftest import padded_view, random_image

U8, U16, S16, F32, F64 = np.uint8, np.uint16, np.int16, np.float32, np.float64
REP, REF = cv2.BORDER_REPLICATE, cv2.BORDER_REFLECT_101
K5 = np.random.default_rng(5).standard_normal((5, 4)).astype(F32)
KI = np.array([[1, -2, 3], [0, 4, 1], [2, 1, -1]])


def anchor(w, h):
    return ((w - 1) // 2, (h - 1) // 2)


def correlate(a, k, divisor, mode="edge"):
    """The integer general filter: exact sums, divided, ties to even, saturated."""
    kh, kw = k.shape
    (ax, ay), h, w = anchor(kw, kh), a.shape[0], a.shape[1]
    p = np.pad(a.astype(np.int64), ((ay, kh - 1 - ay), (ax, kw - 1 - ax)), mode)
    s = sum(int(k[i, j]) * p[i:i + h, j:j + w] for i in range(kh) for j in range(kw))
    info = np.iinfo(a.dtype)
    return np.clip(np.rint(s / divisor), info.min, info.max).astype(a.dtype)


def step_lut(a, values, levels):
    k = np.searchsorted(levels, a, side="right") - 1
    inside = (a >= levels[0]) & (a < levels[-1])
    v = np.asarray(values)[np.clip(k, 0, len(values) - 1)]
    if a.dtype.kind != "f":  # the value saturates to the element type
        v = np.clip(v, np.iinfo(a.dtype).min, np.iinfo(a.dtype).max)
    return np.where(inside, v, a).astype(a.dtype)


def shifted(a, dx, dy, value):
    """a moved by (dx, dy) whole pixels, the uncovered pixels value."""
    out = np.full_like(a, value)
    h, w = a.shape[:2]
    out[max(dy, 0):h + min(dy, 0), max(dx, 0):w + min(dx, 0)] = \
        a[max(-dy, 0):h - max(dy, 0), max(-dx, 0):w - max(dx, 0)]
    return out


LEVELS = [-50, 3, 40, 41, 90, 200]
LVALS = [7, -3, 100, 55, 30, 12]
ROWS = [
    ("box", lambda a: pel.box_filter(a, (5, 3)), lambda a: cv2.blur(a, (5, 3), borderType=REP), (U8,), (1, 3, 4), 0),
    ("box_mirror", lambda a: pel.box_filter(a, 3, "mirror"), lambda a: cv2.blur(a, (3, 3), borderType=REF), (U8, F32), (1, 3), 1e-4),
    ("box_16", lambda a: pel.box_filter(a, (3, 5)), lambda a: cv2.blur(a, (3, 5), borderType=REP), (U16, S16), (1, 3), 1),
    ("median3", lambda a: pel.median_filter(a, 3), lambda a: cv2.medianBlur(a, 3), (U8, U16, F32), (1,), 0),
    ("median5", lambda a: pel.median_filter(a, 5), lambda a: cv2.medianBlur(a, 5), (U8,), (1, 3, 4), 0),
    ("min_even", lambda a: pel.min_filter(a, (4, 2)), lambda a: cv2.erode(a, np.ones((2, 4), U8), anchor=anchor(4, 2), borderType=REP), (U8, U16, S16, F32), (1, 3, 4), 0),
    ("max_mirror", lambda a: pel.max_filter(a, 3, "mirror"), lambda a: cv2.dilate(a, np.ones((3, 3), U8), borderType=REF), (U8, F32), (1, 3), 0),
    ("max_const", lambda a: pel.max_filter(a, 5, "constant", 9), lambda a: cv2.dilate(a, np.ones((5, 5), U8), borderType=cv2.BORDER_CONSTANT, borderValue=9), (U8,), (1,), 0),
    ("filter2d_f", lambda a: pel.filter2d(a, K5), lambda a: cv2.filter2D(a, -1, K5, anchor=anchor(4, 5), borderType=REP), (F32,), (1, 3, 4), 1e-3),
    ("filter2d_f_mirror", lambda a: pel.filter2d(a, K5, "mirror"), lambda a: cv2.filter2D(a, -1, K5, anchor=anchor(4, 5), borderType=REF), (F32,), (1,), 1e-3),
    ("filter2d_int", lambda a: pel.filter2d(a, KI, divisor=5), lambda a: correlate(a, KI, 5), (U8, S16), (1,), 0),
    ("filter2d_int_c", lambda a: pel.filter2d(a, KI, "constant", 3, divisor=4), lambda a: correlate(np.pad(a, 1, constant_values=3), KI, 4)[1:-1, 1:-1], (U8,), (1,), 0),
    ("erode3x3", pel.erode3x3, lambda a: cv2.erode(a, np.ones((3, 3), U8))[1:-1, 1:-1], (F64,), (1,), 0),
    ("dilate3x3", pel.dilate3x3, lambda a: cv2.dilate(a, np.ones((3, 3), U8))[1:-1, 1:-1], (F64,), (1,), 0),
    ("lut_table", lambda a: pel.lut(a, 255 - np.arange(256)), lambda a: 255 - a, (U8,), (1, 3, 4), 0),
    ("lut_step", lambda a: pel.lut(a, LVALS[:-1], LEVELS), lambda a: step_lut(a, LVALS[:-1], LEVELS), (U8, S16, U16, F32), (1, 3), 0),
    ("lut_linear", lambda a: pel.lut(a, LVALS, LEVELS, "linear"), lambda a: np.where((a >= -50) & (a < 200), np.clip(np.rint(np.interp(a, LEVELS, LVALS)), *(lambda i: (i.min, i.max))(np.iinfo(a.dtype))), a).astype(a.dtype), (U8, S16), (1, 4), 0),
    ("lut_linear_f", lambda a: pel.lut(a, LVALS, LEVELS, "linear"), lambda a: np.where((a >= -50) & (a < 200), np.interp(a, LEVELS, LVALS), a).astype(F32), (F32,), (1, 3), 1e-4),
    ("palette", lambda a: pel.palette(a, np.arange(256, dtype=U8)[::-1].copy()), lambda a: 255 - a, (U8,), (1, 3), 0),
    ("palette_32u", lambda a: pel.palette(a, np.arange(16, dtype=np.uint32) * 70000), lambda a: (a & 15).astype(np.uint32) * 70000, (U8, U16), (1,), 0),
    ("shift_linear", lambda a: pel.warp_affine(a, [[1, 0, 2], [0, 1, -1]], value=5), lambda a: shifted(a, 2, -1, 5), (U8, U16, S16, F32, F64), (1, 3, 4), 0),
    ("shift_cubic_inv", lambda a: pel.warp_affine(a, [[1, 0, 3], [0, 1, 1]], interpolation="cubic", inverse=True), lambda a: shifted(a, -3, -1, 0), (U8, F32), (1, 3), 0),
    ("shift_persp", lambda a: pel.warp_perspective(a, [[1, 0, -1], [0, 1, 2], [0, 0, 1]], interpolation="nearest", value=1), lambda a: shifted(a, -1, 2, 1), (U8, S16, F32), (1, 4), 0),
    ("rotate_linear", lambda a: pel.warp_affine(a, cv2.getRotationMatrix2D((7, 5), 23, 0.9)), lambda a: cv2.warpAffine(a, cv2.getRotationMatrix2D((7, 5), 23, 0.9), a.shape[1::-1], flags=cv2.INTER_LINEAR), (U8, F32), (1, 3), 1.5),
    ("persp_cubic", lambda a: pel.warp_perspective(a, [[0.9, 0.1, 1], [0, 1.1, -1], [1e-3, 2e-3, 1]], interpolation="cubic"), lambda a: cv2.warpPerspective(a, np.array([[0.9, 0.1, 1], [0, 1.1, -1], [1e-3, 2e-3, 1]]), a.shape[1::-1], flags=cv2.INTER_CUBIC), (U8,), (1,), 4),
]


def _cases():
    for name, call, model, dtypes, chans, tol in ROWS:
        for dt in dtypes:
            for c in chans:
                yield pytest.param(call, model, dt, c, tol, id="%s-%s-C%d" % (name, np.dtype(dt), c))


@pytest.mark.parametrize("call, model, dtype, c, tol", _cases())
def test_against_models(call, model, dtype, c, tol, rng):
    for shape in [(1, 1), (1, 7), (9, 1), (17, 31)] if tol == 0 else [(17, 31)]:
        if call in (pel.erode3x3, pel.dilate3x3):
            shape = (shape[0] + 2, shape[1] + 2)
        a = random_image(rng, shape, dtype, c)
        want = model(a)
        for src in (a, padded_view(a, rng)):  # strided views: the same result
            got = call(src)
            assert got.dtype == want.dtype and got.shape == want.shape
            if tol == 0:
                np.testing.assert_array_equal(got, want)
            else:
                # Both interpolate; positions and roundings differ in the last steps.
                diff = np.abs(got.astype(F64) - want)
                assert np.median(diff) <= tol and diff.max() <= (255 if dtype == U8 else 200)


def test_spec_calls_match_raw(rng):
    """The Pythonic calls are the raw call sequences with cached specs and buffers."""
    a = random_image(rng, (13, 21), U8, 3)
    w = pel.warper("Affine", U8, 3, (21, 13), (15, 11), [[0.8, 0.2, 1], [-0.1, 0.9, 2]], "cubic", border="replicate")
    dst = np.zeros((11, 15, 3), U8)
    st = pel.raw.peliWarpAffineCubic_8u_C3R(a, a.strides[0], dst, dst.strides[0], (0, 0), (15, 11), w.spec, w.buffer())
    assert st == 0
    np.testing.assert_array_equal(dst, pel.warp_affine(a, [[0.8, 0.2, 1], [-0.1, 0.9, 2]], (15, 11), "cubic", "replicate"))
    # A tile from the region the spec's tile reads, placed at its origin.
    x0, y0, x1, y1 = w.src_region((4, 3), (6, 5))
    tile = w.tile(a[y0:y1, x0:x1].copy(), (x0, y0), (4, 3), (6, 5))
    np.testing.assert_array_equal(tile, dst[3:8, 4:10])
    out = np.full((13, 21, 3), 77, U8)
    pel.warp_affine(a, [[1, 0, 30], [0, 1, 0]], border="transparent", out=out)
    assert (out == 77).all()  # every pixel maps outside: out is left as it was


@pytest.mark.parametrize("call, exc, match", [
    (lambda: pel.median_filter(np.zeros((5, 5), U8), 4), pel.Error, "pelStatusBadMaskSize"),
    (lambda: pel.median_filter(np.zeros((5, 5), U8), 3, "mirror"), ValueError, "replicate, constant"),
    (lambda: pel.box_filter(np.zeros((5, 5), U8), 3, border_in_memory=("up",)), ValueError, "sides"),
    (lambda: pel.min_filter(np.zeros((5, 5, 3), U8), 3, value=(1, 2, 3)), ValueError, "one border value"),
    (lambda: pel.filter2d(np.zeros((5, 5), U8), np.ones(3)), ValueError, "2-D"),
    (lambda: pel.filter2d(np.zeros((5, 5), U8), np.full((3, 3), 40000)), ValueError, "16-bit"),
    (lambda: pel.erode3x3(np.zeros((5, 5), F32)), TypeError, "float64"),
    (lambda: pel.lut(np.zeros((5, 5), U8), [1, 2], [0, 10, 20], "linear"), ValueError, "3 values"),
    (lambda: pel.lut(np.zeros((5, 5), U8), [1, 2, 3]), ValueError, "levels"),
    (lambda: pel.lut(np.zeros((5, 5), np.int8), [1], [0, 1]), TypeError, "peliLUT"),
    (lambda: pel.palette(np.zeros((5, 5), U8), np.zeros(6, U8)), ValueError, "power of two"),
    (lambda: pel.palette(np.zeros((5, 5, 3), U8), np.zeros(256, np.uint32)), TypeError, "8u32u C1"),
    (lambda: pel.warp_affine(np.zeros((5, 5), U8), np.eye(3)), ValueError, "2 x 3"),
    (lambda: pel.warp_affine(np.zeros((5, 5), U8), np.eye(2, 3), border="mirror"), ValueError, "transparent"),
    (lambda: pel.warp_affine(np.zeros((5, 5), U8), [[1, 2, 0], [2, 4, 0]]), pel.Error, "-56"),
])
def test_bad_arguments(call, exc, match):
    with pytest.raises(exc, match=match):
        call()
