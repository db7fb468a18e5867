// libxml2 as a peer, for context: it reads names and values in place, as
// its users would. Its default depth limit would refuse the deep document,
// so it parses with XML_PARSE_HUGE, which lifts that limit (and others that
// these inputs never reach) without changing the work.
#include "implementations.hpp"

#include <basis/text/utf.hpp>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <cstring>
#include <stdexcept>

namespace bench {

namespace {

constexpr int options = XML_PARSE_HUGE | XML_PARSE_NONET;

struct Free {
  void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
  void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
  void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
  void operator()(xmlChar* text) const { xmlFree(text); }
};

template <class T>
using Owned = std::unique_ptr<T, Free>;

Owned<xmlDoc> checked(xmlDoc* document) {
  if (!document) throw std::runtime_error("libxml2: " + std::string(xmlGetLastError()->message));
  return Owned<xmlDoc>(document);
}

std::size_t length(const xmlChar* text) { return text ? std::strlen(reinterpret_cast<const char*>(text)) : 0; }

std::size_t read(const xmlNode* node) {
  std::size_t seen = 1 + node->type + length(node->name);
  if (node->type == XML_ELEMENT_NODE) {
    for (const xmlAttr* attribute = node->properties; attribute; attribute = attribute->next) {
      for (const xmlNode* text = attribute->children; text; text = text->next) seen += length(text->content);
    }
  }
  return seen;
}

const auto siblings = [](const xmlNode* node, const auto& visit) {
  for (const xmlNode* child = node->children; child; child = child->next) visit(child);
};

// A document starts with the fields of a node, as libxml2 lays them out.
std::size_t walkAll(xmlDoc* document) {
  return walk<const xmlNode*>(reinterpret_cast<const xmlNode*>(document), read, siblings);
}

template <class Task>
Prepare onTree(Task task) {
  return [task](const Input& input) -> Work {
    static std::map<std::string, std::shared_ptr<xmlDoc>> kept;
    return [task, document = keep(kept, input, [&] {
                    return std::shared_ptr<xmlDoc>(checked(xmlReadMemory(
                        input.utf8().data(), static_cast<int>(input.utf8().size()), nullptr, "UTF-8", options)));
                  })] { return task(document.get()); };
  };
}

}  // namespace

Implementation libxml2() {
  xmlInitParser();
  return {
      "libxml2",
      {
          {"parseFile",
           [](const Input& input) -> Work {
             return [&path = input.path()] { return checked(xmlReadFile(path.c_str(), nullptr, options)) != nullptr; };
           }},
          // From the same UTF-16 text as the others, converted first.
          {"parseString",
           [](const Input& input) -> Work {
             return [&text = input.utf16()] {
               const std::string bytes = basis::text::to_utf8(text);
               return checked(xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, "UTF-8", options)) !=
                      nullptr;
             };
           }},
          {"walkSiblings", onTree(walkAll)},
          {"writeToString", onTree([](xmlDoc* document) {
             xmlChar* text = nullptr;
             int size = 0;
             xmlDocDumpMemoryEnc(document, &text, &size, "UTF-8");
             const Owned<xmlChar> owned(text);
             return static_cast<std::size_t>(size);
           })},
          {"writeToURI", onTree([path = writtenPath("libxml2")](xmlDoc* document) {
             if (xmlSaveFileEnc(path.c_str(), document, "UTF-8") < 0) {
               throw std::runtime_error("libxml2: cannot write " + path);
             }
             return std::size_t{1};
           })},
          {"evaluate", onTree([](xmlDoc* document) {
             const Owned<xmlXPathContext> context(xmlXPathNewContext(document));
             context->node = xmlDocGetRootElement(document);
             const Owned<xmlXPathObject> found(
                 xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(itemsPath), context.get()));
             std::size_t seen = 0;
             for (int i = 0; found->nodesetval && i < found->nodesetval->nodeNr; ++i) {
               seen += length(found->nodesetval->nodeTab[i]->name);
             }
             return seen;
           })},
      },
      [](const std::string& path) { return walkAll(checked(xmlReadFile(path.c_str(), nullptr, options)).get()); },
      {},
  };
}

}  // namespace bench
