#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

namespace paxorel::xml {

class Document;

/// The schema type that the XML library attaches to an element or attribute.
/// The type belongs to the document, which the wrapper keeps alive. An
/// operation on a wrapper without a type fails with emptyNodeArgument.
class TypeInfo : public XMLObject {
 public:
  /// The derivation methods of isDerivedFrom, as bits that may be summed.
  static constexpr double DERIVATION_RESTRICTION() noexcept { return 1; }
  static constexpr double DERIVATION_EXTENSION() noexcept { return 2; }
  static constexpr double DERIVATION_UNION() noexcept { return 4; }
  static constexpr double DERIVATION_LIST() noexcept { return 8; }

  /// A wrapper of `info` (not owned) that keeps `owner` alive.
  TypeInfo(const xercesc::DOMTypeInfo* info, std::shared_ptr<Document> owner);
  ~TypeInfo() override;

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The document that owns the type; may be empty.
  virtual std::shared_ptr<Document> getOwnerDocWrapper() const;

  /// The type's name and namespace; empty where the type has none.
  ustring getTypeName() const;
  ustring getTypeNamespace() const;
  /// Whether the type derives from the named one by `derivationMethod`, a
  /// sum of the DERIVATION_ bits truncated to an integer and passed on as it
  /// stands.
  bool isDerivedFrom(const ustring& typeNamespace, const ustring& typeName, double derivationMethod) const;

  const xercesc::DOMTypeInfo* getImpl() const noexcept { return info_; }

 private:
  const xercesc::DOMTypeInfo* info() const;  // emptyNodeArgument when missing

  const xercesc::DOMTypeInfo* info_;
  std::shared_ptr<Document> owner_;
};

}  // namespace paxorel::xml
