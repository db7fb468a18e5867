#include <paxorel/xml/dom/DocumentType.hpp>

#include <xercesc/dom/DOMDocumentType.hpp>

namespace paxorel::xml {

DocumentType::DocumentType(xercesc::DOMDocumentType* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* DocumentType::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.DocumentType"; }

}  // namespace paxorel::xml
