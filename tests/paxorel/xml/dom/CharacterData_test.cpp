// Character data: the error chosen for a bad offset or count, read-only data,
// and splitting text nodes.
#include <paxorel/xml.hpp>
#include <paxorel/xml/core/Conversions.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <limits>

using namespace paxorel::xml;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct CharacterDataTest : ::testing::Test {
  // The text inside the entity reference stands for the entity: read-only.
  std::shared_ptr<Document> document =
      parseString(u"<!DOCTYPE r [<!ENTITY e 'frozen'>]><r>hello&e;<![CDATA[cdata]]></r>");
  std::unique_ptr<Node> root{document->getLastChild()};

  template <class T>
  static std::unique_ptr<T> as(Node* node) { return std::unique_ptr<T>(&dynamic_cast<T&>(*node)); }
  std::unique_ptr<Text> loose(const ustring& data) {
    return std::make_unique<Text>(document->getImpl()->createTextNode(data.c_str()), document->getOwnerDocWrapper());
  }
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
    {5, 0, ok, u"", u"abcde", u"abcdeXY"},
    {2.9, 1.9, ok, u"c", u"abde", u"abXYde"},
    {0, inf, ok, u"", u"abcde", u"XYabcde"},  // wraps to 0
    // Counts past the end, negative ones too, reach the end. Unguarded,
    // Xerces's substringData wrote outside its buffer for each of these.
    {1, -1, ok, u"bcde", u"a", u"aXY"},
    {0, notANumber, ok, u"abcde", u"", u"XY"},
    {0, 4611686018427387904.0, ok, u"abcde", u"", u"XY"},
    // Offsets that become 0.
    {-0.5, 1, ok, u"a", u"bcde", u"XYbcde"},
    {1e20, 1, ok, u"a", u"bcde", u"XYbcde"},
    {-1, 1, negativeOffset},
    {6, 0, excessiveOffset},
    {notANumber, 1, excessiveOffset},
    {100, -1, negativeCount},
    {-1, -1, negativeCount},
};

}  // namespace

TEST_F(CharacterDataTest, OffsetsAndCountsFollowTheOutcomeTable) {
  const auto data = loose(u"");
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
  const auto data = loose(u"abcde");
  const ustring xy = u"XY";
  data->insertData(5, xy);
  data->insertData(-0.5, u"<");
  EXPECT_EQ(data->getData(), u"<abcdeXY");
  EXPECT_XML_ERROR(data->insertData(-1, xy), "cdataInsertDataNegativeOffsetError", xy);
  EXPECT_XML_ERROR(data->insertData(12, xy), "cdataInsertDataExcessiveOffsetError", xy, std::string("12.000000"));
}

TEST_F(CharacterDataTest, ReadOnlyDataRefusesEveryChange) {
  const auto data = as<Text>(as<EntityReference>(root->item(1))->getFirstChild());
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
  const auto hello = as<Text>(root->getFirstChild());
  const std::unique_ptr<Text> rest(hello->splitText(2));
  EXPECT_EQ(hello->getData() + u"|" + rest->getData(), u"he|llo");
  EXPECT_TRUE(std::unique_ptr<Node>(hello->getNextSibling())->isSameNode(rest.get()));

  const auto cdata = as<CDATASection>(root->getLastChild());
  EXPECT_STREQ(std::unique_ptr<CDATASection>(cdata->splitText(2))->getFullyQualifiedVorloTypeName(),
               "zelmar.io.xml.dom.CDATASection");
  const std::unique_ptr<Text> tail(static_cast<Text&>(*cdata).splitText(1));  // not virtual
  EXPECT_STREQ(tail->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Text");
  EXPECT_EQ(tail->getNodeType(), Node::CDATA_SECTION_NODE);

  const auto parentless = loose(u"ab");
  const std::unique_ptr<Text> empty(parentless->splitText(2));
  EXPECT_EQ(empty->getData(), u"");
  EXPECT_EQ(empty->getOwnerDocWrapper(), document->getOwnerDocWrapper());
  EXPECT_THROW(delete parentless->splitText(notANumber), xercesc::DOMException);  // past the end
}
