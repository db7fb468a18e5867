#include <paxorel/xml/parse/ParserConfiguration.hpp>

#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/parse/EntityExpansionLimit.hpp>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMLSParser.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace paxorel::xml {

using xercesc::XMLUni;

ParserConfiguration::ParserConfiguration(std::shared_ptr<xercesc::DOMLSParser> parser)
    : parser_(std::move(parser)), configuration_(parser_ ? parser_->getDomConfig() : nullptr) {}

ParserConfiguration::~ParserConfiguration() = default;

const char* ParserConfiguration::getFullyQualifiedVorloTypeName() const {
  return "zelmar.io.xml.dom.ParserConfiguration";
}

xercesc::DOMConfiguration* ParserConfiguration::configuration() const {
  if (!configuration_) raiseXmlError(*this, xml_error::emptyNodeArgument());
  return configuration_;
}

bool ParserConfiguration::flag(const XMLCh* name) const { return configuration()->getParameter(name) != nullptr; }

void ParserConfiguration::setFlag(const XMLCh* name, bool on) { configuration()->setParameter(name, on); }

ustring ParserConfiguration::text(const XMLCh* name) const {
  return XercesString::toUstring(static_cast<const XMLCh*>(configuration()->getParameter(name)));
}

void ParserConfiguration::setText(const XMLCh* name, const ustring& value) {
  configuration()->setParameter(name, XercesString(value).toXMLCh());  // Xerces copies the text
}

bool ParserConfiguration::getNamespaces() const { return flag(XMLUni::fgDOMNamespaces); }
void ParserConfiguration::setNamespaces(bool on) { setFlag(XMLUni::fgDOMNamespaces, on); }
bool ParserConfiguration::getElementContentWhitespace() const { return flag(XMLUni::fgDOMElementContentWhitespace); }
void ParserConfiguration::setElementContentWhitespace(bool on) { setFlag(XMLUni::fgDOMElementContentWhitespace, on); }
bool ParserConfiguration::getLoadExternalDTD() const { return flag(XMLUni::fgXercesLoadExternalDTD); }
void ParserConfiguration::setLoadExternalDTD(bool on) { setFlag(XMLUni::fgXercesLoadExternalDTD, on); }
bool ParserConfiguration::getDisableDefaultEntityResolution() const {
  return flag(XMLUni::fgXercesDisableDefaultEntityResolution);
}
void ParserConfiguration::setDisableDefaultEntityResolution(bool on) {
  setFlag(XMLUni::fgXercesDisableDefaultEntityResolution, on);
}
bool ParserConfiguration::getDisallowDoctype() const { return flag(XMLUni::fgDOMDisallowDoctype); }
void ParserConfiguration::setDisallowDoctype(bool on) { setFlag(XMLUni::fgDOMDisallowDoctype, on); }
bool ParserConfiguration::getEntities() const { return flag(XMLUni::fgDOMEntities); }
void ParserConfiguration::setEntities(bool on) { setFlag(XMLUni::fgDOMEntities, on); }
bool ParserConfiguration::getStandardURIConformant() const {
  return flag(XMLUni::fgXercesUseCachedGrammarInParse);  // crossed on purpose
}
void ParserConfiguration::setStandardURIConformant(bool on) { setFlag(XMLUni::fgXercesStandardUriConformant, on); }
bool ParserConfiguration::getValidate() const { return flag(XMLUni::fgDOMValidate); }
void ParserConfiguration::setValidate(bool on) { setFlag(XMLUni::fgDOMValidate, on); }
bool ParserConfiguration::getSkipDTDValidation() const { return flag(XMLUni::fgXercesSkipDTDValidation); }
void ParserConfiguration::setSkipDTDValidation(bool on) { setFlag(XMLUni::fgXercesSkipDTDValidation, on); }
bool ParserConfiguration::getValidationErrorAsFatal() const { return flag(XMLUni::fgXercesValidationErrorAsFatal); }
void ParserConfiguration::setValidationErrorAsFatal(bool on) { setFlag(XMLUni::fgXercesValidationErrorAsFatal, on); }
bool ParserConfiguration::getContinueAfterFatalError() const { return flag(XMLUni::fgXercesContinueAfterFatalError); }
void ParserConfiguration::setContinueAfterFatalError(bool on) { setFlag(XMLUni::fgXercesContinueAfterFatalError, on); }
bool ParserConfiguration::getComments() const { return flag(XMLUni::fgDOMComments); }
void ParserConfiguration::setComments(bool on) { setFlag(XMLUni::fgDOMComments, on); }
bool ParserConfiguration::getDoXInclude() const { return flag(XMLUni::fgXercesDoXInclude); }
void ParserConfiguration::setDoXInclude(bool on) { setFlag(XMLUni::fgXercesDoXInclude, on); }
ustring ParserConfiguration::getExternalSchemaLocation() const {
  return text(XMLUni::fgXercesSchemaExternalSchemaLocation);
}
void ParserConfiguration::setExternalSchemaLocation(const ustring& location) {
  setText(XMLUni::fgXercesSchemaExternalSchemaLocation, location);
}
ustring ParserConfiguration::getExternalNoNamespaceSchemaLocation() const {
  return text(XMLUni::fgXercesSchemaExternalNoNameSpaceSchemaLocation);
}
void ParserConfiguration::setExternalNoNamespaceSchemaLocation(const ustring& location) {
  setText(XMLUni::fgXercesSchemaExternalNoNameSpaceSchemaLocation, location);
}
bool ParserConfiguration::getLoadSchema() const { return flag(XMLUni::fgXercesLoadSchema); }
void ParserConfiguration::setLoadSchema(bool on) { setFlag(XMLUni::fgXercesLoadSchema, on); }
bool ParserConfiguration::getSchema() const { return flag(XMLUni::fgXercesSchema); }
void ParserConfiguration::setSchema(bool on) { setFlag(XMLUni::fgXercesSchema, on); }
bool ParserConfiguration::getValidateIfSchema() const { return flag(XMLUni::fgDOMValidateIfSchema); }
void ParserConfiguration::setValidateIfSchema(bool on) { setFlag(XMLUni::fgDOMValidateIfSchema, on); }
bool ParserConfiguration::getSchemaFullChecking() const { return flag(XMLUni::fgXercesSchemaFullChecking); }
void ParserConfiguration::setSchemaFullChecking(bool on) { setFlag(XMLUni::fgXercesSchemaFullChecking, on); }
bool ParserConfiguration::getDatatypeNormalization() const { return flag(XMLUni::fgDOMDatatypeNormalization); }
void ParserConfiguration::setDatatypeNormalization(bool on) { setFlag(XMLUni::fgDOMDatatypeNormalization, on); }
bool ParserConfiguration::getIgnoreAnnotations() const { return flag(XMLUni::fgXercesIgnoreAnnotations); }
void ParserConfiguration::setIgnoreAnnotations(bool on) { setFlag(XMLUni::fgXercesIgnoreAnnotations, on); }
bool ParserConfiguration::getValidateAnnotations() const { return flag(XMLUni::fgXercesValidateAnnotations); }
void ParserConfiguration::setValidateAnnotations(bool on) { setFlag(XMLUni::fgXercesValidateAnnotations, on); }
bool ParserConfiguration::getGenerateSyntheticAnnotations() const {
  return flag(XMLUni::fgXercesGenerateSyntheticAnnotations);
}
void ParserConfiguration::setGenerateSyntheticAnnotations(bool on) {
  setFlag(XMLUni::fgXercesGenerateSyntheticAnnotations, on);
}
bool ParserConfiguration::getCacheGrammarFromParse() const { return flag(XMLUni::fgXercesCacheGrammarFromParse); }
void ParserConfiguration::setCacheGrammarFromParse(bool on) { setFlag(XMLUni::fgXercesCacheGrammarFromParse, on); }
bool ParserConfiguration::getUseCachedGrammarInParse() const { return flag(XMLUni::fgXercesUseCachedGrammarInParse); }
void ParserConfiguration::setUseCachedGrammarInParse(bool on) { setFlag(XMLUni::fgXercesUseCachedGrammarInParse, on); }
bool ParserConfiguration::getHandleMultipleImports() const { return flag(XMLUni::fgXercesHandleMultipleImports); }
void ParserConfiguration::setHandleMultipleImports(bool on) { setFlag(XMLUni::fgXercesHandleMultipleImports, on); }
bool ParserConfiguration::getHasPSVIInfo() const { return flag(XMLUni::fgXercesDOMHasPSVIInfo); }
void ParserConfiguration::setHasPSVIInfo(bool on) { setFlag(XMLUni::fgXercesDOMHasPSVIInfo, on); }
bool ParserConfiguration::getIdentityConstraintChecking() const {
  return flag(XMLUni::fgXercesIdentityConstraintChecking);
}
void ParserConfiguration::setIdentityConstraintChecking(bool on) {
  setFlag(XMLUni::fgXercesIdentityConstraintChecking, on);
}
bool ParserConfiguration::getIgnoreCachedDTD() const { return flag(XMLUni::fgXercesIgnoreCachedDTD); }
void ParserConfiguration::setIgnoreCachedDTD(bool on) { setFlag(XMLUni::fgXercesIgnoreCachedDTD, on); }

std::optional<std::size_t> ParserConfiguration::getEntityExpansionLimit() const {
  return detail::EntityExpansionLimit(configuration()).get();
}
void ParserConfiguration::setEntityExpansionLimit(std::optional<std::size_t> limit) {
  detail::EntityExpansionLimit expansions(configuration());
  if (limit) {
    expansions.set(*limit);
  } else {
    expansions.lift();
  }
}

}  // namespace paxorel::xml
