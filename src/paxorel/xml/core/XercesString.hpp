#pragma once

#include <paxorel/xml/core/ustring.hpp>

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMException;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

/// Carries one string across the boundary to Xerces. XMLCh and ustring are
/// both 16-bit units, so nothing is transcoded.
class XercesString {
 public:
  /// A public string on its way into Xerces, for the length of one call; an
  /// empty string is an empty text, never null. `text` must outlive this.
  explicit XercesString(const ustring& text) noexcept : text_(text.c_str()) {}
  XercesString(ustring&&) = delete;
  XercesString(const XercesString&) = delete;
  XercesString& operator=(const XercesString&) = delete;

  /// The terminated text.
  operator const XMLCh*() const noexcept { return text_; }
  /// The same, where Xerces takes a generic pointer (DOMConfiguration::setParameter).
  const void* toXMLCh() const noexcept { return text_; }

  /// A string that Xerces returned: a copy, and the empty string for null.
  static ustring toUstring(const XMLCh* text) { return text ? ustring(text) : ustring(); }

 private:
  const XMLCh* text_;
};

/// The message text of a Xerces DOM exception, as errors carry it.
ustring exceptionMessage(const xercesc::DOMException& e);

}  // namespace paxorel::xml
