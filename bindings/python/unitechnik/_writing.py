"""The writing calls: each export of itunitechnik.h as a function with keyword
arguments and Python types, every argument checked first, and the calls that
write by the plant's names."""

import ctypes as _ctypes
import dataclasses as _dataclasses
import inspect as _inspect
import os as _os
from dataclasses import fields as _fields

from . import _library, _plant
from ._blocks import Bar, BracedGirder, Cutout, FreeFormSegment, ProjectData, _bar_block
from ._checks import (_date, _flag, _int32, _int32_array, _int32s, _integer, _points, _real, _sequence, _text,
                      _uint16)

_PROJECT_TEXT_COUNT = 19
_DATE_INDEX = 16
_MOUNTING_PART = 3
_BRACED_GIRDERS = 5


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
