"""No Python input crashes the process: random calls with awkward values on
every method and property."""

from hypothesis import HealthCheck, given, settings, strategies as st

import zelmar
from conftest import AWKWARD, load_test_package, poke
from test_errors import Painter

t = load_test_package()

VALUES = AWKWARD + [t.Color.Blue, t.Circle]
EXPECTED = (TypeError, OverflowError, ValueError, AttributeError, NotImplementedError, zelmar.Error)


def instances():
    canvas = t.Canvas("c")
    circle = canvas.add(t.Circle(2.0))
    return [canvas, circle, canvas.addSquare(1.0), canvas.first(), Painter.make(t, lambda shape: shape)]


def public_names(obj):
    return sorted(name for name in dir(obj) if not name.startswith("_")) + ["secretName", "Secret"]


@settings(max_examples=400, deadline=None, suppress_health_check=[HealthCheck.too_slow])
@given(st.data())
def test_random_calls_with_awkward_values_fail_cleanly(data):
    objects = instances()
    target = data.draw(st.sampled_from(objects))
    name = data.draw(st.sampled_from(public_names(target)))
    pool = st.sampled_from(VALUES + objects)
    arguments = data.draw(st.lists(pool, max_size=3))
    poke(target, name, arguments, EXPECTED)
