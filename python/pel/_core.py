"""What the Pythonic layer shares: statuses, image checks, export choice and
the bound calls.

A bound call is built once per export from its prototype: a small Python
function, compiled from generated source, that takes the C parameters by
their header names (images as numpy arrays, sizes as (width, height)) and
passes addresses, steps and sizes to the ctypes function. Generating it
keeps the per-call cost to one Python frame and the ctypes call.
"""
import ctypes
import re
import warnings

import numpy as np

from . import raw

ABI = raw.ABI
_C = ABI.constants
STATUS_NAMES = {v: k for k, v in _C.items() if k.startswith("pelStatus")}


class Error(Exception):
    """A negative PelStatus: the call wrote nothing.

    status   the value (e.g. -6)
    name     its name in the headers (e.g. 'pelStatusBadSize')
    function the export that returned it
    """

    def __init__(self, status, function):
        self.status, self.function = status, function
        self.name = STATUS_NAMES.get(status, "unknown status")
        super().__init__("%s returned %s (%d)" % (function, self.name, status))


class PelWarning(UserWarning):
    """A positive PelStatus: the work was done; the output is returned."""

    def __init__(self, status, function):
        self.status, self.function = status, function
        self.name = STATUS_NAMES.get(status, "unknown status")
        super().__init__("%s returned %s (%d)" % (function, self.name, status))


def check(status, function="pel"):
    """Raise Error for a negative status, warn for a positive one."""
    if status < 0:
        raise Error(status, function)
    if status > 0:
        warnings.warn(PelWarning(status, function), stacklevel=3)
    return status


# ---- Element types -------------------------------------------------------------
TOKENS = {np.dtype(np.uint8): "8u", np.dtype(np.int8): "8s", np.dtype(np.uint16): "16u",
          np.dtype(np.int16): "16s", np.dtype(np.uint32): "32u", np.dtype(np.int32): "32s",
          np.dtype(np.float32): "32f", np.dtype(np.float64): "64f",
          np.dtype(np.complex64): "32fc", np.dtype(np.complex128): "64fc"}
DTYPES = {v: k for k, v in TOKENS.items()}
LAYOUTS = {1: "C1", 3: "C3", 4: "C4"}
_INT_MAX = 2 ** 31 - 1


def token(dtype):
    t = TOKENS.get(np.dtype(dtype))
    if t is None:
        raise TypeError("pel has no element type for dtype %s; expected one of %s"
                        % (np.dtype(dtype), ", ".join(str(d) for d in TOKENS)))
    return t


def channels(a, what="image", allowed=(1, 3, 4)):
    """The channel count of an image array: H x W is 1, H x W x C is C. Also
    checks that the pixels of a row are contiguous, which a C step can
    describe, and that the rows lie at a positive int distance."""
    if type(a) is np.ndarray:
        # The common case in few steps: rows of contiguous pixels at a
        # positive step.
        s = a.strides
        if a.ndim == 2:
            if s[1] == a.itemsize and 0 < s[0] <= _INT_MAX and 1 in allowed:
                return 1
        elif a.ndim == 3:
            c = a.shape[2]
            if s[2] == a.itemsize and s[1] == s[2] * c and 0 < s[0] <= _INT_MAX and c in allowed:
                return c
    elif not isinstance(a, np.ndarray):
        raise TypeError("%s: expected a numpy array, got %s" % (what, type(a).__name__))
    # An empty image has no layout to check; the library answers for it.
    s = a.strides if a.size else (1 << 20, a.itemsize * a.shape[-1] if a.ndim == 3 else a.itemsize, a.itemsize)
    if a.ndim == 2:
        c = 1
        if s[1] != a.itemsize and a.shape[1] > 1:
            raise ValueError("%s: the pixels of a row must be contiguous (column stride %d, "
                             "item size %d); pass np.ascontiguousarray(...)" % (what, s[1], a.itemsize))
    elif a.ndim == 3:
        c = a.shape[2]
        if (s[2] != a.itemsize and c > 1) or (s[1] != a.itemsize * c and a.shape[1] > 1):
            raise ValueError("%s: the channels and pixels of a row must be contiguous; "
                             "pass np.ascontiguousarray(...)" % what)
    else:
        raise ValueError("%s: expected H x W or H x W x C, got shape %s" % (what, a.shape))
    if c not in allowed:
        raise ValueError("%s: expected %s channels, got %d" % (
            what, " or ".join(str(x) for x in allowed), c))
    if a.shape[0] > 1 and not 0 < s[0] <= _INT_MAX:
        raise ValueError("%s: rows must lie at a positive step below 2**31 bytes (step %d)"
                         % (what, s[0]))
    return c


def output(out, shape, dtype, what="out"):
    """The destination: out= checked against what the call writes, or a new array."""
    if out is None:
        return np.empty(shape, dtype)
    if type(out) is np.ndarray and out.dtype == dtype and out.shape == shape \
            and out.flags.writeable:
        channels(out, what, (1, 2, 3, 4))
        return out
    if not isinstance(out, np.ndarray):
        raise TypeError("%s: expected a numpy array, got %s" % (what, type(out).__name__))
    if out.dtype != dtype:
        raise TypeError("%s: expected dtype %s, got %s" % (what, np.dtype(dtype), out.dtype))
    if not out.flags.writeable:
        raise ValueError("%s: the array is read-only" % what)
    if out.shape != tuple(shape):
        raise ValueError("%s: expected shape %s, got %s" % (what, tuple(shape), out.shape))
    channels(out, what, (1, 2, 3, 4))
    return out


def same(a, b, what="src2"):
    if b.dtype != a.dtype:
        raise TypeError("%s: expected dtype %s like the first image, got %s" % (what, a.dtype, b.dtype))
    if b.shape != a.shape:
        raise ValueError("%s: expected shape %s like the first image, got %s" % (what, a.shape, b.shape))
    channels(b, what)


# ---- Choosing the export -------------------------------------------------------
_index = {}


def forms(stem, suffix=r"R"):
    """{(type token, layout)} of the exports stem_<type>_<layout><suffix>."""
    key = (stem, suffix)
    got = _index.get(key)
    if got is None:
        rx = re.compile(r"^%s_([0-9a-z]+)_(A?[CP]\d(?:A?[CP]\d?)?)%s$" % (re.escape(stem), suffix))
        got = _index[key] = {}
        for n in ABI.names:
            m = rx.match(n)
            if m:
                got[(m.group(1), m.group(2))] = n
    return got


_picked = {}


def pick(stem, a, suffix="R", layout=None, what="src"):
    """The export of stem for the array's element type and channel count."""
    key = (stem, suffix, layout, a.dtype, a.shape[2] if a.ndim == 3 else 1)
    name = _picked.get(key)
    if name is not None:
        return name
    c = channels(a, what)
    tok = TOKENS.get(a.dtype)
    lay = layout or LAYOUTS[c]
    name = forms(stem, suffix).get((tok, lay))
    if name is None:
        have = sorted(forms(stem, suffix))
        if not have:
            raise TypeError("%s has no %s form in this library" % (stem, suffix))
        raise TypeError("%s: no form for dtype %s with %s; expected one of: %s" % (
            stem, a.dtype, lay, ", ".join("%s %s" % (DTYPES[t], l) for t, l in have
                                          if t in DTYPES)))
    _picked[key] = name
    return name


# ---- Bound calls ---------------------------------------------------------------
# The data address of an array, read from the array object itself: numpy's
# object layout puts the data pointer right after the Python object header,
# a fixed part of numpy's C ABI. It costs a tenth of a.ctypes.data, which
# matters for small images; if a numpy ever disagrees, the slow way is used.
_from_address = ctypes.c_void_p.from_address
_DATA_OFFSET = 2 * ctypes.sizeof(ctypes.c_void_p)


def _probe():
    a = np.zeros((3, 5), np.uint8)[1:, 2:]
    return _from_address(id(a) + _DATA_OFFSET).value == a.ctypes.data


_FAST_PTR = _probe()
_PTR = "_fa(id(%s) + _OFF).value" if _FAST_PTR else "%s.ctypes.data"

Size = ABI.types["PeliSize"]
Point = ABI.types["PeliPoint"]
_bound = {}


def _image_pairs(params):
    """{pointer param: step param} for pSrc/srcStep style pairs."""
    names = {p.name for p in params}
    pairs = {}
    for p in params:
        if (p.pointer or p.ptrarray) and p.name.startswith("p") and len(p.name) > 1:
            step = p.name[1].lower() + p.name[2:] + "Step"
            if step in names:
                pairs[p.name] = step
    return pairs


def _first_image(params, pairs):
    for p in params:
        if p.name in pairs and not p.ptrarray:
            return p.name
    return None


def _addr(v):
    if v is None:
        return None
    if type(v) is np.ndarray:
        return _from_address(id(v) + _DATA_OFFSET).value if _FAST_PTR else v.ctypes.data
    if isinstance(v, np.ndarray):
        return v.ctypes.data
    return ctypes.addressof(v)


_structs = {}


def _struct(t, v):
    """A PeliSize or PeliPoint for a tuple, kept: ctypes copies it into the
    call, and building one costs more than the lookup."""
    key = (t, v) if type(v) is tuple else (t, tuple(v))
    s = _structs.get(key)
    if s is None:
        if len(_structs) > 1024:
            _structs.clear()
        s = _structs[key] = t(*key[1])
    return s


_sizes = {}


def _roi(shape):
    """The PeliSize of an image shape, kept: ctypes copies it into the call."""
    s = _sizes.get(shape)
    if s is None:
        if len(_sizes) > 256:
            _sizes.clear()
        s = _sizes[shape] = Size(shape[1], shape[0])
    return s


def bind(name):
    """A function of the export's C parameter names; images and arrays are
    numpy arrays already checked by the caller, sizes (width, height)
    tuples (roiSize defaults to the first image's), constant arrays
    sequences. It raises Error or warns on the status and returns it."""
    f = _bound.get(name)
    if f is not None:
        return f
    proto = ABI.prototype(name)
    params = proto.params
    pairs = _image_pairs(params)
    steps = {v: k for k, v in pairs.items()}
    first = _first_image(params, pairs)
    ns = {"_f": raw.function(name).cfunc, "_check": check, "_name": name, "_Size": Size,
          "_addr": _addr, "_ctypes": ctypes, "_fa": _from_address, "_OFF": _DATA_OFFSET,
          "_roi": _roi, "_st": _struct, "_nd": np.ndarray}
    args, exprs, defaults = [], [], []
    for i, p in enumerate(params):
        n = p.name
        if n in steps:
            img = steps[n]
            planar = any(q.name == img and q.ptrarray for q in params)
            exprs.append(("%s[0].strides[0]" if planar else "%s.strides[0]") % img)
            continue
        if p.ptrarray:
            args.append(n)
            exprs.append("(_ctypes.c_void_p * len(%s))(*[%s for x in %s])" % (n, _PTR % "x", n))
        elif n in pairs:
            args.append(n)
            exprs.append(_PTR % n)
        elif p.pointer and p.const and p.count:
            args.append(n)
            ns["_A%d" % i] = p.ctype * p.count
            exprs.append("_A%d(*%s)" % (i, n))
        elif p.pointer:
            args.append(n)
            # Specs, buffers and result arrays are numpy arrays: their
            # address inline; anything else (None, ctypes objects) by _addr.
            exprs.append(("(%s if type(%s) is _nd else _addr(%s))" % (_PTR % n, n, n))
                         if _FAST_PTR else "_addr(%s)" % n)
        elif p.base in ("PeliSize", "PeliSizeL", "PeliPoint", "PeliPointL"):
            ns["_T%d" % i] = p.ctype
            if n == "roiSize" and first and p.base == "PeliSize":
                defaults.append("%s=None" % n)
                exprs.append("(_roi(%s.shape) if %s is None else _st(_T%d, %s))" % (first, n, i, n))
            else:
                args.append(n)
                exprs.append("_st(_T%d, %s)" % (i, n))
        else:
            args.append(n)
            exprs.append(n)
    src = "def call(%s):\n    s = _f(%s)\n    if s:\n        _check(s, _name)\n    return s\n" % (
        ", ".join(args + defaults), ", ".join(exprs))
    exec(compile(src, "<pel %s>" % name, "exec"), ns)
    f = _bound[name] = ns["call"]
    f.__doc__ = str(proto)
    return f


def integer(v, what):
    """v as a Python int in the C int range, or TypeError/ValueError."""
    if isinstance(v, (bool, np.bool_)) or not isinstance(v, (int, np.integer)):
        raise TypeError("%s: expected an integer, got %r" % (what, v))
    if not -2 ** 31 <= v < 2 ** 31:
        raise ValueError("%s: %d is outside the C int range" % (what, v))
    return int(v)


_RANGES = {np.dtype(t): (np.iinfo(t).min, np.iinfo(t).max)
           for t in (np.uint8, np.int8, np.uint16, np.int16, np.uint32, np.int32)}


def values(v, c, dtype, what="value"):
    """A per-channel constant: a number for every channel or one per channel,
    checked against the element type's range."""
    if c == 1 and type(v) is int:
        r = _RANGES.get(dtype)
        if r is not None and r[0] <= v <= r[1]:
            return [v]
    if np.ndim(v) == 0:
        v = [v] * c
    v = list(v)
    if len(v) != c:
        raise ValueError("%s: expected %d values (one a channel), got %d" % (what, c, len(v)))
    dt = np.dtype(dtype)
    if dt.kind in "ui":
        lo, hi = _RANGES.get(dt) or (np.iinfo(dt).min, np.iinfo(dt).max)
        for x in v:
            if isinstance(x, (float, np.floating)) and float(x) != int(x):
                raise TypeError("%s: expected integers for dtype %s, got %r" % (what, dt, x))
            if not lo <= x <= hi:
                raise ValueError("%s: %r is outside the range of %s" % (what, x, dt))
        return [int(x) for x in v]
    return [float(x) for x in v]
