#include <paxorel/xml/dom/Text.hpp>
#include <paxorel/xml/host/HostClass.hpp>

namespace paxorel::xml::mi {

void VorText::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<Text>(*this, cls)
      .bareConstructor(0x102)
      .method("splitText", &Text::splitText)
      .method("getIsElementContentWhitespace", &Text::getIsElementContentWhitespace);
}

}  // namespace paxorel::xml::mi
