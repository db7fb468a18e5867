// Raw Xerces doing what paxorel does for each task, set up the way the
// library sets it up, and handing back the same values: strings are copied
// into ustrings, as the library returns them.
#include "implementations.hpp"

#include <paxorel/xml/core/XercesGuard.hpp>
#include <paxorel/xml/dom/Document.hpp>

#include <basis/text/utf.hpp>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>

#include <memory>
#include <vector>

namespace bench {

using namespace xercesc;
using paxorel::xml::lsImplementation;

namespace {

struct Release {
  template <class T>
  void operator()(T* released) const {
    released->release();
  }
};

template <class T>
using Owned = std::unique_ptr<T, Release>;

// The library's parser set-up: the caller adopts each parsed document.
Owned<DOMLSParser> parser() {
  Owned<DOMLSParser> made(lsImplementation()->createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr));
  made->getDomConfig()->setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, true);
  return made;
}

// Text reaches the parser as the library hands it over: a UTF-8 copy in a
// buffer that is not copied again.
Owned<DOMDocument> parse(const ustring& text) {
  const std::string bytes = basis::text::to_utf8(text);
  const Owned<DOMLSInput> input(lsImplementation()->createLSInput());
  MemBufInputSource source(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(), "XML", false);
  source.setCopyBufToStream(false);
  input->setByteStream(&source);
  input->setEncoding(XMLUni::fgUTF8EncodingString);
  return Owned<DOMDocument>(parser()->parse(input.get()));
}

// The serializer as the library's writer sets it up.
DOMLSSerializer& serializer() {
  static const Owned<DOMLSSerializer> made = [] {
    Owned<DOMLSSerializer> serializer(lsImplementation()->createLSSerializer());
    serializer->getDomConfig()->setParameter(XMLUni::fgDOMWRTXercesPrettyPrint, false);
    return serializer;
  }();
  return *made;
}

std::size_t read(const DOMNode* node) {
  std::size_t seen = 1 + node->getNodeType() + ustring(node->getNodeName()).size();
  if (const DOMNamedNodeMap* attributes = node->getAttributes()) {
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) seen += ustring(attributes->item(i)->getNodeValue()).size();
  }
  return seen;
}

const auto siblings = [](const DOMNode* node, const auto& visit) {
  for (const DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) visit(child);
};

const auto items = [](const DOMNode* node, const auto& visit) {
  const DOMNodeList* list = node->getChildNodes();
  const XMLSize_t count = list->getLength();
  for (XMLSize_t i = 0; i < count; ++i) visit(list->item(i));
};

const auto children = [](const DOMNode* node, const auto& visit) {
  std::vector<const DOMNode*> all;
  for (const DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) all.push_back(child);
  for (const DOMNode* child : all) visit(child);
};

// A task on the DOM of paxorel's tree of the input.
template <class Task>
Prepare onTree(Task task) {
  return [task](const Input& input) -> Work {
    return [task, document = paxorelTree(input)] { return task(document->getImpl()); };
  };
}

template <class EachChild>
Prepare walkWith(EachChild eachChild) {
  return onTree([eachChild](const DOMDocument* document) { return walk<const DOMNode*>(document, read, eachChild); });
}

// What Element::getNodeIndex counts: the position of `self` in document
// order, where each element's attributes follow it without being entered.
std::size_t nodeIndex(const DOMElement* self) {
  const auto next = [](const DOMNode* node, const DOMNode* root) -> const DOMNode* {
    if (const DOMNode* child = node->getFirstChild()) return child;
    for (; node != root; node = node->getParentNode()) {
      if (const DOMNode* sibling = node->getNextSibling()) return sibling;
    }
    return nullptr;
  };
  const DOMNode* document = self->getOwnerDocument();
  std::size_t index = 0;
  for (const DOMNode* node = document->getFirstChild(); node; node = next(node, document)) {
    ++index;
    if (node == self) break;
    if (node->getNodeType() == DOMNode::ELEMENT_NODE) index += node->getAttributes()->getLength();
  }
  return index;
}

}  // namespace

DOMElement* lastElement(const DOMDocument* document) {
  DOMElement* last = document->getDocumentElement();
  while (DOMElement* child = last->getLastElementChild()) last = child;
  return last;
}

Implementation xerces() {
  lsImplementation();
  return {
      "xerces",
      {
          {"parseFile",
           [](const Input& input) -> Work {
             return [path = basis::text::from_utf8(input.path())] {
               return Owned<DOMDocument>(parser()->parseURI(path.c_str())) != nullptr;
             };
           }},
          {"parseString",
           [](const Input& input) -> Work { return [&text = input.utf16()] { return parse(text) != nullptr; }; }},
          {"walkSiblings", walkWith(siblings)},
          {"walkItem", walkWith(items)},
          {"walkChildren", walkWith(children)},
          {"writeToString", onTree([](const DOMDocument* document) {
             const std::unique_ptr<XMLCh, void (*)(XMLCh*)> text(serializer().writeToString(document),
                                                                 [](XMLCh* t) { XMLString::release(&t); });
             return ustring(text.get()).size();
           })},
          {"writeToURI", onTree([path = basis::text::from_utf8(writtenPath("xerces"))](const DOMDocument* document) {
             LocalFileFormatTarget target(path.c_str());
             const Owned<DOMLSOutput> output(lsImplementation()->createLSOutput());
             output->setByteStream(&target);
             output->setEncoding(u"UTF-8");
             return std::size_t{serializer().write(document, output.get())};
           })},
          {"evaluate", onTree([path = basis::text::from_utf8(itemsPath)](DOMDocument* document) {
             const Owned<DOMXPathResult> found(document->evaluate(path.c_str(), document->getDocumentElement(), nullptr,
                                                                  DOMXPathResult::ORDERED_NODE_SNAPSHOT_TYPE, nullptr));
             std::size_t seen = 0;
             for (XMLSize_t i = 0; found->snapshotItem(i); ++i)
               seen += ustring(found->getNodeValue()->getNodeName()).size();
             return seen;
           })},
          {"getNodeIndex",
           [](const Input& input) -> Work {
             return [last = lastElement(paxorelTree(input)->getImpl())] { return nodeIndex(last); };
           }},
      },
      [](const std::string& path) {
        const Owned<DOMDocument> document(parser()->parseURI(basis::text::from_utf8(path).c_str()));
        return walk<const DOMNode*>(document.get(), read, siblings);
      },
      [](std::size_t calls) {
        const Owned<DOMDocument> document(
            lsImplementation()->createDocument(nullptr, u"r", nullptr, XMLPlatformUtils::fgMemoryManager));
        DOMElement* root = document->getDocumentElement();
        for (std::size_t call = 0; call < calls; ++call) root->setAttribute(u"a", decimal(call).c_str());
        return ustring(root->getAttribute(u"a")).size();
      },
  };
}

}  // namespace bench
