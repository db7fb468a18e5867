#include <paxorel/xml/host/HostClass.hpp>
#include <paxorel/xml/parse/ParserConfiguration.hpp>

namespace paxorel::xml::mi {

void VorParserConfiguration::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  using C = ParserConfiguration;
  HostClass<C>(*this, cls)
      .bareConstructor(0x102)
      .property("Namespaces", &C::getNamespaces, &C::setNamespaces)
      .property("ElementContentWhitespace", &C::getElementContentWhitespace, &C::setElementContentWhitespace)
      .property("LoadExternalDTD", &C::getLoadExternalDTD, &C::setLoadExternalDTD)
      .property("DisableDefaultEntityResolution", &C::getDisableDefaultEntityResolution,
                &C::setDisableDefaultEntityResolution, 0x800)
      .property("DisableEntityResolution", &C::getDisableDefaultEntityResolution, &C::setDisableDefaultEntityResolution)
      .property("DisallowDoctype", &C::getDisallowDoctype, &C::setDisallowDoctype)
      .property("Entities", &C::getEntities, &C::setEntities)
      .property("StandardURIConformant", &C::getStandardURIConformant, &C::setStandardURIConformant)
      .property("Validate", &C::getValidate, &C::setValidate)
      .property("SkipDTDValidation", &C::getSkipDTDValidation, &C::setSkipDTDValidation)
      .property("ValidationErrorAsFatal", &C::getValidationErrorAsFatal, &C::setValidationErrorAsFatal)
      .property("ContinueAfterFatalError", &C::getContinueAfterFatalError, &C::setContinueAfterFatalError)
      .property("Comments", &C::getComments, &C::setComments)
      .property("DoXInclude", &C::getDoXInclude, &C::setDoXInclude)
      .property("ExternalSchemaLocation", &C::getExternalSchemaLocation, &C::setExternalSchemaLocation)
      .property("ExternalNoNamespaceSchemaLocation", &C::getExternalNoNamespaceSchemaLocation,
                &C::setExternalNoNamespaceSchemaLocation)
      .property("LoadSchema", &C::getLoadSchema, &C::setLoadSchema)
      .property("Schema", &C::getSchema, &C::setSchema)
      .property("ValidateIfSchema", &C::getValidateIfSchema, &C::setValidateIfSchema)
      .property("SchemaFullChecking", &C::getSchemaFullChecking, &C::setSchemaFullChecking)
      .property("DatatypeNormalization", &C::getDatatypeNormalization, &C::setDatatypeNormalization)
      .property("IgnoreAnnotations", &C::getIgnoreAnnotations, &C::setIgnoreAnnotations)
      .property("ValidateAnnotations", &C::getValidateAnnotations, &C::setValidateAnnotations)
      .property("GenerateSyntheticAnnotations", &C::getGenerateSyntheticAnnotations,
                &C::setGenerateSyntheticAnnotations)
      .property("CacheGrammarFromParse", &C::getCacheGrammarFromParse, &C::setCacheGrammarFromParse)
      .property("UseCachedGrammarInParse", &C::getUseCachedGrammarInParse, &C::setUseCachedGrammarInParse)
      .property("HandleMultipleImports", &C::getHandleMultipleImports, &C::setHandleMultipleImports)
      .property("HasPSVIInfo", &C::getHasPSVIInfo, &C::setHasPSVIInfo, 0x800)
      .property("HasPSVI", &C::getHasPSVIInfo, &C::setHasPSVIInfo)
      // Reads the option behind SchemaFullChecking, not the one it sets: kept so for existing host programs.
      .property("IdentityConstraintChecking", &C::getSchemaFullChecking, &C::setIdentityConstraintChecking);
}

}  // namespace paxorel::xml::mi
