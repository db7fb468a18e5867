#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

namespace paxorel::xml {

class Document;
class Node;

/// A live map of nodes by name (attributes, entities, notations), kept up to
/// date by the XML library. Its operations translate no failure: what Xerces
/// raises (a xercesc::DOMException) reaches the caller as it stands.
class NamedNodeMap : public XMLObject {
 public:
  /// A wrapper of `map` (not owned) that keeps `owner` alive.
  NamedNodeMap(xercesc::DOMNamedNodeMap* map, std::shared_ptr<Document> owner);
  ~NamedNodeMap() override;

  const char* getFullyQualifiedVorloTypeName() const override;

  double getLength() const;
  /// The node at the 0-based `index` (conversion U), or null past the end.
  Node* item(double index) const;
  Node* getNamedItem(const ustring& name) const;
  Node* getNamedItemNS(const ustring& namespaceURI, const ustring& localName) const;
  /// Adds `node`, replacing a node of the same name; returns `node` itself.
  /// Null is emptyNodeArgument.
  Node* setNamedItem(Node* node);
  Node* setNamedItemNS(Node* node);
  /// Removes and returns the node of that name; a name that is not there is
  /// Xerces's DOMException NOT_FOUND_ERR.
  Node* removeNamedItem(const ustring& name);
  Node* removeNamedItemNS(const ustring& namespaceURI, const ustring& localName);

  xercesc::DOMNamedNodeMap* getImpl() const noexcept { return map_; }

 private:
  xercesc::DOMNamedNodeMap* map() const;  // emptyNodeArgument when missing
  Node* wrap(xercesc::DOMNode* node) const;

  xercesc::DOMNamedNodeMap* map_;
  std::shared_ptr<Document> owner_;
};

}  // namespace paxorel::xml
