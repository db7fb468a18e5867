#pragma once

#include <basis/ustring.hpp>

#include <string>

namespace testing_support {

/// A fresh directory of its own, removed again with the object.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  /// The path of `name` inside the directory.
  std::string path(const std::string& name) const { return dir_ + "/" + name; }
  /// Writes `content` to `name` and returns its path.
  std::string write(const std::string& name, const std::string& content) const;
  const std::string& dir() const { return dir_; }

 private:
  std::string dir_;
};

/// UTF-8 to a 16-bit string, for paths and the like.
basis::ustring u(const std::string& text);

}  // namespace testing_support
