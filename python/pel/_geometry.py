"""Resize (and, as they land, warps) through specs built once and cached."""
import threading

import numpy as np

from ._core import ABI, Point, Size, bind, channels, check, output, pick, token

_INTERP = {"nearest": ("Nearest", ABI.constants["pelInterpolationNearest"]),
           "linear": ("Linear", ABI.constants["pelInterpolationLinear"])}
_BORDER = {"replicate": ABI.constants["pelBorderReplicate"],
           "mirror": ABI.constants["pelBorderMirror"]}
_lock = threading.Lock()
_specs = {}
_SPEC_CACHE = 32


class Resize:
    """A resize spec for one (element type, source size, destination size,
    method). Read-only after construction, so one object may serve several
    threads (each call has its own work buffer)."""

    def __init__(self, dtype, src_size, dst_size, interpolation="linear"):
        if interpolation not in _INTERP:
            raise ValueError("interpolation: expected one of %s, got %r"
                             % (", ".join(_INTERP), interpolation))
        self.tok = token(dtype)
        self.dtype = np.dtype(dtype)
        self.src_size, self.dst_size = tuple(src_size), tuple(dst_size)
        self.method, code = _INTERP[interpolation]
        spec_size, init_size = np.zeros(1, np.int32), np.zeros(1, np.int32)
        bind("peliResizeGetSize_" + self.tok)(srcSize=self.src_size, dstSize=self.dst_size,
                                              interpolation=code, antialiasing=0,
                                              pSpecSize=spec_size, pInitBufSize=init_size)
        self.spec = np.zeros(int(spec_size[0]), np.uint8)
        init = "peliResize%sInit_%s" % (self.method, self.tok)
        if init not in ABI.names:
            raise TypeError("resize: no %s method for dtype %s" % (interpolation, self.dtype))
        bind(init)(srcSize=self.src_size, dstSize=self.dst_size, pSpec=self.spec)
        b = ABI.types["PeliBorderSize"]()
        bind("peliResizeGetBorderSize_" + self.tok)(pSpec=self.spec, pBorderSize=b)
        # How far past its source region a tile reads: left, top, right, bottom.
        self.border_size = (b.borderLeft, b.borderTop, b.borderRight, b.borderBottom)
        self._bufsize = {}
        self._local = threading.local()

    def buffer(self, tile_size, c):
        """A work buffer for a tile: one kept a thread, so that concurrent
        calls never share one and a call does not map fresh pages."""
        key = (tuple(tile_size), c)
        n = self._bufsize.get(key)
        if n is None:
            got = np.zeros(1, np.int32)
            bind("peliResizeGetBufferSize_" + self.tok)(pSpec=self.spec, dstSize=tile_size,
                                                        numChannels=c, pBufSize=got)
            n = self._bufsize[key] = max(int(got[0]), 1)
        buf = getattr(self._local, "buf", None)
        if buf is None or buf.size < n:
            buf = self._local.buf = np.empty(n, np.uint8)
        return buf

    def src_roi(self, offset, size):
        """The source region (x, y, width, height) a destination tile reads,
        beyond the edges of which the method reaches by border_size."""
        o, s = Point(), Size()
        bind("peliResizeGetSrcRoi_" + self.tok)(pSpec=self.spec, dstRoiOffset=offset,
                                                dstRoiSize=size, pSrcRoiOffset=o, pSrcRoiSize=s)
        return o.x, o.y, s.width, s.height

    def tile(self, src, src_origin, offset, size, border="replicate", out=None):
        """One destination tile (offset (x, y), size (w, h)) from src, a view
        of the source image whose first pixel is source pixel src_origin."""
        c = channels(src, "src")
        if src.dtype != self.dtype:
            raise TypeError("src: expected dtype %s, got %s" % (self.dtype, src.dtype))
        if offset == (0, 0) and src_origin == (0, 0):
            view = src  # the first tile reads from the first source pixel
        else:
            o = Point()
            bind("peliResizeGetSrcOffset_" + self.tok)(pSpec=self.spec, dstOffset=offset,
                                                       pSrcOffset=o)
            view = src[o.y - src_origin[1]:, o.x - src_origin[0]:]
        dst = output(out, (size[1], size[0]) + src.shape[2:], src.dtype)
        kw = {}
        if self.method == "Linear":
            if border not in _BORDER:
                raise ValueError("border: expected one of %s, got %r" % (", ".join(_BORDER), border))
            kw = {"border": _BORDER[border], "pBorderValue": None}
        bind(pick("peliResize" + self.method, src))(pSrc=view, pDst=dst, dstOffset=offset, dstSize=size, pSpec=self.spec,
                   pBuffer=self.buffer(size, c), **kw)
        return dst


def resizer(dtype, src_size, dst_size, interpolation="linear"):
    """The cached Resize object for these arguments."""
    key = (dtype if isinstance(dtype, np.dtype) else np.dtype(dtype), tuple(src_size),
           tuple(dst_size), interpolation)
    r = _specs.get(key)
    if r is None:
        r = Resize(dtype, src_size, dst_size, interpolation)
        with _lock:
            if len(_specs) >= _SPEC_CACHE:
                _specs.pop(next(iter(_specs)))
            _specs[key] = r
    return r


def resize(src, size, interpolation="linear", border="replicate", out=None):
    """src scaled to size = (width, height). 'linear' samples pixel centres
    (like cv2.INTER_LINEAR) and extends the image by border at its edges;
    'nearest' takes the pixel whose centre is nearest below."""
    channels(src, "src")
    w, h = int(size[0]), int(size[1])
    r = resizer(np.dtype(src.dtype), (src.shape[1], src.shape[0]), (w, h), interpolation)
    return r.tile(src, (0, 0), (0, 0), (w, h), border, out)
