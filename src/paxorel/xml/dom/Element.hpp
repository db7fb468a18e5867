#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

class Attr;
class TypeInfo;

/// An element of a document.
///
/// Queries let failures of the XML library pass through. Changes translate a
/// xercesc::DOMException into an error that names the attribute and this
/// element's tag; a code that a change does not name is ignored, and the
/// change returns normally (with null where it returns a pointer). An Attr
/// argument that is null, or has no node, fails with emptyNodeArgument.
class Element : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Element(xercesc::DOMElement* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;

  /// New wrappers with this element's owner, owned by the caller; null for null.
  Element* makeElementWrapper(xercesc::DOMElement* element) const;
  Attr* makeAttrWrapper(xercesc::DOMAttr* attr) const;

  // --- queries; an absent string is the empty string, an absent node null ---

  ustring getTagName() const;
  ustring getAttribute(const ustring& name) const;
  ustring getAttributeNS(const ustring& namespaceURI, const ustring& localName) const;
  Attr* getAttributeNode(const ustring& name) const;
  Attr* getAttributeNodeNS(const ustring& namespaceURI, const ustring& localName) const;
  bool hasAttribute(const ustring& name) const;
  bool hasAttributeNS(const ustring& namespaceURI, const ustring& localName) const;
  /// A live list of the descendant elements of that name ("*" for all).
  NodeList* getElementsByTagName(const ustring& name) const;
  NodeList* getElementsByTagNameNS(const ustring& namespaceURI, const ustring& localName) const;
  TypeInfo* getSchemaTypeInfo() const;
  Element* getFirstElementChild() const;
  Element* getLastElementChild() const;
  Element* getPreviousElementSibling() const;
  Element* getNextElementSibling() const;
  double getChildElementCount() const;
  /// The element's position in a walk of its whole document that counts every
  /// node of the child lists in document order, the first child of the
  /// document as 1, and an element's attributes right after the element. An
  /// element outside the document's tree gives the count of the whole tree.
  double getNodeIndex() const;

  // --- changes ---

  /// elemSetAttrInvalidCharError for a bad name, elemSetAttrReadOnlyError on
  /// a read-only element.
  void setAttribute(const ustring& name, const ustring& value);
  /// As setAttribute, naming the qualified name; elemSetAttrNSNamespaceError
  /// when the name and the namespace do not fit together.
  void setAttributeNS(const ustring& namespaceURI, const ustring& qualifiedName, const ustring& value);
  /// Adds `attr`, replacing an attribute of its name, and returns `attr` (the
  /// replaced attribute is not handed out). elemSetAttrNodeWrongDocError for
  /// an attribute of another document, elemSetAttrNodeInUseError for one of
  /// another element, elemSetAttrReadOnlyError on a read-only element. An
  /// attribute that the element already carries stays as it is.
  Attr* setAttributeNode(Attr* attr);
  /// As setAttributeNode, matching by namespace and local name.
  Attr* setAttributeNodeNS(Attr* attr);
  /// Removes `attr` and returns it. elemRemoveAttrNodeNotFoundError when it
  /// is not this element's, elemRemoveAttrNodeReadOnlyError on a read-only
  /// element.
  Attr* removeAttributeNode(Attr* attr);
  /// Removes the attribute if there is one; elemRemoveAttrError on a read-only
  /// element.
  void removeAttribute(const ustring& name);
  void removeAttributeNS(const ustring& namespaceURI, const ustring& localName);
  /// Makes the attribute an ID or not. elemSetIdAttrNotFoundError when the
  /// element has no such attribute, elemSetIdAttrReadOnlyError on a read-only
  /// element.
  void setIdAttribute(const ustring& name, bool isId);
  void setIdAttributeNS(const ustring& namespaceURI, const ustring& localName, bool isId);
  void setIdAttributeNode(Attr* attr, bool isId);
};

}  // namespace paxorel::xml
