#include <vorlo/factory/basic/BindingRegistry.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/HostArray.hpp>
#include <host/hostArrays.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORInterface.hpp>
#include <vorlo/factory/full/Wrappable.hpp>
#include <vorlo/hostObjects.hpp>

#include <memory>

namespace vorlo::factory::basic {

BindingRegistry& BindingRegistry::instance() {
  static auto* const registry = new BindingRegistry;
  return *registry;
}

void BindingRegistry::bind(const full::Wrappable& object, VORInterface& hostObject) noexcept {
  object.hostObject_ = &hostObject;
  hostObject.native_ = const_cast<full::Wrappable*>(&object);  // the host object acts on it
}

HostArray* BindingRegistry::announce(const full::Wrappable* object, InternedName type) {
  if (!object) return hostCreateObjectMatrix(0, 0, type);
  std::unique_ptr<HostArray, decltype(&hostDestroyArray)> array(hostCreateObjectMatrix(1, 1, type),
                                                                &hostDestroyArray);
  if (object->hostObject_) {
    hostSetArrayElement(array.get(), 0, object->hostObject_);
    return array.release();
  }
  VORClass* cls = type.getClass();
  if (!cls) hostRaise(ZELMAR::vorlo::UnknownClass(type.str()));
  VORInterface* hostObject = newHostObject(*cls);  // its one reference goes to the array
  array->adoptObject(0, hostObject);
  bind(*object, *hostObject);
  return array.release();
}

void BindingRegistry::announceForConstructor(const full::Wrappable* object, InternedName /*type*/,
                                             HostArray* hostObject, bool /*constructed*/) {
  VORInterface* under = hostGetObjectElement(hostObject, 0);
  if (!object || !under) return;
  if (under->native_ && under->native_ != object) retract(under->native_);
  bind(*object, *under);
}

void BindingRegistry::remove(const full::Wrappable* object) noexcept {
  if (!object || !object->hostObject_) return;
  object->hostObject_->native_ = nullptr;
  object->hostObject_ = nullptr;
}

void BindingRegistry::retract(const full::Wrappable* object) noexcept { remove(object); }

VORInterface* BindingRegistry::find(const full::Wrappable* object) const noexcept {
  return object ? object->hostObject_ : nullptr;
}

}  // namespace vorlo::factory::basic
