// The parser, its options, and how its failures are reported.
#include "support/expectations.hpp"

#include <sys/stat.h>

using namespace paxorel::xml;
using namespace testing_support;

namespace {

ustring rootName(const std::shared_ptr<Document>& document) { return own(document->getLastChild())->getNodeName(); }

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

TEST(ParseString, ReadsTheTextAsUtf8WhateverTheDeclarationSaysAndReportsFailures) {
  const auto document = parseString(u"<?xml version='1.0' encoding='ISO-8859-1'?><r>\u00e9\u20ac\U0001F600</r>");
  EXPECT_EQ(own(document->getFirstChild())->getTextContent(), u"\u00e9\u20ac\U0001F600");
  // Failures name the text and the message of Xerces, and leave nothing registered.
  const std::size_t before = registered();
  for (const ustring& text : {ustring(u"<r><a></r>"), ustring(u""), u"<r>" + ustring(1, u'\xD800') + u"</r>"}) {
    const ustring message = messageOf([&] { parseString(text); });
    EXPECT_FALSE(message.empty());
    EXPECT_XML_ERROR(parseString(text), "parseStringError", text, message);
  }
  EXPECT_EQ(registered(), before);
  const auto another = parseString(u"<r/>");
  EXPECT_EQ(registered(), before + 1);
}

TEST(Parser, ServesOneParseAfterAnotherInItsOwnErrorModeAndItsDocumentsOutliveIt) {
  std::shared_ptr<Document> one, two;
  {
    Parser parser;
    // A failure of either kind leaves no handler behind: the next failure is
    // reported again, and the next good text parses.
    const auto bad = [&](const ustring& text) { return messageOf([&] { parser.parseString(text); }); };
    EXPECT_XML_ERROR(parser.parseString(u"<a>"), "parseStringError", u"<a>", bad(u"<a>"));
    EXPECT_XML_ERROR(parser.parseURI(u"/no/such/file.xml"), "inputFileNonexistentError", u"/no/such/file.xml");
    EXPECT_XML_ERROR(parser.parseString(u"<b>"), "parseStringError", u"<b>", bad(u"<b>"));
    one = DocumentRegistry::shareWithCaller(parser.parseString(u"<one/>"));
    two = DocumentRegistry::shareWithCaller(parser.parseString(u"<two/>"));
    parser.setNativeErrorMode(true);
    try {
      parser.parseString(u"<a>");
      ADD_FAILURE();
    } catch (const paxorel::xml::Exception& e) {
      EXPECT_EQ(std::string(e.what()).rfind("Cannot parse the string '<a>': ", 0), 0u) << e.what();
    }
  }
  EXPECT_EQ(rootName(one), u"one");  // neither the second parse nor the parser's end took the first tree
  EXPECT_EQ(rootName(two), u"two");
}

namespace {
struct ParseFileTest : ::testing::Test {
  TempDir dir;
};
}  // namespace

TEST_F(ParseFileTest, ReadsPathsAndFileUrlsAsWrittenAndRefusesDirectoriesAndMissingFiles) {
  const std::string good = dir.write("good.xml", "<?xml version='1.0'?><!DOCTYPE top [<!ELEMENT top EMPTY>]><top/>");
  EXPECT_EQ(rootName(parseFile(u(good))), u"top");
  EXPECT_EQ(rootName(parseFile(u("file://" + good))), u"top");
  EXPECT_XML_ERROR(parseFile(u(dir.dir())), "inputFileIsDirectoryError", u(dir.dir()));
  EXPECT_XML_ERROR(parseFile(u("file://" + dir.dir())), "inputFileIsDirectoryError", u(dir.dir()));
  EXPECT_XML_ERROR(parseFile(u(dir.path("none.xml"))), "inputFileNonexistentError", u(dir.path("none.xml")));
  EXPECT_XML_ERROR(parseFile(u""), "inputFileNonexistentError", u"");
  const ustring cut = u(good) + ustring(1, u'\0') + u"x";  // a zero unit ends nothing early
  EXPECT_XML_ERROR(parseFile(cut), "inputFileNonexistentError", cut);
  // A URL is taken as written, wherever the text says "file:".
  dir.write("my doc.xml", "<a/>");  // no percent decoding
  EXPECT_XML_ERROR(parseFile(u("file://" + dir.path("my%20doc.xml"))), "inputFileNonexistentError",
                   u(dir.path("my%20doc.xml")));
  // As a plain path this file exists; as a URL its path ends before the '#'.
  ASSERT_EQ(mkdir(dir.path("afile:b").c_str(), 0700), 0);
  const std::string plain = dir.write("afile:b/x#y.xml", "<a/>");
  EXPECT_XML_ERROR(parseFile(u(plain)), "inputFileNonexistentError", u(dir.path("afile:b/x")));
  // A malformed one is named as given.
  const ustring malformed = u"file://host:notaport/x.xml";
  EXPECT_XML_ERROR(parseFile(malformed), "malformedURL", malformed, messageOf([&] { parseFile(malformed); }));
}

TEST_F(ParseFileTest, AFailureIsAValidationErrorWhenValidationIsOn) {
  // Valid against its DTD, but not well-formed.
  const ustring uri =
      u(dir.write("bad.xml", "<!DOCTYPE top [<!ELEMENT top ANY><!ELEMENT open ANY>]>\n<top>\n  <open>\n</top>\n"));
  const Parser parser;
  const std::unique_ptr<ParserConfiguration> configuration(parser.getConfiguration());
  const ustring message = messageOf([&] { parser.parseURI(uri); });
  EXPECT_XML_ERROR(parser.parseURI(uri), "parseFileError", uri, message);
  configuration->setValidate(true);
  EXPECT_XML_ERROR(parser.parseURI(uri), "docValidationError", u"DTD", u"4", u"3", message);
  configuration->setSchema(true);
  EXPECT_XML_ERROR(parser.parseURI(uri), "docValidationError", u"Schema", u"4", u"3", message);
}

TEST_F(ParseFileTest, AWarningAloneStopsTheParseAsDoesAnUnreadableFile) {
  // A second declaration of a notation is only a warning to Xerces.
  const ustring warned =
      u(dir.write("warned.xml", "<!DOCTYPE a [<!NOTATION n SYSTEM 'x'><!NOTATION n SYSTEM 'y'>]><a/>"));
  EXPECT_XML_ERROR(parseFile(warned), "parseFileError", warned, messageOf([&] { parseFile(warned); }));
  const ustring locked = u(dir.write("locked.xml", "<a/>"));
  ASSERT_EQ(chmod(dir.path("locked.xml").c_str(), 0), 0);
  if (geteuid() == 0) GTEST_SKIP() << "root reads everything";
  EXPECT_XML_ERROR(parseFile(locked), "parseFileError", locked, messageOf([&] { parseFile(locked); }));
}

namespace {

struct Flag {
  const char* name;
  bool (ParserConfiguration::*get)() const;
  void (ParserConfiguration::*set)(bool);
  bool byDefault;
};
#define FLAG(name, byDefault) Flag{#name, &ParserConfiguration::get##name, &ParserConfiguration::set##name, byDefault}

const Flag flags[] = {
    FLAG(Namespaces, true), FLAG(ElementContentWhitespace, true), FLAG(LoadExternalDTD, true),
    FLAG(DisableDefaultEntityResolution, false), FLAG(DisallowDoctype, false), FLAG(Entities, true),
    FLAG(Validate, false), FLAG(SkipDTDValidation, false), FLAG(ValidationErrorAsFatal, false),
    FLAG(ContinueAfterFatalError, false), FLAG(Comments, true), FLAG(DoXInclude, false), FLAG(LoadSchema, true),
    FLAG(Schema, false), FLAG(ValidateIfSchema, false), FLAG(SchemaFullChecking, false),
    FLAG(DatatypeNormalization, false), FLAG(IgnoreAnnotations, false), FLAG(ValidateAnnotations, false),
    FLAG(GenerateSyntheticAnnotations, false), FLAG(CacheGrammarFromParse, false),
    FLAG(UseCachedGrammarInParse, false), FLAG(HandleMultipleImports, false), FLAG(HasPSVIInfo, false),
    FLAG(IdentityConstraintChecking, true), FLAG(IgnoreCachedDTD, false),
};

}  // namespace

TEST(ParserConfiguration, EveryFlagStartsAtXercessDefaultAndReadsBackWhatWasSet) {
  for (const Flag& flag : flags) {
    const Parser fresh;  // some options of Xerces switch others on
    const std::unique_ptr<ParserConfiguration> options(fresh.getConfiguration());
    EXPECT_EQ((*options.*flag.get)(), flag.byDefault) << flag.name;
    (*options.*flag.set)(!flag.byDefault);
    EXPECT_EQ((*options.*flag.get)(), !flag.byDefault) << flag.name;
  }
}

TEST(ParserConfiguration, StandardUriConformantReadsTheCachedGrammarOptionAndLocationsAreStrings) {
  const auto options = own(Parser().getConfiguration());
  options->setStandardURIConformant(true);
  EXPECT_FALSE(options->getStandardURIConformant());
  options->setUseCachedGrammarInParse(true);
  EXPECT_TRUE(options->getStandardURIConformant());
  EXPECT_EQ(options->getExternalSchemaLocation() + options->getExternalNoNamespaceSchemaLocation(), u"");
  options->setExternalSchemaLocation(u"urn:a a.xsd");
  options->setExternalNoNamespaceSchemaLocation(u"b.xsd");
  EXPECT_EQ(options->getExternalSchemaLocation() + u"|" + options->getExternalNoNamespaceSchemaLocation(),
            u"urn:a a.xsd|b.xsd");
}

TEST(ParserConfiguration, AllViewsOfOneParserShareTheSettingsAndTheyTakeEffect) {
  const Parser parser;
  const auto one = own(parser.getConfiguration()), two = own(parser.getConfiguration());
  one->setComments(false);
  EXPECT_FALSE(two->getComments());
  const auto document = DocumentRegistry::shareWithCaller(parser.parseString(u"<a><!--c--></a>"));
  EXPECT_FALSE(own(document->getFirstChild())->hasChildNodes());
  two->setDisallowDoctype(true);
  EXPECT_THROW(parser.parseString(u"<!DOCTYPE a><a/>"), basis::except::IMsgIDException);
}

TEST(ParserConfiguration, AViewOfNoParserFailsEveryOptionWithEmptyNodeArgument) {
  ParserConfiguration bare(nullptr);
  EXPECT_XML_ERROR(bare.getComments(), "emptyNodeArgument");
  EXPECT_XML_ERROR(bare.setValidate(true), "emptyNodeArgument");
  EXPECT_XML_ERROR(bare.getExternalSchemaLocation(), "emptyNodeArgument");
  EXPECT_XML_ERROR(bare.setExternalNoNamespaceSchemaLocation(u"b.xsd"), "emptyNodeArgument");
  EXPECT_XML_ERROR(bare.getEntityExpansionLimit(), "emptyNodeArgument");
}

TEST(ParserConfiguration, AnEntityExpansionLimitIsOffUntilSetAndReadsBackThroughEveryView) {
  const auto orphan = [] {
    const Parser parser;
    const auto one = own(parser.getConfiguration()), two = own(parser.getConfiguration());
    EXPECT_EQ(one->getEntityExpansionLimit(), std::nullopt);
    one->setEntityExpansionLimit(5);
    EXPECT_EQ(two->getEntityExpansionLimit(), 5u);
    two->setEntityExpansionLimit(0);
    EXPECT_EQ(one->getEntityExpansionLimit(), 0u);
    one->setEntityExpansionLimit(std::nullopt);
    EXPECT_EQ(two->getEntityExpansionLimit(), std::nullopt);
    two->setEntityExpansionLimit(7);
    return own(parser.getConfiguration());
  }();
  EXPECT_EQ(orphan->getEntityExpansionLimit(), 7u);  // the parser object is gone, the limit lives on
}

namespace {

struct Expansions {
  const char* text;
  std::size_t fewestAllowed;  // the smallest limit under which the text parses
};

const Expansions expansions[] = {
    {"<r>&amp;&lt;&#65;&#x42;</r>", 0},                                      // predefined and character references are free
    {"<!DOCTYPE r [<!ENTITY e 'x'>]><r>&e;</r>", 1},                        // one reference, one expansion
    {"<!DOCTYPE r [<!ENTITY e 'x'>]><r>&e;&e;&e;</r>", 3},                  // each reference counts
    {"<!DOCTYPE r [<!ENTITY a '&b;&b;'><!ENTITY b 'x'>]><r>&a;</r>", 3},    // nested ones too
    {"<!DOCTYPE r [<!ENTITY e 'x'>]><r a='&e;&e;'/>", 2},                   // in attribute values as in content
    {"<!DOCTYPE r [<!ENTITY e 'x'><!ATTLIST r a CDATA '&e;'>]><r/>", 0},  // a default the document does not use
};

}  // namespace

TEST(ParserConfiguration, AParseGoingPastTheExpansionLimitFailsByItsOwnIdentifierEveryTime) {
  TempDir dir;
  for (const Expansions& example : expansions) {
    const ustring text = u(example.text), uri = u(dir.write("doc.xml", example.text));
    const Parser parser;
    const auto options = own(parser.getConfiguration());
    options->setEntityExpansionLimit(example.fewestAllowed);
    EXPECT_NO_THROW(parser.parseString(text)) << example.text;
    EXPECT_NO_THROW(parser.parseString(text)) << example.text;  // each parse counts afresh
    if (example.fewestAllowed == 0) continue;
    options->setEntityExpansionLimit(example.fewestAllowed - 1);
    const ustring message = messageOf([&] { parser.parseString(text); });
    EXPECT_NE(message.find(u("more than '" + std::to_string(example.fewestAllowed - 1) + "' entity expansions")),
              ustring::npos)
        << example.text;
    EXPECT_XML_ERROR(parser.parseString(text), "parseStringError", text, message);
    EXPECT_XML_ERROR(parser.parseURI(uri), "parseFileError", uri, message);
    options->setEntityExpansionLimit(std::nullopt);
    EXPECT_NO_THROW(parser.parseURI(uri)) << example.text;
  }
}
