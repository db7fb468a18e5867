#include <paxorel/xml/dom/NamedNodeMap.hpp>
#include <paxorel/xml/dom/Node.hpp>
#include <paxorel/xml/host/HostClass.hpp>

namespace paxorel::xml::mi {

void VorNamedNodeMap::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<NamedNodeMap>(*this, cls)
      .bareConstructor(0x102)
      .method("getLength", &NamedNodeMap::getLength)
      .method("getNamedItem", &NamedNodeMap::getNamedItem)
      .method("getNamedItemNS", &NamedNodeMap::getNamedItemNS)
      .method("item", &NamedNodeMap::item)
      .method("removeNamedItemNS", &NamedNodeMap::removeNamedItemNS)
      .method("setNamedItem", &NamedNodeMap::setNamedItem)
      .method("setNamedItemNS", &NamedNodeMap::setNamedItemNS)
      .property("Length", &NamedNodeMap::getLength, readOnly);
}

}  // namespace paxorel::xml::mi
