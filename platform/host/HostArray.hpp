#pragma once

#include <host/HostString.hpp>
#include <vorlo/InternedName.hpp>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorlo {
class VORInterface;
}

/// What the elements of a host array are.
enum class HostClassID : unsigned char {
  Double,       ///< real numbers
  Logical,      ///< true or false
  Char,         ///< one text of n 16-bit units, 1-by-n
  String,       ///< texts, each possibly missing
  UInt32,       ///< unsigned 32-bit numbers
  UInt64,       ///< unsigned 64-bit numbers
  Object,       ///< host objects of a class (or of several, for a heterogeneous array)
  Enumeration,  ///< members of an enumeration class, held by their values
};

/// Whether a numeric array is real; this platform has real numbers only.
enum class HostComplexity { Real };

/// The host's universal value: a rows-by-columns array of one kind of
/// element. Numbers, logicals and enumeration values take one 64-bit word per
/// element; an object array holds a counted reference to each of its host
/// objects, so that an array keeps its objects alive. Arrays are made and
/// destroyed by the host* operations (hostArrays.hpp); whoever is handed an
/// array owns it.
class HostArray {
 public:
  HostArray(HostClassID classID, std::size_t rows, std::size_t columns, vorlo::InternedName className = {});
  /// A deep copy: the same objects, each counted once more.
  HostArray(const HostArray& other);
  HostArray& operator=(const HostArray&) = delete;
  ~HostArray();

  /// Makes the array anew, as the constructor would, keeping the room its
  /// elements had: arrays are kept for reuse (hostDestroyArray).
  void reset(HostClassID classID, std::size_t rows, std::size_t columns, vorlo::InternedName className = {});
  /// Lets go of its objects; true when the array is small enough to be kept.
  bool clearForReuse() noexcept;

  HostClassID classID() const noexcept { return classID_; }
  std::size_t rows() const noexcept { return rows_; }
  std::size_t columns() const noexcept { return columns_; }
  std::size_t size() const noexcept { return rows_ * columns_; }
  bool isEmpty() const noexcept { return size() == 0; }
  /// The class of the elements: the class name of an object or enumeration
  /// array, otherwise the name of the kind ("double", "logical", "char",
  /// "string", "uint32", "uint64").
  vorlo::InternedName getClassName() const;
  void setClassName(vorlo::InternedName className) noexcept { className_ = className; }

  // Numbers, logicals and enumeration values; an index past the end is std::out_of_range.
  std::uint64_t word(std::size_t index) const { return words_.at(index); }
  void setWord(std::size_t index, std::uint64_t word) { words_.at(index) = word; }
  /// Element `index` as a double, whatever the numeric kind.
  double real(std::size_t index) const;
  void setReal(std::size_t index, double value);

  /// A text element: the one text of a char array (index 0), or an element
  /// of a string array.
  HostString& string(std::size_t index) { return strings_.at(index); }
  const HostString& string(std::size_t index) const { return strings_.at(index); }

  /// An object element, or null where none was set.
  vorlo::VORInterface* object(std::size_t index) const { return objects_.at(index); }
  /// Stores `object` (counted once more) in place of the element's old one.
  void setObject(std::size_t index, vorlo::VORInterface* object);
  /// Stores `object` taking over a reference that the caller had.
  void adoptObject(std::size_t index, vorlo::VORInterface* object);
  bool isHeterogeneous() const noexcept { return heterogeneous_; }
  /// Marks the array as heterogeneous, and makes its class the nearest class
  /// that all its objects share (its class stays when it has none).
  void settleHeterogeneousClass();

 private:
  HostClassID classID_;
  std::size_t rows_;
  std::size_t columns_;
  vorlo::InternedName className_;
  bool heterogeneous_ = false;
  std::vector<std::uint64_t> words_;
  std::vector<HostString> strings_;
  std::vector<vorlo::VORInterface*> objects_;
};
