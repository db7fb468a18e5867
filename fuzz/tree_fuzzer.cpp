// Runs arbitrary sequences of tree changes and drops: nodes are made, moved
// between parents and documents, copied, renamed and removed, while the
// caller's shares of documents and the wrappers go in any order. After each
// sequence every surviving wrapper must still read its node, and once
// everything is dropped all memory must come back (libFuzzer's leak check).
#include <paxorel/xml.hpp>

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace paxorel::xml;

namespace {

constexpr std::size_t maxWrappers = 48;
constexpr std::size_t maxDocuments = 4;

// Xerces keeps about 5 KB for each document type made outside a document
// until the process ends (tests/retained.supp tells why); a budget keeps the
// memory of a long run flat.
int orphanBudget = 10000;

bool mayMakeOrphan() { return orphanBudget > 0 && orphanBudget-- > 0; }

const char16_t* const names[] = {u"a", u"p:b", u"xmlns", u"xml:c", u"d e", u""};
const char16_t* const namespaces[] = {u"", u"urn:p", u"http://www.w3.org/XML/1998/namespace"};

class Session {
 public:
  explicit Session(FuzzedDataProvider& input) : input_(input) {}

  void run() {
    while (input_.remaining_bytes() > 0) {
      try {
        step();
      } catch (const basis::except::IMsgIDException&) {
        // a refusal with its identifier is a fine answer
      } catch (const xercesc::DOMException&) {
        // some operations let Xerces's own refusals through, by design
      } catch (const std::out_of_range&) {
        // "map::at": a document whose callers had all let go
      }
    }
    for (const auto& node : nodes_) read(node.get());
    dropAll();
  }

 private:
  void step() {
    switch (input_.ConsumeIntegralInRange(0, 13)) {
      case 0: newDocument(); break;
      case 1:  // an element without namespace is one that Xerces renames into a new node
        keep(input_.ConsumeBool() ? document()->createElement(pick(names))
                                  : document()->createElementNS(pick(namespaces), pick(names)));
        break;
      case 2: keep(document()->createAttributeNS(pick(namespaces), pick(names))); break;
      case 3: keep(document()->createTextNode(u"t\u00e9xt")); break;
      case 4:
        keep(input_.ConsumeBool() ? static_cast<Node*>(document()->createComment(u"c"))
                                  : document()->createProcessingInstruction(u"pi", u"d"));
        break;
      case 5: keep(document()->createDocumentFragment()); break;
      case 6:
        if (mayMakeOrphan()) keep(new DocumentType(pick(names), u"", u""));
        break;
      case 7: keep(document()->importNodeBase(node(), input_.ConsumeBool())); break;
      case 8: document()->renameNode(node(), pick(namespaces), pick(names)); break;
      case 9: shareOwner(); break;
      case 10: drop(nodes_); break;
      case 11: drop(documents_); break;
      default:
        if (Node* on = node()) change(*on);
    }
  }

  // Arguments may be null or wrappers of any node, this one included; the
  // child operations give back their argument, which the pool owns already.
  void change(Node& on) {
    switch (input_.ConsumeIntegralInRange(0, 7)) {
      case 0: on.appendChild(node()); break;
      case 1: on.insertBefore(node(), node()); break;
      case 2: on.replaceChild(node(), node()); break;
      case 3: on.removeChild(node()); break;
      case 4:
        if (!on.getImpl() || !DocumentType::isOrphan(*on.getImpl()) || mayMakeOrphan())
          keep(on.cloneNode(input_.ConsumeBool()));
        break;
      case 5: on.setTextContent(u"x"); break;
      case 6: attributes(on); break;
      default: navigate(on);
    }
  }

  template <std::size_t N>
  const char16_t* pick(const char16_t* const (&choices)[N]) {
    return choices[input_.ConsumeIntegralInRange<std::size_t>(0, N - 1)];
  }

  void keep(Node* made) {
    if (!made) return;
    if (nodes_.size() == maxWrappers) nodes_.erase(nodes_.begin());
    nodes_.emplace_back(made);
  }

  // A wrapper from the pool, possibly dropped (null) or absent.
  Node* node() {
    if (nodes_.empty()) return nullptr;
    return nodes_[input_.ConsumeIntegralInRange<std::size_t>(0, nodes_.size() - 1)].get();
  }

  Document* document() {
    if (documents_.empty()) newDocument();
    return documents_[input_.ConsumeIntegralInRange<std::size_t>(0, documents_.size() - 1)].get();
  }

  void newDocument() {
    if (documents_.size() == maxDocuments) return;
    documents_.push_back(input_.ConsumeBool() ? createDocument(u"root")
                                              : parseString(u"<r a='1'><s>t</s><!--c--><s/></r>"));
  }

  void navigate(Node& from) {
    switch (input_.ConsumeIntegralInRange(0, 5)) {
      case 0: return keep(from.getFirstChild());
      case 1: return keep(from.getLastChild());
      case 2: return keep(from.getNextSibling());
      case 3: {
        // the parent of a top-level node is the Document wrapper, not the caller's
        Node* parent = from.getParentNode();
        return keep(dynamic_cast<Document*>(parent) ? nullptr : parent);
      }
      case 4: return keep(from.item(input_.ConsumeIntegralInRange(-1, 3)));
      default:
        for (Node* child : from.getChildren()) keep(child);
    }
  }

  void attributes(Node& on) {
    auto* element = dynamic_cast<Element*>(&on);
    if (!element) return;
    auto* attr = dynamic_cast<Attr*>(node());
    if (input_.ConsumeBool()) {
      element->setAttributeNodeNS(attr);
    } else {
      element->removeAttributeNode(attr);
    }
  }

  // What a native caller does to keep the document of a node it holds.
  void shareOwner() {
    const Node* from = node();
    if (!from || documents_.size() == maxDocuments) return;
    if (Document* owner = from->getOwnerDocument()) documents_.push_back(DocumentRegistry::shareWithCaller(owner));
  }

  template <class Pointer>
  void drop(std::vector<Pointer>& pointers) {
    if (pointers.empty()) return;
    const auto at = input_.ConsumeIntegralInRange<std::ptrdiff_t>(0, static_cast<std::ptrdiff_t>(pointers.size()) - 1);
    pointers.erase(pointers.begin() + at);
  }

  // Every surviving wrapper still reads its node and what is around it.
  // Every surviving wrapper still reads its node, and its child list agrees
  // with the sibling links, whatever moved or renamed the node meanwhile.
  static void read(Node* node) {
    if (!node) return;
    node->getNodeName();
    node->getNodeValue();
    node->getTextContent();
    delete node->getNextSibling();
    DOMWriter().writeToString(node);
    std::vector<std::unique_ptr<Node>> children;
    for (Node* child : node->getChildren()) children.emplace_back(child);
    if (node->getLength() != static_cast<double>(children.size())) std::abort();
    for (std::size_t i = 0; i < children.size(); ++i) {
      if (!std::unique_ptr<Node>(node->item(static_cast<double>(i)))->isSameNode(children[i].get())) std::abort();
    }
  }

  // Shares and wrappers go in an order drawn from the input (what is left of
  // it), then the registry entries that getOwnerDocument made are let go, as
  // a host drops its handles.
  void dropAll() {
    while (!nodes_.empty() || !documents_.empty()) {
      if (!documents_.empty() && (nodes_.empty() || input_.ConsumeBool())) {
        documents_.pop_back();
      } else {
        drop(nodes_);
      }
    }
    const std::shared_ptr<DocumentRegistry> registry = DocumentRegistry::getInstance();
    while (!registry->entries().empty()) registry->unregisterDocument(registry->entries().begin()->first);
  }

  FuzzedDataProvider& input_;
  std::vector<std::shared_ptr<Document>> documents_;
  std::vector<std::unique_ptr<Node>> nodes_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  Session(input).run();
  return 0;
}
