#pragma once

#include <paxorel/xml/dom/CharacterData.hpp>

namespace paxorel::xml {

/// A comment.
class Comment : public CharacterData {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Comment(xercesc::DOMComment* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
