#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// A block of nodes without a parent.
class DocumentFragment : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  DocumentFragment(xercesc::DOMDocumentFragment* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
