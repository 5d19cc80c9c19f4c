"""The shared library and its exports as ctypes sees them.

The library is looked for, in this order: the file named by the environment
variable ITUNITECHNIK_LIBRARY; a copy beside this package (itunitechnik.dll,
libitunitechnik.so or one of its versioned names); the system's loader, by
the name the library was built with (libitunitechnik.so.<major>, or
itunitechnik.dll on Windows). The reading library (_reading.py) is found the
same ways, through find().

Texts are zero-terminated 16-bit code units on every platform, so they are
built as arrays of c_uint16 and never as c_wchar_p, which is 32 bits wide on
Linux.
"""

import ctypes
import os
import sys

from ._version import __version__

ENVIRONMENT_VARIABLE = "ITUNITECHNIK_LIBRARY"

_HERE = os.path.dirname(os.path.abspath(__file__))
_MAJOR = __version__.split(".")[0]


def names(base):
    """The names a library of the project has beside the package and for the
    system's loader: (names beside, name for the loader)."""
    if sys.platform == "win32":
        return (base + ".dll",), base + ".dll"
    return ("lib%s.so.%s" % (base, _MAJOR), "lib%s.so" % base), "lib%s.so.%s" % (base, _MAJOR)


_BESIDE, _SYSTEM = names("itunitechnik")

Char16 = ctypes.c_uint16
Text = ctypes.POINTER(Char16)


class CutoutBlock(ctypes.Structure):
    """ItCutoutBlock of the header."""

    _fields_ = [
        ("cutoutName", Text),
        ("cutoutValue", ctypes.c_double),
        ("pointCount", ctypes.c_uint16),
    ]


class BarBlock(ctypes.Structure):
    """ItBarBlock of the header; the unused bytes are never read."""

    _fields_ = [
        ("extraDesignation", Text),
        ("designation", Text),
        ("auxFourth", ctypes.c_int32),
        ("auxFifth", ctypes.c_int32),
        ("auxSixth", ctypes.c_int32),
        ("thirdSize", ctypes.c_int32),
        ("positionX", ctypes.c_int32),
        ("positionY", ctypes.c_int32),
        ("positionZ", ctypes.c_int32),
        ("firstSize", ctypes.c_uint16),
        ("secondSize", ctypes.c_uint16),
        ("rotation", ctypes.c_int16),
        ("auxFirst", ctypes.c_uint16),
        ("unused52", ctypes.c_uint8 * 2),
        ("segmentCount", ctypes.c_uint16),
        ("rodKind", ctypes.c_uint8),
        ("notMounted", ctypes.c_uint8),
        ("unused58", ctypes.c_uint8 * 2),
        ("bendingCode", ctypes.c_uint8),
        ("unused61", ctypes.c_uint8 * 3),
    ]


class FreeFormSegment(ctypes.Structure):
    """ItFreeFormSegment of the header."""

    _fields_ = [
        ("length", ctypes.c_int32),
        ("angle", ctypes.c_int16),
        ("unused6", ctypes.c_uint8 * 2),
    ]


_I32 = ctypes.c_int32
_U16 = ctypes.c_uint16
_F64 = ctypes.c_double
_I32_P = ctypes.POINTER(ctypes.c_int32)

# Each export: its result and its arguments, as in itunitechnik.h.
PROTOTYPES = {
    "startOrder": (_I32, [_U16, _I32, ctypes.POINTER(_F64), _U16, Text, _F64, ctypes.c_bool]),
    "endDocument": (_I32, [Text]),
    "setProjectData": (None, [ctypes.POINTER(Text)]),
    "setSlabInfoFields": (None, [Text, Text, Text, Text]),
    "setThicknesses": (None, [_I32, _I32]),
    "setDoubleWallGap": (None, [_I32]),
    "addLayer": (None, [_U16, _F64, _F64, _F64, Text]),
    "addContour": (None, [_I32, _I32_P]),
    "addCutout": (None, [ctypes.POINTER(CutoutBlock), _I32_P]),
    "addSet": (_I32, [_I32, Text, _I32, _I32_P]),
    "addSteelmat": (_I32, [Text, _I32, _I32, _I32, _I32, _I32, _I32_P]),
    "addCFSRodstock": (_I32, [_I32, Text, _I32, _I32, _I32, _I32_P, _I32, _I32, Text,
                              _I32, _I32, _I32, _I32, _I32]),
    "addStraightRodstock": (None, [ctypes.POINTER(BarBlock)]),
    "addFreeFormRodstock": (None, [ctypes.POINTER(BarBlock), ctypes.POINTER(FreeFormSegment)]),
    "addExtIron": (_I32, [_I32, _I32, _F64, Text]),
    "getFullReinforcementString": (Text, []),
    "freeFullReinforcementString": (None, [Text]),
}


def candidates(variable=ENVIRONMENT_VARIABLE, beside=_BESIDE, system=_SYSTEM):
    """The paths and names tried, in order: the environment variable's file,
    the copies beside the package, the name for the system's loader."""
    found = []
    named = os.environ.get(variable)
    if named:
        found.append(named)
    for name in beside:
        path = os.path.join(_HERE, name)
        if os.path.exists(path):
            found.append(path)
    found.append(system)
    return found


def find(base, variable):
    """The first of the places of candidates() that loads, for the library
    named base (libBASE.so.<major>, BASE.dll); OSError names every place
    tried."""
    beside, system = names(base)
    tried = []
    for candidate in candidates(variable, beside, system):
        try:
            return ctypes.CDLL(candidate)
        except OSError as error:
            tried.append("%s (%s)" % (candidate, error))
    raise OSError("the %s library was not found; set %s to its path. Tried: %s"
                  % (base, variable, "; ".join(tried)))


_loaded = []


def library():
    """The library, loaded on first use with its exports declared; OSError
    names every place tried."""
    if not _loaded:
        _loaded.append(_load())
    return _loaded[0]


def _load():
    library = find("itunitechnik", ENVIRONMENT_VARIABLE)
    declare(library, PROTOTYPES)
    return library


def declare(library, prototypes):
    """Gives each export of prototypes its result and argument types."""
    for name, (result, arguments) in prototypes.items():
        function = getattr(library, name)
        function.restype = result
        function.argtypes = arguments


def text(value):
    """A str as a zero-terminated array of 16-bit code units."""
    units = value.encode("utf-16-le", "surrogatepass")
    return (Char16 * (len(units) // 2 + 1)).from_buffer_copy(units + b"\0\0")


def read_text(pointer):
    """The zero-terminated 16-bit text at pointer as a str."""
    length = 0
    while pointer[length] != 0:
        length += 1
    return ctypes.string_at(pointer, 2 * length).decode("utf-16-le", "surrogatepass")
