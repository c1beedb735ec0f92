"""Filters: the general filter with border, box, median, minimum and maximum
filters, and 3x3 erosion and dilation of 64f.

Each filter function carries `reach(...)`, the (left, top, right, bottom)
pixels its output reads around each pixel for the same arguments, and
takes `border_in_memory`, the sides whose neighbouring pixels the library
reads from memory beside the view instead of making them by the border
rule; pel.dask uses both to filter chunk by chunk.
"""
import threading

import numpy as np

from ._core import ABI, bind, channels, output, pick, token, values

_C = ABI.constants
BORDERS = {"replicate": _C["pelBorderReplicate"], "mirror": _C["pelBorderMirror"],
           "constant": _C["pelBorderConstant"]}
SIDES = {"top": _C["pelBorderInMemTop"], "bottom": _C["pelBorderInMemBottom"],
         "left": _C["pelBorderInMemLeft"], "right": _C["pelBorderInMemRight"]}
_ALL_SIDES = _C["pelBorderInMem"]
_ROUND = {"zero": _C["pelRoundZero"], "near": _C["pelRoundNear"],
          "alternate": _C["pelRoundAlternate"]}
_KERNEL_TYPES = {np.dtype(np.int16): "16s", np.dtype(np.float32): "32f", np.dtype(np.float64): "64f"}
_lock = threading.Lock()
_local = threading.local()
_codes = {}


def border_code(border, in_memory=(), allowed=BORDERS):
    """The C border code: the rule's kind with the in-memory sides' flags."""
    key = (border, in_memory if type(in_memory) is tuple else tuple(in_memory), len(allowed))
    code = _codes.get(key)
    if code is not None:
        return code
    if border not in allowed:
        raise ValueError("border: expected one of %s, got %r" % (", ".join(allowed), border))
    flags = 0
    for s in key[1]:
        if s not in SIDES:
            raise ValueError("border_in_memory: expected sides among top, bottom, left, right; "
                             "got %r" % (s,))
        flags |= SIDES[s]
    code = _codes[key] = _ALL_SIDES if flags == _ALL_SIDES else allowed[border] | flags
    return code


def _mask(size, what="size"):
    """(width, height) of a mask given as k or (width, height)."""
    w, h = (size, size) if np.ndim(size) == 0 else tuple(size)
    if int(w) != w or int(h) != h or w < 1 or h < 1:
        raise ValueError("%s: expected positive integers (width, height), got %r" % (what, size))
    return int(w), int(h)


def _reach(w, h):
    """Pixels read left, above, right and below: the anchor is ((w-1)>>1, (h-1)>>1)."""
    ax, ay = (w - 1) >> 1, (h - 1) >> 1
    return ax, ay, w - 1 - ax, h - 1 - ay


def _buffer(n):
    """A work buffer of n bytes, one kept a thread and grown as needed:
    concurrent calls never share one, and small calls map no fresh pages."""
    buf = getattr(_local, "buf", None)
    if buf is None or buf.size < n:
        buf = _local.buf = np.empty(max(n, 64), np.uint8)
    return buf


_pixels = {}


def _pixel(value, c, dtype):
    """A border value array (one per channel), kept for the next call."""
    key = (value if type(value) in (int, float) or np.ndim(value) == 0 else tuple(value), c, dtype)
    a = _pixels.get(key)
    if a is None:
        a = np.array(values(value, c, dtype, "value"), dtype)
        if len(_pixels) > 256:
            _pixels.clear()
        _pixels[key] = a
    return a


# ---- Box, median, minimum, maximum --------------------------------------------
# Python name: (C stem, what the mask must be, the border rules it takes).
_RANK = {
    "box_filter": ("Box", "mean", BORDERS),
    "median_filter": ("Median", "median", {k: BORDERS[k] for k in ("replicate", "constant")}),
    "min_filter": ("Min", "minimum", BORDERS),
    "max_filter": ("Max", "maximum", BORDERS),
}
def _rank(pyname):
    stem, what, allowed = _RANK[pyname]
    cstem = "peliFilter%sBorder" % stem
    getsize = bind(cstem + "GetBufferSize")
    plans = {}

    def plan(src, c, size, border, value, border_in_memory):
        """What a call of these arguments passes besides the images: the
        export, mask, border code, border value and buffer size."""
        name = pick(cstem, src)
        mw, mh = _mask(size)
        code = border_code(border, border_in_memory, allowed)
        got = np.zeros(1, np.int32)
        getsize(roiSize=(src.shape[1], src.shape[0]), maskSize=(mw, mh),
                dataType=_C["pelType" + token(src.dtype)], numChannels=c, pBufferSize=got)
        if any(p.name == "borderValue" and p.pointer for p in ABI.prototype(name).params):
            v = _pixel(value, c, src.dtype)
        else:
            v = values(value, c, src.dtype, "value")
            if len(set(v)) != 1:
                raise ValueError("value: %s takes one border value for every channel" % pyname)
            v = v[0]
        return bind(name), (mw, mh), code, v, int(got[0])

    def run(src, size=3, border="replicate", value=0, out=None, border_in_memory=()):
        c = channels(src, "src")
        try:
            key = (src.dtype, src.shape, size, border, value, border_in_memory)
            p = plans[key]
        except (KeyError, TypeError):  # new arguments, or a list among them
            p = plan(src, c, size, border, value, border_in_memory)
            if len(plans) > 256:
                plans.clear()
            try:
                plans[key] = p
            except TypeError:
                pass
        f, mask, code, v, n = p
        dst = output(out, src.shape, src.dtype)
        f(pSrc=src, pDst=dst, maskSize=mask, border=code, borderValue=v, pBuffer=_buffer(n))
        return dst

    run.__name__ = pyname
    run.__doc__ = """The %s of each channel over a mask of size (width, height) (or k for k x k),
anchored at ((width-1)>>1, (height-1)>>1); pixels beyond the image come from
border (%s; constant takes value) except on the sides in border_in_memory,
which are read from memory beside the view.""" % (what, ", ".join(allowed))
    run.reach = lambda size=3, *a, **k: _reach(*_mask(size))
    run.sides = "any"  # every side may be flagged on its own
    return run


box_filter, median_filter, min_filter, max_filter = (_rank(n) for n in _RANK)


# ---- The general filter -------------------------------------------------------
class Kernel:
    """A general filter spec for one kernel, element type and channel count:
    built once, read-only afterwards, so one object serves several threads."""

    def __init__(self, kernel, dtype, c, divisor=1, round="near", offset=0):
        k = np.asarray(kernel)
        if k.ndim != 2 or not k.size:
            raise ValueError("kernel: expected a 2-D array, got shape %s" % (k.shape,))
        if k.dtype.kind in "iu":
            if not (np.abs(k) <= 32767).all():
                raise ValueError("kernel: integer kernels are 16-bit; got values beyond 32767")
            k = k.astype(np.int16)
        elif k.dtype != np.float32:
            k = k.astype(np.float64)
        if round not in _ROUND:
            raise ValueError("round: expected one of %s, got %r" % (", ".join(_ROUND), round))
        self.kernel = np.ascontiguousarray(k)
        self.ktok = _KERNEL_TYPES[k.dtype]
        self.dtype, self.c = np.dtype(dtype), c
        self.size = (k.shape[1], k.shape[0])
        self.reach = _reach(*self.size)
        self._dt = _C["pelType" + token(dtype)]
        spec_size = np.zeros(1, np.int32)
        bind("peliFilterBorderGetSize")(kernelSize=self.size, roiSize=(1, 1), dataType=self._dt,
                                        kernelType=_C["pelType" + self.ktok], numChannels=c,
                                        pSpecSize=spec_size, pBufferSize=np.zeros(1, np.int32))
        self.spec = np.zeros(int(spec_size[0]), np.uint8)
        init = bind("peliFilterBorderInit_" + self.ktok)
        kw = {"divisor": divisor} if self.ktok == "16s" else {}
        init(pKernel=self.kernel, kernelSize=self.size, dataType=self._dt, numChannels=c,
             roundMode=_ROUND[round], pSpec=self.spec, **kw)
        if offset:
            bind("peliFilterBorderSetMode")(hint=0, offset=offset, pSpec=self.spec)
        self._bufsize = {}

    def buffer(self, shape):
        n = self._bufsize.get(shape)
        if n is None:
            got = np.zeros(1, np.int32)
            bind("peliFilterBorderGetSize")(kernelSize=self.size, roiSize=(shape[1], shape[0]),
                                            dataType=self._dt,
                                            kernelType=_C["pelType" + self.ktok],
                                            numChannels=self.c, pSpecSize=np.zeros(1, np.int32),
                                            pBufferSize=got)
            n = self._bufsize[shape] = int(got[0])
        return _buffer(n)


_kernels = {}
_KERNEL_CACHE = 64


def kernel_spec(kernel, dtype, c, divisor=1, round="near", offset=0):
    """The cached Kernel for these arguments."""
    k = kernel if type(kernel) is np.ndarray else np.asarray(kernel)
    key = (k.tobytes(), k.shape, k.dtype, dtype, c, divisor, round, offset)
    spec = _kernels.get(key)
    if spec is None:
        spec = Kernel(k, dtype, c, divisor, round, offset)
        with _lock:
            if len(_kernels) >= _KERNEL_CACHE:
                _kernels.pop(next(iter(_kernels)))
            _kernels[key] = spec
    return spec


def filter2d(src, kernel, border="replicate", value=0, divisor=1, round="near", offset=0,
             out=None, border_in_memory=()):
    """Correlation of each channel with kernel (not flipped, as cv2.filter2D),
    anchored at ((kw-1)>>1, (kh-1)>>1). The kernel's dtype picks the
    arithmetic: integers (16-bit) sum exactly and divide by divisor, rounded
    by round ('near', 'zero', 'alternate'); float32 and float64 kernels sum in
    their type. offset is added before rounding. Borders as box_filter."""
    c = channels(src, "src")
    name = pick("peliFilterBorder", src)
    spec = kernel_spec(kernel, src.dtype, c, divisor, round, offset)
    code = border_code(border, border_in_memory)
    dst = output(out, src.shape, src.dtype)
    bind(name)(pSrc=src, pDst=dst, border=code, borderValue=_pixel(value, c, src.dtype),
               pSpec=spec.spec, pBuffer=spec.buffer(src.shape[:2]))
    return dst


filter2d.reach = lambda kernel, *a, **k: _reach(np.shape(kernel)[1], np.shape(kernel)[0])
filter2d.sides = "any"


# ---- 3x3 morphology of 64f --------------------------------------------------------
def _morph(pyname, stem, what):
    def run(src, out=None):
        channels(src, "src", (1,))
        if src.dtype != np.float64:
            raise TypeError("src: expected float64, got %s" % src.dtype)
        if src.shape[0] < 3 or src.shape[1] < 3:
            raise ValueError("src: expected at least 3 x 3 (the result is 2 smaller), got %s"
                             % (src.shape,))
        dst = output(out, (src.shape[0] - 2, src.shape[1] - 2), np.float64)
        bind(stem)(pSrc=src[1:-1, 1:-1], pDst=dst)
        return dst
    run.__name__ = pyname
    run.__doc__ = """The 3x3 %s of a float64 image without a border rule: the
result is the source's interior, (H-2) x (W-2), as numpy's 'valid' mode.
pel.dask.neighbourhood(x, pel.%s, 1, border) filters with a border.""" % (what, pyname)
    return run


erode3x3 = _morph("erode3x3", "peliErode3x3_64f_C1R", "minimum (erosion)")
dilate3x3 = _morph("dilate3x3", "peliDilate3x3_64f_C1R", "maximum (dilation)")
