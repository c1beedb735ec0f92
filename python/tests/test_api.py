"""The raw layer, the choice of export, errors and warnings, and the calls
that a plain numpy model does not fit (specs, spectra, masks, in place)."""
import cv2
import numpy as np
import pytest

import pel
from pel import raw
from conftest import padded_view, random_image


def test_every_export_is_reachable():
    names = raw.names()
    assert len(names) > 2000 and not raw.ABI.missing
    for n in names:
        assert raw.function(n).cfunc is not None, n
    assert raw.pelStatusBadSize == -6 and raw.PeliSize(3, 4).height == 4


def test_raw_call_and_checks():
    a = np.arange(12, dtype=np.uint8).reshape(3, 4)
    b = np.zeros_like(a)
    assert raw.peliCopy_8u_C1R(a, 4, b, 4, (4, 3)) == 0 and (a == b).all()
    assert raw.peliCopy_8u_C1R(a, 4, None, 4, (4, 3)) == raw.pelStatusNullPointer
    assert raw.peliSet_8u_C3R((1, 2, 3), b, 4, raw.PeliSize(1, 3)) == 0
    assert b[:, :3].tolist() == [[1, 2, 3]] * 3
    with pytest.raises(TypeError, match="pDst.*Pel8u"):
        raw.peliCopy_8u_C1R(a, 4, b.astype(np.int16), 4, (4, 3))
    with pytest.raises(ValueError, match=r"\[0, 255\]"):
        raw.peliSet_8u_C1R(300, b, 4, (4, 3))
    with pytest.raises(ValueError, match="read-only"):
        b.flags.writeable = False
        raw.peliCopy_8u_C1R(a, 4, b, 4, (4, 3))
    with pytest.raises(TypeError, match="takes 5 arguments"):
        raw.peliCopy_8u_C1R(a, 4, b, 4)
    with pytest.raises(TypeError, match="integer"):
        raw.peliCopy_8u_C1R(a, 4.0, a.copy(), 4, (4, 3))
    v = pel.version()
    assert v["major"] >= 0 and v["name"]


@pytest.mark.parametrize("call, exc, match", [
    (lambda: pel.add(np.zeros((4, 4), np.int8), np.zeros((4, 4), np.int8)), TypeError, "uint8 C1"),
    (lambda: pel.add(np.zeros((4, 4), np.uint8), np.zeros((4, 5), np.uint8)), ValueError, "shape"),
    (lambda: pel.add(np.zeros((4, 4), np.uint8), np.zeros((4, 4), np.uint16)), TypeError, "dtype uint8"),
    (lambda: pel.copy(np.zeros((4, 4, 2), np.uint8)), ValueError, "1 or 3 or 4 channels"),
    (lambda: pel.copy(np.zeros((4, 8), np.uint8)[:, ::2]), ValueError, "contiguous"),
    (lambda: pel.copy(np.zeros((4, 4), np.uint8), out=np.zeros((4, 4), np.uint8)[::-1]), ValueError, "positive step"),
    (lambda: pel.copy(np.zeros((4, 4), np.uint8), out=np.zeros((4, 4), np.int16)), TypeError, "dtype uint8"),
    (lambda: pel.copy(np.zeros((4, 4), np.uint8), out=np.broadcast_to(np.zeros(4, np.uint8), (4, 4))), ValueError, "read-only"),
    (lambda: pel.copy([[1, 2]]), TypeError, "numpy array"),
    (lambda: pel.add(np.zeros((4, 4), np.uint8), 256), ValueError, "outside the range"),
    (lambda: pel.add(np.zeros((4, 4), np.uint8), 1, scale=2 ** 40), ValueError, "C int range"),
    (lambda: pel.convert(np.zeros((2, 2), np.float64), np.int8), TypeError, "pairs"),
    (lambda: pel.mirror(np.zeros((2, 2), np.uint8), "up"), ValueError, "axis"),
    (lambda: pel.fft(np.zeros((6, 8), np.float32)), ValueError, "power of two"),
])
def test_bad_arguments_raise_before_the_call(call, exc, match):
    with pytest.raises(exc, match=match):
        call()


def test_statuses():
    dst = np.full((3, 3), 9, np.uint8)
    with pytest.raises(pel.Error) as e:
        pel.copy(np.zeros((0, 3), np.uint8), out=np.zeros((0, 3), np.uint8))
    assert e.value.status == -6 and e.value.name == "pelStatusBadSize"
    with pytest.raises(pel.Error, match="pelStatusDivisionByZero"):
        pel.div(dst, 0, out=dst)
    assert (dst == 9).all()  # nothing written
    a = np.array([[7, 0, 8]], np.uint8)
    with pytest.warns(pel.PelWarning, match="pelStatusDivByZeroWarning"):
        q = pel.div(a, np.array([[0, 0, 2]], np.uint8))
    assert q.tolist() == [[255, 0, 4]]


@pytest.mark.parametrize("dtype", [np.uint8, np.int16, np.float32])
def test_in_place_and_out(dtype, rng):
    a, b = (random_image(rng, (5, 9), dtype, 3) for _ in range(2))
    want = pel.sub(a, b)
    x = a.copy()
    assert pel.sub(x, b, out=x) is x and (x == want).all()
    out = np.empty_like(a)
    assert pel.sub(a, b, out=out) is out and (out == want).all()
    x = a.copy()
    pel.mirror(x, "both", out=x)
    assert (x == a[::-1, ::-1]).all()


def test_masked_copy_and_set(rng):
    src = random_image(rng, (6, 7), np.uint8, 3)
    mask = (rng.integers(0, 2, (6, 7)) * 200).astype(np.uint8)
    dst = np.zeros_like(src)
    pel.copy(src, out=dst, mask=mask)
    assert (dst == np.where(mask[..., None] > 0, src, 0)).all()
    pel.set(dst, (1, 2, 3), mask=mask)
    assert (dst[mask > 0] == [1, 2, 3]).all() and (dst[mask == 0] == 0).all()
    view = padded_view(np.zeros((4, 5), np.float32), rng)
    assert (pel.set(view, 2.5) == 2.5).all()


def test_extremes_counts_histogram(rng):
    a = random_image(rng, (13, 17), np.uint8)
    v, x, y = pel.min_index(a)
    assert v == a.min() and (y, x) == np.unravel_index(np.argmin(a), a.shape)
    assert pel.count_in_range(a, 10, 100) == ((a >= 10) & (a <= 100)).sum()
    np.testing.assert_array_equal(pel.histogram(a, 256, 0, 256), np.bincount(a.ravel(), minlength=256))
    b = random_image(rng, (13, 17), np.uint8)
    assert pel.norm_diff(a, b, "l1") == np.abs(a.astype(int) - b).sum()
    assert pel.norm_rel(a, b, "inf") == pytest.approx(np.abs(a.astype(int) - b).max() / b.max())


@pytest.mark.parametrize("dtype, c", [(np.uint8, 1), (np.uint8, 3), (np.uint16, 4), (np.float32, 1), (np.float32, 3)])
@pytest.mark.parametrize("dsize", [(13, 7), (40, 33)])
def test_resize_against_opencv_and_raw(dtype, c, dsize, rng):
    src = random_image(rng, (21, 26), dtype, c)
    if src.dtype.kind == "f":
        src = src / 100
    got = pel.resize(src, dsize)
    want = cv2.resize(src, dsize, interpolation=cv2.INTER_LINEAR)
    # Both are bilinear on pixel centres; their fixed-point steps differ.
    tol = {np.uint8: 1, np.uint16: 8, np.float32: 2e-4}[dtype]
    assert np.abs(got.astype(np.float64) - want).max() <= tol
    # The Pythonic call is the raw call sequence with the cached spec.
    r = pel.resizer(src.dtype, (26, 21), dsize)
    dst = np.zeros_like(got)
    buf = r.buffer(dsize, c)
    name = "peliResizeLinear_%s_C%dR" % ({np.uint8: "8u", np.uint16: "16u", np.float32: "32f"}[dtype], c)
    st = getattr(raw, name)(src, src.strides[0], dst, dst.strides[0], (0, 0), dsize,
                            raw.pelBorderReplicate, None, r.spec, buf)
    assert st == 0 and (dst == got).all()
    np.testing.assert_array_equal(pel.resize(padded_view(src, rng), dsize), got)


def test_fft_against_numpy(rng):
    x = rng.standard_normal((16, 32)).astype(np.float32)
    spec = pel.fft(x)
    np.testing.assert_allclose(pel.unpack(spec), np.fft.rfft2(x), atol=1e-3)
    np.testing.assert_allclose(pel.ifft(spec), x, atol=1e-5)
    y = rng.standard_normal((16, 32)).astype(np.float32)
    prod = pel.unpack(pel.mul_pack(spec, pel.fft(y)))
    np.testing.assert_allclose(prod, np.fft.rfft2(x) * np.fft.rfft2(y), rtol=1e-3, atol=1e-2)
