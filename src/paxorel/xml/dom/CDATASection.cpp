#include <paxorel/xml/dom/CDATASection.hpp>

#include <xercesc/dom/DOMCDATASection.hpp>

namespace paxorel::xml {

CDATASection::CDATASection(xercesc::DOMCDATASection* impl, std::shared_ptr<Document> owner) : Text(impl, std::move(owner)) {}

const char* CDATASection::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.CDATASection"; }

}  // namespace paxorel::xml
