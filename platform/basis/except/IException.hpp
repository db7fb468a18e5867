#pragma once

#include <memory>
#include <string>

namespace basis::except {

/// Where an exception was thrown from. Copies of one exception share it.
struct ThrowSite {
  std::string function;
  std::string file;
  int line = -1;
};

/// Root of the platform's exceptions.
class IException {
 public:
  /// A new heap copy of this exception; the caller owns it.
  virtual IException* clone() const = 0;
  /// Throws a copy of this exception.
  [[noreturn]] virtual void rethrow() const = 0;
  virtual ~IException();
  /// The message as UTF-8 text.
  virtual const char* what() const noexcept = 0;

  const ThrowSite& throwSite() const noexcept { return *site_; }

 protected:
  /// An exception with an empty throw-site record (line -1).
  IException();
  IException(const IException&) = default;
  IException& operator=(const IException&) = default;

 private:
  std::shared_ptr<const ThrowSite> site_;
};

}  // namespace basis::except
