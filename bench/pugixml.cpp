// pugixml as a peer, for context: it reads names and values in place, as
// its users would, and keeps the same nodes as Xerces (comments, processing
// instructions, whitespace between elements).
#include "implementations.hpp"

#include <basis/text/utf.hpp>

#include <pugixml.hpp>

#include <cstring>
#include <stdexcept>

namespace bench {

namespace {

constexpr unsigned options = pugi::parse_default | pugi::parse_comments | pugi::parse_pi | pugi::parse_ws_pcdata;

void check(const pugi::xml_parse_result& result) {
  if (!result) throw std::runtime_error(std::string("pugixml: ") + result.description());
}

std::size_t read(pugi::xml_node node) {
  std::size_t seen = 1 + node.type() + std::strlen(node.name());
  for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
    seen += std::strlen(attribute.value());
  }
  return seen;
}

const auto siblings = [](pugi::xml_node node, const auto& visit) {
  for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) visit(child);
};

std::size_t walkAll(const pugi::xml_document& document) {
  return walk<pugi::xml_node>(document.root(), read, siblings);
}

struct StringWriter : pugi::xml_writer {
  std::string text;
  void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
};

template <class Task>
Prepare onTree(Task task) {
  return [task](const Input& input) -> Work {
    static std::map<std::string, std::shared_ptr<pugi::xml_document>> kept;
    return [task, document = keep(kept, input, [&] {
                    auto parsed = std::make_shared<pugi::xml_document>();
                    check(parsed->load_buffer(input.utf8().data(), input.utf8().size(), options, pugi::encoding_utf8));
                    return parsed;
                  })] { return task(*document); };
  };
}

}  // namespace

Implementation pugixml() {
  return {
      "pugixml",
      {
          {"parseFile",
           [](const Input& input) -> Work {
             return [&path = input.path()] {
               pugi::xml_document document;
               check(document.load_file(path.c_str(), options));
               return std::size_t{1};
             };
           }},
          // From the same UTF-16 text as the others, converted first.
          {"parseString",
           [](const Input& input) -> Work {
             return [&text = input.utf16()] {
               std::string bytes = basis::text::to_utf8(text);
               pugi::xml_document document;
               check(document.load_buffer_inplace(bytes.data(), bytes.size(), options, pugi::encoding_utf8));
               return std::size_t{1};
             };
           }},
          {"walkSiblings", onTree(walkAll)},
          {"writeToString", onTree([](const pugi::xml_document& document) {
             StringWriter writer;
             document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
             return writer.text.size();
           })},
          {"writeToURI", onTree([path = writtenPath("pugixml")](const pugi::xml_document& document) {
             if (!document.save_file(path.c_str(), "", pugi::format_raw, pugi::encoding_utf8)) {
               throw std::runtime_error("pugixml: cannot write " + path);
             }
             return std::size_t{1};
           })},
          {"evaluate", onTree([](const pugi::xml_document& document) {
             std::size_t seen = 0;
             for (const pugi::xpath_node& found : document.document_element().select_nodes(itemsPath)) {
               seen += std::strlen(found.node().name());
             }
             return seen;
           })},
      },
      [](const std::string& path) {
        pugi::xml_document document;
        check(document.load_file(path.c_str(), options));
        return walkAll(document);
      },
      {},
  };
}

}  // namespace bench
