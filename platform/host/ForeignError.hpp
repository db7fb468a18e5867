#pragma once

#include <exception>
#include <optional>
#include <string>

namespace host {

/// A native exception that reached a host's call boundary without being an
/// error of the host: what the host shows of it.
struct ForeignError {
  std::string identifier;     ///< names the exception's type, "library:Type"
  std::string message;        ///< its own text, UTF-8
  std::optional<long> code;  ///< a numeric code, for exceptions that carry one
};

/// Tells what `exception` is, or nothing when it is not of the kinds it knows.
using ExceptionTranslator = std::optional<ForeignError> (*)(const std::exception_ptr& exception);

/// Adds a translator; the latest added is asked first. A module adds one for
/// the exceptions of the libraries it uses.
void addExceptionTranslator(ExceptionTranslator translator);

/// What `exception` is: by the translators, newest first; else a
/// std::exception as "std:" and its type's name with its what(); else
/// "unknown:exception".
ForeignError describeException(const std::exception_ptr& exception);

}  // namespace host
