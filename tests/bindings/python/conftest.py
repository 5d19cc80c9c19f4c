"""What the tests of the Python package share. CTest gives the places by the
environment: the golden files, the C example host's slab of the same build,
the layout program, the command-line tool, the script generator, the fuzz
corpus, and (through ITUNITECHNIK_LIBRARY and ITUNITECHNIK_READING_LIBRARY)
the writing and the reading library."""
import os
import pathlib
import subprocess
import sys

import pytest

REPOSITORY = pathlib.Path(__file__).resolve().parents[3]


# The reading tests, skipped in a build without the reading library (no
# tools built): ctest sets ITUNITECHNIK_READING_LIBRARY whenever it is built.
needs_reading = pytest.mark.skipif(not os.environ.get("ITUNITECHNIK_READING_LIBRARY"),
                                   reason="this build has no reading library")


def _place(variable):
    value = os.environ.get(variable)
    if not value:
        pytest.fail("%s is not set: run the tests through ctest" % variable)
    return pathlib.Path(value)


@pytest.fixture
def expected():
    """The golden files of tests/functional."""
    return _place("UNITECHNIK_TEST_EXPECTED")


@pytest.fixture
def c_example():
    """The example slab as examples/slab_host.c writes it in this build."""
    return _place("UNITECHNIK_TEST_C_EXAMPLE")


@pytest.fixture
def layout_program():
    return _place("UNITECHNIK_TEST_LAYOUT")


@pytest.fixture
def export_list():
    return REPOSITORY / "src" / "exports" / "export_list.txt"


def run_python(code, env=None):
    """Runs code in a fresh interpreter, for what needs a library that holds
    nothing yet or a package found in another place."""
    return subprocess.run([sys.executable, "-c", code], env=env, capture_output=True, text=True)


@pytest.fixture(scope="session")
def tool():
    """The command-line tool unitechnik of this build."""
    return _place("UNITECHNIK_TEST_TOOL")


@pytest.fixture(scope="session")
def generator():
    """generate_scripts OUTPUT-DIR SEED COUNT of tests/tools/generator."""
    return _place("UNITECHNIK_TEST_GENERATOR")


@pytest.fixture(scope="session")
def fuzz_corpus():
    """fuzz/corpus of the tree."""
    return _place("UNITECHNIK_TEST_FUZZ_CORPUS")


@pytest.fixture(scope="session")
def reading_library():
    return _place("ITUNITECHNIK_READING_LIBRARY")
