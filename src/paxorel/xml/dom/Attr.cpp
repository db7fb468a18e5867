#include <paxorel/xml/dom/Attr.hpp>

#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/ReleaseGuard.hpp>
#include <paxorel/xml/dom/TypeInfo.hpp>

#include <xercesc/dom/DOMAttr.hpp>

namespace paxorel::xml {

using xercesc::DOMAttr;

Attr::Attr(DOMAttr* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Attr::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Attr"; }

DOMAttr* Attr::getImpl() const noexcept { return static_cast<DOMAttr*>(Node::getImpl()); }

ustring Attr::getName() const { return XercesString::toUstring(implAs<DOMAttr>()->getName()); }

ustring Attr::getValue() const { return XercesString::toUstring(implAs<DOMAttr>()->getValue()); }

void Attr::setValue(const ustring& value) { detail::ReleaseGuard::setValue(*implAs<DOMAttr>(), XercesString(value)); }

bool Attr::getSpecified() const { return implAs<DOMAttr>()->getSpecified(); }

bool Attr::isId() const { return implAs<DOMAttr>()->isId(); }

Element* Attr::getOwnerElement() const {
  xercesc::DOMElement* element = implAs<DOMAttr>()->getOwnerElement();
  return element ? new Element(element, getOwnerDocWrapper()) : nullptr;
}

TypeInfo* Attr::getSchemaTypeInfo() const {
  const xercesc::DOMTypeInfo* info = implAs<DOMAttr>()->getSchemaTypeInfo();
  return info ? new TypeInfo(info, getOwnerDocWrapper()) : nullptr;
}

}  // namespace paxorel::xml
