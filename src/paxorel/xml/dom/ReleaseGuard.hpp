#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>

namespace paxorel::xml::detail {

/// The operations of Xerces 3.2.4 that release nodes inside themselves, done
/// so that no node a wrapper may stand for is among them.
///
/// Xerces puts a released node on its document's recycle list and hands the
/// same memory out for the next node of that kind: a wrapper of the released
/// node would then read, and change, that other node. Here such nodes are
/// kept out of the release and stay, as orphans of their document, exactly as
/// after removeChild; Xerces releases a fresh stand-in or copy instead. What
/// Xerces makes of each operation stays as it is: its refusals, the new value,
/// the ID map, the default attributes that come back after a removal.
class ReleaseGuard {
 public:
  /// DOMAttr::setValue, which releases the attribute's children.
  static void setValue(xercesc::DOMAttr& attr, const XMLCh* value);
  /// DOMNode::setNodeValue and setTextContent, which set an attribute's value.
  static void setNodeValue(xercesc::DOMNode& node, const XMLCh* value);
  static void setTextContent(xercesc::DOMNode& node, const XMLCh* text);
  /// DOMElement::setAttribute and setAttributeNS, which set the value of an
  /// attribute that they find.
  static void setAttribute(xercesc::DOMElement& element, const XMLCh* name, const XMLCh* value);
  static void setAttributeNS(xercesc::DOMElement& element, const XMLCh* namespaceURI, const XMLCh* qualifiedName,
                             const XMLCh* value);
  /// DOMElement::removeAttribute and removeAttributeNS, which release the
  /// attribute they remove, with everything in it.
  static void removeAttribute(xercesc::DOMElement& element, const XMLCh* name);
  static void removeAttributeNS(xercesc::DOMElement& element, const XMLCh* namespaceURI, const XMLCh* localName);
  /// DOMDocument::normalizeDocument, whose namespace fix-up sets the value of
  /// an element's default namespace declaration.
  static void normalizeDocument(xercesc::DOMDocument& document);

 private:
  static void keepValue(xercesc::DOMAttr& attr);
};

}  // namespace paxorel::xml::detail
