// Element: attribute queries and changes with their failures, element
// navigation and the document-order index.
#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

using namespace paxorel::xml;

namespace {

// The content of the entity reference is read-only in the tree.
const ustring sample =
    u"<!DOCTYPE r [<!ENTITY e '<x a=\"1\"/>'>]>"
    u"<r xmlns:p='urn:p' a='1' p:b='2'><first/>text<second/>&e;<p:third/></r>";

struct ElementTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(sample);
  std::unique_ptr<Element> root{static_cast<Element*>(document->getLastChild())};

  // A new attribute of `owner`'s document, not attached.
  static std::unique_ptr<Attr> newAttr(const Document& owner, const char16_t* name) {
    return std::unique_ptr<Attr>(static_cast<Attr*>(Node::downcast(owner.getImpl()->createAttribute(name),
                                                                   owner.getOwnerDocWrapper())));
  }
  std::unique_ptr<Attr> newAttr(const char16_t* name) const { return newAttr(*document, name); }
  // The element <x a="1"/> inside the entity reference.
  std::unique_ptr<Element> readOnly() const {
    const std::unique_ptr<Node> reference(root->item(3));
    return std::unique_ptr<Element>(static_cast<Element*>(reference->getFirstChild()));
  }
};

// The name of the node `found` wraps, or "null"; deletes the wrapper.
ustring nameOf(Node* found) {
  const std::unique_ptr<Node> owned(found);
  return found ? found->getNodeName() : u"null";
}

}  // namespace

TEST_F(ElementTest, AttributeQueries) {
  EXPECT_EQ(root->getTagName(), u"r");
  EXPECT_EQ(root->getAttribute(u"a"), u"1");
  EXPECT_EQ(root->getAttribute(u"p:b"), u"2");
  EXPECT_EQ(root->getAttributeNS(u"urn:p", u"b"), u"2");
  EXPECT_EQ(root->getAttribute(u"none"), u"");
  EXPECT_EQ(root->getAttributeNS(u"urn:p", u"a"), u"");
  EXPECT_TRUE(root->hasAttribute(u"a"));
  EXPECT_FALSE(root->hasAttribute(u"b"));
  EXPECT_TRUE(root->hasAttributeNS(u"urn:p", u"b"));
  EXPECT_FALSE(root->hasAttributeNS(u"", u"b"));
  EXPECT_EQ(root->getAttributeNode(u"none"), nullptr);
  EXPECT_EQ(root->getAttributeNodeNS(u"urn:q", u"b"), nullptr);
  const std::unique_ptr<Attr> b(root->getAttributeNodeNS(u"urn:p", u"b"));
  ASSERT_NE(b, nullptr);
  EXPECT_EQ(b->getName(), u"p:b");
  EXPECT_EQ(b->getOwnerDocWrapper(), document);
}

TEST_F(ElementTest, ElementNavigationSkipsOtherNodes) {
  // Entity references are looked through: x counts as a child of r.
  EXPECT_EQ(root->getChildElementCount(), 4);
  EXPECT_EQ(nameOf(root->getFirstElementChild()), u"first");
  EXPECT_EQ(nameOf(root->getLastElementChild()), u"p:third");
  const std::unique_ptr<Element> first(root->getFirstElementChild());
  const std::unique_ptr<Element> second(first->getNextElementSibling());
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->getTagName(), u"second");
  EXPECT_EQ(second->getOwnerDocWrapper(), document);
  EXPECT_EQ(nameOf(second->getPreviousElementSibling()), u"first");
  EXPECT_EQ(nameOf(second->getNextElementSibling()), u"x");
  EXPECT_EQ(nameOf(root->getNextElementSibling()), u"null");
  EXPECT_EQ(nameOf(second->getFirstElementChild()), u"null");
  EXPECT_EQ(second->getChildElementCount(), 0);
}

TEST_F(ElementTest, ElementsByTagNameIsALiveListOfDescendants) {
  const std::unique_ptr<NodeList> all(root->getElementsByTagName(u"*"));
  EXPECT_EQ(all->getLength(), 4);  // x inside the entity reference included
  EXPECT_EQ(all->getOwnerDocWrapper(), document);
  const std::unique_ptr<NodeList> third(root->getElementsByTagNameNS(u"urn:p", u"third"));
  EXPECT_EQ(third->getLength(), 1);
  root->getImpl()->appendChild(document->getImpl()->createElement(u"late"));
  EXPECT_EQ(all->getLength(), 5);
  const std::unique_ptr<NodeList> none(root->getElementsByTagName(u"none"));
  EXPECT_EQ(none->getLength(), 0);
}

TEST(ElementNodeIndex, CountsEveryNodeOfTheChildListsInDocumentOrder) {
  const struct { const char16_t* xml; const char16_t* tag; double index; } cases[] = {
      {u"<r/>", u"r", 1},
      {u"<!--c--><r/>", u"r", 2},
      {u"<r a='1' b='2'><c/></r>", u"c", 4},              // attributes right after their element
      {u"<r a='long text'><c/></r>", u"c", 3},            // but not their text
      {u"<?pi?><r>t<!--c--><d/></r>", u"d", 5},           // every kind of child counts
      {u"<!DOCTYPE r [<!ENTITY e '<x/>'>]><r>&e;<y/></r>", u"x", 4},  // doctype, r, reference, x
      {u"<!DOCTYPE r [<!ENTITY e '<x/>'>]><r>&e;<y/></r>", u"y", 5},
      {u"<r><a><b/></a><c/></r>", u"c", 4},
  };
  for (const auto& c : cases) {
    const auto document = parseString(c.xml);
    auto* element = static_cast<xercesc::DOMElement*>(document->getImpl()->getElementsByTagName(c.tag)->item(0));
    const Element wrapper(element, document);
    EXPECT_EQ(wrapper.getNodeIndex(), c.index) << c.index;
  }
}

TEST(ElementNodeIndex, AnElementOutsideTheTreeGetsTheCountOfTheWholeTree) {
  const auto document = parseString(u"<!--c--><r a='1'><s/></r>");
  const Element loose(document->getImpl()->createElement(u"loose"), document);
  EXPECT_EQ(loose.getNodeIndex(), 4);
}

TEST(ElementNodeIndex, ADeepDocumentDoesNotExhaustTheStack) {
  const auto document = createDocument();
  xercesc::DOMNode* parent = document->getImpl();
  constexpr int depth = 200000;
  for (int i = 0; i < depth; ++i) parent = parent->appendChild(document->getImpl()->createElement(u"d"));
  const Element deepest(static_cast<xercesc::DOMElement*>(parent), document);
  EXPECT_EQ(deepest.getNodeIndex(), depth);
}

TEST_F(ElementTest, BadNamesNameTheAttributeAndTheTag) {
  EXPECT_XML_ERROR(root->setAttribute(u"1a", u"v"), "elemSetAttrInvalidCharError", u"1a", u"r");
  EXPECT_XML_ERROR(root->setAttributeNS(u"urn:q", u"1a", u"v"), "elemSetAttrInvalidCharError", u"1a", u"r");
  EXPECT_XML_ERROR(root->setAttributeNS(u"", u"q:a", u"v"), "elemSetAttrNSNamespaceError", u"q:a", u"", u"r");
  EXPECT_XML_ERROR(root->setAttributeNS(u"urn:q", u"xmlns", u"v"), "elemSetAttrNSNamespaceError", u"xmlns",
                   u"urn:q", u"r");
  // Without namespaces a colon is just a character of the name.
  root->setAttribute(u"q:a", u"v");
  EXPECT_EQ(root->getAttribute(u"q:a"), u"v");
}

TEST_F(ElementTest, AReadOnlyElementRefusesEveryChange) {
  const auto x = readOnly();
  const std::unique_ptr<Attr> own(x->getAttributeNode(u"a"));
  const auto fresh = newAttr(u"n");
  EXPECT_XML_ERROR(x->setAttribute(u"a", u"2"), "elemSetAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setAttributeNS(u"urn:q", u"q:n", u"2"), "elemSetAttrReadOnlyError", u"q:n", u"x");
  EXPECT_XML_ERROR(x->setAttributeNode(fresh.get()), "elemSetAttrReadOnlyError", u"n", u"x");
  EXPECT_XML_ERROR(x->setAttributeNodeNS(fresh.get()), "elemSetAttrReadOnlyError", u"n", u"x");
  EXPECT_XML_ERROR(x->removeAttributeNode(own.get()), "elemRemoveAttrNodeReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->removeAttribute(u"a"), "elemRemoveAttrError", u"a", u"x");
  EXPECT_XML_ERROR(x->removeAttributeNS(u"urn:q", u"a"), "elemRemoveAttrError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttribute(u"a", true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttributeNS(u"urn:q", u"a", true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttributeNode(own.get(), true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_EQ(x->getAttribute(u"a"), u"1");
}

TEST_F(ElementTest, ForeignAndMissingAttributes) {
  const auto other = parseString(u"<o c='1'/>");
  const auto foreign = newAttr(*other, u"f");
  EXPECT_XML_ERROR(root->setAttributeNode(foreign.get()), "elemSetAttrNodeWrongDocError", u"f", u"r");
  EXPECT_XML_ERROR(root->setAttributeNodeNS(foreign.get()), "elemSetAttrNodeWrongDocError", u"f", u"r");
  EXPECT_FALSE(root->hasAttribute(u"f"));  // no import happened

  const std::unique_ptr<Element> first(root->getFirstElementChild());
  const std::unique_ptr<Attr> rootsA(root->getAttributeNode(u"a"));
  EXPECT_XML_ERROR(first->setAttributeNode(rootsA.get()), "elemSetAttrNodeInUseError", u"a", u"first");
  EXPECT_XML_ERROR(first->setAttributeNodeNS(rootsA.get()), "elemSetAttrNodeInUseError", u"a", u"first");
  EXPECT_XML_ERROR(first->removeAttributeNode(rootsA.get()), "elemRemoveAttrNodeNotFoundError", u"a", u"first");

  EXPECT_XML_ERROR(root->setIdAttribute(u"none", true), "elemSetIdAttrNotFoundError", u"none", u"r");
  EXPECT_XML_ERROR(root->setIdAttributeNS(u"urn:p", u"none", true), "elemSetIdAttrNotFoundError", u"none", u"r");
  EXPECT_XML_ERROR(first->setIdAttributeNode(rootsA.get(), true), "elemSetIdAttrNotFoundError", u"a", u"first");

  root->removeAttribute(u"none");  // nothing to remove is no failure
  root->removeAttributeNS(u"urn:p", u"none");
  EXPECT_TRUE(root->hasAttribute(u"a"));
}

TEST_F(ElementTest, AttrArgumentsMustHaveANode) {
  const Attr empty(nullptr, nullptr);
  for (const Attr* attr : {static_cast<const Attr*>(nullptr), &empty}) {
    auto* given = const_cast<Attr*>(attr);
    EXPECT_XML_ERROR(root->setAttributeNode(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->setAttributeNodeNS(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->removeAttributeNode(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->setIdAttributeNode(given, true), "emptyNodeArgument");
  }
}

TEST_F(ElementTest, NodeChangesReturnTheirArgumentNotTheReplacedAttribute) {
  const std::unique_ptr<Attr> old(root->getAttributeNode(u"a"));
  const auto replacement = newAttr(u"a");
  replacement->setValue(u"new");
  EXPECT_EQ(root->setAttributeNode(replacement.get()), replacement.get());
  EXPECT_EQ(root->getAttribute(u"a"), u"new");
  EXPECT_EQ(old->getOwnerElement(), nullptr);  // replaced, and only the caller's wrapper knows it

  const std::unique_ptr<Attr> ns(
      root->makeAttrWrapper(document->getImpl()->createAttributeNS(u"urn:p", u"p:b")));
  EXPECT_EQ(root->setAttributeNodeNS(ns.get()), ns.get());
  EXPECT_EQ(root->getAttributeNS(u"urn:p", u"b"), u"");

  EXPECT_EQ(root->removeAttributeNode(replacement.get()), replacement.get());
  EXPECT_FALSE(root->hasAttribute(u"a"));
  EXPECT_EQ(replacement->getOwnerElement(), nullptr);
}

TEST_F(ElementTest, IdAttributesAreMarkedByNameByNamespaceAndByNode) {
  const std::unique_ptr<Attr> a(root->getAttributeNode(u"a")), b(root->getAttributeNodeNS(u"urn:p", u"b"));
  root->setIdAttribute(u"a", true);
  EXPECT_TRUE(a->isId());
  root->setIdAttributeNS(u"urn:p", u"b", true);
  EXPECT_TRUE(b->isId());
  root->setIdAttributeNode(a.get(), false);
  EXPECT_FALSE(a->isId());
  const std::unique_ptr<Element> byId(root->makeElementWrapper(document->getImpl()->getElementById(u"2")));
  ASSERT_NE(byId, nullptr);
  EXPECT_TRUE(byId->isSameNode(root.get()));
}

TEST_F(ElementTest, SettingAnAttributeTheElementAlreadyHasChangesNothing) {
  const std::unique_ptr<Attr> a(root->getAttributeNode(u"a"));
  EXPECT_EQ(root->setAttributeNode(a.get()), a.get());
  const std::unique_ptr<Element> owner(a->getOwnerElement());
  ASSERT_NE(owner, nullptr);
  EXPECT_TRUE(owner->isSameNode(root.get()));
  // Still this element's: another element may not take it as well.
  const std::unique_ptr<Element> first(root->getFirstElementChild());
  EXPECT_XML_ERROR(first->setAttributeNode(a.get()), "elemSetAttrNodeInUseError", u"a", u"first");
  EXPECT_FALSE(first->hasAttribute(u"a"));

  // A read-only element still refuses it, and keeps it.
  const auto x = readOnly();
  const std::unique_ptr<Attr> xa(x->getAttributeNode(u"a"));
  EXPECT_XML_ERROR(x->setAttributeNode(xa.get()), "elemSetAttrReadOnlyError", u"a", u"x");
  const std::unique_ptr<Element> xOwner(xa->getOwnerElement());
  ASSERT_NE(xOwner, nullptr);
  EXPECT_TRUE(xOwner->isSameNode(x.get()));
}
