#pragma once

#include <cstddef>

namespace vorlo {

/// Base of the platform's records (classes, methods, properties, enumeration
/// members): their memory comes from calloc and goes back through free,
/// whoever allocates them, and a failed allocation throws
/// basis::except::bad_alloc.
class CallocRecord {
 public:
  static void* operator new(std::size_t size);
  static void operator delete(void* record) noexcept;

 protected:
  CallocRecord() = default;
  ~CallocRecord() = default;
};

}  // namespace vorlo
