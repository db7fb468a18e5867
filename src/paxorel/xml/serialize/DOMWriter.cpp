#include <paxorel/xml/serialize/DOMWriter.hpp>

#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Node.hpp>
#include <paxorel/xml/serialize/FileWriter.hpp>
#include <paxorel/xml/serialize/SkipDTD.hpp>
#include <paxorel/xml/serialize/WriteErrorHandler.hpp>
#include <paxorel/xml/serialize/WriterConfiguration.hpp>
#include <paxorel/xml/serialize/checkedFileTarget.hpp>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

namespace paxorel::xml {

using xercesc::XMLPlatformUtils;
using xercesc::XMLUni;

namespace {

struct OutputReleaser {
  void operator()(xercesc::DOMLSOutput* output) const { output->release(); }
};
using Output = std::unique_ptr<xercesc::DOMLSOutput, OutputReleaser>;

struct TextReleaser {
  void operator()(XMLCh* text) const { xercesc::XMLString::release(&text, XMLPlatformUtils::fgMemoryManager); }
};

// A new WriteErrorHandler is the serializer's error handler for one write
// only: it is taken out again on every path, so that the serializer never
// points at a handler that is gone. The handler itself outlives the scope.
class HandlerScope {
 public:
  explicit HandlerScope(xercesc::DOMConfiguration* configuration)
      : configuration_(configuration), handler_(std::make_shared<WriteErrorHandler>()) {
    const xercesc::DOMErrorHandler* handler = handler_.get();
    configuration_->setParameter(XMLUni::fgDOMErrorHandler, static_cast<const void*>(handler));
  }
  ~HandlerScope() { configuration_->setParameter(XMLUni::fgDOMErrorHandler, static_cast<const void*>(nullptr)); }
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;

  std::shared_ptr<const WriteErrorHandler> handler() const { return handler_; }

 private:
  xercesc::DOMConfiguration* configuration_;
  std::shared_ptr<WriteErrorHandler> handler_;
};

// Runs one write of the serializer and drops whatever it throws: a failure
// that counts has been reported to the handler before.
void serialize(xercesc::DOMLSSerializer& serializer, const xercesc::DOMNode* node, xercesc::DOMLSOutput* output) {
  try {
    serializer.write(node, output);
  } catch (...) {
  }
}

}  // namespace

DOMWriter::DOMWriter() : ls_(lsImplementation()) {
  xercesc::DOMLSSerializer* serializer = ls_->createLSSerializer(XMLPlatformUtils::fgMemoryManager);
  // Should the shared pointer fail to allocate, it releases the serializer itself.
  serializer_.reset(serializer, [](xercesc::DOMLSSerializer* s) { s->release(); });
  serializer_->getDomConfig()->setParameter(XMLUni::fgDOMWRTXercesPrettyPrint, false);
}

DOMWriter::~DOMWriter() = default;

const char* DOMWriter::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.DOMWriter"; }

WriterConfiguration* DOMWriter::getConfiguration() const { return new WriterConfiguration(serializer_); }

// The DTD flag is read from a new configuration, where it is always true, so
// the filter never goes in: setDTD by design has no effect on output.
void DOMWriter::installFilter() const {
  const WriterConfiguration configuration(serializer_);
  if (!configuration.getDTD()) serializer_->setFilter(&SkipDTD::instance());
}

void DOMWriter::write(const Node* node, FileWriter* fileWriter) const {
  const xercesc::DOMNode* impl = Node::implOf(*this, node);
  std::shared_ptr<const WriteErrorHandler> handler;
  {
    const Output output(ls_->createLSOutput(XMLPlatformUtils::fgMemoryManager));
    if (!fileWriter) raiseXmlError(*this, xml_error::emptyObjectArgument("FileWriter"));
    output->setByteStream(fileWriter->openTarget(*this));
    installFilter();
    const HandlerScope scope(serializer_->getDomConfig());
    handler = scope.handler();
    serialize(*serializer_, impl, output.get());
  }
  if (handler->failed) raiseXmlError(*this, xml_error::writeError(handler->message));
}

void DOMWriter::writeToURI(const Node* node, const ustring& path) const { writeToURI(node, path, ustring()); }

void DOMWriter::writeToURI(const Node* node, const ustring& path, const ustring& encoding) const {
  const xercesc::DOMNode* impl = Node::implOf(*this, node);
  std::shared_ptr<const WriteErrorHandler> handler;
  {
    // Destroyed in reverse: the handler goes out, the target is closed, the output released.
    const Output output(ls_->createLSOutput(XMLPlatformUtils::fgMemoryManager));
    const std::unique_ptr<xercesc::LocalFileFormatTarget> target(makeLocalFileFormatTarget(path));
    output->setByteStream(target.get());
    if (!encoding.empty()) output->setEncoding(XercesString(encoding));
    installFilter();
    const HandlerScope scope(serializer_->getDomConfig());
    handler = scope.handler();
    serialize(*serializer_, impl, output.get());
  }
  if (handler->failed) raiseXmlError(*this, xml_error::writeError(handler->message));
}

ustring DOMWriter::writeToString(const Node* node) const {
  const xercesc::DOMNode* impl = Node::implOf(*this, node);
  installFilter();
  std::shared_ptr<const WriteErrorHandler> handler;
  std::unique_ptr<XMLCh, TextReleaser> text;
  {
    const HandlerScope scope(serializer_->getDomConfig());
    handler = scope.handler();
    text.reset(serializer_->writeToString(impl, nullptr));  // exceptions pass through
  }
  if (handler->failed) raiseXmlError(*this, xml_error::writeError(handler->message));
  return XercesString::toUstring(text.get());
}

void DOMWriter::setNewLine(const ustring& text) { serializer_->setNewLine(XercesString(text)); }

ustring DOMWriter::getNewLine() const { return XercesString::toUstring(serializer_->getNewLine()); }

xercesc::LocalFileFormatTarget* DOMWriter::makeLocalFileFormatTarget(const ustring& path) const {
  return detail::checkedFileTarget(*this, path);
}

}  // namespace paxorel::xml
