// Writing: the output file checks that DOMWriter and FileWriter share, the
// writes to strings, files and file writers, the options, and xmlwrite.
#include "support/expectations.hpp"

#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/util/IOException.hpp>
#include <xercesc/util/TranscodingException.hpp>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

using namespace paxorel::xml;
using namespace testing_support;
namespace fs = std::filesystem;

namespace {

std::string bytesOf(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

std::string declaration(const std::string& encoding) {
  return "<?xml version=\"1.0\" encoding=\"" + encoding + "\" standalone=\"no\" ?>";
}

// What Xerces itself says when it cannot open `path` for writing.
ustring xercesOpenMessage(const ustring& path) {
  try {
    const xercesc::LocalFileFormatTarget target(path.c_str());
  } catch (const xercesc::IOException& e) {
    return e.getMessage();
  }
  return u"(opened)";
}

// Takes write access to a path away while it lives. Root ignores permission
// bits, but not the immutable attribute, where the file system has one.
struct ReadOnly {
  std::string path;
  explicit ReadOnly(std::string readOnly) : path(std::move(readOnly)) {
    chmod(path.c_str(), 0555);
    if (!holds()) immutable(true);
  }
  ~ReadOnly() {
    immutable(false);
    chmod(path.c_str(), 0755);
  }
  bool holds() const { return ::access(path.c_str(), W_OK) != 0; }
  void immutable(bool on) const {
    const int fd = ::open(path.c_str(), O_RDONLY);
    int flags = 0;
    if (ioctl(fd, FS_IOC_GETFLAGS, &flags) != 0) return (void)close(fd);
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    ioctl(fd, FS_IOC_SETFLAGS, &flags);
    close(fd);
  }
};

struct WorkingDirectory {
  fs::path before = fs::current_path();
  explicit WorkingDirectory(const std::string& dir) { fs::current_path(dir); }
  ~WorkingDirectory() { fs::current_path(before); }
};

struct FileChecks : ::testing::Test {
  TempDir dir;
  std::shared_ptr<Document> document = parseString(u"<r/>");
  FileWriter spare{u(dir.path("spare.xml"))};
  // Every way into the checks, each through its own object.
  const std::vector<std::pair<const char*, std::function<void(const ustring&)>>> openers{
      {"writeToURI", [&](const ustring& path) { DOMWriter().writeToURI(document.get(), path); }},
      {"DOMWriter", [&](const ustring& path) { delete DOMWriter().makeLocalFileFormatTarget(path); }},
      {"FileWriter", [&](const ustring& path) { FileWriter{path}; }},
      {"FileWriter+encoding", [&](const ustring& path) { FileWriter(path, u"ISO-8859-1"); }},
      {"FileWriter target", [&](const ustring& path) { delete spare.makeLocalFileFormatTarget(path); }},
  };

  // Each opener fails with `key` and `args`, and the file `kept`, if any, keeps its bytes.
  template <class... Args>
  void expectRefused(const ustring& path, const std::string& kept, const std::string& key, const Args&... args) {
    const std::string before = kept.empty() ? "" : bytesOf(kept);
    for (const auto& opener : openers) {
      SCOPED_TRACE(opener.first);
      EXPECT_XML_ERROR(opener.second(path), key, args...);
      EXPECT_EQ(kept.empty() ? before : bytesOf(kept), before);
    }
  }
};

}  // namespace

TEST_F(FileChecks, RefuseBadPathsBeforeTouchingAnything) {
  // Arguments name the path as given and the parent of its native form.
  const ustring missing = u(dir.dir() + "//missing/sub//out.xml");
  expectRefused(missing, "", "outputFileNonexistentDirectoryError", missing, u(dir.path("missing/sub")));
  fs::create_directory(dir.path("sub"));
  expectRefused(u(dir.path("sub/")), "", "outputFileIsDirectoryError", u(dir.path("sub/")));
  expectRefused(u"", "", "fileWriteError", u"", xercesOpenMessage(u""));
  // A dangling link passes every check; only Xerces finds that it cannot open it.
  fs::create_symlink(dir.path("missing/target.xml"), dir.path("link.xml"));
  const ustring link = u(dir.path("link.xml"));
  expectRefused(link, "", "fileWriteError", link, xercesOpenMessage(link));
}

TEST_F(FileChecks, RefuseReadOnlyDirectoriesAndFilesButABareNameHasNoParentToCheck) {
  // The file in the read-only directory may be written itself: only the
  // check stands between it and its truncation.
  fs::create_directory(dir.path("ro"));
  const std::string inside = dir.write("ro/keep.xml", "<kept/>"), locked = dir.write("locked.xml", "<locked/>");
  const ReadOnly roDir(dir.path("ro")), roFile(locked);
  if (!roDir.holds() || !roFile.holds()) GTEST_SKIP() << "root without the immutable attribute writes everything";
  expectRefused(u(inside), inside, "outputFileReadOnlyDirectoryError", u(inside), u(dir.path("ro")));
  expectRefused(u(locked), locked, "outputFileReadOnlyError", u(locked));

  const WorkingDirectory cwd(dir.path("ro"));  // only Xerces finds out
  expectRefused(u"new.xml", "", "fileWriteError", u"new.xml", xercesOpenMessage(u"new.xml"));
  fs::current_path(dir.dir());
  expectRefused(u"locked.xml", locked, "outputFileReadOnlyError", u"locked.xml");
  expectRefused(u"ro", "", "outputFileIsDirectoryError", u"ro");
}

TEST_F(FileChecks, PassBareNamesCutExistingFilesAndRaiseByTheirOwnObjectsMode) {
  const WorkingDirectory cwd(dir.dir());
  FileWriter(u"bare.xml").write(u"<bare/>");
  EXPECT_EQ(bytesOf(dir.path("bare.xml")), "<bare/>");
  const FileWriter again(u"bare.xml");
  EXPECT_EQ(bytesOf(dir.path("bare.xml")), "");

  DOMWriter writer;  // each object raises by its own mode
  writer.setNativeErrorMode(true);
  EXPECT_THROW(delete writer.makeLocalFileFormatTarget(u"."), paxorel::xml::Exception);
  EXPECT_XML_ERROR(delete spare.makeLocalFileFormatTarget(u"."), "outputFileIsDirectoryError", u".");
}

TEST(FileWriter, MixesItsTextInItsEncodingWithNodesInTheSerializersEncoding) {
  TempDir dir;
  const auto document = createDocument(u"e");
  own(document->getFirstChild())->setTextContent(u"\u00e9");
  FileWriter file(u(dir.path("out.txt")), u"iso-8859-1");
  EXPECT_EQ(file.getFileEncoding(), u"iso-8859-1");
  file.write(u"<!-- caf\u00e9 -->");
  DOMWriter().write(own(document->getFirstChild()).get(), &file);
  file.write(u"");
  file.write(u"\n");
  EXPECT_THROW(file.write(u"\u20ac"), xercesc::TranscodingException);
  file.close();
  EXPECT_EQ(bytesOf(dir.path("out.txt")), "<!-- caf\xe9 --><e>\xc3\xa9</e>\n");
  EXPECT_EQ(FileWriter(u(dir.path("out.txt"))).getFileEncoding(), u"UTF-8");
}

TEST(FileWriter, StaysClosedOnceClosedAndTouchesNoFileWhenItCannotOpen) {
  TempDir dir;
  FileWriter file(u(dir.path("out.txt")));
  file.write(u"kept");
  file.close();
  file.close();
  EXPECT_FALSE(file.isOpen());
  // The path is not kept: opening again tries the empty path.
  EXPECT_XML_ERROR(file.write(u"lost"), "fileWriteError", u"", xercesOpenMessage(u""));
  EXPECT_XML_ERROR(file.open(), "fileWriteError", u"", xercesOpenMessage(u""));
  EXPECT_XML_ERROR(file.flush(), "fileWriteError", u"", u"the file writer is closed");
  EXPECT_XML_ERROR(DOMWriter().write(parseString(u"<r/>").get(), &file), "fileWriteError", u"",
                   u"the file writer is closed");
  EXPECT_EQ(bytesOf(dir.path("out.txt")), "kept");

  // An unknown encoding is found after the file was made; it is not left open.
  const auto openFiles = [] { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); };
  const auto before = openFiles();
  EXPECT_THROW(FileWriter(u(dir.path("new.txt")), u"no-such-encoding"), xercesc::TranscodingException);
  EXPECT_EQ(openFiles(), before);
  EXPECT_TRUE(fs::exists(dir.path("new.txt")));
}

TEST(FileWriter, AFailedWriteNamesTheEmptyPath) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
  TempDir dir;
  fs::create_symlink("/dev/full", dir.path("full"));
  FileWriter file(u(dir.path("full")));
  // Large texts go straight to the file, small ones wait for flush.
  EXPECT_XML_ERROR(file.write(ustring(1 << 17, u'x')), "fileWriteError", u"", u"unable to write data to file");
  file.write(ustring(5000, u'x'));
  EXPECT_THROW(file.flush(), xercesc::XMLPlatformUtilsException);
}

namespace {
// Every option, in one order.
std::vector<bool> optionsOf(const WriterConfiguration& c) {
  std::vector<bool> all{c.getFormatPrettyPrint(), c.getFormatPrettyPrintDouble(), c.getXMLDeclaration()};
  all.insert(all.end(), {c.getDTD(), c.getEntities(), c.getBOM(), c.getDiscardDefaultContent()});
  all.push_back(c.getSplitCdataSections());
  return all;
}
}  // namespace

TEST(WriterConfiguration, OptionsLiveInTheSerializerForEveryViewAndOutliveTheWriterButDTDIsTheViewsOwn) {
  std::unique_ptr<WriterConfiguration> one, two;
  {
    const DOMWriter writer;
    one = own(writer.getConfiguration());
    two = own(writer.getConfiguration());
  }
  // Xerces's defaults, but for FormatPrettyPrintDouble.
  EXPECT_EQ(optionsOf(*one), (std::vector<bool>{false, false, true, true, true, false, true, true}));
  one->setFormatPrettyPrint(true), one->setFormatPrettyPrintDouble(true), one->setXMLDeclaration(false);
  one->setDTD(false), one->setEntities(false), one->setBOM(true), one->setDiscardDefaultContent(false);
  one->setSplitCdataSections(false);
  EXPECT_EQ(optionsOf(*one), (std::vector<bool>{true, true, false, false, false, true, false, false}));
  EXPECT_EQ(optionsOf(*two), (std::vector<bool>{true, true, false, true, false, true, false, false}));
}

TEST(DOMWriter, WritesStringsWithTheDoctypeWhateverDTDSaysAndNoDoubleBlankLines) {
  const auto document = parseString(u"<!DOCTYPE r><r><a/></r>");
  DOMWriter writer;
  const auto options = own(writer.getConfiguration());
  options->setDTD(false);
  EXPECT_EQ(writer.writeToString(document.get()), u(declaration("UTF-16")) + u"<!DOCTYPE r><r><a/></r>");
  EXPECT_EQ(writer.getNewLine(), u"");
  options->setFormatPrettyPrint(true);
  const auto root = own(document->getLastChild());
  EXPECT_EQ(writer.writeToString(root.get()), u"\n<r>\n  <a/>\n</r>");
  options->setFormatPrettyPrintDouble(true);
  EXPECT_EQ(writer.writeToString(root.get()), u"\n<r>\n\n  <a/>\n\n</r>");
}

TEST(DOMWriter, WritesFilesInTheEncodingWithTheBomNewLineAndDeclarationAsSet) {
  const ustring text = u"<!DOCTYPE r><r><a>\u00e9\u20ac</a></r>";
  std::string utf16;  // little-endian, as Xerces writes on this machine
  for (const char16_t unit : u(declaration("UTF-16")) + text) utf16 += {char(unit & 0xFF), char(unit >> 8)};
  const std::string utf8 = "<!DOCTYPE r><r><a>\xc3\xa9\xe2\x82\xac</a></r>";
  const struct {
    const char16_t* encoding;
    bool bom, declared, pretty;
    std::string bytes;
  } rows[] = {
      {u"", false, true, false, declaration("UTF-8") + utf8},
      {u"UTF-8", true, true, false, "\xef\xbb\xbf" + declaration("UTF-8") + utf8},
      {u"ISO-8859-1", true, true, false, declaration("ISO-8859-1") + "<!DOCTYPE r><r><a>\xe9&#x20AC;</a></r>"},
      {u"UTF-16", true, true, false, "\xff\xfe" + utf16},
      {u"UTF-16", false, true, false, utf16},
      {u"UTF-8", false, false, true, "\r\n<!DOCTYPE r>\r\n<r>\r\n  <a>\xc3\xa9\xe2\x82\xac</a>\r\n</r>\r\n"},
  };
  TempDir dir;
  const std::string path = dir.path("out.xml");
  const auto document = parseString(text);
  for (const auto& row : rows) {
    DOMWriter writer;
    const auto options = own(writer.getConfiguration());
    options->setBOM(row.bom);
    options->setXMLDeclaration(row.declared);
    options->setFormatPrettyPrint(row.pretty);
    writer.setNewLine(u"\r\n");
    writer.writeToURI(document.get(), u(path), row.encoding);
    EXPECT_EQ(writer.getNewLine(), u"\r\n");
    EXPECT_EQ(bytesOf(path), row.bytes) << basis::text::to_utf8(row.encoding);
  }
  // Without an encoding Xerces keeps the document's own.
  const auto latin = parseFile(u(dir.write("in.xml", "<?xml version='1.0' encoding='ISO-8859-1'?><r>\xe9</r>")));
  DOMWriter().writeToURI(latin.get(), u(path));
  EXPECT_EQ(bytesOf(path), declaration("ISO-8859-1") + "<r>\xe9</r>");
}

TEST(DOMWriter, TheSerializersFirstReportIsAWriteErrorAndTheNextWriteStartsAfresh) {
  TempDir dir;
  const auto document = parseString(u"<r/>");
  const auto root = own(document->getFirstChild());
  const auto notation = own(document->createNotation(u"n"));
  const auto cdata = own(document->createCDATASection(u"a]]>b"));
  DOMWriter writer;
  EXPECT_XML_ERROR(writer.writeToString(notation.get()), "writeError", u"unrecognized node type");
  EXPECT_XML_ERROR(writer.writeToString(cdata.get()), "writeError", u"nested CDATA sections");  // a warning
  EXPECT_EQ(writer.writeToString(root.get()), u"<r/>");

  FileWriter file(u(dir.path("file.xml")));
  EXPECT_XML_ERROR(writer.write(notation.get(), &file), "writeError", u"unrecognized node type");
  writer.write(root.get(), &file);
  file.close();
  EXPECT_EQ(bytesOf(dir.path("file.xml")), "<r/>");

  const ustring path = u(dir.path("uri.xml"));
  EXPECT_XML_ERROR(writer.writeToURI(root.get(), path, u"no-such"), "writeError",
                   u"unable to create converter for 'no-such' encoding");
  writer.writeToURI(root.get(), path, u"UTF-8");
  EXPECT_EQ(bytesOf(dir.path("uri.xml")), "<r/>");
}

TEST(DOMWriter, RefusesMissingNodesAndFileWritersBeforeTouchingAFile) {
  TempDir dir;
  const std::string kept = dir.write("keep.xml", "<keep/>");
  const Node empty(nullptr, nullptr);
  FileWriter file(u(dir.path("file.xml")));
  const DOMWriter writer;
  for (const Node* node : {static_cast<const Node*>(nullptr), &empty}) {
    EXPECT_XML_ERROR(writer.writeToString(node), "emptyNodeArgument");
    EXPECT_XML_ERROR(writer.writeToURI(node, u(kept)), "emptyNodeArgument");
    EXPECT_XML_ERROR(writer.write(node, &file), "emptyNodeArgument");
    EXPECT_XML_ERROR(writer.write(node, nullptr), "emptyNodeArgument");
  }
  EXPECT_XML_ERROR(writer.write(parseString(u"<r/>").get(), nullptr), "emptyObjectArgument", std::string("FileWriter"));
  file.close();
  EXPECT_EQ(bytesOf(kept) + bytesOf(dir.path("file.xml")), "<keep/>");
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
