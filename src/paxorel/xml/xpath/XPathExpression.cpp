#include <paxorel/xml/xpath/XPathExpression.hpp>

#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/xpath/XPathResult.hpp>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMXPathExpression.hpp>

namespace paxorel::xml {

XPathExpression::XPathExpression() = default;

XPathExpression::XPathExpression(xercesc::DOMXPathExpression* expression, std::shared_ptr<Document> owner)
    : expression_(expression), owner_(std::move(owner)) {}

XPathExpression::~XPathExpression() = default;

const char* XPathExpression::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.XPathExpression"; }

XPathResult* XPathExpression::evaluate(const Node* context, double type, XPathResult* result) const {
  const xercesc::DOMNode* node = Node::implOf(*this, context);
  if (!result || !result->result_) raiseXmlError(*this, xml_error::emptyObjectArgument("XPathResult"));
  if (!expression_) raiseXmlError(*this, xml_error::emptyObjectArgument("XPathExpression"));
  detail::refuseForeignNode(*node, owner_ ? owner_->getImpl() : nullptr);
  // Xerces may refill the given result; one of another document would then
  // hold nodes that its own owner pointer does not keep alive.
  if (result->owner_ != owner_) throw xercesc::DOMException(xercesc::DOMException::WRONG_DOCUMENT_ERR);

  xercesc::DOMXPathResult* given = result->result_.get();
  xercesc::DOMXPathResult* made = expression_->evaluate(node, detail::resultType(type), given);
  if (made == given) return new XPathResult(result->result_, owner_);
  std::unique_ptr<xercesc::DOMXPathResult, detail::Release> held(made);
  return new XPathResult(held.release(), owner_);
}

}  // namespace paxorel::xml
