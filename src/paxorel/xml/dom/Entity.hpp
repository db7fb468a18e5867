#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// An entity declared in a document type. Absent values are empty strings.
class Entity : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Entity(xercesc::DOMEntity* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;

  ustring getPublicId() const;
  ustring getSystemId() const;
  /// The notation of an unparsed entity; empty for a parsed one.
  ustring getNotationName() const;
  ustring getInputEncoding() const;
  ustring getXmlEncoding() const;
  ustring getXmlVersion() const;
};

}  // namespace paxorel::xml
