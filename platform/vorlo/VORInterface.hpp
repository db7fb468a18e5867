#pragma once

#include <vorlo/InternedName.hpp>

namespace vorlo {

class VORClass;

namespace factory::basic {
class BindingRegistry;
}
namespace factory::full {
class Wrappable;
}

/// The platform's side of one host object. The host language keeps it inside
/// its own object, and the platform refers to the host object by it. It knows
/// the object's platform class (for an object of a class that host code
/// derived, the nearest platform class) and the native object that the host
/// object stands for, if any.
class VORInterface {
 public:
  explicit VORInterface(VORClass* cls) noexcept : class_(cls) {}
  VORInterface(const VORInterface&) = delete;
  VORInterface& operator=(const VORInterface&) = delete;
  virtual ~VORInterface();

  /// The native object behind the host object, asked on behalf of the class
  /// named `cls`; null when there is none (never bound, or already gone).
  virtual factory::full::Wrappable* getNativeInstance(InternedName cls) const;

  VORClass* getClass() const noexcept { return class_; }

 private:
  friend class factory::basic::BindingRegistry;
  VORClass* class_;
  factory::full::Wrappable* native_ = nullptr;
};

using VORInterfacePtr = VORInterface*;

}  // namespace vorlo
