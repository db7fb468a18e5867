// zelmar._host: Python as the host language of the vorlo class-object
// system. It loads native packages, makes Python classes of their class
// records and carries calls, values, errors and object lifetimes across.

#include <Python.h>

#include "classes.hpp"
#include "descriptors.hpp"
#include "errors.hpp"
#include "gate.hpp"
#include "language.hpp"
#include "values.hpp"

#include <host/HostArray.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/VORPropertyInfo.hpp>

#include <dlfcn.h>

#include <string>
#include <unordered_set>

namespace zelmar {

namespace {

// Runs `body` inside the library's gate and turns what it throws into the
// Python error.
template <class Body>
PyObject* guarded(Body body) noexcept {
  try {
    const Gate::Entry entry;
    return body();
  } catch (...) {
    setErrorFromCurrentException();
    return nullptr;
  }
}

vorlo::VORPackage& packageNamed(const char* name) {
  vorlo::VORPackage* package = vorlo::VORPackage::find(name);
  if (!package) {
    PyErr_Format(PyExc_LookupError, "no package named '%s' is registered", name);
    throwPythonError();
  }
  return *package;
}

PyObject* text(const char* value) { return check(PyUnicode_FromString(value ? value : "")); }
PyObject* typeName(vorlo::InternedName name) { return name.isNull() ? Py_NewRef(Py_None) : text(name.c_str()); }

// A tuple of `items`, each made by `make`.
template <class Items, class Make>
PyObject* tupleOf(const Items& items, Make make) {
  PyObject* tuple = check(PyTuple_New(static_cast<Py_ssize_t>(items.size())));
  Py_ssize_t index = 0;
  for (const auto& item : items) {
    try {
      PyTuple_SET_ITEM(tuple, index++, make(item));
    } catch (...) {
      Py_DECREF(tuple);
      throw;
    }
  }
  return tuple;
}

const char* kindName(vorlo::VORMethodInfo::Kind kind) {
  switch (kind) {
    case vorlo::VORMethodInfo::Kind::Constructor: return "constructor";
    case vorlo::VORMethodInfo::Kind::Method: return "method";
    case vorlo::VORMethodInfo::Kind::Direct: return "direct";
    case vorlo::VORMethodInfo::Kind::Abstract: return "abstract";
    case vorlo::VORMethodInfo::Kind::ValueConstructor: return "value-constructor";
  }
  return "method";
}

PyObject* methodInfo(const vorlo::VORMethodInfo& method) {
  const vorlo::VORMethodSignaturePtr signature = method.getSignature();
  PyObject* inputs = signature ? tupleOf(signature->getInputTypes(), typeName) : check(PyTuple_New(0));
  return check(Py_BuildValue("(sINNs)", method.getName(), static_cast<unsigned int>(method.getAttributes()),
                             signature ? typeName(signature->getOutputType()) : text("void"), inputs,
                             kindName(method.getKind())));
}

PyObject* propertyInfo(const vorlo::VORPropertyInfo& property) {
  return check(Py_BuildValue("(sNIsNs)", property.getName(), typeName(property.getTypeName()),
                             static_cast<unsigned int>(property.getAttributes()), property.getDescription(),
                             PyBool_FromLong(property.isSettable() ? 1 : 0),
                             property.getKind() == vorlo::VORPropertyInfo::Kind::Typed ? "typed" : "property"));
}

// The records of `cls` as plain tuples, in the order of zelmar.ClassInfo.
PyObject* classInfo(const vorlo::VORClass& cls) {
  const vorlo::VORClassInfo& info = cls.getInfo();
  std::vector<const vorlo::VORMethodInfo*> constructors;
  std::vector<const vorlo::VORMethodInfo*> methods;
  for (const auto& method : cls.getMethodRecords()) {
    const auto kind = method->getKind();
    const bool constructs = kind == vorlo::VORMethodInfo::Kind::Constructor ||
                            kind == vorlo::VORMethodInfo::Kind::ValueConstructor;
    (constructs ? constructors : methods).push_back(method.get());
  }
  const char* kind = info.isEnumeration() ? "enumeration" : info.isAbstract() ? "abstract" : "handle";
  const auto flag = [](bool value) { return PyBool_FromLong(value ? 1 : 0); };
  return check(Py_BuildValue(
      "(ssssNsNNNNNNNNN)", cls.getShortName(), cls.getInternedFullName().c_str(), info.getDescription(),
      info.getDetailedDescription(), tupleOf(cls.getSuperclasses(), [](const vorlo::VORClass::Superclass& base) {
        return check(Py_BuildValue("(s(iii))", base.name.c_str(), base.words[0], base.words[1], base.words[2]));
      }),
      kind, flag(info.isAbstract()), flag(info.isHandleClass()), flag(info.isEnumeration()), flag(info.isOkToDestroy()),
      flag(info.isConstructedOnLoad()), tupleOf(constructors, [](const auto* method) { return methodInfo(*method); }),
      tupleOf(methods, [](const auto* method) { return methodInfo(*method); }),
      tupleOf(cls.getProperties(), [](const auto& property) { return propertyInfo(*property); }),
      tupleOf(cls.getEnumerationMembers(), [](const auto& member) {
        return check(Py_BuildValue("(sK)", member->getName(), member->getValue()->word(0)));
      })));
}

PyObject* setup(PyObject* /*module*/, PyObject* const* arguments, Py_ssize_t count) {
  if (count != 3) {
    PyErr_SetString(PyExc_TypeError, "setup(error_class, plain_class, enumeration)");
    return nullptr;
  }
  setErrorClass(arguments[0]);
  setClassMakers(arguments[1], arguments[2]);
  // The platform's own class uint32 is zelmar.uint32 from now on.
  return guarded([] {
    entryOf(*vorlo::VORClass::getClass("uint32"));
    return Py_NewRef(Py_None);
  });
}

PyObject* initialize(PyObject* /*module*/, PyObject* argument) {
  static std::unordered_set<void*> initialized;
  const char* path = PyUnicode_AsUTF8(argument);
  if (!path) return nullptr;
  void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (!library) {
    PyErr_Format(PyExc_ImportError, "cannot load %s: %s", path, dlerror());
    return nullptr;
  }
  if (initialized.count(library)) {
    dlclose(library);
    Py_RETURN_NONE;
  }
  // lib<name>.so... starts with ModuleInitialize_<name>.
  std::string name = path;
  name = name.substr(name.rfind('/') + 1);
  if (name.rfind("lib", 0) == 0) name = name.substr(3);
  name = "ModuleInitialize_" + name.substr(0, name.find(".so"));
  void* start = dlsym(library, name.c_str());
  if (!start) {
    PyErr_Format(PyExc_ImportError, "%s has no entry %s", path, name.c_str());
    dlclose(library);
    return nullptr;
  }
  return guarded([&] {
    reinterpret_cast<void (*)()>(start)();
    initialized.insert(library);
    return Py_NewRef(Py_None);
  });
}

PyObject* materialize(PyObject* /*module*/, PyObject* argument) {
  const char* name = PyUnicode_AsUTF8(argument);
  if (!name) return nullptr;
  return guarded([name] {
    return tupleOf(packageNamed(name).getClasses(), [](vorlo::VORClass* cls) {
      return check(Py_BuildValue("(sO)", cls->getShortName(), entryOf(*cls).type));
    });
  });
}

PyObject* packages(PyObject* /*module*/, PyObject* /*unused*/) {
  return guarded([] { return tupleOf(vorlo::VORPackage::all(), [](const auto* package) { return text(package->getName().c_str()); }); });
}

PyObject* packageClasses(PyObject* /*module*/, PyObject* argument) {
  const char* name = PyUnicode_AsUTF8(argument);
  if (!name) return nullptr;
  return guarded([name] {
    return tupleOf(packageNamed(name).getClasses(),
                   [](const vorlo::VORClass* cls) { return text(cls->getInternedFullName().c_str()); });
  });
}

PyObject* classinfo(PyObject* /*module*/, PyObject* argument) {
  return guarded([argument] {
    vorlo::VORClass* cls = nullptr;
    if (PyUnicode_Check(argument)) {
      const char* name = PyUnicode_AsUTF8(argument);
      if (!name) throwPythonError();
      cls = vorlo::VORClass::getClass(std::string_view(name));
    } else if (const ClassEntry* entry = PyType_Check(argument) ? entryOfType(reinterpret_cast<PyTypeObject*>(argument)) : nullptr) {
      cls = entry->cls;
    }
    if (!cls) {
      PyErr_Format(PyExc_LookupError, "%R names no class of the platform", argument);
      throwPythonError();
    }
    return classInfo(*cls);
  });
}

PyMethodDef functions[] = {
    {"setup", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(setup)), METH_FASTCALL,
     "setup(error_class, plain_class, enumeration): the Python side of the host."},
    {"initialize", initialize, METH_O, "initialize(path): loads a native module and runs its ModuleInitialize_ entry, once."},
    {"materialize", materialize, METH_O,
     "materialize(package): the (short name, class) pairs of the package's classes, in registration order."},
    {"packages", packages, METH_NOARGS, "packages(): the names of the registered packages, in registration order."},
    {"package_classes", packageClasses, METH_O, "package_classes(package): the full names of its classes."},
    {"classinfo", classinfo, METH_O, "classinfo(name or class): the class's records as plain tuples."},
    {nullptr, nullptr, 0, nullptr},
};

PyModuleDef module = {
    PyModuleDef_HEAD_INIT, "zelmar._host", "Python as the host language of the vorlo class-object system.", -1,
    functions, nullptr, nullptr, nullptr, nullptr,
};

}  // namespace

}  // namespace zelmar

PyMODINIT_FUNC PyInit__host() {  // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): CPython's name
  using namespace zelmar;
  if (!readyClassTypes() || !readyDescriptorTypes()) return nullptr;
  if (!attachPython()) {
    PyErr_SetString(PyExc_ImportError, "zelmar: no room left to detach Python from the platform at exit");
    return nullptr;
  }
  PyObject* created = PyModule_Create(&module);
  if (!created) return nullptr;
  if (PyModule_AddObjectRef(created, "HostObject", reinterpret_cast<PyObject*>(&HostObjectType)) < 0 ||
      PyModule_AddObjectRef(created, "Class", reinterpret_cast<PyObject*>(&ClassType)) < 0) {
    Py_DECREF(created);
    return nullptr;
  }
  return created;
}
