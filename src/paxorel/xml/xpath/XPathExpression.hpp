#pragma once

#include <paxorel/xml/dom/XMLObject.hpp>

#include <xercesc/util/XercesDefs.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class DOMXPathExpression;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

class Document;
class Node;
class XPathResult;

/// A parsed XPath expression of the XML library, for a native client that
/// has one. Nothing of Xerces is translated: its exceptions pass through as
/// they stand.
class XPathExpression : public XMLObject {
 public:
  /// An expression without a Xerces object, as the host's constructor makes
  /// it; its evaluate fails with emptyObjectArgument.
  XPathExpression();
  /// A wrapper of `expression` (not owned) for the tree of `owner`, which it
  /// keeps alive.
  XPathExpression(xercesc::DOMXPathExpression* expression, std::shared_ptr<Document> owner);
  ~XPathExpression() override;

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The Xerces expression, or null.
  xercesc::DOMXPathExpression* getImpl() const noexcept { return expression_; }

  /// Evaluates the expression from `context` as `type` (truncated), and
  /// returns a new wrapper. Xerces may fill and return the Xerces object of
  /// `result`, which the two wrappers then share. A null context is
  /// emptyNodeArgument, a null `result` emptyObjectArgument; a context or a
  /// `result` of another document is Xerces's DOMException WRONG_DOCUMENT_ERR.
  XPathResult* evaluate(const Node* context, double type, XPathResult* result) const;

 private:
  xercesc::DOMXPathExpression* expression_ = nullptr;
  std::shared_ptr<Document> owner_;
};

}  // namespace paxorel::xml
