#pragma once

// Values between Python and the platform: by the type strings of records
// (slots, worked out once per record) and by the kinds of host arrays.

#include <Python.h>

#include <vorlo/InternedName.hpp>
#include <vorlo/VORValue.hpp>

#include <cstddef>
#include <string>
#include <string_view>

class HostArray;

namespace zelmar {

class Frame;

/// How values of one type string cross between Python and a slot. Failures
/// throw PythonError.
struct ValueType {
  enum Kind : unsigned char { Void, Text, TextPointer, Logical, Double, UInt64, UInt32, Object, ObjectVector, Enumeration, Any };

  static ValueType of(vorlo::InternedName typeString);

  /// Whether the Python argument `value` stands for a value of this type, as
  /// overloads are chosen: str for text; bool or int for a logical; float,
  /// int or another real number for a double; int for the unsigned types; for
  /// a class, None, a host object of any class or a list or tuple of them;
  /// for an enumeration, its member; anything for "any".
  bool accepts(PyObject* value) const noexcept;
  /// The slot for the argument `value` (accepted) at slot `index`; what it
  /// refers to is kept in `frame` until the call has returned.
  vorlo::VORValue toSlot(PyObject* value, Frame& frame, std::size_t index) const;
  /// The Python value (a new reference) of the result in `slot`; a host
  /// array there is the caller's and is destroyed.
  PyObject* fromSlot(vorlo::VORValue slot) const;
  /// A new host array for `value`, the result of Python code that `what`
  /// names; null for a void type.
  HostArray* toArray(PyObject* value, std::string_view what) const;
  /// How a signature shows the type.
  std::string pythonName(bool result) const;

  Kind kind = Void;
  vorlo::InternedName className;  ///< of an object, a vector or an enumeration
};

/// The Python value (a new reference) of `array`: None for an empty array
/// (a list when `asList`), a str for text (None for a missing string), a
/// float, bool or int, a host object, an enumeration member, or a list of
/// them for more than one element.
PyObject* fromArray(const HostArray& array, bool asList);

/// A new host array for the Python value `value`, by its own type: a host
/// object, None (the empty value), an enumeration member, a zelmar.uint32, a
/// bool, an int or a float (a double), a str, or a list or tuple of host
/// objects, texts, bools or numbers. Anything else is a TypeError.
HostArray* toArray(PyObject* value);

/// `result` when it is set; else throws the Python error.
PyObject* check(PyObject* result);

}  // namespace zelmar
