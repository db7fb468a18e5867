#pragma once

#include <paxorel/xml/dom/CharacterData.hpp>

namespace paxorel::xml {

/// Text in an element.
class Text : public CharacterData {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Text(xercesc::DOMText* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;

  /// Cuts this node at `offset` and returns a Text wrapper (the caller's) of
  /// the new node holding the rest, which follows this one in its parent if
  /// it has one. An offset past the end or a read-only node raises Xerces's
  /// DOMException untranslated.
  Text* splitText(double offset);
  /// Whether Xerces knows this text as whitespace in element content.
  bool getIsElementContentWhitespace() const;
};

}  // namespace paxorel::xml
