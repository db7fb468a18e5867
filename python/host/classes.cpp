#include "classes.hpp"

#include "calls.hpp"
#include "descriptors.hpp"
#include "errors.hpp"
#include "gate.hpp"

#include <ZELMAR/vorlo/errors.hpp>
#include <host/HostArray.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VOREnumInfo.hpp>
#include <vorlo/hostObjects.hpp>

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <unordered_set>

namespace zelmar {

namespace {

// Entries live as long as the process, like the classes they belong to.
std::unordered_map<PyTypeObject*, ClassEntry*>* const byType = new std::unordered_map<PyTypeObject*, ClassEntry*>;
std::unordered_set<const vorlo::VORClass*> inTheMaking;
PyObject* plainClassMaker = nullptr;
PyObject* enumerationMaker = nullptr;
PyObject* typeDir = nullptr;    // type.__dir__
PyObject* objectDir = nullptr;  // object.__dir__

// What the attribute `name` of the class `type` is, looked up along its MRO
// without running descriptors; null when it has none. Borrowed.
PyObject* lookup(PyTypeObject* type, PyObject* name) noexcept {
  PyObject* mro = type->tp_mro;
  for (Py_ssize_t i = 0; mro && i < PyTuple_GET_SIZE(mro); ++i) {
    PyObject* dict = reinterpret_cast<PyTypeObject*>(PyTuple_GET_ITEM(mro, i))->tp_dict;
    if (PyObject* found = dict ? PyDict_GetItemWithError(dict, name) : nullptr) return found;
  }
  return nullptr;
}

// `names` without those whose attribute on `type` is a hidden record.
PyObject* visibleNames(PyObject* names, PyTypeObject* type) {
  if (!names) return nullptr;
  PyObject* visible = PyList_New(0);
  PyObject* iterator = visible ? PyObject_GetIter(names) : nullptr;
  Py_DECREF(names);
  if (!iterator) {
    Py_XDECREF(visible);
    return nullptr;
  }
  while (PyObject* name = PyIter_Next(iterator)) {
    const bool hidden = isHidden(lookup(type, name));
    const int failed = hidden || PyErr_Occurred() ? 0 : PyList_Append(visible, name);
    Py_DECREF(name);
    if (failed < 0 || PyErr_Occurred()) break;
  }
  Py_DECREF(iterator);
  if (PyErr_Occurred()) Py_CLEAR(visible);
  return visible;
}

PyObject* classDir(PyObject* cls, PyObject* /*unused*/) {
  return visibleNames(PyObject_CallOneArg(typeDir, cls), reinterpret_cast<PyTypeObject*>(cls));
}

PyObject* instanceDir(PyObject* self, PyObject* /*unused*/) {
  return visibleNames(PyObject_CallOneArg(objectDir, self), Py_TYPE(self));
}

// The entry of the nearest platform class that `type` derives from, or null.
ClassEntry* nearestEntry(PyTypeObject* type) noexcept {
  PyObject* mro = type->tp_mro;
  for (Py_ssize_t i = 0; mro && i < PyTuple_GET_SIZE(mro); ++i) {
    if (ClassEntry* entry = entryOfType(reinterpret_cast<PyTypeObject*>(PyTuple_GET_ITEM(mro, i)))) return entry;
  }
  return nullptr;
}

// Raises a TypeError when the Python class `type` leaves an abstract method
// of its platform class unimplemented.
void checkImplemented(PyTypeObject* type, const ClassEntry& entry) {
  for (const std::string& name : entry.abstractMethods) {
    PyObject* attribute = PyObject_GetAttrString(reinterpret_cast<PyObject*>(type), name.c_str());
    const bool missing = !attribute || isAbstractPlaceholder(attribute);
    Py_XDECREF(attribute);
    if (missing) {
      PyErr_Clear();
      PyErr_Format(PyExc_TypeError, "Can't instantiate abstract class %s with abstract method %s", type->tp_name,
                   name.c_str());
      throwPythonError();
    }
  }
}

PyObject* instanceNew(PyTypeObject* type, PyObject* arguments, PyObject* keywords) {
  ClassEntry* entry = nearestEntry(type);
  if (!entry) {
    PyErr_Format(PyExc_TypeError, "%s is no class of the platform", type->tp_name);
    return nullptr;
  }
  vorlo::VORClass& cls = *entry->cls;
  const bool ofPython = reinterpret_cast<PyObject*>(type) != entry->type;
  try {
    const std::string name = cls.getInternedFullName().str();
    if (cls.getInfo().isAbstract()) {
      // Python code implements it: the arguments are for its own __init__.
      if (!ofPython) hostRaise(ZELMAR::vorlo::NotConstructible(name));
      checkImplemented(type, *entry);
      return newInstance(type, cls);
    }
    if (keywords && PyDict_GET_SIZE(keywords) > 0) {
      PyErr_Format(PyExc_TypeError, "%s() takes no keyword arguments", type->tp_name);
      return nullptr;
    }
    if (entry->constructors.empty()) hostRaise(ZELMAR::vorlo::NotConstructible(name));
    PyObject* const* items = &PyTuple_GET_ITEM(arguments, 0);
    const Py_ssize_t count = PyTuple_GET_SIZE(arguments);
    const Overload* constructor = choose(entry->constructors, items, count);
    if (!constructor) {
      return noSignatureFits(name, signatures(entry->constructors, cls.getShortName()), items, count);
    }
    if (constructor->record->getAttributes() & vorlo::VORMethodInfo::NotPublic) {
      hostRaise(ZELMAR::vorlo::NotConstructible(name));
    }
    return construct(type, cls, *constructor, items, count);
  } catch (...) {
    setErrorFromCurrentException();
    return nullptr;
  }
}

// Runs the destruction hook of a Python object whose last reference has
// gone, and frees it. Its class is let go by subtype_dealloc, the deallocator
// of every class PyType_FromSpecWithBases makes, which called this one.
void endInstance(PyObject* object) {
  auto* instance = reinterpret_cast<Instance*>(object);
  PyObject* type = nullptr;
  PyObject* value = nullptr;
  PyObject* traceback = nullptr;
  // An error set while the object goes (a call that failed and let go of
  // its arguments) is kept aside for the hook.
  const bool pending = PyErr_Occurred() != nullptr;
  if (pending) PyErr_Fetch(&type, &value, &traceback);
  {
    const Gate::Entry entry;
    try {
      vorlo::endHostObject(instance->interface());
    } catch (...) {
      setErrorFromCurrentException();
      PyErr_WriteUnraisable(reinterpret_cast<PyObject*>(Py_TYPE(object)));
    }
  }
  if (pending) PyErr_Restore(type, value, traceback);
  instance->interface().~Interface();
  Py_TYPE(object)->tp_free(object);
}

// The same, later: the object's class was kept for it meanwhile.
void endDeferredInstance(PyObject* object) {
  PyTypeObject* cls = Py_TYPE(object);
  endInstance(object);
  Py_DECREF(cls);
}

void instanceDealloc(PyObject* object) {
  auto* instance = reinterpret_cast<Instance*>(object);
  if (instance->weakrefs) PyObject_ClearWeakRefs(object);
  // While another thread is inside the library (in a callback that let the
  // interpreter lock go), the native side of the object ends after it.
  if (Gate::busyElsewhere()) {
    Py_INCREF(Py_TYPE(object));
    Gate::defer(object, endDeferredInstance);
  } else {
    endInstance(object);
  }
}

std::string classDoc(const vorlo::VORClass& cls, const std::vector<Overload>& constructors) {
  const vorlo::VORClassInfo& info = cls.getInfo();
  std::string doc = info.getDescription();
  const std::string detailed = info.getDetailedDescription();
  if (!detailed.empty() && detailed != doc) doc += (doc.empty() ? "" : "\n\n") + detailed;
  std::vector<Overload> open;
  std::copy_if(constructors.begin(), constructors.end(), std::back_inserter(open), [](const Overload& overload) {
    return !(overload.record->getAttributes() & vorlo::VORMethodInfo::NotPublic);
  });
  if (!open.empty()) doc += "\n\nConstructors:\n" + signatures(open, cls.getShortName());
  return doc;
}

// The Python class of a handle or abstract class: a class of HostObject
// whose bases are those of the record, in order.
void makeHandleClass(ClassEntry& entry) {
  vorlo::VORClass& cls = *entry.cls;
  PyObject* bases = check(PyList_New(0));
  const auto append = [bases](PyObject* base) {
    const int failed = base ? PyList_Append(bases, base) : -1;
    Py_XDECREF(base);
    if (failed < 0) throwPythonError();
  };
  PyObject* type = nullptr;
  try {
    bool hosted = false;
    for (const auto& base : cls.getSuperclasses()) {
      PyObject* baseType = nullptr;
      if (vorlo::VORClass* baseClass = base.name.getClass()) {
        const ClassEntry& baseEntry = entryOf(*baseClass);
        baseType = Py_NewRef(baseEntry.type);
        for (const std::string& name : baseEntry.abstractMethods) entry.abstractMethods.push_back(name);
      } else {
        baseType = PyObject_CallFunction(plainClassMaker, "s", base.name.c_str());
      }
      hosted = hosted || (baseType && PyType_Check(baseType) &&
                          PyType_IsSubtype(reinterpret_cast<PyTypeObject*>(baseType), &HostObjectType));
      append(baseType);
    }
    if (!hosted) append(Py_NewRef(reinterpret_cast<PyObject*>(&HostObjectType)));
    for (const auto& record : cls.getMethodRecords()) {
      if (record->getKind() == vorlo::VORMethodInfo::Kind::Constructor) entry.constructors.emplace_back(*record);
      if (record->isAbstract()) entry.abstractMethods.emplace_back(record->getName());
    }
    const std::string doc = classDoc(cls, entry.constructors);
    PyType_Slot slots[] = {{Py_tp_doc, const_cast<char*>(doc.c_str())}, {0, nullptr}};
    PyType_Spec layout = {cls.getInternedFullName().c_str(), 0, 0, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE, slots};
    PyObject* tuple = check(PyList_AsTuple(bases));
    type = PyType_FromSpecWithBases(&layout, tuple);
    Py_DECREF(tuple);
    check(type);
    // Made as instances of type, these classes are of zelmar.Class, which
    // keeps hidden records out of their listings.
    Py_SET_TYPE(type, &ClassType);
    entry.type = type;
    addMembers(entry);
  } catch (...) {
    Py_DECREF(bases);
    Py_XDECREF(type);
    entry.type = nullptr;
    throw;
  }
  Py_DECREF(bases);
}

PyObject* makeEnumeration(const vorlo::VORClass& cls) {
  PyObject* members = check(PyList_New(0));
  try {
    for (const auto& member : cls.getEnumerationMembers()) {
      PyObject* pair = check(Py_BuildValue("(sK)", member->getName(), member->getValue()->word(0)));
      const int failed = PyList_Append(members, pair);
      Py_DECREF(pair);
      if (failed < 0) throwPythonError();
    }
  } catch (...) {
    Py_DECREF(members);
    throw;
  }
  PyObject* type = PyObject_CallFunction(enumerationMaker, "ssN", cls.getInternedFullName().c_str(),
                                         cls.getInfo().getDescription(), members);
  return check(type);
}

PyMethodDef classMethods[] = {
    {"__dir__", classDir, METH_NOARGS, "The class's attributes, without the hidden records."},
    {nullptr, nullptr, 0, nullptr},
};

PyMethodDef instanceMethods[] = {
    {"__dir__", instanceDir, METH_NOARGS, "The object's attributes, without the hidden records."},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace

PyTypeObject ClassType = staticType("zelmar.Class");
PyTypeObject HostObjectType = staticType("zelmar.HostObject");

ClassEntry& entryOf(vorlo::VORClass& cls) {
  if (auto* entry = static_cast<ClassEntry*>(cls.getHostData())) return *entry;
  if (!plainClassMaker || !enumerationMaker) {
    PyErr_SetString(PyExc_RuntimeError, "zelmar is not set up: import zelmar first");
    throwPythonError();
  }
  if (!inTheMaking.insert(&cls).second) {
    PyErr_Format(PyExc_TypeError, "the class %s derives from itself", cls.getInternedFullName().c_str());
    throwPythonError();
  }
  auto entry = std::make_unique<ClassEntry>();
  entry->cls = &cls;
  try {
    const vorlo::VORClassInfo& info = cls.getInfo();
    if (info.isEnumeration()) {
      entry->type = makeEnumeration(cls);
    } else if (info.isHandleClass() || info.isAbstract()) {
      makeHandleClass(*entry);
    } else {
      entry->type = check(PyObject_CallFunction(plainClassMaker, "s", cls.getInternedFullName().c_str()));
    }
    auto* type = reinterpret_cast<PyTypeObject*>(entry->type);
    entry->hosted = PyType_Check(type) && PyType_IsSubtype(type, &HostObjectType);
    byType->emplace(type, entry.get());
  } catch (...) {
    inTheMaking.erase(&cls);
    throw;
  }
  inTheMaking.erase(&cls);
  cls.setHostData(entry.get());
  return *entry.release();
}

ClassEntry* entryOfType(PyTypeObject* type) noexcept {
  const auto found = byType->find(type);
  return found == byType->end() ? nullptr : found->second;
}

std::string fullNameOf(PyTypeObject* type) {
  if (const ClassEntry* entry = entryOfType(type)) return entry->cls->getInternedFullName().str();
  PyObject* module = check(PyObject_GetAttrString(reinterpret_cast<PyObject*>(type), "__module__"));
  PyObject* name = PyType_GetQualName(type);
  PyObject* full = name ? PyUnicode_FromFormat("%S.%S", module, name) : nullptr;
  Py_DECREF(module);
  Py_XDECREF(name);
  const char* text = PyUnicode_AsUTF8(check(full));
  std::string result = text ? text : "";
  Py_DECREF(full);
  if (!text) throwPythonError();
  return result;
}

PyObject* newInstance(PyTypeObject* type, vorlo::VORClass& cls) {
  PyObject* object = check(type->tp_alloc(type, 0));
  new (reinterpret_cast<Instance*>(object)->storage) Interface(&cls, object);
  return object;
}

void setClassMakers(PyObject* plainClass, PyObject* enumeration) noexcept {
  Py_XINCREF(plainClass);
  Py_XSETREF(plainClassMaker, plainClass);
  Py_XINCREF(enumeration);
  Py_XSETREF(enumerationMaker, enumeration);
}

bool readyClassTypes() noexcept {
  ClassType.tp_base = &PyType_Type;
  ClassType.tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE;
  ClassType.tp_doc = "The metaclass of the classes of the platform: their listings leave hidden records out.";
  ClassType.tp_methods = classMethods;

  Py_SET_TYPE(&HostObjectType, &ClassType);
  HostObjectType.tp_basicsize = sizeof(Instance);
  HostObjectType.tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE;
  HostObjectType.tp_doc = "Base of the Python classes of the platform's classes: an object of one stands for a host object.";
  HostObjectType.tp_weaklistoffset = offsetof(Instance, weakrefs);
  HostObjectType.tp_new = instanceNew;
  HostObjectType.tp_dealloc = instanceDealloc;
  HostObjectType.tp_methods = instanceMethods;

  if (PyType_Ready(&ClassType) < 0 || PyType_Ready(&HostObjectType) < 0) return false;
  typeDir = PyObject_GetAttrString(reinterpret_cast<PyObject*>(&PyType_Type), "__dir__");
  objectDir = PyObject_GetAttrString(reinterpret_cast<PyObject*>(&PyBaseObject_Type), "__dir__");
  return typeDir && objectDir;
}

}  // namespace zelmar
