"""Errors raised into Python, and Python code that the native side calls:
abstract classes implemented in Python, and exceptions through native frames."""

import pytest

import zelmar


@pytest.mark.parametrize(
    "call, identifier, arguments, text",
    [
        (lambda t: t.Canvas.fail("h\u00e9\ud800", 42), "zelmar:testing:failure", ("h\u00e9\ud800", 42),
         "Message zelmar:testing:failure is not in the catalogue; arguments: h\u00e9\ud800, 42"),
        # A hidden constructor, none, an abstract class: the catalogue's text with its argument.
        (lambda t: t.Square(), "ZELMAR:vorlo:NotConstructible", ("zelmar.testing.Square",),
         "Objects of class zelmar.testing.Square cannot be made from host code."),
        (lambda t: t.Item(), "ZELMAR:vorlo:NotConstructible", ("zelmar.testing.Item",),
         "Objects of class zelmar.testing.Item cannot be made from host code."),
        (lambda t: t.Painter(), "ZELMAR:vorlo:NotConstructible", ("zelmar.testing.Painter",),
         "Objects of class zelmar.testing.Painter cannot be made from host code."),
        # A native exception that the library does not translate: named by its type.
        (lambda t: t.Canvas.crash("index 7 is out of range"), "std:out_of_range", (), "index 7 is out of range"),
    ],
)
def test_errors_carry_identifier_arguments_and_text(t, call, identifier, arguments, text):
    with pytest.raises(zelmar.Error) as raised:
        call(t)
    error = raised.value
    assert isinstance(error, Exception) and error.code is None
    assert (error.identifier, error.arguments, str(error)) == (identifier, arguments, text)


class Painter:
    """Painters made of the test package's abstract class by Python code."""

    @staticmethod
    def make(t, paint=lambda shape: True, title=lambda: "painter"):
        class Implemented(t.Painter):
            def paint(self, shape):
                return paint(shape)

            def title(self):
                return title()

        return Implemented()


def test_the_native_side_calls_python_implementations(t, canvas):
    class Large(t.Painter):  # with a constructor of its own
        def __init__(self, limit):
            self.limit, self.painted = limit, []

        def paint(self, shape):
            self.painted.append(type(shape))
            return shape.getArea() > self.limit  # calls back into the library meanwhile

        def title(self):
            return f"\U0001F600 over {self.limit}"

    painter = Large(4)
    assert canvas.render(painter) == 1 and painter.painted == [t.Circle, t.Square]
    assert canvas.titleOf(painter) == "\U0001F600 over 4"


@pytest.mark.parametrize(
    "result, painted", [(True, 2), (False, 0), (1, 2), (0, 0), (None, None), ("yes", None), (1.5, None), ([True], None)]
)
def test_results_convert_by_the_abstract_record_or_fail_in_the_caller(t, canvas, result, painted):
    painter = Painter.make(t, lambda shape: result)
    if painted is None:
        with pytest.raises(TypeError, match=r"paint\(\) must give bool"):
            canvas.render(painter)
    else:
        assert canvas.render(painter) == painted


def test_a_missing_text_result_is_the_platform_error(t, canvas):
    with pytest.raises(zelmar.Error) as raised:
        canvas.titleOf(Painter.make(t, title=lambda: None))
    assert raised.value.identifier == "ZELMAR:string:MissingNotSupported"


def test_exceptions_raised_in_callbacks_cross_native_frames_as_the_same_object(t, canvas):
    class Stop(Exception):
        pass

    stop = Stop("from paint")

    def paint(shape):
        raise stop

    with pytest.raises(Stop) as raised:
        canvas.render(Painter.make(t, paint))
    assert raised.value is stop
    assert "paint" in "".join(str(entry.name) for entry in raised.traceback)

    with pytest.raises(zelmar.Error) as raised:  # an error of the library raised inside the callback
        canvas.render(Painter.make(t, lambda shape: t.Canvas.fail("inner", 1)))
    assert raised.value.arguments == ("inner", 1)


def test_abstract_classes_need_every_method_implemented(t):
    class Half(t.Painter):
        def paint(self, shape):
            return super().paint(shape)

    with pytest.raises(TypeError, match="abstract method title"):
        Half()

    class Whole(Half):
        def title(self):
            return "whole"

    with pytest.raises(NotImplementedError):
        Whole().paint(None)  # the platform's record: a placeholder


def test_calling_back_an_object_of_another_class_is_python_s_attribute_error(t, canvas):
    with pytest.raises(AttributeError, match="paint"):
        canvas.render(t.Circle())  # a host object, but no painter
