#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// The document type of a document.
class DocumentType : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  DocumentType(xercesc::DOMDocumentType* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
