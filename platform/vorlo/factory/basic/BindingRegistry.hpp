#pragma once

#include <unordered_map>

namespace vorlo::factory::full {
class Wrappable;
}

namespace vorlo::factory::basic {

/// Ties native objects to the host objects that stand for them. A host
/// object is opaque here; the host binding decides what it points to.
class BindingRegistry {
 public:
  /// The process-wide registry. It is never destroyed, so that objects that
  /// die during process exit can still withdraw from it.
  static BindingRegistry& instance();

  /// Records that `hostObject` stands for `object`, replacing an earlier binding.
  void bind(const full::Wrappable* object, void* hostObject);
  /// The host object bound to `object`, or null.
  void* find(const full::Wrappable* object) const;
  /// Forgets the binding of `object`, if any: the native object is going.
  void retract(const full::Wrappable* object);

 private:
  BindingRegistry() = default;
  std::unordered_map<const full::Wrappable*, void*> bindings_;
};

}  // namespace vorlo::factory::basic
