"""Every export of libpeli with its exact C signature.

    from pel import raw
    status = raw.peliCopy_8u_C1R(src, src.strides[0], dst, dst.strides[0], (w, h))

Each attribute is built on first use from the prototype in the headers. The
arguments are checked against it before the call, and a mismatch raises
TypeError or ValueError naming the parameter and the C type it wants:

  T* / const T*      a numpy array of T's dtype (writeable unless const), a
                     ctypes object, an int address, or None (NULL)
  T name[n]          as T*, or for a const array a sequence of n numbers
  T* const name[n]   a sequence of n of the above (planar images)
  struct by value    the ctypes structure (pel.raw.PeliSize, ...) or a tuple
  integers, floats   Python numbers within the C type's range

The call returns the C result unchanged: a PelStatus as an int (raw calls
never raise on a status; see pel.check), or an address for the functions
that return a pointer. The C type objects and the header constants are
attributes too (raw.PeliSize, raw.pelStatusBadSize, ...).
"""
import ctypes
import numpy as np

from . import _abi, _lib

ABI = _abi.Abi()
LIB, LIB_PATH = _lib.load()

_INT_RANGES = {}
for _t in (ctypes.c_int8, ctypes.c_uint8, ctypes.c_int16, ctypes.c_uint16, ctypes.c_int32,
           ctypes.c_uint32, ctypes.c_int64, ctypes.c_uint64, ctypes.c_long, ctypes.c_ulong):
    _bits = 8 * ctypes.sizeof(_t)
    _signed = _t(-1).value == -1
    _INT_RANGES[_t] = (-(1 << (_bits - 1)), (1 << (_bits - 1)) - 1) if _signed else (0, (1 << _bits) - 1)
_FLOATS = (ctypes.c_float, ctypes.c_double)


def _numpy_dtype(ctype):
    """The numpy dtype of a pointee; None when any bytes will do (opaque)."""
    if issubclass(ctype, ctypes.Structure):
        kinds = {f[1] for f in ctype._fields_}
        if len(ctype._fields_) == 2 and kinds <= {ctypes.c_float, ctypes.c_double}:
            return np.dtype(np.complex64 if ctypes.c_float in kinds else np.complex128)
        return np.dtype(ctype)
    return np.dtype(ctype)


class _Converter:
    """Checks one argument and turns it into what the ctypes call takes."""

    def __init__(self, fname, param, opaque):
        self.fname, self.p = fname, param
        self.opaque = param.base in opaque or param.ctype is None  # void*: any bytes
        self.dtype = None if self.opaque else _numpy_dtype(param.ctype)

    def fail(self, what, exc=TypeError):
        raise exc("%s: parameter %d '%s' (%s) %s" % (self.fname, self.index + 1, self.p.name,
                                                    self.p.text, what))

    def pointer(self, v, keep):
        p = self.p
        if v is None:
            return None
        if isinstance(v, np.ndarray):
            if self.opaque:
                if v.dtype != np.uint8:
                    self.fail("wants a uint8 block, got dtype %s" % v.dtype)
            elif v.dtype != self.dtype and not (v.dtype.kind == self.dtype.kind
                                                and v.dtype.itemsize == self.dtype.itemsize):
                self.fail("wants an array of %s (%s), got %s" % (p.base, self.dtype, v.dtype))
            if not p.const and not v.flags.writeable:
                self.fail("is written, but the array is read-only", ValueError)
            if p.count and v.size < p.count:
                self.fail("wants at least %d elements, got %d" % (p.count, v.size), ValueError)
            return v.ctypes.data
        if isinstance(v, ctypes._Pointer):
            return ctypes.cast(v, ctypes.c_void_p).value
        if isinstance(v, (ctypes._SimpleCData, ctypes.Structure, ctypes.Array)):
            return ctypes.addressof(v)
        if isinstance(v, int) and not isinstance(v, bool):
            return v
        if p.count and p.const and isinstance(v, (list, tuple)):
            if v and isinstance(v[0], (list, tuple)):  # T name[a][b] from rows
                v = [x for row in v for x in row]
            if len(v) != p.count:
                self.fail("wants %d values, got %d" % (p.count, len(v)), ValueError)
            arr = (p.ctype * p.count)()
            for i, x in enumerate(v):
                arr[i] = self.scalar_value(x)
            keep.append(arr)
            return ctypes.addressof(arr)
        self.fail("wants a numpy array, a ctypes object, an address or None, got %s"
                  % type(v).__name__)

    def scalar_value(self, v):
        t = self.p.ctype
        if t in _INT_RANGES:
            if isinstance(v, (bool, np.bool_)) or not isinstance(v, (int, np.integer)):
                self.fail("wants an integer, got %s" % type(v).__name__)
            lo, hi = _INT_RANGES[t]
            if not lo <= v <= hi:
                self.fail("wants a value in [%d, %d], got %d" % (lo, hi, v), ValueError)
            return int(v)
        if t in _FLOATS:
            if isinstance(v, bool) or not isinstance(v, (int, float, np.integer, np.floating)):
                self.fail("wants a number, got %s" % type(v).__name__)
            return float(v)
        return v

    def __call__(self, v, keep):
        p = self.p
        if p.ptrarray:
            if not isinstance(v, (list, tuple)) or p.ptrarray not in (-1, len(v)):
                self.fail("wants a sequence of %d pointers" % p.ptrarray)
            arr = (ctypes.c_void_p * len(v))(*[self.pointer(x, keep) for x in v])
            keep.append(arr)
            return arr
        if p.pointer:
            return self.pointer(v, keep)
        if issubclass(p.ctype, ctypes.Structure):
            if isinstance(v, p.ctype):
                return v
            if isinstance(v, (tuple, list)) and len(v) == len(p.ctype._fields_):
                return p.ctype(*[int(x) for x in v])
            self.fail("wants a %s or a tuple of %d numbers" % (p.base, len(p.ctype._fields_)))
        return self.scalar_value(v)


def argtype(param):
    """The ctypes argument type of a parameter, as the fast path passes it."""
    if param.pointer or param.ptrarray:
        return ctypes.c_void_p
    return param.ctype


class RawFunction:
    """One export: call it with the C arguments in order."""

    def __init__(self, proto):
        self.prototype = proto
        self.__name__ = proto.name
        self.__doc__ = str(proto)
        cfunc = getattr(LIB, proto.name)
        cfunc.restype = proto.restype
        cfunc.argtypes = [argtype(p) for p in proto.params]
        # The checked arguments go straight to this: the Pythonic layer calls
        # it with addresses and sizes it has already validated.
        self.cfunc = cfunc
        self._conv = []
        for i, p in enumerate(proto.params):
            c = _Converter(proto.name, p, ABI.opaque)
            c.index = i
            self._conv.append(c)

    def __call__(self, *args):
        if len(args) != len(self._conv):
            raise TypeError("%s takes %d arguments (%s), got %d" % (
                self.__name__, len(self._conv), str(self.prototype), len(args)))
        keep = []  # ctypes arrays built for this call live until it returns
        return self.cfunc(*[c(a, keep) for c, a in zip(self._conv, args)])

    def __repr__(self):
        return "<pel.raw %s>" % self.prototype


_cache = {}


def function(name):
    f = _cache.get(name)
    if f is None:
        if name not in ABI.names:
            raise AttributeError("pel.raw has no export %r" % name)
        f = _cache[name] = RawFunction(ABI.prototype(name))
    return f


def exists(name):
    return name in ABI.names


def names():
    """Every export name, sorted."""
    return sorted(ABI.names)


def __getattr__(name):
    if name in ABI.names:
        return function(name)
    if name in ABI.constants:
        return ABI.constants[name]
    t = ABI.types.get(name)
    if t is not None and name not in ABI.opaque:
        return t
    raise AttributeError("pel.raw has no attribute %r" % name)


def __dir__():
    return sorted(set(ABI.names) | set(ABI.constants) | set(globals()))
