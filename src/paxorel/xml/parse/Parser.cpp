#include <paxorel/xml/parse/Parser.hpp>

#include <paxorel/xml/core/ErrorHandler.hpp>
#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/dom/DocumentRegistry.hpp>
#include <paxorel/xml/parse/EntityExpansionLimit.hpp>
#include <paxorel/xml/parse/ParserConfiguration.hpp>

#include <basis/filesystem/filesystem.hpp>
#include <basis/text/utf.hpp>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/XMLURL.hpp>

namespace paxorel::xml {

using xercesc::XMLPlatformUtils;
using xercesc::XMLUni;

namespace {

// A tree that Xerces returned and nobody took over; released on leaving.
struct UnclaimedTree {
  xercesc::DOMDocument* tree;
  ~UnclaimedTree() {
    if (tree) tree->release();
  }
  // The new Document now owns the tree.
  Document* adopt() {
    auto* document = new Document(tree);
    tree = nullptr;
    return document;
  }
};

struct InputReleaser {
  void operator()(xercesc::DOMLSInput* input) const { input->release(); }
};

}  // namespace

Parser::Parser() : ls_(lsImplementation()) {
  xercesc::DOMLSParser* parser = ls_->createLSParser(xercesc::DOMImplementationLS::MODE_SYNCHRONOUS, nullptr,
                                                     XMLPlatformUtils::fgMemoryManager, nullptr);
  // Xerces does not own what an entity-expansion limit installs; the parser
  // takes it along when it goes.
  parser_.reset(parser, [](xercesc::DOMLSParser* p) {
    detail::EntityExpansionLimit(p->getDomConfig()).lift();
    p->release();
  });
  // Each parsed tree belongs to its Document, not to the parser.
  parser_->getDomConfig()->setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, true);
}

Parser::~Parser() = default;

const char* Parser::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Parser"; }

ParserConfiguration* Parser::getConfiguration() const { return new ParserConfiguration(parser_); }

Document* Parser::parseString(const ustring& text) const {
  const std::unique_ptr<xercesc::DOMLSInput, InputReleaser> input(
      ls_->createLSInput(XMLPlatformUtils::fgMemoryManager));
  const std::string bytes = basis::text::to_utf8(text);
  xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(), "XML", false,
                                    XMLPlatformUtils::fgMemoryManager);
  source.setCopyBufToStream(false);
  input->setByteStream(&source);
  input->setEncoding(XMLUni::fgUTF8EncodingString);

  const detail::ErrorHandlerScope scope(parser_->getDomConfig());
  UnclaimedTree result{nullptr};
  try {
    result.tree = parser_->parse(input.get());
  } catch (const xercesc::DOMLSException& e) {
    const auto handler = scope.handler();
    raiseXmlError(*this, xml_error::parseStringError(text, handler ? handler->message : exceptionMessage(e)));
  }
  if (const auto handler = scope.handler(); handler && handler->failed) {
    raiseXmlError(*this, xml_error::parseStringError(text, handler->message));
  }
  return result.adopt();
}

Document* Parser::parseURI(const ustring& uri) const {
  const detail::ErrorHandlerScope scope(parser_->getDomConfig());
  validatePath(uri);
  UnclaimedTree result{nullptr};
  try {
    result.tree = parser_->parseURI(XercesString(uri));
  } catch (const xercesc::DOMLSException& e) {
    const auto handler = scope.handler();
    raiseXmlError(*this, xml_error::parseFileError(uri, handler ? handler->message : exceptionMessage(e)));
  }
  const auto handler = scope.handler();
  if (!handler) return nullptr;  // the configured handler has had the reports; no document
  if (handler->failed) {
    // Whether validation was on is read after the fact: with it on, every
    // failure counts as a validation error.
    const ParserConfiguration configuration(parser_);
    if (!configuration.getValidate()) raiseXmlError(*this, xml_error::parseFileError(uri, handler->message));
    const ustring kind = configuration.getSchema() ? u"Schema" : u"DTD";
    raiseXmlError(*this, xml_error::docValidationError(kind, handler->line, handler->column, handler->message));
  }
  return result.adopt();
}

const ustring& Parser::validatePath(const ustring& uri) const {
  ustring path = uri;
  if (uri.find(u"file:") != ustring::npos) {
    try {
      const xercesc::XMLURL url(XercesString(uri), XMLPlatformUtils::fgMemoryManager);
      path = XercesString::toUstring(url.getPath());
    } catch (const xercesc::MalformedURLException& e) {
      raiseXmlError(*this, xml_error::malformedURL(uri, e.getMessage()));
    }
  }
  namespace fs = basis::filesystem;
  if ((fs::status(path) & fs::file_type_mask) == fs::directory_file) {
    raiseXmlError(*this, xml_error::inputFileIsDirectoryError(path));
  }
  if (!fs::exists(path)) raiseXmlError(*this, xml_error::inputFileNonexistentError(path));
  return uri;
}

std::shared_ptr<Document> parseString(const ustring& text) {
  const Parser parser;
  return DocumentRegistry::shareWithCaller(parser.parseString(text));
}

std::shared_ptr<Document> parseFile(const ustring& uri) {
  const Parser parser;
  return DocumentRegistry::shareWithCaller(parser.parseURI(uri));
}

}  // namespace paxorel::xml
