#include <paxorel/xml/host/Invokers.hpp>

namespace paxorel::xml::mi {

void bindConstructed(const XMLObject* object, int& outputCount, vorlo::VORValue* outputs) {
  Marshal::toMForConstructor(object, outputs[0].array());
  if (outputCount == 0) outputCount = 1;
}

}  // namespace paxorel::xml::mi
