// Every record of the classes whose tables are complete, compared with the
// contract's tables: name, kind, attribute word, output and input types, in
// registration order.
#include "HostFixture.hpp"

#include <vorlo/VORPropertyInfo.hpp>
#include <vorlo/factory/VorloMethod.hpp>

#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

using namespace testing_support;

namespace {

enum Kind { C, M, D, P };  // constructor, method, direct method, property

// A row as the contract's tables write it: a class name stands for
// "zelmar.io.xml.dom." and the name, string for "VorloFactoryString scalar",
// string* for "ustringToString scalar", and so on; the object input is left
// out. A constructor's type is its class; a property's inputs are what
// assigning takes (nothing for a read-only one).
struct Record {
  const char* cls;
  const char* name;
  Kind kind;
  std::uint32_t word;
  const char* type;
  std::vector<const char*> inputs;
};

const Record records[] = {
    // Object
    {"Object", "Object", C, 0x102, "", {}},
    // Node
    {"Node", "Node", C, 0x102, "", {}},
    {"Node", "getChildNodes", M, 0, "NodeList", {}},
    {"Node", "getChildren", M, 0, "Node vector", {}},
    {"Node", "getAttributes", M, 0, "NamedNodeMap", {}},
    {"Node", "getLocalName", M, 0, "string", {}},
    {"Node", "getNodeName", M, 0, "string", {}},
    {"Node", "getNamespaceURI", M, 0, "string", {}},
    {"Node", "getNodeType", M, 0, "double", {}},
    {"Node", "getNodeValue", M, 0, "string", {}},
    {"Node", "getTextContent", M, 0, "string", {}},
    {"Node", "hasAttributes", M, 0, "logical", {}},
    {"Node", "hasChildNodes", M, 0, "logical", {}},
    {"Node", "getPrefix", M, 0, "string", {}},
    {"Node", "setPrefix", M, 0, "void", {"string"}},
    {"Node", "appendChild", M, 0, "Node", {"Node"}},
    {"Node", "cloneNode", M, 0, "Node", {"logical"}},
    {"Node", "insertBefore", M, 0, "Node", {"Node", "Node"}},
    {"Node", "replaceChild", M, 0, "Node", {"Node", "Node"}},
    {"Node", "removeChild", M, 0, "Node", {"Node"}},
    {"Node", "setNodeValue", M, 0, "void", {"string"}},
    {"Node", "normalize", M, 0, "void", {}},
    {"Node", "isSameNode", M, 0, "logical", {"Node"}},
    {"Node", "isEqualNode", M, 0, "logical", {"Node"}},
    {"Node", "eq", M, 0, "logical", {"Node"}},
    {"Node", "getBaseURI", M, 0, "string", {}},
    {"Node", "compareDocumentPosition", M, 0, "double", {"Node"}},
    {"Node", "setTextContent", M, 0, "void", {"string"}},
    {"Node", "lookupPrefix", M, 0, "string", {"string"}},
    {"Node", "isDefaultNamespace", M, 0, "logical", {"string"}},
    {"Node", "lookupNamespaceURI", M, 0, "string", {"string"}},
    {"Node", "ELEMENT_NODE", P, 0x800, "double", {}},
    {"Node", "ATTRIBUTE_NODE", P, 0x800, "double", {}},
    {"Node", "TEXT_NODE", P, 0x800, "double", {}},
    {"Node", "CDATA_SECTION_NODE", P, 0x800, "double", {}},
    {"Node", "ENTITY_REFERENCE_NODE", P, 0x800, "double", {}},
    {"Node", "ENTITY_NODE", P, 0x800, "double", {}},
    {"Node", "PROCESSING_INSTRUCTION_NODE", P, 0x800, "double", {}},
    {"Node", "COMMENT_NODE", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_NODE", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_TYPE_NODE", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_FRAGMENT_NODE", P, 0x800, "double", {}},
    {"Node", "NOTATION_NODE", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_POSITION_DISCONNECTED", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_POSITION_PRECEDING", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_POSITION_FOLLOWING", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_POSITION_CONTAINS", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_POSITION_CONTAINED_BY", P, 0x800, "double", {}},
    {"Node", "DOCUMENT_POSITION_IMPLEMENTATION_SPECIFIC", P, 0x800, "double", {}},
    {"Node", "getNodeTypeName", M, 0, "string", {}},
    {"Node", "getPositionTypeName", M, 0, "string", {"double"}},
    {"Node", "getLength", M, 0, "double", {}},
    {"Node", "item", M, 0, "Node", {"double"}},
    {"Node", "child", M, 0, "Node", {"double"}},
    {"Node", "node", M, 0, "Node", {"double"}},
    {"Node", "getParentNode", D, 0, "any", {}},
    {"Node", "getFirstChild", D, 0, "any", {}},
    {"Node", "getLastChild", D, 0, "any", {}},
    {"Node", "getNextSibling", D, 0, "any", {}},
    {"Node", "getPreviousSibling", D, 0, "any", {}},
    {"Node", "getOwnerDocument", D, 0, "any", {}},
    {"Node", "TextContent", P, 0, "string", {"string"}},
    {"Node", "HasChildNodes", P, 0x800, "logical", {}},
    {"Node", "Children", P, 0, "Node vector", {}},
    // Document
    {"Document", "Document", C, 0, "", {}},
    {"Document", "Document", C, 0, "", {"string"}},
    {"Document", "Document", C, 0, "", {"string", "string", "string", "string"}},
    {"Document", "Document", C, 0, "", {"string", "string"}},
    {"Document", "Document", C, 0, "", {"string", "string", "string", "string", "string"}},
    {"Document", "getElementsByTagName", M, 0, "NodeList", {"string"}},
    {"Document", "getElementsByTagNameNS", M, 0, "NodeList", {"string", "string"}},
    {"Document", "createElement", M, 0, "Element", {"string"}},
    {"Document", "createNotation", M, 0, "Notation", {"string"}},
    {"Document", "createEntity", M, 0, "Entity", {"string"}},
    {"Document", "createEntityReference", M, 0, "EntityReference", {"string"}},
    {"Document", "createElementNS", M, 0, "Element", {"string", "string"}},
    {"Document", "createTextNode", M, 0, "Text", {"string"}},
    {"Document", "createAttribute", M, 0, "Attr", {"string"}},
    {"Document", "createAttributeNS", M, 0, "Attr", {"string", "string"}},
    {"Document", "createComment", M, 0, "Comment", {"string"}},
    {"Document", "createProcessingInstruction", M, 0, "ProcessingInstruction", {"string", "string"}},
    {"Document", "createCDATASection", M, 0, "CDATASection", {"string"}},
    {"Document", "createDocumentFragment", M, 0, "DocumentFragment", {}},
    {"Document", "createDocumentType", M, 0, "DocumentType", {"string"}},
    {"Document", "createDocumentType", M, 0, "DocumentType", {"string", "string", "string"}},
    {"Document", "createNSResolver", M, 0, "XPathNSResolver", {"Node"}},
    {"Document", "evaluate", M, 0, "XPathResult", {"string", "double"}},
    {"Document", "evaluate", M, 0, "XPathResult", {"string", "Node", "double"}},
    {"Document", "evaluate", M, 0, "XPathResult", {"string", "Node", "XPathNSResolver", "double"}},
    {"Document", "getInputEncoding", M, 0, "string", {}},
    {"Document", "getXmlEncoding", M, 0, "string", {}},
    {"Document", "getXMLEncoding", M, 0, "string", {}},
    {"Document", "getXmlStandalone", M, 0, "logical", {}},
    {"Document", "getXMLStandalone", M, 0, "logical", {}},
    {"Document", "setXmlStandalone", M, 0, "void", {"logical"}},
    {"Document", "setXMLStandalone", M, 0, "void", {"logical"}},
    {"Document", "getXmlVersion", M, 0, "string", {}},
    {"Document", "getXMLVersion", M, 0, "string", {}},
    {"Document", "setXmlVersion", M, 0, "void", {"string"}},
    {"Document", "setXMLVersion", M, 0, "void", {"string"}},
    {"Document", "getDocumentURI", M, 0, "string", {}},
    {"Document", "setDocumentURI", M, 0, "void", {"string"}},
    {"Document", "renameNode", M, 0, "Node", {"Node", "string", "string"}},
    {"Document", "importNode", M, 0, "Node", {"Node"}},
    {"Document", "importNode", M, 0, "Node", {"Node", "logical"}},
    {"Document", "normalizeDocument", M, 0, "void", {}},
    {"Document", "getDOMConfig", M, 0, "DocumentConfiguration", {}},
    {"Document", "xmlwrite", M, 0, "void", {"string"}},
    {"Document", "getDocumentElement", D, 0, "any", {}},
    {"Document", "getDoctype", D, 0, "any", {}},
    {"Document", "getElementById", D, 0, "any", {"string*"}},
    {"Document", "getElementByID", D, 0, "any", {"string*"}},
    {"Document", "InputEncoding", P, 0, "string", {}},
    {"Document", "XMLEncoding", P, 0, "string", {}},
    {"Document", "XMLStandalone", P, 0, "logical", {"logical"}},
    {"Document", "XMLVersion", P, 0, "string", {"string"}},
    {"Document", "DocumentURI", P, 0, "string", {"string"}},
    {"Document", "Configuration", P, 0, "DocumentConfiguration", {}},
    // Element
    {"Element", "Element", C, 0x102, "", {}},
    {"Element", "getTagName", M, 0, "string", {}},
    {"Element", "char", M, 0, "string", {}},
    {"Element", "getElementsByTagName", M, 0, "NodeList", {"string"}},
    {"Element", "getElementsByTagNameNS", M, 0, "NodeList", {"string", "string"}},
    {"Element", "getAttribute", M, 0, "string", {"string"}},
    {"Element", "getAttributeNS", M, 0, "string", {"string", "string"}},
    {"Element", "hasAttribute", M, 0, "logical", {"string"}},
    {"Element", "hasAttributeNS", M, 0, "logical", {"string", "string"}},
    {"Element", "getChildElementCount", M, 0, "double", {}},
    {"Element", "getNodeIndex", M, 0, "double", {}},
    {"Element", "getSchemaTypeInfo", M, 0, "TypeInfo", {}},
    {"Element", "setAttribute", M, 0, "void", {"string", "string"}},
    {"Element", "setAttributeNS", M, 0, "void", {"string", "string", "string"}},
    {"Element", "setAttributeNode", M, 0, "Attr", {"Attr"}},
    {"Element", "setAttributeNodeNS", M, 0, "Attr", {"Attr"}},
    {"Element", "removeAttributeNode", M, 0, "Attr", {"Attr"}},
    {"Element", "removeAttribute", M, 0, "void", {"string"}},
    {"Element", "removeAttributeNS", M, 0, "void", {"string", "string"}},
    {"Element", "setIdAttribute", M, 0, "void", {"string", "logical"}},
    {"Element", "setIdAttributeNS", M, 0, "void", {"string", "string", "logical"}},
    {"Element", "setIdAttributeNode", M, 0, "void", {"Attr", "logical"}},
    {"Element", "setIDAttribute", M, 0, "void", {"string", "logical"}},
    {"Element", "setIDAttributeNS", M, 0, "void", {"string", "string", "logical"}},
    {"Element", "setIDAttributeNode", M, 0, "void", {"Attr", "logical"}},
    {"Element", "getAttributeNode", D, 0, "any", {"string*"}},
    {"Element", "getAttributeNodeNS", D, 0, "any", {"string*", "string*"}},
    {"Element", "getFirstElementChild", D, 0, "any", {}},
    {"Element", "getLastElementChild", D, 0, "any", {}},
    {"Element", "getNextElementSibling", D, 0, "any", {}},
    {"Element", "getPreviousElementSibling", D, 0, "any", {}},
    {"Element", "TagName", P, 0, "string", {}},
    {"Element", "HasAttributes", P, 0, "logical", {}},
    // Attr
    {"Attr", "Attr", C, 0x102, "", {}},
    {"Attr", "getName", M, 0, "string", {}},
    {"Attr", "getSpecified", M, 0, "logical", {}},
    {"Attr", "getValue", M, 0, "string", {}},
    {"Attr", "char", M, 0, "string", {}},
    {"Attr", "setValue", M, 0, "void", {"string"}},
    {"Attr", "isID", M, 0, "logical", {}},
    {"Attr", "isId", M, 0, "logical", {}},
    {"Attr", "getSchemaTypeInfo", M, 0, "TypeInfo", {}},
    {"Attr", "getOwnerElement", D, 0, "any", {}},
    {"Attr", "Name", P, 0, "string", {}},
    {"Attr", "Value", P, 0, "string", {"string"}},
    {"Attr", "IsID", P, 0, "logical", {}},
    // CharacterData
    {"CharacterData", "CharacterData", C, 0x102, "", {}},
    {"CharacterData", "getData", M, 0, "string", {}},
    {"CharacterData", "getLength", M, 0, "double", {}},
    {"CharacterData", "substringData", M, 0, "string", {"double", "double"}},
    {"CharacterData", "appendData", M, 0, "void", {"string"}},
    {"CharacterData", "insertData", M, 0, "void", {"double", "string"}},
    {"CharacterData", "deleteData", M, 0, "void", {"double", "double"}},
    {"CharacterData", "replaceData", M, 0, "void", {"double", "double", "string"}},
    {"CharacterData", "setData", M, 0, "void", {"string"}},
    {"CharacterData", "Length", P, 0, "double", {}},
    // Text
    {"Text", "Text", C, 0x102, "", {}},
    {"Text", "splitText", M, 0, "Text", {"double"}},
    {"Text", "getIsElementContentWhitespace", M, 0, "logical", {}},
    // NodeList
    {"NodeList", "NodeList", C, 0x102, "", {}},
    {"NodeList", "getLength", M, 0, "double", {}},
    {"NodeList", "item", M, 0, "Node", {"double"}},
    {"NodeList", "node", M, 0, "Node", {"double"}},
    {"NodeList", "getTextContent", M, 0, "string", {}},
    {"NodeList", "Length", P, 0, "double", {}},
    {"NodeList", "TextContent", P, 0, "string", {}},
    // NamedNodeMap
    {"NamedNodeMap", "NamedNodeMap", C, 0x102, "", {}},
    {"NamedNodeMap", "getLength", M, 0, "double", {}},
    {"NamedNodeMap", "getNamedItem", M, 0, "Node", {"string"}},
    {"NamedNodeMap", "getNamedItemNS", M, 0, "Node", {"string", "string"}},
    {"NamedNodeMap", "item", M, 0, "Node", {"double"}},
    {"NamedNodeMap", "removeNamedItemNS", M, 0, "Node", {"string", "string"}},
    {"NamedNodeMap", "setNamedItem", M, 0, "Node", {"Node"}},
    {"NamedNodeMap", "setNamedItemNS", M, 0, "Node", {"Node"}},
    {"NamedNodeMap", "Length", P, 0, "double", {}},
    // Parser
    {"Parser", "Parser", C, 0, "", {}},
    {"Parser", "parseURI", M, 0, "Document", {"string"}},
    {"Parser", "parseFile", M, 0, "Document", {"string"}},
    {"Parser", "parseString", M, 0, "Document", {"string"}},
    {"Parser", "Configuration", P, 0, "ParserConfiguration", {}},
    // ParserConfiguration
    {"ParserConfiguration", "ParserConfiguration", C, 0x102, "", {}},
    {"ParserConfiguration", "Namespaces", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "ElementContentWhitespace", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "LoadExternalDTD", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "DisableDefaultEntityResolution", P, 0x800, "logical", {"logical"}},
    {"ParserConfiguration", "DisableEntityResolution", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "DisallowDoctype", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "Entities", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "StandardURIConformant", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "Validate", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "SkipDTDValidation", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "ValidationErrorAsFatal", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "ContinueAfterFatalError", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "Comments", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "DoXInclude", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "ExternalSchemaLocation", P, 0, "string", {"string"}},
    {"ParserConfiguration", "ExternalNoNamespaceSchemaLocation", P, 0, "string", {"string"}},
    {"ParserConfiguration", "LoadSchema", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "Schema", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "ValidateIfSchema", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "SchemaFullChecking", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "DatatypeNormalization", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "IgnoreAnnotations", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "ValidateAnnotations", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "GenerateSyntheticAnnotations", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "CacheGrammarFromParse", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "UseCachedGrammarInParse", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "HandleMultipleImports", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "HasPSVIInfo", P, 0x800, "logical", {"logical"}},
    {"ParserConfiguration", "HasPSVI", P, 0, "logical", {"logical"}},
    {"ParserConfiguration", "IdentityConstraintChecking", P, 0, "logical", {"logical"}},
};

std::string typeString(const std::string& word) {
  static const std::map<std::string, std::string> scalars = {{"string", "VorloFactoryString scalar"},
                                                             {"string*", "ustringToString scalar"},
                                                             {"logical", "logical scalar"},
                                                             {"double", "double scalar"},
                                                             {"void", "void"},
                                                             {"any", "any"}};
  const auto scalar = scalars.find(word);
  return scalar != scalars.end() ? scalar->second : "zelmar.io.xml.dom." + word;
}

std::string kindOf(const vorlo::VORMethodInfo& method) {
  switch (method.getKind()) {
    case vorlo::VORMethodInfo::Kind::Constructor: return "constructor";
    case vorlo::VORMethodInfo::Kind::Method: return "method";
    case vorlo::VORMethodInfo::Kind::Direct: return "direct";
    default: return "other";
  }
}

// A record as introspection shows it: kind, name, word, output, inputs.
using Shown = std::tuple<std::string, std::string, std::uint32_t, std::string, std::vector<std::string>>;

Shown expected(const Record& row) {
  const std::string self = typeString(row.cls);
  std::vector<std::string> inputs;
  if (row.kind == C) inputs.emplace_back("");
  if (row.kind == M) inputs.push_back(self);
  if (row.kind == D) inputs.push_back(self + " scalar");
  for (const char* input : row.inputs) inputs.push_back(typeString(input));
  static const char* const kinds[] = {"constructor", "method", "direct", "property"};
  return {kinds[row.kind], row.name, row.word, row.kind == C ? self : typeString(row.type), inputs};
}

Shown shown(const vorlo::VORMethodInfo& method) {
  std::vector<std::string> inputs;
  for (const vorlo::InternedName input : method.getSignature()->getInputTypes()) inputs.push_back(input.str());
  const std::uint32_t word =
      method.getKind() == vorlo::VORMethodInfo::Kind::Direct ? method.getMemberAccess() : method.getAttributes();
  return {kindOf(method), method.getName(), word, method.getSignature()->getOutputType().str(), inputs};
}

Shown shown(const vorlo::VORPropertyInfo& property) {
  const std::string type = property.getTypeName().str();
  return {property.getKind() == vorlo::VORPropertyInfo::Kind::Property ? "property" : "typed", property.getName(),
          property.getAttributes(), type, property.isSettable() ? std::vector{type} : std::vector<std::string>()};
}

}  // namespace

TEST_F(HostTest, EveryRecordOfTheCompleteClassesIsTheContractsInItsOrder) {
  std::map<std::string, std::pair<std::vector<Shown>, std::vector<Shown>>> tables;  // methods, properties
  for (const Record& row : records) {
    auto& [methods, properties] = tables[row.cls];
    (row.kind == P ? properties : methods).push_back(expected(row));
  }
  for (const auto& [name, table] : tables) {
    const vorlo::VORClass& registered = cls(name);
    std::vector<Shown> methods, properties;
    for (const auto& method : registered.getMethodRecords()) {
      methods.push_back(shown(*method));
      EXPECT_STREQ(method->getDescription(), "") << name << "." << method->getName();
      EXPECT_EQ(method->getSignature()->getDescription(), "");
      // Constructors keep the static flag; instance methods lose it.
      EXPECT_EQ(method->isStatic(), method->getKind() == vorlo::VORMethodInfo::Kind::Constructor);
    }
    for (const auto& property : registered.getProperties()) {
      properties.push_back(shown(*property));
      EXPECT_STREQ(property->getDescription(), "") << name << "." << property->getName();
    }
    for (const auto& [actual, wanted] : {std::pair(&methods, &table.first), std::pair(&properties, &table.second)}) {
      EXPECT_EQ(actual->size(), wanted->size()) << name;
      for (std::size_t i = 0; i < std::min(actual->size(), wanted->size()); ++i) {
        EXPECT_EQ((*actual)[i], (*wanted)[i]) << name << ", record " << i;
      }
    }
  }
}
