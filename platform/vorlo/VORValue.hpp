#pragma once

#include <basis/ustring.hpp>

#include <cstdint>
#include <cstring>

class HostArray;

namespace vorlo {

/// One slot of the argument or result vector of a call: a single 64-bit word
/// whose meaning the signature's type string at that position gives. A host
/// array handle for text, objects and "any"; the raw bits of a double; a raw
/// word for a logical (non-zero is true) or an unsigned integer; a pointer to
/// converted 16-bit text for "ustringToString scalar".
class VORValue {
 public:
  VORValue() = default;

  static VORValue ofArray(HostArray* array) noexcept { return fromPointer(array); }
  static VORValue ofDouble(double value) noexcept {
    VORValue slot;
    std::memcpy(&slot.bits_, &value, sizeof value);
    return slot;
  }
  static VORValue ofWord(std::uint64_t word) noexcept {
    VORValue slot;
    slot.bits_ = word;
    return slot;
  }
  static VORValue ofLogical(bool value) noexcept { return ofWord(value ? 1 : 0); }
  static VORValue ofText(const basis::ustring* text) noexcept { return fromPointer(text); }

  HostArray* array() const noexcept { return toPointer<HostArray>(); }
  double real() const noexcept {
    double value;
    std::memcpy(&value, &bits_, sizeof value);
    return value;
  }
  std::uint64_t word() const noexcept { return bits_; }
  bool logical() const noexcept { return bits_ != 0; }
  const basis::ustring* text() const noexcept { return toPointer<const basis::ustring>(); }

 private:
  // Pointers go in and out by their bits, as the word holds them.
  static VORValue fromPointer(const void* pointer) noexcept {
    VORValue slot;
    std::memcpy(&slot.bits_, &pointer, sizeof pointer);
    return slot;
  }
  template <class T>
  T* toPointer() const noexcept {
    T* pointer;
    std::memcpy(&pointer, &bits_, sizeof bits_);  // a pointer is as wide as the word
    return pointer;
  }

  std::uint64_t bits_ = 0;
};

static_assert(sizeof(VORValue) == 8 && sizeof(void*) == 8, "a slot is one 64-bit word, and holds a pointer");

}  // namespace vorlo
