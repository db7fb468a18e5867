#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

namespace paxorel::xml {

class Document;

/// A view of a document's own options (those that normalizeDocument and the
/// writer follow); the options live in the document, so all views of one
/// document agree. Exceptions of Xerces pass through untranslated.
class DocumentConfiguration : public XMLObject {
 public:
  /// A view of `configuration` (not owned) that keeps `owner` alive.
  DocumentConfiguration(xercesc::DOMConfiguration* configuration, std::shared_ptr<Document> owner);
  ~DocumentConfiguration() override;

  const char* getFullyQualifiedVorloTypeName() const override;

  bool getCDATASections() const;
  void setCDATASections(bool on);
  bool getComments() const;
  void setComments(bool on);
  bool getEntities() const;
  void setEntities(bool on);
  /// Reads and writes the option "infoset", the name notwithstanding.
  bool getNamespaces() const;
  void setNamespaces(bool on);

 private:
  xercesc::DOMConfiguration* configuration() const;  // emptyNodeArgument when missing
  bool flag(const XMLCh* name) const;
  void setFlag(const XMLCh* name, bool on);

  xercesc::DOMConfiguration* configuration_;
  std::shared_ptr<Document> owner_;
};

}  // namespace paxorel::xml
