#pragma once

#include <paxorel/xml/dom/CharacterData.hpp>

namespace paxorel::xml {

/// Text in an element.
class Text : public CharacterData {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Text(xercesc::DOMText* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
