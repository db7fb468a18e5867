#pragma once

#include <basis/except/IException.hpp>
#include <basis/ustring.hpp>

#include <string>

namespace basis::except {

/// An exception whose message is meant for the user of the host.
class IUserException : public IException {
 public:
  /// The message as a 16-bit string.
  virtual void convert_str(ustring& out) const;
  /// The message as UTF-8 text.
  virtual void convert_str(std::string& out) const;
  /// The message as a 16-bit string.
  virtual ustring ToUstringImpl() const = 0;

  const char* what() const noexcept override;

 protected:
  IUserException() = default;
  IUserException(const IUserException&) = default;
  IUserException& operator=(const IUserException&) = default;

 private:
  mutable std::string what_;  // made on the first call of what()
};

}  // namespace basis::except
