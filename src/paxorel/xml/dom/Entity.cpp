#include <paxorel/xml/dom/Entity.hpp>

#include <paxorel/xml/core/XercesString.hpp>

#include <xercesc/dom/DOMEntity.hpp>

namespace paxorel::xml {

using xercesc::DOMEntity;

Entity::Entity(DOMEntity* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Entity::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Entity"; }

ustring Entity::getPublicId() const { return XercesString::toUstring(implAs<DOMEntity>()->getPublicId()); }
ustring Entity::getSystemId() const { return XercesString::toUstring(implAs<DOMEntity>()->getSystemId()); }
ustring Entity::getNotationName() const { return XercesString::toUstring(implAs<DOMEntity>()->getNotationName()); }
ustring Entity::getInputEncoding() const { return XercesString::toUstring(implAs<DOMEntity>()->getInputEncoding()); }
ustring Entity::getXmlEncoding() const { return XercesString::toUstring(implAs<DOMEntity>()->getXmlEncoding()); }
ustring Entity::getXmlVersion() const { return XercesString::toUstring(implAs<DOMEntity>()->getXmlVersion()); }

}  // namespace paxorel::xml
