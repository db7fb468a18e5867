#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// An entity declared in a document type.
class Entity : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Entity(xercesc::DOMEntity* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
