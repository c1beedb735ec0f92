"""Finding and loading libpeli.so."""
import ctypes
import os

_HERE = os.path.dirname(os.path.abspath(__file__))
_NAME = "libpeli.so"


def _candidates():
    env = os.environ.get("PEL_LIB")
    if env:
        # A file, or the directory that holds it.
        yield os.path.join(env, _NAME) if os.path.isdir(env) else env
        return
    yield os.path.join(_HERE, _NAME)
    libdir_file = os.path.join(_HERE, "_c", "libdir.txt")
    if os.path.isfile(libdir_file):
        with open(libdir_file) as f:
            libdir = f.read().strip()
        yield os.path.normpath(os.path.join(_HERE, libdir, _NAME))
    # Running from a source tree: the release build beside it.
    repo = os.path.normpath(os.path.join(_HERE, "..", ".."))
    if os.path.isfile(os.path.join(repo, "include", "peli.h")):
        for preset in ("release", "clang", "debug", "asan"):
            yield os.path.join(repo, "build", preset, "src", _NAME)
    yield _NAME  # the system's search path (ldconfig, LD_LIBRARY_PATH)


def load():
    tried = []
    for path in _candidates():
        if os.sep in path and not os.path.isfile(path):
            tried.append(path)
            continue
        try:
            return ctypes.CDLL(path), path
        except OSError as e:
            tried.append("%s (%s)" % (path, e))
    raise ImportError("pel: cannot load %s; tried: %s. Set PEL_LIB to the "
                      "library or its directory." % (_NAME, "; ".join(tried)))
