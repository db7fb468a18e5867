#include <basis/except/IUserException.hpp>

#include <basis/text/utf.hpp>

namespace basis::except {

void IUserException::convert_str(ustring& out) const { out = ToUstringImpl(); }

void IUserException::convert_str(std::string& out) const { out = text::to_utf8(ToUstringImpl()); }

const char* IUserException::what() const noexcept {
  if (what_.empty()) {
    try {
      convert_str(what_);
    } catch (...) {
      return "message text unavailable";
    }
  }
  return what_.c_str();
}

}  // namespace basis::except
