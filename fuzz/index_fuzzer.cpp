// Drives every operation that takes an index, offset or count as a double
// with arbitrary doubles (NaN, infinities, negatives and huge values
// included) on a small document: nothing may crash or leak. The input is a
// sequence of records: one byte choosing the operation, then two doubles.
#include <paxorel/xml.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

using namespace paxorel::xml;

namespace {

double doubleAt(const std::uint8_t* bytes) {
  double value;
  std::memcpy(&value, bytes, sizeof value);
  return value;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t record = 1 + 2 * sizeof(double);
  const std::shared_ptr<Document> document =
      parseString(u"<r a='1' b='2'><t>text \u00e9\U0001F600 here</t><![CDATA[cdata]]><!--comment--><e/></r>");
  const std::unique_ptr<Element> root(document->getDocumentElement());
  const std::unique_ptr<NodeList> children(root->getChildNodes());
  const std::unique_ptr<NamedNodeMap> attributes(root->getAttributes());
  const std::unique_ptr<Node> t(root->getFirstChild());
  const std::unique_ptr<Node> text(t->getFirstChild());
  auto* characters = static_cast<CharacterData*>(text.get());
  const std::unique_ptr<XPathResult> result(document->evaluate(u"*", XPathResult::ORDERED_NODE_SNAPSHOT_TYPE()));
  for (std::size_t at = 0; at + record <= size; at += record) {
    const double x = doubleAt(data + at + 1), y = doubleAt(data + at + 1 + sizeof(double));
    try {
      switch (data[at] % 12) {
        case 0: delete root->item(x); break;
        case 1: delete root->child(x); break;
        case 2: delete children->item(x); break;
        case 3: delete children->node(x); break;
        case 4: delete attributes->item(x); break;
        case 5: characters->substringData(x, y); break;
        case 6: characters->insertData(x, u"\u00e9"); break;
        case 7: characters->deleteData(x, y); break;
        case 8: characters->replaceData(x, y, u"xy"); break;
        case 9: delete static_cast<Text*>(text.get())->splitText(x); break;
        case 10: result->snapshotItem(x); break;
        default: result->snapshotNode(x); break;
      }
      delete result->getNodeValueNoError();
    } catch (const basis::except::IMsgIDException&) {
      // a refusal with its identifier is a fine answer to a bad number
    } catch (const xercesc::DOMException&) {
      // some operations let Xerces's own refusals through, by design
    }
  }
  return 0;
}
