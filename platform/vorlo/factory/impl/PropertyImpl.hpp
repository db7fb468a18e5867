#pragma once

#include <vorlo/VORPropertyInfo.hpp>
#include <vorlo/factory/impl/MemberSlot.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vorlo::factory::impl {

/// Reads a property through a native member: the function, chosen by the
/// member's type, takes the object from the self slot and puts the result
/// into the value slot by the slot rules of `type`.
class ClassGetter {
 public:
  using Function = void (*)(const ClassGetter& getter, VORValue self, VORValue& value);

  ClassGetter(InternedName type, MemberSlot member, Function function) noexcept
      : type_(type), member_(member), function_(function) {}
  ClassGetter(const ClassGetter&) = delete;
  ClassGetter& operator=(const ClassGetter&) = delete;
  virtual ~ClassGetter() = default;

  InternedName getTypeName() const noexcept { return type_; }
  void get(VORValue self, VORValue& value) const { function_(*this, self, value); }
  template <class Member>
  Member member() const noexcept {
    return member_.get<Member>();
  }

 private:
  InternedName type_;
  MemberSlot member_;
  Function function_;
};

/// A getter around a plain function of the object instead of a member: the
/// value of a constant.
class AdaptedClassGetter : public ClassGetter {
 public:
  using ClassGetter::ClassGetter;
};

/// Writes a property through a native member of one argument.
class ClassSetter {
 public:
  using Function = void (*)(const ClassSetter& setter, VORValue self, VORValue value);

  ClassSetter(MemberSlot member, Function function) noexcept : member_(member), function_(function) {}
  ClassSetter(const ClassSetter&) = delete;
  ClassSetter& operator=(const ClassSetter&) = delete;

  void set(VORValue self, VORValue value) const { function_(*this, self, value); }
  template <class Member>
  Member member() const noexcept {
    return member_.get<Member>();
  }

 private:
  MemberSlot member_;
  Function function_;
};

/// A property record: name, description, attribute word, a getter and,
/// unless the property is read-only, a setter. It owns both.
class PropertyImpl : public VORPropertyInfo {
 public:
  PropertyImpl(std::string name, std::string description, std::uint32_t attributes,
               std::unique_ptr<ClassGetter> getter, std::unique_ptr<ClassSetter> setter)
      : name_(std::move(name)),
        description_(std::move(description)),
        attributes_(attributes),
        getter_(std::move(getter)),
        setter_(std::move(setter)) {}

  const char* getName() const override { return name_.c_str(); }
  const char* getDescription() const override { return description_.c_str(); }
  InternedName getTypeName() const override { return getter_->getTypeName(); }
  std::uint32_t getAttributes() const override { return attributes_; }
  Kind getKind() const override { return Kind::Property; }
  bool isSettable() const override { return setter_ != nullptr; }
  void get(VORValue self, VORValue& value) const override { getter_->get(self, value); }
  /// Without a setter: ZELMAR:vorlo:ReadOnlyProperty.
  void set(VORValue self, VORValue value) const override;

 private:
  std::string name_;
  std::string description_;
  std::uint32_t attributes_;
  std::unique_ptr<ClassGetter> getter_;
  std::unique_ptr<ClassSetter> setter_;
};

}  // namespace vorlo::factory::impl
