#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>
#include <vector>

namespace paxorel::xml {

class Document;
class NamedNodeMap;
class NodeList;

/// A node of a document tree.
///
/// A wrapper never owns its DOM node: the tree belongs to its Document, which
/// every wrapper keeps alive through its owner pointer. Each navigation gives
/// a new wrapper that the caller owns (a Document pointer excepted, which is
/// never the caller's to delete); isSameNode tells whether two wrappers stand
/// for one node. An operation on a wrapper without a node fails with
/// emptyNodeArgument.
class Node : public XMLObject {
 public:
  static constexpr double ELEMENT_NODE = 1;
  static constexpr double ATTRIBUTE_NODE = 2;
  static constexpr double TEXT_NODE = 3;
  static constexpr double CDATA_SECTION_NODE = 4;
  static constexpr double ENTITY_REFERENCE_NODE = 5;
  static constexpr double ENTITY_NODE = 6;
  static constexpr double PROCESSING_INSTRUCTION_NODE = 7;
  static constexpr double COMMENT_NODE = 8;
  static constexpr double DOCUMENT_NODE = 9;
  static constexpr double DOCUMENT_TYPE_NODE = 10;
  static constexpr double DOCUMENT_FRAGMENT_NODE = 11;
  static constexpr double NOTATION_NODE = 12;

  static constexpr double DOCUMENT_POSITION_DISCONNECTED = 1;
  static constexpr double DOCUMENT_POSITION_PRECEDING = 2;
  static constexpr double DOCUMENT_POSITION_FOLLOWING = 4;
  static constexpr double DOCUMENT_POSITION_CONTAINS = 8;
  static constexpr double DOCUMENT_POSITION_CONTAINED_BY = 16;
  static constexpr double DOCUMENT_POSITION_IMPLEMENTATION_SPECIFIC = 32;

  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Node(xercesc::DOMNode* impl, std::shared_ptr<Document> owner);
  ~Node() override;

  const char* getFullyQualifiedVorloTypeName() const override;

  // --- ownership ---

  /// The document wrapper that keeps this node's tree alive; may be empty.
  virtual std::shared_ptr<Document> getOwnerDocWrapper() const;
  /// Makes `document` the owner of this wrapper; null is emptyNodeArgument.
  void setOwnerDocWrapper(Document* document);
  /// The owner document (not the caller's to delete), or null. A document
  /// whose callers have all let go is registered again, so that it can be
  /// handed out anew.
  Document* getOwnerDocument() const;
  /// A plain Node wrapper of `node` with this wrapper's owner, whatever the
  /// node's kind; null for null.
  Node* makeNodeWrapper(xercesc::DOMNode* node) const;
  /// A new wrapper of the class that fits `node`'s type, owned by the caller;
  /// for a document node the existing Document wrapper of `owner`.
  static Node* downcast(xercesc::DOMNode* node, std::shared_ptr<Document> owner);
  /// The wrapped node, or null.
  xercesc::DOMNode* getImpl() const noexcept { return impl_; }
  /// The node of a node argument of an operation of `caller`; a missing
  /// argument, or one without a node, is emptyNodeArgument raised by `caller`.
  static xercesc::DOMNode* implOf(const XMLObject& caller, const Node* argument);

  // --- queries; an absent string is the empty string ---

  ustring getNodeName() const;
  ustring getNodeValue() const;
  ustring getLocalName() const;
  ustring getNamespaceURI() const;
  ustring getPrefix() const;
  ustring getBaseURI() const;
  ustring getTextContent() const;
  double getNodeType() const;
  bool hasChildNodes() const;
  bool hasAttributes() const;
  /// The number of children.
  double getLength();
  /// "ELEMENT_NODE" and the like; "UNKNOWN" for a processing instruction and
  /// every type without a name, "NOTATION" for a notation.
  ustring getNodeTypeName() const;
  /// "DOCUMENT_POSITION_PRECEDING" and the like for one exact position bit,
  /// "UNKNOWN" otherwise; the argument is truncated.
  ustring getPositionTypeName(double position) const;

  ustring lookupPrefix(const ustring& namespaceURI) const;
  ustring lookupNamespaceURI(const ustring& prefix) const;
  bool isDefaultNamespace(const ustring& namespaceURI) const;

  /// Comparisons; a null `other` is emptyNodeArgument.
  bool isSameNode(const Node* other) const;
  bool isEqualNode(const Node* other) const;
  double compareDocumentPosition(const Node* other) const;
  /// "Preceding", "Following", "Contains", "ContainedBy", "Disconnected" for
  /// exactly that relation, "Unknown" for every other value.
  ustring comparePositionInDocument(const Node* other) const;

  // --- navigation: new wrappers that the caller owns, null where none ---

  Node* getFirstChild() const;
  Node* getLastChild() const;
  Node* getNextSibling() const;
  Node* getPreviousSibling() const;
  /// Null on a document; the Document wrapper itself for a top-level node.
  Node* getParentNode() const;
  /// The child at the 0-based `index`.
  Node* item(double index);
  /// The child at the 1-based `index`.
  Node* child(double index);
  /// A wrapper of every child, in document order.
  std::vector<Node*> getChildren() const;
  NodeList* getChildNodes() const;
  /// The attributes of an element; null for every other node.
  NamedNodeMap* getAttributes() const;

  // --- changes; the child operations return their argument itself ---

  /// Appends `newChild`; a document type that belongs to no document yet
  /// becomes this node's document's. Null is emptyNodeArgument; Xerces's
  /// refusals are nodeAppendChild...Error.
  Node* appendChild(Node* newChild);
  /// Inserts `newChild` before `refChild`; neither may be null (a null
  /// `refChild` does not mean appending), and a node is never inserted into
  /// itself (nodeInsertBeforeSelfError).
  Node* insertBefore(Node* newChild, Node* refChild);
  /// Puts `newChild` in the place of `oldChild`; returns `newChild`.
  Node* replaceChild(Node* newChild, Node* oldChild);
  /// Takes `oldChild` out of the tree; its wrapper stays usable, the document
  /// keeps the node.
  Node* removeChild(Node* oldChild);
  /// A copy without a parent, in the same document. A document's copy is the
  /// document itself; a document type of no document copies into another one.
  Node* cloneNode(bool deep) const;
  /// Xerces's DOMException passes through.
  void normalize();
  /// Refusals for a bad character, a read-only node or a namespace mismatch
  /// are errors; any other refusal leaves the prefix as it was, silently.
  void setPrefix(const ustring& prefix);
  /// Every refusal of Xerces is nodeSetTextContentNoModError.
  void setTextContent(const ustring& text);
  /// Xerces's DOMException passes through.
  void setNodeValue(const ustring& value);

 protected:
  /// The wrapped node; emptyNodeArgument when there is none.
  xercesc::DOMNode* impl() const;
  /// The wrapped node as the DOM class `T` that this wrapper's class stands for.
  template <class T>
  T* implAs() const {
    return static_cast<T*>(impl());
  }
  /// Moves the wrapper to another node; the child list fetched for the old one goes.
  void setImpl(xercesc::DOMNode* impl) noexcept {
    impl_ = impl;
    childList_ = nullptr;
  }

 private:
  friend class Document;  // renames nodes in place

  /// A wrapper of `child` of this node (may be null).
  Node* wrapChild(xercesc::DOMNode* child) const;

  xercesc::DOMNode* impl_;
  std::shared_ptr<Document> owner_;
  xercesc::DOMNodeList* childList_ = nullptr;  // the live child list, fetched once
};

}  // namespace paxorel::xml
