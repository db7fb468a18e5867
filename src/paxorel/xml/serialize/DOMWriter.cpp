#include <paxorel/xml/serialize/DOMWriter.hpp>

#include <paxorel/xml/core/ErrorHandler.hpp>
#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Node.hpp>
#include <paxorel/xml/serialize/FileWriter.hpp>
#include <paxorel/xml/serialize/SkipDTD.hpp>
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

// Runs one write of the serializer and drops whatever it throws: a failure
// that counts has been reported to the handler before.
void serialize(xercesc::DOMLSSerializer& serializer, const xercesc::DOMNode* node, xercesc::DOMLSOutput* output) {
  try {
    serializer.write(node, output);
  } catch (...) {
  }
}

// The filter step of every write. The DTD flag is read from a new
// configuration, where it is always true, so the filter never goes in:
// setDTD by design has no effect on output.
void filterStep(const std::shared_ptr<xercesc::DOMLSSerializer>& serializer) {
  const WriterConfiguration configuration(serializer);
  if (!configuration.getDTD()) serializer->setFilter(&SkipDTD::instance());
}

// The filter step, then `write` under an error handler of its own (nothing
// else ever sets one on the serializer), detached again on every path.
// Gives what the handler recorded.
template <class Write>
std::shared_ptr<const detail::ErrorHandler> reported(const std::shared_ptr<xercesc::DOMLSSerializer>& serializer,
                                                     Write write) {
  filterStep(serializer);
  const detail::ErrorHandlerScope scope(serializer->getDomConfig());
  write();
  return scope.handler();
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

void DOMWriter::write(const Node* node, FileWriter* fileWriter) const {
  const xercesc::DOMNode* impl = Node::implOf(*this, node);
  std::shared_ptr<const detail::ErrorHandler> report;
  {
    const Output output(ls_->createLSOutput(XMLPlatformUtils::fgMemoryManager));
    if (!fileWriter) raiseXmlError(*this, xml_error::emptyObjectArgument("FileWriter"));
    output->setByteStream(fileWriter->openTarget(*this));
    report = reported(serializer_, [&] { serialize(*serializer_, impl, output.get()); });
  }
  if (report->failed) raiseXmlError(*this, xml_error::writeError(report->message));
}

void DOMWriter::writeToURI(const Node* node, const ustring& path) const { writeToURI(node, path, ustring()); }

void DOMWriter::writeToURI(const Node* node, const ustring& path, const ustring& encoding) const {
  const xercesc::DOMNode* impl = Node::implOf(*this, node);
  std::shared_ptr<const detail::ErrorHandler> report;
  {
    // Destroyed in reverse: the target is closed, then the output released.
    const Output output(ls_->createLSOutput(XMLPlatformUtils::fgMemoryManager));
    const std::unique_ptr<xercesc::LocalFileFormatTarget> target(makeLocalFileFormatTarget(path));
    output->setByteStream(target.get());
    if (!encoding.empty()) output->setEncoding(XercesString(encoding));
    report = reported(serializer_, [&] { serialize(*serializer_, impl, output.get()); });
  }
  if (report->failed) raiseXmlError(*this, xml_error::writeError(report->message));
}

ustring DOMWriter::writeToString(const Node* node) const {
  const xercesc::DOMNode* impl = Node::implOf(*this, node);
  std::unique_ptr<XMLCh, TextReleaser> text;
  // Exceptions of Xerces pass through here.
  const auto report = reported(serializer_, [&] { text.reset(serializer_->writeToString(impl, nullptr)); });
  if (report->failed) raiseXmlError(*this, xml_error::writeError(report->message));
  return XercesString::toUstring(text.get());
}

void DOMWriter::setNewLine(const ustring& text) { serializer_->setNewLine(XercesString(text)); }

ustring DOMWriter::getNewLine() const { return XercesString::toUstring(serializer_->getNewLine()); }

xercesc::LocalFileFormatTarget* DOMWriter::makeLocalFileFormatTarget(const ustring& path) const {
  return detail::checkedFileTarget(*this, path);
}

}  // namespace paxorel::xml
