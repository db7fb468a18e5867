"""Errors raised into Python, and Python code that the native side calls:
abstract classes implemented in Python, and exceptions through native frames."""

import pytest

import zelmar


def test_errors_of_the_platform_carry_identifier_arguments_and_text(t):
    with pytest.raises(zelmar.Error) as raised:
        t.Canvas().fail("h\u00e9\ud800", 42)
    error = raised.value
    assert isinstance(error, Exception)
    assert error.identifier == "zelmar:testing:failure"
    assert error.arguments == ("h\u00e9\ud800", 42)  # text as str, numbers as int, in order
    assert str(error) == "Message zelmar:testing:failure is not in the catalogue; arguments: h\u00e9\ud800, 42"
    assert error.code is None


def test_catalogue_texts_fill_in_the_arguments(t):
    with pytest.raises(zelmar.Error) as raised:
        t.Square()
    assert str(raised.value) == "Objects of class zelmar.testing.Square cannot be made from host code."


def test_native_exceptions_arrive_named_by_their_type(t):
    with pytest.raises(zelmar.Error) as raised:
        t.Canvas().crash("index 7 is out of range")
    assert (raised.value.identifier, str(raised.value), raised.value.arguments) == (
        "std:out_of_range",
        "index 7 is out of range",
        (),
    )


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
    painted = []

    def paint(shape):
        painted.append((type(shape), shape.getArea()))  # calls back into the library meanwhile
        return shape.getArea() > 4

    assert canvas.render(Painter.make(t, paint)) == 1
    assert [cls for cls, _ in painted] == [t.Circle, t.Square]
    assert canvas.titleOf(Painter.make(t, title=lambda: "P\U0001F600")) == "P\U0001F600"


@pytest.mark.parametrize("result, painted", [(True, 2), (False, 0), (1, 2), (0, 0)])
def test_results_convert_by_the_abstract_record(t, canvas, result, painted):
    assert canvas.render(Painter.make(t, lambda shape: result)) == painted


@pytest.mark.parametrize("result", [None, "yes", 1.5, [True]])
def test_results_of_the_wrong_type_fail_in_the_caller(t, canvas, result):
    with pytest.raises(TypeError, match=r"paint\(\) must give bool"):
        canvas.render(Painter.make(t, lambda shape: result))


def test_a_missing_text_result_is_the_platform_error(t, canvas):
    with pytest.raises(zelmar.Error) as raised:
        canvas.titleOf(Painter.make(t, title=lambda: None))
    assert raised.value.identifier == "ZELMAR:string:MissingNotSupported"


def test_python_exceptions_cross_native_frames_as_the_same_object(t, canvas):
    class Stop(Exception):
        pass

    stop = Stop("from paint")

    def paint(shape):
        raise stop

    with pytest.raises(Stop) as raised:
        canvas.render(Painter.make(t, paint))
    assert raised.value is stop
    assert "paint" in "".join(str(entry.name) for entry in raised.traceback)


def test_errors_of_the_library_inside_callbacks_cross_too(t, canvas):
    def paint(shape):
        t.Canvas().fail("inner", 1)

    with pytest.raises(zelmar.Error) as raised:
        canvas.render(Painter.make(t, paint))
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


def test_python_subclasses_take_their_own_constructor_arguments(t, canvas):
    class Counting(t.Painter):
        def __init__(self, limit):
            self.limit, self.count = limit, 0

        def paint(self, shape):
            self.count += 1
            return self.count <= self.limit

        def title(self):
            return str(self.limit)

    painter = Counting(1)
    assert canvas.render(painter) == 1 and painter.count == 2
    assert canvas.titleOf(painter) == "1"


def test_calling_back_an_object_of_another_class_is_python_s_attribute_error(t, canvas):
    with pytest.raises(AttributeError, match="paint"):
        canvas.render(t.Circle())  # a host object, but no painter
    with pytest.raises(zelmar.Error) as raised:
        canvas.render(None)  # no host object at all
    assert raised.value.identifier == "ZELMAR:vorlo:InvalidObject"
