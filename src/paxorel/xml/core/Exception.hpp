#pragma once

#include <stdexcept>

namespace paxorel::xml {

/// A failure of an object whose nativeErrorMode is on: it carries the
/// finished message text only, no identifier and no arguments.
class Exception : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace paxorel::xml
