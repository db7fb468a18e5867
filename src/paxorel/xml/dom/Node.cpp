#include <paxorel/xml/dom/Node.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Attr.hpp>
#include <paxorel/xml/dom/CDATASection.hpp>
#include <paxorel/xml/dom/Comment.hpp>
#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/dom/DocumentFragment.hpp>
#include <paxorel/xml/dom/DocumentRegistry.hpp>
#include <paxorel/xml/dom/DocumentType.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/Entity.hpp>
#include <paxorel/xml/dom/EntityReference.hpp>
#include <paxorel/xml/dom/NamedNodeMap.hpp>
#include <paxorel/xml/dom/NodeList.hpp>
#include <paxorel/xml/dom/Notation.hpp>
#include <paxorel/xml/dom/ProcessingInstruction.hpp>
#include <paxorel/xml/dom/ReleaseGuard.hpp>
#include <paxorel/xml/dom/Text.hpp>
#include <paxorel/xml/dom/WrappedText.hpp>

#include <xercesc/dom/DOM.hpp>

#include <map>

namespace paxorel::xml {

using xercesc::DOMNode;

Node::Node(DOMNode* impl, std::shared_ptr<Document> owner) : impl_(impl), owner_(std::move(owner)) {}

Node::~Node() { impl_ = nullptr; }

const char* Node::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Node"; }

DOMNode* Node::impl() const {
  if (!impl_) raiseXmlError(*this, xml_error::emptyNodeArgument());
  return impl_;
}

DOMNode* Node::implOf(const XMLObject& caller, const Node* argument) {
  if (!argument || !argument->impl_) raiseXmlError(caller, xml_error::emptyNodeArgument());
  return argument->impl_;
}

// --- ownership ---

std::shared_ptr<Document> Node::getOwnerDocWrapper() const { return owner_; }

void Node::setOwnerDocWrapper(Document* document) {
  if (!document) raiseXmlError(*this, xml_error::emptyNodeArgument());
  owner_ = document->getOwnerDocWrapper();
}

Document* Node::getOwnerDocument() const {
  const std::shared_ptr<Document> owner = getOwnerDocWrapper();
  if (!owner) return nullptr;
  DocumentRegistry::getInstance()->registerDocument(owner);  // keeps an existing entry
  return owner.get();
}

Node* Node::makeNodeWrapper(DOMNode* node) const { return node ? new Node(node, getOwnerDocWrapper()) : nullptr; }

// The owner comes by value, so that the usual temporary from
// getOwnerDocWrapper() moves into the new wrapper without another count.
Node* Node::downcast(DOMNode* node, std::shared_ptr<Document> owner) {
  if (!node) return nullptr;
  switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE: return new Element(static_cast<xercesc::DOMElement*>(node), std::move(owner));
    case DOMNode::ATTRIBUTE_NODE: return new Attr(static_cast<xercesc::DOMAttr*>(node), std::move(owner));
    case DOMNode::TEXT_NODE: return new Text(static_cast<xercesc::DOMText*>(node), std::move(owner));
    case DOMNode::CDATA_SECTION_NODE:
      return new CDATASection(static_cast<xercesc::DOMCDATASection*>(node), std::move(owner));
    case DOMNode::ENTITY_REFERENCE_NODE:
      return new EntityReference(static_cast<xercesc::DOMEntityReference*>(node), std::move(owner));
    case DOMNode::ENTITY_NODE: return new Entity(static_cast<xercesc::DOMEntity*>(node), std::move(owner));
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
      return new ProcessingInstruction(static_cast<xercesc::DOMProcessingInstruction*>(node), std::move(owner));
    case DOMNode::COMMENT_NODE: return new Comment(static_cast<xercesc::DOMComment*>(node), std::move(owner));
    case DOMNode::DOCUMENT_NODE: return owner.get();  // the existing wrapper, not the caller's
    case DOMNode::DOCUMENT_TYPE_NODE:
      return new DocumentType(static_cast<xercesc::DOMDocumentType*>(node), std::move(owner));
    case DOMNode::DOCUMENT_FRAGMENT_NODE:
      return new DocumentFragment(static_cast<xercesc::DOMDocumentFragment*>(node), std::move(owner));
    case DOMNode::NOTATION_NODE: return new Notation(static_cast<xercesc::DOMNotation*>(node), std::move(owner));
    default: return new Node(node, std::move(owner));
  }
}

// --- queries ---

ustring Node::getNodeName() const { return XercesString::toUstring(impl()->getNodeName()); }
ustring Node::getNodeValue() const { return XercesString::toUstring(impl()->getNodeValue()); }
ustring Node::getLocalName() const { return XercesString::toUstring(impl()->getLocalName()); }
ustring Node::getNamespaceURI() const { return XercesString::toUstring(impl()->getNamespaceURI()); }
ustring Node::getPrefix() const { return XercesString::toUstring(impl()->getPrefix()); }
ustring Node::getBaseURI() const { return XercesString::toUstring(impl()->getBaseURI()); }
ustring Node::getTextContent() const {
  const DOMNode* node = impl();
  if (DocumentType::isOrphan(*node)) return {};  // a document type has no text, in a document or not
  return XercesString::toUstring(node->getTextContent());
}

double Node::getNodeType() const { return impl()->getNodeType(); }
bool Node::hasChildNodes() const { return impl()->hasChildNodes(); }
bool Node::hasAttributes() const { return impl()->hasAttributes(); }

double Node::getLength() {
  if (!childList_) childList_ = impl()->getChildNodes();
  return toDouble(childList_->getLength());
}

ustring Node::getNodeTypeName() const {
  switch (static_cast<int>(getNodeType())) {
    case 1: return u"ELEMENT_NODE";
    case 2: return u"ATTRIBUTE_NODE";
    case 3: return u"TEXT_NODE";
    case 4: return u"CDATA_SECTION_NODE";
    case 5: return u"ENTITY_REFERENCE_NODE";
    case 6: return u"ENTITY_NODE";
    case 8: return u"COMMENT_NODE";
    case 9: return u"DOCUMENT_NODE";
    case 10: return u"DOCUMENT_TYPE_NODE";
    case 11: return u"DOCUMENT_FRAGMENT_NODE";
    case 12: return u"NOTATION";  // sic: the one name without "_NODE"
    default: return u"UNKNOWN";   // processing instructions included
  }
}

ustring Node::getPositionTypeName(double position) const {
  switch (truncateS(position)) {
    case 1: return u"DOCUMENT_POSITION_DISCONNECTED";
    case 2: return u"DOCUMENT_POSITION_PRECEDING";
    case 4: return u"DOCUMENT_POSITION_FOLLOWING";
    case 8: return u"DOCUMENT_POSITION_CONTAINS";
    case 16: return u"DOCUMENT_POSITION_CONTAINED_BY";
    default: return u"UNKNOWN";
  }
}

ustring Node::lookupPrefix(const ustring& namespaceURI) const {
  return XercesString::toUstring(impl()->lookupPrefix(XercesString(namespaceURI)));
}

ustring Node::lookupNamespaceURI(const ustring& prefix) const {
  return XercesString::toUstring(impl()->lookupNamespaceURI(XercesString(prefix)));
}

bool Node::isDefaultNamespace(const ustring& namespaceURI) const {
  return impl()->isDefaultNamespace(XercesString(namespaceURI));
}

// --- comparisons ---

bool Node::isSameNode(const Node* other) const {
  const DOMNode* node = implOf(*this, other);
  return impl()->isSameNode(node);
}

bool Node::isEqualNode(const Node* other) const {
  const DOMNode* node = implOf(*this, other);
  return impl()->isEqualNode(node);
}

double Node::compareDocumentPosition(const Node* other) const {
  const DOMNode* node = implOf(*this, other);
  return static_cast<std::int16_t>(impl()->compareDocumentPosition(node));
}

ustring Node::comparePositionInDocument(const Node* other) const {
  static const std::map<double, ustring> names = {
      {DOCUMENT_POSITION_DISCONNECTED, u"Disconnected"}, {DOCUMENT_POSITION_PRECEDING, u"Preceding"},
      {DOCUMENT_POSITION_FOLLOWING, u"Following"},       {DOCUMENT_POSITION_CONTAINS, u"Contains"},
      {DOCUMENT_POSITION_CONTAINED_BY, u"ContainedBy"},
  };
  static const ustring unknown = u"Unknown";  // also for sums of bits, and 0 for the node itself
  const auto name = names.find(compareDocumentPosition(other));
  return name == names.end() ? unknown : name->second;
}

// --- navigation ---

Node* Node::getFirstChild() const { return wrapChild(impl()->getFirstChild()); }
Node* Node::getLastChild() const { return wrapChild(impl()->getLastChild()); }
Node* Node::getNextSibling() const { return downcast(impl()->getNextSibling(), getOwnerDocWrapper()); }
Node* Node::getPreviousSibling() const { return downcast(impl()->getPreviousSibling(), getOwnerDocWrapper()); }

Node* Node::wrapChild(DOMNode* child) const {
  detail::WrappedText::noteChildrenOf(*impl_);
  return downcast(child, getOwnerDocWrapper());
}

Node* Node::getParentNode() const {
  if (impl()->getNodeType() == DOMNode::DOCUMENT_NODE) return nullptr;
  return downcast(impl()->getParentNode(), getOwnerDocWrapper());
}

Node* Node::item(double index) {
  if (!childList_) childList_ = impl()->getChildNodes();
  return wrapChild(childList_->item(conversionS(index)));
}

Node* Node::child(double index) { return item(index - 1.0); }

// The children in the order of the child list, taken by sibling links: the
// list's own item(i) and getLength walk the siblings from the first each time.
std::vector<Node*> Node::getChildren() const {
  std::vector<std::unique_ptr<Node>> made;  // freed again should a later step fail
  detail::WrappedText::noteChildrenOf(*impl());
  for (DOMNode* child = impl()->getFirstChild(); child; child = child->getNextSibling()) {
    made.emplace_back(downcast(child, getOwnerDocWrapper()));
  }
  std::vector<Node*> result;
  result.reserve(made.size());
  for (auto& wrapper : made) result.push_back(wrapper.release());
  return result;
}

NodeList* Node::getChildNodes() const {
  xercesc::DOMNodeList* list = impl()->getChildNodes();
  return list ? new NodeList(list, getOwnerDocWrapper()) : nullptr;
}

NamedNodeMap* Node::getAttributes() const {
  xercesc::DOMNamedNodeMap* map = impl()->getAttributes();
  return map ? new NamedNodeMap(map, getOwnerDocWrapper()) : nullptr;
}

// --- changes ---

namespace {

// Xerces does not refuse making a node its own child, and the tree it then
// builds is a cycle; refuse it the way Xerces refuses the other cycles.
void refuseSelfChild(const DOMNode* parent, const DOMNode* child) {
  if (parent == child) throw xercesc::DOMException(xercesc::DOMException::HIERARCHY_REQUEST_ERR);
}

}  // namespace

Node* Node::appendChild(Node* newChild) {
  DOMNode* parent = impl();
  DOMNode* child = implOf(*this, newChild);
  try {
    refuseSelfChild(parent, child);
    parent->appendChild(child);
    detail::WrappedText::noteChildrenOf(*parent);
    DocumentType::noteAdoption(*newChild);
    if (!newChild->getOwnerDocWrapper()) newChild->setOwnerDocWrapper(getOwnerDocument());
  } catch (const xercesc::DOMException& e) {
    const ustring name = newChild->getNodeName();
    switch (e.code) {
      case xercesc::DOMException::HIERARCHY_REQUEST_ERR:
        raiseXmlError(*this,
                      xml_error::nodeAppendChildHierarchyError(name, newChild->getNodeTypeName(), getNodeTypeName()));
      case xercesc::DOMException::WRONG_DOCUMENT_ERR:
        raiseXmlError(*this, xml_error::nodeAppendChildWrongDocumentError(name));
      case xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::nodeAppendChildReadOnlyError(name));
      default: raiseXmlError(*this, xml_error::nodeAppendChildError(name, exceptionMessage(e)));
    }
  } catch (...) {
    raiseXmlError(*this, xml_error::nodeAppendChildUnknownError(newChild->getNodeName()));
  }
  return newChild;
}

Node* Node::insertBefore(Node* newChild, Node* refChild) {
  DOMNode* parent = impl();
  DOMNode* child = implOf(*this, newChild);
  DOMNode* reference = implOf(*this, refChild);
  if (child == parent) raiseXmlError(*this, xml_error::nodeInsertBeforeSelfError(newChild->getNodeName()));
  try {
    parent->insertBefore(child, reference);
    detail::WrappedText::noteChildrenOf(*parent);
    DocumentType::noteAdoption(*newChild);
  } catch (const xercesc::DOMException& e) {
    const ustring name = newChild->getNodeName();
    switch (e.code) {
      case xercesc::DOMException::HIERARCHY_REQUEST_ERR:
        raiseXmlError(*this,
                      xml_error::nodeInsertBeforeHierarchyError(name, getNodeTypeName(), newChild->getNodeTypeName()));
      case xercesc::DOMException::WRONG_DOCUMENT_ERR:
        raiseXmlError(*this, xml_error::nodeInsertBeforeWrongDocumentError(name));
      case xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::nodeInsertBeforeReadOnlyError(name));
      case xercesc::DOMException::NOT_FOUND_ERR:
        raiseXmlError(*this, xml_error::nodeInsertBeforeNotFoundError(name, refChild->getNodeName()));
      default: raiseXmlError(*this, xml_error::nodeInsertBeforeError(name, exceptionMessage(e)));
    }
  }
  return newChild;
}

Node* Node::replaceChild(Node* newChild, Node* oldChild) {
  DOMNode* parent = impl();
  DOMNode* child = implOf(*this, newChild);
  DOMNode* old = implOf(*this, oldChild);
  try {
    refuseSelfChild(parent, child);
    parent->replaceChild(child, old);
    detail::WrappedText::noteChildrenOf(*parent);
    DocumentType::noteAdoption(*newChild);
  } catch (const xercesc::DOMException& e) {
    const ustring name = newChild->getNodeName();
    switch (e.code) {
      case xercesc::DOMException::HIERARCHY_REQUEST_ERR:
        raiseXmlError(*this,
                      xml_error::nodeReplaceChildHierarchyError(name, getNodeTypeName(), newChild->getNodeTypeName()));
      case xercesc::DOMException::WRONG_DOCUMENT_ERR:
        raiseXmlError(*this, xml_error::nodeReplaceChildWrongDocumentError(name));
      case xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::nodeReplaceChildReadOnlyError(name));
      case xercesc::DOMException::NOT_FOUND_ERR:
        raiseXmlError(*this, xml_error::nodeReplaceChildNotFoundError(name, oldChild->getNodeName()));
      default: raiseXmlError(*this, xml_error::nodeReplaceChildError(name, exceptionMessage(e)));
    }
  }
  return newChild;
}

Node* Node::removeChild(Node* oldChild) {
  DOMNode* parent = impl();
  DOMNode* child = implOf(*this, oldChild);
  try {
    parent->removeChild(child);
  } catch (const xercesc::DOMException& e) {
    const ustring name = oldChild->getNodeName();
    switch (e.code) {
      case xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::nodeRemoveChildReadOnlyError(name));
      case xercesc::DOMException::NOT_FOUND_ERR:  // the child's name twice, not the parent's
        raiseXmlError(*this, xml_error::nodeRemoveChildNotFoundError(name, name));
      default: raiseXmlError(*this, xml_error::nodeRemoveChildError(name, exceptionMessage(e)));
    }
  }
  return oldChild;
}

Node* Node::cloneNode(bool deep) const {
  if (DocumentType::isOrphan(*impl())) return DocumentType::copyOrphan(*impl());
  DOMNode* copy = impl()->cloneNode(deep);
  if (copy && copy->getNodeType() == DOMNode::DOCUMENT_NODE) {
    // A document's copy is answered by the document itself; the copy that
    // Xerces made is reachable by nobody, so it goes at once.
    copy->release();
    return getOwnerDocWrapper().get();
  }
  return downcast(copy, getOwnerDocWrapper());
}

void Node::normalize() { impl()->normalize(); }

void Node::setPrefix(const ustring& prefix) {
  try {
    impl()->setPrefix(XercesString(prefix));
  } catch (const xercesc::DOMException& e) {
    switch (e.code) {
      case xercesc::DOMException::INVALID_CHARACTER_ERR:
        raiseXmlError(*this, xml_error::nodeSetPrefixInvalidCharError(prefix));
      case xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR:
        raiseXmlError(*this, xml_error::nodeSetPrefixNoModError(prefix));
      case xercesc::DOMException::NAMESPACE_ERR: raiseXmlError(*this, xml_error::nodeSetPrefixNamespaceError(prefix));
      default: break;  // any other refusal is swallowed
    }
  }
}

void Node::setTextContent(const ustring& text) {
  try {
    detail::ReleaseGuard::setTextContent(*impl(), XercesString(text));
  } catch (const xercesc::DOMException&) {
    raiseXmlError(*this, xml_error::nodeSetTextContentNoModError(text));
  }
}

void Node::setNodeValue(const ustring& value) { detail::ReleaseGuard::setNodeValue(*impl(), XercesString(value)); }

}  // namespace paxorel::xml
