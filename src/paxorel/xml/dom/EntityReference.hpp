#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// A reference to an entity.
class EntityReference : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  EntityReference(xercesc::DOMEntityReference* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
