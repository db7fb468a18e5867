// Feeds arbitrary text to the parser and, when it parses, reads every node of
// the tree through the public interface and writes the tree back out:
// nothing may crash or leak.
#include <paxorel/xml.hpp>

#include <basis/text/utf.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

using namespace paxorel::xml;

namespace {

void visit(Node& node, int depth) {
  node.getNodeName();
  node.getNodeValue();
  node.getNodeTypeName();
  node.getTextContent();
  node.getBaseURI();
  node.lookupNamespaceURI(node.getPrefix());
  if (const std::unique_ptr<NamedNodeMap> attributes{node.getAttributes()}) {
    for (double i = 0; i < attributes->getLength(); ++i) {
      const std::unique_ptr<Node> attribute(attributes->item(i));
      attribute->getNodeValue();
    }
  }
  if (auto* element = dynamic_cast<Element*>(&node)) element->getNodeIndex();
  if (auto* data = dynamic_cast<CharacterData*>(&node)) data->substringData(1, -1);
  if (depth > 64) return;  // deep enough to meet every kind of node
  std::vector<std::unique_ptr<Node>> children;
  for (Node* child : node.getChildren()) children.emplace_back(child);
  for (const auto& child : children) visit(*child, depth + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ustring text = basis::text::from_utf8(std::string_view(reinterpret_cast<const char*>(data), size));
  try {
    const std::shared_ptr<Document> document = parseString(text);
    visit(*document, 0);
    const DOMWriter writer;
    writer.writeToString(document.get());
    const std::unique_ptr<Node> copy(document->getDocumentElement());
    if (copy) std::unique_ptr<Node>(document->importNode(copy.get()));
    document->normalizeDocument();
  } catch (const basis::except::IMsgIDException&) {
    // a failure with its identifier is a fine answer to bad input
  } catch (const xercesc::DOMException& e) {
    // some operations let Xerces's own refusals through, by design
    if (std::getenv("FUZZ_VERBOSE")) std::fprintf(stderr, "DOMException %d\n", e.code);
  }
  return 0;
}
