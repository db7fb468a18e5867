#pragma once

#include <xercesc/dom/DOMNode.hpp>

namespace paxorel::xml::detail {

/// The text nodes of attribute values that a wrapper may stand for.
///
/// Xerces releases the children of an attribute whenever it sets the
/// attribute's value, and hands their memory out again for the next text
/// node. Those that a wrapper may stand for are kept out of that release
/// (ReleaseGuard); the others are left to Xerces, so that a loop of value
/// changes costs no more memory than with Xerces alone.
///
/// A wrapper of such a node comes from the attribute's child links or child
/// list, from a split of one of them, from a sibling of one that was reached
/// so, or along with a node that the library moves into the attribute. Each
/// of these but the sibling marks every text child of the attribute; a
/// sibling then is marked already, since nothing but these adds a child to an
/// attribute while a marked one stays in it. (Asking each new wrapper's node
/// for its parent would cost every navigation step a good part of its time.)
/// The mark is DOM user data of the node, so it goes with its document; it
/// stays after the wrapper has gone.
class WrappedText {
 public:
  /// Notes that wrappers may be made for children of `parent`. Inline: it is
  /// every child link's, and asks a parent that is no attribute one question.
  static void noteChildrenOf(xercesc::DOMNode& parent) {
    if (parent.getNodeType() == xercesc::DOMNode::ATTRIBUTE_NODE) markTextChildren(parent);
  }
  /// Notes that a wrapper may be made for `node` (may be null), reached
  /// otherwise than by a link from its parent: from a child list, a split.
  static void noteSiblingsOf(xercesc::DOMNode* node);
  /// Whether `node` is a marked text node.
  static bool isMarked(const xercesc::DOMNode& node);

 private:
  static void markTextChildren(xercesc::DOMNode& attribute);
};

}  // namespace paxorel::xml::detail
