#pragma once

#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <xercesc/dom/DOMXPathResult.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

class Document;
class Node;
class XPathExpression;

/// The node result of an XPath evaluation, with the document it came from.
///
/// The result keeps its document alive, and so does every node it hands out.
/// The current position lives in the XML library's result: snapshotItem moves
/// it and getNodeValue reads the node there. An operation on a result without
/// its Xerces object fails with emptyObjectArgument.
class XPathResult : public XMLObject {
 public:
  static constexpr double UNORDERED_NODE_SNAPSHOT_TYPE() noexcept { return 6; }
  static constexpr double ORDERED_NODE_SNAPSHOT_TYPE() noexcept { return 7; }
  static constexpr double ANY_UNORDERED_NODE_TYPE() noexcept { return 8; }
  static constexpr double FIRST_ORDERED_NODE_TYPE() noexcept { return 9; }

  /// A result without a Xerces object, as the host's constructor makes it.
  XPathResult();
  /// Takes over `result` (null allowed): it is released when the last wrapper
  /// that shares it goes, before the hold on `owner` ends.
  XPathResult(xercesc::DOMXPathResult* result, std::shared_ptr<Document> owner);
  ~XPathResult() override;

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The Xerces result, or null.
  xercesc::DOMXPathResult* getImpl() const noexcept { return result_.get(); }

  /// The result type, such as ORDERED_NODE_SNAPSHOT_TYPE().
  double getResultType() const;
  /// "UnorderedNodeSnapshot", "OrderedNodeSnapshot", "AnyUnorderedNode",
  /// "FirstOrderedNode", or "Unknown" for any other type.
  ustring getResultTypeName() const;
  /// The number of nodes of a snapshot; any other result type is
  /// xpathResultGetSnapshotLengthTypeError.
  double getSnapshotLength() const;
  /// The same, but 0 for a result that is not a snapshot.
  double getSnapshotLengthNoError() const;
  /// A new wrapper, of the node's own class, of the node at the current
  /// position; null where there is none. Xerces's report that the result
  /// holds no node is xpathResultGetNodeValueEmptyNodeError.
  Node* getNodeValue() const;
  /// The same, but null for every refusal of Xerces.
  Node* getNodeValueNoError() const;
  /// Moves to the node at the 0-based `index` (conversion U); false past the
  /// end. A result that is not a snapshot lets Xerces's exception through.
  bool snapshotItem(double index);
  /// Moves to the node at the 1-based `index`; 0 is past the end.
  bool snapshotNode(double index);

 private:
  friend class XPathExpression;  // hands out Xerces's reused result objects

  XPathResult(std::shared_ptr<xercesc::DOMXPathResult> result, std::shared_ptr<Document> owner);
  xercesc::DOMXPathResult* result() const;  // emptyObjectArgument when missing

  std::shared_ptr<xercesc::DOMXPathResult> result_;
  std::shared_ptr<Document> owner_;
};

/// Helpers that the XPath operations share; not for clients.
namespace detail {

/// Releases an object of the XML library that a wrapper took over; null
/// too, which a shared pointer hands to its deleter.
struct Release {
  template <class T>
  void operator()(T* object) const noexcept {
    if (object) object->release();
  }
};

/// A result type given as a double, by conversion S; a value that the enum
/// cannot hold becomes its largest one, which names no type, so that Xerces
/// refuses it the same way.
xercesc::DOMXPathResult::ResultType resultType(double type) noexcept;

/// Throws Xerces's DOMException WRONG_DOCUMENT_ERR unless `node` belongs to
/// `document`. Xerces evaluates and resolves with a node of any document,
/// and the outcome would point into a tree that nothing here keeps alive.
void refuseForeignNode(const xercesc::DOMNode& node, const xercesc::DOMDocument* document);

}  // namespace detail

}  // namespace paxorel::xml
