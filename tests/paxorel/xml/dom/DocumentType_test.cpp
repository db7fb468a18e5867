// Document types, entities, notations and processing instructions; above all,
// the lifetime of a document type made outside any document.
#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#endif

using namespace paxorel::xml;

namespace {

template <class T>
std::unique_ptr<T> as(Node* node) { return std::unique_ptr<T>(&dynamic_cast<T&>(*node)); }

}  // namespace

TEST(DocumentType, ReadsTheDeclarationsOfAParsedDoctype) {
  const auto document = parseString(
      u"<!DOCTYPE r [<!ENTITY pi '<?target some data?>'><!NOTATION gif SYSTEM 'view'>"
      u"<!ENTITY picture SYSTEM 'p.gif' NDATA gif>]><r>&pi;</r>");
  const auto doctype = as<DocumentType>(document->getFirstChild());
  EXPECT_EQ(doctype->getPublicId() + doctype->getSystemId(), u"");  // absent: empty
  const auto picture = as<Entity>(std::unique_ptr<NamedNodeMap>(doctype->getEntities())->getNamedItem(u"picture"));
  EXPECT_EQ(picture->getNotationName() + u" " + picture->getSystemId(), u"gif p.gif");
  EXPECT_EQ(std::unique_ptr<NamedNodeMap>(doctype->getNotations())->getLength(), 1);

  // Inside an entity reference a processing instruction is read-only, and
  // setData lets Xerces's exception through.
  const std::unique_ptr<Node> root(document->getLastChild());
  const auto instruction = as<ProcessingInstruction>(as<EntityReference>(root->getFirstChild())->getFirstChild());
  EXPECT_EQ(instruction->getTarget() + u"|" + instruction->getData(), u"target|some data");
  EXPECT_THROW(instruction->setData(u"changed"), xercesc::DOMException);
}

TEST(DocumentType, AConstructedDoctypeHasNoDocumentAndPassesFailuresThrough) {
  const DocumentType doctype(u"html", u"-//W3C//DTD XHTML 1.0 Strict//EN", u"strict.dtd");
  EXPECT_EQ(doctype.getName() + u" " + doctype.getSystemId(), u"html strict.dtd");
  EXPECT_EQ(doctype.getOwnerDocument(), nullptr);
  EXPECT_EQ(std::unique_ptr<NamedNodeMap>(doctype.getEntities())->getLength(), 0);
  EXPECT_THROW(DocumentType(u"not a name", u"", u""), xercesc::DOMException);
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

TEST(DocumentType, AnAdoptedDoctypeIsLeftToItsDocument) {
  auto document = createDocument();
  {
    const DocumentType doctype(u"r", u"", u"");
    document->getImpl()->appendChild(doctype.getImpl());  // adopted behind the wrapper's back
  }
  EXPECT_EQ(as<DocumentType>(document->getFirstChild())->getName(), u"r");

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
