#pragma once

#include <basis/i18n/BaseMsgID.hpp>
#include <basis/i18n/HostLocale.hpp>
#include <basis/ustring.hpp>

#include <string>

namespace basis::i18n {

/// The message texts of all catalogues, built into the platform from the
/// files of the project's catalog/ folder.
///
/// A text names its arguments by position, {0} for the first; a placeholder
/// without an argument stays as it is written.
class MessageCatalog {
 public:
  /// The text of `id` with its arguments filled in. A message that no
  /// catalogue knows gives a text that names the identifier and lists the
  /// arguments, so that nothing is lost.
  static ustring get_message(const BaseMsgID& id, const HostLocale& locale);

  /// The text of `key` with its placeholders unfilled, or the empty string.
  static std::string get_template(const std::string& catalogue, const std::string& key);
};

/// The narrow (UTF-8) form of a message text.
std::string to_string(const ustring& text);

}  // namespace basis::i18n
