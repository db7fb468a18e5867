// The library under test, used as a client would: through its wrappers,
// each navigation giving a new one that the caller deletes.
#include "implementations.hpp"

#include <paxorel/xml.hpp>
#include <paxorel/xml/core/XercesGuard.hpp>

#include <basis/text/utf.hpp>

#include <memory>
#include <vector>

namespace bench {

using namespace paxorel::xml;

namespace {

// The node's type and name and the value of each of its attributes.
std::size_t read(Node& node) {
  std::size_t seen = 1 + static_cast<std::size_t>(node.getNodeType()) + node.getNodeName().size();
  if (const std::unique_ptr<NamedNodeMap> attributes{node.getAttributes()}) {
    const auto count = static_cast<std::size_t>(attributes->getLength());
    for (std::size_t i = 0; i < count; ++i) {
      seen += std::unique_ptr<Node>(attributes->item(static_cast<double>(i)))->getNodeValue().size();
    }
  }
  return seen;
}

// The three ways to reach the children.
const auto siblings = [](Node& node, const auto& visit) {
  for (std::unique_ptr<Node> child(node.getFirstChild()); child; child.reset(child->getNextSibling())) visit(*child);
};

const auto items = [](Node& node, const auto& visit) {
  const auto count = static_cast<std::size_t>(node.getLength());
  for (std::size_t i = 0; i < count; ++i) visit(*std::unique_ptr<Node>(node.item(static_cast<double>(i))));
};

const auto children = [](Node& node, const auto& visit) {
  std::vector<std::unique_ptr<Node>> owned;
  for (Node* child : node.getChildren()) owned.emplace_back(child);
  for (const auto& child : owned) visit(*child);
};

// A task on the input's tree.
template <class Task>
Prepare onTree(Task task) {
  return
      [task](const Input& input) -> Work { return [task, document = paxorelTree(input)] { return task(*document); }; };
}

template <class EachChild>
Prepare walkWith(EachChild eachChild) {
  return onTree([eachChild](Document& document) { return walk<Node&>(document, read, eachChild); });
}

const DOMWriter& writer() {
  static const DOMWriter made;
  return made;
}

}  // namespace

const std::shared_ptr<Document>& paxorelTree(const Input& input) {
  static std::map<std::string, std::shared_ptr<Document>> kept;
  return keep(kept, input, [&] { return parseString(input.utf16()); });
}

Implementation paxorel() {
  lsImplementation();
  return {
      "paxorel",
      {
          {"parseFile",
           [](const Input& input) -> Work {
             return [path = basis::text::from_utf8(input.path())] { return parseFile(path) != nullptr; };
           }},
          {"parseString",
           [](const Input& input) -> Work { return [&text = input.utf16()] { return parseString(text) != nullptr; }; }},
          {"walkSiblings", walkWith(siblings)},
          {"walkItem", walkWith(items)},
          {"walkChildren", walkWith(children)},
          {"writeToString", onTree([](Document& document) { return writer().writeToString(&document).size(); })},
          {"writeToURI", onTree([path = basis::text::from_utf8(writtenPath("paxorel"))](Document& document) {
             writer().writeToURI(&document, path, u"UTF-8");
             return std::size_t{1};
           })},
          {"evaluate", onTree([path = basis::text::from_utf8(itemsPath)](Document& document) {
             const std::unique_ptr<XPathResult> found(
                 document.evaluate(path, XPathResult::ORDERED_NODE_SNAPSHOT_TYPE()));
             std::size_t seen = 0;
             for (std::size_t i = 0; found->snapshotItem(static_cast<double>(i)); ++i) {
               seen += std::unique_ptr<Node>(found->getNodeValue())->getNodeName().size();
             }
             return seen;
           })},
          {"getNodeIndex",
           [](const Input& input) -> Work {
             const std::shared_ptr<Document>& document = paxorelTree(input);
             const auto last = std::make_shared<const Element>(lastElement(document->getImpl()), document);
             return [last] { return static_cast<std::size_t>(last->getNodeIndex()); };
           }},
      },
      [](const std::string& path) { return walk<Node&>(*parseFile(basis::text::from_utf8(path)), read, siblings); },
      [](std::size_t calls) {
        const std::shared_ptr<Document> document = createDocument(u"r");
        const std::unique_ptr<Element> root(document->getDocumentElement());
        for (std::size_t call = 0; call < calls; ++call) root->setAttribute(u"a", decimal(call));
        return root->getAttribute(u"a").size();
      },
  };
}

}  // namespace bench
