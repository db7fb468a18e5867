#pragma once

#include <xercesc/dom/DOMNode.hpp>

namespace paxorel::xml::detail {

/// Whether a walk in document order goes into the content of entity references.
enum class References { entered, skipped };

/// The node after `node` in document order, within the tree of `root`;
/// attributes are not part of that order. Iterative, so that a deep tree
/// cannot exhaust the stack. Inline: it is a walk's every step.
inline const xercesc::DOMNode* nextInDocument(const xercesc::DOMNode* node, const xercesc::DOMNode* root,
                                              References references) {
  const bool enter =
      references == References::entered || node->getNodeType() != xercesc::DOMNode::ENTITY_REFERENCE_NODE;
  if (const xercesc::DOMNode* child = enter ? node->getFirstChild() : nullptr) return child;
  for (; node != root; node = node->getParentNode()) {
    if (const xercesc::DOMNode* sibling = node->getNextSibling()) return sibling;
  }
  return nullptr;
}

}  // namespace paxorel::xml::detail
