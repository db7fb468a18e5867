// Node: queries, navigation, comparisons, the wrapper factory, and the child
// lists and attribute maps with their index rules.
#include "support/expectations.hpp"

using namespace paxorel::xml;
using namespace testing_support;

namespace {

// The name of the node that `found` wraps, or "-"; deletes the wrapper.
ustring nameOf(Node* found) { return found ? own(found)->getNodeName() : u"-"; }

struct NodeTest : ::testing::Test {
  // One node of every kind that a parsed tree holds.
  std::shared_ptr<Document> document = parseString(
      u"<!DOCTYPE r [<!ENTITY e 'entity text'><!NOTATION n SYSTEM 'n.txt'>]>"
      u"<!--c--><?pi data?><r xmlns:p='urn:p' a='1'>text<![CDATA[cdata]]>&e;<p:x/></r>");
  std::unique_ptr<Node> root{document->getLastChild()};
};

}  // namespace

TEST_F(NodeTest, DowncastGivesEachNodeTheClassAndTypeNameOfItsType) {
  xercesc::DOMDocument* tree = document->getImpl();
  auto* doctype = tree->getDoctype();
  const struct { xercesc::DOMNode* node; const char* type; const char16_t* typeName; } cases[] = {
      {tree->getDocumentElement(), "Element", u"ELEMENT_NODE"},
      {tree->createAttribute(u"a"), "Attr", u"ATTRIBUTE_NODE"},
      {tree->getDocumentElement()->getFirstChild(), "Text", u"TEXT_NODE"},
      {tree->createCDATASection(u"c"), "CDATASection", u"CDATA_SECTION_NODE"},
      {tree->createEntityReference(u"e"), "EntityReference", u"ENTITY_REFERENCE_NODE"},
      {doctype->getEntities()->getNamedItem(u"e"), "Entity", u"ENTITY_NODE"},
      {doctype->getNextSibling()->getNextSibling(), "ProcessingInstruction", u"UNKNOWN"},
      {doctype->getNextSibling(), "Comment", u"COMMENT_NODE"}, {doctype, "DocumentType", u"DOCUMENT_TYPE_NODE"},
      {tree->createDocumentFragment(), "DocumentFragment", u"DOCUMENT_FRAGMENT_NODE"},
      {doctype->getNotations()->getNamedItem(u"n"), "Notation", u"NOTATION"},  // the one without "_NODE"
  };
  for (const auto& c : cases) {
    const std::unique_ptr<Node> node(Node::downcast(c.node, document));
    EXPECT_EQ(node->getFullyQualifiedVorloTypeName(), std::string("zelmar.io.xml.dom.") + c.type);
    EXPECT_EQ(node->getNodeTypeName(), c.typeName) << c.type;
  }
  EXPECT_EQ(document->getNodeTypeName(), u"DOCUMENT_NODE");
  // A document is answered by the owner itself; null by null.
  EXPECT_EQ(Node::downcast(tree, document), document.get());
  EXPECT_EQ(Node::downcast(tree, nullptr), nullptr);
  EXPECT_EQ(Node::downcast(nullptr, document), nullptr);
  // makeNodeWrapper gives a plain node, which still names its type.
  const std::unique_ptr<Node> plain(root->makeNodeWrapper(root->getImpl()));
  EXPECT_STREQ(plain->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Node");
  EXPECT_EQ(plain->getNodeTypeName(), u"ELEMENT_NODE");  // by type, not by wrapper class
  EXPECT_EQ(plain->getOwnerDocWrapper(), document);
  EXPECT_EQ(root->makeNodeWrapper(nullptr), nullptr);
}

TEST_F(NodeTest, PositionNamesTruncateTheirArgumentAndNameOnlyExactRelations) {
  const struct { double position; const char16_t* name; } cases[] = {
      {1, u"DOCUMENT_POSITION_DISCONNECTED"}, {2.9, u"DOCUMENT_POSITION_PRECEDING"},
      {4, u"DOCUMENT_POSITION_FOLLOWING"},    {8, u"DOCUMENT_POSITION_CONTAINS"},
      {16.5, u"DOCUMENT_POSITION_CONTAINED_BY"}, {32, u"UNKNOWN"}, {6, u"UNKNOWN"}, {notANumber, u"UNKNOWN"},
  };
  for (const auto& c : cases) EXPECT_EQ(root->getPositionTypeName(c.position), c.name) << c.position;
  // comparePositionInDocument names only the exact relations.
  const auto text = own(root->item(0)), cdata = own(root->item(1));
  EXPECT_EQ(text->comparePositionInDocument(cdata.get()), u"Following");
  EXPECT_EQ(cdata->comparePositionInDocument(text.get()), u"Preceding");
  EXPECT_EQ(root->comparePositionInDocument(root.get()), u"Unknown");  // 0
  EXPECT_EQ(root->compareDocumentPosition(text.get()), 20);            // contained by + following
  EXPECT_EQ(root->comparePositionInDocument(text.get()), u"Unknown");
  EXPECT_EQ(text->comparePositionInDocument(root.get()), u"Unknown");  // 10
}

TEST_F(NodeTest, NullNodeArgumentsAreRefusedInTheCallersOwnErrorMode) {
  EXPECT_XML_ERROR(root->isSameNode(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->isEqualNode(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->compareDocumentPosition(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->setOwnerDocWrapper(nullptr), "emptyNodeArgument");
  Element empty(nullptr, nullptr);  // a wrapper without a node
  EXPECT_XML_ERROR(empty.getNodeName(), "emptyNodeArgument");
  // An operation reads its own object's mode, not its argument's...
  empty.setNativeErrorMode(true);
  EXPECT_XML_ERROR(root->isSameNode(&empty), "emptyNodeArgument");
  root->setNativeErrorMode(true);
  try {
    root->isSameNode(nullptr);
    ADD_FAILURE();
  } catch (const basis::except::IException&) {
    ADD_FAILURE() << "a native error carries no identifier";
  } catch (const paxorel::xml::Exception& e) {
    EXPECT_STREQ(e.what(), "The operation needs a node, but the node given is empty.");
  }
  // ...and a wrapper made by a native-mode one starts in host mode.
  EXPECT_XML_ERROR(own(root->item(0))->isSameNode(nullptr), "emptyNodeArgument");
}

TEST_F(NodeTest, NavigationGivesANewWrapperEachTimeAndNullOrEmptyForWhatIsAbsent) {
  EXPECT_EQ(root->getNodeValue() + root->getPrefix() + root->getNamespaceURI() + createDocument()->getBaseURI(), u"");
  EXPECT_EQ(root->lookupPrefix(u"urn:none") + root->lookupNamespaceURI(u"none"), u"");
  const auto first = own<DocumentType>(document->getFirstChild()), again = own<DocumentType>(document->getFirstChild());
  EXPECT_EQ(first->getPublicId() + first->getSystemId(), u"");
  EXPECT_NE(first, again);
  EXPECT_TRUE(first->isSameNode(again.get()));
  EXPECT_TRUE(own(own(first->getNextSibling())->getPreviousSibling())->isSameNode(first.get()));
  EXPECT_EQ(first->getPreviousSibling(), nullptr);
  EXPECT_EQ(own(root->getLastChild())->getNextSibling(), nullptr);
  EXPECT_EQ(own(root->item(0))->getAttributes(), nullptr);
  // The parent of a top-level node is the document wrapper itself.
  EXPECT_EQ(root->getParentNode(), document.get());
  EXPECT_EQ(document->getParentNode(), nullptr);
  EXPECT_TRUE(own(own(root->item(0))->getParentNode())->isSameNode(root.get()));
  EXPECT_EQ(own(document->createTextNode(u"t"))->getParentNode(), nullptr);
}

TEST_F(NodeTest, ItemCountsFromZeroChildAndNodeFromOneAndAListKeepsItsDocument) {
  std::unique_ptr<NodeList> list(root->getChildNodes());
  const struct { double index; const char16_t* name; } cases[] = {
      {0, u"#text"}, {2.9, u"e"}, {3.5, u"p:x"}, {-0.5, u"#text"}, {-0.99, u"#text"}, {4, u"-"}, {-1, u"-"},
      {5e9, u"-"}, {inf, u"-"}, {notANumber, u"-"},  // beyond 32 bits, no index at all
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nameOf(root->item(c.index)), c.name) << c.index;
    EXPECT_EQ(nameOf(root->child(c.index + 1)), c.name) << c.index;  // 0.5 is item(-0.5)
    EXPECT_EQ(nameOf(list->item(c.index)), c.name) << c.index;
    EXPECT_EQ(nameOf(list->node(c.index + 1)), c.name) << c.index;
  }
  EXPECT_EQ(list->getTextContent(), u"textcdataentity text");
  ustring all;
  for (Node* child : root->getChildren()) all += nameOf(child) + u" ";
  EXPECT_EQ(all, u"#text #cdata-section e p:x ");

  // Both lists follow the tree, and the list alone keeps the document.
  root->getImpl()->appendChild(document->getImpl()->createElement(u"late"));
  EXPECT_EQ(root->getLength(), 5);  // its cached list too
  const std::weak_ptr<Document> watch = list->getOwnerDocWrapper();
  document.reset();
  root.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(nameOf(list->item(4)), u"late");
  list.reset();
  EXPECT_TRUE(watch.expired());
  EXPECT_XML_ERROR(NodeList(nullptr, nullptr).getLength(), "emptyNodeArgument");
}

TEST_F(NodeTest, AttributeMapsUseTheUnsignedConversionAndReturnTheirArguments) {
  const std::unique_ptr<NamedNodeMap> map(root->getAttributes());
  const ustring first = nameOf(map->item(0));
  const struct { double index; ustring name; } cases[] = {
      {inf, first}, {1e20, first}, {-1, u"-"}, {2, u"-"}, {notANumber, u"-"}};  // the first two wrap to 0
  for (const auto& c : cases) EXPECT_EQ(nameOf(map->item(c.index)), c.name) << c.index;
  EXPECT_EQ(map->getNamedItem(u"zz"), nullptr);
  EXPECT_EQ(map->getNamedItemNS(u"urn:other", u"a"), nullptr);
  const auto replacement = own(document->createAttribute(u"a"));
  EXPECT_EQ(map->setNamedItem(replacement.get()), replacement.get());  // not the attribute replaced
  const auto added = own(document->createAttributeNS(u"urn:q", u"q:c"));
  EXPECT_EQ(map->setNamedItemNS(added.get()), added.get());
  EXPECT_XML_ERROR(map->setNamedItem(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(map->setNamedItemNS(nullptr), "emptyNodeArgument");
  EXPECT_EQ(nameOf(map->removeNamedItemNS(u"urn:q", u"c")) + nameOf(map->removeNamedItem(u"a")), u"q:ca");
  EXPECT_EQ(map->getLength(), 1);
  EXPECT_THROW(map->removeNamedItem(u"zz"), xercesc::DOMException);  // let through untranslated
}
