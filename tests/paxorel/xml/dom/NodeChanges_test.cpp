// Node: the operations that change the tree, each with its own error mapping.
#include <paxorel/xml.hpp>

#include "support/expectations.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

using namespace paxorel::xml;

namespace {

struct NodeChangesTest : ::testing::Test {
  std::shared_ptr<Document> document = parseString(u"<r><a/><b/></r>");
  std::unique_ptr<Element> root{document->getDocumentElement()};
  std::unique_ptr<Node> a{root->child(1)}, b{root->child(2)};
  std::unique_ptr<Element> fresh{document->createElement(u"fresh")};

  // A document whose entity reference holds read-only children.
  std::shared_ptr<Document> withEntity = parseString(u"<!DOCTYPE r [<!ENTITY e '<x/>'>]><r>&e;</r>");
  std::unique_ptr<Element> entityRoot{withEntity->getDocumentElement()};
  std::unique_ptr<Node> reference{entityRoot->getFirstChild()};
  std::unique_ptr<Node> readOnly{reference->getFirstChild()};

  ustring names() {
    ustring all;
    for (Node* child : root->getChildren()) {
      all += child->getNodeName() + u" ";
      delete child;
    }
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
  EXPECT_EQ(b->getNodeName(), u"b");  // out of the tree, still readable
  EXPECT_EQ(b->getParentNode(), nullptr);
  EXPECT_EQ(root->removeChild(a.get()), a.get());
  EXPECT_EQ(names(), u"fresh ");
  EXPECT_EQ(a->getParentNode(), nullptr);
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
  // An ancestor cannot become a child.
  EXPECT_XML_ERROR(a->appendChild(root.get()), "nodeAppendChildHierarchyError", u"r", u"ELEMENT_NODE",
                   u"ELEMENT_NODE");
}

TEST_F(NodeChangesTest, ANodeIsNeverItsOwnChild) {
  // Xerces itself would build a cycle here.
  EXPECT_XML_ERROR(root->appendChild(root.get()), "nodeAppendChildHierarchyError", u"r", u"ELEMENT_NODE",
                   u"ELEMENT_NODE");
  EXPECT_XML_ERROR(fresh->appendChild(fresh.get()), "nodeAppendChildHierarchyError", u"fresh", u"ELEMENT_NODE",
                   u"ELEMENT_NODE");
  EXPECT_XML_ERROR(root->replaceChild(root.get(), a.get()), "nodeReplaceChildHierarchyError", u"r",
                   u"ELEMENT_NODE", u"ELEMENT_NODE");
  const std::unique_ptr<Node> sameRoot(document->getDocumentElement());
  EXPECT_XML_ERROR(root->insertBefore(sameRoot.get(), a.get()), "nodeInsertBeforeSelfError", u"r");
  EXPECT_EQ(names(), u"a b ");
  EXPECT_EQ(root->getParentNode(), document.get());
}

TEST_F(NodeChangesTest, NotFoundNamesTheReferenceAndRemoveNamesTheChildTwice) {
  EXPECT_XML_ERROR(a->insertBefore(fresh.get(), b.get()), "nodeInsertBeforeNotFoundError", u"fresh", u"b");
  EXPECT_XML_ERROR(a->replaceChild(fresh.get(), b.get()), "nodeReplaceChildNotFoundError", u"fresh", u"b");
  EXPECT_XML_ERROR(a->removeChild(b.get()), "nodeRemoveChildNotFoundError", u"b", u"b");
  EXPECT_XML_ERROR(root->removeChild(fresh.get()), "nodeRemoveChildNotFoundError", u"fresh", u"fresh");
}

TEST_F(NodeChangesTest, NodesOfAnotherDocumentAreNotImportedSilently) {
  const std::unique_ptr<Element> foreign(withEntity->createElement(u"foreign"));
  EXPECT_XML_ERROR(root->appendChild(foreign.get()), "nodeAppendChildWrongDocumentError", u"foreign");
  EXPECT_XML_ERROR(root->insertBefore(foreign.get(), a.get()), "nodeInsertBeforeWrongDocumentError", u"foreign");
  EXPECT_XML_ERROR(root->replaceChild(foreign.get(), a.get()), "nodeReplaceChildWrongDocumentError", u"foreign");
}

TEST_F(NodeChangesTest, ReadOnlyParentsInsideEntityReferences) {
  const std::unique_ptr<Element> x(withEntity->createElement(u"y"));
  EXPECT_XML_ERROR(readOnly->appendChild(x.get()), "nodeAppendChildReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->appendChild(x.get()), "nodeAppendChildReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->insertBefore(x.get(), readOnly.get()), "nodeInsertBeforeReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->replaceChild(x.get(), readOnly.get()), "nodeReplaceChildReadOnlyError", u"y");
  EXPECT_XML_ERROR(reference->removeChild(readOnly.get()), "nodeRemoveChildReadOnlyError", u"x");
}

TEST_F(NodeChangesTest, ADocumentTakesOneRootElementOnly) {
  const std::unique_ptr<Element> second(document->createElement(u"second"));
  EXPECT_XML_ERROR(document->appendChild(second.get()), "nodeAppendChildHierarchyError", u"second",
                   u"ELEMENT_NODE", u"DOCUMENT_NODE");
}

TEST_F(NodeChangesTest, SetNodeValueLetsXercesFailuresThrough) {
  const auto text = parseString(u"<!DOCTYPE r [<!ENTITY e 'text'>]><r>&e;</r>");
  const std::unique_ptr<Element> textRoot(text->getDocumentElement());
  const std::unique_ptr<Node> entityReference(textRoot->getFirstChild());
  const std::unique_ptr<Node> readOnlyText(entityReference->getFirstChild());
  try {
    readOnlyText->setNodeValue(u"v");
    FAIL();
  } catch (const xercesc::DOMException& e) {
    EXPECT_EQ(e.code, xercesc::DOMException::NO_MODIFICATION_ALLOWED_ERR);
  }
}

namespace {
// A document type of no document.
DocumentType* looseDoctype(const ustring& name) { return new DocumentType(name, u"", u"sys.dtd"); }
}  // namespace

TEST_F(NodeChangesTest, AppendChildAloneGivesADoctypeItsDocument) {
  const auto empty = createDocument();
  const std::unique_ptr<DocumentType> doctype(looseDoctype(u"r"));
  EXPECT_EQ(doctype->getOwnerDocument(), nullptr);
  empty->appendChild(doctype.get());
  EXPECT_EQ(doctype->getOwnerDocument(), empty.get());
  EXPECT_EQ(doctype->getParentNode(), empty.get());
  const std::unique_ptr<DocumentType> found(empty->getDoctype());
  EXPECT_TRUE(found->isSameNode(doctype.get()));

  // By insertBefore it enters the tree, but its wrapper learns of no document.
  const auto other = createDocument(u"root");
  const std::unique_ptr<DocumentType> inserted(looseDoctype(u"root"));
  const std::unique_ptr<Node> otherRoot(other->getFirstChild());
  other->insertBefore(inserted.get(), otherRoot.get());
  EXPECT_EQ(inserted->getOwnerDocument(), nullptr);
  EXPECT_EQ(inserted->getParentNode(), nullptr);
  EXPECT_EQ(other->getLength(), 2);
}

TEST_F(NodeChangesTest, AppendChildFailsAfterTheFactWhenTheParentHasNoDocument) {
  // The child goes in; then the parent has no document to give the doctype,
  // which appendChild reports as an unknown failure, the child staying.
  const auto target = createDocument();
  Node bare(target->getImpl(), nullptr);
  const std::unique_ptr<DocumentType> doctype(looseDoctype(u"d"));
  EXPECT_XML_ERROR(bare.appendChild(doctype.get()), "nodeAppendChildUnknownError", u"d");
  EXPECT_EQ(target->getLength(), 1);
}

TEST_F(NodeChangesTest, CloneNodeGivesAParentlessCopyOfTheRightClass) {
  const std::unique_ptr<Node> copy(root->cloneNode(true));
  EXPECT_STREQ(copy->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom.Element");
  EXPECT_EQ(copy->getParentNode(), nullptr);
  EXPECT_EQ(copy->getOwnerDocument(), document.get());
  EXPECT_EQ(copy->getLength(), 2);
  const std::unique_ptr<Node> shallow(root->cloneNode(false));
  EXPECT_EQ(shallow->getLength(), 0);
  EXPECT_EQ(document->cloneNode(true), document.get());  // a document's copy is itself
}

TEST_F(NodeChangesTest, SetPrefixMapsThreeRefusalsAndSwallowsTheRest) {
  const std::unique_ptr<Element> ns(document->createElementNS(u"urn:x", u"p:e"));
  ns->setPrefix(u"q");
  EXPECT_EQ(ns->getNodeName(), u"q:e");
  EXPECT_XML_ERROR(ns->setPrefix(u"1 2"), "nodeSetPrefixInvalidCharError", u"1 2");
  EXPECT_XML_ERROR(ns->setPrefix(u"xml"), "nodeSetPrefixNamespaceError", u"xml");
  const std::unique_ptr<Element> readOnlyElement(static_cast<Element*>(readOnly.release()));
  EXPECT_XML_ERROR(readOnlyElement->setPrefix(u"p"), "nodeSetPrefixNoModError", u"p");
}

TEST_F(NodeChangesTest, SetTextContentTurnsEveryRefusalIntoOneError) {
  a->setTextContent(u"text");
  EXPECT_EQ(a->getTextContent(), u"text");
  EXPECT_XML_ERROR(readOnly->setTextContent(u"new"), "nodeSetTextContentNoModError", u"new");
}

TEST_F(NodeChangesTest, NormalizeJoinsAdjacentText) {
  const std::unique_ptr<Text> one(document->createTextNode(u"one")), two(document->createTextNode(u"two"));
  a->appendChild(one.get());
  a->appendChild(two.get());
  EXPECT_EQ(a->getLength(), 2);
  a->normalize();
  EXPECT_EQ(a->getLength(), 1);
  EXPECT_EQ(one->getNodeValue(), u"onetwo");
}
