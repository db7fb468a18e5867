#include "language.hpp"

#include "classes.hpp"
#include "errors.hpp"
#include "values.hpp"

#include <Python.h>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/Language.hpp>
#include <host/hostArrays.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>

#include <memory>
#include <vector>

namespace zelmar {

namespace {

// The record that declares the method `name` for objects of `cls`, abstract
// ones included: of `cls` first, then of its bases in order. Null if none.
const vorlo::VORMethodInfo* declaration(const vorlo::VORClass& cls, std::string_view name) {
  for (const auto& record : cls.getMethodRecords()) {
    if (name == record->getName()) return record.get();
  }
  for (const auto& base : cls.getSuperclasses()) {
    const vorlo::VORClass* baseClass = base.name.getClass();
    if (const vorlo::VORMethodInfo* found = baseClass ? declaration(*baseClass, name) : nullptr) return found;
  }
  return nullptr;
}

// New references, let go together.
class References {
 public:
  References() = default;
  References(const References&) = delete;
  References& operator=(const References&) = delete;
  ~References() {
    for (PyObject* object : objects_) Py_DECREF(object);
  }
  void add(PyObject* object) { objects_.push_back(object); }
  PyObject* const* data() const noexcept { return objects_.data(); }
  std::size_t size() const noexcept { return objects_.size(); }

 private:
  std::vector<PyObject*> objects_;
};

class PythonLanguage final : public host::Language {
 public:
  vorlo::VORInterface* createObject(vorlo::VORClass& cls) override {
    const ClassEntry& entry = entryOf(cls);
    if (!entry.hosted) {
      PyErr_Format(PyExc_TypeError, "the class %s has values, not host objects", cls.getInternedFullName().c_str());
      throwPythonError();
    }
    return &interfaceOf(newInstance(reinterpret_cast<PyTypeObject*>(entry.type), cls));
  }

  void retain(vorlo::VORInterface& object) noexcept override { Py_INCREF(pythonObject(object)); }
  void release(vorlo::VORInterface& object) noexcept override { Py_DECREF(pythonObject(object)); }

  std::string className(const vorlo::VORInterface& object) override {
    return fullNameOf(Py_TYPE(pythonObject(object)));
  }

  bool isA(const vorlo::VORInterface& object, vorlo::InternedName cls) override {
    if (object.getClass() && object.getClass()->isA(cls)) return true;
    PyObject* mro = Py_TYPE(pythonObject(object))->tp_mro;
    for (Py_ssize_t i = 0; mro && i < PyTuple_GET_SIZE(mro); ++i) {
      if (fullNameOf(reinterpret_cast<PyTypeObject*>(PyTuple_GET_ITEM(mro, i))) == cls.view()) return true;
    }
    return false;
  }

  // Calls the Python method by its name, so that what a Python subclass
  // implements runs; the declaring record (an abstract one, typically) gives
  // the types of the arguments and of the result.
  void callMethod(vorlo::InternedName /*cls*/, vorlo::InternedName method, int outputCount, HostArray** outputs,
                  int inputCount, HostArray* const* inputs) override {
    vorlo::VORInterface* target = inputCount > 0 ? hostGetArrayElement(inputs[0], 0) : nullptr;
    if (!target) hostRaise(ZELMAR::vorlo::InvalidObject());
    const vorlo::VORMethodInfo* record = target->getClass() ? declaration(*target->getClass(), method.view()) : nullptr;
    const vorlo::VORMethodSignaturePtr signature = record ? record->getSignature() : nullptr;
    const auto declared = [&](std::size_t index) {
      return signature && index < signature->getInputTypes().size() ? ValueType::of(signature->getInputTypes()[index])
                                                                     : ValueType{ValueType::Any, {}};
    };

    References arguments;
    arguments.add(Py_NewRef(pythonObject(*target)));
    for (int i = 1; i < inputCount; ++i) {
      const bool vector = declared(static_cast<std::size_t>(i)).kind == ValueType::ObjectVector;
      arguments.add(inputs[i] ? fromArray(*inputs[i], vector) : Py_NewRef(Py_None));
    }
    PyObject* name = check(PyUnicode_FromStringAndSize(method.c_str(), static_cast<Py_ssize_t>(method.size())));
    PyObject* result = PyObject_VectorcallMethod(name, arguments.data(), arguments.size(), nullptr);
    Py_DECREF(name);
    check(result);
    const std::unique_ptr<PyObject, void (*)(PyObject*)> kept(result, [](PyObject* object) { Py_DECREF(object); });
    if (outputCount <= 0) return;
    const ValueType output = signature ? ValueType::of(signature->getOutputType()) : ValueType{ValueType::Any, {}};
    outputs[0] = output.toArray(result, fullNameOf(Py_TYPE(pythonObject(*target))) + "." + method.str() + "()");
  }

  [[noreturn]] void raiseError(const basis::except::IUserException& error) override {
    PyObject* exception = newError(error);
    if (!exception) throwPythonError();
    throw PythonError::taking(exception);
  }
};

PythonLanguage* const python = new PythonLanguage;  // never ends: the platform may hold it until exit

void detachPython() { host::attachLanguage(nullptr); }

}  // namespace

bool attachPython() noexcept {
  host::attachLanguage(python);
  return Py_AtExit(detachPython) == 0;
}

}  // namespace zelmar
