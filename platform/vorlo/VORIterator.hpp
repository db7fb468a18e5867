#pragma once

#include <cstddef>
#include <vector>

namespace vorlo {

class VORMethodInfo;

/// Walks a list of method records, one element at a time.
class VORIterator {
 public:
  explicit VORIterator(std::vector<VORMethodInfo*> elements) : elements_(std::move(elements)) {}

  bool hasMoreElements() const noexcept { return next_ < elements_.size(); }
  /// The next element, or null past the end.
  void* nextElement() noexcept { return hasMoreElements() ? elements_[next_++] : nullptr; }

 private:
  std::vector<VORMethodInfo*> elements_;
  std::size_t next_ = 0;
};

/// The method record that an element of a VORIterator is.
inline VORMethodInfo* voriToMethod(void* element) noexcept { return static_cast<VORMethodInfo*>(element); }

}  // namespace vorlo
