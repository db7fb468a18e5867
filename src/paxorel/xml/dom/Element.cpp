#include <paxorel/xml/dom/Element.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Attr.hpp>
#include <paxorel/xml/dom/DocumentOrder.hpp>
#include <paxorel/xml/dom/NodeList.hpp>
#include <paxorel/xml/dom/ReleaseGuard.hpp>
#include <paxorel/xml/dom/TypeInfo.hpp>

#include <xercesc/dom/DOM.hpp>

#include <cstdint>

namespace paxorel::xml {

using xercesc::DOMAttr;
using xercesc::DOMElement;
using xercesc::DOMException;
using xercesc::DOMNode;

namespace {

// The attribute of an Attr argument of an operation of `self`.
DOMAttr* attrOf(const Element& self, const Attr* attr) { return static_cast<DOMAttr*>(Node::implOf(self, attr)); }

// Whether `node` lies inside an entity or an entity reference, the places
// where the DOM makes elements read-only.
bool isReadOnly(const DOMNode* node) {
  for (; node; node = node->getParentNode()) {
    const DOMNode::NodeType type = node->getNodeType();
    if (type == DOMNode::ENTITY_REFERENCE_NODE || type == DOMNode::ENTITY_NODE) return true;
  }
  return false;
}

// The failures of setAttributeNode and setAttributeNodeNS, which map alike:
// the attribute's name is read first, then the tag. Returns for any other code.
void raiseSetAttrNodeError(const Element& self, const DOMException& e, const Attr& attr) {
  const ustring name = attr.getName();
  const ustring tag = self.getTagName();
  switch (e.code) {
    case DOMException::WRONG_DOCUMENT_ERR: raiseXmlError(self, xml_error::elemSetAttrNodeWrongDocError(name, tag));
    case DOMException::NO_MODIFICATION_ALLOWED_ERR: raiseXmlError(self, xml_error::elemSetAttrReadOnlyError(name, tag));
    case DOMException::INUSE_ATTRIBUTE_ERR: raiseXmlError(self, xml_error::elemSetAttrNodeInUseError(name, tag));
    default: break;
  }
}

}  // namespace

Element::Element(DOMElement* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Element::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Element"; }

Element* Element::makeElementWrapper(DOMElement* element) const {
  return element ? new Element(element, getOwnerDocWrapper()) : nullptr;
}

Attr* Element::makeAttrWrapper(DOMAttr* attr) const { return attr ? new Attr(attr, getOwnerDocWrapper()) : nullptr; }

// --- queries ---

ustring Element::getTagName() const { return XercesString::toUstring(implAs<DOMElement>()->getTagName()); }

ustring Element::getAttribute(const ustring& name) const {
  return XercesString::toUstring(implAs<DOMElement>()->getAttribute(XercesString(name)));
}

ustring Element::getAttributeNS(const ustring& namespaceURI, const ustring& localName) const {
  return XercesString::toUstring(
      implAs<DOMElement>()->getAttributeNS(XercesString(namespaceURI), XercesString(localName)));
}

Attr* Element::getAttributeNode(const ustring& name) const {
  return makeAttrWrapper(implAs<DOMElement>()->getAttributeNode(XercesString(name)));
}

Attr* Element::getAttributeNodeNS(const ustring& namespaceURI, const ustring& localName) const {
  return makeAttrWrapper(implAs<DOMElement>()->getAttributeNodeNS(XercesString(namespaceURI), XercesString(localName)));
}

bool Element::hasAttribute(const ustring& name) const { return implAs<DOMElement>()->hasAttribute(XercesString(name)); }

bool Element::hasAttributeNS(const ustring& namespaceURI, const ustring& localName) const {
  return implAs<DOMElement>()->hasAttributeNS(XercesString(namespaceURI), XercesString(localName));
}

NodeList* Element::getElementsByTagName(const ustring& name) const {
  xercesc::DOMNodeList* list = implAs<DOMElement>()->getElementsByTagName(XercesString(name));
  return list ? new NodeList(list, getOwnerDocWrapper()) : nullptr;
}

NodeList* Element::getElementsByTagNameNS(const ustring& namespaceURI, const ustring& localName) const {
  xercesc::DOMNodeList* list =
      implAs<DOMElement>()->getElementsByTagNameNS(XercesString(namespaceURI), XercesString(localName));
  return list ? new NodeList(list, getOwnerDocWrapper()) : nullptr;
}

TypeInfo* Element::getSchemaTypeInfo() const {
  const xercesc::DOMTypeInfo* info = implAs<DOMElement>()->getSchemaTypeInfo();
  return info ? new TypeInfo(info, getOwnerDocWrapper()) : nullptr;
}

Element* Element::getFirstElementChild() const {
  return makeElementWrapper(implAs<DOMElement>()->getFirstElementChild());
}

Element* Element::getLastElementChild() const {
  return makeElementWrapper(implAs<DOMElement>()->getLastElementChild());
}

Element* Element::getPreviousElementSibling() const {
  return makeElementWrapper(implAs<DOMElement>()->getPreviousElementSibling());
}

Element* Element::getNextElementSibling() const {
  return makeElementWrapper(implAs<DOMElement>()->getNextElementSibling());
}

double Element::getChildElementCount() const { return toDouble(implAs<DOMElement>()->getChildElementCount()); }

double Element::getNodeIndex() const {
  // Attribute nodes are counted but never entered, so their text children
  // stay out of the count.
  const DOMElement* self = implAs<DOMElement>();
  const DOMNode* document = self->getOwnerDocument();
  std::int32_t index = 0;
  for (const DOMNode* node = document->getFirstChild(); node;
       node = detail::nextInDocument(node, document, detail::References::entered)) {
    ++index;
    if (node == self) break;
    if (node->getNodeType() == DOMNode::ELEMENT_NODE) {
      index += static_cast<std::int32_t>(node->getAttributes()->getLength());
    }
  }
  return index;
}

// --- changes ---

void Element::setAttribute(const ustring& name, const ustring& value) {
  try {
    detail::ReleaseGuard::setAttribute(*implAs<DOMElement>(), XercesString(name), XercesString(value));
  } catch (const DOMException& e) {
    const ustring tag = getTagName();
    switch (e.code) {
      case DOMException::INVALID_CHARACTER_ERR: raiseXmlError(*this, xml_error::elemSetAttrInvalidCharError(name, tag));
      case DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::elemSetAttrReadOnlyError(name, tag));
      default: break;
    }
  }
}

void Element::setAttributeNS(const ustring& namespaceURI, const ustring& qualifiedName, const ustring& value) {
  try {
    detail::ReleaseGuard::setAttributeNS(*implAs<DOMElement>(), XercesString(namespaceURI), XercesString(qualifiedName),
                                         XercesString(value));
  } catch (const DOMException& e) {
    const ustring tag = getTagName();
    switch (e.code) {
      case DOMException::INVALID_CHARACTER_ERR:
        raiseXmlError(*this, xml_error::elemSetAttrInvalidCharError(qualifiedName, tag));
      case DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::elemSetAttrReadOnlyError(qualifiedName, tag));
      case DOMException::NAMESPACE_ERR:
        raiseXmlError(*this, xml_error::elemSetAttrNSNamespaceError(qualifiedName, namespaceURI, tag));
      default: break;
    }
  }
}

Attr* Element::setAttributeNode(Attr* attr) {
  DOMElement* element = implAs<DOMElement>();
  DOMAttr* node = attrOf(*this, attr);
  try {
    // Xerces, given an attribute that this element already carries, leaves it
    // in the element's map but marks it as without owner, after which another
    // element could take it too. Setting it again would change nothing, so
    // Xerces is asked only to refuse it on a read-only element.
    if (node->getOwnerElement() != element || isReadOnly(element)) element->setAttributeNode(node);
  } catch (const DOMException& e) {
    raiseSetAttrNodeError(*this, e, *attr);
    return nullptr;
  }
  return attr;
}

Attr* Element::setAttributeNodeNS(Attr* attr) {
  DOMElement* element = implAs<DOMElement>();
  DOMAttr* node = attrOf(*this, attr);
  try {
    element->setAttributeNodeNS(node);
  } catch (const DOMException& e) {
    raiseSetAttrNodeError(*this, e, *attr);
    return nullptr;
  }
  return attr;
}

Attr* Element::removeAttributeNode(Attr* attr) {
  DOMElement* element = implAs<DOMElement>();
  DOMAttr* node = attrOf(*this, attr);
  try {
    element->removeAttributeNode(node);
  } catch (const DOMException& e) {
    const ustring tag = getTagName();
    const ustring name = attr->getName();
    switch (e.code) {
      case DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::elemRemoveAttrNodeReadOnlyError(name, tag));
      case DOMException::NOT_FOUND_ERR: raiseXmlError(*this, xml_error::elemRemoveAttrNodeNotFoundError(name, tag));
      default: return nullptr;
    }
  }
  return attr;
}

void Element::removeAttribute(const ustring& name) {
  try {
    detail::ReleaseGuard::removeAttribute(*implAs<DOMElement>(), XercesString(name));
  } catch (const DOMException& e) {
    if (e.code == DOMException::NO_MODIFICATION_ALLOWED_ERR) {
      raiseXmlError(*this, xml_error::elemRemoveAttrError(name, getTagName()));
    }
  }
}

void Element::removeAttributeNS(const ustring& namespaceURI, const ustring& localName) {
  try {
    detail::ReleaseGuard::removeAttributeNS(*implAs<DOMElement>(), XercesString(namespaceURI), XercesString(localName));
  } catch (const DOMException& e) {
    if (e.code == DOMException::NO_MODIFICATION_ALLOWED_ERR) {
      raiseXmlError(*this, xml_error::elemRemoveAttrError(localName, getTagName()));
    }
  }
}

void Element::setIdAttribute(const ustring& name, bool isId) {
  try {
    implAs<DOMElement>()->setIdAttribute(XercesString(name), isId);
  } catch (const DOMException& e) {
    const ustring tag = getTagName();
    switch (e.code) {
      case DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::elemSetIdAttrReadOnlyError(name, tag));
      case DOMException::NOT_FOUND_ERR: raiseXmlError(*this, xml_error::elemSetIdAttrNotFoundError(name, tag));
      default: break;
    }
  }
}

void Element::setIdAttributeNS(const ustring& namespaceURI, const ustring& localName, bool isId) {
  try {
    implAs<DOMElement>()->setIdAttributeNS(XercesString(namespaceURI), XercesString(localName), isId);
  } catch (const DOMException& e) {
    const ustring tag = getTagName();
    switch (e.code) {
      case DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::elemSetIdAttrReadOnlyError(localName, tag));
      case DOMException::NOT_FOUND_ERR: raiseXmlError(*this, xml_error::elemSetIdAttrNotFoundError(localName, tag));
      default: break;
    }
  }
}

void Element::setIdAttributeNode(Attr* attr, bool isId) {
  DOMElement* element = implAs<DOMElement>();
  const DOMAttr* node = attrOf(*this, attr);
  try {
    element->setIdAttributeNode(node, isId);
  } catch (const DOMException& e) {
    const ustring tag = getTagName();
    const ustring name = attr->getName();
    switch (e.code) {
      case DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::elemSetIdAttrReadOnlyError(name, tag));
      case DOMException::NOT_FOUND_ERR: raiseXmlError(*this, xml_error::elemSetIdAttrNotFoundError(name, tag));
      default: break;
    }
  }
}

}  // namespace paxorel::xml
