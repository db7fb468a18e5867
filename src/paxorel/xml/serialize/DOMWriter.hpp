#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class DOMLSSerializer;
class LocalFileFormatTarget;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

class FileWriter;
class Node;
class WriterConfiguration;

/// Turns a node and its subtree into XML text: into a FileWriter, a file
/// named by a path, or a string.
///
/// A writer holds one serializer of Xerces for any number of writes; its
/// options are reached through getConfiguration. A new writer differs from
/// Xerces's defaults in one option: FormatPrettyPrintDouble is off. The first
/// report of the serializer, of any severity, ends a write with writeError.
class DOMWriter : public XMLObject {
 public:
  DOMWriter();
  ~DOMWriter() override;

  const char* getFullyQualifiedVorloTypeName() const override;

  /// A new view of this writer's options, owned by the caller; it keeps the
  /// serializer alive, and all views of one writer show the same settings.
  WriterConfiguration* getConfiguration() const;

  /// Serializes `node` into the file of `fileWriter`, in the serializer's
  /// encoding (the file writer's own is not used). A null node is
  /// emptyNodeArgument, a null file writer emptyObjectArgument, a closed one
  /// fileWriteError.
  void write(const Node* node, FileWriter* fileWriter) const;
  /// Serializes `node` into the file at `path` in the encoding that Xerces
  /// chooses. A null node is emptyNodeArgument; the path fails as
  /// makeLocalFileFormatTarget says.
  void writeToURI(const Node* node, const ustring& path) const;
  /// The same in `encoding`; an empty one leaves the choice to Xerces.
  void writeToURI(const Node* node, const ustring& path, const ustring& encoding) const;
  /// The XML text of `node`. A null node is emptyNodeArgument.
  ustring writeToString(const Node* node) const;
  /// The line ending of later writes, unchecked; empty is Xerces's default.
  void setNewLine(const ustring& text);
  /// Empty until set.
  ustring getNewLine() const;
  /// A new target on `path`, owned by the caller, once the path has passed
  /// the output file checks, in this order, all before the file is touched:
  /// the parent directory exists (outputFileNonexistentDirectoryError) and
  /// may be written (outputFileReadOnlyDirectoryError), the path is no
  /// directory (outputFileIsDirectoryError), an existing file may be written
  /// (outputFileReadOnlyError). An existing file is cut to nothing; a file
  /// Xerces cannot open is fileWriteError with Xerces's message.
  xercesc::LocalFileFormatTarget* makeLocalFileFormatTarget(const ustring& path) const;

 private:
  xercesc::DOMImplementation* ls_;
  std::shared_ptr<xercesc::DOMLSSerializer> serializer_;  // shared with the configurations
};

}  // namespace paxorel::xml
