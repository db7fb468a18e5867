#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

class Element;
class TypeInfo;

/// An attribute of an element. Failures of the XML library are not
/// translated here: they reach the caller as xercesc::DOMException.
class Attr : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Attr(xercesc::DOMAttr* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The wrapped attribute, or null.
  xercesc::DOMAttr* getImpl() const noexcept;

  ustring getName() const;
  ustring getValue() const;
  /// Sets the value; on a read-only attribute Xerces's DOMException
  /// NO_MODIFICATION_ALLOWED_ERR passes through as it is.
  void setValue(const ustring& value);
  /// Whether the value was given in the document rather than defaulted.
  bool getSpecified() const;
  bool isId() const;
  /// A new wrapper of the element that carries the attribute, or null.
  Element* getOwnerElement() const;
  /// A new wrapper of the attribute's schema type, or null.
  TypeInfo* getSchemaTypeInfo() const;
};

}  // namespace paxorel::xml
