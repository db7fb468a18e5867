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

  HostArray* array() const noexcept { return reinterpret_cast<HostArray*>(static_cast<std::uintptr_t>(bits_)); }
  double real() const noexcept {
    double value;
    std::memcpy(&value, &bits_, sizeof value);
    return value;
  }
  std::uint64_t word() const noexcept { return bits_; }
  bool logical() const noexcept { return bits_ != 0; }
  const basis::ustring* text() const noexcept {
    return reinterpret_cast<const basis::ustring*>(static_cast<std::uintptr_t>(bits_));
  }

 private:
  static VORValue fromPointer(const void* pointer) noexcept {
    return ofWord(reinterpret_cast<std::uintptr_t>(pointer));
  }

  std::uint64_t bits_ = 0;
};

static_assert(sizeof(VORValue) == 8, "a slot is one 64-bit word");

}  // namespace vorlo
