#pragma once

namespace vorlo {
class VORInterface;
}
namespace vorlo::factory::basic {
class BindingRegistry;
}

namespace vorlo::factory::full {

/// Base of every native object that a host object may stand for. When the
/// native object goes, its binding to a host object goes with it, and the
/// host object is left without a native object.
class Wrappable {
 public:
  Wrappable() = default;
  Wrappable(const Wrappable&) = delete;
  Wrappable& operator=(const Wrappable&) = delete;
  /// Withdraws the object from the BindingRegistry, if it was ever bound.
  virtual ~Wrappable();

 private:
  friend class basic::BindingRegistry;
  // The host object that stands for this one, kept here by BindingRegistry so
  // that finding it costs one load; most objects never have one.
  mutable VORInterface* hostObject_ = nullptr;
};

}  // namespace vorlo::factory::full
