#include <paxorel/xml/dom/Node.hpp>
#include <paxorel/xml/dom/NodeList.hpp>
#include <paxorel/xml/host/HostClass.hpp>

namespace paxorel::xml::mi {

void VorNodeList::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<NodeList>(*this, cls)
      .bareConstructor(0x102)
      .method("getLength", &NodeList::getLength)
      .method("item", &NodeList::item)
      .method("node", &NodeList::node)
      .method("getTextContent", &NodeList::getTextContent)
      .property("Length", &NodeList::getLength, readOnly)
      .property("TextContent", &NodeList::getTextContent, readOnly);
}

}  // namespace paxorel::xml::mi
