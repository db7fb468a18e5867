#pragma once

#include <new>

namespace basis::except {

/// The platform's allocation failure: a std::bad_alloc of its own type.
class bad_alloc : public std::bad_alloc {
 public:
  const char* what() const noexcept override { return "basis::except::bad_alloc"; }
};

}  // namespace basis::except
