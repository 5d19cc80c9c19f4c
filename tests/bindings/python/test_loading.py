"""Where the package finds the library, and the reading library: the
environment variable first, then beside the package, then the system's
loader; and what it says when it finds none."""
import os
import pathlib
import shutil
import subprocess
import sys

import unitechnik
from unitechnik import _library
from conftest import needs_reading, run_python

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


# The reading library is found the same ways.

READ = """
import sys, unitechnik
from unitechnik import _reading
print(len(unitechnik.read(sys.argv[-1]).orders))
print(_reading.library()._name)
"""


@needs_reading
def test_the_environment_variable_names_the_reading_library():
    from unitechnik import _reading
    _reading.library()
    assert _reading.library()._name == os.environ["ITUNITECHNIK_READING_LIBRARY"]


@needs_reading
def test_the_reading_library_beside_the_package(tmp_path, c_example):
    package = tmp_path / "unitechnik"
    shutil.copytree(pathlib.Path(unitechnik.__file__).parent, package)
    beside = package / ("libitunitechnik_reading.so." + unitechnik.__version__.split(".")[0])
    shutil.copy(os.environ["ITUNITECHNIK_READING_LIBRARY"], beside)
    env = environment_without_the_library(PYTHONPATH=str(tmp_path))
    del env["ITUNITECHNIK_READING_LIBRARY"]
    result = subprocess.run([sys.executable, "-c", READ, str(c_example)], env=env, capture_output=True, text=True)
    assert result.returncode == 0, result.stderr
    assert result.stdout.split("\n") == ["1", str(beside), ""]


@needs_reading
def test_no_reading_library_found(tmp_path, c_example):
    package = tmp_path / "unitechnik"
    shutil.copytree(pathlib.Path(unitechnik.__file__).parent, package)
    missing = tmp_path / "missing.so"
    env = environment_without_the_library(PYTHONPATH=str(tmp_path), ITUNITECHNIK_READING_LIBRARY=str(missing))
    result = subprocess.run([sys.executable, "-c", READ, str(c_example)], env=env, capture_output=True, text=True)
    assert result.returncode != 0
    assert ("OSError: the itunitechnik_reading library was not found; set ITUNITECHNIK_READING_LIBRARY"
            in result.stderr)
    assert str(missing) in result.stderr and "libitunitechnik_reading.so." in result.stderr
