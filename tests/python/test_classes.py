"""Loading a package, the classes made of its records, listings and help,
and introspection of the records."""

import enum
import pydoc
import sys

import pytest

import zelmar
from conftest import TEST_PACKAGE


def test_a_package_loads_once_into_its_module(t):
    assert t.__all__ == ["Painter", "Circle", "Canvas", "Color", "Shape", "Square", "Item"]
    before = dict(vars(t))
    zelmar._load(TEST_PACKAGE, "zelmar.testing", vars(t))
    assert all(vars(t)[name] is cls for name, cls in before.items() if name in t.__all__)
    assert "zelmar.testing" in zelmar.packages()
    assert [info.name for info in zelmar.package("zelmar.testing").classes] == t.__all__
    for cls in (t.Circle, t.Color):
        assert (cls.__module__, cls.__qualname__) == ("zelmar.testing", cls.__name__)
    assert repr(t.Circle) == "<class 'zelmar.testing.Circle'>"


@pytest.mark.parametrize(
    "library, package, error",
    [
        ("/nonexistent/libnothing.so", "zelmar.testing", ImportError),
        (zelmar._host.__file__, "zelmar.testing", ImportError),  # no ModuleInitialize_ entry
        (TEST_PACKAGE, "zelmar.unregistered", LookupError),
    ],
)
def test_loading_failures(library, package, error):
    with pytest.raises(error):
        zelmar._load(library, package, {})


def test_bases_in_record_order_with_plain_classes_for_unregistered_names(t):
    assert t.Shape.__bases__ == (t.Item, sys.modules["zelmar.testing.mixin"].Tagged)
    assert t.Circle.__mro__[:3] == (t.Circle, t.Shape, t.Item)
    surface = sys.modules["zelmar.testing.mixin"].Surface
    assert t.Painter.__bases__ == (surface, zelmar.HostObject)
    assert zelmar.HostObject not in surface.__mro__  # plain: not a host object
    assert issubclass(t.Color, enum.IntEnum)
    assert all(type(cls) is zelmar.Class for cls in (t.Item, t.Shape, t.Painter))


def test_help_and_listings_show_signatures_and_descriptions_but_no_hidden_record(t):
    circle = t.Circle()
    for listing in (dir(circle), dir(t.Circle), dir(t.Shape)):
        assert "secretName" not in listing and "Secret" not in listing
        assert "scale" in listing and "Area" in listing
    text = pydoc.render_doc(t.Shape, renderer=pydoc.plaintext)
    assert "secretName" not in text and "Secret" not in text
    for shown in ("A shape on a canvas", "scale(self, float, float) -> None", "getColor(self) -> Color", "Area"):
        assert shown in text
    assert circle.secretName() == "hidden"  # hidden records stay usable
    circle.Secret = True
    assert circle.Secret is True
    assert "Circle(float)" in t.Circle.__doc__ and "Constructors" not in t.Square.__doc__
    assert "Paints the shape; whether it did." in t.Painter.paint.__doc__
    assert t.Canvas.origin.__doc__.splitlines()[:2] == ["  origin() -> float", "  origin(float) -> float"]
    assert (t.Shape.scale.__qualname__, t.Shape.scale.__objclass__) == ("Shape.scale", t.Shape)


@pytest.mark.parametrize(
    "cls, kind, flags, superclasses",
    [
        ("Shape", "handle", (False, True, False, True, False),
         (("zelmar.testing.Item", (1, 0, 1)), ("zelmar.testing.mixin.Tagged", (1, 0, 1)))),
        ("Painter", "abstract", (True, True, False, True, False), (("zelmar.testing.mixin.Surface", (1, 0, 1)),)),
        ("Color", "enumeration", (False, False, True, False, False), (("uint32", (0, 0, 1)),)),
    ],
)
def test_classinfo_kinds(t, cls, kind, flags, superclasses):
    info = zelmar.classinfo(getattr(t, cls))
    assert info == zelmar.classinfo(f"zelmar.testing.{cls}")
    assert info.kind == kind and info.superclasses == superclasses
    assert (info.is_abstract, info.is_handle_class, info.is_enumeration, info.is_ok_to_destroy,
            info.is_constructed_on_load) == flags


def test_classinfo_shows_every_record_with_its_types_and_words(t):
    item = zelmar.classinfo(t.Item)
    assert (item.name, item.full_name, item.description, item.detailed_description) == (
        "Item", "zelmar.testing.Item", "Base of the test package's objects", "Everything on a canvas is an item.")
    shape = zelmar.classinfo(t.Shape)
    assert [m.name for m in shape.methods][:4] == ["getArea", "scale", "scale", "scale"]
    for record in [zelmar.MethodInfo("getCanvas", 0, "any", ("zelmar.testing.Shape scalar",), "direct"),
                   zelmar.MethodInfo("secretName", 0x2, "VorloFactoryString scalar", ("zelmar.testing.Shape",), "method")]:
        assert record in shape.methods
    assert shape.constructors == ()
    assert zelmar.classinfo(t.Square).constructors == (
        zelmar.MethodInfo("Square", 0x102, "zelmar.testing.Square", (None,), "constructor"),)
    assert zelmar.classinfo(t.Canvas).methods[-1] == zelmar.MethodInfo(
        "origin", 0, "double scalar", (None, "double scalar"), "method")
    assert zelmar.classinfo(t.Painter).methods[0] == zelmar.MethodInfo(
        "paint", 0, "logical scalar", ("zelmar.testing.Painter", "zelmar.testing.Shape"), "abstract")
    assert [(p.name, p.type, p.attributes, p.settable, p.kind) for p in shape.properties] == [
        ("Area", "double scalar", 0, False, "property"),
        ("Color", "zelmar.testing.Color", 0, True, "property"),
        ("Secret", "logical scalar", 0x800, True, "property"),
        ("Label", "ustringToString scalar", 2, True, "typed"),
        ("Serial", "uint64 scalar", 2, True, "typed"),
    ]
    color = zelmar.classinfo(t.Color)
    assert color.members == (("Red", 0), ("Green", 1), ("Blue", 255))
    assert color.constructors == (
        zelmar.MethodInfo("Color", 0, "zelmar.testing.Color", ("uint32",), "value-constructor"),)


def test_unknown_classes_and_packages_are_lookup_errors():
    for lookup, unknown in [(zelmar.classinfo, "zelmar.testing.Nothing"), (zelmar.classinfo, int),
                            (zelmar.classinfo, 5), (zelmar.package, "zelmar.nothing")]:
        with pytest.raises(LookupError):
            lookup(unknown)


def test_the_platform_s_own_uint32(t):
    assert zelmar.classinfo("uint32") == zelmar.classinfo(zelmar.uint32)
    assert zelmar.uint32(5) == 5 and isinstance(zelmar.uint32(5), int)
    for wrong in (-1, 2**32):
        with pytest.raises(OverflowError):
            zelmar.uint32(wrong)
