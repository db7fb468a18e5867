#pragma once

#include <basis/ustring.hpp>

namespace paxorel::xml {

/// The 16-bit Unicode string of every public signature (UTF-16 code units,
/// the same width as the XMLCh of Xerces).
using ustring = basis::ustring;

}  // namespace paxorel::xml
