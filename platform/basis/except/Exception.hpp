#pragma once

#include <basis/except/IMsgIDException.hpp>

#include <exception>
#include <string>

namespace basis::except {

/// The exception of one message type `Msg` (a `BaseMsgID` with a fixed key).
/// It is also a `std::exception`, whose `what()` gives the catalogue text.
template <class Msg>
class Exception : public IMsgIDException, public std::exception {
 public:
  /// An exception for `message`; its identifier is set apart with setErrorId.
  explicit Exception(const Msg& message) : message_(message) {}

  Exception* clone() const override { return new Exception(*this); }
  [[noreturn]] void rethrow() const override { throw Exception(*this); }
  const char* what() const noexcept override { return IUserException::what(); }
  std::string GetID() const override { return errorId_; }
  const i18n::BaseMsgID& GetBaseMsgIDObj() const override { return message_; }

  /// The message value itself, of its own type.
  const Msg& message() const noexcept { return message_; }
  void setErrorId(std::string id) { errorId_ = std::move(id); }

 private:
  Msg message_;
  std::string errorId_;
};

}  // namespace basis::except
