#include <paxorel/xml/host/AbstractClasses.hpp>
#include <paxorel/xml/host/ClassRecords.hpp>
#include <paxorel/xml/host/Enumerations.hpp>
#include <paxorel/xml/host/HostValue.hpp>
#include <paxorel/xml/host/ModuleEntries.hpp>

#include <vorlo/VORClass.hpp>
#include <vorlo/VORPackage.hpp>

#include <string>

namespace paxorel::xml::mi {

namespace {

constexpr const char* node = hostClass<Node>;
constexpr const char* object = hostClass<XMLObject>;
constexpr const char* characterData = hostClass<CharacterData>;

// The classes in the order of registration, which host listings show. The
// descriptions are the ones existing host programs know, misfits included
// (Attr's speaks of a comment, the writers' of parsing); and the host bases
// of EntityReference and Notation are not their native ones.
void addClasses(vorlo::VORPackage* package) {
  const auto add = [package](vorlo::VORClassInfo* record) { package->addClass(record, 2); };
  add(new VorAttr("Attr", "Defines a comment in a document", {node}));
  add(new VorCDATASection("CDATASection", "Defines character data in a document", {hostClass<Text>}));
  add(new VorCharacterData("CharacterData", "Defines character data in a document", {node}));
  add(new VorComment("Comment", "Defines a comment in a document", {characterData}));
  add(new VorDocument("Document", "Class of XML documents", {node}));
  add(new VorDocumentConfiguration("DocumentConfiguration", "Represent a parser configuration", {object}));
  add(new VorDocumentFragment("DocumentFragment", "Defines a block of document content", {node}));
  add(new VorDocumentType("DocumentType", "Defines an XML document type", {node}));
  add(new VorDOMWriter("DOMWriter", "Parse XML files and strings", {object}));
  add(new VorElement("Element", "Defines an XML document element", {node}));
  add(new VorFileWriter("FileWriter", "Parse XML files and strings", {object}));
  add(new VorEntity("Entity", "Defines an entity", {node}));
  add(new VorEntityReference("EntityReference", "Defines a reference to an entity in a document", {characterData}));
  add(new VorEntityResolver);
  add(new VorLocator("Locator", "Defines an XML file element locator", {object}));
  add(new VorNamedNodeMap("NamedNodeMap", "Defines a map of nodes with names", {object}));
  add(new VorNode("Node", "Defines a node of an XML document", {object, "zelmar.mixin.Heterogeneous"}));
  add(new VorNodeList("NodeList", "Defines a list of XML nodes", {object}));
  add(new VorNotation("Notation", "Declares an entity in a document type", {characterData}));
  add(new VorParseError("ParseError", "Defines a document parse error", {object}));
  add(new VorParseErrorHandler);
  add(new VorParseErrorLocator("ParseErrorLocator", "Defines location of a parse error in an XML file.", {object}));
  add(new VorParseErrorSeverity("ParseErrorSeverity", "Parse error severity"));
  add(new VorParser("Parser", "Parse XML files and strings", {object}));
  add(new VorParserConfiguration("ParserConfiguration", "Represent a parser configuration", {object}));
  add(new VorProcessingInstruction("ProcessingInstruction", "Defines a processing instruction in a document", {node}));
  add(new VorResourceIdentifier("ResourceIdentifier", "Defines an XML resource identifier", {object}));
  add(new VorResourceIdentifierType("ResourceIdentifierType", "Resource identifier type"));
  add(new VorResourceResolver);
  add(new VorText("Text", "Defines text in document elements", {characterData}));
  add(new VorTypeInfo("TypeInfo", "Defines an XML document type", {object}));
  add(new VorWriterConfiguration("WriterConfiguration", "Represent a parser configuration", {object}));
  add(new VorObject("Object", "Base class for XML objects", {}));
  add(new VorXPathEvaluator("XPathEvaluator", "Defines an XPath evaluator", {object}));
  add(new VorXPathExpression("XPathExpression", "Defines an XPath expression", {object}));
  add(new VorXPathNSResolver("XPathNSResolver", "Defines an XPath expression", {object}));
  add(new VorXPathResult("XPathResult", "Defines an XPath search result", {object}));
}

}  // namespace

void init_ZELMAR_IO_XML_DOM_Package() {
  std::string name = "zelmar.io.xml.dom";
  vorlo::factory::registerVorloPackage(std::move(name), [](vorlo::VORPackage* package) { addClasses(package); });
}

}  // namespace paxorel::xml::mi
