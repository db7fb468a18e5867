// Node: queries, navigation, comparisons and the wrapper factory.
#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace paxorel::xml;

namespace {

// One node of every kind that a parsed tree holds.
const ustring everyKind =
    u"<?xml version='1.0'?>"
    u"<!DOCTYPE r [<!ENTITY e 'entity text'><!NOTATION n SYSTEM 'n.txt'><!ENTITY u SYSTEM 'u.bin' NDATA n>]>"
    u"<!--c--><?pi data?>"
    u"<r xmlns:p='urn:p' a='1'>text<![CDATA[cdata]]>&e;<p:x/></r>";

struct NodeTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(everyKind);
  std::unique_ptr<Node> root{document->getLastChild()};

  std::unique_ptr<Node> at(Node& parent, double index) { return std::unique_ptr<Node>(parent.item(index)); }
};

constexpr double inf = std::numeric_limits<double>::infinity();

}  // namespace

TEST_F(NodeTest, DowncastGivesEachNodeTheClassOfItsType) {
  const struct { Node* node; const char* type; const char* typeName; } cases[] = {
      {document->item(0), "DocumentType", "DOCUMENT_TYPE_NODE"},
      {document->item(1), "Comment", "COMMENT_NODE"},
      {document->item(2), "ProcessingInstruction", "UNKNOWN"},
      {root.get(), "Element", "ELEMENT_NODE"},
      {root->item(0), "Text", "TEXT_NODE"},
      {root->item(1), "CDATASection", "CDATA_SECTION_NODE"},
      {root->item(2), "EntityReference", "ENTITY_REFERENCE_NODE"},
  };
  for (const auto& c : cases) {
    ASSERT_NE(c.node, nullptr) << c.type;
    EXPECT_EQ(std::string(c.node->getFullyQualifiedVorloTypeName()), std::string("zelmar.io.xml.dom.") + c.type);
    EXPECT_EQ(c.node->getNodeTypeName(), testing_support::u(c.typeName));
    if (c.node != root.get()) delete c.node;
  }
  const std::unique_ptr<Node> doctype(document->getFirstChild());
  auto* map = static_cast<xercesc::DOMDocumentType*>(doctype->getImpl())->getEntities();
  const std::unique_ptr<Node> entity(Node::downcast(map->getNamedItem(u"e"), document));
  EXPECT_STREQ(entity->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Entity");
  EXPECT_EQ(entity->getNodeTypeName(), u"ENTITY_NODE");
  auto* notations = static_cast<xercesc::DOMDocumentType*>(doctype->getImpl())->getNotations();
  const std::unique_ptr<Node> notation(Node::downcast(notations->getNamedItem(u"n"), document));
  EXPECT_STREQ(notation->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Notation");
  EXPECT_EQ(notation->getNodeTypeName(), u"NOTATION");
  const std::unique_ptr<Node> fragment(
      Node::downcast(document->getImpl()->createDocumentFragment(), document));
  EXPECT_STREQ(fragment->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.DocumentFragment");
  const std::unique_ptr<Node> attr(Node::downcast(document->getImpl()->createAttribute(u"at"), document));
  EXPECT_STREQ(attr->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Attr");
}

TEST_F(NodeTest, DowncastOfADocumentIsTheOwnerAndOfNullIsNull) {
  EXPECT_EQ(Node::downcast(document->getImpl(), document), document.get());
  EXPECT_EQ(Node::downcast(document->getImpl(), nullptr), nullptr);
  EXPECT_EQ(Node::downcast(nullptr, document), nullptr);
}

TEST_F(NodeTest, MakeNodeWrapperGivesAPlainNode) {
  const std::unique_ptr<Node> plain(root->makeNodeWrapper(root->getImpl()));
  EXPECT_STREQ(plain->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Node");
  EXPECT_EQ(dynamic_cast<Element*>(plain.get()), nullptr);
  EXPECT_TRUE(plain->isSameNode(root.get()));
  EXPECT_EQ(plain->getOwnerDocWrapper(), document);
  EXPECT_EQ(root->makeNodeWrapper(nullptr), nullptr);
}

TEST_F(NodeTest, AbsentStringsAreEmpty) {
  EXPECT_EQ(root->getNodeValue(), u"");
  EXPECT_EQ(root->getPrefix(), u"");
  EXPECT_EQ(root->getNamespaceURI(), u"");
  EXPECT_EQ(createDocument()->getBaseURI(), u"");
  EXPECT_EQ(root->lookupPrefix(u"urn:none"), u"");
  EXPECT_EQ(root->lookupNamespaceURI(u"none"), u"");
  EXPECT_EQ(root->lookupPrefix(u"urn:p"), u"p");
  EXPECT_EQ(root->lookupNamespaceURI(u"p"), u"urn:p");
  EXPECT_FALSE(root->isDefaultNamespace(u"urn:p"));
  const auto x = at(*root, 3);
  EXPECT_EQ(x->getNodeName(), u"p:x");
  EXPECT_EQ(x->getPrefix(), u"p");
  EXPECT_EQ(x->getLocalName(), u"x");
  EXPECT_EQ(root->getTextContent(), u"textcdataentity text");
  EXPECT_TRUE(root->hasAttributes());
  EXPECT_FALSE(x->hasAttributes());
  EXPECT_TRUE(root->hasChildNodes());
  EXPECT_FALSE(x->hasChildNodes());
}

TEST_F(NodeTest, TypeAndPositionNames) {
  EXPECT_EQ(root->getPositionTypeName(32), u"UNKNOWN");
  EXPECT_EQ(root->getPositionTypeName(2.9), u"DOCUMENT_POSITION_PRECEDING");
  EXPECT_EQ(root->getPositionTypeName(1), u"DOCUMENT_POSITION_DISCONNECTED");
  EXPECT_EQ(root->getPositionTypeName(4), u"DOCUMENT_POSITION_FOLLOWING");
  EXPECT_EQ(root->getPositionTypeName(8), u"DOCUMENT_POSITION_CONTAINS");
  EXPECT_EQ(root->getPositionTypeName(16.5), u"DOCUMENT_POSITION_CONTAINED_BY");
  EXPECT_EQ(root->getPositionTypeName(std::nan("")), u"UNKNOWN");
  const std::unique_ptr<Node> plain(root->makeNodeWrapper(document->getImpl()->createElement(u"e")));
  EXPECT_EQ(plain->getNodeTypeName(), u"ELEMENT_NODE");  // by type, not by wrapper class
}

TEST_F(NodeTest, ComparisonsAskXercesAndNameOnlyExactRelations) {
  const auto text = at(*root, 0), cdata = at(*root, 1);
  EXPECT_EQ(text->comparePositionInDocument(cdata.get()), u"Following");
  EXPECT_EQ(cdata->comparePositionInDocument(text.get()), u"Preceding");
  EXPECT_EQ(root->comparePositionInDocument(root.get()), u"Unknown");  // 0
  EXPECT_EQ(root->compareDocumentPosition(text.get()), 20);            // contained by + following
  EXPECT_EQ(root->comparePositionInDocument(text.get()), u"Unknown");
  EXPECT_EQ(text->comparePositionInDocument(root.get()), u"Unknown");  // 10
  const auto other = parseString(u"<o/>");
  const std::unique_ptr<Node> foreign(other->getFirstChild());
  const double disconnected = root->compareDocumentPosition(foreign.get());
  EXPECT_EQ(static_cast<int>(disconnected) & 1, 1);
  EXPECT_FALSE(root->isEqualNode(foreign.get()));
  const auto twin = parseString(everyKind);
  const std::unique_ptr<Node> twinRoot(twin->getLastChild());
  EXPECT_TRUE(root->isEqualNode(twinRoot.get()));
  EXPECT_FALSE(root->isSameNode(twinRoot.get()));
}

TEST_F(NodeTest, NullNodeArgumentsAreRefused) {
  EXPECT_XML_ERROR(root->isSameNode(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->isEqualNode(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->compareDocumentPosition(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->comparePositionInDocument(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->setOwnerDocWrapper(nullptr), "emptyNodeArgument");
  const Element empty(nullptr, nullptr);  // a wrapper without a node
  EXPECT_XML_ERROR(root->isSameNode(&empty), "emptyNodeArgument");
  EXPECT_XML_ERROR(empty.getNodeName(), "emptyNodeArgument");
}

TEST_F(NodeTest, NavigationGivesNewWrappersOfOneNode) {
  const std::unique_ptr<Node> first(document->getFirstChild()), again(document->getFirstChild());
  EXPECT_NE(first, again);
  EXPECT_TRUE(first->isSameNode(again.get()));
  const std::unique_ptr<Node> next(first->getNextSibling());
  const std::unique_ptr<Node> back(next->getPreviousSibling());
  EXPECT_TRUE(back->isSameNode(first.get()));
  EXPECT_EQ(first->getPreviousSibling(), nullptr);
  const std::unique_ptr<Node> last(root->getLastChild());
  EXPECT_EQ(last->getNodeName(), u"p:x");
  EXPECT_EQ(last->getNextSibling(), nullptr);
}

TEST_F(NodeTest, TheParentOfATopLevelNodeIsTheDocumentWrapperItself) {
  EXPECT_EQ(root->getParentNode(), document.get());
  EXPECT_EQ(root->getParentNode(), document.get());
  const auto text = at(*root, 0);
  const std::unique_ptr<Node> parent(text->getParentNode());
  EXPECT_TRUE(parent->isSameNode(root.get()));
  const std::unique_ptr<Node> loose(Node::downcast(document->getImpl()->createTextNode(u"t"), document));
  EXPECT_EQ(loose->getParentNode(), nullptr);
}

TEST_F(NodeTest, ItemAndChildFollowTheIndexRules) {
  const auto same = [&](Node* found, double expected) {
    const std::unique_ptr<Node> owned(found);
    if (expected < 0) return found == nullptr;
    const auto want = at(*root, expected);
    return found && found->isSameNode(want.get());
  };
  EXPECT_EQ(root->getLength(), 4);
  EXPECT_TRUE(same(root->child(1), 0));
  EXPECT_TRUE(same(root->child(0), -1));
  EXPECT_TRUE(same(root->child(0.5), 0));
  EXPECT_TRUE(same(root->child(1.9), 0));
  EXPECT_TRUE(same(root->child(4), 3));
  EXPECT_TRUE(same(root->item(-0.5), 0));
  EXPECT_TRUE(same(root->item(-1), -1));
  EXPECT_TRUE(same(root->item(4), -1));
  EXPECT_TRUE(same(root->item(std::nan("")), -1));
  EXPECT_TRUE(same(root->item(inf), -1));
  EXPECT_TRUE(same(root->item(3e9), -1));
}

TEST_F(NodeTest, TheChildListFollowsTheTree) {
  EXPECT_EQ(root->getLength(), 4);
  EXPECT_EQ(root->item(4), nullptr);
  root->getImpl()->appendChild(document->getImpl()->createElement(u"late"));
  EXPECT_EQ(root->getLength(), 5);
  const auto late = at(*root, 4);
  ASSERT_NE(late, nullptr);
  EXPECT_EQ(late->getNodeName(), u"late");
}

TEST_F(NodeTest, LeavesHaveNoChildrenAndOnlyElementsHaveAttributes) {
  const auto text = at(*root, 0);
  EXPECT_EQ(text->getLength(), 0);
  EXPECT_EQ(text->item(0), nullptr);
  EXPECT_EQ(text->getAttributes(), nullptr);
  EXPECT_TRUE(text->getChildren().empty());
  const std::unique_ptr<NamedNodeMap> attributes(root->getAttributes());
  ASSERT_NE(attributes, nullptr);
  EXPECT_EQ(attributes->getLength(), 2);  // a and xmlns:p
}

TEST_F(NodeTest, GetChildrenWrapsEveryChildInOrder) {
  std::vector<std::unique_ptr<Node>> children;
  for (Node* child : root->getChildren()) children.emplace_back(child);
  ASSERT_EQ(children.size(), 4u);
  EXPECT_STREQ(children[0]->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Text");
  EXPECT_STREQ(children[3]->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Element");
  const std::unique_ptr<NodeList> list(root->getChildNodes());
  EXPECT_EQ(list->getLength(), 4);
  EXPECT_EQ(list->getOwnerDocWrapper(), document);
}

TEST_F(NodeTest, TheErrorModeBelongsToTheOneObject) {
  root->setNativeErrorMode(true);
  EXPECT_THROW(root->isSameNode(nullptr), paxorel::xml::Exception);
  const auto text = at(*root, 0);  // made for a native-mode wrapper, yet in host mode
  EXPECT_FALSE(text->getNativeErrorMode());
  EXPECT_XML_ERROR(text->isSameNode(nullptr), "emptyNodeArgument");
  // An operation reads its own object's mode, not its argument's.
  Element empty(nullptr, nullptr);
  empty.setNativeErrorMode(true);
  EXPECT_XML_ERROR(text->isSameNode(&empty), "emptyNodeArgument");
  try {
    root->isSameNode(nullptr);
  } catch (const paxorel::xml::Exception& e) {
    EXPECT_STREQ(e.what(), "The operation needs a node, but the node given is empty.");
  }
}
