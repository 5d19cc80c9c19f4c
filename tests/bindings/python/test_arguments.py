"""Every argument of every export is checked before the library sees it: a
value that does not fit its C type, a text that is not a str or holds a NUL,
a sequence of the wrong length raise ValueError, and the message begins with
the argument's name."""
import ctypes

import pytest

import unitechnik
from unitechnik import Bar, BracedGirder, Cutout, FreeFormSegment
from unitechnik import _library

FLAT = [(0, 0, 0), (6000, 0, 0), (0, 2400, 0)]

# One good call of each export, by keyword.
GOOD = {
    unitechnik.start_order: dict(order_value=1, element_number=1, placement=FLAT, version=600,
                                 element_text="E", element_measure=1.0, clear_document=True),
    unitechnik.set_project_data: dict(texts=[""] * 16 + ["21.11.2026", "", ""]),
    unitechnik.set_slab_info_fields: dict(slab_info1="a", slab_info2="b", slab_info3="c", slab_info4="d"),
    unitechnik.set_thicknesses: dict(thickness=1, second_thickness=1),
    unitechnik.set_double_wall_gap: dict(double_wall_gap=1),
    unitechnik.add_layer: dict(layer_kind=1, thickness_metres=0.1, first_factor=1.0, second_factor=1.0,
                               layer_name="L"),
    unitechnik.add_contour: dict(points=[(0, 0), (10, 0)]),
    unitechnik.add_cutout: dict(cutout=Cutout(name="C", value=1.0, points=[(0, 0)])),
    unitechnik.add_set: dict(set_kind=3, set_name="S", values=[0, 0]),
    unitechnik.add_mounting_part: dict(name="P", set_value1=0, set_value2=0, pieces=[((0, 0), (1, 1))]),
    unitechnik.add_braced_girders: dict(designation="G", girders=[BracedGirder(1, 1, (0, 0))]),
    unitechnik.add_steelmat: dict(name="M", first_dimension=1, second_dimension=1, first_flag=True,
                                  second_flag=False, mat_kind=1, position=(0, 0, 0)),
    unitechnik.add_cfs_rodstock: dict(rod_kind=1, designation="B", first_size=1, second_size=1, position=(0, 0),
                                      third_size=0, aux_sixth=0, position_z=0, rotation=0, extra_designation="",
                                      mounted=False, aux_first=0, aux_fourth=0, aux_fifth=0, flags_code=0),
    unitechnik.add_straight_rodstock: dict(bar=Bar("B")),
    unitechnik.add_free_form_rodstock: dict(bar=Bar("B", bending_code=2), segments=[(1, 0)]),
    unitechnik.add_ext_iron: dict(iron_code=1, iron_count=1, iron_value=1.0, iron_text="I"),
    unitechnik.end_document: dict(path="unused"),
}

INT32 = {
    unitechnik.start_order: ["element_number"],
    unitechnik.set_thicknesses: ["thickness", "second_thickness"],
    unitechnik.set_double_wall_gap: ["double_wall_gap"],
    unitechnik.add_set: ["set_kind"],
    unitechnik.add_mounting_part: ["set_value1", "set_value2"],
    unitechnik.add_steelmat: ["first_dimension", "second_dimension", "mat_kind"],
    unitechnik.add_cfs_rodstock: ["rod_kind", "first_size", "second_size", "third_size", "aux_sixth",
                                  "position_z", "rotation", "aux_first", "aux_fourth", "aux_fifth", "flags_code"],
    unitechnik.add_ext_iron: ["iron_code", "iron_count"],
}
UINT16 = {
    unitechnik.start_order: ["order_value", "version"],
    unitechnik.add_layer: ["layer_kind"],
}
REAL = {
    unitechnik.start_order: ["element_measure"],
    unitechnik.add_layer: ["thickness_metres", "first_factor", "second_factor"],
    unitechnik.add_ext_iron: ["iron_value"],
}
TEXT = {
    unitechnik.start_order: ["element_text"],
    unitechnik.end_document: ["path"],
    unitechnik.set_slab_info_fields: ["slab_info1", "slab_info2", "slab_info3", "slab_info4"],
    unitechnik.add_layer: ["layer_name"],
    unitechnik.add_set: ["set_name"],
    unitechnik.add_mounting_part: ["name"],
    unitechnik.add_braced_girders: ["designation"],
    unitechnik.add_steelmat: ["name"],
    unitechnik.add_cfs_rodstock: ["designation", "extra_designation"],
    unitechnik.add_ext_iron: ["iron_text"],
}
FLAG = {
    unitechnik.start_order: ["clear_document"],
    unitechnik.add_steelmat: ["first_flag", "second_flag"],
    unitechnik.add_cfs_rodstock: ["mounted"],
}

CASES = []


def case(function, argument, value, name=None):
    CASES.append(pytest.param(function, argument, value, name or argument,
                              id="%s-%s-%r" % (function.__name__, argument, value)[:90]))


for table, values in ((INT32, [2 ** 31, -2 ** 31 - 1, 1.5, True, "1", None]),
                      (UINT16, [65536, -1, 2.0, False, "600"]),
                      (REAL, ["1.0", None, True, 1j]),
                      (TEXT, [1, None, b"text", "a\0b"]),
                      (FLAG, [1, 0, "yes", None])):
    for function, arguments in table.items():
        for argument in arguments:
            for value in values:
                case(function, argument, value)

# Points, placements, positions and blocks: the name points into the value.
case(unitechnik.start_order, "placement", FLAT[:2])
case(unitechnik.start_order, "placement", [(0, 0)] * 3, "placement[0]")
case(unitechnik.start_order, "placement", [(0, "x", 0)] * 3, "placement[0][1]")
case(unitechnik.start_order, "placement", "abc")
case(unitechnik.set_project_data, "texts", [""] * 16 + ["21.11.2026"] + [""] * 3)
case(unitechnik.set_project_data, "texts", [""] * 16 + ["21.11.2026"] + [""])
case(unitechnik.set_project_data, "texts", "x" * 19)
case(unitechnik.set_project_data, "texts", [""] * 18 + [None], "texts[18]")
case(unitechnik.set_project_data, "texts", [""] * 3 + ["a\0"] + [""] * 15, "texts[3]")
# The date is read by position, dd.mm.yyyy: the library stops setProjectData
# without a word for a text shorter than six characters or a part without a
# digit (test_a_date_the_library_cannot_read), so the binding raises.
for date in ("", "1.2.2", "1.2.2024", "01.02.", "  .  .    ", "xx.01.2024", "01.xx.2024", "01.01.-x"):
    case(unitechnik.set_project_data, "texts", [""] * 16 + [date, "", ""], "texts[16]")
case(unitechnik.add_contour, "points", [(0, 0), (0, 0, 0)], "points[1]")
case(unitechnik.add_contour, "points", [(0, 2 ** 31)], "points[0][1]")
case(unitechnik.add_contour, "points", None)
case(unitechnik.add_cutout, "cutout", ((0, 0),))
case(unitechnik.add_cutout, "cutout", Cutout("C", 1.0, [(0, 0)] * 65536), "cutout.points")
case(unitechnik.add_cutout, "cutout", Cutout(None, 1.0, [(0, 0)]), "cutout.name")
case(unitechnik.add_cutout, "cutout", Cutout("C", "1", [(0, 0)]), "cutout.value")
case(unitechnik.add_set, "values", [0], "values")
case(unitechnik.add_set, "values", [0, 0, 1], "values")
case(unitechnik.add_set, "values", [0, 2 ** 31], "values[1]")
case(unitechnik.add_set, "values", 5, "values")
case(unitechnik.add_mounting_part, "pieces", [((0, 0),)], "pieces[0]")
case(unitechnik.add_mounting_part, "pieces", [((0, 0), (1,))], "pieces[0][1]")
case(unitechnik.add_mounting_part, "pieces", [((0, 0), (1, 1.5))], "pieces[0][1][1]")
case(unitechnik.add_braced_girders, "girders", [(1, 1, (0, 0))], "girders[0]")
case(unitechnik.add_braced_girders, "girders", BracedGirder(1, 1, (0, 0)), "girders")
for field in ("type_number", "first_size", "position_z", "rotation", "aux_number", "short_number",
              "value_thousandths", "last_number"):
    girder = BracedGirder(1, 1, (0, 0))
    setattr(girder, field, 2 ** 31)
    case(unitechnik.add_braced_girders, "girders", [girder], "girders[0].%s" % field)
case(unitechnik.add_braced_girders, "girders", [BracedGirder(1, 1, (0,))], "girders[0].position")
case(unitechnik.add_steelmat, "position", (0, 0))
case(unitechnik.add_steelmat, "position", (0, 0, -2 ** 31 - 1), "position[2]")
case(unitechnik.add_cfs_rodstock, "position", (0, 0, 0))

# The bar block, field by field, for both bar exports.
BAR_FIELDS = [("first_size", 65536), ("second_size", -1), ("rotation", 40000), ("rotation", -32769),
              ("aux_first", 70000), ("rod_kind", 256), ("bending_code", -1), ("mounted", 0),
              ("designation", None), ("extra_designation", 5), ("position", (1, 2, 3)),
              ("aux_sixth", 2 ** 31), ("third_size", 2 ** 31), ("position_z", 2 ** 31),
              ("aux_fourth", -2 ** 31 - 1), ("aux_fifth", 2.5)]
for function in (unitechnik.add_straight_rodstock, unitechnik.add_free_form_rodstock):
    case(function, "bar", "B500B")
    for field, value in BAR_FIELDS:
        bar = Bar("B")
        setattr(bar, field, value)
        case(function, "bar", bar, "bar.%s" % field)
case(unitechnik.add_free_form_rodstock, "segments", [(1, 0)] * 65536)
case(unitechnik.add_free_form_rodstock, "segments", [(1, 40000)], "segments[0].angle")
case(unitechnik.add_free_form_rodstock, "segments", [FreeFormSegment(2 ** 31, 0)], "segments[0].length")
case(unitechnik.add_free_form_rodstock, "segments", [(1,)], "segments[0]")
case(unitechnik.add_free_form_rodstock, "segments", None)


@pytest.fixture
def unreachable_library(monkeypatch):
    def reached():
        raise AssertionError("the call reached the library")
    monkeypatch.setattr(_library, "library", reached)


@pytest.mark.parametrize("function, argument, value, name", CASES)
def test_argument_error(unreachable_library, function, argument, value, name):
    arguments = dict(GOOD[function])
    arguments[argument] = value
    with pytest.raises(ValueError) as error:
        function(**arguments)
    assert str(error.value).split(":")[0] == name


def test_every_export_has_good_and_bad_calls():
    exports = [unitechnik.start_order, unitechnik.end_document, unitechnik.set_project_data,
               unitechnik.set_slab_info_fields, unitechnik.set_thicknesses, unitechnik.set_double_wall_gap,
               unitechnik.add_layer, unitechnik.add_contour, unitechnik.add_cutout, unitechnik.add_set,
               unitechnik.add_steelmat, unitechnik.add_cfs_rodstock, unitechnik.add_straight_rodstock,
               unitechnik.add_free_form_rodstock, unitechnik.add_ext_iron]
    assert set(exports) <= set(GOOD)
    with_errors = {param.values[0] for param in CASES}
    assert set(GOOD) == with_errors


def test_the_good_calls_reach_the_library(tmp_path):
    # With an order open, each good call goes through; summary() takes the
    # last two exports.
    with unitechnik.Document(tmp_path / "all.uni"):
        for function, arguments in GOOD.items():
            if function is unitechnik.end_document:
                arguments = dict(path=tmp_path / "written.uni")
            function(**arguments)
        assert "RODSTOCK\n" in unitechnik.summary()
    assert (tmp_path / "written.uni").read_bytes().startswith(b"HEADER__\r\n")
    assert (tmp_path / "all.uni").read_bytes().startswith(b"HEADER__\r\n")


def test_dates_the_library_reads(tmp_path):
    # Read by position: any separators, and parts that only begin with a number.
    with unitechnik.Document(tmp_path / "dates.uni") as document:
        document.start_order(1, 1, FLAT, 600, "E", 1.0)
        for date in ("31/12/2024", "01.2.2024", " 1.+2. -24", "01.01.20"):
            document.set_project_data(unitechnik.ProjectData(date=date))
    assert (tmp_path / "dates.uni").read_bytes().startswith(b"HEADER__\r\n")


def test_a_date_the_library_cannot_read(tmp_path):
    # Straight to the library: with a date it cannot read, setProjectData
    # stops without a word and the order's texts behind the date stay unset.
    def written(date):
        path = tmp_path / ("%s.uni" % len(date))
        with unitechnik.Document(path) as document:
            document.start_order(1, 1, FLAT, 600, "E", 1.0)
            texts = [""] * 16 + [date, "", "Text behind the date"]
            arrays = [_library.text(text) for text in texts]
            block = (_library.Text * len(arrays))(*(ctypes.cast(a, _library.Text) for a in arrays))
            _library.library().setProjectData(block)
        return path.read_bytes()

    assert b"Text behind the date" in written("21.11.2026")
    assert b"Text behind the date" not in written("1.2")


def test_outlines_of_no_points(tmp_path):
    # One point or none: an outline of no pieces, as the library adds it.
    with unitechnik.Document(tmp_path / "empty.uni") as document:
        document.start_order(1, 1, FLAT, 600, "E", 1.0)
        unitechnik.add_contour([])
        unitechnik.add_contour([(5, 5)])
        unitechnik.add_cutout(Cutout("C", 1.0, []))
    data = (tmp_path / "empty.uni").read_bytes()
    # Two contours and an opening, each numbered and holding no piece.
    assert b"CONTOUR_\r\n600\r\n02\r\n01 00 00\r\n\r\n02 00 00\r\n" in data
    assert b"CUTOUT__\r\n600\r\n01\r\n01 01.000 C " in data
