#include <vorlo/CallocRecord.hpp>

#include <basis/except/bad_alloc.hpp>

#include <cstdlib>

namespace vorlo {

void* CallocRecord::operator new(std::size_t size) {
  void* record = std::calloc(1, size);
  if (!record) throw basis::except::bad_alloc();
  return record;
}

void CallocRecord::operator delete(void* record) noexcept { std::free(record); }

}  // namespace vorlo
