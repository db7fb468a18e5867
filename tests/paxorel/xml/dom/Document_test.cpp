// What keeps a document alive: the caller's pointer, the registry, wrappers.
#include <paxorel/xml.hpp>

#include <paxorel/xml/core/XercesGuard.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

using namespace paxorel::xml;

namespace {

std::size_t registered() { return DocumentRegistry::getInstance()->entries().size(); }

bool isRegistered(const Document* document) {
  return DocumentRegistry::getInstance()->entries().count(document) == 1;
}

}  // namespace

TEST(Document, AnEmptyDocumentHasNoRootAndNoDoctype) {
  const auto document = createDocument();
  EXPECT_EQ(document->getFirstChild(), nullptr);
  EXPECT_EQ(document->getLength(), 0);
  EXPECT_STREQ(document->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Document");
  EXPECT_EQ(document->getNodeType(), Node::DOCUMENT_NODE);
  EXPECT_NE(document->getImpl(), nullptr);
}

TEST(Document, TheCallersPointerStandsForTheRegistryEntry) {
  const std::size_t before = registered();
  auto document = createDocument();
  const Document* raw = document.get();
  EXPECT_TRUE(isRegistered(raw));
  EXPECT_EQ(document->getOwnerDocWrapper().get(), raw);
  std::weak_ptr<Document> watch = document->getOwnerDocWrapper();
  document.reset();
  EXPECT_EQ(registered(), before);
  EXPECT_TRUE(watch.expired());
}

TEST(Document, AWrapperOutlivesTheCallersShareAndKeepsTheTree) {
  auto document = parseString(u"<root><a/></root>");
  std::unique_ptr<Node> root(document->getFirstChild());
  const std::weak_ptr<Document> watch = root->getOwnerDocWrapper();
  document.reset();

  // Held: no entry, but the element still reads and changes the tree.
  ASSERT_FALSE(watch.expired());
  EXPECT_FALSE(isRegistered(watch.lock().get()));
  EXPECT_EQ(root->getNodeName(), u"root");
  xercesc::DOMElement* element = static_cast<xercesc::DOMElement*>(root->getImpl());
  element->setAttribute(u"changed", u"yes");
  const std::unique_ptr<Node> a(root->getFirstChild());
  EXPECT_EQ(a->getNodeName(), u"a");

  root.reset();  // the wrapper still holds the document: it stays
  ASSERT_FALSE(watch.expired());
  const std::unique_ptr<Node> again(a->getParentNode());
  EXPECT_EQ(static_cast<xercesc::DOMElement*>(again->getImpl())->getAttribute(u"changed"), std::u16string(u"yes"));
}

TEST(Document, TheTreeGoesWithTheLastWrapper) {
  auto document = parseString(u"<root/>");
  std::unique_ptr<Node> root(document->getFirstChild());
  const std::weak_ptr<Document> watch = root->getOwnerDocWrapper();
  document.reset();
  EXPECT_FALSE(watch.expired());
  root.reset();
  EXPECT_TRUE(watch.expired());
}

TEST(Document, GetOwnerDocumentBringsAHeldDocumentBack) {
  auto document = parseString(u"<root/>");
  const std::unique_ptr<Node> root(document->getFirstChild());
  std::weak_ptr<Document> watch = root->getOwnerDocWrapper();
  document.reset();

  // In the state Held the document wrapper that navigation gives has no entry.
  Node* parent = root->getParentNode();
  EXPECT_EQ(parent, watch.lock().get());
  try {
    parent->getOwnerDocWrapper();
    FAIL() << "an unregistered document has no registry pointer";
  } catch (const std::out_of_range& e) {
    EXPECT_STREQ(e.what(), "map::at");
  }

  Document* back = root->getOwnerDocument();
  EXPECT_EQ(back, parent);
  EXPECT_TRUE(isRegistered(back));
  EXPECT_EQ(back->getOwnerDocWrapper().get(), back);
  // The entry stays until exit; drop it here to leave the registry as found.
  DocumentRegistry::getInstance()->unregisterDocument(back);
}

TEST(Document, GetOwnerDocumentOfADocumentIsItself) {
  const auto document = createDocument();
  EXPECT_EQ(document->getOwnerDocument(), document.get());
  EXPECT_EQ(document->getParentNode(), nullptr);
}

TEST(Document, ADocumentWithoutATreeFailsClearly) {
  // A document over no tree can be made and dropped; reading it is a clear error.
  auto* document = new Document(static_cast<xercesc::DOMDocument*>(nullptr));
  const auto shared = DocumentRegistry::shareWithCaller(document);
  EXPECT_EQ(shared->getImpl(), nullptr);
  EXPECT_XML_ERROR(shared->getFirstChild(), "emptyNodeArgument");
  EXPECT_XML_ERROR(shared->getLength(), "emptyNodeArgument");
}

TEST(Document, AdoptsATreeMadeWithXerces) {
  xercesc::DOMDocument* tree = lsImplementation()->createDocument(u"urn:x", u"x:top", nullptr);
  const auto document = DocumentRegistry::shareWithCaller(new Document(tree));
  EXPECT_EQ(document->getImpl(), tree);
  const std::unique_ptr<Node> top(document->getFirstChild());
  EXPECT_EQ(top->getLocalName(), u"top");
  EXPECT_EQ(top->getNamespaceURI(), u"urn:x");
}

TEST(DocumentRegistry, KeepsTheFirstEntryAndIgnoresAbsentKeys) {
  const auto document = createDocument();
  const auto registry = DocumentRegistry::getInstance();
  const auto entry = registry->at(document.get());
  const std::size_t before = registry->entries().size();
  registry->registerDocument(entry);
  EXPECT_EQ(registry->entries().size(), before);
  registry->unregisterDocument(nullptr);
  EXPECT_EQ(registry->entries().size(), before);
  EXPECT_THROW(registry->at(nullptr), std::out_of_range);
}

TEST(DocumentRegistry, IsOneObject) {
  EXPECT_EQ(DocumentRegistry::getInstance(), DocumentRegistry::getInstance());
}
