#pragma once

#include <map>
#include <memory>

namespace paxorel::xml {

class Document;

/// The strong references that keep documents alive on behalf of their
/// callers: one entry per document, from its address to the shared pointer
/// of the registry family. A caller's shared pointer (or a host handle)
/// stands for the entry and erases it when it goes.
class DocumentRegistry {
 public:
  using Entries = std::map<const Document*, std::shared_ptr<Document>>;

  /// The process-wide registry. The entries that are left are dropped at
  /// process exit; the registry itself stays usable until the very end.
  static std::shared_ptr<DocumentRegistry> getInstance();

  /// Adds an entry for `document`; an existing entry stays as it is.
  void registerDocument(const std::shared_ptr<Document>& document);
  /// Erases the entry of `document`, if there is one.
  void unregisterDocument(const Document* document);
  /// The entry of `document`; std::out_of_range ("map::at") when it has none.
  std::shared_ptr<Document> at(const Document* document) const { return entries_.at(document); }
  /// All entries, in key order.
  const Entries& entries() const noexcept { return entries_; }

  /// `document`, shared with a caller: when the caller's last copy goes, the
  /// entry goes. A document has one such family at a time: asked again while
  /// a caller still holds it, this gives another copy of the same share, so
  /// that no caller's copy outlives the entry. Null gives null; a document
  /// without an entry is std::out_of_range ("map::at"). Should sharing fail,
  /// the entry is erased at once.
  static std::shared_ptr<Document> shareWithCaller(Document* document);

 private:
  DocumentRegistry() = default;
  void clear();

  Entries entries_;
  std::map<const Document*, std::weak_ptr<Document>> callerShares_;
};

}  // namespace paxorel::xml
