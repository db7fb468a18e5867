"""The tests of the Python host. They run against a build tree's package
(./dev test puts build/<preset>/python on the path) and load the native test
package built beside it, tests/python/libzelmar_testpackage.so."""

import math
import os
import subprocess
import sys
import textwrap
import types

import pytest
from hypothesis import settings

import zelmar

# No example database in the work tree: each run draws afresh. Tests that
# set no size of their own take it from the profile: "zelmar" keeps ./dev test
# quick; HYPOTHESIS_PROFILE=soak runs them long.
settings.register_profile("zelmar", database=None, deadline=None, max_examples=40, stateful_step_count=30)
settings.register_profile("soak", settings.get_profile("zelmar"), max_examples=1000)
settings.load_profile(os.environ.get("HYPOTHESIS_PROFILE", "zelmar"))

BUILD = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(zelmar.__file__))))
TEST_PACKAGE = os.path.join(BUILD, "tests", "python", "libzelmar_testpackage.so")


def load_test_package():
    """The module zelmar.testing with the classes of the test package."""
    if "zelmar.testing" not in sys.modules:
        module = types.ModuleType("zelmar.testing")
        sys.modules[module.__name__] = module
        zelmar._load(TEST_PACKAGE, module.__name__, module.__dict__)
    return sys.modules["zelmar.testing"]


@pytest.fixture(scope="session")
def t():
    return load_test_package()


@pytest.fixture
def canvas(t):
    """A canvas with a circle of diameter 2 and a square of side 3."""
    canvas = t.Canvas("test")
    canvas.add(t.Circle(2.0))
    canvas.addSquare(3.0)
    return canvas


# Values that no record takes as they are, or only just.
AWKWARD = [
    None, True, 0, -1, 2**31, 2**53 + 1, 2**64, -(2**70), 10**400, math.nan, math.inf, -math.inf, 0.5,
    "", "\0", "a\0b", "\ud800", "\U0001F600", b"bytes", [], [None], (), {}, object(), zelmar.uint32(3), len,
]


def run_python(program):
    """Runs `program` in a new interpreter that finds what this one finds:
    the exit code, the output and the error output."""
    environment = dict(os.environ, PYTHONPATH=os.pathsep.join(sys.path))
    finished = subprocess.run([sys.executable, "-c", textwrap.dedent(program)], capture_output=True, text=True,
                              env=environment, timeout=60)
    return finished.returncode, finished.stdout, finished.stderr


def poke(target, name, arguments, expected):
    """Calls the record `name` of `target` with `arguments`, or sets it to the
    first of them; a refusal of one of the `expected` kinds is no failure."""
    try:
        attribute = getattr(target, name)
        if callable(attribute):
            attribute(*arguments)
        elif arguments:
            setattr(target, name, arguments[0])
    except expected:
        pass
