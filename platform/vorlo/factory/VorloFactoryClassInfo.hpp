#pragma once

#include <vorlo/VORClassInfo.hpp>

#include <string>

namespace vorlo::factory {

/// Base of the class records of handle classes: a short name and a
/// description, which also serves as the detailed description.
class VorloFactoryClassInfo : public VORClassInfo {
 public:
  VorloFactoryClassInfo(std::string shortName, std::string description)
      : shortName_(std::move(shortName)), description_(std::move(description)) {}

  const char* getName() const override { return shortName_.c_str(); }
  const char* getDescription() const override { return description_.c_str(); }
  const char* getDetailedDescription() const override { return description_.c_str(); }

 private:
  std::string shortName_;
  std::string description_;
};

/// The class record of a handle class whose instances are native objects
/// derived from `T`.
template <class T, bool Sealed>
class HandleClassInfo : public VorloFactoryClassInfo {
 public:
  using VorloFactoryClassInfo::VorloFactoryClassInfo;
};

}  // namespace vorlo::factory
