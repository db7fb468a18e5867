#include "support/TempDir.hpp"

#include <basis/text/utf.hpp>

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace testing_support {

TempDir::TempDir() {
  std::string pattern = (std::filesystem::temp_directory_path() / "paxorel-test-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary directory");
  dir_ = pattern;
}

TempDir::~TempDir() {
  std::error_code ignored;
  std::filesystem::remove_all(dir_, ignored);
}

std::string TempDir::write(const std::string& name, const std::string& content) const {
  std::ofstream(path(name), std::ios::binary) << content;
  return path(name);
}

basis::ustring u(const std::string& text) { return basis::text::from_utf8(text); }

}  // namespace testing_support
