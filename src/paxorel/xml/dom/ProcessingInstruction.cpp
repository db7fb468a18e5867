#include <paxorel/xml/dom/ProcessingInstruction.hpp>

#include <xercesc/dom/DOMProcessingInstruction.hpp>

namespace paxorel::xml {

ProcessingInstruction::ProcessingInstruction(xercesc::DOMProcessingInstruction* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* ProcessingInstruction::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.ProcessingInstruction"; }

}  // namespace paxorel::xml
