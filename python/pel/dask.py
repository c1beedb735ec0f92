"""pel on dask arrays: the same results as one whole-image call, computed
chunk by chunk on a thread pool, processes, or a distributed cluster.

    import dask.array as da, pel, pel.dask
    x = da.from_array(big, chunks=(1000, 1000))
    y = pel.dask.pointwise(pel.add, x, x)                 # chunk by chunk
    z = pel.dask.resize(x, (w, h))                        # destination tiles
    f = pel.dask.neighbourhood(x, my_filter, reach=2)     # overlapping chunks

Three patterns cover the library:

* pointwise: an operation whose output pixel depends on the same input
  pixel (arithmetic, logic, conversion, threshold, compare) runs on each
  chunk as it is (map_blocks).
* neighbourhood: a filter that reads `reach` pixels around each output
  pixel gets its chunk with exactly `reach` pixels of the neighbouring
  chunks (map_overlap without padding at the image edges); at the image
  edges the chunk is extended by the border rule, as the whole-image call
  does.
* tiles: resize (and the warps, as they land) make destination tiles; each
  tile reads the source region the library reports for it
  (peliResizeGetSrcRoi plus the method's reach), so a tile depends only on
  the source chunks that region touches.

Each is exact: chunk sizes need not divide the image, and the results are
bit-identical to one call on the whole image. pel releases the GIL in every
call (ctypes does), so the threaded scheduler scales too.
"""
import dask
import dask.array as da
import numpy as np

from . import _datamove, _geometry


def _spatial(x):
    if x.ndim not in (2, 3):
        raise ValueError("expected a dask array H x W or H x W x C, got %d dimensions" % x.ndim)
    return x.rechunk({2: -1}) if x.ndim == 3 else x


def pointwise(fn, /, *arrays, **kwargs):
    """fn(*chunks, **kwargs) on matching chunks of arrays of one shape."""
    arrays = [_spatial(a) if isinstance(a, da.Array) else a for a in arrays]
    first = next(a for a in arrays if isinstance(a, da.Array))
    meta = fn(*[np.zeros((1, 1) + a.shape[2:], a.dtype) if isinstance(a, da.Array) else a
                for a in arrays], **kwargs)
    return da.map_blocks(lambda *b: fn(*b, **kwargs), *arrays, dtype=meta.dtype,
                         chunks=first.chunks[:2] + ((meta.shape[2],) if meta.ndim == 3 else ()),
                         drop_axis=[2] if meta.ndim < first.ndim else None)


def neighbourhood(x, fn, reach, border="replicate", value=0):
    """fn on every chunk padded by `reach` pixels on each side, which must
    return the chunk's result (its own size). Inside the image the padding
    is the neighbouring chunks' pixels; at the image edges it is made by
    pel.copy_border with border ('replicate', 'mirror', 'constant', 'wrap').
    whole(img) = fn(pel.copy_border(img, r, r, r, r, border)) is the same
    computation on one chunk."""
    x = _spatial(x)
    r = int(reach)
    if r < 0:
        raise ValueError("reach: expected a non-negative integer, got %r" % (reach,))
    if r == 0:
        return x.map_blocks(fn, dtype=x.dtype)
    # Each chunk must be at least the reach wide for its neighbours' overlap.
    if min(min(c) for c in x.chunks[:2]) < r:
        x = x.rechunk({0: max(r, max(x.chunks[0])), 1: max(r, max(x.chunks[1]))})
    depth = {0: r, 1: r, 2: 0} if x.ndim == 3 else {0: r, 1: r}
    padded = da.overlap.overlap(x, depth=depth, boundary="none")
    out_chunks = x.chunks

    def run(block, block_info=None):
        info = block_info[0]
        (i, j), (ni, nj) = info["chunk-location"][:2], info["num-chunks"][:2]
        # Sides at the image edge have no neighbour's pixels: extend them.
        full = _datamove.copy_border(block, r if i == 0 else 0, r if i == ni - 1 else 0,
                                     r if j == 0 else 0, r if j == nj - 1 else 0, border, value)
        return fn(full)

    meta = fn(_datamove.copy_border(np.zeros((1, 1) + x.shape[2:], x.dtype), r, r, r, r,
                                    border, value))
    return padded.map_blocks(run, dtype=meta.dtype, chunks=out_chunks)


def whole(img, fn, reach, border="replicate", value=0):
    """The one-call counterpart of neighbourhood()."""
    r = int(reach)
    return fn(_datamove.copy_border(img, r, r, r, r, border, value)) if r else fn(img)


def _tile(src, origin, spec_args, offset, size, border):
    r = _geometry.resizer(*spec_args)
    return r.tile(np.ascontiguousarray(src) if src.strides[-1] != src.itemsize else src,
                  origin, offset, size, border)


def resize(x, size, interpolation="linear", border="replicate", chunks=None):
    """x resized to size = (width, height), one destination tile a chunk.
    chunks: the destination chunks (default: as many as x has)."""
    x = _spatial(x)
    w, h = int(size[0]), int(size[1])
    H, W = x.shape[:2]
    if chunks is None:
        chunks = (_split(h, len(x.chunks[0])), _split(w, len(x.chunks[1])))
    else:
        chunks = da.core.normalize_chunks(chunks[:2], (h, w))
    args = (np.dtype(x.dtype), (W, H), (w, h), interpolation)
    r = _geometry.resizer(*args)
    bl, bt, br, bb = r.border_size
    rows = []
    y0 = 0
    for th in chunks[0]:
        row, x0 = [], 0
        for tw in chunks[1]:
            sx, sy, sw, sh = r.src_roi((x0, y0), (tw, th))
            # The region and the method's reach past it, inside the image.
            ax, ay = max(sx - bl, 0), max(sy - bt, 0)
            ex, ey = min(sx + sw + br, W), min(sy + sh + bb, H)
            part = x[ay:ey, ax:ex]
            tile = dask.delayed(_tile)(part, (ax, ay), args, (x0, y0), (tw, th), border)
            block = da.from_delayed(tile, (th, tw) + x.shape[2:], x.dtype)
            # da.block joins the innermost lists along the last axis.
            row.append([block] if x.ndim == 3 else block)
            x0 += tw
        rows.append(row)
        y0 += th
    return da.block(rows)


def _split(n, parts):
    parts = max(1, min(parts, n))
    base, extra = divmod(n, parts)
    return tuple(base + (1 if i < extra else 0) for i in range(parts))
