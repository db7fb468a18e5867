"""Values between Python and the records, by type string, and the choice
among overloads."""

import fractions
import math

import pytest

import zelmar


@pytest.mark.parametrize(
    "text, units",
    [
        ("", 0),
        ("héllo wörld", 11),
        ("\U0001F600 astral", 9),  # a surrogate pair on the native side
        ("lone \ud800 high, \udfff low", 18),
        ("\udc00\ud800", 2),  # reversed: two lone surrogates, not a pair
        ("cut\0here", 8),
    ],
)
def test_text_crosses_without_loss_and_results_end_at_a_zero_unit(t, text, units):
    assert t.Canvas(text).Title == text.split("\0")[0]
    assert t.Canvas.length(text) == units  # arguments arrive whole, in UTF-16 units


def test_texts_of_several_arguments_stay_apart(t):
    long = "x" * 1000  # no short-string storage: each text has its own buffer
    assert t.Canvas.join(long, "\U0001F600") == long + "+\U0001F600"


@pytest.mark.parametrize(
    "method, argument, result",
    [
        ("describe", True, "a round shape"),
        ("describe", 1, "a round shape"),  # an int stands for a logical
        ("describe", 0, "a shape"),
        ("half", 3, 1.5),
        ("half", True, 0.5),
        ("half", fractions.Fraction(1, 2), 0.25),  # any real number
        ("half", -math.inf, -math.inf),
        ("next", 2**64 - 2, 2**64 - 1),
        ("wrap", 2**32 - 1, 2**32 - 1),
        ("wrap", zelmar.uint32(7), 7),
        # Values that do not fit fail clearly.
        ("half", 10**400, OverflowError),
        ("next", 2**64, OverflowError),
        ("next", -1, OverflowError),
        ("wrap", 2**32, OverflowError),
        ("next", 1.0, TypeError),  # not an integer
        ("half", "1", TypeError),
        ("half", None, TypeError),
        ("length", None, TypeError),
        ("length", b"bytes", TypeError),
    ],
)
def test_scalars(t, method, argument, result):
    call = getattr(t.Circle() if method == "describe" else t.Canvas(), method)
    if isinstance(result, type):
        with pytest.raises(result):
            call(argument)
    else:
        assert call(argument) == result


def test_nan_crosses_as_nan(t):
    assert math.isnan(t.Canvas.half(math.nan))


def test_object_arguments_none_lists_and_unrelated_objects(t):
    canvas, circle, other = t.Canvas(), t.Circle(1.0), t.Circle(5.0)
    # None is an empty value, a null pointer; of a list or tuple the first counts, even when it is None;
    # an object of an unrelated class arrives as null.
    given = [circle, None, [other, circle], (circle,), [], [None, circle], t.Canvas()]
    assert [canvas.add(value) for value in given] == [circle, None, other, circle, None, None, None]
    assert canvas.Count == 3
    for wrong in (5, "circle", [circle, 5], object()):
        with pytest.raises(TypeError):
            canvas.add(wrong)


def test_enumerations_are_intenum_members_by_host_value(t):
    circle = t.Circle()
    assert circle.getColor() is t.Color.Red
    circle.Color = t.Color.Blue
    assert circle.getColor() is circle.Color is t.Color.Blue
    assert [(m.name, m.value) for m in t.Color] == [("Red", 0), ("Green", 1), ("Blue", 255)]
    with pytest.raises(TypeError):
        circle.Color = 255  # a member, not its number


@pytest.mark.parametrize(
    "value, back",
    [
        (None, None),
        ("text", "text"),
        (3, 3.0),  # a number is a double
        (True, True),
        (zelmar.uint32(9), 9),
        (["a", "b"], ["a", "b"]),
        ((1, 2.5), [1.0, 2.5]),
        ([True, False], [True, False]),
        ([], None),
    ],
)
def test_any_takes_what_the_native_side_keeps(t, value, back):
    canvas = t.Canvas()
    canvas.keep(value)
    assert canvas.kept() == back


def test_any_keeps_host_objects_and_enumeration_members(t):
    canvas, circle, square = t.Canvas(), t.Circle(), t.Canvas().addSquare(1.0)
    for value in (circle, [None, circle], t.Color.Green):
        canvas.keep(value)
        assert canvas.kept() == value
    canvas.keep([circle, square])
    assert all(a is b for a, b in zip(canvas.kept(), [circle, square], strict=True))
    for wrong in (object(), {}, [1, "a"], [circle, 1]):
        with pytest.raises(TypeError):
            canvas.keep(wrong)


def test_results_are_of_the_class_the_wrapper_reports(t, canvas):
    assert [type(shape) for shape in canvas.shapes()] == [type(s) for s in canvas.Shapes] == [t.Circle, t.Square]
    assert t.Canvas().shapes() == []  # a vector is a list, empty or not
    assert isinstance(canvas.addSquare(1.0), t.Square)
    assert canvas.shapes()[0].getCanvas() is canvas  # "any": the object
    assert t.Circle().getCanvas() is None  # the empty double


def test_overloads_are_chosen_by_count_then_type(t):
    square, circle = t.Canvas().addSquare(2.0), t.Circle(3.0)
    for arguments, area in [((2,), 16), ((0.5, 2), 16), ((circle,), 9), ((None,), 0)]:
        square.scale(*arguments)  # scale(circle) has the count of scale(float): the type decides
        assert square.Area == area
    assert t.Circle().getArea() == pytest.approx(math.pi / 4)
    assert t.Circle(4.0).getArea() == pytest.approx(4 * math.pi)
    with pytest.raises(TypeError, match=r"Circle\(float\)"):
        t.Circle("x")


@pytest.mark.parametrize("arguments", [(), ("x",), (1, 2, 3), (None, None)])
def test_a_call_that_fits_no_signature_lists_them(t, arguments):
    with pytest.raises(TypeError) as raised:
        t.Circle().scale(*arguments)
    message = str(raised.value)
    assert message.startswith("no signature of zelmar.testing.Shape.scale takes (")
    for signature in ("scale(self, float) -> None", "scale(self, Shape) -> None", "scale(self, float, float) -> None"):
        assert signature in message


def test_keywords_are_refused(t):
    with pytest.raises(TypeError, match="keyword"):
        t.Canvas().half(value=1.0)
    with pytest.raises(TypeError, match="keyword"):
        t.Canvas(title="x")


def test_statics_on_the_class_and_on_objects_and_methods_through_the_class_with_an_object_of_it(t):
    canvas, circle = t.Canvas(), t.Circle(2.0)
    assert (t.Canvas.origin(), t.Canvas.origin(2)) == (canvas.origin(), canvas.origin(2)) == (0, -2)
    assert t.Shape.getArea(circle) == 4 and circle.getArea() == pytest.approx(math.pi)  # the class's record
    for wrong in ((canvas,), (), (5,)):
        with pytest.raises(TypeError):
            t.Shape.getArea(*wrong)


def test_properties(t):
    circle, canvas = t.Circle(2.0), t.Canvas("a")
    canvas.Title = "b"
    assert canvas.Title == "b"
    with pytest.raises(AttributeError, match="has no setter"):
        canvas.Count = 3
    with pytest.raises(AttributeError):
        del canvas.Title
    with pytest.raises(TypeError, match="takes str"):
        canvas.Title = 3
    # Typed properties: text that may be missing, a 64-bit word.
    assert circle.Label is None
    circle.Label, circle.Serial = "x\ud800", 2**64 - 1
    assert (circle.Label, circle.Serial) == ("x\ud800", 2**64 - 1)
    with pytest.raises(OverflowError):
        circle.Serial = -1
    with pytest.raises(TypeError):
        circle.Label = None
