"""Where the package finds the library: the environment variable first, then
beside the package, then the system's loader; and what it says when it finds
none."""
import os
import pathlib
import shutil

import unitechnik
from unitechnik import _library
from conftest import run_python

WRITE = """
import sys, unitechnik
from unitechnik import _library
with unitechnik.Document(sys.argv[-1] if len(sys.argv) > 1 else "out.uni") as d:
    d.start_order(1, 101, [(0, 0, 0), (6000, 0, 0), (0, 2400, 0)], 600, "Slab", 1.25)
print(_library.library()._name)
"""


def environment_without_the_library(**extra):
    env = {k: v for k, v in os.environ.items() if k not in ("ITUNITECHNIK_LIBRARY", "LD_LIBRARY_PATH")}
    env.update(extra)
    return env


def test_the_environment_variable_names_the_library():
    assert _library.library()._name == os.environ["ITUNITECHNIK_LIBRARY"]


def test_the_library_beside_the_package(tmp_path):
    package = tmp_path / "unitechnik"
    shutil.copytree(pathlib.Path(unitechnik.__file__).parent, package)
    beside = package / ("libitunitechnik.so." + unitechnik.__version__.split(".")[0])
    shutil.copy(os.environ["ITUNITECHNIK_LIBRARY"], beside)
    result = run_python("import os; os.chdir(%r)\n" % str(tmp_path) + WRITE,
                        env=environment_without_the_library(PYTHONPATH=str(tmp_path)))
    assert result.returncode == 0, result.stderr
    assert result.stdout.strip() == str(beside)
    assert (tmp_path / "out.uni").read_bytes().startswith(b"HEADER__\r\n")


def test_no_library_found(tmp_path):
    package = tmp_path / "unitechnik"
    shutil.copytree(pathlib.Path(unitechnik.__file__).parent, package)
    missing = tmp_path / "missing.so"
    result = run_python("import unitechnik; unitechnik.summary()",
                        env=environment_without_the_library(PYTHONPATH=str(tmp_path),
                                                            ITUNITECHNIK_LIBRARY=str(missing)))
    assert result.returncode != 0
    assert "OSError: the itunitechnik library was not found; set ITUNITECHNIK_LIBRARY" in result.stderr
    assert str(missing) in result.stderr and "libitunitechnik.so." in result.stderr


def test_version_is_the_projects():
    assert unitechnik.__version__ == os.environ["UNITECHNIK_TEST_VERSION"]
