"""Lookup tables (curves through levels) and palettes."""
import numpy as np

from ._core import bind, channels, forms, output, pick, token

_ELEM = {np.dtype(np.float32): np.dtype(np.float32)}  # curves of the others are int32
_TABLE_LEVELS = np.arange(257, dtype=np.int32)
_KINDS = {"step": "peliLUT", "linear": "peliLUT_Linear", "cubic": "peliLUT_Cubic"}


def _curves(v, c, dtype, what):
    """c contiguous 1-D arrays of dtype: one curve for every channel, or one a channel."""
    if type(v) is np.ndarray and v.ndim == 1 and v.dtype == dtype and v.flags.c_contiguous:
        return [v] * c
    if isinstance(v, np.ndarray) and v.ndim == 1 or \
            not isinstance(v, np.ndarray) and len(v) and np.ndim(v[0]) == 0:
        return [np.ascontiguousarray(v, dtype)] * c
    if len(v) == c and all(np.ndim(x) == 1 for x in v):
        return [np.ascontiguousarray(x, dtype) for x in v]
    raise ValueError("%s: expected one curve, or %d (one a channel)" % (what, c))


def lut(src, values, levels=None, kind="step", out=None):
    """Each channel through a curve given by levels (increasing) and values.

    kind 'step': levels[k] <= x < levels[k+1] gives values[k] (len(values)
    may be len(levels) - 1); 'linear' and 'cubic' interpolate through the
    points (levels[k], values[k]). Values outside [levels[0], levels[-1])
    are copied. values and levels are one curve for every channel or one a
    channel. For uint8 images, levels=None with 256 values is the classic
    table (levels 0, 1, ..., 256). out=src works in place."""
    c = channels(src, "src")
    stem = _KINDS.get(kind)
    if stem is None:
        raise ValueError("kind: expected one of %s, got %r" % (", ".join(_KINDS), kind))
    inplace = out is src
    name = pick(stem, src, "IR" if inplace else "R")
    et = _ELEM.get(src.dtype, np.int32)
    if levels is None:
        if src.dtype != np.uint8 or np.shape(values)[-1] != 256:
            raise ValueError("levels: needed unless src is uint8 and there are 256 values")
        levels = _TABLE_LEVELS
    lv = _curves(levels, c, et, "levels")
    vs = _curves(values, c, et, "values")
    # A step curve reads one value fewer than it has levels.
    short = 1 if kind == "step" else 0
    for l, v in zip(lv, vs):
        if len(l) < 2:
            raise ValueError("levels: expected at least 2 levels, got %d" % len(l))
        if not len(l) - short <= len(v) <= len(l):
            raise ValueError("values: expected %d values (one a level), got %d" % (len(l), len(v)))
    f = bind(name)
    if c == 1:
        kw = {"pValues": vs[0], "pLevels": lv[0], "nLevels": len(lv[0])}
    else:
        kw = {"pValues": vs, "pLevels": lv, "nLevels": np.array([len(l) for l in lv], np.int32)}
    if inplace:
        f(pSrcDst=src, **kw)
        return src
    dst = output(out, src.shape, src.dtype)
    f(pSrc=src, pDst=dst, **kw)
    return dst


def palette(src, table, bits=None, out=None):
    """dst = table[x & (2**bits - 1)] for each channel. table is one array
    for every channel or one a channel; its dtype is the result's (uint8 or
    uint16 as src, or uint32 and uint8 from one channel). bits defaults to
    log2(len(table))."""
    c = channels(src, "src")
    t = np.asarray(table)
    dt = t.dtype if t.dtype.kind in "ui" else src.dtype
    tables = _curves(table, c, dt, "table")
    if bits is None:
        bits = len(tables[0]).bit_length() - 1
        if len(tables[0]) != 1 << bits:
            raise ValueError("bits: needed when the table's length is not a power of two")
    if any(len(x) < 1 << bits for x in tables):
        raise ValueError("table: expected at least 2**bits = %d entries" % (1 << bits))
    stem_t = token(src.dtype) if dt == src.dtype else token(src.dtype) + token(dt)
    name = forms("peliLUTPalette").get((stem_t, "C%d" % c))
    if name is None:
        raise TypeError("palette: no form from dtype %s to %s with %d channels; expected one of %s"
                        % (src.dtype, dt, c, ", ".join(
                            "%s %s" % (t, l) for t, l in sorted(forms("peliLUTPalette")))))
    dst = output(out, src.shape, dt)
    bind(name)(pSrc=src, pDst=dst, pTable=tables[0] if c == 1 else tables, nBitSize=int(bits))
    return dst
