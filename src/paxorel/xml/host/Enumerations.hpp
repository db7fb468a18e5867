#pragma once

// The enumerations of the package. A member's host value is an object of
// the enumeration class, a "uint32" whose number is the member's host value
// (which is not the native value the library maps it from).

#include <vorlo/VORClassInfo.hpp>
#include <vorlo/VOREnumInfo.hpp>
#include <vorlo/VORMethodInfo.hpp>

#include <cstdint>
#include <string>

class HostArray;

namespace paxorel::xml::mi {

struct EnumerationMember {
  const char* name;
  std::uint32_t value;
};

inline constexpr EnumerationMember parseErrorSeverity[] = {
    {"Warning", 0}, {"Error", 1}, {"FatalError", 2}, {"UnknownError", 3}};
inline constexpr EnumerationMember resourceIdentifierType[] = {{"SchemaGrammar", 0},  {"SchemaImport", 1},
                                                               {"SchemaInclude", 2},  {"SchemaRedefine", 3},
                                                               {"ExternalEntity", 4}, {"Unknown", 255}};

/// A member record of the enumeration of `Members`. It makes its host value
/// on first demand and keeps it, so every reader gets the same one.
template <const auto& Members>
class EnumerationMemberInfo final : public vorlo::VOREnumInfo {
 public:
  EnumerationMemberInfo(const EnumerationMember& member, vorlo::VORClient* client, vorlo::VORClass* cls) noexcept
      : name_(member.name), value_(member.value), client_(client), class_(cls) {}
  EnumerationMemberInfo(const EnumerationMemberInfo&) = delete;
  EnumerationMemberInfo& operator=(const EnumerationMemberInfo&) = delete;
  ~EnumerationMemberInfo() override;

  const char* getName() const override { return name_; }
  HostArray* getValue() override;

 private:
  const char* name_;
  std::uint32_t value_;
  HostArray* valueObject_ = nullptr;
  vorlo::VORClient* client_;
  vorlo::VORClass* class_;
};

/// The value constructor of the enumeration of `Members`: it sets the number
/// of the object under construction by the constructor of "uint32".
template <const auto& Members>
class EnumerationValueCtor final : public vorlo::VORMethodInfo {
 public:
  EnumerationValueCtor(vorlo::VORMethodSignaturePtr signature, vorlo::VORClass* cls) noexcept
      : signature_(std::move(signature)), class_(cls) {}

  /// The enumeration's short name.
  const char* getName() const override;
  vorlo::VORMethodSignaturePtr getSignature() const override { return signature_; }
  Kind getKind() const override { return Kind::ValueConstructor; }
  bool isFirstArgDispatch() const override { return false; }
  void invoke(vorlo::VORClient* client, int& outputCount, vorlo::VORValue* outputs, int inputCount,
              const vorlo::VORValue* inputs) const override;

 private:
  vorlo::VORMethodSignaturePtr signature_;
  vorlo::VORClass* class_;
};

/// The class record of the enumeration of `Members`.
template <const auto& Members>
class EnumerationClass final : public vorlo::VORClassInfo {
 public:
  EnumerationClass(std::string shortName, std::string description)
      : shortName_(std::move(shortName)), description_(std::move(description)) {}

  const char* getName() const override { return shortName_.c_str(); }
  const char* getDescription() const override { return description_.c_str(); }
  const char* getDetailedDescription() const override { return getDescription(); }
  /// The base "uint32", the members in order, then the value constructor.
  void initializeClass(vorlo::VORClass* cls, vorlo::VORClient* client) override;
  vorlo::factory::full::Wrappable* allocateInstance(vorlo::VORInterface* /*object*/) override { return nullptr; }
  void deallocateInstance(vorlo::VORInterface* /*object*/, vorlo::factory::full::Wrappable* /*instance*/) override {}
  bool isOkToDestroy() const override { return false; }
  bool isHandleClass() const override { return false; }
  bool isEnumeration() const override { return true; }
  bool isConstructedOnLoad() const override { return false; }

 private:
  std::string shortName_;
  std::string description_;
};

extern template class EnumerationClass<parseErrorSeverity>;
extern template class EnumerationClass<resourceIdentifierType>;

using VorParseErrorSeverity = EnumerationClass<parseErrorSeverity>;
using ParseErrorSeverityEnumValueInfo = EnumerationMemberInfo<parseErrorSeverity>;
using ParseErrorSeverityEnumValueCtor = EnumerationValueCtor<parseErrorSeverity>;
using VorResourceIdentifierType = EnumerationClass<resourceIdentifierType>;
using ResourceIdentifierTypeEnumValueInfo = EnumerationMemberInfo<resourceIdentifierType>;
using ResourceIdentifierTypeEnumValueCtor = EnumerationValueCtor<resourceIdentifierType>;

}  // namespace paxorel::xml::mi
