"""Chunked results equal one whole-image call, on chunk sizes that do not
divide the image; and the same graph on a two-worker LocalCluster."""
import dask
import dask.array as da
import numpy as np
import pytest

import pel
import pel.dask
from conftest import random_image


def box(k):
    """A k x k sum (float32) out of pel calls: a filter with reach k // 2."""
    def fn(padded):
        h, w = padded.shape[0] - k + 1, padded.shape[1] - k + 1
        acc = np.zeros((h, w) + padded.shape[2:], np.float32)
        for dy in range(k):
            for dx in range(k):
                pel.add(acc, padded[dy:dy + h, dx:dx + w], out=acc)
        return acc
    return fn


box3, box5 = box(3), box(5)


@pytest.mark.parametrize("c", [1, 3])
@pytest.mark.parametrize("border", ["replicate", "mirror", "constant"])
@pytest.mark.parametrize("fn, reach", [(box3, 1), (box5, 2)])
def test_neighbourhood_equals_whole(fn, reach, border, c, rng):
    img = random_image(rng, (37, 53), np.float32, c)
    x = da.from_array(img, chunks=(10, 16, c) if c > 1 else (10, 16))
    got = pel.dask.neighbourhood(x, fn, reach, border).compute(scheduler="threads")
    np.testing.assert_array_equal(got, pel.dask.whole(img, fn, reach, border))


@pytest.mark.parametrize("dtype, c", [(np.uint8, 1), (np.uint8, 3), (np.int16, 4), (np.float32, 1)])
@pytest.mark.parametrize("interp, border, dsize, chunks", [
    ("linear", "replicate", (61, 29), (7, 13)), ("linear", "mirror", (17, 90), (20, 5)),
    ("nearest", None, (61, 29), (9, 11))])
def test_resize_tiles_equal_whole(dtype, c, interp, border, dsize, chunks, rng):
    img = random_image(rng, (41, 35), dtype, c)
    x = da.from_array(img, chunks=(8, 9) + ((c,) if c > 1 else ()))
    got = pel.dask.resize(x, dsize, interp, border, chunks=chunks).compute(scheduler="threads")
    np.testing.assert_array_equal(got, pel.resize(img, dsize, interp, border))


K = np.arange(20, dtype=np.float32).reshape(4, 5) / 50 - 0.2


@pytest.mark.parametrize("fn, args, dtypes", [
    (pel.filter2d, (K,), (np.float32,)), (pel.filter2d, (np.array([[1, 2, 1], [0, 3, -1]]),), (np.uint8,)),
    (pel.box_filter, ((5, 3),), (np.uint8, np.float32)), (pel.median_filter, (5,), (np.uint8,)),
    (pel.min_filter, ((4, 6),), (np.int16,)), (pel.max_filter, (3,), (np.uint16,))])
@pytest.mark.parametrize("border", ["replicate", "mirror", "constant"])
@pytest.mark.parametrize("c", [1, 3])
def test_filters_equal_whole(fn, args, dtypes, border, c, rng):
    if fn is pel.median_filter and border == "mirror":
        pytest.skip("not a form of this filter")
    for dt in dtypes:
        img = random_image(rng, (43, 51), dt, c)
        x = da.from_array(img, chunks=(10, 7) + ((c,) if c > 1 else ()))
        got = pel.dask.filter(fn, x, *args, border=border, value=3).compute(scheduler="threads")
        np.testing.assert_array_equal(got, fn(img, *args, border=border, value=3))


M = [[0.9, 0.25, -3], [-0.2, 1.1, 4]]
P = [[0.9, 0.1, 3], [-0.1, 0.95, 2], [4e-3, -3e-3, 1]]


@pytest.mark.parametrize("dtype, c", [(np.uint8, 1), (np.uint8, 3), (np.uint16, 4), (np.float32, 1)])
@pytest.mark.parametrize("kind, m, interp, border, inverse", [
    ("affine", M, "linear", "constant", False), ("affine", M, "cubic", "replicate", True),
    ("affine", M, "nearest", "transparent", False), ("perspective", P, "linear", "replicate", False),
    ("perspective", P, "cubic", "constant", True)])
def test_warp_tiles_equal_whole(dtype, c, kind, m, interp, border, inverse, rng):
    img = random_image(rng, (41, 35), dtype, c)
    x = da.from_array(img, chunks=(8, 9) + ((c,) if c > 1 else ()))
    got = getattr(pel.dask, "warp_" + kind)(x, m, (47, 29), interp, border, 7, inverse,
                                              chunks=(7, 13)).compute(scheduler="threads")
    want = getattr(pel, "warp_" + kind)(img, m, (47, 29), interp, border, 7, inverse)
    np.testing.assert_array_equal(got, want)


def test_pointwise(rng):
    a, b = (random_image(rng, (30, 41), np.uint8, 3) for _ in range(2))
    x, y = (da.from_array(v, chunks=(7, 9, 3)) for v in (a, b))
    np.testing.assert_array_equal(pel.dask.pointwise(pel.add, x, y, scale=1).compute(),
                                  pel.add(a, b, scale=1))
    np.testing.assert_array_equal(pel.dask.pointwise(pel.compare, x, 100, op=">").compute(),
                                  pel.compare(a, 100, ">"))


@pytest.mark.filterwarnings("ignore::DeprecationWarning")  # tornado, inside distributed
def test_local_cluster_of_two_workers(rng):
    distributed = pytest.importorskip("distributed")
    img = random_image(rng, (300, 410), np.uint8, 3)
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True,
                                  dashboard_address=None) as cluster, \
            distributed.Client(cluster) as client:
        x = da.from_array(img, chunks=(64, 100, 3))
        small = pel.dask.resize(x, (205, 150), chunks=(40, 70))
        f = pel.dask.neighbourhood(x.astype(np.float32), box3, 1)
        g = pel.dask.filter(pel.filter2d, x, K)
        w = pel.dask.warp_affine(x, M, (320, 290), chunks=(50, 90))
        got_small, got_f, got_g, got_w = client.compute([small, f, g, w], sync=True)
    np.testing.assert_array_equal(got_g, pel.filter2d(img, K))
    np.testing.assert_array_equal(got_w, pel.warp_affine(img, M, (320, 290)))
    np.testing.assert_array_equal(got_small, pel.resize(img, (205, 150)))
    np.testing.assert_array_equal(got_f, pel.dask.whole(img.astype(np.float32), box3, 1))
