#include <basis/i18n/MessageCatalog.hpp>

#include <ZELMAR/string/MissingNotSupported.hpp>

#include <gtest/gtest.h>

using basis::i18n::BaseMsgID;
using basis::i18n::HostLocale;
using basis::i18n::MessageCatalog;

namespace {

basis::ustring message(const std::string& key, std::vector<basis::i18n::MsgArg> args) {
  return MessageCatalog::get_message(BaseMsgID("paxorel:xml_error", key, std::move(args)), HostLocale::global());
}

}  // namespace

TEST(MessageCatalog, FillsPlaceholdersInArgumentOrder) {
  EXPECT_EQ(message("nodeReplaceChildNotFoundError", {u"new", u"old"}),
            u"Cannot replace 'old' with 'new': 'old' is not a child of this node.");
  // Narrow arguments are UTF-8; integers are written in decimal.
  EXPECT_EQ(message("cdataDeleteDataExcessiveOffsetError", {std::string("3.500000")}),
            u"Cannot delete from the character data: the offset 3.500000 lies beyond the end of the data.");
  EXPECT_EQ(message("inputFileNonexistentError", {std::int64_t{-12}}),
            u"Cannot read the file '-12': it does not exist.");
}

TEST(MessageCatalog, LeavesPlaceholdersWithoutArgumentsAsWritten) {
  EXPECT_EQ(message("parseFileError", {u"a.xml"}), u"Cannot parse 'a.xml': {1}");
}

TEST(MessageCatalog, AnUnknownMessageStillTellsItsIdentifierAndArguments) {
  EXPECT_EQ(message("noSuchMessage", {u"x", std::string("y")}),
            u"Message paxorel:xml_error:noSuchMessage is not in the catalogue; arguments: x, y");
  EXPECT_EQ(MessageCatalog::get_template("paxorel:xml_error", "noSuchMessage"), "");
  EXPECT_EQ(MessageCatalog::get_template("no:catalogue", "emptyNodeArgument"), "");
}

TEST(MessageCatalog, HasTheHostStringCatalogue) {
  const auto text = MessageCatalog::get_message(ZELMAR::string::MissingNotSupported(), HostLocale::global());
  EXPECT_EQ(text, u"A missing string is not supported here: the callback must give text.");
}
