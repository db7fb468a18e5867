#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// An attribute of an element.
class Attr : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  Attr(xercesc::DOMAttr* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;
};

}  // namespace paxorel::xml
