"""The plant's names, taken from the one table of them: the table that the
reading library serves (itrPlantMeanings), which says what the plant reads
in each numbered member of a record (a bar record's firstSize is the set's
count, ...). Nothing here says again which member means what:

- the dataclasses of a read file's bar sets, girder groups, mats, ... are
  made from the table's names for their record when first used;
- writing by the plant's names (add_bar_set, add_mat_bar_set,
  add_girder_group) looks each name up in the table and fills the member the
  table names, through the block of the writing calls that holds it: the
  member firstSize is the Bar field first_size, position.x the first of the
  pair position, as the writing calls' names follow the records'.
"""

import dataclasses
import keyword
import re
from typing import Any

from . import _reading

# The classes made from the table: (name, the table's record, fields before
# the table's names, fields after them). The fields before and after are no
# member's meaning: they are how the reading library lays the view out.
_CLASSES = (
    ("Segment", "BendingFormSegment", (), ()),
    ("BarSet", "Rodstock", (), ("segments",)),
    ("GirderGroup", "BracedGirder", (), ()),
    ("Mat", "Steelmat", ("number",), ("bars", "girders")),
    ("Part", "MountingPart", ("number",), ("pieces",)),
    ("Opening", "Cutout", ("number", "name"), ("pieces",)),
    ("Layer", "ConcreteLayer", ("number",), ("mass",)),
    ("Iron", "ExternalIron", ("number",), ()),
    ("Arc", "Arc", ("centre", "radius"), ()),
    ("Element", "ElementPart", ("number", "text", "extents", "thickness"),
     ("contours", "cutouts", "parts", "bars", "girders", "mats", "irons", "layers")),
)
NAMES = tuple(name for name, _record, _before, _after in _CLASSES)

_WHAT = {
    "Segment": "One leg of a bar bent by a free form.",
    "BarSet": "A bar record read as the plant reads it: a set of identical parallel bars. In a mat, x and y "
              "are in the element's coordinates (the mat's origin added).",
    "GirderGroup": "A braced girder record read as the plant reads it: a group of identical parallel girders. "
                   "In a mat, x and y are in the element's coordinates.",
    "Mat": "A mat, with its own bars and girders.",
    "Part": "A mounted part, with the pieces of its footprint.",
    "Opening": "An opening (cutout) of the element, with the pieces of its outline.",
    "Layer": "A concrete layer, with its mass (kg) as the reading library works it out.",
    "Iron": "An external iron.",
    "Arc": "An arc of an outline: its centre (x, y) and radius in mm.",
    "Element": "An element: its number and text, extents (x, y) and thickness in mm, its outlines, "
               "reinforcement and layers. record is the element's record as `unitechnik dump --json` "
               "prints it, with every record inside it.",
}


def field_name(name):
    """A name as a Python field: a keyword gets a trailing underscore."""
    if not name.isidentifier():
        raise ValueError("the table names %r, which is no Python name" % (name,))
    return name + "_" if keyword.iskeyword(name) else name


_table = []


def rows(record):
    """The table's rows for a record, in the table's order."""
    if not _table:
        _table.append(_reading.meanings())
    found = [row for row in _table[0] if row["record"] == record]
    if not found:
        raise RuntimeError("the reading library's table has no rows for %s" % record)
    return found


def _docstring(name, table_rows):
    lines = [_WHAT[name], "", "The plant's names, from the reading library's table:"]
    for row in table_rows:
        unit = " (%s)" % row["unit"] if row["unit"] else ""
        lines.append("    %s%s: %s [%s.%s]" % (field_name(row["name"]), unit, row["meaning"], row["record"],
                                              row["member"]))
    return "\n".join(lines)


def _element_record(self):
    i, j = self._place
    return self._source.records()["orders"][i]["elementParts"][j]


class Classes:
    """The classes made from the table, by name, and how the reading
    library's keys become their fields."""

    def __init__(self):
        self.by_name = {}
        self._renamed = {}
        for name, record, before, after in _CLASSES:
            table_rows = rows(record)
            names = [field_name(n) for n in before] + [field_name(row["name"]) for row in table_rows] + \
                [field_name(n) for n in after]
            namespace = {"__doc__": _docstring(name, table_rows)}
            bases = ()
            if name == "Element":
                namespace["record"] = property(_element_record)
            if name == "Arc":
                bases = (_reading.Piece,)
                names = [("kind", str, dataclasses.field(init=False, default="arc"))] + names
            made = dataclasses.make_dataclass(name, [n if isinstance(n, tuple) else (n, Any) for n in names],
                                              bases=bases, namespace=namespace)
            made.__module__ = "unitechnik"
            self.by_name[name] = made
            self._renamed[name] = {n: field_name(n) for n in before + after if field_name(n) != n}
            self._renamed[name].update({row["name"]: field_name(row["name"]) for row in table_rows
                                        if field_name(row["name"]) != row["name"]})

    def make(self, name, values):
        """An instance of the class name from the library's keys: every key
        must be a field and every field given, so that nothing is lost."""
        return self.maker(name)(values)

    def maker(self, name):
        """make for one class, as a function of the keys' dict."""
        made, renamed = self.by_name[name], self._renamed[name]
        if renamed:
            return lambda values: made(**{renamed.get(key, key): value for key, value in values.items()})
        return lambda values: made(**values)


_made = []


def classes():
    """The classes, made on first use (which loads the reading library)."""
    if not _made:
        _made.append(Classes())
    return _made[0]


# Writing by the plant's names.

def _snake(member):
    """A member's name as the writing calls name it: firstSize first_size."""
    return re.sub(r"(?<=[a-z0-9])([A-Z])", lambda m: "_" + m.group(1).lower(), member)


# The one member whose writing field holds it in another unit: a girder's
# record holds the value as the file carries it (scaledValue), addSet's value
# (BracedGirder.value_thousandths) a thousand times it.
_SCALED = {"scaled_value": ("value_thousandths", 1000)}


def _target(member, fields):
    """The field of fields that holds a member, with the axis of a pair
    member ("position.x": ("position", 0)) and the factor of its unit."""
    head, _dot, axis = member.partition(".")
    target, factor = _snake(head), 1
    if target not in fields and target in _SCALED:
        target, factor = _SCALED[target]
    if target not in fields or axis not in ("", "x", "y"):
        raise RuntimeError("the table's member %s has no field among %s" % (member, ", ".join(sorted(fields))))
    return target, "xy".index(axis) if axis else None, factor


def fill(record, values, fields, what):
    """The writing fields for the plant's names in values: each name looked
    up in the table's rows for record, its value put in the field of fields
    that holds the row's member (a pair member fills its place of the pair,
    the other place 0 unless given). Names that are no name of the table
    must be fields that no row fills. ValueError names a name that is
    neither."""
    table = {row["name"]: _target(row["member"], fields) for row in rows(record)}
    filled = {target for target, _axis, _factor in table.values()}
    arguments = {}
    for name, value in values.items():
        if name not in table:
            if name not in fields or name in filled:
                raise ValueError("%s: not a name of %s; its names: %s"
                                 % (name, what, ", ".join(list(table) + sorted(set(fields) - filled))))
            arguments[name] = value
            continue
        target, axis, factor = table[name]
        if factor != 1:
            if isinstance(value, bool) or not isinstance(value, (int, float)):
                raise ValueError("%s: %r is not a number" % (name, value))
            value = int(round(value * factor))
        if axis is None:
            arguments[target] = value
        else:
            arguments.setdefault(target, [0, 0])[axis] = value
    return {k: tuple(v) if k in filled and isinstance(v, list) else v for k, v in arguments.items()}
