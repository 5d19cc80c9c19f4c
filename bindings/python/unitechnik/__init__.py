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

# Only the API's names are public: what the package imports is private. The
# package's modules: _library (the shared library and its exports as ctypes
# sees them), _checks (the arguments' checks), _blocks (the blocks as
# dataclasses), _writing (the writing calls, also by the plant's names),
# _document (Document), _reading and _plant (the reading side).
from . import _plant
from ._blocks import Bar, BracedGirder, Cutout, FreeFormSegment, ProjectData
from ._document import Document
from ._reading import Circle, Contour, File, Line, Order, Piece, Polygon, ReadError, read, read_bytes
from ._reading import meanings as plant_meanings
from ._version import __version__
from ._writing import (add_bar_set, add_braced_girders, add_cfs_rodstock, add_contour, add_cutout, add_ext_iron,
                       add_free_form_rodstock, add_girder_group, add_layer, add_mat_bar_set, add_mounting_part,
                       add_set, add_steelmat, add_straight_rodstock, end_document, set_double_wall_gap,
                       set_project_data, set_slab_info_fields, set_thicknesses, start_order, summary)

# The classes and functions of the modules are the package's: tracebacks and
# reprs say so.
for _object in (Bar, BracedGirder, Cutout, Document, FreeFormSegment, ProjectData,
                Circle, Contour, File, Line, Order, Piece, Polygon, ReadError,
                add_bar_set, add_braced_girders, add_cfs_rodstock, add_contour, add_cutout, add_ext_iron,
                add_free_form_rodstock, add_girder_group, add_layer, add_mat_bar_set, add_mounting_part,
                add_set, add_steelmat, add_straight_rodstock, end_document, set_double_wall_gap,
                set_project_data, set_slab_info_fields, set_thicknesses, start_order, summary):
    _object.__module__ = __name__
del _object

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
