#include <paxorel/xml/dom/TypeInfo.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>

#include <xercesc/dom/DOMTypeInfo.hpp>

namespace paxorel::xml {

using xercesc::DOMTypeInfo;

TypeInfo::TypeInfo(const DOMTypeInfo* info, std::shared_ptr<Document> owner) : info_(info), owner_(std::move(owner)) {}

TypeInfo::~TypeInfo() = default;

const char* TypeInfo::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.TypeInfo"; }

std::shared_ptr<Document> TypeInfo::getOwnerDocWrapper() const { return owner_; }

const DOMTypeInfo* TypeInfo::info() const {
  if (!info_) raiseXmlError(*this, xml_error::emptyNodeArgument());
  return info_;
}

ustring TypeInfo::getTypeName() const { return XercesString::toUstring(info()->getTypeName()); }

ustring TypeInfo::getTypeNamespace() const { return XercesString::toUstring(info()->getTypeNamespace()); }

bool TypeInfo::isDerivedFrom(const ustring& typeNamespace, const ustring& typeName, double derivationMethod) const {
  // Sums of the bits, and any other integer, go through unchecked.
  const auto method = static_cast<DOMTypeInfo::DerivationMethods>(truncateS(derivationMethod));
  return info()->isDerivedFrom(XercesString(typeNamespace), XercesString(typeName), method);
}

}  // namespace paxorel::xml
