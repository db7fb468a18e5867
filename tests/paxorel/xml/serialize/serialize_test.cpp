// Writing: the output file checks that DOMWriter and FileWriter share, the
// writes to strings, files and file writers, the options, and xmlwrite.
#include "support/expectations.hpp"

#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/util/TranscodingException.hpp>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>

using namespace paxorel::xml;
using namespace testing_support;
namespace fs = std::filesystem;

namespace {

// The bytes of a file; none for a directory or a missing file.
std::string bytesOf(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

std::string declaration(const std::string& encoding) {
  return "<?xml version=\"1.0\" encoding=\"" + encoding + "\" standalone=\"no\" ?>";
}

// What Xerces says when it cannot open `path` for writing.
ustring cannotOpen(const ustring& path) { return u"unable to open file '" + path + u"'"; }

// Takes write access to a path away while it lives. Root ignores permission
// bits, but not the immutable attribute, where the file system has one.
struct ReadOnly {
  std::string path;
  explicit ReadOnly(std::string readOnly) : path(std::move(readOnly)) {
    fs::permissions(path, fs::perms(0555));
    if (!holds()) immutable(true);
  }
  ~ReadOnly() { immutable(false), fs::permissions(path, fs::perms(0755)); }
  bool holds() const { return ::access(path.c_str(), W_OK) != 0; }
  void immutable(bool on) const {
    int flags = 0, fd = ::open(path.c_str(), O_RDONLY);
    ioctl(fd, FS_IOC_GETFLAGS, &flags);  // where this fails, so does the setting
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    ioctl(fd, FS_IOC_SETFLAGS, &flags);
    close(fd);
  }
};

struct FileChecks : ::testing::Test {
  const fs::path home = fs::current_path();
  TempDir dir;
  FileWriter spare{u(dir.path("spare.xml"))};
  // Ways into the checks, each through an object of its own.
  const std::vector<std::pair<const char*, std::function<void(const ustring&)>>> openers{
      {"DOMWriter::writeToURI", [&](const ustring& path) { DOMWriter().writeToURI(parseString(u"<r/>").get(), path); }},
      {"FileWriter", [&](const ustring& path) { FileWriter{path}; }},
      {"makeLocalFileFormatTarget", [&](const ustring& path) { delete spare.makeLocalFileFormatTarget(path); }},
  };
  ~FileChecks() override { fs::current_path(home); }

  // Each opener fails with `key` and `args`, and a file at `path` keeps its bytes.
  template <class... Args>
  void expectRefused(const ustring& path, const std::string& key, const Args&... args) {
    const std::string file = basis::text::to_utf8(path), before = bytesOf(file);
    for (const auto& opener : openers) {
      SCOPED_TRACE(opener.first);
      EXPECT_XML_ERROR(opener.second(path), key, args...);
      EXPECT_EQ(bytesOf(file), before);
    }
  }
};

}  // namespace

TEST_F(FileChecks, RefuseBadPathsBeforeTouchingAnythingEachByItsOwnObjectsMode) {
  // Arguments name the path as given and the parent of its native form.
  const ustring missing = u(dir.dir() + "//missing/sub//out.xml");
  expectRefused(missing, "outputFileNonexistentDirectoryError", missing, u(dir.path("missing/sub")));
  fs::create_directory(dir.path("sub"));
  expectRefused(u(dir.path("sub/")), "outputFileIsDirectoryError", u(dir.path("sub/")));
  expectRefused(u"", "fileWriteError", u"", cannotOpen(u""));
  // A dangling link passes every check; only Xerces finds that it cannot open it.
  fs::create_symlink(dir.path("missing/target.xml"), dir.path("link.xml"));
  const ustring link = u(dir.path("link.xml"));
  expectRefused(link, "fileWriteError", link, cannotOpen(link));

  DOMWriter writer;
  writer.setNativeErrorMode(true);
  EXPECT_THROW(delete writer.makeLocalFileFormatTarget(u"."), paxorel::xml::Exception);
  EXPECT_XML_ERROR(delete spare.makeLocalFileFormatTarget(u"."), "outputFileIsDirectoryError", u".");
}

TEST_F(FileChecks, RefuseReadOnlyDirectoriesAndFilesButABareNameHasNoParentToCheck) {
  // The file in the read-only directory may be written itself: only the
  // check stands between it and its truncation.
  fs::create_directory(dir.path("ro"));
  const std::string inside = dir.write("ro/keep.xml", "<kept/>"), locked = dir.write("locked.xml", "<locked/>");
  const ReadOnly roDir(dir.path("ro")), roFile(locked);
  if (!roDir.holds() || !roFile.holds()) GTEST_SKIP() << "root without the immutable attribute writes everything";
  expectRefused(u(inside), "outputFileReadOnlyDirectoryError", u(inside), u(dir.path("ro")));
  expectRefused(u(locked), "outputFileReadOnlyError", u(locked));
  fs::current_path(dir.path("ro"));  // only Xerces finds out
  expectRefused(u"new.xml", "fileWriteError", u"new.xml", cannotOpen(u"new.xml"));
  fs::current_path(dir.dir());
  expectRefused(u"locked.xml", "outputFileReadOnlyError", u"locked.xml");
}

TEST(FileWriter, MixesItsTextWithNodesAndOnceClosedStaysClosedFailingWithTheEmptyPath) {
  TempDir dir;
  const auto document = parseString(u"<e>\u00e9</e>");
  const auto root = own(document->getDocumentElement());
  const auto notation = own(document->createNotation(u"n"));
  const DOMWriter writer;
  FileWriter file(u(dir.path("out.txt")), u"iso-8859-1");
  file.write(u"<!-- caf\u00e9 -->");
  EXPECT_XML_ERROR(writer.write(notation.get(), &file), "writeError", u"unrecognized node type");
  writer.write(root.get(), &file);  // in the serializer's UTF-8
  file.write(u"\n");
  EXPECT_THROW(file.write(u"\u20ac"), xercesc::TranscodingException);
  file.close();
  file.close();
  EXPECT_FALSE(file.isOpen());
  // The path is not kept: opening again tries the empty path.
  EXPECT_XML_ERROR(file.write(u"lost"), "fileWriteError", u"", cannotOpen(u""));
  EXPECT_XML_ERROR(file.flush(), "fileWriteError", u"", u"the file writer is closed");
  EXPECT_XML_ERROR(writer.write(root.get(), &file), "fileWriteError", u"", u"the file writer is closed");
  EXPECT_EQ(bytesOf(dir.path("out.txt")), "<!-- caf\xe9 --><e>\xc3\xa9</e>\n");
  EXPECT_EQ(FileWriter(u(dir.path("out.txt"))).getFileEncoding(), u"UTF-8");

  // An unknown encoding is found after the file was made; it is not left open.
  const auto openFiles = [] { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); };
  const auto before = openFiles();
  EXPECT_THROW(FileWriter(u(dir.path("new.txt")), u"no-such-encoding"), xercesc::TranscodingException);
  EXPECT_EQ(openFiles(), before);
  EXPECT_TRUE(fs::exists(dir.path("new.txt")));

  if (!fs::exists("/dev/full")) return;
  fs::create_symlink("/dev/full", dir.path("full"));
  FileWriter full(u(dir.path("full")));
  // A large text goes straight to the file, and fails there.
  EXPECT_XML_ERROR(full.write(ustring(1 << 17, u'x')), "fileWriteError", u"", u"unable to write data to file");
}

TEST(WriterConfiguration, OptionsLiveInTheSerializerForEveryViewAndOutliveTheWriterButDTDIsTheViewsOwn) {
  using C = WriterConfiguration;
  const auto optionsOf = [](const C& c) {
    std::vector<bool> all;
    for (const auto get : {&C::getFormatPrettyPrint, &C::getFormatPrettyPrintDouble, &C::getXMLDeclaration, &C::getDTD,
                           &C::getEntities, &C::getBOM, &C::getDiscardDefaultContent, &C::getSplitCdataSections})
      all.push_back((c.*get)());
    return all;
  };
  std::unique_ptr<WriterConfiguration> one, two;
  {
    const DOMWriter writer;
    one = own(writer.getConfiguration()), two = own(writer.getConfiguration());
  }
  // Xerces's defaults, but for FormatPrettyPrintDouble.
  EXPECT_EQ(optionsOf(*one), (std::vector<bool>{false, false, true, true, true, false, true, true}));
  one->setFormatPrettyPrint(true), one->setFormatPrettyPrintDouble(true), one->setXMLDeclaration(false);
  one->setDTD(false), one->setEntities(false), one->setBOM(true), one->setDiscardDefaultContent(false);
  one->setSplitCdataSections(false);
  EXPECT_EQ(optionsOf(*one), (std::vector<bool>{true, true, false, false, false, true, false, false}));
  EXPECT_EQ(optionsOf(*two), (std::vector<bool>{true, true, false, true, false, true, false, false}));
}

TEST(DOMWriter, WritesTheDoctypeWhateverDTDSaysAndTheEncodingBomNewLineDeclarationAndIndentAsSet) {
  const ustring text = u"<!DOCTYPE r><r><a>\u00e9\u20ac</a></r>";
  const auto document = parseString(text);
  DOMWriter writer;
  const auto options = own(writer.getConfiguration());
  options->setDTD(false);
  EXPECT_EQ(writer.writeToString(document.get()), u(declaration("UTF-16")) + text);

  TempDir dir;
  const std::string path = dir.path("out.xml");
  const auto expectFile = [&](const char16_t* encoding, bool bom, bool declared, const std::string& bytes) {
    options->setBOM(bom), options->setXMLDeclaration(declared);
    writer.writeToURI(document.get(), u(path), encoding);
    EXPECT_EQ(bytesOf(path), bytes) << basis::text::to_utf8(encoding);
  };
  writer.setNewLine(u"\r\n");
  options->setFormatPrettyPrint(true), options->setFormatPrettyPrintDouble(true);
  expectFile(u"UTF-8", false, false, "\r\n<!DOCTYPE r>\r\n<r>\r\n\r\n  <a>\xc3\xa9\xe2\x82\xac</a>\r\n\r\n</r>\r\n");
  options->setFormatPrettyPrint(false);
  expectFile(u"", true, true, "\xef\xbb\xbf" + declaration("UTF-8") + "<!DOCTYPE r><r><a>\xc3\xa9\xe2\x82\xac</a></r>");
  expectFile(u"ISO-8859-1", true, true, declaration("ISO-8859-1") + "<!DOCTYPE r><r><a>\xe9&#x20AC;</a></r>");
  std::string utf16 = "\xff\xfe";  // little-endian, as Xerces writes on this machine
  for (const char16_t unit : u(declaration("UTF-16")) + text) utf16 += {char(unit & 0xFF), char(unit >> 8)};
  expectFile(u"UTF-16", true, true, utf16);
  // Without an encoding Xerces keeps the document's own; each write cuts the file first.
  const auto latin = parseFile(u(dir.write("in.xml", "<?xml version='1.0' encoding='ISO-8859-1'?><r>\xe9</r>")));
  DOMWriter().writeToURI(latin.get(), u(path));
  EXPECT_EQ(bytesOf(path), declaration("ISO-8859-1") + "<r>\xe9</r>");
}

TEST(DOMWriter, RefusesMissingArgumentsBeforeTouchingAFileAndFailsOnTheSerializersFirstReportOnly) {
  TempDir dir;
  const std::string kept = dir.write("keep.xml", "<keep/>");
  const auto document = parseString(u"<r/>");
  const auto root = own(document->getFirstChild());
  const Node empty(nullptr, nullptr);
  DOMWriter writer;
  EXPECT_XML_ERROR(writer.writeToString(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(writer.writeToURI(&empty, u(kept)), "emptyNodeArgument");
  EXPECT_XML_ERROR(writer.write(nullptr, nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(writer.write(root.get(), nullptr), "emptyObjectArgument", std::string("FileWriter"));
  EXPECT_EQ(bytesOf(kept), "<keep/>");

  const auto notation = own(document->createNotation(u"n"));
  EXPECT_XML_ERROR(writer.writeToString(notation.get()), "writeError", u"unrecognized node type");
  const auto cdata = own(document->createCDATASection(u"a]]>b"));
  EXPECT_XML_ERROR(writer.writeToString(cdata.get()), "writeError", u"nested CDATA sections");  // a warning
  EXPECT_EQ(writer.writeToString(root.get()), u"<r/>");
  EXPECT_XML_ERROR(writer.writeToURI(root.get(), u(kept), u"no-such"), "writeError",
                   u"unable to create converter for 'no-such' encoding");
}

TEST(Document, XmlwriteWritesAsANewWriterByTheDocumentsModeAndKeepsTheDocumentForGood) {
  TempDir dir;
  auto document = parseString(u"<!DOCTYPE r><r>\u00e9</r>");
  document->xmlwrite(u(dir.path("x.xml")));
  EXPECT_EQ(bytesOf(dir.path("x.xml")), declaration("UTF-8") + "<!DOCTYPE r><r>\xc3\xa9</r>");
  const ustring missing = u(dir.path("none/x.xml"));
  EXPECT_XML_ERROR(document->xmlwrite(missing), "outputFileNonexistentDirectoryError", missing, u(dir.path("none")));
  document->setNativeErrorMode(true);
  EXPECT_THROW(document->xmlwrite(missing), paxorel::xml::Exception);

  const std::weak_ptr<Document> watch = document->getOwnerDocWrapper();
  const std::size_t before = registered();
  document.reset();
  EXPECT_EQ(registered(), before - 1);  // no entry, yet the document stays
  EXPECT_FALSE(watch.expired());
}
