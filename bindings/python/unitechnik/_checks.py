"""The checks of the writing calls' arguments: each takes the argument's name
for its message and raises ValueError with it, before anything reaches the
library, which trusts what it is given. Private to the package."""

import ctypes as _ctypes
import numbers as _numbers
import re as _re
from typing import Sequence as _Sequence

from . import _library


# The checks: each takes the argument's name for its message.

def _integer(name, value, bits, signed=True):
    if isinstance(value, bool) or not isinstance(value, _numbers.Integral):
        raise ValueError("%s: %r is not an integer" % (name, value))
    low, high = (-(1 << (bits - 1)), (1 << (bits - 1)) - 1) if signed else (0, (1 << bits) - 1)
    if not low <= value <= high:
        raise ValueError("%s: %d does not fit a %d-bit %s integer"
                         % (name, value, bits, "signed" if signed else "unsigned"))
    return int(value)


def _int32(name, value):
    return _integer(name, value, 32)


def _uint16(name, value):
    return _integer(name, value, 16, signed=False)


def _real(name, value):
    if isinstance(value, bool) or not isinstance(value, _numbers.Real):
        raise ValueError("%s: %r is not a number" % (name, value))
    return float(value)


def _flag(name, value):
    if not isinstance(value, bool):
        raise ValueError("%s: %r is not True or False" % (name, value))
    return value


def _text(name, value):
    if not isinstance(value, str):
        raise ValueError("%s: %r is not a str" % (name, value))
    if "\0" in value:
        raise ValueError("%s: a text holds a NUL character" % name)
    return _library.text(value)


def _date(name, value):
    """The library reads the date by position, dd.mm.yyyy, each part as a
    decimal number that may have blanks and a sign in front. A text too short
    or a part without a digit ends setProjectData at the first order without
    a word: that order keeps most of its old texts and the orders behind it
    all of theirs. setProjectData gives nothing back, so the rule is checked
    here, before the call, to raise instead."""
    units = value.encode("utf-16-le", "surrogatepass")
    value = "".join(chr(units[i] | units[i + 1] << 8) for i in range(0, len(units), 2))
    parts = (value[0:2], value[3:5], value[6:10])
    if len(value) < 6 or not all(_re.match(r"[ \t\n\v\f\r]*[+-]?[0-9]", part) for part in parts):
        raise ValueError("%s: %r is not a date dd.mm.yyyy" % (name, value))


def _sequence(name, value, length=None):
    if isinstance(value, (str, bytes)) or not isinstance(value, _Sequence):
        raise ValueError("%s: %r is not a sequence" % (name, value))
    if length is not None and len(value) != length:
        raise ValueError("%s: %d items, where %d belong" % (name, len(value), length))
    return value


def _int32s(name, values, length=None):
    return [_int32("%s[%d]" % (name, i), v) for i, v in enumerate(_sequence(name, values, length))]


def _points(name, points, most):
    """An outline's points as one flat list of x and y. One point or none
    make an outline of no pieces, as the library adds it; the count must fit
    the export's."""
    _sequence(name, points)
    if len(points) > most:
        raise ValueError("%s: %d points, where at most %d belong" % (name, len(points), most))
    flat = []
    for i, point in enumerate(points):
        flat.extend(_int32s("%s[%d]" % (name, i), point, 2))
    return flat


def _int32_array(values):
    # Never a null pointer, also for no values.
    return (_ctypes.c_int32 * max(len(values), 1))(*values)
