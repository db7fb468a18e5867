#include <paxorel/xml/dom/Document.hpp>

#include <paxorel/xml/dom/DocumentRegistry.hpp>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

namespace paxorel::xml {

/// Deleter of the registry family: the one place where a Document is deleted.
/// It is armed only once the registration has succeeded, so that a failure
/// while registering never deletes an object whose constructor still runs.
struct Document::RegistryDeleter {
  bool armed = false;
  void operator()(Document* document) const {
    if (armed) delete document;
  }
};

Document::Document() : Node(nullptr, nullptr) {
  xercesc::DOMDocument* tree = lsImplementation()->createDocument(xercesc::XMLPlatformUtils::fgMemoryManager);
  setImpl(tree);
  registerSelf();
}

Document::Document(xercesc::DOMDocument* tree) : Node(tree, nullptr) { registerSelf(); }

Document::~Document() {
  if (xercesc::DOMNode* tree = Node::getImpl()) tree->release();
}

void Document::registerSelf() {
  std::shared_ptr<Document> self(this, RegistryDeleter{});
  DocumentRegistry::getInstance()->registerDocument(self);
  std::get_deleter<RegistryDeleter>(self)->armed = true;
}

const char* Document::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Document"; }

std::shared_ptr<Document> Document::getOwnerDocWrapper() const { return DocumentRegistry::getInstance()->at(this); }

xercesc::DOMDocument* Document::getImpl() const noexcept {
  return static_cast<xercesc::DOMDocument*>(Node::getImpl());
}

std::shared_ptr<Document> createDocument() { return DocumentRegistry::shareWithCaller(new Document()); }

}  // namespace paxorel::xml
