#include "values.hpp"

#include "classes.hpp"
#include "errors.hpp"
#include "frame.hpp"
#include "text.hpp"

#include <host/hostArrays.hpp>
#include <vorlo/VORClass.hpp>

#include <cstdint>
#include <memory>

namespace zelmar {

namespace {

using ArrayPtr = std::unique_ptr<HostArray, decltype(&hostDestroyArray)>;

ArrayPtr owned(HostArray* array) { return {array, &hostDestroyArray}; }

template <class... Arguments>
[[noreturn]] void fail(PyObject* type, const char* format, Arguments... arguments) {
  PyErr_Format(type, format, arguments...);
  throwPythonError();
}

bool isInstanceOrNone(PyObject* value) noexcept { return value == Py_None || isInstance(value); }

// A list or tuple of host objects, None leaving an element unset.
bool isListOfInstances(PyObject* value) noexcept {
  if (!PyList_Check(value) && !PyTuple_Check(value)) return false;
  PyObject* const* items = PySequence_Fast_ITEMS(value);
  for (Py_ssize_t i = 0; i < PySequence_Fast_GET_SIZE(value); ++i) {
    if (!isInstanceOrNone(items[i])) return false;
  }
  return true;
}

bool isReal(PyObject* value) noexcept {
  if (PyFloat_Check(value) || PyLong_Check(value)) return true;
  const PyNumberMethods* number = Py_TYPE(value)->tp_as_number;
  return number && (number->nb_float || number->nb_index);
}

// The Python class of the enumeration named `name`, or null.
PyTypeObject* enumerationClass(vorlo::InternedName name) noexcept {
  const vorlo::VORClass* cls = name.getClass();
  const auto* entry = cls ? static_cast<const ClassEntry*>(cls->getHostData()) : nullptr;
  return entry ? reinterpret_cast<PyTypeObject*>(entry->type) : nullptr;
}

std::uint64_t unsignedOf(PyObject* value, std::uint64_t limit) {
  PyObject* number = check(PyNumber_Index(value));
  const unsigned long long result = PyLong_AsUnsignedLongLong(number);
  Py_DECREF(number);
  if (result == static_cast<unsigned long long>(-1) && PyErr_Occurred()) throwPythonError();
  // Beyond 64 bits, Python's own OverflowError came first.
  if (result > limit) fail(PyExc_OverflowError, "%llu is too big for a uint32", result);
  return result;
}

double realOf(PyObject* value) {
  const double result = PyFloat_Check(value) ? PyFloat_AS_DOUBLE(value) : PyFloat_AsDouble(value);
  if (result == -1.0 && PyErr_Occurred()) throwPythonError();
  return result;
}

HostArray* textArray(PyObject* value) {
  std::u16string units;
  toUtf16(value, units);
  auto array = owned(new HostArray(HostClassID::Char, 1, units.size()));
  array->string(0).setText(std::move(units));
  return array.release();
}

HostArray* missingText() { return hostCreateStringArray(1, 1); }

HostArray* numberArray(HostClassID kind, std::uint64_t word) {
  HostArray* array = hostCreateNumericScalar(kind);
  array->setWord(0, word);
  return array;
}

HostArray* realArray(double value) {
  HostArray* array = hostCreateNumericScalar(HostClassID::Double);
  array->setReal(0, value);
  return array;
}

HostArray* enumerationArray(vorlo::InternedName cls, PyObject* member) {
  auto array = owned(hostCreateEnumerationMatrix(1, 1, cls));
  array->setWord(0, unsignedOf(member, UINT64_MAX));
  return array.release();
}

HostArray* instanceArray(PyObject* instance) {
  Interface& object = interfaceOf(instance);
  HostArray* array = hostCreateObjectMatrix(1, 1, object.getClass()->getInternedFullName());
  hostSetArrayElement(array, 0, &object);
  return array;
}

// A 1-by-n array of the host objects of a list or tuple, of their nearest
// common class.
HostArray* instancesArray(PyObject* list, vorlo::InternedName cls) {
  const Py_ssize_t size = PySequence_Fast_GET_SIZE(list);
  PyObject* const* items = PySequence_Fast_ITEMS(list);
  auto array = owned(hostCreateObjectMatrix(1, static_cast<std::size_t>(size), cls));
  for (Py_ssize_t i = 0; i < size; ++i) {
    if (items[i] != Py_None) hostSetArrayElement(array.get(), static_cast<std::size_t>(i), &interfaceOf(items[i]));
  }
  if (size > 0) hostSetClassOfHeterogeneousArray(array.get());
  return array.release();
}

HostArray* listArray(PyObject* list) {
  const Py_ssize_t size = PySequence_Fast_GET_SIZE(list);
  PyObject* const* items = PySequence_Fast_ITEMS(list);
  const auto all = [&](auto predicate) {
    for (Py_ssize_t i = 0; i < size; ++i) {
      if (!predicate(items[i])) return false;
    }
    return true;
  };
  if (size == 0) return hostCreateDoubleMatrix(0, 0, HostComplexity::Real);
  if (isListOfInstances(list)) return instancesArray(list, {});
  const auto columns = static_cast<std::size_t>(size);
  if (all([](PyObject* item) { return PyUnicode_Check(item) != 0; })) {
    auto array = owned(hostCreateStringArray(1, columns));
    for (std::size_t i = 0; i < columns; ++i) {
      std::u16string units;
      toUtf16(items[i], units);
      array->string(i).setText(std::move(units));
    }
    return array.release();
  }
  if (all([](PyObject* item) { return PyBool_Check(item) != 0; })) {
    auto array = owned(new HostArray(HostClassID::Logical, 1, columns));
    for (std::size_t i = 0; i < columns; ++i) array->setWord(i, items[i] == Py_True ? 1 : 0);
    return array.release();
  }
  if (all([](PyObject* item) { return !PyBool_Check(item) && (PyFloat_Check(item) || PyLong_Check(item)); })) {
    auto array = owned(hostCreateDoubleMatrix(1, columns, HostComplexity::Real));
    for (std::size_t i = 0; i < columns; ++i) array->setReal(i, realOf(items[i]));
    return array.release();
  }
  fail(PyExc_TypeError, "a list of mixed values cannot be a host value");
}

PyObject* member(vorlo::InternedName cls, std::uint64_t value) {
  PyObject* number = check(PyLong_FromUnsignedLongLong(value));
  vorlo::VORClass* enumeration = cls.getClass();
  if (!enumeration) return number;
  PyObject* result = PyObject_CallOneArg(entryOf(*enumeration).type, number);
  Py_DECREF(number);
  return check(result);
}

PyObject* element(const HostArray& array, std::size_t index) {
  switch (array.classID()) {
    case HostClassID::Double: return check(PyFloat_FromDouble(array.real(index)));
    case HostClassID::Logical: return PyBool_FromLong(array.word(index) != 0);
    case HostClassID::UInt32:
    case HostClassID::UInt64: return check(PyLong_FromUnsignedLongLong(array.word(index)));
    case HostClassID::Char:
    case HostClassID::String: {
      const HostString& text = array.string(index);
      return text.isMissing() ? Py_NewRef(Py_None) : check(fromUtf16(text.text()));
    }
    case HostClassID::Object: {
      const vorlo::VORInterface* object = array.object(index);
      return Py_NewRef(object ? pythonObject(*object) : Py_None);
    }
    case HostClassID::Enumeration: return member(array.getClassName(), array.word(index));
  }
  return Py_NewRef(Py_None);
}

}  // namespace

PyObject* check(PyObject* result) {
  if (!result) throwPythonError();
  return result;
}

ValueType ValueType::of(vorlo::InternedName typeString) {
  const vorlo::TypeSpec& parsed = typeString.typeSpec();
  switch (parsed.kind) {
    case vorlo::TypeSpec::Void: return {Void, {}};
    case vorlo::TypeSpec::Text: return {Text, {}};
    case vorlo::TypeSpec::TextPointer: return {TextPointer, {}};
    case vorlo::TypeSpec::Logical: return {Logical, {}};
    case vorlo::TypeSpec::Double: return {Double, {}};
    case vorlo::TypeSpec::UInt64: return {UInt64, {}};
    case vorlo::TypeSpec::UInt32: return {UInt32, {}};
    case vorlo::TypeSpec::Any: return {Any, {}};
    case vorlo::TypeSpec::ObjectVector: return {ObjectVector, parsed.className};
    case vorlo::TypeSpec::Object:
    case vorlo::TypeSpec::Self: break;
  }
  const vorlo::VORClass* cls = parsed.className.getClass();
  return {cls && cls->getInfo().isEnumeration() ? Enumeration : Object, parsed.className};
}

bool ValueType::accepts(PyObject* value) const noexcept {
  switch (kind) {
    case Text:
    case TextPointer: return PyUnicode_Check(value);
    case Logical: return PyLong_Check(value);  // bool is an int
    case Double: return isReal(value);
    case UInt64:
    case UInt32: return PyIndex_Check(value);
    case Object:
    case ObjectVector: return value == Py_None || isInstance(value) || isListOfInstances(value);
    case Enumeration: {
      PyTypeObject* cls = enumerationClass(className);
      return cls && PyObject_TypeCheck(value, cls);
    }
    case Any: return true;
    case Void: break;
  }
  return false;
}

vorlo::VORValue ValueType::toSlot(PyObject* value, Frame& frame, std::size_t index) const {
  using vorlo::VORValue;
  switch (kind) {
    case Text: return VORValue::ofArray(frame.keep(textArray(value)));
    case TextPointer: {
      std::u16string& text = frame.text(index);
      toUtf16(value, text);
      return VORValue::ofText(&text);
    }
    case Logical: {
      const int truth = PyObject_IsTrue(value);
      if (truth < 0) throwPythonError();
      return VORValue::ofLogical(truth != 0);
    }
    case Double: return VORValue::ofDouble(realOf(value));
    case UInt64: return VORValue::ofWord(unsignedOf(value, UINT64_MAX));
    case UInt32: return VORValue::ofArray(frame.keep(numberArray(HostClassID::UInt32, unsignedOf(value, 0xFFFFFFFFu))));
    case Object:
    case ObjectVector:
      if (value == Py_None) return VORValue::ofArray(frame.keep(hostCreateObjectMatrix(0, 0, className)));
      if (isInstance(value)) return VORValue::ofArray(frame.holding(index, value));
      return VORValue::ofArray(frame.keep(instancesArray(value, className)));
    case Enumeration: return VORValue::ofArray(frame.keep(enumerationArray(className, value)));
    case Any: return VORValue::ofArray(frame.keep(zelmar::toArray(value)));
    case Void: break;
  }
  fail(PyExc_TypeError, "a %s cannot be an argument of type void", Py_TYPE(value)->tp_name);
}

PyObject* ValueType::fromSlot(vorlo::VORValue slot) const {
  switch (kind) {
    case Void: return Py_NewRef(Py_None);
    case Logical: return PyBool_FromLong(slot.logical() ? 1 : 0);
    case Double: return check(PyFloat_FromDouble(slot.real()));
    case UInt64: return check(PyLong_FromUnsignedLongLong(slot.word()));
    default: break;
  }
  const ArrayPtr array = owned(slot.array());
  if (!array) return Py_NewRef(Py_None);
  return fromArray(*array, kind == ObjectVector);
}

HostArray* ValueType::toArray(PyObject* value, std::string_view what) const {
  const auto wrongType = [&]() {
    const std::string name(what);
    fail(PyExc_TypeError, "%s must give %s, not %s", name.c_str(), pythonName(false).c_str(), Py_TYPE(value)->tp_name);
  };
  switch (kind) {
    case Void: return nullptr;
    case Logical:
      if (!PyLong_Check(value)) wrongType();
      return hostCreateLogicalScalar(PyObject_IsTrue(value) == 1);
    case Double:
      if (!isReal(value)) wrongType();
      return realArray(realOf(value));
    case Text:
    case TextPointer:
      if (value == Py_None) return missingText();
      if (!PyUnicode_Check(value)) wrongType();
      return textArray(value);
    case UInt64:
    case UInt32: {
      if (!PyIndex_Check(value)) wrongType();
      const bool wide = kind == UInt64;
      return numberArray(wide ? HostClassID::UInt64 : HostClassID::UInt32, unsignedOf(value, wide ? UINT64_MAX : 0xFFFFFFFFu));
    }
    case Enumeration:
      if (!accepts(value)) wrongType();
      return enumerationArray(className, value);
    case Object:
    case ObjectVector:
    case Any: break;
  }
  return zelmar::toArray(value);
}

std::string ValueType::pythonName(bool result) const {
  const auto shortName = [this] {
    const std::string_view name = className.view();
    return std::string(name.substr(name.rfind('.') + 1));
  };
  switch (kind) {
    case Void: return "None";
    case Text: return "str";
    case TextPointer: return result ? "str | None" : "str";
    case Logical: return "bool";
    case Double: return "float";
    case UInt64:
    case UInt32: return "int";
    case Object: return result ? shortName() + " | None" : shortName();
    case ObjectVector: return "list[" + shortName() + "]";
    case Enumeration: return shortName();
    case Any: return "any";
  }
  return "?";
}

PyObject* fromArray(const HostArray& array, bool asList) {
  const std::size_t size = array.classID() == HostClassID::Char ? 1 : array.size();
  if (!asList && size == 1) return element(array, 0);
  if (!asList && size == 0) return Py_NewRef(Py_None);
  PyObject* list = check(PyList_New(static_cast<Py_ssize_t>(size)));
  for (std::size_t i = 0; i < size; ++i) {
    try {
      PyList_SET_ITEM(list, static_cast<Py_ssize_t>(i), element(array, i));
    } catch (...) {
      Py_DECREF(list);
      throw;
    }
  }
  return list;
}

HostArray* toArray(PyObject* value) {
  if (isInstance(value)) return instanceArray(value);
  if (value == Py_None) return hostCreateDoubleMatrix(0, 0, HostComplexity::Real);
  if (const ClassEntry* entry = entryOfType(Py_TYPE(value))) {
    const vorlo::InternedName cls = entry->cls->getInternedFullName();
    if (entry->cls->getInfo().isEnumeration()) return enumerationArray(cls, value);
    // The platform's own class uint32, whose name is also its type string.
    if (cls.typeSpec().kind == vorlo::TypeSpec::UInt32) return numberArray(HostClassID::UInt32, unsignedOf(value, 0xFFFFFFFFu));
  }
  if (PyBool_Check(value)) return hostCreateLogicalScalar(value == Py_True);
  if (PyLong_Check(value) || PyFloat_Check(value)) return realArray(realOf(value));
  if (PyUnicode_Check(value)) return textArray(value);
  if (PyList_Check(value) || PyTuple_Check(value)) {
    // A tuple of the items: Python code that a conversion runs (an int
    // subclass's __float__) cannot change what is being read.
    PyObject* items = check(PySequence_Tuple(value));
    try {
      HostArray* array = listArray(items);
      Py_DECREF(items);
      return array;
    } catch (...) {
      Py_DECREF(items);
      throw;
    }
  }
  fail(PyExc_TypeError, "a %s cannot be a host value", Py_TYPE(value)->tp_name);
}

}  // namespace zelmar
