#pragma once

#include <basis/except/IUserException.hpp>
#include <basis/i18n/BaseMsgID.hpp>

#include <string>

namespace basis::except {

/// An exception that carries a message identifier with its arguments; its
/// text comes from the message catalogue.
class IMsgIDException : public IUserException {
 public:
  /// The full identifier: the catalogue, a colon and the message key.
  virtual std::string GetID() const = 0;
  /// The catalogue's text for the identifier, with the arguments filled in.
  virtual ustring GetUnicodeMessageTxt() const;
  /// The identifier and its arguments.
  virtual const i18n::BaseMsgID& GetBaseMsgIDObj() const = 0;

  ustring ToUstringImpl() const override;

  /// "catalogue:key" of `id`, as the host shows it.
  static std::string get_error_id(const i18n::BaseMsgID& id);

 protected:
  IMsgIDException() = default;
  IMsgIDException(const IMsgIDException&) = default;
  IMsgIDException& operator=(const IMsgIDException&) = default;
};

}  // namespace basis::except
