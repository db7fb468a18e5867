#pragma once

#include "inputs.hpp"

#include <paxorel/xml/core/XercesFwd.hpp>

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace paxorel::xml {
class Document;
}

namespace bench {

/// What is timed of a task, readied on one input. It returns a count drawn
/// from everything it read, so that nothing of it can be optimised away.
using Work = std::function<std::size_t()>;
/// Readies a task on an input, doing what is not to be timed (parsing the
/// tree, finding a node). The input outlives the work.
using Prepare = std::function<Work(const Input&)>;

/// One implementation under comparison and the tasks it can do, by name.
struct Implementation {
  std::string name;
  std::map<std::string, Prepare> tasks;
  /// Parses the file at a path and walks the tree by first child and next
  /// sibling, returning what the walk counted: the work whose peak memory
  /// is measured.
  std::function<std::size_t(const std::string& path)> parseAndWalk;
  /// Sets one attribute of a new document's root element the given number
  /// of times, to a new value each time, and returns the length of the last
  /// value read back: whether the old values' nodes are reused shows in the
  /// peak memory. Empty where the implementation has no such DOM.
  std::function<std::size_t(std::size_t calls)> setAttributeLoop;
};

/// How many setAttribute calls the memory row runs.
inline constexpr std::size_t setAttributeCalls = 1'000'000;

/// The value of the `call`th setAttribute: its decimal digits.
inline ustring decimal(std::size_t call) {
  const std::string digits = std::to_string(call);
  return ustring(digits.begin(), digits.end());
}

/// Each starts its library, so that nothing measured later pays for that.
Implementation paxorel();
Implementation xerces();
Implementation pugixml();
Implementation libxml2();

/// paxorel's tree of `input`, parsed once for the run. The raw Xerces tasks
/// work on its DOM too, so that both sides visit the very same nodes.
const std::shared_ptr<paxorel::xml::Document>& paxorelTree(const Input& input);

/// The last element of `document` in document order.
xercesc::DOMElement* lastElement(const xercesc::DOMDocument* document);

/// The expression every XPath task evaluates from the root element: all item
/// elements below it, at any depth.
inline const char* const itemsPath = ".//item";

/// Depth-first from `node`: `read(node)` counts what one node gives, and
/// `eachChild(node, f)` calls `f` on each child in document order.
template <class NodeRef, class Read, class EachChild>
std::size_t walk(NodeRef node, const Read& read, const EachChild& eachChild) {
  std::size_t seen = read(node);
  eachChild(node, [&](NodeRef child) { seen += walk<NodeRef>(child, read, eachChild); });
  return seen;
}

/// The value `make` gives for `input`, made once and kept for the rest of the
/// run in `kept`, by the input's name.
template <class Value, class Make>
const Value& keep(std::map<std::string, Value>& kept, const Input& input, Make make) {
  auto found = kept.find(input.name());
  if (found == kept.end()) found = kept.emplace(input.name(), make()).first;
  return found->second;
}

}  // namespace bench
