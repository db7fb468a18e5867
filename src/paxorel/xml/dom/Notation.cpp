#include <paxorel/xml/dom/Notation.hpp>

#include <xercesc/dom/DOMNotation.hpp>

namespace paxorel::xml {

Notation::Notation(xercesc::DOMNotation* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Notation::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Notation"; }

}  // namespace paxorel::xml
