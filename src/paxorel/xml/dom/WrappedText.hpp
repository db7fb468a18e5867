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
/// list, from a sibling's links or split, or along with a node that the
/// library moves into the attribute: each of these marks the text nodes it
/// hands out. (Asking each new wrapper's node for its parent would cost every
/// navigation a good part of its time.) The mark is DOM user data of the
/// node, so it goes with its document; it stays after the wrapper has gone.
class WrappedText {
 public:
  /// Notes a wrapper made for `node` (may be null), reached from `from` by a
  /// child or sibling link. Inline: it is every navigation step's, and a step
  /// from an element, the common one, asks one question.
  static void noteReached(const xercesc::DOMNode& from, xercesc::DOMNode* node) {
    const xercesc::DOMNode::NodeType type = from.getNodeType();
    if (type == xercesc::DOMNode::ATTRIBUTE_NODE || type == xercesc::DOMNode::TEXT_NODE) noteLinked(from, node);
  }
  /// Notes a wrapper made for `node` (may be null), reached from a list.
  static void noteListed(xercesc::DOMNode* node);
  /// Notes that the library has put nodes into `parent`.
  static void noteMovedInto(xercesc::DOMNode& parent);
  /// Whether `node` is a marked text node.
  static bool isMarked(const xercesc::DOMNode& node);

 private:
  /// noteReached from an attribute or a text node.
  static void noteLinked(const xercesc::DOMNode& from, xercesc::DOMNode* node);
};

}  // namespace paxorel::xml::detail
