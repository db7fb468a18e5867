#include <paxorel/xml/dom/Attr.hpp>

#include <xercesc/dom/DOMAttr.hpp>

namespace paxorel::xml {

Attr::Attr(xercesc::DOMAttr* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Attr::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Attr"; }

}  // namespace paxorel::xml
