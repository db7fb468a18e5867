#include <paxorel/xml/dom/DocumentFragment.hpp>

#include <xercesc/dom/DOMDocumentFragment.hpp>

namespace paxorel::xml {

DocumentFragment::DocumentFragment(xercesc::DOMDocumentFragment* impl, std::shared_ptr<Document> owner)
    : Node(impl, std::move(owner)) {}

const char* DocumentFragment::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.DocumentFragment"; }

}  // namespace paxorel::xml
