"""What the reading tests compare with: the reading library called here
through ctypes of its own (not through the package), the tool's JSON, and a
read File turned back into the JSON's shape, so that a value lost, renamed
or changed by the package shows."""
import ctypes
import dataclasses
import json
import keyword
import os
import subprocess

_PLANT = 2


class _Library:
    def __init__(self, path):
        self.handle = ctypes.CDLL(path)
        self.handle.itrReadBytes.restype = ctypes.c_void_p
        self.handle.itrReadBytes.argtypes = [ctypes.c_char_p, ctypes.c_size_t, ctypes.c_int]
        self.handle.itrJson.restype = ctypes.c_char_p
        self.handle.itrJson.argtypes = [ctypes.c_void_p]
        self.handle.itrFree.argtypes = [ctypes.c_void_p]
        self.handle.itrPlantMeanings.restype = ctypes.c_char_p

    def plant(self, data):
        """The library's result for bytes, with the plant's view only."""
        result = self.handle.itrReadBytes(data, len(data), _PLANT)
        try:
            return json.loads(self.handle.itrJson(result))
        finally:
            self.handle.itrFree(result)

    def meanings(self):
        return json.loads(self.handle.itrPlantMeanings())


_library = []


def library():
    if not _library:
        _library.append(_Library(os.environ["ITUNITECHNIK_READING_LIBRARY"]))
    return _library[0]


def plain(value):
    """A read File's dataclasses in the shape of the library's JSON: a field
    as its key (from_ as "from"), a tuple as a list."""
    if dataclasses.is_dataclass(value) and not isinstance(value, type):
        out = {}
        for field in dataclasses.fields(value):
            key = field.name[:-1] if field.name.endswith("_") and keyword.iskeyword(field.name[:-1]) else field.name
            out[key] = plain(getattr(value, field.name))
        return out
    if isinstance(value, (list, tuple)):
        return [plain(item) for item in value]
    return value


def assert_same(actual, expected, where="$"):
    """Equal values of the same JSON types, keys and all, with the place of
    the first difference."""
    assert type(actual) is type(expected), "%s: %r (%s) against %r (%s)" % (
        where, actual, type(actual).__name__, expected, type(expected).__name__)
    if isinstance(expected, dict):
        assert sorted(actual) == sorted(expected), "%s: keys %s against %s" % (where, sorted(actual), sorted(expected))
        for key in expected:
            assert_same(actual[key], expected[key], "%s.%s" % (where, key))
    elif isinstance(expected, list):
        assert len(actual) == len(expected), "%s: %d items against %d" % (where, len(actual), len(expected))
        for i, (a, e) in enumerate(zip(actual, expected)):
            assert_same(a, e, "%s[%d]" % (where, i))
    else:
        assert actual == expected, "%s: %r against %r" % (where, actual, expected)


def native_env():
    """The environment for a program of this build run from the tests: under
    the sanitizers python runs with their shared runtime preloaded, and a
    program that links its own would refuse to start beside it."""
    env = dict(os.environ)
    env.pop("LD_PRELOAD", None)
    return env


def tool_json(tool, command, path):
    """The tool's JSON of command (dump or bom) for the file at path, and
    its exit status and standard error."""
    run = subprocess.run([str(tool), command, "--json", str(path)], capture_output=True, env=native_env())
    return json.loads(run.stdout), run.returncode, run.stderr.decode("utf-8", "replace")


def check_file(unitechnik, tool, path):
    """Reads path through the package and compares everything with the
    library's and the tool's JSON. Returns the File, or the ReadError."""
    data = pathlib_bytes(path)
    raw = library().plant(data)
    dump, dump_status, dump_error = tool_json(tool, "dump", path)
    bom, _bom_status, _bom_error = tool_json(tool, "bom", path)
    try:
        file = unitechnik.read(path)
        failure = None
    except unitechnik.ReadError as error:
        failure = error
        file = error.file
    if raw["ok"]:
        assert failure is None, str(failure)
        assert dump_status == 0, dump_error
    else:
        assert failure is not None
        assert (failure.line, failure.column, failure.message) == (
            raw["error"]["line"], raw["error"]["column"], raw["error"]["message"])
        assert failure.path == str(path)
        # The tool says it in the same words.
        assert dump_status != 0
        assert str(failure) in dump_error.splitlines()
    assert_same(plain(file.orders), raw["plant"]["orders"], "orders")
    assert_same(file.departures, raw["departures"], "departures")
    assert_same(file.bare_line_ends, raw["bareLineEnds"], "bareLineEnds")
    assert_same(file.records, dump["document"], "records")
    for i, order in enumerate(file.orders):
        assert_same(order.record, dump["document"]["orders"][i], "orders[%d].record" % i)
        for j, element in enumerate(order.elements):
            assert_same(element.record, dump["document"]["orders"][i]["elementParts"][j],
                        "orders[%d].elements[%d].record" % (i, j))
        assert len(order.elements) == len(dump["document"]["orders"][i]["elementParts"])
    assert len(file.orders) == len(dump["document"]["orders"])
    assert_same(file.bom(), bom, "bom")
    return failure if failure is not None else file


def pathlib_bytes(path):
    with open(path, "rb") as stream:
        return stream.read()
