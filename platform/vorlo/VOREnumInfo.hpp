#pragma once

#include <vorlo/CallocRecord.hpp>

class HostArray;

namespace vorlo {

/// Base of the member records of an enumeration. A member's host value is an
/// object of the enumeration class; the record makes it on first demand and
/// keeps it.
class VOREnumInfo : public CallocRecord {
 public:
  VOREnumInfo() = default;
  VOREnumInfo(const VOREnumInfo&) = delete;
  VOREnumInfo& operator=(const VOREnumInfo&) = delete;
  virtual ~VOREnumInfo();

  virtual const char* getName() const = 0;
  virtual const char* getDescription() const;
  virtual const char* getDetailedDescription() const;
  /// The member's host value: a 1-by-1 enumeration array that the record keeps.
  virtual HostArray* getValue() = 0;
  virtual bool isDestructible() const;
  virtual bool isHidden() const;
};

}  // namespace vorlo
