#include <vorlo/factory/impl/validateSelfPointer.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/hostRaiseError.hpp>

namespace vorlo::factory::impl {

void validateSelfPointer(const void* self) {
  if (!self) hostRaise(ZELMAR::vorlo::InvalidObject());
}

}  // namespace vorlo::factory::impl
