"""Documents written through the package: the example slab byte for byte as
the C example host writes it, and the golden scenarios of tests/functional."""
import pytest

import scenarios
import unitechnik
from conftest import run_python


def test_example_slab_equals_the_c_example_host(tmp_path, c_example):
    path = tmp_path / "example-slab.uni"
    summary = scenarios.example_slab(path)
    assert path.read_bytes() == c_example.read_bytes()
    assert "STEELMAT\n" in summary


@pytest.mark.parametrize("version", [502, 600])
def test_reinforced_scenario(tmp_path, expected, version):
    path = tmp_path / ("reinforced-%d.txt" % version)
    with unitechnik.Document() as document:
        scenarios.reinforced_start(document, version)
        scenarios.reinforced(document)
        assert document.write(path)
        assert path.read_bytes() == (expected / "reinforced" / path.name).read_bytes()
        # The document stays: one more iron, with a text above U+00FF, which
        # only the summary keeps.
        assert document.add_ext_iron(1, 1, 0.0, "\u03a9 7") == 3
        summary = document.summary()
    golden = (expected / "reinforced" / ("summary-%d.txt" % version)).read_bytes()
    assert summary.encode("utf-8") == golden


def test_summary_of_a_fresh_element(expected):
    with unitechnik.Document() as document:
        scenarios.reinforced_start(document, 600)
        assert document.summary() == (expected / "reinforced" / "summary-fresh-600.txt").read_text("utf-8")
        # Called twice, the same text.
        assert document.summary() == document.summary()


def test_without_an_order_nothing_is_added(expected):
    code = """
import unitechnik as u
print(repr(u.summary()))
print(u.add_steelmat("M", 1, 1, True, False, 1, (0, 0, 0)))
print(u.add_cfs_rodstock(1, "B", 1, 1, (0, 0)))
print(u.add_ext_iron(1, 1, 1.0, "I"))
print(u.add_set(3, "P", [0, 0]))
"""
    result = run_python(code)
    assert result.returncode == 0, result.stderr
    assert (expected / "reinforced" / "summary-none.txt").read_bytes() == b""
    assert result.stdout.split("\n") == ["''", "0", "0", "0", "False", ""]


@pytest.mark.parametrize("version", [502, 600])
def test_slab_scenario(tmp_path, expected, version):
    path = tmp_path / ("slab-%d.txt" % version)
    with unitechnik.Document(path) as document:
        scenarios.slab(document, version)
    assert path.read_bytes() == (expected / "slab" / path.name).read_bytes()


def test_set_thicknesses_after_the_layers(tmp_path, expected):
    # The element's second line carries the thickness (UInt(4), 13th field)
    # and the second thickness (UInt(4), last field) as given; the rest stays.
    path = tmp_path / "slab.txt"
    with unitechnik.Document(path) as document:
        scenarios.slab(document, 600)
        document.set_thicknesses(thickness=220, second_thickness=180)
    golden = (expected / "slab" / "slab-600.txt").read_bytes()
    before = b"\r\n02.400 000 00          0.000 05700.0 0200 025 000 000 000 000 0200\r\n"
    after = b"\r\n02.400 000 00          0.000 05700.0 0220 025 000 000 000 000 0180\r\n"
    assert golden.count(before) == 1
    assert path.read_bytes() == golden.replace(before, after)


def test_functions_without_the_document(tmp_path, expected):
    # The exports as plain functions, with clear_document stated: the calls
    # of tests/functional/scenarios/orders.c.
    square = [(0, 0, 0), (1000, 0, 0), (0, 1000, 0)]
    unitechnik.start_order(order_value=7, element_number=1, placement=square, version=502,
                           element_text="E1", element_measure=2.5, clear_document=True)
    assert unitechnik.end_document(str(tmp_path / "one-502.txt")) is True
    unitechnik.start_order(12, 1, square, 600, "E1", 0, True)
    unitechnik.start_order(3, 2, square, 501, "E2", 0, False)
    assert unitechnik.end_document(tmp_path / "two-600-501.txt") is True
    for name in ("one-502.txt", "two-600-501.txt"):
        assert (tmp_path / name).read_bytes() == (expected / "orders" / name).read_bytes()


def test_document_is_written_only_when_the_block_ends_well(tmp_path):
    path = tmp_path / "never.uni"
    with pytest.raises(KeyError):
        with unitechnik.Document(path) as document:
            document.start_order(1, 1, scenarios.FLAT, 600, "Slab", 1.0)
            raise KeyError("the host fails")
    assert not path.exists()


def test_one_document_at_a_time():
    with unitechnik.Document():
        with pytest.raises(RuntimeError):
            with unitechnik.Document():
                pass
    with unitechnik.Document():
        pass


def test_a_documents_first_order_drops_what_was_there(tmp_path, expected):
    with unitechnik.Document() as document:
        scenarios.reinforced_start(document, 600)
        scenarios.reinforced_start(document, 600)
    path = tmp_path / "one.txt"
    with unitechnik.Document(path) as document:
        scenarios.reinforced_start(document, 600)
    assert path.read_bytes() == (expected / "versions" / "v600.txt").read_bytes()
