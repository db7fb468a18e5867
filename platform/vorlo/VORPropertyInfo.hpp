#pragma once

#include <vorlo/CallocRecord.hpp>
#include <vorlo/InternedName.hpp>
#include <vorlo/VORValue.hpp>

#include <cstdint>

namespace vorlo {

/// Base of the property records of a class. Reading gives one value by the
/// slot rules of the property's type; writing takes one. The class owns its
/// records.
class VORPropertyInfo : public CallocRecord {
 public:
  enum class Kind { Property, Typed };

  /// Attribute bit as this platform reads it: kept out of listings, still usable.
  static constexpr std::uint32_t Hidden = 0x800;

  VORPropertyInfo() = default;
  VORPropertyInfo(const VORPropertyInfo&) = delete;
  VORPropertyInfo& operator=(const VORPropertyInfo&) = delete;
  virtual ~VORPropertyInfo();

  virtual const char* getName() const = 0;
  virtual const char* getDescription() const = 0;
  /// The type string of the value.
  virtual InternedName getTypeName() const = 0;
  virtual std::uint32_t getAttributes() const = 0;
  virtual Kind getKind() const = 0;
  /// Whether the property has something to call on assignment.
  virtual bool isSettable() const = 0;
  /// Reads the property of the object that `self` holds into `value`. A
  /// host array put there belongs to the caller.
  virtual void get(VORValue self, VORValue& value) const = 0;
  /// Writes `value` to the property of the object that `self` holds.
  virtual void set(VORValue self, VORValue value) const = 0;
};

}  // namespace vorlo
