#include <vorlo/factory/full/Wrappable.hpp>

#include <vorlo/factory/basic/BindingRegistry.hpp>

namespace vorlo::factory::full {

Wrappable::~Wrappable() {
  if (bound_) basic::BindingRegistry::instance().retract(this);
}

}  // namespace vorlo::factory::full
