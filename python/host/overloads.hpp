#pragma once

// Method records as Python calls them, and the choice among overloads.

#include <Python.h>

#include "values.hpp"

#include <vorlo/VORMethodInfo.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zelmar {

/// One method record with the types of its arguments and result worked out.
struct Overload {
  explicit Overload(const vorlo::VORMethodInfo& method);

  /// Whether the arguments fit this record, by their count and types.
  bool accepts(PyObject* const* arguments, Py_ssize_t count) const noexcept;
  /// "name(self, str, float) -> bool", as help() and errors show it.
  std::string signature(std::string_view name) const;

  const vorlo::VORMethodInfo* record;
  bool hasSelf;       ///< the record's first input is the object
  std::size_t first;  ///< the slot of the first argument
  std::vector<ValueType> inputs;
  ValueType output;
};

/// The first of `overloads` that takes the arguments, or null.
const Overload* choose(const std::vector<Overload>& overloads, PyObject* const* arguments, Py_ssize_t count) noexcept;

/// The signatures of `overloads`, one a line, each indented.
std::string signatures(const std::vector<Overload>& overloads, std::string_view name);

/// Sets the TypeError of a call of `what` whose arguments fit no signature,
/// listing the signatures; returns null.
PyObject* noSignatureFits(const std::string& what, const std::string& signatures, PyObject* const* arguments,
                          Py_ssize_t count) noexcept;

}  // namespace zelmar
