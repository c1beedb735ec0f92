"""Conversion, threshold and compare."""
import numpy as np

from ._core import ABI, bind, channels, forms, output, pick, same, values, token

_ROUND = {"zero": 0, "near": 1, "nearest": 1, "half_away": 2, "alternate": 2}
_CMP = {"<": 0, "lt": 0, "<=": 1, "le": 1, "==": 2, "eq": 2, ">=": 3, "ge": 3, ">": 4, "gt": 4}


def _pair(stem, src, dtype):
    c = channels(src, "src")
    pair = token(src.dtype) + token(dtype)
    name = forms(stem).get((pair, "C%d" % c))
    if name is None:
        have = sorted({p for p, l in forms(stem)})
        raise TypeError("%s: no form from %s to %s with %d channels; pairs: %s"
                        % (stem, src.dtype, np.dtype(dtype), c, ", ".join(have)))
    return name


def convert(src, dtype, round="near", out=None):
    """src converted to dtype: integers widen exactly, and narrow or come from
    floats by rounding (round='near' ties to even, 'zero', 'half_away') and
    saturating."""
    name = _pair("peliConvert", src, dtype)
    dst = output(out, src.shape, dtype)
    kw = {}
    if any(p.name == "roundMode" for p in _params(name)):
        if round not in _ROUND:
            raise ValueError("round: expected one of %s" % ", ".join(_ROUND))
        kw["roundMode"] = _ROUND[round]
    bind(name)(pSrc=src, pDst=dst, **kw)
    return dst


def _params(name):
    return ABI.prototype(name).params


def scale(src, dtype, vmin=None, vmax=None, out=None):
    """src mapped linearly from its type's full range to dtype's, or, for
    float data, from [vmin, vmax]."""
    name = _pair("peliScale", src, dtype)
    dst = output(out, src.shape, dtype)
    kw = {}
    if any(p.name == "vMin" for p in _params(name)):
        if vmin is None or vmax is None:
            raise TypeError("scale from %s needs vmin and vmax" % src.dtype)
        kw = {"vMin": float(vmin), "vMax": float(vmax)}
    bind(name)(pSrc=src, pDst=dst, **kw)
    return dst


def threshold(src, level, op="<", value=None, out=None):
    """Values on the op side of level ('<' or '>') become level (value=None)
    or value. level and value: one number, or one a channel."""
    c = channels(src, "src")
    side = {"<": "LT", "lt": "LT", ">": "GT", "gt": "GT"}.get(op)
    if side is None:
        raise ValueError("op: expected '<' or '>', got %r" % (op,))
    lv = values(level, c, src.dtype, "level")
    stem = "peliThreshold_" + side + ("" if value is None else "Val")
    kw = {"threshold": lv[0] if c == 1 else lv}
    if value is not None:
        vv = values(value, c, src.dtype)
        kw["value"] = vv[0] if c == 1 else vv
    if out is src:
        bind(pick(stem, src, "IR"))(pSrcDst=src, **kw)
        return src
    dst = output(out, src.shape, src.dtype)
    bind(pick(stem, src))(pSrc=src, pDst=dst, **kw)
    return dst


def threshold_lt_gt(src, level_lt, value_lt, level_gt, value_gt, out=None):
    """Values below level_lt become value_lt, values above level_gt value_gt."""
    c = channels(src, "src")
    args = [values(v, c, src.dtype, n) for v, n in ((level_lt, "level_lt"), (value_lt, "value_lt"),
                                                   (level_gt, "level_gt"), (value_gt, "value_gt"))]
    args = [a[0] if c == 1 else a for a in args]
    kw = dict(zip(("thresholdLT", "valueLT", "thresholdGT", "valueGT"), args))
    dst = output(out, src.shape, src.dtype)
    bind(pick("peliThreshold_LTValGTVal", src))(pSrc=src, pDst=dst, **kw)
    return dst


def compare(a, b, op, out=None):
    """A uint8 mask, 255 where 'a op b' holds (b an image or a constant)."""
    if op not in _CMP:
        raise ValueError("op: expected one of %s, got %r" % (", ".join(_CMP), op))
    c = channels(a, "src1")
    dst = output(out, a.shape[:2], np.uint8)
    if isinstance(b, np.ndarray) and b.ndim >= 2:
        same(a, b)
        bind(pick("peliCompare", a))(pSrc1=a, pSrc2=b, pDst=dst, cmpOp=_CMP[op])
    else:
        v = values(b, c, a.dtype)
        bind(pick("peliCompareC", a))(pSrc=a, value=v[0] if c == 1 else v, pDst=dst,
                                      cmpOp=_CMP[op])
    return dst


def compare_eps(a, b, eps, out=None):
    """A uint8 mask, 255 where |a - b| <= eps (float32 images)."""
    c = channels(a, "src1")
    dst = output(out, a.shape[:2], np.uint8)
    if isinstance(b, np.ndarray) and b.ndim >= 2:
        same(a, b)
        bind(pick("peliCompareEqualEps", a))(pSrc1=a, pSrc2=b, pDst=dst, eps=float(eps))
    else:
        v = values(b, c, a.dtype)
        bind(pick("peliCompareEqualEpsC", a))(pSrc=a, value=v[0] if c == 1 else v, pDst=dst,
                                              eps=float(eps))
    return dst
