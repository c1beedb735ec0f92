"""Sums, means, norms, extremes, counts and histograms.

Results come back as Python numbers for one channel and as tuples with one
entry a channel otherwise.
"""
import builtins

import numpy as np

from ._core import ABI, bind, channels, pick, same, values

_NORMS = {"inf": "Inf", "l1": "L1", "l2": "L2"}
_HINT = {"fast": 0, "accurate": 2}


def _result(arr, c):
    return arr[0].item() if c == 1 else tuple(x.item() for x in arr)


def _reduce(stem, what, src, **kw):
    c = channels(src, "src")
    name = pick(stem, src)
    res = np.zeros(c, np.float64)
    kw[_first_out(name)] = res
    bind(name)(pSrc=src, **kw)
    return _result(res, c)


_plans = {}


def _plan(stem, src, accurate):
    """The bound export and its keyword arguments for one (stem, dtype,
    channels, hint): a repeated call checks the image and calls."""
    key = (stem, src.dtype, src.shape[2] if src.ndim == 3 else 1, accurate)
    p = _plans.get(key)
    if p is None:
        name = pick(stem, src)
        p = _plans[key] = (bind(name), _first_out(name), _hint(stem, src, accurate))
    return p


def _sum_like(stem, src, accurate):
    c = channels(src, "src")
    f, out, kw = _plan(stem, src, accurate)
    res = np.empty(c, np.float64)
    f(pSrc=src, **{out: res}, **kw)
    return res[0].item() if c == 1 else tuple(x.item() for x in res)


def sum(src, accurate=False):
    """The sum of each channel."""
    return _sum_like("peliSum", src, accurate)


def mean(src, accurate=False):
    """The mean of each channel."""
    return _sum_like("peliMean", src, accurate)


_hinted = {}


def _hint(stem, src, accurate):
    name = pick(stem, src)
    has = _hinted.get(name)
    if has is None:
        has = _hinted[name] = any(p.name == "hint" for p in ABI.prototype(name).params)
    return {"hint": _HINT["accurate" if accurate else "fast"]} if has else {}


def _norm_stem(kind, base):
    k = _NORMS.get(str(kind).lower())
    if k is None:
        raise ValueError("kind: expected 'inf', 'l1' or 'l2', got %r" % (kind,))
    return "%s_%s" % (base, k)


def norm(src, kind="l2", accurate=False):
    """The inf, L1 or L2 norm of each channel."""
    stem = _norm_stem(kind, "peliNorm")
    return _reduce(stem, "norm", src, **_hint(stem, src, accurate))


def _two(stem, a, b, accurate):
    c = channels(a, "src1")
    same(a, b)
    name = pick(stem, a)
    res = np.zeros(c, np.float64)
    out = [p.name for p in ABI.prototype(name).params if p.pointer and not p.const][0]
    kw = {out: res}
    kw.update(_hint(stem, a, accurate))
    bind(name)(pSrc1=a, pSrc2=b, **kw)
    return _result(res, c)


def norm_diff(a, b, kind="l2", accurate=False):
    """The norm of a - b, each channel."""
    return _two(_norm_stem(kind, "peliNormDiff"), a, b, accurate)


def norm_rel(a, b, kind="l2", accurate=False):
    """norm(a - b) / norm(b), each channel (a warning and inf or NaN where
    norm(b) is 0)."""
    return _two(_norm_stem(kind, "peliNormRel"), a, b, accurate)


def dot(a, b):
    """The dot product of each channel, in double precision."""
    c = channels(a, "src1")
    same(a, b)
    name = [n for (t, l), n in _dot_forms().items() if t == a.dtype and l == "C%d" % c]
    if not name:
        raise TypeError("dot: no form for dtype %s with %d channels" % (a.dtype, c))
    res = np.zeros(c, np.float64)
    bind(name[0])(pSrc1=a, pSrc2=b, **{_first_out(name[0]): res})
    return _result(res, c)


def _dot_forms():
    from ._core import DTYPES, forms
    return {(DTYPES[t[:-3]], l): n for (t, l), n in forms("peliDotProd").items()
            if t.endswith("64f") and t[:-3] in DTYPES}


_outs = {}


def _out_params(name):
    """The parameters an export writes its results to, in order."""
    got = _outs.get(name)
    if got is None:
        got = _outs[name] = [p for p in ABI.prototype(name).params if p.pointer and not p.const
                             and not p.name.startswith("pSrc")]
    return got


def _first_out(name):
    return _out_params(name)[0].name


def _extreme(stem, src):
    c = channels(src, "src")
    name = pick(stem, src)
    outs = _out_params(name)
    arrs = {p.name: np.zeros(c, src.dtype if p.base != "int" else np.int32) for p in outs}
    bind(name)(pSrc=src, **arrs)
    return [arrs[p.name] for p in outs], c


def min(src):
    """The minimum of each channel."""
    (r,), c = _extreme("peliMin", src)
    return _result(r, c)


def max(src):
    """The maximum of each channel."""
    (r,), c = _extreme("peliMax", src)
    return _result(r, c)


def min_max(src):
    """(minimum, maximum) of each channel."""
    (lo, hi), c = _extreme("peliMinMax", src)
    return _result(lo, c), _result(hi, c)


def min_index(src):
    """(minimum, x, y) of each channel: the first minimum in row order."""
    (v, x, y), c = _extreme("peliMinIndx", src)
    return _result(v, c), _result(x, c), _result(y, c)


def max_index(src):
    """(maximum, x, y) of each channel: the first maximum in row order."""
    (v, x, y), c = _extreme("peliMaxIndx", src)
    return _result(v, c), _result(x, c), _result(y, c)


def count_in_range(src, lower, upper):
    """How many values of each channel lie in [lower, upper]."""
    c = channels(src, "src")
    name = pick("peliCountInRange", src)
    lo, hi = values(lower, c, src.dtype, "lower"), values(upper, c, src.dtype, "upper")
    res = np.zeros(c, np.int32)
    bind(name)(pSrc=src, lowerBound=lo[0] if c == 1 else lo, upperBound=hi[0] if c == 1 else hi,
               **{_first_out(name): res})
    return _result(res, c)


_HIST_TYPES = {np.dtype(np.uint8): "pelType8u", np.dtype(np.uint16): "pelType16u",
               np.dtype(np.int16): "pelType16s", np.dtype(np.float32): "pelType32f"}
_hist_specs = {}


def histogram(src, bins, lower, upper):
    """Counts of each channel in `bins` uniform bins over [lower, upper).
    The spec is built once for each (type, channels, bins, range, image size)."""
    c = channels(src, "src")
    if src.dtype not in _HIST_TYPES:
        raise TypeError("histogram: expected dtype uint8, uint16, int16 or float32, got %s"
                        % src.dtype)
    if int(bins) != bins or bins < 1:
        raise ValueError("bins: expected a positive integer, got %r" % (bins,))
    key = (src.dtype, c, bins, float(lower), float(upper), src.shape[:2])
    got = _hist_specs.get(key)
    if got is None:
        got = _hist_specs[key] = _hist_spec(src, c, int(bins), lower, upper)
        if len(_hist_specs) > 64:
            _hist_specs.pop(next(iter(_hist_specs)))
    spec, buf = got
    hist = np.zeros((c, bins), np.uint32)
    name = pick("peliHistogram", src)
    out = _first_out(name)
    bind(name)(pSrc=src, **{out: hist[0] if c == 1 else list(hist)}, pSpec=spec, pBuffer=buf)
    return hist[0] if c == 1 else hist


def _hist_spec(src, c, bins, lower, upper):
    dt = ABI.constants[_HIST_TYPES[src.dtype]]
    levels = np.full(c, bins + 1, np.int32)
    spec_size, buf_size = np.zeros(1, np.int32), np.zeros(1, np.int32)
    bind("peliHistogramGetBufferSize")(dataType=dt, roiSize=(src.shape[1], src.shape[0]),
                                       nLevels=levels, numChannels=c, uniform=1,
                                       pSpecSize=spec_size, pBufferSize=buf_size)
    spec = np.zeros(int(spec_size[0]), np.uint8)
    bind("peliHistogramUniformInit")(dataType=dt, lowerLevel=np.full(c, lower, np.float32),
                                     upperLevel=np.full(c, upper, np.float32), nLevels=levels,
                                     numChannels=c, pSpec=spec)
    return spec, np.zeros(builtins.max(int(buf_size[0]), 1), np.uint8)
