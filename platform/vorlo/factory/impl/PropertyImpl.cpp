#include <vorlo/factory/impl/PropertyImpl.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/hostRaiseError.hpp>

namespace vorlo::factory::impl {

void PropertyImpl::set(VORValue self, VORValue value) const {
  if (!setter_) hostRaise(ZELMAR::vorlo::ReadOnlyProperty(name_));
  setter_->set(self, value);
}

}  // namespace vorlo::factory::impl
