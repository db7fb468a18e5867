#pragma once

#include <memory>

namespace vorlo {
class VORClass;
}

namespace vorlo::builtin {

/// The platform's class "uint32": an unsigned 32-bit number. Its one
/// constructor, also named "uint32", sets the number of the object under
/// construction (element 0 of output slot 0) from the uint32 scalar in input
/// slot 0. Enumerations over "uint32" make their members' values with it.
std::unique_ptr<VORClass> makeUInt32Class();

}  // namespace vorlo::builtin
