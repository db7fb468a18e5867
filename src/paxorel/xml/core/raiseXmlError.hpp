#pragma once

#include <paxorel/xml/core/Exception.hpp>
#include <paxorel/xml/core/errors.hpp>

#include <basis/except/Exception.hpp>
#include <host/hostRaiseError.hpp>

namespace paxorel::xml {

namespace detail {
/// Throws paxorel::xml::Exception with the catalogue's text of `error`.
[[noreturn]] void throwNativeError(const basis::i18n::BaseMsgID& error);
}  // namespace detail

/// Raises `error` into the host, identifier and arguments kept. Without a
/// host, the exception basis::except::Exception<Error> is thrown.
template <class Error>
[[noreturn]] void hostErrMsgId(const Error& error) {
  hostRaise(error);
}

/// The one way in which the library reports a failure of an operation of
/// `self`: by the host way, or, when `self` is in native error mode, as a
/// paxorel::xml::Exception that holds the finished text only.
template <class Object, class Error>
[[noreturn]] void raiseXmlError(const Object& self, const Error& error) {
  if (self.getNativeErrorMode()) detail::throwNativeError(error);
  hostErrMsgId(error);
}

}  // namespace paxorel::xml
