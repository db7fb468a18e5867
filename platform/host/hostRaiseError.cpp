#include <host/hostRaiseError.hpp>

// No host language runs in this process: native callers receive the
// exception that the caller throws after this returns.
void hostRaiseError(const basis::except::IUserException& /*error*/) {}
