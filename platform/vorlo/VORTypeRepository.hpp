#pragma once

#include <vorlo/InternedName.hpp>

#include <memory>
#include <unordered_map>

namespace vorlo {

/// A data type of the platform, known by its type string.
class VORDataType {
 public:
  explicit VORDataType(InternedName name) noexcept : name_(name) {}
  InternedName getName() const noexcept { return name_; }
  const TypeSpec& getSpec() const { return name_.typeSpec(); }

 private:
  InternedName name_;
};

/// The data types that the platform knows: its scalar types ("logical
/// scalar", "double scalar", "uint64 scalar", "uint32", "void", "any"), the
/// two string types once factory::detail::initStringDataTypes has run, and
/// the type of each registered class.
class VORTypeRepository {
 public:
  VORTypeRepository();

  /// The data type named `name`, or null for a name the platform does not know.
  static const VORDataType* getType(InternedName name);
  /// Makes `name` a known type.
  static void addType(InternedName name);

 private:
  // The platform's repository, its scalar types known from the first use
  // (they cannot be made while the platform's state is being made).
  static VORTypeRepository& instance();

  bool scalarsKnown_ = false;
  std::unordered_map<InternedName, std::unique_ptr<VORDataType>> types_;
};

}  // namespace vorlo
