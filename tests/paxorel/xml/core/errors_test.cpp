#include <paxorel/xml.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>

#include <basis/i18n/MessageCatalog.hpp>

#include <gtest/gtest.h>

#include <set>

using namespace paxorel;

namespace {

struct ErrorRow {
  std::string name;
  std::size_t arity;
  std::string key;  // what the type puts into its BaseMsgID
};

const std::vector<ErrorRow>& allErrors() {
  static const std::vector<ErrorRow> rows = {
#define PAXOREL_XML_ERROR_ROW(errorName, ...) \
  {#errorName, xml_error::errorName::arity, xml_error::errorName::name},
      PAXOREL_XML_ERRORS(PAXOREL_XML_ERROR_ROW)
#undef PAXOREL_XML_ERROR_ROW
  };
  return rows;
}

}  // namespace

TEST(Errors, EveryErrorIsKeyedByItsOwnNameAndHasACatalogueText) {
  EXPECT_EQ(allErrors().size(), 101u);
  for (const auto& row : allErrors()) {
    EXPECT_EQ(row.key, row.name);
    const std::string text = basis::i18n::MessageCatalog::get_template("paxorel:xml_error", row.name);
    EXPECT_FALSE(text.empty()) << row.name << " has no text";
    // Every argument has its placeholder, and there is none beyond them.
    std::set<std::size_t> used;
    for (auto open = text.find('{'); open != std::string::npos; open = text.find('{', open + 1)) {
      used.insert(std::stoul(text.substr(open + 1)));
    }
    EXPECT_EQ(used.size(), row.arity) << row.name;
    if (!used.empty()) {
      EXPECT_EQ(*used.rbegin(), row.arity - 1) << row.name;
    }
  }
}

TEST(Errors, ArgumentsKeepTheirOrderAndKind) {
  const xml_error::cdataInsertDataExcessiveOffsetError error(u"text", "12.000000");
  EXPECT_EQ(error.catalogue, "paxorel:xml_error");
  EXPECT_EQ(error.messageKey, "cdataInsertDataExcessiveOffsetError");
  ASSERT_EQ(error.args.size(), 2u);
  EXPECT_EQ(std::get<xml::ustring>(error.args[0]), u"text");
  EXPECT_EQ(std::get<std::string>(error.args[1]), "12.000000");
  // A Xerces text is copied, and its absence is the empty string.
  EXPECT_EQ(std::get<xml::ustring>(xml_error::fileWriteError(u"p", u"denied").args[1]), u"denied");
  EXPECT_EQ(std::get<xml::ustring>(xml_error::malformedURL(u"p", nullptr).args[1]), u"");
}

namespace {
struct Raiser {
  bool native = false;
  bool getNativeErrorMode() const { return native; }
};
}  // namespace

TEST(Errors, TheHostWayKeepsIdentifierAndArguments) {
  try {
    xml::raiseXmlError(Raiser{false}, xml_error::nodeRemoveChildNotFoundError(u"b", u"b"));
  } catch (const basis::except::Exception<xml_error::nodeRemoveChildNotFoundError>& e) {
    EXPECT_EQ(e.GetID(), "paxorel:xml_error:nodeRemoveChildNotFoundError");
    EXPECT_EQ(e.GetBaseMsgIDObj().args, (std::vector<basis::i18n::MsgArg>{u"b", u"b"}));
    EXPECT_STREQ(e.what(), "Cannot remove child 'b': 'b' is not a child of this node.");
    return;
  }
  FAIL();
}

TEST(Errors, TheNativeWayCarriesTheFinishedTextOnly) {
  try {
    xml::raiseXmlError(Raiser{true}, xml_error::cdataDeleteDataExcessiveOffsetError("3.500000"));
  } catch (const basis::except::IException&) {
    FAIL() << "a native error carries no identifier";
  } catch (const xml::Exception& e) {
    EXPECT_STREQ(e.what(),
                 "Cannot delete from the character data: the offset 3.500000 lies beyond the end of the data.");
    return;
  }
  FAIL();
}
