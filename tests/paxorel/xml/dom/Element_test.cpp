// Element and Attr: attribute changes and their failures, the document-order
// index, and the schema type that Xerces attaches to a node.
#include <paxorel/xml/dom/TypeInfo.hpp>

#include "support/expectations.hpp"

#include <climits>
#include <cstring>

using namespace paxorel::xml;
using namespace testing_support;

namespace {

// The content of the entity reference, <x a="1"/>, is read-only in the tree.
struct ElementTest : ::testing::Test {
  std::shared_ptr<Document> document =
      parseString(u"<!DOCTYPE r [<!ENTITY e '<x a=\"1\"/>'>]><r a='1'><first/>&e;</r>");
  std::unique_ptr<Element> root{document->getDocumentElement()};
  std::unique_ptr<Element> first{root->getFirstElementChild()};
  std::unique_ptr<Attr> rootsA{root->getAttributeNode(u"a")};
  std::unique_ptr<Element> x{own<Element>(own(root->getLastChild())->getFirstChild())};
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
    EXPECT_EQ(own<Element>(own(document->getElementsByTagName(c.tag))->item(0))->getNodeIndex(), c.index) << c.index;
  }
  // An element outside the tree gets the count of the whole tree.
  EXPECT_EQ(own(parseString(u"<!--c--><r a='1'><s/></r>")->createElement(u"loose"))->getNodeIndex(), 4);
}

TEST(ElementNodeIndex, ADeepDocumentDoesNotExhaustTheStack) {
  const auto document = createDocument();
  xercesc::DOMNode* parent = document->getImpl();
  constexpr int depth = 200000;
  for (int i = 0; i < depth; ++i) parent = parent->appendChild(document->getImpl()->createElement(u"d"));
  EXPECT_EQ(Element(static_cast<xercesc::DOMElement*>(parent), document).getNodeIndex(), depth);
}

TEST_F(ElementTest, AReadOnlyElementRefusesEveryChangeAndKeepsItsAttributes) {
  const std::unique_ptr<Attr> xa(x->getAttributeNode(u"a"));
  const std::unique_ptr<Node> xaText(xa->getFirstChild());  // a wrapper the release guard would keep
  Attr fresh(document->getImpl()->createAttribute(u"n"), document);
  EXPECT_XML_ERROR(x->setAttribute(u"a", u"2"), "elemSetAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setAttributeNS(u"urn:q", u"q:n", u"2"), "elemSetAttrReadOnlyError", u"q:n", u"x");
  EXPECT_XML_ERROR(x->setAttributeNode(&fresh), "elemSetAttrReadOnlyError", u"n", u"x");
  EXPECT_XML_ERROR(x->setAttributeNodeNS(&fresh), "elemSetAttrReadOnlyError", u"n", u"x");
  EXPECT_XML_ERROR(x->removeAttributeNode(xa.get()), "elemRemoveAttrNodeReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->removeAttribute(u"a"), "elemRemoveAttrError", u"a", u"x");
  EXPECT_XML_ERROR(x->removeAttributeNS(u"urn:q", u"a"), "elemRemoveAttrError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttribute(u"a", true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttributeNS(u"urn:q", u"a", true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(x->setIdAttributeNode(xa.get(), true), "elemSetIdAttrReadOnlyError", u"a", u"x");
  EXPECT_XML_ERROR(xa->setTextContent(u"2"), "nodeSetTextContentNoModError", u"2");
  EXPECT_THROW(xa->setValue(u"2"), xercesc::DOMException);  // an attribute's own refusal is let through
  EXPECT_EQ(xa->getValue() + xaText->getNodeValue(), u"11");
}

TEST_F(ElementTest, BadNamesWrongAttributesAndMissingNodes) {
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
  Attr empty(nullptr, nullptr);
  for (Attr* given : {static_cast<Attr*>(nullptr), &empty}) {
    EXPECT_XML_ERROR(root->setAttributeNode(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->setAttributeNodeNS(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->removeAttributeNode(given), "emptyNodeArgument");
    EXPECT_XML_ERROR(root->setIdAttributeNode(given, true), "emptyNodeArgument");
  }
}

TEST_F(ElementTest, NodeChangesReturnTheirArgument) {
  // Setting an attribute the element already has changes nothing.
  EXPECT_EQ(root->setAttributeNode(rootsA.get()), rootsA.get());
  const std::unique_ptr<Element> owner(rootsA->getOwnerElement());
  EXPECT_TRUE(owner && owner->isSameNode(root.get()));
  EXPECT_EQ(owner->getOwnerDocWrapper(), document);

  Attr replacement(document->getImpl()->createAttribute(u"a"), document);
  EXPECT_EQ(root->setAttributeNode(&replacement), &replacement);  // not the attribute replaced
  EXPECT_EQ(rootsA->getOwnerElement(), nullptr);
  EXPECT_EQ(root->removeAttributeNode(&replacement), &replacement);
}

namespace {

// Records what isDerivedFrom is given; its names are absent.
class RecordingType : public xercesc::DOMTypeInfo {
 public:
  const XMLCh* getTypeName() const override { return nullptr; }
  const XMLCh* getTypeNamespace() const override { return nullptr; }
  bool isDerivedFrom(const XMLCh* typeNamespace, const XMLCh* typeName, DerivationMethods method) const override {
    names = ustring(typeNamespace) + u" " + typeName;
    std::memcpy(&methodBits, &method, sizeof methodBits);  // the raw bits, also outside the enumeration
    return true;
  }
  mutable ustring names;
  mutable int methodBits = 0;
};

}  // namespace

TEST(TypeInfo, TheDerivationMethodIsTruncatedAndPassedOnUnchecked) {
  const struct { double given; int passed; } cases[] = {
      {TypeInfo::DERIVATION_RESTRICTION(), 1}, {2.9, 2}, {-1, -1}, {3, 3}, {notANumber, INT_MIN}, {1e10, INT_MIN}};
  const RecordingType recorder;
  const TypeInfo info(&recorder, nullptr);
  for (const auto& c : cases) {
    EXPECT_TRUE(info.isDerivedFrom(u"urn:ns", u"name", c.given));
    EXPECT_EQ(recorder.methodBits, c.passed) << c.given;
  }
  EXPECT_EQ(recorder.names, u"urn:ns name");
  EXPECT_EQ(info.getTypeName() + info.getTypeNamespace(), u"");  // absent: empty
}
