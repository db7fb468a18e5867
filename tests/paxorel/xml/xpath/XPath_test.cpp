// XPath: the subset Xerces evaluates, the translation of its refusals, the
// guards in front of it, resolvers, results and what keeps documents alive.
#include "support/expectations.hpp"

#include <xercesc/dom/impl/DOMXPathResultImpl.hpp>

using namespace paxorel::xml;
using namespace testing_support;
using namespace std::string_literals;
using xercesc::DOMException;
using xercesc::DOMXPathException;

namespace {

constexpr double snapshot = XPathResult::ORDERED_NODE_SNAPSHOT_TYPE();
constexpr short wrongDocument = DOMException::WRONG_DOCUMENT_ERR;

// The names of the nodes of a snapshot, or "null"; takes the result over.
std::string names(XPathResult* made) {
  const auto result = own(made);
  std::string joined = result ? "" : "null";
  for (double i = 1; result && result->snapshotNode(i); ++i) {
    joined += (i > 1 ? " " : "") + basis::text::to_utf8(own(result->getNodeValue())->getNodeName());
  }
  return joined;
}

// The code of the Xerces exception that `action` lets through, or 0.
template <class Action>
short xercesCode(Action&& action) try {
  return action(), 0;
} catch (const DOMException& e) {  // a DOMXPathException too
  return e.code;
}

// A result of any type and node, refusing as told: what Xerces never gives.
struct ScriptedResult : xercesc::DOMXPathResultImpl {
  ScriptedResult(xercesc::DOMNode* node, short refused = 0, ResultType type = FIRST_ORDERED_NODE_TYPE)
      : DOMXPathResultImpl(type), refusal(refused) {
    if (node) addResult(node);
  }
  xercesc::DOMNode* getNodeValue() const override {
    return refusal ? throw DOMXPathException(refusal) : DOMXPathResultImpl::getNodeValue();
  }
  short refusal;
};

struct XPath : ::testing::Test {
  std::shared_ptr<Document> document = parseString(
      u"<library xmlns:x='urn:x'><shelf><book id='1'/><book id='2'/></shelf>"
      u"<shelf><book id='3'/><x:note/></shelf><book id='4'>text</book></library>");
  std::unique_ptr<Element> library{document->getDocumentElement()};
  std::shared_ptr<Document> other = parseString(u"<other><book/></other>");
  std::unique_ptr<Element> foreign{other->getDocumentElement()};

  std::unique_ptr<XPathResult> evaluate(const ustring& expression, double type = snapshot) {
    return own(document->evaluate(expression, type));
  }
};

}  // namespace

// The README's table.
TEST_F(XPath, TheSubsetThatXercesEvaluates) {
  const auto resolver = own(document->createNSResolver(library.get()));
  for (const std::string row :  // expression -> the nodes found
       {"shelf -> shelf shelf", "shelf/book -> book book book", "* -> shelf shelf book", "child::shelf -> shelf shelf",
        ". -> library", "./shelf -> shelf shelf", ".//book -> book book book book",
        ".//* -> library shelf book book shelf book x:note book", "//book -> book book book book",
        "//shelf/book -> book book book", "/library/book -> book", "/* -> library", "shelf | book -> shelf shelf book",
        "shelf/x:note -> x:note", "//x:* -> x:note"}) {
    const auto arrow = row.find(" -> ");
    EXPECT_EQ(names(document->evaluate(u(row.substr(0, arrow)), library.get(), resolver.get(), snapshot)),
              row.substr(arrow + 4));
  }
  for (const ustring expression : {u"@id", u"attribute::id", u"book[1]", u"count(book)", u"text()", u"..",
                                   u"descendant::book", u"/", u"shelf//book", u"//book | //shelf", u"(("}) {
    EXPECT_XML_ERROR(document->evaluate(expression, snapshot), "xpathInvalidPathError", expression);
  }
  EXPECT_XML_ERROR(document->evaluate(u"x:note", snapshot), "xpathNamespaceError", u"x:note"s);
  EXPECT_EQ(names(document->evaluate(u".", snapshot)), "library");  // the root element, not the document
  EXPECT_EQ(names(document->evaluate(u"book", own(library->getFirstChild()).get(), snapshot)), "book book");
}

TEST_F(XPath, BadContextsAndMissingObjectsAreErrorsAndOtherRefusalsNull) {
  const auto book = own<Element>(library->getLastChild());
  const auto attribute = own(book->getAttributeNode(u"id"));
  const auto text = own(book->getFirstChild());
  // Xerces takes an element only; it would take one of another document, and
  // the result would hold nodes that it does not keep alive.
  for (const Node* context : std::initializer_list<const Node*>{attribute.get(), text.get(), document.get()})
    EXPECT_XML_ERROR(document->evaluate(u"book", context, snapshot), "xpathUnsupportedError", u"book"s);
  for (const Node* context : std::initializer_list<const Node*>{foreign.get(), other.get()})
    EXPECT_XML_ERROR(document->evaluate(u"book", context, snapshot), "xpathWrongDocumentError", u"book"s);
  for (const double type : {0.0, 10.0, notANumber, -1.0}) EXPECT_EQ(evaluate(u"book", type), nullptr) << type;
  EXPECT_EQ(evaluate(u"book", 6.9)->getResultType(), 6);

  const XPathExpression expression;
  const auto result = evaluate(u"book");
  EXPECT_XML_ERROR(document->evaluate(u"book", nullptr, snapshot), "emptyNodeArgument");
  EXPECT_XML_ERROR(document->evaluate(u"book", library.get(), nullptr, snapshot), "emptyObjectArgument",
                   "XPathNSResolver"s);
  EXPECT_XML_ERROR(DocumentRegistry::shareWithCaller(new Document(nullptr))->evaluate(u"book", 7), "emptyNodeArgument");
  EXPECT_XML_ERROR(document->createNSResolver(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(XPathNSResolver().lookupPrefix(u"urn:x"), "emptyObjectArgument", "XPathNSResolver"s);
  EXPECT_XML_ERROR(expression.evaluate(nullptr, snapshot, result.get()), "emptyNodeArgument");
  EXPECT_XML_ERROR(expression.evaluate(library.get(), snapshot, nullptr), "emptyObjectArgument", "XPathResult"s);
  EXPECT_XML_ERROR(expression.evaluate(library.get(), snapshot, result.get()), "emptyObjectArgument",
                   "XPathExpression"s);
  EXPECT_XML_ERROR(XPathResult(nullptr, nullptr).getSnapshotLengthNoError(), "emptyObjectArgument", "XPathResult"s);
  EXPECT_XML_ERROR(XPathEvaluator().evaluate(u"book", nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(XPathEvaluator().evaluate(u"book", library.get()), "emptyObjectArgument", "XPathEvaluator"s);
  // Without a root element: no result and no error, whatever the expression.
  document->removeChild(library.get());
  EXPECT_EQ(evaluate(u"(("), nullptr);
}

TEST(XPathNSResolver, AnswersByTheDeclarationsInScopeAndItsOwnBindingsAndHoldsItsDocument) {
  auto document = parseString(u"<root xmlns='urn:d' xmlns:p='urn:p'><a xmlns:q='urn:q'><q:x/></a><p:c/></root>");
  const std::weak_ptr<Document> watch = document->getOwnerDocWrapper();
  auto root = own(document->getDocumentElement());
  auto atA = own(document->createNSResolver(own(root->getFirstChild()).get()));
  const auto atRoot = own(document->createNSResolver(root.get()));
  for (const auto& [prefix, uri] : {std::pair(u"q", u"urn:q"), {u"p", u"urn:p"}, {u"", u"urn:d"}, {u"zz", u""}})
    EXPECT_EQ(atA->lookupNamespaceURI(prefix), uri);
  EXPECT_EQ(atA->lookupPrefix(u"urn:q"), u"q");
  atRoot->addNamespaceBinding(u"n", u"urn:q");
  atRoot->addNamespaceBinding(u"p", u"urn:other");  // ahead of the declaration
  atRoot->addNamespaceBinding(u"e", u"");           // reads as unbound
  EXPECT_EQ(atRoot->lookupNamespaceURI(u"e"), u"");
  EXPECT_EQ(names(document->evaluate(u"a/n:x", root.get(), atRoot.get(), snapshot)), "q:x");
  EXPECT_EQ(names(document->evaluate(u"p:c", root.get(), atRoot.get(), snapshot)), "");
  // One for a node of another document would read a tree that it does not hold.
  EXPECT_EQ(xercesCode([&] { own(parseString(u"<other/>")->createNSResolver(root.get())); }), wrongDocument);
  root.reset();
  document.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(atA->lookupNamespaceURI(u"q"), u"urn:q");
}

TEST_F(XPath, EvaluatorsAndExpressionsLetXercesRefusalsThroughAndShareAReusedResult) {
  const auto owner = document->getOwnerDocWrapper();
  XPathEvaluator evaluator(document->getImpl(), owner);
  // Xerces 3.2 has no result of any type to give.
  EXPECT_EQ(xercesCode([&] { own(evaluator.evaluate(u"book", library.get())); }), DOMXPathException::TYPE_ERR);
  EXPECT_EQ(xercesCode([&] { own(evaluator.evaluate(u"book", foreign.get())); }), wrongDocument);

  xercesc::DOMXPathExpression* parsed = document->getImpl()->createExpression(u"book", nullptr);
  const XPathExpression expression(parsed, owner);
  auto given = evaluate(u"shelf");
  const auto made = own(expression.evaluate(library.get(), 8.9, given.get()));
  EXPECT_EQ(made->getImpl(), given->getImpl());  // Xerces refilled the given result
  given.reset();
  EXPECT_EQ(own<Element>(made->getNodeValue())->getAttribute(u"id"), u"4");
  const auto foreignResult = own(other->evaluate(u"book", snapshot));
  EXPECT_EQ(xercesCode([&] { own(expression.evaluate(foreign.get(), snapshot, made.get())); }), wrongDocument);
  EXPECT_EQ(xercesCode([&] { own(expression.evaluate(library.get(), snapshot, foreignResult.get())); }), wrongDocument);
  EXPECT_EQ(xercesCode([&] { own(expression.evaluate(library.get(), 0, made.get())); }), DOMXPathException::TYPE_ERR);
  parsed->release();  // not the wrapper's
}

TEST_F(XPath, ResultsNameTheirTypeGiveSnapshotLengthsAndNodesInTheirOwnClass) {
  const auto owner = document->getOwnerDocWrapper();
  for (const auto& [type, name] : std::initializer_list<std::pair<double, ustring>>{{6, u"UnorderedNodeSnapshot"},
                                                                                    {7, u"OrderedNodeSnapshot"},
                                                                                    {8, u"AnyUnorderedNode"},
                                                                                    {9, u"FirstOrderedNode"}}) {
    const auto result = evaluate(u"//book", type);
    EXPECT_EQ(result->getResultTypeName(), name);
    if (type > 7) EXPECT_XML_ERROR(result->getSnapshotLength(), "xpathResultGetSnapshotLengthTypeError");
    EXPECT_EQ(result->getSnapshotLengthNoError(), type > 7 ? 0 : 4);
  }
  const XPathResult number(new ScriptedResult(nullptr, 0, ScriptedResult::NUMBER_TYPE), owner);
  EXPECT_EQ(number.getResultTypeName(), u"Unknown");
  EXPECT_XML_ERROR(number.getSnapshotLength(), "xpathResultGetSnapshotLengthTypeError");
  EXPECT_EQ(number.getSnapshotLengthNoError(), 0);
  auto* book = static_cast<xercesc::DOMElement*>(own(library->getLastChild())->getImpl());
  for (const auto& [node, type] : std::initializer_list<std::pair<xercesc::DOMNode*, std::string>>{
           {book, "Element"}, {book->getAttributeNode(u"id"), "Attr"}, {book->getFirstChild(), "Text"}}) {
    const XPathResult result(new ScriptedResult(node), owner);
    EXPECT_EQ(own(result.getNodeValue())->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom." + type);
    EXPECT_EQ(own(result.getNodeValueNoError())->getImpl(), node);
  }
  // Xerces 3.2.4 gives null for a missing node; should it refuse instead:
  const XPathResult missing(new ScriptedResult(nullptr, DOMXPathException::NO_RESULT_ERROR), owner);
  EXPECT_XML_ERROR(missing.getNodeValue(), "xpathResultGetNodeValueEmptyNodeError");
  EXPECT_EQ(missing.getNodeValueNoError(), nullptr);
  EXPECT_EQ(XPathResult(new ScriptedResult(nullptr, DOMXPathException::TYPE_ERR), owner).getNodeValue(), nullptr);
}

TEST_F(XPath, AResultWalksByZeroAndOneBasedIndicesAndItAndItsNodesHoldTheDocument) {
  EXPECT_THROW(evaluate(u"book", XPathResult::FIRST_ORDERED_NODE_TYPE())->snapshotItem(0), DOMXPathException);
  const std::weak_ptr<Document> watch = document->getOwnerDocWrapper();
  auto result = evaluate(u"//book");
  library.reset();
  document.reset();
  const auto idHere = [&]() -> ustring {
    const auto node = own<Element>(result->getNodeValue());
    return node ? node->getAttribute(u"id") : u"-";
  };
  // Conversion U: negatives and NaN far past the end; infinity and 2^64 on wrap to 0.
  for (const auto& [index, id] : std::initializer_list<std::pair<double, ustring>>{
           {3.9, u"4"}, {inf, u"1"}, {4, u"-"}, {-1, u"-"}, {notANumber, u"-"}}) {
    EXPECT_EQ(result->snapshotItem(index), id != u"-") << index;
    EXPECT_EQ(idHere(), id) << index;
  }
  EXPECT_FALSE(result->snapshotNode(0));
  EXPECT_TRUE(result->snapshotNode(1));
  EXPECT_EQ(idHere(), u"1");
  EXPECT_TRUE(result->snapshotNode(4));
  auto book = own(result->getNodeValue());
  result.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(book->getTextContent(), u"text");
  book.reset();
  EXPECT_TRUE(watch.expired());
}
