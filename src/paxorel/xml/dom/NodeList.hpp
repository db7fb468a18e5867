#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

namespace paxorel::xml {

class Document;
class Node;

/// A live list of nodes, kept up to date by the XML library.
class NodeList : public XMLObject {
 public:
  /// A wrapper of `list` (not owned) that keeps `owner` alive.
  NodeList(xercesc::DOMNodeList* list, std::shared_ptr<Document> owner);
  ~NodeList() override;

  const char* getFullyQualifiedVorloTypeName() const override;
  virtual std::shared_ptr<Document> getOwnerDocWrapper() const;

  double getLength() const;
  /// The node at the 0-based `index` (conversion S), or null past the end.
  Node* item(double index) const;
  /// The node at the 1-based `index`, or null.
  Node* node(double index) const;
  /// The text content of all nodes, run together.
  ustring getTextContent() const;

  xercesc::DOMNodeList* getImpl() const noexcept { return list_; }

 private:
  xercesc::DOMNodeList* list() const;  // emptyNodeArgument when missing

  xercesc::DOMNodeList* list_;
  std::shared_ptr<Document> owner_;
};

}  // namespace paxorel::xml
