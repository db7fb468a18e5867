#include <basis/except/IMsgIDException.hpp>

#include <basis/i18n/MessageCatalog.hpp>

namespace basis::except {

ustring IMsgIDException::GetUnicodeMessageTxt() const {
  return i18n::MessageCatalog::get_message(GetBaseMsgIDObj(), i18n::HostLocale::global());
}

ustring IMsgIDException::ToUstringImpl() const { return GetUnicodeMessageTxt(); }

std::string IMsgIDException::get_error_id(const i18n::BaseMsgID& id) { return id.catalogue + ":" + id.messageKey; }

}  // namespace basis::except
