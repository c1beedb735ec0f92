"""Each Pythonic call against an independent numpy model, over element types,
channel counts, awkward shapes and padded views. One row an operation:
(name, call, model, dtypes, channel counts, operand count)."""
import numpy as np
import pytest

import pel
from conftest import SHAPES, padded_view, random_image

U8, U16, S16, S32, F32 = np.uint8, np.uint16, np.int16, np.int32, np.float32


def sat(x, dtype):
    """Round half to even, then saturate: the integer results' rule."""
    if np.dtype(dtype).kind == "f":
        return x.astype(dtype)
    info = np.iinfo(dtype)
    return np.clip(np.rint(x), info.min, info.max).astype(dtype)


def wide(a):
    return a.astype(np.float64)


ROWS = [
    ("copy", lambda a: pel.copy(a), lambda a: a, (U8, U16, S16, S32, F32), (1, 3, 4), 1),
    ("add", lambda a, b: pel.add(a, b), lambda a, b: sat(wide(a) + b, a.dtype), (U8, U16, S16, F32), (1, 3, 4), 2),
    ("add_scaled", lambda a, b: pel.add(a, b, scale=1), lambda a, b: sat((wide(a) + b) / 2, a.dtype), (U8, U16, S16), (1, 3), 2),
    ("sub", lambda a, b: pel.sub(a, b), lambda a, b: sat(wide(a) - b, a.dtype), (U8, S16, F32), (1, 3, 4), 2),
    ("mul", lambda a, b: pel.mul(a, b, scale=3), lambda a, b: sat(wide(a) * b / 8, a.dtype), (U8, U16, S16), (1, 4), 2),
    ("mul_f", lambda a, b: pel.mul(a, b), lambda a, b: a * b, (F32,), (1, 3), 2),
    ("add_const", lambda a: pel.add(a, 7), lambda a: sat(wide(a) + 7, a.dtype), (U8, U16, S16, F32), (1, 3, 4), 1),
    ("sub_const3", lambda a: pel.sub(a, (1, 2, 3)), lambda a: sat(wide(a) - [1, 2, 3], a.dtype), (U8, S16), (3,), 1),
    ("and", lambda a, b: pel.bitwise_and(a, b), np.bitwise_and, (U8, U16, S32), (1, 3, 4), 2),
    ("xor_const", lambda a: pel.bitwise_xor(a, 0x5A), lambda a: a ^ a.dtype.type(0x5A), (U8, U16), (1, 3), 1),
    ("not", lambda a: pel.bitwise_not(a), np.invert, (U8,), (1, 3, 4), 1),
    ("rshift", lambda a: pel.rshift(a, 3), lambda a: a >> 3, (U8, U16, S16, S32), (1, 3), 1),
    ("minimum", lambda a, b: pel.minimum(a, b), np.minimum, (U8, S16, F32), (1, 3), 2),
    ("abs", lambda a: pel.abs(np.maximum(a, -32767).astype(S16)), lambda a: np.abs(np.maximum(a, -32767)).astype(S16), (S16,), (1,), 1),
    ("sqrt", lambda a: pel.sqrt(np.abs(a)), lambda a: np.sqrt(np.abs(a)), (F32,), (1,), 1),
    ("to_f32", lambda a: pel.convert(a, F32), lambda a: a.astype(F32), (U8, S16, U16), (1, 3, 4), 1),
    ("to_u8", lambda a: pel.convert(a, U8), lambda a: sat(wide(a), U8), (F32, S16, U16), (1, 3), 1),
    ("to_s16_zero", lambda a: pel.convert(a, S16, round="zero"), lambda a: sat(np.trunc(wide(a)), S16), (F32,), (1,), 1),
    ("thr_lt", lambda a: pel.threshold(a, 50, "<"), lambda a: np.maximum(a, a.dtype.type(50)), (U8, S16, U16, F32), (1, 3), 1),
    ("thr_gt_val", lambda a: pel.threshold(a, 50, ">", 9), lambda a: np.where(a > 50, a.dtype.type(9), a), (U8, F32), (1, 3), 1),
    ("cmp_lt", lambda a, b: pel.compare(a, b, "<"), lambda a, b: np.where(a < b, 255, 0).astype(U8), (U8, S16, F32), (1,), 2),
    ("cmp_ge_const", lambda a: pel.compare(a, 10, ">="), lambda a: np.where(a >= 10, 255, 0).astype(U8), (U8, F32), (1,), 1),
    ("flipud", lambda a: pel.mirror(a, "horizontal"), np.flipud, (U8, S16, F32), (1, 3, 4), 1),
    ("fliplr", lambda a: pel.mirror(a, "vertical"), np.fliplr, (U8, U16, S32), (1, 3, 4), 1),
    ("transpose", lambda a: pel.transpose(a), lambda a: np.ascontiguousarray(np.swapaxes(a, 0, 1)), (U8, S16, F32), (1, 3, 4), 1),
    ("swap", lambda a: pel.swap_channels(a, (2, 1, 0)), lambda a: a[..., ::-1], (U8, U16, F32), (3,), 1),
    ("split", lambda a: pel.split(a), lambda a: np.moveaxis(a, 2, 0), (U8, S16, F32), (3, 4), 1),
    ("merge", lambda a: pel.merge(pel.split(a)), lambda a: a, (U8, F32), (3, 4), 1),
    ("border_rep", lambda a: pel.copy_border(a, 2, 1, 3, 2), lambda a: _pad(a, (2, 1, 3, 2), "edge"), (U8, S16, F32), (1, 3), 1),
    ("border_mirror", lambda a: pel.copy_border(a, 1, 1, 1, 1, "mirror"), lambda a: _pad(a, (1, 1, 1, 1), "reflect"), (U8, F32), (1, 3), 1),
    ("border_const", lambda a: pel.copy_border(a, 1, 2, 0, 3, "constant", 7), lambda a: _pad(a, (1, 2, 0, 3), "constant", constant_values=7), (U8, S16), (1, 4), 1),
    ("sum", pel.sum, lambda a: _per_channel(a, lambda x: x.astype(np.float64).sum()), (U8, U16, S16), (1, 3, 4), 1),
    ("mean", pel.mean, lambda a: _per_channel(a, lambda x: x.astype(np.float64).mean()), (U8, S16), (1, 3), 1),
    ("norm_inf", lambda a: pel.norm(a, "inf"), lambda a: _per_channel(a, lambda x: np.abs(x.astype(np.float64)).max()), (U8, S16, F32), (1, 3), 1),
    ("norm_l1", lambda a: pel.norm(a, "l1"), lambda a: _per_channel(a, lambda x: np.abs(x.astype(np.float64)).sum()), (U8, U16, S16), (1, 3), 1),
    ("min_max", pel.min_max, lambda a: (_per_channel(a, np.min), _per_channel(a, np.max)), (U8, U16, S16, F32), (1, 3, 4), 1),
    ("dot", pel.dot, lambda a, b: _per_channel(a * 0 + wide(a) * b, np.sum), (U8, S16), (1, 3), 2),
]


def _pad(a, tblr, mode, **kw):
    t, b, l, r = tblr
    return np.pad(a, ((t, b), (l, r)) + ((0, 0),) * (a.ndim - 2), mode, **kw)


def _per_channel(a, f):
    if a.ndim == 2:
        return f(a).item()
    return tuple(f(a[..., i]).item() for i in range(a.shape[2]))


def _cases():
    for name, call, model, dtypes, chans, n in ROWS:
        for dt in dtypes:
            for c in chans:
                yield pytest.param(call, model, dt, c, n, id="%s-%s-C%d" % (name, np.dtype(dt), c))


def _close(got, want):
    if isinstance(want, tuple):
        assert len(got) == len(want)
        for g, w in zip(got, want):
            _close(g, w)
    elif isinstance(want, np.ndarray):
        assert got.dtype == want.dtype and got.shape == want.shape
        np.testing.assert_array_equal(got, want)
    else:
        assert got == pytest.approx(want, rel=1e-12, abs=1e-9)


@pytest.mark.parametrize("call, model, dtype, c, n", _cases())
def test_against_numpy(call, model, dtype, c, n, rng):
    for shape in SHAPES:
        args = [random_image(rng, shape, dtype, c) for _ in range(n)]
        want = model(*args)
        _close(call(*args), want)
        # Strided views give the same result without a copy.
        _close(call(*[padded_view(a, rng) for a in args]), want)
