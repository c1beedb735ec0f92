"""pel on dask arrays: the same results as one whole-image call, computed
chunk by chunk on a thread pool, processes, or a distributed cluster.

    import dask.array as da, pel, pel.dask
    x = da.from_array(big, chunks=(1000, 1000))
    y = pel.dask.pointwise(pel.add, x, x)                 # chunk by chunk
    z = pel.dask.resize(x, (w, h))                        # destination tiles
    f = pel.dask.filter(pel.box_filter, x, 5)             # overlapping chunks
    g = pel.dask.warp_affine(x, m, interpolation="cubic") # destination tiles

Three patterns cover the library:

* pointwise: an operation whose output pixel depends on the same input
  pixel (arithmetic, logic, conversion, threshold, compare) runs on each
  chunk as it is (map_blocks).
* neighbourhood: a filter that reads `reach` pixels around each output
  pixel gets its chunk with exactly `reach` pixels of the neighbouring
  chunks (map_overlap without padding at the image edges); at the image
  edges the chunk is extended by the border rule, as the whole-image call
  does.
* filters: pel's filters on overlapping chunks (filter()): the overlap is
  exactly the kernel's reach, and the library reads it from memory on the
  chunk's interior sides and applies the border rule at the image edges.
  neighbourhood() does the same for any function of a padded chunk.
* tiles: resize and the warps make destination tiles; each tile reads the
  source region it needs (resize: peliResizeGetSrcRoi plus the method's
  reach; warps: the tile's corners carried back to the source, plus the
  reach), so a tile depends only on the source chunks that region touches.

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


def filter(fn, x, *args, **kwargs):
    """A pel filter (pel.filter2d, pel.box_filter, pel.median_filter,
    pel.min_filter, pel.max_filter) on every chunk: map_overlap with exactly
    the kernel's reach, no padding at the image edges. Each chunk is
    filtered as a view of its overlapped block with the interior sides
    flagged as in memory, so the library reads the neighbours' pixels there
    and applies the border rule only at the image edges: no copy, and the
    bytes of one whole-image call fn(img, *args, **kwargs)."""
    x = _spatial(x)
    left, top, right, bottom = fn.reach(*args, **kwargs)
    dy, dx = max(top, bottom), max(left, right)
    # A chunk at least as wide as the mask: a border rule reflecting at the
    # image edge then reads only pixels of its own chunk or the overlap.
    need = (2 * dy + 1, 2 * dx + 1)
    if any(min(c) < n for c, n in zip(x.chunks[:2], need)):
        x = x.rechunk({a: _at_least(c, n) for a, (c, n) in enumerate(zip(x.chunks[:2], need))})
    if not dy and not dx:
        return x.map_blocks(fn, *args, dtype=x.dtype, **kwargs)
    depth = {0: dy, 1: dx, 2: 0} if x.ndim == 3 else {0: dy, 1: dx}
    padded = da.overlap.overlap(x, depth=depth, boundary="none")
    rows, cols = x.chunks[:2]

    def run(block, block_info=None):
        (i, j), (ni, nj) = block_info[0]["chunk-location"][:2], block_info[0]["num-chunks"][:2]
        t, l = dy if i else 0, dx if j else 0
        core = block[t:t + rows[i], l:l + cols[j]]
        sides = tuple(s for s, inner in (("top", i > 0), ("bottom", i < ni - 1),
                                          ("left", j > 0), ("right", j < nj - 1)) if inner)
        return fn(core, *args, border_in_memory=sides, **kwargs)

    return padded.map_blocks(run, dtype=x.dtype, chunks=x.chunks)


def _tiles(x, size, chunks, region, tile, extra):
    """Destination tiles of size (w, h): region(offset, tile size) gives the
    source pixels (x0, y0, x1, y1) a tile reads, tile(part, (x0, y0), *extra,
    offset, tile size) makes it from them."""
    w, h = int(size[0]), int(size[1])
    if chunks is None:
        chunks = (_split(h, len(x.chunks[0])), _split(w, len(x.chunks[1])))
    else:
        chunks = da.core.normalize_chunks(chunks[:2], (h, w))
    rows = []
    y0 = 0
    for th in chunks[0]:
        row, x0 = [], 0
        for tw in chunks[1]:
            ax, ay, ex, ey = region((x0, y0), (tw, th))
            t = dask.delayed(tile)(x[ay:ey, ax:ex], (ax, ay), *extra, (x0, y0), (tw, th))
            block = da.from_delayed(t, (th, tw) + x.shape[2:], x.dtype)
            # da.block joins the innermost lists along the last axis.
            row.append([block] if x.ndim == 3 else block)
            x0 += tw
        rows.append(row)
        y0 += th
    return da.block(rows)


def _contiguous(src):
    return np.ascontiguousarray(src) if src.strides[-1] != src.itemsize else src


def _resize_tile(src, origin, spec_args, border, offset, size):
    return _geometry.resizer(*spec_args).tile(_contiguous(src), origin, offset, size, border)


def resize(x, size, interpolation="linear", border="replicate", chunks=None):
    """x resized to size = (width, height), one destination tile a chunk.
    chunks: the destination chunks (default: as many as x has)."""
    x = _spatial(x)
    H, W = x.shape[:2]
    args = (np.dtype(x.dtype), (W, H), (int(size[0]), int(size[1])), interpolation)
    r = _geometry.resizer(*args)
    bl, bt, br, bb = r.border_size

    def region(offset, tsize):
        sx, sy, sw, sh = r.src_roi(offset, tsize)
        # The region and the method's reach past it, inside the image.
        return max(sx - bl, 0), max(sy - bt, 0), min(sx + sw + br, W), min(sy + sh + bb, H)
    return _tiles(x, size, chunks, region, _resize_tile, (args, border))


def _warp_tile(src, origin, spec_args, offset, size):
    return _geometry.warper(*spec_args).tile(_contiguous(src), origin, offset, size)


def _warp(kind):
    def run(x, matrix, size=None, interpolation="linear", border="constant", value=0,
            inverse=False, cubic=(0.0, 0.75), chunks=None):
        x = _spatial(x)
        H, W = x.shape[:2]
        size = (W, H) if size is None else (int(size[0]), int(size[1]))
        m = tuple(tuple(float(v) for v in r) for r in np.asarray(matrix, np.float64))
        c = x.shape[2] if x.ndim == 3 else 1
        args = (kind, np.dtype(x.dtype), c, (W, H), size, m, interpolation, inverse, border,
                value if np.ndim(value) == 0 else tuple(value), tuple(cubic))
        # Each tile reads the source region its corners map to, widened by
        # the method's reach (the spec has no query for it).
        return _tiles(x, size, chunks, _geometry.warper(*args).src_region, _warp_tile, (args,))
    run.__doc__ = """pel.warp_%s on a dask array, one destination tile a chunk; each tile
depends only on the source chunks its region touches. chunks: the
destination chunks (default: as many as x has).""" % kind.lower()
    return run


warp_affine = _warp("Affine")
warp_perspective = _warp("Perspective")


def _at_least(chunks, n):
    """chunks with each chunk shorter than n merged into its neighbour."""
    out = []
    for c in chunks:
        if out and (out[-1] < n or c < n):
            out[-1] += c
        else:
            out.append(c)
    return tuple(out)


def _split(n, parts):
    parts = max(1, min(parts, n))
    base, extra = divmod(n, parts)
    return tuple(base + (1 if i < extra else 0) for i in range(parts))
