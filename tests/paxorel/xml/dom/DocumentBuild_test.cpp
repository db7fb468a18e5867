// Document: constructors, factories, finders and document-level operations.
#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

using namespace paxorel::xml;

namespace {

std::size_t registered() { return DocumentRegistry::getInstance()->entries().size(); }

// Runs a constructor that must fail with `key` and `args`, and checks that
// it leaves nothing in the registry.
template <class... Args>
void expectConstructorError(const std::function<void()>& construct, const char* file, int line, const std::string& key,
                            const Args&... args) {
  const std::size_t before = registered();
  testing_support::expectXmlError(construct, file, line, key, args...);
  EXPECT_EQ(registered(), before) << file << ":" << line;
}
#define EXPECT_CONSTRUCTOR_ERROR(statement, ...) \
  expectConstructorError([&] { statement; }, __FILE__, __LINE__, __VA_ARGS__)

const ustring xmlNs = u"http://www.w3.org/XML/1998/namespace";
const ustring xmlnsNs = u"http://www.w3.org/2000/xmlns/";

}  // namespace

TEST(DocumentConstruction, BuildsARootAndADoctype) {
  const auto plain = createDocument(u"root");
  const std::unique_ptr<Element> root(plain->getDocumentElement());
  EXPECT_EQ(root->getNodeName(), u"root");
  EXPECT_EQ(root->getNamespaceURI(), u"");
  EXPECT_EQ(plain->getDoctype(), nullptr);

  const auto inNamespace = createDocument(u"urn:x", u"x:root");
  const std::unique_ptr<Element> nsRoot(inNamespace->getDocumentElement());
  EXPECT_EQ(nsRoot->getNamespaceURI(), u"urn:x");
  EXPECT_EQ(nsRoot->getLocalName(), u"root");

  const auto withDoctype = DocumentRegistry::shareWithCaller(new Document(u"root", u"root", u"-//P//EN", u"r.dtd"));
  const std::unique_ptr<DocumentType> doctype(withDoctype->getDoctype());
  ASSERT_NE(doctype, nullptr);
  EXPECT_EQ(doctype->getNodeName(), u"root");
  EXPECT_EQ(withDoctype->getLength(), 2);

  const auto both = DocumentRegistry::shareWithCaller(new Document(u"urn:x", u"x:r", u"x:r", u"", u""));
  const std::unique_ptr<Element> bothRoot(both->getDocumentElement());
  EXPECT_EQ(bothRoot->getNamespaceURI(), u"urn:x");
  const std::unique_ptr<DocumentType> bothDoctype(both->getDoctype());
  EXPECT_NE(bothDoctype, nullptr);
}

TEST(DocumentConstruction, EachConstructorHasItsOwnErrors) {
  EXPECT_CONSTRUCTOR_ERROR(createDocument(u"a b"), "docInvalidCharError", u"a b");
  EXPECT_CONSTRUCTOR_ERROR(createDocument(u"urn:x", u"a b"), "docInvalidNSCharError", u"urn:x", u"a b");
  // The namespace error names the name first, the character error the namespace.
  EXPECT_CONSTRUCTOR_ERROR(createDocument(u"", u"p:r"), "docElemNameNSError", u"p:r", u"");
  EXPECT_CONSTRUCTOR_ERROR(createDocument(u"p:"), "docElemNameError", u"p:");
  EXPECT_CONSTRUCTOR_ERROR(new Document(u"r", u"d d", u"", u""), "docTypeInvalidCharError", u"d d");
  EXPECT_CONSTRUCTOR_ERROR(new Document(u"r", u"d:", u"", u""), "docTypeNameError", u"d:");
  EXPECT_CONSTRUCTOR_ERROR(new Document(u"a b", u"d", u"", u""), "docInvalidCharError", u"a b");
  EXPECT_CONSTRUCTOR_ERROR(new Document(u"urn:x", u"a b", u"d", u"", u""), "docInvalidNSCharError", u"urn:x",
                           u"a b");
  EXPECT_CONSTRUCTOR_ERROR(new Document(u"", u"p:r", u"d", u"", u""), "docElemNameNSError", u"p:r", u"");
}

TEST(DocumentConstruction, AnEmptyNameIsXercessToJudge) {
  const std::size_t before = registered();
  try {
    createDocument(u"");
  } catch (const basis::except::IMsgIDException& e) {
    EXPECT_EQ(e.GetBaseMsgIDObj().catalogue, "paxorel:xml_error");
  }
  EXPECT_EQ(registered(), before);
}

TEST(DocumentProperties, ReadAndSet) {
  const auto parsed = parseString(u"<?xml version='1.0' encoding='UTF-8' standalone='yes'?><r/>");
  EXPECT_EQ(parsed->getXmlEncoding(), u"UTF-8");
  EXPECT_EQ(parsed->getXmlVersion(), u"1.0");
  EXPECT_TRUE(parsed->getXmlStandalone());
  const auto made = createDocument(u"r");
  EXPECT_EQ(made->getInputEncoding(), u"");
  EXPECT_EQ(made->getDocumentURI(), u"");
  made->setDocumentURI(u"file:///tmp/r.xml");
  EXPECT_EQ(made->getDocumentURI(), u"file:///tmp/r.xml");
  made->setXmlStandalone(true);
  EXPECT_TRUE(made->getXmlStandalone());
  made->setXmlVersion(u"1.1");
  EXPECT_EQ(made->getXmlVersion(), u"1.1");
  EXPECT_THROW(made->setXmlVersion(u"2.0"), xercesc::DOMException);
}

TEST(DocumentTree, GetDocumentElementGivesANewWrapperOfOneElement) {
  const auto document = createDocument(u"r");
  const std::unique_ptr<Element> one(document->getDocumentElement()), two(document->getDocumentElement());
  EXPECT_NE(one, two);
  EXPECT_TRUE(one->isSameNode(two.get()));
  EXPECT_EQ(createDocument()->getDocumentElement(), nullptr);
}

TEST(DocumentFactories, MakeNodesOfEveryKindWithoutAParent) {
  const auto document = createDocument(u"r");
  const std::unique_ptr<Node> made[] = {
      std::unique_ptr<Node>(document->createElement(u"e")),
      std::unique_ptr<Node>(document->createElementNS(u"urn:x", u"x:e")),
      std::unique_ptr<Node>(document->createAttribute(u"a")),
      std::unique_ptr<Node>(document->createAttributeNS(u"urn:x", u"x:a")),
      std::unique_ptr<Node>(document->createTextNode(u"t")),
      std::unique_ptr<Node>(document->createComment(u"c")),
      std::unique_ptr<Node>(document->createCDATASection(u"d")),
      std::unique_ptr<Node>(document->createProcessingInstruction(u"pi", u"data")),
      std::unique_ptr<Node>(document->createDocumentFragment()),
      std::unique_ptr<Node>(document->createEntity(u"ent")),
      std::unique_ptr<Node>(document->createEntityReference(u"ref")),
      std::unique_ptr<Node>(document->createNotation(u"n")),
      std::unique_ptr<Node>(document->createDocumentType(u"dt")),
      std::unique_ptr<Node>(document->createDocumentType(u"dt", u"pub", u"sys")),
  };
  const char* classes[] = {"Element", "Element", "Attr", "Attr", "Text", "Comment", "CDATASection",
                           "ProcessingInstruction", "DocumentFragment", "Entity", "EntityReference", "Notation",
                           "DocumentType", "DocumentType"};
  for (std::size_t i = 0; i < std::size(made); ++i) {
    ASSERT_NE(made[i], nullptr) << classes[i];
    EXPECT_EQ(std::string(made[i]->getFullyQualifiedVorloTypeName()), std::string("zelmar.io.xml.dom.") + classes[i]);
    EXPECT_EQ(made[i]->getParentNode(), nullptr) << classes[i];
    EXPECT_EQ(made[i]->getOwnerDocument(), document.get()) << classes[i];
  }
}

TEST(DocumentFactories, RefuseBadNamesEachByItsOwnError) {
  const auto document = createDocument(u"r");
  EXPECT_XML_ERROR(document->createElement(u"a b"), "docCreateElemInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createElementNS(u"urn:x", u"a b"), "docCreateElemInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createElementNS(u"", u"p:e"), "docCreateElemNSNamespaceError", u"", u"p:e");
  EXPECT_XML_ERROR(document->createAttribute(u"a b"), "docCreateAttrInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createAttributeNS(u"urn:x", u"a b"), "docCreateAttrInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createAttributeNS(u"", u"p:a"), "docCreateAttrNSNamespaceError", u"", u"p:a");
  EXPECT_XML_ERROR(document->createEntity(u"a b"), "docCreateEntityInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createEntityReference(u"a b"), "docCreateEntityRefInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createNotation(u"a b"), "docCreateNotationInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createProcessingInstruction(u"a b", u""),
                   "docCreateProcessingInstructionInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createDocumentType(u"a b"), "docTypeInvalidCharError", u"a b");
  EXPECT_XML_ERROR(document->createDocumentType(u"a:", u"", u""), "docTypeNameError", u"a:");
}

TEST(DocumentFactories, NodesOutliveTheCallersShareOfTheDocument) {
  auto document = createDocument(u"r");
  const std::unique_ptr<Text> text(document->createTextNode(u"kept"));
  document.reset();
  EXPECT_EQ(text->getNodeValue(), u"kept");
  EXPECT_NE(text->getOwnerDocWrapper(), nullptr);
}

TEST(DocumentFinders, FindByIdAndLiveListsByName) {
  const auto document =
      parseString(u"<!DOCTYPE r [<!ATTLIST e id ID #IMPLIED>]><r xmlns:x='urn:x'><e id='one'/><x:e/></r>");
  const std::unique_ptr<Element> one(document->getElementById(u"one"));
  ASSERT_NE(one, nullptr);
  EXPECT_EQ(one->getNodeName(), u"e");
  EXPECT_EQ(document->getElementById(u"none"), nullptr);

  const std::unique_ptr<NodeList> plain(document->getElementsByTagName(u"e"));
  const std::unique_ptr<NodeList> named(document->getElementsByTagNameNS(u"urn:x", u"e"));
  EXPECT_EQ(plain->getLength(), 1);
  EXPECT_EQ(named->getLength(), 1);
  const std::unique_ptr<Element> root(document->getDocumentElement());
  const std::unique_ptr<Element> later(document->createElement(u"e"));
  root->appendChild(later.get());
  EXPECT_EQ(plain->getLength(), 2);
}

TEST(DocumentImport, CopiesNodesOfAnotherDocument) {
  const auto source = parseString(u"<s><deep>text</deep></s>");
  const auto target = createDocument(u"t");
  const std::unique_ptr<Element> element(source->getDocumentElement());
  const std::unique_ptr<Node> deep(target->importNode(element.get()));
  EXPECT_STREQ(deep->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Element");
  EXPECT_EQ(deep->getOwnerDocument(), target.get());
  EXPECT_EQ(deep->getParentNode(), nullptr);
  EXPECT_EQ(deep->getTextContent(), u"text");
  const std::unique_ptr<Node> shallow(target->importNodeBase(element.get(), false));
  EXPECT_FALSE(shallow->hasChildNodes());
  EXPECT_EQ(element->getOwnerDocument(), source.get());  // the source is untouched
}

TEST(DocumentImport, RefusesDocumentsAndDoctypes) {
  const auto source = parseString(u"<!DOCTYPE s><s/>");
  const auto target = createDocument(u"t");
  EXPECT_XML_ERROR(target->importNode(source.get()), "importNodeUnsupportedError", u"#document", u"DOCUMENT_NODE");
  const std::unique_ptr<DocumentType> doctype(source->getDoctype());
  EXPECT_XML_ERROR(target->importNode(doctype.get()), "importNodeUnsupportedError", u"s", u"DOCUMENT_TYPE_NODE");
  EXPECT_XML_ERROR(target->importNode(nullptr), "emptyNodeArgument");
}

TEST(DocumentRename, RenamesInPlaceOrMovesTheWrapper) {
  const auto document = parseString(u"<r a='1'><e/></r>");
  const std::unique_ptr<Element> root(document->getDocumentElement());
  const std::unique_ptr<Node> e(root->getFirstChild());
  const std::unique_ptr<Node> other(root->getFirstChild());
  EXPECT_EQ(document->renameNode(e.get(), u"urn:x", u"x:f"), e.get());
  EXPECT_EQ(e->getNodeName(), u"x:f");
  EXPECT_EQ(e->getNamespaceURI(), u"urn:x");
  const std::unique_ptr<NamedNodeMap> attributes(root->getAttributes());
  const std::unique_ptr<Node> a(attributes->getNamedItem(u"a"));
  document->renameNode(a.get(), u"", u"b");
  EXPECT_EQ(a->getNodeName(), u"b");
  EXPECT_EQ(a->getNodeValue(), u"1");
}

TEST(DocumentRename, TellsWhichNamespaceMistakeWasMeant) {
  const auto document = parseString(u"<r a='1'><e/></r>");
  const std::unique_ptr<Element> root(document->getDocumentElement());
  const std::unique_ptr<Node> e(root->getFirstChild());
  const std::unique_ptr<NamedNodeMap> attributes(root->getAttributes());
  const std::unique_ptr<Node> a(attributes->getNamedItem(u"a"));
  // Xerces has renamed the node already when it refuses the namespace, so
  // the node's name in the message is the new one.
  EXPECT_XML_ERROR(document->renameNode(e.get(), u"", u"p:f"), "renameNodeMissingNamespaceError", u"p:f", u"p:f");
  EXPECT_XML_ERROR(document->renameNode(e.get(), u"urn:x", u"xml:f"), "renameNodeNotXMLNamespaceError", u"xml:f",
                   u"xml:f");
  EXPECT_XML_ERROR(document->renameNode(a.get(), u"urn:x", u"xmlns:f"), "renameNodeInvalidAttrNamespaceError",
                   u"xmlns:f", u"xmlns:f");
  // For an element the xmlns condition does not apply: the generic error.
  try {
    document->renameNode(e.get(), u"urn:x", u"xmlns:f");
  } catch (const basis::except::IMsgIDException& error) {
    EXPECT_EQ(error.GetID(), "paxorel:xml_error:renameNodeError");
  }
  document->renameNode(e.get(), xmlNs, u"xml:f");  // the right namespaces are no mistake
  document->renameNode(a.get(), xmlnsNs, u"xmlns:f");
  EXPECT_EQ(a->getNodeName(), u"xmlns:f");
}

TEST(DocumentRename, RefusesForeignNodesAndDocuments) {
  const auto document = createDocument(u"r");
  const auto other = createDocument(u"o");
  const std::unique_ptr<Element> foreign(other->getDocumentElement());
  EXPECT_XML_ERROR(document->renameNode(foreign.get(), u"", u"n"), "renameNodeWrongDocumentError", u"o");
  const std::unique_ptr<Text> text(document->createTextNode(u"t"));
  EXPECT_XML_ERROR(document->renameNode(text.get(), u"", u"n"), "renameNodeUnsupportedError", u"#text",
                   u"TEXT_NODE");
  EXPECT_XML_ERROR(document->renameNode(nullptr, u"", u"n"), "emptyNodeArgument");
}

TEST(DocumentNormalize, JoinsTextAndReportsNothingOnAGoodDocument) {
  const auto document = createDocument(u"r");
  const std::unique_ptr<Element> root(document->getDocumentElement());
  const std::unique_ptr<Text> one(document->createTextNode(u"a")), two(document->createTextNode(u"b"));
  root->appendChild(one.get());
  root->appendChild(two.get());
  document->normalizeDocument();
  EXPECT_EQ(root->getLength(), 1);
  document->normalizeDocument();  // again: each call has its own collector
}

TEST(DocumentConfiguration, IsAViewOfTheDocumentsOptions) {
  const auto document = createDocument(u"r");
  const std::unique_ptr<DocumentConfiguration> one(document->getDOMConfig()), two(document->getDOMConfig());
  EXPECT_TRUE(one->getComments());
  one->setComments(false);
  EXPECT_FALSE(two->getComments());
  one->setCDATASections(false);
  EXPECT_FALSE(two->getCDATASections());
  one->setEntities(false);
  EXPECT_FALSE(two->getEntities());
  // "Namespaces" is the option infoset, not namespaces: Xerces cannot switch
  // infoset on, and switching it off leaves namespaces as they were.
  auto* xercesConfig = document->getImpl()->getDOMConfig();
  ASSERT_NE(xercesConfig->getParameter(xercesc::XMLUni::fgDOMNamespaces), nullptr);
  EXPECT_THROW(one->setNamespaces(true), xercesc::DOMException);
  one->setNamespaces(false);
  EXPECT_FALSE(one->getNamespaces());
  EXPECT_NE(xercesConfig->getParameter(xercesc::XMLUni::fgDOMNamespaces), nullptr);
  EXPECT_STREQ(one->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.DocumentConfiguration");
}
