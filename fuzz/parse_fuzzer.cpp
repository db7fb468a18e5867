// Feeds arbitrary input to the parser, as text to parseString or as the
// bytes of a file to parseURI, with the parser's options drawn from the
// input's last bytes. When it parses, every node of the tree is read through
// the public interface and the tree is written back out: nothing may crash
// or leak.
//
// Built as parse_safe_fuzzer (UNTRUSTED_INPUT_PROFILE), it puts the profile
// for untrusted input over the drawn options, with a small expansion limit;
// ./dev fuzz runs it under a memory bound that no input may pass. One known
// way past it is Xerces's own: entities in the default of an attribute list
// declaration expand uncounted (README, "Parsing untrusted input"), and
// only DisallowDoctype stops that.
#include <paxorel/xml.hpp>

#include <basis/text/utf.hpp>

#include "support/attacks.hpp"

#include <fuzzer/FuzzedDataProvider.h>

#include <unistd.h>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
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
    for (int i = 0; i < attributes->getLength(); ++i) {
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

// Switches each boolean option on or off by one bit of `bits`.
void configure(ParserConfiguration& options, std::uint32_t bits) {
  using Setter = void (ParserConfiguration::*)(bool);
  static constexpr Setter setters[] = {
      &ParserConfiguration::setNamespaces,
      &ParserConfiguration::setElementContentWhitespace,
      &ParserConfiguration::setLoadExternalDTD,
      &ParserConfiguration::setDisableDefaultEntityResolution,
      &ParserConfiguration::setDisallowDoctype,
      &ParserConfiguration::setEntities,
      &ParserConfiguration::setStandardURIConformant,
      &ParserConfiguration::setValidate,
      &ParserConfiguration::setSkipDTDValidation,
      &ParserConfiguration::setValidationErrorAsFatal,
      &ParserConfiguration::setContinueAfterFatalError,
      &ParserConfiguration::setComments,
      &ParserConfiguration::setDoXInclude,
      &ParserConfiguration::setLoadSchema,
      &ParserConfiguration::setSchema,
      &ParserConfiguration::setValidateIfSchema,
      &ParserConfiguration::setSchemaFullChecking,
      &ParserConfiguration::setDatatypeNormalization,
      &ParserConfiguration::setIgnoreAnnotations,
      &ParserConfiguration::setValidateAnnotations,
      &ParserConfiguration::setGenerateSyntheticAnnotations,
      &ParserConfiguration::setCacheGrammarFromParse,
      &ParserConfiguration::setUseCachedGrammarInParse,
      &ParserConfiguration::setHandleMultipleImports,
  };
  for (const Setter set : setters) {
    (options.*set)((bits & 1U) != 0);
    bits >>= 1U;
  }
}

// The file that parseURI reads, one per fuzzing process, removed at exit.
struct InputFile {
  std::string path = "/tmp/paxorel-parse-fuzzer-" + std::to_string(getpid()) + ".xml";
  ~InputFile() { static_cast<void>(std::remove(path.c_str())); }
};

Document* parseFileBytes(const Parser& parser, const std::string& bytes) {
  static const InputFile input;
  std::FILE* file = std::fopen(input.path.c_str(), "wb");
  if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fclose(file) != 0) {
    std::abort();  // the fuzzer's own trouble, not the library's
  }
  return parser.parseURI(basis::text::from_utf8(input.path));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  // Options come from the end, so that a plain XML file is a good seed.
  const bool fromFile = input.ConsumeBool();
  const auto bits = input.ConsumeIntegral<std::uint32_t>();
  const std::string bytes = input.ConsumeRemainingBytesAsString();
  try {
    const Parser parser;
    const std::unique_ptr<ParserConfiguration> options(parser.getConfiguration());
    configure(*options, bits);
#ifdef UNTRUSTED_INPUT_PROFILE
    testing_support::attacks::applySafeProfile(*options, 16);
#endif
    const std::shared_ptr<Document> document = DocumentRegistry::shareWithCaller(
        fromFile ? parseFileBytes(parser, bytes) : parser.parseString(basis::text::from_utf8(bytes)));
    if (!document) return 0;
    visit(*document, 0);
    const DOMWriter writer;
    writer.writeToString(document.get());
    const std::unique_ptr<Node> copy(document->getDocumentElement());
    if (copy) std::unique_ptr<Node>(document->importNode(copy.get()));
    document->normalizeDocument();
  } catch (const basis::except::IMsgIDException&) {
    // a failure with its identifier is a fine answer to bad input
  } catch (const xercesc::DOMException&) {
    // some operations let Xerces's own refusals through, by design
  }
  return 0;
}
