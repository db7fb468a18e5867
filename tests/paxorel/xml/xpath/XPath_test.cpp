// XPath: the subset Xerces evaluates, the translation of its refusals, the
// guards in front of it, resolvers, results and what keeps documents alive.
#include "support/expectations.hpp"

using namespace paxorel::xml;
using namespace testing_support;
using xercesc::DOMException;
using xercesc::DOMXPathException;
using xercesc::DOMXPathResult;

namespace {

constexpr double snapshot = XPathResult::ORDERED_NODE_SNAPSHOT_TYPE();
using Cases = std::initializer_list<std::pair<ustring, std::string>>;

// The names of the nodes of a snapshot, space-separated, or "null"; takes
// the result over.
std::string names(XPathResult* made) {
  const auto result = own(made);
  if (!result) return "null";
  std::string joined;
  for (int i = 1; i <= static_cast<int>(result->getSnapshotLength()) && result->snapshotNode(i); ++i) {
    const ustring name = own(result->getNodeValue())->getNodeName();
    joined += (joined.empty() ? "" : " ") + std::string(name.begin(), name.end());
  }
  return joined;
}

// The code of the Xerces exception that `action` lets through, or 0.
template <class Action>
short xercesCode(Action&& action) {
  try {
    action();
  } catch (const DOMException& e) {  // a DOMXPathException too
    return e.code;
  }
  return 0;
}

// A result that answers as told, for what Xerces never gives: other types,
// nodes that are not elements, a refusal to give the node.
struct ScriptedResult : DOMXPathResult {
  explicit ScriptedResult(ResultType resultType, xercesc::DOMNode* value = nullptr, short refused = 0)
      : type(resultType), node(value), refusal(refused) {}
  ResultType getResultType() const override { return type; }
  xercesc::DOMNode* getNodeValue() const override { return refusal ? throw DOMXPathException(refusal) : node; }
  XMLSize_t getSnapshotLength() const override { return 3; }
  void release() override { delete this; }
  const xercesc::DOMTypeInfo* getTypeInfo() const override { return nullptr; }
  bool isNode() const override { return true; }
  bool getBooleanValue() const override { return false; }
  int getIntegerValue() const override { return 0; }
  double getNumberValue() const override { return 0; }
  const XMLCh* getStringValue() const override { return nullptr; }
  bool iterateNext() override { return false; }
  bool getInvalidIteratorState() const override { return false; }
  bool snapshotItem(XMLSize_t) override { return false; }
  ResultType type;
  xercesc::DOMNode* node;
  short refusal;
};

struct XPath : ::testing::Test {
  std::shared_ptr<Document> document = parseString(
      u"<library xmlns:x='urn:x'><shelf><book id='1'/><book id='2'/></shelf>"
      u"<shelf><book id='3'/><x:note/></shelf><book id='4'>text</book></library>");
  std::unique_ptr<Element> library{document->getDocumentElement()};
  std::shared_ptr<Document> other = parseString(u"<other><book/></other>");

  std::unique_ptr<XPathResult> evaluate(const ustring& expression, double type = snapshot) {
    return own(document->evaluate(expression, type));
  }
  std::unique_ptr<XPathResult> scripted(ScriptedResult* script) const {
    return std::make_unique<XPathResult>(script, document->getOwnerDocWrapper());
  }
};

}  // namespace

// The README's examples. Without a context the root element is the context.
TEST_F(XPath, TheSubsetThatXercesEvaluates) {
  const auto resolver = own(document->createNSResolver(library.get()));
  for (const std::string row :  // expression -> the nodes found
       {"shelf -> shelf shelf", "shelf/book -> book book book", "* -> shelf shelf book", "child::shelf -> shelf shelf",
        ". -> library", "./shelf -> shelf shelf", ".//book -> book book book book",
        ".//* -> library shelf book book shelf book x:note book", "//book -> book book book book",
        "//shelf/book -> book book book", "/library/book -> book", "/* -> library", "shelf | book -> shelf shelf book",
        "shelf/x:note -> x:note", "//x:* -> x:note"}) {
    const ustring expression(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(row.find(" -> ")));
    const std::string found = row.substr(row.find(" -> ") + 4);
    EXPECT_EQ(names(document->evaluate(expression, library.get(), resolver.get(), snapshot)), found);
    if (expression.find(u"x:") == ustring::npos) {
      EXPECT_EQ(names(document->evaluate(expression, snapshot)), found);
    }
  }
  for (const ustring expression : {u"@id", u"attribute::id", u"book[1]", u"count(book)", u"text()", u"..",
                                   u"descendant::book", u"/", u"shelf//book", u"//book | //shelf", u"(("}) {
    EXPECT_XML_ERROR(document->evaluate(expression, snapshot), "xpathInvalidPathError", expression);
  }
  EXPECT_XML_ERROR(document->evaluate(u"x:note", snapshot), "xpathNamespaceError", ustring(u"x:note"));
  const auto shelf = own(library->getFirstChild());
  EXPECT_EQ(names(document->evaluate(u"book", shelf.get(), snapshot)), "book book");
  EXPECT_EQ(names(document->evaluate(u"/library/book", shelf.get(), snapshot)), "book");
}

TEST_F(XPath, ContextsThatXercesRefusesOrWouldMisuseAreErrorsAndOtherRefusalsNull) {
  const auto book = own<Element>(library->getLastChild());
  const auto attribute = own(book->getAttributeNode(u"id"));
  const auto text = own(book->getFirstChild());
  const auto foreign = own(other->getDocumentElement());
  // Xerces takes an element only; it would take one of another document, and
  // the result would hold nodes that it does not keep alive.
  for (const auto& c :
       std::initializer_list<std::pair<const Node*, std::string>>{{attribute.get(), "xpathUnsupportedError"},
                                                                  {text.get(), "xpathUnsupportedError"},
                                                                  {document.get(), "xpathUnsupportedError"},
                                                                  {foreign.get(), "xpathWrongDocumentError"},
                                                                  {other.get(), "xpathWrongDocumentError"}}) {
    EXPECT_XML_ERROR(document->evaluate(u"book", c.first, snapshot), c.second, ustring(u"book"));
  }
  for (const double type : {0.0, 5.99, 10.0, 127.0, 128.0, -1.0, 3e9, notANumber, inf}) {
    EXPECT_EQ(evaluate(u"book", type), nullptr) << type;  // Xerces's TYPE_ERR
  }
  EXPECT_EQ(evaluate(u"book", 6.9)->getResultType(), 6);
  EXPECT_XML_ERROR(document->evaluate(u"((", -1), "xpathInvalidPathError", ustring(u"(("));
  // Without a root element: no result and no error, whatever the expression.
  document->removeChild(library.get());
  EXPECT_EQ(evaluate(u"(("), nullptr);
}

TEST_F(XPath, NullArgumentsAndMissingXercesObjectsAreClearErrors) {
  const Node noNode(nullptr, nullptr);
  XPathNSResolver noResolver;
  XPathResult noResult;
  XPathEvaluator evaluator;
  const XPathExpression expression;
  const auto result = evaluate(u"book");
  EXPECT_XML_ERROR(document->evaluate(u"book", nullptr, snapshot), "emptyNodeArgument");
  EXPECT_XML_ERROR(noResolver.lookupPrefix(u"urn:x"), "emptyObjectArgument", std::string("XPathNSResolver"));
  EXPECT_XML_ERROR(document->evaluate(u"book", &noNode, &noResolver, snapshot), "emptyNodeArgument");
  EXPECT_XML_ERROR(document->createNSResolver(nullptr), "emptyNodeArgument");
  EXPECT_XML_ERROR(expression.evaluate(nullptr, snapshot, result.get()), "emptyNodeArgument");
  EXPECT_XML_ERROR(DocumentRegistry::shareWithCaller(new Document(nullptr))->evaluate(u"book", 7), "emptyNodeArgument");
  const std::string resolverClass = "XPathNSResolver", resultClass = "XPathResult";
  EXPECT_XML_ERROR(document->evaluate(u"book", library.get(), nullptr, snapshot), "emptyObjectArgument", resolverClass);
  EXPECT_XML_ERROR(document->evaluate(u"book", library.get(), &noResolver, snapshot), "emptyObjectArgument",
                   resolverClass);
  EXPECT_XML_ERROR(expression.evaluate(library.get(), snapshot, nullptr), "emptyObjectArgument", resultClass);
  EXPECT_XML_ERROR(expression.evaluate(library.get(), snapshot, &noResult), "emptyObjectArgument", resultClass);
  EXPECT_XML_ERROR(XPathResult(nullptr, nullptr).getSnapshotLengthNoError(), "emptyObjectArgument", resultClass);
  EXPECT_XML_ERROR(expression.evaluate(library.get(), snapshot, result.get()), "emptyObjectArgument",
                   std::string("XPathExpression"));
  EXPECT_XML_ERROR(evaluator.evaluate(u"book", &noNode), "emptyNodeArgument");
  EXPECT_XML_ERROR(evaluator.evaluate(u"book", library.get()), "emptyObjectArgument", std::string("XPathEvaluator"));
}

TEST(XPathNSResolver, AnswersByTheDeclarationsInScopeAndItsOwnBindingsAndHoldsItsDocument) {
  auto document = parseString(u"<root xmlns='urn:d' xmlns:p='urn:p'><a xmlns:q='urn:q'><q:x/></a><p:c/></root>");
  const std::weak_ptr<Document> watch = document->getOwnerDocWrapper();
  auto root = own(document->getDocumentElement());
  auto atA = own(document->createNSResolver(own(root->getFirstChild()).get()));
  const auto atRoot = own(document->createNSResolver(root.get()));
  for (const auto& [prefix, uri] : Cases{{u"q", "urn:q"}, {u"p", "urn:p"}, {u"", "urn:d"}, {u"zz", ""}}) {
    EXPECT_EQ(atA->lookupNamespaceURI(prefix), ustring(uri.begin(), uri.end()));
  }
  EXPECT_EQ(atRoot->lookupNamespaceURI(u"q"), u"");
  EXPECT_EQ(atA->lookupPrefix(u"urn:q"), u"q");
  atRoot->addNamespaceBinding(u"n", u"urn:q");
  atRoot->addNamespaceBinding(u"p", u"urn:other");  // ahead of the declaration
  atRoot->addNamespaceBinding(u"e", u"");           // reads as unbound
  EXPECT_EQ(atRoot->lookupNamespaceURI(u"n"), u"urn:q");
  EXPECT_EQ(atRoot->lookupNamespaceURI(u"e"), u"");
  EXPECT_EQ(names(document->evaluate(u"a/q:x", root.get(), atA.get(), snapshot)), "q:x");
  EXPECT_EQ(names(document->evaluate(u"a/n:x", root.get(), atRoot.get(), snapshot)), "q:x");
  EXPECT_EQ(names(document->evaluate(u"p:c", root.get(), atRoot.get(), snapshot)), "");
  // One for a node of another document would read a tree that it does not hold.
  EXPECT_EQ(xercesCode([&] { own(parseString(u"<other/>")->createNSResolver(root.get())); }),
            DOMException::WRONG_DOCUMENT_ERR);
  root.reset();
  document.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(atA->lookupNamespaceURI(u"q"), u"urn:q");
}

TEST_F(XPath, EvaluatorsAndExpressionsLetXercesRefusalsThroughAndShareAReusedResult) {
  const auto owner = document->getOwnerDocWrapper();
  const auto foreign = own(other->getDocumentElement());
  XPathEvaluator evaluator(document->getImpl(), owner);
  // Xerces 3.2 has no result of any type to give.
  EXPECT_EQ(xercesCode([&] { own(evaluator.evaluate(u"book", library.get())); }), DOMXPathException::TYPE_ERR);
  EXPECT_EQ(xercesCode([&] { own(evaluator.evaluate(u"book", foreign.get())); }), DOMException::WRONG_DOCUMENT_ERR);

  xercesc::DOMXPathExpression* parsed = document->getImpl()->createExpression(u"book", nullptr);
  const XPathExpression expression(parsed, owner);
  auto given = evaluate(u"shelf");
  const auto made = own(expression.evaluate(library.get(), 8.9, given.get()));
  EXPECT_EQ(made->getImpl(), given->getImpl());  // Xerces refilled the given result
  given.reset();
  EXPECT_EQ(own<Element>(made->getNodeValue())->getAttribute(u"id"), u"4");
  const auto foreignResult = own(other->evaluate(u"book", snapshot));
  for (auto c : {std::pair(foreign.get(), made.get()), std::pair(library.get(), foreignResult.get())}) {
    EXPECT_EQ(xercesCode([&] { own(expression.evaluate(c.first, snapshot, c.second)); }),
              DOMException::WRONG_DOCUMENT_ERR);
  }
  EXPECT_EQ(xercesCode([&] { own(expression.evaluate(library.get(), 0, made.get())); }), DOMXPathException::TYPE_ERR);
  parsed->release();  // not the wrapper's
}

TEST_F(XPath, ResultTypesHaveNamesAndOnlySnapshotsALength) {
  for (const auto& [type, name] : std::initializer_list<std::pair<double, ustring>>{
           {XPathResult::UNORDERED_NODE_SNAPSHOT_TYPE(), u"UnorderedNodeSnapshot"},
           {XPathResult::ORDERED_NODE_SNAPSHOT_TYPE(), u"OrderedNodeSnapshot"},
           {XPathResult::ANY_UNORDERED_NODE_TYPE(), u"AnyUnorderedNode"},
           {XPathResult::FIRST_ORDERED_NODE_TYPE(), u"FirstOrderedNode"}}) {
    const auto result = evaluate(u"//book", type);
    ASSERT_NE(result, nullptr) << type;
    EXPECT_EQ(result->getResultType(), type);
    EXPECT_EQ(result->getResultTypeName(), name);
    if (type > 7) EXPECT_XML_ERROR(result->getSnapshotLength(), "xpathResultGetSnapshotLengthTypeError");
    EXPECT_EQ(result->getSnapshotLengthNoError(), type > 7 ? 0 : 4);
  }
  const auto number = scripted(new ScriptedResult(DOMXPathResult::NUMBER_TYPE));  // whatever length it claims
  EXPECT_EQ(number->getResultTypeName(), u"Unknown");
  EXPECT_XML_ERROR(number->getSnapshotLength(), "xpathResultGetSnapshotLengthTypeError");
  EXPECT_EQ(number->getSnapshotLengthNoError(), 0);
}

TEST_F(XPath, TheWalkMovesXercessPositionByZeroAndOneBasedIndices) {
  const auto result = evaluate(u"//book");
  const auto idHere = [&]() -> ustring {
    const auto node = own<Element>(result->getNodeValue());
    return node ? node->getAttribute(u"id") : u"-";
  };
  EXPECT_EQ(idHere(), u"1");  // before any move
  EXPECT_TRUE(result->snapshotNode(2));
  EXPECT_EQ(idHere(), u"2");
  EXPECT_TRUE(result->snapshotNode(1));
  EXPECT_EQ(idHere(), u"1");
  // Conversion U: negatives and NaN far past the end; infinity and 2^64 on wrap to 0.
  for (const auto& [index, id] : std::initializer_list<std::pair<double, ustring>>{
           {3.9, u"4"}, {4, u"-"}, {-1, u"-"}, {notANumber, u"-"}, {inf, u"1"}}) {
    EXPECT_EQ(result->snapshotItem(index), id != u"-") << index;
    EXPECT_EQ(idHere(), id) << index;
  }
  EXPECT_FALSE(result->snapshotNode(0));
  EXPECT_THROW(evaluate(u"book", XPathResult::FIRST_ORDERED_NODE_TYPE())->snapshotItem(0), DOMXPathException);
}

TEST_F(XPath, NodeValuesComeInTheirOwnClassAndOnlyAMissingNodeIsAnError) {
  auto* book = static_cast<xercesc::DOMElement*>(own(library->getLastChild())->getImpl());
  for (const auto& [node, type] : std::initializer_list<std::pair<xercesc::DOMNode*, std::string>>{
           {book, "Element"}, {book->getAttributeNode(u"id"), "Attr"}, {book->getFirstChild(), "Text"}}) {
    const auto result = scripted(new ScriptedResult(DOMXPathResult::FIRST_ORDERED_NODE_TYPE, node));
    EXPECT_EQ(own(result->getNodeValue())->getFullyQualifiedVorloTypeName(), "zelmar.io.xml.dom." + type);
    EXPECT_EQ(own(result->getNodeValueNoError())->getImpl(), node);
  }
  // Xerces 3.2.4 gives null for a missing node; should it refuse instead:
  const auto missing = scripted(new ScriptedResult(DOMXPathResult::FIRST_ORDERED_NODE_TYPE, nullptr, 53));
  EXPECT_XML_ERROR(missing->getNodeValue(), "xpathResultGetNodeValueEmptyNodeError");
  EXPECT_EQ(missing->getNodeValueNoError(), nullptr);
  const auto otherRefusal = scripted(new ScriptedResult(DOMXPathResult::FIRST_ORDERED_NODE_TYPE, nullptr, 52));
  EXPECT_EQ(otherRefusal->getNodeValue(), nullptr);
}

TEST_F(XPath, AResultAndItsNodesHoldTheDocument) {
  const std::weak_ptr<Document> watch = document->getOwnerDocWrapper();
  auto result = evaluate(u"//book");
  library.reset();
  document.reset();
  ASSERT_TRUE(result->snapshotNode(4));
  auto book = own(result->getNodeValue());
  result.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_EQ(book->getTextContent(), u"text");
  EXPECT_EQ(own(book->getPreviousSibling())->getNodeName(), u"shelf");
  book.reset();
  EXPECT_TRUE(watch.expired());
}
