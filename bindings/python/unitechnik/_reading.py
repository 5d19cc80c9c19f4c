"""Reading: any Unitechnik file read by the reading library
(itunitechnik_reading.h) and given back as dataclasses.

The library is found as the writing one is (_library.find): the file named
by ITUNITECHNIK_READING_LIBRARY, a copy beside the package
(libitunitechnik_reading.so.<major>, libitunitechnik_reading.so,
itunitechnik_reading.dll), then the system's loader
(libitunitechnik_reading.so.<major>). It hands back UTF-8 JSON; this module
asks it for the plant's view when a file is read, and for the records and the
bill only when they are first wanted, from the same bytes.
"""

import contextlib
import ctypes
import gc
import json
import os
from dataclasses import dataclass, field
from typing import Any, List, Optional, Tuple

from . import _library, _plant

ENVIRONMENT_VARIABLE = "ITUNITECHNIK_READING_LIBRARY"

# The parts of a result, as the header's ITR_RECORDS, ITR_PLANT, ITR_BOM.
RECORDS = 1
PLANT = 2
BOM = 4

_Result = ctypes.c_void_p
PROTOTYPES = {
    "itrReadFile": (_Result, [ctypes.c_char_p, ctypes.c_int]),
    "itrReadBytes": (_Result, [ctypes.c_char_p, ctypes.c_size_t, ctypes.c_int]),
    "itrOk": (ctypes.c_int, [_Result]),
    "itrJson": (ctypes.c_void_p, [_Result]),
    "itrFree": (None, [_Result]),
    "itrPlantMeanings": (ctypes.c_void_p, []),
}

_loaded = []


def library():
    """The reading library, loaded on first use with its calls declared;
    OSError names every place tried."""
    if not _loaded:
        found = _library.find("itunitechnik_reading", ENVIRONMENT_VARIABLE)
        _library.declare(found, PROTOTYPES)
        _loaded.append(found)
    return _loaded[0]


def _taken(result):
    """The JSON text of a result as bytes; the result is handed back."""
    if not result:
        raise MemoryError("the reading library ran out of memory")
    try:
        return ctypes.string_at(library().itrJson(result))
    finally:
        library().itrFree(result)


def json_of_bytes(data, parts):
    """The library's JSON text (bytes) for a file held in memory."""
    return _taken(library().itrReadBytes(data, len(data), parts))


def json_of_file(path, parts):
    """The library's JSON text (bytes) for the file at path."""
    return _taken(library().itrReadFile(_utf8_path(path), parts))


def _utf8_path(path):
    if isinstance(path, bytes):
        return path
    if os.name == "nt":
        return path.encode("utf-8", "surrogatepass")
    return os.fsencode(path)


@contextlib.contextmanager
def _without_collection():
    """The cyclic collector held off while a result becomes objects: they
    hold no cycles, and it would walk the many new ones again and again (a
    large file reads in about half the time without it)."""
    enabled = gc.isenabled()
    gc.disable()
    try:
        yield
    finally:
        if enabled:
            gc.enable()


# What a read file holds beyond the plant's view, asked of the library when
# first wanted: the records (large: several times the file) and the bill.

class _Source:
    """The bytes of a read file and what has been asked of them."""

    def __init__(self, data):
        self.data = data
        self._records = None
        self._bill = None

    def records(self):
        if self._records is None:
            text = json_of_bytes(self.data, RECORDS)
            with _without_collection():
                self._records = json.loads(text)["document"]
        return self._records

    def bill(self):
        if self._bill is None:
            self._bill = json_of_bytes(self.data, BOM)
        # A fresh copy each time: the caller may change it.
        return json.loads(self._bill)["bom"]


class ReadError(Exception):
    """A file that does not read to its end: cut off, broken, or not there.

    path is the path given to read() (None for read_bytes); line and column,
    from 1, are where the reading stopped, both 0 where there is no place
    (a file that cannot be opened); message says what was expected there.
    file is what was read before the stop, as a File (None when the file
    could not be opened)."""

    def __init__(self, message, path=None, line=0, column=0, file=None):
        self.message = message
        self.path = path
        self.line = line
        self.column = column
        self.file = file
        place = "%d:%d" % (line, column)
        super().__init__("%s:%s: %s" % (os.fspath(path), place, message) if path is not None
                         else "%s: %s" % (place, message))


# The pieces of an outline. Their kind is a field too, as the library names
# it: "line", "arc", "circle", "polygon", or "none" for a piece without a
# curve. A line's "from" is from_ here, as Python keeps the word.

@dataclass
class Piece:
    """A piece of an outline that carries no curve."""

    kind: str = field(init=False, default="none")


@dataclass
class Line(Piece):
    """A straight piece from the point from_ to the point to, (x, y) in mm."""

    kind: str = field(init=False, default="line")
    from_: Tuple[int, int] = (0, 0)
    to: Tuple[int, int] = (0, 0)


@dataclass
class Circle(Piece):
    """A whole circle: its centre (x, y) and radius, in mm."""

    kind: str = field(init=False, default="circle")
    centre: Tuple[int, int] = (0, 0)
    radius: int = 0


@dataclass
class Polygon(Piece):
    """A polygon: its points, each (x, y) in mm."""

    kind: str = field(init=False, default="polygon")
    points: List[Tuple[int, int]] = field(default_factory=list)


@dataclass
class Contour:
    """An outline of the element: its number and its pieces."""

    number: int
    pieces: List[Piece]


@dataclass
class Order:
    """An order: its number (the order's text), the format version it was
    written at, and its elements. record is the order's record as
    `unitechnik dump --json` prints it, elements included."""

    number: str
    version: int
    elements: List[Any]

    @property
    def record(self):
        return self._source.records()["orders"][self._index]


@dataclass
class File:
    """A read file: its orders, the names of what it needed of the tolerant
    reading (departures), and how many of its lines end in a bare line feed.
    records is every record, as `unitechnik dump --json` prints it under
    "document"; bom() is the bill of materials as `unitechnik bom --json`
    prints it. Both are read from the file's bytes when first wanted."""

    orders: List[Order]
    departures: List[str]
    bare_line_ends: int
    path: Optional[str] = None

    @property
    def records(self):
        return self._source.records()

    def bom(self):
        """The bill of materials as `unitechnik bom --json` prints it:
        "elements" (each with its bars, girders, mats, externalIrons,
        mountedParts, concreteLayers and totals), "steelWeight" and
        "concreteMass". A new copy each call."""
        return self._source.bill()


def _pair(value):
    return (value[0], value[1])


def _piece(value, classes):
    kind = value["kind"]
    if kind == "line":
        return Line(from_=_pair(value["from"]), to=_pair(value["to"]))
    if kind == "arc":
        value = dict(value, centre=_pair(value["centre"]))
        del value["kind"]
        return classes.make("Arc", value)
    if kind == "circle":
        return Circle(centre=_pair(value["centre"]), radius=value["radius"])
    if kind == "polygon":
        return Polygon(points=[_pair(point) for point in value["points"]])
    if kind == "none" and len(value) == 1:
        return Piece()
    raise ValueError("the reading library gave a piece this package does not know: %r" % (value,))


def _pieces(values, classes):
    return [_piece(value, classes) for value in values]


def _with_pieces(value, classes):
    value["pieces"] = _pieces(value["pieces"], classes)
    return value


def _bar_sets(values, classes):
    bar_set, segment = classes.maker("BarSet"), classes.maker("Segment")
    sets = []
    for value in values:
        if value["segments"]:
            value["segments"] = [segment(leg) for leg in value["segments"]]
        sets.append(bar_set(value))
    return sets


def _girder_groups(values, classes):
    girder_group = classes.maker("GirderGroup")
    return [girder_group(value) for value in values]


def _element(value, classes):
    make = classes.make
    value["extents"] = _pair(value["extents"])
    value["contours"] = [Contour(number=contour["number"], pieces=_pieces(contour["pieces"], classes))
                         for contour in value["contours"]]
    value["cutouts"] = [make("Opening", _with_pieces(cutout, classes)) for cutout in value["cutouts"]]
    value["parts"] = [make("Part", _with_pieces(part, classes)) for part in value["parts"]]
    value["bars"] = _bar_sets(value["bars"], classes)
    value["girders"] = _girder_groups(value["girders"], classes)
    for mat in value["mats"]:
        mat["bars"] = _bar_sets(mat["bars"], classes)
        mat["girders"] = _girder_groups(mat["girders"], classes)
    value["mats"] = [make("Mat", mat) for mat in value["mats"]]
    value["irons"] = [make("Iron", iron) for iron in value["irons"]]
    value["layers"] = [make("Layer", layer) for layer in value["layers"]]
    return make("Element", value)


def _file(result, source, path):
    classes = _plant.classes()
    orders = []
    for i, order_value in enumerate(result["plant"]["orders"]):
        elements = []
        for j, element_value in enumerate(order_value["elements"]):
            element = _element(element_value, classes)
            element._source, element._place = source, (i, j)
            elements.append(element)
        order = Order(number=order_value["number"], version=order_value["version"], elements=elements)
        order._source, order._index = source, i
        orders.append(order)
    file = File(orders=orders, departures=result["departures"], bare_line_ends=result["bareLineEnds"],
                path=path)
    file._source = source
    return file


def _read(data, path):
    text = json_of_bytes(data, PLANT)
    with _without_collection():
        result = json.loads(text)
        if result["ok"]:
            return _file(result, _Source(data), path)
    error = result["error"] or {"line": 0, "column": 0, "message": "the file did not read to its end"}
    if "plant" not in result:
        # The library failed inside (memory): nothing was read.
        raise ReadError(error["message"], path, error["line"], error["column"])
    with _without_collection():
        file = _file(result, _Source(data), path)
    raise ReadError(error["message"], path, error["line"], error["column"], file)


def read(path):
    """Reads the Unitechnik file at path (a str or os.PathLike) and returns a
    File. ReadError when the file does not read to its end, or cannot be
    opened (line and column 0 then)."""
    if isinstance(path, os.PathLike):
        path = os.fspath(path)
    if not isinstance(path, (str, bytes)):
        raise ValueError("path: %r is not a path" % (path,))
    try:
        with open(path, "rb") as stream:
            data = stream.read()
    except OSError as error:
        # The library's own words, as every host gets them.
        result = json.loads(json_of_file(path, 0))
        message = result["error"]["message"] if result["error"] else "cannot read: %s" % (error.strerror,)
        raise ReadError(message, path) from None
    return _read(data, path)


def read_bytes(data):
    """Reads a Unitechnik file held in memory (bytes, bytearray or
    memoryview) and returns a File; ReadError when it does not read to its
    end."""
    if isinstance(data, (bytearray, memoryview)):
        data = bytes(data)
    if not isinstance(data, bytes):
        raise ValueError("data: %r is not bytes" % (type(data),))
    return _read(data, None)


def meanings():
    """The table of what the plant reads in each numbered member, as the
    reading library serves it: a list of dicts with "record", "member",
    "name", "meaning" and "unit". A new copy each call."""
    return json.loads(ctypes.string_at(library().itrPlantMeanings()))
