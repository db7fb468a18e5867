#pragma once

#include <basis/ustring.hpp>

#include <cstddef>
#include <utility>

/// One element of a host string array: text, or the missing string, which is
/// not the empty text.
class HostString {
 public:
  HostString() = default;  // missing

  bool isMissing() const noexcept { return missing_; }
  /// The text; empty for the missing string.
  const basis::ustring& text() const noexcept { return text_; }
  void setText(basis::ustring text) {
    text_ = std::move(text);
    missing_ = false;
  }
  /// Sets `length` units of `text`, reusing the room the element has.
  void setText(const char16_t* text, std::size_t length) {
    text_.assign(text, length);
    missing_ = false;
  }
  void setMissing() noexcept {
    text_.clear();
    missing_ = true;
  }

 private:
  basis::ustring text_;
  bool missing_ = true;
};
