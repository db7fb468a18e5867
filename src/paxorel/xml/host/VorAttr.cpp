#include <paxorel/xml/dom/Attr.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/TypeInfo.hpp>
#include <paxorel/xml/host/HostClass.hpp>

namespace paxorel::xml::mi {

void VorAttr::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<Attr>(*this, cls)
      .bareConstructor(0x102)
      .method("getName", &Attr::getName)
      .method("getSpecified", &Attr::getSpecified)
      .method("getValue", &Attr::getValue)
      .method("char", &Attr::getValue)
      .method("setValue", &Attr::setValue)
      .method("isID", &Attr::isId)
      .method("isId", &Attr::isId)
      .method("getSchemaTypeInfo", &Attr::getSchemaTypeInfo)
      .direct<&Attr::getOwnerElement>("getOwnerElement")
      .property("Name", &Attr::getName, readOnly)
      .property("Value", &Attr::getValue, &Attr::setValue)
      .property("IsID", &Attr::isId, readOnly);
}

}  // namespace paxorel::xml::mi
