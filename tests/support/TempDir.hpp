#pragma once

#include <basis/text/utf.hpp>

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace testing_support {

/// A fresh directory of its own, removed again with the object.
class TempDir {
 public:
  TempDir() : dir_((std::filesystem::temp_directory_path() / "paxorel-test-XXXXXX").string()) {
    if (!mkdtemp(dir_.data())) throw std::runtime_error("cannot make a temporary directory");
  }
  ~TempDir() { std::filesystem::remove_all(dir_, ignored_); }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::string& dir() const { return dir_; }
  /// The path of `name` inside the directory.
  std::string path(const std::string& name) const { return dir_ + "/" + name; }
  /// Writes `content` to `name` and returns its path.
  std::string write(const std::string& name, const std::string& content) const {
    std::ofstream(path(name), std::ios::binary) << content;
    return path(name);
  }

 private:
  std::string dir_;
  std::error_code ignored_;
};

/// UTF-8 to a 16-bit string, for paths and the like.
inline basis::ustring u(const std::string& text) { return basis::text::from_utf8(text); }

}  // namespace testing_support
