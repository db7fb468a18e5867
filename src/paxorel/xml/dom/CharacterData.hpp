#pragma once

#include <paxorel/xml/dom/Node.hpp>

namespace paxorel::xml {

/// Base of the nodes that hold character data: text, CDATA sections, comments.
///
/// Offsets and counts are doubles counting 16-bit units from 0; they reach
/// Xerces unchecked (conversion U), and only when Xerces refuses are the
/// caller's doubles examined to name the cause: a negative count, then a
/// negative offset, else an offset past the end. A count that runs past the
/// end, negative counts included, reaches to the end of the data. Failures
/// that an operation does not name are ignored.
class CharacterData : public Node {
 public:
  /// A wrapper of `impl` (not owned) that keeps `owner` alive.
  CharacterData(xercesc::DOMCharacterData* impl, std::shared_ptr<Document> owner);

  const char* getFullyQualifiedVorloTypeName() const override;

  /// The wrapped node, or null.
  xercesc::DOMCharacterData* getImpl() const noexcept;

  ustring getData() const;
  /// The number of 16-bit units.
  double getLength() const;
  /// Replaces the whole text; a read-only node raises Xerces's DOMException.
  void setData(const ustring& data);
  /// `count` units from `offset`; an empty string when Xerces fails for a
  /// cause without an identifier. Fails with cdataSubstringData...Error.
  ustring substringData(double offset, double count) const;
  /// Fails with cdataAppendDataReadOnlyError.
  void appendData(const ustring& data);
  /// Inserts `data` before the unit at `offset`; at the length it appends.
  /// Fails with cdataInsertData...Error.
  void insertData(double offset, const ustring& data);
  /// Fails with cdataDeleteData...Error.
  void deleteData(double offset, double count);
  /// Replaces `count` units from `offset` by `data`. Fails with
  /// cdataReplaceData...Error.
  void replaceData(double offset, double count, const ustring& data);
};

}  // namespace paxorel::xml
