// Attr and the schema type that the XML library attaches to a node.
#include <paxorel/xml.hpp>
#include <paxorel/xml/dom/TypeInfo.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>

using namespace paxorel::xml;
using testing_support::TempDir;
using testing_support::u;

namespace {

// A DTD-declared ID, a defaulted attribute, and an entity whose content is
// read-only in the tree.
const ustring declared =
    u"<!DOCTYPE r [<!ATTLIST r i ID #IMPLIED d CDATA 'dflt'><!ENTITY e '<x a=\"1\"/>'>]>"
    u"<r i='id1' a='v'>&e;</r>";

struct AttrTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(declared);
  std::unique_ptr<Element> root{static_cast<Element*>(document->getLastChild())};

  std::unique_ptr<Attr> attribute(const ustring& name) { return std::unique_ptr<Attr>(root->getAttributeNode(name)); }
};

}  // namespace

TEST_F(AttrTest, ReadsWhatTheDocumentSays) {
  const struct { const char16_t* name; const char16_t* value; bool specified; bool isId; } cases[] = {
      {u"i", u"id1", true, true},
      {u"a", u"v", true, false},
      {u"d", u"dflt", false, false},  // defaulted by the DTD
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(static_cast<char>(c.name[0]));
    const auto attr = attribute(c.name);
    ASSERT_NE(attr, nullptr);
    EXPECT_EQ(attr->getName(), c.name);
    EXPECT_EQ(attr->getValue(), c.value);
    EXPECT_EQ(attr->getSpecified(), c.specified);
    EXPECT_EQ(attr->isId(), c.isId);
    const std::unique_ptr<Element> owner(attr->getOwnerElement());
    ASSERT_NE(owner, nullptr);
    EXPECT_NE(owner.get(), root.get());
    EXPECT_TRUE(owner->isSameNode(root.get()));
    EXPECT_EQ(owner->getOwnerDocWrapper(), document);
  }
}

TEST_F(AttrTest, AnUnattachedAttributeHasNoOwnerUntilItIsSet) {
  const std::unique_ptr<Attr> loose(root->makeAttrWrapper(document->getImpl()->createAttribute(u"n")));
  EXPECT_EQ(loose->getOwnerElement(), nullptr);
  root->setAttributeNode(loose.get());
  const std::unique_ptr<Element> owner(loose->getOwnerElement());
  ASSERT_NE(owner, nullptr);
  EXPECT_TRUE(owner->isSameNode(root.get()));
  EXPECT_EQ(owner->getOwnerDocWrapper(), document);
}

TEST_F(AttrTest, SetValueLetsXercesFailuresThrough) {
  const auto a = attribute(u"a");
  a->setValue(u"changed");
  EXPECT_EQ(root->getAttribute(u"a"), u"changed");

  const std::unique_ptr<Node> reference(root->getFirstChild());
  const std::unique_ptr<Element> x(static_cast<Element*>(reference->getFirstChild()));
  const std::unique_ptr<Attr> readOnly(x->getAttributeNode(u"a"));
  try {
    readOnly->setValue(u"2");
    FAIL() << "a read-only attribute took a value";
  } catch (const xercesc::DOMException& e) {
    EXPECT_EQ(e.code, xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR);
  }
  EXPECT_EQ(readOnly->getValue(), u"1");
}

TEST_F(AttrTest, AWrapperWithoutANodeFailsClearly) {
  const Attr empty(nullptr, nullptr);
  EXPECT_EQ(empty.getImpl(), nullptr);
  EXPECT_XML_ERROR(empty.getName(), "emptyNodeArgument");
  EXPECT_XML_ERROR(empty.getOwnerElement(), "emptyNodeArgument");
  const TypeInfo none(nullptr, nullptr);
  EXPECT_XML_ERROR(none.getTypeName(), "emptyNodeArgument");
  EXPECT_STREQ(none.getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.TypeInfo");
}

TEST_F(AttrTest, WithoutASchemaTypesHaveNoNames) {
  const std::unique_ptr<TypeInfo> ofAttr(attribute(u"a")->getSchemaTypeInfo());
  const std::unique_ptr<TypeInfo> ofElement(root->getSchemaTypeInfo());
  for (const TypeInfo* info : {ofAttr.get(), ofElement.get()}) {
    ASSERT_NE(info, nullptr);  // Xerces always has a type object to give
    EXPECT_EQ(info->getTypeName(), u"");
    EXPECT_EQ(info->getTypeNamespace(), u"");
    EXPECT_EQ(info->getOwnerDocWrapper(), document);
  }
}

TEST_F(AttrTest, ATypeInfoKeepsItsDocumentAlive) {
  std::unique_ptr<TypeInfo> info(root->getSchemaTypeInfo());
  const std::weak_ptr<Document> watch = info->getOwnerDocWrapper();
  document.reset();
  root.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(info->getTypeName(), u"");
  info.reset();
  EXPECT_TRUE(watch.expired());
}

TEST(TypeInfo, SchemaTypesCarryTheirNames) {
  const TempDir dir;
  const std::string schema = dir.write(
      "s.xsd",
      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
      "<xs:simpleType name='small'><xs:restriction base='xs:int'><xs:maxInclusive value='9'/></xs:restriction>"
      "</xs:simpleType>"
      "<xs:complexType name='top'><xs:attribute name='n' type='small'/></xs:complexType>"
      "<xs:element name='r' type='top'/>"
      "</xs:schema>");
  Parser parser;
  const std::unique_ptr<ParserConfiguration> options(parser.getConfiguration());
  options->setValidate(true);
  options->setSchema(true);
  options->setHasPSVIInfo(true);
  options->setExternalNoNamespaceSchemaLocation(u(schema));
  const auto document = DocumentRegistry::shareWithCaller(parser.parseString(u"<r n='3'/>"));
  const std::unique_ptr<Element> root(static_cast<Element*>(document->getFirstChild()));
  const std::unique_ptr<Attr> n(root->getAttributeNode(u"n"));
  const std::unique_ptr<TypeInfo> type(n->getSchemaTypeInfo());
  EXPECT_EQ(type->getTypeName(), u"small");
  EXPECT_EQ(type->getTypeNamespace(), u"");
  const std::unique_ptr<TypeInfo> ofRoot(root->getSchemaTypeInfo());
  EXPECT_EQ(ofRoot->getTypeName(), u"top");
}

namespace {

// Records what isDerivedFrom is given; its names are absent.
class RecordingType : public xercesc::DOMTypeInfo {
 public:
  const XMLCh* getTypeName() const override { return nullptr; }
  const XMLCh* getTypeNamespace() const override { return nullptr; }
  bool isDerivedFrom(const XMLCh* typeNamespace, const XMLCh* typeName, DerivationMethods method) const override {
    namespace_ = typeNamespace;
    name_ = typeName;
    static_assert(sizeof(method) == sizeof(int));
    std::memcpy(&method_, &method, sizeof(method_));  // the raw bits, even outside the enumeration
    return true;
  }
  mutable ustring namespace_, name_;
  mutable int method_ = 0;
};

}  // namespace

TEST(TypeInfo, TheDerivationMethodIsTruncatedAndPassedOnUnchecked) {
  const struct { double given; int passed; } cases[] = {
      {TypeInfo::DERIVATION_RESTRICTION(), 1}, {2.9, 2}, {-1, -1}, {-0.9, 0}, {3, 3},  // a sum of two bits
      {TypeInfo::DERIVATION_LIST(), 8}, {std::nan(""), INT_MIN}, {1e10, INT_MIN},
  };
  const RecordingType recorder;
  const TypeInfo info(&recorder, nullptr);
  for (const auto& c : cases) {
    EXPECT_TRUE(info.isDerivedFrom(u"urn:ns", u"name", c.given));
    EXPECT_EQ(recorder.method_, c.passed) << c.given;
  }
  EXPECT_EQ(recorder.namespace_, u"urn:ns");
  EXPECT_EQ(recorder.name_, u"name");
  EXPECT_EQ(info.getTypeName(), u"");
  EXPECT_EQ(info.getTypeNamespace(), u"");
  EXPECT_EQ(TypeInfo::DERIVATION_EXTENSION() + TypeInfo::DERIVATION_UNION(), 6);
}
