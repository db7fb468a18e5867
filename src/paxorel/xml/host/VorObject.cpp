#include <paxorel/xml/host/HostClass.hpp>

namespace paxorel::xml::mi {

void VorObject::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<XMLObject>(*this, cls).bareConstructor(0x102);
}

}  // namespace paxorel::xml::mi
