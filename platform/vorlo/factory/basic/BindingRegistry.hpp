#pragma once

#include <vorlo/InternedName.hpp>

class HostArray;

namespace vorlo {
class VORInterface;
}
namespace vorlo::factory::full {
class Wrappable;
}

namespace vorlo::factory::basic {

/// Ties native objects to the host objects that stand for them: one native
/// object, one host object, for as long as both live. The binding is kept in
/// the two objects themselves (the Wrappable and the host object's
/// VORInterface), so announcing a bound object costs no lookup.
class BindingRegistry {
 public:
  /// The process-wide registry. It holds no state of its own and is never
  /// destroyed, so that objects that die during process exit can still
  /// withdraw from it.
  static BindingRegistry& instance();

  /// A new 1-by-1 host array holding the host object bound to `object`; the
  /// first time, the host object is made, of the class named `type`. For a
  /// null `object`, an empty (0-by-0) object array of class `type`. The
  /// caller owns the array. An unknown class is ZELMAR:vorlo:UnknownClass.
  HostArray* announce(const full::Wrappable* object, InternedName type);
  /// Binds `object` to the host object under construction in element 0 of
  /// `hostObject`, which then stands for it.
  void announceForConstructor(const full::Wrappable* object, InternedName type, HostArray* hostObject,
                              bool constructed);
  /// The host object of `object` is going: forgets the binding.
  void remove(const full::Wrappable* object) noexcept;
  /// `object` is going: forgets the binding, and its host object is left
  /// without a native object.
  void retract(const full::Wrappable* object) noexcept;
  /// The host object bound to `object`, or null.
  VORInterface* find(const full::Wrappable* object) const noexcept;

 private:
  BindingRegistry() = default;
  static void bind(const full::Wrappable& object, VORInterface& hostObject) noexcept;
};

}  // namespace vorlo::factory::basic
