#include <paxorel/xml/serialize/WriterConfiguration.hpp>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace paxorel::xml {

using xercesc::XMLUni;

WriterConfiguration::WriterConfiguration(std::shared_ptr<xercesc::DOMLSSerializer> serializer)
    : serializer_(std::move(serializer)), configuration_(serializer_->getDomConfig()) {}

WriterConfiguration::~WriterConfiguration() = default;

const char* WriterConfiguration::getFullyQualifiedVorloTypeName() const {
  return "zelmar.io.xml.dom.WriterConfiguration";
}

bool WriterConfiguration::flag(const XMLCh* name) const { return configuration_->getParameter(name) != nullptr; }

void WriterConfiguration::setFlag(const XMLCh* name, bool on) { configuration_->setParameter(name, on); }

bool WriterConfiguration::getFormatPrettyPrint() const { return flag(XMLUni::fgDOMWRTFormatPrettyPrint); }
void WriterConfiguration::setFormatPrettyPrint(bool on) { setFlag(XMLUni::fgDOMWRTFormatPrettyPrint, on); }
bool WriterConfiguration::getFormatPrettyPrintDouble() const { return flag(XMLUni::fgDOMWRTXercesPrettyPrint); }
void WriterConfiguration::setFormatPrettyPrintDouble(bool on) { setFlag(XMLUni::fgDOMWRTXercesPrettyPrint, on); }
bool WriterConfiguration::getXMLDeclaration() const { return flag(XMLUni::fgDOMXMLDeclaration); }
void WriterConfiguration::setXMLDeclaration(bool on) { setFlag(XMLUni::fgDOMXMLDeclaration, on); }
bool WriterConfiguration::getDTD() const { return dtd_; }
void WriterConfiguration::setDTD(bool on) { dtd_ = on; }
bool WriterConfiguration::getEntities() const { return flag(XMLUni::fgDOMWRTEntities); }
void WriterConfiguration::setEntities(bool on) { setFlag(XMLUni::fgDOMWRTEntities, on); }
bool WriterConfiguration::getBOM() const { return flag(XMLUni::fgDOMWRTBOM); }
void WriterConfiguration::setBOM(bool on) { setFlag(XMLUni::fgDOMWRTBOM, on); }
bool WriterConfiguration::getDiscardDefaultContent() const { return flag(XMLUni::fgDOMWRTDiscardDefaultContent); }
void WriterConfiguration::setDiscardDefaultContent(bool on) { setFlag(XMLUni::fgDOMWRTDiscardDefaultContent, on); }
bool WriterConfiguration::getSplitCdataSections() const { return flag(XMLUni::fgDOMWRTSplitCdataSections); }
void WriterConfiguration::setSplitCdataSections(bool on) { setFlag(XMLUni::fgDOMWRTSplitCdataSections, on); }

}  // namespace paxorel::xml
