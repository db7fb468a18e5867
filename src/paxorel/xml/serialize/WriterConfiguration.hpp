#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class DOMLSSerializer;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

/// A view of the options of one DOMWriter: every getter asks the writer's
/// serializer and every setter tells it, at once, so all views of a writer
/// show the same values and later writes use them. Defaults are those of
/// Xerces, except FormatPrettyPrintDouble, which a new writer turns off.
/// Exceptions of Xerces pass through untranslated.
///
/// DTD alone is a flag of this object: it reads back what was set on the
/// same object and never changes what a writer writes.
class WriterConfiguration : public XMLObject {
 public:
  /// A view of `serializer`'s options; it keeps the serializer alive.
  explicit WriterConfiguration(std::shared_ptr<xercesc::DOMLSSerializer> serializer);
  ~WriterConfiguration() override;

  const char* getFullyQualifiedVorloTypeName() const override;

  bool getFormatPrettyPrint() const;
  void setFormatPrettyPrint(bool on);
  /// Xerces's blank line between top-level nodes when pretty printing.
  bool getFormatPrettyPrintDouble() const;
  void setFormatPrettyPrintDouble(bool on);
  bool getXMLDeclaration() const;
  void setXMLDeclaration(bool on);
  /// True on every new object; setting it has no effect on output.
  bool getDTD() const;
  void setDTD(bool on);
  bool getEntities() const;
  void setEntities(bool on);
  bool getBOM() const;
  void setBOM(bool on);
  bool getDiscardDefaultContent() const;
  void setDiscardDefaultContent(bool on);
  bool getSplitCdataSections() const;
  void setSplitCdataSections(bool on);

 private:
  bool flag(const XMLCh* name) const;
  void setFlag(const XMLCh* name, bool on);

  std::shared_ptr<xercesc::DOMLSSerializer> serializer_;
  xercesc::DOMConfiguration* configuration_;
  bool dtd_ = true;
};

}  // namespace paxorel::xml
