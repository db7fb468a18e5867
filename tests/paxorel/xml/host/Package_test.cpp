// The package as a host finds it: the module entries, the 37 classes in
// order with their descriptions, bases and kinds, the abstract classes and
// enumerations, and how Xerces exceptions reach a host.
#include "HostFixture.hpp"

#include <host/ForeignError.hpp>

#include <xercesc/dom/DOMLSException.hpp>
#include <xercesc/dom/DOMXPathException.hpp>
#include <xercesc/util/XMLURL.hpp>

#include <dlfcn.h>

#include <algorithm>
#include <vector>

using namespace testing_support;

namespace {

const char* const node = "zelmar.io.xml.dom.Node";
const char* const object = "zelmar.io.xml.dom.Object";
const char* const characterData = "zelmar.io.xml.dom.CharacterData";

struct ClassRow {
  const char* name;
  const char* description;
  std::vector<const char*> bases;
  const char* kind;
};

const ClassRow classes[] = {
    {"Attr", "Defines a comment in a document", {node}, "handle"},
    {"CDATASection", "Defines character data in a document", {"zelmar.io.xml.dom.Text"}, "handle"},
    {"CharacterData", "Defines character data in a document", {node}, "handle"},
    {"Comment", "Defines a comment in a document", {characterData}, "handle"},
    {"Document", "Class of XML documents", {node}, "handle"},
    {"DocumentConfiguration", "Represent a parser configuration", {object}, "handle"},
    {"DocumentFragment", "Defines a block of document content", {node}, "handle"},
    {"DocumentType", "Defines an XML document type", {node}, "handle"},
    {"DOMWriter", "Parse XML files and strings", {object}, "handle"},
    {"Element", "Defines an XML document element", {node}, "handle"},
    {"FileWriter", "Parse XML files and strings", {object}, "handle"},
    {"Entity", "Defines an entity", {node}, "handle"},
    {"EntityReference", "Defines a reference to an entity in a document", {characterData}, "handle"},
    {"EntityResolver", "", {"zelmar.io.xml.transform.Object"}, "abstract"},
    {"Locator", "Defines an XML file element locator", {object}, "handle"},
    {"NamedNodeMap", "Defines a map of nodes with names", {object}, "handle"},
    {"Node", "Defines a node of an XML document", {object, "zelmar.mixin.Heterogeneous"}, "handle"},
    {"NodeList", "Defines a list of XML nodes", {object}, "handle"},
    {"Notation", "Declares an entity in a document type", {characterData}, "handle"},
    {"ParseError", "Defines a document parse error", {object}, "handle"},
    {"ParseErrorHandler", "", {object}, "abstract"},
    {"ParseErrorLocator", "Defines location of a parse error in an XML file.", {object}, "handle"},
    {"ParseErrorSeverity", "Parse error severity", {"uint32"}, "enumeration"},
    {"Parser", "Parse XML files and strings", {object}, "handle"},
    {"ParserConfiguration", "Represent a parser configuration", {object}, "handle"},
    {"ProcessingInstruction", "Defines a processing instruction in a document", {node}, "handle"},
    {"ResourceIdentifier", "Defines an XML resource identifier", {object}, "handle"},
    {"ResourceIdentifierType", "Resource identifier type", {"uint32"}, "enumeration"},
    {"ResourceResolver", "", {"zelmar.io.xml.transform.Object"}, "abstract"},
    {"Text", "Defines text in document elements", {characterData}, "handle"},
    {"TypeInfo", "Defines an XML document type", {object}, "handle"},
    {"WriterConfiguration", "Represent a parser configuration", {object}, "handle"},
    {"Object", "Base class for XML objects", {}, "handle"},
    {"XPathEvaluator", "Defines an XPath evaluator", {object}, "handle"},
    {"XPathExpression", "Defines an XPath expression", {object}, "handle"},
    {"XPathNSResolver", "Defines an XPath expression", {object}, "handle"},
    {"XPathResult", "Defines an XPath search result", {object}, "handle"},
};

// The classes whose records are all registered; the others have none yet.
const std::vector<std::string> withRecords = {
    "Object",       "Node",   "Document",           "Element", "Attr", "CharacterData", "Text", "NodeList",
    "NamedNodeMap", "Parser", "ParserConfiguration"};

std::string kindOf(const vorlo::VORClassInfo& record) {
  if (record.isEnumeration()) return "enumeration";
  return record.isAbstract() ? "abstract" : "handle";
}

}  // namespace

TEST(ModuleEntries, AreFoundByTheirCNamesAndRegisterThePackageOnce) {
  using Entry = void (*)();
  const auto initialize = reinterpret_cast<Entry>(dlsym(RTLD_DEFAULT, "ModuleInitialize_paxorel_xml"));
  const auto terminate = reinterpret_cast<Entry>(dlsym(RTLD_DEFAULT, "ModuleTerminate_paxorel_xml"));
  ASSERT_NE(initialize, nullptr);
  ASSERT_NE(terminate, nullptr);
  initialize();
  initialize();
  terminate();
  const std::vector<vorlo::VORPackage*> packages = vorlo::VORPackage::all();
  EXPECT_EQ(std::count_if(packages.begin(), packages.end(),
                          [](const vorlo::VORPackage* p) { return p->getName() == "zelmar.io.xml.dom"; }),
            1);
  EXPECT_NE(vorlo::VORPackage::find("zelmar.io.xml.dom"), nullptr);  // still there after terminate
}

TEST_F(HostTest, The37ClassesComeInOrderWithTheirDescriptionsBasesKindsAndAnswers) {
  const std::vector<vorlo::VORClass*>& registered = vorlo::VORPackage::find("zelmar.io.xml.dom")->getClasses();
  ASSERT_EQ(registered.size(), std::size(classes));
  for (std::size_t i = 0; i < registered.size(); ++i) {
    const ClassRow& row = classes[i];
    const vorlo::VORClass& cls = *registered[i];
    const vorlo::VORClassInfo& record = cls.getInfo();
    SCOPED_TRACE(row.name);
    EXPECT_STREQ(record.getName(), row.name);
    EXPECT_EQ(cls.getInternedFullName().str(), std::string("zelmar.io.xml.dom.") + row.name);
    EXPECT_STREQ(record.getDescription(), row.description);
    EXPECT_EQ(kindOf(record), row.kind);
    ASSERT_EQ(cls.getSuperclasses().size(), row.bases.size());
    const std::array<int, 3> words = kindOf(record) == "enumeration" ? std::array{0, 0, 1} : std::array{1, 0, 1};
    for (std::size_t b = 0; b < row.bases.size(); ++b) {
      EXPECT_EQ(cls.getSuperclasses()[b].name.str(), row.bases[b]);
      EXPECT_EQ(cls.getSuperclasses()[b].words, words);
    }

    const bool enumeration = kindOf(record) == "enumeration";
    vorlo::VORClassInfo& mutableRecord = cls.getInfo();
    EXPECT_EQ(mutableRecord.allocateInstance(nullptr), nullptr);
    EXPECT_EQ(record.isOkToDestroy(), !enumeration);
    EXPECT_EQ(record.isHandleClass(), !enumeration);
    EXPECT_FALSE(record.isConstructedOnLoad());
    if (kindOf(record) != "abstract") {
      EXPECT_STREQ(record.getDetailedDescription(), row.description);
    }
    if (kindOf(record) == "handle" &&
        std::find(withRecords.begin(), withRecords.end(), row.name) == withRecords.end()) {
      EXPECT_TRUE(cls.getMethodRecords().empty() && cls.getProperties().empty());
    }
  }
}

TEST_F(HostTest, AbstractClassesDeclareTheirOneMethodWithTheirOwnTypeNames) {
  const struct {
    const char* cls;
    const char* method;
    std::vector<std::string> inputs;
    const char* output;
  } rows[] = {
      {"EntityResolver",
       "resolveEntity",
       {"zelmar.io.xml.transform.EntityResolver", "zelmar.io.xml.ResourceIdentifier"},
       "ustringToString scalar"},
      {"ResourceResolver",
       "resolveResource",
       {"zelmar.io.xml.transform.ResourceResolver", "zelmar.io.xml.ResourceIdentifier"},
       "ustringToString scalar"},
      {"ParseErrorHandler",
       "handleError",
       {"zelmar.io.xml.dom.ParseErrorHandler", "zelmar.io.xml.dom.ParseError"},
       "logical scalar"},
  };
  for (const auto& row : rows) {
    const vorlo::VORClass& abstract = cls(row.cls);
    ASSERT_EQ(abstract.getMethodRecords().size(), 1u) << row.cls;
    const vorlo::VORMethodInfo& method = *abstract.getMethodRecords()[0];
    EXPECT_STREQ(method.getName(), row.method);
    EXPECT_EQ(method.getKind(), vorlo::VORMethodInfo::Kind::Abstract);
    EXPECT_TRUE(method.isAbstract() && !method.isSealed() && !method.isStatic());
    std::vector<std::string> inputs;
    for (const vorlo::InternedName input : method.getSignature()->getInputTypes()) inputs.push_back(input.str());
    EXPECT_EQ(inputs, row.inputs);
    EXPECT_EQ(method.getSignature()->getOutputType().str(), row.output);
    EXPECT_TRUE(abstract.getProperties().empty());
    int outputs = 0;
    method.invoke(nullptr, outputs, nullptr, 0, nullptr);  // does nothing, reports nothing
    EXPECT_EQ(outputs, 0);
  }
  EXPECT_HOST_ERROR(construct("ParseErrorHandler"), "ZELMAR:vorlo:NotConstructible");
}

TEST_F(HostTest, EnumerationMembersAreUint32ObjectsOfTheirHostValuesMadeOnceEach) {
  const struct {
    const char* cls;
    std::vector<std::pair<std::string, std::uint64_t>> members;
  } rows[] = {
      {"ParseErrorSeverity", {{"Warning", 0}, {"Error", 1}, {"FatalError", 2}, {"UnknownError", 3}}},
      {"ResourceIdentifierType",
       {{"SchemaGrammar", 0},
        {"SchemaImport", 1},
        {"SchemaInclude", 2},
        {"SchemaRedefine", 3},
        {"ExternalEntity", 4},
        {"Unknown", 255}}},
  };
  for (const auto& row : rows) {
    const vorlo::VORClass& enumeration = cls(row.cls);
    std::vector<std::pair<std::string, std::uint64_t>> members;
    for (const auto& member : enumeration.getEnumerationMembers()) {
      HostArray* value = member->getValue();
      EXPECT_EQ(member->getValue(), value) << "one host value per member";
      EXPECT_EQ(hostGetClassName(value), enumeration.getInternedFullName());
      members.emplace_back(member->getName(), value->word(0));
    }
    EXPECT_EQ(members, row.members);
    ASSERT_EQ(enumeration.getMethodRecords().size(), 1u);
    const vorlo::VORMethodInfo& constructor = *enumeration.getMethodRecords()[0];
    EXPECT_STREQ(constructor.getName(), row.cls);
    EXPECT_EQ(constructor.getKind(), vorlo::VORMethodInfo::Kind::ValueConstructor);
    EXPECT_FALSE(constructor.isFirstArgDispatch());
    EXPECT_EQ(constructor.getSignature()->getInputTypes(), std::vector{vorlo::internal::makeInterned("uint32")});
    EXPECT_EQ(constructor.getSignature()->getOutputType(), enumeration.getInternedFullName());
  }
  // Native code names a member; the host sees its host value.
  const Array severity = adopt(hostCreateEnumerationMatrix(1, 1, cls("ParseErrorSeverity").getInternedFullName()));
  hostSetEnumerationElement(severity.get(), 0, vorlo::internal::makeInterned("UnknownError"));
  EXPECT_EQ(severity->word(0), 3u);
}

TEST_F(HostTest, XercesExceptionsReachAHostByTheirTypeWithMessageAndDomCode) {
  const paxorel::xml::XercesGuard xerces;
  const struct {
    std::exception_ptr exception;
    const char* identifier;
    std::optional<long> code;
  } rows[] = {
      {std::make_exception_ptr(xercesc::DOMException(8, 0)), "xercesc:DOMException", 8},
      {std::make_exception_ptr(xercesc::DOMXPathException(51, 0)), "xercesc:DOMXPathException", 51},
      {std::make_exception_ptr(xercesc::DOMLSException(81, 0, xercesc::XMLPlatformUtils::fgMemoryManager)),
       "xercesc:DOMLSException", 81},
      {std::make_exception_ptr(
           xercesc::MalformedURLException(__FILE__, __LINE__, xercesc::XMLExcepts::URL_MalformedURL)),
       "xercesc:MalformedURLException", std::nullopt},
  };
  for (const auto& row : rows) {
    const host::ForeignError error = host::describeException(row.exception);
    EXPECT_EQ(error.identifier, row.identifier);
    EXPECT_FALSE(error.message.empty()) << row.identifier;
    EXPECT_EQ(error.code, row.code) << row.identifier;
  }
  EXPECT_EQ(host::describeException(std::make_exception_ptr(std::out_of_range("map::at"))).identifier,
            "std:out_of_range");  // others are left to the platform

  // One that the library lets through, taken as a host takes it: removing an
  // attribute that is not there.
  const Array document = parse(u"<a/>");
  const Array attributes = call(call(document, "getDocumentElement"), "getAttributes");
  try {
    call(attributes, "removeNamedItemNS", {text(u"").get(), text(u"\u00e9").get()});
    ADD_FAILURE() << "expected a DOMException";
  } catch (...) {
    const host::ForeignError error = host::describeException(std::current_exception());
    EXPECT_EQ(error.identifier, "xercesc:DOMException");
    EXPECT_EQ(error.code, 8);
  }
}
