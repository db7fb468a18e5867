// The platform layer: UTF-16 text, the message catalogue and exceptions.
#include <basis/except/Exception.hpp>
#include <basis/i18n/MessageCatalog.hpp>
#include <basis/text/utf.hpp>
#include <ZELMAR/string/MissingNotSupported.hpp>

#include <gtest/gtest.h>

#include <memory>

using namespace basis;

TEST(Utf, RoundTripsEveryPlaneKeepsLoneSurrogatesAndReplacesEachBadByte) {
  const std::u16string sample = u"a\u00e9\u20ac\U0001F600z";  // 1, 2, 3 and 4 bytes in UTF-8
  EXPECT_EQ(text::to_utf8(sample), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z");
  EXPECT_EQ(text::from_utf8(text::to_utf8(sample)), sample);
  EXPECT_EQ(text::to_utf8(std::u16string{u'\xDC00', u'a'}), "\xED\xB0\x80" "a");  // which from_utf8 refuses
  const struct { std::string in; std::u16string out; } cases[] = {
      {"a\xFF" "b", u"a\uFFFDb"}, {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"}, {"\xC0\xAF", u"\uFFFD\uFFFD"},  // overlong
      {"\xE2\x82", u"\uFFFD\uFFFD"}, {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // cut short; above U+10FFFF
      {std::string("\0x", 2), std::u16string(u"\0x", 2)},
  };
  for (const auto& c : cases) EXPECT_EQ(text::from_utf8(c.in), c.out);
}

TEST(MessageCatalog, FillsPlaceholdersInArgumentOrderAndTellsUnknownMessages) {
  const auto message = [](const std::string& key, std::vector<i18n::MsgArg> args) {
    return i18n::MessageCatalog::get_message(i18n::BaseMsgID("paxorel:xml_error", key, std::move(args)),
                                             i18n::HostLocale::global());
  };
  EXPECT_EQ(message("nodeReplaceChildNotFoundError", {u"new", u"old"}),
            u"Cannot replace 'old' with 'new': 'old' is not a child of this node.");
  // Narrow arguments are UTF-8; integers are written in decimal.
  const ustring missing = u"': it does not exist.";
  EXPECT_EQ(message("inputFileNonexistentError", {std::string("\xC3\xA9")}), u"Cannot read the file '\u00e9" + missing);
  EXPECT_EQ(message("inputFileNonexistentError", {std::int64_t{-12}}), u"Cannot read the file '-12" + missing);
  EXPECT_EQ(message("parseFileError", {u"a.xml"}), u"Cannot parse 'a.xml': {1}");  // missing stays as written
  EXPECT_EQ(message("noSuchMessage", {u"x", std::string("y")}),
            u"Message paxorel:xml_error:noSuchMessage is not in the catalogue; arguments: x, y");
  EXPECT_EQ(i18n::MessageCatalog::get_message(ZELMAR::string::MissingNotSupported(), i18n::HostLocale::global()),
            u"A missing string is not supported here: the callback must give text.");
}

namespace {
struct Sample : i18n::BaseMsgID {
  explicit Sample(const ustring& name) : BaseMsgID("paxorel:xml_error", "inputFileIsDirectoryError", {name}) {}
};
}  // namespace

TEST(Exception, CarriesItsIdentifierAndTextAndItsCopiesShareTheThrowSite) {
  except::Exception<Sample> e(Sample(u"/tmp"));
  e.setErrorId(except::IMsgIDException::get_error_id(e.GetBaseMsgIDObj()));
  EXPECT_STREQ(e.what(), "Cannot read the file '/tmp': it is a directory.");
  const std::unique_ptr<except::IException> copy(e.clone());
  EXPECT_EQ(&copy->throwSite(), &e.throwSite());
  try {
    copy->rethrow();
  } catch (const std::exception& thrown) {  // also a standard exception
    EXPECT_EQ(dynamic_cast<const except::IMsgIDException&>(thrown).GetID(), e.GetID());
  }
}
