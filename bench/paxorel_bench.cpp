// Each paxorel benchmark has a raw Xerces twin on the same input, so that
// their ratio, taken from one run, tells what the library's layer costs.
#include <paxorel/xml.hpp>
#include <paxorel/xml/core/XercesGuard.hpp>

#include <basis/text/utf.hpp>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>

using namespace paxorel::xml;

namespace {

// A catalogue of `items` records, each an element with attributes, text, a
// comment and a nested element: about 230 bytes per record.
ustring makeDocument(int items) {
  std::string text = "<?xml version='1.0'?><catalog xmlns:x='urn:x'>";
  for (int i = 0; i < items; ++i) {
    const std::string n = std::to_string(i);
    text += "<item id='i" + n + "' x:rank='" + n + "' kind='plain'><name>Item number " + n + "</name><!-- note " + n +
            " --><price currency='EUR'>" + std::to_string(i % 97) + ".50</price><x:tag/></item>\n";
  }
  text += "</catalog>";
  return basis::text::from_utf8(text);
}

const ustring& document(int items) {
  static std::map<int, ustring> made;
  auto& text = made[items];
  if (text.empty()) text = makeDocument(items);
  return text;
}

// Raw Xerces: the same LS parser set-up and UTF-8 buffer as the library's.
xercesc::DOMDocument* xercesParse(xercesc::DOMLSParser* parser, const std::string& bytes) {
  xercesc::DOMLSInput* input = lsImplementation()->createLSInput();
  xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(), "XML", false);
  source.setCopyBufToStream(false);
  input->setByteStream(&source);
  input->setEncoding(xercesc::XMLUni::fgUTF8EncodingString);
  xercesc::DOMDocument* result = parser->parse(input);
  input->release();
  return result;
}

xercesc::DOMLSParser* xercesParser() {
  xercesc::DOMLSParser* parser =
      lsImplementation()->createLSParser(xercesc::DOMImplementationLS::MODE_SYNCHRONOUS, nullptr);
  parser->getDomConfig()->setParameter(xercesc::XMLUni::fgXercesUserAdoptsDOMDocument, true);
  return parser;
}

void ParseString_Paxorel(benchmark::State& state) {
  const ustring& text = document(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(parseString(text));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

// One Parser for all parses, as the raw twin keeps one DOMLSParser.
void ParseString_PaxorelParser(benchmark::State& state) {
  const ustring& text = document(static_cast<int>(state.range(0)));
  const Parser parser;
  for (auto _ : state) benchmark::DoNotOptimize(DocumentRegistry::shareWithCaller(parser.parseString(text)));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void ParseString_Xerces(benchmark::State& state) {
  const ustring& text = document(static_cast<int>(state.range(0)));
  xercesc::DOMLSParser* parser = xercesParser();
  for (auto _ : state) {
    const std::string bytes = basis::text::to_utf8(text);  // as the library does
    xercesParse(parser, bytes)->release();
  }
  parser->release();
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

// Visits every node in document order, reading each node's name.
std::size_t walkPaxorel(Node& node) {
  std::size_t seen = 1;
  for (std::unique_ptr<Node> child(node.getFirstChild()); child; child.reset(child->getNextSibling())) {
    benchmark::DoNotOptimize(child->getNodeName());
    seen += walkPaxorel(*child);
  }
  return seen;
}

std::size_t walkXerces(const xercesc::DOMNode* node) {
  std::size_t seen = 1;
  for (const xercesc::DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) {
    benchmark::DoNotOptimize(ustring(child->getNodeName()));
    seen += walkXerces(child);
  }
  return seen;
}

void Walk_Paxorel(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  for (auto _ : state) benchmark::DoNotOptimize(walkPaxorel(*doc));
}

void Walk_Xerces(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  for (auto _ : state) benchmark::DoNotOptimize(walkXerces(doc->getImpl()));
}

// Index access through the child list, as host loops do. Xerces keeps
// children in a linked list, so each item(i) walks i siblings.
void ChildItems_Paxorel(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  const std::unique_ptr<Node> root(doc->getFirstChild());
  for (auto _ : state) {
    const double length = root->getLength();
    for (double i = 0; i < length; ++i) delete root->item(i);
  }
}

void ChildItems_Xerces(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  const xercesc::DOMNodeList* children = doc->getImpl()->getDocumentElement()->getChildNodes();
  for (auto _ : state) {
    const XMLSize_t length = children->getLength();
    for (XMLSize_t i = 0; i < length; ++i) benchmark::DoNotOptimize(children->item(i));
  }
}

// The serializer as DOMWriter sets it up.
std::unique_ptr<xercesc::DOMLSSerializer, void (*)(xercesc::DOMLSSerializer*)> xercesSerializer() {
  xercesc::DOMLSSerializer* serializer = lsImplementation()->createLSSerializer();
  serializer->getDomConfig()->setParameter(xercesc::XMLUni::fgDOMWRTXercesPrettyPrint, false);
  return {serializer, [](xercesc::DOMLSSerializer* s) { s->release(); }};
}

void WriteToString_Paxorel(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  const DOMWriter writer;
  for (auto _ : state) benchmark::DoNotOptimize(writer.writeToString(doc.get()));
}

void WriteToString_Xerces(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  const auto serializer = xercesSerializer();
  for (auto _ : state) {
    XMLCh* text = serializer->writeToString(doc->getImpl());
    benchmark::DoNotOptimize(ustring(text));  // as the library hands it over
    xercesc::XMLString::release(&text);
  }
}

const ustring outputPath = u"/tmp/paxorel-bench-output.xml";

void WriteToURI_Paxorel(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  const DOMWriter writer;
  for (auto _ : state) writer.writeToURI(doc.get(), outputPath, u"UTF-8");
  std::remove(basis::text::to_utf8(outputPath).c_str());
}

void WriteToURI_Xerces(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  const auto serializer = xercesSerializer();
  for (auto _ : state) {
    xercesc::LocalFileFormatTarget target(outputPath.c_str());
    xercesc::DOMLSOutput* output = lsImplementation()->createLSOutput();
    output->setByteStream(&target);
    output->setEncoding(u"UTF-8");
    serializer->write(doc->getImpl(), output);
    output->release();
  }
  std::remove(basis::text::to_utf8(outputPath).c_str());
}

// Every item of the catalogue as an ordered snapshot, walked node by node
// with each node's name read.
void EvaluateSnapshot_Paxorel(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    const std::unique_ptr<XPathResult> items(doc->evaluate(u"item", XPathResult::ORDERED_NODE_SNAPSHOT_TYPE()));
    for (double i = 0; items->snapshotItem(i); ++i) {
      benchmark::DoNotOptimize(std::unique_ptr<Node>(items->getNodeValue())->getNodeName());
    }
  }
}

void EvaluateSnapshot_Xerces(benchmark::State& state) {
  const auto doc = parseString(document(static_cast<int>(state.range(0))));
  xercesc::DOMDocument* tree = doc->getImpl();
  for (auto _ : state) {
    xercesc::DOMXPathResult* items = tree->evaluate(u"item", tree->getDocumentElement(), nullptr,
                                                    xercesc::DOMXPathResult::ORDERED_NODE_SNAPSHOT_TYPE, nullptr);
    for (XMLSize_t i = 0; items->snapshotItem(i); ++i) {
      benchmark::DoNotOptimize(ustring(items->getNodeValue()->getNodeName()));
    }
    items->release();
  }
}

}  // namespace

BENCHMARK(ParseString_Paxorel)->Arg(100)->Arg(5000);
BENCHMARK(ParseString_PaxorelParser)->Arg(100)->Arg(5000);
BENCHMARK(ParseString_Xerces)->Arg(100)->Arg(5000);
BENCHMARK(Walk_Paxorel)->Arg(5000);
BENCHMARK(Walk_Xerces)->Arg(5000);
BENCHMARK(ChildItems_Paxorel)->Arg(500);
BENCHMARK(ChildItems_Xerces)->Arg(500);
BENCHMARK(WriteToString_Paxorel)->Arg(5000);
BENCHMARK(WriteToString_Xerces)->Arg(5000);
BENCHMARK(WriteToURI_Paxorel)->Arg(5000);
BENCHMARK(WriteToURI_Xerces)->Arg(5000);
BENCHMARK(EvaluateSnapshot_Paxorel)->Arg(5000);
BENCHMARK(EvaluateSnapshot_Xerces)->Arg(5000);

BENCHMARK_MAIN();
