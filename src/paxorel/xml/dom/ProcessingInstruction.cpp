#include <paxorel/xml/dom/ProcessingInstruction.hpp>

#include <paxorel/xml/core/XercesString.hpp>

#include <xercesc/dom/DOMProcessingInstruction.hpp>

namespace paxorel::xml {

using xercesc::DOMProcessingInstruction;

ProcessingInstruction::ProcessingInstruction(DOMProcessingInstruction* impl, std::shared_ptr<Document> owner)
    : Node(impl, std::move(owner)) {}

const char* ProcessingInstruction::getFullyQualifiedVorloTypeName() const {
  return "zelmar.io.xml.dom.ProcessingInstruction";
}

ustring ProcessingInstruction::getTarget() const {
  return XercesString::toUstring(implAs<DOMProcessingInstruction>()->getTarget());
}

ustring ProcessingInstruction::getData() const {
  return XercesString::toUstring(implAs<DOMProcessingInstruction>()->getData());
}

void ProcessingInstruction::setData(const ustring& data) {
  implAs<DOMProcessingInstruction>()->setData(XercesString(data));
}

}  // namespace paxorel::xml
