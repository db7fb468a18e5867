#include <vorlo/VORInterface.hpp>

namespace vorlo {

VORInterface::~VORInterface() = default;

factory::full::Wrappable* VORInterface::getNativeInstance(InternedName /*cls*/) const { return native_; }

}  // namespace vorlo
