#pragma once

// Calls from Python into the platform's records. Each enters the library's
// gate, converts the arguments into slots, runs the record and converts the
// result; a failure sets the Python error and gives null (or -1).

#include <Python.h>

#include "values.hpp"

namespace vorlo {
class VORClass;
class VORPropertyInfo;
}  // namespace vorlo

namespace zelmar {

struct Overload;

/// Calls `overload` on `self` (null for a record without an object) with
/// the arguments it accepted.
PyObject* call(const Overload& overload, PyObject* self, PyObject* const* arguments, Py_ssize_t count) noexcept;
/// A new Python object of `type` for a host object of `cls`, made by the
/// constructor `overload` with the arguments it accepted.
PyObject* construct(PyTypeObject* type, vorlo::VORClass& cls, const Overload& overload, PyObject* const* arguments,
                    Py_ssize_t count);
/// The value of the property `property` of type `type` of `self`.
PyObject* getProperty(const vorlo::VORPropertyInfo& property, const ValueType& type, PyObject* self) noexcept;
/// Sets it to `value`, which the type accepted; 0, or -1 on failure.
int setProperty(const vorlo::VORPropertyInfo& property, const ValueType& type, PyObject* self,
                PyObject* value) noexcept;

}  // namespace zelmar
