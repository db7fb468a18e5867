#include <paxorel/xml/dom/Element.hpp>

#include <xercesc/dom/DOMElement.hpp>

namespace paxorel::xml {

Element::Element(xercesc::DOMElement* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Element::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Element"; }

}  // namespace paxorel::xml
