#pragma once

#include <host/hostArrays.hpp>
#include <vorlo/VORInterface.hpp>
#include <vorlo/VORValue.hpp>
#include <vorlo/factory/basic/BindingRegistry.hpp>
#include <vorlo/factory/downcast.hpp>
#include <vorlo/factory/full/Wrappable.hpp>

namespace vorlo::factory {

/// Moves native objects between slots and host arrays, by `Policy`.
template <class Policy>
struct Marshaler {
  /// The native object of class `T` of the host object in `slot`, asked on
  /// behalf of the class named `cls`: element 0 of the array only; null for an
  /// empty array, a host object without a native object, or one of a native
  /// class that is not a `T`.
  template <class T>
  static T* FromM(VORValue slot, InternedName cls) {
    const HostArray* array = slot.array();
    if (hostIsEmpty(array)) return nullptr;
    const VORInterface* object = hostGetArrayElement(array, 0);
    return object ? downcast<T>(object->getNativeInstance(cls)) : nullptr;
  }

  /// The host array that stands for `object`, announced under the class it
  /// reports itself; for null, what announce gives for null and the declared
  /// class `declared`. The caller owns the array.
  template <class T>
  static HostArray* toMForPtr(const T* object, InternedName declared) {
    basic::BindingRegistry& registry = basic::BindingRegistry::instance();
    if (!object) return registry.announce(nullptr, declared);
    return registry.announce(object, internal::makeInternedConstant(Policy::typeName(*object)));
  }

  /// Binds the new `object` to the host object under construction in
  /// `hostObject`, under the class it reports itself.
  template <class T>
  static void toMForConstructor(const T* object, HostArray* hostObject) {
    basic::BindingRegistry::instance().announceForConstructor(
        object, internal::makeInternedConstant(Policy::typeName(*object)), hostObject, true);
  }
};

}  // namespace vorlo::factory
