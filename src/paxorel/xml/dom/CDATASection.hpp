#pragma once

#include <paxorel/xml/dom/Text.hpp>

namespace paxorel::xml {

/// A CDATA section.
class CDATASection : public Text {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  CDATASection(xercesc::DOMCDATASection* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;

  /// As Text::splitText, but the rest is a CDATA section and its wrapper says
  /// so. Not virtual: through a Text pointer, Text::splitText runs.
  CDATASection* splitText(double offset);
};

}  // namespace paxorel::xml
