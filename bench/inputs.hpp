#pragma once

#include <basis/ustring.hpp>

#include <cstddef>
#include <string>

namespace bench {

using basis::ustring;

/// A generated document, the same bytes on every run. Its text, its UTF-16
/// copy and its file are made on first use and kept until the process ends.
class Input {
 public:
  enum class Shape {
    catalogue,  ///< records of every kind of node; `size` is the length in bytes
    deep,       ///< `size` elements, each inside the one before
    wide,       ///< one element with `size` children
  };

  Input(Shape shape, std::size_t size);

  /// "1MB", "deep", "wide"; a scaled-down copy adds its size, as "wide@15625".
  const std::string& name() const { return name_; }
  /// The same shape at `size` / `divisor`, which is at least 1.
  Input scaledDown(std::size_t divisor) const;

  const std::string& utf8() const;
  const ustring& utf16() const;
  /// A file under the run's scratch directory that holds utf8().
  const std::string& path() const;

 private:
  Shape shape_;
  std::size_t size_;
  std::string name_;
  mutable std::string utf8_;
  mutable ustring utf16_;
  mutable std::string path_;
};

/// The directory for this run's files, made on first use and removed with
/// everything in it when the process ends.
const std::string& scratchDirectory();

/// The file in the scratch directory that `implementation`'s writing tasks write.
std::string writtenPath(const std::string& implementation);

}  // namespace bench
