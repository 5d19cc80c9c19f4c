"""examples/read_bom.py on a file written here, against weights worked out
by hand, and docs/reading-python.md showing it as it stands."""
import subprocess
import sys

import unitechnik
from conftest import REPOSITORY, needs_reading

pytestmark = needs_reading

EXAMPLE = REPOSITORY / "examples" / "read_bom.py"
FLAT = [(0, 0, 0), (6000, 0, 0), (0, 2400, 0)]


def write_bars(path):
    """Bars whose weights come out even: a bar of d mm weighs
    d * d * 0.0061654 kg per metre, so 10000 mm * m of d * d * m weigh
    61.654 kg."""
    with unitechnik.Document(path) as document:
        document.start_order(1, 7, FLAT, 600, "Bars", 1.0)
        # d 10: 20 bars of 5 m, 20 * 5 * 100 = 10000.
        document.add_bar_set(count=20, diameter=10, length=5000, pitch=100, x=0, y=0, z=30, rotation=0,
                             grade="500")
        # d 20: 5 bars of 5 m, 5 * 5 * 400 = 10000.
        document.add_bar_set(count=5, diameter=20, length=5000, pitch=200, x=0, y=100, z=30, rotation=0,
                             grade="500")
        # d 10 again, another grade, in a mat: 10 wires of 10 m.
        document.add_steelmat("M", 10000, 1000, True, False, 1, (0, 0, 40))
        for k in range(10):
            document.add_mat_bar_set(count=1, diameter=10, length=10000, pitch=0, x=0, y=100 * k, z=40,
                                     rotation=0, grade="B500A")
        # A second element of the file: d 20, 10 bars of 2.5 m.
        document.start_order(1, 8, FLAT, 600, "More bars", 1.0)
        document.add_bar_set(count=10, diameter=20, length=2500, pitch=100, x=0, y=0, z=30, rotation=0,
                             grade="500")


def test_steel_weight_per_diameter(tmp_path):
    bars = tmp_path / "bars.uni"
    write_bars(bars)
    broken = tmp_path / "broken.uni"
    broken.write_bytes(b"HEADER__\r\n")
    run = subprocess.run([sys.executable, str(EXAMPLE), str(bars), str(broken), str(bars)],
                         capture_output=True, text=True)
    # d 10: 61.654 + 61.654; d 20: 61.654 + 61.654.
    shown = [str(bars), "  d 10 mm: 123.308 kg", "  d 20 mm: 123.308 kg", "  total: 246.616 kg"]
    assert run.stdout.splitlines() == shown + shown
    stop = "2:1: expected a number of at least 3 places in HEADER__, but the file ends there"
    assert run.stderr == "%s:%s\n" % (broken, stop)
    assert run.returncode == 1


def test_the_example_slab(c_example):
    run = subprocess.run([sys.executable, str(EXAMPLE), str(c_example)], capture_output=True, text=True)
    assert run.returncode == 0, run.stderr
    # 54 wires of d 6 (15 of 5.8 m, 39 of 2.2 m: 172.8 m), 5 bars of d 10 of
    # 3 m, 2 of d 12 of 2.9 m, at d * d * 0.0061654 kg/m, to the gram.
    weights = {6: 172.8 * 36 * 0.0061654, 10: 15.0 * 100 * 0.0061654, 12: 5.8 * 144 * 0.0061654}
    expected = [str(c_example)] + ["  d %d mm: %.3f kg" % (d, round(w, 3)) for d, w in sorted(weights.items())]
    expected.append("  total: %.3f kg" % sum(round(w, 3) for w in weights.values()))
    assert run.stdout.splitlines() == expected


def test_the_page_shows_the_example():
    page = (REPOSITORY / "docs" / "reading-python.md").read_text("utf-8")
    assert "```python\n" + EXAMPLE.read_text("utf-8") + "```\n" in page
