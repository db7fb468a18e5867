#pragma once

#include <basis/ustring.hpp>

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace basis::i18n {

/// One message argument: an integer, a narrow (UTF-8) string or a 16-bit string.
using MsgArg = std::variant<std::int64_t, std::string, ustring>;

/// Names a message of a catalogue together with the arguments of its placeholders.
struct BaseMsgID {
  BaseMsgID(std::string catalogueName, std::string key, std::vector<MsgArg> arguments)
      : args(std::move(arguments)), catalogue(std::move(catalogueName)), messageKey(std::move(key)) {}

  std::vector<MsgArg> args;  ///< in the order of the catalogue's placeholders {0}, {1}, ...
  std::string catalogue;     ///< for example "paxorel:xml_error"
  std::string messageKey;    ///< the message's name within its catalogue
};

}  // namespace basis::i18n
