#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// The document type of a document.
class DocumentType : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  DocumentType(xercesc::DOMDocumentType* impl, std::shared_ptr<Document> owner);
  /// A document type of no document yet; appendChild gives it one. A name
  /// that Xerces refuses raises its DOMException untranslated. The node lives
  /// as long as any wrapper made from it until a document adopts it; from then
  /// on it is the document's.
  DocumentType(const ustring& name, const ustring& publicId, const ustring& systemId);

  /// Tells the wrappers of a document type made by that constructor that a
  /// document has taken `node` over; any other node is left alone. The child
  /// operations of Node call it.
  static void noteAdoption(const Node& node);
  /// Whether `node` is a document type that no document has taken yet.
  /// Xerces needs a document to copy a node or to give its text, so Node
  /// answers those two itself for such a node.
  static bool isOrphan(const xercesc::DOMNode& node);
  /// A copy of an orphan document type: a new one of the same name and ids,
  /// as the constructor above makes it.
  static DocumentType* copyOrphan(const xercesc::DOMNode& orphan);

  const char* getFullyQualifiedVorloTypeName() const override;

  ustring getName() const;
  ustring getPublicId() const;
  ustring getSystemId() const;
  ustring getInternalSubset() const;
  /// The declared general entities, a new map that the caller owns.
  NamedNodeMap* getEntities() const;
  /// The declared notations, a new map that the caller owns.
  NamedNodeMap* getNotations() const;

 private:
  explicit DocumentType(const std::shared_ptr<xercesc::DOMDocumentType>& orphan);
};

}  // namespace paxorel::xml
