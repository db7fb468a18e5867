#pragma once

#include <string>

namespace basis::i18n {

/// The process-wide locale in which messages are given.
class HostLocale {
 public:
  /// The locale of the whole process. The platform ships one language, English.
  static const HostLocale& global();

  const std::string& name() const noexcept { return name_; }

 private:
  explicit HostLocale(std::string name) : name_(std::move(name)) {}
  std::string name_;
};

}  // namespace basis::i18n
