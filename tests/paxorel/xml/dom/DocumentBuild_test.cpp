// Document: constructors, factories, finders and document-level operations.
#include "support/expectations.hpp"

using namespace paxorel::xml;
using namespace testing_support;

TEST(DocumentConstruction, BuildsARootAndADoctypeAndLeavesAbsentPartsNullOrEmpty) {
  const auto plain = createDocument(u"root");
  EXPECT_EQ(own(plain->getDocumentElement())->getNodeName(), u"root");
  EXPECT_EQ(plain->getDoctype(), nullptr);
  EXPECT_EQ(createDocument()->getDocumentElement(), nullptr);
  EXPECT_EQ(plain->getInputEncoding() + plain->getDocumentURI() + plain->getXmlEncoding(), u"");
  EXPECT_EQ(own(createDocument(u"urn:x", u"x:root")->getDocumentElement())->getNamespaceURI(), u"urn:x");

  const auto withDoctype = DocumentRegistry::shareWithCaller(new Document(u"root", u"dt", u"-//P//EN", u"r.dtd"));
  const auto doctype = own(withDoctype->getDoctype());
  EXPECT_EQ(doctype->getName() + u"|" + doctype->getPublicId() + u"|" + doctype->getSystemId(), u"dt|-//P//EN|r.dtd");
  const auto both = DocumentRegistry::shareWithCaller(new Document(u"urn:x", u"x:r", u"x:r", u"", u""));
  EXPECT_EQ(own(both->getDocumentElement())->getNamespaceURI(), u"urn:x");
  EXPECT_EQ(own(both->getDoctype())->getName(), u"x:r");
}

TEST(DocumentConstruction, EachConstructorHasItsOwnErrorsAndLeavesTheRegistryAlone) {
  const std::size_t before = registered();
  EXPECT_XML_ERROR(createDocument(u"a b"), "docInvalidCharError", u"a b");
  EXPECT_XML_ERROR(createDocument(u"urn:x", u"a b"), "docInvalidNSCharError", u"urn:x", u"a b");
  // The namespace error names the name first, the character error the namespace.
  EXPECT_XML_ERROR(createDocument(u"", u"p:r"), "docElemNameNSError", u"p:r", u"");
  EXPECT_XML_ERROR(createDocument(u"p:"), "docElemNameError", u"p:");
  EXPECT_XML_ERROR(new Document(u"r", u"d d", u"", u""), "docTypeInvalidCharError", u"d d");
  EXPECT_XML_ERROR(new Document(u"r", u"d:", u"", u""), "docTypeNameError", u"d:");
  EXPECT_XML_ERROR(new Document(u"a b", u"d", u"", u""), "docInvalidCharError", u"a b");
  EXPECT_XML_ERROR(new Document(u"urn:x", u"a b", u"d", u"", u""), "docInvalidNSCharError", u"urn:x", u"a b");
  EXPECT_XML_ERROR(new Document(u"", u"p:r", u"d", u"", u""), "docElemNameNSError", u"p:r", u"");
  EXPECT_EQ(registered(), before);
}

TEST(DocumentFactories, MakeNodesOfTheirDocumentAndRefuseBadNamesEachByItsOwnError) {
  const auto document = createDocument(u"r");
  const auto doctype = own(document->createDocumentType(u"dt", u"pub", u"sys"));
  EXPECT_EQ(doctype->getPublicId() + u"|" + doctype->getSystemId(), u"pub|sys");
  EXPECT_EQ(doctype->getOwnerDocument(), document.get());
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

TEST(DocumentImport, FindsByIdCopiesNodesOfAnotherDocumentAndRefusesDocumentsAndDoctypes) {
  const auto source = parseString(u"<!DOCTYPE s [<!ATTLIST deep id ID #IMPLIED>]><s><deep id='one'>text</deep></s>");
  const auto target = createDocument(u"t");
  const auto element = own(source->getElementById(u"one"));
  EXPECT_EQ(source->getElementById(u"none"), nullptr);
  const auto deep = own<Element>(target->importNode(element.get()));
  EXPECT_EQ(deep->getOwnerDocument(), target.get());
  EXPECT_EQ(deep->getTextContent(), u"text");
  EXPECT_FALSE(own(target->importNodeBase(element.get(), false))->hasChildNodes());

  EXPECT_XML_ERROR(target->importNode(source.get()), "importNodeUnsupportedError", u"#document", u"DOCUMENT_NODE");
  EXPECT_XML_ERROR(target->importNode(own(source->getDoctype()).get()), "importNodeUnsupportedError", u"s",
                   u"DOCUMENT_TYPE_NODE");
  EXPECT_XML_ERROR(target->importNode(nullptr), "emptyNodeArgument");
}

TEST(DocumentRename, RenamesThroughTheWrapperPassedInAndTellsWhichMistakeWasMeant) {
  const auto document = parseString(u"<r a='1'/>");
  const auto root = own(document->getDocumentElement());
  const auto e = own(document->createElement(u"e"));  // without a namespace: Xerces renames it into a new node
  root->appendChild(e.get());
  e->appendChild(own(document->createTextNode(u"t")).get());
  EXPECT_EQ(e->getLength(), 1);  // the wrapper now holds the old node's child list
  const auto a = own(root->getAttributeNode(u"a"));
  EXPECT_EQ(document->renameNode(e.get(), u"urn:x", u"x:f"), e.get());
  EXPECT_EQ(e->getNodeName() + u" " + e->getNamespaceURI(), u"x:f urn:x");
  EXPECT_EQ(e->getLength(), 1);  // the new node's list, not the old one's, which is empty now
  EXPECT_EQ(own(e->item(0))->getNodeValue(), u"t");
  EXPECT_TRUE(own(root->getFirstChild())->isSameNode(e.get()));
  document->renameNode(a.get(), u"", u"b");
  EXPECT_EQ(a->getNodeName() + u"=" + a->getNodeValue(), u"b=1");

  // Xerces has renamed the node already when it refuses the namespace, so
  // the node's name in the message is the new one.
  EXPECT_XML_ERROR(document->renameNode(e.get(), u"", u"p:f"), "renameNodeMissingNamespaceError", u"p:f", u"p:f");
  EXPECT_XML_ERROR(document->renameNode(e.get(), u"urn:x", u"xml:f"), "renameNodeNotXMLNamespaceError", u"xml:f",
                   u"xml:f");
  EXPECT_XML_ERROR(document->renameNode(a.get(), u"urn:x", u"xmlns:f"), "renameNodeInvalidAttrNamespaceError",
                   u"xmlns:f", u"xmlns:f");
  // For an element the xmlns condition does not apply: the generic error.
  try {
    document->renameNode(e.get(), u"urn:x", u"xmlns:b:c");
    ADD_FAILURE();
  } catch (const basis::except::IMsgIDException& error) {
    EXPECT_EQ(error.GetID(), "paxorel:xml_error:renameNodeError");
  }
  // The right namespaces are no mistake.
  document->renameNode(e.get(), u"http://www.w3.org/XML/1998/namespace", u"xml:f");
  document->renameNode(a.get(), u"http://www.w3.org/2000/xmlns/", u"xmlns:f");
  EXPECT_EQ(a->getNodeName(), u"xmlns:f");
  // Nodes of another document, and of a kind that has no name to change.
  EXPECT_XML_ERROR(document->renameNode(own(createDocument(u"o")->getDocumentElement()).get(), u"", u"n"),
                   "renameNodeWrongDocumentError", u"o");
  EXPECT_XML_ERROR(document->renameNode(own(document->createTextNode(u"t")).get(), u"", u"n"),
                   "renameNodeUnsupportedError", u"#text", u"TEXT_NODE");
  EXPECT_XML_ERROR(document->renameNode(nullptr, u"", u"n"), "emptyNodeArgument");
}

TEST(DocumentOptions, NormalizeReportsNothingOnAGoodDocumentAndTheConfigurationIsAView) {
  const auto document = parseString(u"<r>a</r>");
  const auto root = own(document->getDocumentElement());
  root->appendChild(own(document->createTextNode(u"b")).get());
  document->normalizeDocument();
  document->normalizeDocument();  // again: each call has its own collector
  EXPECT_EQ(root->getLength(), 1);

  // The configuration is a view of the document's options.
  const auto one = own(document->getDOMConfig()), two = own(document->getDOMConfig());
  one->setComments(false);
  EXPECT_FALSE(two->getComments());
}
