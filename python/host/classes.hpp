#pragma once

// Python classes made of the platform's classes, and their objects.

#include <Python.h>

#include "overloads.hpp"

#include <vorlo/VORClass.hpp>
#include <vorlo/VORInterface.hpp>

#include <new>
#include <string>
#include <vector>

namespace zelmar {

/// The platform's side of a Python object, by which the platform holds it.
struct Interface final : vorlo::VORInterface {
  Interface(vorlo::VORClass* cls, PyObject* owner) noexcept : VORInterface(cls), object(owner) {}
  PyObject* const object;  ///< the Python object it is part of (not counted)
};

/// The layout of every Python object of a platform class.
struct Instance {
  PyObject_HEAD
  PyObject* weakrefs;
  alignas(Interface) unsigned char storage[sizeof(Interface)];  // the Interface, made in place

  Interface& interface() noexcept { return *std::launder(reinterpret_cast<Interface*>(storage)); }
};

/// zelmar.HostObject, the base of the Python classes of the platform's
/// classes, and zelmar.Class, their metaclass.
extern PyTypeObject HostObjectType;
extern PyTypeObject ClassType;

/// A static Python type named `name`, all else empty until it is readied.
inline PyTypeObject staticType(const char* name) noexcept {
  PyTypeObject type{};
  Py_SET_REFCNT(&type, 1);
  type.tp_name = name;
  return type;
}

inline bool isInstance(PyObject* object) noexcept { return PyObject_TypeCheck(object, &HostObjectType); }
inline Interface& interfaceOf(PyObject* instance) noexcept {
  return reinterpret_cast<Instance*>(instance)->interface();
}
/// The Python object of a host object: every host object is made by this host.
inline PyObject* pythonObject(const vorlo::VORInterface& object) noexcept {
  return static_cast<const Interface&>(object).object;
}

/// What the host keeps of a platform class, as the class's host data.
struct ClassEntry {
  vorlo::VORClass* cls = nullptr;
  PyObject* type = nullptr;                  ///< its Python class, kept for the life of the process
  bool hosted = false;                       ///< whether its objects are host objects (of HostObject)
  std::vector<Overload> constructors;        ///< in registration order
  std::vector<std::string> abstractMethods;  ///< what a Python subclass implements, its bases' included
};

/// The entry of `cls`, with its Python class made first if need be (after
/// the classes that it derives from): a class of HostObject for a handle or
/// abstract class, an enum.IntEnum for an enumeration, a plain class for
/// another of the platform's own (zelmar.uint32).
ClassEntry& entryOf(vorlo::VORClass& cls);
/// The entry whose Python class is `type` itself, or null.
ClassEntry* entryOfType(PyTypeObject* type) noexcept;
/// The full name of the Python class `type`: its platform class's name, or
/// the module and qualified name of a class of Python code.
std::string fullNameOf(PyTypeObject* type);

/// A new Python object of the Python class `type` for a host object of the
/// platform class `cls`, standing for no native object yet.
PyObject* newInstance(PyTypeObject* type, vorlo::VORClass& cls);

/// The Python functions that make the classes the host does not make itself:
/// a plain class for a full name that no package registers, and an
/// enumeration class from its full name, description and members.
void setClassMakers(PyObject* plainClass, PyObject* enumeration) noexcept;

/// Readies HostObject and Class; false with a Python error set.
bool readyClassTypes() noexcept;

}  // namespace zelmar
