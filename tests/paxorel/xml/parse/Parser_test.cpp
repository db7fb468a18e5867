#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <sys/stat.h>

#include <gtest/gtest.h>

using namespace paxorel::xml;
using testing_support::TempDir;
using testing_support::u;

namespace {

std::size_t registered() { return DocumentRegistry::getInstance()->entries().size(); }

ustring rootName(const std::shared_ptr<Document>& document) {
  const std::unique_ptr<Node> root(document->getLastChild());
  return root->getNodeName();
}

// The message text of the failure of `action`, which must fail by the host way.
template <class Action>
ustring messageOf(Action&& action) {
  try {
    action();
  } catch (const basis::except::IMsgIDException& e) {
    return std::get<ustring>(e.GetBaseMsgIDObj().args.back());
  }
  ADD_FAILURE() << "no failure";
  return {};
}

}  // namespace

TEST(ParseString, ReadsTheTextAsUtf8WhateverTheDeclarationSays) {
  const auto document = parseString(u"<?xml version='1.0' encoding='ISO-8859-1'?><r>\u00e9\u20ac\U0001F600</r>");
  const std::unique_ptr<Node> root(document->getFirstChild());
  EXPECT_EQ(root->getTextContent(), u"\u00e9\u20ac\U0001F600");
  EXPECT_EQ(document->getOwnerDocWrapper().get(), document.get());
}

TEST(ParseString, FailuresNameTheTextAndXercessMessage) {
  const ustring text = u"<r><a></r>";
  const ustring message = messageOf([&] { parseString(text); });
  EXPECT_FALSE(message.empty());
  EXPECT_XML_ERROR(parseString(text), "parseStringError", text, message);
  EXPECT_XML_ERROR(parseString(u""), "parseStringError", u"", messageOf([] { parseString(u""); }));
}

TEST(ParseString, ALoneSurrogateIsNotWellFormed) {
  const ustring text = u"<r>" + ustring(1, u'\xD800') + u"</r>";
  EXPECT_XML_ERROR(parseString(text), "parseStringError", text, messageOf([&] { parseString(text); }));
}

TEST(ParseString, AFailedParseLeavesNothingRegistered) {
  const std::size_t before = registered();
  try {
    parseString(u"<unclosed>");
  } catch (const basis::except::IMsgIDException&) {
  }
  EXPECT_EQ(registered(), before);
  auto document = parseString(u"<r/>");
  EXPECT_EQ(registered(), before + 1);
  document.reset();
  EXPECT_EQ(registered(), before);
}

TEST(Parser, AParserServesOneParseAfterAnother) {
  const Parser parser;
  // A failure of either kind leaves no handler behind: the next failure is
  // reported again, and the next good text parses.
  EXPECT_XML_ERROR(parser.parseString(u"<a>"), "parseStringError", u"<a>", messageOf([&] { parser.parseString(u"<a>"); }));
  EXPECT_XML_ERROR(parser.parseURI(u"/no/such/file.xml"), "inputFileNonexistentError", u"/no/such/file.xml");
  EXPECT_XML_ERROR(parser.parseString(u"<b>"), "parseStringError", u"<b>", messageOf([&] { parser.parseString(u"<b>"); }));
  Document* first = parser.parseString(u"<one/>");
  Document* second = parser.parseString(u"<two/>");
  const auto one = DocumentRegistry::shareWithCaller(first), two = DocumentRegistry::shareWithCaller(second);
  EXPECT_EQ(rootName(one), u"one");  // the second parse left the first tree alone
  EXPECT_EQ(rootName(two), u"two");
}

TEST(Parser, ADocumentOutlivesItsParser) {
  std::shared_ptr<Document> document;
  {
    const Parser parser;
    document = DocumentRegistry::shareWithCaller(parser.parseString(u"<kept><x/></kept>"));
  }
  EXPECT_EQ(rootName(document), u"kept");
}

TEST(Parser, FailsInItsOwnErrorMode) {
  Parser parser;
  parser.setNativeErrorMode(true);
  try {
    parser.parseString(u"<a>");
    FAIL();
  } catch (const paxorel::xml::Exception& e) {
    EXPECT_EQ(std::string(e.what()).rfind("Cannot parse the string '<a>': ", 0), 0u) << e.what();
  }
}

namespace {

struct ParseFileTest : ::testing::Test {
  TempDir dir;
  std::string good = dir.write("good.xml", "<?xml version='1.0'?><!DOCTYPE top [<!ELEMENT top EMPTY>]><top/>");
  // Valid against its DTD, but not well-formed.
  std::string bad = dir.write("bad.xml", "<!DOCTYPE top [<!ELEMENT top ANY><!ELEMENT open ANY>]>\n<top>\n  <open>\n</top>\n");
};

}  // namespace

TEST_F(ParseFileTest, ReadsPathsAndFileUrls) {
  EXPECT_EQ(rootName(parseFile(u(good))), u"top");
  EXPECT_EQ(rootName(parseFile(u("file://" + good))), u"top");
  const Parser parser;
  const ustring path = u(good);
  EXPECT_EQ(&parser.validatePath(path), &path);  // its own argument
}

TEST_F(ParseFileTest, RefusesDirectoriesAndMissingFiles) {
  EXPECT_XML_ERROR(parseFile(u(dir.dir())), "inputFileIsDirectoryError", u(dir.dir()));
  EXPECT_XML_ERROR(parseFile(u(dir.path("none.xml"))), "inputFileNonexistentError", u(dir.path("none.xml")));
  EXPECT_XML_ERROR(parseFile(u("file://" + dir.dir())), "inputFileIsDirectoryError", u(dir.dir()));
  EXPECT_XML_ERROR(parseFile(u""), "inputFileNonexistentError", u"");
}

TEST_F(ParseFileTest, AUrlPathIsTakenAsWritten) {
  dir.write("my doc.xml", "<a/>");
  const std::string url = "file://" + dir.path("my%20doc.xml");
  EXPECT_XML_ERROR(parseFile(u(url)), "inputFileNonexistentError", u(dir.path("my%20doc.xml")));
}

TEST_F(ParseFileTest, TextHoldingFileColonAnywhereIsAUrl) {
  ASSERT_EQ(mkdir(dir.path("afile:b").c_str(), 0700), 0);
  // As a plain path this file exists; as a URL its path ends before the '#'.
  const std::string plain = dir.write("afile:b/x#y.xml", "<a/>");
  EXPECT_XML_ERROR(parseFile(u(plain)), "inputFileNonexistentError", u(dir.path("afile:b/x")));
}

TEST_F(ParseFileTest, AMalformedUrlNamesTheTextAsGiven) {
  const ustring uri = u"file://host:notaport/x.xml";
  try {
    parseFile(uri);
    FAIL() << "taken as well-formed";
  } catch (const basis::except::IMsgIDException& e) {
    EXPECT_EQ(e.GetID(), "paxorel:xml_error:malformedURL");
    EXPECT_EQ(std::get<ustring>(e.GetBaseMsgIDObj().args[0]), uri);
    EXPECT_FALSE(std::get<ustring>(e.GetBaseMsgIDObj().args[1]).empty());
  }
}

TEST_F(ParseFileTest, AFailureIsAValidationErrorWhenValidationIsOn) {
  const Parser parser;
  const std::unique_ptr<ParserConfiguration> configuration(parser.getConfiguration());
  const ustring uri = u(bad);
  const ustring message = messageOf([&] { parser.parseURI(uri); });
  EXPECT_XML_ERROR(parser.parseURI(uri), "parseFileError", uri, message);

  configuration->setValidate(true);
  EXPECT_XML_ERROR(parser.parseURI(uri), "docValidationError", u"DTD", u"4", u"3", message);
  configuration->setSchema(true);
  EXPECT_XML_ERROR(parser.parseURI(uri), "docValidationError", u"Schema", u"4", u"3", message);
}

TEST_F(ParseFileTest, AWarningAloneStopsTheParse) {
  // A second declaration of a notation is only a warning to Xerces.
  const std::string warned =
      dir.write("warned.xml", "<!DOCTYPE a [<!NOTATION n SYSTEM 'x'><!NOTATION n SYSTEM 'y'>]><a/>");
  const ustring uri = u(warned);
  const ustring message = messageOf([&] { parseFile(uri); });
  EXPECT_XML_ERROR(parseFile(uri), "parseFileError", uri, message);
}

TEST_F(ParseFileTest, AFileThatCannotBeReadIsAParseError) {
  const std::string locked = dir.write("locked.xml", "<a/>");
  ASSERT_EQ(chmod(locked.c_str(), 0), 0);
  if (geteuid() == 0) GTEST_SKIP() << "root reads everything";
  const ustring uri = u(locked);
  EXPECT_XML_ERROR(parseFile(uri), "parseFileError", uri, messageOf([&] { parseFile(uri); }));
}
