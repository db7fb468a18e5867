#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// Base of the nodes that hold character data: text, CDATA sections, comments.
class CharacterData : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  CharacterData(xercesc::DOMCharacterData* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
