#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <cstddef>
#include <memory>
#include <optional>

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
  /// A view of `parser`'s options; it keeps the parser alive. The parser is
  /// one that Parser made: its release frees what an entity-expansion limit
  /// installs. A view of no parser (null) fails every operation with
  /// emptyNodeArgument.
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

  /// The most entity expansions one parse may make, or no value for no limit
  /// (the default). Every expansion of a declared entity counts, nested ones
  /// included; predefined entities and character references do not. A parse
  /// that goes past the limit fails as a malformed document does, with
  /// Xerces's message. Installs Xerces's SecurityManager, which the parser
  /// keeps until the limit is lifted or the parser goes.
  std::optional<std::size_t> getEntityExpansionLimit() const;
  /// Sets the limit (0 lets no entity be expanded) or, with no value, lifts it.
  void setEntityExpansionLimit(std::optional<std::size_t> limit);

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
