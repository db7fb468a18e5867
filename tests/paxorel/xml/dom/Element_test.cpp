// Element: attribute changes and their failures, and the document-order index.
#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

using namespace paxorel::xml;

namespace {

// The content of the entity reference, <x a="1"/>, is read-only in the tree.
struct ElementTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(u"<!DOCTYPE r [<!ENTITY e '<x a=\"1\"/>'>]><r a='1'><first/>&e;</r>");
  std::unique_ptr<Element> root{static_cast<Element*>(document->getLastChild())};
  std::unique_ptr<Element> first{root->getFirstElementChild()};
  std::unique_ptr<Attr> rootsA{root->getAttributeNode(u"a")};
  std::unique_ptr<Node> reference{root->getLastChild()};
  std::unique_ptr<Element> x{static_cast<Element*>(reference->getFirstChild())};
};

}  // namespace

TEST(ElementNodeIndex, CountsEveryNodeOfTheChildListsInDocumentOrder) {
  const struct { const char16_t* xml; const char16_t* tag; double index; } cases[] = {
      {u"<r/>", u"r", 1},
      {u"<!--c--><r/>", u"r", 2},
      {u"<?pi?><r>t<!--c--><d/></r>", u"d", 5},  // every kind of child counts
      {u"<r a='1' b='2'><c/></r>", u"c", 4},    // attributes right after their element
      {u"<r a='text'><c/></r>", u"c", 3},       // but not their text
      {u"<!DOCTYPE r [<!ENTITY e '<x/>'>]><r>&e;<y/></r>", u"x", 4},  // doctype, r, reference, x
  };
  for (const auto& c : cases) {
    const auto document = parseString(c.xml);
    const Element element(static_cast<xercesc::DOMElement*>(document->getImpl()->getElementsByTagName(c.tag)->item(0)),
                          document);
    EXPECT_EQ(element.getNodeIndex(), c.index) << c.index;
  }
  // An element outside the tree gets the count of the whole tree.
  const auto document = parseString(u"<!--c--><r a='1'><s/></r>");
  EXPECT_EQ(Element(document->getImpl()->createElement(u"loose"), document).getNodeIndex(), 4);
}

TEST(ElementNodeIndex, ADeepDocumentDoesNotExhaustTheStack) {
  const auto document = createDocument();
  xercesc::DOMNode* parent = document->getImpl();
  constexpr int depth = 200000;
  for (int i = 0; i < depth; ++i) parent = parent->appendChild(document->getImpl()->createElement(u"d"));
  EXPECT_EQ(Element(static_cast<xercesc::DOMElement*>(parent), document).getNodeIndex(), depth);
}

TEST_F(ElementTest, AReadOnlyElementRefusesEveryChange) {
  const std::unique_ptr<Attr> own(x->getAttributeNode(u"a"));
  Attr fresh(document->getImpl()->createAttribute(u"n"), document);
  EXPECT_XML_ERROR(x->setAttribute(u"a", u"2"), "elemSetAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setAttributeNS(u"urn:q", u"q:n", u"2"), "elemSetAttrReadOnlyError", u"q:n", u"x");
  EXPECT_XML_ERROR(x->setAttributeNode(&fresh), "elemSetAttrReadOnlyError", u"n", u"x");
  EXPECT_XML_ERROR(x->setAttributeNodeNS(&fresh), "elemSetAttrReadOnlyError", u"n", u"x");
  EXPECT_XML_ERROR(x->removeAttributeNode(own.get()), "elemRemoveAttrNodeReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->removeAttribute(u"a"), "elemRemoveAttrError", u"a", u"x");
  EXPECT_XML_ERROR(x->removeAttributeNS(u"urn:q", u"a"), "elemRemoveAttrError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttribute(u"a", true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttributeNS(u"urn:q", u"a", true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttributeNode(own.get(), true), "elemSetIdAttrReadOnlyError", u"a", u"x");
}

TEST_F(ElementTest, BadNamesAndWrongAttributes) {
  EXPECT_XML_ERROR(root->setAttribute(u"1a", u"v"), "elemSetAttrInvalidCharError", u"1a", u"r");
  EXPECT_XML_ERROR(root->setAttributeNS(u"urn:q", u"1a", u"v"), "elemSetAttrInvalidCharError", u"1a", u"r");
  EXPECT_XML_ERROR(root->setAttributeNS(u"", u"q:a", u"v"), "elemSetAttrNSNamespaceError", u"q:a", u"", u"r");
  const auto other = parseString(u"<o/>");
  Attr foreign(other->getImpl()->createAttribute(u"f"), other);
  EXPECT_XML_ERROR(root->setAttributeNode(&foreign), "elemSetAttrNodeWrongDocError", u"f", u"r");
  EXPECT_XML_ERROR(first->setAttributeNode(rootsA.get()), "elemSetAttrNodeInUseError", u"a", u"first");
  EXPECT_XML_ERROR(first->removeAttributeNode(rootsA.get()), "elemRemoveAttrNodeNotFoundError", u"a", u"first");
  EXPECT_XML_ERROR(first->setIdAttributeNode(rootsA.get(), true), "elemSetIdAttrNotFoundError", u"a", u"first");
  EXPECT_XML_ERROR(root->setIdAttribute(u"none", true), "elemSetIdAttrNotFoundError", u"none", u"r");
  EXPECT_XML_ERROR(root->setIdAttributeNS(u"urn:p", u"none", true), "elemSetIdAttrNotFoundError", u"none", u"r");
}

TEST_F(ElementTest, AttrArgumentsMustHaveANode) {
  Attr empty(nullptr, nullptr);
  for (Attr* given : {static_cast<Attr*>(nullptr), &empty}) {
    EXPECT_XML_ERROR(root->setAttributeNode(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->setAttributeNodeNS(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->removeAttributeNode(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->setIdAttributeNode(given, true), "emptyNodeArgument");
  }
}

TEST_F(ElementTest, NodeChangesReturnTheirArgumentNotTheReplacedAttribute) {
  Attr replacement(document->getImpl()->createAttribute(u"a"), document);
  replacement.setValue(u"new");
  EXPECT_EQ(root->setAttributeNode(&replacement), &replacement);
  EXPECT_EQ(root->getAttribute(u"a"), u"new");
  EXPECT_EQ(rootsA->getOwnerElement(), nullptr);  // replaced
  EXPECT_EQ(root->removeAttributeNode(&replacement), &replacement);
  EXPECT_FALSE(root->hasAttribute(u"a"));
}

TEST_F(ElementTest, SettingAnAttributeTheElementAlreadyHasChangesNothing) {
  EXPECT_EQ(root->setAttributeNode(rootsA.get()), rootsA.get());
  const std::unique_ptr<Element> owner(rootsA->getOwnerElement());
  EXPECT_TRUE(owner && owner->isSameNode(root.get()));
  // Still this element's alone: another element may not take it as well.
  EXPECT_XML_ERROR(first->setAttributeNode(rootsA.get()), "elemSetAttrNodeInUseError", u"a", u"first");
  // A read-only element still refuses it.
  const std::unique_ptr<Attr> xa(x->getAttributeNode(u"a"));
  EXPECT_XML_ERROR(x->setAttributeNode(xa.get()), "elemSetAttrReadOnlyError", u"a", u"x");
}
