// What keeps a document alive: the caller's pointer, the registry, wrappers;
// above all, the lifetime of a document type made outside any document.
#include "support/expectations.hpp"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#endif

using namespace paxorel::xml;
using namespace testing_support;

namespace {
bool isRegistered(const Document* document) { return DocumentRegistry::getInstance()->entries().count(document) == 1; }
}  // namespace

TEST(Document, WrappersOutliveTheCallersShareAndTheTreeGoesWithTheLast) {
  auto document = parseString(u"<root><a/></root>");
  auto root = own(document->getFirstChild());
  const std::weak_ptr<Document> watch = root->getOwnerDocWrapper();
  document.reset();

  // Held: no entry, but the element still reads and changes the tree.
  ASSERT_FALSE(watch.expired());
  EXPECT_FALSE(isRegistered(watch.lock().get()));
  static_cast<xercesc::DOMElement*>(root->getImpl())->setAttribute(u"changed", u"yes");
  auto a = own(root->getFirstChild());
  EXPECT_EQ(a->getNodeName(), u"a");

  root.reset();  // the other wrapper still holds the document: it stays
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(own<Element>(a->getParentNode())->getAttribute(u"changed"), u"yes");
  std::unique_ptr<TypeInfo> info(static_cast<Element&>(*a).getSchemaTypeInfo());
  a.reset();  // a type info, too, holds the document
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(info->getTypeName(), u"");  // no schema, no name
  info.reset();
  EXPECT_TRUE(watch.expired());
}

TEST(Document, GetOwnerDocumentBringsAHeldDocumentBack) {
  auto document = parseString(u"<root/>");
  const auto root = own(document->getFirstChild());
  const std::weak_ptr<Document> watch = root->getOwnerDocWrapper();
  document.reset();

  // In the state Held the document wrapper that navigation gives has no entry.
  Node* parent = root->getParentNode();
  EXPECT_EQ(parent, watch.lock().get());
  EXPECT_THROW(parent->getOwnerDocWrapper(), std::out_of_range);  // no registry pointer without an entry

  Document* back = root->getOwnerDocument();
  EXPECT_EQ(back, parent);
  EXPECT_TRUE(isRegistered(back));
  EXPECT_EQ(back->getOwnerDocWrapper().get(), back);
  // The entry stays until exit; drop it here to leave the registry as found.
  DocumentRegistry::getInstance()->unregisterDocument(back);
}

TEST(Document, ADocumentOverNoTreeFailsClearly) {
  // It can be made and dropped, and reading it is a clear error.
  const auto none = DocumentRegistry::shareWithCaller(new Document(static_cast<xercesc::DOMDocument*>(nullptr)));
  EXPECT_XML_ERROR(none->getFirstChild(), "emptyNodeArgument");
}

// Two independent shares would let the first one dropped take the entry,
// and the document with it, from under the second (found by fuzzing).
TEST(DocumentRegistry, TheCallersPointerIsTheEntryAndSharingAgainGivesTheSameShare) {
  const std::size_t before = registered();
  auto first = parseString(u"<r/>");
  Document* document = first.get();
  EXPECT_EQ(document->getOwnerDocWrapper(), first);
  EXPECT_EQ(document->getOwnerDocument(), document);
  auto second = DocumentRegistry::shareWithCaller(document);
  EXPECT_FALSE(first.owner_before(second) || second.owner_before(first));
  first.reset();
  EXPECT_TRUE(isRegistered(document));
  EXPECT_EQ(own(second->getDocumentElement())->getNodeName(), u"r");
  second.reset();
  EXPECT_EQ(registered(), before);
  EXPECT_EQ(DocumentRegistry::shareWithCaller(nullptr), nullptr);
  EXPECT_THROW(DocumentRegistry::shareWithCaller(document), std::out_of_range);  // no entry: gone
  DocumentRegistry::getInstance()->unregisterDocument(nullptr);                   // an absent key is ignored
}

// LeakSanitizer would miss a constructed doctype that is never released
// (Xerces's static helper document, which holds its strings, still points at
// it), so AddressSanitizer's poisoning of freed memory tells.
TEST(DocumentType, AConstructedDoctypeIsReleasedWithTheLastWrapperMadeFromIt) {
  std::weak_ptr<Document> owner;  // shares the joint ownership of the node
  [[maybe_unused]] const xercesc::DOMNode* node = nullptr;  // checked under AddressSanitizer
  std::unique_ptr<NamedNodeMap> entities;
  std::unique_ptr<Node> plain;
  {
    const DocumentType doctype(u"r", u"", u"");
    owner = doctype.getOwnerDocWrapper();
    node = doctype.getImpl();
    entities.reset(doctype.getEntities());
    plain.reset(doctype.makeNodeWrapper(doctype.getImpl()));
  }
  EXPECT_EQ(plain->getNodeName(), u"r");  // a use after free, were the node released
  plain.reset();
  EXPECT_FALSE(owner.expired());
  entities.reset();
  EXPECT_TRUE(owner.expired());
#if defined(__SANITIZE_ADDRESS__)
  EXPECT_TRUE(__asan_address_is_poisoned(node));
#endif
}

// Xerces dereferences the missing document for both (found by fuzzing).
TEST(DocumentType, AConstructedDoctypeHasNoTextAndCopiesIntoAnotherOrphan) {
  const DocumentType doctype(u"r", u"-//P//EN", u"r.dtd");
  EXPECT_EQ(doctype.getTextContent(), u"");
  const auto copy = own<DocumentType>(doctype.cloneNode(true));
  EXPECT_FALSE(copy->isSameNode(&doctype));
  EXPECT_EQ(copy->getName() + copy->getPublicId() + copy->getSystemId(), u"r-//P//ENr.dtd");
  EXPECT_EQ(copy->getOwnerDocument(), nullptr);
  const auto document = createDocument();
  document->appendChild(copy.get());  // a copy is adopted like the original
  EXPECT_EQ(own<DocumentType>(document->getDoctype())->getName(), u"r");
}

TEST(DocumentType, AnAdoptedDoctypeIsLeftToItsDocument) {
  EXPECT_THROW(DocumentType(u"not a name", u"", u""), xercesc::DOMException);  // let through
  auto document = createDocument();
  {
    const DocumentType doctype(u"r", u"", u"");
    document->getImpl()->appendChild(doctype.getImpl());  // adopted behind the wrapper's back
  }
  EXPECT_EQ(own<DocumentType>(document->getFirstChild())->getName(), u"r");

  // Wrappers made before the adoption may outlive the adopting document.
  std::unique_ptr<NamedNodeMap> entities;
  {
    DocumentType doctype(u"s", u"", u"");
    entities.reset(doctype.getEntities());
    const auto other = createDocument();
    other->appendChild(&doctype);
  }
  entities.reset();  // the node went with its document: nothing to free here
}
