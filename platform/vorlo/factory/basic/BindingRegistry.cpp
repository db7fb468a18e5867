#include <vorlo/factory/basic/BindingRegistry.hpp>

#include <vorlo/factory/full/Wrappable.hpp>

namespace vorlo::factory::basic {

BindingRegistry& BindingRegistry::instance() {
  static auto* const registry = new BindingRegistry;
  return *registry;
}

void BindingRegistry::bind(const full::Wrappable* object, void* hostObject) {
  bindings_[object] = hostObject;
  object->bound_ = true;
}

void* BindingRegistry::find(const full::Wrappable* object) const {
  const auto found = bindings_.find(object);
  return found == bindings_.end() ? nullptr : found->second;
}

void BindingRegistry::retract(const full::Wrappable* object) { bindings_.erase(object); }

}  // namespace vorlo::factory::basic
