#pragma once

#include <basis/ustring.hpp>

class HostArray;

namespace vorlo::factory {

/// The text of a char array or of element 0 of a string array. A missing
/// string is ZELMAR:string:MissingNotSupported, any other array
/// ZELMAR:vorlo:NotText.
basis::ustring extractString(HostArray* array);

}  // namespace vorlo::factory
