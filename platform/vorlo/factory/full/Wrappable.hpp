#pragma once

namespace vorlo::factory::basic {
class BindingRegistry;
}

namespace vorlo::factory::full {

/// Base of every native object that a host object may stand for. When the
/// native object goes, its binding to a host object goes with it.
class Wrappable {
 public:
  Wrappable() = default;
  Wrappable(const Wrappable&) = delete;
  Wrappable& operator=(const Wrappable&) = delete;
  /// Withdraws the object from the BindingRegistry, if it was ever bound.
  virtual ~Wrappable();

 private:
  friend class basic::BindingRegistry;
  mutable bool bound_ = false;  // set by BindingRegistry::bind: most objects never are
};

}  // namespace vorlo::factory::full
