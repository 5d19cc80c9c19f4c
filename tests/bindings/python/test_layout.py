"""The ctypes blocks are laid out as the C compiler lays out the header's, and
every export has its prototype."""
import ctypes
import subprocess

from unitechnik import _library

STRUCTURES = {"ItCutoutBlock": _library.CutoutBlock, "ItBarBlock": _library.BarBlock,
              "ItFreeFormSegment": _library.FreeFormSegment}


def test_blocks_match_the_header(layout_program):
    listing = subprocess.run([str(layout_program)], capture_output=True, text=True, check=True).stdout
    seen = set()
    for line in listing.splitlines():
        # "ItBarBlock size 64" or "ItBarBlock.rodKind 56"
        words = line.split()
        if words[1] == "size":
            assert ctypes.sizeof(STRUCTURES[words[0]]) == int(words[2]), line
            seen.add(words[0])
        else:
            block, field = words[0].split(".")
            assert getattr(STRUCTURES[block], field).offset == int(words[1]), line
            seen.add(words[0])
    assert set(STRUCTURES) <= seen
    # Every field of ours that the header names is checked; the rest are the
    # header's unused bytes.
    for block, structure in STRUCTURES.items():
        for name, _type in structure._fields_:
            assert name.startswith("unused") or "%s.%s" % (block, name) in seen


def test_every_export_has_a_prototype(export_list):
    exports = [line.strip() for line in export_list.read_text().splitlines() if line.strip()]
    assert len(exports) == 17
    assert sorted(exports) == sorted(_library.PROTOTYPES)


def test_the_bool_of_start_order_is_one_byte():
    assert _library.PROTOTYPES["startOrder"][1][-1] is ctypes.c_bool
    assert ctypes.sizeof(ctypes.c_bool) == 1


def test_texts_are_16_bit_units():
    units = _library.text("A\u03a9\U0001f600")
    assert list(units) == [0x41, 0x3A9, 0xD83D, 0xDE00, 0]
    assert _library.read_text(ctypes.cast(units, _library.Text)) == "A\u03a9\U0001f600"
