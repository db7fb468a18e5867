#pragma once

#include <basis/except/IUserException.hpp>

/// The host's entry that raises `error` as an error of the host language.
///
/// With a host attached it does not return. In a build without a host it
/// returns at once, and the caller throws the exception itself.
void hostRaiseError(const basis::except::IUserException& error);
