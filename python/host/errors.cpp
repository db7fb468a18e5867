#include "errors.hpp"

#include "text.hpp"

#include <basis/except/IMsgIDException.hpp>
#include <host/ForeignError.hpp>

#include <string>
#include <utility>
#include <variant>

namespace zelmar {

namespace {

PyObject* errorClass = nullptr;  // zelmar.Error, set once, kept for the life of the process

// A new zelmar.Error; the arguments are stolen. Null with an error set when
// one of them is null or the call fails.
PyObject* makeError(PyObject* identifier, PyObject* message, PyObject* arguments, PyObject* code) {
  PyObject* error = nullptr;
  if (identifier && message && arguments && code) {
    PyObject* const parts[] = {identifier, message, arguments, code};
    error = PyObject_Vectorcall(errorClass, parts, 4, nullptr);
  }
  Py_XDECREF(identifier);
  Py_XDECREF(message);
  Py_XDECREF(arguments);
  Py_XDECREF(code);
  return error;
}

PyObject* argumentsOf(const basis::except::IMsgIDException& error) {
  const auto& arguments = error.GetBaseMsgIDObj().args;
  PyObject* tuple = PyTuple_New(static_cast<Py_ssize_t>(arguments.size()));
  if (!tuple) return nullptr;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    PyObject* value = std::visit(
        [](const auto& argument) -> PyObject* {
          using T = std::decay_t<decltype(argument)>;
          if constexpr (std::is_same_v<T, std::int64_t>) {
            return PyLong_FromLongLong(argument);
          } else if constexpr (std::is_same_v<T, std::string>) {
            return fromUtf8(argument);
          } else {
            return fromUtf16(argument);
          }
        },
        arguments[i]);
    if (!value) {
      Py_DECREF(tuple);
      return nullptr;
    }
    PyTuple_SET_ITEM(tuple, static_cast<Py_ssize_t>(i), value);
  }
  return tuple;
}

void raise(PyObject* error) noexcept {
  if (!error) return;  // the failure to make it is set instead
  PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(error)), error);
  Py_DECREF(error);
}

}  // namespace

PythonError PythonError::fetch() noexcept {
  PyObject* type = nullptr;
  PyObject* value = nullptr;
  PyObject* traceback = nullptr;
  PyErr_Fetch(&type, &value, &traceback);
  if (!type) {
    PyErr_SetString(PyExc_SystemError, "zelmar: a failure without a Python exception");
    PyErr_Fetch(&type, &value, &traceback);
  }
  return {type, value, traceback};
}

PythonError PythonError::taking(PyObject* exception) noexcept {
  Py_INCREF(Py_TYPE(exception));
  return {reinterpret_cast<PyObject*>(Py_TYPE(exception)), exception, PyException_GetTraceback(exception)};
}

PythonError::PythonError(const PythonError& other) noexcept
    : type_(other.type_), value_(other.value_), traceback_(other.traceback_) {
  Py_XINCREF(type_);
  Py_XINCREF(value_);
  Py_XINCREF(traceback_);
}

PythonError::PythonError(PythonError&& other) noexcept
    : type_(std::exchange(other.type_, nullptr)),
      value_(std::exchange(other.value_, nullptr)),
      traceback_(std::exchange(other.traceback_, nullptr)) {}

PythonError::~PythonError() {
  Py_XDECREF(type_);
  Py_XDECREF(value_);
  Py_XDECREF(traceback_);
}

void PythonError::restore() noexcept {
  PyErr_Restore(std::exchange(type_, nullptr), std::exchange(value_, nullptr), std::exchange(traceback_, nullptr));
}

void throwPythonError() { throw PythonError::fetch(); }

PyObject* newError(const basis::except::IUserException& error) {
  if (const auto* withId = dynamic_cast<const basis::except::IMsgIDException*>(&error)) {
    return makeError(fromUtf8(withId->GetID()), fromUtf16(withId->GetUnicodeMessageTxt()), argumentsOf(*withId),
                     Py_NewRef(Py_None));
  }
  return makeError(PyUnicode_FromString(""), fromUtf8(error.what()), PyTuple_New(0), Py_NewRef(Py_None));
}

void setErrorFromCurrentException() noexcept {
  try {
    throw;
  } catch (PythonError& error) {
    error.restore();
  } catch (const basis::except::IUserException& error) {
    raise(newError(error));
  } catch (...) {
    try {
      const host::ForeignError foreign = host::describeException(std::current_exception());
      raise(makeError(fromUtf8(foreign.identifier), fromUtf8(foreign.message), PyTuple_New(0),
                      foreign.code ? PyLong_FromLong(*foreign.code) : Py_NewRef(Py_None)));
    } catch (...) {
      PyErr_NoMemory();
    }
  }
}

void setErrorClass(PyObject* cls) noexcept {
  Py_XINCREF(cls);
  Py_XSETREF(errorClass, cls);
}

}  // namespace zelmar
