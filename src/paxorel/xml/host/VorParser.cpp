#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/host/HostClass.hpp>
#include <paxorel/xml/parse/Parser.hpp>
#include <paxorel/xml/parse/ParserConfiguration.hpp>

namespace paxorel::xml::mi {

void VorParser::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<Parser>(*this, cls)
      .constructor<>(0)
      .method("parseURI", &Parser::parseURI)
      .method("parseFile", &Parser::parseURI)
      .method("parseString", &Parser::parseString)
      .property("Configuration", &Parser::getConfiguration, readOnly);
}

}  // namespace paxorel::xml::mi
