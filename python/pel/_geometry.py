"""Resize and warps through specs built once and cached."""
import threading

import numpy as np

from . import raw
from ._core import ABI, Point, Size, _addr, _struct, bind, channels, check, output, pick, token, values

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


# ---- Warps ------------------------------------------------------------------------
_WARP_INTERP = {"nearest": ("Nearest", ABI.constants["pelInterpolationNearest"], 0),
                "linear": ("Linear", ABI.constants["pelInterpolationLinear"], 1),
                "cubic": ("Cubic", ABI.constants["pelInterpolationCode6"], 2)}
_WARP_BORDER = {"replicate": ABI.constants["pelBorderReplicate"],
                "constant": ABI.constants["pelBorderConstant"], "transparent": 7}
# Pixels around the taps a tile may touch: the 8u kernels read 32-bit words
# from a tap, and near the source's end the word that ends there.
_SLACK = 4


class Warp:
    """A warp spec: kind 'Affine' or 'Perspective', one element type,
    channel count, source and destination size, matrix, method and border.
    Read-only once built, so one object serves several threads."""

    def __init__(self, kind, dtype, c, src_size, dst_size, matrix, interpolation="linear",
                 inverse=False, border="constant", value=0, cubic=(0.0, 0.75)):
        rows = 2 if kind == "Affine" else 3
        m = np.array(matrix, np.float64)
        if m.shape != (rows, 3):
            raise ValueError("matrix: expected %d x 3, got shape %s" % (rows, m.shape))
        if interpolation not in _WARP_INTERP:
            raise ValueError("interpolation: expected one of %s, got %r"
                             % (", ".join(_WARP_INTERP), interpolation))
        if border not in _WARP_BORDER:
            raise ValueError("border: expected one of %s, got %r" % (", ".join(_WARP_BORDER), border))
        self.tok, self.dtype, self.c = token(dtype), np.dtype(dtype), c
        self.src_size, self.dst_size = tuple(src_size), tuple(dst_size)
        self.method, code, self.reach = _WARP_INTERP[interpolation]
        self.border = border
        dt = ABI.constants["pelType" + self.tok]
        sizes = [np.zeros(1, np.int32), np.zeros(1, np.int32)]
        coeffs = list(m.ravel())
        bind("peliWarp%sGetSize" % kind)(srcSize=self.src_size, dstSize=self.dst_size, dataType=dt,
                                         coeffs=coeffs, interpolation=code,
                                         direction=int(bool(inverse)),
                                         border=_WARP_BORDER[border], pSpecSize=sizes[0],
                                         pInitBufSize=sizes[1])
        self.spec = np.zeros(int(sizes[0][0]), np.uint8)
        self.bufsize = max(int(sizes[1][0]), 64)
        kw = {"valueB": float(cubic[0]), "valueC": float(cubic[1])} if self.method == "Cubic" else {}
        bind("peliWarp%s%sInit" % (kind, self.method))(
            srcSize=self.src_size, dstSize=self.dst_size, dataType=dt, coeffs=coeffs,
            direction=int(bool(inverse)), numChannels=c, border=_WARP_BORDER[border],
            pBorderValue=np.array(values(value, c, np.float64, "value"), np.float64),
            smoothEdge=0, pSpec=self.spec, **kw)
        # Destination to source, for the source region of a tile.
        full = np.vstack([m, [0, 0, 1]]) if rows == 2 else m
        self.back = full if inverse else np.linalg.inv(full)
        self.name = "peliWarp%s%s_%s_C%dR" % (kind, self.method, self.tok, c)
        if self.name not in ABI.names:
            raise TypeError("warp: no %s form for dtype %s with %d channels"
                            % (interpolation, self.dtype, c))
        self._f = raw.function(self.name).cfunc
        self._spec_at = self.spec.ctypes.data
        self._local = threading.local()

    def buffer(self):
        buf = getattr(self._local, "buf", None)
        if buf is None:
            buf = self._local.buf = np.empty(self.bufsize, np.uint8)
            self._local.at = buf.ctypes.data
        return buf

    def src_region(self, offset, size):
        """(x0, y0, x1, y1): the source pixels (x0 <= x < x1, y0 <= y < y1)
        that the destination tile at offset (x, y) of size (w, h) may read."""
        W, H = self.src_size
        x, y = offset
        cx = np.array([x, x + size[0] - 1, x + size[0] - 1, x], np.float64)
        cy = np.array([y, y, y + size[1] - 1, y + size[1] - 1], np.float64)
        b = self.back
        w = b[2, 0] * cx + b[2, 1] * cy + b[2, 2]
        if not (w > 1e-9).all():
            return 0, 0, W, H  # the tile crosses the horizon: take everything
        sx = (b[0, 0] * cx + b[0, 1] * cy + b[0, 2]) / w
        sy = (b[1, 0] * cx + b[1, 1] * cy + b[1, 2]) / w
        r = self.reach + _SLACK

        def axis(lo, hi, n):
            lo = int(min(max(np.floor(lo) - r, 0), n - 1))
            hi = int(max(min(np.ceil(hi) + r + 1, n), 1))
            lo = max(0, min(lo, hi - 1 - _SLACK))
            return lo, min(n, max(hi, lo + 1 + _SLACK))
        (x0, x1), (y0, y1) = axis(sx.min(), sx.max(), W), axis(sy.min(), sy.max(), H)
        return x0, y0, x1, y1

    def tile(self, src, origin, offset, size, out=None):
        """One destination tile from src, the source region whose first
        pixel is source pixel origin (x, y) (the whole source: (0, 0))."""
        c = channels(src, "src")
        if src.dtype != self.dtype or c != self.c:
            raise TypeError("src: expected dtype %s with %d channels, got %s with %d"
                            % (self.dtype, self.c, src.dtype, c))
        shape = (size[1], size[0]) + src.shape[2:]
        dst = output(out, shape, src.dtype) if out is not None else \
            (np.zeros if self.border == "transparent" else np.empty)(shape, src.dtype)
        step = src.strides[0]
        # The call takes source pixel (0, 0); the region's pixels are where
        # the tile reads, so the address of (0, 0) is computed, never read.
        at = _addr(src)
        if origin != (0, 0):
            at -= origin[1] * step + origin[0] * c * src.itemsize
        buf = getattr(self._local, "at", None) or self.buffer().ctypes.data
        st = self._f(at, step, _addr(dst), dst.strides[0], _struct(Point, offset),
                     _struct(Size, size), self._spec_at, buf)
        if st:
            check(st, self.name)
        return dst


_warps = {}


def warper(kind, dtype, c, src_size, dst_size, matrix, interpolation="linear", inverse=False,
           border="constant", value=0, cubic=(0.0, 0.75)):
    """The cached Warp for these arguments."""
    m = matrix if type(matrix) is np.ndarray and matrix.dtype == np.float64 else \
        np.asarray(matrix, np.float64)
    key = (kind, dtype, c, src_size, dst_size, m.tobytes(), m.shape, interpolation, inverse,
           border, value if type(value) in (int, float) or np.ndim(value) == 0 else tuple(value),
           cubic if type(cubic) is tuple else tuple(cubic))
    w = _warps.get(key)
    if w is None:
        w = Warp(kind, dtype, c, src_size, dst_size, m, interpolation, inverse, border, value, cubic)
        with _lock:
            if len(_warps) >= _SPEC_CACHE:
                _warps.pop(next(iter(_warps)))
            _warps[key] = w
    return w


def _warp(kind):
    def run(src, matrix, size=None, interpolation="linear", border="constant", value=0,
            inverse=False, cubic=(0.0, 0.75), out=None):
        c = channels(src, "src")
        size = (src.shape[1], src.shape[0]) if size is None else (int(size[0]), int(size[1]))
        w = warper(kind, src.dtype, c, (src.shape[1], src.shape[0]), size, matrix,
                   interpolation, inverse, border, value, cubic)
        return w.tile(src, (0, 0), (0, 0), size, out)
    return run


warp_affine = _warp("Affine")
warp_affine.__name__ = "warp_affine"
warp_affine.__doc__ = """src warped by a 2 x 3 matrix to size = (width, height) (default: src's).
The matrix carries source to destination (as cv2.warpAffine); inverse=True
takes it as destination to source (cv2.WARP_INVERSE_MAP). interpolation:
'nearest', 'linear', 'cubic' (cubic=(B, C) of Mitchell-Netravali; (0, 0.75)
is cv2.INTER_CUBIC). border: 'replicate', 'constant' (value, one a channel
or one for all) or 'transparent' (those pixels of out, or zeros, stay)."""
warp_perspective = _warp("Perspective")
warp_perspective.__name__ = "warp_perspective"
warp_perspective.__doc__ = warp_affine.__doc__.replace("2 x 3", "3 x 3").replace(
    "cv2.warpAffine", "cv2.warpPerspective")
