"""The blocks and the records a host states as a whole, as dataclasses, and
the bar block of the library that a Bar becomes."""

import ctypes as _ctypes
from dataclasses import dataclass as _dataclass, fields as _fields
from typing import Sequence as _Sequence, Tuple as _Tuple

from . import _library
from ._checks import _flag, _int32, _int32s, _integer, _text, _uint16


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
