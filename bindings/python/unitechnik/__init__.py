"""Unitechnik CAD/CAM production files for precast-concrete plants, written
by the itunitechnik library, from Python.

Every export of itunitechnik.h is a function here, with keyword arguments
and Python types: texts are str, points are (x, y) pairs, the blocks are
dataclasses. Each argument is checked before anything reaches the library,
which trusts what it is given; an argument that does not fit raises
ValueError with its name. summary() gives the reinforcement summary as a str
and gives the library's memory back.

The library holds one document per process. Document is a context manager
over it: its first order drops what was there before, and the file is
written when the block ends without an exception:

    with unitechnik.Document("slab.uni") as document:
        document.start_order(order_value=1, element_number=101,
                             placement=[(0, 0, 0), (6000, 0, 0), (0, 2400, 0)],
                             version=600, element_text="Floor slab", element_measure=1.25)
        document.add_contour(points=[(0, 0), (6000, 0), (6000, 2400), (0, 2400), (0, 0)])

The plant's names write bars and girders too: add_bar_set(count=12,
diameter=10, length=5600, pitch=150, x=200, y=300, z=40, rotation=0,
grade="500") fills the bar record's members that the reading library's table
of meanings names.

read(path) and read_bytes(data) read any Unitechnik file through the reading
library (itunitechnik_reading) and give a File: its orders, elements, and
each element's outlines, bar sets, girder groups, mats, irons and layers, as
dataclasses whose fields are the plant's names; File.bom() is the bill of
materials. A file that does not read raises ReadError with the line and
column where the reading stopped:

    for order in unitechnik.read("slab.uni").orders:
        for element in order.elements:
            for bars in element.bars:
                print(element.number, bars.count, bars.diameter, bars.length)

The classes of the plant's view whose fields are the table's names (BarSet,
GirderGroup, Mat, ...) are made from the table when first used, which loads
the reading library.
"""

# Only the API's names are public: what the package imports is private.
import ctypes as _ctypes
import dataclasses as _dataclasses
import inspect as _inspect
import numbers as _numbers
import os as _os
import re as _re
from dataclasses import dataclass as _dataclass, fields as _fields
from typing import Sequence as _Sequence, Tuple as _Tuple

from . import _library, _plant
from ._reading import Circle, Contour, File, Line, Order, Piece, Polygon, ReadError, read, read_bytes
from ._reading import meanings as plant_meanings
from ._version import __version__

# The reading's classes are the package's: tracebacks and reprs say so.
for _class in (Circle, Contour, File, Line, Order, Piece, Polygon, ReadError):
    _class.__module__ = __name__
del _class

__all__ = [
    # Writing.
    "Bar", "BracedGirder", "Cutout", "Document", "FreeFormSegment", "ProjectData",
    "add_bar_set", "add_braced_girders", "add_cfs_rodstock", "add_contour", "add_cutout", "add_ext_iron",
    "add_free_form_rodstock", "add_girder_group", "add_layer", "add_mat_bar_set", "add_mounting_part",
    "add_set", "add_steelmat", "add_straight_rodstock", "end_document", "set_double_wall_gap",
    "set_project_data", "set_slab_info_fields", "set_thicknesses", "start_order", "summary",
    # Reading.
    "Circle", "Contour", "File", "Line", "Order", "Piece", "Polygon", "ReadError", "plant_meanings", "read",
    "read_bytes",
    # Reading: made from the table of meanings when first used (__getattr__).
    *_plant.NAMES,
    "__version__",
]


def __getattr__(name):
    # The classes whose fields are the table's names, made on first use.
    if name in _plant.NAMES:
        return _plant.classes().by_name[name]
    raise AttributeError("module %r has no attribute %r" % (__name__, name))


def __dir__():
    # What the module holds, and the classes made on first use.
    return sorted(set(globals()) | set(__all__))


_PROJECT_TEXT_COUNT = 19
_DATE_INDEX = 16
_MOUNTING_PART = 3
_BRACED_GIRDERS = 5


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


# The blocks and the records a host states as a whole.

@_dataclass
class ProjectData:
    """The order's texts, project, addresses and date, as setProjectData takes them."""

    order_number: str = ""  # empty: the library writes "12345678"
    order_text5: str = ""
    order_text4: str = ""
    order_text8: str = ""
    project_text1: str = ""
    project_text2: str = ""
    project_text3: str = ""
    project_text4: str = ""
    first_address1: str = ""
    first_address2: str = ""
    first_address3: str = ""
    first_address4: str = ""
    second_address1: str = ""
    second_address2: str = ""
    second_address3: str = ""
    second_address4: str = ""
    date: str = ""  # dd.mm.yyyy, read by position: set_project_data needs one
    order_text2: str = ""
    order_text40: str = ""

    def texts(self):
        """The 19 texts in the order of the block."""
        return [getattr(self, field.name) for field in _fields(self)]


@_dataclass
class Cutout:
    """An opening: ItCutoutBlock and its points."""

    name: str
    value: float
    points: _Sequence[_Tuple[int, int]]


@_dataclass
class FreeFormSegment:
    """One segment of a free-form bar: ItFreeFormSegment."""

    length: int
    angle: int


@_dataclass
class Bar:
    """A loose bar: ItBarBlock. A straight bar takes the designation, sizes,
    position, rotation, kind and aux_sixth; a free-form bar takes everything."""

    designation: str
    position: _Tuple[int, int] = (0, 0)
    position_z: int = 0
    first_size: int = 0
    second_size: int = 0
    third_size: int = 0
    rotation: int = 0
    rod_kind: int = 0
    aux_sixth: int = 0
    extra_designation: str = ""
    aux_first: int = 0
    aux_fourth: int = 0
    aux_fifth: int = 0
    mounted: bool = True
    bending_code: int = 0  # 2: the segments make the free form


@_dataclass
class BracedGirder:
    """One braced girder: the ten numbers of a group of add_set's kind 5."""

    type_number: int
    first_size: int
    position: _Tuple[int, int]
    position_z: int = 0
    rotation: int = 0
    aux_number: int = 0
    short_number: int = 0
    value_thousandths: int = 0  # the file holds this divided by 1000
    last_number: int = 0

    def values(self, name):
        x, y = _int32s(name + ".position", self.position, 2)
        return [_int32(name + ".type_number", self.type_number), _int32(name + ".first_size", self.first_size),
                x, y, _int32(name + ".position_z", self.position_z), _int32(name + ".rotation", self.rotation),
                _int32(name + ".aux_number", self.aux_number), _int32(name + ".short_number", self.short_number),
                _int32(name + ".value_thousandths", self.value_thousandths),
                _int32(name + ".last_number", self.last_number)]


def _bar_block(name, bar, segment_count):
    if not isinstance(bar, Bar):
        raise ValueError("%s: %r is not a Bar" % (name, bar))
    x, y = _int32s(name + ".position", bar.position, 2)
    texts = (_text(name + ".extra_designation", bar.extra_designation), _text(name + ".designation", bar.designation))
    block = _library.BarBlock(
        extraDesignation=_ctypes.cast(texts[0], _library.Text),
        designation=_ctypes.cast(texts[1], _library.Text),
        auxFourth=_int32(name + ".aux_fourth", bar.aux_fourth),
        auxFifth=_int32(name + ".aux_fifth", bar.aux_fifth),
        auxSixth=_int32(name + ".aux_sixth", bar.aux_sixth),
        thirdSize=_int32(name + ".third_size", bar.third_size),
        positionX=x, positionY=y,
        positionZ=_int32(name + ".position_z", bar.position_z),
        firstSize=_uint16(name + ".first_size", bar.first_size),
        secondSize=_uint16(name + ".second_size", bar.second_size),
        rotation=_integer(name + ".rotation", bar.rotation, 16),
        auxFirst=_uint16(name + ".aux_first", bar.aux_first),
        segmentCount=segment_count,
        rodKind=_integer(name + ".rod_kind", bar.rod_kind, 8, signed=False),
        notMounted=0 if _flag(name + ".mounted", bar.mounted) else 1,
        bendingCode=_integer(name + ".bending_code", bar.bending_code, 8, signed=False))
    return block, texts


# The exports.

def start_order(order_value, element_number, placement, version, element_text, element_measure,
                clear_document):
    """Opens an order of the given format version (such as 600) with its one
    slab element; placement is three (x, y, z) points; clear_document drops
    the earlier orders first."""
    numbers_ = []
    for i, point in enumerate(_sequence("placement", placement, 3)):
        numbers_.extend(_real("placement[%d][%d]" % (i, j), v)
                        for j, v in enumerate(_sequence("placement[%d]" % i, point, 3)))
    arguments = (_uint16("order_value", order_value), _int32("element_number", element_number),
                 (_ctypes.c_double * 9)(*numbers_), _uint16("version", version),
                 _text("element_text", element_text), _real("element_measure", element_measure),
                 _flag("clear_document", clear_document))
    _library.library().startOrder(*arguments)


def end_document(path):
    """Writes every order to path. False only for a stream unhealthy from the
    start: a file that cannot be created is not reported."""
    if isinstance(path, _os.PathLike):
        path = _os.fspath(path)
    text = _text("path", path)
    return _library.library().endDocument(text) == 1


def set_project_data(texts):
    """The order's texts, project, addresses and date, in every order: a
    ProjectData or a sequence of 19 str in the block's order."""
    if isinstance(texts, ProjectData):
        texts = texts.texts()
    _sequence("texts", texts)
    if len(texts) != _PROJECT_TEXT_COUNT:
        raise ValueError("texts: %d texts, where setProjectData takes %d" % (len(texts), _PROJECT_TEXT_COUNT))
    arrays = [_text("texts[%d]" % i, t) for i, t in enumerate(texts)]
    _date("texts[%d]" % _DATE_INDEX, texts[_DATE_INDEX])
    block = (_library.Text * _PROJECT_TEXT_COUNT)(*(_ctypes.cast(a, _library.Text) for a in arrays))
    _library.library().setProjectData(block)


def set_slab_info_fields(slab_info1, slab_info2, slab_info3, slab_info4):
    """The current element's four information texts."""
    arguments = (_text("slab_info1", slab_info1), _text("slab_info2", slab_info2),
                 _text("slab_info3", slab_info3), _text("slab_info4", slab_info4))
    _library.library().setSlabInfoFields(*arguments)


def set_thicknesses(thickness, second_thickness):
    """Overwrites what the layers added up: call it after the last add_layer."""
    arguments = (_int32("thickness", thickness), _int32("second_thickness", second_thickness))
    _library.library().setThicknesses(*arguments)


def set_double_wall_gap(double_wall_gap):
    gap = _int32("double_wall_gap", double_wall_gap)
    _library.library().setDoubleWallGap(gap)


def add_layer(layer_kind, thickness_metres, first_factor, second_factor, layer_name):
    """A concrete layer of the current element; metres become millimetres."""
    arguments = (_uint16("layer_kind", layer_kind), _real("thickness_metres", thickness_metres),
                 _real("first_factor", first_factor), _real("second_factor", second_factor),
                 _text("layer_name", layer_name))
    _library.library().addLayer(*arguments)


def add_contour(points):
    """An outline of straight pieces from each (x, y) point to the next;
    repeat the first point to close it."""
    flat = _points("points", points, (1 << 31) - 1)
    _library.library().addContour(len(flat) // 2, _int32_array(flat))


def add_cutout(cutout):
    """An opening, given as a Cutout."""
    if not isinstance(cutout, Cutout):
        raise ValueError("cutout: %r is not a Cutout" % (cutout,))
    flat = _points("cutout.points", cutout.points, 0xFFFF)
    name = _text("cutout.name", cutout.name)
    block = _library.CutoutBlock(cutoutName=_ctypes.cast(name, _library.Text),
                                 cutoutValue=_real("cutout.value", cutout.value), pointCount=len(flat) // 2)
    _library.library().addCutout(_ctypes.byref(block), _int32_array(flat))


def add_set(set_kind, set_name, values):
    """addSet as it stands: kind 3 a mounted part (two values, then x0, y0,
    x1, y1 per piece), kind 5 braced girders (ten values each). True when
    added. The values must be whole pieces or groups: the library reads
    them so."""
    kind = _int32("set_kind", set_kind)
    numbers_ = _int32s("values", values)
    if kind == _MOUNTING_PART and (len(numbers_) < 2 or (len(numbers_) - 2) % 4 != 0):
        raise ValueError("values: %d values; a mounted part takes 2 and then 4 per piece" % len(numbers_))
    if kind == _BRACED_GIRDERS and len(numbers_) % 10 != 0:
        raise ValueError("values: %d values; braced girders take 10 each" % len(numbers_))
    return _add_set(kind, _text("set_name", set_name), numbers_)


def _add_set(kind, name, values):
    return _library.library().addSet(kind, name, len(values), _int32_array(values)) == 1


def add_mounting_part(name, set_value1, set_value2, pieces=()):
    """A mounted part: its two values and its outline, ((x0, y0), (x1, y1)) per piece."""
    text = _text("name", name)
    values = [_int32("set_value1", set_value1), _int32("set_value2", set_value2)]
    for i, piece in enumerate(_sequence("pieces", pieces)):
        for j, point in enumerate(_sequence("pieces[%d]" % i, piece, 2)):
            values.extend(_int32s("pieces[%d][%d]" % (i, j), point, 2))
    return _add_set(_MOUNTING_PART, text, values)


def add_braced_girders(designation, girders):
    """Braced girders of one designation, each a BracedGirder."""
    text = _text("designation", designation)
    values = []
    for i, girder in enumerate(_sequence("girders", girders)):
        if not isinstance(girder, BracedGirder):
            raise ValueError("girders[%d]: %r is not a BracedGirder" % (i, girder))
        values.extend(girder.values("girders[%d]" % i))
    return _add_set(_BRACED_GIRDERS, text, values)


def add_steelmat(name, first_dimension, second_dimension, first_flag, second_flag, mat_kind, position):
    """A mat at position (x, y, z); the bars of add_cfs_rodstock join the mat
    added last. Returns the mat's number, 0 with no element."""
    arguments = (_text("name", name), _int32("first_dimension", first_dimension),
                 _int32("second_dimension", second_dimension), int(_flag("first_flag", first_flag)),
                 int(_flag("second_flag", second_flag)), _int32("mat_kind", mat_kind),
                 _int32_array(_int32s("position", position, 3)))
    return _library.library().addSteelmat(*arguments)


def add_cfs_rodstock(rod_kind, designation, first_size, second_size, position, third_size=0, aux_sixth=0,
                     position_z=0, rotation=0, extra_designation="", mounted=False, aux_first=0,
                     aux_fourth=0, aux_fifth=0, flags_code=0):
    """A bar of the mat added last, at position (x, y). Returns its number in
    the mat, -1 when there is no mat to take it, 0 with no element.
    flags_code is decimal: the hundreds tell welding points, the tens spacers
    and the bending kind."""
    x, y = _int32s("position", position, 2)
    arguments = (_int32("rod_kind", rod_kind), _text("designation", designation),
                 _int32("first_size", first_size), _int32("second_size", second_size),
                 _int32("third_size", third_size),
                 _int32_array([x, y, _int32("aux_sixth", aux_sixth)]),
                 _int32("position_z", position_z), _int32("rotation", rotation),
                 _text("extra_designation", extra_designation), int(_flag("mounted", mounted)),
                 _int32("aux_first", aux_first), _int32("aux_fourth", aux_fourth),
                 _int32("aux_fifth", aux_fifth), _int32("flags_code", flags_code))
    return _library.library().addCFSRodstock(*arguments)


def add_straight_rodstock(bar):
    """A loose straight bar of the element, given as a Bar."""
    block, _texts = _bar_block("bar", bar, 0)
    _library.library().addStraightRodstock(_ctypes.byref(block))


def add_free_form_rodstock(bar, segments=()):
    """A loose bar of free form; with bending_code 2 its segments, each a
    FreeFormSegment or a (length, angle) pair, six to a line."""
    _sequence("segments", segments)
    if len(segments) > 0xFFFF:
        raise ValueError("segments: %d segments, where at most 65535 belong" % len(segments))
    entries = (_library.FreeFormSegment * max(len(segments), 1))()
    for i, segment in enumerate(segments):
        name = "segments[%d]" % i
        if isinstance(segment, FreeFormSegment):
            length, angle = segment.length, segment.angle
        else:
            length, angle = _sequence(name, segment, 2)
        entries[i].length = _int32(name + ".length", length)
        entries[i].angle = _integer(name + ".angle", angle, 16)
    block, _texts = _bar_block("bar", bar, len(segments))
    _library.library().addFreeFormRodstock(_ctypes.byref(block), entries)


def add_ext_iron(iron_code, iron_count, iron_value, iron_text):
    """An external iron. Returns its number, 0 with no element."""
    arguments = (_int32("iron_code", iron_code), _int32("iron_count", iron_count),
                 _real("iron_value", iron_value), _text("iron_text", iron_text))
    return _library.library().addExtIron(*arguments)


def summary():
    """The current element's mounted parts, loose bars, girders, mats and
    irons in the text of their records, each line ended by a line feed:
    empty with no element, "ERROR ..." when a record could not be written.
    The library's memory is given back."""
    library = _library.library()
    text = library.getFullReinforcementString()
    try:
        return _library.read_text(text) if text else ""
    finally:
        library.freeFullReinforcementString(text)


# Writing by the plant's names: each name is looked up in the reading
# library's table, which says which member of the record it fills.

# The fields of Bar that add_straight_rodstock leaves unwritten (the
# free-form cells), and add_free_form_rodstock writes.
_FREE_FORM_ONLY = ("extra_designation", "aux_first", "aux_fourth", "aux_fifth")


def _segments_by_names(segments):
    legs = []
    for i, segment in enumerate(_sequence("segments", segments)):
        if _dataclasses.is_dataclass(segment) and not isinstance(segment, FreeFormSegment):
            segment = _dataclasses.asdict(segment)
        if isinstance(segment, dict):
            leg = _plant.fill("BendingFormSegment", segment, [f.name for f in _fields(FreeFormSegment)],
                              "segments[%d]" % i)
            segment = FreeFormSegment(**{"length": 0, "angle": 0, **leg})
        legs.append(segment)
    return legs


def add_bar_set(segments=(), **values):
    """A loose bar set of the current element by the plant's names of a bar
    record: count, diameter, length, pitch, x, y, z, rotation, grade,
    article, spacer_type, spacer_start and spacer_pitch (plant_meanings()
    lists them with their members and units). Names left out are 0 or empty;
    the other fields of Bar that no name fills (rod_kind, mounted) may be
    given too. segments, each a FreeFormSegment, a (length, angle) pair or
    the plant's names of a segment (length, turn), make a bar bent by a free
    form. A straight set goes through add_straight_rodstock, unless its
    article or spacer values need add_free_form_rodstock, the call that
    writes them."""
    arguments = _plant.fill("Rodstock", values, [f.name for f in _fields(Bar)], "a bar set")
    bar = Bar(**{"designation": "", **arguments})
    legs = _segments_by_names(segments)
    if legs:
        if "bending_code" not in arguments:
            bar.bending_code = 2
        add_free_form_rodstock(bar, legs)
    elif any(getattr(bar, name) != getattr(Bar(""), name) for name in _FREE_FORM_ONLY):
        add_free_form_rodstock(bar)
    else:
        add_straight_rodstock(bar)


def add_mat_bar_set(**values):
    """A bar set of the mat added last, by the plant's names of a bar record
    (as add_bar_set; x and y from the mat's origin), through
    add_cfs_rodstock, whose other arguments (rod_kind, mounted, flags_code)
    may be given too. Returns what add_cfs_rodstock returns."""
    parameters = [name for name in _inspect.signature(add_cfs_rodstock).parameters]
    arguments = _plant.fill("Rodstock", values, parameters, "a mat's bar set")
    defaults = {"rod_kind": 0, "designation": "", "first_size": 0, "second_size": 0, "position": (0, 0)}
    return add_cfs_rodstock(**{**defaults, **arguments})


def add_girder_group(**values):
    """A group of braced girders of the current element by the plant's names
    of a girder record: count, type, length, spacing, x, y, rotation,
    height, chord_diameter, weight (written to the thousandth, as the file
    carries it) and installation_height. Through add_set's kind 5; True
    when added."""
    fields = [f.name for f in _fields(BracedGirder)] + ["designation"]
    arguments = _plant.fill("BracedGirder", values, fields, "a girder group")
    designation = arguments.pop("designation", "")
    girder = BracedGirder(**{"type_number": 0, "first_size": 0, "position": (0, 0), **arguments})
    return add_braced_girders(designation, [girder])


class Document:
    """The library's one document as a context manager. The first
    start_order of a Document drops what earlier ones left; when the block
    ends without an exception and a path was given, the document is written
    there (OSError if the library reports the stream unhealthy). Only one
    Document may be open at a time. The other exports are its methods too."""

    _open = False

    def __init__(self, path=None):
        self.path = path
        self._started = False

    def __enter__(self):
        if Document._open:
            raise RuntimeError("the library holds one document, and another is open")
        Document._open = True
        return self

    def __exit__(self, exc_type, exc_value, traceback):
        try:
            if exc_type is None and self.path is not None and not end_document(self.path):
                raise OSError("the document could not be written to %s" % (self.path,))
        finally:
            Document._open = False
        return False

    def start_order(self, order_value, element_number, placement, version, element_text, element_measure):
        """start_order, dropping earlier orders on the Document's first."""
        start_order(order_value, element_number, placement, version, element_text, element_measure,
                    clear_document=not self._started)
        self._started = True

    def write(self, path):
        """end_document: writes the orders so far to path."""
        return end_document(path)

    set_project_data = staticmethod(set_project_data)
    set_slab_info_fields = staticmethod(set_slab_info_fields)
    set_thicknesses = staticmethod(set_thicknesses)
    set_double_wall_gap = staticmethod(set_double_wall_gap)
    add_layer = staticmethod(add_layer)
    add_contour = staticmethod(add_contour)
    add_cutout = staticmethod(add_cutout)
    add_set = staticmethod(add_set)
    add_mounting_part = staticmethod(add_mounting_part)
    add_braced_girders = staticmethod(add_braced_girders)
    add_steelmat = staticmethod(add_steelmat)
    add_cfs_rodstock = staticmethod(add_cfs_rodstock)
    add_straight_rodstock = staticmethod(add_straight_rodstock)
    add_free_form_rodstock = staticmethod(add_free_form_rodstock)
    add_ext_iron = staticmethod(add_ext_iron)
    add_bar_set = staticmethod(add_bar_set)
    add_mat_bar_set = staticmethod(add_mat_bar_set)
    add_girder_group = staticmethod(add_girder_group)
    summary = staticmethod(summary)
