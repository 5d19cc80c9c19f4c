"""Reading through the package loses and changes nothing: for every golden
file of tests/functional and for the files of 100 generated call scripts,
the plant's view in the dataclasses equals the reading library's JSON value
for value, File.records equals `unitechnik dump --json` under "document",
each order's and element's record its part of it, and File.bom() equals
`unitechnik bom --json`. A file that does not read raises ReadError in the
tool's words, with what was read before the stop."""
import os
import pathlib
import subprocess

import pytest

import unitechnik
from conftest import needs_reading
from reading_check import assert_same, check_file, native_env, plain

pytestmark = needs_reading

SEED = 20261125
SCRIPTS = 100


def golden_files():
    root = os.environ.get("UNITECHNIK_TEST_EXPECTED")
    return sorted(pathlib.Path(root).glob("**/*.txt")) if root else []


@pytest.mark.parametrize("path", golden_files(), ids=lambda p: "/".join(p.parts[-2:]))
def test_golden_file(tool, path):
    check_file(unitechnik, tool, path)


def test_the_golden_files_are_there(expected):
    # What the parametrization above found: files that read, with orders,
    # and files that do not (the summaries).
    files = golden_files()
    assert len(files) >= 20 and all(path.is_relative_to(expected) for path in files)
    read, failed = [], []
    for path in files:
        try:
            read.append(unitechnik.read(path))
        except unitechnik.ReadError as error:
            failed.append(error)
    assert sum(1 for file in read if file.orders) >= 10
    assert failed


@pytest.fixture(scope="module")
def generated_files(tool, generator, tmp_path_factory):
    folder = tmp_path_factory.mktemp("generated")
    subprocess.run([str(generator), str(folder), str(SEED), str(SCRIPTS)], check=True, capture_output=True,
                   env=native_env())
    files = []
    for script in sorted(folder.glob("*.json")):
        output = script.with_suffix(".uni")
        run = subprocess.run([str(tool), "build", script.name, "-o", output.name], cwd=str(folder),
                             capture_output=True, text=True, env=native_env())
        assert run.returncode == 0, run.stderr
        files.append(output)
    assert len(files) == SCRIPTS
    return files


def test_generated_files(tool, generated_files):
    kinds = set()
    for path in generated_files:
        result = check_file(unitechnik, tool, path)
        assert not isinstance(result, Exception), str(result)
        for order in result.orders:
            for element in order.elements:
                kinds.update(name for name in ("contours", "cutouts", "parts", "bars", "girders", "mats", "irons",
                                               "layers") if getattr(element, name))
                kinds.update("mat bars" for mat in element.mats if mat.bars)
    # The scripts reach every kind of the plant's view.
    assert kinds == {"contours", "cutouts", "parts", "bars", "girders", "mats", "irons", "layers", "mat bars"}


def test_example_slab(tool, c_example):
    file = check_file(unitechnik, tool, c_example)
    element = file.orders[0].elements[0]
    # What examples/slab_host.c writes, by the plant's names.
    assert (element.number, element.text, element.extents, element.thickness) == \
        ("101", "Floor slab FS-101", (6000, 2400), 60)
    bars = element.bars[0]
    assert (bars.count, bars.diameter, bars.length, bars.pitch, bars.x, bars.y, bars.z, bars.rotation,
            bars.grade, bars.article, bars.segments) == (5, 10, 3000, 400, 2600, 400, 50, 0, "500", "", [])
    bent = element.bars[1]
    assert [(s.length, s.turn) for s in bent.segments] == [(300, 45), (400, -45), (1500, -45), (400, 45), (300, 0)]
    assert bent.article == "A-102"
    girders = element.girders[0]
    assert (girders.count, girders.type, girders.length, girders.spacing, girders.x, girders.y, girders.rotation,
            girders.height, girders.chord_diameter, girders.weight, girders.installation_height) == \
        (4, "KT 800", 3400, 600, 2400, 300, 0, 80, 10, 4.93, 20)
    mat = element.mats[0]
    assert (mat.type, mat.length, mat.width, mat.x, mat.y, mat.z, len(mat.bars)) == ("Q188A", 5800, 2200, 100, 100,
                                                                                     35, 54)
    # A mat's bar in the element's coordinates: the host put it at (0, 25)
    # from the mat's origin (100, 100).
    assert (mat.bars[0].x, mat.bars[0].y, mat.bars[0].length, mat.bars[0].z) == (100, 125, 5800, 35)
    assert (mat.bars[15].x, mat.bars[15].y, mat.bars[15].rotation) == (125, 100, 90)
    assert [(i.name, i.count, i.weight, i.code) for i in element.irons] == [("Lifting anchor", 4, 1.6, 2)]
    assert [(p.name, p.height, p.installation_height) for p in element.parts] == [("Socket box", 60, 0)]
    assert element.parts[0].pieces == [unitechnik.Line(from_=(4700, 1000), to=(4800, 1100))]
    assert [(c.name, c.area) for c in element.cutouts] == [("Stair opening", 1.08)]
    assert [(layer.name, layer.thickness, layer.kind) for layer in element.layers] == [("C30/37", 60, 0)]
    assert element.record["elementNumber"] == 101
    assert file.orders[0].number == "ORD-2026-0142" and file.orders[0].version == 600
    assert file.bom()["steelWeight"] == pytest.approx(74.071)


def test_read_bytes_equals_read(c_example):
    by_path = unitechnik.read(c_example)
    by_bytes = unitechnik.read_bytes(c_example.read_bytes())
    assert by_bytes == unitechnik.File(orders=by_path.orders, departures=by_path.departures,
                                       bare_line_ends=by_path.bare_line_ends, path=None)
    assert by_path.path == str(c_example)
    assert_same(plain(by_bytes.orders), plain(unitechnik.read_bytes(bytearray(c_example.read_bytes())).orders))
    assert by_bytes.records == by_path.records
    assert by_bytes.bom() == by_path.bom()


def test_bom_is_a_new_copy_each_call(c_example):
    file = unitechnik.read(c_example)
    bill = file.bom()
    bill["elements"].clear()
    assert file.bom()["elements"]


def test_line_ends_and_departures_are_told(c_example):
    # Bare line feeds: the tolerant reading takes them and counts them.
    data = c_example.read_bytes()
    file = unitechnik.read_bytes(data.replace(b"\r\n", b"\n"))
    assert file.bare_line_ends == data.count(b"\r\n")
    assert file.bare_line_ends > 0
    assert_same(plain(file.orders), plain(unitechnik.read_bytes(data).orders))
    assert unitechnik.read_bytes(data).bare_line_ends == 0


def test_a_mats_girder_group(tool, expected, tmp_path):
    # The writer leaves a mat's girder block empty; the format carries
    # girders there too. The first mat of the reinforced scenario (origin
    # (100, 50)) given the element's first girder record, at (100, 200) from
    # the mat's origin.
    data = (expected / "reinforced" / "reinforced-600.txt").read_bytes()
    girder = (b"001 000 00800 KT 812     04500 +00100 +00200 +00030 +090 0\r\n"
              b"000 000 005 01.500 07 000 00012 000\r\n")
    empty = b"BRGIRDER\r\n600\r\n000\r\nEND\r\n"
    assert data.count(girder) == 1
    at = data.index(empty, data.index(b"STEELMAT\r\n600\r\n01 "))
    path = tmp_path / "mat-girders.uni"
    path.write_bytes(data[:at] + b"BRGIRDER\r\n600\r\n001\r\n" + girder + b"END\r\n" + data[at + len(empty):])
    file = check_file(unitechnik, tool, path)
    mat = file.orders[0].elements[0].mats[0]
    assert (mat.x, mat.y) == (100, 50)
    assert mat.girders == [unitechnik.GirderGroup(count=800, type="KT 812", length=4500, x=200, y=250, spacing=30,
                                                  rotation=90, height=5, chord_diameter=7, weight=1.5,
                                                  installation_height=12)]


SLAB_OUTLINE = (b"01 00 04\r\nS +00000 +00000 +06000 +00000 0000\r\nS +06000 +00000 +06000 +02400 0000\r\n"
                b"S +06000 +02400 +00000 +02400 0000\r\nS +00000 +02400 +00000 +00000 0000\r\n")


def test_pieces_of_every_kind(tool, c_example, tmp_path):
    # The writer draws outlines of lines; the format has arcs (B), circles
    # (K) and polygons (P) too. The example slab's outline given one of each.
    data = c_example.read_bytes()
    assert data.count(SLAB_OUTLINE) == 1
    path = tmp_path / "kinds.uni"
    path.write_bytes(data.replace(SLAB_OUTLINE, b"01 00 04\r\nB +03000 +01200 01000 000 180 000\r\n"
                                                b"K +03000 +01200 00500 0000\r\n"
                                                b"P 3 +00000 +00000 +06000 +00000 0000 +06000 +02400 0000\r\n"
                                                b"S +00000 +02400 +00000 +00000 0000\r\n"))
    file = check_file(unitechnik, tool, path)
    assert file.orders[0].elements[0].contours == [unitechnik.Contour(number=1, pieces=[
        unitechnik.Arc(centre=(3000, 1200), radius=1000, start=0, end=180),
        unitechnik.Circle(centre=(3000, 1200), radius=500),
        unitechnik.Polygon(points=[(0, 0), (6000, 0), (6000, 2400)]),
        unitechnik.Line(from_=(0, 2400), to=(0, 0))])]
    assert [piece.kind for piece in file.orders[0].elements[0].contours[0].pieces] == ["arc", "circle", "polygon",
                                                                                        "line"]
    assert all(isinstance(piece, unitechnik.Piece) for piece in file.orders[0].elements[0].contours[0].pieces)


def test_a_piece_of_no_kind(tool, c_example, tmp_path):
    # A piece of a kind the format does not have stops the reading there;
    # what was read keeps it as a piece without a curve.
    path = tmp_path / "no-kind.uni"
    broken = SLAB_OUTLINE.replace(b"S +06000 +00000", b"Z +06000 +00000")
    path.write_bytes(c_example.read_bytes().replace(SLAB_OUTLINE, broken))
    error = check_file(unitechnik, tool, path)
    assert isinstance(error, unitechnik.ReadError)
    # Line 39 holds the contour's first piece, 40 the second. (check_file
    # has compared the column with the library's and the tool's.)
    assert error.line == 40
    assert error.file.orders[0].elements[0].contours[0].pieces == [unitechnik.Line(from_=(0, 0), to=(6000, 0)),
                                                                   unitechnik.Piece()]


def test_the_collector_is_left_as_it_was(c_example):
    # Reading holds the cyclic collector off while it makes its objects.
    import gc
    assert gc.isenabled()
    unitechnik.read(c_example)
    assert gc.isenabled()
    with pytest.raises(unitechnik.ReadError):
        unitechnik.read_bytes(b"JUNK")
    assert gc.isenabled()
    gc.disable()
    try:
        unitechnik.read(c_example).records
        assert not gc.isenabled()
    finally:
        gc.enable()
