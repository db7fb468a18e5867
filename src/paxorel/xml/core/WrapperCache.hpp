#pragma once

#include <cstddef>

namespace paxorel::xml::detail {

/// The memory of wrapper objects. Navigation makes a wrapper per step and
/// callers drop most of them at once, so a few freed blocks of each small
/// size are kept and handed out again before the heap is asked. At most
/// `kept` blocks per size are kept; they go back to the heap at exit. Like the
/// rest of the library it takes no lock: calls come one at a time. Under
/// AddressSanitizer a kept block stays poisoned, so a wrapper used after its
/// deletion is still reported; under valgrind nothing is kept.
class WrapperCache {
 public:
  static constexpr std::size_t grain = 16;  ///< block sizes are multiples of this
  static constexpr std::size_t sizes = 8;   ///< blocks up to 128 bytes are kept
  static constexpr std::size_t kept = 64;

  static void* allocate(std::size_t size);
  /// `size` is the one given to allocate for `block`.
  static void release(void* block, std::size_t size) noexcept;
};

}  // namespace paxorel::xml::detail
