#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorlo {

class VORClass;
struct TypeSpec;

class InternedName;

namespace internal {
struct InternedEntry;
/// The interned name of `name`. The string is moved in; equal strings give
/// the same name.
InternedName makeInterned(std::string name);
/// The same without a string to give away: no allocation for a known name.
InternedName makeInterned(std::string_view name);
InternedName makeInterned(const char* name);
/// The same for text that never changes at its address, such as a string
/// literal: the names of the last few addresses are kept, so that asking
/// again costs no lookup.
InternedName makeInternedConstant(std::string_view name);
}  // namespace internal

/// A name held once by the platform: equal texts give equal names, so names
/// compare as pointers. The default name is null (no name at all), which is
/// not the interned empty text. A name also leads straight to the class
/// registered under it and to what it means as a type string.
class InternedName {
 public:
  InternedName() = default;

  bool isNull() const noexcept { return entry_ == nullptr; }
  /// The text; "" for the null name.
  const char* c_str() const noexcept;
  std::size_t size() const noexcept;
  std::string_view view() const noexcept;
  std::string str() const { return std::string(view()); }

  /// The class registered under this name, or null.
  VORClass* getClass() const noexcept;
  /// What the name means as a type string of a signature (parsed once).
  const TypeSpec& typeSpec() const;

  friend bool operator==(InternedName a, InternedName b) noexcept { return a.entry_ == b.entry_; }
  friend bool operator!=(InternedName a, InternedName b) noexcept { return a.entry_ != b.entry_; }

 private:
  friend class VORClass;
  friend InternedName internal::makeInterned(std::string);
  friend InternedName internal::makeInterned(std::string_view);
  explicit InternedName(const internal::InternedEntry* entry) noexcept : entry_(entry) {}
  /// Makes `cls` the class registered under this name (null: none).
  void setClass(VORClass* cls) const noexcept;

  const internal::InternedEntry* entry_ = nullptr;
};

/// What a type string stands for: the value a slot of that type holds.
struct TypeSpec {
  enum Kind : unsigned char {
    Void,          ///< "void": no result
    Text,          ///< "VorloFactoryString scalar": a char array
    TextPointer,   ///< "ustringToString scalar": a pointer to converted text
    Logical,       ///< "logical scalar"
    Double,        ///< "double scalar"
    UInt64,        ///< "uint64 scalar"
    UInt32,        ///< "uint32": an unsigned 32-bit scalar
    Any,           ///< "any": whatever array the native side made or takes
    Object,        ///< a class name: an object array of that class
    ObjectVector,  ///< a class name and " vector": a 1-by-n object array
    Self,          ///< a class name and " scalar": the object of a direct method
  };
  Kind kind;
  InternedName className;  ///< for Object, ObjectVector and Self
};

}  // namespace vorlo

template <>
struct std::hash<vorlo::InternedName> {
  std::size_t operator()(vorlo::InternedName name) const noexcept {
    return std::hash<const void*>()(name.c_str());
  }
};
