#include <host/hostRaiseError.hpp>

#include <host/Language.hpp>

void hostRaiseError(const basis::except::IUserException& error) {
  if (host::Language* language = host::currentLanguage()) language->raiseError(error);
}
