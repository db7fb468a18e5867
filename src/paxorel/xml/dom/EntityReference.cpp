#include <paxorel/xml/dom/EntityReference.hpp>

#include <xercesc/dom/DOMEntityReference.hpp>

namespace paxorel::xml {

EntityReference::EntityReference(xercesc::DOMEntityReference* impl, std::shared_ptr<Document> owner)
    : Node(impl, std::move(owner)) {}

const char* EntityReference::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.EntityReference"; }

}  // namespace paxorel::xml
