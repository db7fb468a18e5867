// Evaluates arbitrary expressions, as any result type, on a fixed document,
// walks what they give and writes each node found: nothing may crash or leak.
// The first byte of the input is the result type, the rest the expression.
#include <paxorel/xml.hpp>

#include <basis/text/utf.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

using namespace paxorel::xml;

namespace {

const char16_t* const sample =
    u"<?xml version='1.0'?><!DOCTYPE r [<!ENTITY e 'x'>]>"
    u"<r xmlns='urn:d' xmlns:p='urn:p' a='1'><p:s b='2'><t>text</t><t/>&e;</p:s>"
    u"<s><![CDATA[c]]><!--c--><?pi d?><p:t/></s></r>";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static const std::shared_ptr<Document> document = parseString(sample);
  static const std::unique_ptr<Element> root(document->getDocumentElement());
  static const std::unique_ptr<XPathNSResolver> resolver = [] {
    std::unique_ptr<XPathNSResolver> made(document->createNSResolver(root.get()));
    made->addNamespaceBinding(u"d", u"urn:d");
    return made;
  }();
  const double type = static_cast<double>(data[0] % 16) + (data[0] >> 4) / 16.0;
  const ustring expression =
      basis::text::from_utf8(std::string_view(reinterpret_cast<const char*>(data + 1), size - 1));
  try {
    const std::unique_ptr<XPathResult> result(document->evaluate(expression, root.get(), resolver.get(), type));
    if (!result) return 0;
    result->getResultTypeName();
    const double length = result->getSnapshotLengthNoError();
    const DOMWriter writer;
    for (int i = -1; i <= length + 1; ++i) {
      if (length > 0) result->snapshotItem(i);
      if (const std::unique_ptr<Node> node{result->getNodeValueNoError()}) writer.writeToString(node.get());
    }
  } catch (const basis::except::IMsgIDException&) {
    // a failure with its identifier is a fine answer to a bad expression
  }
  return 0;
}
