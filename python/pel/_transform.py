"""The real 2-D FFT to and from the packed spectrum, and packed products."""
import threading

import numpy as np

from ._core import ABI, bind, channels, output

_NORM = {"backward": ABI.constants["pelFftDivInvByN"], "forward": ABI.constants["pelFftDivFwdByN"],
         "ortho": ABI.constants["pelFftDivBySqrtN"], "none": ABI.constants["pelFftNoDivByAny"]}
_lock = threading.Lock()
_specs = {}


def _order(n, what):
    if n < 1 or n & (n - 1):
        raise ValueError("%s: the FFT needs a power of two, got %d" % (what, n))
    return n.bit_length() - 1


class FFT:
    """A spec for one size and normalisation; read-only once built, so it may
    serve several threads (each call has its own work buffer)."""

    def __init__(self, shape, norm):
        if norm not in _NORM:
            raise ValueError("norm: expected one of %s, got %r" % (", ".join(_NORM), norm))
        oy, ox = _order(shape[0], "height"), _order(shape[1], "width")
        sizes = [np.zeros(1, np.int32) for _ in range(3)]
        args = dict(orderX=ox, orderY=oy, flag=_NORM[norm], hint=0)
        bind("peliFFTGetSize_R_32f")(pSpecSize=sizes[0], pInitSize=sizes[1],
                                     pBufferSize=sizes[2], **args)
        self.spec = np.zeros(int(sizes[0][0]), np.uint8)
        init = np.zeros(max(int(sizes[1][0]), 1), np.uint8)
        bind("peliFFTInit_R_32f")(pSpec=self.spec, pMemInit=init, **args)
        self.work = max(int(sizes[2][0]), 1)
        self._local = threading.local()

    def run(self, name, src, out):
        dst = output(out, src.shape, np.float32)
        # One work buffer a thread: concurrent calls never share one.
        buf = getattr(self._local, "buf", None)
        if buf is None:
            buf = self._local.buf = np.empty(self.work, np.uint8)
        bind(name)(pSrc=src, pDst=dst, pSpec=self.spec, pBuffer=buf)
        return dst


def _fft(src, norm):
    channels(src, "src", (1,))
    if src.dtype != np.float32:
        raise TypeError("src: expected float32, got %s" % src.dtype)
    key = (src.shape, norm)
    f = _specs.get(key)
    if f is None:
        f = FFT(src.shape, norm)
        with _lock:
            _specs[key] = f
    return f


def fft(src, norm="backward", out=None):
    """The spectrum of a float32 H x W image (powers of two) in packed form.
    norm as numpy's: 'backward' scales the inverse by 1/(W H)."""
    return _fft(src, norm).run("peliFFTFwd_RToPack_32f_C1R", src, out)


def ifft(packed, norm="backward", out=None):
    """The real image of a packed spectrum."""
    return _fft(packed, norm).run("peliFFTInv_PackToR_32f_C1R", packed, out)


def unpack(packed):
    """The packed spectrum as numpy's rfft2 layout: H x (W/2 + 1) complex64."""
    p = np.asarray(packed, np.float32)
    h, w = p.shape
    out = np.zeros((h, w // 2 + 1), np.complex64)
    for col, u in ((0, 0), (w - 1, w // 2)):
        if u == 0 or w % 2 == 0 and w > 1:
            c = np.zeros(h, np.complex64)
            c[0] = p[0, col]
            for v in range(1, (h + 1) // 2):
                c[v] = p[2 * v - 1, col] + 1j * p[2 * v, col]
                c[h - v] = np.conj(c[v])
            if h % 2 == 0 and h > 1:
                c[h // 2] = p[h - 1, col]
            out[:, u] = c
    inner = (w - 1) // 2
    if inner:
        out[0, 1:1 + inner] = p[0, 1:2 * inner:2] + 1j * p[0, 2:2 * inner + 1:2]
        out[1:, 1:1 + inner] = p[1:, 1:2 * inner:2] + 1j * p[1:, 2:2 * inner + 1:2]
    return out


def mul_pack(a, b, out=None):
    """The product of two packed spectra, packed."""
    for x, n in ((a, "src1"), (b, "src2")):
        channels(x, n, (1,))
        if x.dtype != np.float32:
            raise TypeError("%s: expected float32, got %s" % (n, x.dtype))
    if a.shape != b.shape:
        raise ValueError("src2: expected shape %s, got %s" % (a.shape, b.shape))
    dst = output(out, a.shape, np.float32)
    bind("peliMulPack_32f_C1R")(pSrc1=a, pSrc2=b, pDst=dst)
    return dst
