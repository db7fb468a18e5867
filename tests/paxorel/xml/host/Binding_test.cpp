// What the binding shows below the Python face, through a C++ host. (The
// records themselves are compared from Python.)
#include <paxorel/xml/host/HostValue.hpp>
#include <paxorel/xml/host/ModuleEntries.hpp>

#include "support/CppHost.hpp"
#include "support/expectations.hpp"

#include <host/ForeignError.hpp>
#include <host/hostArrays.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORClient.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/dispatch.hpp>

#include <xercesc/dom/DOMLSException.hpp>
#include <xercesc/dom/DOMXPathException.hpp>
#include <xercesc/util/XMLURL.hpp>

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string>

using namespace testing_support;

namespace {

Array text(const std::u16string& value) { return adopt(hostCreateString_UTF16(value.c_str())); }
// An empty object array of the class, as a host passes for "no object".
Array none(const char* cls) { return adopt(hostCreateObjectMatrix(0, 0, name(cls))); }

Array call(const Array& self, const char* method, std::initializer_list<HostArray*> arguments = {}) {
  HostArray* result = nullptr;
  vorlo::dispatch::callMethod(self.get(), method, 1, &result, static_cast<int>(arguments.size()), arguments.begin());
  return adopt(result);
}
Array get(const Array& self, const char* property) { return adopt(vorlo::dispatch::getProperty(self.get(), property)); }
Array parse(const std::u16string& xml) {
  return call(adopt(vorlo::dispatch::construct(*vorlo::VORClass::getClass("zelmar.io.xml.dom.Parser"), 0, nullptr)),
              "parseString", {text(xml).get()});
}

// The native object behind the host object in `array`, as a T, or null.
template <class T>
T* nativeOf(const Array& array) {
  const vorlo::VORInterface* object = hostGetArrayElement(array.get(), 0);
  return object ? dynamic_cast<T*>(object->getNativeInstance(hostGetClassName(array.get()))) : nullptr;
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

const char *const invalidObject = "ZELMAR:vorlo:InvalidObject", *const emptyNode = "paxorel:xml_error:emptyNodeArgument";
const char* const missingText = "ZELMAR:string:MissingNotSupported";

// The package loaded as a host loads it, and a C++ host attached for each test.
class HostTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    ModuleInitialize_paxorel_xml();
    vorlo::VORPackage::find("zelmar.io.xml.dom")->getClasses();
  }
  CppHost host;
};

}  // namespace

TEST(ModuleEntries, AreFoundByTheirCNamesAndRegisterThePackageOnce) {
  using Entry = void (*)();
  const auto initialize = reinterpret_cast<Entry>(dlsym(RTLD_DEFAULT, "ModuleInitialize_paxorel_xml"));
  const auto terminate = reinterpret_cast<Entry>(dlsym(RTLD_DEFAULT, "ModuleTerminate_paxorel_xml"));
  ASSERT_TRUE(initialize && terminate);
  initialize();
  initialize();
  terminate();  // unregisters nothing
  const std::vector<vorlo::VORPackage*> packages = vorlo::VORPackage::all();
  EXPECT_EQ(std::count_if(packages.begin(), packages.end(),
                          [](const vorlo::VORPackage* p) { return p->getName() == "zelmar.io.xml.dom"; }),
            1);
  EXPECT_EQ(vorlo::VORPackage::find("zelmar.io.xml.dom")->getClasses().size(), 37u);
}

TEST_F(HostTest, AMissingObjectFailsOnlyAfterTheArgumentsWereConverted) {
  const Array missing = adopt(hostCreateStringArray(1, 1));  // one string, missing
  const Array node = none("zelmar.io.xml.dom.Node"), element = none("zelmar.io.xml.dom.Element");
  EXPECT_EQ(raised([&] { call(node, "setPrefix", {missing.get()}); }), missingText);
  EXPECT_EQ(raised([&] { call(node, "setPrefix", {text(u"p").get()}); }), invalidObject);
  // The same order in a direct method, whose text the platform converts.
  EXPECT_EQ(raised([&] { call(element, "getAttributeNode", {missing.get()}); }), missingText);
  EXPECT_EQ(raised([&] { call(element, "getAttributeNode", {text(u"a").get()}); }), invalidObject);
  EXPECT_EQ(raised([&] { get(node, "TextContent"); }), invalidObject);
  EXPECT_EQ(raised([&] { get(node, "ELEMENT_NODE"); }), invalidObject);  // a constant needs its object too
}

TEST_F(HostTest, ResultsThatPythonSeesAlikeDifferInTheHost) {
  const Array document = parse(u"<r a='1'><e/>t</r>");
  const Array root = call(document, "getDocumentElement"), leaf = call(root, "getLastChild");
  // No object: what announce gives for null and the declared class ...
  EXPECT_EQ(shapeOf(call(call(root, "getAttributes"), "getNamedItem", {text(u"b").get()})),
            "zelmar.io.xml.dom.Node 0x0");
  EXPECT_EQ(shapeOf(call(leaf, "getAttributes")), "zelmar.io.xml.dom.NamedNodeMap 0x0");
  // ... but from a direct method the empty double.
  EXPECT_EQ(shapeOf(call(document, "getParentNode")), "double 0x0");
  EXPECT_EQ(shapeOf(call(root, "getAttributeNode", {text(u"b").get()})), "double 0x0");
  EXPECT_EQ(shapeOf(call(root, "getAttributeNode", {text(u"a").get()})), "zelmar.io.xml.dom.Attr 1x1");
  // Nodes: one row of objects of their own classes, of the class they share, also when there are none.
  EXPECT_EQ(shapeOf(get(root, "Children")), "zelmar.io.xml.dom.Node 1x2 mixed");
  EXPECT_EQ(shapeOf(call(leaf, "getChildren")), "zelmar.io.xml.dom.Node 1x0 mixed");
  // Text ends at its first zero unit (Xerces's own text never holds one, so Python cannot tell).
  const Array cut = adopt(paxorel::xml::mi::HostValue<paxorel::xml::ustring>::to(std::u16string(u"ab\0cd", 5)).array());
  EXPECT_EQ(hostGetString(cut.get())->text(), u"ab");
}

// A bare constructor, which host code may not call, makes an object with
// nothing set: no record on it reaches a missing node, each fails with
// emptyNodeArgument or answers without one.
TEST_F(HostTest, EveryRecordOfABareObjectFailsCleanly) {
  const std::u16string empty;
  for (const char* name : {"Object", "Node", "Element", "Attr", "CharacterData", "Text", "NodeList", "NamedNodeMap",
                           "ParserConfiguration"}) {
    vorlo::VORClass& bare = *vorlo::VORClass::getClass(std::string("zelmar.io.xml.dom.") + name);
    Array object = adopt(hostCreateObjectMatrix(1, 1, bare.getInternedFullName()));
    object->adoptObject(0, host.createObject(bare));
    vorlo::VORValue constructed = vorlo::VORValue::ofArray(object.get());
    const vorlo::VORValue input;  // a constructor's empty first input
    int outputs = 0;
    bare.getMethodRecords().front()->invoke(VORGetPublicClient(), outputs, &constructed, 1, &input);
    const auto* made = nativeOf<paxorel::xml::XMLObject>(object);
    ASSERT_TRUE(outputs == 1 && made) << name;
    EXPECT_FALSE(made->getNativeErrorMode());
    EXPECT_STREQ(made->getFullyQualifiedVorloTypeName(), bare.getInternedFullName().c_str());
    for (const auto& method : bare.getMethodRecords()) {
      if (method->isStatic()) continue;
      const auto& inputs = method->getSignature()->getInputTypes();
      std::vector<Array> keep;
      std::vector<vorlo::VORValue> slots{vorlo::VORValue::ofArray(object.get())};
      for (std::size_t i = 1; i < inputs.size(); ++i) slots.push_back(defaultSlot(inputs[i].typeSpec(), keep, empty));
      const std::string error = raised([&] {
        vorlo::VORValue output;
        int count = 0;
        method->invoke(VORGetPublicClient(), count, &output, static_cast<int>(slots.size()), slots.data());
        const auto kind = method->getSignature()->getOutputType().typeSpec().kind;
        if (count > 0 && kind != vorlo::TypeSpec::Logical && kind != vorlo::TypeSpec::Double) {
          hostDestroyArray(output.array());
        }
      });
      EXPECT_TRUE(error == "nothing" || error == emptyNode) << name << "." << method->getName() << ": " << error;
    }
    for (const auto& property : bare.getProperties()) {
      const std::string error = raised([&] { get(object, property->getName()); });  // a constant needs no node
      EXPECT_TRUE(error == "nothing" || error == emptyNode) << name << "." << property->getName() << ": " << error;
    }
  }
}

TEST_F(HostTest, TheHostObjectOfADocumentStandsForItsRegistryEntryAndNothingElse) {
  const std::size_t before = registered();
  Array document = parse(u"<r/>");
  EXPECT_EQ(registered(), before + 1);
  auto* native = nativeOf<paxorel::xml::Document>(document);
  const std::unique_ptr<paxorel::xml::Element> root(native->getDocumentElement());
  paxorel::xml::DocumentRegistry::getInstance()->unregisterDocument(native);  // root alone holds the document
  document.reset();                                                           // no entry to erase: nothing happens
  EXPECT_EQ(registered(), before);
  EXPECT_EQ(root->getTagName(), u"r");
}

TEST_F(HostTest, XercesExceptionsAreDescribedByTheirTypeWithMessageAndDomCode) {
  const paxorel::xml::XercesGuard xerces;
  using xercesc::XMLPlatformUtils;
  const std::tuple<std::exception_ptr, std::string, std::optional<long>> rows[] = {
      {std::make_exception_ptr(xercesc::DOMException(8, 0)), "xercesc:DOMException", 8},
      {std::make_exception_ptr(xercesc::DOMXPathException(51, 0)), "xercesc:DOMXPathException", 51},
      {std::make_exception_ptr(xercesc::DOMLSException(81, 0, XMLPlatformUtils::fgMemoryManager)),
       "xercesc:DOMLSException", 81},
      {std::make_exception_ptr(
           xercesc::MalformedURLException(__FILE__, __LINE__, xercesc::XMLExcepts::URL_MalformedURL)),
       "xercesc:MalformedURLException", std::nullopt},
      {std::make_exception_ptr(std::out_of_range("map::at")), "std:out_of_range", std::nullopt},  // the platform's
  };
  for (const auto& [exception, identifier, code] : rows) {
    const host::ForeignError error = host::describeException(exception);
    EXPECT_EQ(std::tuple(error.identifier, error.code, error.message.empty()), std::tuple(identifier, code, false));
  }
}
