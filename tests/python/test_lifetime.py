"""Identity and lifetime: one wrapper, one Python object; the destruction
hook when the Python object goes; objects that outlive their native side;
interpreter exit with objects alive."""

import gc
import os
import textwrap
import weakref

import pytest

import zelmar
from conftest import run_python


def test_one_wrapper_is_one_python_object_while_announced(t, canvas):
    circle = t.Circle()
    assert canvas.add(circle) is circle  # the argument given back
    assert canvas.first() is canvas.first()  # the same wrapper twice
    first, again = canvas.shapes(), canvas.shapes()
    assert all(a is not b and a.isSame(b) for a, b in zip(first, again))  # new wrappers, same shapes
    # The canvas keeps its wrapper; once its Python object went, a new one stands for it.
    first = canvas.first()
    area, gone = first.getArea(), weakref.ref(first)
    del first
    assert gone() is None
    assert canvas.first().getArea() == area


def test_the_destruction_hook_runs_when_the_last_holder_lets_go(t):
    canvas, circle = t.Canvas(), t.Circle()
    gc.collect()  # nothing of other tests ends meanwhile
    live, ended, gone = t.Item.live(), t.Item.ended(), weakref.ref(circle)
    canvas.keep([circle])  # the native side holds it too
    del circle
    gc.collect()
    assert gone() is not None and canvas.kept() is gone()  # a 1-by-1 array: the object
    assert t.Item.ended() == ended
    canvas.keep(None)
    assert gone() is None
    assert (t.Item.live(), t.Item.ended()) == (live - 1, ended + 1)


def test_objects_whose_native_side_went_fail_with_an_error_not_a_crash(t):
    canvas = t.Canvas()
    canvas.add(t.Circle())
    first = canvas.first()
    canvas.dropFirst()  # the native wrapper goes; its Python object stays
    for call in (first.getArea, lambda: first.Area):
        with pytest.raises(zelmar.Error) as raised:
            call()
        assert raised.value.identifier == "ZELMAR:vorlo:InvalidObject"


def test_python_subclasses_of_concrete_classes_keep_their_class(t):
    class Big(t.Circle):
        def twice(self):
            return 2 * self.getArea()

    canvas = t.Canvas()
    big = Big(2.0)
    assert canvas.add(big) is big and big.twice() == pytest.approx(2 * big.getArea())
    canvas.keep(big)
    big.note = "Python subclasses have a __dict__"
    del big
    assert canvas.kept().note == "Python subclasses have a __dict__"
    assert type(canvas.first()) is t.Circle  # a wrapper of its own: of the class it reports
    with pytest.raises(AttributeError):
        t.Circle().Areaa = 1  # objects of platform classes take no new attributes: a typo is an error


@pytest.mark.parametrize(
    "script",
    [
        # Objects of every kind alive, held by Python and by the native side,
        # Python objects that the native side holds in a cycle, and objects
        # that call the library from a finaliser of their own.
        """
        canvas = t.Canvas("kept")
        canvas.add(t.Circle(2.0)); first = canvas.first(); shapes = canvas.shapes()
        class Painter(t.Painter):
            def paint(self, shape): return True
            def title(self): return "p"
        painter = Painter(); painter.canvas = canvas
        canvas.keep([painter, first]); color = t.Color.Blue
        class Noisy(t.Circle):
            def __del__(self): self.getArea()
        keep = [Noisy(1.0) for _ in range(3)]
        print("alive")
        """,
        # Exit from inside a callback.
        """
        class Quitter(t.Painter):
            def paint(self, shape): sys.exit(0)
            def title(self): return ""
        canvas = t.Canvas(); canvas.add(t.Circle())
        print("alive"); sys.stdout.flush()
        canvas.render(Quitter())
        """,
    ],
)
def test_interpreter_exit_with_objects_alive(script):
    here = os.path.dirname(__file__)
    prelude = f"import sys; sys.path.insert(0, {here!r})\nimport conftest; t = conftest.load_test_package()\n"
    code, output, errors = run_python(prelude + textwrap.dedent(script))
    assert (code, output.strip()) == (0, "alive"), errors
    assert "Error" not in errors and "Fatal" not in errors, errors
