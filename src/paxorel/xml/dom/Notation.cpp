#include <paxorel/xml/dom/Notation.hpp>

#include <paxorel/xml/core/XercesString.hpp>

#include <xercesc/dom/DOMNotation.hpp>

namespace paxorel::xml {

using xercesc::DOMNotation;

Notation::Notation(DOMNotation* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Notation::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Notation"; }

ustring Notation::getPublicId() const { return XercesString::toUstring(implAs<DOMNotation>()->getPublicId()); }
ustring Notation::getSystemId() const { return XercesString::toUstring(implAs<DOMNotation>()->getSystemId()); }

}  // namespace paxorel::xml
