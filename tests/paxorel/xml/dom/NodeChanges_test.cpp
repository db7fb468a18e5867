// Node: the operations that change the tree, each with its own error mapping.
#include "support/expectations.hpp"

using namespace paxorel::xml;
using namespace testing_support;

namespace {

struct NodeChangesTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(u"<r><a/><b/></r>");
  std::unique_ptr<Element> root{document->getDocumentElement()};
  std::unique_ptr<Node> a{root->child(1)}, b{root->child(2)};
  std::unique_ptr<Element> fresh{document->createElement(u"fresh")};

  // A document whose entity reference holds read-only children.
  std::shared_ptr<Document> withEntity = parseString(u"<!DOCTYPE r [<!ENTITY e '<x>t</x>'>]><r>&e;</r>");
  std::unique_ptr<Node> reference{own(withEntity->getDocumentElement())->getFirstChild()};
  std::unique_ptr<Node> readOnly{reference->getFirstChild()};

  ustring names() {
    ustring all;
    for (Node* child : root->getChildren()) all += own(child)->getNodeName() + u" ";
    return all;
  }
};

}  // namespace

TEST_F(NodeChangesTest, ChildOperationsReturnTheWrapperPassedIn) {
  EXPECT_EQ(root->appendChild(fresh.get()), fresh.get());
  EXPECT_EQ(names(), u"a b fresh ");
  EXPECT_EQ(root->insertBefore(fresh.get(), a.get()), fresh.get());
  EXPECT_EQ(names(), u"fresh a b ");
  EXPECT_EQ(root->replaceChild(fresh.get(), b.get()), fresh.get());  // not the node replaced
  EXPECT_EQ(names(), u"a fresh ");
  EXPECT_EQ(b->getParentNode(), nullptr);
  EXPECT_EQ(root->removeChild(a.get()), a.get());
  EXPECT_EQ(names(), u"fresh ");
  root->appendChild(a.get());  // a removed node can go back in
  EXPECT_EQ(names(), u"fresh a ");
}

TEST_F(NodeChangesTest, NullArgumentsAreRefusedBeforeXercesIsAsked) {
  EXPECT_XML_ERROR(root->appendChild(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->insertBefore(fresh.get(), nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->insertBefore(nullptr, a.get()), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->replaceChild(nullptr, a.get()), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->replaceChild(fresh.get(), nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(root->removeChild(nullptr), "emptyNodeArgument");
  EXPECT_EQ(names(), u"a b ");
}

TEST_F(NodeChangesTest, HierarchyErrorsNameTheTypesInTheirOwnOrder) {
  const std::unique_ptr<Attr> attribute(document->createAttribute(u"at"));
  EXPECT_XML_ERROR(root->appendChild(attribute.get()), "nodeAppendChildHierarchyError", u"at", u"ATTRIBUTE_NODE",
                   u"ELEMENT_NODE");
  EXPECT_XML_ERROR(root->insertBefore(attribute.get(), a.get()), "nodeInsertBeforeHierarchyError", u"at",
                   u"ELEMENT_NODE", u"ATTRIBUTE_NODE");
  EXPECT_XML_ERROR(root->replaceChild(attribute.get(), a.get()), "nodeReplaceChildHierarchyError", u"at",
                   u"ELEMENT_NODE", u"ATTRIBUTE_NODE");
  EXPECT_XML_ERROR(document->appendChild(fresh.get()), "nodeAppendChildHierarchyError", u"fresh", u"ELEMENT_NODE",
                   u"DOCUMENT_NODE");  // one root element only
  // An ancestor cannot become a child...
  EXPECT_XML_ERROR(a->appendChild(root.get()), "nodeAppendChildHierarchyError", u"r", u"ELEMENT_NODE",
                   u"ELEMENT_NODE");
  // ...nor a node its own, where Xerces itself would build a cycle.
  EXPECT_XML_ERROR(root->appendChild(root.get()), "nodeAppendChildHierarchyError", u"r", u"ELEMENT_NODE",
                   u"ELEMENT_NODE");
  EXPECT_XML_ERROR(root->replaceChild(root.get(), a.get()), "nodeReplaceChildHierarchyError", u"r",
                   u"ELEMENT_NODE", u"ELEMENT_NODE");
  EXPECT_XML_ERROR(root->insertBefore(own(document->getDocumentElement()).get(), a.get()),
                   "nodeInsertBeforeSelfError", u"r");
  EXPECT_EQ(names(), u"a b ");
  EXPECT_EQ(root->getParentNode(), document.get());
}

TEST_F(NodeChangesTest, NotFoundNamesTheReferenceRemoveNamesTheChildTwiceAndOtherDocumentsAreRefused) {
  EXPECT_XML_ERROR(a->insertBefore(fresh.get(), b.get()), "nodeInsertBeforeNotFoundError", u"fresh", u"b");
  EXPECT_XML_ERROR(a->replaceChild(fresh.get(), b.get()), "nodeReplaceChildNotFoundError", u"fresh", u"b");
  EXPECT_XML_ERROR(a->removeChild(b.get()), "nodeRemoveChildNotFoundError", u"b", u"b");
  // Nodes of another document are not imported silently.
  const std::unique_ptr<Element> foreign(withEntity->createElement(u"foreign"));
  EXPECT_XML_ERROR(root->appendChild(foreign.get()), "nodeAppendChildWrongDocumentError", u"foreign");
  EXPECT_XML_ERROR(root->insertBefore(foreign.get(), a.get()), "nodeInsertBeforeWrongDocumentError", u"foreign");
  EXPECT_XML_ERROR(root->replaceChild(foreign.get(), a.get()), "nodeReplaceChildWrongDocumentError", u"foreign");
}

TEST_F(NodeChangesTest, ReadOnlyParentsInsideEntityReferences) {
  const std::unique_ptr<Element> y(withEntity->createElement(u"y"));
  EXPECT_XML_ERROR(readOnly->appendChild(y.get()), "nodeAppendChildReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->appendChild(y.get()), "nodeAppendChildReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->insertBefore(y.get(), readOnly.get()), "nodeInsertBeforeReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->replaceChild(y.get(), readOnly.get()), "nodeReplaceChildReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->removeChild(readOnly.get()), "nodeRemoveChildReadOnlyError", u"x");
  EXPECT_XML_ERROR(readOnly->setTextContent(u"new"), "nodeSetTextContentNoModError", u"new");
  EXPECT_THROW(own(readOnly->getFirstChild())->setNodeValue(u"v"), xercesc::DOMException);  // let through
}

TEST_F(NodeChangesTest, SetPrefixMapsThreeRefusals) {
  const std::unique_ptr<Element> ns(document->createElementNS(u"urn:x", u"p:e"));
  ns->setPrefix(u"q");
  EXPECT_EQ(ns->getNodeName(), u"q:e");
  EXPECT_XML_ERROR(ns->setPrefix(u"1 2"), "nodeSetPrefixInvalidCharError", u"1 2");
  EXPECT_XML_ERROR(ns->setPrefix(u"xml"), "nodeSetPrefixNamespaceError", u"xml");
  EXPECT_XML_ERROR(readOnly->setPrefix(u"p"), "nodeSetPrefixNoModError", u"p");
}

TEST(NodeChanges, AppendChildAloneGivesADoctypeOfNoDocumentItsDocument) {
  const auto empty = createDocument();
  DocumentType doctype(u"r", u"pub", u"sys.dtd");
  EXPECT_EQ(doctype.getPublicId() + u"|" + doctype.getSystemId(), u"pub|sys.dtd");
  EXPECT_EQ(doctype.getOwnerDocument(), nullptr);
  empty->appendChild(&doctype);
  EXPECT_EQ(doctype.getOwnerDocument(), empty.get());
  EXPECT_EQ(doctype.getParentNode(), empty.get());
  EXPECT_TRUE(own(empty->getDoctype())->isSameNode(&doctype));

  // By insertBefore it enters the tree, but its wrapper learns of no document.
  const auto other = createDocument(u"root");
  DocumentType inserted(u"root", u"", u"sys.dtd");
  other->insertBefore(&inserted, own(other->getFirstChild()).get());
  EXPECT_EQ(inserted.getOwnerDocument(), nullptr);
  EXPECT_EQ(inserted.getParentNode(), nullptr);
  EXPECT_EQ(other->getLength(), 2);

  // The child goes in; then a parent of no document has none to give the
  // doctype, which appendChild reports as an unknown failure, the child staying.
  const auto target = createDocument();
  Node bare(target->getImpl(), nullptr);
  DocumentType third(u"d", u"", u"sys.dtd");
  EXPECT_XML_ERROR(bare.appendChild(&third), "nodeAppendChildUnknownError", u"d");
  EXPECT_EQ(target->getLength(), 1);
}

TEST_F(NodeChangesTest, CloneNodeGivesAParentlessCopyOfTheRightClass) {
  const auto copy = own<Element>(root->cloneNode(true));
  EXPECT_EQ(copy->getParentNode(), nullptr);
  EXPECT_EQ(copy->getOwnerDocument(), document.get());
  EXPECT_EQ(copy->getLength(), 2);
  EXPECT_EQ(document->cloneNode(true), document.get());  // a document's copy is itself
}
