"""pel from Python: numpy arrays in, numpy arrays out.

    import numpy as np, pel
    img = np.zeros((480, 640, 3), np.uint8)
    out = pel.add(img, 5)                       # peliAddC_8u_C3RSfs
    small = pel.resize(img, (320, 240))         # spec built once, cached
    pel.raw.peliCopy_8u_C1R(...)                # any export, exact C signature

The export is chosen from the array: its dtype gives the element type and
its shape the layout (H x W one channel, H x W x 3, H x W x 4). Views whose
rows are strided (img[::2], img[10:20, 5:]) are passed without a copy;
views whose pixels are not contiguous raise ValueError. Outputs are new
arrays unless out= is given. A negative status raises pel.Error (nothing
was written); a positive one warns with pel.PelWarning and the result is
returned.
"""
from . import raw
from ._core import Error, PelWarning, check
from ._datamove import copy, copy_border, merge, mirror, set, split, swap_channels, transpose
from ._arith import OPS as _ARITH
from ._convert import compare, compare_eps, convert, scale, threshold, threshold_lt_gt
from ._stats import (count_in_range, dot, histogram, max, max_index, mean, min, min_index,
                     min_max, norm, norm_diff, norm_rel, sum)
from ._geometry import Resize, Warp, resize, resizer, warp_affine, warp_perspective, warper
from ._filter import (box_filter, dilate3x3, erode3x3, filter2d, max_filter, median_filter,
                      min_filter)
from ._lut import lut, palette
from ._transform import fft, ifft, mul_pack, unpack

globals().update(_ARITH)
library_path = raw.LIB_PATH


def version():
    """The library's version record as a dict."""
    import ctypes
    rec = ctypes.cast(raw.peliGetLibVersion(), ctypes.POINTER(raw.PelLibraryVersion)).contents
    text = lambda p: ctypes.string_at(p).decode() if p else ""
    return {"major": rec.major, "minor": rec.minor, "majorBuild": rec.majorBuild,
            "build": rec.build, "targetCpu": rec.targetCpu.decode(), "name": text(rec.Name),
            "version": text(rec.Version), "buildDate": text(rec.BuildDate)}
__all__ = sorted(n for n in globals() if not n.startswith("_"))
