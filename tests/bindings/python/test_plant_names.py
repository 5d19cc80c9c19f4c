"""The plant's names: the classes of a read file take their fields from the
reading library's table, writing by those names fills the members the table
names (a file written so reads back with the values written), and the
package's public names are its API."""
import dataclasses
import os

import pytest

import unitechnik
from conftest import needs_reading, run_python
from reading_check import library

pytestmark = needs_reading

FLAT = [(0, 0, 0), (6000, 0, 0), (0, 2400, 0)]


def table_names(record):
    return [row["name"] for row in library().meanings() if row["record"] == record]


def test_plant_meanings_is_the_librarys_table():
    table = unitechnik.plant_meanings()
    assert table == library().meanings()
    assert all(sorted(row) == ["meaning", "member", "name", "record", "unit"] for row in table)
    # A new copy each call.
    table.clear()
    assert unitechnik.plant_meanings()


@pytest.mark.parametrize("name, record, before, after", [
    ("BarSet", "Rodstock", [], ["segments"]),
    ("Segment", "BendingFormSegment", [], []),
    ("GirderGroup", "BracedGirder", [], []),
    ("Mat", "Steelmat", ["number"], ["bars", "girders"]),
    ("Part", "MountingPart", ["number"], ["pieces"]),
    ("Opening", "Cutout", ["number", "name"], ["pieces"]),
    ("Layer", "ConcreteLayer", ["number"], ["mass"]),
    ("Iron", "ExternalIron", ["number"], []),
    ("Arc", "Arc", ["kind", "centre", "radius"], []),
    ("Element", "ElementPart", ["number", "text", "extents", "thickness"],
     ["contours", "cutouts", "parts", "bars", "girders", "mats", "irons", "layers"]),
])
def test_fields_are_the_tables_names(name, record, before, after):
    made = getattr(unitechnik, name)
    assert dataclasses.is_dataclass(made) and made.__module__ == "unitechnik"
    assert [field.name for field in dataclasses.fields(made)] == before + table_names(record) + after
    # Each name's meaning is in the class's help.
    for row in library().meanings():
        if row["record"] == record:
            assert row["meaning"] in made.__doc__


def test_the_names_the_brief_asks_for():
    # What a host reads a bar set and a girder group by.
    assert {"count", "diameter", "length", "pitch", "x", "y", "z", "rotation", "grade", "article",
            "segments"} <= {f.name for f in dataclasses.fields(unitechnik.BarSet)}
    assert {"count", "type", "length", "spacing", "x", "y", "rotation", "height", "chord_diameter", "weight",
            "installation_height"} <= {f.name for f in dataclasses.fields(unitechnik.GirderGroup)}


def write_by_names(path):
    with unitechnik.Document(path) as document:
        document.start_order(order_value=3, element_number=55, placement=FLAT, version=600,
                             element_text="By names", element_measure=14.4)
        document.add_contour([(0, 0), (6000, 0), (6000, 2400), (0, 2400), (0, 0)])
        document.add_bar_set(count=12, diameter=10, length=5600, pitch=150, x=200, y=300, z=40, rotation=0,
                             grade="500")
        document.add_bar_set(count=3, diameter=8, length=1000, pitch=-100, x=1, y=2, z=3, rotation=90,
                             grade="B500A", article="ART-7", spacer_type=1, spacer_start=20, spacer_pitch=300)
        document.add_bar_set(count=2, diameter=12, length=2900, pitch=1200, x=600, y=450, z=50, rotation=45,
                             grade="500", rod_kind=2,
                             segments=[{"length": 300, "turn": 45}, unitechnik.FreeFormSegment(2300, -45),
                                       (300, 0)])
        assert document.add_girder_group(count=4, type="KT 800", length=3400, spacing=600, x=2400, y=300,
                                         rotation=0, height=80, chord_diameter=10, weight=4.93,
                                         installation_height=20)
        assert document.add_steelmat("Q188A", 5800, 2200, True, False, 1, (100, 100, 35)) == 1
        assert document.add_mat_bar_set(count=1, diameter=6, length=5800, pitch=0, x=0, y=25, z=35, rotation=0,
                                        grade="500") == 1
        assert document.add_mat_bar_set(count=39, diameter=6, length=2200, pitch=150, x=25, y=0, z=41,
                                        rotation=90, grade="500", article="M-1", mounted=True) == 2


def test_written_by_names_reads_back(tmp_path):
    path = tmp_path / "by-names.uni"
    write_by_names(path)
    element = unitechnik.read(path).orders[0].elements[0]
    BarSet, Segment = unitechnik.BarSet, unitechnik.Segment
    assert element.bars == [
        BarSet(count=12, diameter=10, length=5600, pitch=150, x=200, y=300, z=40, rotation=0, grade="500",
               article="", spacer_type=0, spacer_start=0, spacer_pitch=0, segments=[]),
        BarSet(count=3, diameter=8, length=1000, pitch=-100, x=1, y=2, z=3, rotation=90, grade="B500A",
               article="ART-7", spacer_type=1, spacer_start=20, spacer_pitch=300, segments=[]),
        BarSet(count=2, diameter=12, length=2900, pitch=1200, x=600, y=450, z=50, rotation=45, grade="500",
               article="", spacer_type=0, spacer_start=0, spacer_pitch=0,
               segments=[Segment(length=300, turn=45), Segment(length=2300, turn=-45), Segment(length=300, turn=0)]),
    ]
    assert element.girders == [unitechnik.GirderGroup(
        count=4, type="KT 800", length=3400, spacing=600, x=2400, y=300, rotation=0, height=80, chord_diameter=10,
        weight=4.93, installation_height=20)]
    mat = element.mats[0]
    assert (mat.type, mat.length, mat.width, mat.x, mat.y, mat.z) == ("Q188A", 5800, 2200, 100, 100, 35)
    # Written from the mat's origin (100, 100), read in the element's
    # coordinates.
    assert mat.bars == [
        BarSet(count=1, diameter=6, length=5800, pitch=0, x=100, y=125, z=35, rotation=0, grade="500", article="",
               spacer_type=0, spacer_start=0, spacer_pitch=0, segments=[]),
        BarSet(count=39, diameter=6, length=2200, pitch=150, x=125, y=100, z=41, rotation=90, grade="500",
               article="M-1", spacer_type=0, spacer_start=0, spacer_pitch=0, segments=[]),
    ]
    # The bill counts the sets' bars: 12 + 3 + 2 loose, 1 + 39 in the mat.
    bill = unitechnik.read(path).bom()["elements"][0]
    assert sorted((group["diameter"], group["count"]) for group in bill["bars"]) == [(6, 40), (8, 3), (10, 12),
                                                                                      (12, 2)]


def test_the_plant_names_fill_the_records_members(tmp_path):
    # The records hold the values in the members the table names.
    path = tmp_path / "by-names.uni"
    write_by_names(path)
    element = unitechnik.read(path).orders[0].elements[0].record
    bar = element["rodstockData"]["bars"][0]
    assert (bar["firstSize"], bar["secondSize"], bar["thirdSize"], bar["position"], bar["positionZ"],
            bar["auxSixth"], bar["designation"].strip()) == (12, 10, 5600, {"x": 200, "y": 300}, 150, 40, "500")
    girder = element["bracedGirderData"]["girders"][0]
    assert (girder["typeNumber"], girder["firstSize"], girder["positionZ"], girder["scaledValue"],
            girder["lastNumber"]) == (4, 3400, 600, 4.93, 20)


def test_what_was_read_writes_again(tmp_path, c_example):
    # A bar set and a girder group read are the keyword arguments of the
    # writing by names.
    element = unitechnik.read(c_example).orders[0].elements[0]
    path = tmp_path / "again.uni"
    with unitechnik.Document(path) as document:
        document.start_order(1, 1, FLAT, 600, "Again", 1.0)
        for bars in element.bars:
            document.add_bar_set(**dataclasses.asdict(bars))
        for girders in element.girders:
            assert document.add_girder_group(**dataclasses.asdict(girders))
    again = unitechnik.read(path).orders[0].elements[0]
    assert again.bars == element.bars and again.girders == element.girders


def test_names_that_are_not_the_plants(tmp_path):
    with unitechnik.Document(tmp_path / "unused.uni") as document:
        document.start_order(1, 1, FLAT, 600, "E", 1.0)
        with pytest.raises(ValueError, match="^colour: not a name of a bar set; its names: count, diameter"):
            document.add_bar_set(count=1, colour="red")
        # A member the table names goes by the plant's name only.
        with pytest.raises(ValueError, match="^first_size: not a name of a bar set"):
            document.add_bar_set(first_size=1)
        with pytest.raises(ValueError, match="^type_number: not a name of a girder group"):
            document.add_girder_group(type_number=1)
        with pytest.raises(ValueError, match="^turn2: not a name of segments\\[1\\]"):
            document.add_bar_set(count=1, segments=[{"length": 1}, {"turn2": 1}])
        with pytest.raises(ValueError, match="^weight: 'heavy' is not a number"):
            document.add_girder_group(weight="heavy")
        # The values are checked as the writing calls check them.
        with pytest.raises(ValueError, match="^bar.first_size: 70000 does not fit"):
            document.add_bar_set(count=70000)
        with pytest.raises(ValueError, match="^girders\\[0\\]\\.position\\[0\\]: .1. is not an integer"):
            document.add_girder_group(x="1")


def test_public_names_are_the_api():
    public = [name for name in dir(unitechnik) if not name.startswith("_")]
    assert public == sorted(name for name in unitechnik.__all__ if not name.startswith("_"))
    for name in unitechnik.__all__:
        assert getattr(unitechnik, name) is not None
    assert {"read", "read_bytes", "ReadError", "File", "BarSet", "GirderGroup", "add_bar_set"} <= set(public)
    assert not {"ctypes", "os", "re", "numbers", "Tuple", "Sequence", "dataclass", "fields"} & set(public)
    # What the module holds beside the API is private.
    assert {name for name in vars(unitechnik) if not name.startswith("_")} <= set(unitechnik.__all__)
    with pytest.raises(AttributeError):
        unitechnik.NoSuchThing


def test_writing_without_the_reading_library(tmp_path):
    # The package writes without the reading library; only what needs it
    # looks for it, and says where it looked.
    env = {k: v for k, v in os.environ.items() if k != "ITUNITECHNIK_READING_LIBRARY"}
    env["ITUNITECHNIK_READING_LIBRARY"] = str(tmp_path / "missing.so")
    code = """
import unitechnik
with unitechnik.Document(%r) as d:
    d.start_order(1, 101, [(0, 0, 0), (6000, 0, 0), (0, 2400, 0)], 600, "Slab", 1.25)
public = [n for n in dir(unitechnik) if not n.startswith("_")]
print(public == sorted(n for n in unitechnik.__all__ if not n.startswith("_")))
try:
    unitechnik.BarSet
except OSError as error:
    print(error)
""" % str(tmp_path / "out.uni")
    result = run_python(code, env=env)
    assert result.returncode == 0, result.stderr
    lines = result.stdout.splitlines()
    assert lines[0] == "True"
    assert lines[1].startswith("the itunitechnik_reading library was not found; set ITUNITECHNIK_READING_LIBRARY")
    assert str(tmp_path / "missing.so") in lines[1]
    assert (tmp_path / "out.uni").read_bytes().startswith(b"HEADER__\r\n")
