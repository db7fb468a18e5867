#pragma once

#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <xercesc/util/XercesDefs.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class DOMXPathEvaluator;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

class Document;
class Node;
class XPathResult;

/// An XPath evaluator of the XML library, for a native client that has one;
/// Document::evaluate is the usual way in. Nothing of Xerces is translated:
/// its exceptions pass through as they stand.
class XPathEvaluator : public XMLObject {
 public:
  /// An evaluator without a Xerces object, as the host's constructor makes
  /// it; its evaluate fails with emptyObjectArgument.
  XPathEvaluator();
  /// A wrapper of `evaluator` (not owned) for the tree of `owner`, which it
  /// keeps alive.
  XPathEvaluator(xercesc::DOMXPathEvaluator* evaluator, std::shared_ptr<Document> owner);
  ~XPathEvaluator() override;

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The Xerces evaluator, or null.
  xercesc::DOMXPathEvaluator* getImpl() const noexcept { return evaluator_; }

  /// Evaluates `expression` from `context` for a result of any type, without
  /// a namespace resolver. A null context is emptyNodeArgument; a context of
  /// another document is Xerces's DOMException WRONG_DOCUMENT_ERR. (Xerces
  /// 3.2 offers node results only, and refuses this request with TYPE_ERR.)
  XPathResult* evaluate(const ustring& expression, const Node* context);

 private:
  xercesc::DOMXPathEvaluator* evaluator_ = nullptr;
  std::shared_ptr<Document> owner_;
};

}  // namespace paxorel::xml
