#include <paxorel/xml/dom/WrappedText.hpp>

#include <xercesc/dom/DOMNode.hpp>

namespace paxorel::xml::detail {

using xercesc::DOMNode;

namespace {

const XMLCh key[] = u"paxorel-xml:wrapped";

bool isText(const DOMNode& node) { return node.getNodeType() == DOMNode::TEXT_NODE; }
bool isAttribute(const DOMNode& node) { return node.getNodeType() == DOMNode::ATTRIBUTE_NODE; }

void mark(DOMNode& node) {
  static char marker;
  node.setUserData(key, &marker, nullptr);
}

}  // namespace

// From an attribute a link leads to its child; from a marked text node to a
// sibling in the same attribute (or out of one that it has left).
void WrappedText::noteLinked(const DOMNode& from, DOMNode* node) {
  if (node && isText(*node) && (isAttribute(from) || isMarked(from))) mark(*node);
}

void WrappedText::noteListed(DOMNode* node) {
  if (!node || !isText(*node)) return;
  const DOMNode* parent = node->getParentNode();
  if (parent && isAttribute(*parent)) mark(*node);
}

void WrappedText::noteMovedInto(DOMNode& parent) {
  if (!isAttribute(parent)) return;
  for (DOMNode* child = parent.getFirstChild(); child; child = child->getNextSibling()) {
    if (isText(*child)) mark(*child);
  }
}

bool WrappedText::isMarked(const DOMNode& node) { return isText(node) && node.getUserData(key) != nullptr; }

}  // namespace paxorel::xml::detail
