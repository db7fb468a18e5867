#include <paxorel/xml/core/XercesGuard.hpp>

#include <xercesc/dom/DOMImplementationRegistry.hpp>
#include <xercesc/util/PlatformUtils.hpp>

namespace paxorel::xml {

namespace {

void startXerces() {
  // Started once and never stopped: Terminate would pull the library from
  // under parsers and documents that live on into static destruction.
  static const bool started = (xercesc::XMLPlatformUtils::Initialize(), true);
  (void)started;
}

}  // namespace

XercesGuard::XercesGuard() { startXerces(); }

xercesc::DOMImplementation* lsImplementation() {
  startXerces();
  static const XMLCh ls[] = u"LS";
  return xercesc::DOMImplementationRegistry::getDOMImplementation(ls);
}

}  // namespace paxorel::xml
