#include <paxorel/xml/serialize/FileWriter.hpp>

#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/serialize/checkedFileTarget.hpp>

#include <basis/text/utf.hpp>

#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>

#include <string>

namespace paxorel::xml {

using xercesc::XMLPlatformUtils;

namespace {
// What fileWriteError says of a writer used after close.
constexpr char16_t closedWriter[] = u"the file writer is closed";
}  // namespace

FileWriter::FileWriter(const ustring& path) : FileWriter(path, u"UTF-8") {}

FileWriter::FileWriter(const ustring& path, const ustring& encoding) : encoding_(encoding) {
  lsImplementation();  // makes sure that Xerces answers; nothing of it is kept
  openOn(path);
}

FileWriter::~FileWriter() { close(); }

const char* FileWriter::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.FileWriter"; }

void FileWriter::openOn(const ustring& path) {
  std::unique_ptr<xercesc::XMLFormatTarget> target(makeLocalFileFormatTarget(path));
  // An unknown encoding fails here, with the file made already; the target
  // goes with the exception, so the file is closed and not left open.
  formatter_.reset(new (XMLPlatformUtils::fgMemoryManager)
                       xercesc::XMLFormatter(XercesString(encoding_), target.get(), xercesc::XMLFormatter::NoEscapes,
                                             xercesc::XMLFormatter::UnRep_Fail, XMLPlatformUtils::fgMemoryManager));
  target_ = std::move(target);
}

void FileWriter::open() {
  if (isOpen()) return;
  lsImplementation();
  openOn(path_);
}

bool FileWriter::isOpen() const noexcept { return target_ != nullptr; }

void FileWriter::write(const ustring& text) {
  open();
  const std::string encoding = basis::text::to_utf8(encoding_);
  const xercesc::TranscodeToStr bytes(XercesString(text), encoding.c_str(), XMLPlatformUtils::fgMemoryManager);
  // The formatter only rides along: the bytes are in the encoding already.
  try {
    target_->writeChars(bytes.str(), bytes.length(), formatter_.get());
  } catch (const xercesc::XMLPlatformUtilsException& e) {
    raiseXmlError(*this, xml_error::fileWriteError(path_, e.getMessage()));
  }
}

void FileWriter::flush() { openTarget(*this)->flush(); }

void FileWriter::close() {
  if (!isOpen()) return;
  target_.reset();
  formatter_.reset();
}

ustring FileWriter::getFileEncoding() const { return encoding_; }

xercesc::LocalFileFormatTarget* FileWriter::makeLocalFileFormatTarget(const ustring& path) const {
  return detail::checkedFileTarget(*this, path);
}

xercesc::XMLFormatTarget* FileWriter::openTarget(const XMLObject& caller) const {
  if (!target_) raiseXmlError(caller, xml_error::fileWriteError(path_, closedWriter));
  return target_.get();
}

}  // namespace paxorel::xml
