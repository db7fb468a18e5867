// Runs arbitrary sequences of tree and attribute changes and drops: nodes are
// made, moved between parents and documents, copied, renamed, normalised and
// removed, attributes set, replaced and removed in every way, while the
// caller's shares of documents and the wrappers go in any order.
//
// After every step each wrapper must still stand for the node it stood for:
// no two wrappers of distinct nodes may have become one node, no new node may
// be one that a wrapper holds, and a wrapper's node reads the same type, name
// and value unless the step changed that very node. (Xerces recycles the
// memory of nodes it releases; a wrapper of such a node would read another.)
// After each sequence every surviving wrapper must still read its node, and
// once everything is dropped all memory must come back (libFuzzer's leak
// check).
#include <paxorel/xml.hpp>

#include <fuzzer/FuzzedDataProvider.h>
#include <xercesc/dom/DOM.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <set>
#include <stdexcept>
#include <vector>

using namespace paxorel::xml;
using xercesc::DOMNode;

namespace {

constexpr std::size_t maxWrappers = 48;
constexpr std::size_t maxDocuments = 4;

// Xerces keeps about 5 KB for each document type made outside a document
// until the process ends (tests/retained.supp tells why); a budget keeps the
// memory of a long run flat.
int orphanBudget = 10000;

bool mayMakeOrphan() { return orphanBudget > 0 && orphanBudget-- > 0; }

const char16_t* const names[] = {u"a", u"p:b", u"xmlns", u"xml:c", u"d e", u"", u"d", u"b", u":b"};
const char16_t* const namespaces[] = {u"", u"urn:p", u"http://www.w3.org/XML/1998/namespace",
                                      u"http://www.w3.org/2000/xmlns/"};
const char16_t* const values[] = {u"1", u"v\u00e9", u""};

// A document with a default attribute, an entity with an element in it, and
// attributes with and without a namespace.
const char16_t* const parsed =
    u"<!DOCTYPE r [<!ATTLIST s d CDATA 'dflt'><!ENTITY e 'x<s b=\"1\"/>'>]>"
    u"<r xmlns:p='urn:p' a='1' p:b='2'><s>t</s><!--c-->&e;<s d='3'/><![CDATA[x]]></r>";

// A wrapper of the pool, with the number it was kept under: a new wrapper may
// get the memory of one dropped in the same step.
struct Kept {
  std::unique_ptr<Node> wrapper;
  std::uint64_t serial;
};

// What a kept wrapper read before a step.
struct Reading {
  std::uint64_t serial;
  const DOMNode* node;
  double type;
  ustring name;
  ustring value;
};

// The nodes that a step may change, and so may read differently after it.
class Touched {
 public:
  // The node itself, and the attribute it lies in, whose value it is part of.
  void node(const Node* wrapper) {
    if (!wrapper || !wrapper->getImpl()) return;
    DOMNode* touched = wrapper->getImpl();
    nodes_.insert(touched);
    const DOMNode* parent = touched->getParentNode();
    if (parent && parent->getNodeType() == DOMNode::ATTRIBUTE_NODE) nodes_.insert(parent);
  }
  // The attributes of an element, not what is in them.
  void attributesOf(const Node* wrapper) {
    if (!wrapper || !wrapper->getImpl()) return;
    if (const xercesc::DOMNamedNodeMap* map = wrapper->getImpl()->getAttributes()) {
      for (XMLSize_t i = 0; i < map->getLength(); ++i) nodes_.insert(map->item(i));
    }
  }
  // A node and everything in it, attributes and their content included.
  void subtree(const DOMNode* top) {
    if (!top) return;
    nodes_.insert(top);
    if (const xercesc::DOMNamedNodeMap* map = top->getAttributes()) {
      for (XMLSize_t i = 0; i < map->getLength(); ++i) subtree(map->item(i));
    }
    for (const DOMNode* child = top->getFirstChild(); child; child = child->getNextSibling()) subtree(child);
  }
  bool has(const DOMNode* node) const { return nodes_.count(node) != 0; }
  void clear() { nodes_.clear(); }

 private:
  std::set<const DOMNode*> nodes_;
};

class Session {
 public:
  explicit Session(FuzzedDataProvider& input) : input_(input) {}

  void run() {
    while (input_.remaining_bytes() > 0) {
      const std::vector<Reading> before = readings();
      fresh_.clear();
      touched_.clear();
      try {
        step();
      } catch (const basis::except::IMsgIDException&) {
        // a refusal with its identifier is a fine answer
      } catch (const xercesc::DOMException&) {
        // some operations let Xerces's own refusals through, by design
      } catch (const std::out_of_range&) {
        // "map::at": a document whose callers had all let go
      }
      check(before);
      if (nodes_.size() > maxWrappers) nodes_.erase(nodes_.begin(), nodes_.end() - maxWrappers);
    }
    for (const auto& kept : nodes_) read(kept.wrapper.get());
    dropAll();
  }

 private:
  void step() {
    switch (input_.ConsumeIntegralInRange(0, 16)) {
      case 0: newDocument(); break;
      case 1:  // an element without namespace is one that Xerces renames into a new node
        made(input_.ConsumeBool() ? document()->createElement(pick(names))
                                  : document()->createElementNS(pick(namespaces), pick(names)));
        break;
      case 2:
        made(input_.ConsumeBool() ? document()->createAttributeNS(pick(namespaces), pick(names))
                                  : document()->createAttribute(pick(names)));
        break;
      case 3: made(document()->createTextNode(u"t\u00e9xt")); break;
      case 4:
        switch (input_.ConsumeIntegralInRange(0, 3)) {
          case 0: made(document()->createComment(u"c")); break;
          case 1: made(document()->createProcessingInstruction(u"pi", u"d")); break;
          case 2: made(document()->createCDATASection(u"cd")); break;
          default: made(document()->createEntityReference(u"e"));
        }
        break;
      case 5: made(document()->createDocumentFragment()); break;
      case 6:
        if (mayMakeOrphan()) made(new DocumentType(pick(names), u"", u""));
        break;
      case 7: made(document()->importNodeBase(node(), input_.ConsumeBool())); break;
      case 8: rename(); break;
      case 9: shareOwner(); break;
      case 10: drop(nodes_); break;
      case 11: drop(documents_); break;
      case 12: normalizeDocument(); break;
      default:
        if (Node* on = node()) change(*on);
    }
  }

  // Arguments may be null or wrappers of any node, this one included; the
  // child operations give back their argument, which the pool owns already.
  void change(Node& on) {
    touched_.node(&on);
    switch (input_.ConsumeIntegralInRange(0, 11)) {
      case 0: on.appendChild(argument()); break;
      case 1: on.insertBefore(argument(), argument()); break;
      case 2: on.replaceChild(argument(), argument()); break;
      case 3: on.removeChild(argument()); break;
      case 4:
        if (!on.getImpl() || !DocumentType::isOrphan(*on.getImpl()) || mayMakeOrphan())
          made(on.cloneNode(input_.ConsumeBool()));
        break;
      case 5: on.setTextContent(pick(values)); break;
      case 6: on.setNodeValue(pick(values)); break;
      case 7:
        touched_.subtree(on.getImpl());
        on.normalize();
        break;
      case 8: characters(on); break;
      case 9: elementAttributes(on); break;
      case 10: attributeMap(on); break;
      default: navigate(on);
    }
    touched_.node(&on);  // where it is now
  }

  template <std::size_t N>
  const char16_t* pick(const char16_t* const (&choices)[N]) {
    return choices[input_.ConsumeIntegralInRange<std::size_t>(0, N - 1)];
  }

  // Kept until the end of the step at least, since the step may still use
  // the wrappers that were there before.
  void keep(Node* wrapper) {
    if (wrapper) nodes_.push_back({std::unique_ptr<Node>(wrapper), ++serial_});
  }

  // A wrapper of a node that did not exist before this step.
  void made(Node* wrapper) {
    if (wrapper) fresh_.push_back(wrapper->getImpl());
    keep(wrapper);
  }

  // A wrapper from the pool, possibly dropped (null) or absent.
  Node* node() {
    if (nodes_.empty()) return nullptr;
    return nodes_[input_.ConsumeIntegralInRange<std::size_t>(0, nodes_.size() - 1)].wrapper.get();
  }

  // One that the step may change, as may the attribute it lies in.
  Node* argument() {
    Node* given = node();
    touched_.node(given);
    return given;
  }

  Document* document() {
    if (documents_.empty()) newDocument();
    return documents_[input_.ConsumeIntegralInRange<std::size_t>(0, documents_.size() - 1)].get();
  }

  void newDocument() {
    if (documents_.size() == maxDocuments) return;
    documents_.push_back(input_.ConsumeBool() ? createDocument(u"root") : parseString(parsed));
  }

  void rename() {
    Node* renamed = argument();
    document()->renameNode(renamed, pick(namespaces), pick(names));
    touched_.node(renamed);  // the node it stands for now
  }

  // The whole tree changes, as the configuration says; what is outside it,
  // removed nodes included, stays as it is.
  void normalizeDocument() {
    Document* normalized = document();
    const std::unique_ptr<DocumentConfiguration> configuration(normalized->getDOMConfig());
    configuration->setComments(input_.ConsumeBool());
    configuration->setCDATASections(input_.ConsumeBool());
    configuration->setEntities(input_.ConsumeBool());
    touched_.subtree(normalized->getImpl());
    normalized->normalizeDocument();
  }

  void characters(Node& on) {
    auto* text = dynamic_cast<CharacterData*>(&on);
    if (!text) return;
    switch (input_.ConsumeIntegralInRange(0, 2)) {
      case 0: text->setData(pick(values)); break;
      case 1: text->appendData(pick(values)); break;
      default:
        if (auto* splittable = dynamic_cast<Text*>(text))
          made(splittable->splitText(input_.ConsumeIntegralInRange(0, 3)));
    }
  }

  void elementAttributes(Node& on) {
    if (auto* attr = dynamic_cast<Attr*>(&on)) return attr->setValue(pick(values));
    auto* element = dynamic_cast<Element*>(&on);
    if (!element) return;
    touched_.attributesOf(element);
    auto* attr = dynamic_cast<Attr*>(argument());
    switch (input_.ConsumeIntegralInRange(0, 9)) {
      case 0: element->setAttribute(pick(names), pick(values)); break;
      case 1: element->setAttributeNS(pick(namespaces), pick(names), pick(values)); break;
      case 2: element->removeAttribute(pick(names)); break;
      case 3: element->removeAttributeNS(pick(namespaces), pick(names)); break;
      case 4: element->setAttributeNode(attr); break;
      case 5: element->setAttributeNodeNS(attr); break;
      case 6: element->removeAttributeNode(attr); break;
      case 7: element->setIdAttribute(pick(names), input_.ConsumeBool()); break;
      case 8: keep(element->getAttributeNode(pick(names))); break;
      default: keep(element->getAttributeNodeNS(pick(namespaces), pick(names)));
    }
    touched_.attributesOf(element);
  }

  void attributeMap(Node& on) {
    const std::unique_ptr<NamedNodeMap> map(on.getAttributes());
    if (!map) return;
    touched_.attributesOf(&on);
    switch (input_.ConsumeIntegralInRange(0, 4)) {
      case 0: keep(map->item(input_.ConsumeIntegralInRange(-1, 4))); break;
      case 1: keep(map->getNamedItemNS(pick(namespaces), pick(names))); break;
      case 2: map->setNamedItem(argument()); break;
      case 3: map->setNamedItemNS(argument()); break;
      default: keep(map->removeNamedItemNS(pick(namespaces), pick(names)));
    }
    touched_.attributesOf(&on);
  }

  void navigate(Node& from) {
    switch (input_.ConsumeIntegralInRange(0, 6)) {
      case 0: return keep(from.getFirstChild());
      case 1: return keep(from.getLastChild());
      case 2: return keep(from.getNextSibling());
      case 3: return keep(from.getPreviousSibling());
      case 4: {
        // the parent of a top-level node is the Document wrapper, not the caller's
        Node* parent = from.getParentNode();
        return keep(dynamic_cast<Document*>(parent) ? nullptr : parent);
      }
      case 5: return keep(from.item(input_.ConsumeIntegralInRange(-1, 3)));
      default:
        for (Node* child : from.getChildren()) keep(child);
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

  std::vector<Reading> readings() const {
    std::vector<Reading> all;
    for (const Kept& kept : nodes_) {
      const Node& wrapper = *kept.wrapper;
      if (wrapper.getImpl()) {
        all.push_back(
            {kept.serial, wrapper.getImpl(), wrapper.getNodeType(), wrapper.getNodeName(), wrapper.getNodeValue()});
      }
    }
    return all;
  }

  // Every wrapper that lived through the step still stands for its node.
  void check(const std::vector<Reading>& before) const {
    std::vector<std::pair<const DOMNode*, const DOMNode*>> nodes;  // what each stands for now, and before
    auto kept = nodes_.begin();
    for (const Reading& was : before) {  // both in the order of keeping
      while (kept != nodes_.end() && kept->serial < was.serial) ++kept;
      if (kept == nodes_.end()) break;
      if (kept->serial != was.serial) continue;  // dropped
      const Node& wrapper = *kept->wrapper;
      const DOMNode* now = wrapper.getImpl();
      if (now != was.node && !touched_.has(was.node)) std::abort();  // only renameNode moves a wrapper
      if (!touched_.has(now) && (wrapper.getNodeType() != was.type || wrapper.getNodeName() != was.name ||
                                 wrapper.getNodeValue() != was.value)) {
        std::abort();
      }
      nodes.emplace_back(now, was.node);
    }
    // Distinct nodes stay distinct, and a new node is none that a wrapper held.
    std::sort(nodes.begin(), nodes.end());
    for (std::size_t i = 1; i < nodes.size(); ++i) {
      if (nodes[i].first == nodes[i - 1].first && nodes[i].second != nodes[i - 1].second) std::abort();
    }
    for (const auto& [now, then] : nodes) {
      if (std::find(fresh_.begin(), fresh_.end(), then) != fresh_.end()) std::abort();
    }
  }

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
  std::vector<Kept> nodes_;
  std::uint64_t serial_ = 0;
  std::vector<const DOMNode*> fresh_;  // nodes made by this step
  Touched touched_;                    // nodes this step may change
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  Session(input).run();
  return 0;
}
