#pragma once

namespace vorlo::factory::impl {

/// Returns when `self` is set; a null object is raised into the host as
/// ZELMAR:vorlo:InvalidObject.
void validateSelfPointer(const void* self);

}  // namespace vorlo::factory::impl
