#include <basis/text/utf.hpp>

#include <gtest/gtest.h>

using basis::text::from_utf8;
using basis::text::to_utf8;

TEST(Utf, RoundTripsEveryPlane) {
  const std::u16string text = u"a\u00e9\u20ac\U0001F600z";  // 1, 2, 3 and 4 bytes in UTF-8
  EXPECT_EQ(to_utf8(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z");
  EXPECT_EQ(from_utf8(to_utf8(text)), text);
  EXPECT_EQ(to_utf8(u""), "");
}

TEST(Utf, KeepsALoneSurrogateAsItsOwnThreeBytes) {
  EXPECT_EQ(to_utf8(std::u16string(1, u'\xD800')), "\xED\xA0\x80");
  EXPECT_EQ(to_utf8(std::u16string{u'\xDC00', u'a'}), "\xED\xB0\x80" "a");
  // ...which a strict reader refuses, unit by unit.
  EXPECT_EQ(from_utf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
}

TEST(Utf, ReplacesEachByteThatStartsNoWellFormedSequence) {
  EXPECT_EQ(from_utf8("a\xFF" "b"), u"a\uFFFDb");
  EXPECT_EQ(from_utf8("\xC0\xAF"), u"\uFFFD\uFFFD");        // overlong '/'
  EXPECT_EQ(from_utf8("\xE2\x82"), u"\uFFFD\uFFFD");        // cut short
  EXPECT_EQ(from_utf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");  // above U+10FFFF
  EXPECT_EQ(from_utf8(std::string("\0x", 2)), std::u16string(u"\0x", 2));
}
