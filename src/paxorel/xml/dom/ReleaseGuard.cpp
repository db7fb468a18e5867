#include <paxorel/xml/dom/ReleaseGuard.hpp>

#include <paxorel/xml/dom/DocumentOrder.hpp>
#include <paxorel/xml/dom/WrappedText.hpp>

#include <xercesc/dom/DOM.hpp>

namespace paxorel::xml::detail {

using xercesc::DOMAttr;
using xercesc::DOMElement;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;

namespace {

DOMAttr* asAttr(DOMNode& node) {
  return node.getNodeType() == DOMNode::ATTRIBUTE_NODE ? static_cast<DOMAttr*>(&node) : nullptr;
}

// The name by which setAttributeNS looks for the attribute whose value it
// sets: an unprefixed name as it is; for a prefixed one, the name from its
// colon on, which finds no attribute of a namespace (the one the name means
// is replaced by a new attribute instead). Null for a name that Xerces
// refuses before it looks: empty, with a colon first or last, or with two.
const XMLCh* setAttributeNSLookup(const XMLCh* qualifiedName) {
  const XMLCh* colon = nullptr;
  const XMLCh* end = qualifiedName;
  for (; *end; ++end) {
    if (*end != u':') continue;
    if (colon) return nullptr;
    colon = end;
  }
  if (end == qualifiedName || colon == qualifiedName || (colon && colon + 1 == end)) return nullptr;
  return colon ? colon : qualifiedName;
}

}  // namespace

// Each child that a wrapper may stand for is swapped for a copy, which Xerces
// then releases: the value stays the same until Xerces sets it (the ID map
// finds an attribute by its value). Entity references are always swapped, as
// wrappers of their content are not marked. A read-only attribute refuses the
// swap as it refuses the change, with the same code.
void ReleaseGuard::keepValue(DOMAttr& attr) {
  for (DOMNode* child = attr.getFirstChild(); child;) {
    DOMNode* next = child->getNextSibling();
    if (child->getNodeType() != DOMNode::TEXT_NODE || WrappedText::isMarked(*child)) {
      attr.replaceChild(child->cloneNode(true), child);
    }
    child = next;
  }
}

void ReleaseGuard::setValue(DOMAttr& attr, const XMLCh* value) {
  keepValue(attr);
  attr.setValue(value);
}

void ReleaseGuard::setNodeValue(DOMNode& node, const XMLCh* value) {
  if (DOMAttr* attr = asAttr(node)) keepValue(*attr);
  node.setNodeValue(value);
}

void ReleaseGuard::setTextContent(DOMNode& node, const XMLCh* text) {
  if (DOMAttr* attr = asAttr(node)) keepValue(*attr);
  node.setTextContent(text);
}

void ReleaseGuard::setAttribute(DOMElement& element, const XMLCh* name, const XMLCh* value) {
  if (DOMAttr* existing = element.getAttributeNode(name)) keepValue(*existing);
  element.setAttribute(name, value);
}

void ReleaseGuard::setAttributeNS(DOMElement& element, const XMLCh* namespaceURI, const XMLCh* qualifiedName,
                                  const XMLCh* value) {
  if (const XMLCh* lookup = setAttributeNSLookup(qualifiedName)) {
    if (DOMAttr* existing = element.getAttributeNodeNS(namespaceURI, lookup)) keepValue(*existing);
  }
  element.setAttributeNS(namespaceURI, qualifiedName, value);
}

// A new attribute of the same name takes the removed one's place first, and
// Xerces removes and releases that one; the default that comes back is the
// one Xerces finds for that name. Xerces takes the attribute it removes out
// of the ID map, so the removed one leaves it here.
void ReleaseGuard::removeAttribute(DOMElement& element, const XMLCh* name) {
  if (DOMAttr* removed = element.getAttributeNode(name)) {
    if (removed->isId()) element.setIdAttribute(name, false);
    element.getAttributes()->setNamedItem(element.getOwnerDocument()->createAttribute(name));
  }
  element.removeAttribute(name);
}

// As removeAttribute, with the stand-in put in through a lookup that finds the
// removed attribute itself, so that removeAttributeNS finds the stand-in in
// its place; unlike removeAttribute, Xerces leaves the ID map alone here. No
// such lookup finds a DOM Level 1 attribute (one without a local name) whose
// name another attribute shares: that one is taken out by removeAttributeNS's
// own lookup, which brings its default back as Xerces does for any name but a
// prefixed one or xmlns in a document parsed with namespaces.
void ReleaseGuard::removeAttributeNS(DOMElement& element, const XMLCh* namespaceURI, const XMLCh* localName) {
  DOMAttr* removed = element.getAttributeNodeNS(namespaceURI, localName);
  if (removed) {
    DOMNamedNodeMap& attributes = *element.getAttributes();
    xercesc::DOMDocument& document = *element.getOwnerDocument();
    const XMLCh* name = removed->getNodeName();
    if (removed->getLocalName()) {
      attributes.setNamedItemNS(document.createAttributeNS(removed->getNamespaceURI(), name));
    } else if (attributes.getNamedItem(name) == removed) {
      attributes.setNamedItem(document.createAttribute(name));
    } else {
      attributes.removeNamedItemNS(namespaceURI, localName);
      return;
    }
  }
  element.removeAttributeNS(namespaceURI, localName);
}

// The namespace fix-up sets an element's default namespace declaration
// through setAttributeNS, which finds that declaration by its name; the
// prefixed ones it replaces by new attributes. Entity references are not
// entered: their content is read-only.
void ReleaseGuard::normalizeDocument(xercesc::DOMDocument& document) {
  for (const DOMNode* node = document.getFirstChild(); node;
       node = nextInDocument(node, &document, References::skipped)) {
    if (node->getNodeType() != DOMNode::ELEMENT_NODE) continue;
    const auto* element = static_cast<const DOMElement*>(node);
    if (DOMAttr* declaration = element->getAttributeNodeNS(xercesc::XMLUni::fgXMLNSURIName, u"xmlns")) {
      keepValue(*declaration);
    }
  }
  document.normalizeDocument();
}

}  // namespace paxorel::xml::detail
