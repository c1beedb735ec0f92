"""The C interface as data: prototypes, types and constants read from the
public headers, restricted to the names the export tables declare.

Nothing here is written per export. The headers are the one place where a
prototype is written by hand, so reading them means a family that lands
with its header and table is reachable from Python without a change here.

Where the text comes from, in order:
  PEL_INCLUDE / PEL_EXPORTS   a header directory and a names file, if set;
  <package>/_c/               the copies an install puts beside the package;
  <repository>/include, src/  when the package runs from a source tree.
"""
import ctypes
import glob
import os
import re

_HERE = os.path.dirname(os.path.abspath(__file__))
_REPO = os.path.normpath(os.path.join(_HERE, "..", ".."))

# C scalar types that the headers build on; every typedef resolves to one.
_SCALARS = {
    "void": None,
    "char": ctypes.c_char,
    "int": ctypes.c_int,
    "unsigned": ctypes.c_uint,
    "uint8_t": ctypes.c_uint8, "int8_t": ctypes.c_int8,
    "uint16_t": ctypes.c_uint16, "int16_t": ctypes.c_int16,
    "uint32_t": ctypes.c_uint32, "int32_t": ctypes.c_int32,
    "uint64_t": ctypes.c_uint64, "int64_t": ctypes.c_int64,
    "intptr_t": ctypes.c_ssize_t, "size_t": ctypes.c_size_t,
    "float": ctypes.c_float, "double": ctypes.c_double,
}


def _header_dir():
    env = os.environ.get("PEL_INCLUDE")
    if env:
        return env
    for d in (os.path.join(_HERE, "_c"), os.path.join(_REPO, "include")):
        if os.path.isfile(os.path.join(d, "peli.h")):
            return d
    raise ImportError("pel: cannot find peli.h (set PEL_INCLUDE to the "
                      "directory of the installed headers)")


def _export_names(header_dir):
    """The exported names: the export tables of a source tree, or the names
    file an install writes. None means 'every prototype in the headers'."""
    env = os.environ.get("PEL_EXPORTS")
    files = [env] if env else []
    if not files:
        local = os.path.join(_HERE, "_c", "peli_exports.txt")
        if os.path.isfile(local):
            files = [local]
    if files:
        with open(files[0]) as f:
            return set(f.read().split())
    tables = glob.glob(os.path.join(_REPO, "src", "*", "*_exports.inc"))
    if not tables:
        return None
    names = set()
    for t in tables:
        with open(t) as f:
            names.update(re.findall(r"^\s*PEL_EXPORT\((\w+)\s*,", f.read(), re.M))
    return names


_PROTO_RX = re.compile(r"(?:PELI_API\s+)?((?:const\s+)?\w+\s*\**)\s*\b((?:peli|pelr)\w+)\s*\(([^;{()]*)\)\s*;")


def _strip(text):
    text = re.sub(r"/\*.*?\*/", " ", text, flags=re.S)
    text = re.sub(r"//[^\n]*", " ", text)
    return re.sub(r"^\s*#[^\n]*", " ", text, flags=re.M)


class Param:
    """One parameter of a prototype.

    base     the element or struct type name as written (Pel8u, PeliSize, ...)
    ctype    the ctypes type of the pointee or of the value
    pointer  True for T*, and for T name[n] (an array decays to a pointer)
    const    the pointee is const (the function only reads it)
    count    n of T name[n] (0 for a plain T*); None when not an array
    ptrarray n of T* const name[n]: an array of n pointers (planar images)
    """
    __slots__ = ("name", "base", "ctype", "pointer", "const", "count", "ptrarray", "text")

    def __init__(self, name, base, ctype, pointer, const, count, ptrarray, text):
        self.name, self.base, self.ctype = name, base, ctype
        self.pointer, self.const, self.count = pointer, const, count
        self.ptrarray, self.text = ptrarray, text

    def __repr__(self):
        return self.text


class Prototype:
    __slots__ = ("name", "restype", "restype_text", "params")

    def __init__(self, name, restype, restype_text, params):
        self.name, self.restype, self.restype_text, self.params = name, restype, restype_text, params

    def __str__(self):
        return "%s %s(%s)" % (self.restype_text, self.name,
                              ", ".join(p.text for p in self.params) or "void")


class Abi:
    """Types, constants and prototypes of the headers."""

    def __init__(self, header_dir=None):
        header_dir = header_dir or _header_dir()
        files = [os.path.join(header_dir, "peli.h")]
        files += sorted(glob.glob(os.path.join(header_dir, "peli_*.h")))
        text = ""
        for path in files:
            with open(path) as f:
                text += _strip(f.read()) + "\n"
        self.types = dict(_SCALARS)
        self.opaque = set()
        self.constants = {}
        self._parse_types(text)
        self._parse_constants(text)
        names = _export_names(header_dir)
        # Parameters are read when a function is first used: importing stays
        # cheap with thousands of prototypes.
        self._text = {}
        for m in _PROTO_RX.finditer(text):
            if names is None or m.group(2) in names:
                self._text[m.group(2)] = (m.group(1).strip(), m.group(3).strip())
        self.names = frozenset(self._text)
        self.missing = sorted(names - self.names) if names else []
        self._protos = {}

    # -- types ---------------------------------------------------------------
    def _parse_types(self, text):
        # One pass in the order of the text: a struct may use a typedef above it.
        rx = re.compile(r"typedef\s+(?:struct\s*\w*\s*\{([^}]*)\}|struct\s+(\w+)|enum\s*\w*\s*\{[^}]*\}|((?:unsigned\s+)?\w+))\s*(\w+)\s*;")
        for m in rx.finditer(text):
            body, tag, alias, name = m.groups()
            if body is not None:
                try:
                    self.types[name] = self._struct(name, body)
                except KeyError:  # a member of a type we do not know: opaque
                    self.opaque.add(name)
                    self.types[name] = ctypes.c_uint8
            elif tag is not None:
                self.opaque.add(name)
                self.types[name] = ctypes.c_uint8  # only ever behind a pointer
            elif alias is None:  # typedef enum {...} Name
                self.types[name] = ctypes.c_int
            else:
                base = alias.split()[-1]
                if base in self.types:
                    self.types[name] = self.types[base]

    def _struct(self, name, body):
        fields = []
        for decl in body.split(";"):
            decl = " ".join(decl.split())
            if not decl:
                continue
            dm = re.match(r"(?:const\s+)?(\w+)\s*(\*?)\s*(.+)$", decl)
            base = ctypes.c_void_p if dm.group(2) else self.types[dm.group(1)]
            for field in dm.group(3).split(","):
                field = field.strip()
                am = re.match(r"(\**)\s*(\w+)\s*(?:\[\s*(\d+)\s*\])?$", field)
                ftype = ctypes.c_void_p if am.group(1) else base
                if am.group(3):
                    ftype = ftype * int(am.group(3))
                fields.append((am.group(2), ftype))
        return type(name, (ctypes.Structure,), {"_fields_": fields})

    def _parse_constants(self, text):
        for body in re.findall(r"enum\s*\w*\s*\{([^}]*)\}", text):
            value = -1
            for item in body.split(","):
                item = item.strip()
                if not item:
                    continue
                m = re.match(r"(\w+)\s*(?:=\s*(.+))?$", item, re.S)
                if m.group(2) is not None:
                    try:
                        value = int(eval(m.group(2).strip(), {"__builtins__": {}},
                                         dict(self.constants)))
                    except Exception:  # an expression we cannot evaluate: skip it
                        continue
                else:
                    value += 1
                self.constants[m.group(1)] = value

    # -- prototypes ----------------------------------------------------------
    def _param(self, text):
        text = " ".join(text.split())
        m = re.match(r"(const\s+)?(\w+)\s*(\*?)\s*(const\s*)?(\w+)\s*((?:\[\s*\d*\s*\]\s*)*)$", text)
        if not m:
            raise ValueError("pel: cannot read the parameter %r" % text)
        const, base, star, _, name, dims = m.groups()
        if base not in self.types:
            raise ValueError("pel: unknown type %r in %r" % (base, text))
        is_array = bool(dims)
        n = 0
        if is_array:
            # T name[a][b] is a pointer to a*b elements; an empty [] counts 0.
            sizes = [int(d) if d else 0 for d in re.findall(r"\[\s*(\d*)\s*\]", dims)]
            n = 1
            for d in sizes:
                n *= d
        if star and is_array:  # T* const name[n]: n plane pointers (-1: any n)
            return Param(name, base, self.types[base], True, bool(const), None, n or -1, text)
        return Param(name, base, self.types[base], bool(star) or is_array, bool(const),
                     n if is_array else None, 0, text)

    def prototype(self, name):
        proto = self._protos.get(name)
        if proto is None:
            ret, args = self._text[name]
            params = [] if args in ("", "void") else [self._param(a) for a in args.split(",")]
            if ret.endswith("*"):
                restype = ctypes.c_void_p
            else:
                restype = self.types.get(ret.replace("const", "").strip())
            proto = self._protos[name] = Prototype(name, restype, " ".join(ret.split()), params)
        return proto
