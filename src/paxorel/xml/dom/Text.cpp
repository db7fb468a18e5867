#include <paxorel/xml/dom/Text.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/dom/WrappedText.hpp>

#include <xercesc/dom/DOMText.hpp>

namespace paxorel::xml {

using xercesc::DOMText;

Text::Text(DOMText* impl, std::shared_ptr<Document> owner) : CharacterData(impl, std::move(owner)) {}

const char* Text::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Text"; }

Text* Text::splitText(double offset) {
  DOMText* rest = implAs<DOMText>()->splitText(conversionU(offset));
  detail::WrappedText::noteSiblingsOf(rest);
  return new Text(rest, getOwnerDocWrapper());
}

bool Text::getIsElementContentWhitespace() const { return implAs<DOMText>()->getIsElementContentWhitespace(); }

}  // namespace paxorel::xml
