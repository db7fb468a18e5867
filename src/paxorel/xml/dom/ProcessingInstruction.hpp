#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// A processing instruction: a target and its data.
class ProcessingInstruction : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  ProcessingInstruction(xercesc::DOMProcessingInstruction* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;

  ustring getTarget() const;
  ustring getData() const;
  /// A read-only node raises Xerces's DOMException untranslated.
  void setData(const ustring& data);
};

}  // namespace paxorel::xml
