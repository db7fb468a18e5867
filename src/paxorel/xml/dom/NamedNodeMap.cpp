#include <paxorel/xml/dom/NamedNodeMap.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Node.hpp>

#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMNode.hpp>

namespace paxorel::xml {

NamedNodeMap::NamedNodeMap(xercesc::DOMNamedNodeMap* map, std::shared_ptr<Document> owner)
    : map_(map), owner_(std::move(owner)) {}

NamedNodeMap::~NamedNodeMap() = default;

const char* NamedNodeMap::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.NamedNodeMap"; }

xercesc::DOMNamedNodeMap* NamedNodeMap::map() const {
  if (!map_) raiseXmlError(*this, xml_error::emptyNodeArgument());
  return map_;
}

Node* NamedNodeMap::wrap(xercesc::DOMNode* node) const { return Node::downcast(node, owner_); }

double NamedNodeMap::getLength() const { return toDouble(map()->getLength()); }

Node* NamedNodeMap::item(double index) const { return wrap(map()->item(conversionU(index))); }

Node* NamedNodeMap::getNamedItem(const ustring& name) const { return wrap(map()->getNamedItem(XercesString(name))); }

Node* NamedNodeMap::getNamedItemNS(const ustring& namespaceURI, const ustring& localName) const {
  return wrap(map()->getNamedItemNS(XercesString(namespaceURI), XercesString(localName)));
}

Node* NamedNodeMap::setNamedItem(Node* node) {
  map()->setNamedItem(Node::implOf(*this, node));
  return node;
}

Node* NamedNodeMap::setNamedItemNS(Node* node) {
  map()->setNamedItemNS(Node::implOf(*this, node));
  return node;
}

Node* NamedNodeMap::removeNamedItem(const ustring& name) { return wrap(map()->removeNamedItem(XercesString(name))); }

Node* NamedNodeMap::removeNamedItemNS(const ustring& namespaceURI, const ustring& localName) {
  return wrap(map()->removeNamedItemNS(XercesString(namespaceURI), XercesString(localName)));
}

}  // namespace paxorel::xml
