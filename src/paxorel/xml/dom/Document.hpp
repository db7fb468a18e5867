#pragma once

#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/dom/Node.hpp>

#include <memory>

namespace paxorel::xml {

class Attr;
class CDATASection;
class Comment;
class DocumentConfiguration;
class DocumentFragment;
class DocumentType;
class Element;
class Entity;
class EntityReference;
class Notation;
class ProcessingInstruction;
class Text;
class XPathNSResolver;
class XPathResult;

/// A document: the one owner of its DOM tree.
///
/// A Document lives on the heap and is owned by the library: it is created
/// by createDocument, parseString, parseFile, or with new, and it dies when
/// no caller's pointer, registry entry or wrapper of its tree holds it any
/// more. Nobody deletes it directly (its destructor is private).
///
/// The constructors report their failures by the host way always: a new
/// object has not had its error mode set.
class Document final : public Node {
 public:
  /// An empty document: no root element, no document type.
  Document();
  /// Takes over `tree`, made by somebody else, without any check; null gives
  /// a document without a tree.
  explicit Document(xercesc::DOMDocument* tree);
  /// A document with a root element of that name, in no namespace.
  explicit Document(const ustring& qualifiedName);
  /// A document with a root element in `namespaceURI` (an empty one is the
  /// empty namespace, not none).
  Document(const ustring& namespaceURI, const ustring& qualifiedName);
  /// A document with a document type and a root element in no namespace.
  Document(const ustring& qualifiedName, const ustring& doctypeName, const ustring& publicId, const ustring& systemId);
  /// A document with a document type and a root element in `namespaceURI`.
  Document(const ustring& namespaceURI, const ustring& qualifiedName, const ustring& doctypeName,
           const ustring& publicId, const ustring& systemId);

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The registry's shared pointer to this document; std::out_of_range
  /// ("map::at") when the document is not registered.
  std::shared_ptr<Document> getOwnerDocWrapper() const override;
  /// The wrapped tree, or null.
  xercesc::DOMDocument* getImpl() const noexcept;

  // --- properties; absent strings are empty ---

  ustring getInputEncoding() const;
  ustring getXmlEncoding() const;
  ustring getXmlVersion() const;
  ustring getDocumentURI() const;
  bool getXmlStandalone() const;
  void setXmlStandalone(bool standalone);
  /// A version that Xerces refuses is its DOMException, untranslated.
  void setXmlVersion(const ustring& version);
  void setDocumentURI(const ustring& documentURI);

  /// The root element, or null.
  Element* getDocumentElement() const;
  /// The document type, or null.
  DocumentType* getDoctype() const;
  /// A view of the document's own options.
  DocumentConfiguration* getDOMConfig() const;

  // --- factories: new nodes of this document, without a parent ---
  // A name with a character Xerces refuses is an error; any other refusal
  // gives null, so a caller has to be ready for a null result.

  Element* createElement(const ustring& tagName);
  /// A prefix that does not fit the namespace is docCreateElemNSNamespaceError.
  Element* createElementNS(const ustring& namespaceURI, const ustring& qualifiedName);
  Attr* createAttribute(const ustring& name);
  /// A prefix that does not fit the namespace is docCreateAttrNSNamespaceError.
  Attr* createAttributeNS(const ustring& namespaceURI, const ustring& qualifiedName);
  Text* createTextNode(const ustring& data);
  Comment* createComment(const ustring& data);
  CDATASection* createCDATASection(const ustring& data);
  ProcessingInstruction* createProcessingInstruction(const ustring& target, const ustring& data);
  DocumentFragment* createDocumentFragment();
  Entity* createEntity(const ustring& name);
  EntityReference* createEntityReference(const ustring& name);
  Notation* createNotation(const ustring& name);
  /// A document type of this document that is not in the tree yet; every
  /// failure is a docType...Error.
  DocumentType* createDocumentType(const ustring& qualifiedName);
  DocumentType* createDocumentType(const ustring& qualifiedName, const ustring& publicId, const ustring& systemId);

  // --- finders ---

  Element* getElementById(const ustring& elementId) const;
  /// A live list, or null.
  NodeList* getElementsByTagName(const ustring& tagName) const;
  /// A live list.
  NodeList* getElementsByTagNameNS(const ustring& namespaceURI, const ustring& localName) const;

  // --- XPath ---
  // A result type is one of the XPathResult constants, truncated. An
  // expression that Xerces cannot parse is xpathInvalidPathError, one it
  // does not support (or a context that is not an element) xpathUnsupportedError,
  // a prefix without namespace xpathNamespaceError, a context of another
  // document xpathWrongDocumentError; any other refusal gives null. Each
  // error carries the expression.

  /// Evaluates `expression` from the root element; null, without looking at
  /// the expression, when the document has no root element.
  XPathResult* evaluate(const ustring& expression, double type);
  /// Evaluates `expression` from `context`; a null context is emptyNodeArgument.
  XPathResult* evaluate(const ustring& expression, const Node* context, double type);
  /// The same, with the prefixes resolved by `resolver`; a null resolver is
  /// emptyObjectArgument.
  XPathResult* evaluate(const ustring& expression, const Node* context, const XPathNSResolver* resolver, double type);
  /// A resolver that answers by the namespace declarations in scope at
  /// `node`. A null node is emptyNodeArgument; a node of another document is
  /// Xerces's DOMException WRONG_DOCUMENT_ERR, untranslated.
  XPathNSResolver* createNSResolver(const Node* node);

  // --- changing the document ---

  /// A deep copy of `node` (of any document) that belongs to this one.
  Node* importNode(Node* node);
  /// A copy of `node` that belongs to this document and has no parent.
  Node* importNodeBase(Node* node, bool deep);
  /// Renames `node` of this document and returns it; should Xerces replace
  /// the node, the wrapper passed in moves to the new one. A namespace
  /// refusal is told by its likely cause: a prefix without namespace, the
  /// prefix xml or the name xmlns with another namespace.
  Node* renameNode(Node* node, const ustring& namespaceURI, const ustring& qualifiedName);
  /// Normalises the document as its configuration says; a failure carries
  /// the first error that Xerces reported.
  void normalizeDocument();

  // --- writing ---

  /// Writes the document to the file at `path` as a new DOMWriter does, with
  /// its failures, raised in this document's error mode. The document then
  /// stays in memory until the process ends.
  void xmlwrite(const ustring& path) const;

 private:
  struct DoctypeNames;
  struct RegistryDeleter;

  ~Document() override;  // run only by the registry family's deleter
  void registerSelf();
  xercesc::DOMDocument* tree() const;
  void build(const ustring* namespaceURI, const ustring& qualifiedName, const DoctypeNames* doctype);
  [[noreturn]] void raiseDocTypeError(const ustring& name) const;
  template <class Wrapper, class InvalidChar, class Create>
  Wrapper* made(const ustring& name, Create create);
  template <class Wrapper, class InvalidChar, class NamespaceMismatch, class Create>
  Wrapper* madeNS(const ustring& namespaceURI, const ustring& qualifiedName, Create create);

  XercesGuard guard_;
};

/// A new empty document, shared with the caller: when the caller's last copy
/// goes, the document's registry entry goes.
std::shared_ptr<Document> createDocument();
/// A new document with a root element of that name, shared with the caller.
std::shared_ptr<Document> createDocument(const ustring& qualifiedName);
/// A new document with a root element in `namespaceURI`, shared with the caller.
std::shared_ptr<Document> createDocument(const ustring& namespaceURI, const ustring& qualifiedName);

}  // namespace paxorel::xml
