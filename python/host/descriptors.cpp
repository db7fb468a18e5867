#include "descriptors.hpp"

#include "calls.hpp"
#include "classes.hpp"
#include "errors.hpp"

#include <vorlo/VORPropertyInfo.hpp>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace zelmar {

namespace {

// What an attribute knows of its records.
struct Member {
  virtual ~Member() = default;
  std::string name;
  PyTypeObject* owner = nullptr;  // the class whose records they are
  bool hidden = false;
  std::string doc;

  std::string qualifiedName() const { return std::string(owner->tp_name) + "." + name; }
};

// The method records of one name: those with an object and those without.
struct MethodMember final : Member {
  std::vector<Overload> instance;
  std::vector<Overload> statics;
  std::string signatures;
};

struct PropertyMember final : Member {
  const vorlo::VORPropertyInfo* record = nullptr;
  ValueType type;
};

// The object of each attribute: a method, a static method, an abstract
// method or a property.
struct Descriptor {
  PyObject_HEAD
  vectorcallfunc vectorcall;
  Member* member;
};

PyTypeObject MethodType = staticType("zelmar.Method");
PyTypeObject StaticMethodType = staticType("zelmar.StaticMethod");
PyTypeObject AbstractMethodType = staticType("zelmar.AbstractMethod");
PyTypeObject PropertyType = staticType("zelmar.Property");

Member& memberOf(PyObject* descriptor) noexcept { return *reinterpret_cast<Descriptor*>(descriptor)->member; }

bool isDescriptor(PyObject* object) noexcept {
  PyTypeObject* type = Py_TYPE(object);
  return type == &MethodType || type == &StaticMethodType || type == &AbstractMethodType || type == &PropertyType;
}

PyObject* noKeywords(const Member& member) noexcept {
  PyErr_Format(PyExc_TypeError, "%s.%s() takes no keyword arguments", member.owner->tp_name, member.name.c_str());
  return nullptr;
}

PyObject* callMethod(PyObject* callable, PyObject* const* arguments, std::size_t flags, PyObject* keywords) {
  const auto& method = static_cast<const MethodMember&>(memberOf(callable));
  if (keywords && PyTuple_GET_SIZE(keywords) > 0) return noKeywords(method);
  const Py_ssize_t count = PyVectorcall_NARGS(flags);
  if (count > 0 && PyObject_TypeCheck(arguments[0], method.owner)) {
    // A static record of the name takes the arguments after the object.
    if (const Overload* chosen = choose(method.instance, arguments + 1, count - 1)) {
      return call(*chosen, arguments[0], arguments + 1, count - 1);
    }
    if (const Overload* chosen = choose(method.statics, arguments + 1, count - 1)) {
      return call(*chosen, nullptr, arguments + 1, count - 1);
    }
    return noSignatureFits(method.qualifiedName(), method.signatures, arguments + 1, count - 1);
  }
  if (const Overload* chosen = choose(method.statics, arguments, count)) return call(*chosen, nullptr, arguments, count);
  return noSignatureFits(method.qualifiedName(), method.signatures, arguments, count);
}

PyObject* callStatic(PyObject* callable, PyObject* const* arguments, std::size_t flags, PyObject* keywords) {
  const auto& method = static_cast<const MethodMember&>(memberOf(callable));
  if (keywords && PyTuple_GET_SIZE(keywords) > 0) return noKeywords(method);
  const Py_ssize_t count = PyVectorcall_NARGS(flags);
  if (const Overload* chosen = choose(method.statics, arguments, count)) return call(*chosen, nullptr, arguments, count);
  return noSignatureFits(method.qualifiedName(), method.signatures, arguments, count);
}

PyObject* callAbstract(PyObject* callable, PyObject* const* /*arguments*/, std::size_t /*flags*/,
                       PyObject* /*keywords*/) {
  PyErr_Format(PyExc_NotImplementedError, "%s is abstract: a Python subclass implements it",
               memberOf(callable).qualifiedName().c_str());
  return nullptr;
}

// Through an object, a method binds to it; a static method never does.
PyObject* bindMethod(PyObject* self, PyObject* object, PyObject* /*type*/) {
  if (!object || object == Py_None) return Py_NewRef(self);
  return PyMethod_New(self, object);
}

PyObject* bindStatic(PyObject* self, PyObject* /*object*/, PyObject* /*type*/) { return Py_NewRef(self); }

bool checkOwner(const Member& member, PyObject* object) noexcept {
  if (PyObject_TypeCheck(object, member.owner)) return true;
  PyErr_Format(PyExc_TypeError, "the property '%s' of '%s' objects does not apply to a '%s' object", member.name.c_str(),
               member.owner->tp_name, Py_TYPE(object)->tp_name);
  return false;
}

PyObject* getValue(PyObject* self, PyObject* object, PyObject* /*type*/) {
  if (!object) return Py_NewRef(self);
  const auto& property = static_cast<const PropertyMember&>(memberOf(self));
  if (!checkOwner(property, object)) return nullptr;
  return getProperty(*property.record, property.type, object);
}

int setValue(PyObject* self, PyObject* object, PyObject* value) {
  const auto& property = static_cast<const PropertyMember&>(memberOf(self));
  if (!checkOwner(property, object)) return -1;
  if (!value) {
    PyErr_Format(PyExc_AttributeError, "the property '%s' of '%s' objects cannot be deleted", property.name.c_str(),
                 property.owner->tp_name);
    return -1;
  }
  if (!property.record->isSettable()) {
    PyErr_Format(PyExc_AttributeError, "property '%s' of '%s' object has no setter", property.name.c_str(),
                 property.owner->tp_name);
    return -1;
  }
  if (!property.type.accepts(value)) {
    PyErr_Format(PyExc_TypeError, "the property '%s' of '%s' objects takes %s, not %s", property.name.c_str(),
                 property.owner->tp_name, property.type.pythonName(false).c_str(), Py_TYPE(value)->tp_name);
    return -1;
  }
  return setProperty(*property.record, property.type, object, value);
}

void deallocDescriptor(PyObject* self) {
  delete reinterpret_cast<Descriptor*>(self)->member;
  Py_TYPE(self)->tp_free(self);
}

PyObject* reprDescriptor(PyObject* self) {
  const Member& member = memberOf(self);
  const char* kind = Py_TYPE(self) == &PropertyType ? "property" : "method";
  return PyUnicode_FromFormat("<%s '%s' of '%s' objects>", kind, member.name.c_str(), member.owner->tp_name);
}

PyObject* getName(PyObject* self, void* /*closure*/) { return PyUnicode_FromString(memberOf(self).name.c_str()); }

PyObject* getQualifiedName(PyObject* self, void* /*closure*/) {
  const Member& member = memberOf(self);
  PyObject* owner = PyType_GetQualName(member.owner);
  PyObject* name = owner ? PyUnicode_FromFormat("%S.%s", owner, member.name.c_str()) : nullptr;
  Py_XDECREF(owner);
  return name;
}

PyObject* getDoc(PyObject* self, void* /*closure*/) { return PyUnicode_FromString(memberOf(self).doc.c_str()); }

PyObject* getOwner(PyObject* self, void* /*closure*/) {
  return Py_NewRef(reinterpret_cast<PyObject*>(memberOf(self).owner));
}

// Whether abc counts the member as abstract: the placeholders of abstract
// records only.
PyObject* getIsAbstract(PyObject* self, void* /*closure*/) {
  return PyBool_FromLong(Py_TYPE(self) == &AbstractMethodType);
}

PyGetSetDef memberAttributes[] = {
    {"__name__", getName, nullptr, nullptr, nullptr},
    {"__qualname__", getQualifiedName, nullptr, nullptr, nullptr},
    {"__doc__", getDoc, nullptr, nullptr, nullptr},
    {"__objclass__", getOwner, nullptr, nullptr, nullptr},
    {"__isabstractmethod__", getIsAbstract, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

// Puts a new descriptor of `type` for `member` on its class.
void install(PyTypeObject& type, std::unique_ptr<Member> member, vectorcallfunc vectorcall) {
  Descriptor* descriptor = PyObject_New(Descriptor, &type);
  if (!descriptor) throwPythonError();
  descriptor->vectorcall = vectorcall;
  descriptor->member = member.release();
  PyObject* object = reinterpret_cast<PyObject*>(descriptor);
  const Member& added = memberOf(object);
  const int failed = PyObject_SetAttrString(reinterpret_cast<PyObject*>(added.owner), added.name.c_str(), object);
  Py_DECREF(object);
  if (failed < 0) throwPythonError();
}

std::string descriptionsOf(const std::vector<const vorlo::VORMethodInfo*>& records) {
  std::string text;
  for (const vorlo::VORMethodInfo* record : records) {
    std::string description = record->getDescription();
    if (description.empty() && record->getSignature()) description = record->getSignature()->getDescription();
    if (!description.empty() && text.find(description) == std::string::npos) text += "\n" + description;
  }
  return text;
}

void addMethods(PyTypeObject* owner, const vorlo::VORClass& cls) {
  std::vector<std::unique_ptr<MethodMember>> methods;
  std::vector<std::vector<const vorlo::VORMethodInfo*>> records;
  for (const auto& record : cls.getMethodRecords()) {
    const auto kind = record->getKind();
    if (kind == vorlo::VORMethodInfo::Kind::Constructor || kind == vorlo::VORMethodInfo::Kind::ValueConstructor) continue;
    if (record->isAbstract()) {
      auto member = std::make_unique<Member>();
      member->name = record->getName();
      member->owner = owner;
      member->hidden = (record->getAttributes() & vorlo::VORMethodInfo::Hidden) != 0;
      member->doc = Overload(*record).signature(member->name) + "\n\nAbstract: a Python subclass implements it." +
                    descriptionsOf({record.get()});
      install(AbstractMethodType, std::move(member), callAbstract);
      continue;
    }
    const auto found = std::find_if(methods.begin(), methods.end(),
                                    [&](const auto& method) { return method->name == record->getName(); });
    const auto index = static_cast<std::size_t>(found - methods.begin());
    if (found == methods.end()) {
      methods.push_back(std::make_unique<MethodMember>());
      methods.back()->name = record->getName();
      methods.back()->owner = owner;
      methods.back()->hidden = true;
      records.emplace_back();
    }
    MethodMember& method = *methods[index];
    (record->isStatic() ? method.statics : method.instance).emplace_back(*record);
    method.hidden = method.hidden && (record->getAttributes() & vorlo::VORMethodInfo::Hidden) != 0;
    records[index].push_back(record.get());
  }
  for (std::size_t i = 0; i < methods.size(); ++i) {
    MethodMember& method = *methods[i];
    method.signatures = signatures(method.instance, method.name) + signatures(method.statics, method.name);
    method.doc = method.signatures + descriptionsOf(records[i]);
    const bool bound = !method.instance.empty();
    install(bound ? MethodType : StaticMethodType, std::move(methods[i]), bound ? callMethod : callStatic);
  }
}

void addProperties(PyTypeObject* owner, const vorlo::VORClass& cls) {
  for (const auto& record : cls.getProperties()) {
    auto property = std::make_unique<PropertyMember>();
    property->name = record->getName();
    property->owner = owner;
    property->hidden = (record->getAttributes() & vorlo::VORPropertyInfo::Hidden) != 0;
    property->record = record.get();
    property->type = ValueType::of(record->getTypeName());
    property->doc = property->type.pythonName(true) + (record->isSettable() ? "" : ", read-only");
    if (*record->getDescription()) property->doc += "\n\n" + std::string(record->getDescription());
    install(PropertyType, std::move(property), nullptr);
  }
}

bool ready(PyTypeObject& type, unsigned long flags, const char* doc) {
  type.tp_basicsize = sizeof(Descriptor);
  type.tp_flags = Py_TPFLAGS_DEFAULT | flags;
  type.tp_doc = doc;
  type.tp_dealloc = deallocDescriptor;
  type.tp_repr = reprDescriptor;
  type.tp_getset = memberAttributes;
  if (flags & Py_TPFLAGS_HAVE_VECTORCALL) {
    type.tp_vectorcall_offset = offsetof(Descriptor, vectorcall);
    type.tp_call = PyVectorcall_Call;
  }
  return PyType_Ready(&type) == 0;
}

}  // namespace

void addMembers(ClassEntry& entry) {
  auto* owner = reinterpret_cast<PyTypeObject*>(entry.type);
  addMethods(owner, *entry.cls);
  addProperties(owner, *entry.cls);
}

bool isHidden(PyObject* attribute) noexcept { return attribute && isDescriptor(attribute) && memberOf(attribute).hidden; }

bool isAbstractPlaceholder(PyObject* attribute) noexcept { return Py_TYPE(attribute) == &AbstractMethodType; }

bool readyDescriptorTypes() noexcept {
  constexpr unsigned long callable = Py_TPFLAGS_HAVE_VECTORCALL;
  constexpr unsigned long method = callable | Py_TPFLAGS_METHOD_DESCRIPTOR;
  MethodType.tp_descr_get = bindMethod;
  StaticMethodType.tp_descr_get = bindStatic;
  AbstractMethodType.tp_descr_get = bindMethod;
  PropertyType.tp_descr_get = getValue;
  PropertyType.tp_descr_set = setValue;
  return ready(MethodType, method, "Methods of a platform class: the records of one name, chosen by the arguments.") &&
         ready(StaticMethodType, callable, "Static methods of a platform class, callable on the class and its objects.") &&
         ready(AbstractMethodType, method, "An abstract method of a platform class, which Python subclasses implement.") &&
         ready(PropertyType, 0, "A property of a platform class.");
}

}  // namespace zelmar
