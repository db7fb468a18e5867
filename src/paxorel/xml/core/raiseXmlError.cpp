#include <paxorel/xml/core/raiseXmlError.hpp>

#include <basis/i18n/MessageCatalog.hpp>

namespace paxorel::xml::detail {

void throwNativeError(const basis::i18n::BaseMsgID& error) {
  const auto& locale = basis::i18n::HostLocale::global();
  throw Exception(basis::i18n::to_string(basis::i18n::MessageCatalog::get_message(error, locale)));
}

}  // namespace paxorel::xml::detail
