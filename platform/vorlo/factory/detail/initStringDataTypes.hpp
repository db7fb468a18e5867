#pragma once

namespace vorlo::factory::detail {

/// Makes the types "VorloFactoryString scalar" and "ustringToString scalar"
/// known to the type repository. Repeating it changes nothing.
void initStringDataTypes();

}  // namespace vorlo::factory::detail
