#pragma once

// Failures across the boundary between Python and native code.

#include <Python.h>

#include <exception>

namespace basis::except {
class IUserException;
}

namespace zelmar {

/// A Python exception on its way through native frames. It is thrown where
/// Python code failed under a native caller (a method that the library calls
/// back) or where the platform raises an error into the host, and the call
/// boundary sets it again: the Python caller receives the same exception
/// object.
class PythonError final : public std::exception {
 public:
  /// Takes the Python error that is set; without one, a SystemError.
  static PythonError fetch() noexcept;
  /// An error of the exception `exception`, whose reference it takes.
  static PythonError taking(PyObject* exception) noexcept;

  PythonError(const PythonError& other) noexcept;
  PythonError(PythonError&& other) noexcept;
  PythonError& operator=(const PythonError&) = delete;
  PythonError& operator=(PythonError&&) = delete;
  ~PythonError() override;

  /// Sets the Python error again; the object is empty afterwards.
  void restore() noexcept;
  const char* what() const noexcept override { return "a Python exception"; }

 private:
  PythonError(PyObject* type, PyObject* value, PyObject* traceback) noexcept
      : type_(type), value_(value), traceback_(traceback) {}

  PyObject* type_;
  PyObject* value_;
  PyObject* traceback_;
};

/// Throws the Python error that is set.
[[noreturn]] void throwPythonError();

/// Sets the Python error for the exception being handled; call it in a catch
/// block. A PythonError is set again as it was; an error of the platform
/// becomes zelmar.Error with its identifier, arguments and catalogue text;
/// any other native exception becomes zelmar.Error naming its type.
void setErrorFromCurrentException() noexcept;

/// A new zelmar.Error for the platform's `error`; null with a Python error
/// set on failure.
PyObject* newError(const basis::except::IUserException& error);

/// Makes `cls` the class of the errors that the host raises (zelmar.Error).
void setErrorClass(PyObject* cls) noexcept;

}  // namespace zelmar
