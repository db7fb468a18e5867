"""Python as the host language of the vorlo class-object system.

A native package registers its classes with the platform; zelmar makes a
Python class of each class record and carries calls, values, errors and the
lifetimes of objects between Python and the native side. Import the package
of a library (``import zelmar.io.xml.dom``) to use its classes; the functions
here show the records as the platform holds them.
"""

import collections
import enum
import importlib
import os
import sys
import types


class Error(Exception):
    """A failure raised into the host: by a native library, by the platform,
    or by a native exception that no error of the host stands for."""

    def __init__(self, identifier, message, arguments=(), code=None):
        super().__init__(message)
        self.identifier = identifier  # "catalogue:key", or "library:Type" for a native exception
        self.message = message  # the catalogue's text, arguments filled in
        self.arguments = tuple(arguments)  # in the message's order: str for text, int for numbers
        self.code = code  # the numeric code of a native exception that has one

    def __str__(self):
        return self.message


class uint32(int):
    """The platform's class "uint32": an unsigned 32-bit integer.

    Records name it as the base of their enumerations, which are
    enum.IntEnum classes over its values. Where a value of any type is taken,
    a uint32 goes as an unsigned 32-bit number rather than a double.
    """

    __slots__ = ()

    def __new__(cls, value=0):
        self = super().__new__(cls, value)
        if not 0 <= self <= 0xFFFFFFFF:
            raise OverflowError(f"{int(self)} is not a uint32")
        return self


ClassInfo = collections.namedtuple(
    "ClassInfo",
    "name full_name description detailed_description superclasses kind is_abstract is_handle_class"
    " is_enumeration is_ok_to_destroy is_constructed_on_load constructors methods properties members",
)
ClassInfo.__doc__ = """The records of a class: superclasses as (full name, (word, word, word)),
kind "handle", "abstract" or "enumeration", constructors and methods as MethodInfo
and properties as PropertyInfo in registration order, members as (name, value)."""

MethodInfo = collections.namedtuple("MethodInfo", "name attributes output inputs kind")
MethodInfo.__doc__ = """A method record: its attribute word, output type string and input type
strings (the first None for a constructor or a static method), and kind
"constructor", "method", "direct", "abstract" or "value-constructor"."""

PropertyInfo = collections.namedtuple("PropertyInfo", "name type attributes description settable kind")
PropertyInfo.__doc__ = """A property record: type string, attribute word, description, whether it
can be set, and kind "property" or "typed"."""

Package = collections.namedtuple("Package", "name classes")
Package.__doc__ = """A registered package: its name and the ClassInfo of its classes in registration order."""


def packages():
    """The names of the registered packages, in registration order."""
    return _host.packages()


def package(name):
    """The package registered as `name`, its classes made first. LookupError if none is."""
    return Package(name, tuple(classinfo(full_name) for full_name in _host.package_classes(name)))


def classinfo(cls):
    """The records of a class, given by its full name or its Python class. LookupError if none."""
    (*head, constructors, methods, properties, members) = _host.classinfo(cls)
    return ClassInfo(
        *head,
        tuple(MethodInfo(*method) for method in constructors),
        tuple(MethodInfo(*method) for method in methods),
        tuple(PropertyInfo(*property) for property in properties),
        members,
    )


def _load(library, package_name, namespace):
    """Loads the native library `library` (a path, or a file name found in the
    library folders of this installation), runs its module entry once, and
    puts the Python classes of its package `package_name` into `namespace`
    (a module's globals) by their short names."""
    _host.initialize(library if os.path.isabs(library) else _find_library(library))
    classes = _host.materialize(package_name)
    namespace.update(classes)
    namespace["__all__"] = [name for name, _ in classes]


def _find_library(name):
    here = os.path.dirname(os.path.abspath(__file__))
    for folder in _location.LIBRARY_DIRS:
        path = os.path.normpath(os.path.join(here, folder, name))
        if os.path.exists(path):
            return path
    raise ImportError(f"zelmar: no {name} in {', '.join(_location.LIBRARY_DIRS)} (relative to {here})")


def _module(name):
    """The module `name`, made empty if no such module exists."""
    try:
        return importlib.import_module(name)
    except ModuleNotFoundError:
        pass
    parent, _, short = name.rpartition(".")
    module = types.ModuleType(name, "Host classes that records name and no package registers.")
    sys.modules[name] = module
    if parent:
        setattr(_module(parent), short, module)
    return module


def _plain_class(full_name):
    """The Python class of a class that records name and no package registers:
    a plain class in the module of its name (zelmar for a name without one),
    made on first demand."""
    module_name, _, name = full_name.rpartition(".")
    module = _module(module_name or __name__)
    cls = getattr(module, name, None)
    if cls is None:
        doc = f"The host class {full_name}: records name it, no package registers it."
        cls = type(name, (), {"__slots__": (), "__module__": module.__name__, "__doc__": doc})
        setattr(module, name, cls)
    return cls


def _enumeration(full_name, description, members):
    """The Python class of an enumeration: an IntEnum whose values are the
    host values of its members."""
    module, _, name = full_name.rpartition(".")
    cls = enum.IntEnum(name, members, module=module, qualname=name)
    cls.__doc__ = description
    return cls


from zelmar import _host, _location  # noqa: E402  (the extension needs the classes above)
from zelmar._host import Class, HostObject  # noqa: E402,F401

_host.setup(Error, _plain_class, _enumeration)
