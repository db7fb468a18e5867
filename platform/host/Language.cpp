#include <host/Language.hpp>

namespace host {

namespace {
Language* attached = nullptr;
}

Language::~Language() {
  if (attached == this) attached = nullptr;
}

void attachLanguage(Language* language) noexcept { attached = language; }
Language* currentLanguage() noexcept { return attached; }

}  // namespace host
