#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <limits>

using namespace paxorel::xml;

namespace {

struct NodeListTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(u"<r><a>1</a><b>2</b><c>3</c></r>");
  std::unique_ptr<Node> root{document->getFirstChild()};
  std::unique_ptr<NodeList> list{root->getChildNodes()};

  // The name of the node that `found` wraps, or "null"; deletes the wrapper.
  static ustring nameOf(Node* found) {
    const std::unique_ptr<Node> owned(found);
    return found ? found->getNodeName() : u"null";
  }
};

constexpr double inf = std::numeric_limits<double>::infinity();

}  // namespace

TEST_F(NodeListTest, IndicesFromZeroAndFromOne) {
  EXPECT_EQ(list->getLength(), 3);
  EXPECT_EQ(nameOf(list->item(0)), u"a");
  EXPECT_EQ(nameOf(list->item(2.9)), u"c");
  EXPECT_EQ(nameOf(list->item(3)), u"null");   // at the length
  EXPECT_EQ(nameOf(list->node(3)), u"c");      // the last one
  EXPECT_EQ(nameOf(list->node(2.9)), u"b");    // 1.9 truncates to 1
  EXPECT_EQ(nameOf(list->node(0)), u"null");
  EXPECT_EQ(nameOf(list->item(-1)), u"null");
  EXPECT_EQ(nameOf(list->item(-0.5)), u"a");
  EXPECT_EQ(nameOf(list->item(5000000000)), u"null");  // does not fit 32 bits
  EXPECT_EQ(nameOf(list->item(inf)), u"null");
}

TEST_F(NodeListTest, TwoItemsOfOneIndexAreTwoWrappersOfOneNode) {
  const std::unique_ptr<Node> first(list->item(1)), second(list->item(1));
  EXPECT_NE(first, second);
  EXPECT_TRUE(first->isSameNode(second.get()));
  EXPECT_STREQ(first->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Element");
}

TEST_F(NodeListTest, TextContentRunsTheNodesTogether) {
  EXPECT_EQ(list->getTextContent(), u"123");
  const std::unique_ptr<Node> a(list->item(0));
  const std::unique_ptr<Node> text(a->getFirstChild());
  const std::unique_ptr<NodeList> empty(text->getChildNodes());
  EXPECT_EQ(empty->getTextContent(), u"");
}

TEST_F(NodeListTest, IsLiveAndKeepsTheDocument) {
  const std::weak_ptr<Document> watch = root->getOwnerDocWrapper();
  root->getImpl()->appendChild(document->getImpl()->createElement(u"d"));
  EXPECT_EQ(list->getLength(), 4);
  document.reset();
  root.reset();
  ASSERT_FALSE(watch.expired());  // the list alone holds it
  EXPECT_EQ(nameOf(list->item(3)), u"d");
  list.reset();
  EXPECT_TRUE(watch.expired());
}

TEST_F(NodeListTest, AListWithoutXercesListFailsClearly) {
  const NodeList none(nullptr, nullptr);
  EXPECT_XML_ERROR(none.getLength(), "emptyNodeArgument");
  EXPECT_STREQ(none.getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.NodeList");
}

namespace {

struct NamedNodeMapTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(u"<r xmlns:p='urn:p' a='1' p:b='2'/>");
  std::unique_ptr<Node> root{document->getFirstChild()};
  std::unique_ptr<NamedNodeMap> map{root->getAttributes()};

  std::unique_ptr<Node> attribute(const ustring& name) {
    return std::unique_ptr<Node>(Node::downcast(document->getImpl()->createAttribute(name.c_str()), document));
  }
};

}  // namespace

TEST_F(NamedNodeMapTest, ItemUsesTheUnsignedConversion) {
  EXPECT_EQ(map->getLength(), 3);
  const std::unique_ptr<Node> first(map->item(0)), wrapped(map->item(inf)), huge(map->item(1e20));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(wrapped, nullptr);
  EXPECT_TRUE(wrapped->isSameNode(first.get()));  // infinity wraps to 0
  EXPECT_TRUE(huge->isSameNode(first.get()));
  EXPECT_EQ(map->item(-1), nullptr);
  EXPECT_EQ(map->item(3), nullptr);
  EXPECT_EQ(map->item(std::numeric_limits<double>::quiet_NaN()), nullptr);
  EXPECT_STREQ(first->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Attr");
}

TEST_F(NamedNodeMapTest, LooksUpByNameAndNamespace) {
  const std::unique_ptr<Node> a(map->getNamedItem(u"a")), b(map->getNamedItemNS(u"urn:p", u"b"));
  EXPECT_EQ(a->getNodeValue(), u"1");
  EXPECT_EQ(b->getNodeValue(), u"2");
  EXPECT_EQ(map->getNamedItem(u"zz"), nullptr);
  EXPECT_EQ(map->getNamedItemNS(u"urn:other", u"b"), nullptr);
}

TEST_F(NamedNodeMapTest, SetReturnsItsArgumentAndReplacesByName) {
  const auto replacement = attribute(u"a");
  static_cast<xercesc::DOMAttr*>(replacement->getImpl())->setValue(u"new");
  EXPECT_EQ(map->setNamedItem(replacement.get()), replacement.get());
  EXPECT_EQ(map->getLength(), 3);
  const std::unique_ptr<Node> a(map->getNamedItem(u"a"));
  EXPECT_EQ(a->getNodeValue(), u"new");
  const std::unique_ptr<Node> added(
      Node::downcast(document->getImpl()->createAttributeNS(u"urn:q", u"q:c"), document));
  EXPECT_EQ(map->setNamedItemNS(added.get()), added.get());
  EXPECT_EQ(map->getLength(), 4);
  EXPECT_XML_ERROR(map->setNamedItem(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(map->setNamedItemNS(nullptr), "emptyNodeArgument");
}

TEST_F(NamedNodeMapTest, XercesFailuresPassThroughUntranslated) {
  try {
    map->removeNamedItem(u"zz");
    FAIL();
  } catch (const xercesc::DOMException& e) {
    EXPECT_EQ(e.code, xercesc::DOMException::NOT_FOUND_ERR);
  }
  const auto other = parseString(u"<o x='1'/>");
  const std::unique_ptr<Node> otherRoot(other->getFirstChild());
  const std::unique_ptr<NamedNodeMap> otherMap(otherRoot->getAttributes());
  const std::unique_ptr<Node> foreign(otherMap->getNamedItem(u"x"));
  try {
    map->setNamedItem(foreign.get());
    FAIL();
  } catch (const xercesc::DOMException& e) {
    EXPECT_EQ(e.code, xercesc::DOMException::WRONG_DOCUMENT_ERR);
  }
}

TEST_F(NamedNodeMapTest, RemoveGivesTheRemovedNode) {
  const std::unique_ptr<Node> removed(map->removeNamedItemNS(u"urn:p", u"b"));
  EXPECT_EQ(removed->getNodeValue(), u"2");
  EXPECT_EQ(map->getLength(), 2);
  const std::unique_ptr<Node> a(map->removeNamedItem(u"a"));
  EXPECT_EQ(a->getNodeName(), u"a");
  EXPECT_EQ(map->getLength(), 1);
}
