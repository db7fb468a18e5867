#include <paxorel/xml/dom/Text.hpp>

#include <xercesc/dom/DOMText.hpp>

namespace paxorel::xml {

Text::Text(xercesc::DOMText* impl, std::shared_ptr<Document> owner) : CharacterData(impl, std::move(owner)) {}

const char* Text::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Text"; }

}  // namespace paxorel::xml
