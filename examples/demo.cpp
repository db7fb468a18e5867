// The whole chain through the public interface: parse the sample, query it
// with XPath, change the tree, write the result to a file and to a string,
// and show how failures reach a native client.
#include <paxorel/xml.hpp>

#include <basis/text/utf.hpp>

#include <iostream>
#include <memory>
#include <string>

using namespace paxorel::xml;

namespace {

std::string utf8(const ustring& text) { return basis::text::to_utf8(text); }

// Runs `action` and prints the identifier and text of the failure it ends in.
template <class Action>
void showFailure(const char* what, Action action) {
  try {
    action();
    std::cout << "  " << what << ": no failure?\n";
  } catch (const basis::except::IMsgIDException& e) {
    std::cout << "  " << what << "\n    " << e.GetID() << "\n    " << e.what() << "\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  const ustring input = basis::text::from_utf8(argc > 1 ? argv[1] : "examples/sample.xml");
  const ustring output = basis::text::from_utf8(argc > 2 ? argv[2] : "demo-output.xml");
  try {
    // 1. Parse.
    const std::shared_ptr<Document> document = parseFile(input);
    const std::unique_ptr<Element> root(document->getDocumentElement());
    std::cout << "Parsed " << utf8(input) << ": root <" << utf8(root->getNodeName()) << "> in "
              << utf8(root->getNamespaceURI()) << "\n";

    // 2. Query. The plants are in the document's default namespace, so the
    // expression names them through a prefix that a resolver binds.
    const std::unique_ptr<XPathNSResolver> resolver(document->createNSResolver(root.get()));
    resolver->addNamespaceBinding(u"g", u"urn:example:greenhouse");
    const std::unique_ptr<XPathResult> plants(
        document->evaluate(u"g:bed/g:plant", root.get(), resolver.get(), XPathResult::ORDERED_NODE_SNAPSHOT_TYPE()));
    std::cout << "g:bed/g:plant gives " << plants->getSnapshotLength() << " plants ("
              << utf8(plants->getResultTypeName()) << "):\n";
    for (double i = 1; plants->snapshotNode(i); ++i) {
      const auto plant = std::unique_ptr<Element>(static_cast<Element*>(plants->getNodeValue()));
      std::cout << "  " << utf8(plant->getAttribute(u"genus")) << ' ' << utf8(plant->getAttribute(u"species")) << ", "
                << utf8(plant->getAttribute(u"count")) << "\n";
      // 3. Change: every plant counted gets a mark.
      plant->setAttribute(u"checked", u"yes");
    }

    // ... and a new plant goes into the second bed.
    const std::unique_ptr<XPathResult> beds(
        document->evaluate(u"g:bed", root.get(), resolver.get(), XPathResult::ORDERED_NODE_SNAPSHOT_TYPE()));
    beds->snapshotNode(2);
    const std::unique_ptr<Node> bed(beds->getNodeValue());
    const std::unique_ptr<Element> thyme(document->createElementNS(u"urn:example:greenhouse", u"plant"));
    thyme->setAttribute(u"genus", u"Thymus");
    thyme->setAttribute(u"species", u"vulgaris");
    thyme->setAttribute(u"count", u"5");
    const std::unique_ptr<Text> name(document->createTextNode(u"Thyme"));
    thyme->appendChild(name.get());
    const std::unique_ptr<Text> indent(document->createTextNode(u"  "));
    const std::unique_ptr<Text> lineEnd(document->createTextNode(u"\n  "));
    bed->appendChild(indent.get());
    bed->appendChild(thyme.get());
    bed->appendChild(lineEnd.get());

    // 4. Write: the whole document to a file, one bed to a string.
    DOMWriter writer;
    writer.writeToURI(document.get(), output, u"UTF-8");
    std::cout << "Wrote the changed document to " << utf8(output) << "\n";
    std::cout << "The second bed as text:\n" << utf8(writer.writeToString(bed.get())) << "\n";
  } catch (const basis::except::IMsgIDException& e) {
    std::cerr << e.GetID() << ": " << e.what() << "\n";
    return 1;
  }

  // 5. Failures keep their identifiers and arguments.
  std::cout << "Failures:\n";
  const std::shared_ptr<Document> small = parseString(u"<greenhouse><bed/></greenhouse>");
  showFailure("an expression that is not XPath", [&] { small->evaluate(u"bed[", 7); });
  showFailure("a file in a directory that does not exist",
              [&] { DOMWriter().writeToURI(small.get(), u"no-such-directory/out.xml"); });
  showFailure("text that does not parse", [&] { parseString(u"<greenhouse><bed></greenhouse>"); });
  return 0;
}
