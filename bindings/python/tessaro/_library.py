"""Finds the shared library and gives its functions their types."""

import ctypes
import ctypes.util
import os
import sys

_here = os.path.dirname(os.path.abspath(__file__))

# 32-bit Windows: the library removes its arguments itself. Elsewhere there is one convention.
_stdcall = sys.platform == "win32" and ctypes.sizeof(ctypes.c_void_p) == 4
_load = ctypes.WinDLL if _stdcall else ctypes.CDLL
_function_type = ctypes.WINFUNCTYPE if _stdcall else ctypes.CFUNCTYPE


def _candidates():
    """Where the library may be: beside the package, where the environment says, where the system looks."""
    name = "tessaro.dll" if sys.platform == "win32" else "libtessaro.so"
    beside = os.path.join(_here, name)
    if os.path.exists(beside):
        yield beside
        return
    named = os.environ.get("TESSARO_LIBRARY")
    if named:
        yield named
        return
    found = ctypes.util.find_library("tessaro")
    if found:
        yield found
    yield name if sys.platform == "win32" else name + ".0"


def _find():
    tried = []
    for path in _candidates():
        try:
            return _load(path), path
        except OSError as error:
            tried.append(f"{path}: {error}")
    raise ImportError(
        "tessaro: the shared library cannot be loaded. Install a wheel, which has it inside, or set "
        "TESSARO_LIBRARY to its path. Tried:\n  " + "\n  ".join(tried)
    )


library, path = _find()


def function(name, result, *parameters):
    """A function of the library. Other threads run while it works."""
    try:
        found = getattr(library, name)
    except AttributeError:
        raise ImportError(f"tessaro: {path} has no {name}: it is older than this package") from None
    found.restype = result
    found.argtypes = parameters
    return found


def callback(convention, result, *parameters):
    """The type of a function that the library calls."""
    make = ctypes.CFUNCTYPE if convention == "cdecl" else _function_type
    return make(result, *parameters)
