#include <paxorel/xml/dom/Document.hpp>

#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Attr.hpp>
#include <paxorel/xml/dom/CDATASection.hpp>
#include <paxorel/xml/dom/Comment.hpp>
#include <paxorel/xml/dom/DocumentConfiguration.hpp>
#include <paxorel/xml/dom/DocumentFragment.hpp>
#include <paxorel/xml/dom/DocumentRegistry.hpp>
#include <paxorel/xml/dom/DocumentType.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/Entity.hpp>
#include <paxorel/xml/dom/EntityReference.hpp>
#include <paxorel/xml/dom/NodeList.hpp>
#include <paxorel/xml/dom/Notation.hpp>
#include <paxorel/xml/dom/ProcessingInstruction.hpp>
#include <paxorel/xml/dom/ReleaseGuard.hpp>
#include <paxorel/xml/dom/Text.hpp>
#include <paxorel/xml/serialize/DOMWriter.hpp>
#include <paxorel/xml/xpath/XPathNSResolver.hpp>
#include <paxorel/xml/xpath/XPathResult.hpp>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/DOMXPathException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <memory>
#include <vector>

namespace paxorel::xml {

using xercesc::DOMException;
using xercesc::XMLPlatformUtils;

/// Deleter of the registry family: the one place where a Document is deleted.
/// It is armed only once the registration has succeeded, so that a failure
/// while registering never deletes an object whose constructor still runs.
struct Document::RegistryDeleter {
  bool armed = false;
  void operator()(Document* document) const {
    if (armed) delete document;
  }
};

struct Document::DoctypeNames {
  const ustring& name;
  const ustring& publicId;
  const ustring& systemId;
};

// --- construction ---

Document::Document() : Node(nullptr, nullptr) {
  setImpl(lsImplementation()->createDocument(XMLPlatformUtils::fgMemoryManager));
  registerSelf();
}

Document::Document(xercesc::DOMDocument* tree) : Node(tree, nullptr) { registerSelf(); }

Document::Document(const ustring& qualifiedName) : Node(nullptr, nullptr) { build(nullptr, qualifiedName, nullptr); }

Document::Document(const ustring& namespaceURI, const ustring& qualifiedName) : Node(nullptr, nullptr) {
  build(&namespaceURI, qualifiedName, nullptr);
}

Document::Document(const ustring& qualifiedName, const ustring& doctypeName, const ustring& publicId,
                   const ustring& systemId)
    : Node(nullptr, nullptr) {
  const DoctypeNames doctype{doctypeName, publicId, systemId};
  build(nullptr, qualifiedName, &doctype);
}

Document::Document(const ustring& namespaceURI, const ustring& qualifiedName, const ustring& doctypeName,
                   const ustring& publicId, const ustring& systemId)
    : Node(nullptr, nullptr) {
  const DoctypeNames doctype{doctypeName, publicId, systemId};
  build(&namespaceURI, qualifiedName, &doctype);
}

// Makes the tree: a document type first if there is one, then the document
// with its root element. `namespaceURI` null is no namespace at all.
void Document::build(const ustring* namespaceURI, const ustring& qualifiedName, const DoctypeNames* doctype) {
  xercesc::DOMImplementation* implementation = lsImplementation();
  xercesc::DOMDocumentType* type = nullptr;
  if (doctype) {
    try {
      type = implementation->createDocumentType(XercesString(doctype->name), XercesString(doctype->publicId),
                                                XercesString(doctype->systemId));
    } catch (...) {
      raiseDocTypeError(doctype->name);
    }
  }
  const auto create = [&](xercesc::DOMDocumentType* withType) {
    const XercesString name(qualifiedName);
    if (!namespaceURI)
      return implementation->createDocument(nullptr, name, withType, XMLPlatformUtils::fgMemoryManager);
    return implementation->createDocument(XercesString(*namespaceURI), name, withType,
                                          XMLPlatformUtils::fgMemoryManager);
  };
  try {
    if (type) {
      // Xerces leaves a document type half adopted, beyond release, when the
      // document around it fails; so the root element is tried on its own
      // first, and a refused one lets the new document type go cleanly.
      try {
        create(nullptr)->release();
      } catch (...) {
        type->release();
        throw;
      }
    }
    setImpl(create(type));
  } catch (const DOMException& e) {
    switch (e.code) {
      case DOMException::INVALID_CHARACTER_ERR:
        if (namespaceURI) raiseXmlError(*this, xml_error::docInvalidNSCharError(*namespaceURI, qualifiedName));
        raiseXmlError(*this, xml_error::docInvalidCharError(qualifiedName));
      case DOMException::NAMESPACE_ERR:
        if (namespaceURI) raiseXmlError(*this, xml_error::docElemNameNSError(qualifiedName, *namespaceURI));
        raiseXmlError(*this, xml_error::docElemNameError(qualifiedName));
      case DOMException::WRONG_DOCUMENT_ERR:
        if (doctype) raiseXmlError(*this, xml_error::docDoctypeError(doctype->name));
        raiseXmlError(*this, xml_error::docCreationError(exceptionMessage(e)));
      default: raiseXmlError(*this, xml_error::docCreationError(exceptionMessage(e)));
    }
  } catch (...) {
    raiseXmlError(*this, xml_error::docCreationUnknownError());
  }
  registerSelf();
}

// The failure of making a document type, from within the handler that caught it.
void Document::raiseDocTypeError(const ustring& name) const {
  try {
    throw;
  } catch (const DOMException& e) {
    switch (e.code) {
      case DOMException::INVALID_CHARACTER_ERR: raiseXmlError(*this, xml_error::docTypeInvalidCharError(name));
      case DOMException::NAMESPACE_ERR: raiseXmlError(*this, xml_error::docTypeNameError(name));
      default: raiseXmlError(*this, xml_error::docTypeCreationError(exceptionMessage(e)));
    }
  } catch (...) {
    raiseXmlError(*this, xml_error::docTypeCreationUnknownError());
  }
}

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

xercesc::DOMDocument* Document::getImpl() const noexcept { return static_cast<xercesc::DOMDocument*>(Node::getImpl()); }

xercesc::DOMDocument* Document::tree() const { return implAs<xercesc::DOMDocument>(); }

// --- properties ---

ustring Document::getInputEncoding() const { return XercesString::toUstring(tree()->getInputEncoding()); }
ustring Document::getXmlEncoding() const { return XercesString::toUstring(tree()->getXmlEncoding()); }
ustring Document::getXmlVersion() const { return XercesString::toUstring(tree()->getXmlVersion()); }
ustring Document::getDocumentURI() const { return XercesString::toUstring(tree()->getDocumentURI()); }
bool Document::getXmlStandalone() const { return tree()->getXmlStandalone(); }
void Document::setXmlStandalone(bool standalone) { tree()->setXmlStandalone(standalone); }
void Document::setXmlVersion(const ustring& version) { tree()->setXmlVersion(XercesString(version)); }
void Document::setDocumentURI(const ustring& documentURI) { tree()->setDocumentURI(XercesString(documentURI)); }

Element* Document::getDocumentElement() const {
  xercesc::DOMElement* root = tree()->getDocumentElement();
  return root ? new Element(root, getOwnerDocWrapper()) : nullptr;
}

DocumentType* Document::getDoctype() const {
  xercesc::DOMDocumentType* doctype = tree()->getDoctype();
  return doctype ? new DocumentType(doctype, getOwnerDocWrapper()) : nullptr;
}

DocumentConfiguration* Document::getDOMConfig() const {
  return new DocumentConfiguration(tree()->getDOMConfig(), getOwnerDocWrapper());
}

// --- factories ---

// A new node from `create`, in a new `Wrapper`. A name with a character
// Xerces refuses is `InvalidChar` with `name`; any other refusal gives null.
template <class Wrapper, class InvalidChar, class Create>
Wrapper* Document::made(const ustring& name, Create create) {
  try {
    return new Wrapper(create(*tree()), getOwnerDocWrapper());
  } catch (const DOMException& e) {
    if (e.code == DOMException::INVALID_CHARACTER_ERR) raiseXmlError(*this, InvalidChar(name));
    return nullptr;
  }
}

// The same for the namespace forms, where a name that does not fit its
// namespace is `NamespaceMismatch` with the namespace and the name.
template <class Wrapper, class InvalidChar, class NamespaceMismatch, class Create>
Wrapper* Document::madeNS(const ustring& namespaceURI, const ustring& qualifiedName, Create create) {
  try {
    return new Wrapper(create(*tree()), getOwnerDocWrapper());
  } catch (const DOMException& e) {
    if (e.code == DOMException::INVALID_CHARACTER_ERR) raiseXmlError(*this, InvalidChar(qualifiedName));
    if (e.code == DOMException::NAMESPACE_ERR) raiseXmlError(*this, NamespaceMismatch(namespaceURI, qualifiedName));
    return nullptr;
  }
}

Element* Document::createElement(const ustring& tagName) {
  return made<Element, xml_error::docCreateElemInvalidCharError>(
      tagName, [&](xercesc::DOMDocument& document) { return document.createElement(XercesString(tagName)); });
}

Element* Document::createElementNS(const ustring& namespaceURI, const ustring& qualifiedName) {
  return madeNS<Element, xml_error::docCreateElemInvalidCharError, xml_error::docCreateElemNSNamespaceError>(
      namespaceURI, qualifiedName, [&](xercesc::DOMDocument& document) {
        return document.createElementNS(XercesString(namespaceURI), XercesString(qualifiedName));
      });
}

Attr* Document::createAttribute(const ustring& name) {
  return made<Attr, xml_error::docCreateAttrInvalidCharError>(
      name, [&](xercesc::DOMDocument& document) { return document.createAttribute(XercesString(name)); });
}

Attr* Document::createAttributeNS(const ustring& namespaceURI, const ustring& qualifiedName) {
  return madeNS<Attr, xml_error::docCreateAttrInvalidCharError, xml_error::docCreateAttrNSNamespaceError>(
      namespaceURI, qualifiedName, [&](xercesc::DOMDocument& document) {
        return document.createAttributeNS(XercesString(namespaceURI), XercesString(qualifiedName));
      });
}

Text* Document::createTextNode(const ustring& data) {
  return new Text(tree()->createTextNode(XercesString(data)), getOwnerDocWrapper());
}

Comment* Document::createComment(const ustring& data) {
  return new Comment(tree()->createComment(XercesString(data)), getOwnerDocWrapper());
}

CDATASection* Document::createCDATASection(const ustring& data) {
  return new CDATASection(tree()->createCDATASection(XercesString(data)), getOwnerDocWrapper());
}

ProcessingInstruction* Document::createProcessingInstruction(const ustring& target, const ustring& data) {
  return made<ProcessingInstruction, xml_error::docCreateProcessingInstructionInvalidCharError>(
      target, [&](xercesc::DOMDocument& document) {
        return document.createProcessingInstruction(XercesString(target), XercesString(data));
      });
}

DocumentFragment* Document::createDocumentFragment() {
  return new DocumentFragment(tree()->createDocumentFragment(), getOwnerDocWrapper());
}

Entity* Document::createEntity(const ustring& name) {
  return made<Entity, xml_error::docCreateEntityInvalidCharError>(
      name, [&](xercesc::DOMDocument& document) { return document.createEntity(XercesString(name)); });
}

EntityReference* Document::createEntityReference(const ustring& name) {
  return made<EntityReference, xml_error::docCreateEntityRefInvalidCharError>(
      name, [&](xercesc::DOMDocument& document) { return document.createEntityReference(XercesString(name)); });
}

Notation* Document::createNotation(const ustring& name) {
  return made<Notation, xml_error::docCreateNotationInvalidCharError>(
      name, [&](xercesc::DOMDocument& document) { return document.createNotation(XercesString(name)); });
}

DocumentType* Document::createDocumentType(const ustring& qualifiedName) {
  try {
    return new DocumentType(tree()->createDocumentType(XercesString(qualifiedName)), getOwnerDocWrapper());
  } catch (...) {
    raiseDocTypeError(qualifiedName);
  }
}

DocumentType* Document::createDocumentType(const ustring& qualifiedName, const ustring& publicId,
                                           const ustring& systemId) {
  try {
    return new DocumentType(
        tree()->createDocumentType(XercesString(qualifiedName), XercesString(publicId), XercesString(systemId)),
        getOwnerDocWrapper());
  } catch (...) {
    raiseDocTypeError(qualifiedName);
  }
}

// --- finders ---

Element* Document::getElementById(const ustring& elementId) const {
  xercesc::DOMElement* element = tree()->getElementById(XercesString(elementId));
  return element ? new Element(element, getOwnerDocWrapper()) : nullptr;
}

NodeList* Document::getElementsByTagName(const ustring& tagName) const {
  xercesc::DOMNodeList* list = tree()->getElementsByTagName(XercesString(tagName));
  return list ? new NodeList(list, getOwnerDocWrapper()) : nullptr;
}

NodeList* Document::getElementsByTagNameNS(const ustring& namespaceURI, const ustring& localName) const {
  return new NodeList(tree()->getElementsByTagNameNS(XercesString(namespaceURI), XercesString(localName)),
                      getOwnerDocWrapper());
}

// --- XPath ---

namespace {

// What the three evaluate overloads share: the call of Xerces, the result's
// wrapper, and the translation of Xerces's refusals.
XPathResult* evaluated(const Document& self, xercesc::DOMDocument& tree, const ustring& expression,
                       const xercesc::DOMNode& context, const xercesc::DOMXPathNSResolver* resolver, double type) {
  const xercesc::DOMXPathResult::ResultType resultType = detail::resultType(type);
  try {
    detail::refuseForeignNode(context, &tree);
    std::unique_ptr<xercesc::DOMXPathResult, detail::Release> result(
        tree.evaluate(XercesString(expression), &context, resolver, resultType, nullptr));
    std::shared_ptr<Document> owner = self.getOwnerDocWrapper();
    return new XPathResult(result.release(), std::move(owner));
  } catch (const xercesc::DOMXPathException& e) {
    if (e.code == xercesc::DOMXPathException::INVALID_EXPRESSION_ERR) {
      raiseXmlError(self, xml_error::xpathInvalidPathError(expression));
    }
    return nullptr;
  } catch (const DOMException& e) {
    switch (e.code) {
      case DOMException::NOT_SUPPORTED_ERR: raiseXmlError(self, xml_error::xpathUnsupportedError(expression));
      case DOMException::NAMESPACE_ERR: raiseXmlError(self, xml_error::xpathNamespaceError(expression));
      case DOMException::WRONG_DOCUMENT_ERR: raiseXmlError(self, xml_error::xpathWrongDocumentError(expression));
      default: return nullptr;
    }
  }
}

}  // namespace

XPathResult* Document::evaluate(const ustring& expression, double type) {
  const std::unique_ptr<Element> root(getDocumentElement());
  if (!root) return nullptr;
  return evaluated(*this, *tree(), expression, *root->getImpl(), nullptr, type);
}

XPathResult* Document::evaluate(const ustring& expression, const Node* context, double type) {
  const xercesc::DOMNode* node = implOf(*this, context);
  return evaluated(*this, *tree(), expression, *node, nullptr, type);
}

XPathResult* Document::evaluate(const ustring& expression, const Node* context, const XPathNSResolver* resolver,
                                double type) {
  const xercesc::DOMNode* node = implOf(*this, context);
  if (!resolver || !resolver->getImpl()) raiseXmlError(*this, xml_error::emptyObjectArgument("XPathNSResolver"));
  return evaluated(*this, *tree(), expression, *node, resolver->getImpl(), type);
}

XPathNSResolver* Document::createNSResolver(const Node* node) {
  const xercesc::DOMNode* scope = implOf(*this, node);
  xercesc::DOMDocument* document = tree();
  detail::refuseForeignNode(*scope, document);
  std::unique_ptr<xercesc::DOMXPathNSResolver, detail::Release> resolver(document->createNSResolver(scope));
  std::shared_ptr<Document> owner = getOwnerDocWrapper();
  return new XPathNSResolver(resolver.release(), std::move(owner));
}

// --- changing the document ---

Node* Document::importNode(Node* node) { return importNodeBase(node, true); }

Node* Document::importNodeBase(Node* node, bool deep) {
  const xercesc::DOMNode* source = implOf(*this, node);
  try {
    return downcast(tree()->importNode(source, deep), getOwnerDocWrapper());
  } catch (const DOMException& e) {
    const ustring name = node->getNodeName();
    if (e.code == DOMException::NOT_SUPPORTED_ERR) {
      raiseXmlError(*this, xml_error::importNodeUnsupportedError(name, node->getNodeTypeName()));
    }
    raiseXmlError(*this, xml_error::importNodeError(name, exceptionMessage(e)));
  } catch (...) {
    raiseXmlError(*this, xml_error::importNodeUnknownError(node->getNodeName()));
  }
}

Node* Document::renameNode(Node* node, const ustring& namespaceURI, const ustring& qualifiedName) {
  xercesc::DOMNode* source = implOf(*this, node);
  try {
    xercesc::DOMNode* renamed = tree()->renameNode(source, XercesString(namespaceURI), XercesString(qualifiedName));
    if (renamed != source) node->setImpl(renamed);
  } catch (const DOMException& e) {
    const ustring name = node->getNodeName();
    switch (e.code) {
      case DOMException::NOT_SUPPORTED_ERR:
        raiseXmlError(*this, xml_error::renameNodeUnsupportedError(name, node->getNodeTypeName()));
      case DOMException::WRONG_DOCUMENT_ERR: raiseXmlError(*this, xml_error::renameNodeWrongDocumentError(name));
      case DOMException::NAMESPACE_ERR: {
        // One code for several mistakes: name the one that was likely meant.
        static const ustring xmlNamespace = u"http://www.w3.org/XML/1998/namespace";
        static const ustring xmlnsNamespace = u"http://www.w3.org/2000/xmlns/";
        if (qualifiedName.find(u':') != ustring::npos && namespaceURI.empty()) {
          raiseXmlError(*this, xml_error::renameNodeMissingNamespaceError(name, qualifiedName));
        }
        if (qualifiedName.find(u"xml:") != ustring::npos && namespaceURI != xmlNamespace) {
          raiseXmlError(*this, xml_error::renameNodeNotXMLNamespaceError(name, qualifiedName));
        }
        if (node->getNodeType() == ATTRIBUTE_NODE && qualifiedName.find(u"xmlns") != ustring::npos &&
            namespaceURI != xmlnsNamespace) {
          raiseXmlError(*this, xml_error::renameNodeInvalidAttrNamespaceError(name, qualifiedName));
        }
        raiseXmlError(*this, xml_error::renameNodeError(name, exceptionMessage(e)));
      }
      default: raiseXmlError(*this, xml_error::renameNodeError(name, exceptionMessage(e)));
    }
  } catch (...) {
    raiseXmlError(*this, xml_error::renameNodeUnknownError(node->getNodeName()));
  }
  return node;
}

namespace {

// Keeps the first error that Xerces reports while normalising, and stops it.
class ErrorCollector : public xercesc::DOMErrorHandler {
 public:
  bool handleError(const xercesc::DOMError& error) override {
    failed = true;
    if (const XMLCh* text = error.getMessage()) message = text;
    if (const XMLCh* kind = error.getType()) type = kind;
    return false;
  }

  bool failed = false;
  ustring message;
  ustring type;
};

// The collector is the document's error handler only while it lives.
class CollectorScope {
 public:
  CollectorScope(xercesc::DOMConfiguration* configuration, const ErrorCollector& collector)
      : configuration_(configuration) {
    const xercesc::DOMErrorHandler* handler = &collector;
    configuration_->setParameter(xercesc::XMLUni::fgDOMErrorHandler, static_cast<const void*>(handler));
  }
  ~CollectorScope() {
    configuration_->setParameter(xercesc::XMLUni::fgDOMErrorHandler, static_cast<const void*>(nullptr));
  }
  CollectorScope(const CollectorScope&) = delete;
  CollectorScope& operator=(const CollectorScope&) = delete;

 private:
  xercesc::DOMConfiguration* configuration_;
};

}  // namespace

void Document::normalizeDocument() {
  xercesc::DOMDocument* document = tree();
  ErrorCollector collector;
  try {
    const CollectorScope scope(document->getDOMConfig(), collector);
    detail::ReleaseGuard::normalizeDocument(*document);
  } catch (...) {
    if (collector.failed) raiseXmlError(*this, xml_error::normalizeDocumentError(collector.message));
    raiseXmlError(*this, xml_error::normalizeDocumentUnknownError());
  }
}

void Document::xmlwrite(const ustring& path) const {
  DOMWriter writer;
  writer.setNativeErrorMode(getNativeErrorMode());  // its failures are this document's
  // The wrapper is never deleted, and with it a share of this document: a
  // document that has been written stays in memory until the process ends,
  // which callers rely on. The list itself is never destroyed, so that the
  // wrappers stay reachable: kept on purpose, not leaked.
  static auto* const kept = new std::vector<std::unique_ptr<const Node>>();
  kept->push_back(std::make_unique<const Node>(getImpl(), getOwnerDocWrapper()));
  writer.writeToURI(kept->back().get(), path);
}

// --- free functions ---

std::shared_ptr<Document> createDocument() { return DocumentRegistry::shareWithCaller(new Document()); }

std::shared_ptr<Document> createDocument(const ustring& qualifiedName) {
  return DocumentRegistry::shareWithCaller(new Document(qualifiedName));
}

std::shared_ptr<Document> createDocument(const ustring& namespaceURI, const ustring& qualifiedName) {
  return DocumentRegistry::shareWithCaller(new Document(namespaceURI, qualifiedName));
}

}  // namespace paxorel::xml
