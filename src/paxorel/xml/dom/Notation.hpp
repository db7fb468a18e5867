#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// A notation declared in a document type. Absent values are empty strings.
class Notation : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Notation(xercesc::DOMNotation* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;

  ustring getPublicId() const;
  ustring getSystemId() const;
};

}  // namespace paxorel::xml
