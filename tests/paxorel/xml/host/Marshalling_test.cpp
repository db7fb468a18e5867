// How a host call travels through the records: the object and the
// arguments, the results, construction and destruction, each by the rule a
// host can observe.
#include "HostFixture.hpp"

#include <paxorel/xml/host/HostValue.hpp>

#include <vorlo/VORClient.hpp>
#include <vorlo/VORInterface.hpp>

using namespace testing_support;
using paxorel::xml::Document;
using paxorel::xml::DocumentRegistry;
using paxorel::xml::Element;

namespace {

const char* const emptyNode = "paxorel:xml_error:emptyNodeArgument";
const char* const invalidObject = "ZELMAR:vorlo:InvalidObject";

Array missingText() { return adopt(hostCreateStringArray(1, 1)); }

// A 1-by-2 array of the host objects of `first` and `second`.
Array pair(const Array& first, const Array& second) {
  Array both = adopt(hostCreateObjectMatrix(1, 2, vorlo::internal::makeInterned("zelmar.io.xml.dom.Node")));
  hostSetArrayElement(both.get(), 0, hostGetArrayElement(first.get(), 0));
  hostSetArrayElement(both.get(), 1, hostGetArrayElement(second.get(), 0));
  return both;
}

bool isEmptyDouble(const Array& array) { return array->classID() == HostClassID::Double && array->isEmpty(); }
bool isEmptyObjectOf(const Array& array, const char* cls) {
  return array->classID() == HostClassID::Object && array->isEmpty() && hostGetClassName(array.get()).view() == cls;
}
std::string classOf(const Array& array) { return objectOf(array)->getClass()->getInternedFullName().str(); }

// Runs the first record of `cls`, its constructor, on a new host object of
// the class, as the platform would if host code could reach it.
Array constructBare(testing_support::CppHost& host, vorlo::VORClass& cls) {
  Array object = adopt(hostCreateObjectMatrix(1, 1, cls.getInternedFullName()));
  object->adoptObject(0, host.createObject(cls));
  vorlo::VORValue output = vorlo::VORValue::ofArray(object.get());
  const vorlo::VORValue input;  // a constructor's empty first input
  int outputs = 0;
  cls.getMethodRecords().front()->invoke(VORGetPublicClient(), outputs, &output, 1, &input);
  EXPECT_EQ(outputs, 1);
  return object;
}

// A harmless value of `type` for a slot, kept alive by `keep`.
vorlo::VORValue defaultSlot(const vorlo::TypeSpec& type, std::vector<Array>& keep, const std::u16string& empty) {
  switch (type.kind) {
    case vorlo::TypeSpec::Text: keep.push_back(text(u"")); return vorlo::VORValue::ofArray(keep.back().get());
    case vorlo::TypeSpec::TextPointer: return vorlo::VORValue::ofText(&empty);
    case vorlo::TypeSpec::Logical: return vorlo::VORValue::ofLogical(false);
    case vorlo::TypeSpec::Double: return vorlo::VORValue::ofDouble(0);
    default: keep.push_back(none(type.className.c_str())); return vorlo::VORValue::ofArray(keep.back().get());
  }
}

bool holdsArray(const vorlo::TypeSpec& type) {
  return type.kind == vorlo::TypeSpec::Text || type.kind == vorlo::TypeSpec::Object ||
         type.kind == vorlo::TypeSpec::ObjectVector || type.kind == vorlo::TypeSpec::Any;
}

}  // namespace

TEST_F(HostTest, AMissingObjectFailsOnlyAfterTheArgumentsWereConverted) {
  const Array node = none("zelmar.io.xml.dom.Node");
  EXPECT_HOST_ERROR(call(node, "setPrefix", {missingText().get()}), "ZELMAR:string:MissingNotSupported");
  EXPECT_HOST_ERROR(call(node, "setPrefix", {text(u"p").get()}), invalidObject);
  // The same order in a direct method, whose text the platform converts.
  const Array element = none("zelmar.io.xml.dom.Element");
  EXPECT_HOST_ERROR(call(element, "getAttributeNode", {missingText().get()}), "ZELMAR:string:MissingNotSupported");
  EXPECT_HOST_ERROR(call(element, "getAttributeNode", {text(u"a").get()}), invalidObject);
  EXPECT_HOST_ERROR(get(node, "TextContent"), invalidObject);
  EXPECT_HOST_ERROR(get(node, "ELEMENT_NODE"), invalidObject);
}

TEST_F(HostTest, AWrapperArgumentIsElementZeroAndAnObjectOfAnotherClassArrivesAsNull) {
  const Array document = parse(u"<r><a/><b/></r>");
  const Array root = call(document, "getDocumentElement");
  const Array a = call(root, "getFirstChild"), b = call(root, "getLastChild");
  // Of a longer array only element 0 counts: b stays where it is.
  const Array moved = call(root, "appendChild", {pair(a, b).get()});
  EXPECT_EQ(objectOf(moved), objectOf(a));
  EXPECT_EQ(textOf(call(call(root, "getLastChild"), "getNodeName")), u"a");
  // An empty array, and an object of a class the parameter is not, are null:
  // the native operation's own rule for null answers.
  EXPECT_HOST_ERROR(call(root, "appendChild", {none("zelmar.io.xml.dom.Node").get()}), emptyNode);
  EXPECT_HOST_ERROR(call(root, "isSameNode", {call(root, "getChildNodes").get()}), emptyNode);
  EXPECT_HOST_ERROR(call(root, "setAttributeNode", {a.get()}), emptyNode);  // an Element is no Attr
}

TEST_F(HostTest, ResultsGoByTheirTypesAndWrappersByTheirOwnClass) {
  const Array document = parse(u"<r a='1'><e/>t</r>");
  const Array root = call(document, "getDocumentElement");
  EXPECT_EQ(classOf(root), "zelmar.io.xml.dom.Element");
  EXPECT_EQ(classOf(call(root, "item", {number(0).get()})), "zelmar.io.xml.dom.Element");  // declared Node
  EXPECT_EQ(classOf(call(root, "child", {number(2).get()})), "zelmar.io.xml.dom.Text");
  EXPECT_EQ(numberOf(call(root, "getNodeType")), 1);
  EXPECT_EQ(call(root, "hasAttributes")->word(0), 1u);
  EXPECT_EQ(textOf(call(root, "getAttribute", {text(u"a").get()})), u"1");

  // No object: what announce gives for null, of the declared class.
  EXPECT_TRUE(isEmptyObjectOf(call(root, "item", {number(2).get()}), "zelmar.io.xml.dom.Node"));
  const Array leaf = call(root, "getLastChild");
  EXPECT_TRUE(isEmptyObjectOf(call(leaf, "getAttributes"), "zelmar.io.xml.dom.NamedNodeMap"));
  // A direct method gives the empty double instead.
  EXPECT_TRUE(isEmptyDouble(call(leaf, "getFirstChild")));
  EXPECT_TRUE(isEmptyDouble(call(document, "getParentNode")));
  EXPECT_TRUE(isEmptyDouble(call(root, "getAttributeNode", {text(u"b").get()})));
  EXPECT_EQ(classOf(call(root, "getAttributeNode", {text(u"a").get()})), "zelmar.io.xml.dom.Attr");

  // Text goes up to its first zero unit (Xerces's own text never holds one).
  const Array cut = adopt(paxorel::xml::mi::HostValue<paxorel::xml::ustring>::to(std::u16string(u"ab\0cd", 5)).array());
  EXPECT_EQ(textOf(cut), u"ab");
  EXPECT_EQ(cut->columns(), 2u);
}

TEST_F(HostTest, NodeVectorsAreOneRowOfObjectsOfTheirOwnClassesAlsoWhenEmpty) {
  const Array document = parse(u"<r><e/>t</r>");
  const Array root = call(document, "getDocumentElement");
  const Array children = get(root, "Children");
  ASSERT_EQ(children->rows(), 1u);
  ASSERT_EQ(children->columns(), 2u);
  EXPECT_TRUE(children->isHeterogeneous());
  EXPECT_EQ(children->object(0)->getClass()->getInternedFullName().view(), "zelmar.io.xml.dom.Element");
  EXPECT_EQ(children->object(1)->getClass()->getInternedFullName().view(), "zelmar.io.xml.dom.Text");
  EXPECT_EQ(hostGetClassName(children.get()).view(), "zelmar.io.xml.dom.Node");  // the class they share

  const Array none = call(call(root, "getLastChild"), "getChildren");
  EXPECT_EQ(none->rows(), 1u);
  EXPECT_EQ(none->columns(), 0u);
  EXPECT_TRUE(none->isHeterogeneous());
  EXPECT_EQ(hostGetClassName(none.get()).view(), "zelmar.io.xml.dom.Node");
}

TEST_F(HostTest, OneWrapperIsOneHostObjectAsLongAsItIsAnnounced) {
  const Array document = parse(u"<r/>");
  const Array root = call(document, "getDocumentElement");
  // The document's wrapper is the one the host holds; a parent is no new wrapper.
  EXPECT_EQ(objectOf(call(root, "getParentNode")), objectOf(document));
  EXPECT_EQ(objectOf(call(root, "getOwnerDocument")), objectOf(document));
  // Child operations give their argument back, and so its host object.
  const Array child = call(document, "createElement", {text(u"c").get()});
  EXPECT_EQ(objectOf(call(root, "appendChild", {child.get()})), objectOf(child));
  // Each navigation is a new wrapper: a new host object for the same node.
  const Array again = call(root, "getFirstChild");
  EXPECT_NE(objectOf(again), objectOf(child));
  EXPECT_EQ(call(again, "isSameNode", {child.get()})->word(0), 1u);
}

TEST_F(HostTest, NotationAndEntityReferenceHaveACharacterDataHostBaseButNoSuchNativeObject) {
  const Array document = construct("Document", {text(u"r").get()});
  for (const char* factory : {"createNotation", "createEntityReference"}) {
    const Array object = call(document, factory, {text(u"n").get()});
    EXPECT_TRUE(objectOf(object)->getClass()->isA(cls("CharacterData").getInternedFullName()));
    EXPECT_HOST_ERROR(call(object, "getData"), invalidObject);
    EXPECT_HOST_ERROR(get(object, "Length"), invalidObject);
    EXPECT_EQ(textOf(call(object, "getNodeName")), u"n");  // Node's methods work
  }
}

TEST_F(HostTest, DocumentsConstructedByArgumentCountInTheirOwnOrder) {
  const std::size_t before = registered();
  {
    const Array empty = construct("Document");
    EXPECT_TRUE(isEmptyDouble(call(empty, "getDocumentElement")));
    const Array named = construct("Document", {text(u"r").get()});
    EXPECT_EQ(textOf(get(call(named, "getDocumentElement"), "TagName")), u"r");
    const Array inNamespace = construct("Document", {text(u"urn:x").get(), text(u"p:r").get()});
    EXPECT_EQ(textOf(call(call(inNamespace, "getDocumentElement"), "getNamespaceURI")), u"urn:x");
    const Array withDoctype =
        construct("Document", {text(u"r").get(), text(u"d").get(), text(u"pub").get(), text(u"sys").get()});
    EXPECT_EQ(textOf(call(call(withDoctype, "getDoctype"), "getNodeName")), u"d");
    const Array both = construct(
        "Document", {text(u"urn:x").get(), text(u"r").get(), text(u"d").get(), text(u"").get(), text(u"").get()});
    EXPECT_EQ(textOf(call(call(both, "getDocumentElement"), "getNamespaceURI")), u"urn:x");
    EXPECT_EQ(registered(), before + 5);
    EXPECT_EQ(classOf(both), "zelmar.io.xml.dom.Document");
    EXPECT_HOST_ERROR(construct("Document", {text(u"a").get(), text(u"b").get(), text(u"c").get()}),
                      "ZELMAR:vorlo:NoSuchMethod");
    EXPECT_HOST_ERROR(construct("Document", {text(u"a b").get()}), "paxorel:xml_error:docInvalidCharError");
  }
  EXPECT_EQ(registered(), before);  // each host object stood for its entry
}

TEST_F(HostTest, ABareConstructorMakesAnObjectWithNothingSetAndIsNotForHostCode) {
  EXPECT_HOST_ERROR(construct("Element"), "ZELMAR:vorlo:NotConstructible");
  for (const char* name : {"Element", "NodeList", "ParserConfiguration", "Object"}) {
    vorlo::VORClass& bareClass = cls(name);
    const Array object = constructBare(host, bareClass);
    const auto* made = nativeOf<paxorel::xml::XMLObject>(object);
    ASSERT_NE(made, nullptr) << name;
    EXPECT_FALSE(made->getNativeErrorMode());
    EXPECT_STREQ(made->getFullyQualifiedVorloTypeName(), bareClass.getInternedFullName().c_str());
  }
  const Array bare = constructBare(host, cls("Element"));
  EXPECT_EQ(nativeOf<Element>(bare)->getImpl(), nullptr);
  EXPECT_HOST_ERROR(call(bare, "getTagName"), emptyNode);
}

// No operation reaches a missing node: every record of every class made bare
// fails with emptyNodeArgument or answers without one.
TEST_F(HostTest, EveryRecordOfABareObjectFailsCleanly) {
  const std::u16string empty;
  for (const char* name :
       {"Node", "Element", "Attr", "CharacterData", "Text", "NodeList", "NamedNodeMap", "ParserConfiguration"}) {
    vorlo::VORClass& bareClass = cls(name);
    const Array object = constructBare(host, bareClass);
    for (const auto& method : bareClass.getMethodRecords()) {
      if (method->isStatic()) continue;
      const auto& inputs = method->getSignature()->getInputTypes();
      std::vector<Array> keep;
      std::vector<vorlo::VORValue> slots{vorlo::VORValue::ofArray(object.get())};
      for (std::size_t i = 1; i < inputs.size(); ++i) slots.push_back(defaultSlot(inputs[i].typeSpec(), keep, empty));
      vorlo::VORValue output;
      int outputs = 0;
      try {
        method->invoke(VORGetPublicClient(), outputs, &output, static_cast<int>(slots.size()), slots.data());
        if (outputs > 0 && holdsArray(method->getSignature()->getOutputType().typeSpec())) {
          hostDestroyArray(output.array());
        }
      } catch (const HostError& error) {
        EXPECT_EQ(error.identifier(), emptyNode) << name << "." << method->getName();
      }
    }
    for (const auto& property : bareClass.getProperties()) {
      try {
        get(object, property->getName());  // a constant's value needs no node
      } catch (const HostError& error) {
        EXPECT_EQ(error.identifier(), emptyNode) << name << "." << property->getName();
      }
    }
  }
}

TEST_F(HostTest, TheHostObjectOfADocumentStandsForItsEntryAndNothingElse) {
  const std::size_t before = registered();
  Array document = construct("Document", {text(u"r").get()});
  auto* native = nativeOf<Document>(document);
  const std::unique_ptr<Element> root(native->getDocumentElement());
  DocumentRegistry::getInstance()->unregisterDocument(native);  // the entry is gone; root holds the document
  document.reset();                                             // no entry to erase: nothing happens
  EXPECT_EQ(registered(), before);
  EXPECT_EQ(root->getTagName(), u"r");

  // Dropping a document's host object ends its entry; a node's host object
  // still keeps the document.
  Array other = construct("Document", {text(u"s").get()});
  const Array kept = call(other, "getDocumentElement");
  other.reset();
  EXPECT_EQ(registered(), before);
  EXPECT_EQ(textOf(call(kept, "getTagName")), u"s");
}

TEST_F(HostTest, PropertiesReadAndWriteThroughTheirMembers) {
  const Array document = parse(u"<r>old</r>");
  const Array root = call(document, "getDocumentElement");
  set(root, "TextContent", text(u"new"));
  EXPECT_EQ(textOf(call(root, "getTextContent")), u"new");
  EXPECT_EQ(get(root, "HasChildNodes")->word(0), 1u);
  EXPECT_EQ(classOf(get(document, "Configuration")), "zelmar.io.xml.dom.DocumentConfiguration");

  // IdentityConstraintChecking reads the option behind SchemaFullChecking.
  const Array parser = construct("Parser");
  const Array options = get(parser, "Configuration");
  set(options, "IdentityConstraintChecking", logical(false));
  set(options, "SchemaFullChecking", logical(true));
  EXPECT_EQ(get(options, "IdentityConstraintChecking")->word(0), 1u);
  EXPECT_FALSE(nativeOf<paxorel::xml::ParserConfiguration>(options)->getIdentityConstraintChecking());
  set(options, "HasPSVI", logical(true));
  EXPECT_EQ(get(options, "HasPSVIInfo")->word(0), 1u);
}

TEST_F(HostTest, NodeConstantsGiveTheirValues) {
  const std::pair<const char*, double> constants[] = {
      {"ELEMENT_NODE", 1},
      {"ATTRIBUTE_NODE", 2},
      {"TEXT_NODE", 3},
      {"CDATA_SECTION_NODE", 4},
      {"ENTITY_REFERENCE_NODE", 5},
      {"ENTITY_NODE", 6},
      {"PROCESSING_INSTRUCTION_NODE", 7},
      {"COMMENT_NODE", 8},
      {"DOCUMENT_NODE", 9},
      {"DOCUMENT_TYPE_NODE", 10},
      {"DOCUMENT_FRAGMENT_NODE", 11},
      {"NOTATION_NODE", 12},
      {"DOCUMENT_POSITION_DISCONNECTED", 1},
      {"DOCUMENT_POSITION_PRECEDING", 2},
      {"DOCUMENT_POSITION_FOLLOWING", 4},
      {"DOCUMENT_POSITION_CONTAINS", 8},
      {"DOCUMENT_POSITION_CONTAINED_BY", 16},
      {"DOCUMENT_POSITION_IMPLEMENTATION_SPECIFIC", 32},
  };
  const Array document = construct("Document");
  for (const auto& [name, value] : constants) EXPECT_EQ(numberOf(get(document, name)), value) << name;
}
