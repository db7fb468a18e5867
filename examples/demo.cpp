// Parses a document through the public interface and tells what it found,
// then shows how a failure reaches a native client.
#include <paxorel/xml.hpp>

#include <basis/text/utf.hpp>

#include <iostream>
#include <map>
#include <memory>

using namespace paxorel::xml;

namespace {

std::string utf8(const ustring& text) { return basis::text::to_utf8(text); }

// Counts the nodes of the subtree below `node` by type name.
void count(Node& node, std::map<std::string, int>& byType) {
  for (Node* child : node.getChildren()) {
    const std::unique_ptr<Node> owned(child);
    ++byType[utf8(child->getNodeTypeName())];
    count(*child, byType);
  }
}

// Prints the first `limit` elements in document order with their attributes.
void listElements(Node& node, int& limit, int depth) {
  for (Node* child : node.getChildren()) {
    const std::unique_ptr<Node> owned(child);
    if (child->getNodeType() != Node::ELEMENT_NODE || limit <= 0) continue;
    --limit;
    std::cout << std::string(2 * depth + 2, ' ') << '<' << utf8(child->getNodeName());
    const std::unique_ptr<NamedNodeMap> attributes(child->getAttributes());
    for (double i = 0; i < attributes->getLength(); ++i) {
      const std::unique_ptr<Node> attribute(attributes->item(i));
      std::cout << ' ' << utf8(attribute->getNodeName()) << "=\"" << utf8(attribute->getNodeValue()) << '"';
    }
    std::cout << ">\n";
    listElements(*child, limit, depth + 1);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const ustring path = basis::text::from_utf8(argc > 1 ? argv[1] : "examples/sample.xml");
  try {
    const std::shared_ptr<Document> document = parseFile(path);
    std::cout << "Parsed " << utf8(path) << "\n";

    std::map<std::string, int> byType;
    count(*document, byType);
    std::cout << "Nodes by type (a processing instruction is named UNKNOWN):\n";
    for (const auto& [type, n] : byType) std::cout << "  " << type << ": " << n << "\n";

    const std::unique_ptr<Node> root(document->getLastChild());
    std::cout << "Root element: " << utf8(root->getNodeName()) << " in namespace " << utf8(root->getNamespaceURI())
              << "\n";

    std::cout << "First elements:\n";
    int limit = 6;
    listElements(*document, limit, 0);
  } catch (const basis::except::IMsgIDException& e) {
    std::cerr << e.GetID() << ": " << e.what() << "\n";
    return 1;
  }

  // A document built by hand: a root, a child with attributes, some text.
  std::cout << "Built by hand:\n";
  const std::shared_ptr<Document> built = createDocument(u"urn:example:greenhouse", u"greenhouse");
  const std::unique_ptr<Element> root(built->getDocumentElement());
  const std::unique_ptr<Element> bed(built->createElementNS(u"urn:example:greenhouse", u"bed"));
  bed->setAttribute(u"id", u"b3");
  bed->setAttribute(u"light", u"shade");
  const std::unique_ptr<Text> text(built->createTextNode(u"ferns"));
  bed->appendChild(text.get());
  root->appendChild(bed.get());
  int limit = 6;
  listElements(*built, limit, 0);
  std::cout << "  text of the root: " << utf8(root->getTextContent()) << "\n";

  std::cout << "Failures keep their identifiers:\n";
  try {
    root->appendChild(root.get());
  } catch (const basis::except::IMsgIDException& e) {
    std::cout << "  " << e.GetID() << "\n  " << e.what() << "\n";
  }
  try {
    parseString(u"<greenhouse><bed></greenhouse>");
  } catch (const basis::except::IMsgIDException& e) {
    std::cout << "  " << e.GetID() << "\n  " << e.what() << "\n";
  }
  return 0;
}
