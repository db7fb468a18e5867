#pragma once

#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <xercesc/util/XercesDefs.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class LocalFileFormatTarget;
class XMLFormatTarget;
class XMLFormatter;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

/// A text file open for writing, into which callers write their own text
/// (in the writer's encoding) and DOMWriter::write serializes nodes (in the
/// serializer's encoding), so both can be mixed in one file.
///
/// The constructor cuts an existing file to nothing. Once closed, a writer
/// stays closed: it does not keep the path, so a later write fails with
/// fileWriteError naming an empty path and the file is not touched again.
class FileWriter : public XMLObject {
 public:
  /// Opens `path` for UTF-8 text. The path checks fail as
  /// makeLocalFileFormatTarget says, touching nothing.
  explicit FileWriter(const ustring& path);
  /// Opens `path` for text in `encoding`. An encoding that Xerces does not
  /// know fails with Xerces's own exception; the file exists by then, but is
  /// closed again.
  FileWriter(const ustring& path, const ustring& encoding);
  /// Closes the file.
  ~FileWriter() override;
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  const char* getFullyQualifiedVorloTypeName() const override;

  /// Nothing when open; otherwise tries to open the kept (empty) path again,
  /// which fails with fileWriteError.
  void open();
  bool isOpen() const noexcept;
  /// Writes `text` transcoded to the writer's encoding. A closed writer fails
  /// as open does; a failed write is fileWriteError with an empty path; a
  /// character the encoding cannot hold is Xerces's TranscodingException.
  void write(const ustring& text);
  /// Forces buffered output out to the file; Xerces's exception passes
  /// through. A closed writer is fileWriteError.
  void flush();
  /// Closes the file; nothing when closed already.
  void close();
  /// The encoding exactly as the constructor got it.
  ustring getFileEncoding() const;
  /// A new target on `path` once it has passed the output file checks,
  /// owned by the caller; failures as DOMWriter::makeLocalFileFormatTarget,
  /// raised by this writer.
  xercesc::LocalFileFormatTarget* makeLocalFileFormatTarget(const ustring& path) const;

 private:
  friend class DOMWriter;

  void openOn(const ustring& path);
  /// The open target, for an operation of `caller`; a closed writer is
  /// fileWriteError raised by `caller`.
  xercesc::XMLFormatTarget* openTarget(const XMLObject& caller) const;

  ustring path_;  // never assigned: see the class comment
  ustring encoding_;
  std::unique_ptr<xercesc::XMLFormatTarget> target_;  // null when closed
  std::unique_ptr<xercesc::XMLFormatter> formatter_;  // null when closed
};

}  // namespace paxorel::xml
