#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// An element of a document.
class Element : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Element(xercesc::DOMElement* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
