#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>
#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <memory>

namespace paxorel::xml {

class Document;
class ParserConfiguration;

/// Turns XML text, a path or a "file:" URL into a Document.
///
/// Every option lives in the parser's configuration (getConfiguration). With
/// no error handler configured, the first report of any severity, warnings
/// included, ends the parse and becomes parseStringError, parseFileError or,
/// when validation is on, docValidationError. A parser serves any number of
/// parses, one after another; each Document outlives it.
class Parser : public XMLObject {
 public:
  Parser();
  ~Parser() override;

  const char* getFullyQualifiedVorloTypeName() const override;

  /// A new view of this parser's options, owned by the caller; all views of
  /// one parser show the same settings.
  ParserConfiguration* getConfiguration() const;

  /// Parses `text`, handed to Xerces as UTF-8, so that an encoding named in
  /// its XML declaration has no say. Not the caller's to delete.
  Document* parseString(const ustring& text) const;
  /// Parses the file named by a path or a "file:" URL (see validatePath).
  /// With an error handler configured it reports through the handler only
  /// and gives null. Not the caller's to delete.
  Document* parseURI(const ustring& uri) const;
  /// Returns `uri` itself when it names something that exists and is not a
  /// directory. Text that holds "file:" anywhere is read as a URL, whose path
  /// is taken as written (no percent decoding). Fails with malformedURL,
  /// inputFileIsDirectoryError or inputFileNonexistentError.
  const ustring& validatePath(const ustring& uri) const;

 private:
  xercesc::DOMImplementation* ls_;
  std::shared_ptr<xercesc::DOMLSParser> parser_;  // shared with the configurations
};

/// Parses `text` into a new document shared with the caller.
std::shared_ptr<Document> parseString(const ustring& text);
/// Parses the file at a path or "file:" URL into a new document shared with the caller.
std::shared_ptr<Document> parseFile(const ustring& uri);

}  // namespace paxorel::xml
