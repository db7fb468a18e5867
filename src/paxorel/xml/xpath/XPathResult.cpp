#include <paxorel/xml/xpath/XPathResult.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Document.hpp>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/dom/DOMXPathException.hpp>

#include <cstdint>

namespace paxorel::xml {

using xercesc::DOMXPathException;

XPathResult::XPathResult() = default;

// A shared pointer with the releasing deleter releases `result` itself
// should its own allocation fail.
XPathResult::XPathResult(xercesc::DOMXPathResult* result, std::shared_ptr<Document> owner)
    : result_(result, detail::Release{}), owner_(std::move(owner)) {}

XPathResult::XPathResult(std::shared_ptr<xercesc::DOMXPathResult> result, std::shared_ptr<Document> owner)
    : result_(std::move(result)), owner_(std::move(owner)) {}

// The Xerces result goes before the document that its nodes belong to.
XPathResult::~XPathResult() { result_.reset(); }

const char* XPathResult::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.XPathResult"; }

xercesc::DOMXPathResult* XPathResult::result() const {
  if (!result_) raiseXmlError(*this, xml_error::emptyObjectArgument("XPathResult"));
  return result_.get();
}

namespace {

bool isSnapshot(xercesc::DOMXPathResult::ResultType type) {
  return type == xercesc::DOMXPathResult::UNORDERED_NODE_SNAPSHOT_TYPE ||
         type == xercesc::DOMXPathResult::ORDERED_NODE_SNAPSHOT_TYPE;
}

}  // namespace

double XPathResult::getResultType() const { return static_cast<std::uint32_t>(result()->getResultType()); }

ustring XPathResult::getResultTypeName() const {
  static const ustring unorderedNodeSnapshot = u"UnorderedNodeSnapshot";
  static const ustring orderedNodeSnapshot = u"OrderedNodeSnapshot";
  static const ustring anyUnorderedNode = u"AnyUnorderedNode";
  static const ustring firstOrderedNode = u"FirstOrderedNode";
  static const ustring unknown = u"Unknown";
  switch (truncateS(getResultType())) {
    case 6: return unorderedNodeSnapshot;
    case 7: return orderedNodeSnapshot;
    case 8: return anyUnorderedNode;
    case 9: return firstOrderedNode;
    default: return unknown;
  }
}

double XPathResult::getSnapshotLength() const {
  xercesc::DOMXPathResult* xpath = result();
  if (!isSnapshot(xpath->getResultType())) {
    raiseXmlError(*this, xml_error::xpathResultGetSnapshotLengthTypeError());
  }
  return toDouble(xpath->getSnapshotLength());
}

double XPathResult::getSnapshotLengthNoError() const {
  xercesc::DOMXPathResult* xpath = result();
  if (!isSnapshot(xpath->getResultType())) return 0.0;
  return toDouble(xpath->getSnapshotLength());
}

Node* XPathResult::getNodeValue() const {
  xercesc::DOMXPathResult* xpath = result();
  try {
    return Node::downcast(xpath->getNodeValue(), owner_);
  } catch (const DOMXPathException& e) {
    if (e.code == DOMXPathException::NO_RESULT_ERROR) {
      raiseXmlError(*this, xml_error::xpathResultGetNodeValueEmptyNodeError());
    }
    return nullptr;
  }
}

Node* XPathResult::getNodeValueNoError() const {
  xercesc::DOMXPathResult* xpath = result();
  try {
    return Node::downcast(xpath->getNodeValue(), owner_);
  } catch (const DOMXPathException&) {
    return nullptr;
  }
}

bool XPathResult::snapshotItem(double index) { return result()->snapshotItem(conversionU(index)); }

bool XPathResult::snapshotNode(double index) { return snapshotItem(index - 1.0); }

// --- helpers of the XPath operations ---

xercesc::DOMXPathResult::ResultType detail::resultType(double type) noexcept {
  // Without a fixed underlying type the enum holds 0 to 127 only.
  constexpr std::int32_t largest = 127;
  const std::int32_t code = truncateS(type);
  return static_cast<xercesc::DOMXPathResult::ResultType>(code >= 0 && code <= largest ? code : largest);
}

void detail::refuseForeignNode(const xercesc::DOMNode& node, const xercesc::DOMDocument* document) {
  const xercesc::DOMDocument* home = node.getNodeType() == xercesc::DOMNode::DOCUMENT_NODE
                                         ? static_cast<const xercesc::DOMDocument*>(&node)
                                         : node.getOwnerDocument();
  if (home != document) throw xercesc::DOMException(xercesc::DOMException::WRONG_DOCUMENT_ERR);
}

}  // namespace paxorel::xml
