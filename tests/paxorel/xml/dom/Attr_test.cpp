// Attr and the schema type that the XML library attaches to a node.
#include <paxorel/xml.hpp>
#include <paxorel/xml/dom/TypeInfo.hpp>

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>

using namespace paxorel::xml;

namespace {

// <x a="1"/> is read-only in the tree.
struct AttrTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(u"<!DOCTYPE r [<!ENTITY e '<x a=\"1\"/>'>]><r a='v'>&e;</r>");
  std::unique_ptr<Element> root{static_cast<Element*>(document->getLastChild())};
};

}  // namespace

TEST_F(AttrTest, TheOwnerElementIsANewWrapperWithTheAttributesDocument) {
  const std::unique_ptr<Element> owner(std::unique_ptr<Attr>(root->getAttributeNode(u"a"))->getOwnerElement());
  ASSERT_NE(owner, nullptr);
  EXPECT_TRUE(owner->isSameNode(root.get()));
  EXPECT_EQ(owner->getOwnerDocWrapper(), document);
  EXPECT_EQ(Attr(document->getImpl()->createAttribute(u"n"), document).getOwnerElement(), nullptr);
}

TEST_F(AttrTest, SetValueLetsXercesFailuresThrough) {
  const std::unique_ptr<Node> reference(root->getFirstChild());
  const std::unique_ptr<Element> x(static_cast<Element*>(reference->getFirstChild()));
  const std::unique_ptr<Attr> readOnly(x->getAttributeNode(u"a"));
  EXPECT_THROW(readOnly->setValue(u"2"), xercesc::DOMException);
}

TEST_F(AttrTest, ATypeInfoKeepsItsDocumentAlive) {
  std::unique_ptr<TypeInfo> info(std::unique_ptr<Attr>(root->getAttributeNode(u"a"))->getSchemaTypeInfo());
  const std::weak_ptr<Document> watch = info->getOwnerDocWrapper();
  document.reset();
  root.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(info->getTypeName(), u"");  // no schema, no name
  info.reset();
  EXPECT_TRUE(watch.expired());
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
      {TypeInfo::DERIVATION_RESTRICTION(), 1}, {2.9, 2}, {-1, -1}, {3, 3}, {std::nan(""), INT_MIN}, {1e10, INT_MIN}};
  const RecordingType recorder;
  const TypeInfo info(&recorder, nullptr);
  for (const auto& c : cases) {
    EXPECT_TRUE(info.isDerivedFrom(u"urn:ns", u"name", c.given));
    EXPECT_EQ(recorder.methodBits, c.passed) << c.given;
  }
  EXPECT_EQ(recorder.names, u"urn:ns name");
  EXPECT_EQ(info.getTypeNamespace(), u"");
}
