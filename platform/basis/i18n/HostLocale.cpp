#include <basis/i18n/HostLocale.hpp>

namespace basis::i18n {

const HostLocale& HostLocale::global() {
  static const HostLocale locale("en");
  return locale;
}

}  // namespace basis::i18n
