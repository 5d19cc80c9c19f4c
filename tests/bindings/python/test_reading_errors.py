"""Files that do not read: cut off, broken, not there. Each raises ReadError
with the line and column where the reading stopped (from 1; 0 and 0 where
there is no place) and what was read before the stop; nothing else escapes,
and the interpreter lives on, also for the hostile inputs the fuzzers found."""
import json
import os
import sys

import pytest

import unitechnik
from conftest import needs_reading
from reading_check import library

pytestmark = needs_reading


def place_of_end(data):
    """The line and column, from 1, just past the last byte of data."""
    start = data.rfind(b"\n") + 1
    return data.count(b"\n") + 1, len(data) - start + 1


# Small files whose stop is plain to see: (bytes, line, column, message).
BROKEN = [
    (b"JUNK\r\n", 1, 1, 'expected "HEADER__" or the end of the file'),
    (b"HEADER__", 1, 1, 'expected "HEADER__" or the end of the file'),
    # The version, a number of three places, begins line 2.
    (b"HEADER__\r\n", 2, 1, "expected a number of at least 3 places in HEADER__, but the file ends there"),
    (b"HEADER__\r\nX00\r\n", 2, 1, "expected a number of at least 3 places in HEADER__"),
    (b"HEADER__\n60", 2, 1, "expected a number of at least 3 places in HEADER__, but the file ends there"),
    # The order's line, a text of 20 places first, begins line 3.
    (b"HEADER__\r\n600\r\n", 3, 1, "expected a text of 20 places in HEADER__, but the file ends there"),
]


@pytest.mark.parametrize("data, line, column, message", BROKEN)
def test_broken_and_cut_off(data, line, column, message):
    with pytest.raises(unitechnik.ReadError) as caught:
        unitechnik.read_bytes(data)
    error = caught.value
    assert (error.line, error.column, error.message, error.path) == (line, column, message, None)
    assert str(error) == "%d:%d: %s" % (line, column, message)
    assert isinstance(error.file, unitechnik.File)


def test_broken_file_by_path(tmp_path):
    path = tmp_path / "broken.uni"
    path.write_bytes(b"HEADER__\r\n600\r\n")
    with pytest.raises(unitechnik.ReadError) as caught:
        unitechnik.read(path)
    error = caught.value
    assert (error.path, error.line, error.column) == (str(path), 3, 1)
    assert str(error) == "%s:3:1: expected a text of 20 places in HEADER__, but the file ends there" % path
    # What was read before the stop: the order's version, no element.
    assert [order.version for order in error.file.orders] == [600]
    assert error.file.orders[0].elements == []
    assert error.file.path == str(path)


def test_cut_off_everywhere(c_example):
    """The example slab cut after every 37th byte: each stop lies at or
    before the cut, where the library puts it, and what was read before it
    is there."""
    data = c_example.read_bytes()
    stops = 0
    for size in range(0, len(data), 37):
        head = data[:size]
        expected = library().plant(head)
        try:
            file = unitechnik.read_bytes(head)
        except unitechnik.ReadError as error:
            stops += 1
            assert not expected["ok"]
            assert (error.line, error.column) == (expected["error"]["line"], expected["error"]["column"])
            assert (error.line, error.column) <= place_of_end(head)
            assert len(error.file.orders) == len(expected["plant"]["orders"])
        else:
            assert expected["ok"] and file.orders == [] and size == 0
    assert stops == len(range(37, len(data), 37))


def test_empty_file_holds_no_orders(tmp_path, tool):
    # An empty file is what the library writes for a document without
    # orders (tests/functional/expected/orders/empty.txt), and the reading
    # library and the tool read it so: a file without orders, no stop.
    path = tmp_path / "empty.uni"
    path.write_bytes(b"")
    for file in (unitechnik.read(path), unitechnik.read_bytes(b"")):
        assert (file.orders, file.departures, file.bare_line_ends) == ([], [], 0)
        assert file.records == {"orders": []}
        assert file.bom()["elements"] == []


def test_a_path_that_is_not_there(tmp_path):
    path = tmp_path / "missing.uni"
    with pytest.raises(unitechnik.ReadError) as caught:
        unitechnik.read(path)
    error = caught.value
    assert (error.path, error.line, error.column, error.file) == (str(path), 0, 0, None)
    assert error.message == 'cannot read "%s"' % path
    assert str(error) == '%s:0:0: cannot read "%s"' % (path, path)
    with pytest.raises(unitechnik.ReadError) as caught:
        unitechnik.read(str(tmp_path))
    assert (caught.value.line, caught.value.column, caught.value.file) == (0, 0, None)


def test_arguments_that_are_no_file():
    for value in ("text", 12, None, ["bytes"]):
        with pytest.raises(ValueError, match="^data: "):
            unitechnik.read_bytes(value)
    for value in (12, None, 1.5):
        with pytest.raises(ValueError, match="^path: "):
            unitechnik.read(value)


HOSTILE = r"""
import json, pathlib, sys
sys.path.insert(0, sys.argv[1])
import unitechnik
from reading_check import assert_same, library, plain
counts = {"read": 0, "stopped": 0}
for folder in sys.argv[3:]:
    for path in sorted(pathlib.Path(sys.argv[2], folder).iterdir()):
        data = path.read_bytes()
        expected = library().plant(data)
        try:
            file = unitechnik.read_bytes(data)
            counts["read"] += 1
            assert expected["ok"], path
        except unitechnik.ReadError as error:
            counts["stopped"] += 1
            assert not expected["ok"], path
            assert (error.line, error.column, error.message) == (
                expected["error"]["line"], expected["error"]["column"], expected["error"]["message"]), path
            file = error.file
        assert_same(plain(file.orders), expected["plant"]["orders"], str(path))
print(json.dumps(counts))
"""


def test_hostile_inputs_in_a_subprocess(fuzz_corpus):
    """Every file the fuzzers keep, through read_bytes in an interpreter of
    its own: each reads or raises ReadError, and either way the plant's view
    is the library's."""
    folders = ["documents", "records"]
    total = sum(len(os.listdir(fuzz_corpus / folder)) for folder in folders)
    assert total > 1000
    here = os.path.dirname(os.path.abspath(__file__))
    result = run_python_args(HOSTILE, [here, str(fuzz_corpus)] + folders)
    assert result.returncode == 0, result.stderr[-4000:]
    counts = json.loads(result.stdout)
    assert counts["read"] + counts["stopped"] == total
    assert counts["read"] > 0 and counts["stopped"] > 0


ERRORS = r"""
import sys, unitechnik
for data in (b"", b"JUNK", b"HEADER__\r\n", b"\xff\xfe\x00" * 1000, b"HEADER__\r\n600\r\n" + b"\x00" * 100):
    try:
        print(len(unitechnik.read_bytes(data).orders))
    except unitechnik.ReadError as error:
        print(error.line, error.column)
try:
    unitechnik.read(sys.argv[1])
except unitechnik.ReadError as error:
    print(error.line, error.column)
"""


def test_errors_in_a_subprocess(tmp_path):
    result = run_python_args(ERRORS, [str(tmp_path / "missing.uni")])
    assert result.returncode == 0, result.stderr
    # The NULs fill the order's first text (20 places, any bytes); the blank
    # after it is missing at column 21.
    assert result.stdout.split("\n") == ["0", "1 1", "2 1", "1 1", "3 21", "0 0", ""]


def run_python_args(code, arguments):
    import subprocess
    return subprocess.run([sys.executable, "-c", code] + arguments, capture_output=True, text=True)
