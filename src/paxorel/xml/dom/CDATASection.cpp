#include <paxorel/xml/dom/CDATASection.hpp>

#include <paxorel/xml/core/Conversions.hpp>

#include <xercesc/dom/DOMCDATASection.hpp>

namespace paxorel::xml {

using xercesc::DOMCDATASection;

CDATASection::CDATASection(DOMCDATASection* impl, std::shared_ptr<Document> owner) : Text(impl, std::move(owner)) {}

const char* CDATASection::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.CDATASection"; }

CDATASection* CDATASection::splitText(double offset) {
  // Xerces splits a CDATA section into two CDATA sections.
  auto* rest = static_cast<DOMCDATASection*>(implAs<DOMCDATASection>()->splitText(conversionU(offset)));
  return new CDATASection(rest, getOwnerDocWrapper());
}

}  // namespace paxorel::xml
