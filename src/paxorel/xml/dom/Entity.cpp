#include <paxorel/xml/dom/Entity.hpp>

#include <xercesc/dom/DOMEntity.hpp>

namespace paxorel::xml {

Entity::Entity(xercesc::DOMEntity* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* Entity::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Entity"; }

}  // namespace paxorel::xml
