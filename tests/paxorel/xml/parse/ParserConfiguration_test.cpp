#include <paxorel/xml.hpp>

#include <gtest/gtest.h>

using namespace paxorel::xml;

namespace {

struct ParserConfigurationTest : ::testing::Test {
  Parser parser;
  std::unique_ptr<ParserConfiguration> configuration{parser.getConfiguration()};
};

using Getter = bool (ParserConfiguration::*)() const;
using Setter = void (ParserConfiguration::*)(bool);

struct Flag {
  const char* name;
  Getter get;
  Setter set;
  bool byDefault;
};

#define FLAG(name, byDefault) Flag{#name, &ParserConfiguration::get##name, &ParserConfiguration::set##name, byDefault}

const Flag flags[] = {
    FLAG(Namespaces, true),
    FLAG(ElementContentWhitespace, true),
    FLAG(LoadExternalDTD, true),
    FLAG(DisableDefaultEntityResolution, false),
    FLAG(DisallowDoctype, false),
    FLAG(Entities, true),
    FLAG(Validate, false),
    FLAG(SkipDTDValidation, false),
    FLAG(ValidationErrorAsFatal, false),
    FLAG(ContinueAfterFatalError, false),
    FLAG(Comments, true),
    FLAG(DoXInclude, false),
    FLAG(LoadSchema, true),
    FLAG(Schema, false),
    FLAG(ValidateIfSchema, false),
    FLAG(SchemaFullChecking, false),
    FLAG(DatatypeNormalization, false),
    FLAG(IgnoreAnnotations, false),
    FLAG(ValidateAnnotations, false),
    FLAG(GenerateSyntheticAnnotations, false),
    FLAG(CacheGrammarFromParse, false),
    FLAG(UseCachedGrammarInParse, false),
    FLAG(HandleMultipleImports, false),
    FLAG(HasPSVIInfo, false),
    FLAG(IdentityConstraintChecking, true),
    FLAG(IgnoreCachedDTD, false),
};

}  // namespace

TEST_F(ParserConfigurationTest, EveryFlagStartsAtXercessDefaultAndReadsBackWhatWasSet) {
  for (const Flag& flag : flags) {
    const Parser fresh;  // some options of Xerces switch others on
    const std::unique_ptr<ParserConfiguration> options(fresh.getConfiguration());
    EXPECT_EQ((*options.*flag.get)(), flag.byDefault) << flag.name;
    (*options.*flag.set)(!flag.byDefault);
    EXPECT_EQ((*options.*flag.get)(), !flag.byDefault) << flag.name;
    (*options.*flag.set)(flag.byDefault);
    EXPECT_EQ((*options.*flag.get)(), flag.byDefault) << flag.name;
  }
}

TEST_F(ParserConfigurationTest, StandardUriConformantReadsTheCachedGrammarOption) {
  EXPECT_FALSE(configuration->getStandardURIConformant());
  configuration->setStandardURIConformant(true);
  EXPECT_FALSE(configuration->getStandardURIConformant());
  EXPECT_FALSE(configuration->getUseCachedGrammarInParse());
  configuration->setUseCachedGrammarInParse(true);
  EXPECT_TRUE(configuration->getStandardURIConformant());
}

TEST_F(ParserConfigurationTest, SchemaLocationsAreStringsThatStartEmpty) {
  EXPECT_EQ(configuration->getExternalSchemaLocation(), u"");
  EXPECT_EQ(configuration->getExternalNoNamespaceSchemaLocation(), u"");
  configuration->setExternalSchemaLocation(u"urn:a a.xsd");
  configuration->setExternalNoNamespaceSchemaLocation(u"b.xsd");
  EXPECT_EQ(configuration->getExternalSchemaLocation(), u"urn:a a.xsd");
  EXPECT_EQ(configuration->getExternalNoNamespaceSchemaLocation(), u"b.xsd");
  configuration->setExternalSchemaLocation(u"");
  EXPECT_EQ(configuration->getExternalSchemaLocation(), u"");
}

TEST_F(ParserConfigurationTest, AllViewsOfOneParserShareTheSettingsAndOutliveIt) {
  const std::unique_ptr<ParserConfiguration> other(parser.getConfiguration());
  EXPECT_NE(other, configuration);
  configuration->setValidate(true);
  EXPECT_TRUE(other->getValidate());

  std::unique_ptr<ParserConfiguration> orphan;
  {
    const Parser shortLived;
    orphan.reset(shortLived.getConfiguration());
  }
  orphan->setComments(false);  // the parser object is gone, its options live on
  EXPECT_FALSE(orphan->getComments());
  EXPECT_STREQ(orphan->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.ParserConfiguration");
}

TEST_F(ParserConfigurationTest, OptionsTakeEffectAtTheNextParse) {
  configuration->setComments(false);
  const std::shared_ptr<Document> document(DocumentRegistry::shareWithCaller(parser.parseString(u"<a><!--c--></a>")));
  const std::unique_ptr<Node> root(document->getFirstChild());
  EXPECT_FALSE(root->hasChildNodes());
  configuration->setDisallowDoctype(true);
  EXPECT_THROW(parser.parseString(u"<!DOCTYPE a><a/>"), basis::except::IMsgIDException);
}
