"""Copy, set, split and merge, channel swaps, mirror, transpose, borders."""
import numpy as np

from ._core import ABI, bind, channels, output, pick, values, same

_AXES = {"horizontal": 0, "vertical": 1, "both": 2, "diagonal": 3, "antidiagonal": 4,
         "flipud": 0, "fliplr": 1}


def copy(src, out=None, mask=None):
    """dst = src (where mask is nonzero, if a mask is given)."""
    channels(src, "src")
    dst = output(out, src.shape, src.dtype)
    if mask is None:
        bind(pick("peliCopy", src))(pSrc=src, pDst=dst)
    else:
        _check_mask(mask, src)
        bind(pick("peliCopy", src, "MR"))(pSrc=src, pDst=dst, pMask=mask)
    return dst


def set(out, value, mask=None):
    """Fill out with value (one number, or one a channel); returns out."""
    c = channels(out, "out")
    output(out, out.shape, out.dtype)
    v = values(value, c, out.dtype)
    vv = v[0] if c == 1 else v
    if mask is None:
        bind(pick("peliSet", out, what="out"))(value=vv, pDst=out)
    else:
        _check_mask(mask, out)
        bind(pick("peliSet", out, "MR", what="out"))(value=vv, pDst=out, pMask=mask)
    return out


def _check_mask(mask, img):
    if not isinstance(mask, np.ndarray) or mask.dtype != np.uint8:
        raise TypeError("mask: expected a uint8 array")
    if mask.shape != img.shape[:2]:
        raise ValueError("mask: expected shape %s, got %s" % (img.shape[:2], mask.shape))
    channels(mask, "mask", (1,))


def split(src, out=None):
    """H x W x C (C = 3, 4) into C planes; returns an array C x H x W."""
    c = channels(src, "src", (3, 4))
    dst = output(out, (c,) + src.shape[:2], src.dtype)
    name = pick("peliCopy", src, layout="C%dP%d" % (c, c))
    bind(name)(pSrc=src, pDst=list(dst))
    return dst


def merge(planes, out=None):
    """C planes (a sequence, or a C x H x W array) into H x W x C."""
    planes = list(planes)
    c = len(planes)
    if c not in (3, 4):
        raise ValueError("merge: expected 3 or 4 planes, got %d" % c)
    for i, p in enumerate(planes):
        channels(p, "plane %d" % i, (1,))
        same(planes[0], p, "plane %d" % i)
        if p.strides[0] != planes[0].strides[0]:
            raise ValueError("merge: the planes must share one row step (%d, %d)"
                             % (planes[0].strides[0], p.strides[0]))
    dst = output(out, planes[0].shape + (c,), planes[0].dtype)
    name = pick("peliCopy", dst, layout="P%dC%d" % (c, c), what="out")
    bind(name)(pSrc=planes, pDst=dst)
    return dst


def swap_channels(src, order, out=None):
    """dst[..., i] = src[..., order[i]]."""
    c = channels(src, "src", (3, 4))
    order = [int(x) for x in order]
    if len(order) != c:
        raise ValueError("order: expected %d entries, got %d" % (c, len(order)))
    dst = output(out, src.shape, src.dtype)
    bind(pick("peliSwapChannels", src))(pSrc=src, pDst=dst, dstOrder=order)
    return dst


def mirror(src, axis, out=None):
    """Flip: 'horizontal' (rows upside down, np.flipud), 'vertical' (each row
    reversed, np.fliplr), 'both', or a PeliAxis code."""
    code = _AXES.get(axis, axis) if isinstance(axis, str) else axis
    if code not in (0, 1, 2):
        raise ValueError("axis: expected 'horizontal', 'vertical' or 'both', got %r" % (axis,))
    if out is src:
        bind(pick("peliMirror", src, "IR"))(pSrcDst=src, flip=code)
        return src
    dst = output(out, src.shape, src.dtype)
    bind(pick("peliMirror", src))(pSrc=src, pDst=dst, flip=code)
    return dst


def transpose(src, out=None):
    """dst[x, y] = src[y, x]."""
    channels(src, "src")
    shape = (src.shape[1], src.shape[0]) + src.shape[2:]
    dst = output(out, shape, src.dtype)
    bind(pick("peliTranspose", src))(pSrc=src, pDst=dst)
    return dst


_BORDERS = {"constant": "peliCopyConstBorder", "replicate": "peliCopyReplicateBorder",
            "mirror": "peliCopyMirrorBorder", "wrap": "peliCopyWrapBorder"}


def copy_border(src, top, bottom, left, right, border="replicate", value=0, out=None):
    """src in the middle of a larger image whose outside is filled by border:
    'constant' (value), 'replicate' (edge pixels), 'mirror' (about the edge
    pixel, which is not repeated) or 'wrap' (periodic)."""
    stem = _BORDERS.get(border)
    if stem is None:
        raise ValueError("border: expected one of %s, got %r" % (", ".join(_BORDERS), border))
    c = channels(src, "src")
    for n, v in (("top", top), ("bottom", bottom), ("left", left), ("right", right)):
        if int(v) != v or v < 0:
            raise ValueError("%s: expected a non-negative integer, got %r" % (n, v))
    h, w = src.shape[:2]
    dst = output(out, (h + top + bottom, w + left + right) + src.shape[2:], src.dtype)
    kw = dict(pSrc=src, srcRoiSize=(w, h), pDst=dst, dstRoiSize=(dst.shape[1], dst.shape[0]),
              topBorderHeight=int(top), leftBorderWidth=int(left))
    if border == "constant":
        v = values(value, c, src.dtype)
        kw["value"] = v[0] if c == 1 else v
    bind(pick(stem, src))(**kw)
    return dst
