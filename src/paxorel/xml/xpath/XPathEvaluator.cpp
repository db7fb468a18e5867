#include <paxorel/xml/xpath/XPathEvaluator.hpp>

#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/xpath/XPathResult.hpp>

#include <xercesc/dom/DOMXPathEvaluator.hpp>

namespace paxorel::xml {

XPathEvaluator::XPathEvaluator() = default;

XPathEvaluator::XPathEvaluator(xercesc::DOMXPathEvaluator* evaluator, std::shared_ptr<Document> owner)
    : evaluator_(evaluator), owner_(std::move(owner)) {}

XPathEvaluator::~XPathEvaluator() = default;

const char* XPathEvaluator::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.XPathEvaluator"; }

XPathResult* XPathEvaluator::evaluate(const ustring& expression, const Node* context) {
  const xercesc::DOMNode* node = Node::implOf(*this, context);
  if (!evaluator_) raiseXmlError(*this, xml_error::emptyObjectArgument("XPathEvaluator"));
  detail::refuseForeignNode(*node, owner_ ? owner_->getImpl() : nullptr);
  std::unique_ptr<xercesc::DOMXPathResult, detail::Release> result(
      evaluator_->evaluate(XercesString(expression), node, nullptr, xercesc::DOMXPathResult::ANY_TYPE, nullptr));
  return new XPathResult(result.release(), owner_);
}

}  // namespace paxorel::xml
