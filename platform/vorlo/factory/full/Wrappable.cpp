#include <vorlo/factory/full/Wrappable.hpp>

#include <vorlo/factory/basic/BindingRegistry.hpp>

namespace vorlo::factory::full {

Wrappable::~Wrappable() {
  if (hostObject_) basic::BindingRegistry::instance().retract(this);
}

}  // namespace vorlo::factory::full
