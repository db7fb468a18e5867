"""No Python input crashes the process: random calls with awkward values on
every method, and random sequences of calls and drops."""

import math

from hypothesis import HealthCheck, given, settings, strategies as st
from hypothesis.stateful import Bundle, RuleBasedStateMachine, consumes, invariant, rule

import zelmar
from conftest import load_test_package
from test_errors import Painter

t = load_test_package()

AWKWARD = [
    None, True, 0, -1, 2**31, 2**64, -(2**70), 10**400, math.nan, math.inf, -math.inf, 0.5,
    "", "\0", "a\0b", "\ud800", "\U0001F600", b"bytes", [], [None], (), {}, object(), zelmar.uint32(3),
    t.Color.Blue, t.Circle, len,
]
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
    pool = st.sampled_from(AWKWARD + objects)
    arguments = data.draw(st.lists(pool, max_size=3))
    try:
        attribute = getattr(target, name)
        if callable(attribute):
            attribute(*arguments)
        elif arguments:
            setattr(target, name, arguments[0])
    except EXPECTED:
        pass


class Drawings(RuleBasedStateMachine):
    """Canvases and shapes made, linked, pinned and dropped at random; every
    object still held answers, or fails with the platform's error once the
    native wrapper it stood for is gone."""

    canvases = Bundle("canvases")
    shapes = Bundle("shapes")

    def __init__(self):
        super().__init__()
        self.held = []  # what the bundles hold, to check

    def hold(self, obj):
        self.held.append(obj)
        return obj

    @rule(target=canvases)
    def new_canvas(self):
        return self.hold(t.Canvas())

    @rule(target=shapes, diameter=st.floats(0, 10))
    def new_circle(self, diameter):
        return self.hold(t.Circle(diameter))

    @rule(target=shapes, canvas=canvases, side=st.floats(0, 10))
    def add_square(self, canvas, side):
        return self.hold(canvas.addSquare(side))

    @rule(target=shapes, canvas=canvases)
    def first(self, canvas):
        return self.hold(canvas.first())

    @rule(canvas=canvases, shape=shapes)
    def add(self, canvas, shape):
        assert canvas.add(shape) in (shape, None)  # None: the shape's native wrapper is gone

    @rule(canvas=canvases)
    def drop_first(self, canvas):
        canvas.dropFirst()

    @rule(canvas=canvases, kept=st.lists(st.one_of(canvases, shapes), max_size=3))
    def keep(self, canvas, kept):
        canvas.keep(kept)

    @rule(obj=consumes(canvases) | consumes(shapes))
    def drop(self, obj):
        self.held.remove(obj)

    @invariant()
    def survivors_answer(self):
        for obj in self.held:
            if isinstance(obj, t.Canvas):
                assert len(obj.shapes()) == obj.Count
            elif obj is not None:  # None: the first shape of an empty canvas
                try:
                    assert obj.getArea() >= 0
                except zelmar.Error as error:
                    assert error.identifier == "ZELMAR:vorlo:InvalidObject"


Drawings.TestCase.settings = settings(max_examples=60, stateful_step_count=30, deadline=None)
test_drawings = Drawings.TestCase
