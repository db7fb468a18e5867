#include <paxorel/xml/dom/WrappedText.hpp>

namespace paxorel::xml::detail {

using xercesc::DOMNode;

namespace {

const XMLCh key[] = u"paxorel-xml:wrapped";

bool isText(const DOMNode& node) { return node.getNodeType() == DOMNode::TEXT_NODE; }

}  // namespace

void WrappedText::markTextChildren(DOMNode& attribute) {
  static char marker;
  for (DOMNode* child = attribute.getFirstChild(); child; child = child->getNextSibling()) {
    if (isText(*child)) child->setUserData(key, &marker, nullptr);
  }
}

// Only a text node's parent is asked for, which costs Xerces a good deal.
void WrappedText::noteSiblingsOf(DOMNode* node) {
  if (!node || !isText(*node)) return;
  if (DOMNode* parent = node->getParentNode()) noteChildrenOf(*parent);
}

bool WrappedText::isMarked(const DOMNode& node) { return isText(node) && node.getUserData(key) != nullptr; }

}  // namespace paxorel::xml::detail
