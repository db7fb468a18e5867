#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// A processing instruction.
class ProcessingInstruction : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  ProcessingInstruction(xercesc::DOMProcessingInstruction* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
