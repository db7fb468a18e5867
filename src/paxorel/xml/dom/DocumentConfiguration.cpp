#include <paxorel/xml/dom/DocumentConfiguration.hpp>

#include <paxorel/xml/core/raiseXmlError.hpp>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace paxorel::xml {

using xercesc::XMLUni;

DocumentConfiguration::DocumentConfiguration(xercesc::DOMConfiguration* configuration, std::shared_ptr<Document> owner)
    : configuration_(configuration), owner_(std::move(owner)) {}

DocumentConfiguration::~DocumentConfiguration() = default;

const char* DocumentConfiguration::getFullyQualifiedVorloTypeName() const {
  return "zelmar.io.xml.dom.DocumentConfiguration";
}

xercesc::DOMConfiguration* DocumentConfiguration::configuration() const {
  if (!configuration_) raiseXmlError(*this, xml_error::emptyNodeArgument());
  return configuration_;
}

bool DocumentConfiguration::flag(const XMLCh* name) const { return configuration()->getParameter(name) != nullptr; }

void DocumentConfiguration::setFlag(const XMLCh* name, bool on) { configuration()->setParameter(name, on); }

bool DocumentConfiguration::getCDATASections() const { return flag(XMLUni::fgDOMCDATASections); }
void DocumentConfiguration::setCDATASections(bool on) { setFlag(XMLUni::fgDOMCDATASections, on); }
bool DocumentConfiguration::getComments() const { return flag(XMLUni::fgDOMComments); }
void DocumentConfiguration::setComments(bool on) { setFlag(XMLUni::fgDOMComments, on); }
bool DocumentConfiguration::getEntities() const { return flag(XMLUni::fgDOMEntities); }
void DocumentConfiguration::setEntities(bool on) { setFlag(XMLUni::fgDOMEntities, on); }
bool DocumentConfiguration::getNamespaces() const { return flag(XMLUni::fgDOMInfoset); }
void DocumentConfiguration::setNamespaces(bool on) { setFlag(XMLUni::fgDOMInfoset, on); }

}  // namespace paxorel::xml
