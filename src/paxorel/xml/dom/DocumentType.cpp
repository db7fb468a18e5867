#include <paxorel/xml/dom/DocumentType.hpp>

#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/dom/NamedNodeMap.hpp>

#include <xercesc/dom/DOMDocumentType.hpp>
#include <xercesc/dom/DOMImplementation.hpp>

namespace paxorel::xml {

using xercesc::DOMDocumentType;

namespace {

// A document type made outside any document is freed by Xerces only once a
// document has adopted it. Until then it belongs jointly to its wrapper and to
// every wrapper made from it, which all share one pointer with this deleter:
// the last of them releases the node, unless a document has taken it over.
// Adoption is noted here rather than asked of the node, which may be gone
// with its document by the time the last wrapper goes.
struct OrphanRelease {
  bool adopted = false;
  void operator()(DOMDocumentType* orphan) const {
    if (!adopted && !orphan->getOwnerDocument()) orphan->release();
  }
};

std::shared_ptr<DOMDocumentType> makeOrphan(const ustring& name, const ustring& publicId, const ustring& systemId) {
  DOMDocumentType* node =
      lsImplementation()->createDocumentType(XercesString(name), XercesString(publicId), XercesString(systemId));
  return std::shared_ptr<DOMDocumentType>(node, OrphanRelease{});
}

}  // namespace

DocumentType::DocumentType(DOMDocumentType* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

DocumentType::DocumentType(const ustring& name, const ustring& publicId, const ustring& systemId)
    : DocumentType(makeOrphan(name, publicId, systemId)) {}

// The owner pointer shares the orphan's ownership yet points to no Document,
// so it counts as empty: no owner document, and appendChild will fill it.
DocumentType::DocumentType(const std::shared_ptr<DOMDocumentType>& orphan)
    : Node(orphan.get(), std::shared_ptr<Document>(orphan, nullptr)) {}

void DocumentType::noteAdoption(const Node& node) {
  if (node.getImpl()->getNodeType() != xercesc::DOMNode::DOCUMENT_TYPE_NODE) return;
  if (auto* release = std::get_deleter<OrphanRelease>(node.getOwnerDocWrapper())) release->adopted = true;
}

bool DocumentType::isOrphan(const xercesc::DOMNode& node) {
  return node.getNodeType() == xercesc::DOMNode::DOCUMENT_TYPE_NODE && !node.getOwnerDocument();
}

DocumentType* DocumentType::copyOrphan(const xercesc::DOMNode& orphan) {
  const auto& type = static_cast<const DOMDocumentType&>(orphan);
  return new DocumentType(XercesString::toUstring(type.getName()), XercesString::toUstring(type.getPublicId()),
                          XercesString::toUstring(type.getSystemId()));
}

const char* DocumentType::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.DocumentType"; }

ustring DocumentType::getName() const { return XercesString::toUstring(implAs<DOMDocumentType>()->getName()); }

ustring DocumentType::getPublicId() const { return XercesString::toUstring(implAs<DOMDocumentType>()->getPublicId()); }

ustring DocumentType::getSystemId() const { return XercesString::toUstring(implAs<DOMDocumentType>()->getSystemId()); }

ustring DocumentType::getInternalSubset() const {
  return XercesString::toUstring(implAs<DOMDocumentType>()->getInternalSubset());
}

NamedNodeMap* DocumentType::getEntities() const {
  return new NamedNodeMap(implAs<DOMDocumentType>()->getEntities(), getOwnerDocWrapper());
}

NamedNodeMap* DocumentType::getNotations() const {
  return new NamedNodeMap(implAs<DOMDocumentType>()->getNotations(), getOwnerDocWrapper());
}

}  // namespace paxorel::xml
