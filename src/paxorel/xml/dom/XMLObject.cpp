#include <paxorel/xml/dom/XMLObject.hpp>

namespace paxorel::xml {

XMLObject::~XMLObject() = default;

const char* XMLObject::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Object"; }

}  // namespace paxorel::xml
