#include <paxorel/xml/host/ModuleEntries.hpp>

#include <paxorel/xml/host/XercesExceptions.hpp>

#include <host/ForeignError.hpp>

namespace {
bool initialized = false;
}  // namespace

void ModuleInitialize_paxorel_xml() {
  if (initialized) return;
  paxorel::xml::mi::init_ZELMAR_IO_XML_DOM_Package();
  host::addExceptionTranslator(&paxorel::xml::mi::describeXercesException);
  initialized = true;
}

void ModuleTerminate_paxorel_xml() {}
