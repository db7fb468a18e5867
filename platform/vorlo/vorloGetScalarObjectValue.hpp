#pragma once

#include <vorlo/InternedName.hpp>
#include <vorlo/VORValue.hpp>

namespace vorlo {

namespace factory::full {
class Wrappable;
}

/// The native object of the host object that `value` holds (element 0 of its
/// array), asked on behalf of the class named `cls`; null for an empty value
/// or a host object without one.
factory::full::Wrappable* vorloGetScalarObjectValue(InternedName cls, VORValue value);

}  // namespace vorlo
