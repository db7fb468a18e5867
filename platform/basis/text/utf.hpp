#pragma once

#include <basis/ustring.hpp>

#include <string>
#include <string_view>

/// Conversions between the host's 16-bit strings and narrow text.
///
/// Narrow text on this platform is always UTF-8: paths, message arguments and
/// exception texts alike.
namespace basis::text {

/// UTF-16 to UTF-8. A surrogate without its partner is written as the three
/// bytes of its own code unit (as WTF-8 does), so nothing is lost and a strict
/// UTF-8 reader still refuses it.
std::string to_utf8(std::u16string_view text);

/// UTF-8 to UTF-16. Each byte that does not start a well-formed sequence
/// becomes U+FFFD.
ustring from_utf8(std::string_view text);

}  // namespace basis::text
