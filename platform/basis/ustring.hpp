#pragma once

#include <string>

namespace basis {

/// The host's 16-bit Unicode string: UTF-16 code units, counted in code units.
using ustring = std::u16string;

}  // namespace basis
