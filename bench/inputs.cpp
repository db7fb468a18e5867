#include "inputs.hpp"

#include <basis/text/utf.hpp>

#include <stdlib.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace bench {

namespace {

const char* const declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

// Records of about 330 bytes with every kind of node the parser keeps:
// attributes (one of them prefixed), text in Latin with accents, CJK and a
// character beyond the BMP, a comment, a processing instruction, a default
// namespace on one child and a prefixed one on another. The items themselves
// stay in no namespace, so that XPath finds them without a resolver.
std::string catalogue(std::size_t bytes) {
  static const char* const kinds[] = {"plain", "boxed", "bulk"};
  const std::string end = "</catalog>\n";
  std::string text = declaration;
  text.reserve(bytes + 512);
  text += "<?catalogue-tool version=\"2\"?>\n<catalog xmlns:x=\"urn:paxorel:bench:extra\" title=\"Catálogo\">\n";
  for (std::size_t i = 0; text.size() + end.size() < bytes; ++i) {
    const std::string n = std::to_string(i);
    text += "<item id=\"i" + n + "\" x:rank=\"" + std::to_string(i % 1000) + "\" kind=\"" + kinds[i % 3] + "\">";
    text += "<name>Café número " + n + " — Ünïcødé</name>";
    text += "<!-- restocked on day " + std::to_string(i % 365) + " -->";
    text += "<?audit state=\"checked\"?>";
    text += "<price currency=\"EUR\">" + std::to_string(i % 97) + ".50</price>";
    text += "<label xmlns=\"urn:paxorel:bench:label\" lang=\"ja\">東京の品物 " + n + " 𝄞</label>";
    text += "<x:tag x:weight=\"" + std::to_string(i % 13) + "\"/></item>\n";
  }
  return text + end;
}

std::string deep(std::size_t depth) {
  std::string text = declaration;
  for (std::size_t level = 0; level < depth; ++level) text += "<item level=\"" + std::to_string(level) + "\">";
  text += "fond 🌲";
  for (std::size_t level = 0; level < depth; ++level) text += "</item>";
  return text + "\n";
}

std::string wide(std::size_t children) {
  std::string text = declaration;
  text += "<list>";
  for (std::size_t i = 0; i < children; ++i) text += "<item n=\"" + std::to_string(i) + "\"/>";
  return text + "</list>\n";
}

std::string nameOf(Input::Shape shape, std::size_t size) {
  switch (shape) {
    case Input::Shape::catalogue:
      return size % 1'000'000 == 0 ? std::to_string(size / 1'000'000) + "MB" : std::to_string(size) + "B";
    case Input::Shape::deep: return "deep";
    case Input::Shape::wide: return "wide";
  }
  return {};
}

}  // namespace

Input::Input(Shape shape, std::size_t size) : shape_(shape), size_(size), name_(nameOf(shape, size)) {}

Input Input::scaledDown(std::size_t divisor) const {
  Input copy(shape_, std::max<std::size_t>(size_ / divisor, 1));
  copy.name_ = name_ + "@" + std::to_string(copy.size_);
  return copy;
}

const std::string& Input::utf8() const {
  if (utf8_.empty()) {
    switch (shape_) {
      case Shape::catalogue: utf8_ = catalogue(size_); break;
      case Shape::deep: utf8_ = deep(size_); break;
      case Shape::wide: utf8_ = wide(size_); break;
    }
  }
  return utf8_;
}

const ustring& Input::utf16() const {
  if (utf16_.empty()) utf16_ = basis::text::from_utf8(utf8());
  return utf16_;
}

const std::string& Input::path() const {
  if (path_.empty()) {
    const std::string path = scratchDirectory() + "/" + name_ + ".xml";
    std::ofstream file(path, std::ios::binary);
    file << utf8();
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
    path_ = path;
  }
  return path_;
}

const std::string& scratchDirectory() {
  struct Directory {
    std::string path;
    Directory() {
      std::string name = (std::filesystem::temp_directory_path() / "paxorel-bench-XXXXXX").string();
      if (!mkdtemp(name.data())) throw std::system_error(errno, std::generic_category(), "mkdtemp");
      path = name;
    }
    ~Directory() {
      std::error_code ignored;
      std::filesystem::remove_all(path, ignored);
    }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;
  };
  static const Directory directory;
  return directory.path;
}

std::string writtenPath(const std::string& implementation) {
  return scratchDirectory() + "/written-by-" + implementation + ".xml";
}

}  // namespace bench
