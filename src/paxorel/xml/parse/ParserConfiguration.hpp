#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

namespace paxorel::xml {

/// A view of the options of one Parser: every getter asks the parser's
/// DOMConfiguration and every setter tells it, at once. Defaults are those of
/// Xerces. Exceptions of Xerces pass through untranslated.
///
/// Two readings are crossed on purpose, for compatibility with existing host
/// programs: getStandardURIConformant reads the option UseCachedGrammarInParse,
/// and getIdentityConstraintChecking's host twin reads SchemaFullChecking
/// (the native getIdentityConstraintChecking reads the true option).
class ParserConfiguration : public XMLObject {
 public:
  /// A view of `parser`'s options; it keeps the parser alive. A view of no
  /// parser (null) fails every operation with emptyNodeArgument.
  explicit ParserConfiguration(std::shared_ptr<xercesc::DOMLSParser> parser);
  ~ParserConfiguration() override;

  const char* getFullyQualifiedVorloTypeName() const override;

  bool getNamespaces() const;
  void setNamespaces(bool on);
  bool getElementContentWhitespace() const;
  void setElementContentWhitespace(bool on);
  bool getLoadExternalDTD() const;
  void setLoadExternalDTD(bool on);
  bool getDisableDefaultEntityResolution() const;
  void setDisableDefaultEntityResolution(bool on);
  bool getDisallowDoctype() const;
  void setDisallowDoctype(bool on);
  bool getEntities() const;
  void setEntities(bool on);
  /// Reads UseCachedGrammarInParse (see the class comment).
  bool getStandardURIConformant() const;
  void setStandardURIConformant(bool on);
  bool getValidate() const;
  void setValidate(bool on);
  bool getSkipDTDValidation() const;
  void setSkipDTDValidation(bool on);
  bool getValidationErrorAsFatal() const;
  void setValidationErrorAsFatal(bool on);
  bool getContinueAfterFatalError() const;
  void setContinueAfterFatalError(bool on);
  bool getComments() const;
  void setComments(bool on);
  bool getDoXInclude() const;
  void setDoXInclude(bool on);
  /// Empty when unset.
  ustring getExternalSchemaLocation() const;
  void setExternalSchemaLocation(const ustring& location);
  /// Empty when unset.
  ustring getExternalNoNamespaceSchemaLocation() const;
  void setExternalNoNamespaceSchemaLocation(const ustring& location);
  bool getLoadSchema() const;
  void setLoadSchema(bool on);
  bool getSchema() const;
  void setSchema(bool on);
  bool getValidateIfSchema() const;
  void setValidateIfSchema(bool on);
  bool getSchemaFullChecking() const;
  void setSchemaFullChecking(bool on);
  bool getDatatypeNormalization() const;
  void setDatatypeNormalization(bool on);
  bool getIgnoreAnnotations() const;
  void setIgnoreAnnotations(bool on);
  bool getValidateAnnotations() const;
  void setValidateAnnotations(bool on);
  bool getGenerateSyntheticAnnotations() const;
  void setGenerateSyntheticAnnotations(bool on);
  bool getCacheGrammarFromParse() const;
  void setCacheGrammarFromParse(bool on);
  bool getUseCachedGrammarInParse() const;
  void setUseCachedGrammarInParse(bool on);
  bool getHandleMultipleImports() const;
  void setHandleMultipleImports(bool on);
  bool getHasPSVIInfo() const;
  void setHasPSVIInfo(bool on);
  bool getIdentityConstraintChecking() const;
  void setIdentityConstraintChecking(bool on);
  bool getIgnoreCachedDTD() const;
  void setIgnoreCachedDTD(bool on);

 private:
  xercesc::DOMConfiguration* configuration() const;  // emptyNodeArgument when missing
  bool flag(const XMLCh* name) const;
  void setFlag(const XMLCh* name, bool on);
  ustring text(const XMLCh* name) const;
  void setText(const XMLCh* name, const ustring& value);

  std::shared_ptr<xercesc::DOMLSParser> parser_;
  xercesc::DOMConfiguration* configuration_;
};

}  // namespace paxorel::xml
