#pragma once

#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/dom/Node.hpp>

#include <memory>

namespace paxorel::xml {

/// A document: the one owner of its DOM tree.
///
/// A Document lives on the heap and is owned by the library: it is created
/// by createDocument, parseString, parseFile, or with new, and it dies when
/// no caller's pointer, registry entry or wrapper of its tree holds it any
/// more. Nobody deletes it directly (its destructor is private).
class Document final : public Node {
 public:
  /// An empty document: no root element, no document type.
  Document();
  /// Takes over `tree`, made by somebody else, without any check; null gives
  /// a document without a tree.
  explicit Document(xercesc::DOMDocument* tree);

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The registry's shared pointer to this document; std::out_of_range
  /// ("map::at") when the document is not registered.
  std::shared_ptr<Document> getOwnerDocWrapper() const override;
  /// The wrapped tree, or null.
  xercesc::DOMDocument* getImpl() const noexcept;

 private:
  ~Document() override;  // run only by the registry family's deleter
  void registerSelf();

  struct RegistryDeleter;
  XercesGuard guard_;
};

/// A new empty document, shared with the caller: when the caller's last copy
/// goes, the document's registry entry goes.
std::shared_ptr<Document> createDocument();

}  // namespace paxorel::xml
