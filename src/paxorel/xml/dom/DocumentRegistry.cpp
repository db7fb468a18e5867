#include <paxorel/xml/dom/DocumentRegistry.hpp>

#include <paxorel/xml/dom/Document.hpp>

namespace paxorel::xml {

namespace {

// Deleter of the caller family: it erases the registry entry and deletes
// nothing itself.
struct Unregister {
  void operator()(const Document* document) const noexcept {
    DocumentRegistry::getInstance()->unregisterDocument(document);
  }
};

}  // namespace

std::shared_ptr<DocumentRegistry> DocumentRegistry::getInstance() {
  // The registry is never destroyed, so that callers' pointers that die late
  // in process exit still find it; the sweeper drops the entries at exit.
  static const auto* const instance = new std::shared_ptr<DocumentRegistry>(new DocumentRegistry);
  static const struct Sweeper {
    ~Sweeper() { (*instance)->clear(); }
  } sweeper;
  return *instance;
}

void DocumentRegistry::registerDocument(const std::shared_ptr<Document>& document) {
  entries_.emplace(document.get(), document);
}

void DocumentRegistry::unregisterDocument(const Document* document) {
  callerShares_.erase(document);
  const auto entry = entries_.find(document);
  if (entry == entries_.end()) return;
  // The document may die with its entry: let it die outside the map's erase.
  const std::shared_ptr<Document> last = std::move(entry->second);
  entries_.erase(entry);
}

void DocumentRegistry::clear() {
  callerShares_.clear();
  const Entries doomed = std::move(entries_);
  entries_.clear();
}

std::shared_ptr<Document> DocumentRegistry::shareWithCaller(Document* document) {
  if (!document) return nullptr;
  const std::shared_ptr<DocumentRegistry> registry = getInstance();
  registry->at(document);
  const auto existing = registry->callerShares_.find(document);
  if (existing != registry->callerShares_.end()) {
    if (std::shared_ptr<Document> share = existing->second.lock()) return share;
  }
  std::shared_ptr<Document> share(document, Unregister{});
  registry->callerShares_[document] = share;  // on failure the share goes, and the entry with it
  return share;
}

}  // namespace paxorel::xml
