#include <paxorel/xml/dom/Attr.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/NodeList.hpp>
#include <paxorel/xml/dom/TypeInfo.hpp>
#include <paxorel/xml/host/HostClass.hpp>

namespace paxorel::xml::mi {

void VorElement::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<Element>(*this, cls)
      .bareConstructor(0x102)
      .method("getTagName", &Element::getTagName)
      .method("char", &Element::getTagName)
      .method("getElementsByTagName", &Element::getElementsByTagName)
      .method("getElementsByTagNameNS", &Element::getElementsByTagNameNS)
      .method("getAttribute", &Element::getAttribute)
      .method("getAttributeNS", &Element::getAttributeNS)
      .method("hasAttribute", &Element::hasAttribute)
      .method("hasAttributeNS", &Element::hasAttributeNS)
      .method("getChildElementCount", &Element::getChildElementCount)
      .method("getNodeIndex", &Element::getNodeIndex)
      .method("getSchemaTypeInfo", &Element::getSchemaTypeInfo)
      .method("setAttribute", &Element::setAttribute)
      .method("setAttributeNS", &Element::setAttributeNS)
      .method("setAttributeNode", &Element::setAttributeNode)
      .method("setAttributeNodeNS", &Element::setAttributeNodeNS)
      .method("removeAttributeNode", &Element::removeAttributeNode)
      .method("removeAttribute", &Element::removeAttribute)
      .method("removeAttributeNS", &Element::removeAttributeNS)
      .method("setIdAttribute", &Element::setIdAttribute)
      .method("setIdAttributeNS", &Element::setIdAttributeNS)
      .method("setIdAttributeNode", &Element::setIdAttributeNode)
      .method("setIDAttribute", &Element::setIdAttribute)
      .method("setIDAttributeNS", &Element::setIdAttributeNS)
      .method("setIDAttributeNode", &Element::setIdAttributeNode)
      .direct<&Element::getAttributeNode>("getAttributeNode")
      .direct<&Element::getAttributeNodeNS>("getAttributeNodeNS")
      .direct<&Element::getFirstElementChild>("getFirstElementChild")
      .direct<&Element::getLastElementChild>("getLastElementChild")
      .direct<&Element::getNextElementSibling>("getNextElementSibling")
      .direct<&Element::getPreviousElementSibling>("getPreviousElementSibling")
      .property("TagName", &Element::getTagName, readOnly)
      .property("HasAttributes", &Node::hasAttributes, readOnly);
}

}  // namespace paxorel::xml::mi
