#!/usr/bin/env python3
"""Makes the seed corpora of fuzz/corpus from the golden files of the tests.

documents/  each golden file whole: seeds of the document and tolerant targets.
records/    each line of the golden files and what follows it (at most 600
            bytes), behind one byte that picks the file's version: seeds of
            every record target, whose record starts at some line of them.
exports/    call sequences in the exports target's own coding.
scripts/    the tool's call scripts of the tests and examples, whole: seeds of
            the script target; script.dict holds every key and name in them.
Run it again when the golden files change.
"""
import hashlib
import re
import pathlib
import struct

HERE = pathlib.Path(__file__).resolve().parent
GOLDEN = HERE.parent / "tests" / "functional" / "expected"
SCRIPTS = [HERE.parent / "examples", HERE.parent / "tests" / "tools" / "golden",
           HERE.parent / "tests" / "tools" / "check" / "inputs"]
# The order of fuzz/record_read.h's VersionFrom.
VERSIONS = [0, 5, 499, 500, 501, 502, 503, 599, 600, 601, -1, 32767]


def write(folder, data):
    folder.mkdir(parents=True, exist_ok=True)
    (folder / hashlib.sha1(data).hexdigest()).write_bytes(data)


def version_of(data):
    # The second line of a file that starts with a tag is its version.
    lines = data.split(b"\n")
    if len(lines) > 1 and lines[1].strip().isdigit():
        value = int(lines[1].strip())
        if value in VERSIONS:
            return VERSIONS.index(value)
    return VERSIONS.index(502)


def documents():
    for path in sorted(GOLDEN.rglob("*.txt")):
        data = path.read_bytes()
        if data:
            yield data


def records():
    seen = set()
    for data in documents():
        selector = bytes([version_of(data)])
        start = 0
        while start < len(data):
            seed = selector + data[start:start + 600]
            if seed not in seen:
                seen.add(seed)
                yield seed
            end = data.find(b"\n", start)
            if end < 0:
                break
            start = end + 1


# The exports target's coding: a step byte, then the values it takes.
def u8(v): return struct.pack("<B", v)
def u16(v): return struct.pack("<H", v)
def i16(v): return struct.pack("<h", v)
def i32(v): return struct.pack("<i", v)
def f64(v): return struct.pack("<d", v)
def text(s): return u16(len(s)) + b"".join(struct.pack("<H", ord(c)) for c in s)
def narrow(s): return u16(len(s)) + s.encode("latin-1")


def start_order(version_selector):
    return (u8(0) + b"".join(f64(v) for v in (0, 0, 0, 6000, 0, 0, 0, 2400, 0)) + u16(1) + i32(101)
            + u8(version_selector) + text("Floor slab") + f64(1.25) + u8(1))


def project(date):
    out = u8(1)
    for i in range(19):
        out += narrow(date) if i == 16 else text("T%d" % i)
    return out


def contour(points):
    return u8(6) + u16(len(points)) + b"".join(i32(x) + i32(y) for x, y in points)


def bar(extra, designation, code):
    return (text(extra) + text(designation) + b"".join(i32(v) for v in (1, 2, 3, 4000, 100, 200, 0))
            + u16(12) + u16(8) + i16(-90) + u16(5) + u8(1) + u8(0) + u8(code))


def exports():
    square = [(0, 0), (6000, 0), (6000, 2400), (0, 2400), (0, 0)]
    for selector in (5, 8, 1, 6):
        yield start_order(selector) + project("31.12.2024") + contour(square)
        yield (start_order(selector) + contour(square)
               + u8(7) + text("Opening") + f64(0.5) + u16(5) + b"".join(i32(x // 4) + i32(y // 4) for x, y in square)
               + u8(8) + u8(0) + text("Part") + u16(8) + b"".join(i32(v) for v in (1, 2, 0, 0, 300, 200))
               + u8(8) + u8(200) + text("Girder") + u16(12) + b"".join(i32(v) for v in range(10))
               + u8(9) + text("Mat") + b"".join(i32(v) for v in (6000, 2400, 1, 0, 3, 10, 20, 30))
               + u8(10) + text("B12") + text("X") + b"".join(i32(v) for v in (1, 12, 8, 4000, 1, 2, 3, 4, 5, 1, 6, 7, 8, 110))
               + u8(11) + bar("", "B10", 0)
               + u8(12) + bar("free", "B08", 2) + u16(7) + b"".join(i32(100 * k) + i16(90) for k in range(7))
               + u8(13) + i32(1) + i32(2) + f64(3.5) + text("Iron")
               + u8(5) + u16(1) + f64(0.2) + f64(1.0) + f64(2.0) + text("C30")
               + u8(2) + text("a") + text("b") + text("c") + text("d")
               + u8(3) + i32(200) + i32(150) + u8(4) + i32(20)
               + u8(14) + u8(15))
    yield start_order(8) + project("1.2.2024") + project("12")


def scripts():
    for folder in SCRIPTS:
        for path in sorted(folder.glob("*.json")):
            yield path.read_bytes()


def script_words():
    # The keys of the scripts and the names of their calls, quoted.
    words = set()
    for data in scripts():
        words.update(re.findall(rb'("[A-Za-z]+")\s*:', data))
        words.update(re.findall(rb'"call"\s*:\s*("[A-Za-z]+")', data))
    return sorted(words)


def main():
    for data in documents():
        write(HERE / "corpus" / "documents", data)
    for seed in records():
        write(HERE / "corpus" / "records", seed)
    for seed in exports():
        write(HERE / "corpus" / "exports", seed)
    for seed in scripts():
        write(HERE / "corpus" / "scripts", seed)
    with open(HERE / "script.dict", "wb") as out:
        out.write(b"# The calls and keys of the tool's call scripts; made by make_seeds.py.\n")
        for word in script_words():
            out.write(b'"' + word.replace(b'"', b'\\"') + b'"\n')


if __name__ == "__main__":
    main()
