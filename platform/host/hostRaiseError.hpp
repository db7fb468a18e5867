#pragma once

#include <basis/except/Exception.hpp>
#include <basis/except/IUserException.hpp>

/// The host's entry that raises `error` as an error of the host language.
///
/// With a host language attached it does not return. Without one it returns
/// at once, and the caller throws the exception itself.
void hostRaiseError(const basis::except::IUserException& error);

/// Raises the message `message` into the host with its identifier and
/// arguments kept; without a host language attached, throws
/// basis::except::Exception<Msg>.
template <class Msg>
[[noreturn]] void hostRaise(const Msg& message) {
  basis::except::Exception<Msg> exception(message);
  exception.setErrorId(basis::except::IMsgIDException::get_error_id(message));
  hostRaiseError(exception);
  throw basis::except::Exception<Msg>(exception);
}
