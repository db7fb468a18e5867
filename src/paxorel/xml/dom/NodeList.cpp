#include <paxorel/xml/dom/NodeList.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Node.hpp>
#include <paxorel/xml/dom/WrappedText.hpp>

#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/dom/DOMNodeList.hpp>

namespace paxorel::xml {

NodeList::NodeList(xercesc::DOMNodeList* list, std::shared_ptr<Document> owner)
    : list_(list), owner_(std::move(owner)) {}

NodeList::~NodeList() = default;

const char* NodeList::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.NodeList"; }

std::shared_ptr<Document> NodeList::getOwnerDocWrapper() const { return owner_; }

xercesc::DOMNodeList* NodeList::list() const {
  if (!list_) raiseXmlError(*this, xml_error::emptyNodeArgument());
  return list_;
}

double NodeList::getLength() const { return toDouble(list()->getLength()); }

Node* NodeList::item(double index) const {
  xercesc::DOMNode* found = list()->item(conversionS(index));
  detail::WrappedText::noteSiblingsOf(found);
  return Node::downcast(found, getOwnerDocWrapper());
}

Node* NodeList::node(double index) const { return item(index - 1.0); }

ustring NodeList::getTextContent() const {
  ustring text;
  const XMLSize_t length = list()->getLength();
  for (XMLSize_t i = 0; i < length; ++i) text += XercesString::toUstring(list_->item(i)->getTextContent());
  return text;
}

}  // namespace paxorel::xml
