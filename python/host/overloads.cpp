#include "overloads.hpp"

#include <vorlo/VORMethodSignature.hpp>

namespace zelmar {

Overload::Overload(const vorlo::VORMethodInfo& method)
    : record(&method), hasSelf(false), first(method.getKind() == vorlo::VORMethodInfo::Kind::ValueConstructor ? 0 : 1) {
  const vorlo::VORMethodSignaturePtr signature = method.getSignature();
  if (!signature) return;
  hasSelf = signature->hasSelf();
  const auto& types = signature->getInputTypes();
  for (std::size_t i = first; i < types.size(); ++i) inputs.push_back(ValueType::of(types[i]));
  output = ValueType::of(signature->getOutputType());
}

bool Overload::accepts(PyObject* const* arguments, Py_ssize_t count) const noexcept {
  if (static_cast<std::size_t>(count) != inputs.size()) return false;
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    if (!inputs[i].accepts(arguments[i])) return false;
  }
  return true;
}

std::string Overload::signature(std::string_view name) const {
  std::string text(name);
  text += hasSelf ? "(self" : "(";
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    if (hasSelf || i > 0) text += ", ";
    text += inputs[i].pythonName(false);
  }
  text += ")";
  if (record->getKind() != vorlo::VORMethodInfo::Kind::Constructor) text += " -> " + output.pythonName(true);
  return text;
}

const Overload* choose(const std::vector<Overload>& overloads, PyObject* const* arguments, Py_ssize_t count) noexcept {
  for (const Overload& overload : overloads) {
    if (overload.accepts(arguments, count)) return &overload;
  }
  return nullptr;
}

std::string signatures(const std::vector<Overload>& overloads, std::string_view name) {
  std::string text;
  for (const Overload& overload : overloads) text += "  " + overload.signature(name) + "\n";
  return text;
}

PyObject* noSignatureFits(const std::string& what, const std::string& signatures, PyObject* const* arguments,
                          Py_ssize_t count) noexcept {
  try {
    std::string given;
    for (Py_ssize_t i = 0; i < count; ++i) {
      if (i > 0) given += ", ";
      given += Py_TYPE(arguments[i])->tp_name;
    }
    PyErr_Format(PyExc_TypeError, "no signature of %s takes (%s); it has:\n%s", what.c_str(), given.c_str(),
                 signatures.c_str());
  } catch (...) {
    PyErr_NoMemory();
  }
  return nullptr;
}

}  // namespace zelmar
