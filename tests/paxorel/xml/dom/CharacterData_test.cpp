// Character data: the error chosen for a bad offset or count, read-only data,
// and splitting text nodes.
#include <paxorel/xml/core/Conversions.hpp>

#include "support/expectations.hpp"

using namespace paxorel::xml;
using namespace testing_support;

namespace {

struct CharacterDataTest : ::testing::Test {
  // The text inside the entity reference stands for the entity: read-only.
  std::shared_ptr<Document> document =
      parseString(u"<!DOCTYPE r [<!ENTITY e 'frozen'>]><r>&e;<![CDATA[cdata]]></r>");
  std::unique_ptr<Node> root{document->getLastChild()};
};

// On "abcde": how each call ends, and on success substringData's result and
// the data after deleteData and after replaceData with "XY".
enum Outcome { ok, negativeCount, negativeOffset, excessiveOffset };
struct Case {
  double offset, count;
  Outcome outcome;
  const char16_t *substring = nullptr, *deleted = nullptr, *replaced = nullptr;
};
const Case cases[] = {
    {5, 0, ok, u"", u"abcde", u"abcdeXY"}, {2.9, 1.9, ok, u"c", u"abde", u"abXYde"},
    {0, inf, ok, u"", u"abcde", u"XYabcde"},  // wraps to 0
    // Counts past the end, negative ones too, reach the end. Unguarded,
    // Xerces's substringData wrote outside its buffer for each of these.
    {1, -1, ok, u"bcde", u"a", u"aXY"}, {0, notANumber, ok, u"abcde", u"", u"XY"},
    {0, 4611686018427387904.0, ok, u"abcde", u"", u"XY"},
    // Offsets that become 0.
    {-0.5, 1, ok, u"a", u"bcde", u"XYbcde"}, {1e20, 1, ok, u"a", u"bcde", u"XYbcde"},
    {-1, 1, negativeOffset}, {6, 0, excessiveOffset}, {notANumber, 1, excessiveOffset},
    {100, -1, negativeCount}, {-1, -1, negativeCount},  // a negative count counts only with a bad offset
};

}  // namespace

TEST_F(CharacterDataTest, OffsetsAndCountsFollowTheOutcomeTable) {
  const auto data = own(document->createTextNode(u""));
  const ustring xy = u"XY";
  for (const Case& c : cases) {
    SCOPED_TRACE(formatOffset(c.offset) + ", " + formatOffset(c.count));
    data->setData(u"abcde");
    const std::string offset = formatOffset(c.offset);
    switch (c.outcome) {
      case ok:
        EXPECT_EQ(data->substringData(c.offset, c.count), c.substring);
        data->deleteData(c.offset, c.count);
        EXPECT_EQ(data->getData(), c.deleted);
        data->setData(u"abcde");
        data->replaceData(c.offset, c.count, xy);
        EXPECT_EQ(data->getData(), c.replaced);
        continue;
      case negativeCount:
        EXPECT_XML_ERROR(data->substringData(c.offset, c.count), "cdataSubstringDataNegativeCountError");
        EXPECT_XML_ERROR(data->deleteData(c.offset, c.count), "cdataDeleteDataNegativeCountError");
        EXPECT_XML_ERROR(data->replaceData(c.offset, c.count, xy), "cdataReplaceDataNegativeCountError", xy);
        break;
      case negativeOffset:
        EXPECT_XML_ERROR(data->substringData(c.offset, c.count), "cdataSubstringDataNegativeOffsetError");
        EXPECT_XML_ERROR(data->deleteData(c.offset, c.count), "cdataDeleteDataNegativeOffsetError");
        EXPECT_XML_ERROR(data->replaceData(c.offset, c.count, xy), "cdataReplaceDataNegativeOffsetError", xy);
        break;
      case excessiveOffset:
        EXPECT_XML_ERROR(data->substringData(c.offset, c.count), "cdataSubstringDataExcessiveOffsetError", offset);
        EXPECT_XML_ERROR(data->deleteData(c.offset, c.count), "cdataDeleteDataExcessiveOffsetError", offset);
        EXPECT_XML_ERROR(data->replaceData(c.offset, c.count, xy), "cdataReplaceDataExcessiveOffsetError", xy, offset);
        break;
    }
    EXPECT_EQ(data->getData(), u"abcde");
  }
}

TEST_F(CharacterDataTest, InsertDataHasOnlyTheOffsetRows) {
  const auto data = own(document->createTextNode(u"abcde"));
  const ustring xy = u"XY";
  data->insertData(5, xy);
  data->insertData(-0.5, u"<");
  EXPECT_EQ(data->getData(), u"<abcdeXY");
  EXPECT_XML_ERROR(data->insertData(-1, xy), "cdataInsertDataNegativeOffsetError", xy);
  EXPECT_XML_ERROR(data->insertData(12, xy), "cdataInsertDataExcessiveOffsetError", xy, std::string("12.000000"));
}

TEST_F(CharacterDataTest, ReadOnlyDataRefusesEveryChange) {
  const auto data = own<Text>(own<EntityReference>(root->item(0))->getFirstChild());
  const ustring x = u"x";
  EXPECT_XML_ERROR(data->appendData(x), "cdataAppendDataReadOnlyError", x);
  EXPECT_XML_ERROR(data->insertData(99, x), "cdataInsertDataReadOnlyError", x);  // before the offset is seen
  EXPECT_XML_ERROR(data->deleteData(-1, -1), "cdataDeleteDataReadOnlyError");
  EXPECT_XML_ERROR(data->replaceData(0, 1, x), "cdataReplaceDataReadOnlyError", x);
  // setData and splitText translate nothing.
  EXPECT_THROW(data->setData(x), xercesc::DOMException);
  EXPECT_THROW(delete data->splitText(1), xercesc::DOMException);
  EXPECT_EQ(data->getData(), u"frozen");
}

TEST_F(CharacterDataTest, SplitTextMakesAWrapperOfTheCallersClass) {
  const auto cdata = own<CDATASection>(root->getLastChild());
  EXPECT_STREQ(own(cdata->splitText(2))->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.CDATASection");
  const auto tail = own(static_cast<Text&>(*cdata).splitText(1));  // not virtual
  EXPECT_STREQ(tail->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Text");
  EXPECT_EQ(cdata->getData() + u"|" + tail->getData(), u"c|d");

  const auto parentless = own(document->createTextNode(u"ab"));
  const std::unique_ptr<Text> empty(parentless->splitText(2));
  EXPECT_EQ(empty->getData(), u"");
  EXPECT_EQ(empty->getOwnerDocWrapper(), document->getOwnerDocWrapper());
  EXPECT_THROW(delete parentless->splitText(notANumber), xercesc::DOMException);  // past the end
}
