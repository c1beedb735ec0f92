"""Runs the tests on the package of this tree (or an installed one with
PEL_TEST_INSTALLED=1), with the library from PEL_LIB or build/release."""
import os
import sys

import numpy as np
import pytest

if not os.environ.get("PEL_TEST_INSTALLED"):
    sys.path.insert(0, os.path.join(os.path.dirname(__file__), ".."))

# Awkward shapes: one pixel, one row, one column, odd widths.
SHAPES = [(1, 1), (1, 7), (9, 1), (5, 33), (17, 31)]


def random_image(rng, shape, dtype, c=1):
    dtype = np.dtype(dtype)
    full = shape + ((c,) if c > 1 else ())
    if dtype.kind == "f":
        return rng.uniform(-100, 100, full).astype(dtype)
    info = np.iinfo(dtype)
    return rng.integers(info.min, info.max, full, dtype=dtype, endpoint=True)


def padded_view(img, rng):
    """The same pixels in a view with padded rows and an odd offset."""
    h, w = img.shape[:2]
    big = np.zeros((h + 2, w + 3) + img.shape[2:], img.dtype)
    view = big[1:1 + h, 1:1 + w]
    view[...] = img
    return view


@pytest.fixture
def rng():
    return np.random.default_rng(1234)
