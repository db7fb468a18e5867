// The bench's yardstick for the Python host: the native members that the
// Python walk calls, bound straight to Python with pybind11, with no records
// between. Also hands the bench its input, made by the C++ suite's generator.
#include "inputs.hpp"

#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/NamedNodeMap.hpp>
#include <paxorel/xml/dom/Node.hpp>
#include <paxorel/xml/parse/Parser.hpp>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <memory>

namespace py = pybind11;
using namespace paxorel::xml;

namespace {

struct Tree {
  std::shared_ptr<Document> document;
};

}  // namespace

PYBIND11_MODULE(paxorel_direct, module) {
  module.doc() = "The walk's native members bound directly with pybind11, for comparison with the host.";

  module.def(
      "catalogue", [](std::size_t bytes) { return bench::Input(bench::Input::Shape::catalogue, bytes).utf8(); },
      "The C++ suite's catalogue of about `bytes` bytes, as text.");

  // Each navigation gives a new wrapper, the Python object's to delete.
  py::class_<Node>(module, "Node")
      .def("getNodeType", &Node::getNodeType)
      .def("getNodeName", &Node::getNodeName)
      .def("getNodeValue", &Node::getNodeValue)
      .def("getFirstChild", &Node::getFirstChild)
      .def("getNextSibling", &Node::getNextSibling)
      .def("getAttributes", &Node::getAttributes);
  py::class_<NamedNodeMap>(module, "NamedNodeMap")
      .def("getLength", &NamedNodeMap::getLength)
      .def("item", &NamedNodeMap::item);
  // A parsed document, as its callers share it; its nodes keep it alive.
  py::class_<Tree>(module, "Document")
      .def("getFirstChild", [](const Tree& tree) { return tree.document->getFirstChild(); })
      .def("getDocumentElement", [](const Tree& tree) -> Node* { return tree.document->getDocumentElement(); });
  module.def("parseString", [](const ustring& text) { return Tree{paxorel::xml::parseString(text)}; });
}
