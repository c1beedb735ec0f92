"""Arithmetic, logic and shifts: two images, or an image and a constant.

Each operation is one row of _BINARY: the Python name, the export stem for
two images and for a constant, whether the C call takes its operands in
the other order (Sub and Div compute src2 - src1 and src2 / src1), and
whether integer members take a scale factor (Sfs).
"""
import numpy as np

from ._core import bind, channels, forms, integer, output, pick, same, values

_ROUND = {"zero": 0, "near": 1, "nearest": 1, "half_away": 2, "alternate": 2}

#         name           images      constant    swapped  Sfs
_BINARY = [("add",         "peliAdd",  "peliAddC", False, True),
           ("sub",         "peliSub",  "peliSubC", True,  True),
           ("mul",         "peliMul",  "peliMulC", False, True),
           ("div",         "peliDiv",  "peliDivC", True,  True),
           ("bitwise_and", "peliAnd",  "peliAndC", False, False),
           ("bitwise_or",  "peliOr",   "peliOrC",  False, False),
           ("bitwise_xor", "peliXor",  "peliXorC", False, False),
           ("minimum",     "peliMinEvery", None,   False, False),
           ("maximum",     "peliMaxEvery", None,   False, False)]

#         name      stem       Sfs
_UNARY = [("sqrt", "peliSqrt", False), ("ln", "peliLn", False), ("abs", "peliAbs", False),
          ("bitwise_not", "peliNot", False)]


def _suffix(stem, a, inplace, scaled):
    """R, IR, RSfs or IRSfs: the form this stem has for a's element type."""
    base = "IR" if inplace else "R"
    if scaled and a.dtype.kind in "ui":
        f = forms(stem, base + "Sfs")
        if f:
            return base + "Sfs"
    return base


def _binary(name, stem, cstem, swapped, scaled):
    resolved = {}

    def resolve(st, a, inplace):
        """(bound call, takes a scale factor) for this type, layout and form."""
        key = (st, a.dtype, a.shape[2:], inplace)
        hit = resolved.get(key)
        if hit is None:
            if inplace and not forms(st, _suffix(st, a, True, scaled)):
                return None
            sfx = _suffix(st, a, inplace, scaled)
            hit = resolved[key] = (bind(pick(st, a, sfx)), sfx.endswith("Sfs"))
        return hit

    def op(a, b, out=None, scale=0, round=None):
        channels(a, "src1")
        if type(scale) is not int or not -2147483648 <= scale <= 2147483647:
            scale = integer(scale, "scale")
        if type(b) is np.ndarray and b.ndim >= 2 or isinstance(b, np.ndarray) and b.ndim >= 2:
            if b.dtype != a.dtype or b.shape != a.shape:
                same(a, b)
            channels(b, "src2")
            st, kw = stem, {}
            if round is not None:
                if name != "div":
                    raise TypeError("%s takes no round mode" % name)
                if round not in _ROUND:
                    raise ValueError("round: expected one of %s" % ", ".join(_ROUND))
                st, kw = "peliDiv_Round", {"rndMode": _ROUND[round]}
            hit = resolve(st, a, True) if out is a else None
            if hit is not None:
                # The in-place form computes srcDst = srcDst op src: a op b.
                if hit[1]:
                    kw["scaleFactor"] = scale
                hit[0](pSrc=b, pSrcDst=a, **kw)
                return a
            f, sfs = resolve(st, a, False)
            if sfs:
                kw["scaleFactor"] = scale
            dst = output(out, a.shape, a.dtype)
            # The C call's first image is the Python second one for Sub and Div.
            if swapped:
                f(pSrc1=b, pSrc2=a, pDst=dst, **kw)
            else:
                f(pSrc1=a, pSrc2=b, pDst=dst, **kw)
            return dst
        if cstem is None:
            raise TypeError("%s: expected an image as the second operand" % name)
        c = a.shape[2] if a.ndim == 3 else 1
        v = values(b, c, a.dtype)
        v = v[0] if c == 1 else v
        hit = resolve(cstem, a, True) if out is a else None
        if hit is not None:
            if hit[1]:
                hit[0](value=v, pSrcDst=a, scaleFactor=scale)
            else:
                hit[0](value=v, pSrcDst=a)
            return a
        f, sfs = resolve(cstem, a, False)
        dst = output(out, a.shape, a.dtype)
        if sfs:
            f(pSrc=a, value=v, pDst=dst, scaleFactor=scale)
        else:
            f(pSrc=a, value=v, pDst=dst)
        return dst
    op.__name__ = name
    op.__doc__ = ("%s(a, b, out=None, scale=0): element-wise %s of two images, or of an "
                  "image and a constant (one number, or one a channel). Integer results "
                  "are multiplied by 2**-scale, rounded to nearest even and saturated."
                  % (name, name))
    return op


def _unary(name, stem):
    def op(src, out=None):
        channels(src, "src")
        if out is src and forms(stem, "IR"):
            bind(pick(stem, src, "IR"))(pSrcDst=src)
            return src
        dst = output(out, src.shape, src.dtype)
        bind(pick(stem, src))(pSrc=src, pDst=dst)
        return dst
    op.__name__ = name
    op.__doc__ = "%s(src, out=None): element-wise %s." % (name, name)
    return op


def _shift(name, stem):
    def op(src, count, out=None):
        c = channels(src, "src")
        v = values(count, c, np.uint32, "count")
        v = v[0] if c == 1 else v
        if out is src:
            bind(pick(stem, src, "IR"))(value=v, pSrcDst=src)
            return src
        dst = output(out, src.shape, src.dtype)
        bind(pick(stem, src))(pSrc=src, value=v, pDst=dst)
        return dst
    op.__name__ = name
    op.__doc__ = "%s(src, count, out=None): bit shift by a count (one, or one a channel)." % name
    return op


def _build():
    ops = {}
    for row in _BINARY:
        ops[row[0]] = _binary(*row)
    for name, stem, _ in _UNARY:
        ops[name] = _unary(name, stem)
    ops["lshift"] = _shift("lshift", "peliLShiftC")
    ops["rshift"] = _shift("rshift", "peliRShiftC")
    return ops


OPS = _build()
