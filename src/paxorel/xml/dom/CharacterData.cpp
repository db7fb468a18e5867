#include <paxorel/xml/dom/CharacterData.hpp>

#include <xercesc/dom/DOMCharacterData.hpp>

namespace paxorel::xml {

CharacterData::CharacterData(xercesc::DOMCharacterData* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* CharacterData::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.CharacterData"; }

}  // namespace paxorel::xml
